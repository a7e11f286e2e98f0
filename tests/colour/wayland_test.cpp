// The combo on Wayland, where no program can copy the screen, place its windows or draw between paint events. The
// compositor runs in a window of the X display and receives its input from that display.

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <tests/colour/combo/watched_probe.h>
#include <tests/colour/screen.h>
#include <tests/support/patience.h>
#include <tests/support/temp_folder.h>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace {

constexpr const char* kSocket = "wayland-of-the-test";

// Returns the position of the compositor's window on the X screen.
wxPoint CompositorsPlace()
{
    const std::unique_ptr<Display, int (*)(Display*)> display(XOpenDisplay(nullptr), XCloseDisplay);
    const Window root = DefaultRootWindow(display.get());
    std::vector<Window> windows{root};
    for (std::size_t i = 0; i < windows.size(); ++i) {
        XClassHint hint{};
        if (XGetClassHint(display.get(), windows[i], &hint)) {
            const std::string name = hint.res_class;
            XFree(hint.res_name);
            XFree(hint.res_class);
            wxPoint place;
            Window child = 0;
            if (name == "Weston Compositor" &&
                XTranslateCoordinates(display.get(), windows[i], root, 0, 0, &place.x, &place.y, &child))
                return place;
        }
        Window parent = 0;
        Window top = 0;
        Window* children = nullptr;
        unsigned count = 0;
        if (XQueryTree(display.get(), windows[i], &top, &parent, &children, &count)) {
            windows.insert(windows.end(), children, children + count);
            XFree(children);
        }
    }
    ADD_FAILURE() << "the compositor has no window";
    return {};
}

class ColourOnWayland : public testing::Test
{
protected:
    // With kiosk-shell, the probe's frame fills the whole window of the compositor.
    ColourOnWayland()
        : compositor({"weston", "--backend=x11-backend.so", "--use-pixman", "--width=900", "--height=600",
                      "--shell=kiosk-shell.so", "--no-config", "--idle-time=0", std::string("--socket=") + kSocket},
                     {{"XDG_RUNTIME_DIR", runtime.Path()}})
    {
        EXPECT_TRUE(Becomes([&] { return std::filesystem::exists(runtime / kSocket) || !compositor.IsRunning(); }));
        EXPECT_TRUE(compositor.IsRunning()) << compositor.Output();
    }

    std::map<std::string, std::optional<std::string>> Environment() const
    {
        return {{"XDG_RUNTIME_DIR", runtime.Path()},
                {"WAYLAND_DISPLAY", kSocket},
                {"GDK_BACKEND", "wayland"},
                {"DISPLAY", std::nullopt}};
    }

    // Returns the rectangle of the combo on the X screen.
    static wxRect Combo(const WatchedProbe& probe)
    {
        const std::vector<int> numbers = probe.Numbers("combo ");
        EXPECT_EQ(numbers.size(), 4u);
        const wxPoint screen = CompositorsPlace();
        return numbers.size() == 4 ? wxRect(screen.x + numbers[0], screen.y + numbers[1], numbers[2], numbers[3])
                                   : wxRect();
    }

    // Returns the middle of a cell, relative to the popup.
    static wxPoint Cell(const WatchedProbe& probe, int index)
    {
        const std::vector<int> numbers = probe.Numbers("cell " + std::to_string(index) + " ");
        EXPECT_EQ(numbers.size(), 2u);
        return numbers.size() == 2 ? wxPoint(numbers[0], numbers[1]) : wxPoint();
    }

    // Returns whether the cell with this middle is hot. A hot cell has a black line one pixel inside its right edge.
    static bool IsHot(const wxPoint& middle) { return PixelOfScreen(middle + wxPoint(7, 0)) == 0; }

    // Call this after the hot cell has moved from cell 0 to cell 1. Expects that this move repainted the two cells and
    // the four sides of the popup's frame. Expects that the whole popup was repainted only once, when it opened.
    static void ExpectLastRepaint(const WatchedProbe& probe)
    {
        const std::vector<std::string> parts = probe.Lines("repaints ");
        EXPECT_EQ(std::count(parts.begin(), parts.end(), "all"), 1);
        ASSERT_GE(parts.size(), 6u);
        const auto part = [&](std::size_t i) {
            std::istringstream line(parts.at(i));
            wxRect rect;
            line >> rect.x >> rect.y >> rect.width >> rect.height;
            return rect;
        };
        const wxRect cell(Cell(probe, 0) - wxPoint(9, 9), wxSize(18, 18));
        const std::size_t last = parts.size() - 6;
        EXPECT_EQ(part(last), cell);
        EXPECT_EQ(part(last + 1), wxRect(cell.GetPosition() + wxPoint(18, 0), cell.GetSize()));
        const int height = part(last + 4).height;
        EXPECT_GT(height, 120);
        EXPECT_EQ(part(last + 2), wxRect(0, 0, 148, 3));
        EXPECT_EQ(part(last + 3), wxRect(0, height - 3, 148, 3));
        EXPECT_EQ(part(last + 4), wxRect(0, 0, 3, height));
        EXPECT_EQ(part(last + 5), wxRect(145, 0, 3, height));
        // The first line is "repaints all". The second line is the part that was repainted when "More Colours..."
        // became the first hot cell. This part must reach the bottom of the popup.
        EXPECT_EQ(part(1).GetBottom(), height - 1);
    }

