// A key that wxNumValidator refuses has no visible effect: the text and its selection stay, and the program receives
// no text event.

#include <fittings/numedit/num_validator.h>

#include <string>

#include <gtest/gtest.h>

#include <tests/numedit/validator/keyboard.h>
#include <tests/numedit/validator/number_dialog.h>
#include <tests/support/gui.h>

namespace {

class RefusedKey : public testing::Test
{
protected:
    void SetUp() override
    {
        screen.Restart("12345", 0);
        screen.number->DiscardEdits();
    }

    // Selects part of "12345", with the caret at the beginning or the end of the selection.
    void Select(long from, long to, bool caretAtEnd = false)
    {
        if (caretAtEnd) {
            screen.number->SetInsertionPoint(from);
            for (long at = from; at < to; ++at)
                screen.Press(WXK_RIGHT, wxMOD_SHIFT);
        } else {
            screen.number->SetSelection(from, to);
        }
        PumpPending();
        ASSERT_EQ(screen.number->GetInsertionPoint(), caretAtEnd ? to : from);
    }

    void ExpectSelected(const std::wstring& text, long from, long to, long caret)
    {
        EXPECT_EQ(screen.Text(), text);
        long isFrom = -1;
        long isTo = -1;
        screen.number->GetSelection(&isFrom, &isTo);
        EXPECT_EQ(isFrom, from);
        EXPECT_EQ(isTo, to);
        EXPECT_EQ(screen.number->GetInsertionPoint(), caret);
    }

    NumberOnScreen screen{FixedFormat()};
};

TEST_F(RefusedKey, LeavesTheSelection)
{
    Select(1, 3);
    screen.Type("x");
    ExpectSelected(L"12345", 1, 3, 1);
    EXPECT_EQ(screen.BellsRung(), 1);
    EXPECT_EQ(screen.textEvents, 0);
    EXPECT_FALSE(screen.number->IsModified());
}

TEST_F(RefusedKey, LeavesTheCaretAtTheEndOfTheSelection)
{
    Select(1, 3, true);
    screen.Type("x");
    ExpectSelected(L"12345", 1, 3, 3);
}

TEST_F(RefusedKey, LeavesTheWholeTextSelected)
{
    screen.Press('A', wxMOD_CONTROL);
    screen.Type("x");
    ExpectSelected(L"12345", 0, 5, 5);
    EXPECT_EQ(screen.textEvents, 0);
}

TEST_F(RefusedKey, LeavesAWideTextSelected)
{
    screen.Restart(L"1€٥4", 0);
    Select(1, 3);
    screen.Type("x");
    ExpectSelected(L"1€٥4", 1, 3, 1);
}

TEST_F(RefusedKey, LeavesTheSelectionForAsManyAsFollow)
{
    Select(1, 3);
    screen.Type("xyz");
    ExpectSelected(L"12345", 1, 3, 1);
    EXPECT_EQ(screen.BellsRung(), 3);
    EXPECT_EQ(screen.textEvents, 0);
}

TEST_F(RefusedKey, LeavesTheSelectionToAKeyThatIsTaken)
{
    Select(1, 3);
    screen.Type("x9");
    ExpectSelected(L"1945", 2, 2, 2);
    EXPECT_EQ(screen.textEvents, 1);
    EXPECT_TRUE(screen.number->IsModified());
}

TEST_F(RefusedKey, LeavesTheSelectionToTheDeleteKey)
{
    Select(1, 3);
    screen.Type("x");
    screen.Press(WXK_DELETE);
    ExpectSelected(L"145", 1, 1, 1);
    EXPECT_EQ(screen.textEvents, 1);
}

// Text that an earlier key has deleted stays deleted.
TEST_F(RefusedKey, BringsNothingBackThatADeleteKeyHasTaken)
{
    Select(1, 3);
    screen.Press(WXK_DELETE);
    screen.Type("x");
    ExpectSelected(L"145", 1, 1, 1);
    EXPECT_EQ(screen.textEvents, 1);
}

TEST_F(RefusedKey, BringsNothingBackThatTheProgramHasTaken)
{
    Select(1, 3);
    screen.Type("x");
    screen.number->SetValue("7");
    screen.number->SetInsertionPointEnd();
    screen.Type("x");
    ExpectSelected(L"7", 1, 1, 1);
}

TEST_F(RefusedKey, LeavesUndoAsItIs)
{
    Select(1, 3);
    const bool couldUndo = screen.number->CanUndo();
    screen.Type("x");
    EXPECT_EQ(screen.number->CanUndo(), couldUndo);
    screen.Press('Z', wxMOD_CONTROL);
    EXPECT_EQ(screen.Text(), L"12345");
}

TEST_F(RefusedKey, LeavesAModifiedTextModified)
{
    screen.Restart("1234", 4);
    screen.Type("5");
    ASSERT_TRUE(screen.number->IsModified());
    Select(1, 3);
    screen.Type("x");
    EXPECT_TRUE(screen.number->IsModified());
}

// In overwrite mode, a key that is accepted replaces a character. A refused key must not delete this character.
TEST_F(RefusedKey, LeavesTheTextWhereKeysReplaceWhatIsThere)
{
    screen.Press(WXK_INSERT);
    screen.Type("x");
    ExpectSelected(L"12345", 0, 0, 0);
    EXPECT_EQ(screen.textEvents, 0);
    screen.Type("9");
    EXPECT_EQ(screen.Text(), L"92345");
}

// Control+Shift+U begins the input of a character by its code, here 78 for "x". The space ends the input.
TEST_F(RefusedKey, OfAnInputMethodLeavesTheSelection)
{
    Select(1, 3);
    screen.PressRaw("ctrl+shift+u");
    screen.Type("78 ");
    ExpectSelected(L"12345", 1, 3, 1);
    EXPECT_EQ(screen.BellsRung(), 1);
    EXPECT_EQ(screen.keys.characters, L"x");
}

TEST_F(RefusedKey, OfAnInputMethodLeavesItToAKeyThatIsTaken)
{
    Select(1, 3);
    screen.PressRaw("ctrl+shift+u");
    screen.Type("78 ");
    screen.PressRaw("ctrl+shift+u");
    screen.Type("39 ");
    EXPECT_EQ(screen.Text(), L"1945");
}

TEST(RefusedKeypadKey, LeavesTheSelection)
{
    NumberOnScreen screen{FixedFormat()};
    screen.Restart("1.345", 0);
    screen.number->SetSelection(3, 4);
    const NumLock numLock;
    screen.PressRaw(std::to_string(kKeypadDecimal));
    screen.ExpectTextAndBell(L"1.345");
    EXPECT_EQ(screen.number->GetStringSelection(), "4");
    EXPECT_EQ(screen.textEvents, 0);
}

}  // namespace
