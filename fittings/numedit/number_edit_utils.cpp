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

// What iswdigit() answers in every locale of the C library, without a call for each digit.
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

/// Where the digits from @a at on end.
std::size_t DigitsEnd(std::wstring_view text, std::size_t at)
{
    while (at < text.size() && IsDigit(text[at]))
        ++at;
    return at;
}

std::wstring Replaced(std::wstring_view text, std::wstring_view from, std::wstring_view to)
{
    std::wstring result;
    result.reserve(text.size());
    std::size_t at = 0;
    for (std::size_t found; (found = text.find(from, at)) != text.npos; at = found + from.size())
        result.append(text, at, found - at).append(to);
    return result.append(text, at, text.npos);
}

void CutBlanksAndLeadingZeros(std::wstring& text)
{
    std::size_t begin = 0;
    while (begin < text.size() && std::iswspace(text[begin]))
        ++begin;
    while (begin + 1 < text.size() && text[begin] == L'0')
        ++begin;
    std::size_t end = text.size();
    while (end > begin && std::iswspace(text[end - 1]))
        --end;
    text.erase(end);
    text.erase(0, begin);
}

void CutZerosOf(std::wstring& text, wchar_t point)
{
    CutBlanksAndLeadingZeros(text);

    const std::size_t exponent = std::find_if(text.begin(), text.end(), IsExponentLetter) - text.begin();
    std::size_t end = exponent;
    if (std::wstring_view(text).substr(0, exponent).find(point) != text.npos) {
        while (end > 1 && text[end - 1] == L'0')
            --end;
        if (text[end - 1] == point)
            --end;
    }
    text.erase(end, exponent - end);
    if (end == 0 || text[0] == point)
        text.insert(0, 1, L'0');
}

void CutAtZeroCharacter(std::wstring& text)
{
    text.resize(std::min(text.find(L'\0'), text.size()));
}

std::wstring Grouped(std::wstring_view text, const CNumberFormat& format)
{
    const std::size_t integers = std::min(text.find(format.m_chDecimalPoint), text.size());
    std::wstring result;
    result.reserve(text.size() + integers / 3);
    std::size_t at = std::min((integers + 2) % 3 + 1, integers);
    result.append(text, 0, at);
    for (; at < integers; at += 3)
        result.append(1, format.m_chThousandsSep).append(text, at, 3);
    result.append(text, integers, text.npos);
    CutAtZeroCharacter(result);
    return result;
}

bool IsWithinBounds(const wchar_t* text, const CNumberFormat& format)
{
    if (!format.m_bHasMax && !format.m_bHasMin)
        return true;
    const double value = std::wcstod(text, nullptr);
    // Asked this way round, a bound or a value that is no number refuses nothing.
    return !(format.m_bHasMax && value > format.m_dMax) && !(format.m_bHasMin && format.m_dMin > value);
}

bool AcceptsDecimals(const CNumberFormat& format)
{
    return format.m_bHasDecimals && format.m_nDecimals != 0;
}

bool IsExponent(std::wstring_view text, std::size_t at)
{
    if (IsExponentLetter(text[at]))
        ++at;
    // The letter is not needed: 12-5 is accepted like 12e-5.
    if (at < text.size() && IsSign(text[at]))
        ++at;
    return DigitsEnd(text, at) == text.size();
}

/// Whether @a text, whose decimal point is @a point, is a number as far as it goes, whatever its value.
bool IsNumber(std::wstring_view text, wchar_t point, const CNumberFormat& format)
{
    const std::size_t begin = format.m_bAllowSign && !text.empty() && IsSign(text[0]) ? 1 : 0;

    std::size_t at = DigitsEnd(text, begin);
    if (format.m_bHasMaxIntDigits && at - begin > format.m_nMaxIntDigits)
        return false;
    if (at == text.size())
        return true;

    if (AcceptsDecimals(format)) {
        if (text[at] == point)
            ++at;
        const std::size_t fraction = at;
        at = DigitsEnd(text, fraction);
        if (at - fraction > format.m_nDecimals)
            return false;
        if (at == text.size())
            return true;
    }
    return at != begin && format.m_bAllowExponent && IsExponent(text, at);
}

// Rounding to no decimals can leave nothing but the point, or nothing at all: then the carry is the whole number.
void AddOneToLastDigit(std::wstring& number)
{
    for (std::size_t at = number.size(); at-- > 0;) {
        if (!IsDigit(number[at]))
            continue;
        if (number[at] != L'9') {
            ++number[at];
            return;
        }
        number[at] = L'0';
    }
    number.insert(0, 1, L'1');
}

