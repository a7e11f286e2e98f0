// Typing into a text control that has a wxNumValidator.

#include <fittings/numedit/num_validator.h>

#include <gtest/gtest.h>

#include <tests/numedit/validator/number_dialog.h>

namespace {

class Typing : public testing::Test
{
protected:
    NumberOnScreen screen{FixedFormat()};
};

TEST_F(Typing, TakesAsManyIntegerDigitsAsAllowed)
{
    screen.Type("12345");
    screen.ExpectTextWithoutBell(L"12345");
    EXPECT_EQ(screen.textEvents, 5);
    screen.Type("6");
    screen.ExpectTextAndBell(L"12345");
    EXPECT_EQ(screen.textEvents, 5);
    EXPECT_EQ(screen.number->GetInsertionPoint(), 5);
}

TEST_F(Typing, TakesAsManyDecimalsAsAllowed)
{
    screen.Restart("12345", 5);
    screen.Type(".00");
    screen.ExpectTextWithoutBell(L"12345.00");
    EXPECT_EQ(screen.textEvents, 3);
    screen.Type("0");
    screen.ExpectTextAndBell(L"12345.00");
    EXPECT_EQ(screen.textEvents, 3);
}

TEST_F(Typing, GoesOnAfterARefusal)
{
    screen.Type("1x2xx3");
    EXPECT_EQ(screen.Text(), L"123");
    EXPECT_EQ(screen.BellsRung(), 3);
    EXPECT_EQ(screen.textEvents, 3);
    EXPECT_EQ(screen.number->GetInsertionPoint(), 3);
}

TEST_F(Typing, TakesASignInFrontOfANumber)
{
    for (const char sign : {'-', '+'}) {
        screen.Restart("12", 0);
        screen.Type({sign});
        screen.ExpectTextWithoutBell(std::wstring(1, static_cast<wchar_t>(sign)) + L"12");
        EXPECT_EQ(screen.number->GetInsertionPoint(), 1);
        EXPECT_EQ(screen.textEvents, 1);
    }
}

TEST_F(Typing, TakesALoneSign)
{
    screen.Type("-");
    screen.ExpectTextWithoutBell(L"-");
}

TEST_F(Typing, TakesADigitInTheMiddle)
{
    screen.Restart("124", 2);
    screen.Type("3");
    screen.ExpectTextWithoutBell(L"1234");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 3);
    EXPECT_EQ(screen.textEvents, 1);
}

struct Refusal
{
    const char* name;
    const wchar_t* text;
    long caret;
    char typed;
};

class TypingRefused : public Typing, public testing::WithParamInterface<Refusal>
{
};

TEST_P(TypingRefused, RingsOnceAndLeavesTextAndCaret)
{
    screen.Restart(GetParam().text, GetParam().caret);
    screen.Type({GetParam().typed});
    screen.ExpectTextAndBell(GetParam().text);
    EXPECT_EQ(screen.number->GetInsertionPoint(), GetParam().caret);
    EXPECT_EQ(screen.number->GetStringSelection(), "");
    EXPECT_EQ(screen.textEvents, 0);
}

INSTANTIATE_TEST_SUITE_P(
    , TypingRefused,
    testing::Values(Refusal{"Letter", L"12", 2, 'a'}, Refusal{"CapitalLetter", L"12", 2, 'A'},
                    Refusal{"ExponentWhereNotAllowed", L"12", 2, 'e'}, Refusal{"LetterInAnEmptyText", L"", 0, 'x'},
                    Refusal{"Blank", L"12", 2, ' '}, Refusal{"BlankInAnEmptyText", L"", 0, ' '},
                    Refusal{"GroupSeparator", L"1", 1, ','}, Refusal{"Percent", L"12", 2, '%'},
                    Refusal{"Tilde", L"12", 2, '~'}, Refusal{"SecondPoint", L"1.2", 3, '.'},
                    Refusal{"PointInFrontOfAPoint", L"1.2", 0, '.'}, Refusal{"SignBehindTheNumber", L"12", 2, '-'},
                    Refusal{"SignInTheMiddle", L"12", 1, '+'}, Refusal{"SecondSign", L"-12", 0, '-'},
                    Refusal{"DigitBeforeTheSign", L"-12", 0, '1'}, Refusal{"ThirdDecimalInTheMiddle", L"1.23", 2, '9'},
                    Refusal{"SixthDigitBeforeThePoint", L"12345.6", 3, '0'},
                    Refusal{"PointThatLeavesThreeDecimals", L"1234", 1, '.'}),
    [](const auto& info) { return info.param.name; });

TEST_F(Typing, AddsToABadTextOnlyWhatMendsIt)
{
    screen.Restart(L"1-", 0);
    screen.Type("2");
    screen.ExpectTextAndBell(L"1-");
}

