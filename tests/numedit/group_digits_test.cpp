#include <fittings/numedit/number_edit_utils.h>

#include <string>

#include <gtest/gtest.h>

#include <tests/numedit/known_formats.h>
#include <tests/numedit/number_texts.h>

namespace {

using Case = TextCase;

std::wstring GroupBy(wchar_t separator, const std::wstring& text, wchar_t point = L'.')
{
    CNumberFormat format(eFixedFormat);
    format.m_chThousandsSep = separator;
    format.m_chDecimalPoint = point;
    return Group(text, format);
}

class GroupDigits : public testing::TestWithParam<Case>
{
};

TEST_P(GroupDigits, Gives)
{
    EXPECT_EQ(Group(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    , GroupDigits,
    testing::Values(Case{"Nothing", L"", L""}, Case{"OneDigit", L"1", L"1"}, Case{"TwoDigits", L"12", L"12"},
                    Case{"ThreeDigits", L"123", L"123"}, Case{"FourDigits", L"1234", L"1,234"},
                    Case{"FiveDigits", L"12345", L"12,345"}, Case{"SixDigits", L"123456", L"123,456"},
                    Case{"SevenDigits", L"1234567", L"1,234,567"}, Case{"TenDigits", L"1234567890", L"1,234,567,890"},
                    Case{"Fraction", L"1234567.891", L"1,234,567.891"},
                    Case{"LongFraction", L"1234.5678901", L"1,234.5678901"}, Case{"LonePoint", L".", L"."},
                    Case{"NoInteger", L".5", L".5"}, Case{"NoIntegerLongFraction", L".123456", L".123456"},
                    Case{"PointBehind", L"1234.", L"1,234."}, Case{"PointBehindThree", L"123.", L"123."},
                    Case{"TwoPoints", L"1234.5678.9012", L"1,234.5678.9012"}, Case{"Sign", L"-123", L"-,123"},
                    Case{"ShortSign", L"-12", L"-12"}, Case{"Exponent", L"1234e5", L"123,4e5"},
                    Case{"ExponentBehindFraction", L"1234.5e678", L"1,234.5e678"},
                    Case{"Separators", L"1,234", L"1,,234"}, Case{"Letters", L"abcdef", L"abc,def"},
                    Case{"Blanks", L"    ", L" ,   "}),
    [](const auto& info) { return info.param.name; });

TEST(GroupDigitsSeparator, IsTheFormats)
{
    EXPECT_EQ(GroupBy(L'.', L"1234567,8901", L','), L"1.234.567,8901");
    EXPECT_EQ(GroupBy(L' ', L"1234.56", L','), L"1 234 .56");
    EXPECT_EQ(GroupBy(L'\u202f', L"1234567"), L"1\u202f234\u202f567");
    EXPECT_EQ(GroupBy(L'\u066c', L"1234\u066b5", L'\u066b'), L"1\u066c234\u066b5");
    EXPECT_EQ(GroupBy(L'0', L"1234567"), L"102340567");
    EXPECT_EQ(GroupBy(L'.', L"1234.5"), L"1.234.5");
}

TEST(GroupDigitsFormat, IsAskedForTheSeparatorsAlone)
{
    for (const bool flag : {false, true})
        EXPECT_EQ(Group(L"-1234567.8900e5", FormatWithFlags(flag)), L"-1,234,567.8900e5");
}

// A separator of 0, as in the C locale, ends the text where the first separator is inserted.
TEST(GroupDigitsSeparator, EndsTheTextWhereItIsZero)
{
    EXPECT_EQ(GroupBy(L'\0', L"1234"), L"1");
    EXPECT_EQ(GroupBy(L'\0', L"123456.78"), L"123");
    EXPECT_EQ(GroupBy(L'\0', L"12345").size(), 2u);
    EXPECT_EQ(GroupBy(L'\0', L"123.4567"), L"123.4567");
    EXPECT_EQ(GroupBy(L'\0', L""), L"");
}

TEST(GroupDigitsText, EndsAtItsFirstZeroCharacter)
{
    EXPECT_EQ(Group(std::wstring(L"1\0002345", 6)), L"1");
    EXPECT_EQ(Group(std::wstring(L"1234\0005", 6)), L"123,4");
    EXPECT_EQ(Group(std::wstring(L"1234.5\0006", 8)), L"1,234.5");
    EXPECT_EQ(GroupBy(L',', std::wstring(L"1234\0005", 6), L'\0'), L"1,234");
    EXPECT_EQ(GroupBy(L',', L"1234.5", L'\0'), L"123,4.5");
}

TEST(GroupDigitsPoint, MayBeAnyCharacter)
{
    EXPECT_EQ(GroupBy(L',', L"1234567", L'5'), L"1,234567");
    EXPECT_EQ(GroupBy(L',', L"12340000", L'0'), L"1,2340000");
    EXPECT_EQ(GroupBy(L',', L"1234e5678", L'e'), L"1,234e5678");
    EXPECT_EQ(GroupBy(L',', L"1234.5", L','), L"123,4.5");
}

}  // namespace
