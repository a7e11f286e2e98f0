// What the page of numbers restores in the next session.

#include <wx/checkbox.h>

#include <tests/gallery/numbers/numbers_page_fixture.h>
#include <tests/support/locale/scoped_locale.h>

namespace {

using namespace gallery::simulated_user;

TEST_F(NumbersPageTest, EverythingComesBack)
{
    for (const char mnemonic : {'S', 'E', 'I', 'M', 'Z', 'R', 'G', 'B'})
        Press(mnemonic, wxMOD_ALT);
    Press('M', wxMOD_ALT);
    Press('M', wxMOD_ALT);
    GoTo("Min", WXK_TAB, wxMOD_NONE);
    Type("0.125");
    GoTo("DecimalPoint", 'P');
    Type(",");
    GoTo("ThousandsSep", 'T');
    Type(" ");
    Press('D', wxMOD_ALT);
    Press('D', wxMOD_ALT);
    GoTo("Decimals", WXK_TAB, wxMOD_NONE);
    Press(WXK_UP);
    GoTo("Template", 'L');
    Press(WXK_DOWN);
    Press(WXK_DOWN);
    TypeNumber("7,5");
    Press('C', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return frame->GetNumbers()->GetKept() == "7,5"; }));
    TypeNumber("8");
    OpenNextSession();

    const CNumberFormat format = Format();
    EXPECT_FALSE(format.m_bAllowSign);
    EXPECT_TRUE(format.m_bAllowExponent);
    EXPECT_FALSE(format.m_bHasMaxIntDigits);
    EXPECT_TRUE(format.m_bHasMin);
    EXPECT_EQ(format.m_dMin, 0.125);
    EXPECT_FALSE(format.m_bPadDecimals);
    EXPECT_TRUE(format.m_bRoundDecimals);
    EXPECT_FALSE(format.m_bGroupDigits);
    EXPECT_FALSE(format.m_bTrailingMinus);
    EXPECT_EQ(format.m_chDecimalPoint, L',');
    EXPECT_EQ(format.m_chThousandsSep, L' ');
    EXPECT_TRUE(format.m_bHasDecimals);
    EXPECT_EQ(format.m_nDecimals, 3u);
    EXPECT_EQ(format.m_strTemplate, L"%s \u20AC");
    EXPECT_EQ(Number().GetValue(), "8");
    EXPECT_EQ(Result("FormatControlText"), L"8 \u20AC");
    EXPECT_EQ(Label("Kept"), "Kept: 7,5");
    EXPECT_TRUE(Get<wxCheckBox>("Validates").GetValue());
    Press('K', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return Number().GetValue() == "7,5"; }));
}

TEST_F(NumbersPageTest, AnEmptyNumberAndNoValidatorComeBackToo)
{
    Press('W', wxMOD_ALT);
    TypeNumber("");
    OpenNextSession();
    EXPECT_EQ(Number().GetValue(), "");
    EXPECT_FALSE(Get<wxCheckBox>("Validates").GetValue());
    TypeNumber("x");
    EXPECT_EQ(Number().GetValue(), "x");
}

TEST_F(NumbersPageTest, ABoundComesBackInAnotherLocale)
{
    Close();
    {
        const ScopedLocale german("de_DE.UTF-8");
        OpenPage();
        Press('M', wxMOD_ALT);
        GoTo("Min", WXK_TAB, wxMOD_NONE);
        Type("-1,5");
        EXPECT_EQ(Format().m_dMin, -1.5);
        Close();
    }
    Open("");
    EXPECT_EQ(Get<wxTextCtrl>("Min").GetValue(), "-1.5");
    EXPECT_EQ(Format().m_dMin, -1.5);
}

// Earlier versions stored a bound with the decimal point of the locale.
TEST_F(NumbersPageTest, ABoundOfAnEarlierVersionComesBackInEveryLocale)
{
    for (const char* const locale : {"de_DE.UTF-8", "C"}) {
        Close();
        const ScopedLocale scoped(locale);
        WriteFile(settings / "ui_config/numbers.ini", "[Format]\nHasMin=1\nMin=1,5\nHasMax=1\nMax=2.5e3\n");
        Open("");
        EXPECT_EQ(Format().m_dMin, 1.5) << locale;
        EXPECT_EQ(Format().m_dMax, 2500) << locale;
    }
}

// A template is a printf format, so a template that somebody else has written could do harm. Therefore the page uses a
// stored template only if the page itself offers this template.
TEST_F(NumbersPageTest, NonsenseInTheSettingsDoesNoHarm)
{
    Close();
    WriteFile(settings / "ui_config/numbers.ini", "[Format]\nAllowSign=yes\nHasDecimals=\nDecimals=-1\n"
                                                  "MaxIntDigits=99999999999999999999\nMin=abc\nHasMin=1\nMax=1,234.5\n"
                                                  "DecimalPoint=U+ZZ\nThousandsSep=U+110000\nTemplate=%n%n%s%s\n");
    Open("");
    const CNumberFormat format = Format();
    EXPECT_TRUE(format.m_bAllowSign);
    EXPECT_TRUE(format.m_bHasDecimals);
    EXPECT_EQ(format.m_nDecimals, 2u);
    EXPECT_EQ(format.m_nMaxIntDigits, 5u);
    EXPECT_TRUE(format.m_bHasMin);
    EXPECT_EQ(format.m_dMin, 0);
    EXPECT_EQ(Get<wxTextCtrl>("Min").GetValue(), "0");
    EXPECT_EQ(Get<wxTextCtrl>("Max").GetValue(), "");
    EXPECT_EQ(format.m_chDecimalPoint, L'.');
    EXPECT_EQ(format.m_chThousandsSep, L',');
    EXPECT_EQ(format.m_strTemplate, L"%s");
    EXPECT_EQ(Result("FormatControlText"), "1,234.50");
}

}  // namespace
