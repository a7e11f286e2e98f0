// As windows, this library's tree controls behave like the toolkit's tree control.

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/imaglist.h>
#include <wx/panel.h>
#include <wx/sizer.h>

#include <tests/support/owned_window.h>
#include <tests/tree/tree_in_use.h>

namespace {

using HandyTreeInUse = TreeInUse<wxHandyTreeCtrl>;

// --- Creation and class queries --------------------------------------------------------------------------------------

TEST(TreeCtrlCreate, TakesAllThatTheToolkitsTakes)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "tree"));
    auto* const panel = new wxPanel(frame);
    auto* const tree = new wxTreeCtrlEx;
    EXPECT_EQ(tree->GetHandle(), nullptr);
    EXPECT_TRUE(tree->Create(panel, 123, wxPoint(10, 20), wxSize(150, 80), wxTR_MULTIPLE | wxTR_HIDE_ROOT,
                             wxDefaultValidator, "folders"));
    EXPECT_EQ(tree->GetParent(), panel);
    EXPECT_EQ(tree->GetId(), 123);
    EXPECT_EQ(tree->GetRect(), wxRect(10, 20, 150, 80));
    EXPECT_TRUE(tree->HasFlag(wxTR_MULTIPLE));
    EXPECT_TRUE(tree->HasFlag(wxTR_HIDE_ROOT));
    EXPECT_EQ(tree->GetName(), "folders");
    EXPECT_EQ(wxWindow::FindWindowByName("folders", frame), tree);
}

TEST(TreeCtrlCreate, OfTheToolkitIsThereForTheHandyOneToo)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "tree"));
    auto* const tree = new LazyTree;
    EXPECT_TRUE(tree->wxTreeCtrl::Create(frame, 123, wxDefaultPosition, wxDefaultSize, wxTR_HIDE_ROOT));
    EXPECT_EQ(tree->GetImageList(), nullptr);
    tree->folders = {{L"A", {L"A1"}}};
    wxTreeCursor item = tree->AddRoot("root").AppendItem("A");
    item.SetChildren(true);
    item.Expand();
    EXPECT_EQ(ChildrenOf(item), (Labels{L"A1"}));
}

// Neither wxTreeCtrlEx nor wxHandyTreeCtrl has class information of its own: the toolkit sees a wxTreeCtrl.
TEST(TreeCtrlClass, IsTheToolkits)
{
    const TreeOnScreen<wxTreeCtrlEx> ex;
    const TreeOnScreen<> handy;
    EXPECT_EQ(ex.tree->GetClassInfo(), wxCLASSINFO(wxTreeCtrl));
    EXPECT_EQ(handy.tree->GetClassInfo(), wxCLASSINFO(wxTreeCtrl));
    const wxWindow* const window = handy.tree;
    EXPECT_EQ(wxDynamicCast(window, wxTreeCtrl), handy.tree);
    EXPECT_EQ(dynamic_cast<const wxHandyTreeCtrl*>(window), handy.tree);
    EXPECT_EQ(dynamic_cast<const wxHandyTreeCtrl*>(static_cast<const wxWindow*>(ex.tree)), nullptr);
}

}  // namespace

// A host's class that the toolkit can create by its name.
class RecordedTree : public wxHandyTreeCtrl
{
public:
    // Sorts by the last letter.
    int OnCompareItems(const wxTreeItemId& left, const wxTreeItemId& right) override
    {
        return GetItemText(left).Last() < GetItemText(right).Last() ? -1 : 1;
    }

    void OnExpanded(wxTreeEvent& event)
    {
        ++expanded;
        event.Skip();
    }

    void OnExpanding(wxTreeEvent& event)
    {
        ++expanding;
        event.Skip();
    }

    int expanded = 0;
    int expanding = 0;

private:
    wxDECLARE_DYNAMIC_CLASS(RecordedTree);
    wxDECLARE_EVENT_TABLE();
};

wxIMPLEMENT_DYNAMIC_CLASS(RecordedTree, wxHandyTreeCtrl);

