// The first window of a process is restored to its place and size under every window manager.

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include <tests/support/process/child_process.h>

namespace {

class FirstFrame : public testing::TestWithParam<const char*>
{
protected:
    void ExpectBack(const std::string& geometry) const
    {
        const std::string stored = RunChild({FIRST_FRAME_PROBE, GetParam(), "store", geometry});
        ASSERT_FALSE(stored.empty());
        if (geometry != "corner" && geometry != "last-corner") {
            ASSERT_EQ(stored, geometry + "\n");
        }
        for (int time = 1; time <= 2; ++time)
            EXPECT_EQ(RunChild({FIRST_FRAME_PROBE, GetParam(), "restore"}), stored) << "time " << time;
    }
};

TEST_P(FirstFrame, ComesBackInItsPlace)
{
    ExpectBack("420;130;510;340");
}

// The stored position is the one that the toolkit also assumes for a frame that was never moved. The toolkit leaves the
// place of such a frame to the window manager. Even so, the restored frame must come back to the corner.
TEST_P(FirstFrame, ComesBackInTheCorner)
{
    ExpectBack("corner");
}

// Until the toolkit knows the decorations, the frame is too large by their size and extends beyond the work area. If
// the window manager therefore moves the frame, the frame must still come back to the corner.
TEST_P(FirstFrame, ComesBackInTheLastCorner)
{
    ExpectBack("last-corner");
}

INSTANTIATE_TEST_SUITE_P(, FirstFrame,
                         testing::Values("plain", "menu", "fixed", "persistent", "maximized", "corrected"),
                         [](const auto& info) { return std::string(info.param); });

// By dragging the title bar of a maximised frame, the user unmaximises the frame and chooses its place. Therefore only
// the stored size is restored, not the stored place. The window manager does not know the stored place, so it cannot
// move the frame there.
TEST(DraggedFrame, GetsItsSizeAlone)
{
    const std::string stored = RunChild({FIRST_FRAME_PROBE, "dragged", "store", "420;130;510;340"});
    ASSERT_EQ(stored, "420;130;510;340\n");
    const std::string restored = RunChild({FIRST_FRAME_PROBE, "dragged", "restore"});
    EXPECT_NE(restored, stored);
    EXPECT_EQ(restored.substr(restored.size() - std::min<std::size_t>(restored.size(), 9)), ";510;340\n");
}

}  // namespace
