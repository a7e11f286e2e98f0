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
        auto* combo = new wxColourCombo;
        combo->Create(m_panel, wxID_ANY, "", wxPoint(20, 20), wxSize(160, -1), wxCB_READONLY);
        combo->SetPopupControl(popup);  // the combo owns it from now on
        combo->SetFocus();
        Show(*wxWHITE);
    }

private:
    void OnColourSelChange(const wxColour& colour) override { Show(colour); }
    void OnColourSelCancel(const wxColour& colour) override { Show(colour); }
    void OnColourSelEnd(const wxColour& colour) override
    {
        Show(colour);
        SetTitle("Sheet in " + colour.GetAsString(wxC2S_HTML_SYNTAX));
    }

    void Show(const wxColour& colour)
    {
        m_panel->SetBackgroundColour(colour);
        m_panel->Refresh();
    }

    wxPanel* m_panel = new wxPanel(this);
};

class SheetApp : public wxApp
{
    bool OnInit() override { return (new SheetFrame)->wxFrame::Show(); }
};
wxIMPLEMENT_APP(SheetApp);
