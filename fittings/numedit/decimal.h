#ifndef FITTINGS_NUMEDIT_DECIMAL_H_
#define FITTINGS_NUMEDIT_DECIMAL_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Numbers in decimal digits, of any length. Private to the library.

namespace fittings {

/// A number whose value is 0.DIGITS times ten to the power of `point`. Each value has exactly one form.
///
/// A `point` above kMostExponent or below -kMostExponent is set to that limit, so that sums do not overflow.
struct Decimal
{
    bool negative = false;
    std::string digits;      ///< No zero comes first or last. Empty for the number 0, which is never negative.
    std::int64_t point = 0;  ///< The place of the decimal point: 2 for 12, 1 for 1.2, 0 for 0.12, -1 for 0.012.

    bool IsZero() const { return digits.empty(); }
};

constexpr std::int64_t kMostExponent = 100'000'000'000'000'000;

/// Makes the number 0.DIGITS times ten to the power of @a point. @a digits may begin or end with zeros.
Decimal MakeDecimal(std::string_view digits, std::int64_t point, bool negative = false);

/// Reads an optional sign, digits with an optional `.`, and an optional exponent. Returns nothing for any other text.
std::optional<Decimal> ParseDecimal(std::string_view text);

/// Returns the shortest decimal number that DoubleOf() converts to @a value. Returns nothing for an infinity and NaN.
std::optional<Decimal> DecimalOf(double value);

/// Returns the nearest `double`; nothing if that would be infinite.
std::optional<double> DoubleOf(const Decimal& number);

/// Returns the number as a std::int64_t, `int` or `unsigned`; nothing if the number has a fraction or does not fit.
template <typename Integer>
std::optional<Integer> IntegerOf(const Decimal& number);

/// Returns 0 if the numbers are equal, a value below 0 if @a left is the smaller one, and otherwise a value above 0.
int Compare(const Decimal& left, const Decimal& right);

Decimal Negated(Decimal number);

/// Returns the number with at least @a decimals decimals and no exponent; nothing if the text has over 100,000 digits.
std::optional<std::string> PlainText(const Decimal& number, std::int64_t decimals = 0);

/// Returns the sum. Returns nothing if neither number is 0, and there are more than 100,000 digits from the highest to
/// the lowest nonzero digit of the two numbers.
std::optional<Decimal> Sum(const Decimal& left, const Decimal& right);

/// Rounds a non-negative number up or down to @a decimals decimals. With -2 decimals, rounds the number to hundreds.
/// @{
Decimal RoundedUp(const Decimal& number, std::int64_t decimals);
Decimal RoundedDown(const Decimal& number, std::int64_t decimals);
/// @}

/// Adds one to the last of @a digits, and then makes the number as MakeDecimal() does.
Decimal Following(std::string_view digits, std::int64_t point);

}  // namespace fittings

#endif
