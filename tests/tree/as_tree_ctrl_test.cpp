// This library's tree controls send the same events as the toolkit's tree control: the same tests run on all three.

#include <gtest/gtest.h>

#include <tests/tree/tree_in_use.h>
#include <tests/tree/tree_types.h>

namespace {

template <typename Tree>
class AsTreeCtrl : public TreeInUse<Tree>
{
};

TYPED_TEST_SUITE(AsTreeCtrl, Trees, TreeName);

// --- Selection -------------------------------------------------------------------------------------------------------

TYPED_TEST(AsTreeCtrl, TellsOfAClickBeforeAndAfter)
{
    this->Click(this->b);
    this->ExpectEvents({L"selecting b after root", L"selected b after root"});
    EXPECT_EQ(this->Selected(), (Labels{L"b"}));
}

TYPED_TEST(AsTreeCtrl, KeepsTheSelectionWhenTheHostVetoes)
{
    this->log.on[L"selecting b after root"] = [](wxTreeEvent& event) { event.Veto(); };
    this->Click(this->b);
    this->ExpectEvents({L"selecting b after root"});
    EXPECT_EQ(this->Selected(), (Labels{L"root"}));
}

TYPED_TEST(AsTreeCtrl, SelectsByKeysWithOneEventEach)
{
    int characters = 0;
    this->tree.Bind(wxEVT_CHAR, [&](wxKeyEvent& event) {
        ++characters;
        event.Skip();
    });
    this->user.Char(WXK_DOWN);
    this->ExpectEvents({L"key 317", L"selecting a after root", L"selected a after root"});
    this->user.Char(WXK_END);
    this->ExpectEvents({L"key 312", L"selecting c after a", L"selected c after a"});
    this->user.Char(WXK_HOME);
    this->ExpectEvents({L"key 313", L"selecting root after c", L"selected root after c"});
    EXPECT_EQ(characters, 3);
}

TYPED_TEST(AsTreeCtrl, SelectsByTheFirstLetters)
{
    this->user.Char('c');
    this->ExpectEvents({L"key 67", L"selecting c after root", L"selected c after root"});
}

TYPED_TEST(AsTreeCtrl, SelectsOneItemOnly)
{
    this->tree.SelectItem(this->b.item);
    this->tree.SelectItem(this->b.item);
    this->tree.SelectItem(this->c.item);
    this->ExpectEvents(
        {L"selecting b after root", L"selected b after root", L"selecting c after b", L"selected c after b"});
    EXPECT_EQ(this->Selected(), (Labels{L"c"}));
    this->tree.UnselectItem(this->c.item);
    EXPECT_EQ(this->Selected(), Labels());
}

TYPED_TEST(AsTreeCtrl, SelectsOneItemAfterTheOtherWithControl)
{
    this->tree.ToggleWindowStyle(wxTR_MULTIPLE);
    this->Click(this->a);
    EXPECT_TRUE(PumpUntil([&] { return this->Selected() == Labels{L"a"}; }));
    this->user.KeyDown(WXK_CONTROL);
    this->Click(this->c);
    EXPECT_TRUE(PumpUntil([&] { return this->Selected() == Labels{L"a", L"c"}; }));
    this->Click(this->a);
    EXPECT_TRUE(PumpUntil([&] { return this->Selected() == Labels{L"c"}; }));
    this->user.KeyUp(WXK_CONTROL);
    PumpPending();
}

TYPED_TEST(AsTreeCtrl, SelectsARangeWithShift)
{
    this->tree.ToggleWindowStyle(wxTR_MULTIPLE);
    this->Click(this->a);
    EXPECT_TRUE(PumpUntil([&] { return this->Selected() == Labels{L"a"}; }));
    this->user.KeyDown(WXK_SHIFT);
    this->Click(this->c);
    EXPECT_TRUE(PumpUntil([&] { return this->Selected() == Labels{L"a", L"b", L"c"}; }));
    this->user.KeyUp(WXK_SHIFT);
    PumpPending();
}

// --- Expansion -------------------------------------------------------------------------------------------------------

TYPED_TEST(AsTreeCtrl, TellsOfTheButtonBeforeAndAfter)
{
    this->Click(this->a, wxMOUSE_BTN_LEFT, wxTREE_HITTEST_ONITEMBUTTON);
    this->ExpectEvents({L"expanding a", L"expanded a"});
    this->Click(this->root, wxMOUSE_BTN_LEFT, wxTREE_HITTEST_ONITEMBUTTON);
    this->ExpectEvents({L"collapsing root", L"collapsed root"});
    EXPECT_EQ(this->Selected(), (Labels{L"root"}));
}

TYPED_TEST(AsTreeCtrl, StaysAsItIsWhenTheHostVetoes)
{
    this->log.on[L"expanding a"] = [](wxTreeEvent& event) { event.Veto(); };
    this->log.on[L"collapsing root"] = [](wxTreeEvent& event) { event.Veto(); };
    this->tree.Expand(this->a.item);
    this->tree.Collapse(this->root.item);
    this->ExpectEvents({L"expanding a", L"collapsing root"});
    EXPECT_FALSE(this->a.IsExpanded());
    EXPECT_TRUE(this->root.IsExpanded());
}

TYPED_TEST(AsTreeCtrl, ExpandsAllBelowEachOnce)
{
    this->tree.Collapse(this->root.item);
    this->log.Take();
    this->tree.ExpandAll();
    this->ExpectEvents({L"expanding root", L"expanded root", L"expanding a", L"expanded a"});
    this->tree.CollapseAll();
    EXPECT_FALSE(this->a.IsExpanded());
    EXPECT_FALSE(this->root.IsExpanded());
}

TYPED_TEST(AsTreeCtrl, MovesTheSelectionUpWhenItsBranchCollapses)
{
    this->tree.Expand(this->a.item);
    this->tree.SelectItem(this->a2.item);
    this->user.Char(WXK_LEFT);
    EXPECT_TRUE(PumpUntil([&] { return this->Selected() == Labels{L"a"}; }));
    this->user.Char(WXK_LEFT);
    EXPECT_TRUE(PumpUntil([&] { return !this->a.IsExpanded(); }));
    EXPECT_EQ(this->Selected(), (Labels{L"a"}));
}

// --- Activation and the other buttons --------------------------------------------------------------------------------

TYPED_TEST(AsTreeCtrl, IsActivatedByEnter)
{
    this->user.Char(WXK_RETURN);
    this->ExpectEvents({L"key 13", L"activated root"});
}

TYPED_TEST(AsTreeCtrl, IsActivatedByADoubleClick)
{
    PointTo(PointOn(this->b, wxTREE_HITTEST_ONITEMLABEL));
    this->user.MouseDblClick();
    this->ExpectEvents({L"selecting b after root", L"selected b after root", L"activated b"});
}

TYPED_TEST(AsTreeCtrl, ExpandsByADoubleClickThatTheHostDoesNotTake)
{
    PointTo(PointOn(this->a, wxTREE_HITTEST_ONITEMLABEL));
    this->user.MouseDblClick();
    this->ExpectEvents(
        {L"selecting a after root", L"selected a after root", L"activated a", L"expanding a", L"expanded a"});
}

TYPED_TEST(AsTreeCtrl, DoesNotExpandByADoubleClickThatTheHostTakes)
{
    this->log.on[L"activated a"] = [](wxTreeEvent&) {};
    PointTo(PointOn(this->a, wxTREE_HITTEST_ONITEMLABEL));
    this->user.MouseDblClick();
    this->ExpectEvents({L"selecting a after root", L"selected a after root", L"activated a"});
}

TYPED_TEST(AsTreeCtrl, TellsOfTheOtherMouseButtons)
{
    this->Click(this->b, wxMOUSE_BTN_RIGHT);
    this->ExpectEvents({L"selecting b after root", L"selected b after root", L"right b", L"menu b"});
    this->Click(this->c, wxMOUSE_BTN_MIDDLE);
    this->ExpectEvents({L"middle c"});
    EXPECT_EQ(this->Selected(), (Labels{L"b"}));
}

TYPED_TEST(AsTreeCtrl, DragsAnItemWhenTheHostAllowsIt)
{
    const auto drag = [&](const wxTreeCursor& item) {
        PointTo(PointOn(item, wxTREE_HITTEST_ONITEMLABEL));
        this->user.MouseDown();
        PumpPending();
        // The toolkit starts a drag only after a few moves of the mouse.
        for (int x = 0; x < 5; ++x)
            PointTo(PointOn(this->c, wxTREE_HITTEST_ONITEMLABEL) + wxPoint(x, 0));
        this->user.MouseUp();
        PumpPending();
    };
    drag(this->b);
    this->ExpectEvents({L"selecting b after root", L"selected b after root", L"dragging b"});
    this->log.on[L"dragging a"] = [](wxTreeEvent& event) { event.Allow(); };
    drag(this->a);
    this->ExpectEvents({L"selecting a after b", L"selected a after b", L"dragging a", L"dropped c"});
}

// --- Labels ----------------------------------------------------------------------------------------------------------

TYPED_TEST(AsTreeCtrl, EditsALabel)
{
    this->tree.ToggleWindowStyle(wxTR_EDIT_LABELS);
    this->tree.EditLabel(this->b.item);
    this->ExpectEvents({L"editing b"});
    this->user.Text("new");
    this->user.Char(WXK_RETURN);
    this->ExpectEvents({L"edited b to new"});
    EXPECT_EQ(this->b.GetText(), L"new");
    EXPECT_TRUE(PumpUntil([&] { return this->tree.HasFocus(); }));
}

TYPED_TEST(AsTreeCtrl, KeepsTheLabelAfterEscape)
{
    this->tree.ToggleWindowStyle(wxTR_EDIT_LABELS);
    this->tree.EditLabel(this->b.item);
    this->ExpectEvents({L"editing b"});
    this->user.Text("new");
    this->user.Char(WXK_ESCAPE);
    this->ExpectEvents({L"edited b in vain"});
    EXPECT_EQ(this->b.GetText(), L"b");
}

TYPED_TEST(AsTreeCtrl, KeepsTheLabelWhenTheHostVetoes)
{
    this->tree.ToggleWindowStyle(wxTR_EDIT_LABELS);
    this->log.on[L"editing a"] = [](wxTreeEvent& event) { event.Veto(); };
    this->tree.EditLabel(this->a.item);
    this->ExpectEvents({L"editing a"});
    EXPECT_EQ(this->tree.GetEditControl(), nullptr);

    this->log.on[L"edited b to x"] = [](wxTreeEvent& event) { event.Veto(); };
    this->tree.EditLabel(this->b.item);
    this->user.Text("x");
    this->user.Char(WXK_RETURN);
    this->ExpectEvents({L"editing b", L"edited b to x"});
    EXPECT_EQ(this->b.GetText(), L"b");
}

// --- Deletion --------------------------------------------------------------------------------------------------------

TYPED_TEST(AsTreeCtrl, TellsOfEachDeletedItemOnce)
{
    this->a.Delete();
    this->ExpectEvents({L"deleted a1", L"deleted a2", L"deleted a"});
    this->tree.DeleteChildren(this->root.item);
    this->ExpectEvents({L"deleted b", L"deleted c"});
    this->tree.DeleteAllItems();
    this->ExpectEvents({L"deleted root"});
    EXPECT_FALSE(this->tree.GetRootItem().IsOk());
    EXPECT_EQ(this->Selected(), Labels());
}

TYPED_TEST(AsTreeCtrl, TellsOfItsItemsWhenItGoes)
{
    this->tree.Destroy();
    Labels deleted = this->log.Take();
    this->screen.tree = nullptr;
    ASSERT_FALSE(deleted.empty());
    EXPECT_EQ(deleted.size(), 6u);
    EXPECT_EQ(deleted.back(), L"deleted root");
}

TYPED_TEST(AsTreeCtrl, SelectsTheNextItemOrTheParentOfADeletedOne)
{
    this->tree.Expand(this->a.item);
    this->tree.SelectItem(this->a1.item);
    this->log.Take();
    this->a1.Delete();
    this->ExpectEvents({L"deleted a1", L"selecting a2", L"selected a2"});
    EXPECT_EQ(this->Selected(), (Labels{L"a2"}));
    this->a2.Delete();
    this->ExpectEvents({L"deleted a2", L"selecting a", L"selected a"});
    EXPECT_EQ(this->Selected(), (Labels{L"a"}));
}

TYPED_TEST(AsTreeCtrl, LetsTheHostDeleteTheItemThatIsSelected)
{
    this->log.on[L"selected b after root"] = [this](wxTreeEvent& event) { this->tree.Delete(event.GetItem()); };
    this->Click(this->b);
    this->ExpectEvents(
        {L"selecting b after root", L"selected b after root", L"deleted b", L"selecting c", L"selected c"});
    EXPECT_EQ(ChildrenOf(this->root), (Labels{L"a", L"c"}));
    this->Click(this->a);
    this->ExpectEvents({L"selecting a after c", L"selected a after c"});
}

TYPED_TEST(AsTreeCtrl, LetsTheHostDeleteTheItemThatIsActivated)
{
    this->log.on[L"activated b"] = [this](wxTreeEvent& event) { this->tree.Delete(event.GetItem()); };
    this->tree.SelectItem(this->b.item);
    this->user.Char(WXK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return ChildrenOf(this->root) == Labels{L"a", L"c"}; }));
    EXPECT_TRUE(PumpUntil([&] { return this->Selected() == Labels{L"c"}; }));
}

