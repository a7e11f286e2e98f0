// A sheet whose colour the user chooses from a drop-down. The sheet shows each colour already while the pointer or the
// arrow keys move over it.

#include <wx/wx.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>

class SheetFrame : public wxFrame, private wxColorPopupListener
{
public:
    SheetFrame() : wxFrame(nullptr, wxID_ANY, "Sheet")
    {
        auto* popup = new wxColourPopup;
        popup->SetInitialColour(*wxWHITE);
        popup->SetDefaultColour(*wxWHITE);  // what "Automatic" stands for
        popup->SetColorListener(this);
        auto* bar = new wxPanel(this);
        auto* label = new wxStaticText(bar, wxID_ANY, "&Paper:");
        auto* combo = new wxColourCombo;
        combo->Create(bar, wxID_ANY, "", wxDefaultPosition, wxSize(160, -1), wxCB_READONLY);
        combo->SetPopupControl(popup);  // the combo owns it from now on
        combo->SetFocus();

        auto* row = new wxBoxSizer(wxHORIZONTAL);
        row->Add(label, wxSizerFlags().CentreVertical().Border());
        row->Add(combo, wxSizerFlags().Border());
        bar->SetSizer(row);
        auto* column = new wxBoxSizer(wxVERTICAL);
        column->Add(bar, wxSizerFlags().Expand());
        column->Add(m_sheet, wxSizerFlags(1).Expand());
        SetSizer(column);
        Paint(*wxWHITE);
    }

private:
    void OnColourSelChange(const wxColour& colour) override { Paint(colour); }
    void OnColourSelCancel(const wxColour& colour) override { Paint(colour); }
    void OnColourSelEnd(const wxColour& colour) override
    {
        Paint(colour);
        SetTitle("Sheet in " + colour.GetAsString(wxC2S_HTML_SYNTAX));
    }

    void Paint(const wxColour& colour)
    {
        m_sheet->SetBackgroundColour(colour);
        m_sheet->Refresh();
    }

    wxPanel* m_sheet = new wxPanel(this);
};

class SheetApp : public wxApp
{
    bool OnInit() override { return (new SheetFrame)->Show(); }
};
wxIMPLEMENT_APP(SheetApp);
