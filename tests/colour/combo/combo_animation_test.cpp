// The outline that grows while the popup opens.

#include <cstddef>
#include <cstring>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <gtk/gtk.h>
#include <wx/dcmemory.h>
#include <wx/popupwin.h>

#include <tests/colour/combo/combo_on_screen.h>
#include <tests/colour/screen.h>

#include <gdk/gdkx.h>
#include <X11/extensions/shape.h>
#include <X11/Xlib.h>

namespace {

constexpr int kBlack = 0x000000;
constexpr int kRed = 0xFF0000;
constexpr int kGreen = 0x00FF00;
constexpr int kLong = 2000000;

struct Outline
{
    int elapsed;
    wxRect expected;
};

void ExpectOutlines(const wxRect& rect, const std::vector<Outline>& outlines)
{
    OpenCombo combo;
    combo.m_animRect = rect;
    for (const Outline& outline : outlines)
        EXPECT_EQ(combo.OutlineAt(outline.elapsed), outline.expected) << outline.elapsed;
}

TEST(ColourOutline, GrowsFromTheMiddle)
{
    ExpectOutlines(wxRect(100, 200, 148, 162), {{0, wxRect(174, 281, 0, 0)},
                                                {1, wxRect(174, 281, 0, 0)},
                                                {2, wxRect(174, 281, 1, 1)},
                                                {50, wxRect(156, 261, 37, 40)},
                                                {100, wxRect(137, 241, 74, 81)},
                                                {150, wxRect(119, 221, 111, 121)},
                                                {199, wxRect(101, 202, 146, 159)},
                                                {200, wxRect(100, 200, 148, 162)}});
}

// Half of the popup's size and half of the outline's size are each rounded down to whole pixels.
TEST(ColourOutline, HasItsMiddleInWholePixels)
{
    ExpectOutlines(wxRect(11, 21, 149, 95),
                   {{0, wxRect(85, 68, 0, 0)}, {100, wxRect(48, 45, 74, 47)}, {199, wxRect(12, 22, 147, 93)}});
    ExpectOutlines(wxRect(-50, -20, 31, 7), {{100, wxRect(-42, -18, 15, 3)}});
}

TEST(ColourOutline, KeepsTheShapeOfAWideAndOfATallPopup)
{
    ExpectOutlines(wxRect(0, 0, 1000, 10), {{100, wxRect(250, 3, 500, 5)}, {10, wxRect(477, 5, 46, 0)}});
    ExpectOutlines(wxRect(0, 0, 10, 1000), {{100, wxRect(3, 250, 5, 500)}, {199, wxRect(1, 50, 9, 900)}});
}

TEST(ColourOutline, GrowsAsLongAsItIsTold)
{
    OpenCombo combo;
    combo.m_animRect = wxRect(100, 200, 148, 162);
    combo.m_animDuration = 1000;
    EXPECT_EQ(combo.OutlineAt(500), wxRect(137, 241, 74, 81));
    EXPECT_EQ(combo.OutlineAt(999), wxRect(101, 201, 147, 160));
    combo.m_animDuration = 2000000000;
    EXPECT_EQ(combo.OutlineAt(1000000000), wxRect(137, 241, 74, 81));
}

TEST(ColourOutline, IsNoneInAnEmptyPlace)
{
    ExpectOutlines(wxRect(100, 200, 0, 0), {{0, wxRect(100, 200, 0, 0)}, {100, wxRect(100, 200, 0, 0)}});
}

// --- In a window on the screen ---------------------------------------------------------------------------------------

class ColourAnimation : public testing::Test
{
protected:
    // Makes the animation so long that it runs until a test ends it, even on a slow machine.
    ColourAnimation()
    {
        EXPECT_EQ(on.combo->m_animDuration, 200);
        on.combo->m_animDuration = kLong;
        EXPECT_TRUE(ShowAndSettle(on.frame));
    }

    void ExpectShown()
    {
        on.combo->m_animDuration = 0;
        EXPECT_TRUE(PumpUntil([&] { return on.combo->IsPopupShown(); }));
    }

    // Sets the animation to just over half of its time. The outline then does not change for several seconds. If the
    // animation's rectangle has 148 x 162 pixels, the outline has 74 x 81 pixels at (37, 41) in this rectangle.
    void StandStill() { on.combo->m_animStart = wxGetLocalTimeMillis() - 1000500; }

