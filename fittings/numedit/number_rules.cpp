#include <fittings/numedit/number_rules.h>

#include <algorithm>
#include <cmath>

namespace fittings {

namespace {

bool IsDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

bool IsSign(wchar_t c)
{
    return c == L'-' || c == L'+';
}

// The parts of a number that have been typed so far.
struct Typed
{
    wchar_t sign = 0;
    std::string integers;
    bool hasPoint = false;
    std::string decimals;
    bool hasExponent = false;
    wchar_t exponentSign = 0;
    std::string exponent;

    bool HasDigits() const { return !integers.empty() || !decimals.empty(); }
    bool IsFinished() const { return HasDigits() && (!hasExponent || !exponent.empty()); }
    std::string Digits() const { return integers + decimals; }
    auto Integers() const { return static_cast<std::int64_t>(integers.size()); }
    auto Decimals() const { return static_cast<std::int64_t>(decimals.size()); }
};

std::string TakeDigits(std::wstring_view& text)
{
    std::string digits;
    while (!text.empty() && IsDigit(text.front())) {
        digits += static_cast<char>(text.front());
        text.remove_prefix(1);
    }
    return digits;
}

wchar_t TakeSign(std::wstring_view& text)
{
    if (text.empty() || !IsSign(text.front()))
        return 0;
    const wchar_t sign = text.front();
    text.remove_prefix(1);
    return sign;
}

std::optional<Typed> Parse(std::wstring_view text, wchar_t point)
{
    Typed typed;
    typed.sign = TakeSign(text);
    typed.integers = TakeDigits(text);
    if (!text.empty() && point != 0 && text.front() == point) {
        text.remove_prefix(1);
        typed.hasPoint = true;
        typed.decimals = TakeDigits(text);
    }
    if (!text.empty() && typed.HasDigits() && (text.front() == L'e' || text.front() == L'E')) {
        text.remove_prefix(1);
        typed.hasExponent = true;
        typed.exponentSign = TakeSign(text);
        typed.exponent = TakeDigits(text);
    }
    if (!text.empty())
        return std::nullopt;
    return typed;
}

std::optional<Decimal> ValueOf(const Typed& typed)
{
    if (!typed.IsFinished())
        return std::nullopt;
    std::string text = typed.sign == L'-' ? "-" : "";
    text += typed.integers + "." + typed.decimals;
    if (typed.hasExponent)
        text += (typed.exponentSign == L'-' ? "e-" : "e") + typed.exponent;
    return ParseDecimal(text);
}

// The numbers of one sign within the bounds, as a range of absolute values.
struct Span
{
    Decimal low;
    bool withoutZero = false;
    std::optional<Decimal> high;

