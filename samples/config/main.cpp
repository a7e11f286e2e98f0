// A window that restores its position, size and maximised state. It also restores the sizes of its panes, and the text
// and the number in them.

#include <stdexcept>

#include <wx/aui/framemanager.h>
#include <wx/spinctrl.h>
#include <wx/wx.h>

#include <fittings/config/ui_config_mgr.h>
#include <fittings/config/wx_window_state.h>

class NotesFrame : public wxFrame
{
public:
    NotesFrame() : wxFrame(nullptr, wxID_ANY, "Notes"), m_panes(this)
    {
        m_text->SetValue(ui_config_mgr::GetConfigString("notes.ini", "Notes", "Text"));
        try {
            m_copies->SetValue(ui_config_mgr::GetConfigInt("notes.ini", "Notes", "Copies"));
        } catch (const std::logic_error&) {
            m_copies->SetValue(1);  // the user has edited the file, and the value is not a number
        }
        m_panes.AddPane(m_text, wxAuiPaneInfo().Name("text").CenterPane());
        m_panes.AddPane(m_copies,
                        wxAuiPaneInfo().Name("copies").Caption("Copies").Bottom().CloseButton(false).Floatable(false));
        m_panes.Update();
        wx_window_state::LoadAuiManagerState(&m_panes, "Notes");
        wx_window_state::LoadState(this, "Notes");
        Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
            ui_config_mgr::WriteConfigString("notes.ini", "Notes", "Text", m_text->GetValue());
            ui_config_mgr::WriteConfigInt("notes.ini", "Notes", "Copies", m_copies->GetValue());
            wx_window_state::SaveAuiManagerState(&m_panes, "Notes");
            wx_window_state::SaveState(this, "Notes");
            event.Skip();
        });
    }
    ~NotesFrame() override { m_panes.UnInit(); }

private:
    wxTextCtrl* m_text = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_MULTILINE);
    wxSpinCtrl* m_copies = new wxSpinCtrl(this);
    wxAuiManager m_panes;
};

class NotesApp : public wxApp
{
    bool OnInit() override { return (new NotesFrame)->Show(); }
};
wxIMPLEMENT_APP(NotesApp);
