// The effects of changing the hot cell.

#include <vector>

#include <gtest/gtest.h>

#include <wx/dcclient.h>
#include <wx/dcgraph.h>

#include <tests/colour/colour_listener.h>
#include <tests/colour/combo/combo_on_screen.h>
#include <tests/colour/popup/open_popup.h>
#include <tests/colour/screen.h>
#include <tests/support/replaced_function.h>

namespace {

constexpr int A = CELL_AUTOMATIC;
constexpr int M = CELL_MORE_COLOURS;

TEST(ColourHotCell, BringsItsColour)
{
    const PopupInFrame popup;
    popup->SetInitialColour(*wxBLUE);
    popup->SetDefaultColour(*wxGREEN);
    ColourListener listener(*popup.popup);
    for (const int cell : {5, 39, M, A, 0}) {
        popup->ChangeSelection(cell);
        EXPECT_EQ(popup->m_nCurrentSel, cell);
    }
    EXPECT_EQ(listener.Take(),
              (ColourCalls{"change #00008B", "change #FFFFFF", "change #0000FF", "change #00FF00", "change #000000"}));
    EXPECT_EQ(popup->m_crColour, *wxBLACK);
    EXPECT_EQ(popup->m_crInitialColour, *wxBLUE);
}

// A new hot cell does not change the chosen cell. At first, the chosen cell is "Automatic", because its colour and the
// initial colour are both black.
TEST(ColourHotCell, IsNotTheChosenOneYet)
{
    const PopupInFrame popup;
    EXPECT_EQ(popup->m_nChosenColourSel, A);
    popup->ChangeSelection(7);
    EXPECT_EQ(popup->m_nChosenColourSel, A);
    EXPECT_EQ(popup->m_nCurrentSel, 7);
}

TEST(ColourHotCell, IsHotInEveryRespectWhenTheListenerHearsOfIt)
{
    const PopupInFrame popup;
    ColourListener listener(*popup.popup);
    int hot = 0;
    wxColour colour;
    wxString tip;
    listener.during = [&](const std::string&) {
        hot = popup->m_nCurrentSel;
        colour = popup->m_crColour;
        tip = popup->GetToolTipText();
    };
    popup->ChangeSelection(16);
    EXPECT_EQ(hot, 16);
    EXPECT_EQ(colour, wxColour(255, 0, 0));
    EXPECT_EQ(tip, "Red");
}

TEST(ColourHotCell, IsMoreColoursForAnIndexAboveTheNumberOfColours)
{
    const PopupInFrame popup;
    popup->SetInitialColour(*wxBLUE);
    for (const int index : {41, 42, 1000, 2147483647}) {
        popup->ChangeSelection(3);
        popup->ChangeSelection(index);
        EXPECT_EQ(popup->m_nCurrentSel, M) << index;
        EXPECT_EQ(popup->m_crColour, *wxBLUE);
    }
}

TEST(ColourHotCell, KeepsAnIndexThatIsNoCell)
{
    const PopupInFrame popup;
    popup->SetInitialColour(*wxBLUE);
    ColourListener listener(*popup.popup);
    for (const int index : {40, -1, -4, -2147483647}) {
        popup->ChangeSelection(16);
        popup->ChangeSelection(index);
        EXPECT_EQ(popup->m_nCurrentSel, index);
        EXPECT_EQ(popup->m_crColour, *wxBLUE) << "the colour in effect";
        EXPECT_EQ(popup->GetStringValue(), "");
        EXPECT_EQ(listener.Take(), (ColourCalls{"change #FF0000", "change #0000FF"}));
    }
}

TEST(ColourHotCell, CanBeSetBeforeTheWindowIsCreated)
{
    OpenPopup popup;
    ColourListener listener(popup);
    popup.ChangeSelection(16);
    EXPECT_EQ(popup.m_nCurrentSel, 16);
    EXPECT_EQ(popup.m_strToolTip, "Red");
    EXPECT_EQ(listener.Take(), ColourCalls{"change #FF0000"});
    // No key can reach a cell now. The popup has no rows before its window is created, and no boxes after their texts
    // are removed.
    wxKeyEvent down(wxEVT_KEY_DOWN);
    down.m_keyCode = WXK_DOWN;
    popup.SetAutomaticText("");
    popup.SetMoreColoursText("");
    popup.OnKeyDown(down);
    EXPECT_EQ(popup.m_nCurrentSel, CELL_NONE);
}

// --- Tooltip ---------------------------------------------------------------------------------------------------------

class TippedPopup : public OpenPopup
{
public:
    std::vector<wxString> tips;

protected:
    void DoSetToolTipText(const wxString& tip) override
    {
        tips.push_back(tip);
        OpenPopup::DoSetToolTipText(tip);
    }
};

TEST(ColourTooltip, IsSetWhenTheNameChanges)
{
    const ComboOnScreen<OpenCombo, TippedPopup> on;
    for (const int cell : {16, 16, 35, M, A, 16, 40, CELL_NONE, 0})
        on.popup->ChangeSelection(cell);
    EXPECT_EQ(on.popup->tips, (std::vector<wxString>{"Red", "Pale green ", "", "Red", "", "Black"}));
    EXPECT_EQ(on.popup->m_strToolTip, "Black");
    EXPECT_EQ(on.popup->GetToolTipText(), "Black");
}

TEST(ColourTooltip, IsNotSetAgain)
{
    const ComboOnScreen<OpenCombo, TippedPopup> on;
    on.popup->m_strToolTip = "Red";
    on.popup->ChangeSelection(16);
    EXPECT_TRUE(on.popup->tips.empty());
}

TEST(ColourTooltip, IsForgottenWhenThePopupOpens)
{
    const ComboOnScreen<OpenCombo, TippedPopup> on;
    on.popup->OnPopup();
    EXPECT_TRUE(on.popup->tips.empty()) << "there was no earlier tooltip";
    on.popup->ChangeSelection(16);
    on.popup->OnDismiss();
    EXPECT_EQ(on.popup->m_strToolTip, "Red");
    on.popup->OnPopup();
    EXPECT_EQ(on.popup->m_strToolTip, "");
    EXPECT_EQ(on.popup->GetToolTipText(), "");
    on.popup->ChangeSelection(16);
    EXPECT_EQ(on.popup->tips, (std::vector<wxString>{"Red", "", "Red"}));
}

// --- The combo's preview ---------------------------------------------------------------------------------------------

TEST(ColourPreview, RefreshesTheComboAfterTheListenerWhenItIsToBe)
{
    const ComboOnScreen<> on;
    ColourListener listener;
    int refreshesBefore = -1;
    listener.during = [&](const std::string&) { refreshesBefore = on.combo->refreshes; };
    on.popup->SetColorListener(&listener);
    on.popup->SetRefreshCombo(true);
    on.combo->refreshes = 0;
    on.popup->ChangeSelection(16);
    EXPECT_EQ(refreshesBefore, 0);
    EXPECT_EQ(on.combo->refreshes, 1);
    on.popup->SetColorListener(nullptr);
    on.popup->DoSelChange();
    EXPECT_EQ(on.combo->refreshes, 2);
}

TEST(ColourPreview, IsOffAtFirst)
{
    const ComboOnScreen<> on;
    on.combo->refreshes = 0;
    on.popup->ChangeSelection(16);
    EXPECT_EQ(on.combo->refreshes, 0);
}

// --- What is redrawn -------------------------------------------------------------------------------------------------

// How many shapes of each kind were drawn.
struct Drawn
{
    int rectangles = 0;
    int lines = 0;
};

Drawn g_drawn;

template <typename... Arguments>
void DrawByToolkit(const char* name, wxGCDCImpl* dc, Arguments... arguments)
{
    ReplacedFunction<void(wxGCDCImpl*, Arguments...)>(name)(dc, arguments...);
}

}  // namespace

