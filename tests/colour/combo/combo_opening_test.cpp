// Clicks while the popup opens: during the animation no popup exists yet that could grab the pointer.

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/clrpicker.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/utils.h>
#include <wx/weakref.h>

#include <tests/colour/colour_listener.h>
#include <tests/colour/combo/combo_on_screen.h>

namespace {

constexpr int kLong = 2000000;

using Notes = std::vector<std::string>;

class ColourComboOpening : public testing::TestWithParam<long>
{
protected:
    void SetUp() override
    {
        second = new OpenCombo;
        second->Create(on.panel, wxID_ANY, "", wxPoint(250, 60), wxSize(150, -1), GetParam());
        second->SetPopupControl(new OpenPopup);
        second->m_animDuration = 0;
        button = new wxButton(on.panel, wxID_ANY, "button", wxPoint(250, 200));
        on.popup->SetColorListener(&listener);
        ASSERT_TRUE(ShowAndSettle(on.frame));
        listener.during = [this](const std::string& call) { notes.push_back(call); };
        combo.Bind(wxEVT_COMBOBOX_DROPDOWN, [this](wxCommandEvent&) { notes.push_back("dropdown"); });
        combo.Bind(wxEVT_COMBOBOX_CLOSEUP, [this](wxCommandEvent&) { notes.push_back("closeup"); });
        combo.m_animDuration = kLong;
        combo.SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return HasFocus(); }));
        user.Char(WXK_F4);
        ASSERT_TRUE(PumpUntil([&] { return combo.m_animTimer.IsRunning(); }));
        EXPECT_EQ(Take(), (Notes{"dropdown", "popup"}));
    }

    void TearDown() override
    {
        // The listener is destroyed before the popup.
        if (popup)
            popup->SetColorListener(nullptr);
    }

    bool HasFocus() const
    {
        const wxWindow* const focus = wxWindow::FindFocus();
        return focus && (focus == &combo || focus->GetParent() == &combo);
    }

    void Click(const wxPoint& place, int mouseButton = wxMOUSE_BTN_LEFT)
    {
        user.MouseMove(place);
        PumpUntil([&] { return wxGetMousePosition() == place; });
        user.MouseClick(mouseButton);
    }

    static wxPoint ButtonOf(const wxColourCombo& combo)
    {
        return combo.ClientToScreen(wxPoint(combo.GetClientSize().x - 10, combo.GetClientSize().y / 2));
    }

    void ExpectShownAndDismissed()
    {
        EXPECT_TRUE(PumpUntil([&] { return notes.size() >= 2; }));
        EXPECT_EQ(Take(), (Notes{"cancel", "closeup"}));
        EXPECT_EQ(combo.shown.size(), 1u);
        EXPECT_FALSE(combo.IsPopupShown());
        EXPECT_FALSE(combo.m_animTimer.IsRunning());
        EXPECT_FALSE(combo.GetPopupWindow()->IsShown());
    }

    Notes Take() { return std::exchange(notes, {}); }

    Notes notes;
    ColourListener listener;
    ComboOnScreen<> on{GetParam()};
    OpenCombo& combo = *on.combo;
    const wxWeakRef<OpenPopup> popup{on.popup};
    OpenCombo* second = nullptr;
    wxButton* button = nullptr;
    wxUIActionSimulator user;
};

INSTANTIATE_TEST_SUITE_P(, ColourComboOpening, testing::Values(wxCB_READONLY, 0), [](const auto& info) {
    return std::string(info.param == wxCB_READONLY ? "ReadOnly" : "WithText");
});

TEST_P(ColourComboOpening, IsDismissedByAClickOnAnotherOneThatOpens)
{
    Click(ButtonOf(*second));
    ExpectShownAndDismissed();
    EXPECT_TRUE(PumpUntil([&] { return second->IsPopupShown(); }));
    EXPECT_FALSE(combo.IsPopupShown());
    second->Dismiss();
}

TEST_P(ColourComboOpening, IsDismissedByAClickOutside)
{
    Click(on.panel->ClientToScreen(wxPoint(450, 350)));
    ExpectShownAndDismissed();
    EXPECT_TRUE(PumpUntil([&] { return HasFocus(); }));
}

// The first click only dismisses the popup, and does not press the button.
TEST_P(ColourComboOpening, IsDismissedByAClickOnAButton)
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

TEST_P(ColourComboOpening, IsDismissedByAClickInItsTextFieldWhichKeepsTheFocus)
{
    if (GetParam() == wxCB_READONLY) {
        // In a read-only combo, the face is the control itself. A click on the face has no effect while the popup
        // opens.
        Click(combo.ClientToScreen(wxPoint(20, combo.GetClientSize().y / 2)));
        PumpPending();
        EXPECT_TRUE(combo.m_animTimer.IsRunning());
        EXPECT_EQ(Take(), Notes());
        return;
    }
    Click(combo.GetTextCtrl()->ClientToScreen(wxPoint(20, 8)));
    ExpectShownAndDismissed();
    EXPECT_TRUE(PumpUntil([&] { return combo.GetTextCtrl()->HasFocus(); }));
    user.Char('a');
    EXPECT_TRUE(PumpUntil([&] { return combo.GetValue() == "a"; }));
}

