#include <fittings/numedit/number_edit_utils.h>

#include <algorithm>
#include <clocale>
#include <cstdint>
#include <cwchar>
#include <cwctype>
#include <string>
#include <string_view>

#include <fittings/base/or_empty.h>
#include <fittings/numedit/locale_text.h>

namespace {

std::wstring LocalePoint()
{
    return fittings::FromLocale(std::localeconv()->decimal_point);
}

constexpr std::uint64_t kMostPadding = 1000000;

// Returns the same as iswdigit() in every locale of the C library, without a call for each digit.
bool IsDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

bool IsSign(wchar_t c)
{
    return c == L'+' || c == L'-';
}

bool IsExponentLetter(wchar_t c)
{
    return c == L'e' || c == L'E';
}

// Returns the end of the digits that @a text begins with.
const wchar_t* AfterDigits(const wchar_t* text)
{
    while (IsDigit(*text))
        ++text;
    return text;
}

// Stores in @a result a copy of @a text in which @a to replaces each @a from. Returns false and stores nothing if
// there is nothing to replace.
//
// One of @a from and @a to is the locale's point. It is empty if it cannot be converted to wide text: nothing is
// replaced then. Usually @a from and @a to are the same character: then the function returns without a search.
bool ReplacePoint(std::wstring& result, const wchar_t* text, std::wstring_view from, std::wstring_view to)
{
    if (from.empty() || to.empty() || (from.size() == 1 && to.size() == 1 && from[0] == to[0]))
        return false;
    const std::wstring_view original = text;
    std::size_t found = original.find(from);
    if (found == original.npos)
        return false;
    result.reserve(original.size());
    std::size_t at = 0;
    for (; found != original.npos; found = original.find(from, at)) {
        result.append(original, at, found - at).append(to);
        at = found + from.size();
    }
    result.append(original, at, original.npos);
    return true;
}

std::wstring_view WithoutBlanksAndLeadingZeros(std::wstring_view text)
{
    std::size_t begin = 0;
    while (begin < text.size() && std::iswspace(text[begin]))
        ++begin;
    while (begin + 1 < text.size() && text[begin] == L'0')
        ++begin;
    std::size_t end = text.size();
    while (end > begin && std::iswspace(text[end - 1]))
        --end;
    return text.substr(begin, end - begin);
}

void AppendWithoutZeros(std::wstring& result, std::wstring_view text, wchar_t point)
{
    text = WithoutBlanksAndLeadingZeros(text);
    const std::size_t exponent = std::find_if(text.begin(), text.end(), IsExponentLetter) - text.begin();
    std::wstring_view mantissa = text.substr(0, exponent);
    if (mantissa.find(point) != mantissa.npos) {
        while (mantissa.size() > 1 && mantissa.back() == L'0')
            mantissa.remove_suffix(1);
        if (mantissa.back() == point)
            mantissa.remove_suffix(1);
    }
    if (mantissa.empty() || mantissa.front() == point)
        result += L'0';
    result.append(mantissa).append(text, exponent, text.npos);
}

// Groups the digits of the number between @a begin and @a end of @a text. Returns the new end of the number.
std::size_t Group(std::wstring& text, std::size_t begin, std::size_t end, const CNumberFormat& format)
{
    const std::wstring_view number = std::wstring_view(text).substr(begin, end - begin);
    const std::size_t integers = std::min(number.find(format.m_chDecimalPoint), number.size());
    if (integers > 3) {
        const std::size_t separators = (integers - 1) / 3;
        text.insert(begin + integers, separators, format.m_chThousandsSep);
        end += separators;
        // The last group moves furthest. Each other group moves one character less than the group after it.
        wchar_t* from = &text[begin + integers];
        for (wchar_t* to = from + separators; to != from; --to) {
            from -= 3;
            to = std::copy_backward(from, from + 3, to);
            to[-1] = format.m_chThousandsSep;
        }
    }
    return end;
}

// If the number between @a begin and @a end of @a text contains L'\0', cuts off the number there. Returns the new end
// of the number.
std::size_t CutAtZeroCharacter(std::wstring& text, std::size_t begin, std::size_t end)
{
    const std::size_t zero = text.find(L'\0', begin);
    if (zero >= end)
        return end;
    text.erase(zero, end - zero);
    return zero;
}

bool IsWithinBounds(const wchar_t* text, const CNumberFormat& format)
{
    if (!format.m_bHasMax && !format.m_bHasMin)
        return true;
    const double value = std::wcstod(text, nullptr);
    // Every comparison with NaN is false: a bound that is NaN refuses no value, and a value that is NaN is accepted.
    return !(format.m_bHasMax && value > format.m_dMax) && !(format.m_bHasMin && format.m_dMin > value);
}

bool AcceptsDecimals(const CNumberFormat& format)
{
    return format.m_bHasDecimals && format.m_nDecimals != 0;
}

bool IsExponent(const wchar_t* text)
{
    if (IsExponentLetter(*text))
        ++text;
    // The letter may be missing: 12-5 is accepted like 12e-5.
    if (IsSign(*text))
        ++text;
    return *AfterDigits(text) == L'\0';
}

// Returns whether @a text, with @a point as its decimal point, is a number or the beginning of a number, whatever its
// value.
bool IsNumber(const wchar_t* text, wchar_t point, const CNumberFormat& format)
{
    const wchar_t* const begin = format.m_bAllowSign && IsSign(*text) ? text + 1 : text;

    const wchar_t* at = AfterDigits(begin);
    if (format.m_bHasMaxIntDigits && static_cast<std::size_t>(at - begin) > format.m_nMaxIntDigits)
        return false;
    if (*at == L'\0')
        return true;

    if (AcceptsDecimals(format)) {
        if (*at == point)
            ++at;
        const wchar_t* const fraction = at;
        at = AfterDigits(fraction);
        if (static_cast<std::size_t>(at - fraction) > format.m_nDecimals)
            return false;
        if (*at == L'\0')
            return true;
    }
    return at != begin && format.m_bAllowExponent && IsExponent(at);
}

// Adds one to the last digit of a number. Returns whether the carry needs another digit in front.
bool CarriesOver(wchar_t* begin, wchar_t* end)
{
    while (end != begin) {
        --end;
        if (!IsDigit(*end))
            continue;
        if (*end != L'9') {
            ++*end;
            return false;
        }
        *end = L'0';
    }
    return true;
}

// Converts the typed text of a number to the shown text, in a single buffer.
class ShownNumber
{
public:
    ShownNumber(std::wstring_view typed, const CNumberFormat& format);

