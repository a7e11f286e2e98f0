// A value that the host sets while the popup is open.

#include <string>

#include <gtest/gtest.h>

#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <tests/colour/combo/combo_on_screen.h>

namespace {

class ColourComboValue : public testing::TestWithParam<long>
{
protected:
    void Open()
    {
        on.combo->EnablePopupAnimation(false);
        ASSERT_TRUE(ShowAndSettle(on.frame));
        on.combo->SetFocus();
        on.combo->ChangeValue("Lime");
        ASSERT_TRUE(Opens(*on.combo));
        PumpPending();
    }

    void ClickOutside()
    {
        PointTo(on.panel->ClientToScreen(wxPoint(450, 350)));
        user.MouseClick();
        EXPECT_TRUE(PumpUntil([&] { return on.combo->GetPopupWindowState() == wxComboCtrl::Hidden; }));
    }

    ComboOnScreen<> on{GetParam(), [](OpenPopup& popup) { popup.SetInitialColour(*wxBLUE); }};
    wxUIActionSimulator user;
};

INSTANTIATE_TEST_SUITE_P(, ColourComboValue, testing::Values(wxCB_READONLY, 0), NameOfStyle);

class TypedColourComboValue : public ColourComboValue
{
};

INSTANTIATE_TEST_SUITE_P(, TypedColourComboValue, testing::Values(0), [](const auto&) { return "WithText"; });

TEST_P(ColourComboValue, StaysWhenItIsSetWhileThePopupIsOpen)
{
    for (const char* const value : {"Red", "Teal", "no colour's name", ""}) {
        for (const int end : {0, 1, 2}) {
            Open();
            on.combo->SetValue(value);
            on.popup->ChangeSelection(18);
            if (end == 0)
                ClickOutside();
            else if (end == 1)
                on.popup->EndSelection(false);
            else
                on.combo->Dismiss();
            EXPECT_EQ(on.combo->GetValue(), value) << end;
            EXPECT_EQ(on.popup->GetInitialColour(), *wxBLUE);
        }
    }
}

TEST_P(ColourComboValue, IsThatOfTheChosenColourInTheEnd)
{
    Open();
    on.combo->SetValue("Teal");
    on.popup->ChangeSelection(16);
    on.popup->EndSelection(true);
    EXPECT_EQ(on.combo->GetValue(), "Red");
}

TEST_P(TypedColourComboValue, StaysWhenItIsWhatWasSetBeforeTheUserTyped)
{
    Open();
    on.combo->Dismiss();
    on.combo->GetTextCtrl()->ChangeValue("Teal");
    ASSERT_TRUE(Opens(*on.combo));
    on.combo->SetValue("Lime");
    ClickOutside();
    EXPECT_EQ(on.combo->GetValue(), "Lime");
}

}  // namespace
