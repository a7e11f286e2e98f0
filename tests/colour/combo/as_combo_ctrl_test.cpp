// The colour combo behaves as the toolkit's combo control does, with or without a text field.

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/weakref.h>

#include <tests/colour/colour_listener.h>
#include <tests/colour/combo/combo_on_screen.h>

namespace {

using Notes = std::vector<std::string>;

// Records the events of a combo and the calls of the popup's listener in one list. Leaves out the call "change".
class ComboLog
{
public:
    void Watch(wxComboCtrl& combo)
    {
        Note(combo, wxEVT_COMBOBOX_DROPDOWN, "dropdown");
        Note(combo, wxEVT_COMBOBOX_CLOSEUP, "closeup");
        Note(combo, wxEVT_TEXT_ENTER, "enter");
        combo.Bind(wxEVT_TEXT, [&](wxCommandEvent& event) {
            notes.push_back("text " + combo.GetValue().ToStdString());
            EXPECT_EQ(event.GetString(), combo.GetValue());
            EXPECT_EQ(event.GetEventObject(), &combo);
            event.Skip();
        });
        listener.during = [this](const std::string& call) {
            if (call != "change")
                notes.push_back(call);
        };
    }

    Notes Take() { return std::exchange(notes, {}); }

    Notes notes;
    ColourListener listener;

private:
    void Note(wxComboCtrl& combo, const wxEventTypeTag<wxCommandEvent>& type, const std::string& note)
    {
        combo.Bind(type, [&, note](wxCommandEvent& event) {
            notes.push_back(note);
            EXPECT_EQ(event.GetEventObject(), &combo);
            EXPECT_EQ(event.GetId(), combo.GetId());
            event.Skip();
        });
    }
};

class AsComboCtrl : public testing::TestWithParam<long>
{
protected:
    void SetUp() override
    {
        on.popup->SetInitialColour(*wxBLUE);
        on.popup->SetColorListener(&log.listener);
        after = new wxButton(on.panel, wxID_ANY, "after", wxPoint(20, 200));
        ASSERT_TRUE(ShowAndSettle(on.frame));
        on.combo->SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return ContainsFocus(combo); }));
        log.Watch(combo);
    }

    void Press(int key, int modifiers = 0) { user.Char(key, modifiers); }

    void ClickButton()
    {
        PointTo(ButtonOf(combo));
        user.MouseClick();
    }

    void ClickOutside()
    {
        PointTo(on.panel->ClientToScreen(wxPoint(400, 300)));
        user.MouseClick();
    }

    void Open()
    {
        Press(WXK_F4);
        ASSERT_TRUE(PumpUntil([&] { return combo.IsPopupShown(); }));
        PumpPending();
    }

    void ExpectClosed()
    {
        EXPECT_TRUE(PumpUntil([&] { return combo.GetPopupWindowState() == wxComboCtrl::Hidden; }));
        EXPECT_FALSE(PumpUntil([&] { return combo.GetPopupWindowState() != wxComboCtrl::Hidden; }, 50));
    }

    ComboLog log;
    ComboOnScreen<> on{GetParam()};
    OpenCombo& combo = *on.combo;
    wxButton* after = nullptr;
    wxUIActionSimulator user;
};

INSTANTIATE_TEST_SUITE_P(, AsComboCtrl, testing::Values(wxCB_READONLY, 0), NameOfStyle);

// --- Events ----------------------------------------------------------------------------------------------------------

TEST_P(AsComboCtrl, TellsOnceThatItOpensAndThatItIsDismissed)
{
    Open();
    EXPECT_EQ(log.Take(), (Notes{"dropdown", "popup"}));
    ClickOutside();
    ExpectClosed();
    EXPECT_EQ(log.Take(), (Notes{"cancel", "closeup"}));

    combo.EnablePopupAnimation(false);
    combo.Popup();
    EXPECT_TRUE(combo.IsPopupShown());
    EXPECT_EQ(log.Take(), (Notes{"dropdown", "popup"}));
    Open();  // Presses F4 while the popup is already open.
    EXPECT_EQ(log.Take(), Notes());
    ClickButton();
    ExpectClosed();
    EXPECT_EQ(log.Take().back(), "closeup");
}

// Enter, Space and Escape close the popup from inside: the listener is called, but the combo sends no closeup event. A
// click outside the popup makes the combo send one.
TEST_P(AsComboCtrl, TellsTheListenerAloneThatThePopupClosedItself)
{
    for (const int key : {int(WXK_RETURN), int(WXK_SPACE), int(WXK_ESCAPE)}) {
        Open();
        Press(key);
        ExpectClosed();
        const Notes notes = log.Take();
        ASSERT_GE(notes.size(), 3u);
        EXPECT_EQ(notes[2], key == WXK_ESCAPE ? "cancel" : "end");
        for (const std::string& note : notes)
            EXPECT_NE(note, "closeup");
    }
}

