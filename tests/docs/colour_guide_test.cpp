// The examples about colours in docs/guides, word for word.

#include <gtest/gtest.h>

#include <wx/clrpicker.h>
#include <wx/dialog.h>
#include <wx/frame.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>
#include <fittings/colour/colour_validator.h>
#include <tests/support/gui.h>

namespace {

namespace before {

void AddLineColour(wxWindow* parent, wxColour* line)
{
    auto* colour = new wxColourPickerCtrl(parent, wxID_ANY, *line);
    colour->Bind(wxEVT_COLOURPICKER_CHANGED, [=](wxColourPickerEvent& event) { *line = event.GetColour(); });
}

}  // namespace before

void AddLineColour(wxWindow* parent, wxColour* line)
{
    auto* colour = new wxColourCombo(parent, wxID_ANY, *line);
    colour->Bind(wxEVT_COLOURPICKER_CHANGED, [=](wxColourPickerEvent& event) { *line = event.GetColour(); });
}

void AddLineColourToDialog(wxDialog* dialog, wxColour* line)
{
    auto* colour = new wxColourCombo(dialog, wxID_ANY);
    colour->SetValidator(wxColourValidator(line));
    colour->SetAutomaticColour(*wxBLUE);
}

TEST(ColourGuide, GivesTheColourBeforeAndAfterTheMove)
{
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "guide");
    for (const bool moved : {false, true}) {
        wxColour line = *wxBLUE;
        (moved ? AddLineColour : before::AddLineColour)(frame, &line);
        auto* const control = dynamic_cast<wxWindow*>(frame->GetChildren().GetLast()->GetData());
        wxColourPickerEvent event(control, control->GetId(), *wxRED);
        control->HandleWindowEvent(event);
        EXPECT_EQ(line, *wxRED);
    }
    DestroyNow(frame);
}

TEST(ColourGuide, MovesTheColourOfADialog)
{
    wxDialog dialog(nullptr, wxID_ANY, "guide");
    wxColour line = *wxBLUE;
    AddLineColourToDialog(&dialog, &line);
    dialog.TransferDataToWindow();
    auto& combo = dynamic_cast<wxColourCombo&>(*dialog.GetChildren().GetLast()->GetData());
    EXPECT_EQ(combo.GetValue(), "Automatic");
    combo.SetColour(*wxRED);
    dialog.TransferDataFromWindow();
    EXPECT_EQ(line, *wxRED);
}

}  // namespace
