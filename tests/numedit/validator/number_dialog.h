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

/// Returns how often wxBell() was called. This program replaces wxBell() with a function that only counts the calls.
int Bells();

/// A validator whose members a test can read.
class OpenValidator : public wxNumValidator
{
public:
    using wxNumValidator::m_bNumpadDecimal;
    using wxNumValidator::m_format;
    using wxNumValidator::m_pString;
    using wxNumValidator::sm_eventTable;
    using wxNumValidator::wxNumValidator;
};

void SetClipboard(const wxString& text);
wxString Clipboard();

/// Returns the fixed preset with the given decimal point. It allows two decimals and five integer digits.
CNumberFormat FixedFormat(wchar_t point = L'.');

/// Records each key that reaches any window of the program.
class KeyLog : public wxEventFilter
{
public:
    KeyLog() { wxEvtHandler::AddFilter(this); }
    ~KeyLog() override { wxEvtHandler::RemoveFilter(this); }
    KeyLog(const KeyLog&) = delete;
    KeyLog& operator=(const KeyLog&) = delete;

    int FilterEvent(wxEvent& event) override;

    /// Calls @a input, and waits until a key was pressed and all keys are released.
    void WaitForKeys(const std::function<void()>& input);

    std::vector<int> down;   ///< The key codes of the wxEVT_KEY_DOWN events.
    std::vector<int> chars;  ///< The key codes of the wxEVT_CHAR events; 0 for a character without a key code.
    std::wstring characters;

private:
    std::set<wxUint32> m_held;
    bool m_wentDown = false;
};

/// Presses keys, records them, and counts the bells that they ring.
class KeysAndBells
{
public:
    /// Types ASCII text on the keyboard, one key after the other.
    void Type(const std::string& characters);

    /// Presses the key with this key code of the toolkit.
    void Press(int keyCode, int modifiers = wxMOD_NONE);

    /// Presses a key that is given by its xdotool name or by its number on the keyboard.
    void PressRaw(const std::string& key);

    int BellsRung() const { return Bells() - m_bellsBefore; }

    KeyLog keys;

protected:
    void ResetBells() { m_bellsBefore = Bells(); }

private:
    int m_bellsBefore = Bells();
};

/// A dialog with two text controls, OK and Cancel. The second control has a validator.
class NumberDialog : public KeysAndBells
{
public:
    explicit NumberDialog(const CNumberFormat& format, wxString* value = nullptr, long style = 0);
    ~NumberDialog();
    NumberDialog(const NumberDialog&) = delete;
    NumberDialog& operator=(const NumberDialog&) = delete;

    /// Shows the dialog with @a text in the number's control. The control has the focus, and the caret is at the end.
    void Show(const wxString& text = wxString());

    /// Sets the text and the caret in a dialog that is already shown, and resets the counters.
    void Restart(const wxString& text, long caret);

    std::wstring Text() const { return number->GetValue().ToStdWstring(); }

    void ExpectTextWithoutBell(const std::wstring& text) const;

    /// Expects this text, and that one bell rang.
    void ExpectTextAndBell(const std::wstring& text) const;

    wxDialog* dialog;
    wxTextCtrl* first;
    wxTextCtrl* number;
    int textEvents = 0;  ///< The number of wxEVT_TEXT events of the number's control.
};

/// A NumberDialog that is shown.
class NumberOnScreen : public NumberDialog
{
public:
    explicit NumberOnScreen(const CNumberFormat& format, const wxString& text = wxString(), long style = 0)
        : NumberDialog(format, nullptr, style)
    {
        Show(text);
    }
};

/// Turns off the bells of all validators while the object exists.
class SilentValidators
{
public:
    SilentValidators() { wxValidator::SuppressBellOnError(true); }
    ~SilentValidators() { wxValidator::SuppressBellOnError(false); }
    SilentValidators(const SilentValidators&) = delete;
    SilentValidators& operator=(const SilentValidators&) = delete;
};

#endif
