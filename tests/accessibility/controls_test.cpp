#include <gtest/gtest.h>

#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>
#include <fittings/numedit/num_validator.h>
#include <fittings/tree/handy_tree_ctrl.h>
#include <tests/accessibility/accessibles.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>

namespace {

class WhatAScreenReaderSays : public testing::Test
{
protected:
    WhatAScreenReaderSays() : frame(new wxFrame(nullptr, wxID_ANY, "Drawing")), panel(new wxPanel(frame)) {}

    wxColourCombo* MakeCombo(long style)
    {
        auto* const combo = new wxColourCombo;
        combo->Create(panel, wxID_ANY, "", wxPoint(20, 60), wxSize(150, -1), style);
        popup = new wxColourPopup;
        popup->SetInitialColour(*wxBLUE);
        combo->SetPopupControl(popup);
        return combo;
    }

    wxHandyTreeCtrl* MakeTree()
    {
        auto* const tree = new wxHandyTreeCtrl;
        tree->Create(panel);
        tree->SetSize(20, 60, 200, 150);
        wxTreeCursor root = tree->AddRoot("Sun");
        root.AppendItem("Earth");
        return tree;
    }

    void Focus(wxWindow* window)
    {
        ASSERT_TRUE(ShowAndSettle(frame));
        window->SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return ContainsFocus(*window); }));
    }

    void Press(int key, int modifiers = 0) { m_user.Char(key, modifiers); }

    OwnedWindow<wxFrame> frame;
    wxPanel* panel;
    wxColourPopup* popup = nullptr;

private:
    wxUIActionSimulator m_user;
};

TEST_F(WhatAScreenReaderSays, IsTheColourOfACombo)
{
    new wxStaticText(panel, wxID_ANY, "&Line:");
    wxColourCombo* const combo = MakeCombo(wxCB_READONLY);
    Focus(combo);
    const Accessible said = ReadFocused();
    EXPECT_EQ(said.role, "combo box");
    EXPECT_EQ(said.name, "Blue");
    EXPECT_EQ(said.label, "Line:");
    EXPECT_TRUE(said.showing && said.focusable);

    // A colour without a name is announced by its number. In the table of colours, the name "Pale green " ends with a
    // blank. The announced name has no blank at its end.
    popup->SetInitialColour(wxColour(1, 2, 254));
    EXPECT_EQ(ReadFocused().name, "#0102FE");
    popup->SetInitialColour(wxColour(152, 251, 152));
    EXPECT_EQ(ReadFocused().name, "Pale green");
}

TEST_F(WhatAScreenReaderSays, IsTheHotCellOfAnOpenCombo)
{
    wxColourCombo* const combo = MakeCombo(wxCB_READONLY);
    combo->EnablePopupAnimation(false);
    Focus(combo);
    Press(WXK_F4);
    ASSERT_TRUE(PumpUntil([&] { return combo->IsPopupShown(); }));
    EXPECT_EQ(ReadFirst("list box").name, "Blue");
    Press(WXK_UP);
    ASSERT_TRUE(PumpUntil([&] { return !popup->GetStringValue().empty(); }));
    EXPECT_EQ(ReadFirst("list box").name, "Automatic");
    EXPECT_EQ(ReadFocused().name, "Automatic");
    Press(WXK_RIGHT);
    Press(WXK_RIGHT);
    ASSERT_TRUE(PumpUntil([&] { return popup->GetStringValue() == "Brown"; }));
    EXPECT_EQ(ReadFirst("list box").name, "Brown");
    EXPECT_EQ(ReadFocused().name, "Brown");
    Press(WXK_ESCAPE);
    ASSERT_TRUE(PumpUntil([&] { return !combo->IsPopupShown(); }));
    EXPECT_EQ(ReadFocused().name, "Blue");
    EXPECT_EQ(ReadFirst("list box").role, "");
}

TEST_F(WhatAScreenReaderSays, IsTheLabelOfAComboWithAText)
{
    new wxStaticText(panel, wxID_ANY, "&Line:");
    Focus(MakeCombo(0));
    const Accessible text = ReadFocused();
    EXPECT_EQ(text.role, "text");
    EXPECT_EQ(text.label, "Line:");
    EXPECT_EQ(ReadFirst("combo box").name, "Blue");
}

TEST_F(WhatAScreenReaderSays, IsWhatTheHostCallsACombo)
{
    MakeCombo(0)->SetLabel("&Line");
    Focus(panel->GetChildren()[0]);
    EXPECT_EQ(ReadFocused().role, "text");
    EXPECT_EQ(ReadFocused().name, "Line");
    const Accessible combo = ReadFirst("combo box");
    EXPECT_EQ(combo.name, "Blue");
    EXPECT_EQ(combo.description, "Line");
}

TEST_F(WhatAScreenReaderSays, IsTheItemOfATree)
{
    new wxStaticText(panel, wxID_ANY, "&Planets:");
    wxHandyTreeCtrl* const tree = MakeTree();
    Focus(tree);
    Press(WXK_HOME);
    const Accessible said = ReadFocused();
    EXPECT_EQ(said.role, "tree");
    EXPECT_EQ(said.name, "Sun");
    EXPECT_EQ(said.label, "Planets:");
    EXPECT_EQ(ReadFirst("scroll pane").name, "Sun");
    Press(WXK_RIGHT);
    Press(WXK_DOWN);
    ASSERT_TRUE(PumpUntil([&] { return tree->GetSelection().GetText() == L"Earth"; }));
    EXPECT_EQ(ReadFocused().name, "Earth");
}

TEST_F(WhatAScreenReaderSays, IsWhatTheHostCallsATree)
{
    wxHandyTreeCtrl* const tree = MakeTree();
    tree->SetLabel("Planets");
    Focus(tree);
    EXPECT_EQ(ReadFocused().name, "Sun");
    EXPECT_EQ(ReadFocused().description, "Planets");
    tree->DeleteAllItems();
    EXPECT_EQ(ReadFocused().name, "Planets");
}

TEST_F(WhatAScreenReaderSays, IsTheLabelOfANumber)
{
    new wxStaticText(panel, wxID_ANY, "&Price:");
    wxString price;
    Focus(new wxTextCtrl(panel, wxID_ANY, "1.50", wxPoint(20, 60), wxSize(100, -1), 0,
                         wxNumValidator(CNumberFormat(eFixedFormat), &price)));
    EXPECT_EQ(ReadFocused().role, "text");
    EXPECT_EQ(ReadFocused().label, "Price:");
}

}  // namespace
