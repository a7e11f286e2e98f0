#ifndef FITTINGS_NUMEDIT_NUMBER_RULES_H_
#define FITTINGS_NUMEDIT_NUMBER_RULES_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <fittings/numedit/decimal.h>
#include <fittings/numedit/number_format.h>

// Which texts are a number of a format, or the beginning of one, within bounds of any length. Private to the library.

namespace fittings {

/// What may stand in a field for one number.
struct NumberRules
{
    wchar_t point = L'.';
    bool allowsSign = true;
    bool allowsExponent = false;
    std::int64_t mostIntegers = kMostExponent;  ///< digits before the point
    std::int64_t mostDecimals = 0;              ///< digits behind it
    std::optional<Decimal> min;
    std::optional<Decimal> max;
};

/// The rules of a format, with its bounds as the shortest decimal texts that are read as them: 0.3 is 0.3.
NumberRules RulesOf(const CNumberFormat& format);

enum class NumberState {
    Empty,
    Good,
    Unfinished,  ///< begins a number: "-", ".", "1e"
    NoNumber,
    TooManyIntegers,
    TooManyDecimals,
    TooLow,
    TooHigh
};

/// What @a text is. It is plain text: no groups, no blanks, the sign in front.
NumberState Judge(std::wstring_view text, const NumberRules& rules);

/// Whether @a text is empty, a number within the bounds, or the beginning of one.
///
/// Zeros in front are no other number: "007" is 7. A minus needs a number below 0 that begins so: with a lowest value
/// of 0, "-0" is a number within the bounds and "-" is refused all the same.
bool CanBeTyped(std::wstring_view text, const NumberRules& rules);

/// The number that plain text is, whatever the bounds and how many digits are allowed.
std::optional<Decimal> NumberIn(std::wstring_view text, wchar_t point);

/// The plain text of a text that CNumberEditUtils::FormatControlText() may have made: with blanks around it, in the
/// template or without it, with groups of three digits, and with the minus in front or behind. Nothing where the text
/// is no number, or one of more digits than are allowed.
std::optional<std::wstring> PlainTextOf(std::wstring_view text, const CNumberFormat& format);

/// The same number with `.` as its point, as programs read it: "+5." is "5"; empty where there is none.
std::string DecimalTextOf(std::wstring_view plain, wchar_t point);

/// A decimal text as plain text with that point.
std::wstring WithPoint(std::string_view decimal, wchar_t point);

}  // namespace fittings

#endif
