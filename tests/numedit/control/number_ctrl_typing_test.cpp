// Typing and pasting into a wxNumberCtrl, with the keyboard and the mouse.

#include <fittings/numedit/number_ctrl.h>

#include <gtest/gtest.h>

#include <gtk/gtk.h>
#include <wx/uiaction.h>

#include <tests/numedit/control/number_ctrl_dialog.h>
#include <tests/numedit/validator/keyboard.h>
#include <tests/support/gui.h>

namespace {

class NumberTyping : public testing::Test
{
protected:
    NumberCtrlDialog screen{FixedFormat()};
};

TEST_F(NumberTyping, TellsEachTextAndEachNumber)
{
    screen.Type("-1.50");
    EXPECT_EQ(screen.Text(), L"-1.50");
    EXPECT_EQ(screen.BellsRung(), 0);
    EXPECT_EQ(screen.textEvents, 5);
    EXPECT_EQ(screen.numbers, (std::vector<std::string>{"-1", "-1.5"})) << "1. and 1.50 do not change the number";
}

TEST_F(NumberTyping, RefusesWhatCannotBecomeANumber)
{
    screen.Type("1x2 -.34,5e");
    EXPECT_EQ(screen.Text(), L"12.34");
    EXPECT_EQ(screen.BellsRung(), 6);
    EXPECT_EQ(screen.textEvents, 5);
}

// A program may keep a copy of the number, and set the same number in the control whenever the copy changes.
TEST_F(NumberTyping, GoesOnWhereItWasWhenTheProgramSetsTheSameNumber)
{
    screen.number->Bind(wxEVT_NUMBER_CHANGED, [this](wxCommandEvent& event) {
        screen.number->SetDecimal(event.GetString());
        screen.number->SetFormat(screen.number->GetFormat());
    });
    screen.Type("12.5");
    EXPECT_EQ(screen.Text(), L"12.5");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 4);
    screen.number->SetSelection(1, 3);
    screen.number->SetNumber(12.5);
    EXPECT_EQ(screen.Selection(), "2.");
}

TEST_F(NumberTyping, ReplacesASelectionWithOneEvent)
{
    screen.Restart("12345");
    screen.number->SetSelection(1, 4);
    screen.Type("9");
    EXPECT_EQ(screen.Text(), L"195");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 2);
    EXPECT_EQ(screen.textEvents, 1);
    EXPECT_EQ(screen.numbers, std::vector<std::string>{"195"});
}

TEST_F(NumberTyping, KeepsTheSelectionWhenAKeyIsRefused)
{
    screen.Restart("12345");
    screen.number->SetSelection(1, 4);
    screen.Type("x");
    EXPECT_EQ(screen.Text(), L"12345");
    EXPECT_EQ(screen.Selection(), "234");
    EXPECT_EQ(screen.BellsRung(), 1);
    EXPECT_EQ(screen.textEvents, 0);
    EXPECT_TRUE(screen.numbers.empty());
    screen.Type("9");
    EXPECT_EQ(screen.Text(), L"195") << "the key replaces the selection";
}

TEST_F(NumberTyping, JudgesTheTextWithoutTheSelection)
{
    screen.Restart("123.45");
    screen.number->SetSelection(3, 4);
    screen.Type("6");
    EXPECT_EQ(screen.Text(), L"123.45") << "without the point it would have six digits";
    EXPECT_EQ(screen.Selection(), ".");
    EXPECT_EQ(screen.BellsRung(), 1);
}

TEST_F(NumberTyping, NeverRefusesToDelete)
{
    screen.Restart("123.45");
    screen.number->SetSelection(3, 4);
    screen.Press(WXK_BACK);
    EXPECT_EQ(screen.Text(), L"12345");
    screen.Press('A', wxMOD_CONTROL);
    screen.Press(WXK_DELETE);
    EXPECT_EQ(screen.Text(), L"");
    EXPECT_EQ(screen.BellsRung(), 0);
    EXPECT_EQ(screen.numbers, (std::vector<std::string>{"12345", ""}));
}

