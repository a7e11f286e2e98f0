#ifndef FITTINGS_TESTS_SAMPLES_SAMPLE_IN_USE_H_
#define FITTINGS_TESTS_SAMPLES_SAMPLE_IN_USE_H_

#include <optional>
#include <string>

#include <tests/support/process/child_process.h>
#include <tests/support/temp_folder.h>

/// A point of the screen.
struct ScreenPoint
{
    int x;
    int y;
};

/// The home folder and the settings of the person in front of a sample, kept from one start to the next.
struct Person
{
    TempFolder home;
    TempFolder data;

    /// The path of a file that the sample keeps, such as settings.ini.
    std::string PathOf(const std::string& sample, const std::string& file) const
    {
        return data / ("sample-" + sample + "/" + file);
    }
    std::string FileOf(const std::string& sample, const std::string& file) const
    {
        return ReadFile(PathOf(sample, file));
    }
};

/// One run of a sample, and the person who uses its window with mouse and keyboard. What cannot be done, as with a
/// window that is gone, ends the test by an exception.
class SampleInUse
{
public:
    /// Starts it, and returns when its window, found by its title, has the input focus.
    SampleInUse(const std::string& sample, const std::string& title, const Person& person);

    static void Press(const std::string& keys);
    static void Type(const std::string& text);
    static void PointAt(ScreenPoint point);
    static void Click();
    static void Drag(ScreenPoint from, ScreenPoint to);

    /// The middle of all that the screen shows in a colour, given as "#RRGGBB"; none when the colour is not there.
    static std::optional<ScreenPoint> Find(const std::string& colour);

    void Resize(int width, int height) const;
    void Move(int x, int y) const;

    /// The window without its decorations on the screen: "x y width height".
    std::string Geometry() const;
    bool IsMaximised() const;
    std::string Title() const;
    void WaitForTitle(const std::string& title) const;

    /// The colour of a pixel of the window, counted from its top left corner, as "#RRGGBB".
    std::string ColourAt(int x, int y) const;

    /// Closes the window by the window manager, and expects the program to end well.
    void Close();

private:
    /// What the sample has said of errors, when that is long the beginning.
    std::string Complaints() const;

    TempFolder m_folder;
    ChildProcess m_program;
    std::string m_window;
};

#endif
