// The host may destroy, change or close the control and its popup at unusual moments.

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/weakref.h>

#include <tests/colour/colour_listener.h>
#include <tests/colour/combo/combo_on_screen.h>

namespace {

void Press(wxWindow& window, int key)
{
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.m_keyCode = key;
    event.SetEventObject(&window);
    window.ProcessWindowEvent(event);
}

// A colour combo with a listener, in a panel of a frame. A test may destroy any of these windows.
struct Control
{
    explicit Control(bool animated = false)
        : frame(new wxFrame(nullptr, wxID_ANY, "combo", wxPoint(200, 150), wxSize(500, 400))),
          panel(new wxPanel(frame)), combo(new OpenCombo), popup(new OpenPopup)
    {
        combo->Create(panel, wxID_ANY, "", wxPoint(20, 60), wxSize(150, -1), wxCB_READONLY);
        popup->SetInitialColour(*wxBLUE);
        combo->SetPopupControl(popup);
        popup->SetColorListener(&listener);
        combo->EnablePopupAnimation(animated);
        EXPECT_TRUE(ShowAndSettle(frame));
    }

    void Open() { ASSERT_TRUE(Opens(*combo)); }

    // Opens the popup, makes the cell hot, and ends the selection.
    void Select(int index, bool ok)
    {
        Open();
        popup->ChangeSelection(index);
        popup->EndSelection(ok);
    }

    void OpenAndPress(int key)
    {
        Open();
        Press(*popup, key);
    }

