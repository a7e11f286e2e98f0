// The calculated size of the popup, and the calculated rectangles of its cells.

#include <gtest/gtest.h>
#include <wx/dcclient.h>
#include <wx/panel.h>
#include <wx/settings.h>

#include <tests/colour/popup/open_popup.h>
#include <tests/colour/popup/system_values.h>

namespace {

constexpr int kMore = CELL_MORE_COLOURS;
constexpr int kAutomatic = CELL_AUTOMATIC;

// Returns the size of a text in the popup's font.
wxSize Extent(const PopupInFrame& popup, const wxString& text)
{
    wxClientDC dc(popup.frame);
    dc.SetFont(popup->m_font);
    return dc.GetTextExtent(text);
}

wxRect RectOf(const PopupInFrame& popup, int index)
{
    wxRect rect;
    EXPECT_TRUE(popup->GetCellRect(index, rect));
    return rect;
}

TEST(ColourPopup, StartsWithItsInitialValues)
{
    const OpenPopup popup;
    EXPECT_EQ(popup.m_strAutomatic, "Automatic");
    EXPECT_EQ(popup.m_strMoreColours, "More Colours...");
    EXPECT_EQ(popup.m_rectAutomatic, wxRect());
    EXPECT_EQ(popup.m_rectMoreColours, wxRect());
    EXPECT_EQ(popup.m_rectWindow, wxRect());
    EXPECT_EQ(popup.m_nNumColours, 40);
    EXPECT_EQ(popup.m_nNumColumns, 8);
    EXPECT_EQ(popup.m_nNumRows, 0);
    EXPECT_EQ(popup.m_nBoxSize, 18);
    EXPECT_EQ(popup.m_nMargin, 2);
    EXPECT_EQ(popup.m_nChosenColourSel, -1);
    EXPECT_EQ(popup.m_nCurrentSel, -1);
    EXPECT_EQ(popup.m_font, wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT));
    EXPECT_EQ(popup.m_crColour, wxColour(0, 0, 0, 255));
    EXPECT_EQ(popup.m_crInitialColour, wxColour(0, 0, 0, 255));
    EXPECT_EQ(popup.m_crDefaultColour, wxColour(0, 0, 0, 255));
    EXPECT_EQ(popup.m_pListener, nullptr);
    EXPECT_FALSE(popup.m_bRefreshCombo);
    EXPECT_FALSE(popup.m_bInternalHide);
    EXPECT_EQ(popup.m_pCenterOn, nullptr);
    EXPECT_EQ(popup.m_strToolTip, "");
}

TEST(ColourPopup, HasAPaletteOfItsColours)
{
    const OpenPopup popup;
    ASSERT_EQ(popup.m_palette.GetColoursCount(), 40);
    for (int i = 0; i < 40; ++i) {
        unsigned char red = 1;
        unsigned char green = 1;
        unsigned char blue = 1;
        ASSERT_TRUE(popup.m_palette.GetRGB(i, &red, &green, &blue));
        EXPECT_EQ(wxColour(red, green, blue), popup.GetColour(i)) << i;
    }
    unsigned char red = 0;
    unsigned char green = 0;
    unsigned char blue = 0;
    popup.m_palette.GetRGB(9, &red, &green, &blue);
    EXPECT_EQ(wxColour(red, green, blue), wxColour(255, 104, 32));
}

TEST(ColourPopup, GoesBackToItsInitialValues)
{
    const PopupInFrame popup;
    wxColorPopupListener listener;
    popup->SetColorListener(&listener);
    popup->SetCenterOn(popup.frame);
    popup->SetRefreshCombo(true);
    popup->SetInitialColour(wxColour(1, 2, 3));
    popup->SetDefaultColour(wxColour(4, 5, 6));
    popup->m_crColour = wxColour(7, 8, 9);
    popup->m_bInternalHide = true;
    popup->m_nNumColours = 3;
    popup->m_nNumColumns = 2;
    popup->m_nBoxSize = 5;
    popup->m_nMargin = 1;
    popup->m_nChosenColourSel = 1;
    popup->m_nCurrentSel = 2;
    popup->m_font = wxNullFont;
    WithoutBoxes(*popup.popup);

    popup->Initialise();
    EXPECT_EQ(popup->m_strAutomatic, "Automatic");
    EXPECT_EQ(popup->m_strMoreColours, "More Colours...");
    EXPECT_EQ(popup->m_nNumColours, 40);
    EXPECT_EQ(popup->m_nNumColumns, 8);
    EXPECT_EQ(popup->m_nNumRows, 0);
    EXPECT_EQ(popup->m_nBoxSize, 18);
    EXPECT_EQ(popup->m_nMargin, 2);
    EXPECT_EQ(popup->m_nChosenColourSel, -1);
    EXPECT_EQ(popup->m_nCurrentSel, -1);
    EXPECT_TRUE(popup->m_font.IsOk());
    EXPECT_EQ(popup->m_crColour, wxColour(0, 0, 0));
    EXPECT_EQ(popup->GetInitialColour(), wxColour(0, 0, 0));
    EXPECT_EQ(popup->GetDefaultColour(), wxColour(0, 0, 0));
    EXPECT_EQ(popup->m_pListener, nullptr);
    EXPECT_EQ(popup->m_pCenterOn, nullptr);
    EXPECT_FALSE(popup->GetRefreshCombo());
    EXPECT_FALSE(popup->m_bInternalHide);
}

