#include <fittings/numedit/number_edit_utils.h>

#include <initializer_list>
#include <string>

#include <gtest/gtest.h>

#include <tests/numedit/known_formats.h>
#include <tests/numedit/number_texts.h>

namespace {

bool Accepted(const wchar_t* text, const CNumberFormat& format)
{
    return CNumberEditUtils::ValidateInput(text, format);
}

void ExpectAccepted(const CNumberFormat& format, std::initializer_list<const wchar_t*> texts)
{
    for (const wchar_t* text : texts)
        EXPECT_TRUE(Accepted(text, format)) << text;
}

void ExpectRefused(const CNumberFormat& format, std::initializer_list<const wchar_t*> texts)
{
    for (const wchar_t* text : texts)
        EXPECT_FALSE(Accepted(text, format)) << text;
}

// Returns a format for numbers of at least 1 with at most two decimals.
CNumberFormat FromOne()
{
    CNumberFormat format(eFixedFormat);
    format.m_bHasMin = true;
    format.m_dMin = 1;
    return format;
}

TEST(ValidateInput, AcceptsZerosOnTheWayToASmallFraction)
{
    ExpectAccepted(FromOne(), {L".", L"0", L"0.", L"0.0", L"0.00"});
    ExpectInvalid(FromOne(), {L"0", L"0.", L"0.0", L"0.00"});
}

TEST(ValidateInput, AcceptsNothingElseOutsideTheBounds)
{
    ExpectRefused(FromOne(), {L"", L"0.000", L"0.5", L"0.01", L"0.05", L"00", L"00.", L"00.0", L".0", L"-", L"-0",
                              L"0.0.", L"0..", L"0,", L"0.0x", L" 0", L"0 "});
    EXPECT_TRUE(Accepted(L"1.05", FromOne()));
}

TEST(ValidateInput, AcceptsZerosBelowAHighestValueToo)
{
    CNumberFormat format(eFixedFormat);
    format.m_bHasMax = true;
    format.m_dMax = -1;
    ExpectAccepted(format, {L"0", L".", L"0.00", L"-5"});
    ExpectRefused(format, {L"", L"5"});
}

TEST(ValidateInput, AcceptsNoZerosWhereDecimalsAreNotInForce)
{
    CNumberFormat format = FromOne();
    format.m_bHasDecimals = false;
    ExpectRefused(format, {L"0", L".", L"0.", L"0.0"});
    format.m_bHasDecimals = true;
    format.m_nDecimals = 0;
    ExpectRefused(format, {L"0", L".", L"0.", L"0.0"});
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
    ExpectAccepted(format, {L"0.", L"0.000"});
    EXPECT_FALSE(Accepted(L"0.001", format));
}

// The format allows no digit in front of the point. Even so, ValidateInput() accepts the zero of "0" and "0.00".
TEST(ValidateInput, AcceptsTheZeroWhateverTheIntegerDigits)
{
    CNumberFormat format(eFixedFormat);
    format.m_nMaxIntDigits = 0;
    ExpectAccepted(format, {L"0", L"0.00"});
    ExpectRefused(format, {L"1", L"0.01"});
}

TEST(ValidateInput, KnowsTheFormatsPointInTheZeros)
{
    CNumberFormat format = FromOne();
    format.m_chDecimalPoint = L',';
    ExpectAccepted(format, {L",", L"0,", L"0,00"});
    // These texts are below the minimum, so they are accepted only with the format's point. A number within the bounds
    // may also have the locale's point.
    ExpectRefused(format, {L".", L"0.", L"0.0"});
    EXPECT_TRUE(Accepted(L"1.5", format));
}

TEST(ValidateInput, TakesAnyCharacterForThePoint)
{
    CNumberFormat format = FromOne();
    format.m_chDecimalPoint = L'0';
    ExpectAccepted(format, {L"0", L"00", L"000", L"0000"});
    EXPECT_FALSE(Accepted(L"00000", format));
    format.m_chDecimalPoint = L'x';
    ExpectAccepted(format, {L"x", L"0x", L"0x0"});
    format.m_chDecimalPoint = L'\0';
    ExpectRefused(format, {L"", L"0.", L"00"});
    EXPECT_TRUE(Accepted(L"0", format));
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
        ExpectAccepted(format, {L".", L"0", L"0.", L"0.0", L"0.00"});
        ExpectRefused(format, {L"", L"0.000", L"00", L"-0", L"0e", L".0"});
    }
}

TEST(ValidateInput, TakesANullTextForTheEmptyOne)
{
    EXPECT_TRUE(Accepted(nullptr, eFixedFormat));
    EXPECT_FALSE(Accepted(nullptr, FromOne()));
}

TEST(ValidateInput, JudgesEverythingElseAsACompleteValue)
{
    ExpectAccepted(eFixedFormat, {L"", L"-", L"12345.67", L"-1.5", L".5", L"1.", L"0.05"});
    ExpectRefused(eFixedFormat, {L"123456", L"1.234", L"x", L"1e5", L"1.00-", L"0.000", L"0x"});
}

}  // namespace
