#ifndef FITTINGS_GALLERY_BROWSER_FRAME_H_
#define FITTINGS_GALLERY_BROWSER_FRAME_H_

#include <string>

#include <wx/aui/framemanager.h>
#include <wx/frame.h>

class wxDataViewEvent;
class wxInfoBar;
class wxStaticText;

namespace fittings {

class ContentsList;
class FolderTree;

/// The disk-usage browser: folders to the left, the contents of the selected one to the right.
///
/// Window, layout, columns and folders come back as they were when the last frame was closed.
class BrowserFrame : public wxFrame
{
public:
    BrowserFrame();
    ~BrowserFrame() override;

    /// Opens @a folder; when it is empty, the folder of the last session, and in the first session the home folder.
    ///
    /// Another folder is opened in place of one that is none; the window says why, and so does the text returned.
    wxString Start(const std::string& folder);

    FolderTree* GetTree() const { return m_tree; }
    ContentsList* GetList() const { return m_list; }
    wxAuiManager& GetLayout() { return m_layout; }

    /// Forgets how the panes were moved.
    void ResetLayout();

private:
    void MakeMenus();
    void ShareMenuKeys(wxWindow* pane);
    void MakeTools();
    wxWindow* MakeContents(wxWindow* parent);
    void BindEvents();
    void LoadLayout();

    void OpenRoot(const std::string& path);
    void RememberRoot();
    void ShowFolder(const std::string& path);
    void ShowSelectedEntry();
    void ShowLayoutInMenu();

    void OnOpen();
    void OnUp();
    void OnRefresh();
    void OnQuit();
    void OnToggleFolders();
    void OnAbout();
    void OnActivated(wxDataViewEvent& event);
    void OnClose(wxCloseEvent& event);

    wxAuiManager m_layout;
    wxString m_firstLayout;
    bool m_layoutLoaded = false;
    FolderTree* m_tree = nullptr;
    ContentsList* m_list = nullptr;
    wxStaticText* m_location = nullptr;
    wxInfoBar* m_note = nullptr;
    std::string m_shown;
};

}  // namespace fittings

#endif
