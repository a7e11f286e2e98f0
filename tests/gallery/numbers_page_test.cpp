#include <string>
#include <vector>

#include <gtk/gtk.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/notebook.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <fittings/numedit/number_ctrl.h>
#include <gallery/numbers/number_format_fields.h>
#include <gallery/numbers/numbers_page.h>
#include <tests/gallery/browser/browser_fixture.h>
#include <tests/numedit/known_formats.h>

namespace {

using namespace gallery;
using namespace gallery::simulated_user;

class NumbersPageTest : public BrowserTest
{
protected:
    void SetUp() override { OpenPage(); }

    void OpenPage()
    {
        Open(temp.Path());
        Press('2', wxMOD_ALT);
        ASSERT_TRUE(FocusComesTo("Number"));
    }

    void OpenNextSession()
    {
        Close();
        Open("");
        ASSERT_TRUE(PumpUntil([this] { return Number().IsShownOnScreen(); }));
    }

    template <typename Control>
    Control& Get(const wxString& name)
    {
        auto* control = dynamic_cast<Control*>(wxWindow::FindWindowByName(name, frame->GetNumbers()));
        EXPECT_TRUE(control) << name;
        return *control;
    }

    wxTextCtrl& Number() { return Get<wxTextCtrl>("Number"); }
    wxString Label(const wxString& name) { return Get<wxStaticText>(name).GetLabelText(); }
    wxString Result(const wxString& function) { return Label(function + "Result"); }
    CNumberFormat Format() { return frame->GetNumbers()->GetFields()->GetFormat(); }

    /// The name of the page's control that has the focus, or empty. In some controls a GTK widget has the focus that is
    /// not a window of the toolkit.
    wxString FocusName()
    {
        GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(frame->GetHandle()));
        for (const wxWindow* parent :
             {static_cast<wxWindow*>(frame->GetNumbers()->GetFields()), static_cast<wxWindow*>(frame->GetNumbers())}) {
            for (const wxWindow* child : parent->GetChildren()) {
                if (focus && (focus == child->GetHandle() || gtk_widget_is_ancestor(focus, child->GetHandle())))
                    return child->GetName();
            }
        }
        return {};
    }

    bool FocusComesTo(const wxString& name)
    {
        return PumpUntil([&] { return FocusName() == name; });
    }

    void Type(const std::string& text)
    {
        for (const char key : text) {
            if (key == '\b')
                Press(WXK_BACK);
            else
                Press(key);
        }
        PumpPending();
    }

    /// Replaces the text of the number's field by typing; keys may be refused.
    void TypeNumber(const std::string& text)
    {
        Press('N', wxMOD_ALT);
        ASSERT_TRUE(FocusComesTo("Number"));
        Number().SelectAll();
        Press(WXK_BACK);
        Type(text);
    }
};

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

// The focus is in the number's field, whose validator would refuse the letter.
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
    Press('P', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("DecimalPoint"));
    Type(",");
    EXPECT_TRUE(PumpUntil([&] { return Format().m_chDecimalPoint == L','; }));
    EXPECT_EQ(Label("DecimalPointCode"), "U+002C");
    Press('T', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("ThousandsSep"));
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
    Press(WXK_TAB);
    ASSERT_TRUE(FocusComesTo("Min"));
    Type("-1x.5");
    EXPECT_EQ(Format().m_dMin, -1.5);
    Press('U', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return Get<wxTextCtrl>("Max").IsEnabled(); }));
    Press(WXK_TAB);
    ASSERT_TRUE(FocusComesTo("Max"));
    Type("2e1");
    EXPECT_EQ(Format().m_dMax, 20);
    EXPECT_EQ(Result("ValidateString"), L"\u2717 refused") << "1234.5 is above 20";

    Press('D', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return !Get<wxSpinCtrl>("Decimals").IsEnabled(); }));
    Press('D', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return Get<wxSpinCtrl>("Decimals").IsEnabled(); }));
    Press(WXK_TAB);
    ASSERT_TRUE(FocusComesTo("Decimals"));
    Press(WXK_UP);
    EXPECT_TRUE(PumpUntil([&] { return Format().m_nDecimals == 3; }));
    Press(WXK_TAB);
    Press(WXK_TAB);
    ASSERT_TRUE(FocusComesTo("MaxIntDigits"));
    Press(WXK_DOWN);
    EXPECT_TRUE(PumpUntil([&] { return Format().m_nMaxIntDigits == 4; }));
}

