#include <tests/dialogs/driven_dialog.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include <gtest/gtest.h>

#include <tests/support/becomes.h>
#include <tests/support/xdotool.h>

namespace {

struct Rect
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

Rect RectOf(const std::string& window)
{
    Rect rect;
    for (const std::string& line : LinesOf(Xdotool({"getwindowgeometry", "--shell", window}))) {
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

DialogState StateFrom(const std::string& text)
{
    std::vector<std::string> fields;
    std::istringstream line(text);
    for (std::string field; std::getline(line, field, '\t');)
        fields.push_back(field);
    fields.resize(8);
    DialogState state;
    state.isActive = fields[0] == "active";
    state.focus = fields[1];
    state.hasPopup = fields[2] == "popup";
    state.canAccept = fields[3] == "accept";
    state.folder = fields[4];
    state.file = fields[5];
    state.text = fields[6];
    state.message = fields[7];
    return state;
}

}  // namespace

std::string HomeFolder()
{
    const char* const home = std::getenv("HOME");
    return home ? home : "";
}

DrivenDialog::DrivenDialog(const std::vector<std::string>& command, const std::string& title,
                           const std::map<std::string, std::optional<std::string>>& environment)
    : m_child(command, environment)
{
    WaitFor("a dialog", [](const DialogState& state) { return !state.focus.empty(); });
    if (!m_child.IsRunning())
        return;
    // On Wayland no other program can find the dialog, and the dialog gets the input focus by itself.
    if (std::getenv("WAYLAND_DISPLAY")) {
        WaitFor("the input focus", [](const DialogState& state) { return state.isActive || !state.message.empty(); });
        return;
    }
    const std::string windows = Xdotool({"search", "--sync", "--onlyvisible", "--name", "^" + title + "$"});
    m_window = windows.substr(0, windows.find('\n'));
    if (!State().message.empty())
        return;
    Xdotool({"windowactivate", "--sync", m_window});
    WaitFor("the input focus", [](const DialogState& state) { return state.isActive || !state.message.empty(); });
}

void DrivenDialog::Press(const std::string& key)
{
    Xdotool({"key", key});
}

void DrivenDialog::Type(const std::string& text)
{
    Press("ctrl+a");
    Xdotool({"type", "--delay", "10", text});
}

void DrivenDialog::TypePath(const std::string& path)
{
    const auto isInEntry = [](const DialogState& state) {
        return state.isActive && state.focus == "GtkFileChooserEntry" && !state.hasPopup;
    };
    Press("ctrl+l");
    WaitFor("the entry", isInEntry);
    Type(path);
    WaitFor(path + " as understood", [&](const DialogState& state) {
        // The entry may have added a separator to a folder's path.
        return isInEntry(state) && state.canAccept && state.file == path &&
               (state.text == path || state.text == path + "/");
    });
}

void DrivenDialog::WaitFor(const std::string& what, const std::function<bool(const DialogState&)>& isThere)
{
    bool isHere = false;
    const auto isDecided = [&] {
        isHere = isThere(State());
        return isHere || !m_child.IsRunning();
    };
    if (!Becomes(isDecided) || !isHere)
        ADD_FAILURE() << "the state did not appear: " << what << "\n" << m_child.Output();
}

std::string DrivenDialog::Message()
{
    const std::string active = "active ";
    WaitFor("a message", [&](const DialogState& state) { return state.message.compare(0, 7, active) == 0; });
    const std::string message = State().message;
    return message.substr(std::min(message.size(), active.size()));
}

void DrivenDialog::WaitForNoMessage()
{
    WaitFor("the dialog again", [](const DialogState& state) { return state.message.empty() && state.isActive; });
}

bool DrivenDialog::HadMessage() const
{
    const std::vector<std::string> states = m_child.Lines("state\t");
    return std::any_of(states.begin(), states.end(),
                       [](const std::string& line) { return !StateFrom(line).message.empty(); });
}

DialogState DrivenDialog::State() const
{
    return StateFrom(LastLine("state\t"));
}

std::string DrivenDialog::Chosen()
{
    EXPECT_TRUE(m_child.WaitForEnd(15000)) << "still open\n" << m_child.Output();
    EXPECT_EQ(m_child.ExitCode(), 0) << m_child.Output();
    const std::vector<std::string> chosen = m_child.Lines("chosen ");
    return chosen.empty() ? "(no answer)" : chosen.back();
}

std::string DrivenDialog::ChosenBy(const std::string& key)
{
    Press(key);
    return Chosen();
}

void DrivenDialog::ExpectCentred() const
{
    std::istringstream line(LastLine("frame "));
    Rect parent;
    line >> parent.x >> parent.y >> parent.width >> parent.height;
    const Rect window = RectOf(m_window);
    // Compare twice the distance between the centres, because the distance itself can end in a half.
    const int right = 2 * window.x + window.width - 2 * parent.x - parent.width;
    const int down = 2 * window.y + window.height - 2 * parent.y - parent.height;
    EXPECT_NEAR(right, 0, 8);
    // Only one of the two rectangles includes a title bar, so the vertical difference may be larger.
    EXPECT_NEAR(down, 0, 100);
}

std::string DrivenDialog::LastLine(const std::string& start) const
{
    const std::vector<std::string> lines = m_child.Lines(start);
    return lines.empty() ? std::string() : lines.back();
}