wxBEGIN_EVENT_TABLE(RecordedTree, wxHandyTreeCtrl)
    EVT_TREE_ITEM_EXPANDED(wxID_ANY, RecordedTree::OnExpanded)
    EVT_TREE_ITEM_EXPANDING(wxID_ANY, RecordedTree::OnExpanding)
wxEND_EVENT_TABLE()

namespace {

TEST(TreeCtrlClass, MayBeTheHosts)
{
    const TreeOnScreen<> plain;
    auto* const tree = dynamic_cast<RecordedTree*>(wxCreateDynamicObject("RecordedTree"));
    ASSERT_NE(tree, nullptr);
    tree->Create(plain.frame);
    wxWindow* const window = tree;
    EXPECT_EQ(wxDynamicCast(window, RecordedTree), tree);
    EXPECT_TRUE(tree->IsKindOf(wxCLASSINFO(wxTreeCtrl)));
    EXPECT_FALSE(plain.tree->IsKindOf(wxCLASSINFO(RecordedTree)));
}

TEST(TreeCtrlClass, MayHaveAnEventTableAndAnOrderOfItsOwn)
{
    const TreeOnScreen<RecordedTree> screen;
    wxTreeCursor root = screen.tree->AddRoot("root");
    Append(root, {L"a3", L"b1", L"c2"});
    root.Expand();
    EXPECT_EQ(screen.tree->expanded, 1);
    // The event table of RecordedTree does not receive wxEVT_TREE_ITEM_EXPANDING: wxHandyTreeCtrl's own handler runs
    // first, and does not skip the event.
    EXPECT_EQ(screen.tree->expanding, 0);
    screen.tree->SortChildren(root.item);
    EXPECT_EQ(ChildrenOf(root), (Labels{L"b1", L"c2", L"a3"}));
}

TEST(TreeCtrlClass, SortsByTheLabelOtherwise)
{
    const TreeOnScreen<> screen;
    wxTreeCursor root = screen.tree->AddRoot("root");
    Append(root, {L"c", L"a", L"b"});
    screen.tree->SortChildren(root.item);
    EXPECT_EQ(ChildrenOf(root), (Labels{L"a", L"b", L"c"}));
}

// --- Focus -----------------------------------------------------------------------------------------------------------

class TreeAmongOthers : public testing::Test
{
protected:
    void SetUp() override
    {
        tree->Create(panel);
        tree->AddRoot("root").AppendItem("child");
        after = new wxButton(panel, wxID_ANY, "after");
        auto* const sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(before);
        sizer->Add(tree, 1, wxEXPAND);
        sizer->Add(after);
        panel->SetSizer(sizer);
        ASSERT_TRUE(ShowAndSettle(frame));
        before->SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return before->HasFocus(); }));
    }

    OwnedWindow<wxFrame> frame{new wxFrame(nullptr, wxID_ANY, "tree", wxPoint(100, 100), wxSize(300, 300))};
    wxPanel* panel = new wxPanel(frame);
    wxButton* before = new wxButton(panel, wxID_ANY, "before");
    wxHandyTreeCtrl* tree = new wxHandyTreeCtrl;
    wxButton* after = nullptr;
    wxUIActionSimulator user;
};

TEST_F(TreeAmongOthers, IsReachedAndLeftByTabWithOneEventEach)
{
    int gained = 0;
    int lost = 0;
    tree->Bind(wxEVT_SET_FOCUS, [&](wxFocusEvent& event) {
        ++gained;
        event.Skip();
    });
    tree->Bind(wxEVT_KILL_FOCUS, [&](wxFocusEvent& event) {
        ++lost;
        event.Skip();
    });
    user.Char(WXK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return tree->HasFocus(); }));
    EXPECT_EQ(gained, 1);
    user.Char(WXK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return after->HasFocus(); }));
    EXPECT_EQ(lost, 1);
    user.Char(WXK_TAB, wxMOD_SHIFT);
    EXPECT_TRUE(PumpUntil([&] { return tree->HasFocus(); }));
    user.Char(WXK_TAB, wxMOD_SHIFT);
    EXPECT_TRUE(PumpUntil([&] { return before->HasFocus(); }));
    EXPECT_EQ(gained, 2);
    EXPECT_EQ(lost, 2);
}

