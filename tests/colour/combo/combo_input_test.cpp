// The colour combo in a window on the screen, operated with mouse and keyboard.

#include <string>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/weakref.h>

#include <tests/colour/colour_listener.h>
#include <tests/colour/combo/combo_on_screen.h>
#include <tests/colour/screen.h>

namespace {

// A button, the combo and another button, in tab order.
class ColourComboInUse : public testing::Test
{
protected:
    explicit ColourComboInUse(long style = wxCB_READONLY)
        : frame(new wxFrame(nullptr, wxID_ANY, "combo", wxPoint(200, 150), wxSize(500, 400))),
          panel(new wxPanel(frame)), before(new wxButton(panel, wxID_ANY, "before", wxPoint(20, 10))),
          combo(new OpenCombo), popup(new OpenPopup)
    {
        combo->Create(panel, wxID_ANY, "", wxPoint(20, 60), wxSize(150, -1), style);
        after = new wxButton(panel, wxID_ANY, "after", wxPoint(200, 10));
        popup->SetInitialColour(*wxBLUE);
        popup->SetColorListener(&listener);
        combo->SetPopupControl(popup);
        EXPECT_TRUE(ShowAndSettle(frame));
        before->SetFocus();
        EXPECT_TRUE(PumpUntil([&] { return before->HasFocus(); }));
    }

    void Press(int key, int modifiers = 0) { m_user.Char(key, modifiers); }

    // Clicks the combo's button.
    void ClickButton()
    {
        PointTo(ButtonOf(*combo));
        m_user.MouseClick();
    }

    void PointToCell(int index)
    {
        wxRect rect;
        EXPECT_TRUE(popup->GetCellRect(index, rect));
        PointTo(popup->ClientToScreen(rect.GetPosition() + rect.GetSize() / 2));
    }

    void Click() { m_user.MouseClick(); }

    void ExpectShown()
    {
        EXPECT_TRUE(PumpUntil([&] { return combo->IsPopupShown(); })) << "the popup is not shown";
        // Handle the release of the mouse button before the test uses the mouse in the popup.
        PumpPending();
    }

    void ExpectHidden()
    {
        EXPECT_TRUE(PumpUntil([&] { return !combo->IsPopupShown(); })) << "the popup is shown";
    }

    void Open()
    {
        Press(WXK_F4);
        ExpectShown();
    }

    void OpenByMouse()
    {
        ClickButton();
        ExpectShown();
    }

    void CloseBy(int key)
    {
        Press(key);
        ExpectHidden();
    }

    void ExpectCalls(const ColourCalls& calls)
    {
        ColourCalls seen;
        EXPECT_TRUE(PumpUntil([&] {
            const ColourCalls more = listener.Take();
            seen.insert(seen.end(), more.begin(), more.end());
            return seen.size() >= calls.size();
        }));
        EXPECT_EQ(seen, calls);
    }

    ColourListener listener;
    OwnedWindow<wxFrame> frame;
    wxPanel* panel;
    wxButton* before;
    wxWeakRef<OpenCombo> combo;
    wxWeakRef<OpenPopup> popup;
    wxButton* after = nullptr;

private:
    wxUIActionSimulator m_user;
};

// --- Mouse -----------------------------------------------------------------------------------------------------------

TEST_F(ColourComboInUse, GivesTheColourThatIsClicked)
{
    OpenByMouse();
    PointToCell(19);
    PointToCell(20);
    ExpectCalls({"popup", "change #3CB371", "change #7FFFD4"});
    EXPECT_EQ(popup->m_nCurrentSel, 20);
    EXPECT_EQ(popup->GetToolTipText(), "Aqua");
    Click();
    ExpectHidden();
    ExpectCalls({"end #7FFFD4"});
    EXPECT_EQ(combo->GetValue(), "Aqua");
    EXPECT_EQ(popup->m_nChosenColourSel, 20);
}

TEST_F(ColourComboInUse, OpensByAClickOnItsFace)
{
    PointTo(combo->ClientToScreen(wxPoint(20, combo->GetClientSize().y / 2)));
    Click();
    ExpectShown();
    PointToCell(CELL_AUTOMATIC);
    Click();
    ExpectCalls({"popup", "change #000000", "end #000000"});
    ExpectHidden();
    EXPECT_EQ(combo->GetValue(), "Automatic");
}

TEST_F(ColourComboInUse, IsCancelledByAClickOutside)
{
    combo->SetText("Blue");
    OpenByMouse();
    PointToCell(16);
    ExpectCalls({"popup", "change #FF0000"});
    PointTo(panel->ClientToScreen(wxPoint(400, 300)));
    Click();
    ExpectHidden();
    ExpectCalls({"cancel #0000FF"});
    EXPECT_EQ(combo->GetValue(), "Blue");
    EXPECT_EQ(popup->m_crColour, *wxBLUE);
}

TEST_F(ColourComboInUse, IsClosedByAClickOnItsButton)
{
    // Open the popup with a key, because a second click on the button could count as a double click.
    combo->SetFocus();
    Open();
    PointToCell(16);
    ExpectCalls({"popup", "change #FF0000"});
    ClickButton();
    ExpectHidden();
    ExpectCalls({"cancel #0000FF"});
    EXPECT_FALSE(PumpUntil([&] { return combo->GetPopupWindowState() != wxComboCtrl::Hidden; }, 300));
}

TEST_F(ColourComboInUse, ChoosesTheHotCellByAClickBetweenTheCells)
{
    OpenByMouse();
    PointToCell(16);
    ExpectCalls({"popup", "change #FF0000"});
    // Click at a point in the margin at the popup's left edge, below the grid.
    wxRect more;
    popup->GetCellRect(CELL_MORE_COLOURS, more);
    PointTo(popup->ClientToScreen(wxPoint(1, more.y + 10)));
    Click();
    ExpectHidden();
    ExpectCalls({"end #FF0000"});
}

// --- Keyboard --------------------------------------------------------------------------------------------------------

class ColourComboByKeys : public ColourComboInUse, public testing::WithParamInterface<long>
{
protected:
    ColourComboByKeys() : ColourComboInUse(GetParam())
    {
        Press(WXK_TAB);
        EXPECT_TRUE(PumpUntil([&] { return ContainsFocus(*combo); }));
    }
};

TEST_P(ColourComboByKeys, IsReachedByTab)
{
    Press(WXK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return after->HasFocus(); }));
    Press(WXK_TAB, wxMOD_SHIFT);
    EXPECT_TRUE(PumpUntil([&] { return ContainsFocus(*combo); }));
    Press(WXK_TAB, wxMOD_SHIFT);
    EXPECT_TRUE(PumpUntil([&] { return before->HasFocus(); }));
}

