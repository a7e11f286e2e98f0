#include <fittings/numedit/number_edit_utils.h>

#include <clocale>

#include <gtest/gtest.h>
#include <wx/strconv.h>

#include <tests/numedit/number_texts.h>
#include <tests/support/locale/scoped_locale.h>

namespace {

// Returns a format with the locale's separators, two decimals and groups.
CNumberFormat Amount()
{
    CNumberFormat format(eLocaleFormat);
    format.m_bHasDecimals = true;
    format.m_nDecimals = 2;
    format.m_bPadDecimals = true;
    format.m_bRoundDecimals = true;
    format.m_bGroupDigits = true;
    return format;
}

CNumberFormat Between(double min, double max)
{
    CNumberFormat format = Amount();
    format.m_bHasMin = true;
    format.m_dMin = min;
    format.m_bHasMax = true;
    format.m_dMax = max;
    return format;
}

void ExpectSeparators(const CNumberFormat& format, wchar_t decimalPoint, wchar_t thousandsSeparator)
{
    EXPECT_EQ(format.m_chDecimalPoint, decimalPoint);
    EXPECT_EQ(format.m_chThousandsSep, thousandsSeparator);
}

// Replaces the toolkit's current conversion while the object exists.
class ScopedConversion
{
public:
    explicit ScopedConversion(wxMBConv& conversion) { wxConvCurrent = &conversion; }
    ~ScopedConversion() { wxConvCurrent = m_before; }
    ScopedConversion(const ScopedConversion&) = delete;
    ScopedConversion& operator=(const ScopedConversion&) = delete;

private:
    wxMBConv* const m_before = wxConvCurrent;
};

TEST(GermanLocale, HasItsSeparatorsInTheLocalePreset)
{
    const ScopedLocale german("de_DE.UTF-8");
    const CNumberFormat format(eLocaleFormat);
    ExpectSeparators(format, L',', L'.');
    EXPECT_FALSE(format.m_bGroupDigits);
}

TEST(GermanLocale, IsNotConsultedForTheFixedPreset)
{
    const ScopedLocale german("de_DE.UTF-8");
    ExpectSeparators(eFixedFormat, L'.', L',');
}

TEST(GermanLocale, IsReadOnceByAFormat)
{
    const CNumberFormat plain(eLocaleFormat);
    CNumberFormat german(eFixedFormat);
    {
        const ScopedLocale locale("de_DE.UTF-8");
        ExpectSeparators(plain, L'.', L'\0');
        german = CNumberFormat(eLocaleFormat);
    }
    ExpectSeparators(german, L',', L'.');
}

// A format with the point "." also accepts the locale's point: "1.5" and "1,5" are the same number.
TEST(GermanLocale, ReadsTheFormatsPointAndItsOwn)
{
    const ScopedLocale german("de_DE.UTF-8");
    ExpectValid(eFixedFormat, {L"1.5", L"1,5"});
    ExpectInvalid(eFixedFormat, {L"1,5.5", L"1.555"});
    EXPECT_TRUE(Valid(L"1,5", Amount()));
    EXPECT_FALSE(Valid(L"1.5", Amount()));
    ExpectShown(eFixedFormat, {{L"1234,5", L"1,234.50"}, {L"1234.5", L"1,234.50"}});
    ExpectShown(Amount(), {{L"1234567,885", L"1.234.567,89"}, {L"1234.5", L"1.234"}, {L",5", L"0,50"}});
}

TEST(GermanLocale, ChecksBoundsOfTheFraction)
{
    const ScopedLocale german("de_DE.UTF-8");
    CNumberFormat format = Between(1.5, 1.75);
    ExpectValid(format, {L"1,5", L"1,75"});
    ExpectInvalid(format, {L"1,49", L"1,76"});
    format.m_chDecimalPoint = L'.';
    EXPECT_TRUE(Valid(L"1.5", format));
    ExpectInvalid(format, {L"1.49", L"1.76"});
}

TEST(GermanLocale, DoesNotChangeTheZerosOnTheWay)
{
    const ScopedLocale german("de_DE.UTF-8");
    CNumberFormat format = Between(1, 2);
    EXPECT_TRUE(CNumberEditUtils::ValidateInput(L"0,0", format));
    EXPECT_FALSE(CNumberEditUtils::ValidateInput(L"0.0", format));
    format.m_chDecimalPoint = L'.';
    EXPECT_TRUE(CNumberEditUtils::ValidateInput(L"0.0", format));
    EXPECT_FALSE(CNumberEditUtils::ValidateInput(L"0,0", format));
}

// When the locale changes, a format keeps its separators. The point of the new locale is accepted too, because each
// call reads the locale's point.
TEST(GermanLocale, IsFollowedWhenItComesAndGoes)
{
    CNumberFormat format(eFixedFormat);
    format.m_chDecimalPoint = L'x';
    ExpectShown(format, {{L"1.5", L"1x50"}, {L"1,5", L"1"}});
    EXPECT_TRUE(Valid(L"1.5", format));
    EXPECT_FALSE(Valid(L"1,5", format));
    {
        const ScopedLocale german("de_DE.UTF-8");
        ExpectShown(format, {{L"1.5", L"1"}, {L"1,5", L"1x50"}});
        EXPECT_FALSE(Valid(L"1.5", format));
        EXPECT_TRUE(Valid(L"1,5", format));
    }
    EXPECT_EQ(Shown(L"1.5", format), L"1x50");
    EXPECT_TRUE(Valid(L"1.5", format));
}

TEST(FrenchLocale, SeparatesGroupsByANarrowSpace)
{
    const ScopedLocale french("fr_FR.UTF-8");
    EXPECT_EQ(CNumberFormat(eLocaleFormat).m_chThousandsSep, L'\u202f');
    EXPECT_EQ(Shown(L"1234567,5", Amount()), L"1\u202f234\u202f567,50");
}

TEST(FrenchLocale, SeparatesGroupsByASpaceThatIsOneByteBeyondAscii)
{
    const ScopedLocale french("fr_FR.ISO-8859-1");
    EXPECT_EQ(CNumberFormat(eLocaleFormat).m_chThousandsSep, L'\u00a0');
    EXPECT_EQ(Shown(L"1234567,5", Amount()), L"1\u00a0234\u00a0567,50");
}

TEST(PashtoLocale, HasSeparatorsBeyondAscii)
{
    const ScopedLocale pashto("ps_AF.UTF-8");
    ExpectSeparators(eLocaleFormat, L'\u066b', L'\u066c');
    EXPECT_EQ(Shown(L"1234567٫885", Amount()), L"1٬234٬567٫89");
    ExpectShown(eFixedFormat, {{L"1234٫5", L"1,234.50"}, {L"1234.5", L"1,234.50"}});
}

TEST(PashtoLocale, ChecksBoundsOfTheFraction)
{
    const ScopedLocale pashto("ps_AF.UTF-8");
    CNumberFormat format = Between(1.5, 1.75);
    EXPECT_TRUE(Valid(L"1٫5", format));
    ExpectInvalid(format, {L"1٫49", L"1٫76", L"1.5"});
    format.m_chDecimalPoint = L'.';
    ExpectValid(format, {L"1.5", L"1٫5"});
    ExpectInvalid(format, {L"1.49", L"1.76"});
}

TEST(PashtoLocale, TakesAsciiDigitsAlone)
{
    const ScopedLocale pashto("ps_AF.UTF-8");
    EXPECT_FALSE(Valid(L"١٢", Amount()));
    EXPECT_EQ(Shown(L"1٢", Amount()), L"1");
}

TEST(UnconvertibleLocale, HasSeparatorsOfZero)
{
    const ScopedLocale plain("C");
    const ScopedLocale pashto("ps_AF.UTF-8", LC_NUMERIC);
    ExpectSeparators(eLocaleFormat, L'\0', L'\0');
}

TEST(UnconvertibleLocale, ReplacesNoPoint)
{
    const ScopedLocale plain("C");
    const ScopedLocale pashto("ps_AF.UTF-8", LC_NUMERIC);
    ExpectShown(eFixedFormat, {{L"1234.5", L"1,234.50"}, {L"-12.5e3", L"12.5-e3"}});
    ExpectValid(eFixedFormat, {L"12", L"-"});
    ExpectInvalid(eFixedFormat, {L"1.5", L"1٫5", L"1,5"});
    CNumberFormat bounded = eFixedFormat;
    bounded.m_bHasMin = true;
    bounded.m_dMin = 12;
    EXPECT_TRUE(Valid(L"12", bounded));
    EXPECT_FALSE(Valid(L"11", bounded));
}

TEST(CurrentConversion, ReadsSeparatorsBeyondAscii)
{
    const ScopedLocale plain("C");
    const ScopedLocale pashto("ps_AF.UTF-8", LC_NUMERIC);
    const ScopedConversion utf8(wxConvUTF8);
    ExpectSeparators(eLocaleFormat, L'\u066b', L'\u066c');
    EXPECT_TRUE(Valid(L"1.5", eFixedFormat));
    EXPECT_EQ(Shown(L"1٫5", eFixedFormat), L"1.50");
}

// With this conversion, the locale's point has two characters. In the locale preset, the point is the first of them.
// ValidateString() replaces the format's point by both characters, and then refuses the second one, because only the
// first one is accepted as a point. FormatControlText() replaces both characters by the format's point.
TEST(CurrentConversion, MayMakeSeveralCharactersOfThePoint)
{
    const ScopedLocale pashto("ps_AF.UTF-8");
    const ScopedConversion bytes(wxConvISO8859_1);
    ExpectSeparators(eLocaleFormat, L'\u00d9', L'\u00d9');
    ExpectShown(eFixedFormat, {{L"1234\u00d9\u00ab5", L"1,234.50"}, {L"1234\u00d95", L"1,234"}});
    EXPECT_FALSE(Valid(L"1.5", eFixedFormat));
    EXPECT_TRUE(Valid(L"1\u00d95", eFixedFormat));
    // The point of this format is the first of the two characters.
    EXPECT_FALSE(Valid(L"1\u00d95", Amount()));
    EXPECT_EQ(Shown(L"1\u00d9\u00ab5", Amount()), L"1\u00d950");
}

TEST(CurrentConversion, IsNotAskedForAsciiSeparators)
{
    const ScopedLocale german("de_DE.UTF-8");
    wxMBConvUTF32LE conversion;
    const ScopedConversion utf32(conversion);
    ExpectSeparators(eLocaleFormat, L',', L'.');
    EXPECT_TRUE(Valid(L"1,5", eFixedFormat));
}

TEST(BlanksOfTheLocale, AreCut)
{
    const wchar_t* emSpaces = L"\u2003 1.50 \u2003";
    {
        const ScopedLocale plain("C");
        EXPECT_EQ(Cut(emSpaces), L"\u2003 1.50 \u2003");
    }
    const ScopedLocale utf8("C.UTF-8");
    EXPECT_EQ(Cut(emSpaces), L"1.5");
    EXPECT_EQ(Cut(L"\u3000\u2028"), L"0");
    EXPECT_EQ(Shown(emSpaces, eFixedFormat), L"1.50");
    // A no-break space is not a blank.
    EXPECT_EQ(Cut(L"\u00a01.50"), L"\u00a01.5");
}

}  // namespace
