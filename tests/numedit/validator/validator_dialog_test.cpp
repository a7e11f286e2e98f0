// The transfer of the value between the host and the control, and the check when a dialog closes.

#include <fittings/numedit/num_validator.h>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/uiaction.h>

#include <tests/numedit/validator/number_dialog.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>

namespace {

class CountingTextCtrl : public wxTextCtrl
{
public:
    using wxTextCtrl::wxTextCtrl;

    wxString GetValue() const override
    {
        ++reads;
        return wxTextCtrl::GetValue();
    }

    mutable int reads = 0;
};

class Transfer : public testing::Test
{
protected:
    Transfer()
        : frame(new wxFrame(nullptr, wxID_ANY, "transfer")), panel(new wxPanel(frame)),
          control(new CountingTextCtrl(panel, wxID_ANY))
    {
        control->Bind(wxEVT_TEXT, [this](wxCommandEvent& event) { texts.push_back(event.GetString()); });
        validator.SetWindow(control);
        unbound.SetWindow(control);
    }

    OwnedWindow<wxFrame> frame;
    wxPanel* panel;
    CountingTextCtrl* control;
    wxString value = "unchanged";
    wxNumValidator validator{FixedFormat(), &value};
    wxNumValidator unbound{FixedFormat(), nullptr};
    std::vector<wxString> texts;
    const int bellsBefore = Bells();
};

TEST_F(Transfer, ToTheWindowPutsTheTextInAsItIs)
{
    for (const wxString text : {L"1234.5", L"1,234.50-", L"nonsense", L" 007 ", L"1\u066B5\u20AC", L""}) {
        value = text;
        texts.clear();
        control->ChangeValue("something else");
        EXPECT_TRUE(validator.TransferToWindow());
        EXPECT_EQ(control->GetValue(), text);
        EXPECT_EQ(texts, std::vector<wxString>{text});
        EXPECT_EQ(value, text);
    }
    EXPECT_EQ(Bells(), bellsBefore);
}

TEST_F(Transfer, ToTheWindowReachesAControlThatTheUserCannotChange)
{
    value = "12";
    control->Disable();
    EXPECT_TRUE(validator.TransferToWindow());
    EXPECT_EQ(control->GetValue(), "12");
    value = "34";
    control->Enable();
    control->SetEditable(false);
    EXPECT_TRUE(validator.TransferToWindow());
    EXPECT_EQ(control->GetValue(), "34");
    EXPECT_EQ(texts, (std::vector<wxString>{"12", "34"}));
}

TEST_F(Transfer, ToTheWindowSendsItsEventForTheSameTextToo)
{
    value = "12";
    control->ChangeValue("12");
    EXPECT_TRUE(validator.TransferToWindow());
    EXPECT_EQ(texts, std::vector<wxString>{"12"});
}

TEST_F(Transfer, FromTheWindowTakesAGoodText)
{
    for (const wxString text : {"1234.5", "-1.50", "", "-", "007", "1."}) {
        value = "before";
        control->ChangeValue(text);
        EXPECT_TRUE(validator.TransferFromWindow());
        EXPECT_EQ(value, text);
    }
}

TEST_F(Transfer, FromTheWindowLeavesTheValueForABadText)
{
    for (const wxString text : {"1.234", "123456", "1,234.00", "1.00-", "nonsense", "1e5"}) {
        control->ChangeValue(text);
        EXPECT_FALSE(validator.TransferFromWindow());
        EXPECT_EQ(value, "unchanged");
        EXPECT_EQ(control->GetValue(), text);
    }
    EXPECT_TRUE(texts.empty());
    EXPECT_EQ(Bells(), bellsBefore);
}

// The text "0.0" may be typed, because "0.05" begins with it. As a complete number it is refused, because it is below
// the minimum.
TEST_F(Transfer, FromTheWindowChecksTheCompleteNumber)
{
    CNumberFormat format = FixedFormat();
    format.m_bHasMin = true;
    format.m_dMin = 0.05;
    wxNumValidator positive(format, &value);
    positive.SetWindow(control);
    control->ChangeValue("0.0");
    EXPECT_FALSE(positive.TransferFromWindow());
    EXPECT_FALSE(positive.Validate(nullptr));
    EXPECT_EQ(value, "unchanged");
    control->ChangeValue("0.05");
    EXPECT_TRUE(positive.Validate(nullptr));
    EXPECT_TRUE(positive.TransferFromWindow());
    EXPECT_EQ(value, "0.05");
}

TEST_F(Transfer, FromTheWindowChecksADisabledControl)
{
    control->ChangeValue("nonsense");
    control->Disable();
    EXPECT_FALSE(validator.TransferFromWindow());
    EXPECT_EQ(value, "unchanged");
    control->ChangeValue("12");
    EXPECT_TRUE(validator.TransferFromWindow());
    EXPECT_EQ(value, "12");
}

TEST_F(Transfer, WithoutAValueDoesNothing)
{
    control->ChangeValue("1.234");
    control->reads = 0;
    EXPECT_TRUE(unbound.TransferFromWindow());
    EXPECT_TRUE(unbound.TransferToWindow());
    EXPECT_EQ(control->reads, 0);
    EXPECT_EQ(control->GetValue(), "1.234");
    EXPECT_TRUE(texts.empty());
}

TEST_F(Transfer, FailsWithoutATextControl)
{
    wxWindow* const others[] = {nullptr, panel, new wxChoice(panel, wxID_ANY), new wxComboBox(panel, wxID_ANY, "12")};
    for (wxWindow* other : others) {
        const ExpectAssertions assertions;
        validator.SetWindow(other);
        EXPECT_FALSE(validator.TransferToWindow());
        EXPECT_FALSE(validator.TransferFromWindow());
        EXPECT_FALSE(validator.Validate(panel));
        EXPECT_EQ(value, "unchanged");
        unbound.SetWindow(other);
        EXPECT_TRUE(unbound.TransferToWindow());
        EXPECT_TRUE(unbound.TransferFromWindow());
        EXPECT_FALSE(unbound.Validate(panel));
        if (other) {
            other->Disable();
            EXPECT_FALSE(validator.Validate(panel)) << "disabled";
            other->Enable();
        }
        EXPECT_EQ(assertions.Count(), other ? 5 : 0) << "one for each operation that fails on a window";
    }
    EXPECT_EQ(static_cast<wxComboBox*>(others[3])->GetValue(), "12");
}

TEST_F(Transfer, ValidatesAnEnabledControlOnly)
{
    control->ChangeValue("nonsense");
    EXPECT_FALSE(validator.Validate(nullptr));
    control->Disable();
    EXPECT_TRUE(validator.Validate(nullptr));
    control->Enable();
    EXPECT_FALSE(validator.Validate(nullptr));
    panel->Disable();
    EXPECT_TRUE(validator.Validate(nullptr)) << "disabled with its parent";
}

TEST_F(Transfer, ValidatesWithoutAValue)
{
    control->ChangeValue("12");
    EXPECT_TRUE(unbound.Validate(nullptr));
    control->ChangeValue("1.234");
    EXPECT_FALSE(unbound.Validate(nullptr));
}

TEST_F(Transfer, ValidatesWithoutChangingAnything)
{
    for (const wxString text : {"12", "nonsense"}) {
        control->ChangeValue(text);
        validator.Validate(panel);
        EXPECT_EQ(control->GetValue(), text);
    }
    EXPECT_EQ(value, "unchanged");
    EXPECT_TRUE(texts.empty());
    EXPECT_EQ(Bells(), bellsBefore);
}

class Validation : public testing::Test
{
protected:
    void SetUp() override
    {
        screen.first->SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return screen.first->HasFocus(); }));
    }

    NumberOnScreen screen{FixedFormat(), "12"};
};