TEST_P(ColourComboByKeys, IsReachedByTabOnceThePopupHasBeenOpen)
{
    Open();
    CloseBy(WXK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return ContainsFocus(*combo); }));
    Press(WXK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return after->HasFocus(); }));
    Press(WXK_TAB, wxMOD_SHIFT);
    EXPECT_TRUE(PumpUntil([&] { return ContainsFocus(*combo); }));
    Open();
    CloseBy(WXK_ESCAPE);
}

TEST_P(ColourComboByKeys, IsReachedByTheMnemonicOfItsLabel)
{
    auto* const label = new wxStaticText(panel, wxID_ANY, "&Line");
    label->MoveBeforeInTabOrder(combo);
    before->SetFocus();
    EXPECT_TRUE(PumpUntil([&] { return before->HasFocus(); }));
    Press('L', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return ContainsFocus(*combo); }));
    // Put both buttons before the label in the tab order. The mnemonic must still lead to the combo.
    after->MoveBeforeInTabOrder(before);
    after->SetFocus();
    EXPECT_TRUE(PumpUntil([&] { return after->HasFocus(); }));
    Press('L', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return ContainsFocus(*combo); }));
}

TEST_P(ColourComboByKeys, OpensByF4AndGivesTheColourOfReturn)
{
    Open();
    Press(WXK_UP);
    Press(WXK_RIGHT);
    Press(WXK_DOWN);
    Press(WXK_DOWN);
    Press(WXK_LEFT);
    ExpectCalls({"popup", "change #000000", "change #000000", "change #8B0000", "change #FF0000", "change #666666"});
    CloseBy(WXK_RETURN);
    ExpectCalls({"end #666666"});
    EXPECT_EQ(combo->GetValue(), "Grey - 40");
}

// When the popup opens again, it has no tooltip yet, because the pointer may be over another cell.
TEST_P(ColourComboByKeys, ForgetsTheNameAtThePointerWhenItOpensAgain)
{
    PointTo(frame->GetScreenRect().GetTopRight() + wxPoint(50, 0));
    Open();
    Press(WXK_UP);
    Press(WXK_RIGHT);
    EXPECT_TRUE(PumpUntil([&] { return popup->GetToolTipText() == "Black"; }));
    CloseBy(WXK_RETURN);
    EXPECT_EQ(combo->GetValue(), "Black");

    Open();
    EXPECT_EQ(popup->GetToolTipText(), "");
    EXPECT_EQ(popup->m_strToolTip, "");
    PointToCell(0);
    EXPECT_TRUE(PumpUntil([&] { return popup->GetToolTipText() == "Black"; })) << "a hovered cell shows its name";
    CloseBy(WXK_ESCAPE);
}

