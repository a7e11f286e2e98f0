#include <fittings/config/wx_window_state.h>

#include <gtest/gtest.h>

#include <tests/config/window/spy_window.h>
#include <tests/support/gui.h>

namespace {

struct Corner
{
    const char* name;
    wxRect reference;
    wxSize window;
    const char* call;
};

using RightCorner = testing::TestWithParam<Corner>;

TEST_P(RightCorner, IsWhereTheWindowMoves)
{
    SpyFrame reference;
    reference.SetSize(GetParam().reference);
    SpyFrame window(wxRect(wxPoint(50, 60), GetParam().window));
    wx_window_state::MoveWindowToRightCorner(&window, &reference);
    EXPECT_EQ(window.TakeCalls(), SizeCalls{GetParam().call});
    EXPECT_EQ(window.GetSize(), GetParam().window);
}

INSTANTIATE_TEST_SUITE_P(
    , RightCorner,
    testing::Values(Corner{"Narrow", wxRect(0, 0, 799, 600), wxSize(200, 100), "698;0;-1;-1 0"},
                    Corner{"Wide", wxRect(0, 0, 800, 600), wxSize(200, 100), "599;0;-1;-1 0"},
                    Corner{"NarrowOddWidth", wxRect(0, 0, 799, 600), wxSize(201, 100), "698;0;-1;-1 0"},
                    Corner{"WideOddWidth", wxRect(0, 0, 800, 600), wxSize(201, 100), "598;0;-1;-1 0"},
                    Corner{"Elsewhere", wxRect(70, 90, 400, 300), wxSize(150, 500), "394;90;-1;-1 0"},
                    Corner{"WindowWiderThanTheReference", wxRect(70, 90, 900, 300), wxSize(1200, 100),
                           "-231;90;-1;-1 0"}),
    [](const auto& info) { return info.param.name; });

// The reference is a child window. Its position on the screen counts, not its position in its parent.
TEST(RightCornerOfAChild, IsOnTheScreen)
{
    SpyFrame frame(wxRect(200, 150, 400, 300));
    wxPanel first(&frame, wxID_ANY);
    wxPanel reference(&frame, wxID_ANY, wxPoint(30, 40), wxSize(100, 80));
    ASSERT_TRUE(ShowAndSettle(&frame));
    const wxPoint corner = reference.GetScreenPosition();
    ASSERT_GE(corner.x, 230);
    ASSERT_GE(corner.y, 190);
    SpyFrame window(wxRect(50, 60, 60, 50));
    wx_window_state::MoveWindowToRightCorner(&window, &reference);
    EXPECT_EQ(window.GetPosition(), wxPoint(corner.x + 69, corner.y));
}

TEST(RightCornerOfAFrame, HoldsForShownWindows)
{
    SpyFrame reference(wxRect(100, 80, 799, 600));
    SpyFrame window(wxRect(50, 60, 200, 100));
    ASSERT_TRUE(ShowAndSettle(&reference));
    ASSERT_TRUE(ShowAndSettle(&window));
    wx_window_state::MoveWindowToRightCorner(&window, &reference);
    EXPECT_TRUE(PumpUntil([&] { return window.GetScreenRect() == wxRect(798, 80, 200, 100); }));
}

}  // namespace