// The functions below replace the toolkit's functions. They count the shapes, and call the original functions.

void wxGCDCImpl::DoDrawRectangle(int x, int y, int width, int height)
{
    ++g_drawn.rectangles;
    DrawByToolkit("_ZN10wxGCDCImpl15DoDrawRectangleEiiii", this, x, y, width, height);
}

void wxGCDCImpl::DoDrawLine(int x1, int y1, int x2, int y2)
{
    ++g_drawn.lines;
    DrawByToolkit("_ZN10wxGCDCImpl10DoDrawLineEiiii", this, x1, y1, x2, y2);
}

namespace {

constexpr int kUntouched = 0xFF00FF;

// A popup in a window on the screen. The tests paint over it, so that new drawing can be recognised.
class HotCellOnScreen : public testing::Test
{
protected:
    HotCellOnScreen()
    {
        popup->SetPosition(wxPoint(20, 20));
        EXPECT_TRUE(ShowAndSettle(popup.frame));
        popup->Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
            ++paints;
            event.Skip();
        });
    }

    void PaintOver()
    {
        wxClientDC dc(popup.popup);
        dc.SetBrush(wxBrush(wxColour(0xFF, 0x00, 0xFF)));
        dc.SetPen(*wxTRANSPARENT_PEN);
        dc.DrawRectangle(wxPoint(0, 0), popup->GetClientSize());
        EXPECT_TRUE(PumpUntil([&] { return Untouched(74, 60) && Untouched(1, 1); }));
        paints = 0;
    }

    wxImage Grab() const { return GrabScreen(wxRect(popup->ClientToScreen(wxPoint(0, 0)), popup->GetClientSize())); }

    int Pixel(int x, int y) const { return PixelOf(Grab(), x, y); }

    bool Untouched(int x, int y) const { return Pixel(x, y) == kUntouched; }

    // Expects that the rectangles @a cells and the frame were drawn, and nothing else. Does not check the pixels at the
    // edges of the rectangles. In the band of four pixels along the popup's edges, where the frame is, checks only one
    // pixel on each side.
    void ExpectDrawn(const std::vector<wxRect>& cells) const
    {
        const wxSize size = popup->GetClientSize();
        const wxImage seen = Grab();
        wxRect inside(size);
        inside.Deflate(4);
        int wrong = 0;
        for (int y = 0; y < size.y; ++y) {
            for (int x = 0; x < size.x; ++x) {
                bool drawn = false;
                bool nearEdge = !inside.Contains(x, y);
                for (wxRect cell : cells) {
                    drawn = drawn || cell.Contains(x, y);
                    const bool outer = wxRect(cell).Inflate(1).Contains(x, y);
                    nearEdge = nearEdge || (outer && !wxRect(cell).Deflate(1).Contains(x, y));
                }
                if (nearEdge)
                    continue;
                const bool untouched = PixelOf(seen, x, y) == kUntouched;
                if (untouched == drawn && ++wrong < 5)
                    ADD_FAILURE() << x << ", " << y << (drawn ? " is not drawn" : " is drawn");
            }
        }
        EXPECT_EQ(wrong, 0);
        // The lines of the frame are the second and third pixels from the edge.
        EXPECT_FALSE(Untouched(1, size.y / 2));
        EXPECT_FALSE(Untouched(size.x - 2, size.y / 2));
        EXPECT_FALSE(Untouched(size.x / 2, 1));
        EXPECT_FALSE(Untouched(size.x / 2, size.y - 2));
    }

    wxRect Cell(int index) const
    {
        wxRect rect;
        EXPECT_TRUE(popup->GetCellRect(index, rect));
        return rect;
    }

    const PopupInFrame popup;
    int paints = 0;
};

