// Code written for wxColourPickerCtrl, compiled and run with that class and with wxColourCombo.

#include <string>

#include <gtest/gtest.h>

#include <gtk/gtk.h>
#include <wx/clrpicker.h>
#include <wx/dialog.h>
#include <wx/log.h>
#include <wx/uiaction.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>
#include <fittings/colour/colour_validator.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>
#include <tests/xrc/loaded_resource.h>

namespace {

constexpr int kLine = 4321;

const wxColour kTeal(0, 128, 128);

// --- Different for each class: how a user chooses a colour -----------------------------------------------------------

template <typename Control>
struct User;

template <>
struct User<wxColourPickerCtrl>
{
    static constexpr const char* kName = "Picker";
    static constexpr const char* kResource = "picker";

    // Chooses teal without opening GTK's dialog: sets the button's colour, and emits the signal that OK would cause.
    static wxColour Choose(wxColourPickerCtrl& control)
    {
        GtkWidget* const button = control.GetPickerCtrl()->GetHandle();
        const GdkRGBA rgba{0, 128 / 255.0, 128 / 255.0, 1};
        gtk_color_chooser_set_rgba(GTK_COLOR_CHOOSER(button), &rgba);
        g_signal_emit_by_name(button, "color-set");
        return {0, 128, 128};
    }
};

template <>
struct User<wxColourCombo>
{
    static constexpr const char* kName = "DropDown";
    static constexpr const char* kResource = "drop-down";

    static wxColour Choose(wxColourCombo& control)
    {
        wxUIActionSimulator user;
        control.SetFocus();
        EXPECT_TRUE(PumpUntil([&] { return control.HasFocus(); }));
        user.Char(WXK_F4);
        EXPECT_TRUE(PumpUntil([&] { return control.IsPopupShown(); }));
        user.Char(WXK_UP);
        user.Char(WXK_RIGHT);
        user.Char(WXK_RIGHT);
        user.Char(WXK_RETURN);
        EXPECT_TRUE(PumpUntil([&] { return !control.IsPopupShown(); }));
        return {165, 42, 0};
    }
};

// --- The same for both classes: the program's code -------------------------------------------------------------------

template <typename Control>
class LinePage : public wxPanel
{
public:
    explicit LinePage(wxWindow* parent) : wxPanel(parent)
    {
        control = new Control(this, kLine, line, wxPoint(10, 10), wxSize(150, -1));
        Bind(wxEVT_COLOURPICKER_CHANGED, &LinePage::OnColour, this, kLine);
    }

