#ifndef FITTINGS_TESTS_DIALOGS_PROBES_DIALOG_STATE_H_
#define FITTINGS_TESTS_DIALOGS_PROBES_DIALOG_STATE_H_

#include <string>

class wxFrame;

/// Shows a frame as the parent of a dialog, and prints its place:
///
///   frame X Y WIDTH HEIGHT
///
/// Returns null when the frame does not appear.
wxFrame* ShowParent();

/// Prints the state of the process's file or folder dialog at every change, while this object exists:
///
///   state ACTIVE FOCUS POPUP ACCEPT FOLDER FILE TEXT MESSAGE
///
/// Tabs separate the fields: "active" when the dialog has the input focus, else "inactive"; the kind of the focused
/// widget; "popup" while a list of completions is shown; "accept" while the accepting button can be pressed; the folder
/// shown; the file or folder that would be chosen now; the text of the entry while that has the focus; and, while there
/// is a message, "active" or "inactive" for its window, and its text.
class StatePrinter
{
public:
    StatePrinter();
    ~StatePrinter();
    StatePrinter(const StatePrinter&) = delete;
    StatePrinter& operator=(const StatePrinter&) = delete;

private:
    static int Print(void* printer);

    unsigned m_timer;
    std::string m_last;
};

void PrintLine(const std::string& line);

#endif
