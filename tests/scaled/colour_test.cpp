#include <cstring>

#include <gtest/gtest.h>

#include <wx/uiaction.h>

#include <tests/colour/colour_listener.h>
#include <tests/colour/combo/combo_on_screen.h>
#include <tests/scaled/scaled_screen.h>
#include <tests/support/process/child_process.h>

namespace {

constexpr int kBlack = 0x000000;
constexpr int kRed = 0xFF0000;

class ColoursOnAScaledScreen : public testing::Test
{
protected:
    ColoursOnAScaledScreen()
        : on(wxCB_READONLY, [this](OpenPopup& popup) {
              popup.SetInitialColour(*wxBLUE);
              popup.SetColorListener(&listener);
          })
    {
        EXPECT_EQ(on.frame->GetContentScaleFactor(), 2);
        EXPECT_TRUE(ShowAndSettle(on.frame));
    }

    void Open()
    {
        on.combo->EnablePopupAnimation(false);
        on.combo->Popup();
        EXPECT_TRUE(PumpUntil([&] { return on.combo->IsPopupShown() && PixelAt(MiddleOf(16)) == kRed; }))
            << "no red is seen where its cell is";
    }

    wxPoint MiddleOf(int cell) const
    {
        wxRect rect;
        EXPECT_TRUE(on.popup->GetCellRect(cell, rect));
        return on.popup->ClientToScreen(rect.GetPosition() + rect.GetSize() / 2);
    }

    ColourListener listener;
    const ComboOnScreen<> on;
};

TEST_F(ColoursOnAScaledScreen, AreBelowTheirControl)
{
    Open();
    EXPECT_EQ(on.popup->GetScreenRect(),
              wxRect(on.combo->GetScreenRect().GetBottomLeft() + wxPoint(0, 1), wxSize(148, 162)));
    on.combo->Dismiss();
}

// The edges of the cells lie on the borders of the toolkit's pixels, and are not blurred. The test checks two strips
// through the middle of each cell, because the corners of a cell are rounded. Letters have details finer than the
// toolkit's pixels. These details show that the popup is not an enlarged image.
TEST_F(ColoursOnAScaledScreen, AreSharp)
{
    Open();
    for (int cell = 0; cell < 40; ++cell) {
        const wxPoint middle = MiddleOf(cell);
        EXPECT_TRUE(IsOfWholePixels(GrabScaled(wxRect(middle - wxSize(9, 2), wxSize(18, 4))))) << cell;
        EXPECT_TRUE(IsOfWholePixels(GrabScaled(wxRect(middle - wxSize(2, 9), wxSize(4, 18))))) << cell;
    }
    EXPECT_FALSE(IsOfWholePixels(GrabScaled(wxRect(MiddleOf(CELL_MORE_COLOURS) - wxSize(40, 8), wxSize(80, 16)))));
    on.combo->Dismiss();
}

TEST_F(ColoursOnAScaledScreen, AreChosenByAClickWhereTheyAreSeen)
{
    Open();
    wxUIActionSimulator user;
    user.MouseMove(MiddleOf(16));
    ASSERT_TRUE(PumpUntil([&] { return on.popup->m_nCurrentSel == 16; }));
    user.MouseClick();
    EXPECT_TRUE(PumpUntil([&] { return !on.combo->IsPopupShown(); }));
    EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "change #FF0000", "end #FF0000"}));
    const wxRect face = on.combo->GetScreenRect();
    EXPECT_TRUE(PumpUntil([&] { return PixelAt(face.GetPosition() + wxPoint(20, face.height / 2)) == kRed; }));
}

// After half of the animation's time, the outline is at (37, 41) in the animation's rectangle, and its size is 74 x 81.
// All numbers are in the toolkit's pixels.
TEST_F(ColoursOnAScaledScreen, OpenWithAnOutlineThatGrowsWhereTheyWillBe)
{
    on.combo->m_animDuration = 2000000;
    on.combo->Popup();
    on.combo->m_animStart = wxGetLocalTimeMillis() - 1000500;
    const wxPoint corner = on.combo->m_animRect.GetPosition() + wxPoint(37, 41);
    const auto isBlack = [&](int x, int y) { return PixelAt(corner + wxPoint(x, y)) == kBlack; };
    EXPECT_TRUE(PumpUntil([&] { return isBlack(0, 40) && !isBlack(1, 40); }));
    EXPECT_TRUE(isBlack(73, 40) && isBlack(37, 0) && isBlack(37, 80));
    EXPECT_TRUE(IsOfWholePixels(GrabScaled(wxRect(corner + wxPoint(-2, 20), wxSize(6, 20)))));
    EXPECT_FALSE(isBlack(-1, 40) || isBlack(72, 40) || isBlack(74, 40) || isBlack(37, -1) || isBlack(37, 1));
    on.combo->m_animDuration = 0;
    EXPECT_TRUE(PumpUntil([&] { return on.combo->IsPopupShown(); }));
    on.combo->Dismiss();
}

// The popup extends below the frame. There the animation draws on the root window, which has a pattern of dots of one
// screen pixel.
TEST_F(ColoursOnAScaledScreen, LeaveTheScreenAsItWas)
{
    RunChild({"xsetroot", "-mod", "3", "3"});
    on.frame->SetClientSize(200, 90);
    const wxRect below(on.combo->GetScreenPosition() + wxPoint(10, 100), wxSize(100, 60));
    const auto showsDots = [&](int y) {
        return !IsOfWholePixels(GrabScaled(wxRect(below.x, below.y + y, below.width, 2)));
    };
    ASSERT_TRUE(PumpUntil([&] { return showsDots(0) && showsDots(30) && showsDots(58); }));
    const wxImage before = GrabScaled(below);
    const auto isAsBefore = [&] {
        const wxImage now = GrabScaled(below);
        return std::memcmp(now.GetData(), before.GetData(), std::size_t(3) * 200 * 120) == 0;
    };
    on.combo->Popup();
    EXPECT_TRUE(PumpUntil([&] { return on.combo->IsPopupShown() && !isAsBefore(); }));
    on.combo->Dismiss();
    EXPECT_TRUE(PumpUntil([&] { return !on.combo->IsPopupShown() && isAsBefore(); }));
}

}  // namespace
