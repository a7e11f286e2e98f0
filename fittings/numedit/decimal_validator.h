#ifndef FITTINGS_NUMEDIT_DECIMAL_VALIDATOR_H_
#define FITTINGS_NUMEDIT_DECIMAL_VALIDATOR_H_

#include <cstdint>
#include <variant>

#include <wx/string.h>
#include <wx/validate.h>

#include <fittings/base/export.h>
#include <fittings/numedit/number_format.h>

class wxTextEntry;

/// Transfers a number between a field and a variable of the program. The variable is a `double`, an `int`, an
/// `unsigned`, a `std::int64_t`, or a wxString with decimal digits of any length and a dot as the point.
///
/// @code
/// new wxNumberCtrl(&dialog, wxID_ANY, wxNumberCtrl::FromLocale(), wxDefaultPosition, wxDefaultSize, 0,
///                  wxDecimalValidator(&m_price));
/// @endcode
///
/// On a wxNumberCtrl, the validator uses the control's format and bounds. On any other wxTextEntry, such as a
/// wxComboBox, the validator uses its own format, and does not check typing. It then accepts formatted text too, with
/// thousands separators and the text of CNumberFormat::m_strTemplate.
///
/// An empty field has no number. A validator for a wxString accepts an empty field and transfers it as the empty text.
/// A validator without a variable accepts an empty field too. A validator for a `double` or an integer refuses an empty
/// field, which has no number to store. A validator for an integer also refuses a number that has a fraction or does
/// not fit in the variable. A `double` gets the nearest value.
///
/// A derived class must override Clone(). The toolkit's class information does not distinguish this class from
/// wxValidator: use dynamic_cast. GUI thread only.
class FITTINGS_API wxDecimalValidator : public wxValidator
{
public:
    /// Checks the field and transfers nothing. The format for fields other than a wxNumberCtrl is
    /// wxNumberCtrl::FromLocale().
    wxDecimalValidator();

    /// Transfers a `double`. The variable is not owned and must outlive the validator and each window that the
    /// validator was set on.
    explicit wxDecimalValidator(double* value);

    /// Transfers a `double`. @a format applies to fields other than a wxNumberCtrl.
    wxDecimalValidator(double* value, const CNumberFormat& format);

    /// Transfers a whole number.
    explicit wxDecimalValidator(std::int64_t* value);

    /// Transfers a whole number. @a format applies to fields other than a wxNumberCtrl.
    wxDecimalValidator(std::int64_t* value, const CNumberFormat& format);

    /// Transfers a whole number that fits in an `int`.
    explicit wxDecimalValidator(int* value);

    /// Transfers a whole number that fits in an `int`. @a format applies to fields other than a wxNumberCtrl.
    wxDecimalValidator(int* value, const CNumberFormat& format);

    /// Transfers a whole number that fits in an `unsigned`: 0 or above.
    explicit wxDecimalValidator(unsigned* value);

    /// Transfers a whole number that fits in an `unsigned`. @a format applies to fields other than a wxNumberCtrl.
    wxDecimalValidator(unsigned* value, const CNumberFormat& format);

    /// Transfers decimal text.
    explicit wxDecimalValidator(wxString* value);

    /// Transfers decimal text. @a format applies to fields other than a wxNumberCtrl.
    wxDecimalValidator(wxString* value, const CNumberFormat& format);

    /// Copies the format and the pointer to the variable, but not the window.
    wxDecimalValidator(const wxDecimalValidator& other);

    ~wxDecimalValidator() override;

    /// Returns a new validator made by the copy constructor; the caller owns it.
    wxObject* Clone() const override;

    /// Returns whether the format accepts the field's number and the variable can hold it. Whether an empty field is
    /// valid depends on the variable: see the class. If the field is not valid, moves the focus to the field. A
    /// disabled field is always valid. Returns false on a window that is not a wxTextEntry.
    bool Validate(wxWindow* parent) override;

    /// Shows the variable's number. An empty wxString empties the field. Without a variable, shows nothing. Returns
    /// false in these cases:
    /// - The window is not a wxTextEntry.
    /// - The variable's value is neither a number nor an empty wxString.
    /// - The field is a wxNumberCtrl, and wxNumberCtrl::SetDecimal() refuses the value.
    /// - The field is not a wxNumberCtrl, and does not show all characters of the number.
    bool TransferToWindow() override;

    /// Stores the field's number in the variable. Checks the field as Validate() does, even if the field is disabled.
    /// If the check fails, returns false and does not change the variable. Without a variable, checks nothing. Returns
    /// false on a window that is not a wxTextEntry.
    bool TransferFromWindow() override;

private:
    /// @cond
    using Variable = std::variant<std::monostate, double*, std::int64_t*, wxString*, int*, unsigned*>;
    /// @endcond

    bool Move(bool store) const;

    CNumberFormat m_format;
    Variable m_variable;
};

#endif
