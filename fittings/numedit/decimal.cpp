#include <fittings/numedit/decimal.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace fittings {

namespace {

constexpr std::int64_t kMostDigits = 100'000;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::string_view TakeDigits(std::string_view& text)
{
    const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
    const std::string_view digits = text.substr(0, end - text.begin());
    text.remove_prefix(digits.size());
    return digits;
}

bool TakeSign(std::string_view& text)
{
    if (text.empty() || (text.front() != '-' && text.front() != '+'))
        return false;
    const bool negative = text.front() == '-';
    text.remove_prefix(1);
    return negative;
}

// Returns the value of an exponent's digits, at most kMostExponent.
std::int64_t ExponentOf(std::string_view digits)
{
    std::int64_t value = 0;
    for (const char digit : digits)
        value = std::min(value * 10 + (digit - '0'), kMostExponent);
    return value;
}

// Adds one to the last digit. If all digits are 9, also puts a 1 before the digits and returns true.
bool Increment(std::string& digits)
{
    for (auto at = digits.rbegin(); at != digits.rend(); ++at) {
        if (*at != '9') {
            ++*at;
            return false;
        }
        *at = '0';
    }
    digits.insert(digits.begin(), '1');
    return true;
}

// Returns the index in number.digits at which the digits must be cut off to keep @a decimals digits after the point.
// The index may be negative or beyond the end.
std::int64_t DigitsKept(const Decimal& number, std::int64_t decimals)
{
    return number.point + std::clamp(decimals, -kMostExponent, kMostExponent);
}

// Returns the digits between the places @a top and @a bottom, with zeros where the number has no digits. All digits of
// the number must be between these places. A place is a gap between two digits: place 0 is the decimal point, place 1
// is one digit to its left, and place -1 is one digit to its right.
std::string DigitsBetween(const Decimal& number, std::int64_t top, std::int64_t bottom)
{
    std::string result(static_cast<std::size_t>(top - bottom), '0');
    std::copy(number.digits.begin(), number.digits.end(), result.begin() + (top - number.point));
    return result;
}

std::int64_t LowestPlace(const Decimal& number)
{
    return number.point - static_cast<std::int64_t>(number.digits.size());
}

// Subtracts @a less from @a digits. The texts must have the same length, and @a less must not be the larger number.
std::string Difference(std::string digits, const std::string& less)
{
    int borrowed = 0;
    for (std::size_t at = digits.size(); at-- > 0;) {
        int digit = digits[at] - less[at] - borrowed;
        borrowed = digit < 0 ? 1 : 0;
        digit += borrowed * 10;
        digits[at] = static_cast<char>('0' + digit);
    }
    return digits;
}

std::string Total(std::string digits, const std::string& more)
{
    int carried = 0;
    for (std::size_t at = digits.size(); at-- > 0;) {
        const int digit = (digits[at] - '0') + (more[at] - '0') + carried;
        carried = digit / 10;
        digits[at] = static_cast<char>('0' + digit % 10);
    }
    return digits;
}

int CompareMagnitudes(const Decimal& left, const Decimal& right)
{
    if (left.IsZero() || right.IsZero())
        return int{right.IsZero()} - int{left.IsZero()};
    if (left.point != right.point)
        return left.point < right.point ? -1 : 1;
    return left.digits.compare(right.digits);
}

}  // namespace

Decimal MakeDecimal(std::string_view digits, std::int64_t point, bool negative)
{
    const std::size_t first = digits.find_first_not_of('0');
    if (first == digits.npos)
        return {};
    const std::size_t last = digits.find_last_not_of('0');
    const std::int64_t place = std::clamp(point - static_cast<std::int64_t>(first), -kMostExponent, kMostExponent);
    return {negative, std::string(digits.substr(first, last + 1 - first)), place};
}

std::optional<Decimal> ParseDecimal(std::string_view text)
{
    const bool negative = TakeSign(text);
    std::string digits(TakeDigits(text));
    auto point = static_cast<std::int64_t>(digits.size());
    if (!text.empty() && text.front() == '.') {
        text.remove_prefix(1);
        digits += TakeDigits(text);
    }
    if (digits.empty())
        return std::nullopt;
    if (!text.empty() && (text.front() == 'e' || text.front() == 'E')) {
        text.remove_prefix(1);
        const bool down = TakeSign(text);
        const std::string_view exponent = TakeDigits(text);
        if (exponent.empty())
            return std::nullopt;
        point += down ? -ExponentOf(exponent) : ExponentOf(exponent);
    }
    if (!text.empty())
        return std::nullopt;
    return MakeDecimal(digits, point, negative);
}

