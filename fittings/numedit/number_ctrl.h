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

/// A wxNumberCtrl sends this event after wxEVT_TEXT when its number has changed. A change to or from a text that is not
/// a number counts too. The event's GetString() returns the number as wxNumberCtrl::GetDecimal() does. The event is not
/// sent if only the text has changed: 1.5 and 1.50 are the same number. SetValue(), SetNumber() and SetDecimal() do not
/// send the event.
extern const FITTINGS_API wxEventTypeTag<wxCommandEvent> wxEVT_NUMBER_CHANGED;

/// The default name of a wxNumberCtrl.
#define wxNumberCtrlNameStr "numberCtrl"

namespace fittings {
class NumberField;
}

/// A wxTextCtrl for one number of any length. A CNumberFormat sets the look and the bounds of the number.
///
/// @code
/// auto* const weight = new wxNumberCtrl(this, wxID_ANY, wxNumberCtrl::FromLocale(3));
/// weight->SetRange(0, 250);
/// weight->SetNumber(72.5);
/// weight->Bind(wxEVT_NUMBER_CHANGED, [this](wxCommandEvent&) { ShowWeight(); });
/// @endcode
///
/// With the focus, the field shows the number as it is typed, such as `1234.5`. Without the focus, the field shows the
/// number as CNumberEditUtils::FormatControlText() returns it, such as `1,234.50 kg`. Input by keyboard, input method,
/// clipboard or mouse is accepted if the field would then hold a number within the bounds or the beginning of such a
/// number. Otherwise all of the input is refused, and a bell rings unless wxValidator::IsSilent() is true. A refusal
/// changes nothing: the selection stays.
///
/// | Input | What it does |
/// | --- | --- |
/// | a character | is accepted if a number within the bounds can begin with it: for 10 to 20, "1" but not "3" |
/// | the keypad's decimal key | types the format's point under every keyboard layout |
/// | pasted or dropped text | may have groups, the template and a trailing minus |
/// | Up and Down, the wheel | step by the increment within the bounds: see SetIncrement() |
/// | Page Up and Page Down | step ten times as far |
///
/// A deletion is never refused, and neither is a text from SetValue() or WriteText(). While IsAcceptable() returns
/// false, the text is shown in the theme's colour for errors, and the reason replaces the program's tooltip and
/// accessible description. The validator refuses the text, but the control never corrects the text. An empty field has
/// no number, which is not an error.
///
/// Everything else works as in a text control: for example, GetValue() returns the shown text. SetNumber() and
/// SetDecimal() send no event.
///
/// If a handler for wxEVT_SET_FOCUS or wxEVT_KILL_FOCUS does not skip the event, the shown text does not change. The
/// field always has a single line: wxTE_MULTILINE has no effect. The format's point and separator must not be digits.
/// GUI thread only.
class FITTINGS_API wxNumberCtrl : public wxTextCtrl
{
public:
    /// Makes the object. Call Create() before anything else.
    wxNumberCtrl();

    /// Makes an empty field. Without a @a validator, the field uses a wxDecimalValidator without a variable, which
    /// accepts the field if IsAcceptable() returns true.
    explicit wxNumberCtrl(wxWindow* parent, wxWindowID id = wxID_ANY, const CNumberFormat& format = FromLocale(),
                          const wxPoint& pos = wxDefaultPosition, const wxSize& size = wxDefaultSize, long style = 0,
                          const wxValidator& validator = wxDefaultValidator,
                          const wxString& name = wxNumberCtrlNameStr);

    ~wxNumberCtrl() override;

    /// Makes the control after the default constructor was called, in the same way as the other constructor. Returns
    /// false if the control could not be made.
    bool Create(wxWindow* parent, wxWindowID id = wxID_ANY, const CNumberFormat& format = FromLocale(),
                const wxPoint& pos = wxDefaultPosition, const wxSize& size = wxDefaultSize, long style = 0,
                const wxValidator& validator = wxDefaultValidator, const wxString& name = wxNumberCtrlNameStr);

