#ifndef FITTINGS_FUZZ_NUMBER_SHAPE_H_
#define FITTINGS_FUZZ_NUMBER_SHAPE_H_

#include <cstdint>
#include <limits>
#include <string>

/// What a number may consist of; as it stands, of everything.
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

/// Whether @a text begins a number of that shape or is one: the automaton of
/// `[+-]? [0-9]* (P [0-9]*)?` and, behind at least one digit or point, `[eE]? [+-]? [0-9]*`.
bool HasShape(const std::wstring& text, const NumberShape& shape);

/// Whether nothing else in a number can be mistaken for this point.
bool IsPlainPoint(wchar_t point);

/// Without the blanks at either end.
std::wstring WithoutBlanks(const std::wstring& text);

/// What wcstod() reads.
double ValueOf(const std::wstring& text);

/// Without each @a character.
std::wstring Without(std::wstring text, wchar_t character);

#endif