TEST_F(TreeAmongOthers, IsPassedOverByTabWhileDisabledOrHidden)
{
    tree->Disable();
    user.Char(WXK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return after->HasFocus(); }));
    tree->Enable();
    tree->Hide();
    user.Char(WXK_TAB, wxMOD_SHIFT);
    EXPECT_TRUE(PumpUntil([&] { return before->HasFocus(); }));
    tree->Show();
    user.Char(WXK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return tree->HasFocus(); }));
}

// --- Disabled, hidden, frozen ----------------------------------------------------------------------------------------

TEST_F(HandyTreeInUse, IgnoresTheMouseWhileDisabled)
{
    tree.Disable();
    Click(b);
    ExpectEvents({});
    EXPECT_EQ(Selected(), (Labels{L"root"}));
    tree.Enable();
    Click(c);
    ExpectEvents({L"selecting c after root", L"selected c after root"});
}

TEST_F(HandyTreeInUse, KeepsItsItemsWhileHidden)
{
    tree.Hide();
    a.Expand();
    a.AppendItem("a3");
    tree.SelectItem(a2.item);
    tree.Show();
    ExpectEvents({L"expanding a", L"expanded a", L"selecting a2 after root", L"selected a2 after root"});
    Click(a1);
    ExpectEvents({L"selecting a1 after a2", L"selected a1 after a2"});
}

TEST_F(HandyTreeInUse, LaysOutWhatWasAddedWhileFrozenWhenItThaws)
{
    tree.Freeze();
    tree.Freeze();
    a.Expand();
    const wxTreeCursor d = root.AppendItem("d");
    tree.Thaw();
    EXPECT_TRUE(tree.IsFrozen());
    tree.Thaw();
    EXPECT_FALSE(tree.IsFrozen());
    wxRect rows[2];
    ASSERT_TRUE(PumpUntil([&] {
        return tree.GetBoundingRect(c.item, rows[0], true) && tree.GetBoundingRect(d.item, rows[1], true) &&
               rows[1].y > rows[0].y;
    }));
    Click(d);
    ExpectEvents({L"expanding a", L"expanded a", L"selecting d after root", L"selected d after root"});
}

// --- Another parent --------------------------------------------------------------------------------------------------

TEST(HandyTreeReparented, TakesItsItemsImagesAndHookAlong)
{
    TreeOnScreen<LazyTree> screen;
    LazyTree& tree = *screen.tree;
    tree.folders = {{L"root", {L"a", L"b"}}};
    wxTreeCursor root = AddLazyRoot(tree, "root");
    const wxImageList* const images = tree.GetImageList();
    screen.Show();

    auto* const other = new wxFrame(nullptr, wxID_ANY, "other", wxPoint(600, 100), wxSize(300, 300));
    int before = 0;
    int after = 0;
    screen.frame->Bind(wxEVT_TREE_SEL_CHANGED, [&](wxTreeEvent&) { ++before; });
    other->Bind(wxEVT_TREE_SEL_CHANGED, [&](wxTreeEvent&) { ++after; });
    EXPECT_TRUE(tree.Reparent(other));
    tree.SetSize(other->GetClientSize());
    ASSERT_TRUE(ShowAndSettle(other));
    EXPECT_EQ(tree.GetParent(), other);
    EXPECT_EQ(tree.GetImageList(), images);

    EXPECT_TRUE(tree.SelectRootItem());
    EXPECT_TRUE(PumpUntil([&] { return tree.HasFocus(); }));
    wxUIActionSimulator user;
    user.Char(WXK_RIGHT);
    EXPECT_TRUE(PumpUntil([&] { return root.IsExpanded(); }));
    EXPECT_EQ(ChildrenOf(root), (Labels{L"a", L"b"}));
    user.Char(WXK_DOWN);
    EXPECT_TRUE(PumpUntil([&] { return tree.GetSelection().GetText() == L"a"; }));
    EXPECT_EQ(before, 0);
    EXPECT_GE(after, 1);
    DestroyNow(other);
}

