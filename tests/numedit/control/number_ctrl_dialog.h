#ifndef FITTINGS_TESTS_NUMEDIT_CONTROL_NUMBER_CTRL_DIALOG_H_
#define FITTINGS_TESTS_NUMEDIT_CONTROL_NUMBER_CTRL_DIALOG_H_

#include <string>
#include <vector>

#include <wx/dialog.h>
#include <wx/textctrl.h>

#include <fittings/numedit/number_ctrl.h>

#include <tests/numedit/validator/number_dialog.h>

/// A dialog with a plain text field, a wxNumberCtrl, OK and Cancel. The constructor shows the dialog and gives
/// the focus to the number control.
class NumberCtrlDialog : public KeysAndBells
{
public:
    explicit NumberCtrlDialog(const CNumberFormat& format, const wxValidator& validator = wxDefaultValidator,
                              long style = 0);
    ~NumberCtrlDialog();
    NumberCtrlDialog(const NumberCtrlDialog&) = delete;
    NumberCtrlDialog& operator=(const NumberCtrlDialog&) = delete;

    /// Moves the focus away from the number control, or to it.
    /// @{
    void Leave();
    void Enter();
    /// @}

    /// Shows a number with the caret at its end, and resets the counters.
    void Restart(const wxString& decimal);

    /// Puts a text on the clipboard and presses Ctrl+V.
    void Paste(const wxString& text);

    /// Puts a text into the plain text field, gives it the focus, and selects the text.
    void SelectInFirst(const wxString& text);

    /// Returns the middle of the number control, in screen coordinates.
    wxPoint Middle() const;

    std::wstring Text() const { return number->GetValue().ToStdWstring(); }
    std::string Selection() const { return number->GetStringSelection().utf8_string(); }

    wxDialog* dialog;
    wxTextCtrl* first;
    wxNumberCtrl* number;
    int textEvents = 0;                ///< the number of wxEVT_TEXT events of the number control
    std::vector<std::string> numbers;  ///< the values of the wxEVT_NUMBER_CHANGED events
};

/// Returns the fixed preset with the given bounds.
CNumberFormat Bounded(double min, double max);

#endif
