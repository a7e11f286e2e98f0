// The real dialog of "More Colours...", shown by a separate program and operated with keys.

#include <string>

#include <gtest/gtest.h>

#include <tests/colour/combo/watched_probe.h>

namespace {

class MoreColoursByKeys : public testing::Test
{
protected:
    // Opens the popup, and then the dialog. No cell is hot at first, so Down leads to "More Colours...".
    void OpenDialog()
    {
        Xdotool({"key", kF4});
        ASSERT_TRUE(probe.Waits("popup "));
        Xdotool({"key", "Down"});
        ASSERT_TRUE(probe.Waits("change "));
        Xdotool({"key", "Return"});
        ASSERT_TRUE(probe.Waits("dialog active "));
    }

    WatchedProbe probe{1};
};

TEST_F(MoreColoursByKeys, GivesTheColourThatWasTyped)
{
    OpenDialog();
    Xdotool({"key", "alt+n"});
    ASSERT_TRUE(probe.Waits("dialog active GtkEntry "));
    Xdotool({"key", "ctrl+a"});
    Xdotool({"type", "--delay", "20", "#12AB34"});
    Xdotool({"key", "Tab"});
    ASSERT_TRUE(Becomes([&] { return probe.Lines("dialog active ").back().find("#12AB34") != std::string::npos; }));
    Xdotool({"key", "alt+s"});
    ASSERT_TRUE(probe.Waits("end #12AB34"));
    probe.ExpectEnd();
    EXPECT_EQ(probe.Lines("value "), std::vector<std::string>{"More Colours..."});
}

TEST_F(MoreColoursByKeys, KeepsTheColourAfterEscape)
{
    OpenDialog();
    Xdotool({"key", "Escape"});
    ASSERT_TRUE(probe.Waits("end #000000"));
    probe.ExpectEnd();
    EXPECT_TRUE(probe.Lines("cancel").empty());
}

}  // namespace
