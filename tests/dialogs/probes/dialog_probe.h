#ifndef FITTINGS_TESTS_DIALOGS_PROBES_DIALOG_PROBE_H_
#define FITTINGS_TESTS_DIALOGS_PROBES_DIALOG_PROBE_H_

#include <string>

#include <wx/app.h>

class wxWindow;

/// A program that shows a dialog over a frame, for a test that sends keys to the dialog. The program's first argument
/// is the folder of the settings. The program prints these lines:
///
///   frame X Y WIDTH HEIGHT   the place of the frame
///   state FIELD...           the state of the dialog, at every change
///   chosen PATH              the chosen path, after the dialog has closed
///
/// Tabs separate the eight fields of a state:
///
///   1. "active" if the dialog has the input focus, otherwise "inactive"
///   2. the type of the focused widget, or "none"
///   3. "popup" while a list of completions is shown
///   4. "accept" while the accepting button can be pressed
///   5. the folder that the dialog shows
///   6. the file or folder that would be chosen now
///   7. the text of the focused entry
///   8. while a message is shown: "active" or "inactive" for the message's window, and the text of the message
///
/// A field that does not apply is empty.
class DialogProbe : public wxApp
{
public:
    bool OnInit() override;
    int OnRun() override;

protected:
    /// Returns the program's argument @a index; empty if there is no such argument.
    std::wstring Argument(int index) const;

private:
    /// Shows the dialog and returns the chosen path.
    virtual std::wstring Ask(wxWindow* parent) = 0;
};

#endif