    // Moves the pointer to @a at, again and again until @a done returns true. The compositor reads the pointer's
    // position only when the pointer enters the compositor's window, and does not always report a single move.
    static void Move(const wxPoint& at, const std::function<bool()>& done)
    {
        const auto deadline = std::chrono::steady_clock::now() + Patience() * std::chrono::seconds(15);
        for (int i = 0; !done() && std::chrono::steady_clock::now() < deadline; ++i) {
            if (i % 20 == 0)
                Xdotool({"mousemove", "0", "0", "mousemove", std::to_string(at.x - 1), std::to_string(at.y),
                         "mousemove", std::to_string(at.x), std::to_string(at.y)});
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        EXPECT_TRUE(done());
    }

    const TempFolder runtime;
    ChildProcess compositor;
};

TEST_F(ColourOnWayland, IsUsedByKeyboard)
{
    WatchedProbe probe(2, Environment());
    EXPECT_EQ(probe.Lines("display "), std::vector<std::string>{"wayland"});
    const wxRect combo = Combo(probe);
    Xdotool({"key", kF4});
    ASSERT_TRUE(probe.Waits("popup "));
    EXPECT_EQ(probe.Lines("opens "), std::vector<std::string>{"at once"});
    // The three keys move to "More Colours...", "Automatic" and the first cell.
    Xdotool({"key", "Down", "Down", "Down"});
    ASSERT_TRUE(probe.Waits("change ", 3));
    const wxPoint first = combo.GetBottomLeft() + wxPoint(0, 1) + Cell(probe, 0);
    EXPECT_TRUE(Becomes([&] { return IsHot(first); })) << "the hot cell is not seen";
    Xdotool({"key", "Right"});
    EXPECT_TRUE(Becomes([&] { return IsHot(first + wxPoint(18, 0)) && !IsHot(first); }))
        << "the hot cell does not move";
    ExpectLastRepaint(probe);
    Xdotool({"key", "Return"});
    ASSERT_TRUE(probe.Waits("end #A52A00"));
    const wxPoint face = combo.GetPosition() + wxPoint(20, combo.height / 2);
    EXPECT_TRUE(Becomes([&] { return PixelOfScreen(face) == 0xA52A00; }));

    Xdotool({"key", "alt+Down"});
    ASSERT_TRUE(probe.Waits("popup ", 2));
    Xdotool({"key", "Up"});
    ASSERT_TRUE(probe.Waits("change ", 5));
    Xdotool({"key", "Escape"});
    ASSERT_TRUE(probe.Waits("cancel #A52A00"));
    probe.ExpectEnd();
    EXPECT_EQ(probe.Lines("value "), std::vector<std::string>{"Brown"});
}

TEST_F(ColourOnWayland, IsUsedByMouse)
{
    WatchedProbe probe(1, Environment());
    const wxRect combo = Combo(probe);
    const auto heard = [&](const std::string& line) { return [&probe, line] { return !probe.Lines(line).empty(); }; };
    Move(combo.GetTopRight() + wxPoint(-10, combo.height / 2), heard("over combo"));
    Xdotool({"click", "1"});
    ASSERT_TRUE(probe.Waits("popup "));
    const wxPoint aqua = combo.GetBottomLeft() + wxPoint(0, 1) + Cell(probe, 20);
    const wxPoint besideIt = aqua - wxPoint(18, 0);
    Move(besideIt, heard("change #3CB371"));
    EXPECT_TRUE(Becomes([&] { return IsHot(besideIt); }));
    Move(aqua, heard("change #7FFFD4"));
    EXPECT_TRUE(Becomes([&] { return IsHot(aqua) && !IsHot(besideIt); }));
    Xdotool({"click", "1"});
    ASSERT_TRUE(probe.Waits("end #7FFFD4"));
    probe.ExpectEnd();
    EXPECT_EQ(probe.Lines("value "), std::vector<std::string>{"Aqua"});
}

TEST_F(ColourOnWayland, IsClosedByAClickOutside)
{
    WatchedProbe probe(1, Environment());
    Xdotool({"key", kF4});
    ASSERT_TRUE(probe.Waits("popup "));
    const wxPoint outside = Combo(probe).GetPosition() + wxPoint(300, 250);
    Xdotool({"mousemove", "0", "0", "mousemove", std::to_string(outside.x), std::to_string(outside.y), "click", "1"});
    ASSERT_TRUE(probe.Waits("cancel #000000"));
    probe.ExpectEnd();
}

}  // namespace
