#include <fittings/xrc/colour_combo_handler.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>
#include <tests/support/gui.h>
#include <tests/xrc/loaded_resource.h>

// A host's class that controls.xrc names as the subclass of a control.
class NotingCombo : public wxColourCombo, private wxColorPopupListener
{
public:
    void Listen() { dynamic_cast<wxColourPopup*>(GetPopupControl())->SetColorListener(this); }

    std::vector<std::string> chosen;

private:
    void OnColourSelEnd(const wxColour& colour) override
    {
        chosen.push_back(colour.GetAsString(wxC2S_HTML_SYNTAX).utf8_string());
    }

    wxDECLARE_DYNAMIC_CLASS(NotingCombo);
};

wxIMPLEMENT_DYNAMIC_CLASS(NotingCombo, wxColourCombo);

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using ColourComboXmlHandler = LoadedResourceTest;

wxColourPopup* PopupOf(wxColourCombo* combo)
{
    return dynamic_cast<wxColourPopup*>(combo->GetPopupControl());
}

bool HasBox(wxColourPopup* popup, int cell)
{
    return popup->GetRow(cell) == cell;
}

TEST_F(ColourComboXmlHandler, GivesWhatTheResourceSays)
{
    wxFrame* const frame = resource.MakeFrame("frame");
    ASSERT_NE(frame, nullptr);
    auto* const combo = XRCCTRL(*frame, "line", wxColourCombo);
    ASSERT_NE(dynamic_cast<wxColourCombo*>(combo), nullptr);
    EXPECT_THAT(resource.errors, IsEmpty());

    EXPECT_EQ(combo->GetId(), XRCID("line"));
    EXPECT_EQ(combo->GetName(), "line");
    EXPECT_TRUE(combo->HasFlag(wxCB_READONLY));
    EXPECT_EQ(combo->GetTextCtrl(), nullptr);
    EXPECT_EQ(combo->GetWindowStyleFlag() & wxBORDER_MASK, wxBORDER_NONE);
    EXPECT_EQ(combo->GetValue(), "Blue");
    EXPECT_EQ(combo->GetToolTipText(), "The colour of new lines");
    ASSERT_TRUE(ShowAndSettle(frame));
    EXPECT_EQ(combo->GetSize(), wxSize(150, 30));
    EXPECT_EQ(combo->GetButtonSize().x, 40);

    wxColourPopup* const popup = PopupOf(combo);
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->GetInitialColour(), wxColour(255, 104, 32));
    EXPECT_EQ(popup->GetDefaultColour(), wxColour(0, 0, 255));
    EXPECT_TRUE(popup->GetRefreshCombo());
}

TEST_F(ColourComboXmlHandler, TakesWhatIsUsualForWhatTheResourceDoesNotSay)
{
    wxFrame* const frame = resource.MakeFrame("frame");
    auto* const combo = XRCCTRL(*frame, "plain", wxColourCombo);
    EXPECT_FALSE(combo->HasFlag(wxCB_READONLY));
    EXPECT_NE(combo->GetTextCtrl(), nullptr);
    EXPECT_EQ(combo->GetValue(), "");
    EXPECT_TRUE(combo->IsEnabled());
    wxColourPopup* const popup = PopupOf(combo);
    EXPECT_EQ(popup->GetInitialColour(), *wxBLACK);
    EXPECT_EQ(popup->GetDefaultColour(), *wxBLACK);
    EXPECT_FALSE(popup->GetRefreshCombo());
    EXPECT_TRUE(HasBox(popup, CELL_AUTOMATIC));
    EXPECT_TRUE(HasBox(popup, CELL_MORE_COLOURS));
}

TEST_F(ColourComboXmlHandler, LeavesOutTheBoxesWhoseTextIsEmpty)
{
    wxFrame* const frame = resource.MakeFrame("frame");
    auto* const combo = XRCCTRL(*frame, "grid-only", wxColourCombo);
    EXPECT_FALSE(HasBox(PopupOf(combo), CELL_AUTOMATIC));
    EXPECT_FALSE(HasBox(PopupOf(combo), CELL_MORE_COLOURS));
    EXPECT_FALSE(combo->IsEnabled());
}

// The popup's string value is the name of the cell that the keys have reached.
TEST_F(ColourComboXmlHandler, MakesAControlThatCanBeUsedByKeys)
{
    wxFrame* const frame = resource.MakeFrame("frame");
    auto* const combo = XRCCTRL(*frame, "line", wxColourCombo);
    ASSERT_TRUE(ShowAndSettle(frame));
    combo->SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return combo->HasFocus(); }));
    wxUIActionSimulator user;
    user.Char(WXK_F4);
    ASSERT_TRUE(PumpUntil([&] { return combo->IsPopupShown(); }));
    user.Char(WXK_UP);
    EXPECT_TRUE(PumpUntil([&] { return PopupOf(combo)->GetStringValue() == "My_own & none"; }))
        << PopupOf(combo)->GetStringValue();
    user.Char(WXK_UP);
    EXPECT_TRUE(PumpUntil([&] { return PopupOf(combo)->GetStringValue() == "Others"; }))
        << PopupOf(combo)->GetStringValue();
    user.Char(WXK_DOWN);
    user.Char(WXK_RETURN);
    ASSERT_TRUE(PumpUntil([&] { return !combo->IsPopupShown(); }));
    EXPECT_EQ(PopupOf(combo)->GetInitialColour(), *wxBLUE);
    EXPECT_EQ(combo->GetValue(), "My_own & none");
}