// --- Looks -----------------------------------------------------------------------------------------------------------

TEST(TreesInOtherColoursAndFont, LookLikeTheToolkits)
{
    TreeOnScreen<wxTreeCtrl> plain;
    TreeOnScreen<> handy;
    const wxFont font(wxFontInfo(20).Family(wxFONTFAMILY_TELETYPE));
    plain.tree->AppendItem(plain.tree->AddRoot("root"), "child");
    wxTreeCursor root = handy.tree->AddRoot("root");
    root.AppendItem("child");
    plain.Show();
    handy.Show();
    wxSize sizes[2];
    int i = 0;
    for (wxTreeCtrl* const tree : {plain.tree, static_cast<wxTreeCtrl*>(handy.tree)}) {
        EXPECT_TRUE(tree->SetForegroundColour(*wxRED));
        EXPECT_TRUE(tree->SetBackgroundColour(*wxYELLOW));
        EXPECT_TRUE(tree->SetFont(font));
        EXPECT_EQ(tree->GetForegroundColour(), *wxRED);
        EXPECT_EQ(tree->GetBackgroundColour(), *wxYELLOW);
        EXPECT_EQ(tree->GetFont(), font);
        tree->Expand(tree->GetRootItem());
        wxRect row;
        ASSERT_TRUE(tree->GetBoundingRect(tree->GetRootItem(), row, true));
        sizes[i++] = row.GetSize();
    }
    EXPECT_GT(sizes[0].y, 25);
    EXPECT_EQ(sizes[1], sizes[0]);
    // The cursor reports black for an item without its own colour. The colour of the control does not matter.
    EXPECT_EQ(root.GetTextColour(), 0u);
    root.SetTextColour(0x00FF0000);
    EXPECT_EQ(handy.tree->GetItemTextColour(root.item), *wxBLUE);
    EXPECT_EQ(handy.tree->GetForegroundColour(), *wxRED);
}

TEST_F(HandyTreeInUse, HasTheBestSizeOfTheToolkits)
{
    auto* const plain = new wxTreeCtrl(screen.frame);
    plain->SetImageList(tree.GetImageList());
    for (wxTreeCtrl* const each : {plain, static_cast<wxTreeCtrl*>(&tree)}) {
        each->DeleteAllItems();
        const wxTreeItemId top = each->AddRoot("root");
        for (int i = 0; i < 20; ++i)
            each->AppendItem(top, "an item with a long label");
        each->Expand(top);
        each->InvalidateBestSize();
    }
    PumpPending();
    EXPECT_GT(plain->GetBestSize().y, 200);
    EXPECT_EQ(tree.GetBestSize(), plain->GetBestSize());
}

TEST_F(HandyTreeInUse, ShowsImagesOfTheHostsInPlaceOfItsOwn)
{
    auto* const images = new wxImageList(24, 24);
    images->Add(wxBitmap(24, 24));
    tree.AssignImageList(images);
    a.SetImage(0, wxTreeItemIcon_Normal);
    EXPECT_EQ(tree.GetImageList(), images);
    PumpPending();
    wxRect row;
    ASSERT_TRUE(tree.GetBoundingRect(a.item, row, true));
    EXPECT_GE(row.height, 24);
}

#if wxCHECK_VERSION(3, 1, 6)
TEST_F(HandyTreeInUse, ShowsBundlesOfTheHostsInPlaceOfItsOwn)
{
    wxVector<wxBitmapBundle> images;
    images.push_back(wxBitmap(16, 16));
    tree.SetImages(images);
    a.SetImage(0, wxTreeItemIcon_Normal);
    EXPECT_TRUE(tree.HasImages());
    EXPECT_EQ(a.GetImage(wxTreeItemIcon_Normal), 0);
    PumpPending();
}
#endif