    wxString Text() const { return wxString(m_text.data() + m_begin, m_text.size() - m_begin); }

private:
    void ReadMantissa();
    void Round(std::size_t fraction);
    void Pad(bool hasPoint, std::size_t decimals);
    void KeepExponentAlone();
    void PutMinus();
    // Returns the index after the digits that begin at @a at.
    std::size_t DigitsEnd(std::size_t at) const { return AfterDigits(m_text.c_str() + at) - m_text.c_str(); }

    const CNumberFormat& m_format;
    std::wstring m_text;
    std::size_t m_begin;     // the beginning of the mantissa after its sign; PutMinus() moves it to a leading minus
    std::size_t m_end = 0;   // the end of the shown part of the mantissa
    std::size_t m_read = 0;  // the end of the mantissa
};

ShownNumber::ShownNumber(std::wstring_view typed, const CNumberFormat& format) : m_format(format)
{
    m_text.reserve(typed.size() + typed.size() / 3 + 10);
    // Keep one character free in front. If the number has no sign, Round() writes a carry there. If the number has a
    // sign, Round() writes the carry over the sign, and PutMinus() writes a leading minus in the free character.
    m_text = L'0';
    AppendWithoutZeros(m_text, typed, format.m_chDecimalPoint);
    const wchar_t first = m_text[1];
    m_begin = IsSign(first) ? 2 : 1;

    ReadMantissa();
    KeepExponentAlone();
    if (format.m_bGroupDigits)
        m_end = Group(m_text, m_begin, m_end, format);
    m_end = CutAtZeroCharacter(m_text, m_begin, m_end);
    if (first == L'-')
        PutMinus();
}

void ShownNumber::ReadMantissa()
{
    m_read = m_end = DigitsEnd(m_begin);
    std::size_t decimals = 0;
    const bool hasPoint = m_read < m_text.size() && m_text[m_read] == m_format.m_chDecimalPoint;
    if (hasPoint) {
        const std::size_t fraction = m_read + 1;
        m_read = m_end = DigitsEnd(fraction);
        decimals = m_read - fraction;
        if (m_format.m_bRoundDecimals && m_format.m_bHasDecimals)
            Round(fraction);
    }
    if (m_format.m_bPadDecimals && AcceptsDecimals(m_format) && m_read == m_text.size() &&
        decimals < m_format.m_nDecimals)
        Pad(hasPoint, decimals);
}

// Rounds the fraction, which begins at @a fraction, to the decimals of the format.
void ShownNumber::Round(std::size_t fraction)
{
    m_end = fraction + std::min<std::uint64_t>(m_read - fraction, m_format.m_nDecimals);
    if (m_end < m_read && m_text[m_end] >= L'5' && CarriesOver(&m_text[m_begin], &m_text[m_end]))
        m_text[--m_begin] = L'1';
    if (m_format.m_nDecimals == 0)
        --m_end;
}

// Appends zeros until the number has as many decimals as the format, but at most kMostPadding zeros. If the number has
// no point, appends the point first. The text must end with the number.
void ShownNumber::Pad(bool hasPoint, std::size_t decimals)
{
    if (!hasPoint)
        m_text += m_format.m_chDecimalPoint;
    m_text.append(std::min(m_format.m_nDecimals - decimals, kMostPadding), L'0');
    m_end = m_read = m_text.size();
}

// Removes everything after the shown mantissa except an exponent.
void ShownNumber::KeepExponentAlone()
{
    std::size_t end = m_read;
    if (end < m_text.size() && IsExponentLetter(m_text[end])) {
        ++end;
        if (end < m_text.size() && IsSign(m_text[end]))
            ++end;
        end = DigitsEnd(end);
    }
    m_text.erase(end);
    m_text.erase(m_end, m_read - m_end);
}

// Inserts the minus sign. The sign belongs to the mantissa: a trailing sign comes before the exponent.
void ShownNumber::PutMinus()
{
    if (m_format.m_bTrailingMinus)
        m_text.insert(m_end, 1, L'-');
    else
        m_text[--m_begin] = L'-';
}

}  // namespace