TEST_F(HotCellOnScreen, RedrawsTheOldAndTheNewCellAndTheFrame)
{
    popup->ChangeSelection(10);
    PaintOver();
    popup->ChangeSelection(29);
    PumpPending();
    ExpectDrawn({Cell(10), Cell(29)});
    EXPECT_EQ(paints, 0);
}

// A cell is drawn with two rectangles; the edge of the hot cell and the frame have eight lines each. The whole popup
// would take 89 rectangles.
TEST_F(HotCellOnScreen, DrawsNoMoreThanTwoCellsAndTheFrame)
{
    popup->m_nChosenColourSel = CELL_NONE;
    popup->ChangeSelection(10);
    PumpPending();
    g_drawn = {};
    popup->ChangeSelection(29);
    PumpPending();
    EXPECT_EQ(g_drawn.rectangles, 4);
    EXPECT_EQ(g_drawn.lines, 16);
    // A cell is drawn with two rectangles, "More Colours..." with four.
    g_drawn = {};
    popup->ChangeSelection(M);
    PumpPending();
    EXPECT_EQ(g_drawn.rectangles, 6);
    EXPECT_EQ(g_drawn.lines, 16);
    EXPECT_EQ(paints, 0);
}

TEST_F(HotCellOnScreen, DrawsTheFirstCellAlone)
{
    popup->m_nCurrentSel = CELL_NONE;
    PaintOver();
    popup->ChangeSelection(12);
    PumpPending();
    ExpectDrawn({Cell(12)});
    EXPECT_EQ(paints, 0);
}

