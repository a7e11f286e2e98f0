#include <fittings/numedit/number_edit_utils.h>

#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <tests/numedit/number_texts.h>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kNaN = std::nan("");

CNumberFormat Locale()
{
    return CNumberFormat(eLocaleFormat);
}

CNumberFormat WithDecimals(std::uint64_t decimals)
{
    CNumberFormat format(eLocaleFormat);
    format.m_bHasDecimals = true;
    format.m_nDecimals = decimals;
    return format;
}

CNumberFormat WithExponent(std::uint64_t decimals)
{
    CNumberFormat format = WithDecimals(decimals);
    format.m_bAllowExponent = true;
    return format;
}

CNumberFormat WithMin(double min)
{
    CNumberFormat format = WithDecimals(2);
    format.m_bHasMin = true;
    format.m_dMin = min;
    return format;
}

CNumberFormat WithMax(double max)
{
    CNumberFormat format = WithDecimals(2);
    format.m_bHasMax = true;
    format.m_dMax = max;
    return format;
}

TEST(ValidateString, FollowsTheFixedPreset)
{
    ExpectValid(eFixedFormat, {L"12345.67", L"12345", L"0", L"00000", L"1.2", L"1.23", L"-1.5", L"+.5", L"-12345.67"});
    ExpectInvalid(eFixedFormat,
                  {L"123456", L"000001", L"-123456", L"1.234", L"1.000", L"1,234.00", L"1,5",  L"1.00-", L"1-",
                   L"1e5",    L"1E5",    L"x",       L"1x",    L"1.5x",  L"1.2.3",    L"1..",  L"--1",   L"+-1",
                   L"1+",     L" 1",     L"1 ",      L" ",     L"- 1",   L"%",        L"0x1F", L"inf",   L"nan"});
}

TEST(ValidateString, AcceptsWhateverBeginsANumber)
{
    ExpectValid(eFixedFormat, {L"", L"-", L"+", L".", L"-.", L"+.", L"1.", L"-1."});
}

TEST(ValidateString, TakesANullTextForTheEmptyOne)
{
    EXPECT_TRUE(Valid(nullptr, eFixedFormat));
    EXPECT_FALSE(Valid(nullptr, WithMin(1)));
}

TEST(ValidateString, RefusesASignThatIsNotAllowed)
{
    CNumberFormat format(eFixedFormat);
    format.m_bAllowSign = false;
    ExpectInvalid(format, {L"-1", L"+1", L"-", L"+", L"-.5"});
    ExpectValid(format, {L"1", L""});
}

TEST(ValidateString, CountsIntegerDigitsWithoutTheSign)
{
    CNumberFormat format = Locale();
    format.m_bHasMaxIntDigits = true;
    format.m_nMaxIntDigits = 3;
    ExpectValid(format, {L"123", L"-123"});
    ExpectInvalid(format, {L"1234", L"+1234"});

    format.m_nMaxIntDigits = 0;
    ExpectValid(format, {L"", L"-"});
    EXPECT_FALSE(Valid(L"1", format));

    format.m_nMaxIntDigits = UINT64_MAX;
    EXPECT_TRUE(Valid(L"123456789012345678901234567890", format));
    // The field m_nMaxIntDigits has 64 bits, so 2^32 is not truncated to 0.
    format.m_nMaxIntDigits = std::uint64_t{1} << 32;
    EXPECT_TRUE(Valid(L"1234", format));
}

TEST(ValidateString, RefusesTooManyIntegerDigitsBeforeAFractionToo)
{
    CNumberFormat format(eFixedFormat);
    EXPECT_FALSE(Valid(L"123456.7", format));
    format.m_nMaxIntDigits = 0;
    EXPECT_TRUE(Valid(L".7", format));
    EXPECT_FALSE(Valid(L"0.7", format));
}

TEST(ValidateString, IgnoresLimitsThatAreNotInForce)
{
    CNumberFormat format = WithDecimals(2);
    format.m_nMaxIntDigits = 1;
    format.m_dMin = 100;
    format.m_dMax = -100;
    EXPECT_TRUE(Valid(L"123456789", format));
    format.m_bHasDecimals = false;
    EXPECT_FALSE(Valid(L"1.5", format));
}

TEST(ValidateString, AcceptsAPointOnlyWhereDecimalsAreInForce)
{
    for (const wchar_t* text : {L"1.5", L".", L"1.", L".5", L"-."}) {
        EXPECT_FALSE(Valid(text, Locale())) << text;
        EXPECT_FALSE(Valid(text, WithDecimals(0))) << text;
        EXPECT_TRUE(Valid(text, WithDecimals(1))) << text;
    }
    EXPECT_TRUE(Valid(L"123456789", Locale()));
    EXPECT_TRUE(Valid(L"123456789", WithDecimals(0)));
}

