// Clicks during the animation. The popup is not shown yet, so the toolkit does not grab the pointer for it.

#include <string>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/textctrl.h>

#include <tests/colour/combo/opening_combo.h>

namespace {

class ColourComboOpening : public testing::TestWithParam<long>, protected OpeningCombo
{
protected:
    ColourComboOpening() : OpeningCombo(GetParam()) {}

    void SetUp() override
    {
        second = new OpenCombo;
        second->Create(on.panel, wxID_ANY, "", wxPoint(250, 60), wxSize(150, -1), GetParam());
        second->SetPopupControl(new OpenPopup);
        second->m_animDuration = 0;
        button = new wxButton(on.panel, wxID_ANY, "button", wxPoint(250, 200));
        Open();
    }

    OpenCombo* second = nullptr;
    wxButton* button = nullptr;
};

INSTANTIATE_TEST_SUITE_P(, ColourComboOpening, testing::Values(wxCB_READONLY, 0), NameOfStyle);

class ReadOnlyComboOpening : public ColourComboOpening
{
};

class ComboWithTextOpening : public ColourComboOpening
{
};

INSTANTIATE_TEST_SUITE_P(, ReadOnlyComboOpening, testing::Values(wxCB_READONLY), [](const auto&) { return "Is"; });
INSTANTIATE_TEST_SUITE_P(, ComboWithTextOpening, testing::Values(0), [](const auto&) { return "Is"; });

// The first click on another combo only dismisses the popup that is opening. The next click opens the other combo.
TEST_P(ColourComboOpening, IsDismissedByAClickOnAnotherComboWhichStaysClosed)
{
    Click(ButtonOf(*second));
    ExpectShownAndDismissed();
    PumpPending();
    EXPECT_FALSE(second->IsPopupShown());
    Click(ButtonOf(*second));
    EXPECT_TRUE(PumpUntil([&] { return second->IsPopupShown(); })) << "the next click does not open the other combo";
    EXPECT_FALSE(combo.IsPopupShown());
    second->Dismiss();
}

TEST_P(ColourComboOpening, IsDismissedByAClickOutside)
{
    Click(on.panel->ClientToScreen(wxPoint(450, 350)));
    ExpectShownAndDismissed();
    EXPECT_TRUE(PumpUntil([&] { return ContainsFocus(combo); }));
}

TEST_P(ColourComboOpening, IsDismissedByAClickOnAButtonWhichIsNotPressed)
{
    int presses = 0;
    button->Bind(wxEVT_BUTTON, [&](wxCommandEvent&) { ++presses; });
    Click(button->ClientToScreen(wxPoint(10, 10)));
    ExpectShownAndDismissed();
    PumpPending();
    EXPECT_EQ(presses, 0);
    Click(button->ClientToScreen(wxPoint(12, 12)));
    EXPECT_TRUE(PumpUntil([&] { return presses == 1; })) << "the next click does not press the button";
}

// In a combo without a text field, the face is the control itself. A click on the face has no effect while the popup
// opens.
TEST_P(ReadOnlyComboOpening, GoesOnAfterAClickOnItsFace)
{
    int clicks = 0;
    combo.Bind(wxEVT_LEFT_UP, [&](wxMouseEvent& event) {
        ++clicks;
        event.Skip();
    });
    Click(combo.ClientToScreen(wxPoint(20, combo.GetClientSize().y / 2)));
    EXPECT_TRUE(PumpUntil([&] { return clicks == 1; }));
    PumpPending();
    EXPECT_TRUE(combo.m_animTimer.IsRunning());
    EXPECT_NE(combo.GetPopupWindowState(), int(wxComboCtrl::Hidden));
    EXPECT_EQ(Take(), Notes());
}

TEST_P(ComboWithTextOpening, IsDismissedByAClickInItsTextFieldWhichKeepsTheFocus)
{
    Click(combo.GetTextCtrl()->ClientToScreen(wxPoint(20, 8)));
    ExpectShownAndDismissed();
    EXPECT_TRUE(PumpUntil([&] { return combo.GetTextCtrl()->HasFocus(); }));
    user.Char('a');
    EXPECT_TRUE(PumpUntil([&] { return combo.GetValue() == "a"; }));
}

TEST_P(ColourComboOpening, IsDismissedByAClickOfAnotherMouseButton)
{
    int menus = 0;
    on.panel->Bind(wxEVT_RIGHT_DOWN, [&](wxMouseEvent&) { ++menus; });
    const wxPoint place = on.panel->ClientToScreen(wxPoint(450, 350));
    Click(place, wxMOUSE_BTN_RIGHT);
    ExpectShownAndDismissed();
    PumpPending();
    EXPECT_EQ(menus, 0);
    Click(place - wxPoint(100, 50), wxMOUSE_BTN_RIGHT);
    EXPECT_TRUE(PumpUntil([&] { return menus == 1; })) << "the panel gets no clicks";
}

TEST_P(ColourComboOpening, IsShownWhenItsButtonIsClickedAgainAndHasOneEnd)
{
    Click(ButtonOf(combo));
    EXPECT_TRUE(PumpUntil([&] { return combo.IsPopupShown(); }));
    EXPECT_EQ(Take(), Notes());
    PumpPending();
    user.Char(WXK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return !combo.IsPopupShown(); }));
    EXPECT_EQ(Take(), Notes{"cancel"});
}

TEST_P(ColourComboOpening, HasOneBeginningAndOneEndHoweverOftenItIsClosedAndOpened)
{
    for (int i = 0; i < 3; ++i) {
        combo.Dismiss();
        combo.Popup();
        combo.HidePopup(true);
        combo.ShowPopup();
    }
    EXPECT_TRUE(PumpUntil([&] { return combo.IsPopupShown(); }));
    EXPECT_EQ(Take(), Notes());
    EXPECT_EQ(combo.shown.size(), 1u);
    combo.Dismiss();
    EXPECT_EQ(Take(), (Notes{"cancel", "closeup"}));
    combo.m_animDuration = 0;
    combo.Popup();
    EXPECT_EQ(Take(), (Notes{"dropdown", "popup"}));
    on.popup->EndSelection(true);
    EXPECT_EQ(Take(), Notes{"end"});
}

TEST_P(ColourComboOpening, HasItsEndWhenItGoesMeanwhile)
{
    combo.Dismiss();
    combo.Destroy();
    EXPECT_TRUE(PumpUntil([&] { return !notes.empty(); }));
    EXPECT_EQ(notes.front(), "cancel");
    EXPECT_TRUE(PumpUntil([&] { return !popup; }));
}

}  // namespace