TEST_F(HotCellOnScreen, DrawsNothingButTheFrameForNoCell)
{
    popup->m_nCurrentSel = 40;
    PaintOver();
    popup->ChangeSelection(CELL_NONE);
    PumpPending();
    ExpectDrawn({});
}

TEST_F(HotCellOnScreen, RedrawsTheBoxes)
{
    popup->ChangeSelection(A);
    PaintOver();
    popup->ChangeSelection(M);
    PumpPending();
    // "More Colours..." is drawn two margins lower than its rectangle. The two lines of its separator are drawn at the
    // top of the rectangle. The pixels between the separator and "More Colours..." are not drawn.
    wxRect more = Cell(M);
    more.y += 4;
    wxRect separator(more.x + 4, Cell(M).y, more.width - 8, 2);
    const wxImage seen = Grab();
    for (const wxRect& rect : {Cell(A).Deflate(2), wxRect(more).Deflate(4), separator}) {
        EXPECT_NE(PixelOf(seen, rect.x, rect.y), kUntouched);
        EXPECT_NE(PixelOf(seen, rect.GetRight(), rect.GetBottom()), kUntouched);
    }
    for (const int cell : {0, 7, 20, 39}) {
        const wxRect rect = Cell(cell);
        EXPECT_EQ(PixelOf(seen, rect.x + 9, rect.y + 9), kUntouched) << cell;
    }
    EXPECT_EQ(paints, 0);
}

TEST_F(HotCellOnScreen, TakesTheHotLookFromTheOldCell)
{
    popup->m_nChosenColourSel = CELL_NONE;
    const wxRect rect = Cell(10);
    popup->ChangeSelection(10);
    // A hot cell has a black line along its right edge, one pixel inside its rectangle.
    const wxPoint edge(rect.GetRight() - 1, rect.y + 9);
    EXPECT_TRUE(PumpUntil([&] { return Pixel(edge.x, edge.y) == 0; }));
    popup->ChangeSelection(11);
    EXPECT_TRUE(PumpUntil([&] { return Pixel(edge.x + 18, edge.y) == 0; }));
    EXPECT_NE(Pixel(edge.x, edge.y), 0);
}

TEST_F(HotCellOnScreen, StaysAsItIsWhileThePointerMovesInIt)
{
    ColourListener listener(*popup.popup);
    const auto move = [&](int x, int y) {
        wxMouseEvent event(wxEVT_MOTION);
        event.SetX(x);
        event.SetY(y);
        popup->OnMouseMove(event);
    };
    const wxRect rect = Cell(21);
    move(rect.x + 4, rect.y + 4);
    PaintOver();
    listener.Take();
    move(rect.x + 10, rect.y + 10);
    PumpPending();
    EXPECT_TRUE(Untouched(rect.x + 9, rect.y + 9));
    EXPECT_TRUE(Untouched(1, popup->GetClientSize().y / 2));
    EXPECT_EQ(listener.Take(), ColourCalls());
}

}  // namespace