TEST(ColourPopup, TakesItsSettings)
{
    const PopupInFrame popup;
    wxColorPopupListener listener;
    popup->SetColorListener(&listener);
    EXPECT_EQ(popup->m_pListener, &listener);
    popup->SetColorListener(nullptr);
    EXPECT_EQ(popup->m_pListener, nullptr);

    const wxPoint position = popup->GetPosition();
    popup->SetCenterOn(popup.frame);
    EXPECT_EQ(popup->m_pCenterOn, popup.frame);
    EXPECT_EQ(popup->GetPosition(), position);

    popup->SetRefreshCombo(true);
    EXPECT_TRUE(popup->m_bRefreshCombo);
    EXPECT_TRUE(popup->GetRefreshCombo());
    popup->SetInitialColour(wxColour(1, 2, 3, 4));
    EXPECT_EQ(popup->m_crInitialColour, wxColour(1, 2, 3, 4));
    EXPECT_EQ(popup->GetInitialColour(), wxColour(1, 2, 3, 4));
    popup->SetDefaultColour(wxColour(5, 6, 7, 8));
    EXPECT_EQ(popup->m_crDefaultColour, wxColour(5, 6, 7, 8));
    EXPECT_EQ(popup->GetDefaultColour(), wxColour(5, 6, 7, 8));
}

TEST(ColourPopup, KeepsItsColourForAnInvalidOne)
{
    const PopupInFrame popup;
    popup->SetInitialColour(wxColour(1, 2, 3));
    popup->SetDefaultColour(wxColour(4, 5, 6));
    const ExpectAssertions assertions;
    popup->SetInitialColour(wxColour());
    popup->SetDefaultColour(wxColour());
    EXPECT_EQ(popup->GetInitialColour(), wxColour(1, 2, 3));
    EXPECT_EQ(popup->GetDefaultColour(), wxColour(4, 5, 6));
    EXPECT_EQ(assertions.Count(), 2);
}

TEST(ColourWindow, IsCreatedAtItsParentsPosition)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "colours"));
    auto* const panel = new wxPanel(frame, wxID_ANY, wxPoint(30, 40), wxSize(50, 60));
    auto* const popup = new OpenPopup;
    EXPECT_TRUE(popup->Create(panel));
    EXPECT_EQ(popup->GetParent(), panel);
    EXPECT_EQ(popup->GetName(), "ColourPopup");
    EXPECT_TRUE(popup->HasFlag(wxWANTS_CHARS));
    EXPECT_EQ(popup->GetControl(), popup);
    EXPECT_EQ(popup->GetPosition(), wxPoint(30, 40));
    EXPECT_EQ(popup->m_rectWindow.GetPosition(), wxPoint(30, 40));
    EXPECT_EQ(popup->GetSize(), popup->m_rectWindow.GetSize());
    EXPECT_EQ(popup->m_nNumRows, 5);
}

TEST(ColourWindow, MarksTheCellOfTheInitialColourWhenCreated)
{
    EXPECT_EQ(PopupInFrame()->m_nChosenColourSel, -3);
    EXPECT_EQ(PopupInFrame([](OpenPopup& made) { made.SetInitialColour(wxColour(255, 0, 0)); })->m_nChosenColourSel,
              16);
    EXPECT_EQ(PopupInFrame([](OpenPopup& made) { made.SetInitialColour(wxColour(1, 2, 3)); })->m_nChosenColourSel, -2);
    EXPECT_EQ(PopupInFrame(WithoutBoxes)->m_nChosenColourSel, 0);
}

