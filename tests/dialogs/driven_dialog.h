#ifndef FITTINGS_TESTS_DIALOGS_DRIVEN_DIALOG_H_
#define FITTINGS_TESTS_DIALOGS_DRIVEN_DIALOG_H_

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <tests/support/process/child_process.h>

/// Returns the home folder of the test. By default, the program with the dialog has the same home folder.
std::string HomeFolder();

/// The last state that the program with the dialog has printed. DialogProbe describes the fields.
struct DialogState
{
    bool isActive = false;
    std::string focus;
    bool hasPopup = false;
    bool canAccept = false;
    std::string folder;
    std::string file;
    std::string text;
    std::string message;
};

/// A program that shows a file or folder dialog, and a simulated user of the dialog. Before a test sends a key, the
/// test waits until the program has printed the state in which the dialog is ready for the key. The dialog reads
/// folders in the background, so a Return that comes too early is lost.
class DrivenDialog
{
public:
    /// Starts the program. On X11, finds the dialog by its title. Returns when the dialog has the input focus or shows
    /// a message.
    DrivenDialog(const std::vector<std::string>& command, const std::string& title,
                 const std::map<std::string, std::optional<std::string>>& environment = {});

    static void Press(const std::string& key);

    /// Replaces the text of the entry that has the focus.
    static void Type(const std::string& text);

    /// Opens the location entry and types a path. Waits until the dialog would choose that path if it were accepted.
    void TypePath(const std::string& path);

    /// Waits until @a isThere returns true for the state. Fails the test if this does not happen; the failure message
    /// contains @a what.
    void WaitFor(const std::string& what, const std::function<bool(const DialogState&)>& isThere);

    /// Waits for a message and returns its text.
    std::string Message();

    /// Returns whether the dialog has shown a message at any time.
    bool HadMessage() const;

    /// Waits until there is no message and the dialog has the input focus again.
    void WaitForNoMessage();

    DialogState State() const;

    /// Waits until the dialog has closed, and returns the chosen path.
    std::string Chosen();

    /// Presses a key that closes the dialog, and returns the chosen path.
    std::string ChosenBy(const std::string& key);

    /// Fails the test unless the dialog is centred on its parent.
    void ExpectCentred() const;

private:
    std::string LastLine(const std::string& start) const;

    ChildProcess m_child;
    std::string m_window;
};

#endif