    void Step()
    {
        wxTimerEvent step(on.combo->m_animTimer);
        on.combo->OnTimerEvent(step);
    }

    wxPopupWindow* OutlineWindow() const
    {
        for (wxWindow* const child : on.combo->GetChildren()) {
            auto* const window = dynamic_cast<wxPopupWindow*>(child);
            if (window && window != on.combo->GetPopupWindow())
                return window;
        }
        return nullptr;
    }

    std::vector<wxRect> ShapeOfOutline(int kind) const
    {
        GdkWindow* const window = gtk_widget_get_window(OutlineWindow()->GetHandle());
        int count = 0;
        int order = 0;
        XRectangle* const rects =
            XShapeGetRectangles(GDK_WINDOW_XDISPLAY(window), GDK_WINDOW_XID(window), kind, &count, &order);
        std::vector<wxRect> shape;
        for (int i = 0; i < count; ++i)
            shape.emplace_back(rects[i].x, rects[i].y, rects[i].width, rects[i].height);
        XFree(rects);
        return shape;
    }

    static int Pixel(int x, int y) { return PixelOfScreen(wxPoint(x, y)); }

    // Starts another timer with the combo as its owner, and waits for three of its ticks.
    void WaitForAnotherTimer()
    {
        on.combo->Bind(wxEVT_TIMER, [this](wxTimerEvent& event) {
            ++ticksOfAnotherTimer;
            event.Skip();
        });
        wxTimer other(on.combo);
        other.Start(5);
        EXPECT_TRUE(PumpUntil([&] { return ticksOfAnotherTimer >= 3; }));
    }

