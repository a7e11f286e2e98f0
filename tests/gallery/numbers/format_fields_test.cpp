// The controls for the fields of the format, operated with the keyboard and the mouse.

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/spinctrl.h>

#include <tests/gallery/numbers/numbers_page_fixture.h>
#include <tests/numedit/known_formats.h>

namespace {

using namespace gallery::simulated_user;

TEST_F(NumbersPageTest, StartsWithTheFixedFormat)
{
    ExpectFixed(Format());
    EXPECT_EQ(Number().GetValue(), "1234.5");
    EXPECT_EQ(Result("FormatControlText"), "1,234.50");
}

struct FlagCase
{
    const char* name;
    char mnemonic;
    bool CNumberFormat::*field;
};

class NumbersPageFlag : public NumbersPageTest, public testing::WithParamInterface<FlagCase>
{
};

// The focus is in the number's field, whose validator refuses the letter of the mnemonic. Even so, the mnemonic must
// work.
TEST_P(NumbersPageFlag, IsSwitchedByItsMnemonicAndByAClick)
{
    const FlagCase& flag = GetParam();
    const bool before = Format().*flag.field;
    Press(flag.mnemonic, wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return Format().*flag.field != before; }));
    EXPECT_EQ(Number().GetValue(), "1234.5");
    Click(CentreOf(WindowRect(Get<wxCheckBox>(flag.name))));
    EXPECT_TRUE(PumpUntil([&] { return Format().*flag.field == before; }));
}

INSTANTIATE_TEST_SUITE_P(, NumbersPageFlag,
                         testing::Values(FlagCase{"AllowSign", 'S', &CNumberFormat::m_bAllowSign},
                                         FlagCase{"AllowExponent", 'E', &CNumberFormat::m_bAllowExponent},
                                         FlagCase{"HasDecimals", 'D', &CNumberFormat::m_bHasDecimals},
                                         FlagCase{"HasMaxIntDigits", 'I', &CNumberFormat::m_bHasMaxIntDigits},
                                         FlagCase{"HasMin", 'M', &CNumberFormat::m_bHasMin},
                                         FlagCase{"HasMax", 'U', &CNumberFormat::m_bHasMax},
                                         FlagCase{"PadDecimals", 'Z', &CNumberFormat::m_bPadDecimals},
                                         FlagCase{"RoundDecimals", 'R', &CNumberFormat::m_bRoundDecimals},
                                         FlagCase{"GroupDigits", 'G', &CNumberFormat::m_bGroupDigits},
                                         FlagCase{"TrailingMinus", 'B', &CNumberFormat::m_bTrailingMinus}),
                         [](const auto& info) { return info.param.name; });

TEST_F(NumbersPageTest, SeparatorsAreTyped)
{
    GoTo("DecimalPoint", 'P');
    Type(",");
    EXPECT_TRUE(PumpUntil([&] { return Format().m_chDecimalPoint == L','; }));
    EXPECT_EQ(Label("DecimalPointCode"), "U+002C");
    GoTo("ThousandsSep", 'T');
    Type("'");
    EXPECT_TRUE(PumpUntil([&] { return Format().m_chThousandsSep == L'\''; }));
    EXPECT_EQ(Label("ThousandsSepCode"), "U+0027");
    EXPECT_EQ(Result("FormatControlText"), "1'234,50");
    Type("\b");
    EXPECT_TRUE(PumpUntil([&] { return Format().m_chThousandsSep == L'\0'; }));
    EXPECT_EQ(Label("ThousandsSepCode"), "none");
}

