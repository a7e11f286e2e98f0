#include <fittings/numedit/number_edit_utils.h>

#include <string>

#include <gtest/gtest.h>

#include <tests/numedit/number_texts.h>

namespace {

using Case = TextCase;

CNumberFormat Rounding(std::uint64_t decimals)
{
    CNumberFormat format(eLocaleFormat);
    format.m_bRoundDecimals = true;
    format.m_bHasDecimals = true;
    format.m_nDecimals = decimals;
    return format;
}

class FormatFixed : public testing::TestWithParam<Case>
{
};

TEST_P(FormatFixed, Gives)
{
    EXPECT_EQ(Shown(GetParam().text, eFixedFormat), GetParam().expected);
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
    ExpectShown(eLocaleFormat, {{L"1234.50", L"1234.5"},
                                {L"0010", L"10"},
                                {L"-1234.567", L"-1234.567"},
                                {L"+5", L"5"},
                                {L"-.5", L"-.5"},
                                {L"-", L"-"},
                                {L"+", L""}});
}

TEST(FormatControlText, RefusesNothingThatValidationRefuses)
{
    CNumberFormat format(eFixedFormat);
    format.m_bAllowSign = false;
    format.m_bHasMin = format.m_bHasMax = true;
    format.m_dMin = format.m_dMax = 1;
    ExpectShown(format, {{L"-1234567890.5", L"1,234,567,890.50-"}, {L"+1234.5", L"1,234.50"}, {L"5e3", L"5e3"}});
}

TEST(FormatControlText, CarriesTheSameExponentsOverWhereTheyAreAllowed)
{
    CNumberFormat format(eFixedFormat);
    format.m_bAllowExponent = true;
    ExpectShown(format, {{L"-1.5E+03", L"1.5-E+03"}, {L"1e", L"1e"}, {L"12-5", L"12"}, {L"12+5", L"12"}});
}

TEST(FormatControlText, RoundsHalfUp)
{
    ExpectShown(Rounding(2), {{L"1.234", L"1.23"},
                              {L"1.235", L"1.24"},
                              {L"1.2349", L"1.23"},
                              {L"1.2350001", L"1.24"},
                              {L"1.23", L"1.23"},
                              {L"1.2", L"1.2"},
                              {L"1", L"1"},
                              {L"-1.235", L"-1.24"},
                              {L"-1.234", L"-1.23"}});
    EXPECT_EQ(Shown(L"0.000000015", Rounding(8)), L"0.00000002");
    ExpectShown(Rounding(1), {{L"0.05", L"0.1"}, {L"0.04", L"0.0"}});
    // A number that is rounded to zero keeps its minus.
    EXPECT_EQ(Shown(L"-0.001", Rounding(2)), L"-0.00");
    EXPECT_EQ(Shown(L"-0.4", Rounding(0)), L"-0");
    // The text has more digits than a double can hold, but is rounded exactly.
    EXPECT_EQ(Shown(L"12345678901234567890.12345678901234567895", Rounding(19)),
              L"12345678901234567890.1234567890123456790");
}

TEST(FormatControlText, CarriesARoundingThroughNines)
{
    ExpectShown(Rounding(2), {{L"9.996", L"10.00"},
                              {L"-0.999", L"-1.00"},
                              {L"1.995", L"2.00"},
                              {L"0.196", L"0.20"},
                              {L"-.996", L"-1.00"},
                              {L"-.985", L"-.99"}});
    EXPECT_EQ(Shown(L"99999.9999", Rounding(3)), L"100000.000");
    ExpectShown(Rounding(1), {{L"19.96", L"20.0"}, {L"199.96", L"200.0"}});
}

TEST(FormatControlText, RoundsToAnInteger)
{
    ExpectShown(Rounding(0), {{L"2.5", L"3"},
                              {L"2.4", L"2"},
                              {L"9.5", L"10"},
                              {L"99.5", L"100"},
                              {L"0.5", L"1"},
                              {L"0.4", L"0"},
                              {L"-2.5", L"-3"},
                              {L"2.", L"2"},
                              {L"5.", L"5"},
                              {L"5", L"5"}});
    // If no digit precedes the point, a carry becomes the only digit. Without a carry, no digit is left.
    ExpectShown(Rounding(0), {{L"-.5", L"-1"}, {L"-.4", L"-"}, {L"+.9", L"1"}, {L"+.4", L""}});
}

// The text after the number is removed. The point before this text is removed too if the number is rounded to an
// integer. If decimals are allowed, the point stays although no decimal follows.
TEST(FormatControlText, DropsThePointOfAnIntegerBeforeJunk)
{
    ExpectShown(Rounding(0), {{L"5.x", L"5"}, {L"5.. ", L"5"}});
    EXPECT_EQ(Shown(L"5.x", Rounding(1)), L"5.");
}

TEST(FormatControlText, KeepsTheFractionWhereNoDecimalsAreInForce)
{
    CNumberFormat format = Rounding(1);
    format.m_bHasDecimals = false;
    EXPECT_EQ(Shown(L"1.2345678", format), L"1.2345678");
    format.m_nDecimals = 0;
    ExpectShown(format, {{L"1.99", L"1.99"}, {L"5.x", L"5."}});
    format.m_bPadDecimals = true;
    EXPECT_EQ(Shown(L"1", format), L"1");
}

TEST(FormatControlText, RoundsBeforeItGroups)
{
    CNumberFormat format = Rounding(2);
    format.m_bGroupDigits = true;
    format.m_chThousandsSep = L',';
    ExpectShown(format, {{L"999.999", L"1,000.00"}, {L"-999999.995", L"-1,000,000.00"}});
    format.m_nDecimals = 0;
    EXPECT_EQ(Shown(L"999999.5", format), L"1,000,000");
    format.m_bTrailingMinus = true;
    EXPECT_EQ(Shown(L"-999.5", format), L"1,000-");
}

TEST(FormatControlText, PadsAfterRounding)
{
    CNumberFormat format = Rounding(3);
    format.m_bPadDecimals = true;
    ExpectShown(format, {{L"1", L"1.000"},
                         {L"1.5", L"1.500"},
                         {L"1.2345", L"1.235"},
                         {L"9.9999", L"10.000"},
                         {L"-9.9", L"-9.900"},
                         {L"1.5e3", L"1.5e3"},
                         {L"1.23456e3", L"1.235e3"},
                         {L"1.5x", L"1.5"},
                         {L"5.x", L"5."}});
    format.m_nDecimals = 0;
    ExpectShown(format, {{L"1", L"1"}, {L"1.5", L"2"}});
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
    ExpectShown(format, {{L"1.5", L"1.5"}, {L"1", L"1"}});
    format.m_nDecimals = 1;
    EXPECT_EQ(Shown(L"1", format), L"1.0");
    format.m_nDecimals = 10;
    EXPECT_EQ(Shown(L"1.5", format), L"1.5000000000");
}

TEST(FormatControlText, CarriesTheExponentOver)
{
    ExpectShown(eLocaleFormat, {{L"1.50e3", L"1.5e3"},
                                {L"1.50E+3", L"1.5E+3"},
                                {L"1e-007", L"1e-007"},
                                {L"1e", L"1e"},
                                {L"1e-", L"1e-"},
                                {L"1e5x", L"1e5"},
                                {L"1e5.5", L"1e5"},
                                {L"1e+-5", L"1e+"},
                                {L"1ee5", L"1e"},
                                {L"e5", L"0e5"},
                                {L"-e5", L"-e5"},
                                {L"1 e5", L"1"},
                                {L"1-5", L"1"},
                                {L"-1.5e3", L"-1.5e3"}});
}

TEST(FormatControlText, PutsTheTrailingMinusBeforeTheExponent)
{
    ExpectShown(eFixedFormat, {{L"-1.5e3", L"1.5-e3"}, {L"-1234567.5E-3", L"1,234,567.5-E-3"}, {L"-12abc", L"12-"}});
}

TEST(FormatControlText, RoundsTheMantissaBeforeAnExponent)
{
    ExpectShown(Rounding(2), {{L"1.2367e5", L"1.24e5"}, {L"9.999e5", L"10.00e5"}});
    ExpectShown(Rounding(0), {{L"9.5e5", L"10e5"}, {L"-9.5e-5", L"-10e-5"}});
}

TEST(FormatControlText, ReadsTheLocalesPointAsTheFormats)
{
    CNumberFormat format(eFixedFormat);
    format.m_chDecimalPoint = L',';
    format.m_chThousandsSep = L'.';
    ExpectShown(format, {{L"1.5", L"1,50"},
                         {L"1,5", L"1,50"},
                         {L"1234567.891", L"1.234.567,891"},
                         {L".5", L"0,50"},
                         {L"1.5,5", L"1,5"},
                         {L"2", L"2,00"}});
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
    ExpectShown(format, {{L"1234", L"1"}, {L"-12345.6e7", L"12-e7"}, {L"123", L"123.00"}});
}

TEST(FormatControlText, EndsTheNumberAtAPointOfZero)
{
    CNumberFormat format(eFixedFormat);
    format.m_chDecimalPoint = L'\0';
    for (const bool group : {true, false}) {
        format.m_bGroupDigits = group;
        ExpectShown(format, {{L"12", L"12"}, {L"12.50", L"12"}, {L"-12.5e7", L"12-e7"}, {L".5", L"0"}});
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
    ExpectShown(format, {{L"1.2", L"152"}, {L"1500", L"1"}});
    format.m_chDecimalPoint = L'e';
    ExpectShown(format, {{L"1.50", L"1e50"}, {L"1.5e3", L"1e5e3"}});
    // Every "." becomes the format's point "e". The second "e" is read as the letter of an exponent.
    EXPECT_EQ(Shown(L"1.5.3", format), L"1e5e3");
    format.m_chDecimalPoint = L'-';
    ExpectShown(format, {{L".5", L"0-5"}, {L"-5", L"0-5"}});
}

TEST(FormatControlText, PutsTheNumberIntoTheTemplate)
{
    CNumberFormat format(eLocaleFormat);
    format.m_strTemplate = L"%s kg";
    ExpectShown(format, {{L"3", L"3 kg"}, {L"-1.5e3", L"-1.5e3 kg"}});
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
    ExpectShown(format, {{L"1.99999", L"1.99999"}, {L"5.x", L"5."}});
}

}  // namespace