TYPED_TEST(AsTreeCtrl, LetsTheHostDeleteTheItemThatHasExpanded)
{
    this->log.on[L"expanded a"] = [this](wxTreeEvent& event) { this->tree.Delete(event.GetItem()); };
    this->Click(this->a, wxMOUSE_BTN_LEFT, wxTREE_HITTEST_ONITEMBUTTON);
    this->ExpectEvents({L"expanding a", L"expanded a", L"deleted a1", L"deleted a2", L"deleted a"});
    EXPECT_EQ(ChildrenOf(this->root), (Labels{L"b", L"c"}));
}

TYPED_TEST(AsTreeCtrl, LetsTheHostDeleteTheItemThatItDoesNotLetExpand)
{
    this->log.on[L"expanding a"] = [this](wxTreeEvent& event) {
        event.Veto();
        this->tree.Delete(event.GetItem());
    };
    this->Click(this->a, wxMOUSE_BTN_LEFT, wxTREE_HITTEST_ONITEMBUTTON);
    this->ExpectEvents({L"expanding a", L"deleted a1", L"deleted a2", L"deleted a"});
    EXPECT_EQ(ChildrenOf(this->root), (Labels{L"b", L"c"}));
}

TYPED_TEST(AsTreeCtrl, LetsTheHostFillItAnewWhenAnItemIsSelected)
{
    this->log.on[L"selected b after root"] = [this](wxTreeEvent&) {
        this->tree.DeleteAllItems();
        this->tree.AppendItem(this->tree.wxTreeCtrl::AddRoot("new root"), "new child");
    };
    this->Click(this->b);
    EXPECT_TRUE(PumpUntil([&] { return this->Selected() == Labels{L"new root"}; }));
    EXPECT_EQ(this->tree.GetCount(), 2u);
}

// --- Code for the toolkit's tree control -----------------------------------------------------------------------------

TEST(TreeCtrlCode, OfTheToolkitsUsersTakesCursorsForItems)
{
    const TreeOnScreen<> screen;
    wxHandyTreeCtrl* const tree = screen.tree;
    const wxTreeItemId root = tree->AddRoot("root");
    const wxTreeItemId child = tree->AppendItem(root, "child");
    tree->SelectItem(child);
    EXPECT_EQ(tree->GetItemText(tree->GetSelection()), "child");
    wxTreeItemId selected;
    selected = tree->GetSelection();
    EXPECT_TRUE(selected == child);
    tree->SetItemBold(tree->GetSelection());
    EXPECT_TRUE(tree->IsBold(child));
    tree->Delete(tree->GetSelection());
    EXPECT_EQ(tree->GetCount(), 1u);
    EXPECT_EQ(tree->GetItemText(tree->GetRootItem()), "root");
}

}  // namespace