    /// Returns a format with @a decimals decimals. Zeros are added to a number with fewer decimals. The point and the
    /// groups follow the user's settings for numbers, whatever the process's locale is.
    static CNumberFormat FromLocale(std::uint64_t decimals);

    /// Returns FromLocale(2).
    static CNumberFormat FromLocale();

    /// Returns the control's own copy of the format.
    const CNumberFormat& GetFormat() const;

    /// Sets another format, and shows the number in this format. The number does not change. The bounds of the format
    /// replace the bounds from SetRange().
    void SetFormat(const CNumberFormat& format);

    /// Shows the shortest decimal number that converts to @a value. Returns false and changes nothing if @a value is
    /// infinite or NaN.
    ///
    /// If the number has more decimals than the format allows, all decimals stay until the user changes the text.
    bool SetNumber(double value);

    /// Shows a whole number.
    template <typename Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
    bool SetNumber(Integer value)
    {
        return SetDecimal(wxString(std::to_string(value)));
    }

    /// Shows a number of any length, with a dot as its point. The empty text empties the field. Returns false and
    /// changes nothing if @a text is not a number, or takes more than the 65,534 bytes that GTK's text field can hold.
    ///
    /// If the format accepts no exponent, a number with an exponent is shown without one. If the formatted text is too
    /// long for the field, the number is shown without a format.
    bool SetDecimal(const wxString& text);

    /// Stores the number in @a value as the nearest `double`. Returns false and leaves @a value alone if the field has
    /// no number or the `double` would be infinite. The number may be out of bounds: see IsAcceptable().
    bool GetNumber(double* value) const;

    /// Stores the number in @a value as an integer. Returns false and leaves @a value alone if the field has no number,
    /// or if the number has a fraction or does not fit.
    bool GetNumber(std::int64_t* value) const;

    /// Stores the number in @a value as GetNumber(std::int64_t*) does.
    bool GetNumber(int* value) const;

    /// Stores the number in @a value as GetNumber(std::int64_t*) does. A number below 0 does not fit.
    bool GetNumber(unsigned* value) const;

    /// Returns the number with all its digits and a dot as its point; empty if the field has no number.
    wxString GetDecimal() const;

    /// Returns whether the field is empty or has a number within the bounds. The number must not have more digits than
    /// the format allows, but a number from SetNumber() or SetDecimal() may have more decimals until the user changes
    /// the text.
    bool IsAcceptable() const;

    /// Returns why the field is not acceptable, in the user's language; empty if it is acceptable.
    wxString GetProblem() const;

    /// Sets the bounds, which are numbers of any length with a dot as the point. An empty text means no bound. Returns
    /// false and changes nothing if a text is neither empty nor a number, or if @a min is above @a max.
    bool SetRange(const wxString& min, const wxString& max);

    /// Sets the bounds to the shortest decimal numbers that convert to @a min and @a max. An infinite value means no
    /// bound. Returns false and changes nothing if a value is NaN or if @a min is above @a max.
    bool SetRange(double min, double max);

    /// Sets how far Up, Down and the wheel step; 1 at first. Returns false and changes nothing if @a increment is not a
    /// number, is not above 0, or has more decimals than the format allows.
    bool SetIncrement(const wxString& increment);

    /// Passes the shortest decimal number that converts to @a increment to the other SetIncrement(), and returns its
    /// result. Returns false and changes nothing if @a increment is infinite or NaN.
    bool SetIncrement(double increment);

    /// Limits how many characters the user can type; 0 for no limit. The limit applies to the number as it is typed,
    /// and not to the formatted text. When a text is refused for this reason, the control sends wxEVT_TEXT_MAXLEN after
    /// the current event.
    void SetMaxLength(unsigned long length) override;

    /// Returns whether IsAcceptable() is true and the validator accepts the field. If the field is disabled,
    /// IsAcceptable() does not matter.
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
    void SettleSoon();
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