TEST_F(NumberTyping, StopsAtTheLongestTextThatTheProgramAllows)
{
    int longest = 0;
    screen.number->Bind(wxEVT_TEXT_MAXLEN, [&](wxCommandEvent&) { ++longest; });
    screen.number->SetMaxLength(4);
    screen.Type("12345");
    screen.Paste("6");
    EXPECT_EQ(screen.Text(), L"1234");
    EXPECT_EQ(screen.BellsRung(), 2);
    EXPECT_TRUE(PumpUntil([&] { return longest == 2; }));
    screen.Leave();
    EXPECT_EQ(screen.Text(), L"1,234.00") << "the formatted text may be longer";
    EXPECT_EQ(screen.number->GetDecimal(), "1234");
    screen.Enter();
    screen.number->SetMaxLength(0);
    screen.number->SetInsertionPointEnd();
    screen.Type("5");
    EXPECT_EQ(screen.Text(), L"12345");
}

TEST_F(NumberTyping, IsRefusedInSilenceWhereValidatorsAreSilent)
{
    const SilentValidators silence;
    screen.Type("x");
    EXPECT_EQ(screen.Text(), L"");
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST(NumberTypingWithinBounds, TakesTheBeginningOfEachNumber)
{
    NumberCtrlDialog screen(Bounded(10, 20));
    screen.Type("32x1");
    EXPECT_EQ(screen.Text(), L"2") << "2 is the beginning of 20";
    screen.Restart("");
    screen.Type("15");
    EXPECT_EQ(screen.Text(), L"15");
    screen.Type("0");
    EXPECT_EQ(screen.Text(), L"15");
}

TEST(NumberTypingWithinBounds, TakesTheMinusOfNegativeNumbersAlone)
{
    NumberCtrlDialog screen(Bounded(-50, -1));
    screen.Type("5-551");
    EXPECT_EQ(screen.Text(), L"-5");
    NumberCtrlDialog positive(Bounded(0, 50));
    positive.Type("-5");
    EXPECT_EQ(positive.Text(), L"5");
}

TEST(NumberTypingOnTheKeypad, GivesTheFormatsPoint)
{
    const NumLock on;
    NumberCtrlDialog screen(FixedFormat(L','));
    screen.Type("1");
    screen.PressRaw("91");
    screen.Type("5");
    EXPECT_EQ(screen.Text(), L"1,5");
    EXPECT_EQ(screen.keys.down.at(1), WXK_NUMPAD_DECIMAL);
}

TEST(NumberTypingOnTheKeypad, GivesTheFormatsPointUnderTheGermanLayout)
{
    const NumLock on;
    NumberCtrlDialog screen(FixedFormat(L'.'));
    const Layout german({"-layout", "de"}, kKeypadDecimal, 1, "KP_Separator");
    screen.Type("1");
    screen.PressRaw("91");
    screen.Type("5");
    EXPECT_EQ(screen.Text(), L"1.5");
    EXPECT_EQ(screen.keys.down.at(1), WXK_NUMPAD_SEPARATOR);
    screen.PressRaw("91");
    EXPECT_EQ(screen.Text(), L"1.5");
    EXPECT_EQ(screen.BellsRung(), 1);
}

TEST_F(NumberTyping, TakesAPastedNumberAsItIsShown)
{
    for (const char* const text : {"1,234.50-", " -1234.50\n", "-1,234.50"}) {
        screen.Restart("7");
        screen.number->SelectAll();
        screen.Paste(text);
        EXPECT_EQ(screen.Text(), L"-1234.50");
        EXPECT_EQ(screen.number->GetInsertionPoint(), 8);
        EXPECT_EQ(screen.BellsRung(), 0);
        EXPECT_EQ(screen.textEvents, 1);
        EXPECT_EQ(screen.numbers, std::vector<std::string>{"-1234.50"});
    }
}

TEST_F(NumberTyping, TakesAPastedPartOfANumber)
{
    screen.Restart("15");
    screen.number->SetInsertionPoint(1);
    screen.Paste("23");
    EXPECT_EQ(screen.Text(), L"1235");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 3);
}

TEST_F(NumberTyping, RefusesOtherPastedTextWhole)
{
    for (const char* const text : {"12abc", "1.234", "twelve", "123456", "1 2"}) {
        screen.Restart("7.5");
        screen.number->SetSelection(0, 1);
        screen.Paste(text);
        EXPECT_EQ(screen.Text(), L"7.5") << text;
        EXPECT_EQ(screen.Selection(), "7");
        EXPECT_EQ(screen.BellsRung(), 1);
        EXPECT_EQ(screen.textEvents, 0);
    }
}

