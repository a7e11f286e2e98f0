// The display of these tests is 1280 x 1024 with the work area 16;24;1264;960.

#include <fittings/config/wx_window_state.h>

#include <string>

#include <gtest/gtest.h>
#include <wx/display.h>

#include <tests/config/window/spy_window.h>
#include <tests/config/window/stored_geometry.h>
#include <tests/support/gui.h>
#include <tests/support/temp_folder.h>

namespace {

TEST(Display, HasTheWorkAreaThatTheseTestsExpect)
{
    ASSERT_EQ(wxDisplay::GetCount(), 1u);
    EXPECT_EQ(wxDisplay(0u).GetGeometry(), wxRect(0, 0, 1280, 1024));
    EXPECT_EQ(wxDisplay(0u).GetClientArea(), wxRect(16, 24, 1264, 960));
}

// A stored geometry, the calls by which LoadState() corrects it, and the resulting geometry of the window.
// LoadState() first applies the stored geometry with two calls, which are left out here.
struct Restored
{
    const char* name;
    const wchar_t* stored;
    SizeCalls calls;
    wxRect rect;
};

void PrintTo(const Restored& restored, std::ostream* out)
{
    *out << restored.name;
}

using StoredGeometry = UserDataTestWithParam<Restored>;

TEST_P(StoredGeometry, ComesOntoTheDisplay)
{
    RestoredSpyFrame frame(GetParam().stored);
    SizeCalls calls = frame.TakeCalls();
    ASSERT_GE(calls.size(), 2u);
    calls.erase(calls.begin(), calls.begin() + 2);
    EXPECT_EQ(calls, GetParam().calls);
    EXPECT_EQ(frame.GetRect(), GetParam().rect);
}

INSTANTIATE_TEST_SUITE_P(
    , StoredGeometry,
    testing::Values(
        Restored{"Inside", L"100;100;300;200", {}, wxRect(100, 100, 300, 200)},
        Restored{"ElevenByEleven", L"100;100;11;11", {}, wxRect(100, 100, 11, 11)},
        Restored{"ExactlyTheWorkArea", L"16;24;1264;960", {}, wxRect(16, 24, 1264, 960)},
        Restored{"OnePixelTooFarRight", L"17;24;1264;960", {"17;24;1263;960 3"}, wxRect(17, 24, 1263, 960)},
        Restored{"OnePixelTooFarDown", L"16;25;1264;960", {"16;25;1264;959 3"}, wxRect(16, 25, 1264, 959)},
        Restored{"OnePixelTooFarLeft", L"15;24;300;200", {"16;24;299;200 3"}, wxRect(16, 24, 299, 200)},
        Restored{"OnePixelTooFarUp", L"16;23;300;200", {"16;24;300;199 3"}, wxRect(16, 24, 300, 199)},
        Restored{"OutOnTheLeft", L"-100;100;300;200", {"16;100;184;200 3"}, wxRect(16, 100, 184, 200)},
        Restored{"OutAtTheTop", L"100;-50;300;200", {"100;24;300;126 3"}, wxRect(100, 24, 300, 126)},
        Restored{"OutOnTheRight", L"1100;100;300;200", {"1100;100;180;200 3"}, wxRect(1100, 100, 180, 200)},
        Restored{"OutAtTheBottom", L"100;900;300;200", {"100;900;300;84 3"}, wxRect(100, 900, 300, 84)},
        Restored{"OutAtACorner", L"1200;950;300;200", {"1200;950;80;34 3"}, wxRect(1200, 950, 80, 34)},
        Restored{"Oversize", L"0;0;3000;3000", {"16;24;1264;960 3"}, wxRect(16, 24, 1264, 960)},
        Restored{"OversizeAllRound", L"-500;-500;9000;9000", {"16;24;1264;960 3"}, wxRect(16, 24, 1264, 960)},
        Restored{"OffTheRight", L"5000;5000;300;200", {"0;0;-1;-1 0", "16;24;284;176 3"}, wxRect(16, 24, 284, 176)},
        Restored{"OffTheLeft", L"-5000;100;300;200", {"0;0;-1;-1 0", "16;24;284;176 3"}, wxRect(16, 24, 284, 176)},
        Restored{"JustOff", L"1280;100;300;200", {"0;0;-1;-1 0", "16;24;284;176 3"}, wxRect(16, 24, 284, 176)},
        Restored{"JustOn", L"1279;100;300;200", {"1279;100;1;200 3"}, wxRect(1279, 100, 1, 200)},
        Restored{"JustAbove", L"100;-200;300;200", {"0;0;-1;-1 0", "16;24;284;176 3"}, wxRect(16, 24, 284, 176)},
        Restored{
            "OffAndOversize", L"5000;5000;3000;3000", {"0;0;-1;-1 0", "16;24;1264;960 3"}, wxRect(16, 24, 1264, 960)},
        // These windows would lie wholly under a panel. Clipping them to the work area would leave nothing of them, so
        // LoadState() moves them.
        Restored{"UnderTheBottomPanel", L"100;990;300;30", {"100;954;300;30 3"}, wxRect(100, 954, 300, 30)},
        Restored{"UnderTheTopPanel", L"100;-180;300;200", {"100;24;300;200 3"}, wxRect(100, 24, 300, 200)},
        Restored{"UnderTheLeftPanel", L"-290;100;300;200", {"16;100;300;200 3"}, wxRect(16, 100, 300, 200)},
        Restored{"UnderTheBottomPanelOversize", L"-9;984;3000;2000", {"16;24;1264;960 3"}, wxRect(16, 24, 1264, 960)},
        Restored{"OffAndLow", L"5000;5000;300;20", {"0;0;-1;-1 0", "16;24;300;20 3"}, wxRect(16, 24, 300, 20)},
        // The position -1;-1 means that the window manager chooses the place. One -1 alone is an ordinary number.
        Restored{"NoPosition", L"-1;-1;300;200", {}, wxRect(-1, -1, 300, 200)},
        Restored{"NoPositionOversize", L"-1;-1;1280;1024", {"16;24;1264;960 3"}, wxRect(16, 24, 1264, 960)},
        Restored{"HalfAPosition", L"-1;100;300;200", {"16;100;283;200 3"}, wxRect(16, 100, 283, 200)}),
    [](const auto& info) { return info.param.name; });

// LoadState() applies the position -1;-1 like any other position, with two calls. The tests above ignore these calls.
TEST(StoredPositionMinusOne, IsApplied)
{
    const TempUserData data;
    RestoredSpyFrame frame(L"-1;-1;300;200");
    EXPECT_EQ(frame.TakeCalls(), (SizeCalls{"-1;-1;300;200 4", "-1;-1;-1;-1 0"}));
}

using StoredSizeTooSmall = UserDataTestWithParam<const wchar_t*>;

TEST_P(StoredSizeTooSmall, LeavesTheWindowWhereItIs)
{
    RestoredSpyFrame frame(GetParam());
    EXPECT_EQ(frame.TakeCalls(), SizeCalls{});
    EXPECT_EQ(frame.GetRect(), wxRect(300, 200, 400, 300));
}

TEST_P(StoredSizeTooSmall, PullsAWindowOntoTheDisplayAllTheSame)
{
    RestoredSpyFrame frame(GetParam(), wxRect(5000, 5000, 400, 300));
    EXPECT_EQ(frame.TakeCalls(), (SizeCalls{"0;0;-1;-1 0", "16;24;384;276 3"}));
    EXPECT_EQ(frame.GetRect(), wxRect(16, 24, 384, 276));
}

INSTANTIATE_TEST_SUITE_P(, StoredSizeTooSmall,
                         testing::Values(L"100;100;5;600", L"100;100;600;5", L"100;100;10;600", L"100;100;600;10",
                                         L"100;100;10;10", L"100;100;0;0", L"100;100;-300;200", L"100;100;300;-200",
                                         L"5000;5000;10;10", L"100;100;-2147483648;2147483647"));

// A stored geometry with numbers far beyond the size of a display.
using HugeGeometry = UserDataTestWithParam<const wchar_t*>;

TEST_P(HugeGeometry, EndsInsideTheWorkArea)
{
    RestoredSpyFrame frame(GetParam());
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_TRUE(wxRect(16, 24, 1264, 960).Contains(frame.GetScreenRect()));
    EXPECT_GT(frame.GetClientSize().x, 10);
    EXPECT_GT(frame.GetClientSize().y, 10);
}

TEST_P(HugeGeometry, EndsInsideTheWorkAreaOfAShownWindow)
{
    StoreGeometry(GetParam());
    SpyFrame frame;
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
    const wxRect expected = frame.GetRect();
    EXPECT_TRUE(PumpUntil([&] { return frame.GetScreenRect() == expected; }));
    EXPECT_TRUE(wxRect(16, 24, 1264, 960).Contains(frame.GetScreenRect()));
    EXPECT_GT(frame.GetClientSize().x, 10);
    EXPECT_GT(frame.GetClientSize().y, 10);
}

INSTANTIATE_TEST_SUITE_P(, HugeGeometry,
                         testing::Values(L"2147483647;2147483647;2147483647;2147483647",
                                         L"-2147483648;-2147483648;2147483647;2147483647",
                                         L"2147483647;2147483647;300;200", L"-2147483648;-2147483648;300;200",
                                         L"100;100;2147483647;2147483647", L"0;0;40000;40000", L"-100;-100;32768;32768",
                                         L"99999999999;99999999999;99999999999;99999999999",
                                         L"-99999999999999999999;0;99999999999999999999;300",
                                         L"4294967396;4294967396;4294967596;4294967496"));

TEST(NumberOfAMegabyte, IsTheLargest)
{
    const TempUserData data;
    const std::wstring huge(1 << 20, L'7');
    RestoredSpyFrame frame(huge + L";-" + huge + L";" + huge + L";" + huge);
    EXPECT_EQ(frame.GetRect(), wxRect(16, 24, 1264, 960));
}

TEST(FrameFromAMissingMonitor, IsShownClipped)
{
    const TempUserData data;
    RestoredSpyFrame frame(L"5000;5000;300;200");
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_EQ(frame.GetScreenRect(), wxRect(16, 24, 284, 176));
}

TEST(FrameUnderAPanel, IsShownBesideIt)
{
    const TempUserData data;
    RestoredSpyFrame frame(L"100;-180;300;200");
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_EQ(frame.GetScreenRect(), wxRect(100, 24, 300, 200));
}

TEST(FrameWithoutAPosition, IsPutIntoTheWorkAreaByTheWindowManager)
{
    const TempUserData data;
    RestoredSpyFrame frame(L"-1;-1;300;200");
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_EQ(frame.GetSize(), wxSize(300, 200));
    EXPECT_TRUE(wxRect(16, 24, 1264, 960).Contains(frame.GetScreenRect()));
}

TEST(ShownFrame, IsClippedToo)
{
    const TempUserData data;
    StoreGeometry(L"1100;900;300;200");
    SpyFrame frame;
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
    EXPECT_TRUE(PumpUntil([&] { return frame.GetScreenRect() == wxRect(1100, 900, 180, 84); }));
}

// The child is on no display, even after LoadState() moves it to the corner of its parent, so LoadState() returns
// false.
TEST(ChildOfAFrameThatIsOffEveryDisplay, StaysAtTheParentsCorner)
{
    const TempUserData data;
    StoreGeometry(L"30;40;200;100");
    SpyFrame frame(wxRect(5000, 5000, 400, 300));
    SpyWindow<wxPanel> panel(&frame, wxID_ANY);
    panel.TakeCalls();
    EXPECT_FALSE(wx_window_state::LoadState(&panel, L"w"));
    EXPECT_EQ(panel.TakeCalls(), (SizeCalls{"30;40;200;100 4", "30;40;-1;-1 0", "0;0;-1;-1 0"}));
    EXPECT_EQ(panel.GetRect(), wxRect(0, 0, 200, 100));
}

// The child's position on the screen, not its position in its parent, decides whether the child is on a display.
TEST(ChildLeftOfAShownParent, IsOnTheDisplay)
{
    const TempUserData data;
    StoreGeometry(L"-210;40;200;100");
    SpyFrame frame(wxRect(300, 200, 400, 300));
    wxPanel first(&frame, wxID_ANY);
    SpyWindow<wxPanel> panel(&frame, wxID_ANY);
    ASSERT_TRUE(ShowAndSettle(&frame));
    panel.TakeCalls();
    EXPECT_TRUE(wx_window_state::LoadState(&panel, L"w"));
    EXPECT_EQ(panel.TakeCalls(), (SizeCalls{"-210;40;200;100 4", "-210;40;-1;-1 0", "16;40;200;100 3"}));
}

// A child's position in its parent is compared with the work area, as if it were a position on the screen.
TEST(ChildAtItsParentsCorner, IsClippedByItsOwnPosition)
{
    const TempUserData data;
    StoreGeometry(L"0;0;200;100");
    SpyFrame frame;
    SpyWindow<wxPanel> panel(&frame, wxID_ANY);
    panel.TakeCalls();
    EXPECT_TRUE(wx_window_state::LoadState(&panel, L"w"));
    EXPECT_EQ(panel.TakeCalls(), (SizeCalls{"0;0;200;100 4", "0;0;-1;-1 0", "16;24;184;76 3"}));
}

TEST(GrandchildOfAHiddenFrame, IsOffTheDisplayWithTheParentsAbove)
{
    const TempUserData data;
    StoreGeometry(L"30;40;200;100");
    SpyFrame frame(wxRect(-390, 100, 400, 300));
    wxPanel outer(&frame, wxID_ANY, wxPoint(0, 0), wxSize(380, 280));
    SpyWindow<wxPanel> inner(&outer, wxID_ANY);
    outer.SetSize(0, 0, 380, 280);
    inner.TakeCalls();
    EXPECT_FALSE(wx_window_state::LoadState(&inner, L"w"));
    outer.SetSize(200, 0, 380, 280);
    inner.TakeCalls();
    EXPECT_TRUE(wx_window_state::LoadState(&inner, L"w"));
    EXPECT_EQ(inner.TakeCalls(), (SizeCalls{"30;40;200;100 4", "30;40;-1;-1 0"}));
}

}  // namespace
