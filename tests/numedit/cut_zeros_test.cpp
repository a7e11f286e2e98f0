#include <fittings/numedit/number_edit_utils.h>

#include <string>

#include <gtest/gtest.h>

#include <tests/numedit/known_formats.h>
#include <tests/numedit/number_texts.h>

namespace {

using Case = TextCase;

std::wstring CutAt(wchar_t point, const std::wstring& text)
{
    CNumberFormat format(eFixedFormat);
    format.m_chDecimalPoint = point;
    return Cut(text, format);
}

class CutZeros : public testing::TestWithParam<Case>
{
};

TEST_P(CutZeros, Gives)
{
    EXPECT_EQ(Cut(GetParam().text), GetParam().expected);
}

// The rows follow the order of the steps of CutZeros(): blanks, leading zeros, trailing zeros, point, zero in front.
INSTANTIATE_TEST_SUITE_P(
    , CutZeros,
    testing::Values(Case{"EverythingAtOnce", L"  000.500  ", L"0.5"}, Case{"BlanksInFront", L" \t\n5", L"5"},
                    Case{"BlanksBehind", L"5 \v\f\r", L"5"}, Case{"BlanksBetween", L" 1 2 ", L"1 2"},
                    Case{"Empty", L"", L"0"}, Case{"Blank", L" ", L"0"}, Case{"Blanks", L" \t ", L"0"},
                    Case{"Zero", L"0", L"0"}, Case{"TwoZeros", L"00", L"0"}, Case{"ManyZeros", L"00000", L"0"},
                    Case{"LeadingZeros", L"0001", L"1"}, Case{"LeadingZerosBehindBlanks", L" 0010", L"10"},
                    Case{"ZeroAndBlank", L"0 ", L"0"}, Case{"ZerosAndBlanks", L" 00  ", L"0"},
                    Case{"BlankBehindLeadingZeros", L"00 5", L" 5"}, Case{"LetterBehindZeros", L"00x", L"x"},
                    Case{"HexadecimalLooks", L"0x10", L"x10"}, Case{"Minus", L"-007", L"-007"},
                    Case{"Plus", L"+007", L"+007"}, Case{"LoneMinus", L"-", L"-"},
                    Case{"SignBehindZeros", L"00-7", L"-7"}, Case{"Integer", L"10", L"10"},
                    Case{"IntegerZeros", L"1000", L"1000"}, Case{"Fraction", L"1.0", L"1"},
                    Case{"FractionZeros", L"100.000", L"100"}, Case{"FractionPart", L"1.500", L"1.5"},
                    Case{"FractionInside", L"1.0050", L"1.005"}, Case{"NothingToCut", L"1.5", L"1.5"},
                    Case{"PointBehind", L"5.", L"5"}, Case{"PointInFront", L".5", L"0.5"}),
    [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Point, CutZeros,
    testing::Values(Case{"Lone", L".", L"0"}, Case{"AndZeros", L".000", L"0"}, Case{"BehindZeros", L"000.", L"0"},
                    Case{"BetweenZeros", L"0.0", L"0"}, Case{"BetweenManyZeros", L"000.000", L"0"},
                    Case{"BehindMinus", L"-.5", L"-.5"}, Case{"BehindMinusAndZero", L"-0.0", L"-0"},
                    Case{"BehindMinusAlone", L"-.", L"-"}, Case{"BehindMinusWithZeros", L"-.00", L"-"},
                    Case{"Twice", L"1.2.30", L"1.2.3"}, Case{"TwiceBehind", L"1..", L"1."},
                    Case{"TwiceAlone", L"..", L"0."}, Case{"TwiceWithZeros", L".0.0", L"0.0"},
                    Case{"BeforeLetter", L"5.x", L"5.x"}, Case{"BeforeLetterAndZeros", L"5.x00", L"5.x"},
                    Case{"BeforeBlankInside", L"5.0 x", L"5.0 x"}, Case{"Comma", L"1,50", L"1,50"}),
    [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Exponent, CutZeros,
    testing::Values(Case{"Small", L"1.500e10", L"1.5e10"}, Case{"Capital", L"1.500E10", L"1.5E10"},
                    Case{"KeepsItsZeros", L"1e05", L"1e05"}, Case{"KeepsItsTrailingZeros", L"1e100", L"1e100"},
                    Case{"KeepsItsPoint", L"1e1.00", L"1e1.00"}, Case{"KeepsIntegerZeros", L"10e5", L"10e5"},
                    Case{"CutsTheFraction", L"10.0e5", L"10e5"}, Case{"Alone", L"e5", L"0e5"},
                    Case{"BehindZeros", L"00e5", L"0e5"}, Case{"BehindPoint", L".e5", L"0e5"},
                    Case{"BehindPointAndZeros", L".00E5", L"0E5"}, Case{"BehindFraction", L".50e5", L"0.5e5"},
                    Case{"BehindBlank", L"1.50 e5", L"1.50 e5"}, Case{"BlankBehind", L"1.50e5 ", L"1.5e5"},
                    Case{"FirstOfTwo", L"1.50e20E30", L"1.5e20E30"},
                    Case{"FirstOfTwoCapital", L"1.50E20e30", L"1.5E20e30"},
                    Case{"InAWord", L"100.00 metres", L"100.00 metres"}, Case{"Letter", L"e", L"0e"},
                    Case{"BehindMinus", L"-0.50e-30", L"-0.5e-30"}),
    [](const auto& info) { return info.param.name; });

TEST(CutZerosPoint, IsTheFormats)
{
    EXPECT_EQ(CutAt(L',', L"1,50"), L"1,5");
    EXPECT_EQ(CutAt(L',', L"1.50"), L"1.50");
    EXPECT_EQ(CutAt(L',', L",5"), L"0,5");
    EXPECT_EQ(CutAt(L',', L".5"), L".5");
    EXPECT_EQ(CutAt(L'\u066b', L"1\u066b50"), L"1\u066b5");
    EXPECT_EQ(CutAt(L'\U0010ffff', L"\U0010ffff50"), L"0\U0010ffff5");
}

TEST(CutZerosFormat, IsAskedForThePointAlone)
{
    for (const bool flag : {false, true}) {
        CNumberFormat format = FormatWithFlags(flag);
        format.m_chThousandsSep = L'0';
        EXPECT_EQ(Cut(L" 0012345.67800E+010 ", format), L"12345.678E+010");
        EXPECT_EQ(Cut(L"-5.0", format), L"-5");
    }
}

TEST(CutZerosPoint, MayBeAnyCharacter)
{
    EXPECT_EQ(CutAt(L'0', L"100"), L"1");
    EXPECT_EQ(CutAt(L'0', L"0"), L"0");
    EXPECT_EQ(CutAt(L'0', L"0000"), L"0");
    EXPECT_EQ(CutAt(L'1', L"0012"), L"012");
    EXPECT_EQ(CutAt(L'5', L"1500"), L"1");
    EXPECT_EQ(CutAt(L'e', L"1e500"), L"1e500");
    EXPECT_EQ(CutAt(L'-', L"-500"), L"0-5");
    EXPECT_EQ(CutAt(L' ', L"1 500 "), L"1 5");
    EXPECT_EQ(CutAt(L'\0', L"1.500"), L"1.500");
}

// A wxString can contain a null character; a text control cannot.
TEST(CutZerosPoint, MayBeAZeroCharacter)
{
    EXPECT_EQ(CutAt(L'\0', std::wstring(L"1\000500", 5)), std::wstring(L"1\0005", 3));
    EXPECT_EQ(Cut(std::wstring(L"1\000.500", 6)), std::wstring(L"1\000.5", 4));
}

}  // namespace
