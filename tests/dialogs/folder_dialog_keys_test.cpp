// The folder dialog as a user meets it: shown by a program of its own, and sent keys.

#include <fittings/dialogs/folder_dialog.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <tests/support/child_process.h>
#include <tests/support/temp_folder.h>

namespace {

struct Rect
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

std::string Xdotool(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "xdotool");
    return RunChild(arguments);
}

// A program that shows the dialog. Keys are sent only once it has said that it is ready for them: the dialog reads
// folders in the background, and a Return that comes too early is lost.
class Dialog
{
public:
    Dialog(const std::vector<std::string>& arguments, const std::string& title) : m_child(Command(arguments))
    {
        EXPECT_TRUE(WaitUntil([&] { return IsState("state inactive ") || IsState("state active "); })) << "not shown";
        m_window = Xdotool({"search", "--sync", "--onlyvisible", "--name", "^" + title + "$"});
        m_window = m_window.substr(0, m_window.find('\n'));
        Xdotool({"windowactivate", "--sync", m_window});
        EXPECT_TRUE(WaitUntil([&] { return IsState("state active "); })) << "not active";
    }

    void Press(const std::string& key) { Xdotool({"key", key}); }

    /// Goes to the home folder. A dialog that was given no folder starts among the files used last, where its Open button
    /// is dead, whatever is typed.
    void GoHome()
    {
        Press("alt+Home");
        WaitForFolder(std::getenv("HOME"));
    }

    /// Opens the location entry and types a path; returns when the dialog has understood it.
    void TypePath(const std::string& path)
    {
        Press("ctrl+l");
        EXPECT_TRUE(WaitUntil([&] { return IsState("state active GtkFileChooserEntry no-popup "); })) << "no entry";
        Press("ctrl+a");
        Xdotool({"type", "--delay", "10", path});
        // The entry may have put a separator behind the folder.
        EXPECT_TRUE(WaitUntil([&] {
            const std::string ready = "state active GtkFileChooserEntry no-popup open " + path + "|" + path;
            return LastState() == ready || LastState() == ready + "/";
        })) << path
            << " is not understood";
    }

    void WaitForFolder(const std::string& folder)
    {
        EXPECT_TRUE(WaitUntil([&] { return LastState().find(" no-popup open " + folder + "|") != std::string::npos; }))
            << folder << " is not shown";
    }

    /// What the dialog gave once it has closed.
    std::string Chosen()
    {
        EXPECT_TRUE(m_child.WaitForEnd(10000)) << "still open\n" << m_child.Output();
        EXPECT_EQ(m_child.ExitCode(), 0);
        const std::string line = LastLine("chosen ");
        return line.empty() ? "(nothing)" : line.substr(7);
    }

    Rect ParentRect() const
    {
        std::istringstream line(LastLine("frame "));
        std::string word;
        Rect rect;
        line >> word >> rect.x >> rect.y >> rect.width >> rect.height;
        return rect;
    }

