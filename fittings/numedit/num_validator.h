#ifndef FITTINGS_NUMEDIT_NUM_VALIDATOR_H_
#define FITTINGS_NUMEDIT_NUM_VALIDATOR_H_

#include <wx/event.h>
#include <wx/string.h>
#include <wx/validate.h>

#include <fittings/base/export.h>
#include <fittings/numedit/number_format.h>

/// Lets only a number be typed into a wxTextCtrl, checks it, and carries it to and from the host's text.
///
/// @code
/// wxString price = "9.95";
/// field->SetValidator(wxNumValidator(CNumberFormat(eFixedFormat), &price));
/// if (dialog.ShowModal() == wxID_OK)
///     Buy(price);
/// @endcode
///
/// While the user types, a character that would leave something else than a number or the beginning of one is refused
/// with a bell. Bounds are checked at each character too: with a lowest value of 10, "1" is refused, and so "12" cannot
/// be typed. CNumberFormat says with which bounds every number within them can be. A refused key changes nothing: what
/// was selected is there again and selected, and no event tells of it. Keys that are no characters (Backspace, Delete,
/// Tab, Enter, arrows, Control with a letter from A to Z) are never refused, whatever text they leave behind. The text
/// is never formatted: CNumberEditUtils::FormatControlText() does.
///
/// A pasted or dropped text, what an input method brings in without a key of the control's, and what the program sets
/// go in unchecked. Validate() and TransferFromWindow() see to it that no dialog ends with a text that the format does
/// not accept.
///
/// They accept what CNumberEditUtils::ValidateString() accepts, and so the beginning of a number, too: the empty text,
/// "-", "+", "." where decimals are accepted, "1." and "1e-". A program that needs a value looks whether the text has
/// one, by wxString::ToCDouble() for example.
///
/// The keypad's decimal key types the format's decimal point, whatever the keyboard layout would make of it, where the
/// key is reported as WXK_NUMPAD_DECIMAL. Where the layout gives the key another code (the German one, for example,
/// WXK_NUMPAD_SEPARATOR), it types the layout's own character, which is judged like any other.
///
/// wxNumberCtrl can what this validator cannot: it takes the beginning of each number within any bounds, judges what is
/// pasted, formats, steps, and gives a `double`. wxDecimalValidator works on every wxTextEntry.
///
/// A derived class overrides Clone(), or the control keeps a wxNumValidator. The toolkit's class queries take this
/// class for a wxValidator: use dynamic_cast. The host may set another validator on the control while this one takes a
/// key.
///
/// For single-line wxTextCtrl controls. On any other window, a wxComboBox too, Validate() and both transfers assert and
/// return false, and typing is left alone. GUI thread only.
class FITTINGS_API wxNumValidator : public wxValidator
{
public:
    /// Copies @a format. @a value is not owned and must outlive the validator and each control that it was set on; with
    /// a null one nothing is transferred.
    wxNumValidator(const CNumberFormat& format, wxString* value);

    /// Copies the format and the pointer to the value, but neither the window nor the state of the keypad key.
    wxNumValidator(const wxNumValidator& other);

    ~wxNumValidator() override;

    /// Returns a new validator made by the copy constructor; the caller owns it. wxWindow::SetValidator() calls this.
    wxObject* Clone() const override;

    /// The validator's own copy of the format that it was made with.
    const CNumberFormat& GetFormat() const;

    /// Whether the validator is set on a wxTextCtrl.
    bool CheckValidator() const;

    /// Whether the format accepts the whole text, as a number or as the beginning of one, the empty text, "-" and "."
    /// among these; the control takes the focus when it does not.
    ///
    /// A disabled control is always valid. Shows no message and rings no bell. @a parent is not used.
    bool Validate(wxWindow* parent) override;

    /// Puts the host's text into the control as it is, neither checked nor formatted. The control sends its wxEVT_TEXT.
    ///
    /// With a null value does nothing and returns true; otherwise returns CheckValidator().
    bool TransferToWindow() override;

    /// Copies the control's text to the host's if the format accepts it; if not, leaves the host's text and returns
    /// false.
    ///
    /// Unlike Validate() checks a disabled control too. With a null value does nothing and returns true.
    bool TransferFromWindow() override;

    /// Refuses a character that would not leave a number or the beginning of one, with a bell unless
    /// wxValidator::IsSilent(), and puts back what the control has deleted for it. Bound to wxEVT_CHAR.
    ///
    /// Checked are key codes 32 to 300 except WXK_DELETE, and characters known by their Unicode value alone, whatever
    /// the modifiers: Alt with a letter that neither menu nor label takes is refused too. A selection counts as
    /// beginning at the insertion point.
    ///
    /// @throws std::out_of_range  The control, or a class derived from it, says that its insertion point lies beyond
    /// the
    ///                            text.
    void OnChar(wxKeyEvent& event);

    /// Notes whether the key is the keypad's decimal key, for the characters that follow. Bound to wxEVT_KEY_DOWN.
    void OnKeyDown(wxKeyEvent& event);

protected:
    CNumberFormat m_format;         ///< A copy of the host's.
    wxString* m_pString;            ///< The host's text, not owned; may be null.
    bool m_bNumpadDecimal = false;  ///< The last key that went down was the keypad's decimal key.

    wxDECLARE_EVENT_TABLE();
};

#endif
