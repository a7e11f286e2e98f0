// How a selection ends, which calls the listener receives, and what the combo shows afterwards.

#include <cstddef>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/textctrl.h>

#include <tests/colour/combo/combo_with_listener.h>

namespace {

constexpr int A = CELL_AUTOMATIC;
constexpr int M = CELL_MORE_COLOURS;

class ColourEnding : public testing::Test, protected ComboWithListener
{
protected:
    explicit ColourEnding(long style = wxCB_READONLY) : ComboWithListener(*wxBLUE, style) {}
};

TEST_F(ColourEnding, StartsWithNoHotCellAndTheChosenOneMarked)
{
    on.popup->m_nCurrentSel = 7;
    on.popup->m_nChosenColourSel = 3;
    Open();
    EXPECT_EQ(listener.Take(), ColourCalls{"popup"});
    EXPECT_EQ(on.popup->m_nCurrentSel, -1);
    EXPECT_EQ(on.popup->m_nChosenColourSel, 13);
    on.popup->EndSelection(false);
}

TEST(ColourStart, TellsTheListenerLast)
{
    class CountedPopup : public OpenPopup
    {
    public:
        void Refresh(bool erase = true, const wxRect* rect = nullptr) override
        {
            ++refreshes;
            OpenPopup::Refresh(erase, rect);
        }

        int refreshes = 0;
    };
    const ComboOnScreen<OpenCombo, CountedPopup> on(wxCB_READONLY,
                                                    [](CountedPopup& popup) { popup.SetInitialColour(*wxBLUE); });
    ColourListener listener(*on.popup);
    int hot = 0;
    int chosen = 0;
    int refreshes = 0;
    listener.during = [&](const std::string&) {
        hot = on.popup->m_nCurrentSel;
        chosen = on.popup->m_nChosenColourSel;
        refreshes = on.popup->refreshes;
    };
    on.popup->m_nCurrentSel = 7;
    on.popup->refreshes = 0;
    on.popup->OnPopup();
    EXPECT_EQ(listener.Take(), ColourCalls{"popup"});
    EXPECT_EQ(hot, -1);
    EXPECT_EQ(chosen, 13);
    EXPECT_EQ(refreshes, 1);
}

TEST_F(ColourEnding, ChoosesTheHotCell)
{
    Select(16, true);
    EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "change #FF0000", "end #FF0000"}));
    EXPECT_EQ(on.popup->m_crInitialColour, *wxRED);
    EXPECT_EQ(on.popup->m_crColour, *wxRED);
    EXPECT_EQ(on.popup->m_nChosenColourSel, 16);
    EXPECT_EQ(on.popup->m_nCurrentSel, 16);
    EXPECT_FALSE(on.combo->IsPopupShown());
    EXPECT_FALSE(on.popup->m_bInternalHide);
    EXPECT_EQ(on.combo->GetValue(), "Red");
    EXPECT_EQ(on.combo->hidden, std::vector<bool>{false});
}

TEST_F(ColourEnding, ChoosesTheColourInEffectWhenNothingIsHot)
{
    Open();
    on.popup->EndSelection(true);
    EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "end #0000FF"}));
    EXPECT_EQ(on.popup->m_nChosenColourSel, -1);
    EXPECT_EQ(on.popup->m_crInitialColour, *wxBLUE);
    EXPECT_FALSE(on.combo->IsPopupShown());
}

TEST_F(ColourEnding, ChoosesAutomatic)
{
    on.popup->SetDefaultColour(*wxCYAN);
    Select(A, true);
    EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "change #00FFFF", "end #00FFFF"}));
    EXPECT_EQ(on.popup->m_crInitialColour, *wxCYAN);
    EXPECT_EQ(on.popup->m_nChosenColourSel, A);
    EXPECT_EQ(on.combo->GetValue(), "Automatic");
    Open();
    EXPECT_EQ(on.popup->m_nChosenColourSel, A);
    on.popup->EndSelection(false);
}

TEST_F(ColourEnding, TakesNothingFromACancelledSelection)
{
    on.combo->SetText("Blue");
    Open();
    on.popup->ChangeSelection(16);
    on.popup->ChangeSelection(18);
    on.popup->EndSelection(false);
    EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "change #FF0000", "change #32CD32", "cancel #0000FF"}));
    EXPECT_EQ(on.popup->m_crInitialColour, *wxBLUE);
    EXPECT_EQ(on.popup->m_crColour, *wxBLUE);
    EXPECT_EQ(on.popup->m_nChosenColourSel, -1);
    EXPECT_EQ(on.popup->m_nCurrentSel, 18) << "the hot cell stays until the next opening";
    EXPECT_EQ(on.popup->GetStringValue(), "Lime");
    EXPECT_FALSE(on.combo->IsPopupShown());
    EXPECT_FALSE(on.popup->m_bInternalHide);
    EXPECT_EQ(on.combo->GetValue(), "Blue");
    EXPECT_EQ(on.combo->hidden, std::vector<bool>{false});
}

