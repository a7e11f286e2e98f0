#include <fittings/tree/tree_cursor.h>

#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include <wx/bitmap.h>

#include <tests/tree/tree_on_screen.h>

namespace {

struct Operation
{
    const char* name;
    void (*run)(wxTreeCursor& cursor, wxTreeCtrlEx& tree);
};

void ExpectInvalid(const wxTreeCursor& cursor, const wxTreeCtrl* tree)
{
    EXPECT_FALSE(cursor.IsOk());
    EXPECT_EQ(cursor.tree, tree);
}

const Operation kOperations[] = {
    {"HasNoText", [](auto& cursor, auto&) { EXPECT_EQ(cursor.GetText(), L""); }},
    {"HasNoImage", [](auto& cursor, auto&) { EXPECT_EQ(cursor.GetImage(wxTreeItemIcon_Normal), -1); }},
    {"TakesNoImage", [](auto& cursor, auto&) { cursor.SetImage(0, wxTreeItemIcon_Normal); }},
    {"TakesNoBitmap",
     [](auto& cursor, auto& tree) {
         EXPECT_EQ(cursor.SetImage(wxBitmap(16, 16), *wxBLACK, wxTreeItemIcon_Expanded), wxTreeItemIcon_Expanded);
         EXPECT_EQ(tree.GetImageList()->GetImageCount(), 0);
     }},
    {"TakesNoData", [](auto& cursor, auto&) { cursor.SetData(1); }},
    {"HasNoData", [](auto& cursor, auto&) { EXPECT_EQ(cursor.GetData(), -1); }},
    {"TakesNoChildrenFlag", [](auto& cursor, auto&) { cursor.SetChildren(true); }},
    {"AppendsNothing", [](auto& cursor, auto&) { ExpectInvalid(cursor.AppendItem("new"), cursor.tree); }},
    {"ExpandsNothing", [](auto& cursor, auto&) { cursor.Expand(); }},
    {"IsNotExpanded", [](auto& cursor, auto&) { EXPECT_FALSE(cursor.IsExpanded()); }},
    {"DeletesNothing", [](auto& cursor, auto&) { cursor.Delete(); }},
    {"HasNoParent", [](auto& cursor, auto&) { ExpectInvalid(cursor.GetParent(), cursor.tree); }},
    {"HasNoChild", [](auto& cursor, auto&) { ExpectInvalid(cursor.GetChild(), nullptr); }},
    {"HasNoSibling", [](auto& cursor, auto&) { ExpectInvalid(cursor.GetNextSibling(), cursor.tree); }},
    {"TakesNoColour", [](auto& cursor, auto&) { cursor.SetTextColour(255); }},
    {"HasNoColour", [](auto& cursor, auto&) { EXPECT_EQ(cursor.GetTextColour(), 0u); }},
    {"IsNotDeletedByAControl", [](auto& cursor, auto& tree) { tree.DeleteItem(cursor); }},
};

// Runs each operation on both kinds of invalid cursors: one without an item, and one without a tree.
class InvalidCursor : public testing::TestWithParam<std::tuple<Operation, bool>>
{
};

TEST_P(InvalidCursor, AssertsOnceAndLeavesTheTreeAlone)
{
    const auto& [operation, withoutItem] = GetParam();
    TreeOnScreen<> screen;
    screen.tree->AddRoot("root").AppendItem("child");
    wxTreeCursor cursor =
        withoutItem ? wxTreeCursor(screen.tree, wxTreeItemId()) : wxTreeCursor(nullptr, screen.tree->GetRootItem());
    const ExpectAssertions assertions;
    operation.run(cursor, *screen.tree);
    EXPECT_EQ(assertions.Count(), 1);
    EXPECT_EQ(screen.tree->GetCount(), 2u);
}

INSTANTIATE_TEST_SUITE_P(, InvalidCursor, testing::Combine(testing::ValuesIn(kOperations), testing::Bool()),
                         [](const auto& info) {
                             return std::get<0>(info.param).name +
                                    std::string(std::get<1>(info.param) ? "WithoutItem" : "WithoutTree");
                         });

TEST(CursorOfAnEmptyTree, DoesNotBecomeTheRootByAppending)
{
    TreeOnScreen<> screen;
    ExpectAssertions assertions;
    EXPECT_FALSE(wxTreeCursor(screen.tree, wxTreeItemId()).AppendItem("new").IsOk());
    EXPECT_EQ(assertions.Count(), 1);
    EXPECT_TRUE(screen.tree->IsEmpty());
}

TEST(CursorOfATreeWithoutImages, TakesNoBitmap)
{
    TreeOnScreen<wxTreeCtrlEx> screen;
    wxTreeCursor root = screen.tree->AddRoot("root");
    ExpectAssertions assertions;
    EXPECT_EQ(root.SetImage(wxBitmap(16, 16), *wxBLACK, wxTreeItemIcon_Selected), wxTreeItemIcon_Selected);
    EXPECT_EQ(assertions.Count(), 1);
    EXPECT_EQ(root.GetImage(wxTreeItemIcon_Selected), -1);
}

TEST(CursorGivenNoBitmap, LeavesTheItemWithoutAnImage)
{
    TreeOnScreen<> screen;
    wxTreeCursor root = screen.tree->AddRoot("root");
    ExpectAssertions assertions;
    EXPECT_EQ(root.SetImage(wxBitmap(), *wxBLACK, wxTreeItemIcon_Normal), wxTreeItemIcon_Normal);
    EXPECT_GE(assertions.Count(), 1);
    EXPECT_EQ(root.GetImage(wxTreeItemIcon_Normal), -1);
}

}  // namespace
