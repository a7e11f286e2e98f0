// A colour combo in a dialog. Both the open popup and the dialog's buttons react to Enter and Escape.

#include <vector>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/uiaction.h>
#include <wx/validate.h>

#include <tests/colour/combo/combo_on_screen.h>

namespace {

class ColourComboInADialog : public testing::TestWithParam<long>
{
protected:
    void SetUp() override
    {
        combo->Create(dialog, wxID_ANY, "", wxPoint(20, 20), wxSize(150, -1), GetParam());
        combo->SetPopupControl(popup);
        auto* const ok = new wxButton(dialog, wxID_OK, "OK", wxPoint(20, 100));
        auto* const cancel = new wxButton(dialog, wxID_CANCEL, "Cancel", wxPoint(120, 100));
        ok->SetDefault();
        ok->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ++oks; });
        cancel->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ++cancels; });
        ASSERT_TRUE(ShowAndSettle(dialog));
        combo->SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return ContainsFocus(*combo); }));
    }

    ~ColourComboInADialog() override { DestroyNow(dialog); }

    // Opens the popup and presses a key that closes it. Expects that the key presses none of the dialog's buttons.
    void UsePopup(int key)
    {
        user.Char(WXK_F4);
        ASSERT_TRUE(PumpUntil([&] { return combo->IsPopupShown(); }));
        PumpPending();
        user.Char(key);
        EXPECT_TRUE(PumpUntil([&] { return !combo->IsPopupShown(); }));
        EXPECT_FALSE(PumpUntil([&] { return oks + cancels > 0; }, 100));
    }

    wxDialog* dialog = new wxDialog(nullptr, wxID_ANY, "colour", wxPoint(200, 150), wxSize(300, 300),
                                    wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
    OpenCombo* combo = new OpenCombo;
    OpenPopup* popup = new OpenPopup;
    int oks = 0;
    int cancels = 0;
    wxUIActionSimulator user;
};

INSTANTIATE_TEST_SUITE_P(, ColourComboInADialog, testing::Values(wxCB_READONLY, 0), NameOfStyle);

TEST_P(ColourComboInADialog, KeepsTheKeysOfItsPopupFromTheDialogsButtons)
{
    UsePopup(WXK_RETURN);
    UsePopup(WXK_ESCAPE);
    EXPECT_TRUE(dialog->IsShown());
}

TEST_P(ColourComboInADialog, LeavesOnlyKeysThatItsPopupDoesNotKnowToTheDialog)
{
    std::vector<int> hooked;
    dialog->Bind(wxEVT_CHAR_HOOK, [&](wxKeyEvent& event) { hooked.push_back(event.GetKeyCode()); });
    combo->EnablePopupAnimation(false);
    for (const int last : {int(WXK_ESCAPE), int(WXK_RETURN), int(WXK_NUMPAD_ENTER), int(WXK_SPACE)}) {
        hooked.clear();
        ASSERT_TRUE(Opens(*combo));
        PumpPending();
        for (const int key : {int(WXK_UP), int(WXK_F1), int(WXK_DOWN), int(WXK_RIGHT), int(WXK_LEFT), int('x')})
            user.Char(key);
        EXPECT_TRUE(PumpUntil([&] { return hooked.size() >= 2; }));
        user.Char(last);
        EXPECT_TRUE(PumpUntil([&] { return !combo->IsPopupShown(); }));
        EXPECT_EQ(hooked, (std::vector<int>{WXK_F1, 'X'}));
    }
}

TEST_P(ColourComboInADialog, KeepsTheKeysFromTheDialogWhileThePopupOpens)
{
    combo->m_animDuration = 2000000;
    user.Char(WXK_F4);
    ASSERT_TRUE(PumpUntil([&] { return combo->GetPopupWindowState() == wxComboCtrl::Animating; }));
    user.Char(WXK_ESCAPE);
    user.Char(WXK_RETURN);
    EXPECT_FALSE(PumpUntil([&] { return oks + cancels > 0; }, 300));
    combo->m_animDuration = 1;
    EXPECT_TRUE(PumpUntil([&] { return combo->IsPopupShown(); }));
    user.Char(WXK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return !combo->IsPopupShown(); }));
    EXPECT_EQ(cancels, 0);
}

TEST_P(ColourComboInADialog, LeavesTheDialogsKeysToItWhileClosed)
{
    user.Char(WXK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return oks == 1; }));
    user.Char(WXK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return cancels == 1; }));
    EXPECT_FALSE(combo->IsPopupShown());
}

TEST_P(ColourComboInADialog, IsAskedByItsValidatorOnce)
{
    struct Calls
    {
        int validated = 0, to = 0, from = 0;
    } calls;
    class Counting : public wxValidator
    {
    public:
        explicit Counting(Calls& counted) : m_calls(counted) {}
        wxObject* Clone() const override { return new Counting(m_calls); }
        bool Validate(wxWindow*) override { return ++m_calls.validated > 0; }
        bool TransferToWindow() override
        {
            static_cast<wxComboCtrl*>(GetWindow())->SetValue("Lime");
            return ++m_calls.to > 0;
        }
        bool TransferFromWindow() override { return ++m_calls.from > 0; }

    private:
        Calls& m_calls;
    };
    combo->SetValidator(Counting(calls));
    EXPECT_TRUE(dialog->TransferDataToWindow());
    EXPECT_EQ(combo->GetValue(), "Lime");
    EXPECT_TRUE(dialog->Validate());
    EXPECT_TRUE(dialog->TransferDataFromWindow());
    EXPECT_EQ(calls.to, 1);
    EXPECT_EQ(calls.validated, 1);
    EXPECT_EQ(calls.from, 1);
}

}  // namespace
