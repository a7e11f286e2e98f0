#include <tests/samples/sample_in_use.h>

#include <stdexcept>

#include <gtest/gtest.h>

#include <tests/support/becomes.h>

namespace {

// The width of the tests' display.
constexpr int kScreenWidth = 1280;

std::string FirstLine(const std::string& text)
{
    return text.substr(0, text.find('\n'));
}

// Cuts a long text, because a program may report the same problem many times.
std::string Shortened(const std::string& text)
{
    constexpr std::size_t kMost = 4000;
    return text.size() <= kMost ? text : text.substr(0, kMost) + " [and more]";
}

// Runs a program and returns its output. If the program fails, throws an exception, which ends the test. Otherwise a
// test that makes a thousand calls could report a thousand failures.
std::string Run(const std::vector<std::string>& command)
{
    const TempFolder folder;
    const std::string errors = folder / "errors";
    ChildProcess child(command, {}, errors);
    if (child.WaitForEnd() && child.ExitCode() == 0)
        return child.Output();
    std::string line;
    for (const std::string& word : command)
        line += word + " ";
    throw std::runtime_error(line + (child.IsRunning() ? "does not end" : "fails") + ": " +
                             Shortened(ReadFile(errors)));
}

std::string Xdotool(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "xdotool");
    return Run(arguments);
}

}  // namespace

SampleInUse::SampleInUse(const std::string& sample, const std::string& title, const Person& person)
    : m_program({std::string(SAMPLES) + "/sample-" + sample},
                {{"HOME", person.home.Path()},
                 {"XDG_DATA_HOME", person.data.Path()},
                 {"XDG_CONFIG_HOME", person.data.Path()},
                 {"XDG_CACHE_HOME", person.data.Path()}},
                m_folder / "errors")
{
    // Ignore the exit code of xdotool, which fails while no window has this title.
    const std::vector<std::string> search = {"xdotool", "search", "--onlyvisible", "--name", "^" + title + "$"};
    const bool isOver = Becomes([&] {
        ChildProcess found(search, {}, m_folder / "search-errors");
        found.WaitForEnd();
        m_window = FirstLine(found.Output());
        return !m_window.empty() || !m_program.IsRunning();
    });
    if (!isOver || m_window.empty())
        throw std::runtime_error("no window with the title " + title + ": " + Complaints());
    Xdotool({"windowactivate", "--sync", m_window});
}

void SampleInUse::Press(const std::string& keys)
{
    Xdotool({"key", keys});
}

void SampleInUse::Type(const std::string& text)
{
    Xdotool({"type", "--delay", "10", "--", text});
}

void SampleInUse::PointAt(ScreenPoint point)
{
    Xdotool({"mousemove", std::to_string(point.x), std::to_string(point.y)});
}

void SampleInUse::Click()
{
    Xdotool({"click", "1"});
}

void SampleInUse::Drag(ScreenPoint from, ScreenPoint to)
{
    PointAt(from);
    Xdotool({"mousedown", "1"});
    PointAt({(from.x + to.x) / 2, (from.y + to.y) / 2});
    PointAt(to);
    Xdotool({"mouseup", "1"});
}

std::optional<ScreenPoint> SampleInUse::Find(const std::string& colour)
{
    const TempFolder folder;
    const std::string file = folder / "screen";
    Run({"import", "-window", "root", "-depth", "8", "rgb:" + file});
    const std::string pixels = ReadFile(file);
    std::string wanted;
    for (std::size_t digits = 1; digits < colour.size(); digits += 2)
        wanted += static_cast<char>(std::stoi(colour.substr(digits, 2), nullptr, 16));

    const auto place = [](std::size_t byte) {
        const int pixel = static_cast<int>(byte / 3);
        return ScreenPoint{pixel % kScreenWidth, pixel / kScreenWidth};
    };
    std::size_t first = 0;
    while (first < pixels.size() && pixels.compare(first, 3, wanted) != 0)
        first += 3;
    if (first >= pixels.size())
        return std::nullopt;
    std::size_t last = pixels.size() - 3;
    while (pixels.compare(last, 3, wanted) != 0)
        last -= 3;
    return ScreenPoint{(place(first).x + place(last).x) / 2, (place(first).y + place(last).y) / 2};
}

void SampleInUse::Resize(int width, int height) const
{
    Xdotool({"windowsize", "--sync", m_window, std::to_string(width), std::to_string(height)});
}

void SampleInUse::Move(int x, int y) const
{
    Xdotool({"windowmove", "--sync", m_window, std::to_string(x), std::to_string(y)});
}

std::string SampleInUse::Geometry() const
{
    std::string numbers;
    for (const std::string& line : LinesOf(Run({"xwininfo", "-id", m_window}))) {
        for (const char* name : {"Absolute", "  Width", "  Height"}) {
            if (line.find(name) != std::string::npos)
                numbers += (numbers.empty() ? "" : " ") + line.substr(line.find_last_of(' ') + 1);
        }
    }
    return numbers;
}

bool SampleInUse::IsMaximised() const
{
    return Run({"xprop", "-id", m_window, "_NET_WM_STATE"}).find("MAXIMIZED_VERT") != std::string::npos;
}

std::string SampleInUse::Title() const
{
    return FirstLine(Run({"xdotool", "getwindowname", m_window}));
}

void SampleInUse::WaitForTitle(const std::string& title) const
{
    EXPECT_TRUE(Becomes([&] { return Title() == title; })) << "the title is " << Title() << ", not " << title;
}

std::string SampleInUse::ColourAt(int x, int y) const
{
    const std::string place = "1x1+" + std::to_string(x) + "+" + std::to_string(y);
    const std::string pixel = Run({"import", "-window", m_window, "-crop", place, "+repage", "-depth", "8", "txt:-"});
    const std::size_t sign = pixel.find('#', pixel.find('\n'));
    return sign == std::string::npos ? pixel : pixel.substr(sign, 7);
}

void SampleInUse::Close()
{
    Press("alt+F4");
    EXPECT_TRUE(m_program.WaitForEnd()) << "the window stays open";
    EXPECT_EQ(m_program.ExitCode(), 0) << Complaints();
}

std::string SampleInUse::Complaints() const
{
    return Shortened(ReadFile(m_folder / "errors"));
}
