// The index, row, column, colour and name of each cell.

#include <utility>

#include <gtest/gtest.h>

#include <tests/colour/popup/open_popup.h>

namespace {

constexpr int kMore = CELL_MORE_COLOURS;
constexpr int kAutomatic = CELL_AUTOMATIC;

TEST(ColourOfCell, IsThePalettes)
{
    const PopupInFrame popup;
    EXPECT_EQ(popup->GetColour(0), wxColour(0, 0, 0, 255));
    EXPECT_EQ(popup->GetColour(1), wxColour(165, 42, 0, 255));
    EXPECT_EQ(popup->GetColour(12), wxColour(56, 142, 142, 255));
    EXPECT_EQ(popup->GetColour(39), wxColour(255, 255, 255, 255));
    EXPECT_EQ(popup->GetColour(1).Alpha(), 255);
}

TEST(ColourOfCell, IsTheInitialOneOfMoreColours)
{
    const PopupInFrame popup;
    popup->SetInitialColour(wxColour(1, 2, 3, 4));
    EXPECT_EQ(popup->GetColour(kMore), wxColour(1, 2, 3, 4));
    popup->m_strMoreColours.clear();
    EXPECT_EQ(popup->GetColour(kMore), wxColour(1, 2, 3, 4));
}

TEST(ColourOfCell, IsTheDefaultOneOfAutomatic)
{
    const PopupInFrame popup;
    popup->SetDefaultColour(wxColour(5, 6, 7, 8));
    EXPECT_EQ(popup->GetColour(kAutomatic), wxColour(5, 6, 7, 8));
}

// A row and a column.
using Place = std::pair<int, int>;

Place PlaceOf(const PopupInFrame& popup, int index)
{
    return {popup->GetRow(index), popup->GetColumn(index)};
}

struct PlacedCell
{
    int index;
    int row;
    int column;
};

class ColourPlace : public testing::TestWithParam<PlacedCell>
{
};

TEST_P(ColourPlace, IsItsRowAndColumn)
{
    const PopupInFrame popup;
    EXPECT_EQ(PlaceOf(popup, GetParam().index), Place(GetParam().row, GetParam().column));
}

TEST_P(ColourPlace, LeadsBackToTheCell)
{
    const PopupInFrame popup;
    if (GetParam().row != -1) {
        EXPECT_EQ(popup->GetIndex(GetParam().row, GetParam().column), GetParam().index);
    }
}

INSTANTIATE_TEST_SUITE_P(, ColourPlace,
                         testing::Values(PlacedCell{0, 0, 0}, PlacedCell{1, 0, 1}, PlacedCell{7, 0, 7},
                                         PlacedCell{8, 1, 0}, PlacedCell{15, 1, 7}, PlacedCell{16, 2, 0},
                                         PlacedCell{37, 4, 5}, PlacedCell{39, 4, 7}, PlacedCell{40, -1, -1},
                                         PlacedCell{1000, -1, -1}, PlacedCell{-1, -1, -1}, PlacedCell{-2, -2, -2},
                                         PlacedCell{-3, -3, -3}, PlacedCell{-4, -1, -1}),
                         [](const auto& info) {
                             const int index = info.param.index;
                             return index < 0 ? "minus" + std::to_string(-index) : std::to_string(index);
                         });

TEST(ColourPlaceOfFewerColours, IsNoneBehindTheLast)
{
    const PopupInFrame popup;
    popup->m_nNumColours = 37;
    EXPECT_EQ(PlaceOf(popup, 36), Place(4, 4));
    EXPECT_EQ(PlaceOf(popup, 37), Place(-1, -1));
    EXPECT_EQ(popup->GetIndex(4, 4), 36);
    EXPECT_EQ(popup->GetIndex(4, 5), -1);
}

TEST(ColourPlaceOfBox, IsNoneWhereTheBoxIsAbsent)
{
    const PopupInFrame popup(WithoutBoxes);
    EXPECT_EQ(PlaceOf(popup, kMore), Place(-1, -1));
    EXPECT_EQ(PlaceOf(popup, kAutomatic), Place(-1, -1));
}

TEST(ColourPlaceOfBox, DependsOnItsOwnTextAlone)
{
    const PopupInFrame popup(WithoutBoxes);
    popup->m_strAutomatic = "Auto";
    EXPECT_EQ(PlaceOf(popup, kMore), Place(-1, -1));
    EXPECT_EQ(PlaceOf(popup, kAutomatic), Place(-3, -3));
    EXPECT_EQ(popup->GetIndex(-2, -2), -1);
    EXPECT_EQ(popup->GetIndex(-3, 0), -3);

    WithoutBoxes(*popup.popup);
    popup->m_strMoreColours = "More";
    EXPECT_EQ(PlaceOf(popup, kMore), Place(-2, -2));
    EXPECT_EQ(PlaceOf(popup, kAutomatic), Place(-1, -1));
    EXPECT_EQ(popup->GetIndex(0, -2), -2);
    EXPECT_EQ(popup->GetIndex(-3, -3), -1);
}

TEST(ColourIndex, IsACellOfTheGrid)
{
    const PopupInFrame popup;
    EXPECT_EQ(popup->GetIndex(0, 0), 0);
    EXPECT_EQ(popup->GetIndex(0, 7), 7);
    EXPECT_EQ(popup->GetIndex(1, 0), 8);
    EXPECT_EQ(popup->GetIndex(4, 7), 39);
}

TEST(ColourIndex, IsNoneOutsideTheGrid)
{
    const PopupInFrame popup;
    EXPECT_EQ(popup->GetIndex(5, 0), -1);
    EXPECT_EQ(popup->GetIndex(0, 8), -1);
    EXPECT_EQ(popup->GetIndex(-1, 0), -1);
    EXPECT_EQ(popup->GetIndex(0, -1), -1);
    EXPECT_EQ(popup->GetIndex(1, -1), -1);
    EXPECT_EQ(popup->GetIndex(-1, 9), -1);
    EXPECT_EQ(popup->GetIndex(-1, -1), -1);
    EXPECT_EQ(popup->GetIndex(-4, 0), -1);
    EXPECT_EQ(popup->GetIndex(0, -4), -1);
    EXPECT_EQ(popup->GetIndex(4, 2147483647), -1);
    EXPECT_EQ(popup->GetIndex(2147483647, 7), -1);
}

TEST(ColourIndex, IsNoneBeforeThereAreRows)
{
    const OpenPopup popup;
    EXPECT_EQ(popup.GetIndex(0, 0), -1);
}

// A box has its own index as its row and as its column. If the row or the column given to GetIndex() is that of a box,
// the result is this box. If they are those of different boxes, the result is "More Colours...".
TEST(ColourIndex, IsTheBoxThatEitherCoordinateNames)
{
    const PopupInFrame popup;
    EXPECT_EQ(popup->GetIndex(-1, -2), -2);
    EXPECT_EQ(popup->GetIndex(-2, 99), -2);
    EXPECT_EQ(popup->GetIndex(-1, -3), -3);
    EXPECT_EQ(popup->GetIndex(-3, 99), -3);
    EXPECT_EQ(popup->GetIndex(-3, -2), -2);
    EXPECT_EQ(popup->GetIndex(-2, -3), -2);
}

TEST(ColourIndex, IsNoneBesideAPartialLastRow)
{
    const PopupInFrame popup([](OpenPopup& made) { made.m_nNumColumns = 7; });
    EXPECT_EQ(popup->GetIndex(5, 4), 39);
    EXPECT_EQ(popup->GetIndex(5, 5), -1);
    EXPECT_EQ(popup->GetIndex(4, 6), 34);
    EXPECT_EQ(popup->GetIndex(6, 0), -1);
    EXPECT_EQ(PlaceOf(popup, 39), Place(5, 4));
}

class ChosenCell : public testing::Test
{
protected:
    // Sets the chosen cell to @a before, calls FindCellFromColour(), and returns the new chosen cell.
    int For(const wxColour& colour, int before = CELL_NONE)
    {
        popup->m_nChosenColourSel = before;
        popup->FindCellFromColour(colour);
        return popup->m_nChosenColourSel;
    }