TEST(ValidateString, CountsDecimals)
{
    EXPECT_TRUE(Valid(L"1.2", WithDecimals(1)));
    EXPECT_FALSE(Valid(L"1.23", WithDecimals(1)));
    EXPECT_TRUE(Valid(L".123", WithDecimals(3)));
    EXPECT_FALSE(Valid(L".1234", WithDecimals(3)));
    EXPECT_TRUE(Valid(L".12345678901234567890123456789012345678901234567890", WithDecimals(UINT64_MAX)));
    EXPECT_TRUE(Valid(L".1234", WithDecimals(std::uint64_t{1} << 32)));
}

TEST(ValidateString, AcceptsExponentsWhereAllowed)
{
    const CNumberFormat format = WithExponent(2);
    ExpectValid(format, {L"1e5",        L"1E5",    L"1e",    L"1E",    L"1e-",
                         L"1e+",        L"1E+10",  L"1e-10", L"1.5e3", L"1.e3",
                         L"-1.25E-300", L".5e1",   L".e5",   L"-.e5",  L"1e0001234567890123456789",
                         L"1-5",        L"12+5",   L"12-5",  L"1-",    L"1+",
                         L"1.5-",       L"1.25+7", L"1.-5",  L".-5",   L"-.+5",
                         L"1.-",        L".e",     L"-.E+"});
    ExpectInvalid(format, {L"e5", L"E", L"-e5", L"+e5", L"--5", L"1x", L"1e5x", L"1ee5", L"1eE", L"1e--5", L"1e5-",
                           L"1e5.", L"1e.5", L"1-e5", L"1--", L"1.255e5", L"1 e5", L"1e 5", L"1.2.3e4"});
}

TEST(ValidateString, AcceptsExponentsWithoutDecimals)
{
    ExpectValid(WithExponent(0), {L"15e3", L"15-3"});
    ExpectInvalid(WithExponent(0), {L"1.5e3", L"1.e3"});
}

TEST(ValidateString, RefusesExponentsElsewhere)
{
    ExpectInvalid(WithDecimals(2), {L"1e5", L"1e", L"1-5", L"1-", L"1.5e", L"e"});
}

TEST(ValidateString, CountsNoExponentDigitAmongTheOthers)
{
    CNumberFormat format = WithExponent(1);
    format.m_bHasMaxIntDigits = true;
    format.m_nMaxIntDigits = 1;
    ExpectValid(format, {L"1e12345", L"1.5e12345"});
    EXPECT_FALSE(Valid(L"12e1", format));
}

TEST(ValidateString, ChecksTheLowestValue)
{
    ExpectValid(WithMin(1), {L"1", L"1.01"});
    ExpectInvalid(WithMin(1), {L"0.99", L"0.5", L"-5"});
    EXPECT_TRUE(Valid(L"-5", WithMin(-5)));
    EXPECT_FALSE(Valid(L"-5.01", WithMin(-5)));
}

TEST(ValidateString, ChecksTheHighestValue)
{
    ExpectValid(WithMax(10), {L"10", L"-99"});
    ExpectInvalid(WithMax(10), {L"10.01", L"11"});
    EXPECT_FALSE(Valid(L"-1", WithMax(-1.5)));
}

TEST(ValidateString, ReadsATextThatIsNoNumberYetAsZero)
{
    for (const wchar_t* text : {L"", L"-", L"+", L"."}) {
        EXPECT_FALSE(Valid(text, WithMin(1))) << text;
        EXPECT_TRUE(Valid(text, WithMin(0))) << text;
        EXPECT_FALSE(Valid(text, WithMax(-1))) << text;
        EXPECT_TRUE(Valid(text, WithMax(0))) << text;
    }
}

TEST(ValidateString, ChecksBoundsOfTheExponentToo)
{
    CNumberFormat format = WithMax(1000);
    format.m_bAllowExponent = true;
    ExpectValid(format, {L"1e3", L"1e-4"});
    EXPECT_FALSE(Valid(L"1e4", format));
    // An exponent without its letter is accepted, but not read as an exponent.
    EXPECT_TRUE(Valid(L"1+4", format));
    EXPECT_FALSE(Valid(L"1e999999999999", format));
}

// The bounds apply to the longest number at the beginning of the text. The grammar applies to the whole text.
TEST(ValidateString, ChecksBoundsOfTheLongestNumberThatTheTextBeginsWith)
{
    CNumberFormat format = WithMin(10);
    format.m_bAllowExponent = true;
    ExpectValid(format, {L"12.", L"12e", L"12E+", L"12.5e-", L"12-5", L"12+"});
    ExpectInvalid(format, {L"9.", L"9e", L"9+5", L"12e-5"});
    format = WithMax(10);
    format.m_bAllowExponent = true;
    ExpectInvalid(format, {L"12.", L"12e", L"12E+", L"12.5e-", L"12-5", L"12+"});
    ExpectValid(format, {L"9.", L"9e", L"9+5", L"12e-5"});
}

