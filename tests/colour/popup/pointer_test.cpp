// Which cell the pointer makes hot. The areas that react to the pointer differ from the drawn ones, as the comment on
// OnMouseMove() describes.

#include <vector>

#include <gtest/gtest.h>

#include <tests/colour/colour_listener.h>
#include <tests/colour/combo/combo_on_screen.h>
#include <tests/colour/popup/open_popup.h>

namespace {

constexpr int A = CELL_AUTOMATIC;
constexpr int M = CELL_MORE_COLOURS;
// The hot cell before each move. No position in the tests below is in this cell.
constexpr int kBefore = 30;

void Send(wxWindow& window, wxEventType type, int x, int y)
{
    wxMouseEvent event(type);
    event.SetX(x);
    event.SetY(y);
    event.SetEventObject(&window);
    window.ProcessWindowEvent(event);
}

struct Place
{
    int x;
    int y;
    int cell;
};

void ExpectCells(const PopupInFrame& popup, const std::vector<Place>& places)
{
    for (const Place& place : places) {
        popup->m_nCurrentSel = kBefore;
        Send(*popup.popup, wxEVT_MOTION, place.x, place.y);
        EXPECT_EQ(popup->m_nCurrentSel, place.cell) << place.x << ", " << place.y;
    }
}

// Sets a fixed layout, because the calculated one depends on the font.
void SetBoxes(const PopupInFrame& popup)
{
    popup->m_nMargin = 2;
    popup->m_nBoxSize = 18;
    popup->m_rectAutomatic = wxRect(2, 2, 145, 30);
    popup->m_rectMoreColours = wxRect(2, 128, 145, 25);
}

TEST(ColourPointer, FindsTheCellsBetweenBothBoxes)
{
    const PopupInFrame popup;
    SetBoxes(popup);
    ExpectCells(popup, {
                           // "Automatic" has the rectangle (2, 2) to (146, 31). The area that reacts lies one margin
                           // lower and one margin further right.
                           {4, 4, A},
                           {148, 4, A},
                           {4, 33, A},
                           {148, 33, A},
                           {3, 4, kBefore},
                           {4, 3, kBefore},
                           {149, 33, kBefore},
                           // The grid begins below "Automatic". Its first row is drawn at the y coordinates 34 to 51.
                           {4, 34, 0},
                           {19, 49, 0},
                           {20, 34, 1},
                           {145, 49, 7},
                           {146, 49, kBefore},
                           // The lowest two pixels of a row belong to the next row.
                           {4, 50, 8},
                           {4, 51, 8},
                           {145, 67, 15},
                           {4, 68, 16},
                           {4, 121, 32},
                           {145, 121, 39},
                           {4, 122, kBefore},
                           // "More Colours..." has the rectangle (2, 128) to (146, 152).
                           {4, 129, kBefore},
                           {4, 130, M},
                           {148, 154, M},
                           {3, 130, kBefore},
                           {4, 155, kBefore},
                           {149, 154, kBefore},
                       });
}

// Division truncates toward zero. Therefore a point that is left of the grid by less than a cell counts as part of the
// first column. A point that is above the grid by less than a cell counts as part of the first row.
TEST(ColourPointer, FindsTheFirstColumnInTheMarginBesideIt)
{
    const PopupInFrame popup;
    SetBoxes(popup);
    ExpectCells(popup,
                {{0, 34, 0}, {1, 52, 8}, {-15, 34, 0}, {-16, 34, kBefore}, {0, 33, 0}, {3, 15, 0}, {3, 14, kBefore}});
}

TEST(ColourPointer, FindsTheCellsWithoutBoxes)
{
    const PopupInFrame popup(WithoutBoxes);
    ExpectCells(popup, {{2, 2, 0},
                        {0, 0, 0},
                        {19, 19, 0},
                        {20, 19, 1},
                        {19, 20, 8},
                        {145, 91, 39},
                        {146, 91, kBefore},
                        {145, 92, kBefore},
                        {74, 38, 20}});
}

TEST(ColourPointer, TakesNoAbsentBoxIntoAccount)
{
    const PopupInFrame popup(WithoutBoxes);
    SetBoxes(popup);
    ExpectCells(popup, {{4, 4, 0}, {4, 33, 8}, {4, 130, kBefore}});
}

TEST(ColourPointer, PrefersMoreColoursThenAutomatic)
{
    const PopupInFrame popup;
    SetBoxes(popup);
    popup->m_rectMoreColours = wxRect(2, 20, 145, 40);
    ExpectCells(popup, {{10, 25, M}, {10, 50, M}, {10, 21, A}});
}

TEST(ColourPointer, UsesTheMarginAndTheSizeOfTheCells)
{
    const PopupInFrame popup(WithoutBoxes);
    popup->m_nMargin = 6;
    popup->m_nBoxSize = 19;
    ExpectCells(popup, {{6, 6, 0}, {24, 24, 0}, {25, 24, 1}, {24, 25, 8}, {157, 100, 39}, {158, 100, kBefore}});
}

TEST(ColourPointer, IsHeardOncePerCell)
{
    const PopupInFrame popup;
    SetBoxes(popup);
    ColourListener listener(*popup.popup);
    for (const Place& place :
         {Place{4, 34, 0}, Place{10, 40, 0}, Place{19, 49, 0}, Place{20, 40, 1}, Place{300, 40, 1}, Place{21, 41, 1},
          Place{10, 10, A}, Place{11, 10, A}, Place{10, 140, M}, Place{11, 140, M}}) {
        Send(*popup.popup, wxEVT_MOTION, place.x, place.y);
        EXPECT_EQ(popup->m_nCurrentSel, place.cell);
    }
    EXPECT_EQ(listener.Take(), (ColourCalls{"change #000000", "change #A52A00", "change #000000", "change #000000"}));
}

struct Release
{
    const char* name;
    int x;
    int y;
    const char* call;
};

class ColourRelease : public testing::TestWithParam<Release>
{
};

TEST_P(ColourRelease, EndsTheSelection)
{
    const PopupInFrame popup(WithoutBoxes);
    ColourListener listener(*popup.popup);
    popup->SetInitialColour(*wxBLUE);
    popup->ChangeSelection(16);
    listener.Take();
    Send(*popup.popup, wxEVT_LEFT_UP, GetParam().x, GetParam().y);
    EXPECT_EQ(listener.Take(), ColourCalls{GetParam().call});
}

// The popup is 148 pixels wide and 94 high.
INSTANTIATE_TEST_SUITE_P(, ColourRelease,
                         testing::Values(Release{"InTheHotCell", 5, 40, "end #FF0000"},
                                         Release{"InAnotherPlace", 1, 1, "end #FF0000"},
                                         Release{"InTheFirstCorner", 0, 0, "end #FF0000"},
                                         Release{"InTheLastCorner", 147, 93, "end #FF0000"},
                                         Release{"LeftOfThePopup", -1, 40, "cancel #0000FF"},
                                         Release{"AboveThePopup", 40, -1, "cancel #0000FF"},
                                         Release{"RightOfThePopup", 148, 40, "cancel #0000FF"},
                                         Release{"BelowThePopup", 40, 94, "cancel #0000FF"}),
                         [](const auto& info) { return info.param.name; });

}  // namespace