TEST_P(ColourComboOpening, TakesTheClicksOfOtherMouseButtons)
{
    int menus = 0;
    on.panel->Bind(wxEVT_RIGHT_DOWN, [&](wxMouseEvent&) { ++menus; });
    const wxPoint place = on.panel->ClientToScreen(wxPoint(450, 350));
    Click(place, wxMOUSE_BTN_RIGHT);
    PumpPending();
    EXPECT_TRUE(combo.m_animTimer.IsRunning());
    Click(place);
    ExpectShownAndDismissed();
    EXPECT_EQ(menus, 0);
    Click(place + wxPoint(3, 3), wxMOUSE_BTN_RIGHT);
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

// --- A value that the host sets while the popup is open --------------------------------------------------------------

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
        user.MouseMove(on.panel->ClientToScreen(wxPoint(450, 350)));
        user.MouseClick();
        EXPECT_TRUE(PumpUntil([&] { return on.combo->GetPopupWindowState() == wxComboCtrl::Hidden; }));
    }

    ComboOnScreen<> on{GetParam(), [](OpenPopup& popup) { popup.SetInitialColour(*wxBLUE); }};
    wxUIActionSimulator user;
};

INSTANTIATE_TEST_SUITE_P(, ColourComboValue, testing::Values(wxCB_READONLY, 0), [](const auto& info) {
    return std::string(info.param == wxCB_READONLY ? "ReadOnly" : "WithText");
});

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

TEST_P(ColourComboValue, IsThatOfTheChosenColourAllTheSame)
{
    Open();
    on.combo->SetValue("Teal");
    on.popup->ChangeSelection(16);
    on.popup->EndSelection(true);
    EXPECT_EQ(on.combo->GetValue(), "Red");
}

TEST_P(ColourComboValue, StaysWhenItIsWhatWasSetBeforeTheUserTyped)
{
    if (GetParam() == wxCB_READONLY)
        return;
    Open();
    on.combo->Dismiss();
    on.combo->GetTextCtrl()->ChangeValue("Teal");
    ASSERT_TRUE(Opens(*on.combo));
    on.combo->SetValue("Lime");
    ClickOutside();
    EXPECT_EQ(on.combo->GetValue(), "Lime");
}

// --- Up and Down while the popup is closed ---------------------------------------------------------------------------

class ClosedColourCombo : public testing::TestWithParam<long>
{
protected:
    void SetUp() override
    {
        before = new wxButton(on.panel, wxID_ANY, "before", wxPoint(20, 10));
        before->MoveBeforeInTabOrder(on.combo);
        after = new wxButton(on.panel, wxID_ANY, "after", wxPoint(20, 150));
        on.popup->SetColorListener(&listener);
        on.combo->Bind(wxEVT_COLOURPICKER_CHANGED, [this](wxColourPickerEvent& event) {
            events.push_back(event.GetColour().GetAsString(wxC2S_HTML_SYNTAX).ToStdString());
        });
        ASSERT_TRUE(ShowAndSettle(on.frame));
        on.combo->SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return HasFocus(); }));
    }

    void TearDown() override
    {
        // The listener is destroyed before the popup.
        if (popup)
            popup->SetColorListener(nullptr);
    }

    bool HasFocus() const
    {
        const wxWindow* const focus = wxWindow::FindFocus();
        return focus && (focus == on.combo || focus->GetParent() == on.combo);
    }

    // Waits until the key is handled, so that the next key follows it.
    void Press(int key)
    {
        int seen = 0;
        const auto count = [&](wxKeyEvent& event) {
            ++seen;
            event.Skip();
        };
        wxWindow* const focus = wxWindow::FindFocus();
        ASSERT_TRUE(focus);
        focus->Bind(wxEVT_KEY_UP, count);
        user.Char(key);
        EXPECT_TRUE(PumpUntil([&] { return seen > 0 || wxWindow::FindFocus() != focus; }));
        PumpPending();
        focus->Unbind(wxEVT_KEY_UP, count);
    }

    Notes Take() { return std::exchange(events, {}); }

    ColourListener listener;
    Notes events;
    ComboOnScreen<> on{GetParam(), [](OpenPopup& popup) {
                           popup.SetInitialColour(*wxBLUE);
                           popup.SetDefaultColour(*wxRED);
                       }};
    const wxWeakRef<OpenPopup> popup{on.popup};
    wxButton* before = nullptr;
    wxButton* after = nullptr;
    wxUIActionSimulator user;
};

class ClosedReadOnlyCombo : public ClosedColourCombo
{
};

class ClosedComboWithText : public ClosedColourCombo
{
};

INSTANTIATE_TEST_SUITE_P(, ClosedReadOnlyCombo, testing::Values(wxCB_READONLY), [](const auto&) { return "Is"; });
INSTANTIATE_TEST_SUITE_P(, ClosedComboWithText, testing::Values(0), [](const auto&) { return "Is"; });

