#include <fittings/numedit/decimal_validator.h>

#include <optional>
#include <string>

#include <wx/textentry.h>
#include <wx/window.h>

#include <fittings/numedit/decimal.h>
#include <fittings/numedit/number_ctrl.h>
#include <fittings/numedit/number_rules.h>

namespace {

using fittings::Decimal;

// Returns the decimal text of a field; empty for an empty field. Returns nothing if the field's text is not
// acceptable.
std::optional<std::string> DecimalIn(wxWindow* window, const CNumberFormat& format)
{
    if (const auto* const control = dynamic_cast<const wxNumberCtrl*>(window))
        return control->IsAcceptable() ? std::optional(control->GetDecimal().utf8_string()) : std::nullopt;
    const auto* const entry = dynamic_cast<const wxTextEntry*>(window);
    if (!entry)
        return std::nullopt;
    const wxString text = entry->GetValue();
    if (text.empty())
        return std::string();
    const std::optional<std::wstring> plain = fittings::PlainTextOf(text.ToStdWstring(), format);
    if (!plain || fittings::Judge(*plain, fittings::RulesOf(format)) != fittings::NumberState::Good)
        return std::nullopt;
    return fittings::DecimalTextOf(*plain, format.m_chDecimalPoint);
}

// Returns the text to show for a variable; empty for an empty wxString. Returns nothing if there is no variable, or if
// the variable's value is not a number.
// @{
std::optional<std::string> TextOf(const std::monostate&)
{
    return std::nullopt;
}

std::optional<std::string> TextOf(const double* value)
{
    const std::optional<Decimal> number = fittings::DecimalOf(*value);
    return number ? fittings::PlainText(*number) : std::nullopt;
}

template <typename Integer>
std::optional<std::string> TextOf(const Integer* value)
{
    return std::to_string(*value);
}

std::optional<std::string> TextOf(const wxString* value)
{
    std::string text = value->utf8_string();
    return text.empty() || fittings::ParseDecimal(text) ? std::optional(text) : std::nullopt;
}
// @}

// Returns whether the number in @a text fits in a variable. If the number fits and @a store is true, stores it.
// @{
bool Take(const std::string&, std::monostate, bool)
{
    return true;
}

bool Take(const std::string& text, double* variable, bool store)
{
    const std::optional<Decimal> number = fittings::ParseDecimal(text);
    const std::optional<double> value = number ? fittings::DoubleOf(*number) : std::nullopt;
    if (value && store)
        *variable = *value;
    return value.has_value();
}

template <typename Integer>
bool Take(const std::string& text, Integer* variable, bool store)
{
    const std::optional<Decimal> number = fittings::ParseDecimal(text);
    const std::optional<Integer> value = number ? fittings::IntegerOf<Integer>(*number) : std::nullopt;
    if (value && store)
        *variable = *value;
    return value.has_value();
}

bool Take(const std::string& text, wxString* variable, bool store)
{
    if (store)
        *variable = text;
    return true;
}
// @}

}  // namespace

wxDecimalValidator::wxDecimalValidator() : m_format(wxNumberCtrl::FromLocale()) {}

wxDecimalValidator::wxDecimalValidator(double* value) : wxDecimalValidator(value, wxNumberCtrl::FromLocale()) {}

wxDecimalValidator::wxDecimalValidator(double* value, const CNumberFormat& format) : m_format(format), m_variable(value)
{
}

wxDecimalValidator::wxDecimalValidator(std::int64_t* value) : wxDecimalValidator(value, wxNumberCtrl::FromLocale()) {}

wxDecimalValidator::wxDecimalValidator(std::int64_t* value, const CNumberFormat& format)
    : m_format(format), m_variable(value)
{
}

wxDecimalValidator::wxDecimalValidator(int* value) : wxDecimalValidator(value, wxNumberCtrl::FromLocale()) {}

wxDecimalValidator::wxDecimalValidator(int* value, const CNumberFormat& format) : m_format(format), m_variable(value) {}

wxDecimalValidator::wxDecimalValidator(unsigned* value) : wxDecimalValidator(value, wxNumberCtrl::FromLocale()) {}

wxDecimalValidator::wxDecimalValidator(unsigned* value, const CNumberFormat& format)
    : m_format(format), m_variable(value)
{
}

wxDecimalValidator::wxDecimalValidator(wxString* value) : wxDecimalValidator(value, wxNumberCtrl::FromLocale()) {}

wxDecimalValidator::wxDecimalValidator(wxString* value, const CNumberFormat& format)
    : m_format(format), m_variable(value)
{
}

// The window is not copied: each validator is set on its own window. NOLINTNEXTLINE(bugprone-copy-constructor-init)
wxDecimalValidator::wxDecimalValidator(const wxDecimalValidator& other)
    : wxValidator(), m_format(other.m_format), m_variable(other.m_variable)
{
}

wxDecimalValidator::~wxDecimalValidator() = default;

wxObject* wxDecimalValidator::Clone() const
{
    return new wxDecimalValidator(*this);
}

bool wxDecimalValidator::Move(bool store) const
{
    const std::optional<std::string> text = DecimalIn(GetWindow(), m_format);
    return text && std::visit([&](auto variable) { return Take(*text, variable, store); }, m_variable);
}

bool wxDecimalValidator::Validate(wxWindow*)
{
    wxWindow* const window = GetWindow();
    if (!window || !dynamic_cast<wxTextEntry*>(window))
        return false;
    if (!window->IsEnabled() || Move(false))
        return true;
    window->SetFocus();
    return false;
}

bool wxDecimalValidator::TransferToWindow()
{
    auto* const entry = dynamic_cast<wxTextEntry*>(GetWindow());
    if (!entry)
        return false;
    if (std::holds_alternative<std::monostate>(m_variable))
        return true;
    const std::optional<std::string> text = std::visit([](auto variable) { return TextOf(variable); }, m_variable);
    if (!text)
        return false;
    if (auto* const control = dynamic_cast<wxNumberCtrl*>(GetWindow()))
        return control->SetDecimal(*text);
    const wxString shown = fittings::WithPoint(*text, m_format.m_chDecimalPoint);
    entry->SetValue(shown);
    return entry->GetValue() == shown;
}

bool wxDecimalValidator::TransferFromWindow()
{
    if (std::holds_alternative<std::monostate>(m_variable))
        return dynamic_cast<wxTextEntry*>(GetWindow()) != nullptr;
    return Move(true);
}