TEST_F(NumbersPageTest, TemplatesAreChosenAndNeverTyped)
{
    Press('L', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("Template"));
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
    Press('S', wxMOD_ALT);
    Press('E', wxMOD_ALT);
    Press('M', wxMOD_ALT);
    Press('R', wxMOD_ALT);
    Press('L', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("Template"));
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

TEST_F(NumbersPageTest, TheFieldRefusesWhatTheFormatDoes)
{
    TypeNumber("x-123456.789");
    EXPECT_EQ(Number().GetValue(), "-12345.78");
    EXPECT_EQ(Result("FormatControlText"), "12,345.78-");
    // The field uses the new format at once.
    Press('S', wxMOD_ALT);
    Press('I', wxMOD_ALT);
    TypeNumber("-123456.789");
    EXPECT_EQ(Number().GetValue(), "123456.78");
}

TEST_F(NumbersPageTest, ResultsFollowEachKey)
{
    TypeNumber("0");
    EXPECT_EQ(Result("CutZeros"), "0");
    Type(".5");
    EXPECT_EQ(Result("CutZeros"), "0.5");
    EXPECT_EQ(Result("GroupDigits"), "0.5");
    EXPECT_EQ(Result("FormatControlText"), "0.50");
    Type("0");
    EXPECT_EQ(Result("CutZeros"), "0.5");
    EXPECT_EQ(Result("GroupDigits"), "0.50");
    TypeNumber("12345");
    EXPECT_EQ(Result("CutZeros"), "12345");
    EXPECT_EQ(Result("GroupDigits"), "12,345");
    EXPECT_EQ(Result("FormatControlText"), "12,345.00");
    TypeNumber("");
    EXPECT_EQ(Result("CutZeros"), "0");
    EXPECT_EQ(Result("FormatControlText"), "");
}

// On the way to 0.05 the value is below the minimum.
TEST_F(NumbersPageTest, VerdictsWhileTypingAndOnTheWholeDiffer)
{
    Press('M', wxMOD_ALT);
    Press(WXK_TAB);
    ASSERT_TRUE(FocusComesTo("Min"));
    Type("0.01");
    TypeNumber("0.0");
    EXPECT_EQ(Number().GetValue(), "0.0");
    EXPECT_EQ(Result("ValidateInput"), L"\u2713 accepted");
    EXPECT_EQ(Result("ValidateString"), L"\u2717 refused");
    Type("5");
    EXPECT_EQ(Result("ValidateString"), L"\u2713 accepted");
}

TEST_F(NumbersPageTest, AnAcceptedNumberIsKeptAndBroughtBack)
{
    TypeNumber("12.5");
    Press('C', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return frame->GetNumbers()->GetKept() == "12.5"; }));
    EXPECT_EQ(Label("Kept"), "Kept: 12.5");
    TypeNumber("77");
    EXPECT_EQ(frame->GetNumbers()->GetKept(), "12.5");
    Press('K', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return Number().GetValue() == "12.5"; }));
    EXPECT_TRUE(FocusComesTo("Number"));
}

TEST_F(NumbersPageTest, ARefusedNumberIsNotKept)
{
    TypeNumber("12.5");
    Press('C', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return frame->GetNumbers()->GetKept() == "12.5"; }));
    Number().SetValue("1.234");
    Click(CentreOf(WindowRect(Get<wxButton>("Keep"))));
    EXPECT_TRUE(PumpUntil([&] { return Label("Kept") == "Not accepted, so not kept."; }));
    EXPECT_EQ(frame->GetNumbers()->GetKept(), "12.5");
    EXPECT_TRUE(FocusComesTo("Number"));
}

TEST_F(NumbersPageTest, WithoutValidatorAnythingIsTypedAndJudged)
{
    Press('W', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return !Get<wxCheckBox>("Validates").GetValue(); }));
    EXPECT_FALSE(Get<wxButton>("Keep").IsEnabled());
    EXPECT_FALSE(Get<wxButton>("BringBack").IsEnabled());
    TypeNumber("12abc");
    EXPECT_EQ(Number().GetValue(), "12abc");
    EXPECT_EQ(Result("ValidateInput"), L"\u2717 refused");
    EXPECT_EQ(Result("FormatControlText"), "12");
    Press('W', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return Get<wxCheckBox>("Validates").GetValue(); }));
    TypeNumber("x3");
    EXPECT_EQ(Number().GetValue(), "3");
}

TEST_F(NumbersPageTest, TheControlTellsItsNumberAtEachKey)
{
    const wxNumberCtrl& control = Get<wxNumberCtrl>("NumberCtrl");
    EXPECT_EQ(Label("NumberCtrlNumber"), L"\u2713 1234.5");
    Press('A', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("NumberCtrl"));
    Press('A', wxMOD_CONTROL);
    Type("-12x345.67");
    EXPECT_TRUE(PumpUntil([&] { return Label("NumberCtrlNumber") == L"\u2713 -12345.67"; }));
    // The control follows the format.
    Press('P', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("DecimalPoint"));
    Type(",");
    EXPECT_TRUE(PumpUntil([&] { return control.GetValue() == "12,345,67-"; })) << control.GetValue();
    EXPECT_EQ(Label("NumberCtrlNumber"), L"\u2713 -12345.67");
    OpenNextSession();
    EXPECT_EQ(Label("NumberCtrlNumber"), L"\u2713 -12345.67");
}