TEST_P(ClosedReadOnlyCombo, ChangesItsColourByUpAndDown)
{
    on.popup->SetColour(wxColour(0, 0, 0));
    EXPECT_EQ(on.popup->m_nChosenColourSel, 0);
    Press(WXK_DOWN);
    EXPECT_EQ(Take(), Notes{"#A52A00"});
    EXPECT_EQ(listener.Take(), ColourCalls{"end #A52A00"});
    EXPECT_EQ(on.combo->GetColour(), wxColour(165, 42, 0));
    EXPECT_EQ(on.combo->GetValue(), "Brown");
    EXPECT_EQ(on.popup->m_nChosenColourSel, 1);
    Press(WXK_UP);
    Press(WXK_UP);
    EXPECT_EQ(Take(), (Notes{"#000000", "#FF0000"}));
    EXPECT_EQ(on.combo->GetValue(), "Automatic");
    Press(WXK_UP);
    EXPECT_EQ(Take(), Notes()) << "no cell is above Automatic";
    Press(WXK_DOWN);
    EXPECT_EQ(Take(), Notes{"#000000"});
    EXPECT_TRUE(HasFocus());
    EXPECT_FALSE(on.combo->IsPopupShown());
}

TEST_P(ClosedReadOnlyCombo, StopsAtTheEnds)
{
    on.popup->SetAutomaticText("");
    on.popup->SetColour(on.popup->GetColour(0));
    Press(WXK_UP);
    EXPECT_EQ(Take(), Notes());
    on.popup->SetColour(on.popup->GetColour(39));
    Press(WXK_DOWN);
    EXPECT_EQ(Take(), Notes());
    EXPECT_TRUE(HasFocus());
    Press(WXK_UP);
    EXPECT_EQ(Take().size(), 1u);
    EXPECT_EQ(on.popup->m_nChosenColourSel, 38);
}

TEST_P(ClosedReadOnlyCombo, GoesFromAColourOfTheDialogBackToTheGrid)
{
    on.popup->SetColour(wxColour(1, 2, 3));
    EXPECT_EQ(on.popup->m_nChosenColourSel, CELL_MORE_COLOURS);
    Press(WXK_DOWN);
    EXPECT_EQ(Take(), Notes());
    EXPECT_EQ(on.combo->GetColour(), wxColour(1, 2, 3));
    Press(WXK_UP);
    EXPECT_EQ(on.popup->m_nChosenColourSel, 39);
    EXPECT_EQ(Take().size(), 1u);

    on.popup->SetMoreColoursText("");
    on.popup->SetColour(wxColour(1, 2, 3));
    Press(WXK_DOWN);
    EXPECT_EQ(on.popup->m_nChosenColourSel, CELL_AUTOMATIC);
}

TEST_P(ClosedReadOnlyCombo, GoesOnFromTheColourInEffectAfterACancel)
{
    on.combo->EnablePopupAnimation(false);
    on.popup->SetColour(on.popup->GetColour(16 + 2));
    Press(WXK_F4);
    ASSERT_TRUE(PumpUntil([&] { return on.combo->IsPopupShown(); }));
    on.popup->EndSelection(false);
    ASSERT_TRUE(PumpUntil([&] { return HasFocus(); }));
    PumpPending();
    Press(WXK_DOWN);
    EXPECT_EQ(on.popup->m_nChosenColourSel, 19);
}

// If the combo does not have the focus, the wheel scrolls the page.
TEST_P(ClosedReadOnlyCombo, ChangesItsColourByTheWheelWithTheFocusAlone)
{
    on.popup->SetColour(wxColour(0, 0, 0));
    const auto turn = [&] {
        wxMouseEvent wheel(wxEVT_MOUSEWHEEL);
        wheel.m_wheelRotation = -120;
        wheel.m_wheelDelta = 120;
        wheel.SetEventObject(on.combo);
        return on.combo->ProcessWindowEvent(wheel);
    };
    EXPECT_TRUE(turn());
    EXPECT_EQ(Take(), Notes{"#A52A00"});
    after->SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return after->HasFocus(); }));
    EXPECT_FALSE(turn());
    EXPECT_EQ(Take(), Notes());
}

TEST_P(ClosedReadOnlyCombo, MayGoWhenItsColourIsChanged)
{
    on.combo->Bind(wxEVT_COLOURPICKER_CHANGED, [&](wxColourPickerEvent&) { on.combo->Destroy(); });
    user.Char(WXK_DOWN);
    EXPECT_TRUE(PumpUntil([&] { return !popup; }));
}

TEST_P(ClosedComboWithText, KeepsFocusTextAndColourByUpAndDown)
{
    on.combo->ChangeValue("mine");
    for (const int key : {int(WXK_UP), int(WXK_DOWN)}) {
        Press(key);
        EXPECT_TRUE(on.combo->GetTextCtrl()->HasFocus());
        EXPECT_EQ(on.combo->GetValue(), "mine");
        EXPECT_EQ(on.combo->GetColour(), *wxBLUE);
        EXPECT_EQ(Take(), Notes());
    }
}

}  // namespace