    int ticksOfAnotherTimer = 0;
    const ComboOnScreen<> on;
};

TEST_F(ColourAnimation, IsPreparedByTheCallToShow)
{
    const wxRect rect(300, 300, 148, 162);
    const wxLongLong before = wxGetLocalTimeMillis();
    EXPECT_FALSE(on.combo->AnimateShow(rect, 7));
    const wxLongLong after = wxGetLocalTimeMillis();
    EXPECT_TRUE(before <= on.combo->m_animStart && on.combo->m_animStart <= after);
    EXPECT_EQ(on.combo->m_animRect, rect);
    EXPECT_EQ(on.combo->m_animFlags, 7);
    ASSERT_TRUE(on.combo->m_animBitmap.IsOk());
    EXPECT_EQ(on.combo->m_animBitmap.GetSize(), wxSize(148, 162));
}

TEST_F(ColourAnimation, TakesItsFirstStepAtOnce)
{
    on.combo->m_animDuration = 0;
    on.combo->Popup();
    EXPECT_TRUE(on.combo->IsPopupShown());
    EXPECT_FALSE(on.combo->m_animTimer.IsRunning());
    on.combo->Dismiss();
}

// Each animation takes a new copy of the screen, because the screen may have changed since the previous animation.
TEST_F(ColourAnimation, CopiesTheScreenWhereThePopupWillBe)
{
    auto* const below = new wxWindow(on.panel, wxID_ANY, wxPoint(20, 100), wxSize(400, 250));
    for (const auto& [colour, pixel] : {std::pair(*wxRED, kRed), std::pair(*wxGREEN, kGreen)}) {
        on.combo->m_animDuration = kLong;
        below->SetBackgroundColour(colour);
        below->Refresh();
        const wxPoint corner = below->GetScreenRect().GetBottomRight();
        EXPECT_TRUE(PumpUntil([&, shown = pixel] { return Pixel(corner.x, corner.y) == shown; }));
        on.combo->Popup();
        const wxRect rect = on.combo->m_animRect;
        const wxImage copy = on.combo->m_animBitmap.ConvertToImage();
        const wxImage seen = GrabScreen(rect);
        EXPECT_EQ(std::memcmp(copy.GetData(), seen.GetData(), std::size_t(3) * rect.width * rect.height), 0);
        ExpectShown();
        on.combo->Dismiss();
        // Cairo may keep old pixels of the screen, but not where this animation has drawn. Move the combo, so that the
        // next copy also covers another area.
        on.combo->Move(wxPoint(250, 60));
    }
}

TEST_F(ColourAnimation, TicksEveryTenMilliseconds)
{
    on.combo->Popup();
    EXPECT_TRUE(on.combo->m_animTimer.IsRunning());
    EXPECT_EQ(on.combo->m_animTimer.GetInterval(), 10);
    EXPECT_FALSE(on.combo->m_animTimer.IsOneShot());
    EXPECT_EQ(on.combo->m_animTimer.GetOwner(), on.combo);
    EXPECT_TRUE(on.combo->shown.empty());
    ExpectShown();
    on.combo->Dismiss();
}

TEST_F(ColourAnimation, ShowsThePopupAtItsEnd)
{
    on.combo->Popup();
    EXPECT_FALSE(on.combo->IsPopupShown());
    const wxRect rect = on.combo->m_animRect;
    EXPECT_EQ(rect, wxRect(on.combo->GetScreenRect().GetBottomLeft() + wxPoint(0, 1), on.popup->GetSize()));
    on.combo->m_animDuration = 200;
    EXPECT_TRUE(PumpUntil([&] { return on.combo->IsPopupShown(); }));
    EXPECT_TRUE(wxGetLocalTimeMillis() - on.combo->m_animStart >= 200);
    EXPECT_FALSE(on.combo->m_animTimer.IsRunning());
    EXPECT_EQ(on.combo->shown,
              std::vector<std::string>{std::to_string(rect.x) + ";" + std::to_string(rect.y) + ";" +
                                       std::to_string(rect.width) + ";" + std::to_string(rect.height) + " 2"});
    EXPECT_EQ(on.combo->GetPopupWindow()->GetScreenRect(), rect);
    EXPECT_FALSE(OutlineWindow()->IsShown());
    on.combo->Dismiss();
}

TEST_F(ColourAnimation, PutsThePopupInTheCornerOfItsWindow)
{
    on.combo->Popup();
    on.popup->Move(30, 40);
    ExpectShown();
    EXPECT_EQ(on.popup->GetPosition(), wxPoint(0, 0));
    on.combo->Dismiss();
}

TEST_F(ColourAnimation, RunsAgainTheNextTime)
{
    for (int i = 1; i <= 3; ++i) {
        on.combo->m_animDuration = kLong;
        on.combo->Popup();
        EXPECT_TRUE(on.combo->m_animTimer.IsRunning());
        ExpectShown();
        EXPECT_EQ(on.combo->shown.size(), static_cast<std::size_t>(i));
        on.popup->EndSelection(true);
    }
}

TEST_F(ColourAnimation, CanBeTurnedOff)
{
    on.combo->EnablePopupAnimation(false);
    on.combo->Popup();
    EXPECT_TRUE(on.combo->IsPopupShown());
    EXPECT_FALSE(on.combo->m_animTimer.IsRunning());
    on.combo->Dismiss();
}

TEST_F(ColourAnimation, IsAboveAllWindowsForTheUserToSee)
{
    on.combo->Popup();
    EXPECT_FALSE(OutlineWindow()->IsShown()) << "the first step's outline is empty";
    StandStill();
    const wxRect rect = on.combo->m_animRect;
    const wxPoint corner = rect.GetPosition() + wxPoint(37, 41);
    EXPECT_TRUE(PumpUntil(
        [&] { return Pixel(corner.x + 1, corner.y + 40) != kBlack && Pixel(corner.x, corner.y + 40) == kBlack; }));
    EXPECT_EQ(Pixel(corner.x + 73, corner.y + 40), kBlack);
    EXPECT_EQ(Pixel(corner.x + 37, corner.y), kBlack);
    EXPECT_EQ(Pixel(corner.x + 37, corner.y + 80), kBlack);
    for (const wxPoint& beside : {wxPoint(-1, 40), wxPoint(1, 40), wxPoint(72, 40), wxPoint(74, 40), wxPoint(37, -1),
                                  wxPoint(37, 1), wxPoint(37, 79), wxPoint(37, 81)})
        EXPECT_NE(Pixel(corner.x + beside.x, corner.y + beside.y), kBlack) << beside.x << ", " << beside.y;
    EXPECT_EQ(OutlineWindow()->GetScreenRect(), rect);
    ExpectShown();
    EXPECT_FALSE(OutlineWindow()->IsShown());
    on.combo->Dismiss();
}

TEST_F(ColourAnimation, LetsClicksThrough)
{
    on.combo->Popup();
    StandStill();
    const std::vector<wxRect> ring{wxRect(37, 41, 74, 1), wxRect(37, 42, 1, 79), wxRect(110, 42, 1, 79),
                                   wxRect(37, 121, 74, 1)};
    EXPECT_TRUE(PumpUntil([&] { return OutlineWindow()->IsShown() && ShapeOfOutline(ShapeBounding) == ring; }));
    EXPECT_TRUE(ShapeOfOutline(ShapeInput).empty());
    ExpectShown();
    on.combo->Dismiss();
}

// Each step draws the outline in the outline window and also directly on the screen. These tests check only the drawing
// on the screen: the combo draws the copied background over the outline of the previous step.
class ColourAnimationOnTheScreen : public ColourAnimation
{
protected:
    class SteppedCombo : public OpenCombo
    {
    public:
        void SetState(wxByte state) { m_popupWinState = state; }
    };

