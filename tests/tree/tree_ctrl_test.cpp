#include <fittings/tree/tree_ctrl_ex.h>

#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include <tests/tree/tree_on_screen.h>

namespace {

static_assert(std::is_base_of_v<wxTreeCtrl, wxTreeCtrlEx>);
static_assert(sizeof(wxTreeCtrlEx) == sizeof(wxTreeCtrl));
static_assert(std::is_same_v<decltype(std::declval<wxTreeCtrlEx&>().GetSelection()), wxTreeCursor>);
static_assert(std::is_same_v<decltype(std::declval<wxTreeCtrlEx&>().AddRoot("root")), wxTreeCursor>);

class TreeCtrl : public testing::Test
{
protected:
    TreeOnScreen<wxTreeCtrlEx> screen;
    wxTreeCtrlEx& tree = *screen.tree;
};

TEST_F(TreeCtrl, AddsARootWithoutImagesAndData)
{
    const wxTreeCursor root = tree.AddRoot("root");
    EXPECT_EQ(root.tree, &tree);
    EXPECT_TRUE(root.item == tree.GetRootItem());
    EXPECT_EQ(root.GetText(), L"root");
    EXPECT_EQ(root.GetImage(wxTreeItemIcon_Normal), -1);
    EXPECT_EQ(root.GetImage(wxTreeItemIcon_Selected), -1);
    EXPECT_EQ(tree.GetItemData(root.item), nullptr);
}

TEST_F(TreeCtrl, KeepsTheBasesOtherWayToAddARoot)
{
    wxTreeCtrl& base = tree;
    const wxTreeItemId root = base.AddRoot("root", 3, 4, new wxGenericTreeItemData(5));
    const wxTreeCursor cursor(&tree, root);
    EXPECT_EQ(cursor.GetImage(wxTreeItemIcon_Normal), 3);
    EXPECT_EQ(cursor.GetImage(wxTreeItemIcon_Selected), 4);
    EXPECT_EQ(cursor.GetData(), 5);
}

TEST_F(TreeCtrl, GivesTheSelectionAsACursor)
{
    const wxTreeCursor child = tree.AddRoot("root").AppendItem("child");
    tree.SelectItem(child.item);
    EXPECT_EQ(tree.GetSelection().tree, &tree);
    EXPECT_TRUE(tree.GetSelection().item == child.item);
    EXPECT_TRUE(std::as_const(tree).GetSelection() == child.item);
}

TEST_F(TreeCtrl, GivesAnInvalidCursorWhenNothingIsSelected)
{
    const wxTreeCursor selection = tree.GetSelection();
    EXPECT_FALSE(selection.IsOk());
    EXPECT_EQ(selection.tree, &tree);
}

TEST_F(TreeCtrl, DeletesAnItem)
{
    wxTreeCursor root = tree.AddRoot("root");
    const std::vector<wxTreeCursor> items = Append(root, {L"a", L"b", L"c"});
    tree.DeleteItem(items[1]);
    EXPECT_EQ(ChildrenOf(root), (Labels{L"a", L"c"}));
}

TEST_F(TreeCtrl, DeletesAnItemOfAnotherTreeThere)
{
    wxTreeCursor root = tree.AddRoot("root");
    Append(root, {L"kept"});
    TreeOnScreen<wxTreeCtrlEx> other;
    wxTreeCursor otherRoot = other.tree->AddRoot("root");
    const std::vector<wxTreeCursor> items = Append(otherRoot, {L"a", L"b"});
    tree.DeleteItem(items[0]);
    EXPECT_EQ(ChildrenOf(otherRoot), (Labels{L"b"}));
    EXPECT_EQ(ChildrenOf(root), (Labels{L"kept"}));
}

}  // namespace