    ColourListener listener;
    OwnedWindow<wxFrame> frame;
    wxWeakRef<wxPanel> panel;
    wxWeakRef<OpenCombo> combo;
    wxWeakRef<OpenPopup> popup;
};

// --- Within a call of the listener -----------------------------------------------------------------------------------

struct Removal
{
    const char* name;
    std::function<void(Control&)> remove;
    bool atOnce;
};

struct Moment
{
    const char* name;
    const char* call;
    std::function<void(Control&)> act;
    ColourCalls calls;  // the expected calls to the listener, including the "cancel" that the removal may cause
    bool inTheToolkit;  // whether the toolkit still uses the control when the listener has returned
};

const Removal kRemovals[] = {
    {"Destroyed", [](Control& control) { control.combo->Destroy(); }, false},
    {"DestroyedTwice",
     [](Control& control) {
         control.combo->Destroy();
         control.combo->Destroy();
     },
     false},
    {"DestroyedWithItsFrame", [](Control& control) { control.frame->Destroy(); }, false},
    {"Deleted", [](Control& control) { delete control.combo.get(); }, true},
    {"DestroyedWithItsPanel", [](Control& control) { control.panel->Destroy(); }, true},
};

const Moment kMoments[] = {
    {"WhenItOpens", "popup", [](Control& control) { control.combo->Popup(); }, {"popup", "cancel #0000FF"}, true},
    {"WhenTheHotCellChanges",
     "change",
     [](Control& control) {
         control.popup->SetRefreshCombo(true);
         control.OpenAndPress(WXK_UP);
     },
     {"popup", "change #000000", "cancel #0000FF"},
     false},
    {"WhenAColourIsChosen",
     "end",
     [](Control& control) { control.OpenAndPress(WXK_RETURN); },
     {"popup", "end #0000FF"},
     false},
    {"WhenItIsCancelled",
     "cancel",
     [](Control& control) { control.OpenAndPress(WXK_ESCAPE); },
     {"popup", "cancel #0000FF"},
     false},
    {"WhenItIsDismissed",
     "cancel",
     [](Control& control) {
         control.Open();
         control.combo->Dismiss();
     },
     {"popup", "cancel #0000FF"},
     true},
};

std::vector<std::pair<Removal, Moment>> RemovalsInCalls()
{
    std::vector<std::pair<Removal, Moment>> all;
    for (const Removal& removal : kRemovals) {
        for (const Moment& moment : kMoments) {
            // Leave out the deletion of a control that the toolkit still uses when the listener has returned.
            if (!removal.atOnce || !moment.inTheToolkit)
                all.emplace_back(removal, moment);
        }
    }
    return all;
}

class RemovedInACall : public testing::TestWithParam<std::pair<Removal, Moment>>
{
};

TEST_P(RemovedInACall, LeavesNothingBehind)
{
    const auto& [removal, moment] = GetParam();
    Control control;
    int times = 0;
    control.listener.during = [&, &remove = removal.remove,
                               call = std::string(moment.call)](const std::string& called) {
        if (called == call && ++times == 1)
            remove(control);
    };
    moment.act(control);
    EXPECT_EQ(times, 1);
    EXPECT_TRUE(PumpUntil([&] { return !control.popup && !control.combo; }));
    EXPECT_EQ(control.listener.Take(), moment.calls);
}

INSTANTIATE_TEST_SUITE_P(, RemovedInACall, testing::ValuesIn(RemovalsInCalls()),
                         [](const auto& info) { return std::string(info.param.first.name) + info.param.second.name; });

TEST(ColourListenerInItsCalls, MayTakeItselfOut)
{
    for (const char* const moment : {"popup", "change", "end", "cancel"}) {
        Control control;
        control.listener.During(moment, [&] { control.popup->SetColorListener(nullptr); });
        control.Select(16, moment != std::string("cancel"));
        EXPECT_EQ(control.listener.Take().back().substr(0, 3), std::string(moment).substr(0, 3));
        control.Open();
        control.popup->ChangeSelection(18);
        control.combo->Dismiss();
        EXPECT_EQ(control.listener.Take(), ColourCalls());
    }
}

TEST(ColourListenerInItsCalls, MayGiveItsPlaceToAnother)
{
    Control control;
    ColourListener other;
    control.listener.During("change", [&] { control.popup->SetColorListener(&other); });
    control.Select(16, true);
    EXPECT_EQ(control.listener.Take(), (ColourCalls{"popup", "change #FF0000"}));
    EXPECT_EQ(other.Take(), ColourCalls{"end #FF0000"});
}

TEST(ColourListenerInItsCalls, MayChooseAnotherColour)
{
    Control control;
    control.listener.During("end", [&] { control.popup->SetInitialColour(*wxGREEN); });
    control.Select(16, true);
    EXPECT_EQ(control.listener.Take().back(), "end #FF0000");
    EXPECT_EQ(control.popup->m_crInitialColour, *wxGREEN);
}

// SetValue("Teal") in the listener does not make another cell hot. When the popup then closes, the combo's value
// becomes "Red", the name of the chosen colour.
TEST(ColourListenerInItsCalls, MaySetTheValueOfTheCombo)
{
    Control control;
    control.listener.During("end", [&] { control.combo->SetValue("Teal"); });
    control.Select(16, true);
    EXPECT_EQ(control.listener.Take(), (ColourCalls{"popup", "change #FF0000", "end #FF0000"}));
    EXPECT_EQ(control.popup->m_crColour, *wxRED);
    EXPECT_EQ(control.popup->m_nCurrentSel, 16);
    EXPECT_EQ(control.combo->GetValue(), "Red");
}

TEST(ColourListenerInItsCalls, MayReplaceThePopup)
{
    for (const bool ok : {true, false}) {
        Control control;
        auto* const second = new OpenPopup;
        control.listener.during = [&](const std::string& call) {
            if (call == "end" || call == "cancel") {
                control.listener.during = nullptr;
                control.popup->SetColorListener(nullptr);
                control.combo->SetPopupControl(second);
            }
        };
        control.Open();
        control.popup->EndSelection(ok);
        EXPECT_FALSE(control.popup);
        EXPECT_EQ(control.combo->GetPopupControl(), second);
        control.Open();
        control.combo->Dismiss();
    }
}

TEST(ColourListenerInItsCalls, MayCloseThePopup)
{
    Control control;
    control.listener.During("end", [&] { control.combo->Dismiss(); });
    control.Select(16, true);
    EXPECT_EQ(control.listener.Take(), (ColourCalls{"popup", "change #FF0000", "end #FF0000"}));
    EXPECT_EQ(control.combo->GetValue(), "Red");
    control.Open();
    control.combo->Dismiss();
    EXPECT_EQ(control.listener.Take(), (ColourCalls{"popup", "cancel #FF0000"}));
}

// A listener may close the popup on "cancel". The combo must show its old value again, not the name of the hot cell.
TEST(ColourListenerInItsCalls, MayCloseThePopupOfACancelledSelection)
{
    Control control;
    control.combo->SetText("Teal");
    control.listener.During("cancel", [&] { control.combo->Dismiss(); });
    control.Select(16, false);
    EXPECT_FALSE(control.combo->IsPopupShown());
    EXPECT_EQ(control.listener.Take(), (ColourCalls{"popup", "change #FF0000", "cancel #0000FF"}));
    EXPECT_EQ(control.combo->GetValue(), "Teal");
}

// If the combo is destroyed while its popup is open, OnColourSelCancel() is called. That function may call Destroy().
TEST(ColourListenerInItsCalls, MayDestroyWhatIsBeingDestroyed)
{
    for (const bool deleted : {true, false}) {
        Control control;
        control.listener.During("cancel", [&] { control.combo->Destroy(); });
        int closeups = 0;
        control.combo->Bind(wxEVT_COMBOBOX_CLOSEUP, [&](wxCommandEvent&) { ++closeups; });
        control.Open();
        if (deleted)
            delete control.combo.get();
        else
            control.panel->Destroy();
        EXPECT_EQ(control.listener.Take(), (ColourCalls{"popup", "cancel #0000FF"}));
        EXPECT_EQ(closeups, 1);
        EXPECT_FALSE(control.combo);
        PumpPending();
    }
}

// --- While the popup opens or is open --------------------------------------------------------------------------------

class RemovedWhileItOpens : public testing::TestWithParam<Removal>
{
};

TEST_P(RemovedWhileItOpens, LeavesNothingBehind)
{
    for (const int steps : {0, 3}) {
        Control control(true);
        control.combo->m_animDuration = 2000000;
        control.combo->Popup();
        int seen = 0;
        if (steps > 0) {
            control.combo->Bind(wxEVT_TIMER, [&](wxTimerEvent& event) {
                ++seen;
                event.Skip();
            });
            EXPECT_TRUE(PumpUntil([&] { return seen >= steps; }));
        }
        EXPECT_TRUE(control.combo->m_animTimer.IsRunning());
        GetParam().remove(control);
        EXPECT_TRUE(PumpUntil([&] { return !control.combo && !control.popup; }));
    }
}

TEST_P(RemovedWhileItOpens, OrIsOpen)
{
    Control control(true);
    control.Open();
    control.popup->ChangeSelection(16);
    GetParam().remove(control);
    EXPECT_TRUE(PumpUntil([&] { return !control.combo && !control.popup; }));
    EXPECT_EQ(control.listener.Take().back(), "cancel #0000FF");
}

INSTANTIATE_TEST_SUITE_P(, RemovedWhileItOpens, testing::ValuesIn(kRemovals),
                         [](const auto& info) { return info.param.name; });

TEST(ColourComboDestroy, HidesItAtOnce)
{
    Control control;
    EXPECT_TRUE(control.combo->Destroy());
    ASSERT_TRUE(control.combo);
    EXPECT_FALSE(control.combo->IsShown());
    PumpPending();
    EXPECT_FALSE(control.combo);
}

// The last step of the animation may run between Destroy() and the deletion of the windows. This step must not show the
// popup.
TEST(ColourComboDestroy, KeepsThePopupFromBeingShown)
{
    for (const bool withFrame : {false, true}) {
        Control control(true);
        control.combo->m_animDuration = 2000000;
        control.combo->Popup();
        if (withFrame)
            control.frame->Destroy();
        else
            control.combo->Destroy();
        ASSERT_TRUE(control.combo);
        control.combo->m_animDuration = 0;
        wxTimerEvent step(control.combo->m_animTimer);
        control.combo->OnTimerEvent(step);
        EXPECT_TRUE(control.combo->shown.empty()) << withFrame;
        EXPECT_FALSE(control.combo->IsPopupShown()) << withFrame;
        EXPECT_FALSE(control.combo->m_animTimer.IsRunning()) << withFrame;
    }
}

TEST(ColourComboDestroy, KeepsThePopupFromBeingShownByWhoHearsOfIt)
{
    Control control(true);
    wxColourCombo& combo = *control.combo;
    control.combo->m_animDuration = 2000000;
    combo.Popup();
    control.combo->m_animDuration = 0;
    int heard = 0;
    bool shown = false;
    combo.Bind(wxEVT_DESTROY, [&](wxWindowDestroyEvent& event) {
        if (event.GetWindow() != &combo)
            return;
        ++heard;
        wxTimer timer;
        wxTimerEvent step(timer);
        combo.OnTimerEvent(step);
        shown = combo.IsPopupShown();
    });
    combo.Destroy();
    PumpPending();
    EXPECT_EQ(heard, 1);
    EXPECT_FALSE(shown);
}

TEST(ColourComboDestroy, GoesWithItsParentBeforeItsTime)
{
    Control control;
    control.combo->Destroy();
    control.panel->Destroy();
    EXPECT_FALSE(control.combo);
    PumpPending();
}

// --- Another popup, or none ------------------------------------------------------------------------------------------

TEST(ColourComboPopup, IsReplacedByASecondOne)
{
    for (const bool open : {false, true}) {
        Control control;
        if (open) {
            control.Open();
            control.popup->ChangeSelection(16);
        }
        auto* const second = new OpenPopup;
        control.combo->SetPopupControl(second);
        EXPECT_FALSE(control.popup);
        EXPECT_FALSE(control.combo->IsPopupShown());
        control.Open();
        second->ChangeSelection(18);
        second->EndSelection(true);
        EXPECT_EQ(control.combo->GetValue(), "Lime");
    }
}

TEST(ColourComboPopup, IsReplacedByASecondOneWhileItOpens)
{
    Control control(true);
    control.combo->m_animDuration = 2000000;
    control.combo->Popup();
    control.combo->SetPopupControl(new OpenPopup);
    EXPECT_TRUE(PumpUntil([&] { return !control.combo->m_animTimer.IsRunning(); }));
    EXPECT_TRUE(control.combo->IsPopupShown());
    control.combo->Dismiss();
    control.combo->m_animDuration = 200;
    control.Open();
}

TEST(ColourComboPopup, IsMissed)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "combo", wxPoint(200, 150), wxSize(500, 400)));
    auto* const combo = new OpenCombo;
    combo->Create(frame, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxCB_READONLY);
    ASSERT_TRUE(ShowAndSettle(frame));
    const ExpectAssertions assertions;
    combo->Popup();
    EXPECT_EQ(assertions.Count(), 1);
    EXPECT_FALSE(combo->IsPopupShown());
    Press(*combo, WXK_F4);
    EXPECT_EQ(assertions.Count(), 2);
    combo->HidePopup();
    combo->Dismiss();
    combo->ChangeValue("a value");
    EXPECT_EQ(combo->GetValue(), "a value");
    wxTimerEvent step(combo->m_animTimer);
    combo->OnTimerEvent(step);
    EXPECT_TRUE(combo->shown.empty());
}

TEST(ColourComboPopup, IsAnotherOneThanTheColours)
{
    class Note : public wxPanel, public wxComboPopup
    {
    public:
        bool Create(wxWindow* parent) override { return wxPanel::Create(parent); }
        wxWindow* GetControl() override { return this; }
        wxString GetStringValue() const override { return "noted"; }
    };
    const ComboOnScreen<OpenCombo, Note> on;
    ASSERT_TRUE(ShowAndSettle(on.frame));
    EXPECT_TRUE(Opens(*on.combo));
    on.combo->Dismiss();
    EXPECT_EQ(on.combo->GetValue(), "noted");
}

TEST(ColourComboPopup, IsNotNeededToLiveAndDie)
{
    OpenCombo neverCreated;
    EXPECT_EQ(neverCreated.m_animStart, 0);
    EXPECT_EQ(neverCreated.m_animRect, wxRect());
    EXPECT_FALSE(neverCreated.m_animBitmap.IsOk());
    EXPECT_EQ(neverCreated.m_animDuration, 200);
    EXPECT_FALSE(neverCreated.m_animTimer.IsRunning());
    EXPECT_EQ(neverCreated.m_animTimer.GetOwner(), &neverCreated.m_animTimer);
}

}  // namespace
