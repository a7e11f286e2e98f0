#ifndef FITTINGS_TESTS_DIALOGS_PROBES_DIALOG_PROBE_H_
#define FITTINGS_TESTS_DIALOGS_PROBES_DIALOG_PROBE_H_

#include <string>

#include <wx/app.h>

class wxWindow;

/// A program that shows a dialog over a frame, for a test that sends it keys. Its first argument is the folder of the
/// settings. It prints the place of the frame:
///
///   frame X Y WIDTH HEIGHT
///
/// then the state of the dialog at every change:
///
///   state ACTIVE FOCUS POPUP ACCEPT FOLDER FILE TEXT MESSAGE
///
/// Tabs separate the fields: "active" when the dialog has the input focus, else "inactive"; the kind of the focused
/// widget; "popup" while a list of completions is shown; "accept" while the accepting button can be pressed; the folder
/// shown; the file or folder that would be chosen now; the text of the entry while that has the focus; and, while there
/// is a message, "active" or "inactive" for its window, and its text. At its end it prints
///
///   chosen PATH
class DialogProbe : public wxApp
{
public:
    bool OnInit() override;
    int OnRun() override;

protected:
    /// Returns the argument with this number; empty when there is no such argument.
    std::wstring Argument(int index) const;

private:
    /// Shows the dialog and returns the chosen path.
    virtual std::wstring Ask(wxWindow* parent) = 0;
};

#endif
