#include <fittings/numedit/number_edit_utils.h>

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include <tests/numedit/number_texts.h>

namespace {

constexpr std::size_t kLong = 1 << 20;

std::wstring Many(wchar_t c, std::size_t count = kLong)
{
    return std::wstring(count, c);
}

// Returns a format that allows any number of digits, a fraction and an exponent.
CNumberFormat Endless()
{
    CNumberFormat format(eLocaleFormat);
    format.m_bHasDecimals = true;
    format.m_nDecimals = UINT64_MAX;
    format.m_bHasMaxIntDigits = true;
    format.m_nMaxIntDigits = UINT64_MAX;
    format.m_bAllowExponent = true;
    return format;
}

// The texts have about a million characters. The tests compare them with EXPECT_TRUE, because a failed EXPECT_EQ would
// print both texts in full. If a function's time grew with the square of the length, its test would exceed the time
// limit.

TEST(LongTexts, AreTrimmed)
{
    EXPECT_TRUE(Cut(Many(L'1')) == Many(L'1'));
    EXPECT_TRUE(Cut(Many(L'0')) == L"0");
    EXPECT_TRUE(Cut(Many(L' ')) == L"0");
    EXPECT_TRUE(Cut(Many(L' ') + Many(L'0') + L"5" + Many(L' ')) == L"5");
    EXPECT_TRUE(Cut(L"." + Many(L'0')) == L"0");
    EXPECT_TRUE(Cut(L"5." + Many(L'0') + L"e" + Many(L'0')) == L"5e" + Many(L'0'));
    EXPECT_TRUE(Cut(Many(L'.')) == L"0" + Many(L'.', kLong - 1));
    EXPECT_TRUE(Cut(Many(L'e')) == L"0" + Many(L'e'));
    EXPECT_TRUE(Cut(Many(L'-')) == Many(L'-'));
}

TEST(LongTexts, AreGrouped)
{
    const std::wstring grouped = Group(Many(L'7'));
    // 1,048,576 digits: one digit, and then 349,525 groups of three.
    EXPECT_EQ(grouped.size(), 1048576u + 349525u);
    EXPECT_EQ(grouped.substr(0, 6), L"7,777,");
    EXPECT_EQ(grouped.substr(grouped.size() - 5), L"7,777");
    EXPECT_EQ(std::count(grouped.begin(), grouped.end(), L','), 349525);
    EXPECT_TRUE(Group(L"." + Many(L'7')) == L"." + Many(L'7'));
    EXPECT_TRUE(Group(L"1234" + Many(L'.')) == L"1,234" + Many(L'.'));
}

TEST(LongTexts, AreJudged)
{
    const CNumberFormat format = Endless();
    EXPECT_TRUE(Valid(Many(L'1'), format));
    EXPECT_TRUE(Valid(L"-" + Many(L'1') + L"." + Many(L'2') + L"e-" + Many(L'3'), format));
    EXPECT_FALSE(Valid(Many(L'1') + L"x", format));
    EXPECT_FALSE(Valid(L"1." + Many(L'1') + L"x", format));
    EXPECT_FALSE(Valid(L"1e" + Many(L'1') + L"x", format));
    EXPECT_FALSE(Valid(Many(L'.'), format));
    EXPECT_FALSE(Valid(Many(L'-'), format));
    EXPECT_FALSE(Valid(Many(L' '), format));
    EXPECT_FALSE(Valid(Many(L'1'), CNumberFormat(eFixedFormat)));
    EXPECT_FALSE(Valid(L"1." + Many(L'1'), CNumberFormat(eFixedFormat)));
}

TEST(LongTexts, AreJudgedWithAnotherPointAndBounds)
{
    CNumberFormat format = Endless();
    format.m_chDecimalPoint = L',';
    format.m_bHasMin = format.m_bHasMax = true;
    format.m_dMin = 0.11;
    format.m_dMax = 0.2;
    EXPECT_TRUE(Valid(L"0," + Many(L'1'), format));
    EXPECT_FALSE(Valid(L"0," + Many(L'2'), format));
    EXPECT_FALSE(Valid(L"0,0" + Many(L'9'), format));
    EXPECT_FALSE(Valid(Many(L','), format));
    EXPECT_FALSE(Valid(Many(L' '), format));
    EXPECT_FALSE(Valid(Many(L'1'), format));
}

TEST(LongTexts, AreJudgedOnTheWay)
{
    CNumberFormat format = Endless();
    format.m_bHasMin = true;
    format.m_dMin = 1;
    EXPECT_TRUE(CNumberEditUtils::ValidateInput((L"0." + Many(L'0')).c_str(), format));
    EXPECT_FALSE(CNumberEditUtils::ValidateInput((L"0." + Many(L'0') + L"1").c_str(), format));
    EXPECT_FALSE(CNumberEditUtils::ValidateInput(Many(L'0').c_str(), format));
}

TEST(LongTexts, AreShown)
{
    CNumberFormat format(eFixedFormat);
    EXPECT_TRUE(Shown(L"1234" + Many(L'.'), format) == L"1,234.");
    EXPECT_TRUE(Shown(L"5." + Many(L'1'), format) == L"5." + Many(L'1'));
    EXPECT_TRUE(Shown(Many(L' '), format) == L"0.00");
    EXPECT_TRUE(Shown(Many(L'-'), format) == L"-");
    EXPECT_EQ(Shown(Many(L'x'), format), L"");
    EXPECT_TRUE(Shown(L"5e-" + Many(L'1'), format) == L"5e-" + Many(L'1'));
    EXPECT_EQ(Shown(Many(L'7'), format).size(), 1048576u + 349525u + 3u);
    format.m_chDecimalPoint = L',';
    EXPECT_TRUE(Shown(L"1" + Many(L'.'), format) == L"1,");
}

TEST(LongTexts, AreRounded)
{
    CNumberFormat format(eLocaleFormat);
    format.m_bRoundDecimals = true;
    format.m_bHasDecimals = true;
    format.m_nDecimals = kLong - 1;
    EXPECT_TRUE(Shown(L"." + Many(L'9'), format) == L"1." + Many(L'0', kLong - 1));
    EXPECT_TRUE(Shown(Many(L'9') + L"." + Many(L'9'), format) == L"1" + Many(L'0') + L"." + Many(L'0', kLong - 1));
    EXPECT_TRUE(Shown(L"1." + Many(L'4'), format) == L"1." + Many(L'4', kLong - 1));
    EXPECT_TRUE(Shown(L"1." + Many(L'5'), format) == L"1." + Many(L'5', kLong - 2) + L"6");
}

TEST(LongTexts, AreTemplates)
{
    CNumberFormat format(eFixedFormat);
    format.m_strTemplate = Many(L'x', 100000) + L"%s" + Many(L'y', 100000);
    EXPECT_TRUE(Shown(L"1234", format) == Many(L'x', 100000) + L"1,234.00" + Many(L'y', 100000));
    format.m_strTemplate = L"%s kg";
    EXPECT_TRUE(Shown(L"5." + Many(L'1'), format) == L"5." + Many(L'1') + L" kg");
}

TEST(UnusualCharacters, AreNoNumber)
{
    const CNumberFormat format(eFixedFormat);
    for (const wchar_t c : {wchar_t{0x665}, wchar_t{0xD800}, wchar_t{0xDFFF}, wchar_t{0x10FFFF}, wchar_t{0x110000},
                            wchar_t{0x7FFFFFFF}, static_cast<wchar_t>(-1), wchar_t{1}}) {
        const std::wstring text(1, c);
        EXPECT_FALSE(Valid(text, format)) << static_cast<long>(c);
        EXPECT_FALSE(Valid(L"1" + text, format)) << static_cast<long>(c);
        EXPECT_EQ(Shown(L"12" + text, format), L"12") << static_cast<long>(c);
        EXPECT_EQ(Cut(L"00" + text + L".50"), text + L".5") << static_cast<long>(c);
        EXPECT_EQ(Group(text + L"123"), text + L",123") << static_cast<long>(c);
    }
}

TEST(UnusualCharacters, AreSeparators)
{
    CNumberFormat format(eFixedFormat);
    for (const wchar_t c : {wchar_t{0xD800}, wchar_t{0x110000}, wchar_t{0x7FFFFFFF}, static_cast<wchar_t>(-1)}) {
        // "1,234,50" and "1,50", with c in place of each comma.
        const std::wstring grouped{L'1', c, L'2', L'3', L'4', c, L'5', L'0'};
        const std::wstring plain{L'1', c, L'5', L'0'};
        format.m_chThousandsSep = c;
        format.m_chDecimalPoint = c;
        format.m_strTemplate = L"%s";
        EXPECT_EQ(Shown(L"1234.5", format), grouped);
        EXPECT_TRUE(Valid(plain, format));
        format.m_strTemplate = L"%s kg";
        EXPECT_EQ(Shown(plain, format), plain + L" kg");
    }
}

// Makes a format. The four low bits of @a flags choose how numbers are shown. The other three bits choose what a
// number may contain.
CNumberFormat FromBits(unsigned flags)
{
    CNumberFormat format(eLocaleFormat);
    format.m_bPadDecimals = flags & 1;
    format.m_bRoundDecimals = flags & 2;
    format.m_bGroupDigits = flags & 4;
    format.m_bTrailingMinus = flags & 8;
    format.m_bAllowSign = flags & 16;
    format.m_bAllowExponent = flags & 32;
    format.m_bHasDecimals = flags & 64;
    return format;
}

// With any separators and flags, FormatControlText() returns a text of limited length without a null character, and
// ValidateInput() accepts each text that ValidateString() accepts. Other tests check the results, and the sanitizers
// check the memory.
TEST(UnusualFormats, BreakNothing)
{
    const std::wstring separators(L"\000059eE+-., %x\u066b", 14);
    const std::wstring texts[] = {L"0",           L"-",     L".",      L"-.",     L"e5",    L"1234567.891",
                                  L"-999.995e-5", L"9.995", L"00.500", L"1,5,5e", L"5.5.5", L" +12-5 \u0665",
                                  L"00000"};
    for (unsigned flags = 0; flags < 128; ++flags) {
        CNumberFormat format = FromBits(flags);
        for (const std::uint64_t decimals : {0, 1, 3}) {
            format.m_nDecimals = decimals;
            for (const wchar_t point : separators) {
                format.m_chDecimalPoint = point;
                for (const wchar_t thousands : separators) {
                    format.m_chThousandsSep = thousands;
                    for (const std::wstring& text : texts) {
                        const std::wstring shown = Shown(text, format);
                        ASSERT_EQ(shown.find(L'\0'), shown.npos) << text;
                        ASSERT_LE(shown.size(), text.size() * 4 / 3 + 6) << text;
                    }
                }
                for (const std::wstring& text : texts) {
                    if (Valid(text, format)) {
                        ASSERT_TRUE(CNumberEditUtils::ValidateInput(text.c_str(), format)) << text;
                    }
                }
            }
        }
    }
}

}  // namespace