    PopupInFrame popup;
};

TEST_F(ChosenCell, IsTheFirstOfThatColour)
{
    EXPECT_EQ(For(wxColour(165, 42, 0)), 1);
    EXPECT_EQ(For(wxColour(56, 142, 142)), 12);
    EXPECT_EQ(For(wxColour(255, 255, 255)), 39);
}

TEST_F(ChosenCell, IsMoreColoursForAnyOther)
{
    EXPECT_EQ(For(wxColour(56, 142, 143)), -2);
    EXPECT_EQ(For(wxColour(55, 142, 142)), -2);
    EXPECT_EQ(For(wxColour(56, 142, 142, 254)), -2);
    EXPECT_EQ(For(wxColour()), -2);
    EXPECT_EQ(For(wxColour(56, 142, 143), 12), -2);
}

TEST_F(ChosenCell, IsNoneForAnyOtherWithoutThatBox)
{
    popup->m_strMoreColours.clear();
    EXPECT_EQ(For(wxColour(56, 142, 143)), -1);
    EXPECT_EQ(For(wxColour(56, 142, 143), 12), -1);
    EXPECT_EQ(For(wxColour(56, 142, 142), -1), 12);
}

TEST_F(ChosenCell, IsAutomaticForTheDefaultColourWhereNoneWas)
{
    EXPECT_EQ(For(wxColour(0, 0, 0)), -3);
    popup->SetDefaultColour(wxColour(255, 0, 0));
    EXPECT_EQ(For(wxColour(255, 0, 0)), -3);
    EXPECT_EQ(For(wxColour(0, 0, 0)), 0);
    popup->SetDefaultColour(wxColour(1, 2, 3));
    EXPECT_EQ(For(wxColour(1, 2, 3)), -3);
}

TEST_F(ChosenCell, IsThePalettesForTheDefaultColourWhereOneWas)
{
    EXPECT_EQ(For(wxColour(0, 0, 0), 5), 0);
    EXPECT_EQ(For(wxColour(0, 0, 0), 0), 0);
    EXPECT_EQ(For(wxColour(0, 0, 0), -2), 0);
}

TEST_F(ChosenCell, IsThePalettesForTheDefaultColourWithoutThatBox)
{
    popup->m_strAutomatic.clear();
    EXPECT_EQ(For(wxColour(0, 0, 0)), 0);
}

// If the user has chosen "Automatic", it stays the chosen cell, whatever the colour is.
TEST_F(ChosenCell, StaysAutomatic)
{
    EXPECT_EQ(For(wxColour(255, 0, 0), -3), -3);
    EXPECT_EQ(For(wxColour(1, 2, 3), -3), -3);
    popup->m_strAutomatic.clear();
    EXPECT_EQ(For(wxColour(255, 0, 0), -3), -3);
}

TEST_F(ChosenCell, IsAmongTheColoursThatThePopupShows)
{
    popup->m_nNumColours = 8;
    EXPECT_EQ(For(wxColour(40, 40, 40)), 7);
    EXPECT_EQ(For(wxColour(139, 0, 0)), -2);
}

TEST_F(ChosenCell, LeavesTheHotOneAlone)
{
    popup->m_nCurrentSel = 5;
    For(wxColour(165, 42, 0));
    EXPECT_EQ(popup->m_nCurrentSel, 5);
}

TEST(ColourText, IsThatOfTheHotCell)
{
    const PopupInFrame popup;
    EXPECT_EQ(popup->GetStringValue(), "");
    const auto textOf = [&](int hot) {
        popup->m_nCurrentSel = hot;
        return popup->GetStringValue();
    };
    EXPECT_EQ(textOf(0), "Black");
    EXPECT_EQ(textOf(35), "Pale green ");
    EXPECT_EQ(textOf(39), "White");
    EXPECT_EQ(textOf(kMore), "More Colours...");
    EXPECT_EQ(textOf(kAutomatic), "Automatic");
    popup->m_nChosenColourSel = 5;
    EXPECT_EQ(textOf(-1), "");
    EXPECT_EQ(textOf(40), "");
    EXPECT_EQ(textOf(-4), "");
}

class ColourByName : public testing::Test
{
protected:
    ColourByName() { popup->m_nCurrentSel = 3; }

