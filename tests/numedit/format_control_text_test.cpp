#include <fittings/numedit/number_edit_utils.h>

#include <string>

#include <gtest/gtest.h>

#include <tests/numedit/number_texts.h>

namespace {

using Case = TextCase;

std::wstring Fixed(const std::wstring& text)
{
    return Shown(text, CNumberFormat(eFixedFormat));
}

CNumberFormat Rounding(std::uint64_t decimals)
{
    CNumberFormat format(eLocaleFormat);
    format.m_bRoundDecimals = true;
    format.m_bHasDecimals = true;
    format.m_nDecimals = decimals;
    return format;
}

std::wstring Rounded(const std::wstring& text, std::uint64_t decimals)
{
    return Shown(text, Rounding(decimals));
}

class FormatFixed : public testing::TestWithParam<Case>
{
};

TEST_P(FormatFixed, Gives)
{
    EXPECT_EQ(Fixed(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    , FormatFixed,
    testing::Values(Case{"Grouped", L"1234.5", L"1,234.50"}, Case{"Integer", L"1234", L"1,234.00"},
                    Case{"LongFractionWithTrailingMinus", L"-1234.567", L"1,234.567-"},
                    Case{"Fraction", L"0.5", L"0.50"}, Case{"NoInteger", L".5", L"0.50"},
                    Case{"LeadingZeros", L"007", L"7.00"}, Case{"Blanks", L"  12.5\t", L"12.50"},
                    Case{"Zero", L"0", L"0.00"}, Case{"LonePoint", L".", L"0.00"}, Case{"BlankText", L"  ", L"0.00"},
                    Case{"FullFraction", L"1.25", L"1.25"}, Case{"TrailingZeros", L"1.2500", L"1.25"},
                    Case{"LoneMinus", L"-", L".00-"}, Case{"LonePlus", L"+", L".00"},
                    Case{"MinusAndPoint", L"-.5", L".50-"}, Case{"MinusPointOnly", L"-.", L".00-"},
                    Case{"PlusIsDropped", L"+1234", L"1,234.00"}, Case{"ZerosBehindMinus", L"-007", L"007.00-"},
                    Case{"GroupedBehindMinus", L"-1234567", L"1,234,567.00-"}, Case{"MinusZero", L"-0.0", L"0.00-"},
                    Case{"TwoSigns", L"--5", L"-"}, Case{"SignBehind", L"5-", L"5"}, Case{"Exponent", L"1e5", L"1e5"},
                    Case{"Junk", L"12abc", L"12"}, Case{"GroupedInput", L"1,234", L"1"}, Case{"JunkAlone", L"abc", L""},
                    Case{"JunkBehindFraction", L"1234.5 kg", L"1,234.5"}, Case{"TwoPoints", L"1234.5.6", L"1,234.5"},
                    Case{"BlankBehindSign", L"- 5", L"-"}),
    [](const auto& info) { return info.param.name; });

TEST(FormatControlText, LeavesTheEmptyTextWithoutTemplate)
{
    CNumberFormat format(eFixedFormat);
    EXPECT_EQ(Shown(L"", format), L"");
    format.m_strTemplate = L"%s kg";
    EXPECT_EQ(Shown(L"", format), L"");
    EXPECT_EQ(CNumberEditUtils::FormatControlText(nullptr, format), "");
    EXPECT_EQ(Shown(L" ", format), L"0.00 kg");
}

TEST(FormatControlText, ShowsPlainNumbersByTheLocalePreset)
{
    const CNumberFormat format(eLocaleFormat);
    EXPECT_EQ(Shown(L"1234.50", format), L"1234.5");
    EXPECT_EQ(Shown(L"0010", format), L"10");
    EXPECT_EQ(Shown(L"-1234.567", format), L"-1234.567");
    EXPECT_EQ(Shown(L"+5", format), L"5");
    EXPECT_EQ(Shown(L"-.5", format), L"-.5");
    EXPECT_EQ(Shown(L"-", format), L"-");
    EXPECT_EQ(Shown(L"+", format), L"");
}

TEST(FormatControlText, RefusesNothingThatValidationRefuses)
{
    CNumberFormat format(eFixedFormat);
    format.m_bAllowSign = false;
    format.m_bHasMin = format.m_bHasMax = true;
    format.m_dMin = format.m_dMax = 1;
    EXPECT_EQ(Shown(L"-1234567890.5", format), L"1,234,567,890.50-");
    EXPECT_EQ(Shown(L"+1234.5", format), L"1,234.50");
    EXPECT_EQ(Shown(L"5e3", format), L"5e3");
}

TEST(FormatControlText, CarriesTheSameExponentsOverWhereTheyAreAllowed)
{
    CNumberFormat format(eFixedFormat);
    format.m_bAllowExponent = true;
    EXPECT_EQ(Shown(L"-1.5E+03", format), L"1.5-E+03");
    EXPECT_EQ(Shown(L"1e", format), L"1e");
    EXPECT_EQ(Shown(L"12-5", format), L"12");
    EXPECT_EQ(Shown(L"12+5", format), L"12");
}

TEST(FormatControlText, RoundsHalfUp)
{
    EXPECT_EQ(Rounded(L"1.234", 2), L"1.23");
    EXPECT_EQ(Rounded(L"1.235", 2), L"1.24");
    EXPECT_EQ(Rounded(L"1.2349", 2), L"1.23");
    EXPECT_EQ(Rounded(L"1.2350001", 2), L"1.24");
    EXPECT_EQ(Rounded(L"1.23", 2), L"1.23");
    EXPECT_EQ(Rounded(L"1.2", 2), L"1.2");
    EXPECT_EQ(Rounded(L"1", 2), L"1");
    EXPECT_EQ(Rounded(L"-1.235", 2), L"-1.24");
    EXPECT_EQ(Rounded(L"-1.234", 2), L"-1.23");
    EXPECT_EQ(Rounded(L"0.000000015", 8), L"0.00000002");
    EXPECT_EQ(Rounded(L"0.05", 1), L"0.1");
    EXPECT_EQ(Rounded(L"0.04", 1), L"0.0");
    // Rounding to zero keeps the minus.
    EXPECT_EQ(Rounded(L"-0.001", 2), L"-0.00");
    EXPECT_EQ(Rounded(L"-0.4", 0), L"-0");
    // The text has more digits than a double can hold, but is rounded exactly.
    EXPECT_EQ(Rounded(L"12345678901234567890.12345678901234567895", 19), L"12345678901234567890.1234567890123456790");
}

TEST(FormatControlText, CarriesARoundingThroughNines)
{
    EXPECT_EQ(Rounded(L"9.996", 2), L"10.00");
    EXPECT_EQ(Rounded(L"-0.999", 2), L"-1.00");
    EXPECT_EQ(Rounded(L"1.995", 2), L"2.00");
    EXPECT_EQ(Rounded(L"0.196", 2), L"0.20");
    EXPECT_EQ(Rounded(L"99999.9999", 3), L"100000.000");
    EXPECT_EQ(Rounded(L"19.96", 1), L"20.0");
    EXPECT_EQ(Rounded(L"199.96", 1), L"200.0");
    EXPECT_EQ(Rounded(L"-.996", 2), L"-1.00");
    EXPECT_EQ(Rounded(L"-.985", 2), L"-.99");
}

TEST(FormatControlText, RoundsToAnInteger)
{
    EXPECT_EQ(Rounded(L"2.5", 0), L"3");
    EXPECT_EQ(Rounded(L"2.4", 0), L"2");
    EXPECT_EQ(Rounded(L"9.5", 0), L"10");
    EXPECT_EQ(Rounded(L"99.5", 0), L"100");
    EXPECT_EQ(Rounded(L"0.5", 0), L"1");
    EXPECT_EQ(Rounded(L"0.4", 0), L"0");
    EXPECT_EQ(Rounded(L"-2.5", 0), L"-3");
    EXPECT_EQ(Rounded(L"2.", 0), L"2");
    EXPECT_EQ(Rounded(L"5.", 0), L"5");
    EXPECT_EQ(Rounded(L"5", 0), L"5");
    // If no digit precedes the point, a carry becomes the only digit. Without a carry, no digit is left.
    EXPECT_EQ(Rounded(L"-.5", 0), L"-1");
    EXPECT_EQ(Rounded(L"-.4", 0), L"-");
    EXPECT_EQ(Rounded(L"+.9", 0), L"1");
    EXPECT_EQ(Rounded(L"+.4", 0), L"");
}

// A number that is rounded to an integer loses its point. If decimals are allowed, a point before other text stays.
TEST(FormatControlText, DropsThePointOfAnIntegerBeforeJunk)
{
    EXPECT_EQ(Rounded(L"5.x", 0), L"5");
    EXPECT_EQ(Rounded(L"5.x", 1), L"5.");
    EXPECT_EQ(Rounded(L"5.. ", 0), L"5");
}

TEST(FormatControlText, KeepsTheFractionWhereNoDecimalsAreInForce)
{
    CNumberFormat format = Rounding(1);
    format.m_bHasDecimals = false;
    EXPECT_EQ(Shown(L"1.2345678", format), L"1.2345678");
    format.m_nDecimals = 0;
    EXPECT_EQ(Shown(L"1.99", format), L"1.99");
    EXPECT_EQ(Shown(L"5.x", format), L"5.");
    format.m_bPadDecimals = true;
    EXPECT_EQ(Shown(L"1", format), L"1");
}

TEST(FormatControlText, RoundsBeforeItGroups)
{
    CNumberFormat format = Rounding(2);
    format.m_bGroupDigits = true;
    format.m_chThousandsSep = L',';
    EXPECT_EQ(Shown(L"999.999", format), L"1,000.00");
    EXPECT_EQ(Shown(L"-999999.995", format), L"-1,000,000.00");
    format.m_nDecimals = 0;
    EXPECT_EQ(Shown(L"999999.5", format), L"1,000,000");
    format.m_bTrailingMinus = true;
    EXPECT_EQ(Shown(L"-999.5", format), L"1,000-");
}

TEST(FormatControlText, PadsAfterRounding)
{
    CNumberFormat format = Rounding(3);
    format.m_bPadDecimals = true;
    EXPECT_EQ(Shown(L"1", format), L"1.000");
    EXPECT_EQ(Shown(L"1.5", format), L"1.500");
    EXPECT_EQ(Shown(L"1.2345", format), L"1.235");
    EXPECT_EQ(Shown(L"9.9999", format), L"10.000");
    EXPECT_EQ(Shown(L"-9.9", format), L"-9.900");
    EXPECT_EQ(Shown(L"1.5e3", format), L"1.5e3");
    EXPECT_EQ(Shown(L"1.23456e3", format), L"1.235e3");
    EXPECT_EQ(Shown(L"1.5x", format), L"1.5");
    EXPECT_EQ(Shown(L"5.x", format), L"5.");
    format.m_nDecimals = 0;
    EXPECT_EQ(Shown(L"1", format), L"1");
    EXPECT_EQ(Shown(L"1.5", format), L"2");
}

TEST(FormatControlText, PadsOnlyWhereAllOfItIsAsked)
{
    CNumberFormat format(eFixedFormat);
    format.m_bPadDecimals = false;
    EXPECT_EQ(Shown(L"1.5", format), L"1.5");
    format.m_bPadDecimals = true;
    format.m_bHasDecimals = false;
    EXPECT_EQ(Shown(L"1.5", format), L"1.5");
    format.m_bHasDecimals = true;
    format.m_nDecimals = 0;
    EXPECT_EQ(Shown(L"1.5", format), L"1.5");
    EXPECT_EQ(Shown(L"1", format), L"1");
    format.m_nDecimals = 1;
    EXPECT_EQ(Shown(L"1", format), L"1.0");
    format.m_nDecimals = 10;
    EXPECT_EQ(Shown(L"1.5", format), L"1.5000000000");
}

TEST(FormatControlText, CarriesTheExponentOver)
{
    CNumberFormat format(eLocaleFormat);
    EXPECT_EQ(Shown(L"1.50e3", format), L"1.5e3");
    EXPECT_EQ(Shown(L"1.50E+3", format), L"1.5E+3");
    EXPECT_EQ(Shown(L"1e-007", format), L"1e-007");
    EXPECT_EQ(Shown(L"1e", format), L"1e");
    EXPECT_EQ(Shown(L"1e-", format), L"1e-");
    EXPECT_EQ(Shown(L"1e5x", format), L"1e5");
    EXPECT_EQ(Shown(L"1e5.5", format), L"1e5");
    EXPECT_EQ(Shown(L"1e+-5", format), L"1e+");
    EXPECT_EQ(Shown(L"1ee5", format), L"1e");
    EXPECT_EQ(Shown(L"e5", format), L"0e5");
    EXPECT_EQ(Shown(L"-e5", format), L"-e5");
    EXPECT_EQ(Shown(L"1 e5", format), L"1");
    EXPECT_EQ(Shown(L"1-5", format), L"1");
    EXPECT_EQ(Shown(L"-1.5e3", format), L"-1.5e3");
}

TEST(FormatControlText, PutsTheTrailingMinusBeforeTheExponent)
{
    const CNumberFormat format(eFixedFormat);
    EXPECT_EQ(Shown(L"-1.5e3", format), L"1.5-e3");
    EXPECT_EQ(Shown(L"-1234567.5E-3", format), L"1,234,567.5-E-3");
    EXPECT_EQ(Shown(L"-12abc", format), L"12-");
}

TEST(FormatControlText, RoundsTheMantissaBeforeAnExponent)
{
    EXPECT_EQ(Rounded(L"1.2367e5", 2), L"1.24e5");
    EXPECT_EQ(Rounded(L"9.999e5", 2), L"10.00e5");
    EXPECT_EQ(Rounded(L"9.5e5", 0), L"10e5");
    EXPECT_EQ(Rounded(L"-9.5e-5", 0), L"-10e-5");
}

TEST(FormatControlText, ReadsTheLocalesPointAsTheFormats)
{
    CNumberFormat format(eFixedFormat);
    format.m_chDecimalPoint = L',';
    format.m_chThousandsSep = L'.';
    EXPECT_EQ(Shown(L"1.5", format), L"1,50");
    EXPECT_EQ(Shown(L"1,5", format), L"1,50");
    EXPECT_EQ(Shown(L"1234567.891", format), L"1.234.567,891");
    EXPECT_EQ(Shown(L".5", format), L"0,50");
    EXPECT_EQ(Shown(L"1.5,5", format), L"1,5");
    EXPECT_EQ(Shown(L"2", format), L"2,00");
    format.m_chDecimalPoint = L'\u066b';
    EXPECT_EQ(Shown(L"1.5", format), L"1\u066b50");
}

TEST(FormatControlText, GroupsWithTheFormatsSeparator)
{
    CNumberFormat format(eFixedFormat);
    format.m_chThousandsSep = L'\u202f';
    EXPECT_EQ(Shown(L"1234", format), L"1\u202f234.00");
    format.m_bGroupDigits = false;
    EXPECT_EQ(Shown(L"1234", format), L"1234.00");
}

TEST(FormatControlText, EndsTheGroupsAtASeparatorOfZero)
{
    CNumberFormat format(eFixedFormat);
    format.m_chThousandsSep = L'\0';
    EXPECT_EQ(Shown(L"1234", format), L"1");
    EXPECT_EQ(Shown(L"-12345.6e7", format), L"12-e7");
    EXPECT_EQ(Shown(L"123", format), L"123.00");
}

TEST(FormatControlText, EndsTheNumberAtAPointOfZero)
{
    CNumberFormat format(eFixedFormat);
    format.m_chDecimalPoint = L'\0';
    for (const bool group : {true, false}) {
        format.m_bGroupDigits = group;
        EXPECT_EQ(Shown(L"12", format), L"12");
        EXPECT_EQ(Shown(L"12.50", format), L"12");
        EXPECT_EQ(Shown(L"-12.5e7", format), L"12-e7");
        EXPECT_EQ(Shown(L".5", format), L"0");
    }
    format.m_bTrailingMinus = false;
    EXPECT_EQ(Shown(L"-12.5", format), L"-12");
    format.m_bRoundDecimals = true;
    format.m_nDecimals = 0;
    EXPECT_EQ(Shown(L"12.5", format), L"13");
}

TEST(FormatControlText, TakesAnyCharacterForThePoint)
{
    CNumberFormat format(eLocaleFormat);
    format.m_chDecimalPoint = L'5';
    EXPECT_EQ(Shown(L"1.2", format), L"152");
    EXPECT_EQ(Shown(L"1500", format), L"1");
    format.m_chDecimalPoint = L'e';
    EXPECT_EQ(Shown(L"1.50", format), L"1e50");
    EXPECT_EQ(Shown(L"1.5e3", format), L"1e5e3");
    // Every "." becomes the format's point "e". The second "e" is read as the letter of an exponent.
    EXPECT_EQ(Shown(L"1.5.3", format), L"1e5e3");
    format.m_chDecimalPoint = L'-';
    EXPECT_EQ(Shown(L".5", format), L"0-5");
    EXPECT_EQ(Shown(L"-5", format), L"0-5");
}

TEST(FormatControlText, PutsTheNumberIntoTheTemplate)
{
    CNumberFormat format(eLocaleFormat);
    format.m_strTemplate = L"%s kg";
    EXPECT_EQ(Shown(L"3", format), L"3 kg");
    EXPECT_EQ(Shown(L"-1.5e3", format), L"-1.5e3 kg");
    format.m_strTemplate = L"\u20ac %s";
    EXPECT_EQ(Shown(L"3", format), L"\u20ac 3");
    format.m_strTemplate = L"%s %%";
    EXPECT_EQ(Shown(L"3", format), L"3 %");
    format.m_strTemplate = L"[%6s]";
    EXPECT_EQ(Shown(L"3.50", format), L"[   3.5]");
    format.m_strTemplate = L"[%-6s]";
    EXPECT_EQ(Shown(L"3.50", format), L"[3.5   ]");
    format.m_chDecimalPoint = L'\u066b';
    format.m_strTemplate = L"%s\u066a";
    EXPECT_EQ(Shown(L"3.5", format), L"3\u066b5\u066a");
}

TEST(FormatControlText, LosesTheNumberInATemplateWithoutPlaceForIt)
{
    CNumberFormat format(eLocaleFormat);
    format.m_strTemplate = L"";
    EXPECT_EQ(Shown(L"3", format), L"");
    format.m_strTemplate = L"kg";
    EXPECT_EQ(Shown(L"3", format), L"kg");
    format.m_strTemplate = L"100%%";
    EXPECT_EQ(Shown(L"3", format), L"100%");
}

// The number is an argument of the template and not a part of it, so a "%" in the number is shown.
TEST(FormatControlText, ShowsPercentSignsOfTheSeparators)
{
    CNumberFormat format(eFixedFormat);
    format.m_chThousandsSep = L'%';
    EXPECT_EQ(Shown(L"1234", format), L"1%234.00");
    format.m_chDecimalPoint = L'%';
    format.m_strTemplate = L"%s kg";
    EXPECT_EQ(Shown(L"1234.5", format), L"1%234%50 kg");
}

TEST(FormatControlText, AppendsNoMoreThanAMillionZeros)
{
    CNumberFormat format(eFixedFormat);
    for (const std::uint64_t decimals : {UINT64_MAX, UINT64_MAX - 1, std::uint64_t{1} << 32, std::uint64_t{1000001}}) {
        format.m_nDecimals = decimals;
        EXPECT_TRUE(Shown(L"1234", format) == L"1,234." + std::wstring(1000000, L'0')) << decimals;
    }
    EXPECT_TRUE(Shown(L"1.5", format) == L"1.5" + std::wstring(1000000, L'0'));
    format.m_nDecimals = 1000000;
    EXPECT_TRUE(Shown(L"1.5", format) == L"1.5" + std::wstring(999999, L'0'));
    format.m_nDecimals = UINT64_MAX;
    format.m_bPadDecimals = false;
    format.m_bRoundDecimals = true;
    EXPECT_EQ(Shown(L"1.99999", format), L"1.99999");
    format.m_nDecimals = std::uint64_t{1} << 32;
    EXPECT_EQ(Shown(L"1.99999", format), L"1.99999");
    EXPECT_EQ(Shown(L"5.x", format), L"5.");
}

}  // namespace
