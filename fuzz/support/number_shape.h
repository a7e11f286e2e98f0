#ifndef FITTINGS_FUZZ_NUMBER_SHAPE_H_
#define FITTINGS_FUZZ_NUMBER_SHAPE_H_

#include <cstdint>
#include <limits>
#include <string>

/// The parts that a number may have; all of them by default.
struct NumberShape
{
    wchar_t point;
    bool sign = true;
    bool exponent = true;
    bool exponentWithoutLetter = true;
    bool fraction = true;
    std::uint64_t maxIntDigits = std::numeric_limits<std::uint64_t>::max();
    std::uint64_t maxDecimals = std::numeric_limits<std::uint64_t>::max();
};

/// Returns whether @a text is a number of the given shape, or the beginning of such a number. A number with all parts
/// is `[+-]? [0-9]* (P [0-9]*)?`, in which P is the point. After a digit or the point, `[eE]? [+-]? [0-9]*` may follow.
bool HasShape(const std::wstring& text, const NumberShape& shape);

/// Returns false if @a point is a digit, a sign, an exponent letter, a blank or the null character.
bool IsPlainPoint(wchar_t point);

/// Returns the text without the blanks at both ends.
std::wstring WithoutBlanks(const std::wstring& text);

/// Returns the value that wcstod() reads.
double ValueOf(const std::wstring& text);

/// Returns @a text without the occurrences of @a character.
std::wstring Without(std::wstring text, wchar_t character);

#endif
