#include <fittings/tree/tree_cursor.h>

#include <array>
#include <cstddef>
#include <type_traits>

#include <gtest/gtest.h>

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/image.h>

#include <tests/tree/tree_on_screen.h>

namespace {

// The type of a const member function of wxTreeCursor.
template <typename Result, typename... Arguments>
using Asks = Result (wxTreeCursor::*)(Arguments...) const;

static_assert(std::is_same_v<decltype(&wxTreeCursor::GetText), Asks<std::wstring>>);
static_assert(std::is_same_v<decltype(&wxTreeCursor::GetImage), Asks<int, wxTreeItemIcon>>);
static_assert(std::is_same_v<decltype(&wxTreeCursor::GetData), Asks<int>>);
static_assert(std::is_same_v<decltype(&wxTreeCursor::IsExpanded), Asks<bool>>);
static_assert(std::is_same_v<decltype(&wxTreeCursor::Delete), Asks<void>>);
static_assert(std::is_same_v<decltype(&wxTreeCursor::GetParent), Asks<wxTreeCursor>>);
static_assert(std::is_same_v<decltype(&wxTreeCursor::GetChild), Asks<wxTreeCursor>>);
static_assert(std::is_same_v<decltype(&wxTreeCursor::GetNextSibling), Asks<wxTreeCursor>>);
static_assert(std::is_same_v<decltype(&wxTreeCursor::GetTextColour), Asks<unsigned long>>);

// The type of a member function of wxTreeCursor that is not const.
template <typename Result, typename... Arguments>
using Does = Result (wxTreeCursor::*)(Arguments...);

static_assert(std::is_same_v<decltype(&wxTreeCursor::SetData), Does<void, int>>);
static_assert(std::is_same_v<decltype(&wxTreeCursor::SetChildren), Does<void, bool>>);
static_assert(std::is_same_v<decltype(&wxTreeCursor::AppendItem), Does<wxTreeCursor, const wxString&>>);
static_assert(std::is_same_v<decltype(&wxTreeCursor::Expand), Does<void>>);
static_assert(std::is_same_v<decltype(&wxTreeCursor::SetTextColour), Does<void, unsigned long>>);
static_assert(std::is_base_of_v<wxTreeItemData, wxGenericTreeItemData>);
static_assert(offsetof(wxTreeCursor, tree) == 0 && sizeof(wxTreeCursor) == 2 * sizeof(void*));

class Cursor : public testing::Test
{
protected:
    TreeOnScreen<> screen;
    wxHandyTreeCtrl& tree = *screen.tree;
    wxTreeCursor root = tree.AddRoot("root");
};

TEST_F(Cursor, WithoutAnItemIsInvalid)
{
    const wxTreeCursor nothing;
    EXPECT_FALSE(nothing.IsOk());
    EXPECT_EQ(nothing.tree, nullptr);
    EXPECT_FALSE(nothing.item.IsOk());
    EXPECT_FALSE(wxTreeCursor(&tree, wxTreeItemId()).IsOk());
}

TEST_F(Cursor, NamesItsTreeAndItem)
{
    const wxTreeCursor cursor(&tree, tree.GetRootItem());
    EXPECT_TRUE(cursor.IsOk());
    EXPECT_EQ(cursor.tree, &tree);
    EXPECT_TRUE(cursor.item == tree.GetRootItem());
}

TEST_F(Cursor, IsValidByItsItemAlone)
{
    EXPECT_TRUE(wxTreeCursor(nullptr, tree.GetRootItem()).IsOk());
}

TEST_F(Cursor, GivesTheLabel)
{
    EXPECT_EQ(root.GetText(), L"root");
    EXPECT_EQ(root.AppendItem(wxString(L"\u00e9 \u05d0 \U0001F333")).GetText(), L"\u00e9 \u05d0 \U0001F333");
    EXPECT_EQ(root.AppendItem("").GetText(), L"");
}

// Returns the item's images for the states normal, selected, expanded, and selected and expanded.
std::array<int, 4> ImagesOf(const wxTreeCursor& item)
{
    return {item.GetImage(wxTreeItemIcon_Normal), item.GetImage(wxTreeItemIcon_Selected),
            item.GetImage(wxTreeItemIcon_Expanded), item.GetImage(wxTreeItemIcon_SelectedExpanded)};
}

TEST_F(Cursor, SetsAndGivesEachKindOfImage)
{
    for (int i = 0; i < 4; ++i)
        tree.GetImageList()->Add(wxBitmap(16, 16));
    EXPECT_EQ(ImagesOf(root), (std::array{-1, -1, -1, -1}));
    root.SetImage(0, wxTreeItemIcon_Normal);
    EXPECT_EQ(ImagesOf(root), (std::array{0, -1, -1, -1}));
    root.SetImage(2, wxTreeItemIcon_Expanded);
    EXPECT_EQ(ImagesOf(root), (std::array{0, -1, 2, -1}));
    root.SetImage(3, wxTreeItemIcon_SelectedExpanded);
    root.SetImage(1, wxTreeItemIcon_Selected);
    EXPECT_EQ(ImagesOf(root), (std::array{0, 1, 2, 3}));
    root.SetImage(-1, wxTreeItemIcon_Normal);
    EXPECT_EQ(ImagesOf(root), (std::array{-1, 1, 2, 3}));
}

wxBitmap Square(const wxColour& colour)
{
    wxBitmap bitmap(16, 16, 24);
    wxMemoryDC dc(bitmap);
    dc.SetBackground(*wxBLACK_BRUSH);
    dc.Clear();
    dc.SetBrush(colour);
    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.DrawRectangle(4, 4, 8, 8);
    return bitmap;
}

TEST_F(Cursor, AddsABitmapToTheImageListAndAnswersWhichKindItWas)
{
    EXPECT_EQ(root.SetImage(Square(*wxRED), *wxBLACK, wxTreeItemIcon_Normal), wxTreeItemIcon_Normal);
    EXPECT_EQ(root.SetImage(Square(*wxGREEN), *wxBLACK, wxTreeItemIcon_SelectedExpanded),
              wxTreeItemIcon_SelectedExpanded);
    EXPECT_EQ(tree.GetImageList()->GetImageCount(), 2);
    EXPECT_EQ(ImagesOf(root), (std::array{0, -1, -1, 1}));

    // Pixels of the mask colour are transparent.
    const wxImage image = tree.GetImageList()->GetBitmap(0).ConvertToImage();
    EXPECT_EQ(image.GetRed(8, 8), 255);
    EXPECT_TRUE(image.HasMask() ? image.IsTransparent(0, 0) : image.HasAlpha() && image.GetAlpha(0, 0) == 0);
    EXPECT_FALSE(image.IsTransparent(8, 8));
}

// A class of item data that counts its existing objects.
template <typename Data>
struct Tracked : Data
{
    template <typename... Arguments>
    explicit Tracked(Arguments... arguments) : Data(arguments...)
    {
        ++alive;
    }
    ~Tracked() override { --alive; }
    inline static int alive = 0;
};

using TrackedData = Tracked<wxTreeItemData>;
using TrackedNumber = Tracked<wxGenericTreeItemData>;

TEST_F(Cursor, CarriesANumber)
{
    EXPECT_EQ(root.GetData(), -1);
    root.SetData(7);
    EXPECT_EQ(root.GetData(), 7);
    root.SetData(-1);
    EXPECT_EQ(root.GetData(), -1);
    root.SetData(-2147483647 - 1);
    EXPECT_EQ(root.GetData(), -2147483647 - 1);
    root.SetData(2147483647);
    EXPECT_EQ(root.GetData(), 2147483647);
    EXPECT_NE(dynamic_cast<wxGenericTreeItemData*>(tree.GetItemData(root.item)), nullptr);
    EXPECT_TRUE(tree.GetItemData(root.item)->GetId() == root.item);
}

TEST_F(Cursor, FindsNoNumberInDataOfAnotherClass)
{
    tree.SetItemData(root.item, new TrackedData);
    EXPECT_EQ(root.GetData(), -1);
}

TEST_F(Cursor, DeletesEachEarlierDataObjectOnce)
{
    wxTreeCursor item = root.AppendItem("item");
    tree.SetItemData(item.item, new TrackedData);
    ASSERT_EQ(TrackedData::alive, 1);
    item.SetData(5);
    EXPECT_EQ(TrackedData::alive, 0);

    tree.SetItemData(root.item, new TrackedNumber(6));
    EXPECT_EQ(root.GetData(), 6);
    root.SetData(7);
    EXPECT_EQ(TrackedNumber::alive, 0);
    EXPECT_EQ(root.GetData(), 7);
}

TEST_F(Cursor, LeavesDataToTheItemsEnd)
{
    wxTreeCursor item = root.AppendItem("item");
    tree.SetItemData(item.item, new TrackedNumber(6));
    item.Delete();
    EXPECT_EQ(TrackedNumber::alive, 0);
}

TEST_F(Cursor, ShowsTheButtonBeforeThereAreChildren)
{
    EXPECT_FALSE(tree.ItemHasChildren(root.item));
    root.SetChildren(true);
    EXPECT_TRUE(tree.ItemHasChildren(root.item));
    root.SetChildren(false);
    EXPECT_FALSE(tree.ItemHasChildren(root.item));
}

TEST_F(Cursor, AppendsChildrenInOrder)
{
    wxTreeCursor first = root.AppendItem("first");
    wxTreeCursor second = root.AppendItem("second");
    EXPECT_EQ(ChildrenOf(root), (Labels{L"first", L"second"}));
    EXPECT_EQ(second.tree, &tree);
    EXPECT_EQ(second.GetText(), L"second");
    EXPECT_EQ(second.GetImage(wxTreeItemIcon_Normal), -1);
    EXPECT_EQ(second.GetImage(wxTreeItemIcon_Selected), -1);
    EXPECT_EQ(tree.GetItemData(second.item), nullptr);
    EXPECT_TRUE(first.GetParent().item == root.item);
}

TEST_F(Cursor, ExpandsItsItem)
{
    root.AppendItem("child");
    EXPECT_FALSE(root.IsExpanded());
    root.Expand();
    EXPECT_TRUE(root.IsExpanded());
    EXPECT_TRUE(tree.IsExpanded(root.item));
    root.Expand();
    EXPECT_TRUE(root.IsExpanded());
}

TEST_F(Cursor, CannotExpandALeaf)
{
    root.Expand();
    EXPECT_FALSE(root.IsExpanded());
}

TEST_F(Cursor, DeletesItsItemWithAllChildren)
{
    wxTreeCursor folder = root.AppendItem("folder");
    folder.AppendItem("inside").AppendItem("deeper");
    root.AppendItem("beside");
    folder.Delete();
    EXPECT_EQ(ChildrenOf(root), (Labels{L"beside"}));
    EXPECT_EQ(tree.GetCount(), 2u);
}

TEST_F(Cursor, GoesToTheParentInTheSameTree)
{
    const wxTreeCursor parent = root.AppendItem("child").GetParent();
    EXPECT_EQ(parent.tree, &tree);
    EXPECT_TRUE(parent.item == root.item);
    EXPECT_FALSE(root.GetParent().IsOk());
    EXPECT_EQ(root.GetParent().tree, &tree);
}

TEST_F(Cursor, GoesToTheFirstChild)
{
    Append(root, {L"first", L"second"});
    EXPECT_EQ(root.GetChild().GetText(), L"first");
    EXPECT_EQ(root.GetChild().tree, &tree);
}

TEST_F(Cursor, OfALeafHasAChildCursorWithoutATree)
{
    const wxTreeCursor child = root.GetChild();
    EXPECT_FALSE(child.IsOk());
    EXPECT_EQ(child.tree, nullptr);
}

TEST_F(Cursor, OfAnUnfilledItemHasAnInvalidChildCursorThatKeepsTheTree)
{
    root.SetChildren(true);
    const wxTreeCursor child = root.GetChild();
    EXPECT_FALSE(child.IsOk());
    EXPECT_EQ(child.tree, &tree);
}

TEST_F(Cursor, GoesToTheNextSiblingAndKeepsTheTreeAfterTheLast)
{
    Append(root, {L"first", L"second"});
    const wxTreeCursor second = root.GetChild().GetNextSibling();
    EXPECT_EQ(second.GetText(), L"second");
    EXPECT_EQ(second.tree, &tree);
    const wxTreeCursor end = second.GetNextSibling();
    EXPECT_FALSE(end.IsOk());
    EXPECT_EQ(end.tree, &tree);
    EXPECT_FALSE(root.GetNextSibling().IsOk());
}

TEST_F(Cursor, PacksColoursWithRedLowest)
{
    root.SetTextColour(255);
    EXPECT_EQ(tree.GetItemTextColour(root.item), wxColour(255, 0, 0, 255));
    EXPECT_EQ(root.GetTextColour(), 255u);
    root.SetTextColour(0x00563412);
    EXPECT_EQ(tree.GetItemTextColour(root.item), wxColour(0x12, 0x34, 0x56, 255));
    EXPECT_EQ(root.GetTextColour(), 0x00563412u);
}

TEST_F(Cursor, TakesBlackForAColourLikeAnyOther)
{
    root.SetTextColour(0);
    EXPECT_EQ(tree.GetItemTextColour(root.item), wxColour(0, 0, 0, 255));
    EXPECT_EQ(root.GetTextColour(), 0u);
}

TEST_F(Cursor, IgnoresTheHigherBitsOfAColour)
{
    root.SetTextColour(0xFFFFFFFF'AB010203);
    EXPECT_EQ(tree.GetItemTextColour(root.item), wxColour(3, 2, 1, 255));
    EXPECT_EQ(root.GetTextColour(), 0x00010203u);
}

TEST_F(Cursor, DropsTheAlphaOfAColour)
{
    tree.SetItemTextColour(root.item, wxColour(1, 2, 3, 128));
    EXPECT_EQ(root.GetTextColour(), 0x00030201u);
}

TEST_F(Cursor, GivesBlackForAnItemWithoutAColour)
{
    ASSERT_FALSE(tree.GetItemTextColour(root.item).IsOk());
    EXPECT_EQ(root.GetTextColour(), 0u);
}

}  // namespace
