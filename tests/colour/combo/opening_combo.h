#ifndef FITTINGS_TESTS_COLOUR_COMBO_OPENING_COMBO_H_
#define FITTINGS_TESTS_COLOUR_COMBO_OPENING_COMBO_H_

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/uiaction.h>
#include <wx/weakref.h>

#include <tests/colour/colour_listener.h>
#include <tests/colour/combo/combo_on_screen.h>

/// The names of a combo's events and of its listener's calls.
using Notes = std::vector<std::string>;

/// A combo on the screen, and a simulated user. The animation is longer than any test.
class OpeningCombo
{
protected:
    explicit OpeningCombo(long style = wxCB_READONLY) : on(style)
    {
        on.popup->SetColorListener(&listener);
        listener.during = [this](const std::string& call) { notes.push_back(call); };
        combo.Bind(wxEVT_COMBOBOX_DROPDOWN, [this](wxCommandEvent&) { notes.push_back("dropdown"); });
        combo.Bind(wxEVT_COMBOBOX_CLOSEUP, [this](wxCommandEvent&) { notes.push_back("closeup"); });
        combo.m_animDuration = 2000000;
    }

    /// Opens the popup with F4. Waits until the animation runs or, if @a isAnimated is false, until the popup is shown.
    void Open(bool isAnimated = true)
    {
        combo.EnablePopupAnimation(isAnimated);
        combo.shown.clear();
        ASSERT_TRUE(on.frame->IsShown() || ShowAndSettle(on.frame));
        combo.SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return ContainsFocus(combo); }));
        user.Char(WXK_F4);
        ASSERT_TRUE(PumpUntil([&] { return isAnimated ? combo.m_animTimer.IsRunning() : combo.IsPopupShown(); }));
        EXPECT_EQ(Take(), (Notes{"dropdown", "popup"}));
        PumpPending();
    }

    void Click(const wxPoint& place, int mouseButton = wxMOUSE_BTN_LEFT)
    {
        PointTo(place);
        user.MouseClick(mouseButton);
    }

    void ExpectShownAndDismissed()
    {
        EXPECT_TRUE(PumpUntil([&] { return notes.size() >= 2; }));
        EXPECT_EQ(Take(), (Notes{"cancel", "closeup"}));
        EXPECT_EQ(combo.shown.size(), 1u);
        EXPECT_FALSE(combo.IsPopupShown());
        EXPECT_FALSE(combo.m_animTimer.IsRunning());
        EXPECT_FALSE(combo.GetPopupWindow()->IsShown());
        EXPECT_TRUE(PumpUntil([&] { return ContainsFocus(combo); }));
    }

    Notes Take() { return std::exchange(notes, {}); }

    // The destruction of the popup may call the listener, so the popup is destroyed first.
    Notes notes;
    ColourListener listener;
    ComboOnScreen<> on;
    OpenCombo& combo = *on.combo;
    const wxWeakRef<OpenPopup> popup{on.popup};
    wxUIActionSimulator user;
};

#endif