TEST(TypingUnderOtherFormats, RefusesASignWhereNotAllowed)
{
    CNumberFormat format = FixedFormat();
    format.m_bAllowSign = false;
    NumberOnScreen screen(format, "12");
    screen.number->SetInsertionPoint(0);
    screen.Type("-+");
    EXPECT_EQ(screen.Text(), L"12");
    EXPECT_EQ(screen.BellsRung(), 2);
}

TEST(TypingUnderOtherFormats, TakesAnExponentWhereAllowed)
{
    CNumberFormat format = FixedFormat();
    format.m_bAllowExponent = true;
    NumberOnScreen screen(format);
    screen.Type("1.5E-10");
    screen.ExpectTextWithoutBell(L"1.5E-10");
    EXPECT_EQ(screen.textEvents, 7);
    screen.Type("e");
    screen.ExpectTextAndBell(L"1.5E-10");
}

TEST(TypingUnderOtherFormats, TakesNoPointWithoutDecimals)
{
    NumberOnScreen screen{CNumberFormat(eLocaleFormat)};
    screen.Type("1234567890.");
    screen.ExpectTextAndBell(L"1234567890");
}

TEST(TypingUnderOtherFormats, TakesTheFormatsPointAndTheLocales)
{
    NumberOnScreen screen{FixedFormat(L',')};
    screen.Type("1,5");
    EXPECT_EQ(screen.Text(), L"1,5");
    screen.Restart("", 0);
    screen.Type("1.5");
    screen.ExpectTextWithoutBell(L"1.5");
}

TEST(TypingUnderOtherFormats, LeadsThroughZerosToASmallNumber)
{
    CNumberFormat format = FixedFormat();
    format.m_bHasMin = true;
    format.m_dMin = 0.05;
    NumberOnScreen screen(format);
    screen.Type("0.05");
    screen.ExpectTextWithoutBell(L"0.05");
    screen.Restart("0.0", 3);
    screen.Type("4");
    screen.ExpectTextAndBell(L"0.0");
}

TEST(TypingUnderOtherFormats, StaysInTheBounds)
{
    CNumberFormat format = FixedFormat();
    format.m_bHasMin = format.m_bHasMax = true;
    format.m_dMin = 1;
    format.m_dMax = 100;
    NumberOnScreen screen(format);
    screen.Type("1000");
    screen.ExpectTextAndBell(L"100");
    screen.Restart("", 0);
    screen.Type("-");
    screen.ExpectTextAndBell(L"");
}

TEST_F(Typing, ReplacesASelection)
{
    screen.Restart("12345", 0);
    screen.number->SetSelection(1, 4);
    screen.Type("9");
    screen.ExpectTextWithoutBell(L"195");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 2);
}

TEST_F(Typing, JudgesTheTextWithoutTheSelection)
{
    screen.Restart("123.45", 0);
    screen.number->SetSelection(3, 4);
    screen.Type("6");
    EXPECT_EQ(screen.Text(), L"123.45") << "without the point it would have six digits";
    EXPECT_EQ(screen.BellsRung(), 1);
}

TEST_F(Typing, OverTheWholeTextIsJudgedAlone)
{
    for (const wxString text : {"12345.67", "nonsense", "-"}) {
        screen.Restart(text, 0);
        screen.Press('A', wxMOD_CONTROL);
        ASSERT_EQ(screen.number->GetStringSelection(), text);
        screen.Type("7");
        screen.ExpectTextWithoutBell(L"7");
    }
}

TEST_F(Typing, IsRefusedInSilenceWhenValidatorsAreSilent)
{
    const SilentValidators silence;
    screen.Restart("12345", 5);
    screen.Type("6x");
    screen.ExpectTextWithoutBell(L"12345");
    EXPECT_EQ(screen.textEvents, 0);
}

TEST_F(Typing, RingsAgainWhenValidatorsAreNoLongerSilent)
{
    {
        const SilentValidators silence;
        screen.Type("x");
    }
    screen.Type("x");
    EXPECT_EQ(screen.BellsRung(), 1);
}

// A read-only control sends no character events, so the validator refuses no key and rings no bell.
TEST(TypingIntoAReadOnlyControl, ChangesNothing)
{
    NumberOnScreen screen(FixedFormat(), "12", wxTE_READONLY);
    screen.Type("3");
    EXPECT_EQ(screen.Text(), L"12");
    EXPECT_EQ(screen.textEvents, 0);
    screen.Type("x");
    screen.ExpectTextWithoutBell(L"12");
    EXPECT_TRUE(screen.keys.chars.empty());
}

}  // namespace
