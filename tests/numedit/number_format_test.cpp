#include <fittings/numedit/number_format.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <type_traits>

#include <gtest/gtest.h>

#include <tests/numedit/known_formats.h>

namespace {

void ExpectPosixLocale(const CNumberFormat& format)
{
    EXPECT_FALSE(format.m_bPadDecimals);
    EXPECT_FALSE(format.m_bRoundDecimals);
    EXPECT_TRUE(format.m_bAllowSign);
    EXPECT_FALSE(format.m_bGroupDigits);
    EXPECT_FALSE(format.m_bTrailingMinus);
    EXPECT_FALSE(format.m_bAllowExponent);
    EXPECT_EQ(format.m_chDecimalPoint, L'.');
    EXPECT_EQ(format.m_chThousandsSep, L'\0');
    EXPECT_EQ(format.m_strTemplate, L"%s");
    EXPECT_FALSE(format.m_bHasDecimals);
    EXPECT_EQ(format.m_nDecimals, 0u);
    EXPECT_FALSE(format.m_bHasMaxIntDigits);
    EXPECT_EQ(format.m_nMaxIntDigits, 0u);
    EXPECT_FALSE(format.m_bHasMin);
    EXPECT_EQ(format.m_dMin, 0);
    EXPECT_FALSE(format.m_bHasMax);
    EXPECT_EQ(format.m_dMax, 0);
}

TEST(NumberFormat, NamesItsPresets)
{
    EXPECT_EQ(static_cast<int>(eLocaleFormat), 0);
    EXPECT_EQ(static_cast<int>(eFixedFormat), 1);
}

TEST(NumberFormat, HasFieldsOfTheTypesThatHostsAssign)
{
    static_assert(std::is_same_v<decltype(CNumberFormat::m_chDecimalPoint), wchar_t>);
    static_assert(std::is_same_v<decltype(CNumberFormat::m_chThousandsSep), wchar_t>);
    static_assert(std::is_same_v<decltype(CNumberFormat::m_strTemplate), CStdStr<wchar_t>>);
    static_assert(std::is_same_v<decltype(CNumberFormat::m_nDecimals), std::uint64_t>);
    static_assert(std::is_same_v<decltype(CNumberFormat::m_nMaxIntDigits), std::uint64_t>);
    static_assert(std::is_same_v<decltype(CNumberFormat::m_dMin), double>);
    static_assert(std::is_same_v<decltype(CNumberFormat::m_dMax), double>);
    static_assert(std::is_same_v<decltype(std::declval<CNumberFormat&>() = std::declval<const CNumberFormat&>()),
                                 CNumberFormat&>);
}

TEST(NumberFormat, DeclaresItsFieldsInOrder)
{
    const CNumberFormat format(eFixedFormat);
    const void* const fields[] = {&format.m_bPadDecimals,
                                  &format.m_bRoundDecimals,
                                  &format.m_bAllowSign,
                                  &format.m_bGroupDigits,
                                  &format.m_bTrailingMinus,
                                  &format.m_bAllowExponent,
                                  &format.m_chDecimalPoint,
                                  &format.m_chThousandsSep,
                                  &format.m_strTemplate,
                                  &format.m_bHasDecimals,
                                  &format.m_nDecimals,
                                  &format.m_bHasMaxIntDigits,
                                  &format.m_nMaxIntDigits,
                                  &format.m_bHasMin,
                                  &format.m_dMin,
                                  &format.m_bHasMax,
                                  &format.m_dMax};
    EXPECT_EQ(std::size(fields), 17u);
    EXPECT_TRUE(std::is_sorted(std::begin(fields), std::end(fields), std::less<>()));
}

TEST(NumberFormat, IsMadeOfItsPresetWhereOneIsAskedFor)
{
    static_assert(std::is_convertible_v<EGeneralFormat, CNumberFormat>);
    const CNumberFormat format = eFixedFormat;
    ExpectFixed(format);
}

TEST(NumberFormat, FillsEveryFieldOfTheFixedPreset)
{
    ExpectFixed(CNumberFormat(eFixedFormat));
}

TEST(NumberFormat, TakesEveryOtherNumberForTheFixedPreset)
{
    ExpectFixed(CNumberFormat(static_cast<EGeneralFormat>(7)));
    ExpectFixed(CNumberFormat(static_cast<EGeneralFormat>(2)));
    ExpectFixed(CNumberFormat(static_cast<EGeneralFormat>(-1)));
}

TEST(NumberFormat, FillsEveryFieldOfTheLocalePreset)
{
    ExpectPosixLocale(CNumberFormat(eLocaleFormat));
}

TEST(NumberFormat, CopiesEveryField)
{
    CNumberFormat original = UnusualFormat();
    const CNumberFormat copy(original);
    original = CNumberFormat(eFixedFormat);
    ExpectUnusual(copy);
}

TEST(NumberFormat, AssignsEveryField)
{
    CNumberFormat fixed(eFixedFormat);
    CNumberFormat locale(eLocaleFormat);
    const CNumberFormat unusual = UnusualFormat();
    EXPECT_EQ(&(fixed = unusual), &fixed);
    ExpectUnusual(fixed);
    fixed = locale;
    ExpectPosixLocale(fixed);
    locale = CNumberFormat(eFixedFormat);
    ExpectFixed(locale);
}

// This test fails if the assignment copies a flag to another flag.
TEST(NumberFormat, AssignsEachFlagByItself)
{
    bool CNumberFormat::*const flags[] = {&CNumberFormat::m_bPadDecimals,   &CNumberFormat::m_bRoundDecimals,
                                          &CNumberFormat::m_bAllowSign,     &CNumberFormat::m_bGroupDigits,
                                          &CNumberFormat::m_bTrailingMinus, &CNumberFormat::m_bAllowExponent,
                                          &CNumberFormat::m_bHasDecimals,   &CNumberFormat::m_bHasMaxIntDigits,
                                          &CNumberFormat::m_bHasMin,        &CNumberFormat::m_bHasMax};
    for (const auto only : flags) {
        CNumberFormat original(eFixedFormat);
        for (const auto flag : flags)
            original.*flag = flag == only;
        CNumberFormat assigned(eLocaleFormat);
        assigned = original;
        for (const auto flag : flags)
            EXPECT_EQ(assigned.*flag, flag == only);
    }
}

TEST(NumberFormat, StaysAsItIsWhenAssignedToItself)
{
    CNumberFormat format = UnusualFormat();
    const CNumberFormat& same = format;
    format = same;
    ExpectUnusual(format);

    format.m_strTemplate = std::wstring(1000, L'x') + L"%s";
    format = same;
    EXPECT_EQ(format.m_strTemplate, std::wstring(1000, L'x') + L"%s");
}

TEST(NumberFormat, OwnsItsTemplate)
{
    CNumberFormat original = UnusualFormat();
    const CNumberFormat copy(original);
    CNumberFormat assigned(eFixedFormat);
    assigned = original;
    original.m_strTemplate[0] = L'$';
    original.m_strTemplate = L"%s litres or more, as long as no small buffer";
    EXPECT_EQ(copy.m_strTemplate, L"%s \u20ac");
    EXPECT_EQ(assigned.m_strTemplate, L"%s \u20ac");
}

TEST(NumberFormat, AssignsTheTemplateUpToItsFirstZeroCharacter)
{
    CNumberFormat original(eFixedFormat);
    original.m_strTemplate = std::wstring(L"%s\0kg", 5);
    CNumberFormat assigned(eFixedFormat);
    assigned.m_strTemplate = L"%s pounds";
    assigned = original;
    EXPECT_EQ(assigned.m_strTemplate, L"%s");
    EXPECT_EQ(CNumberFormat(original).m_strTemplate, std::wstring(L"%s\0kg", 5));
}

TEST(NumberFormat, TakesANullTemplateForTheEmptyOne)
{
    CNumberFormat format(eFixedFormat);
    format.m_strTemplate = static_cast<const wchar_t*>(nullptr);
    EXPECT_EQ(format.m_strTemplate, L"");
    CNumberFormat assigned(eFixedFormat);
    assigned = format;
    EXPECT_EQ(assigned.m_strTemplate, L"");
}

}  // namespace