TEST_F(ColourEnding, TellsTheListenerBeforeThePopupCloses)
{
    bool shown = false;
    int chosen = 0;
    wxColour initial;
    listener.during = [&](const std::string& call) {
        if (call != "end" && call != "cancel")
            return;
        shown = on.combo->IsPopupShown();
        chosen = on.popup->m_nChosenColourSel;
        initial = on.popup->m_crInitialColour;
        on.combo->refreshes = 0;
    };
    Select(16, true);
    EXPECT_TRUE(shown);
    EXPECT_EQ(chosen, 16);
    EXPECT_EQ(initial, *wxRED);
    EXPECT_GT(on.combo->refreshes, 0);

    shown = false;
    Select(18, false);
    EXPECT_TRUE(shown);
    EXPECT_EQ(chosen, -1);
    EXPECT_EQ(initial, *wxRED);
    EXPECT_GT(on.combo->refreshes, 0);
}

// If a selection ends while the popup is not shown, the combo is redrawn and HidePopup() is not called.
TEST_F(ColourEnding, RefreshesTheComboOfAHiddenPopup)
{
    EXPECT_FALSE(on.combo->IsPopupShown());
    for (const bool ok : {true, false}) {
        on.combo->refreshes = 0;
        on.popup->DoEndSel(ok);
        EXPECT_EQ(on.combo->refreshes, 1);
    }
    EXPECT_TRUE(on.combo->hidden.empty());
    EXPECT_EQ(listener.Take(), (ColourCalls{"end #000000", "cancel #000000"}));
}

TEST_F(ColourEnding, NeedsNoListener)
{
    on.popup->SetColorListener(nullptr);
    Select(16, true);
    EXPECT_EQ(on.popup->m_crInitialColour, *wxRED);
    Select(18, false);
    EXPECT_EQ(on.popup->m_crInitialColour, *wxRED);
    Open();
    on.popup->ChangeSelection(18);
    on.combo->Dismiss();
    EXPECT_EQ(on.popup->m_crInitialColour, *wxRED);
}

// --- Dismissal from outside ------------------------------------------------------------------------------------------

TEST_F(ColourEnding, IsACancelWhenTheComboIsDismissed)
{
    on.combo->SetText("Blue");
    Open();
    on.popup->ChangeSelection(16);
    listener.Take();
    on.combo->Dismiss();
    EXPECT_FALSE(on.combo->IsPopupShown());
    EXPECT_EQ(listener.Take(), ColourCalls{"cancel #0000FF"});
    EXPECT_EQ(on.popup->m_crColour, *wxBLUE);
    EXPECT_EQ(on.combo->GetValue(), "Blue");
    EXPECT_FALSE(on.popup->m_bInternalHide);
}

TEST_F(ColourEnding, ReportsADismissalOnlyWhenThePopupDoesNotHideItself)
{
    on.popup->m_crColour = *wxRED;
    on.popup->m_bInternalHide = true;
    on.popup->OnDismiss();
    EXPECT_EQ(listener.Take(), ColourCalls());
    EXPECT_EQ(on.popup->m_crColour, *wxRED);

    on.popup->m_bInternalHide = false;
    on.popup->OnDismiss();
    EXPECT_EQ(listener.Take(), ColourCalls{"cancel #0000FF"});
    EXPECT_EQ(on.popup->m_crColour, *wxBLUE);
}

TEST_F(ColourEnding, LeavesTheColourOfTheHotCellToAPopupWithoutListener)
{
    on.popup->SetColorListener(nullptr);
    on.popup->m_crColour = *wxRED;
    on.popup->OnDismiss();
    EXPECT_EQ(on.popup->m_crColour, *wxRED);
    // When the popup opens, m_crColour becomes blue, the colour in effect. EndSelection() then chooses blue, because no
    // cell is hot.
    Open();
    on.popup->EndSelection(true);
    EXPECT_EQ(on.popup->m_crInitialColour, *wxBLUE);
}

// A late call of OnDismiss() does not change a value that the host has set after the popup closed.
TEST_F(ColourEnding, LeavesAValueAloneThatWasSetAfterAChoice)
{
    Select(16, true);
    on.combo->SetText("the host's");
    on.popup->OnDismiss();
    EXPECT_EQ(on.combo->GetValue(), "the host's");
}

