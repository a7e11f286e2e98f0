// A sheet whose colour the user chooses from a drop-down. While the pointer or the arrow keys move over a colour, the
// sheet already shows it.

#include <wx/wx.h>

#include <fittings/colour/colour_combo.h>

class SheetFrame : public wxFrame
{
public:
    SheetFrame() : wxFrame(nullptr, wxID_ANY, "Sheet")
    {
        auto* bar = new wxPanel(this);
        auto* label = new wxStaticText(bar, wxID_ANY, "&Paper:");
        auto* combo = new wxColourCombo(bar, wxID_ANY, *wxWHITE, wxDefaultPosition, wxSize(160, -1));
        combo->SetAutomaticColour(*wxWHITE);
        combo->SetFocus();
        Bind(wxEVT_COLOURPICKER_CURRENT_CHANGED, &SheetFrame::Paint, this);
        Bind(wxEVT_COLOURPICKER_DIALOG_CANCELLED, &SheetFrame::Paint, this);
        Bind(wxEVT_COLOURPICKER_CHANGED, &SheetFrame::Paint, this);

        auto* row = new wxBoxSizer(wxHORIZONTAL);
        row->Add(label, wxSizerFlags().CentreVertical().Border());
        row->Add(combo, wxSizerFlags().Border());
        bar->SetSizer(row);
        auto* column = new wxBoxSizer(wxVERTICAL);
        column->Add(bar, wxSizerFlags().Expand());
        column->Add(m_sheet, wxSizerFlags(1).Expand());
        SetSizer(column);
        m_sheet->SetBackgroundColour(*wxWHITE);
    }

private:
    void Paint(wxColourPickerEvent& event)
    {
        m_sheet->SetBackgroundColour(event.GetColour());
        m_sheet->Refresh();
        if (event.GetEventType() == wxEVT_COLOURPICKER_CHANGED)
            SetTitle("Sheet in " + event.GetColour().GetAsString(wxC2S_HTML_SYNTAX));
    }

    wxPanel* m_sheet = new wxPanel(this);
};

class SheetApp : public wxApp
{
    bool OnInit() override { return (new SheetFrame)->Show(); }
};
wxIMPLEMENT_APP(SheetApp);