void CNumberEditUtils::CutZeros(wxString& text, const CNumberFormat& format)
{
    std::wstring number;
    AppendWithoutZeros(number, text.ToStdWstring(), format.m_chDecimalPoint);
    text.assign(number);
}

void CNumberEditUtils::GroupDigits(wxString& text, const CNumberFormat& format)
{
    std::wstring number = text.ToStdWstring();
    const std::size_t end = Group(number, 0, number.size(), format);
    CutAtZeroCharacter(number, 0, end);
    text.assign(number);
}

bool CNumberEditUtils::ValidateString(const wchar_t* text, const CNumberFormat& format)
{
    text = fittings::OrEmpty(text);
    const std::wstring point = LocalePoint();
    std::wstring replaced;
    if (ReplacePoint(replaced, text, std::wstring_view(&format.m_chDecimalPoint, 1), point))
        text = replaced.c_str();
    return IsWithinBounds(text, format) && IsNumber(text, point.empty() ? L'\0' : point[0], format);
}

bool CNumberEditUtils::ValidateInput(const wchar_t* text, const CNumberFormat& format)
{
    const std::wstring_view number = fittings::OrEmpty(text);
    if (AcceptsDecimals(format) && !number.empty()) {
        const wchar_t point = format.m_chDecimalPoint;
        if (number.size() == 1 && (number[0] == point || number[0] == L'0'))
            return true;
        if (number.size() > 1 && number[0] == L'0' && number[1] == point && number.size() - 2 <= format.m_nDecimals &&
            number.find_first_not_of(L'0', 2) == number.npos)
            return true;
    }
    return ValidateString(text, format);
}

wxString CNumberEditUtils::FormatControlText(const wchar_t* text, const CNumberFormat& format)
{
    text = fittings::OrEmpty(text);
    if (*text == L'\0')
        return {};
    std::wstring replaced;
    const bool replaces = ReplacePoint(replaced, text, LocalePoint(), std::wstring_view(&format.m_chDecimalPoint, 1));
    const wxString shown = ShownNumber(replaces ? std::wstring_view(replaced) : text, format).Text();
    if (format.m_strTemplate == L"%s")
        return shown;
    return wxString::Format(wxString(format.m_strTemplate), shown);
}