    Control* control = nullptr;
    wxColour line = *wxBLUE;
    int changes = 0;

private:
    void OnColour(wxColourPickerEvent& event)
    {
        ++changes;
        EXPECT_EQ(event.GetId(), kLine);
        EXPECT_EQ(event.GetEventObject(), control);
        EXPECT_EQ(event.GetColour(), control->GetColour());
        line = event.GetColour();
    }
};

template <typename Control>
class WhereAColourPickerStands : public testing::Test
{
protected:
    OwnedWindow<wxFrame> frame{new wxFrame(nullptr, wxID_ANY, "colours", wxPoint(200, 150), wxSize(400, 300))};
};

using Controls = testing::Types<wxColourPickerCtrl, wxColourCombo>;

struct NameOfControl
{
    template <typename Control>
    static std::string GetName(int /*index*/)
    {
        return User<Control>::kName;
    }
};

TYPED_TEST_SUITE(WhereAColourPickerStands, Controls, NameOfControl);

TYPED_TEST(WhereAColourPickerStands, IsConstructed)
{
    wxFrame* const parent = this->frame;
    EXPECT_EQ((new TypeParam(parent, wxID_ANY))->GetColour(), *wxBLACK);
    EXPECT_EQ((new TypeParam(parent, wxID_ANY, *wxRED))->GetColour(), *wxRED);
    EXPECT_EQ((new TypeParam(parent, wxID_ANY, wxColour("#123456")))->GetColour(), wxColour(0x12, 0x34, 0x56));
    EXPECT_EQ((new TypeParam(parent, wxID_ANY, "red", wxPoint(3, 4)))->GetPosition(), wxPoint(3, 4));
    EXPECT_EQ((new TypeParam(parent, kLine, *wxRED))->GetId(), kLine);
}

TYPED_TEST(WhereAColourPickerStands, IsCreated)
{
    auto* const control = new TypeParam;
    EXPECT_TRUE(control->Create(this->frame, kLine, *wxRED, wxDefaultPosition, wxSize(150, -1)));
    EXPECT_EQ(control->GetId(), kLine);
    EXPECT_EQ(control->GetColour(), *wxRED);
    EXPECT_EQ(control->GetParent(), this->frame);
}

TYPED_TEST(WhereAColourPickerStands, TakesAColourAtAnyTimeAndTellsNobody)
{
    auto* const page = new LinePage<TypeParam>(this->frame);
    ASSERT_TRUE(ShowAndSettle(this->frame));
    page->control->SetColour(*wxRED);
    EXPECT_EQ(page->control->GetColour(), *wxRED);
    EXPECT_TRUE(page->control->SetColour(wxString("#00FF00")));
    EXPECT_EQ(page->control->GetColour(), *wxGREEN);
    EXPECT_FALSE(page->control->SetColour(wxString("no colour")));
    EXPECT_EQ(page->control->GetColour(), *wxGREEN);
    PumpPending();
    EXPECT_EQ(page->changes, 0);
}

TYPED_TEST(WhereAColourPickerStands, TellsOfTheColourThatIsChosen)
{
    auto* const page = new LinePage<TypeParam>(this->frame);
    ASSERT_TRUE(ShowAndSettle(this->frame));
    const wxColour chosen = User<TypeParam>::Choose(*page->control);
    EXPECT_TRUE(PumpUntil([&] { return page->changes > 0; }));
    EXPECT_EQ(page->changes, 1);
    EXPECT_EQ(page->line, chosen);
    EXPECT_EQ(page->control->GetColour(), chosen);
}

TYPED_TEST(WhereAColourPickerStands, MovesTheColourOfTheHost)
{
    wxColour line = *wxRED;
    wxDialog dialog(this->frame, wxID_ANY, "Line");
    auto* const control = new TypeParam(&dialog, wxID_ANY, *wxBLACK, wxDefaultPosition, wxDefaultSize);
    control->SetValidator(wxColourValidator(&line));
    EXPECT_TRUE(dialog.TransferDataToWindow());
    EXPECT_EQ(control->GetColour(), *wxRED);
    control->SetColour(kTeal);
    EXPECT_EQ(line, *wxRED);
    EXPECT_TRUE(dialog.Validate());
    EXPECT_TRUE(dialog.TransferDataFromWindow());
    EXPECT_EQ(line, kTeal);

    const wxLogNull quiet;
    line = wxColour();
    EXPECT_FALSE(dialog.TransferDataToWindow());
    EXPECT_EQ(control->GetColour(), kTeal);
    EXPECT_TRUE(dialog.TransferDataFromWindow());
    EXPECT_EQ(line, kTeal);
}

TYPED_TEST(WhereAColourPickerStands, IsLoadedFromAResource)
{
    LoadedResource resource;
    wxPanel* const panel = resource.MakePanel(User<TypeParam>::kResource);
    ASSERT_NE(panel, nullptr);
    EXPECT_TRUE(resource.errors.empty());
    auto* const control = XRCCTRL(*panel, "line", TypeParam);
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(control->GetColour(), *wxRED);
    EXPECT_EQ(control->GetSize().x, 150);
    int changes = 0;
    panel->Bind(
        wxEVT_COLOURPICKER_CHANGED, [&](wxColourPickerEvent&) { ++changes; }, XRCID("line"));
    ASSERT_TRUE(ShowAndSettle(dynamic_cast<wxTopLevelWindow*>(wxGetTopLevelParent(panel))));
    User<TypeParam>::Choose(*control);
    EXPECT_TRUE(PumpUntil([&] { return changes == 1; }));
}

TEST(ColourValidator, MovesNothingWithoutAVariableOrBesideAnotherControl)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "colours"));
    wxColour line = *wxRED;
    wxColourValidator none(nullptr);
    EXPECT_TRUE(none.Validate(frame));
    EXPECT_TRUE(none.TransferToWindow());
    EXPECT_TRUE(none.TransferFromWindow());
    auto* const panel = new wxPanel(frame);
    panel->SetValidator(wxColourValidator(&line));
    EXPECT_FALSE(panel->GetValidator()->TransferToWindow());
    EXPECT_FALSE(panel->GetValidator()->TransferFromWindow());
    EXPECT_EQ(line, *wxRED);
    auto* const bare = new wxColourCombo;
    bare->Create(frame, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxCB_READONLY, wxColourValidator(&line));
    EXPECT_FALSE(bare->GetValidator()->TransferToWindow()) << "a combo without a popup has no colour";
    EXPECT_FALSE(bare->GetValidator()->TransferFromWindow());
    EXPECT_EQ(line, *wxRED);
    bare->SetPopupControl(new wxColourPopup);
    EXPECT_TRUE(bare->GetValidator()->TransferToWindow());
    EXPECT_EQ(bare->GetColour(), *wxRED);
}

}  // namespace