/// Appends the fraction's @a digits, with the decimal point that stands before them in @a number, as rounding says.
void AppendFraction(std::wstring& number, std::wstring_view digits, const CNumberFormat& format)
{
    if (!format.m_bRoundDecimals || !format.m_bHasDecimals) {
        number.append(digits);
        return;
    }
    number.append(digits.substr(0, std::min<std::uint64_t>(digits.size(), format.m_nDecimals)));
    if (digits.size() > format.m_nDecimals && digits[format.m_nDecimals] >= L'5')
        AddOneToLastDigit(number);
    if (format.m_nDecimals == 0)
        number.pop_back();
}

/// The number in @a text from @a at on, up to its exponent. Moves @a at behind what was read.
std::wstring Mantissa(std::wstring_view text, std::size_t& at, const CNumberFormat& format)
{
    const std::size_t integers = DigitsEnd(text, at);
    std::wstring number;
    number.reserve(text.size() + 1);
    number.append(text, at, integers - at);
    at = integers;

    std::size_t decimals = 0;
    const bool hasPoint = at < text.size() && text[at] == format.m_chDecimalPoint;
    if (hasPoint) {
        number += format.m_chDecimalPoint;
        const std::size_t fraction = at + 1;
        at = DigitsEnd(text, fraction);
        decimals = at - fraction;
        AppendFraction(number, text.substr(fraction, decimals), format);
    }

    if (format.m_bPadDecimals && AcceptsDecimals(format) && at == text.size()) {
        if (!hasPoint)
            number += format.m_chDecimalPoint;
        if (decimals < format.m_nDecimals)
            number.append(std::min(format.m_nDecimals - decimals, kMostPadding), L'0');
    }
    return number;
}

/// The exponent that @a text has at @a at; empty when there is none.
std::wstring_view Exponent(std::wstring_view text, std::size_t at)
{
    if (at == text.size() || !IsExponentLetter(text[at]))
        return {};
    std::size_t end = at + 1;
    if (end < text.size() && IsSign(text[end]))
        ++end;
    return text.substr(at, DigitsEnd(text, end) - at);
}

}  // namespace

void CNumberEditUtils::CutZeros(wxString& text, const CNumberFormat& format)
{
    std::wstring number = text.ToStdWstring();
    CutZerosOf(number, format.m_chDecimalPoint);
    text.assign(number);
}

void CNumberEditUtils::GroupDigits(wxString& text, const CNumberFormat& format)
{
    text.assign(Grouped(text.ToStdWstring(), format));
}

bool CNumberEditUtils::ValidateString(const wchar_t* text, const CNumberFormat& format)
{
    std::wstring_view number = fittings::OrEmpty(text);
    const std::wstring point = LocalePoint();
    const std::wstring_view typedPoint(&format.m_chDecimalPoint, 1);
    std::wstring replaced;
    if (!point.empty() && point != typedPoint && number.find(typedPoint) != number.npos) {
        replaced = Replaced(number, typedPoint, point);
        number = replaced;
    }
    return IsWithinBounds(number.data(), format) && IsNumber(number, point.empty() ? L'\0' : point[0], format);
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
    std::wstring raw = fittings::OrEmpty(text);
    if (raw.empty())
        return {};
    const std::wstring point = LocalePoint();
    const std::wstring_view shownPoint(&format.m_chDecimalPoint, 1);
    if (!point.empty() && point != shownPoint)
        raw = Replaced(raw, point, shownPoint);
    CutZerosOf(raw, format.m_chDecimalPoint);

    const bool minus = raw[0] == L'-';
    std::size_t at = IsSign(raw[0]) ? 1 : 0;
    std::wstring shown = Mantissa(raw, at, format);
    if (format.m_bGroupDigits)
        shown = Grouped(shown, format);
    else
        CutAtZeroCharacter(shown);
    // The sign belongs to the mantissa: a trailing one stands before the exponent.
    if (minus)
        shown.insert(format.m_bTrailingMinus ? shown.size() : 0, 1, L'-');
    shown.append(Exponent(raw, at));

    if (format.m_strTemplate == L"%s")
        return wxString(shown);
    return wxString::Format(wxString(format.m_strTemplate), shown);
}
