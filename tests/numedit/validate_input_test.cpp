#include <fittings/numedit/number_edit_utils.h>

#include <string>

#include <gtest/gtest.h>

#include <tests/numedit/known_formats.h>

namespace {

bool Accepted(const wchar_t* text, const CNumberFormat& format)
{
    return CNumberEditUtils::ValidateInput(text, format);
}

/// Returns a format for numbers of at least 1 with at most two decimals.
CNumberFormat FromOne()
{
    CNumberFormat format(eFixedFormat);
    format.m_bHasMin = true;
    format.m_dMin = 1;
    return format;
}

TEST(ValidateInput, AcceptsZerosOnTheWayToASmallFraction)
{
    for (const wchar_t* text : {L".", L"0", L"0.", L"0.0", L"0.00"}) {
        EXPECT_TRUE(Accepted(text, FromOne())) << text;
        if (text[0] == L'0') {
            EXPECT_FALSE(CNumberEditUtils::ValidateString(text, FromOne())) << text;
        }
    }
}

TEST(ValidateInput, AcceptsNothingElseOutsideTheBounds)
{
    for (const wchar_t* text : {L"", L"0.000", L"0.5", L"0.01", L"0.05", L"00", L"00.", L"00.0", L".0", L"-", L"-0",
                                L"0.0.", L"0..", L"0,", L"0.0x", L" 0", L"0 "})
        EXPECT_FALSE(Accepted(text, FromOne())) << text;
    EXPECT_TRUE(Accepted(L"1.05", FromOne()));
}

TEST(ValidateInput, AcceptsZerosBelowAHighestValueToo)
{
    CNumberFormat format(eFixedFormat);
    format.m_bHasMax = true;
    format.m_dMax = -1;
    EXPECT_TRUE(Accepted(L"0", format));
    EXPECT_TRUE(Accepted(L".", format));
    EXPECT_TRUE(Accepted(L"0.00", format));
    EXPECT_FALSE(Accepted(L"", format));
    EXPECT_FALSE(Accepted(L"5", format));
    EXPECT_TRUE(Accepted(L"-5", format));
}

TEST(ValidateInput, AcceptsNoZerosWhereDecimalsAreNotInForce)
{
    CNumberFormat format = FromOne();
    format.m_bHasDecimals = false;
    for (const wchar_t* text : {L"0", L".", L"0.", L"0.0"})
        EXPECT_FALSE(Accepted(text, format)) << text;
    format.m_bHasDecimals = true;
    format.m_nDecimals = 0;
    for (const wchar_t* text : {L"0", L".", L"0.", L"0.0"})
        EXPECT_FALSE(Accepted(text, format)) << text;
}

TEST(ValidateInput, AcceptsAsManyZerosAsThereAreDecimals)
{
    CNumberFormat format = FromOne();
    format.m_nDecimals = 1;
    EXPECT_TRUE(Accepted(L"0.0", format));
    EXPECT_FALSE(Accepted(L"0.00", format));
    format.m_nDecimals = 5;
    EXPECT_TRUE(Accepted(L"0.00000", format));
    EXPECT_FALSE(Accepted(L"0.000000", format));
    format.m_nDecimals = UINT64_MAX;
    EXPECT_TRUE(Accepted((L"0." + std::wstring(1000, L'0')).c_str(), format));
    EXPECT_FALSE(Accepted((L"0." + std::wstring(1000, L'0') + L"1").c_str(), format));
    // The field m_nDecimals has 64 bits, so 2^32 is not truncated to 0.
    format.m_nDecimals = std::uint64_t{1} << 32;
    EXPECT_TRUE(Accepted(L"0.", format));
    EXPECT_TRUE(Accepted(L"0.000", format));
    EXPECT_FALSE(Accepted(L"0.001", format));
}

// The format allows no digit in front of the point. Even so, ValidateInput() accepts the zero of "0" and "0.00".
TEST(ValidateInput, AcceptsTheZeroWhateverTheIntegerDigits)
{
    CNumberFormat format(eFixedFormat);
    format.m_nMaxIntDigits = 0;
    EXPECT_TRUE(Accepted(L"0", format));
    EXPECT_TRUE(Accepted(L"0.00", format));
    EXPECT_FALSE(Accepted(L"1", format));
    EXPECT_FALSE(Accepted(L"0.01", format));
}

TEST(ValidateInput, KnowsTheFormatsPointInTheZeros)
{
    CNumberFormat format = FromOne();
    format.m_chDecimalPoint = L',';
    EXPECT_TRUE(Accepted(L",", format));
    EXPECT_TRUE(Accepted(L"0,", format));
    EXPECT_TRUE(Accepted(L"0,00", format));
    // A complete number may have the locale's point. Below the minimum, ValidateInput() accepts the beginning of a
    // number only with the format's point.
    EXPECT_FALSE(Accepted(L".", format));
    EXPECT_FALSE(Accepted(L"0.", format));
    EXPECT_FALSE(Accepted(L"0.0", format));
    EXPECT_TRUE(Accepted(L"1.5", format));
}

TEST(ValidateInput, TakesAnyCharacterForThePoint)
{
    CNumberFormat format = FromOne();
    format.m_chDecimalPoint = L'0';
    EXPECT_TRUE(Accepted(L"0", format));
    EXPECT_TRUE(Accepted(L"00", format));
    EXPECT_TRUE(Accepted(L"000", format));
    EXPECT_TRUE(Accepted(L"0000", format));
    EXPECT_FALSE(Accepted(L"00000", format));
    format.m_chDecimalPoint = L'x';
    EXPECT_TRUE(Accepted(L"x", format));
    EXPECT_TRUE(Accepted(L"0x", format));
    EXPECT_TRUE(Accepted(L"0x0", format));
    format.m_chDecimalPoint = L'\0';
    EXPECT_FALSE(Accepted(L"", format));
    EXPECT_TRUE(Accepted(L"0", format));
    EXPECT_FALSE(Accepted(L"0.", format));
    EXPECT_FALSE(Accepted(L"00", format));
}

TEST(ValidateInput, LooksAtNoOtherFieldForTheZeros)
{
    for (const bool flag : {false, true}) {
        CNumberFormat format = FormatWithFlags(flag);
        format.m_bHasMin = format.m_bHasDecimals = true;
        format.m_dMin = 1;
        format.m_nDecimals = 2;
        format.m_dMax = -1;
        format.m_nMaxIntDigits = 0;
        format.m_chThousandsSep = L'0';
        format.m_strTemplate = L"";
        for (const wchar_t* text : {L".", L"0", L"0.", L"0.0", L"0.00"})
            EXPECT_TRUE(Accepted(text, format)) << text;
        for (const wchar_t* text : {L"", L"0.000", L"00", L"-0", L"0e", L".0"})
            EXPECT_FALSE(Accepted(text, format)) << text;
    }
}

TEST(ValidateInput, TakesANullTextForTheEmptyOne)
{
    EXPECT_TRUE(Accepted(nullptr, CNumberFormat(eFixedFormat)));
    EXPECT_FALSE(Accepted(nullptr, FromOne()));
}

TEST(ValidateInput, JudgesEverythingElseAsACompleteValue)
{
    const CNumberFormat format(eFixedFormat);
    for (const wchar_t* text : {L"", L"-", L"12345.67", L"-1.5", L".5", L"1.", L"0.05"})
        EXPECT_TRUE(Accepted(text, format)) << text;
    for (const wchar_t* text : {L"123456", L"1.234", L"x", L"1e5", L"1.00-", L"0.000", L"0x"})
        EXPECT_FALSE(Accepted(text, format)) << text;
}

}  // namespace
