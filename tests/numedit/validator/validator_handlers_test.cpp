// The handlers OnChar() and OnKeyDown() of wxNumValidator, called directly with events that the test makes.

#include <fittings/numedit/num_validator.h>

#include <stdexcept>

#include <gtest/gtest.h>

#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/spinctrl.h>

#include <tests/numedit/validator/number_dialog.h>
#include <tests/support/owned_window.h>

namespace {

wxKeyEvent Key(wxEventType type, long code, wchar_t unicode = 0)
{
    wxKeyEvent event(type);
    event.m_keyCode = code;
    event.m_uniChar = unicode;
    return event;
}

// A control whose caret and selection a test can set independently of its text.
class OddTextCtrl : public wxTextCtrl
{
public:
    using wxTextCtrl::wxTextCtrl;

    long GetInsertionPoint() const override { return caret < 0 ? wxTextCtrl::GetInsertionPoint() : caret; }
    wxString GetStringSelection() const override
    {
        return selection.empty() ? wxTextCtrl::GetStringSelection() : selection;
    }

    long caret = -1;
    wxString selection;
};

class Handlers : public testing::Test
{
protected:
    Handlers() : frame(new wxFrame(nullptr, wxID_ANY, "handlers")), control(new OddTextCtrl(frame, wxID_ANY))
    {
        control->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { ++textEvents; });
        validator.SetWindow(control);
    }

    void Start(const wxString& text, long caret)
    {
        control->ChangeValue(text);
        control->SetInsertionPoint(caret);
        bellsBefore = Bells();
        textEvents = 0;
    }

    // Returns whether the handler passes the character to the control.
    bool CharPasses(long code, wchar_t unicode = 0)
    {
        wxKeyEvent event = Key(wxEVT_CHAR, code, unicode);
        validator.OnChar(event);
        return event.GetSkipped();
    }

    bool KeyDownPasses(long code)
    {
        wxKeyEvent event = Key(wxEVT_KEY_DOWN, code);
        validator.OnKeyDown(event);
        return event.GetSkipped();
    }

    int BellsRung() const { return Bells() - bellsBefore; }

    OwnedWindow<wxFrame> frame;
    OddTextCtrl* control;
    OpenValidator validator{FixedFormat(L','), nullptr};
    int bellsBefore = Bells();
    int textEvents = 0;
};

struct Code
{
    long code;
    bool passes;
};

class HandlerForCode : public Handlers, public testing::WithParamInterface<Code>
{
};

// The text is full, so a code passes only if the handler does not check this code.
TEST_P(HandlerForCode, ChecksCharactersOnly)
{
    Start("12345,67", 8);
    EXPECT_EQ(CharPasses(GetParam().code, L'7'), GetParam().passes);
    EXPECT_EQ(BellsRung(), GetParam().passes ? 0 : 1);
    EXPECT_EQ(control->GetValue(), "12345,67");
}

INSTANTIATE_TEST_SUITE_P(, HandlerForCode,
                         testing::Values(Code{-1, true}, Code{0, false}, Code{1, true}, Code{WXK_BACK, true},
                                         Code{WXK_TAB, true}, Code{10, true}, Code{WXK_RETURN, true}, Code{22, true},
                                         Code{WXK_ESCAPE, true}, Code{31, true}, Code{WXK_SPACE, false},
                                         Code{'!', false}, Code{'7', false}, Code{126, false}, Code{WXK_DELETE, true},
                                         Code{128, false}, Code{233, false}, Code{255, false}, Code{256, false},
                                         Code{299, false}, Code{300, false}, Code{301, true}, Code{WXK_SHIFT, true},
                                         Code{WXK_LEFT, true}, Code{WXK_F1, true}, Code{WXK_NUMPAD1, true},
                                         Code{WXK_NUMPAD_DECIMAL, true}, Code{1000, true}),
                         [](const auto& info) {
                             const long code = info.param.code;
                             return code < 0 ? std::string("Negative") : "Code" + std::to_string(code);
                         });

