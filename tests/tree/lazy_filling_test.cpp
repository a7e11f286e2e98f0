#include <fittings/tree/handy_tree_ctrl.h>

#include <gtest/gtest.h>

#include <wx/uiaction.h>

#include <tests/tree/tree_on_screen.h>

namespace {

class LazyFilling : public testing::Test
{
protected:
    LazyFilling()
    {
        tree.folders = {{L"R", {L"A", L"B"}}, {L"A", {L"A1"}}};
        root = AddLazyRoot(tree, "R");
    }

    TreeOnScreen<LazyTree> screen;
    LazyTree& tree = *screen.tree;
    wxTreeCursor root;
};

TEST_F(LazyFilling, HappensWhenTheItemExpands)
{
    EXPECT_FALSE(root.GetChild().IsOk());
    root.Expand();
    EXPECT_EQ(tree.hooked, (Labels{L"R"}));
    EXPECT_EQ(ChildrenOf(root), (Labels{L"A", L"B"}));
    EXPECT_TRUE(root.IsExpanded());
}

TEST_F(LazyFilling, GetsACursorOnTheControlAndTheItem)
{
    wxTreeCursor seen;
    bool expandedMeanwhile = true;
    tree.inHook = [&](const wxTreeCursor& item) {
        seen = item;
        expandedMeanwhile = item.IsExpanded();
    };
    root.Expand();
    EXPECT_EQ(seen.tree, &tree);
    EXPECT_TRUE(seen.item == root.item);
    EXPECT_FALSE(expandedMeanwhile);
}

TEST_F(LazyFilling, IsAskedForOnceAnExpansion)
{
    root.Expand();
    root.Expand();
    EXPECT_EQ(tree.hooked.size(), 1u);
    tree.Collapse(root.item);
    EXPECT_EQ(tree.hooked.size(), 1u);
    root.Expand();
    EXPECT_EQ(tree.hooked, (Labels{L"R", L"R"}));
    EXPECT_EQ(ChildrenOf(root), (Labels{L"A", L"B"}));
}

TEST_F(LazyFilling, DoesNotHappenForALeaf)
{
    root.Expand();
    root.GetChild().GetNextSibling().Expand();
    EXPECT_EQ(tree.hooked, (Labels{L"R"}));
}

TEST_F(LazyFilling, HappensLevelByLevel)
{
    root.Expand();
    wxTreeCursor folder = root.GetChild();
    EXPECT_FALSE(folder.GetChild().IsOk());
    folder.Expand();
    EXPECT_EQ(tree.hooked, (Labels{L"R", L"A"}));
    EXPECT_EQ(ChildrenOf(folder), (Labels{L"A1"}));
}

TEST_F(LazyFilling, IsLeftToTheHost)
{
    TreeOnScreen<> plain;
    wxTreeCursor item = AddLazyRoot(*plain.tree, "R");
    item.Expand();
    EXPECT_TRUE(item.IsExpanded());
    EXPECT_FALSE(item.GetChild().IsOk());
    plain.tree->OnItemExpanding(item);
    EXPECT_FALSE(item.GetChild().IsOk());
}

TEST_F(LazyFilling, ComesFromTheBindingOfTheObjectItself)
{
    wxTreeEvent event(wxEVT_TREE_ITEM_EXPANDING, &tree, root.item);
    event.SetId(12345);
    EXPECT_TRUE(tree.GetEventHandler()->ProcessEvent(event));
    EXPECT_EQ(tree.hooked, (Labels{L"R"}));
    EXPECT_TRUE(event.IsAllowed());
    EXPECT_FALSE(event.GetSkipped());
}

TEST_F(LazyFilling, DoesNotPassTheEventOnToTheFrame)
{
    int inFrame = 0;
    screen.frame->Bind(wxEVT_TREE_ITEM_EXPANDING, [&](wxTreeEvent&) { ++inFrame; });
    root.Expand();
    EXPECT_EQ(tree.hooked.size(), 1u);
    EXPECT_EQ(inFrame, 0);
}

TEST_F(LazyFilling, DoesNotHappenWhenAnEarlierHandlerVetoes)
{
    tree.Bind(wxEVT_TREE_ITEM_EXPANDING, [](wxTreeEvent& event) { event.Veto(); });
    root.Expand();
    EXPECT_TRUE(tree.hooked.empty());
    EXPECT_FALSE(root.IsExpanded());
}

TEST_F(LazyFilling, HappensByTheRightArrowKey)
{
    screen.Show();
    tree.SelectRootItem();
    wxUIActionSimulator keyboard;
    keyboard.Char(WXK_RIGHT);
    EXPECT_TRUE(PumpUntil([&] { return root.IsExpanded(); }));
    EXPECT_EQ(tree.hooked, (Labels{L"R"}));

    keyboard.Char(WXK_RIGHT);  // moves to the first child
    keyboard.Char(WXK_RIGHT);  // expands the first child
    EXPECT_TRUE(PumpUntil([&] { return root.GetChild().IsExpanded(); }));
    EXPECT_EQ(tree.hooked, (Labels{L"R", L"A"}));
}

TEST_F(LazyFilling, HappensByAClickOnTheButton)
{
    screen.Show();
    wxUIActionSimulator mouse;
    mouse.MouseMove(PointOn(root, wxTREE_HITTEST_ONITEMBUTTON));
    mouse.MouseClick();
    EXPECT_TRUE(PumpUntil([&] { return root.IsExpanded(); }));
    EXPECT_EQ(tree.hooked, (Labels{L"R"}));
    EXPECT_EQ(ChildrenOf(root), (Labels{L"A", L"B"}));
}

TEST_F(LazyFilling, HappensByADoubleClickOnTheLabel)
{
    screen.Show();
    wxUIActionSimulator mouse;
    mouse.MouseMove(PointOn(root, wxTREE_HITTEST_ONITEMLABEL));
    mouse.MouseDblClick();
    EXPECT_TRUE(PumpUntil([&] { return root.IsExpanded(); }));
    EXPECT_EQ(tree.hooked, (Labels{L"R"}));
}

}  // namespace
