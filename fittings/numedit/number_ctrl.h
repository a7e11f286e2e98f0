#ifndef FITTINGS_NUMEDIT_NUMBER_CTRL_H_
#define FITTINGS_NUMEDIT_NUMBER_CTRL_H_

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include <wx/event.h>
#include <wx/textctrl.h>

#include <fittings/base/export.h>
#include <fittings/numedit/number_format.h>

/// @file
/// A text field for one number: wxNumberCtrl and its event.

/// Sent by a wxNumberCtrl, besides wxEVT_TEXT and after it, when its number has become another one, or the field has
/// got or lost a number. GetString() is wxNumberCtrl::GetDecimal(). Not sent where the text alone has changed: 1.5 and
/// 1.50 are the same number.
extern const FITTINGS_API wxEventTypeTag<wxCommandEvent> wxEVT_NUMBER_CHANGED;

/// The name of a wxNumberCtrl that is given none.
#define wxNumberCtrlNameStr "numberCtrl"

namespace fittings {
class NumberField;
}

/// A wxTextCtrl for one number, of any length, with the look of a CNumberFormat and within its bounds.
///
/// @code
/// auto* const weight = new wxNumberCtrl(this, wxID_ANY, wxNumberCtrl::FromLocale(3));
/// weight->SetRange(0, 250);
/// weight->SetNumber(72.5);
/// weight->Bind(wxEVT_NUMBER_CHANGED, [this](wxCommandEvent&) { ShowWeight(); });
/// @endcode
///
/// With the focus the field shows the number as it is typed, without it as CNumberEditUtils::FormatControlText() does:
/// `1234.5` and `1,234.50 kg`. What comes in by keyboard, input method, clipboard or mouse is taken where the field
/// then holds a number within the bounds or the beginning of one, and refused whole otherwise, with a bell unless
/// wxValidator::IsSilent(). A refusal changes nothing: what was selected stays so.
///
/// | Input | What it does |
/// | --- | --- |
/// | a character | goes in where a number within the bounds begins so: with 10 to 20, "1" does and "3" does not |
/// | the keypad's decimal key | types the format's point under every keyboard layout |
/// | pasted or dropped text | is read with its groups, its template and its minus behind |
/// | Up and Down, the wheel | step by SetIncrement(), held to the bounds |
/// | Page Up and Page Down | step ten times as far |
///
/// Deleting is never refused, and neither is what the program sets. A text that is no number within the bounds is
/// shown as such: in the theme's colour for errors, with the reason as tooltip and as accessible description, in place
/// of the program's own. The validator refuses it. It is never changed by the control. An empty field has no number,
/// which is no error.
///
/// All else is a text control's: SetValue() takes any text, and GetValue() returns what is shown. SetNumber() and
/// SetDecimal() send no event.
///
/// A handler for wxEVT_SET_FOCUS or wxEVT_KILL_FOCUS that does not skip the event leaves the text as it is shown. For
/// single-line fields: wxTE_MULTILINE has no effect. The format's point and separator are no digits. GUI thread only.
class FITTINGS_API wxNumberCtrl : public wxTextCtrl
{
public:
    /// To be followed by Create().
    wxNumberCtrl();

    /// An empty field. Without a @a validator it gets one that refuses a text that is no number within the bounds.
    explicit wxNumberCtrl(wxWindow* parent, wxWindowID id = wxID_ANY, const CNumberFormat& format = FromLocale(),
                          const wxPoint& pos = wxDefaultPosition, const wxSize& size = wxDefaultSize, long style = 0,
                          const wxValidator& validator = wxDefaultValidator,
                          const wxString& name = wxNumberCtrlNameStr);

    ~wxNumberCtrl() override;

    /// Makes the window of a control that was made without a parent, as that constructor does.
    bool Create(wxWindow* parent, wxWindowID id = wxID_ANY, const CNumberFormat& format = FromLocale(),
                const wxPoint& pos = wxDefaultPosition, const wxSize& size = wxDefaultSize, long style = 0,
                const wxValidator& validator = wxDefaultValidator, const wxString& name = wxNumberCtrlNameStr);

    /// A format with the point and the groups that the user's settings have for numbers, whatever the process's locale
    /// is, and @a decimals decimals, which are shown filled with zeros.
    static CNumberFormat FromLocale(std::uint64_t decimals);

    /// The same with two decimals.
    static CNumberFormat FromLocale();

    /// The control's own copy of the format.
    const CNumberFormat& GetFormat() const;

    /// Shows the number in another format, and takes its bounds. The number stays.
    void SetFormat(const CNumberFormat& format);

    /// Shows the shortest decimal number that is read as @a value. False, and nothing is changed, where it is infinite
    /// or no number.
    ///
    /// Digits beyond the format's decimals stay until the user changes the text.
    bool SetNumber(double value);

    /// Shows a whole number.
    template <typename Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
    bool SetNumber(Integer value)
    {
        return SetDecimal(wxString(std::to_string(value)));
    }

    /// Shows a number of any length, with a dot as its point. False, and nothing is changed, where @a text is no
    /// number; the empty text empties the field.
    bool SetDecimal(const wxString& text);

    /// The number as the nearest double. False, and @a value is left alone, where the field has no number or one that
    /// would be infinite. The number may be out of bounds: see IsAcceptable().
    bool GetNumber(double* value) const;

    /// The number as a whole one. False, and @a value is left alone, where the field has none, one with a fraction or
    /// one that does not fit.
    bool GetNumber(std::int64_t* value) const;

    /// The number with all its digits and a dot as its point; empty where the field has none.
    wxString GetDecimal() const;

    /// Whether the field is empty or has a number within the bounds.
    bool IsAcceptable() const;

    /// Why the field is not acceptable, in the user's language; empty where it is.
    wxString GetProblem() const;

    /// Replaces the bounds by those, of any length and with a dot as the point; an empty one is none. False, and
    /// nothing is changed, where one is no number or the lowest is above the highest.
    bool SetRange(const wxString& min, const wxString& max);

    /// Replaces the bounds by the shortest decimal numbers that are read as those. An infinite one is none.
    bool SetRange(double min, double max);

    /// How far Up, Down and the wheel step; 1 unless set. False, and nothing is changed, unless it is a number above 0
    /// with no more decimals than the format has.
    bool SetIncrement(const wxString& increment);

    /// How far Up, Down and the wheel step, as the shortest decimal number that is read as @a increment.
    bool SetIncrement(double increment);

    /// IsAcceptable(), and what the validator says.
    bool Validate() override;

    /// @cond
    int GTKIMFilterKeypress(GdkEventKey* event) const override;
    void GTKOnTextChanged() override;
    void WriteText(const wxString& text) override;
    void Remove(long from, long to) override;
    /// @endcond

protected:
    /// @cond
    void DoSetValue(const wxString& value, int flags) override;
    /// @endcond

private:
    void OnSetFocus(wxFocusEvent& event);
    void OnKillFocus(wxFocusEvent& event);
    void OnChar(wxKeyEvent& event);
    void OnWheel(wxMouseEvent& event);
    void OnPaste(wxClipboardTextEvent& event);
    void ShowPlain();
    void ShowFormatted();
    std::wstring Plain() const;
    void ShowText(const std::wstring& text, const std::pair<long, long>& selection);
    void SetPlain(const std::wstring& plain, bool byUser);
    void Step(bool up, bool tenfold);
    void TellNumber();
    void TellProblem();

    std::unique_ptr<fittings::NumberField> m_field;

    wxDECLARE_DYNAMIC_CLASS(wxNumberCtrl);
    wxDECLARE_EVENT_TABLE();
};

#endif
