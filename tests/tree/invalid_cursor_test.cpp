#include <fittings/tree/tree_cursor.h>

#include <gtest/gtest.h>

#include <wx/bitmap.h>

#include <tests/tree/tree_on_screen.h>

namespace {

// Runs each test with both kinds of invalid cursors: one without an item, and one without a tree.
class InvalidCursor : public testing::TestWithParam<bool>
{
protected:
    InvalidCursor()
    {
        screen.tree->AddRoot("root").AppendItem("child");
        cursor =
            GetParam() ? wxTreeCursor(screen.tree, wxTreeItemId()) : wxTreeCursor(nullptr, screen.tree->GetRootItem());
    }

    ~InvalidCursor() override
    {
        EXPECT_EQ(assertions.Count(), 1);
        EXPECT_EQ(screen.tree->GetCount(), 2u);
    }

    TreeOnScreen<> screen;
    wxTreeCursor cursor;
    ExpectAssertions assertions;
};

INSTANTIATE_TEST_SUITE_P(, InvalidCursor, testing::Bool(),
                         [](const auto& info) { return info.param ? "WithoutItem" : "WithoutTree"; });

TEST_P(InvalidCursor, HasNoText)
{
    EXPECT_EQ(cursor.GetText(), L"");
}
TEST_P(InvalidCursor, HasNoImage)
{
    EXPECT_EQ(cursor.GetImage(wxTreeItemIcon_Normal), -1);
}
TEST_P(InvalidCursor, TakesNoImage)
{
    cursor.SetImage(0, wxTreeItemIcon_Normal);
}

TEST_P(InvalidCursor, TakesNoBitmap)
{
    EXPECT_EQ(cursor.SetImage(wxBitmap(16, 16), *wxBLACK, wxTreeItemIcon_Expanded), wxTreeItemIcon_Expanded);
    EXPECT_EQ(screen.tree->GetImageList()->GetImageCount(), 0);
}

TEST_P(InvalidCursor, TakesNoData)
{
    cursor.SetData(1);
}
TEST_P(InvalidCursor, HasNoData)
{
    EXPECT_EQ(cursor.GetData(), -1);
}
TEST_P(InvalidCursor, TakesNoChildrenFlag)
{
    cursor.SetChildren(true);
}

TEST_P(InvalidCursor, AppendsNothing)
{
    const wxTreeCursor child = cursor.AppendItem("new");
    EXPECT_FALSE(child.IsOk());
    EXPECT_EQ(child.tree, cursor.tree);
}

TEST_P(InvalidCursor, ExpandsNothing)
{
    cursor.Expand();
}
TEST_P(InvalidCursor, IsNotExpanded)
{
    EXPECT_FALSE(cursor.IsExpanded());
}
TEST_P(InvalidCursor, DeletesNothing)
{
    cursor.Delete();
}

TEST_P(InvalidCursor, HasNoParent)
{
    const wxTreeCursor parent = cursor.GetParent();
    EXPECT_FALSE(parent.IsOk());
    EXPECT_EQ(parent.tree, cursor.tree);
}

TEST_P(InvalidCursor, HasNoChild)
{
    const wxTreeCursor child = cursor.GetChild();
    EXPECT_FALSE(child.IsOk());
    EXPECT_EQ(child.tree, nullptr);
}

TEST_P(InvalidCursor, HasNoSibling)
{
    const wxTreeCursor sibling = cursor.GetNextSibling();
    EXPECT_FALSE(sibling.IsOk());
    EXPECT_EQ(sibling.tree, cursor.tree);
}

TEST_P(InvalidCursor, TakesNoColour)
{
    cursor.SetTextColour(255);
}
TEST_P(InvalidCursor, HasNoColour)
{
    EXPECT_EQ(cursor.GetTextColour(), 0u);
}
TEST_P(InvalidCursor, IsNotDeletedByAControl)
{
    screen.tree->DeleteItem(cursor);
}

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