// --- A combo with a text control -------------------------------------------------------------------------------------

class ColourEndingWithText : public ColourEnding
{
protected:
    ColourEndingWithText() : ColourEnding(0)
    {
        on.combo->Bind(wxEVT_TEXT, [this](wxCommandEvent& event) { texts.push_back(event.GetString()); });
    }

    std::vector<wxString> texts;
};

TEST_F(ColourEndingWithText, MakesTheColourOfTheTextHotWhenItOpens)
{
    on.combo->ChangeValue("Red");
    listener.Take();
    Open();
    EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "change #FF0000"}));
    EXPECT_EQ(on.popup->m_nCurrentSel, 16);
    on.popup->EndSelection(false);
}

TEST_F(ColourEndingWithText, HasTheNameAfterAChoice)
{
    Select(18, true);
    EXPECT_EQ(on.combo->GetTextCtrl()->GetValue(), "Lime");
    EXPECT_EQ(texts, std::vector<wxString>{"Lime"});
    EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "change #32CD32", "end #32CD32"}));
}

TEST_F(ColourEndingWithText, HasTheEarlierTextAfterACancel)
{
    on.combo->ChangeValue("my own");
    Select(18, false);
    EXPECT_EQ(on.combo->GetTextCtrl()->GetValue(), "my own");
    EXPECT_EQ(texts.back(), "my own") << "the last text event has the right text";
    EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "change #32CD32", "cancel #0000FF"}));
    EXPECT_EQ(on.popup->m_crColour, *wxBLUE);
}

TEST_F(ColourEndingWithText, HasTheEarlierTextAfterADismissal)
{
    on.combo->ChangeValue("my own");
    Open();
    on.popup->ChangeSelection(18);
    on.combo->Dismiss();
    EXPECT_EQ(on.combo->GetTextCtrl()->GetValue(), "my own");
    EXPECT_EQ(texts.back(), "my own");
    EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "change #32CD32", "cancel #0000FF"}));
    EXPECT_EQ(on.popup->m_crColour, *wxBLUE);
}

// When the selection is cancelled, the combo's text becomes the earlier text again. The combo passes this text to the
// popup when the popup opens again. EndSelection(true) must then not choose the cancelled colour.
TEST_F(ColourEndingWithText, DoesNotChooseACancelledColourTheNextTime)
{
    for (const bool dismissed : {false, true}) {
        Open();
        on.popup->ChangeSelection(18);
        if (dismissed)
            on.combo->Dismiss();
        else
            on.popup->EndSelection(false);
        listener.Take();
        Open();
        on.popup->EndSelection(true);
        EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "end #0000FF"}));
    }
}

TEST_F(ColourEndingWithText, ChangesNothingByAValueHandedBackWhileItHidesItself)
{
    on.popup->m_bInternalHide = true;
    on.popup->SetStringValue("Red");
    EXPECT_EQ(on.popup->m_nCurrentSel, -1);
    EXPECT_EQ(listener.Take(), ColourCalls());
    on.popup->m_bInternalHide = false;
    on.popup->SetStringValue("Red");
    EXPECT_EQ(listener.Take(), ColourCalls{"change #FF0000"});
}

TEST_F(ColourEndingWithText, ChangesNothingByTheHotCellsNameThatTheComboHandsBack)
{
    Open();
    on.popup->ChangeSelection(16);
    listener.Take();
    on.popup->SetStringValue("Red");
    EXPECT_EQ(listener.Take(), ColourCalls());
    on.popup->EndSelection(false);
}

TEST_F(ColourEnding, ChoosesTheColourThatWasNamedAfterACancel)
{
    on.popup->ChangeSelection(16);
    on.popup->DoEndSel(false);
    EXPECT_EQ(listener.Take(), (ColourCalls{"change #FF0000", "cancel #0000FF"}));
    on.popup->SetStringValue("Red");
    EXPECT_EQ(listener.Take(), ColourCalls{"change #FF0000"});
    on.popup->DoEndSel(true);
    EXPECT_EQ(listener.Take(), ColourCalls{"end #FF0000"});
    EXPECT_EQ(on.popup->m_nChosenColourSel, 16);
}

TEST_F(ColourEndingWithText, ChoosesTheColourThatWasNamedAfterADismissal)
{
    on.combo->SetValue("Red");
    Open();
    EXPECT_EQ(listener.Take(), (ColourCalls{"change #FF0000", "popup", "change #FF0000"}));
    on.combo->Dismiss();
    EXPECT_EQ(listener.Take(), ColourCalls{"cancel #0000FF"});
    on.popup->SetStringValue("Red");
    EXPECT_EQ(listener.Take(), ColourCalls{"change #FF0000"});
    on.popup->DoEndSel(true);
    EXPECT_EQ(listener.Take(), ColourCalls{"end #FF0000"});
}

