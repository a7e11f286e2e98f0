// Keys that type no character always work, even if the text is not a valid number afterwards.

#include <fittings/numedit/num_validator.h>

#include <gtest/gtest.h>

#include <wx/clipbrd.h>
#include <wx/combobox.h>
#include <wx/sizer.h>
#include <wx/uiaction.h>

#include <tests/numedit/validator/keyboard.h>
#include <tests/numedit/validator/number_dialog.h>
#include <tests/support/gui.h>

namespace {

// A key, the text and caret before it is pressed, and the text and caret afterwards. Most of these texts are not valid
// numbers.
struct EditingKey
{
    const char* name;
    int key;
    const wchar_t* text;
    long caret;
    const wchar_t* textAfter;
    long caretAfter;
};

class EditingKeys : public testing::TestWithParam<EditingKey>
{
};

TEST_P(EditingKeys, AreNeverRefused)
{
    NumberOnScreen screen{FixedFormat()};
    screen.Restart(GetParam().text, GetParam().caret);
    screen.Press(GetParam().key);
    screen.ExpectTextWithoutBell(GetParam().textAfter);
    EXPECT_EQ(screen.number->GetInsertionPoint(), GetParam().caretAfter);
    EXPECT_TRUE(screen.number->HasFocus());
}

INSTANTIATE_TEST_SUITE_P(
    , EditingKeys,
    testing::Values(
        EditingKey{"Backspace", WXK_BACK, L"x12y", 4, L"x12", 3},
        EditingKey{"Delete", WXK_DELETE, L"x12y", 1, L"x2y", 1}, EditingKey{"Left", WXK_LEFT, L"x12y", 3, L"x12y", 2},
        EditingKey{"Right", WXK_RIGHT, L"x12y", 1, L"x12y", 2}, EditingKey{"Home", WXK_HOME, L"x12y", 3, L"x12y", 0},
        EditingKey{"End", WXK_END, L"x12y", 1, L"x12y", 4}, EditingKey{"PageUp", WXK_PAGEUP, L"x12y", 2, L"x12y", 2},
        EditingKey{"FunctionKey", WXK_F5, L"x12y", 2, L"x12y", 2},
        EditingKey{"BackspaceFromAValidText", WXK_BACK, L"1.23", 2, L"123", 1},
        EditingKey{"BackspaceThatLeavesTooManyDigits", WXK_BACK, L"12345.67", 6, L"1234567", 5},
        EditingKey{"DeleteThatLeavesTooManyDigits", WXK_DELETE, L"12345.67", 5, L"1234567", 5}),
    [](const auto& info) { return info.param.name; });

TEST(EditingKeysBelowTheLowestValue, EmptyTheText)
{
    CNumberFormat format = FixedFormat();
    format.m_bHasMin = true;
    format.m_dMin = 10;
    NumberOnScreen screen(format, "12");
    screen.Press(WXK_BACK);
    screen.Press(WXK_BACK);
    screen.ExpectTextWithoutBell(L"");
    EXPECT_EQ(screen.textEvents, 2);
}

class DialogKeys : public testing::Test
{
protected:
    NumberOnScreen screen{FixedFormat(), "nonsense"};
};

TEST_F(DialogKeys, TabLeavesABadText)
{
    screen.Press(WXK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return screen.dialog->FindFocus() && !screen.number->HasFocus(); }));
    screen.ExpectTextWithoutBell(L"nonsense");
}

TEST_F(DialogKeys, ShiftTabLeavesABadText)
{
    screen.Press(WXK_TAB, wxMOD_SHIFT);
    EXPECT_TRUE(PumpUntil([&] { return screen.first->HasFocus(); }));
    screen.ExpectTextWithoutBell(L"nonsense");
}

TEST_F(DialogKeys, UpAndDownKeepABadText)
{
    screen.Press(WXK_UP);
    screen.Press(WXK_DOWN);
    screen.ExpectTextWithoutBell(L"nonsense");
}

TEST_F(DialogKeys, EnterReachesTheDefaultButton)
{
    int clicks = 0;
    screen.dialog->Bind(
        wxEVT_BUTTON, [&](wxCommandEvent&) { ++clicks; }, wxID_OK);
    screen.Press(WXK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return clicks == 1; }));
    screen.ExpectTextWithoutBell(L"nonsense");
}

TEST_F(DialogKeys, EscapeReachesCancel)
{
    int clicks = 0;
    screen.dialog->Bind(
        wxEVT_BUTTON, [&](wxCommandEvent&) { ++clicks; }, wxID_CANCEL);
    wxUIActionSimulator keyboard;
    EXPECT_TRUE(keyboard.Char(WXK_ESCAPE));
    EXPECT_TRUE(PumpUntil([&] { return clicks == 1; }));
    EXPECT_EQ(screen.BellsRung(), 0);
}

