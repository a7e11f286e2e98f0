// Which texts are numbers of a format, which texts are beginnings of such numbers, and which pasted texts are read as
// such numbers.

#include <fittings/numedit/number_rules.h>

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace {

using fittings::CanBeTyped;
using fittings::Judge;
using fittings::NumberState;

fittings::NumberRules Between(const char* min, const char* max, std::int64_t decimals = 0)
{
    fittings::NumberRules rules;
    rules.mostDecimals = decimals;
    rules.min = fittings::ParseDecimal(min);
    rules.max = fittings::ParseDecimal(max);
    return rules;
}

struct Case
{
    const char* min;
    const char* max;
    std::int64_t decimals;
    const wchar_t* text;
    bool expected;
};

class Beginning : public testing::TestWithParam<Case>
{
};

TEST_P(Beginning, IsAcceptedWhereANumberWithinTheBoundsHasIt)
{
    const Case& c = GetParam();
    EXPECT_EQ(CanBeTyped(c.text, Between(c.min, c.max, c.decimals)), c.expected) << c.min << ' ' << c.max;
}

INSTANTIATE_TEST_SUITE_P(, Beginning,
                         testing::Values(Case{"10", "20", 0, L"1", true}, Case{"10", "20", 0, L"2", true},
                                         Case{"10", "20", 0, L"3", false}, Case{"10", "20", 0, L"21", false},
                                         Case{"10", "20", 0, L"0", true}, Case{"10", "20", 0, L"-", false},
                                         Case{"-50", "-1", 0, L"-", true}, Case{"-50", "-1", 0, L"-5", true},
                                         Case{"-50", "-1", 0, L"-51", false}, Case{"-50", "-1", 0, L"1", false},
                                         Case{"-50", "-1", 0, L"+", false}, Case{"0", "100", 0, L"-", false},
                                         Case{"0.05", "0.07", 2, L"0.0", true}, Case{"0.05", "0.07", 2, L"0.01", false},
                                         Case{"0.05", "0.07", 1, L"0", false}, Case{"0.05", "0.07", 2, L".", true},
                                         Case{"0.05", "0.07", 2, L"-.", false}, Case{"20", "10", 0, L"1", false},
                                         Case{"1000", "1999", 0, L"1", true}, Case{"1000", "1999", 0, L"2", false},
                                         Case{"1000", "1999", 0, L"", true}));

// The bound 0.3 is a double, which cannot represent 0.3 exactly. The text 0.30 must still be within the bound.
TEST(ABoundOfAFormat, IsTheDecimalNumberThatItsDoubleIsWrittenAs)
{
    CNumberFormat format(eFixedFormat);
    format.m_bHasMin = format.m_bHasMax = true;
    format.m_dMin = 0.1;
    format.m_dMax = 0.3;
    const fittings::NumberRules rules = fittings::RulesOf(format);
    EXPECT_EQ(Judge(L"0.30", rules), NumberState::Good);
    EXPECT_EQ(Judge(L"0.10", rules), NumberState::Good);
    EXPECT_EQ(Judge(L"0.31", rules), NumberState::TooHigh);
    EXPECT_EQ(Judge(L"0.09", rules), NumberState::TooLow);
}

TEST(ABoundOfAFormat, IsNoneWhereItIsNoFiniteNumber)
{
    CNumberFormat format(eFixedFormat);
    format.m_bHasMin = format.m_bHasMax = true;
    format.m_dMin = -std::numeric_limits<double>::infinity();
    format.m_dMax = std::numeric_limits<double>::quiet_NaN();
    const fittings::NumberRules rules = fittings::RulesOf(format);
    EXPECT_FALSE(rules.min);
    EXPECT_FALSE(rules.max);
}

// As doubles, these bounds would be equal.
TEST(BoundsOfManyDigits, AreCompared)
{
    const std::string low = "1" + std::string(998, '0') + "3";
    const std::string high = "1" + std::string(998, '0') + "5";
    const fittings::NumberRules rules = Between(low.c_str(), high.c_str());
    const std::wstring begin = L"1" + std::wstring(998, L'0');
    EXPECT_TRUE(CanBeTyped(begin, rules));
    EXPECT_TRUE(CanBeTyped(begin.substr(0, 500), rules));
    EXPECT_EQ(Judge(begin + L"2", rules), NumberState::TooLow);
    EXPECT_EQ(Judge(begin + L"4", rules), NumberState::Good);
    EXPECT_EQ(Judge(begin + L"6", rules), NumberState::TooHigh);
    EXPECT_FALSE(CanBeTyped(begin + L"6", rules));
    EXPECT_FALSE(CanBeTyped(begin.substr(0, 500) + L"1", rules));
}

TEST(ATextOfManyDigits, IsJudgedInTime)
{
    fittings::NumberRules rules = Between("10", "1e200000");
    rules.allowsExponent = true;
    EXPECT_TRUE(CanBeTyped(std::wstring(100'000, L'7'), rules));
    rules.allowsExponent = false;
    EXPECT_TRUE(CanBeTyped(std::wstring(100'000, L'7'), rules));
    EXPECT_FALSE(CanBeTyped(std::wstring(100'000, L'7') + L"x", rules));
    EXPECT_EQ(Judge(L"1e" + std::wstring(100'000, L'9'), rules), NumberState::NoNumber);
    rules.allowsExponent = true;
    EXPECT_EQ(Judge(L"1e" + std::wstring(100'000, L'9'), rules), NumberState::TooHigh);
}

TEST(ATextThatIsNoNumber, SaysWhy)
{
    fittings::NumberRules rules = Between("-100", "100", 2);
    rules.mostIntegers = 4;
    EXPECT_EQ(Judge(L"", rules), NumberState::Empty);
    EXPECT_EQ(Judge(L"-", rules), NumberState::Unfinished);
    EXPECT_EQ(Judge(L".", rules), NumberState::Unfinished);
    EXPECT_EQ(Judge(L"12-5", rules), NumberState::NoNumber);
    EXPECT_EQ(Judge(L"1,000", rules), NumberState::NoNumber);
    EXPECT_EQ(Judge(L"1e5", rules), NumberState::NoNumber);
    EXPECT_EQ(Judge(L"1.234", rules), NumberState::TooManyDecimals);
    EXPECT_EQ(Judge(L"12345", rules), NumberState::TooManyIntegers);
    EXPECT_EQ(Judge(L"101", rules), NumberState::TooHigh);
    EXPECT_EQ(Judge(L"-100.01", rules), NumberState::TooLow);
    EXPECT_EQ(Judge(L"-100.00", rules), NumberState::Good);
    EXPECT_EQ(Judge(L"5.", rules), NumberState::Good);
    EXPECT_EQ(Judge(L".5", rules), NumberState::Good);
}

struct Pasted
{
    const wchar_t* text;
    const wchar_t* plain;  // The expected plain text; null if the pasted text is refused.
};

class PastedText : public testing::TestWithParam<Pasted>
{
};

TEST_P(PastedText, IsReadAsTheFormatsNumber)
{
    CNumberFormat format(eFixedFormat);
    format.m_nMaxIntDigits = 7;
    format.m_strTemplate = L"about %s kg, 5%%";
    const auto plain = fittings::PlainTextOf(GetParam().text, format);
    if (GetParam().plain)
        EXPECT_EQ(plain, std::wstring(GetParam().plain));
    else
        EXPECT_FALSE(plain);
}

INSTANTIATE_TEST_SUITE_P(, PastedText,
                         testing::Values(Pasted{L"1234.5", L"1234.5"}, Pasted{L" 1,234.50 ", L"1234.50"},
                                         Pasted{L"1,234,567", L"1234567"}, Pasted{L"1,234.50-", L"-1234.50"},
                                         Pasted{L"\u22125", L"-5"}, Pasted{L"about 1,234.50- kg, 5%", L"-1234.50"},
                                         Pasted{L"1,234.50 kg, 5%", L"1234.50"}, Pasted{L"+7\n", L"+7"},
                                         Pasted{L"12,34", nullptr}, Pasted{L"1234,567", nullptr},
                                         Pasted{L",123", nullptr}, Pasted{L"1,,234", nullptr},
                                         Pasted{L"1,234,", nullptr}, Pasted{L"-5-", nullptr}, Pasted{L"-", nullptr},
                                         Pasted{L"", nullptr}, Pasted{L"1.234", nullptr}, Pasted{L"12345678", nullptr},
                                         Pasted{L"1 2", nullptr}, Pasted{L"twelve", nullptr}, Pasted{L"1.5e3", nullptr},
                                         Pasted{L"5 kg", nullptr}));

TEST(PastedTextOfOtherFormats, IsReadToo)
{
    CNumberFormat french(eFixedFormat);
    french.m_chDecimalPoint = L',';
    french.m_chThousandsSep = L'\u202F';
    EXPECT_EQ(fittings::PlainTextOf(L"1\u202F234,5", french), L"1234,5");
    EXPECT_EQ(fittings::PlainTextOf(L"1 234,5", french), L"1234,5") << "some programs write a plain blank";

    CNumberFormat science(eFixedFormat);
    science.m_bAllowExponent = true;
    EXPECT_EQ(fittings::PlainTextOf(L"1.5-e3", science), L"-1.5e3");

    CNumberFormat unsigned_(eFixedFormat);
    unsigned_.m_bAllowSign = false;
    EXPECT_FALSE(fittings::PlainTextOf(L"5-", unsigned_));

    // A thousands separator of 0, as in the C locale, separates nothing.
    CNumberFormat plain(eFixedFormat);
    plain.m_chThousandsSep = 0;
    EXPECT_EQ(fittings::PlainTextOf(L"1234", plain), L"1234");
    EXPECT_FALSE(fittings::PlainTextOf(L"1,234", plain));
}

}  // namespace
