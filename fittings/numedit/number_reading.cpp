#include <algorithm>
#include <cwctype>

#include <fittings/numedit/number_rules.h>

namespace fittings {

namespace {

constexpr wchar_t kMinusSign = L'\u2212';

bool IsDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

// Returns whether a character is a blank. Accepts the no-break spaces too, which iswspace() does not accept: many
// languages put them between groups of digits.
bool IsBlank(wchar_t c)
{
    return std::iswspace(static_cast<std::wint_t>(c)) || c == L'\u00A0' || c == L'\u2007' || c == L'\u202F';
}

std::wstring_view Trimmed(std::wstring_view text)
{
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

// The parts of a template before and after its %s, each without blanks at its ends.
struct Around
{
    std::wstring before;
    std::wstring behind;
};

Around AroundOf(const std::wstring& format)
{
    Around around;
    std::wstring* part = &around.before;
    for (std::size_t at = 0; at < format.size(); ++at) {
        if (format[at] == L'%' && at + 1 < format.size()) {
            ++at;
            if (format[at] == L's') {
                part = &around.behind;
                continue;
            }
        }
        *part += format[at];
    }
    return {std::wstring(Trimmed(around.before)), std::wstring(Trimmed(around.behind))};
}

std::wstring_view WithoutTemplate(std::wstring_view text, const CNumberFormat& format)
{
    const Around around = AroundOf(format.m_strTemplate);
    text = Trimmed(text);
    if (!around.before.empty() && text.substr(0, around.before.size()) == around.before)
        text = Trimmed(text.substr(around.before.size()));
    const std::size_t behind = around.behind.size();
    if (behind != 0 && text.size() >= behind && text.substr(text.size() - behind) == around.behind)
        text = Trimmed(text.substr(0, text.size() - behind));
    return text;
}

// Replaces each minus sign U+2212 by "-". If a minus follows the mantissa, moves that minus to the front.
std::wstring WithMinusInFront(std::wstring_view text)
{
    std::wstring result(text);
    std::replace(result.begin(), result.end(), kMinusSign, L'-');
    const std::size_t end = std::min(result.find_first_of(L"eE"), result.size());
    if (end > 1 && result[end - 1] == L'-' && !IsBlank(result[end - 2])) {
        result.erase(end - 1, 1);
        result.insert(result.begin(), L'-');
    }
    return result;
}

bool IsSeparator(wchar_t c, wchar_t separator)
{
    return separator != 0 && (c == separator || (IsBlank(c) && IsBlank(separator)));
}

// Removes the separators. Returns false if they do not separate groups of three digits. The first group may have one,
// two or three digits.
bool Ungroup(std::wstring& text, const CNumberFormat& format)
{
    const wchar_t separator = format.m_chThousandsSep;
    if (separator == format.m_chDecimalPoint)
        return true;
    const std::size_t end =
        std::min(text.find(format.m_chDecimalPoint), std::min(text.find_first_of(L"eE"), text.size()));
    std::wstring result;
    std::size_t digits = 0;  // digits of the current group so far
    bool grouped = false;
    for (std::size_t at = 0; at < end; ++at) {
        if (IsSeparator(text[at], separator)) {
            if (digits == 0 || digits > 3 || (grouped && digits != 3))
                return false;
            grouped = true;
            digits = 0;
            continue;
        }
        digits += IsDigit(text[at]) ? 1 : 0;
        result += text[at];
    }
    if (grouped && digits != 3)
        return false;
    text = result.append(text, end, text.npos);
    return true;
}

}  // namespace

std::optional<std::wstring> PlainTextOf(std::wstring_view text, const CNumberFormat& format)
{
    std::wstring plain = WithMinusInFront(WithoutTemplate(text, format));
    if (!Ungroup(plain, format))
        return std::nullopt;
    switch (Judge(plain, RulesOf(format))) {
    case NumberState::Good:
    case NumberState::TooLow:
    case NumberState::TooHigh:
        return plain;
    default:
        return std::nullopt;
    }
}

}  // namespace fittings