    bool HasZero() const { return low.IsZero() && !withoutZero; }
};

std::optional<Span> SpanOf(bool negative, const NumberRules& rules)
{
    Span span;
    const std::optional<Decimal>& near = negative ? rules.max : rules.min;
    const std::optional<Decimal>& far = negative ? rules.min : rules.max;
    if (near && !near->IsZero() && near->negative == negative)
        span.low = negative ? Negated(*near) : *near;
    if (far) {
        if (far->negative != negative && !(far->IsZero() && !negative))
            return std::nullopt;
        span.high = negative ? Negated(*far) : *far;
    }
    span.withoutZero = negative;
    return span;
}

// Returns whether the span has a number that is at least @a begin, is less than @a end, and has at most @a decimals
// decimals.
bool Meets(const Decimal& begin, const std::optional<Decimal>& end, const Span& span, std::int64_t decimals)
{
    Decimal low = RoundedUp(span.low, decimals);
    if (low.IsZero() && span.withoutZero)
        low = MakeDecimal("1", 1 - decimals);
    if (end && Compare(low, *end) >= 0)
        return false;
    if (!span.high)
        return true;
    const Decimal high = RoundedDown(*span.high, decimals);
    return Compare(low, high) <= 0 && Compare(begin, high) <= 0;
}

// Returns whether the typed number, which has no exponent, is in the span or can get there with more digits.
bool GrowsInto(const Span& span, const Typed& typed, const NumberRules& rules)
{
    if (typed.hasPoint) {
        return Meets(MakeDecimal(typed.Digits(), typed.Integers()), Following(typed.Digits(), typed.Integers()), span,
                     rules.mostDecimals);
    }
    const std::int64_t more = rules.mostIntegers - typed.Integers();
    const Decimal begin = MakeDecimal(typed.integers, typed.Integers());
    if (begin.IsZero())
        return Meets(begin, MakeDecimal("1", more + 1), span, rules.mostDecimals);
    // Try `least` to `least` + 3 additional digits. With fewer digits, the number is below the span. With `least` + 3
    // digits, the number is above the lowest number of the span. If it is not in the span, it is above the whole span,
    // and every number with more digits is even higher.
    const std::int64_t least = std::max<std::int64_t>(span.low.point - begin.point - 1, 0);
    for (std::int64_t digits = least; digits <= std::min(least + 3, more); ++digits) {
        if (Meets(MakeDecimal(typed.integers, typed.Integers() + digits),
                  Following(typed.integers, typed.Integers() + digits), span, rules.mostDecimals))
            return true;
    }
    return false;
}

// Returns whether the span has a number that begins with @a digits and has at most @a more digits after them. The
// point may be at any place. The first of @a digits must not be a zero.
bool HasWithDigits(const Span& span, const std::string& digits, std::int64_t more)
{
    if (span.high && span.high->IsZero())
        return false;
    if (!span.high || span.low.IsZero() || span.high->point - span.low.point > 1)
        return true;
    const std::int64_t all = static_cast<std::int64_t>(digits.size()) + more;
    for (const std::int64_t point : {span.low.point, span.high->point}) {
        if (Meets(MakeDecimal(digits, point), Following(digits, point), span, all - point))
            return true;
    }
    return false;
}

// Returns whether the typed number, which has no exponent yet, can get into the span with more digits and an exponent.
bool ScalesInto(const Span& span, const Typed& typed, const NumberRules& rules)
{
    const std::int64_t more =
        rules.mostDecimals - typed.Decimals() + (typed.hasPoint ? 0 : rules.mostIntegers - typed.Integers());
    std::string digits = typed.Digits();
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    if (!digits.empty())
        return HasWithDigits(span, digits, more);
    if (span.HasZero())
        return true;
    for (char first = '1'; more > 0 && first <= '9'; ++first) {
        if (HasWithDigits(span, std::string(1, first), more - 1))
            return true;
    }
    return false;
}

// Returns whether the typed number can get into the span with an exponent that begins with the typed exponent.
bool ExponentLeadsInto(const Span& span, const Typed& typed)
{
    const Decimal number = MakeDecimal(typed.Digits(), typed.Integers());
    if (number.IsZero())
        return span.HasZero();
    if (span.high && span.high->IsZero())
        return false;
    NumberRules exponents;
    if (!span.low.IsZero()) {
        const std::int64_t least = span.low.point - number.point + (number.digits < span.low.digits ? 1 : 0);
        exponents.min = ParseDecimal(std::to_string(least));
    }
    if (span.high) {
        const std::int64_t most = span.high->point - number.point - (number.digits > span.high->digits ? 1 : 0);
        exponents.max = ParseDecimal(std::to_string(most));
    }
    if (exponents.min && exponents.max && Compare(*exponents.min, *exponents.max) > 0)
        return false;
    std::wstring text(typed.exponent.begin(), typed.exponent.end());
    if (typed.exponentSign != 0)
        text.insert(text.begin(), typed.exponentSign);
    return CanBeTyped(text, exponents);
}

bool HasTooManyDecimals(const Typed& typed, const NumberRules& rules)
{
    return typed.Decimals() > rules.mostDecimals || (typed.hasPoint && rules.mostDecimals == 0);
}

std::int64_t Limited(std::uint64_t digits)
{
    return static_cast<std::int64_t>(std::min<std::uint64_t>(digits, kMostExponent / 4));
}

}  // namespace

NumberRules RulesOf(const CNumberFormat& format)
{
    NumberRules rules;
    rules.point = format.m_chDecimalPoint;
    rules.allowsSign = format.m_bAllowSign;
    rules.allowsExponent = format.m_bAllowExponent;
    rules.mostIntegers = Limited(format.m_bHasMaxIntDigits ? format.m_nMaxIntDigits : kMostExponent);
    rules.mostDecimals = Limited(format.m_bHasDecimals ? format.m_nDecimals : 0);
    if (format.m_bHasMin)
        rules.min = DecimalOf(format.m_dMin);
    if (format.m_bHasMax)
        rules.max = DecimalOf(format.m_dMax);
    return rules;
}

NumberState Judge(std::wstring_view text, const NumberRules& rules)
{
    if (text.empty())
        return NumberState::Empty;
    const std::optional<Typed> typed = Parse(text, rules.point);
    if (!typed || (typed->sign != 0 && !rules.allowsSign) || (typed->hasExponent && !rules.allowsExponent))
        return NumberState::NoNumber;
    if (HasTooManyDecimals(*typed, rules))
        return NumberState::TooManyDecimals;
    if (typed->Integers() > rules.mostIntegers)
        return NumberState::TooManyIntegers;
    const std::optional<Decimal> value = ValueOf(*typed);
    if (!value)
        return NumberState::Unfinished;
    if (rules.min && Compare(*value, *rules.min) < 0)
        return NumberState::TooLow;
    if (rules.max && Compare(*value, *rules.max) > 0)
        return NumberState::TooHigh;
    return NumberState::Good;
}

bool CanBeTyped(std::wstring_view text, const NumberRules& rules)
{
    if (text.empty())
        return true;
    const std::optional<Typed> typed = Parse(text, rules.point);
    if (!typed || (typed->sign != 0 && !rules.allowsSign) || (typed->hasExponent && !rules.allowsExponent) ||
        HasTooManyDecimals(*typed, rules) || typed->Integers() > rules.mostIntegers ||
        rules.mostIntegers + rules.mostDecimals == 0)
        return false;
    const std::optional<Span> span = SpanOf(typed->sign == L'-', rules);
    if (!span || (span->high && Compare(span->low, *span->high) > 0))
        return false;
    if (typed->hasExponent)
        return ExponentLeadsInto(*span, *typed);
    return rules.allowsExponent ? ScalesInto(*span, *typed, rules) : GrowsInto(*span, *typed, rules);
}

std::optional<Decimal> NumberIn(std::wstring_view text, wchar_t point)
{
    const std::optional<Typed> typed = Parse(text, point);
    return typed ? ValueOf(*typed) : std::nullopt;
}

std::string DecimalTextOf(std::wstring_view plain, wchar_t point)
{
    const std::optional<Typed> typed = Parse(plain, point);
    if (!typed || !typed->IsFinished())
        return {};
    std::string text = typed->sign == L'-' ? "-" : "";
    text += typed->integers.empty() ? "0" : typed->integers;
    if (!typed->decimals.empty())
        text += "." + typed->decimals;
    if (typed->hasExponent)
        text += (typed->exponentSign == L'-' ? "e-" : "e") + typed->exponent;
    return text;
}

std::wstring WithPoint(std::string_view decimal, wchar_t point)
{
    std::wstring text(decimal.begin(), decimal.end());
    if (point != 0)
        std::replace(text.begin(), text.end(), L'.', point);
    return text;
}

}  // namespace fittings