TEST_F(Handlers, PassAGoodCharacterToTheControl)
{
    Start("1", 1);
    EXPECT_TRUE(CharPasses('2', L'2'));
    EXPECT_EQ(control->GetValue(), "1") << "the control inserts the character, not the handler";
    EXPECT_EQ(BellsRung(), 0);
}

TEST_F(Handlers, JudgeTheCodeRatherThanTheUnicodeCharacter)
{
    Start("1", 1);
    EXPECT_TRUE(CharPasses('2', L'x'));
    EXPECT_FALSE(CharPasses('x', L'2'));
}

TEST_F(Handlers, JudgeTheUnicodeCharacterWhereThereIsNoCode)
{
    Start("1", 1);
    EXPECT_TRUE(CharPasses(0, L'2'));
    EXPECT_EQ(BellsRung(), 0);
    EXPECT_FALSE(CharPasses(0, L'x'));
    EXPECT_FALSE(CharPasses(0, 0x665));
    EXPECT_EQ(BellsRung(), 2);
}

// The key inserts a null character at the caret. The new text ends there, so the validator checks only the text before
// the caret.
TEST_F(Handlers, JudgeWhatStandsBeforeAKeyWithoutAnyCharacter)
{
    Start("1x", 1);
    EXPECT_TRUE(CharPasses(0, 0));
    Start("1x", 2);
    EXPECT_FALSE(CharPasses(0, 0));
}

TEST_F(Handlers, CheckWhateverTheModifiers)
{
    Start("1", 1);
    for (const int modifier : {wxMOD_ALT, wxMOD_CONTROL, wxMOD_SHIFT, wxMOD_META}) {
        wxKeyEvent event = Key(wxEVT_CHAR, 'x', L'x');
        event.SetAltDown((modifier & wxMOD_ALT) != 0);
        event.SetControlDown((modifier & wxMOD_CONTROL) != 0);
        event.SetShiftDown((modifier & wxMOD_SHIFT) != 0);
        event.SetMetaDown((modifier & wxMOD_META) != 0);
        validator.OnChar(event);
        EXPECT_FALSE(event.GetSkipped());
    }
    EXPECT_EQ(BellsRung(), 4);
}

TEST_F(Handlers, JudgeTheWholeTextWithTheCharacterAtTheCaret)
{
    Start("123,45", 0);
    EXPECT_TRUE(CharPasses('-'));
    EXPECT_TRUE(CharPasses('1'));
    control->SetInsertionPoint(3);
    EXPECT_FALSE(CharPasses('-'));
    EXPECT_TRUE(CharPasses('1'));
    control->SetInsertionPoint(6);
    EXPECT_FALSE(CharPasses('1'));
}

TEST_F(Handlers, TakeTheSelectionAwayFromTheCaretOnwards)
{
    Start("12345", 0);
    control->caret = 0;
    control->selection = "xyz";
    EXPECT_TRUE(CharPasses('-')) << "-45";
    EXPECT_TRUE(CharPasses('9')) << "945";
    EXPECT_FALSE(CharPasses('x')) << "x45";
    control->caret = 1;
    EXPECT_FALSE(CharPasses('-')) << "1-5";
    EXPECT_TRUE(CharPasses('9')) << "195";
}

TEST_F(Handlers, TakeAsManyCharactersAwayAsAreSelected)
{
    Start("12,45", 0);
    control->caret = 0;
    control->selection = "xy";
    EXPECT_FALSE(CharPasses(',')) << ",,45";
    control->selection = "xyz";
    EXPECT_TRUE(CharPasses(',')) << ",45";
    Start("12,456", 0);
    EXPECT_FALSE(CharPasses(',')) << ",456";
    control->selection = "wxyz";
    EXPECT_TRUE(CharPasses(',')) << ",56";
    // The selection is counted in characters, not in bytes.
    Start("12,45", 0);
    control->selection = L"\u20ac\u20ac";
    EXPECT_FALSE(CharPasses(',')) << ",,45";
}