TEST_P(AsComboCtrl, SendsTheTextEventsOfItsTextField)
{
    const bool hasField = GetParam() != wxCB_READONLY;
    combo.SetValue("Red");
    EXPECT_EQ(log.Take(), hasField ? Notes{"text Red"} : Notes{});
    combo.ChangeValue("Green");
    EXPECT_EQ(log.Take(), Notes());
    EXPECT_EQ(combo.GetValue(), "Green");
    combo.SetText("mine");
    EXPECT_EQ(log.Take(), Notes());
    EXPECT_EQ(combo.GetValue(), "mine");
    EXPECT_EQ(combo.GetTextCtrl() != nullptr, hasField);
}

TEST_P(AsComboCtrl, TellsOfTheNameOfTheChosenColourOnce)
{
    const bool hasField = GetParam() != wxCB_READONLY;
    Open();
    on.popup->ChangeSelection(18);
    on.popup->ChangeSelection(16);
    Press(WXK_RETURN);
    ExpectClosed();
    EXPECT_EQ(combo.GetValue(), "Red");
    EXPECT_EQ(log.Take(),
              hasField ? (Notes{"dropdown", "popup", "end", "text Red"}) : (Notes{"dropdown", "popup", "end"}));
}

TEST_P(AsComboCtrl, DoesNotTellOfTheNameOfAColourThatIsNotChosen)
{
    const bool hasField = GetParam() != wxCB_READONLY;
    combo.ChangeValue("Lime");
    Open();
    on.popup->ChangeSelection(16);
    EXPECT_EQ(on.popup->GetStringValue(), "Red");
    Press(WXK_ESCAPE);
    ExpectClosed();
    // Escape restores the value that the combo had when the popup opened. A combo with a text field then sends a text
    // event.
    EXPECT_EQ(log.Take(),
              hasField ? (Notes{"dropdown", "popup", "cancel", "text Lime"}) : (Notes{"dropdown", "popup", "cancel"}));
    EXPECT_EQ(combo.GetValue(), "Lime");
    EXPECT_EQ(on.popup->GetStringValue(), "Red");

    Open();
    on.popup->ChangeSelection(16);
    log.Take();
    ClickOutside();
    ExpectClosed();
    EXPECT_EQ(log.Take(), (Notes{"cancel", "closeup"}));
    EXPECT_EQ(combo.GetValue(), "Lime");
}

TEST(ColourComboWithText, TellsOfEachKeyOnce)
{
    ComboLog log;
    int characters = 0;
    int keys = 0;
    const ComboOnScreen<> on(wxTE_PROCESS_ENTER);
    ASSERT_TRUE(ShowAndSettle(on.frame));
    on.combo->SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return on.combo->GetTextCtrl()->HasFocus(); }));
    log.Watch(*on.combo);
    const auto count = [](int& number) {
        return [&number](wxKeyEvent& event) {
            ++number;
            event.Skip();
        };
    };
    on.combo->GetTextCtrl()->Bind(wxEVT_CHAR, count(characters));
    on.combo->GetTextCtrl()->Bind(wxEVT_KEY_DOWN, count(keys));
    wxUIActionSimulator user;
    user.Char('a');
    EXPECT_TRUE(PumpUntil([&] { return on.combo->GetValue() == "a"; }));
    user.Char('b');
    EXPECT_TRUE(PumpUntil([&] { return on.combo->GetValue() == "ab"; }));
    user.Char(WXK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return log.notes.size() >= 3; }));
    EXPECT_EQ(log.Take(), (Notes{"text a", "text ab", "enter"}));
    EXPECT_EQ(characters, 3);
    EXPECT_EQ(keys, 3);
    EXPECT_FALSE(on.combo->IsPopupShown());
}

TEST(ColourComboWithText, OpensWithTheColourOfItsTextHot)
{
    const ComboOnScreen<> on(0);
    ASSERT_TRUE(ShowAndSettle(on.frame));
    on.combo->SetValue("Red");
    ASSERT_TRUE(Opens(*on.combo));
    EXPECT_EQ(on.popup->m_nCurrentSel, 16);
    EXPECT_EQ(on.popup->m_crColour, *wxRED);
    on.popup->EndSelection(true);
    EXPECT_EQ(on.popup->GetInitialColour(), *wxRED);
}

// --- Disabled, hidden, moved, destroyed ------------------------------------------------------------------------------

