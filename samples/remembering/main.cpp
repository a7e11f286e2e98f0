// Opens and saves text files. The open dialog and the save dialog each start at the file that was last chosen in that
// dialog.

#include <wx/wx.h>

#include <fittings/dialogs/remembering_dialogs.h>

class TextFrame : public wxFrame
{
public:
    TextFrame() : wxFrame(nullptr, wxID_ANY, "Texts")
    {
        auto* menu = new wxMenu;
        menu->Append(wxID_OPEN, "&Open...\tCtrl+O");
        menu->Append(wxID_SAVEAS, "Save &as...\tCtrl+S");
        auto* bar = new wxMenuBar;
        bar->Append(menu, "&File");
        SetMenuBar(bar);
        Bind(wxEVT_MENU, &TextFrame::OnOpen, this, wxID_OPEN);
        Bind(wxEVT_MENU, &TextFrame::OnSave, this, wxID_SAVEAS);
    }

private:
    static constexpr const char* kFiles = "Texts (*.txt)|*.txt|All files|*";

    void OnOpen(wxCommandEvent&)
    {
        wxRememberingFileDialog dialog(this, "OpenedText", "Open texts", kFiles,
                                       wxFD_OPEN | wxFD_FILE_MUST_EXIST | wxFD_MULTIPLE);
        if (dialog.ShowModal() != wxID_OK)
            return;
        wxArrayString paths;
        dialog.GetPaths(paths);
        for (const wxString& path : paths)
            m_text->LoadFile(path);
        SetTitle(wxString::Format("%zu opened, %s shown", paths.size(), paths.back()));
    }

    void OnSave(wxCommandEvent&)
    {
        wxRememberingFileDialog dialog(this, "SavedText", "Save the text", kFiles, wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
        if (dialog.ShowModal() == wxID_OK && m_text->SaveFile(dialog.GetPath()))
            SetTitle("Saved in " + dialog.GetPath());
    }

    wxTextCtrl* m_text = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_MULTILINE);
};

class TextApp : public wxApp
{
    bool OnInit() override { return (new TextFrame)->Show(); }
};
wxIMPLEMENT_APP(TextApp);
