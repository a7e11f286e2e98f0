// Up, Down and the wheel on a combo whose popup is closed.

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/clrpicker.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/weakref.h>

#include <tests/colour/colour_listener.h>
#include <tests/colour/combo/combo_on_screen.h>

namespace {

using Events = std::vector<std::string>;

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
        ASSERT_TRUE(PumpUntil([&] { return ContainsFocus(*on.combo); }));
    }

    // Presses a key, and waits until the key has been released or the focus has moved.
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

    Events Take() { return std::exchange(events, {}); }

    ColourListener listener;
    Events events;
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
    EXPECT_EQ(Take(), Events{"#A52A00"});
    EXPECT_EQ(listener.Take(), ColourCalls{"end #A52A00"});
    EXPECT_EQ(on.combo->GetColour(), wxColour(165, 42, 0));
    EXPECT_EQ(on.combo->GetValue(), "Brown");
    EXPECT_EQ(on.popup->m_nChosenColourSel, 1);
    Press(WXK_UP);
    Press(WXK_UP);
    EXPECT_EQ(Take(), (Events{"#000000", "#FF0000"}));
    EXPECT_EQ(on.combo->GetValue(), "Automatic");
    Press(WXK_UP);
    EXPECT_EQ(Take(), Events()) << "no cell is above Automatic";
    Press(WXK_DOWN);
    EXPECT_EQ(Take(), Events{"#000000"});
    EXPECT_TRUE(ContainsFocus(*on.combo));
    EXPECT_FALSE(on.combo->IsPopupShown());
}

TEST_P(ClosedReadOnlyCombo, StopsAtTheEnds)
{
    on.popup->SetAutomaticText("");
    on.popup->SetColour(on.popup->GetColour(0));
    Press(WXK_UP);
    EXPECT_EQ(Take(), Events());
    on.popup->SetColour(on.popup->GetColour(39));
    Press(WXK_DOWN);
    EXPECT_EQ(Take(), Events());
    EXPECT_TRUE(ContainsFocus(*on.combo));
    Press(WXK_UP);
    EXPECT_EQ(Take().size(), 1u);
    EXPECT_EQ(on.popup->m_nChosenColourSel, 38);
}

TEST_P(ClosedReadOnlyCombo, GoesFromAColourOfTheDialogBackToTheGrid)
{
    on.popup->SetColour(wxColour(1, 2, 3));
    EXPECT_EQ(on.popup->m_nChosenColourSel, CELL_MORE_COLOURS);
    Press(WXK_DOWN);
    EXPECT_EQ(Take(), Events());
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
    ASSERT_TRUE(PumpUntil([&] { return ContainsFocus(*on.combo); }));
    PumpPending();
    Press(WXK_DOWN);
    EXPECT_EQ(on.popup->m_nChosenColourSel, 19);
}

// A combo that does not have the focus skips the wheel event, so that the window that contains the combo can scroll.
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
    EXPECT_EQ(Take(), Events{"#A52A00"});
    after->SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return after->HasFocus(); }));
    EXPECT_FALSE(turn());
    EXPECT_EQ(Take(), Events());
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
        EXPECT_EQ(Take(), Events());
    }
}

}  // namespace
