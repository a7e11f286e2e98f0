// Windows on Wayland, where a program can neither place its windows nor find out where they are.

#include <fittings/config/wx_window_state.h>

#include <string>

#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/utils.h>

#include <fittings/platform/local_reg_store.h>
#include <tests/config/window/spy_window.h>
#include <tests/config/window/stored_geometry.h>
#include <tests/support/gui.h>
#include <tests/support/temp_folder.h>

namespace {

bool Ends(const std::wstring& text, const std::wstring& end)
{
    return text.size() > end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

bool ShowsInSize(wxTopLevelWindow* window, const wxSize& size)
{
    return ShowAndSettle(window) && PumpUntil([&] { return window->GetSize() == size; });
}

TEST(DisplayOfTheseTests, IsWayland)
{
    EXPECT_EQ(wxGetDisplayInfo().type, wxDisplayWayland);
}

using FrameOnWayland = UserDataTest;

// The position that a frame reports depends on the compositor, so the test only compares the positions that the first
// and the last run store.
TEST_F(FrameOnWayland, ComesBackInTheSameSizeEachTime)
{
    StoreGeometry(L"300;200;510;340");
    std::wstring first;
    for (int run = 0; run < 4; ++run) {
        SpyFrame frame;
        EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
        ASSERT_TRUE(ShowsInSize(&frame, wxSize(510, 340)));
        wx_window_state::SaveState(&frame, L"w");
        EXPECT_TRUE(Ends(StoredGeometry(), L";510;340")) << wxString(StoredGeometry());
        if (run == 0)
            first = StoredGeometry();
    }
    EXPECT_EQ(wxString(StoredGeometry()), wxString(first));
}

TEST_F(FrameOnWayland, KeepsTheSizeThatItsUserGaveIt)
{
    {
        SpyFrame frame;
        ASSERT_TRUE(ShowAndSettle(&frame));
        frame.SetSize(620, 410);
        ASSERT_TRUE(PumpUntil([&] { return frame.GetSize() == wxSize(620, 410); }));
        wx_window_state::SaveState(&frame, L"w");
    }
    SpyFrame frame;
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
    EXPECT_TRUE(ShowsInSize(&frame, wxSize(620, 410)));
}

TEST_F(FrameOnWayland, KeepsItsStoredPlaceUntilItIsShown)
{
    RestoredSpyFrame frame(L"300;200;510;340", wxRect(10, 20, 400, 300));
    wx_window_state::SaveState(&frame, L"w");
    EXPECT_EQ(wxString(StoredGeometry()), L"300;200;510;340");
}

TEST_F(FrameOnWayland, FromAMissingMonitorIsShown)
{
    RestoredSpyFrame frame(L"5000;5000;510;340");
    EXPECT_EQ(frame.GetRect(), wxRect(0, 0, 510, 340));
    EXPECT_TRUE(ShowsInSize(&frame, wxSize(510, 340)));
}

TEST_F(FrameOnWayland, LargerThanTheDisplayIsShownInIts)
{
    RestoredSpyFrame frame(L"100;100;9000;9000");
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_LE(frame.GetSize().x, 1200);
    EXPECT_LE(frame.GetSize().y, 940);
}

TEST_F(FrameOnWayland, TakesItsSizeWhileItIsShown)
{
    StoreGeometry(L"300;200;510;340");
    SpyFrame frame;
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
    EXPECT_TRUE(PumpUntil([&] { return frame.GetSize() == wxSize(510, 340); }));
}

TEST_F(FrameOnWayland, ComesBackMaximizedAndCanBeRestored)
{
    wxSize maximized;
    {
        SpyFrame frame;
        ASSERT_TRUE(ShowAndSettle(&frame));
        EXPECT_FALSE(frame.IsMaximized());
        frame.Maximize();
        ASSERT_TRUE(PumpUntil([&] { return frame.IsMaximized() && frame.GetSize().x > 1000; }));
        maximized = frame.GetSize();
        wx_window_state::SaveState(&frame, L"w");
    }
    EXPECT_TRUE(CLocalRegStore::GetProfileBool(L"wxWindowMaximize", L"w", false));
    SpyFrame frame;
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_TRUE(PumpUntil([&] { return frame.IsMaximized() && frame.GetSize() == maximized; }));
    frame.Maximize(false);
    EXPECT_TRUE(PumpUntil([&] { return !frame.IsMaximized(); }));
    wx_window_state::SaveState(&frame, L"w");
    EXPECT_FALSE(CLocalRegStore::GetProfileBool(L"wxWindowMaximize", L"w", true));
}

TEST(DialogOnWayland, ComesBackInItsSize)
{
    const TempUserData data;
    StoreGeometry(L"250;150;420;310");
    wxDialog dialog(nullptr, wxID_ANY, "dialog", wxDefaultPosition, wxSize(300, 200),
                    wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
    EXPECT_TRUE(wx_window_state::LoadState(&dialog, L"w"));
    ASSERT_TRUE(ShowsInSize(&dialog, wxSize(420, 310)));
    wx_window_state::SaveState(&dialog, L"w");
    EXPECT_TRUE(Ends(StoredGeometry(), L";420;310")) << wxString(StoredGeometry());
}

TEST(RightCornerOnWayland, LeavesTheWindowShownInItsSize)
{
    SpyFrame reference;
    SpyFrame frame(wxRect(0, 0, 350, 250));
    ASSERT_TRUE(ShowAndSettle(&reference));
    ASSERT_TRUE(ShowsInSize(&frame, wxSize(350, 250)));
    wx_window_state::MoveWindowToRightCorner(&frame, &reference);
    PumpPending();
    EXPECT_TRUE(frame.IsShownOnScreen());
    EXPECT_EQ(frame.GetSize(), wxSize(350, 250));
}

}  // namespace