TEST_F(NumbersPageTest, TheControlTellsWhyANumberIsBeyondTheBounds)
{
    Press('U', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return Get<wxTextCtrl>("Max").IsEnabled(); }));
    Press(WXK_TAB);
    ASSERT_TRUE(FocusComesTo("Max"));
    Type("20");
    EXPECT_TRUE(PumpUntil([&] {
        return Label("NumberCtrlNumber") == L"\u2717 The number is too high: the highest is 20.00.";
    })) << Label("NumberCtrlNumber");
    Press('A', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("NumberCtrl"));
    Press('A', wxMOD_CONTROL);
    Press(WXK_BACK);
    EXPECT_TRUE(PumpUntil([&] { return Label("NumberCtrlNumber").empty(); })) << Label("NumberCtrlNumber");
    Type("-");
    EXPECT_TRUE(PumpUntil([&] { return Label("NumberCtrlNumber") == L"\u2717 The number is not complete."; }))
        << Label("NumberCtrlNumber");
    Type("\b19");
    EXPECT_TRUE(PumpUntil([&] { return Label("NumberCtrlNumber") == L"\u2713 19"; })) << Label("NumberCtrlNumber");
}

TEST_F(NumbersPageTest, TabGoesFromTheTopToTheBottom)
{
    std::vector<std::string> names;
    for (int i = 0; i < 40 && (names.empty() || names.back() != "Number"); ++i) {
        const wxString before = FocusName();
        Press(WXK_TAB);
        // Tab also stops at the notebook's tabs.
        ASSERT_TRUE(PumpUntil([&] { return FocusName() != before; }));
        if (!FocusName().empty())
            names.emplace_back(FocusName());
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Validates",       "Keep",          "BringBack",   "NumberCtrl",
                                               "eLocaleFormat",   "eFixedFormat",  "AllowSign",   "AllowExponent",
                                               "DecimalPoint",    "ThousandsSep",  "HasDecimals", "Decimals",
                                               "HasMaxIntDigits", "MaxIntDigits",  "HasMin",      "HasMax",
                                               "PadDecimals",     "RoundDecimals", "GroupDigits", "TrailingMinus",
                                               "Template",        "Number"}));
}

TEST_F(NumbersPageTest, EverythingComesBack)
{
    for (const char mnemonic : {'S', 'E', 'I', 'M', 'Z', 'R', 'G', 'B'})
        Press(mnemonic, wxMOD_ALT);
    Press('M', wxMOD_ALT);
    Press('M', wxMOD_ALT);
    Press(WXK_TAB);
    ASSERT_TRUE(FocusComesTo("Min"));
    Type("0.125");
    Press('P', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("DecimalPoint"));
    Type(",");
    Press('T', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("ThousandsSep"));
    Type(" ");
    Press('D', wxMOD_ALT);
    Press('D', wxMOD_ALT);
    Press(WXK_TAB);
    ASSERT_TRUE(FocusComesTo("Decimals"));
    Press(WXK_UP);
    Press('L', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("Template"));
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

// A stored template is never used: it would be a printf format from outside the program.
TEST_F(NumbersPageTest, NonsenseInTheSettingsDoesNoHarm)
{
    Close();
    WriteFile(settings / "ui_config/numbers.ini", "[Format]\nAllowSign=yes\nHasDecimals=\nDecimals=-1\n"
                                                  "MaxIntDigits=99999999999999999999\nMin=abc\nHasMin=1\n"
                                                  "DecimalPoint=U+ZZ\nThousandsSep=U+110000\nTemplate=%n%n%s%s\n");
    Open("");
    const CNumberFormat format = Format();
    EXPECT_TRUE(format.m_bAllowSign);
    EXPECT_TRUE(format.m_bHasDecimals);
    EXPECT_EQ(format.m_nDecimals, 2u);
    EXPECT_EQ(format.m_nMaxIntDigits, 5u);
    EXPECT_TRUE(format.m_bHasMin);
    EXPECT_EQ(format.m_dMin, 0);
    EXPECT_EQ(format.m_chDecimalPoint, L'.');
    EXPECT_EQ(format.m_chThousandsSep, L',');
    EXPECT_EQ(format.m_strTemplate, L"%s");
    EXPECT_EQ(Result("FormatControlText"), "1,234.50");
}

TEST_F(NumbersPageTest, FitsIntoASmallWindow)
{
    for (const wxSize size : {wxSize(800, 600), wxSize(632, 480)}) {
        Resize(size);
        const wxWindow& page = *frame->GetNumbers();
        for (const wxWindow* part : page.GetChildren())
            EXPECT_LE(part->GetRect().GetRight(), page.GetClientSize().x) << part->GetName();
        for (const wxWindow* part : frame->GetNumbers()->GetFields()->GetChildren()) {
            EXPECT_GE(WindowRect(*part).GetLeft(), WindowRect(page).GetLeft()) << part->GetName();
            EXPECT_LE(WindowRect(*part).GetRight(), WindowRect(page).GetRight()) << part->GetName();
        }
        // A control below the window's border is scrolled into view when it gets the focus.
        Press('N', wxMOD_ALT);
        ASSERT_TRUE(FocusComesTo("Number"));
        Press('L', wxMOD_ALT);
        ASSERT_TRUE(FocusComesTo("Template"));
        EXPECT_TRUE(PumpUntil([&] { return WindowRect(page).Contains(WindowRect(Get<wxChoice>("Template"))); }));
    }
}

}  // namespace
