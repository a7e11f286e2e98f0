// FormatControlText(): each field of the format has its effect, and only rounding changes the absolute value.

#include <algorithm>
#include <cmath>

#include <fittings/numedit/number_edit_utils.h>
#include <fuzz/support/check.h>
#include <fuzz/support/number_input.h>
#include <fuzz/support/number_shape.h>

namespace {

constexpr std::size_t kMostChecked = 10'000;

std::wstring Show(const std::wstring& text, const CNumberFormat& format)
{
    return CNumberEditUtils::FormatControlText(text.c_str(), format).ToStdWstring();
}

// Returns the format that shows the number alone: no groups, the sign in front, no text around it.
CNumberFormat Bare(CNumberFormat format)
{
    format.m_bGroupDigits = false;
    format.m_bTrailingMinus = false;
    format.m_strTemplate = L"%s";
    return format;
}

bool IsPartOfNumbers(wchar_t character, wchar_t point)
{
    static const std::wstring parts = L"0123456789+-eE";
    return character == point || parts.find(character) != std::wstring::npos;
}

void CheckGrouping(const std::wstring& typed, const CNumberFormat& format, const std::wstring& bare)
{
    const wchar_t separator = format.m_chThousandsSep;
    if (separator == 0 || IsPartOfNumbers(separator, format.m_chDecimalPoint))
        return;
    CNumberFormat grouped = Bare(format);
    grouped.m_bGroupDigits = true;
    Check(Without(Show(typed, grouped), separator) == bare, "grouping adds separators only");
}

void CheckMinus(const std::wstring& typed, const CNumberFormat& format, const std::wstring& bare)
{
    CNumberFormat trailing = Bare(format);
    trailing.m_bTrailingMinus = true;
    std::wstring shown = Show(typed, trailing);
    if (!bare.empty() && bare[0] == L'-' && format.m_chDecimalPoint != L'-') {
        const std::size_t minus = shown.find(L'-');
        Check(minus != std::wstring::npos, "a trailing minus is there");
        shown = L"-" + shown.erase(minus, 1);
    }
    if (format.m_chDecimalPoint != L'-')
        Check(shown == bare, "a trailing minus is the leading minus, moved");
}

void CheckTemplate(const std::wstring& typed, const CNumberFormat& format, const std::wstring& bare)
{
    CNumberFormat framed = Bare(format);
    framed.m_strTemplate = L"<%%%s>";
    Check(Show(typed, framed) == L"<%" + bare + L">", "the template surrounds the number");
}

std::size_t DecimalsOf(const std::wstring& number, wchar_t point)
{
    const std::size_t at = number.find(point);
    if (at == std::wstring::npos)
        return 0;
    const std::size_t end = std::min(number.find_first_not_of(L"0123456789", at + 1), number.size());
    return end - at - 1;
}

// Checks that the shown number is rounded and padded as the format says, and that its value is otherwise unchanged.
// Call this function only if IsPlainPoint() accepts the point of the format.
void CheckNumber(const std::wstring& number, const NumberInput& input, const std::wstring& bare)
{
    const CNumberFormat& format = input.format;
    const std::uint64_t decimals = format.m_nDecimals;
    const bool isRounded = format.m_bRoundDecimals && format.m_bHasDecimals;
    const bool isPadded = format.m_bPadDecimals && format.m_bHasDecimals && decimals > 0;
    const bool hasExponent = bare.find_first_of(L"eE") != std::wstring::npos;
    const std::size_t shownDecimals = DecimalsOf(bare, format.m_chDecimalPoint);

    if (isRounded)
        Check(shownDecimals <= decimals, "a rounded number has at most the given decimals");
    if (isPadded && !hasExponent)
        Check(shownDecimals >= std::min<std::uint64_t>(decimals, 1'000'000), "a padded number has all its decimals");
    // Leave out two kinds of numbers that a second call may change. "+07" becomes "07", and then "7". "1.96" may be
    // rounded to "2.0", which then becomes "2".
    if (number[0] != L'+' && (!isRounded || (isPadded && !hasExponent)))
        Check(Show(bare, Bare(format)) == bare, "a second call changes nothing");

    if (format.m_chDecimalPoint != input.localePoint)
        return;
    const double value = std::fabs(ValueOf(number));
    const double shownValue = std::fabs(ValueOf(bare));
    if (!isRounded) {
        Check(shownValue == value, "the value is unchanged");
    } else if (!hasExponent && value < 1e12) {
        const double half = 0.5 * std::pow(10.0, -static_cast<double>(decimals));
        const double tolerance = 1e-12 * std::fmax(value, 1);
        Check(std::fabs(shownValue - value) <= half + tolerance, "rounding moves by at most half of the last place");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const NumberInput input(data, size);
    const CNumberFormat& format = input.format;
    const std::wstring typed = input.Typed();
    const wchar_t point = format.m_chDecimalPoint;
    const std::wstring shown = Show(typed, format);
    if (typed.empty()) {
        Check(shown.empty(), "an empty text stays empty");
        return 0;
    }

    // For large texts, check only the time.
    if (typed.size() > kMostChecked || shown.size() > kMostChecked)
        return 0;

    const std::wstring bare = Show(typed, Bare(format));
    Check(std::all_of(bare.begin(), bare.end(), [point](wchar_t part) { return IsPartOfNumbers(part, point); }),
          "nothing but the parts of a number is shown");
    CheckGrouping(typed, format, bare);
    CheckMinus(typed, format, bare);
    CheckTemplate(typed, format, bare);

    std::wstring number = WithoutBlanks(typed);
    NumberShape shape{point};
    shape.exponentWithoutLetter = false;
    if (IsPlainPoint(point) && HasShape(number, shape))
        CheckNumber(number, input, bare);
    return 0;
}
