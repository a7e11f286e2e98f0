// Types 100,000 sequences of random keys. A text must be accepted if and only if it is the beginning of a number within
// the bounds.

#include <fittings/numedit/number_rules.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <unordered_set>
#include <vector>

#include <gtest/gtest.h>

namespace {

// What a field accepts: at most `integers` digits before the point and `decimals` digits after it, and an exponent if
// `exponent` is true. The bounds are in hundredths.
struct Field
{
    int integers;
    int decimals;
    bool exponent;
    bool hasMin;
    std::int64_t min;
    bool hasMax;
    std::int64_t max;
};

constexpr std::int64_t kPowers[] = {1, 10, 100, 1000, 10000};

// Returns every text of at most @a digits digits, including the empty text.
std::vector<std::string> DigitTexts(int digits)
{
    std::vector<std::string> texts = {""};
    std::size_t begin = 0;
    for (int length = 1; length <= digits; ++length) {
        const std::size_t end = texts.size();
        for (; begin < end; ++begin) {
            for (char digit = '0'; digit <= '9'; ++digit)
                texts.push_back(texts[begin] + digit);
        }
        begin = end;
    }
    return texts;
}

// The beginnings of all texts that are numbers within the bounds of a field. A text with a minus counts only if its
// number is below 0.
class Beginnings
{
public:
    explicit Beginnings(const Field& field) : m_field(field)
    {
        m_texts.insert("");
        for (const std::string& integers : DigitTexts(field.integers)) {
            for (const std::string& decimals : DigitTexts(field.decimals)) {
                if (integers.empty() && decimals.empty())
                    continue;
                const std::int64_t hundredths = std::stoll(integers + decimals) * kPowers[2 - decimals.size()];
                Add(integers + "." + decimals, hundredths);
                if (decimals.empty())
                    Add(integers, hundredths);
            }
        }
        if (field.decimals == 0)
            m_texts.erase(".");
    }

    bool Has(const std::string& text) const { return m_texts.count(text) != 0; }

private:
    void Add(const std::string& magnitude, std::int64_t hundredths)
    {
        if (magnitude.find('.') != magnitude.npos && m_field.decimals == 0)
            return;
        for (const std::string sign : {"", "+", "-"}) {
            const std::int64_t value = sign == "-" ? -hundredths : hundredths;
            AddIfWithin(sign + magnitude, value, 0, sign == "-");
            if (m_field.exponent)
                AddExponents(sign + magnitude, value, sign == "-");
        }
    }

    void AddExponents(const std::string& mantissa, std::int64_t value, bool minus)
    {
        static const std::vector<std::string> exponents = DigitTexts(3);
        for (const std::string& exponent : exponents) {
            if (exponent.empty())
                continue;
            const int power = std::stoi(exponent);
            AddIfWithin(mantissa + "e" + exponent, value, power, minus);
            AddIfWithin(mantissa + "e+" + exponent, value, power, minus);
            if (power != 0)
                AddIfWithin(mantissa + "e-" + exponent, value, -power, minus);
        }
    }

    void AddIfWithin(const std::string& text, std::int64_t hundredths, int power, bool minus)
    {
        if (minus && hundredths == 0)
            return;
        if ((m_field.hasMin && IsLess(hundredths, power, m_field.min)) ||
            (m_field.hasMax && IsLess(-hundredths, power, -m_field.max)))
            return;
        for (std::size_t length = text.size(); length != 0 && m_texts.insert(text.substr(0, length)).second; --length) {
        }
    }

    // Returns whether @a value times 10 to the power @a power is less than @a bound. If @a power is below 0,
    // multiplies @a bound instead. Stops multiplying when the absolute value of the product is larger than all values
    // and bounds of these tests: the result is then certain.
    static bool IsLess(std::int64_t value, int power, std::int64_t bound)
    {
        for (; power > 0 && std::abs(value) < 1'000'000'000; --power)
            value *= 10;
        for (; power < 0 && std::abs(bound) < 1'000'000'000'000; ++power)
            bound *= 10;
        return value < bound;
    }

    Field m_field;
    std::unordered_set<std::string> m_texts;
};

fittings::Decimal Hundredths(std::int64_t value)
{
    return fittings::MakeDecimal(std::to_string(std::abs(value)),
                                 static_cast<std::int64_t>(std::to_string(std::abs(value)).size()) - 2, value < 0);
}

fittings::NumberRules RulesOf(const Field& field)
{
    fittings::NumberRules rules;
    rules.mostIntegers = field.integers;
    rules.mostDecimals = field.decimals;
    rules.allowsExponent = field.exponent;
    if (field.hasMin)
        rules.min = Hundredths(field.min);
    if (field.hasMax)
        rules.max = Hundredths(field.max);
    return rules;
}

class Keys
{
public:
    int Below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }

    char Next(bool exponent)
    {
        static const std::string keys = "0123456789012345678901234567890123456789.....---+,x ";
        return exponent && Below(6) == 0 ? 'e' : keys[static_cast<std::size_t>(Below(static_cast<int>(keys.size())))];
    }

    Field NextField(bool exponent)
    {
        const int most = exponent ? 1 : 3;
        Field field = {Below(most) + 1, Below(exponent ? 2 : 3), exponent, Below(4) != 0, 0, Below(4) != 0, 0};
        const std::int64_t unit = Below(3) == 0 ? 1 : 100;
        field.min = (Below(2500) - 1200) * unit / (Below(2) ? 1 : 50);
        field.max = field.min + Below(2000) * unit / (Below(2) ? 1 : 50) - (Below(10) == 0 ? 100 : 0);
        return field;
    }

private:
    std::mt19937 m_random{17};
};

// Returns the number of digits in the exponent of a text.
std::size_t ExponentDigits(const std::string& text)
{
    const std::size_t letter = text.find('e');
    return letter == text.npos
               ? 0
               : static_cast<std::size_t>(std::count_if(text.begin() + static_cast<std::ptrdiff_t>(letter), text.end(),
                                                        [](char c) { return c >= '0' && c <= '9'; }));
}

int g_accepted = 0;
int g_refused = 0;

// Types ten random keys, most of them at the end of the text. About one key in five goes to a random place and
// replaces up to two characters there. Expects a text to be accepted if and only if it is one of @a beginnings.
void TypeAndCompare(Keys& keys, const Field& field, const Beginnings& beginnings, const fittings::NumberRules& rules)
{
    std::string text;
    for (int key = 0; key < 10; ++key) {
        const bool inside = keys.Below(5) == 0;
        const std::size_t at =
            inside ? static_cast<std::size_t>(keys.Below(static_cast<int>(text.size()) + 1)) : text.size();
        std::string typed = text;
        typed.replace(at, inside ? static_cast<std::size_t>(keys.Below(3)) : 0, 1, keys.Next(field.exponent));
        // The exponents in @a beginnings have at most three digits. An exponent of three digits may need a fourth
        // digit: 1e-000 is the beginning of 1e-0001. Therefore compare only texts whose exponents have at most two
        // digits.
        if (ExponentDigits(typed) > 2)
            continue;
        const bool accepted = fittings::CanBeTyped(std::wstring(typed.begin(), typed.end()), rules);
        ASSERT_EQ(accepted, beginnings.Has(typed))
            << '"' << typed << "\" with " << field.integers << " integers, " << field.decimals << " decimals, "
            << (field.hasMin ? std::to_string(field.min) : "-") << " to "
            << (field.hasMax ? std::to_string(field.max) : "-") << " hundredths"
            << (field.exponent ? " and exponents" : "");
        if (accepted)
            text = typed;
        ++(accepted ? g_accepted : g_refused);
    }
}

void CompareSequences(bool exponent, int fields, int sequences)
{
    g_accepted = g_refused = 0;
    Keys keys;
    for (int at = 0; at < fields; ++at) {
        const Field field = keys.NextField(exponent);
        const Beginnings beginnings(field);
        const fittings::NumberRules rules = RulesOf(field);
        for (int sequence = 0; sequence < sequences; ++sequence) {
            TypeAndCompare(keys, field, beginnings, rules);
            if (testing::Test::HasFatalFailure())
                return;
        }
    }
    EXPECT_GT(g_accepted, fields * sequences);
    EXPECT_GT(g_refused, fields * sequences);
}

TEST(RandomTyping, IsAcceptedWhereANumberBeginsSo)
{
    CompareSequences(false, 80, 1000);
}

TEST(RandomTyping, IsAcceptedWhereANumberWithAnExponentBeginsSo)
{
    CompareSequences(true, 20, 1000);
}

}  // namespace