TEST_F(ColourEndingWithText, LeavesAValueAloneThatWasSetAfterACancel)
{
    Open();
    on.popup->EndSelection(false);
    on.combo->SetValue("Typed by the host");
    on.popup->DoEndSel(false);
    EXPECT_EQ(on.combo->GetValue(), "Typed by the host");
    on.popup->OnDismiss();
    EXPECT_EQ(on.combo->GetValue(), "Typed by the host");
}

TEST_F(ColourEnding, WorksOnAfterAnExceptionOfTheListeners)
{
    for (const bool ok : {true, false}) {
        Open();
        on.popup->ChangeSelection(16);
        listener.Take();
        listener.during = [](const std::string&) { throw std::runtime_error("the host's"); };
        EXPECT_THROW(on.popup->EndSelection(ok), std::runtime_error);
        listener.during = nullptr;
        on.popup->DoEndSel(ok);
        EXPECT_FALSE(on.combo->IsPopupShown());
        listener.Take();
        on.popup->SetStringValue("Lime");
        on.popup->OnDismiss();
        EXPECT_EQ(listener.Take(), (ColourCalls{"change #32CD32", "cancel #FF0000"}));
    }
}

// --- Without a colour combo ------------------------------------------------------------------------------------------

TEST(ColourPopupAlone, WorksInThePlainComboOfTheToolkit)
{
    const ComboOnScreen<wxComboCtrl> on;
    ColourListener listener(*on.popup);
    ASSERT_TRUE(ShowAndSettle(on.frame));
    ASSERT_TRUE(Opens(*on.combo));
    on.popup->ChangeSelection(16);
    on.popup->EndSelection(true);
    EXPECT_EQ(on.combo->GetValue(), "Red");
    on.combo->Popup();
    on.popup->ChangeSelection(18);
    on.popup->EndSelection(false);
    EXPECT_EQ(on.combo->GetValue(), "Red");
    EXPECT_EQ(listener.Take(),
              (ColourCalls{"popup", "change #FF0000", "end #FF0000", "popup", "change #32CD32", "cancel #FF0000"}));
}

TEST(ColourPopupAlone, WorksWithoutACombo)
{
    const PopupInFrame popup;
    ColourListener listener(*popup.popup);
    popup->SetRefreshCombo(true);
    popup->OnPopup();
    popup->ChangeSelection(16);
    popup->EndSelection(true);
    popup->ChangeSelection(18);
    popup->EndSelection(false);
    popup->OnDismiss();
    EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "change #FF0000", "end #FF0000", "change #32CD32",
                                            "cancel #FF0000", "cancel #FF0000"}));
}

TEST(ColourPopupAlone, WorksWithoutAWindow)
{
    OpenPopup popup;
    ColourListener listener(popup);
    popup.ChangeSelection(16);
    popup.DoEndSel(true);
    popup.ChangeSelection(18);
    popup.DoEndSel(false);
    popup.OnDismiss();
    EXPECT_EQ(listener.Take(),
              (ColourCalls{"change #FF0000", "end #FF0000", "change #32CD32", "cancel #FF0000", "cancel #FF0000"}));
}

// Returns the index of a virtual function in the virtual table of its class.
template <typename Function>
int SlotOf(Function function)
{
    std::ptrdiff_t offset = 0;
    std::memcpy(&offset, &function, sizeof offset);
    return static_cast<int>(offset / std::ptrdiff_t(sizeof(void*)));
}

TEST(ColourListenerTable, HasTheCallsInTheOrderThatHostsAreBuiltWith)
{
    EXPECT_EQ(SlotOf(&wxColorPopupListener::OnColourPopup), 0);
    EXPECT_EQ(SlotOf(&wxColorPopupListener::OnColourSelChange), 1);
    EXPECT_EQ(SlotOf(&wxColorPopupListener::OnColourSelEnd), 2);
    EXPECT_EQ(SlotOf(&wxColorPopupListener::OnColourSelCancel), 3);
}

TEST(ColourListenerDefault, DoesNothing)
{
    class Deaf : public wxColorPopupListener
    {
    };
    Deaf listener;
    const ComboOnScreen<> on;
    on.popup->SetColorListener(&listener);
    on.popup->OnPopup();
    on.popup->ChangeSelection(16);
    on.popup->EndSelection(true);
    on.popup->EndSelection(false);
    EXPECT_EQ(on.popup->m_crInitialColour, *wxRED);
}

}  // namespace