std::optional<Decimal> DecimalOf(double value)
{
    if (!std::isfinite(value))
        return std::nullopt;
    std::array<char, 64> text;
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific);
    return ParseDecimal({text.data(), static_cast<std::size_t>(written.ptr - text.data())});
}

std::optional<double> DoubleOf(const Decimal& number)
{
    if (number.IsZero())
        return 0.0;
    const std::string text = (number.negative ? "-0." : "0.") + number.digits + "e" + std::to_string(number.point);
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec == std::errc::result_out_of_range && number.point < 0)
        return 0.0;
    if (read.ec != std::errc() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

template <typename Integer>
std::optional<Integer> IntegerOf(const Decimal& number)
{
    if (number.IsZero())
        return Integer{0};
    if (LowestPlace(number) < 0 || number.point > std::numeric_limits<Integer>::digits10 + 1)
        return std::nullopt;
    const std::string text = *PlainText(number);
    Integer value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc())
        return std::nullopt;
    return value;
}

template std::optional<std::int64_t> IntegerOf(const Decimal& number);
template std::optional<int> IntegerOf(const Decimal& number);
template std::optional<unsigned> IntegerOf(const Decimal& number);

int Compare(const Decimal& left, const Decimal& right)
{
    if (left.negative != right.negative)
        return left.negative ? -1 : 1;
    return left.negative ? CompareMagnitudes(right, left) : CompareMagnitudes(left, right);
}

Decimal Negated(Decimal number)
{
    number.negative = !number.negative && !number.IsZero();
    return number;
}

std::optional<std::string> PlainText(const Decimal& number, std::int64_t decimals)
{
    const std::int64_t top = std::max<std::int64_t>(number.point, 1);
    const std::int64_t bottom = std::min({number.IsZero() ? 0 : LowestPlace(number), -decimals, std::int64_t{0}});
    if (top - bottom > kMostDigits)
        return std::nullopt;
    std::string text = DigitsBetween(number, top, bottom);
    if (bottom < 0)
        text.insert(static_cast<std::size_t>(top), 1, '.');
    if (number.negative)
        text.insert(text.begin(), '-');
    return text;
}

std::optional<Decimal> Sum(const Decimal& left, const Decimal& right)
{
    if (left.IsZero() || right.IsZero())
        return left.IsZero() ? right : left;
    const std::int64_t highest = std::max(left.point, right.point);
    const std::int64_t bottom = std::min(LowestPlace(left), LowestPlace(right));
    if (highest - bottom > kMostDigits)
        return std::nullopt;
    const std::int64_t top = highest + 1;  // one place more, for a carry
    const std::string first = DigitsBetween(left, top, bottom);
    const std::string second = DigitsBetween(right, top, bottom);
    if (left.negative == right.negative)
        return MakeDecimal(Total(first, second), top, left.negative);
    if (first >= second)
        return MakeDecimal(Difference(first, second), top, left.negative);
    return MakeDecimal(Difference(second, first), top, right.negative);
}

Decimal RoundedDown(const Decimal& number, std::int64_t decimals)
{
    const std::int64_t kept = DigitsKept(number, decimals);
    if (kept <= 0)
        return {};
    return MakeDecimal(std::string_view(number.digits).substr(0, static_cast<std::size_t>(kept)), number.point);
}

Decimal RoundedUp(const Decimal& number, std::int64_t decimals)
{
    const std::int64_t kept = DigitsKept(number, decimals);
    if (number.IsZero() || kept >= static_cast<std::int64_t>(number.digits.size()))
        return number;
    if (kept <= 0)
        return MakeDecimal("1", 1 - decimals);
    return Following(std::string_view(number.digits).substr(0, static_cast<std::size_t>(kept)), number.point);
}

Decimal Following(std::string_view digits, std::int64_t point)
{
    std::string next(digits);
    if (Increment(next))
        ++point;
    return MakeDecimal(next, point);
}

}  // namespace fittings