// Text that the control receives without a key: the middle mouse button pastes the selected text of another field.
class PasteOfASelection : public NumberTyping
{
protected:
    void Paste(const wxString& text)
    {
        ASSERT_NO_FATAL_FAILURE(screen.SelectInFirst(text));
        wxUIActionSimulator mouse;
        mouse.MouseMove(screen.Middle());
        mouse.MouseClick(wxMOUSE_BTN_MIDDLE);
    }
};

TEST_F(PasteOfASelection, IsTakenWhereItIsANumber)
{
    Paste("1,234.50-");
    EXPECT_TRUE(PumpUntil([&] { return screen.number->GetDecimal() == "-1234.50"; }));
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(PasteOfASelection, IsRefusedWholeWhereItIsNone)
{
    screen.Restart("7");
    Paste("12abc");
    EXPECT_TRUE(PumpUntil([&] { return screen.BellsRung() == 1; }));
    EXPECT_EQ(screen.number->GetDecimal(), "7");
    EXPECT_EQ(screen.textEvents, 0);
}

// The click sets the focus, and pastes the text during the same event.
TEST_F(PasteOfASelection, LeavesTheNumberPlainInTheFieldThatTheClickFocuses)
{
    screen.Restart("123.4");
    Paste("5");
    ASSERT_TRUE(PumpUntil([&] { return screen.number->HasFocus() && screen.textEvents != 0; }));
    PumpPending();
    EXPECT_EQ(screen.Text(), L"123.45") << "the end of 123.40 is the end of 123.4";
    EXPECT_EQ(screen.number->GetInsertionPoint(), 6);
    EXPECT_EQ(screen.textEvents, 1);
    EXPECT_EQ(screen.numbers, std::vector<std::string>{"123.45"});
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(PasteOfASelection, LeavesTheNumberPlainIfItIsRefused)
{
    screen.Restart("1234");
    Paste("12abc");
    ASSERT_TRUE(PumpUntil([&] { return screen.number->HasFocus() && screen.BellsRung() == 1; }));
    PumpPending();
    EXPECT_EQ(screen.Text(), L"1234");
    EXPECT_EQ(screen.textEvents, 0);
}

// An input method in another process inserts its text as this test does, without a key event.
TEST_F(NumberTyping, PutsASelectionBackThatATextWithoutAKeyWasToReplace)
{
    screen.Restart("12345");
    screen.number->SetSelection(1, 4);
    auto* const editable = GTK_EDITABLE(screen.number->m_widget);
    const auto commit = [editable](const char* text) {
        gtk_editable_delete_selection(editable);
        int position = gtk_editable_get_position(editable);
        gtk_editable_insert_text(editable, text, -1, &position);
        gtk_editable_set_position(editable, position);
    };
    commit("x");
    EXPECT_TRUE(PumpUntil([&] { return screen.Selection() == "234"; }));
    EXPECT_EQ(screen.Text(), L"12345");
    EXPECT_EQ(screen.BellsRung(), 1);
    commit("78");
    EXPECT_EQ(screen.Text(), L"1785");
    EXPECT_EQ(screen.BellsRung(), 1);
}

// A dead key and a letter compose a character that has no key of its own.
TEST_F(NumberTyping, RefusesWhatAComposingLayoutMakes)
{
    screen.Restart("12345");
    screen.number->SetSelection(1, 4);
    const Layout german({"-layout", "de"}, kKeypadDecimal, 1, "KP_Separator");
    screen.PressRaw("dead_acute");
    screen.PressRaw("e");
    EXPECT_TRUE(PumpUntil([&] { return screen.BellsRung() == 1; }));
    EXPECT_EQ(screen.Text(), L"12345");
    EXPECT_EQ(screen.Selection(), "234");
    EXPECT_EQ(screen.textEvents, 0);
}

TEST(NumberTypingIntoAReadOnlyControl, ChangesNothing)
{
    NumberCtrlDialog screen(FixedFormat(), wxDefaultValidator, wxTE_READONLY);
    screen.Restart("12");
    screen.Type("3");
    screen.Press(WXK_UP);
    screen.Enter();
    screen.Paste("5");
    EXPECT_EQ(screen.Text(), L"12");
    EXPECT_EQ(screen.textEvents, 0);
    EXPECT_TRUE(screen.numbers.empty());
}

}  // namespace
