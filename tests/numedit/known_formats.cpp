#include "known_formats.h"

#include <cstdint>

#include <gtest/gtest.h>

CNumberFormat UnusualFormat()
{
    CNumberFormat format(eLocaleFormat);
    format.m_bPadDecimals = true;
    format.m_bRoundDecimals = true;
    format.m_bAllowSign = false;
    format.m_bGroupDigits = true;
    format.m_bTrailingMinus = true;
    format.m_bAllowExponent = true;
    format.m_chDecimalPoint = L'\u066b';
    format.m_chThousandsSep = L'\'';
    format.m_strTemplate = L"%s \u20ac";
    format.m_bHasDecimals = true;
    format.m_nDecimals = UINT64_MAX;
    format.m_bHasMaxIntDigits = true;
    format.m_nMaxIntDigits = 9;
    format.m_bHasMin = true;
    format.m_dMin = -1.5;
    format.m_bHasMax = true;
    format.m_dMax = 2.5;
    return format;
}

CNumberFormat FormatWithFlags(bool flag)
{
    CNumberFormat format(eFixedFormat);
    format.m_bPadDecimals = format.m_bRoundDecimals = format.m_bAllowSign = flag;
    format.m_bGroupDigits = format.m_bTrailingMinus = format.m_bAllowExponent = flag;
    format.m_bHasDecimals = format.m_bHasMaxIntDigits = format.m_bHasMin = format.m_bHasMax = flag;
    format.m_nDecimals = format.m_nMaxIntDigits = 1;
    format.m_dMin = format.m_dMax = 7;
    format.m_strTemplate = L"%s kg";
    return format;
}

void ExpectUnusual(const CNumberFormat& format)
{
    EXPECT_TRUE(format.m_bPadDecimals);
    EXPECT_TRUE(format.m_bRoundDecimals);
    EXPECT_FALSE(format.m_bAllowSign);
    EXPECT_TRUE(format.m_bGroupDigits);
    EXPECT_TRUE(format.m_bTrailingMinus);
    EXPECT_TRUE(format.m_bAllowExponent);
    EXPECT_EQ(format.m_chDecimalPoint, L'\u066b');
    EXPECT_EQ(format.m_chThousandsSep, L'\'');
    EXPECT_EQ(format.m_strTemplate, L"%s \u20ac");
    EXPECT_TRUE(format.m_bHasDecimals);
    EXPECT_EQ(format.m_nDecimals, UINT64_MAX);
    EXPECT_TRUE(format.m_bHasMaxIntDigits);
    EXPECT_EQ(format.m_nMaxIntDigits, 9u);
    EXPECT_TRUE(format.m_bHasMin);
    EXPECT_EQ(format.m_dMin, -1.5);
    EXPECT_TRUE(format.m_bHasMax);
    EXPECT_EQ(format.m_dMax, 2.5);
}

void ExpectFixed(const CNumberFormat& format)
{
    EXPECT_TRUE(format.m_bPadDecimals);
    EXPECT_FALSE(format.m_bRoundDecimals);
    EXPECT_TRUE(format.m_bAllowSign);
    EXPECT_TRUE(format.m_bGroupDigits);
    EXPECT_TRUE(format.m_bTrailingMinus);
    EXPECT_FALSE(format.m_bAllowExponent);
    EXPECT_EQ(format.m_chDecimalPoint, L'.');
    EXPECT_EQ(format.m_chThousandsSep, L',');
    EXPECT_EQ(format.m_strTemplate, L"%s");
    EXPECT_TRUE(format.m_bHasDecimals);
    EXPECT_EQ(format.m_nDecimals, 2u);
    EXPECT_TRUE(format.m_bHasMaxIntDigits);
    EXPECT_EQ(format.m_nMaxIntDigits, 5u);
    EXPECT_FALSE(format.m_bHasMin);
    EXPECT_EQ(format.m_dMin, 0);
    EXPECT_FALSE(format.m_bHasMax);
    EXPECT_EQ(format.m_dMax, 0);
}