TEST(ColourLayout, IsTheGridAndItsMarginsWithoutBoxes)
{
    const PopupInFrame popup(WithoutBoxes);
    EXPECT_EQ(popup->GetSize(), wxSize(148, 94));
    EXPECT_EQ(popup->m_rectWindow.GetSize(), wxSize(148, 94));
    EXPECT_EQ(RectOf(popup, 0), wxRect(2, 2, 18, 18));
    EXPECT_EQ(RectOf(popup, 7), wxRect(128, 2, 18, 18));
    EXPECT_EQ(RectOf(popup, 8), wxRect(2, 20, 18, 18));
    EXPECT_EQ(RectOf(popup, 39), wxRect(128, 74, 18, 18));
    EXPECT_EQ(RectOf(popup, kMore), wxRect());
    EXPECT_EQ(RectOf(popup, kAutomatic), wxRect());
}

TEST(ColourLayout, HasTheBoxesAboveAndBelow)
{
    const PopupInFrame popup;
    const int text = std::max(Extent(popup, "Automatic").y, Extent(popup, "More Colours...").y);
    ASSERT_LE(Extent(popup, "More Colours...").x, 144);
    EXPECT_EQ(RectOf(popup, kAutomatic), wxRect(2, 2, 145, text + 13));
    EXPECT_EQ(RectOf(popup, 0), wxRect(2, text + 17, 18, 18));
    EXPECT_EQ(RectOf(popup, 39), wxRect(128, text + 89, 18, 18));
    EXPECT_EQ(RectOf(popup, kMore), wxRect(2, text + 111, 145, text + 13));
    EXPECT_EQ(popup->GetSize(), wxSize(148, 2 * text + 128));
}

TEST(ColourLayout, HasTheUpperBoxAlone)
{
    const PopupInFrame popup([](OpenPopup& made) { made.m_strMoreColours.clear(); });
    const int text = Extent(popup, "Automatic").y;
    EXPECT_EQ(RectOf(popup, kAutomatic), wxRect(2, 2, 145, text + 13));
    EXPECT_EQ(RectOf(popup, 0), wxRect(2, text + 17, 18, 18));
    EXPECT_EQ(RectOf(popup, kMore), wxRect());
    EXPECT_EQ(popup->GetSize(), wxSize(148, text + 111));
}

TEST(ColourLayout, HasTheLowerBoxAlone)
{
    const PopupInFrame popup([](OpenPopup& made) { made.m_strAutomatic.clear(); });
    const int text = Extent(popup, "More Colours...").y;
    EXPECT_EQ(RectOf(popup, 0), wxRect(2, 2, 18, 18));
    EXPECT_EQ(RectOf(popup, kMore), wxRect(2, 94, 145, text + 13));
    EXPECT_EQ(RectOf(popup, kAutomatic), wxRect());
    EXPECT_EQ(popup->GetSize(), wxSize(148, text + 111));
}

// If wxSYS_EDGE_X is 6, the margin is 6 pixels wide, and the cells are larger than 18 pixels.
TEST(ColourLayout, GrowsWithTheMargin)
{
    const PinnedEdge edge(6);
    const PopupInFrame popup;
    const int text = std::max(Extent(popup, "Automatic").y, Extent(popup, "More Colours...").y);
    EXPECT_EQ(RectOf(popup, kAutomatic), wxRect(6, 6, 153, text + 33));
    EXPECT_EQ(RectOf(popup, 0), wxRect(6, text + 45, 19, 19));
    EXPECT_EQ(RectOf(popup, 39), wxRect(139, text + 121, 19, 19));
    EXPECT_EQ(RectOf(popup, kMore), wxRect(6, text + 152, 153, text + 33));
    EXPECT_EQ(popup->GetSize(), wxSize(164, 2 * text + 197));
}

struct Edge
{
    int reported;
    int margin;
    int box;
    wxSize window;
};

class ColourMargin : public testing::TestWithParam<Edge>
{
};

// The side of a cell is 18 pixels, or seven pixels more than two margins if that is larger.
TEST_P(ColourMargin, IsTheSystemsEdge)
{
    const PinnedEdge edge(GetParam().reported);
    const PopupInFrame popup(WithoutBoxes);
    EXPECT_EQ(popup->m_nMargin, GetParam().margin);
    EXPECT_EQ(popup->m_nBoxSize, GetParam().box);
    EXPECT_EQ(popup->GetSize(), GetParam().window);
}

