#ifndef FITTINGS_NUMEDIT_DECIMAL_VALIDATOR_H_
#define FITTINGS_NUMEDIT_DECIMAL_VALIDATOR_H_

#include <cstdint>
#include <variant>

#include <wx/string.h>
#include <wx/validate.h>

#include <fittings/base/export.h>
#include <fittings/numedit/number_format.h>

class wxTextEntry;

/// Moves a number between a field and a variable of the program: a `double`, a `std::int64_t`, or a wxString with its
/// decimal digits, of any length and with a dot as the point.
///
/// @code
/// new wxNumberCtrl(&dialog, wxID_ANY, wxNumberCtrl::FromLocale(), wxDefaultPosition, wxDefaultSize, 0,
///                  wxDecimalValidator(&m_price));
/// @endcode
///
/// On a wxNumberCtrl, it goes by that control's format and bounds. On any other wxTextEntry, a wxComboBox for example,
/// by its own: there it reads groups and the template too, and leaves typing alone.
///
/// An empty field has no number. It is accepted, and moves as the empty text, where the variable is a wxString or there
/// is none; a `double` or an integer cannot say so, and the field is refused. A number that its variable cannot hold
/// exactly, as an integer one with a fraction, is refused; a `double` takes the nearest.
///
/// A derived class overrides Clone(). The toolkit's class queries take this class for a wxValidator: use dynamic_cast.
/// GUI thread only.
class FITTINGS_API wxDecimalValidator : public wxValidator
{
public:
    /// Checks the field and moves nothing. The format is for other fields than a wxNumberCtrl.
    wxDecimalValidator();

    /// Moves a `double`. The variable is not owned and outlives the validator and each window that it was set on.
    explicit wxDecimalValidator(double* value);

    /// Moves a `double`, by @a format on other fields than a wxNumberCtrl.
    wxDecimalValidator(double* value, const CNumberFormat& format);

    /// Moves a whole number.
    explicit wxDecimalValidator(std::int64_t* value);

    /// Moves a whole number, by @a format on other fields than a wxNumberCtrl.
    wxDecimalValidator(std::int64_t* value, const CNumberFormat& format);

    /// Moves decimal text.
    explicit wxDecimalValidator(wxString* value);

    /// Moves decimal text, by @a format on other fields than a wxNumberCtrl.
    wxDecimalValidator(wxString* value, const CNumberFormat& format);

    /// Copies the format and the pointer to the variable.
    wxDecimalValidator(const wxDecimalValidator& other);

    ~wxDecimalValidator() override;

    /// Returns a new validator made by the copy constructor; the caller owns it.
    wxObject* Clone() const override;

    /// Whether the field has a number that the format accepts and the variable can hold; it takes the focus where not.
    /// A disabled field is always valid. False on a window that is no wxTextEntry.
    bool Validate(wxWindow* parent) override;

    /// Shows the variable's number. False where it is none, or the window is no wxTextEntry.
    bool TransferToWindow() override;

    /// Gives the variable the field's number. False, and it is left alone, where Validate() would refuse the field,
    /// were it enabled.
    bool TransferFromWindow() override;

private:
    /// @cond
    using Variable = std::variant<std::monostate, double*, std::int64_t*, wxString*>;
    /// @endcond

    bool Move(bool store) const;

    CNumberFormat m_format;
    Variable m_variable;
};

#endif
