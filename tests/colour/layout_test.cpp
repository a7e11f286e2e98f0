#include <gtest/gtest.h>

#include <tests/colour/open_popup.h>

namespace {

TEST(ColourLayout, IsTheGridAndItsMarginsWithoutBoxes)
{
    const PopupInFrame popup(WithoutBoxes);
    EXPECT_EQ(popup->GetSize(), wxSize(148, 94));
    EXPECT_EQ(popup->GetAdjustedSize(500, 400, 300), wxSize(148, 94));
}

TEST(ColourLayout, LeavesTheRectangleOfNoCellAlone)
{
    const PopupInFrame popup;
    wxRect rect(1, 2, 3, 4);
    EXPECT_FALSE(popup->GetCellRect(40, rect));
    EXPECT_EQ(rect, wxRect(1, 2, 3, 4));
}

}  // namespace