// The validator does not check the text of a combo box.
TEST(KeysInAComboBox, TypeAnything)
{
    NumberDialog screen{FixedFormat()};
    auto* combo = new wxComboBox(screen.dialog, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, 0, nullptr, 0,
                                 wxNumValidator(FixedFormat(L','), nullptr));
    screen.dialog->GetSizer()->Add(combo);
    screen.dialog->GetSizer()->SetSizeHints(screen.dialog);
    screen.Show();
    combo->SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return combo->HasFocus(); }));
    screen.Type("1x.");
    const NumLock numLock;
    screen.PressRaw(std::to_string(kKeypadDecimal));
    EXPECT_EQ(combo->GetValue(), "1x..");
    EXPECT_EQ(screen.BellsRung(), 0);
}

class ShortcutKeys : public testing::Test
{
protected:
    void SetUp() override { SetClipboard("pasted"); }

    // Clears the clipboard, so that the program no longer owns it when the next test fills it. On Wayland, if a program
    // fills a clipboard that it owns, GTK 3.24.52 sets the same data source again. Weston 16 then cancels this source,
    // and the clipboard is empty. GTK 3.24.38 makes a new source, which is not cancelled.
    void TearDown() override
    {
        const wxClipboardLocker clipboard;
        wxTheClipboard->Clear();
    }

    NumberOnScreen screen{FixedFormat(), "x12y"};
};

TEST_F(ShortcutKeys, SelectAll)
{
    screen.Press('A', wxMOD_CONTROL);
    EXPECT_EQ(screen.number->GetStringSelection(), "x12y");
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(ShortcutKeys, Copy)
{
    screen.number->SetSelection(1, 3);
    screen.Press('C', wxMOD_CONTROL);
    EXPECT_EQ(Clipboard(), "12");
    screen.ExpectTextWithoutBell(L"x12y");
}

TEST_F(ShortcutKeys, Cut)
{
    screen.number->SetSelection(1, 3);
    screen.Press('X', wxMOD_CONTROL);
    EXPECT_EQ(Clipboard(), "12");
    screen.ExpectTextWithoutBell(L"xy");
    EXPECT_EQ(screen.textEvents, 1);
}

TEST_F(ShortcutKeys, PasteUnchecked)
{
    screen.Press('V', wxMOD_CONTROL);
    EXPECT_TRUE(PumpUntil([&] { return screen.Text() == L"x12ypasted"; })) << screen.number->GetValue();
    EXPECT_EQ(screen.textEvents, 1);
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(ShortcutKeys, PasteIsCaughtWhenTheDialogIsValidated)
{
    screen.Restart("12", 2);
    screen.Press('V', wxMOD_CONTROL);
    ASSERT_TRUE(PumpUntil([&] { return screen.Text() == L"12pasted"; })) << screen.number->GetValue();
    EXPECT_FALSE(screen.dialog->Validate());
}

TEST_F(ShortcutKeys, Undo)
{
    screen.Press('Z', wxMOD_CONTROL);
    EXPECT_EQ(screen.BellsRung(), 0);
}

struct Chord
{
    const char* name;
    int key;
    int modifiers;
    int code;
    int bells;
};

class Chords : public testing::TestWithParam<Chord>
{
};

// With Control, a letter becomes a control character, and a digit stays a digit. With Alt, letters and digits do not
// change.
TEST_P(Chords, AreCheckedByTheirCodeAlone)
{
    NumberOnScreen screen{FixedFormat(), "12345"};
    screen.Press(GetParam().key, GetParam().modifiers);
    // Newer versions of the toolkit report no character for Control and a digit, so the validator has no character to
    // refuse.
    const bool isReported = std::string(GetParam().name) != "ControlDigit" || !screen.keys.chars.empty();
    EXPECT_EQ(screen.keys.chars, std::vector<int>(isReported ? 1 : 0, GetParam().code));
    EXPECT_EQ(screen.Text(), L"12345");
    EXPECT_EQ(screen.textEvents, 0);
    EXPECT_EQ(screen.BellsRung(), isReported ? GetParam().bells : 0);
}

INSTANTIATE_TEST_SUITE_P(, Chords,
                         testing::Values(Chord{"ControlLetter", 'Q', wxMOD_CONTROL, 17, 0},
                                         Chord{"ControlDigit", '1', wxMOD_CONTROL, '1', 1},
                                         Chord{"AltLetter", 'Q', wxMOD_ALT, 'q', 1},
                                         Chord{"AltDigit", '1', wxMOD_ALT, '1', 1}),
                         [](const auto& info) { return info.param.name; });

}  // namespace
