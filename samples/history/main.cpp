// Shows text files. The menu lists the files that were opened last. This list is kept in the program's settings.

#include <wx/filehistory.h>
#include <wx/wx.h>

#include <fittings/config/store_config.h>
#include <fittings/dialogs/remembering_dialogs.h>

class TextFrame : public wxFrame
{
public:
    TextFrame() : wxFrame(nullptr, wxID_ANY, "Recent texts")
    {
        auto* menu = new wxMenu;
        menu->Append(wxID_OPEN, "&Open...\tCtrl+O");
        auto* bar = new wxMenuBar;
        bar->Append(menu, "&File");
        SetMenuBar(bar);
        m_recent.UseMenu(menu);
        wxConfigBase::Get()->SetPath("/RecentTexts");
        m_recent.Load(*wxConfigBase::Get());

        Bind(wxEVT_MENU, &TextFrame::OnOpen, this, wxID_OPEN);
        Bind(wxEVT_MENU, &TextFrame::OnRecent, this, wxID_FILE1, wxID_FILE9);
    }

private:
    void OnOpen(wxCommandEvent&)
    {
        wxRememberingFileDialog dialog(this, "Text", "Open a text", "All files|*", wxFD_OPEN | wxFD_FILE_MUST_EXIST);
        if (dialog.ShowModal() == wxID_OK)
            ShowText(dialog.GetPath());
    }

    void OnRecent(wxCommandEvent& event) { ShowText(m_recent.GetHistoryFile(event.GetId() - wxID_FILE1)); }

    void ShowText(const wxString& path)
    {
        if (!m_text->LoadFile(path))
            return;
        m_recent.AddFileToHistory(path);
        m_recent.Save(*wxConfigBase::Get());
        SetTitle(wxConfigBase::Get()->Flush() ? path : path + " (the list could not be stored)");
    }

    wxTextCtrl* m_text =
        new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_MULTILINE | wxTE_READONLY);
    wxFileHistory m_recent;
};

class TextApp : public wxApp
{
    bool OnInit() override
    {
        wxConfigBase::Set(new wxStoreConfig);  // the toolkit deletes it when the program ends
        return (new TextFrame)->Show();
    }
};
wxIMPLEMENT_APP(TextApp);