TEST_F(Validation, LeavesTheFocusWhenTheTextIsGood)
{
    EXPECT_TRUE(screen.dialog->Validate());
    PumpPending();
    EXPECT_TRUE(screen.first->HasFocus());
}

TEST_F(Validation, MovesTheFocusWhenTheTextIsBad)
{
    screen.number->ChangeValue("1.234");
    EXPECT_FALSE(screen.dialog->Validate());
    EXPECT_TRUE(PumpUntil([&] { return screen.number->HasFocus(); }));
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(Validation, LeavesTheFocusWhenTheControlIsDisabled)
{
    screen.number->ChangeValue("1.234");
    screen.number->Disable();
    EXPECT_TRUE(screen.dialog->Validate());
    PumpPending();
    EXPECT_TRUE(screen.first->HasFocus());
}

TEST_F(Validation, OfATransferAloneLeavesTheFocus)
{
    wxString value = "unchanged";
    screen.number->SetValidator(wxNumValidator(FixedFormat(), &value));
    screen.number->ChangeValue("1.234");
    EXPECT_FALSE(screen.dialog->TransferDataFromWindow());
    PumpPending();
    EXPECT_TRUE(screen.first->HasFocus());
    EXPECT_EQ(value, "unchanged");
}

class ModalDialog : public testing::Test
{
protected:
    // Shows the dialog, calls @a act, and returns the dialog's result. If @a act leaves the dialog open, the result is
    // wxID_ABORT.
    int ShowModal(const std::function<void()>& act)
    {
        screen.dialog->CallAfter([this, act] {
            EXPECT_TRUE(PumpUntil([this] { return screen.dialog->IsActive() && screen.number->IsShownOnScreen(); }));
            act();
            if (screen.dialog->IsModal() && screen.dialog->IsShown())
                screen.dialog->EndModal(wxID_ABORT);
        });
        return screen.dialog->ShowModal();
    }

    bool Closed() const { return !screen.dialog->IsShown(); }

    // Presses Enter without waiting for its release, because Enter may close the dialog first.
    void PressEnter()
    {
        wxUIActionSimulator keyboard;
        EXPECT_TRUE(keyboard.Char(WXK_RETURN));
    }

    void ClickOk()
    {
        wxWindow* const ok = screen.dialog->FindWindow(wxID_OK);
        wxUIActionSimulator mouse;
        mouse.MouseMove(ok->ClientToScreen(wxPoint(ok->GetSize().x / 2, ok->GetSize().y / 2)));
        mouse.MouseClick();
    }

    wxString value = "9.95";
    NumberDialog screen{FixedFormat(), &value};
};

TEST_F(ModalDialog, OpensWithTheValue)
{
    EXPECT_EQ(ShowModal([&] { EXPECT_EQ(screen.Text(), L"9.95"); }), wxID_ABORT);
    EXPECT_EQ(screen.textEvents, 1);
}

TEST_F(ModalDialog, ClosesOnEnterWithAGoodValue)
{
    EXPECT_EQ(ShowModal([&] {
                  screen.Restart("12", 2);
                  screen.Type("3.5");
                  PressEnter();
                  EXPECT_TRUE(PumpUntil([&] { return Closed(); }));
              }),
              wxID_OK);
    EXPECT_EQ(value, "123.5");
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(ModalDialog, StaysOpenOnEnterWithABadValue)
{
    EXPECT_EQ(ShowModal([&] {
                  screen.Restart("1.234", 5);
                  screen.first->SetFocus();
                  ASSERT_TRUE(PumpUntil([&] { return screen.first->HasFocus(); }));
                  PressEnter();
                  EXPECT_TRUE(PumpUntil([&] { return screen.number->HasFocus(); }));
                  EXPECT_TRUE(screen.dialog->IsShown());
                  EXPECT_EQ(value, "9.95");
                  screen.number->SetInsertionPointEnd();
                  screen.Press(WXK_BACK);
                  EXPECT_EQ(screen.Text(), L"1.23");
                  PressEnter();
                  EXPECT_TRUE(PumpUntil([&] { return Closed(); }));
              }),
              wxID_OK);
    EXPECT_EQ(value, "1.23");
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(ModalDialog, StaysOpenWhenOkIsClickedWithABadValue)
{
    EXPECT_EQ(ShowModal([&] {
                  screen.Restart("nonsense", 0);
                  int clicks = 0;
                  screen.dialog->Bind(
                      wxEVT_BUTTON,
                      [&](wxCommandEvent& event) {
                          ++clicks;
                          event.Skip();
                      },
                      wxID_OK);
                  ClickOk();
                  EXPECT_TRUE(PumpUntil([&] { return clicks == 1 && screen.number->HasFocus(); }));
                  EXPECT_TRUE(screen.dialog->IsShown());
              }),
              wxID_ABORT);
    EXPECT_EQ(value, "9.95");
}

TEST_F(ModalDialog, ClosesWhenOkIsClickedWithAGoodValue)
{
    EXPECT_EQ(ShowModal([&] {
                  screen.Restart("7", 1);
                  ClickOk();
                  EXPECT_TRUE(PumpUntil([&] { return Closed(); }));
              }),
              wxID_OK);
    EXPECT_EQ(value, "7");
}

TEST_F(ModalDialog, LeavesTheValueWhenCancelled)
{
    EXPECT_EQ(ShowModal([&] {
                  screen.Restart("7", 1);
                  wxUIActionSimulator keyboard;
                  EXPECT_TRUE(keyboard.Char(WXK_ESCAPE));
                  EXPECT_TRUE(PumpUntil([&] { return Closed(); }));
              }),
              wxID_CANCEL);
    EXPECT_EQ(value, "9.95");
}

TEST_F(ModalDialog, DoesNotCareAboutADisabledControl)
{
    screen.number->SetValidator(wxNumValidator(FixedFormat(), nullptr));
    EXPECT_EQ(ShowModal([&] {
                  screen.number->ChangeValue("nonsense");
                  screen.number->Disable();
                  screen.first->SetFocus();
                  ASSERT_TRUE(PumpUntil([&] { return screen.first->HasFocus(); }));
                  PressEnter();
                  EXPECT_TRUE(PumpUntil([&] { return Closed(); }));
              }),
              wxID_OK);
}

TEST(DialogWithPanels, TransfersAndValidatesEachNumber)
{
    wxString width = "1.5";
    wxString height = "2.5";
    wxDialog dialog(nullptr, wxID_ANY, "Size", wxDefaultPosition, wxDefaultSize,
                    wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
    dialog.SetExtraStyle(dialog.GetExtraStyle() | wxWS_EX_VALIDATE_RECURSIVELY);
    auto* outer = new wxPanel(&dialog);
    auto* inner = new wxPanel(outer);
    auto* across =
        new wxTextCtrl(outer, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0, wxNumValidator(FixedFormat(), &width));
    auto* down = new wxTextCtrl(inner, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0,
                                wxNumValidator(FixedFormat(), &height));

    EXPECT_TRUE(dialog.TransferDataToWindow());
    EXPECT_EQ(across->GetValue(), "1.5");
    EXPECT_EQ(down->GetValue(), "2.5");

    across->ChangeValue("3");
    down->ChangeValue("4.444");
    EXPECT_FALSE(dialog.Validate());
    EXPECT_FALSE(dialog.TransferDataFromWindow());
    EXPECT_EQ(height, "2.5");

    down->ChangeValue("4.44");
    EXPECT_TRUE(dialog.Validate());
    EXPECT_TRUE(dialog.TransferDataFromWindow());
    EXPECT_EQ(width, "3");
    EXPECT_EQ(height, "4.44");
}

}  // namespace