TEST_P(AsComboCtrl, DoesNotOpenByTheUserWhileDisabled)
{
    combo.Disable();
    ClickButton();
    EXPECT_FALSE(PumpUntil([&] { return combo.GetPopupWindowState() != wxComboCtrl::Hidden; }, 300));
    EXPECT_EQ(log.Take(), Notes());
    combo.Enable();
    combo.SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return ContainsFocus(combo); }));
    Open();
    EXPECT_EQ(log.Take(), (Notes{"dropdown", "popup"}));
    Press(WXK_ESCAPE);
    ExpectClosed();
}

TEST_P(AsComboCtrl, IsPassedOverByTabWhileDisabledOrHidden)
{
    auto* const before = new wxButton(on.panel, wxID_ANY, "before", wxPoint(20, 10));
    before->MoveBeforeInTabOrder(&combo);
    before->SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return before->HasFocus(); }));
    combo.Hide();
    Press(WXK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return after->HasFocus(); }));
    combo.Show();
    Press(WXK_TAB, wxMOD_SHIFT);
    EXPECT_TRUE(PumpUntil([&] { return ContainsFocus(combo); }));

    combo.Disable();
    after->SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return after->HasFocus(); }));
    Press(WXK_TAB, wxMOD_SHIFT);
    EXPECT_TRUE(PumpUntil([&] { return before->HasFocus(); }));
    combo.Enable();
    Press(WXK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return ContainsFocus(combo); }));
}

TEST_P(AsComboCtrl, OpensWhereItHasBeenMovedTo)
{
    combo.Move(100, 100);
    PumpPending();
    Open();
    const wxRect control = combo.GetScreenRect();
    const wxRect popup = on.popup->GetScreenRect();
    EXPECT_GE(popup.y, control.GetBottom());
    EXPECT_LE(popup.y, control.GetBottom() + 3);
    EXPECT_EQ(popup.x, control.x);
    Press(WXK_ESCAPE);
    ExpectClosed();
}

TEST_P(AsComboCtrl, WorksInAnotherWindow)
{
    combo.SetValue("Lime");
    auto* const other = new wxFrame(nullptr, wxID_ANY, "other", wxPoint(720, 150), wxSize(300, 300));
    auto* const panel = new wxPanel(other);
    int before = 0;
    int inOther = 0;
    on.panel->Bind(wxEVT_COMBOBOX_DROPDOWN, [&](wxCommandEvent&) { ++before; });
    panel->Bind(wxEVT_COMBOBOX_DROPDOWN, [&](wxCommandEvent&) { ++inOther; });
    EXPECT_TRUE(combo.Reparent(panel));
    ASSERT_TRUE(ShowAndSettle(other));
    EXPECT_EQ(combo.GetValue(), "Lime");
    combo.SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return ContainsFocus(combo); }));
    Open();
    EXPECT_GE(on.popup->GetScreenRect().x, 700);
    on.popup->ChangeSelection(16);
    Press(WXK_RETURN);
    ExpectClosed();
    EXPECT_EQ(combo.GetValue(), "Red");
    EXPECT_EQ(before, 0);
    EXPECT_EQ(inOther, 1);
    other->Destroy();
    PumpPending();
}

TEST_P(AsComboCtrl, IsDismissedWhenAnotherOneOpens)
{
    auto* const second = new OpenCombo;
    second->Create(on.panel, wxID_ANY, "", wxPoint(250, 60), wxSize(150, -1), GetParam());
    second->SetPopupControl(new OpenPopup);
    Open();
    log.Take();
    const wxSize size = second->GetClientSize();
    PointTo(second->ClientToScreen(wxPoint(size.x - 10, size.y / 2)));
    user.MouseClick();
    ExpectClosed();
    EXPECT_EQ(log.Take(), (Notes{"cancel", "closeup"}));
    EXPECT_TRUE(Opens(*second));
    EXPECT_FALSE(combo.IsPopupShown());
    second->Dismiss();
}

TEST_P(AsComboCtrl, MayBeDestroyedByWhoHearsOfItsEvents)
{
    for (const wxEventTypeTag<wxCommandEvent>& type : {wxEVT_COMBOBOX_DROPDOWN, wxEVT_COMBOBOX_CLOSEUP, wxEVT_TEXT}) {
        ComboOnScreen<> other(GetParam());
        const wxWeakRef<OpenCombo> gone(other.combo);
        other.combo->EnablePopupAnimation(false);
        ASSERT_TRUE(ShowAndSettle(other.frame));
        other.combo->Bind(type, [&](wxCommandEvent&) {
            if (gone)
                gone->Destroy();
        });
        other.combo->Popup();
        if (type != wxEVT_COMBOBOX_DROPDOWN) {
            other.popup->ChangeSelection(16);
            other.combo->Dismiss();
        }
        const bool heard = type != wxEVT_TEXT || GetParam() != wxCB_READONLY;
        EXPECT_EQ(PumpUntil([&] { return !gone; }, heard ? 3000 : 50), heard);
    }
}

}  // namespace