TEST_F(NumbersPageTest, LimitsAreTypedOnceTheyAreInForce)
{
    EXPECT_FALSE(Get<wxTextCtrl>("Min").IsEnabled());
    EXPECT_FALSE(Get<wxTextCtrl>("Max").IsEnabled());
    Press('M', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return Get<wxTextCtrl>("Min").IsEnabled(); }));
    GoTo("Min", WXK_TAB, wxMOD_NONE);
    Type("-1x.5");
    EXPECT_EQ(Format().m_dMin, -1.5);
    Press('U', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return Get<wxTextCtrl>("Max").IsEnabled(); }));
    GoTo("Max", WXK_TAB, wxMOD_NONE);
    Type("2e1");
    EXPECT_EQ(Format().m_dMax, 20);
    EXPECT_EQ(Result("ValidateString"), L"\u2717 refused") << "1234.5 is above 20";

    Press('D', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return !Get<wxSpinCtrl>("Decimals").IsEnabled(); }));
    Press('D', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return Get<wxSpinCtrl>("Decimals").IsEnabled(); }));
    GoTo("Decimals", WXK_TAB, wxMOD_NONE);
    Press(WXK_UP);
    EXPECT_TRUE(PumpUntil([&] { return Format().m_nDecimals == 3; }));
    Press(WXK_TAB);
    GoTo("MaxIntDigits", WXK_TAB, wxMOD_NONE);
    Press(WXK_DOWN);
    EXPECT_TRUE(PumpUntil([&] { return Format().m_nMaxIntDigits == 4; }));
}

TEST_F(NumbersPageTest, TemplatesAreChosenAndNeverTyped)
{
    GoTo("Template", 'L');
    Press(WXK_DOWN);
    EXPECT_TRUE(PumpUntil([&] { return Format().m_strTemplate == L"%s kg"; }));
    EXPECT_TRUE(PumpUntil([&] { return Result("FormatControlText") == "1,234.50 kg"; }));
    EXPECT_FALSE(dynamic_cast<wxTextEntry*>(&Get<wxChoice>("Template")));
    for (const wxString& offered : Get<wxChoice>("Template").GetStrings()) {
        wxString rest = offered;
        rest.Replace("%%", "");
        EXPECT_EQ(rest.Freq('%'), 1u) << offered;
        EXPECT_TRUE(rest.Contains("%s")) << offered;
    }
}

TEST_F(NumbersPageTest, PresetsFillEveryField)
{
    for (const char mnemonic : {'S', 'E', 'M', 'R'})
        Press(mnemonic, wxMOD_ALT);
    GoTo("Template", 'L');
    Press(WXK_DOWN);
    Press('O', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return !Format().m_bGroupDigits; }));
    CNumberFormat format = Format();
    EXPECT_FALSE(format.m_bPadDecimals);
    EXPECT_FALSE(format.m_bRoundDecimals);
    EXPECT_TRUE(format.m_bAllowSign);
    EXPECT_FALSE(format.m_bTrailingMinus);
    EXPECT_FALSE(format.m_bAllowExponent);
    EXPECT_EQ(format.m_chDecimalPoint, L'.');
    EXPECT_EQ(format.m_chThousandsSep, L'\0') << "this process stays in the C locale";
    EXPECT_EQ(format.m_strTemplate, L"%s");
    EXPECT_FALSE(format.m_bHasDecimals);
    EXPECT_FALSE(format.m_bHasMaxIntDigits);
    EXPECT_FALSE(format.m_bHasMin);
    EXPECT_FALSE(format.m_bHasMax);
    EXPECT_EQ(Result("ValidateString"), L"\u2717 refused") << "no decimals are accepted";
    Press('X', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return Format().m_bGroupDigits; }));
    format = Format();
    EXPECT_TRUE(format.m_bPadDecimals);
    EXPECT_TRUE(format.m_bTrailingMinus);
    EXPECT_EQ(format.m_chThousandsSep, L',');
    EXPECT_TRUE(format.m_bHasDecimals);
    EXPECT_EQ(format.m_nDecimals, 2u);
    EXPECT_TRUE(format.m_bHasMaxIntDigits);
    EXPECT_EQ(format.m_nMaxIntDigits, 5u);
    EXPECT_EQ(Result("ValidateString"), L"\u2713 accepted");
}

}  // namespace
