#ifndef FITTINGS_NUMEDIT_NUM_VALIDATOR_H_
#define FITTINGS_NUMEDIT_NUM_VALIDATOR_H_

#include <wx/event.h>
#include <wx/string.h>
#include <wx/validate.h>

#include <fittings/base/export.h>
#include <fittings/numedit/number_format.h>

/// Lets the user type only a number into a wxTextCtrl, checks the text, and transfers it to and from the host's text.
///
/// @code
/// wxString price = "9.95";
/// field->SetValidator(wxNumValidator(CNumberFormat(eFixedFormat), &price));
/// if (dialog.ShowModal() == wxID_OK)
///     Buy(price);
/// @endcode
///
/// While the user types, a character is refused with a bell if the text would no longer be a number or the beginning of
/// a number. Bounds are checked at each character too: with a lowest value of 10, "1" is refused, so "12" cannot be
/// typed. With some bounds, every number within the bounds can be typed: CNumberFormat lists these bounds. A refused
/// key changes nothing: the selected text stays selected, and no event is sent. Keys that are not characters
/// (Backspace, Delete, Tab, Enter, arrows, Control with a letter from A to Z) are never refused, whatever text results.
/// The validator never formats the text; CNumberEditUtils::FormatControlText() does that.
///
/// Pasted or dropped text, text that an input method inserts without a key event, and text that the program sets are
/// not checked when they are inserted. Validate() and TransferFromWindow() check them, so OK closes a dialog only if
/// the format accepts the text.
///
/// Validate() and TransferFromWindow() accept what CNumberEditUtils::ValidateString() accepts. This includes the
/// beginning of a number: the empty text; "-" and "+" if the format accepts a sign; "." and "1." if the format accepts
/// decimals; "1e-" if the format accepts an exponent. The value must be within the bounds; a text without digits has
/// the value 0. A program that needs a number must check for a complete number, for example with wxString::ToCDouble().
///
/// If the keypad's decimal key is reported as WXK_NUMPAD_DECIMAL, the key types the format's decimal point and not the
/// character of the keyboard layout. If the layout gives the key another code, such as WXK_NUMPAD_SEPARATOR in the
/// German layout, the key types the layout's character. That character is checked like any other.
///
/// wxNumberCtrl does more than this validator: it accepts the beginning of each number within any bounds, checks pasted
/// text, formats the number, changes it in steps, and returns a `double`. wxDecimalValidator works on every
/// wxTextEntry.
///
/// A derived class must override Clone(); otherwise the control's validator is a plain wxNumValidator. The toolkit's
/// class information does not distinguish this class from wxValidator: use dynamic_cast. The host may set another
/// validator on the control while this validator handles a key.
///
/// Only for single-line wxTextCtrl controls. On any other window, such as a wxComboBox, typing is not checked, and
/// Validate() asserts and returns false. A transfer does the same if the value is not null. GUI thread only.
class FITTINGS_API wxNumValidator : public wxValidator
{
public:
    /// Copies @a format. @a value is not owned and must outlive the validator and each control that the validator was
    /// set on. If @a value is null, nothing is transferred.
    wxNumValidator(const CNumberFormat& format, wxString* value);

    /// Copies the format and the pointer to the value, but neither the window nor the state of the keypad key.
    wxNumValidator(const wxNumValidator& other);

    ~wxNumValidator() override;

    /// Returns a new validator made by the copy constructor; the caller owns it. wxWindow::SetValidator() calls this.
    wxObject* Clone() const override;

    /// Returns the validator's own copy of its format.
    const CNumberFormat& GetFormat() const;

    /// Returns whether the validator is set on a wxTextCtrl.
    bool CheckValidator() const;

    /// Returns whether the format accepts the whole text as a number or as the beginning of one: see the class. If not,
    /// moves the focus to the control.
    ///
    /// A disabled control is always valid. Shows no message and rings no bell. @a parent is not used.
    bool Validate(wxWindow* parent) override;

    /// Puts the host's text into the control without checking or formatting it. The control sends wxEVT_TEXT.
    ///
    /// With a null value, does nothing and returns true. Otherwise returns CheckValidator().
    bool TransferToWindow() override;

    /// Copies the control's text to the host's text if the format accepts the control's text. Otherwise leaves the
    /// host's text unchanged and returns false.
    ///
    /// Unlike Validate(), checks a disabled control too. With a null value, does nothing and returns true.
    bool TransferFromWindow() override;

    /// Refuses a character if the text would no longer be a number or the beginning of a number. After a refusal, rings
    /// the bell unless wxValidator::IsSilent() is true, and restores the selection that the control has deleted for the
    /// character. Bound to wxEVT_CHAR.
    ///
    /// The function checks key codes 32 to 300 except WXK_DELETE, and characters that have only a Unicode value.
    /// Modifiers do not matter: a letter with Alt is checked too, unless a menu or a label uses this key combination.
    /// If text is selected, the selection is assumed to begin at the insertion point.
    ///
    /// @throws std::out_of_range if the control, for example one of a derived class, returns an insertion point beyond
    ///     the text.
    void OnChar(wxKeyEvent& event);

    /// Records for OnChar() whether the key is the keypad's decimal key. If the control then deletes text to
    /// insert a character, the deleted text is kept, so that OnChar() can restore it. Bound to wxEVT_KEY_DOWN.
    void OnKeyDown(wxKeyEvent& event);

protected:
    CNumberFormat m_format;         ///< A copy of the host's format.
    wxString* m_pString;            ///< The host's text, not owned; may be null.
    bool m_bNumpadDecimal = false;  ///< True if the last key pressed was the keypad's decimal key.

    wxDECLARE_EVENT_TABLE();
};

#endif
