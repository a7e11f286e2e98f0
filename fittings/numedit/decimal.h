#ifndef FITTINGS_NUMEDIT_DECIMAL_H_
#define FITTINGS_NUMEDIT_DECIMAL_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Numbers in decimal digits, of any length. Private to the library.

namespace fittings {

/// A number whose value is 0.DIGITS times ten to the power of `point`; each value has one such form.
///
/// Exponents beyond 10^17 count as 10^17: no text of digits gets there.
struct Decimal
{
    bool negative = false;
    std::string digits;      ///< Without zeros at either end; none is the number 0, which is never negative.
    std::int64_t point = 0;  ///< How many digits stand before the decimal point; 0 of the number 0.

    bool IsZero() const { return digits.empty(); }
};

constexpr std::int64_t kMostExponent = 100'000'000'000'000'000;

/// The number of which @a digits are the digits and @a point stand before the decimal point. Digits may be zeros.
Decimal MakeDecimal(std::string_view digits, std::int64_t point, bool negative = false);

/// Reads a sign, digits with a `.` among them, and an exponent; nothing where the text is anything else.
std::optional<Decimal> ParseDecimal(std::string_view text);

/// The shortest number that is read as @a value; nothing for one that is infinite or no number.
std::optional<Decimal> DecimalOf(double value);

/// The nearest double; nothing where it would be infinite.
std::optional<double> DoubleOf(const Decimal& number);

/// The same number; nothing where it has a fraction or does not fit.
std::optional<std::int64_t> IntegerOf(const Decimal& number);

/// Less than 0, 0 or more than 0, as @a left is less than, equal to or more than @a right.
int Compare(const Decimal& left, const Decimal& right);

Decimal Negated(Decimal number);

/// The number with at least @a decimals decimals and no exponent; nothing where it has more than 100,000 digits.
std::optional<std::string> PlainText(const Decimal& number, std::int64_t decimals = 0);

/// The sum; nothing where it has more than 100,000 digits.
std::optional<Decimal> Sum(const Decimal& left, const Decimal& right);

/// Of numbers that are not negative, the next one up or down that has no more than @a decimals decimals, which may be
/// less than 0.
/// @{
Decimal RoundedUp(const Decimal& number, std::int64_t decimals);
Decimal RoundedDown(const Decimal& number, std::int64_t decimals);
/// @}

/// The number that follows @a digits when counting up by one in the last digit.
Decimal Following(std::string_view digits, std::int64_t point);

}  // namespace fittings

#endif
