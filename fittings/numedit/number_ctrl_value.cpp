#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include <fittings/numedit/number_ctrl.h>
#include <fittings/numedit/number_field.h>

using fittings::Decimal;
using fittings::NumberField;

namespace {

// Stores the number of a plain text in a variable. Returns false and leaves the variable alone if there is no number
// or the number does not fit in the variable.
template <typename Number>
bool StoreNumber(const std::wstring& plain, const NumberField& field, Number* variable)
{
    const std::optional<Decimal> number = fittings::NumberIn(plain, field.rules.point);
    std::optional<Number> result;
    if constexpr (std::is_integral_v<Number>)
        result = number ? fittings::IntegerOf<Number>(*number) : std::nullopt;
    else
        result = number ? fittings::DoubleOf(*number) : std::nullopt;
    if (result)
        *variable = *result;
    return result.has_value();
}

// Reads a bound. If the text is neither empty nor a number, the outer optional is empty. If the text is empty, there
// is no bound: only the inner optional is empty.
std::optional<std::optional<Decimal>> ParsedBound(const wxString& text)
{
    if (text.empty())
        return std::optional<Decimal>();
    std::optional<Decimal> bound = fittings::ParseDecimal(text.utf8_string());
    if (!bound)
        return std::nullopt;
    return std::optional<std::optional<Decimal>>(std::in_place, std::move(bound));
}

}  // namespace

bool wxNumberCtrl::SetNumber(double value)
{
    const std::optional<Decimal> number = fittings::DecimalOf(value);
    const std::optional<std::string> text = number ? fittings::PlainText(*number) : std::nullopt;
    return text && SetDecimal(*text);
}

bool wxNumberCtrl::SetDecimal(const wxString& text)
{
    wxCHECK_MSG(m_field, false, "call Create() first");
    std::string decimal = text.utf8_string();
    const std::optional<Decimal> number = fittings::ParseDecimal(decimal);
    if (!number && !decimal.empty())
        return false;
    if (number && !m_field->rules.allowsExponent && decimal.find_first_of("eE") != decimal.npos) {
        const std::optional<std::string> plain = fittings::PlainText(*number);
        if (!plain)
            return false;
        decimal = *plain;
    }
    if (!decimal.empty() && decimal.front() == '+')
        decimal.erase(0, 1);
    const std::wstring plain = fittings::WithPoint(decimal, m_field->rules.point);
    if (!NumberField::FitsEntry(plain))
        return false;
    m_field->exact = plain;
    SetPlain(plain, false);
    return true;
}

bool wxNumberCtrl::GetNumber(double* value) const
{
    wxCHECK_MSG(m_field, false, "call Create() first");
    return StoreNumber(Plain(), *m_field, value);
}

bool wxNumberCtrl::GetNumber(std::int64_t* value) const
{
    wxCHECK_MSG(m_field, false, "call Create() first");
    return StoreNumber(Plain(), *m_field, value);
}

bool wxNumberCtrl::GetNumber(int* value) const
{
    wxCHECK_MSG(m_field, false, "call Create() first");
    return StoreNumber(Plain(), *m_field, value);
}

bool wxNumberCtrl::GetNumber(unsigned* value) const
{
    wxCHECK_MSG(m_field, false, "call Create() first");
    return StoreNumber(Plain(), *m_field, value);
}

wxString wxNumberCtrl::GetDecimal() const
{
    wxCHECK_MSG(m_field, wxString(), "call Create() first");
    return fittings::DecimalTextOf(Plain(), m_field->rules.point);
}

bool wxNumberCtrl::IsAcceptable() const
{
    wxCHECK_MSG(m_field, false, "call Create() first");
    const fittings::NumberState state = m_field->State(Plain());
    return state == fittings::NumberState::Good || state == fittings::NumberState::Empty;
}

wxString wxNumberCtrl::GetProblem() const
{
    wxCHECK_MSG(m_field, wxString(), "call Create() first");
    return m_field->Problem(Plain());
}

bool wxNumberCtrl::SetRange(const wxString& min, const wxString& max)
{
    wxCHECK_MSG(m_field, false, "call Create() first");
    const auto lowest = ParsedBound(min);
    const auto highest = ParsedBound(max);
    if (!lowest || !highest || (*lowest && *highest && fittings::Compare(**lowest, **highest) > 0))
        return false;
    m_field->rules.min = *lowest;
    m_field->rules.max = *highest;
    TellProblem();
    return true;
}

bool wxNumberCtrl::SetRange(double min, double max)
{
    wxCHECK_MSG(m_field, false, "call Create() first");
    if (std::isnan(min) || std::isnan(max) || min > max)
        return false;
    m_field->rules.min = fittings::DecimalOf(min);
    m_field->rules.max = fittings::DecimalOf(max);
    TellProblem();
    return true;
}

bool wxNumberCtrl::SetIncrement(const wxString& increment)
{
    wxCHECK_MSG(m_field, false, "call Create() first");
    const std::optional<Decimal> number = fittings::ParseDecimal(increment.utf8_string());
    if (!number || number->negative || number->IsZero() ||
        Compare(RoundedDown(*number, m_field->rules.mostDecimals), *number) != 0)
        return false;
    m_field->increment = *number;
    return true;
}

bool wxNumberCtrl::SetIncrement(double increment)
{
    const std::optional<Decimal> number = fittings::DecimalOf(increment);
    const std::optional<std::string> text = number ? fittings::PlainText(*number) : std::nullopt;
    return text && SetIncrement(wxString(*text));
}