    int HotAfter(const wxString& value)
    {
        popup->SetStringValue(value);
        return popup->m_nCurrentSel;
    }

    PopupInFrame popup;
};

TEST_F(ColourByName, BecomesHot)
{
    EXPECT_EQ(HotAfter("Black"), 0);
    EXPECT_EQ(HotAfter("White"), 39);
    EXPECT_EQ(HotAfter("Pale green "), 35);
    EXPECT_EQ(HotAfter("Teal"), 12);
    EXPECT_EQ(popup->m_crColour, wxColour(56, 142, 142));
}

TEST_F(ColourByName, StaysWhatItWasForAnyOtherText)
{
    const wxString others[] = {"",       "Automatic",  "More Colours...",      "black", "BLACK",  "Blac", "Black ",
                               " Black", "Pale green", wxString("Black\0", 6), "16",    "#FF0000"};
    for (const wxString& other : others)
        EXPECT_EQ(HotAfter(other), 3) << other;
}

// While the popup hides itself, the combo passes its text to SetStringValue(). This must not change the hot cell.
TEST_F(ColourByName, StaysWhatItWasWhileThePopupHidesItself)
{
    popup->m_bInternalHide = true;
    EXPECT_EQ(HotAfter("Black"), 3);
    popup->m_bInternalHide = false;
    EXPECT_EQ(HotAfter("Black"), 0);
}

// The search covers the whole palette, even if the popup shows fewer colours.
TEST_F(ColourByName, IsFoundAmongAllOfThePalette)
{
    popup->m_nNumColours = 8;
    EXPECT_EQ(HotAfter("Dark red"), 8);
}

}  // namespace