INSTANTIATE_TEST_SUITE_P(, ColourMargin,
                         testing::Values(Edge{-1, 2, 18, wxSize(148, 94)}, Edge{0, 0, 18, wxSize(144, 90)},
                                         Edge{1, 1, 18, wxSize(146, 92)}, Edge{2, 2, 18, wxSize(148, 94)},
                                         Edge{5, 5, 18, wxSize(154, 100)}, Edge{6, 6, 19, wxSize(164, 107)},
                                         Edge{7, 7, 21, wxSize(182, 119)}, Edge{20, 20, 47, wxSize(416, 275)}),
                         [](const auto& info) {
                             const int edge = info.param.reported;
                             return edge < 0 ? std::string("unknown") : std::to_string(edge);
                         });

const char* const kWideText = "A text that is wider than eight cells of the palette";

TEST(ColourLayout, IsAsWideAsTheUpperText)
{
    const PopupInFrame popup([](OpenPopup& made) {
        made.m_strAutomatic = kWideText;
        made.m_strMoreColours.clear();
    });
    const int text = Extent(popup, kWideText).x;
    ASSERT_GT(text, 148);
    EXPECT_EQ(popup->GetSize().x, text + 4);
    EXPECT_EQ(RectOf(popup, kAutomatic).x, 2);
    EXPECT_EQ(RectOf(popup, kAutomatic).width, text + 1);
    EXPECT_EQ(RectOf(popup, 7).x, 128);
}

TEST(ColourLayout, IsAsWideAsTheLowerText)
{
    const PopupInFrame popup([](OpenPopup& made) {
        made.m_strAutomatic.clear();
        made.m_strMoreColours = kWideText;
    });
    EXPECT_EQ(popup->GetSize().x, Extent(popup, kWideText).x + 4);
    EXPECT_EQ(RectOf(popup, kMore).width, Extent(popup, kWideText).x + 1);
}

TEST(ColourLayout, IsAsWideAsTheWiderText)
{
    for (const bool upper : {true, false}) {
        const PopupInFrame popup([upper](OpenPopup& made) {
            made.m_strAutomatic = upper ? kWideText : "Auto";
            made.m_strMoreColours = upper ? "More" : kWideText;
        });
        const int text = Extent(popup, kWideText).x;
        EXPECT_EQ(popup->GetSize().x, text + 4) << upper;
        EXPECT_EQ(RectOf(popup, kAutomatic).width, text + 1) << upper;
        EXPECT_EQ(RectOf(popup, kMore).width, text + 1) << upper;
    }
}

TEST(ColourLayout, HasBoxesAsHighAsTheHigherText)
{
    for (const bool upper : {true, false}) {
        const PopupInFrame popup(
            [upper](OpenPopup& made) { (upper ? made.m_strAutomatic : made.m_strMoreColours) = "Two\nlines"; });
        const int text = Extent(popup, "Two\nlines").y;
        ASSERT_GT(text, Extent(popup, "Automatic").y);
        EXPECT_EQ(RectOf(popup, kAutomatic).height, text + 13) << upper;
        EXPECT_EQ(RectOf(popup, kMore).height, text + 13) << upper;
    }
}

TEST(ColourLayout, FollowsTheFont)
{
    const PopupInFrame popup([](OpenPopup& made) { made.m_font = wxFont(wxFontInfo(30).Family(wxFONTFAMILY_SWISS)); });
    const wxSize text = Extent(popup, "More Colours...");
    ASSERT_GT(text.x, 148);
    EXPECT_EQ(popup->GetSize(), wxSize(text.x + 4, 2 * text.y + 128));
}

TEST(ColourLayout, LeavesTheLastRowPartial)
{
    const PopupInFrame popup([](OpenPopup& made) {
        WithoutBoxes(made);
        made.m_nNumColumns = 7;
    });
    EXPECT_EQ(popup->m_nNumRows, 6);
    EXPECT_EQ(popup->GetSize(), wxSize(130, 112));
    EXPECT_EQ(RectOf(popup, 39), wxRect(74, 92, 18, 18));
}