TEST(ValidateString, ComparesBoundsAsDoubles)
{
    EXPECT_TRUE(Valid(L"0.1", WithMin(0.1)));
    EXPECT_TRUE(Valid(L"0.1", WithMax(0.1)));
    EXPECT_TRUE(Valid(L"16777216", WithMax(16777216)));
    EXPECT_FALSE(Valid(L"16777217", WithMax(16777216)));
    EXPECT_FALSE(Valid(L"16777217", WithMin(16777218)));
    // The double nearest to the first text is 2^53, which equals the bound.
    EXPECT_TRUE(Valid(L"9007199254740993", WithMax(9007199254740992)));
    EXPECT_FALSE(Valid(L"9007199254740994", WithMax(9007199254740992)));
}

TEST(ValidateString, ChecksTheGrammarWithinTheBoundsToo)
{
    ExpectInvalid(WithMin(1), {L"5x", L" 5", L"0x7", L"nan", L"inf"});
    EXPECT_FALSE(Valid(L"5.123", WithMax(10)));
}

TEST(ValidateString, RefusesEverythingWhereTheLowestValueIsAboveTheHighest)
{
    CNumberFormat format = WithMin(10);
    format.m_bHasMax = true;
    format.m_dMax = 5;
    ExpectInvalid(format, {L"", L"0", L"5", L"7", L"10", L"-"});
}

TEST(ValidateString, TakesUnusualBounds)
{
    EXPECT_TRUE(Valid(L"5", WithMin(kNaN)));
    EXPECT_TRUE(Valid(L"-5", WithMax(kNaN)));
    EXPECT_TRUE(Valid(L"-5", WithMin(-kInfinity)));
    EXPECT_TRUE(Valid(L"5", WithMax(kInfinity)));
    EXPECT_FALSE(Valid(L"5", WithMin(kInfinity)));
    EXPECT_FALSE(Valid(L"5", WithMax(-kInfinity)));
    EXPECT_TRUE(Valid((L"1" + std::wstring(400, L'0')).c_str(), WithMin(kInfinity)));
    EXPECT_FALSE(Valid((L"1" + std::wstring(400, L'0')).c_str(), WithMax(std::numeric_limits<double>::max())));
    EXPECT_TRUE(Valid(L"-0", WithMin(0)));
    EXPECT_TRUE(Valid(L"0", WithMax(-0.0)));
}

TEST(ValidateString, ReadsTheFormatsPointAsTheLocales)
{
    CNumberFormat format = WithDecimals(2);
    format.m_chDecimalPoint = L',';
    ExpectValid(format, {L"1,5", L"1.5"});
    ExpectInvalid(format, {L"1,5.5", L"1.5,5", L"1,555", L"1,5,5"});

    format.m_bHasMin = true;
    format.m_dMin = 1.5;
    format.m_bHasMax = true;
    format.m_dMax = 1.75;
    ExpectValid(format, {L"1,5", L"1,75"});
    ExpectInvalid(format, {L"1,49", L"1,76"});

    format.m_chDecimalPoint = L'\u066b';
    EXPECT_TRUE(Valid(L"1\u066b5", format));
    ExpectInvalid(format, {L"1\u066b49", L"1,5"});
}

TEST(ValidateString, TakesAnyCharacterForThePoint)
{
    CNumberFormat format = WithExponent(2);
    format.m_chDecimalPoint = L'5';
    EXPECT_TRUE(Valid(L"152", format));
    ExpectInvalid(format, {L"1552", L"15234"});
    format.m_chDecimalPoint = L'e';
    ExpectValid(format, {L"1e23", L"1e23E4"});
    EXPECT_FALSE(Valid(L"1e234", format));
    format.m_chDecimalPoint = L'-';
    EXPECT_TRUE(Valid(L"-5", format));
    ExpectInvalid(format, {L"--5", L"-555"});
    format.m_chDecimalPoint = L'\0';
    EXPECT_TRUE(Valid(L"1.5", format));
    EXPECT_FALSE(Valid(L"1,5", format));
}

TEST(ValidateString, LooksAtNoFieldOfFormatting)
{
    CNumberFormat format = WithDecimals(2);
    format.m_bPadDecimals = true;
    format.m_bRoundDecimals = true;
    format.m_bGroupDigits = true;
    format.m_bTrailingMinus = true;
    format.m_chThousandsSep = L'1';
    format.m_strTemplate = L"";
    EXPECT_TRUE(Valid(L"1", format));
    ExpectInvalid(format, {L"1.555", L"1-"});
}

TEST(ValidateString, TakesAsciiDigitsAlone)
{
    ExpectInvalid(Locale(), {L"\u0665", L"\uff15", L"\u00b2", L"/", L":"});
    EXPECT_FALSE(Valid(L"1\u0665", WithExponent(2)));
}

}  // namespace
