#ifndef FITTINGS_NUMEDIT_NUMBER_RULES_H_
#define FITTINGS_NUMEDIT_NUMBER_RULES_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <fittings/numedit/decimal.h>
#include <fittings/numedit/number_format.h>

// Checks whether a text is a number that a format accepts, or the beginning of such a number. The bounds may have any
// number of digits. Private to the library.

namespace fittings {

struct NumberRules
{
    wchar_t point = L'.';
    bool allowsSign = true;
    bool allowsExponent = false;
    std::int64_t mostIntegers = kMostExponent;  ///< the largest number of digits before the point
    std::int64_t mostDecimals = 0;              ///< the largest number of digits after the point
    std::optional<Decimal> min;
    std::optional<Decimal> max;
};

/// Returns the rules of a format. Each bound becomes the shortest decimal number that converts to the same `double`:
/// 0.3 stays 0.3.
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

/// Returns the state of @a text, which must be plain text: without groups and blanks, and with the sign in front.
NumberState Judge(std::wstring_view text, const NumberRules& rules);

/// Returns whether @a text is empty, a number within the bounds, or the beginning of such a number.
///
/// Zeros in front do not change the number: "007" is 7. These zeros count as digits before the point. A minus sign is
/// accepted only if a number below 0 is within the bounds. With a lowest value of 0, "-" is refused, although "-0" is a
/// number within the bounds.
bool CanBeTyped(std::wstring_view text, const NumberRules& rules);

/// Returns the number that the plain text @a text represents, whatever the bounds and limits are. Returns nothing if
/// @a text is not a complete number.
std::optional<Decimal> NumberIn(std::wstring_view text, wchar_t point);

/// Converts a formatted text, for example from CNumberEditUtils::FormatControlText(), to plain text. The formatted text
/// may have blanks at its ends, the template, groups of three digits, and the minus before or after the number.
/// Returns nothing if the text is not a complete number or has more digits than are allowed.
std::optional<std::wstring> PlainTextOf(std::wstring_view text, const CNumberFormat& format);

/// Converts a plain text to a text for ParseDecimal(), with `.` as the point: "+5." gives "5". Returns an empty text if
/// there is no complete number.
std::string DecimalTextOf(std::wstring_view plain, wchar_t point);

/// Returns the decimal text with the point `.` replaced by @a point. If @a point is 0, nothing is replaced.
std::wstring WithPoint(std::string_view decimal, wchar_t point);

}  // namespace fittings

#endif