TEST(ColourLayout, GivesTheComboThePopupsOwnSize)
{
    const PopupInFrame popup(WithoutBoxes);
    EXPECT_EQ(popup->GetAdjustedSize(500, 400, 300), wxSize(148, 94));
    EXPECT_EQ(popup->GetAdjustedSize(10, -1, 20), wxSize(148, 94));
    EXPECT_EQ(OpenPopup().GetAdjustedSize(500, 400, 300), wxSize(0, 0));
}

TEST(ColourLayout, LeavesTheRectangleOfNoCellAlone)
{
    const PopupInFrame popup;
    for (const int index : {-1, -4, 40, 1000, -2147483647}) {
        wxRect rect(1, 2, 3, 4);
        EXPECT_FALSE(popup->GetCellRect(index, rect)) << index;
        EXPECT_EQ(rect, wxRect(1, 2, 3, 4)) << index;
    }
}

// A box whose text was removed keeps its rectangle until the next layout.
TEST(ColourLayout, GivesTheRectangleOfABoxWithoutText)
{
    const PopupInFrame popup;
    const wxRect automatic = RectOf(popup, kAutomatic);
    const wxRect more = RectOf(popup, kMore);
    WithoutBoxes(*popup.popup);
    EXPECT_EQ(RectOf(popup, kAutomatic), automatic);
    EXPECT_EQ(RectOf(popup, kMore), more);
    EXPECT_EQ(RectOf(popup, 0), wxRect(2, 2, 18, 18));
}

TEST(ColourLayout, GivesTheRectanglesOfAsManyCellsAsThereAre)
{
    const PopupInFrame popup(WithoutBoxes);
    popup->m_nNumColours = 8;
    wxRect rect;
    EXPECT_TRUE(popup->GetCellRect(7, rect));
    EXPECT_FALSE(popup->GetCellRect(8, rect));
}

TEST(ColourLayout, FollowsATextSetLater)
{
    const PopupInFrame popup;
    popup->Move(11, 12);
    const int text = Extent(popup, "Automatic").y;
    popup->SetMoreColoursText("");
    EXPECT_EQ(popup->GetSize(), wxSize(148, text + 111));
    EXPECT_EQ(RectOf(popup, kMore), wxRect());
    popup->SetAutomaticText("");
    EXPECT_EQ(popup->GetSize(), wxSize(148, 94));
    EXPECT_EQ(RectOf(popup, kAutomatic), wxRect());
    EXPECT_EQ(popup->GetAdjustedSize(0, 0, 0), wxSize(148, 94));

    popup->SetMoreColoursText("More");
    EXPECT_EQ(popup->m_strMoreColours, "More");
    popup->SetAutomaticText("Auto");
    EXPECT_EQ(popup->m_strAutomatic, "Auto");
    EXPECT_EQ(popup->GetSize(), wxSize(148, 2 * text + 128));
    EXPECT_EQ(popup->GetPosition(), wxPoint(11, 12));
}

// A box that is removed is no longer the hot or the chosen cell.
TEST(ColourLayout, UnmarksABoxThatGoes)
{
    const PopupInFrame popup;
    popup->m_nChosenColourSel = kAutomatic;
    popup->m_nCurrentSel = kAutomatic;
    popup->SetMoreColoursText("");
    popup->SetAutomaticText("Auto");
    EXPECT_EQ(popup->m_nChosenColourSel, kAutomatic);
    EXPECT_EQ(popup->m_nCurrentSel, kAutomatic);
    popup->SetAutomaticText("");
    EXPECT_EQ(popup->m_nChosenColourSel, CELL_NONE);
    EXPECT_EQ(popup->m_nCurrentSel, CELL_NONE);

    popup->m_nChosenColourSel = kMore;
    popup->m_nCurrentSel = kMore;
    popup->SetMoreColoursText("More");
    EXPECT_EQ(popup->m_nChosenColourSel, kMore);
    popup->SetMoreColoursText("");
    EXPECT_EQ(popup->m_nChosenColourSel, CELL_NONE);
    EXPECT_EQ(popup->m_nCurrentSel, CELL_NONE);
}

TEST(ColourLayout, WaitsForTheWindow)
{
    OpenPopup popup;
    popup.SetAutomaticText("Auto");
    popup.SetMoreColoursText("");
    popup.SetWindowSize(wxRect(0, 0, 100, 100));
    EXPECT_EQ(popup.m_strAutomatic, "Auto");
    EXPECT_EQ(popup.m_strMoreColours, "");
    EXPECT_EQ(popup.m_rectWindow, wxRect());
    EXPECT_EQ(popup.m_nNumRows, 0);
}

}  // namespace