TEST_F(Handlers, TakeNoMoreAwayThanThereIs)
{
    Start("123,45", 0);
    control->selection = "nine char";
    control->caret = 4;
    EXPECT_TRUE(CharPasses('9')) << "123,9";
    control->caret = 6;
    EXPECT_FALSE(CharPasses('9')) << "123,459";
    control->caret = 0;
    EXPECT_TRUE(CharPasses('9')) << "9";
}

TEST_F(Handlers, TakeTheSelectionToBeginAtTheCaretEvenIfItEndsThere)
{
    Start("12345", 0);
    control->SetSelection(0, 5);
    ASSERT_EQ(control->GetInsertionPoint(), 0);
    EXPECT_TRUE(CharPasses('6')) << "6";
    control->caret = 5;
    EXPECT_FALSE(CharPasses('6')) << "123456";
}

TEST_F(Handlers, ThrowForACaretBeyondTheText)
{
    Start("123", 0);
    control->caret = 3;
    EXPECT_TRUE(CharPasses('4'));
    control->caret = 4;
    try {
        CharPasses('4');
        ADD_FAILURE() << "no exception";
    } catch (const std::out_of_range& error) {
        EXPECT_EQ(std::string(error.what()).substr(0, 19), "basic_string::erase");
    }
    EXPECT_NO_THROW(CharPasses(WXK_BACK)) << "this key is not checked";
}

TEST_F(Handlers, ChangeNothingWhenRefusing)
{
    Start("12,34", 2);
    EXPECT_FALSE(CharPasses(','));
    EXPECT_EQ(control->GetValue(), "12,34");
    EXPECT_EQ(control->GetInsertionPoint(), 2);
    EXPECT_EQ(textEvents, 0);
    EXPECT_EQ(BellsRung(), 1);
}

TEST_F(Handlers, SwallowInSilenceWhenValidatorsAreSilent)
{
    const SilentValidators silence;
    Start("1", 1);
    EXPECT_FALSE(CharPasses('x'));
    EXPECT_EQ(BellsRung(), 0);
}

TEST_F(Handlers, NoteTheKeypadsDecimalKeyByItsCodeAlone)
{
    EXPECT_FALSE(validator.m_bNumpadDecimal);
    EXPECT_TRUE(KeyDownPasses(391));
    EXPECT_TRUE(validator.m_bNumpadDecimal);
    for (const long code : {0L, 46L, 127L, 385L, 389L, 390L, 392L, 325L}) {
        validator.m_bNumpadDecimal = true;
        EXPECT_TRUE(KeyDownPasses(code));
        EXPECT_FALSE(validator.m_bNumpadDecimal) << code;
    }
}

TEST_F(Handlers, WriteTheFormatsPointForTheKeypad)
{
    Start("12", 1);
    KeyDownPasses(WXK_NUMPAD_DECIMAL);
    EXPECT_FALSE(CharPasses('.', L'.')) << "the control must not insert the point again";
    EXPECT_EQ(control->GetValue(), "1,2");
    EXPECT_EQ(control->GetInsertionPoint(), 2);
    EXPECT_EQ(textEvents, 1);
    EXPECT_EQ(BellsRung(), 0);
}

TEST_F(Handlers, WriteTheKeypadsPointOverTheSelection)
{
    Start("1234", 0);
    control->SetSelection(1, 3);
    control->caret = 1;
    KeyDownPasses(WXK_NUMPAD_DECIMAL);
    EXPECT_FALSE(CharPasses('.', L'.'));
    EXPECT_EQ(control->GetValue(), "1,4");
}

TEST_F(Handlers, KeepTheKeypadsKeyUntilAnotherGoesDown)
{
    Start("", 0);
    KeyDownPasses(WXK_NUMPAD_DECIMAL);
    EXPECT_FALSE(CharPasses('.', L'.'));
    EXPECT_TRUE(validator.m_bNumpadDecimal);
    EXPECT_EQ(control->GetValue(), ",");
    EXPECT_FALSE(CharPasses('7', L'7')) << "counts as the keypad's key: a second point";
    EXPECT_TRUE(validator.m_bNumpadDecimal);
    EXPECT_EQ(control->GetValue(), ",");
    EXPECT_EQ(BellsRung(), 1);
    Start("", 0);
    EXPECT_FALSE(CharPasses('7', L'7'));
    EXPECT_EQ(control->GetValue(), ",");
    KeyDownPasses('7');
    EXPECT_TRUE(CharPasses('7', L'7'));
}