TEST_F(ColourComboXmlHandler, MakesTheSubclassThatTheResourceNames)
{
    wxFrame* const frame = resource.MakeFrame("subclasses");
    auto* const combo = dynamic_cast<NotingCombo*>(frame->FindWindow("combo"));
    ASSERT_NE(combo, nullptr);
    EXPECT_THAT(resource.errors, IsEmpty());
    combo->Listen();
    ASSERT_TRUE(ShowAndSettle(frame));
    wxUIActionSimulator user;
    user.MouseMove(combo->ClientToScreen(wxPoint(20, combo->GetClientSize().y / 2)));
    user.MouseClick();
    ASSERT_TRUE(PumpUntil([&] { return combo->IsPopupShown(); }));
    PumpPending();
    wxRect red;
    ASSERT_TRUE(PopupOf(combo)->GetCellRect(16, red));
    user.MouseMove(PopupOf(combo)->ClientToScreen(red.GetPosition() + red.GetSize() / 2));
    ASSERT_TRUE(PumpUntil([&] { return PopupOf(combo)->GetStringValue() == "Red"; }));
    user.MouseClick();
    EXPECT_TRUE(PumpUntil([&] { return !combo->chosen.empty(); }));
    EXPECT_THAT(combo->chosen, ElementsAre("#FF0000"));
}

TEST_F(ColourComboXmlHandler, ReportsWhatItCannotUnderstandAndTakesWhatIsUsual)
{
    wxPanel* const panel = resource.MakePanel("bad-combo");
    ASSERT_NE(panel, nullptr);
    for (const char* value : {"wxCB_FANCY", "wide", "large", "bluish", "#12", "maybe"})
        EXPECT_THAT(resource.errors, Contains(HasSubstr('"' + std::string(value) + '"')).Times(1)) << value;
    EXPECT_EQ(resource.errors.size(), 6U);

    auto* const combo = XRCCTRL(*panel, "combo", wxColourCombo);
    EXPECT_TRUE(combo->HasFlag(wxCB_READONLY));
    EXPECT_EQ(PopupOf(combo)->GetInitialColour(), *wxBLACK);
    EXPECT_EQ(PopupOf(combo)->GetDefaultColour(), *wxBLACK);
    EXPECT_FALSE(PopupOf(combo)->GetRefreshCombo());
    EXPECT_GT(combo->GetSize().x, 30);
}

TEST_F(ColourComboXmlHandler, MakesAPlainControlInsteadOfASubclassThatIsNone)
{
    wxPanel* const panel = resource.MakePanel("wrong-subclasses");
    EXPECT_THAT(resource.errors, Contains("the object to load is no wxColourCombo").Times(1));
    EXPECT_NE(PopupOf(dynamic_cast<wxColourCombo*>(panel->FindWindow("combo"))), nullptr);
    ASSERT_EQ(StrayObject::made.size(), 2U);
}

TEST_F(ColourComboXmlHandler, GivesTheColourWithItsNameAndItsMark)
{
    wxPanel* const panel = resource.MakePanel("colours");
    const auto get = [panel](const char* name) { return dynamic_cast<wxColourCombo*>(panel->FindWindow(name)); };
    EXPECT_EQ(get("by-name")->GetColour(), wxColour(50, 205, 50));
    EXPECT_EQ(get("by-name")->GetValue(), "Lime");
    EXPECT_EQ(get("by-number")->GetColour(), *wxRED);
    EXPECT_EQ(get("by-number")->GetValue(), "No line");
    EXPECT_EQ(get("as-value")->GetColour(), *wxBLUE);
    EXPECT_EQ(get("as-value")->GetValue(), "Blue");
    EXPECT_EQ(get("as-capital-value")->GetColour(), *wxBLUE) << "the toolkit accepts both cases";
    EXPECT_EQ(get("as-capital-value")->GetValue(), "Blue");
    EXPECT_EQ(get("as-text")->GetColour(), *wxBLACK);
    EXPECT_EQ(get("as-text")->GetValue(), "#12");
    EXPECT_EQ(get("bad")->GetColour(), *wxBLACK);
    ASSERT_EQ(resource.errors.size(), 1U);
    EXPECT_THAT(resource.errors.front(), HasSubstr("\"bluish\""));
}

TEST_F(ColourComboXmlHandler, LoadsIntoAnObjectOfTheHost)
{
    wxFrame* const frame = resource.MakeFrame("subclasses");
    auto* const combo = new wxColourCombo;
    EXPECT_TRUE(resource.LoadObjectRecursively(combo, frame, "line", "wxColourCombo"));
    EXPECT_EQ(combo->GetParent(), frame);
    EXPECT_EQ(PopupOf(combo)->GetInitialColour(), wxColour(255, 104, 32));
}

}  // namespace
