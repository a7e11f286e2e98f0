#ifndef FITTINGS_TESTS_SAMPLES_SAMPLE_IN_USE_H_
#define FITTINGS_TESTS_SAMPLES_SAMPLE_IN_USE_H_

#include <optional>
#include <string>

#include <tests/support/process/child_process.h>
#include <tests/support/temp_folder.h>

struct ScreenPoint
{
    int x;
    int y;
};

/// A user's home folder and settings, which are kept between two runs of a sample.
struct Person
{
    TempFolder home;
    TempFolder data;

    /// Returns the path of a file that the sample stores, such as settings.ini.
    std::string PathOf(const std::string& sample, const std::string& file) const
    {
        return data / ("sample-" + sample + "/" + file);
    }
    std::string FileOf(const std::string& sample, const std::string& file) const
    {
        return ReadFile(PathOf(sample, file));
    }
};

/// One run of a sample, whose window the test operates with mouse and keyboard. An action that is impossible, for
/// example on a closed window, throws an exception and so ends the test.
class SampleInUse
{
public:
    /// Starts the sample, finds its window by the title, and returns when the window has the input focus.
    SampleInUse(const std::string& sample, const std::string& title, const Person& person);

    static void Press(const std::string& keys);
    static void Type(const std::string& text);
    static void PointAt(ScreenPoint point);
    static void Click();
    static void Drag(ScreenPoint from, ScreenPoint to);

    /// Returns the point midway between the first and the last pixel of the screen that have this colour ("#RRGGBB").
    /// For a rectangle, this is its centre. Returns nothing if no pixel has the colour.
    static std::optional<ScreenPoint> Find(const std::string& colour);

    void Resize(int width, int height) const;
    void Move(int x, int y) const;

    /// Returns the screen geometry of the window without its decorations: "x y width height".
    std::string Geometry() const;
    bool IsMaximised() const;
    std::string Title() const;
    void WaitForTitle(const std::string& title) const;

    /// Returns the colour of a pixel of the window as "#RRGGBB". The position is relative to the window's top left
    /// corner.
    std::string ColourAt(int x, int y) const;

    /// Closes the window with Alt+F4, and expects the program to end with the exit code 0.
    void Close();

private:
    /// Returns the sample's error output, or the beginning of a long one.
    std::string Complaints() const;

    TempFolder m_folder;
    ChildProcess m_program;
    std::string m_window;
};

#endif