    ColourAnimationOnTheScreen()
    {
        // AnimateShow() would create the outline window. The tests do not call it, so this combo has no such window.
        combo = new SteppedCombo;
        combo->Create(on.panel, wxID_ANY, "", wxPoint(20, 200), wxSize(150, -1), wxCB_READONLY);
        combo->SetPopupControl(new OpenPopup);
        combo->m_animRect = wxRect(900, 700, 148, 162);
        combo->m_animBitmap = wxBitmap(148, 162);
        wxMemoryDC green(combo->m_animBitmap);
        green.SetBackground(*wxGREEN_BRUSH);
        green.Clear();
        combo->m_animDuration = kLong;
    }

    void StepAt(int elapsed)
    {
        combo->m_animStart = wxGetLocalTimeMillis() - elapsed;
        wxTimerEvent step(combo->m_animTimer);
        combo->OnTimerEvent(step);
        PumpPending();
    }

    static bool IsGreen(const std::vector<wxPoint>& places)
    {
        bool green = true;
        for (const wxPoint& place : places)
            green = green && Pixel(900 + place.x, 700 + place.y) == kGreen;
        return green;
    }

    SteppedCombo* combo;
};

TEST_F(ColourAnimationOnTheScreen, DrawsEachStepOverWhatWasThere)
{
    combo->SetState(wxComboCtrl::Animating);
    StepAt(1000500);
    EXPECT_TRUE(PumpUntil([&] { return Pixel(937, 780) == kBlack; }));
    EXPECT_EQ(Pixel(1010, 780), kBlack);
    EXPECT_EQ(Pixel(974, 741), kBlack);
    EXPECT_EQ(Pixel(974, 821), kBlack);
    EXPECT_TRUE(IsGreen({{0, 0}, {36, 80}, {38, 80}, {74, 81}, {109, 80}, {111, 80}, {147, 161}}));
    EXPECT_NE(Pixel(899, 780), kGreen);
    EXPECT_NE(Pixel(1048, 780), kGreen);

    StepAt(1500500);
    EXPECT_TRUE(PumpUntil([&] { return Pixel(919, 780) == kBlack; }));
    EXPECT_TRUE(IsGreen({{37, 80}, {110, 80}, {18, 80}, {20, 80}}));
    EXPECT_TRUE(combo->shown.empty());

    combo->SetState(wxComboCtrl::Hidden);
    StepAt(1600500);
    EXPECT_TRUE(PumpUntil([&] { return IsGreen({{19, 80}, {37, 80}, {74, 20}}); }));
    EXPECT_EQ(combo->shown, std::vector<std::string>{"900;700;148;162 0"});
}

TEST_F(ColourAnimationOnTheScreen, DrawsNothingOfItsOwnWithoutABitmap)
{
    combo->m_animBitmap = wxBitmap();
    combo->SetState(wxComboCtrl::Animating);
    StepAt(1000500);
    EXPECT_TRUE(combo->shown.empty());
    combo->SetState(wxComboCtrl::Hidden);
    StepAt(1000500);
    EXPECT_EQ(combo->shown.size(), 1u);
}

// --- When it ends ----------------------------------------------------------------------------------------------------

TEST_F(ColourAnimation, EndsWhenItsTimeIsUp)
{
    on.combo->Popup();
    on.combo->m_animDuration = 200;
    on.combo->m_animStart = wxGetLocalTimeMillis() - 200;
    Step();
    EXPECT_TRUE(on.combo->IsPopupShown());
    on.combo->Dismiss();

    on.combo->m_animDuration = 100000;
    on.combo->Popup();
    on.combo->m_animStart = wxGetLocalTimeMillis() - 90000;
    Step();
    EXPECT_FALSE(on.combo->IsPopupShown());
    on.combo->m_animDuration = 90000;
    Step();
    EXPECT_TRUE(on.combo->IsPopupShown());
    on.combo->Dismiss();
}

TEST_F(ColourAnimation, EndsAtTheNextStepWhenThePopupIsClosedAndShowsItAllTheSame)
{
    on.combo->Popup();
    on.combo->Dismiss();
    EXPECT_FALSE(on.combo->IsPopupShown());
    EXPECT_TRUE(on.combo->m_animTimer.IsRunning());
    Step();
    EXPECT_TRUE(on.combo->IsPopupShown());
    EXPECT_FALSE(on.combo->m_animTimer.IsRunning());
    EXPECT_TRUE(on.combo->GetPopupWindow()->IsShown());
    EXPECT_TRUE(on.combo->GetPopupWindow()->IsEnabled()) << "the popup is disabled";
    EXPECT_EQ(on.combo->shown.size(), 1u);
    on.popup->ChangeSelection(16);
    on.popup->EndSelection(false);
    EXPECT_EQ(on.combo->GetValue(), "");
}

// Setting the clock back must not delay the popup.
TEST_F(ColourAnimation, StartsAnewWhenTheClockIsSetBack)
{
    on.combo->Popup();
    on.combo->m_animStart = wxGetLocalTimeMillis() + 3600000;
    Step();
    EXPECT_FALSE(on.combo->IsPopupShown());
    EXPECT_TRUE(on.combo->m_animStart <= wxGetLocalTimeMillis());
    ExpectShown();
    on.combo->Dismiss();
}

// The elapsed time is truncated to 32 bits, so 2^32 + 50 milliseconds count as 50.
TEST_F(ColourAnimation, CountsItsTimeModulo32Bits)
{
    on.combo->Popup();
    on.combo->m_animDuration = 1000000;
    on.combo->m_animStart = wxGetLocalTimeMillis() - wxLongLong(1, 0) - 50;
    Step();
    EXPECT_FALSE(on.combo->IsPopupShown());
    on.combo->m_animStart = wxGetLocalTimeMillis() - wxLongLong(1, 0) - 1000000;
    Step();
    EXPECT_TRUE(on.combo->IsPopupShown());
    on.combo->Dismiss();
}

TEST_F(ColourAnimation, IsNoneInAnEmptyPlace)
{
    EXPECT_TRUE(on.combo->AnimateShow(wxRect(), 2));
    EXPECT_TRUE(on.combo->AnimateShow(wxRect(100, 100, 0, 50), 2));
    EXPECT_TRUE(on.combo->AnimateShow(wxRect(100, 100, 50, 0), 2));
    EXPECT_FALSE(on.combo->m_animTimer.IsRunning());
    EXPECT_EQ(OutlineWindow(), nullptr);
}

TEST_F(ColourAnimation, WorksAtAndBeyondTheScreensEdge)
{
    for (const wxRect& rect :
         {wxRect(-70, -80, 148, 162), wxRect(1200, 950, 148, 162), wxRect(5000, 5000, 20, 20), wxRect(0, 0, 1, 1)}) {
        on.combo->m_animDuration = kLong;
        EXPECT_FALSE(on.combo->AnimateShow(rect, 2));
        StandStill();
        Step();
        on.combo->m_animDuration = 0;
        EXPECT_TRUE(PumpUntil([&] { return !on.combo->m_animTimer.IsRunning(); }));
    }
}

// A host may start a timer of its own with the combo as the owner. The ticks of that timer do not open the popup.
TEST_F(ColourAnimation, IsNotStartedByAnotherTimer)
{
    WaitForAnotherTimer();
    EXPECT_FALSE(on.combo->IsPopupShown());
}

TEST_F(ColourAnimation, IsNotGoneThroughAgainByAnotherTimer)
{
    on.combo->Popup();
    ExpectShown();
    const std::size_t shown = on.combo->shown.size();
    WaitForAnotherTimer();
    EXPECT_EQ(on.combo->shown.size(), shown);
}

// The animation also ends if a host handles the timer events without skipping them.
TEST_F(ColourAnimation, EndsWhateverTheHostBinds)
{
    int ticks = 0;
    on.combo->Bind(wxEVT_TIMER, [&](wxTimerEvent&) { ++ticks; });
    on.combo->Popup();
    ExpectShown();
    EXPECT_GT(ticks, 0);
}

}  // namespace