// --- This library's own operations: tree styles and events -----------------------------------------------------------

TEST_F(HandyTreeInUse, GivesNoSingleSelectionWhereThereMayBeSeveral)
{
    tree.ToggleWindowStyle(wxTR_MULTIPLE);
    tree.UnselectAll();
    tree.SelectItem(a.item);
    tree.SelectItem(c.item);
    EXPECT_EQ(Selected(), (Labels{L"a", L"c"}));
    const ExpectAssertions assertions;
    tree.GetSelection();
    EXPECT_EQ(assertions.Count(), 1);
}

TEST_F(HandyTreeInUse, AddsTheRootToWhatIsSelected)
{
    tree.ToggleWindowStyle(wxTR_MULTIPLE);
    tree.UnselectAll();
    tree.SelectItem(a.item);
    EXPECT_TRUE(tree.SelectRootItem());
    EXPECT_EQ(Selected(), (Labels{L"root", L"a"}));
}

TEST_F(HandyTreeInUse, TellsOfTheRootThatItSelects)
{
    tree.SelectItem(b.item);
    log.Take();
    EXPECT_TRUE(tree.SelectRootItem());
    ExpectEvents({L"selecting root after b", L"selected root after b"});
    EXPECT_TRUE(tree.SelectRootItem());
    ExpectEvents({});
}

// SelectRootItem() returns true although the host vetoes the selection.
TEST_F(HandyTreeInUse, LetsTheHostVetoTheRoot)
{
    tree.SelectItem(b.item);
    log.Take();
    log.on[L"selecting root after b"] = [](wxTreeEvent& event) { event.Veto(); };
    EXPECT_TRUE(tree.SelectRootItem());
    ExpectEvents({L"selecting root after b"});
    EXPECT_EQ(Selected(), (Labels{L"b"}));
}

TEST(HandyTreeWithHiddenRoot, SelectsItAllTheSame)
{
    TreeOnScreen<> screen;
    screen.tree->ToggleWindowStyle(wxTR_HIDE_ROOT);
    wxTreeCursor root = screen.tree->AddRoot("root");
    Append(root, {L"a", L"b"});
    screen.Show();
    EXPECT_TRUE(screen.tree->SelectRootItem());
    EXPECT_TRUE(screen.tree->GetSelection().item == root.item);
    wxUIActionSimulator user;
    user.Char(WXK_DOWN);
    EXPECT_TRUE(PumpUntil([&] { return screen.tree->GetSelection().GetText() == L"a"; }));
}

TEST(HandyTreeWithHiddenRoot, BringsItsExpandedItemsBack)
{
    for (const bool built : {false, true}) {
        TreeOnScreen<LazyTree> screen;
        LazyTree& tree = *screen.tree;
        tree.ToggleWindowStyle(wxTR_HIDE_ROOT);
        tree.folders = {{L"A", {L"A1", L"A2"}}, {L"A1", {L"A11"}}};
        wxTreeCursor root = tree.AddRoot("root");
        wxTreeCursor folder = root.AppendItem("A");
        folder.SetChildren(true);
        root.AppendItem("B");
        if (built) {
            tree.LoadState("hidden", root);
            EXPECT_TRUE(folder.IsExpanded());
            EXPECT_TRUE(folder.GetChild().IsExpanded());
            EXPECT_EQ(tree.hooked, (Labels{L"A", L"A1"}));
        } else {
            folder.Expand();
            folder.GetChild().Expand();
            tree.SaveState("hidden", root);
        }
    }
}

TEST_F(HandyTreeInUse, TellsOfEachItemThatItsOperationsDelete)
{
    tree.DeleteItem(a1);
    ExpectEvents({L"deleted a1"});
    tree.DeleteItem(a);
    ExpectEvents({L"deleted a2", L"deleted a"});
    tree.SelectItem(c.item);
    log.Take();
    tree.DeleteItem(c);
    ExpectEvents({L"deleted c", L"selecting root", L"selected root"});
    EXPECT_EQ(tree.GetSelection().GetText(), L"root");
}

}  // namespace
