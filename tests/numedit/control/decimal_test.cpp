// Decimal numbers of any length.

#include <fittings/numedit/decimal.h>

#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace {

using fittings::Decimal;

Decimal Number(const std::string& text)
{
    const auto number = fittings::ParseDecimal(text);
    EXPECT_TRUE(number) << text;
    return number.value_or(Decimal());
}

std::string Text(const Decimal& number, std::int64_t decimals = 0)
{
    return fittings::PlainText(number, decimals).value_or("none");
}

TEST(ADecimal, IsReadAndWritten)
{
    EXPECT_EQ(Text(Number("007.50")), "7.5");
    EXPECT_EQ(Text(Number("-0")), "0");
    EXPECT_EQ(Text(Number("+.5")), "0.5");
    EXPECT_EQ(Text(Number("-1.5e3")), "-1500");
    EXPECT_EQ(Text(Number("15E-3")), "0.015");
    EXPECT_EQ(Text(Number("7.5"), 3), "7.500");
    EXPECT_EQ(Text(Number("0"), 2), "0.00");
    EXPECT_EQ(Text(Number("1200")), "1200");
    EXPECT_EQ(Text(Number("1e200000")), "none");
}

TEST(ADecimal, IsReadOfNumbersAlone)
{
    for (const char* const text : {"", "-", ".", "1e", "1e-", "1.2.3", "1 ", "x", "1,5", "--1", "e5"})
        EXPECT_FALSE(fittings::ParseDecimal(text)) << text;
}

TEST(Decimals, AreCompared)
{
    const char* const ascending[] = {
        "-1e999999999999999999999", "-10", "-9.5", "-0.01", "0", "0.0099", "0.01", "9", "9.5", "10", "1e99999999"};
    for (std::size_t left = 0; left < std::size(ascending); ++left) {
        for (std::size_t right = 0; right < std::size(ascending); ++right) {
            const int order = fittings::Compare(Number(ascending[left]), Number(ascending[right]));
            EXPECT_EQ(order < 0, left < right) << ascending[left] << ' ' << ascending[right];
            EXPECT_EQ(order > 0, left > right) << ascending[left] << ' ' << ascending[right];
        }
    }
}

TEST(Decimals, AreAdded)
{
    const auto sum = [](const char* left, const char* right) {
        return Text(fittings::Sum(Number(left), Number(right)).value_or(Decimal()));
    };
    EXPECT_EQ(sum("0.1", "0.2"), "0.3");
    EXPECT_EQ(sum("99999999999999999999", "1"), "100000000000000000000");
    EXPECT_EQ(sum("1", "-0.01"), "0.99");
    EXPECT_EQ(sum("0.01", "-1"), "-0.99");
    EXPECT_EQ(sum("-5", "-5.5"), "-10.5");
    EXPECT_EQ(sum("5", "-5"), "0");
    EXPECT_EQ(sum("0", "7"), "7");
    EXPECT_FALSE(fittings::Sum(Number("1e200000"), Number("1")));
}

TEST(Decimals, AreAddedIfTheirDigitsSpanNoMoreThanAHundredThousandPlaces)
{
    const std::string nines(100'000, '9');
    const auto sum = [](const std::string& left, const char* right) {
        return fittings::Sum(Number(left), Number(right)).value_or(Decimal());
    };
    EXPECT_EQ(sum("1e99999", "1").digits, "1" + std::string(99'998, '0') + "1");
    EXPECT_EQ(sum(nines, "1").point, 100'001) << "the carry is not counted";
    EXPECT_FALSE(fittings::Sum(Number("1e100000"), Number("1")));
    EXPECT_FALSE(fittings::Sum(Number("1e99999"), Number("0.1")));
}

TEST(Doubles, GoInAndOutWithoutLoss)
{
    for (const double value :
         {0.0, 0.1, -0.3, 1e23, 1234567.891, std::numeric_limits<double>::max(), std::numeric_limits<double>::min(),
          std::numeric_limits<double>::denorm_min(), 0.1 + 0.2, -1e300}) {
        const auto number = fittings::DecimalOf(value);
        ASSERT_TRUE(number);
        EXPECT_EQ(fittings::DoubleOf(*number), value);
    }
    EXPECT_EQ(Text(fittings::DecimalOf(0.1).value_or(Decimal())), "0.1");
    EXPECT_FALSE(fittings::DecimalOf(std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(fittings::DecimalOf(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(fittings::DoubleOf(Number("1e400")));
    EXPECT_EQ(fittings::DoubleOf(Number("1e-400")), 0.0);
}

TEST(Integers, ComeOutExactlyOrNotAtAll)
{
    EXPECT_EQ(fittings::IntegerOf<std::int64_t>(Number("9223372036854775807")),
              std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(fittings::IntegerOf<std::int64_t>(Number("-9223372036854775808")),
              std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(fittings::IntegerOf<std::int64_t>(Number("5.00")), 5);
    EXPECT_EQ(fittings::IntegerOf<std::int64_t>(Number("12e2")), 1200);
    EXPECT_EQ(fittings::IntegerOf<std::int64_t>(Number("-0")), 0);
    EXPECT_FALSE(fittings::IntegerOf<std::int64_t>(Number("9223372036854775808")));
    EXPECT_FALSE(fittings::IntegerOf<std::int64_t>(Number("0.5")));
    EXPECT_FALSE(fittings::IntegerOf<std::int64_t>(Number("1e999999999")));
}

TEST(DecimalInteger, FitsItsType)
{
    EXPECT_EQ(fittings::IntegerOf<int>(Number("2147483647")), 2147483647);
    EXPECT_EQ(fittings::IntegerOf<int>(Number("-2147483648")), std::numeric_limits<int>::min());
    EXPECT_EQ(fittings::IntegerOf<unsigned>(Number("4294967295")), 4294967295u);
    EXPECT_EQ(fittings::IntegerOf<unsigned>(Number("-0.0")), 0u);
    for (const char* const refused : {"2147483648", "-2147483649", "3000000000", "1e10", "1.5", "0.1"})
        EXPECT_FALSE(fittings::IntegerOf<int>(Number(refused))) << refused;
    for (const char* const refused : {"4294967296", "-1", "1e10", "1.5"})
        EXPECT_FALSE(fittings::IntegerOf<unsigned>(Number(refused))) << refused;
}

TEST(ADecimal, IsRoundedToDecimals)
{
    EXPECT_EQ(Text(fittings::RoundedUp(Number("1.21"), 1)), "1.3");
    EXPECT_EQ(Text(fittings::RoundedUp(Number("9.99"), 1)), "10");
    EXPECT_EQ(Text(fittings::RoundedUp(Number("0.001"), 1)), "0.1");
    EXPECT_EQ(Text(fittings::RoundedUp(Number("1.2"), 5)), "1.2");
    EXPECT_EQ(Text(fittings::RoundedUp(Number("123"), -2)), "200");
    EXPECT_EQ(Text(fittings::RoundedDown(Number("1.29"), 1)), "1.2");
    EXPECT_EQ(Text(fittings::RoundedDown(Number("0.09"), 1)), "0");
    EXPECT_EQ(Text(fittings::RoundedDown(Number("199"), -2)), "100");
    EXPECT_EQ(Text(fittings::RoundedDown(Number("1.2"), 5)), "1.2");
}

}  // namespace
