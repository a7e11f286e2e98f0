#ifndef FITTINGS_GALLERY_BROWSER_BROWSER_PAGE_H_
#define FITTINGS_GALLERY_BROWSER_BROWSER_PAGE_H_

#include <string>

#include <wx/aui/framemanager.h>
#include <wx/event.h>
#include <wx/panel.h>

class wxDataViewEvent;
class wxInfoBar;
class wxStaticText;
class wxToolBar;

namespace gallery {

class ContentsList;
class FolderColourCombo;
class FolderTree;
class SizeFilter;
class SizesRow;
struct SizeNews;

/// Sent by a BrowserPage when something of what the window shows about it is another: the folder, the selected entry or
/// which panes there are. It propagates to the window.
wxDECLARE_EVENT(EVT_BROWSER_CHANGED, wxCommandEvent);

/// The disk-usage browser: folders to the left, the contents of the selected one to the right.
///
/// Panes, columns and folders come back as they were when SaveSettings() was last called.
class BrowserPage : public wxPanel
{
public:
    explicit BrowserPage(wxWindow* parent);
    ~BrowserPage() override;

    /// Opens @a folder; when it is empty, the folder of the last session, and in the first session the home folder.
    ///
    /// Another folder is opened in place of one that is none; the page says why, and so does the text returned.
    wxString Start(const std::string& folder);

    FolderTree* GetTree() const { return m_tree; }
    ContentsList* GetList() const { return m_list; }
    FolderColourCombo* GetColour() const { return m_colour; }
    SizeFilter* GetFilter() const { return m_filter; }
    SizesRow* GetSizes() const { return m_sizes; }
    wxToolBar* GetTools() const { return m_tools; }
    wxAuiManager& GetLayout() { return m_layout; }

    /// Puts the panes where they were in the last session. Only once, and best when the page has come to the screen: a
    /// window manager keeps a floating pane above a window only when it appears after it.
    void LoadLayout();

    /// Shows or hides the panes that float, which do not go with the page.
    void ShowFloatingPanes(bool show);

    void SaveSettings();

    /// @name What there is to tell about the page
    /// @{
    const std::string& GetFolder() const { return m_folder; }
    bool HasFolderAbove() const;
    bool ShowsFolders();
    wxString GetSummary() const;
    wxString GetSelectionText() const;
    /// @}

    /// Opens a folder. Where it cannot be read, says so in the page, and returns false.
    bool Open(const std::string& folder);

    /// @name Commands
    /// @{
    void OpenFolder();
    void GoUp();
    void RefreshFolders();
    void ToggleFolders();

    /// Opens the colours that the folder can have.
    void ChooseColour();

    /// Asks for a file and writes what the list shows into it.
    void SaveReport();

    /// Forgets how the panes were moved.
    void ResetLayout();
    /// @}

private:
    void MakeTools();
    wxWindow* MakePanes();
    wxWindow* MakeContents(wxWindow* parent);
    void BindEvents();
    void OpenRoot(const std::string& path);
    void RememberRoot();
    void ShowFolder(const std::string& path);
    void ShowColour(const wxColour& colour);
    void OnSizes(const SizeNews& news);
    void OnActivated(wxDataViewEvent& event);
    void TellChange();

    wxAuiManager m_layout;
    wxString m_firstLayout;
    bool m_layoutLoaded = false;
    wxPoint m_floatingPlace = wxDefaultPosition;  ///< Of the folders, when they were last hidden with their page.
    FolderTree* m_tree = nullptr;
    ContentsList* m_list = nullptr;
    FolderColourCombo* m_colour = nullptr;
    SizeFilter* m_filter = nullptr;
    SizesRow* m_sizes = nullptr;
    wxToolBar* m_tools = nullptr;
    wxStaticText* m_location = nullptr;
    wxInfoBar* m_note = nullptr;
    std::string m_folder;
    wxString m_summary;
};

}  // namespace gallery

#endif