    Rect WindowRect() const
    {
        Rect rect;
        std::istringstream lines(Xdotool({"getwindowgeometry", "--shell", m_window}));
        for (std::string line; std::getline(lines, line);) {
            const std::size_t sign = line.find('=');
            const std::string name = line.substr(0, sign);
            const int value = std::stoi(line.substr(sign + 1));
            if (name == "X")
                rect.x = value;
            else if (name == "Y")
                rect.y = value;
            else if (name == "WIDTH")
                rect.width = value;
            else if (name == "HEIGHT")
                rect.height = value;
        }
        return rect;
    }

private:
    static std::vector<std::string> Command(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), FOLDER_DIALOG_PROBE);
        return arguments;
    }

    bool WaitUntil(const std::function<bool()>& done)
    {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(15);
        while (!done()) {
            if (!m_child.IsRunning() || std::chrono::steady_clock::now() > deadline) {
                ADD_FAILURE() << m_child.Output();
                return false;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return true;
    }

    std::string LastLine(const std::string& start) const
    {
        std::istringstream lines(m_child.Output());
        std::string last;
        for (std::string line; std::getline(lines, line);) {
            if (line.compare(0, start.size(), start) == 0)
                last = line;
        }
        return last;
    }

    std::string LastState() const { return LastLine("state "); }
    bool IsState(const std::string& start) const { return LastState().compare(0, start.size(), start) == 0; }

    ChildProcess m_child;
    std::string m_window;
};

class FolderDialogByKeys : public testing::Test
{
protected:
    FolderDialogByKeys()
    {
        std::filesystem::create_directories(m_folders / "plain");
        std::filesystem::create_directories(m_folders / "other");
        std::filesystem::create_directories(m_folders / NOT_ASCII);
    }

    static constexpr const char* NOT_ASCII = "\xE5\xB8\xB3\xE7\xB0\xBF \xC3\xA4\xF0\x9F\x93\x92";

    const TempFolder m_settings;
    const TempFolder m_folders;
};

TEST_F(FolderDialogByKeys, GivesTheFolderTyped)
{
    Dialog dialog({m_settings.Path(), "modal", "Choose one"}, "Choose one");
    dialog.GoHome();
    dialog.TypePath(m_folders / "plain");
    dialog.Press("Return");
    EXPECT_EQ(dialog.Chosen(), m_folders / "plain");
}

TEST_F(FolderDialogByKeys, GivesTheFolderTypedInPlaceOfTheStart)
{
    Dialog dialog({m_settings.Path(), "modal", "Choose one", m_folders / NOT_ASCII}, "Choose one");
    dialog.WaitForFolder(m_folders / NOT_ASCII);
    dialog.TypePath(m_folders / "other");
    dialog.Press("Return");
    EXPECT_EQ(dialog.Chosen(), m_folders / "other");
}

TEST_F(FolderDialogByKeys, GivesTheFolderItStartsIn)
{
    Dialog dialog({m_settings.Path(), "modal", "Choose one", m_folders / NOT_ASCII}, "Choose one");
    dialog.WaitForFolder(m_folders / NOT_ASCII);
    dialog.Press("alt+o");
    EXPECT_EQ(dialog.Chosen(), m_folders / NOT_ASCII);
}

TEST_F(FolderDialogByKeys, GivesNothingAfterEscape)
{
    Dialog dialog({m_settings.Path(), "modal", "Choose one", m_folders / "plain"}, "Choose one");
    dialog.WaitForFolder(m_folders / "plain");
    dialog.Press("Escape");
    EXPECT_EQ(dialog.Chosen(), "");
}

TEST_F(FolderDialogByKeys, RemembersTheFolderChosen)
{
    const std::vector<std::string> command{m_settings.Path(), "reg", "Choose one", "Import"};
    {
        Dialog dialog(command, "Choose one");
        dialog.GoHome();
        dialog.TypePath(m_folders / "other");
        dialog.Press("Return");
        EXPECT_EQ(dialog.Chosen(), m_folders / "other");
    }
    {
        Dialog dialog(command, "Choose one");
        dialog.WaitForFolder(m_folders / "other");
        dialog.Press("Escape");
        EXPECT_EQ(dialog.Chosen(), "");
    }
    Dialog dialog(command, "Choose one");
    dialog.WaitForFolder(m_folders / "other");
    dialog.Press("alt+o");
    EXPECT_EQ(dialog.Chosen(), m_folders / "other");
}

TEST_F(FolderDialogByKeys, BearsARememberedFolderThatIsGone)
{
    const std::vector<std::string> command{m_settings.Path(), "reg", "Choose one", "Import"};
    {
        Dialog dialog(command, "Choose one");
        dialog.GoHome();
        dialog.TypePath(m_folders / "plain");
        dialog.Press("Return");
        EXPECT_EQ(dialog.Chosen(), m_folders / "plain");
    }
    std::filesystem::remove(m_folders / "plain");
    Dialog dialog(command, "Choose one");
    dialog.GoHome();
    dialog.TypePath(m_folders / "other");
    dialog.Press("Return");
    EXPECT_EQ(dialog.Chosen(), m_folders / "other");
}

TEST_F(FolderDialogByKeys, StandsInTheMiddleOfItsParent)
{
    Dialog dialog({m_settings.Path(), "modal", "Choose one", m_folders / "plain"}, "Choose one");
    const Rect parent = dialog.ParentRect();
    const Rect window = dialog.WindowRect();
    EXPECT_NEAR(window.x + window.width / 2, parent.x + parent.width / 2, 4);
    // The title bars take their part of the height, above the one window and within the other's rectangle.
    EXPECT_NEAR(window.y + window.height / 2, parent.y + parent.height / 2, 50);
    dialog.Press("Escape");
    EXPECT_EQ(dialog.Chosen(), "");
}

}  // namespace
