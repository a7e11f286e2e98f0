#ifndef FITTINGS_TESTS_NUMEDIT_VALIDATOR_NUMBER_DIALOG_H_
#define FITTINGS_TESTS_NUMEDIT_VALIDATOR_NUMBER_DIALOG_H_

#include <functional>
#include <set>
#include <string>
#include <vector>

#include <wx/dialog.h>
#include <wx/eventfilter.h>
#include <wx/textctrl.h>

#include <fittings/numedit/num_validator.h>

/// How often the toolkit's bell has rung. This program's wxBell() counts, and stays silent.
int Bells();

/// A validator whose members are seen from outside.
class OpenValidator : public wxNumValidator
{
public:
    using wxNumValidator::m_bNumpadDecimal;
    using wxNumValidator::m_format;
    using wxNumValidator::m_pString;
    using wxNumValidator::sm_eventTable;
    using wxNumValidator::wxNumValidator;
};

/// Two decimals, five integer digits, and the given decimal point.
CNumberFormat FixedFormat(wchar_t point = L'.');

/// Notes each key that reaches the program, in whichever window.
class KeyLog : public wxEventFilter
{
public:
    KeyLog() { wxEvtHandler::AddFilter(this); }
    ~KeyLog() override { wxEvtHandler::RemoveFilter(this); }
    KeyLog(const KeyLog&) = delete;
    KeyLog& operator=(const KeyLog&) = delete;

    int FilterEvent(wxEvent& event) override;

    /// Performs some input, and waits until a key has gone down and all are up again.
    void WaitForKeys(const std::function<void()>& input);

    std::vector<int> down;   ///< The codes of the keys that went down.
    std::vector<int> chars;  ///< The codes of the characters: 0 for those that the toolkit gives none.
    std::wstring characters;

private:
    std::set<wxUint32> m_held;
    bool m_wentDown = false;
};

/// A dialog on the screen with two text controls, the second one under a validator, and OK and Cancel.
class NumberDialog
{
public:
    explicit NumberDialog(const CNumberFormat& format, wxString* value = nullptr, long style = 0);
    ~NumberDialog();
    NumberDialog(const NumberDialog&) = delete;
    NumberDialog& operator=(const NumberDialog&) = delete;

    /// Shows the dialog with the caret behind @a text in the number's control.
    void Show(const wxString& text = wxString());

    /// The same again in a dialog that is on the screen already. Forgets what was counted.
    void Restart(const wxString& text, long caret);

    /// Types on the keyboard, one key after the other. ASCII only.
    void Type(const std::string& characters);

    /// Presses a key of the toolkit's code.
    void Press(int keyCode, int modifiers = wxMOD_NONE);

    /// Presses a key as xdotool names it, or by its number on the keyboard.
    void PressRaw(const std::string& key);

    std::wstring Text() const { return number->GetValue().ToStdWstring(); }
    int BellsRung() const { return Bells() - m_bellsBefore; }

    wxDialog* dialog;
    wxTextCtrl* first;
    wxTextCtrl* number;
    int textEvents = 0;  ///< wxEVT_TEXT of the number's control
    KeyLog keys;

private:
    int m_bellsBefore;
};

/// Turns the bells of all validators off for as long as it lives.
class SilentValidators
{
public:
    SilentValidators() { wxValidator::SuppressBellOnError(true); }
    ~SilentValidators() { wxValidator::SuppressBellOnError(false); }
    SilentValidators(const SilentValidators&) = delete;
    SilentValidators& operator=(const SilentValidators&) = delete;
};

#endif
