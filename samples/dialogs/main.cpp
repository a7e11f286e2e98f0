// Lists the files of a folder, and saves the list. Each dialog starts in the folder where it was last used.

#include <wx/dir.h>
#include <wx/wx.h>

#include <fittings/dialogs/file_dialog.h>
#include <fittings/dialogs/folder_dialog.h>

class ListFrame : public wxFrame
{
public:
    ListFrame() : wxFrame(nullptr, wxID_ANY, "File list")
    {
        auto* menu = new wxMenu;
        menu->Append(wxID_OPEN, "&Open a folder...\tCtrl+O");
        menu->Append(wxID_SAVE, "&Save the list...\tCtrl+S");
        auto* bar = new wxMenuBar;
        bar->Append(menu, "&File");
        SetMenuBar(bar);
        Bind(wxEVT_MENU, &ListFrame::OnOpen, this, wxID_OPEN);
        Bind(wxEVT_MENU, &ListFrame::OnSave, this, wxID_SAVE);
    }

private:
    void OnOpen(wxCommandEvent&)
    {
        const wxString folder = wxFolderDlg::DoModalReg(this, "ListedFolder", "List the files of");
        if (folder.empty())
            return;  // cancelled
        wxArrayString files;
        wxDir::GetAllFiles(folder, &files, "", wxDIR_FILES);
        files.Sort();
        m_list->SetValue(wxJoin(files, '\n'));
        SetTitle(wxString::Format("%zu files in %s", files.size(), folder));
    }

    void OnSave(wxCommandEvent&)
    {
        const std::string earlier = CQVFileDialogI::SetRegEntry("SavedList");
        const wxString path =
            CQVFileDialogI::LaunchSaveDialog(this, "txt", "Texts (*.txt)|*.txt|All files|*", "Save the list", "", "");
        CQVFileDialogI::SetRegEntry(earlier);
        if (!path.empty() && m_list->SaveFile(path))
            SetTitle("Saved in " + path);
    }

    wxTextCtrl* m_list =
        new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_MULTILINE | wxTE_READONLY);
};

class ListApp : public wxApp
{
    bool OnInit() override { return (new ListFrame)->Show(); }
};
wxIMPLEMENT_APP(ListApp);