TEST_P(ColourComboByKeys, OpensByAltDownAndClosesByEscape)
{
    Press(WXK_DOWN, wxMOD_ALT);
    ExpectShown();
    Press(WXK_LEFT);
    Press(WXK_DOWN);
    Press(WXK_RIGHT);
    ExpectCalls({"popup", "change #000000", "change #000000", "change #A52A00"});
    CloseBy(WXK_ESCAPE);
    ExpectCalls({"cancel #0000FF"});
    EXPECT_EQ(combo->GetValue(), "");
    EXPECT_EQ(popup->m_crInitialColour, *wxBLUE);
}

TEST_P(ColourComboByKeys, ChoosesBySpace)
{
    Open();
    Press(WXK_UP);
    Press(WXK_DOWN);
    ExpectCalls({"popup", "change #000000", "change #000000"});
    CloseBy(WXK_SPACE);
    ExpectCalls({"end #000000"});
    EXPECT_EQ(combo->GetValue(), "Black");
}

TEST_P(ColourComboByKeys, IgnoresOtherKeysWhileItIsOpen)
{
    Open();
    for (const int key : {int(WXK_TAB), int('a'), int(WXK_F4), int(WXK_HOME)})
        Press(key);
    Press(WXK_UP);
    ExpectCalls({"popup", "change #000000"});
    EXPECT_TRUE(combo->IsPopupShown());
    EXPECT_FALSE(after->HasFocus());
    CloseBy(WXK_ESCAPE);
}

INSTANTIATE_TEST_SUITE_P(, ColourComboByKeys, testing::Values(wxCB_READONLY, 0), NameOfStyle);

// The face is filled with the colour, so the focus is shown on the button.
TEST_F(ColourComboInUse, ShowsOnItsButtonThatItHasTheFocus)
{
    const wxSize size = combo->GetClientSize();
    const int face = size.x - combo->GetButtonSize().x;
    const auto see = [&](int x, int width) {
        const wxImage seen = GrabScreen(wxRect(combo->ClientToScreen(wxPoint(x, 0)), wxSize(width, size.y)));
        return std::string(reinterpret_cast<const char*>(seen.GetData()), std::size_t(3) * width * size.y);
    };
    const auto button = [&] { return see(face, size.x - face); };
    std::string without;
    std::string colour;
    EXPECT_TRUE(PumpUntil([&] {
        without = button();
        colour = see(0, face);
        const std::size_t middle = 3 * (std::size_t(face) * (size.y / 2) + face / 2);
        return colour.substr(middle, 3) == std::string("\0\0\xFF", 3);
    }));

    combo->SetFocus();
    EXPECT_TRUE(PumpUntil([&] { return button() != without; }));
    EXPECT_TRUE(see(0, face) == colour) << "the face has changed";
    after->SetFocus();
    EXPECT_TRUE(PumpUntil([&] { return button() == without; }));
}

// --- The host removes the control within a call of the listener ------------------------------------------------------

struct Removal
{
    const char* name;
    const char* call;
    bool byMouse;
};

class ColourComboRemoved : public ColourComboInUse, public testing::WithParamInterface<Removal>
{
protected:
    void Use()
    {
        OpenByMouse();
        if (GetParam().byMouse)
            PointToCell(16);
        else
            Press(WXK_UP);
        if (GetParam().call == std::string("change"))
            return;
        EXPECT_TRUE(PumpUntil([&] { return popup && popup->m_nCurrentSel != CELL_NONE; }));
        if (GetParam().byMouse)
            Click();
        else
            Press(GetParam().call == std::string("end") ? WXK_RETURN : WXK_ESCAPE);
    }
};

TEST_P(ColourComboRemoved, LeavesNothingBehind)
{
    listener.During(GetParam().call, [&] { delete combo.get(); });
    Use();
    EXPECT_TRUE(PumpUntil([&] { return !combo && !popup; }));
    before->SetFocus();
    EXPECT_TRUE(PumpUntil([&] { return before->HasFocus(); }));
}

TEST_P(ColourComboRemoved, LeavesNothingBehindWithItsPanel)
{
    listener.During(GetParam().call, [&] { panel->Destroy(); });
    Use();
    EXPECT_TRUE(PumpUntil([&] { return !combo && !popup; }));
}

INSTANTIATE_TEST_SUITE_P(, ColourComboRemoved,
                         testing::Values(Removal{"WhenThePointerMoves", "change", true},
                                         Removal{"WhenAColourIsClicked", "end", true},
                                         Removal{"WhenAnArrowIsPressed", "change", false},
                                         Removal{"WhenReturnIsPressed", "end", false},
                                         Removal{"WhenEscapeIsPressed", "cancel", false}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(ColourComboInUse, MayBeDestroyedWhenItIsDismissed)
{
    listener.During("cancel", [&] { combo->Destroy(); });
    OpenByMouse();
    PointTo(panel->ClientToScreen(wxPoint(400, 300)));
    Click();
    EXPECT_TRUE(PumpUntil([&] { return !combo && !popup; }));
    ExpectCalls({"popup", "cancel #0000FF"});
}

}  // namespace