TEST_F(Handlers, LeaveUncheckedKeysAloneForTheKeypadToo)
{
    Start("1", 1);
    KeyDownPasses(WXK_NUMPAD_DECIMAL);
    EXPECT_TRUE(CharPasses(WXK_DELETE)) << "the key without NumLock";
    EXPECT_EQ(control->GetValue(), "1");
}

TEST_F(Handlers, UseTheUnicodeCharacterWhereTheFormatHasNoPoint)
{
    validator.m_format.m_chDecimalPoint = 0;
    Start("1", 1);
    KeyDownPasses(WXK_NUMPAD_DECIMAL);
    EXPECT_FALSE(CharPasses(L'x', L'.'));
    EXPECT_EQ(control->GetValue(), "1.");
    EXPECT_FALSE(CharPasses(L'.', L'x'));
    EXPECT_EQ(control->GetValue(), "1.");
    EXPECT_EQ(BellsRung(), 1);
}

TEST_F(Handlers, AreReachedThroughTheEventTable)
{
    Start("1", 1);
    wxKeyEvent down = Key(wxEVT_KEY_DOWN, WXK_NUMPAD_DECIMAL);
    EXPECT_FALSE(validator.ProcessEvent(down)) << "skipped";
    EXPECT_TRUE(validator.m_bNumpadDecimal);
    wxKeyEvent up = Key(wxEVT_KEY_UP, WXK_NUMPAD_DECIMAL);
    EXPECT_FALSE(validator.ProcessEvent(up));
    EXPECT_TRUE(validator.m_bNumpadDecimal);
    wxKeyEvent hook = Key(wxEVT_CHAR_HOOK, 'x', L'x');
    EXPECT_FALSE(validator.ProcessEvent(hook));
    EXPECT_EQ(BellsRung(), 0);
    wxKeyEvent point = Key(wxEVT_CHAR, '.', L'.');
    EXPECT_TRUE(validator.ProcessEvent(point));
    EXPECT_EQ(control->GetValue(), "1,");
}

TEST_F(Handlers, CheckADisabledControlToo)
{
    Start("1", 1);
    control->Disable();
    EXPECT_FALSE(CharPasses('x'));
    EXPECT_TRUE(CharPasses('2'));
}

TEST_F(Handlers, WithoutAWindowPassEverything)
{
    validator.SetWindow(nullptr);
    EXPECT_TRUE(CharPasses('x', L'x'));
    EXPECT_TRUE(CharPasses(0, 0x20AC));
    EXPECT_TRUE(KeyDownPasses(WXK_NUMPAD_DECIMAL));
    EXPECT_TRUE(validator.m_bNumpadDecimal);
    EXPECT_TRUE(CharPasses('.', L'.'));
    EXPECT_EQ(BellsRung(), 0);
}

TEST_F(Handlers, OnAnotherWindowPassEverything)
{
    wxArrayString items;
    items.Add("nonsense");
    wxWindow* const others[] = {new wxPanel(frame),
                                new wxChoice(frame, wxID_ANY, wxDefaultPosition, wxDefaultSize, items),
                                new wxComboBox(frame, wxID_ANY, "nonsense", wxDefaultPosition, wxDefaultSize, items),
                                new wxSpinCtrl(frame, wxID_ANY)};
    for (wxWindow* other : others) {
        validator.SetWindow(other);
        KeyDownPasses('x');
        EXPECT_TRUE(CharPasses('x', L'x'));
        EXPECT_TRUE(KeyDownPasses(WXK_NUMPAD_DECIMAL));
        EXPECT_TRUE(CharPasses('.', L'.'));
    }
    EXPECT_EQ(static_cast<wxComboBox*>(others[2])->GetValue(), "nonsense");
    EXPECT_EQ(BellsRung(), 0);
}

}  // namespace
