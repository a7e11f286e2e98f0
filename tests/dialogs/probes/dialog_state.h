#ifndef FITTINGS_TESTS_DIALOGS_PROBES_DIALOG_STATE_H_
#define FITTINGS_TESTS_DIALOGS_PROBES_DIALOG_STATE_H_

#include <string>

class wxFrame;

/// A frame for a dialog to stand on, whose place is printed for whoever reads this program's output:
///
///   frame X Y WIDTH HEIGHT
///
/// Null when it does not come up.
wxFrame* ShowParent();

/// Prints, for as long as it lives, what state the process's file or folder dialog is in, at every change:
///
///   state ACTIVE FOCUS POPUP ACCEPT FOLDER FILE TEXT MESSAGE
///
/// The fields stand behind tabs: "active" when the dialog has the input focus, else "inactive"; the kind of widget that
/// has it within the dialog; "popup" while a list of completions is shown; "accept" while the button that accepts can
/// be pressed; the folder shown; the file or folder that would be chosen now; the text of the entry when that has the
/// focus; and, while there is a message, "active" or "inactive" for its window, and its text.
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
