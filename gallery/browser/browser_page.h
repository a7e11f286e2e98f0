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

/// Sent by a BrowserPage when the folder, its sizes, the filter, the selected entry or the set of shown panes changes.
/// The event propagates to the gallery's window, which updates its title, menus and status bar.
wxDECLARE_EVENT(EVT_BROWSER_CHANGED, wxCommandEvent);

/// The disk-usage browser: folders to the left, the contents of the selected folder to the right.
///
/// The constructor restores the columns and the filter of the last session. Start() restores the folder, and
/// LoadLayout() restores the panes.
class BrowserPage : public wxPanel
{
public:
    explicit BrowserPage(wxWindow* parent);
    ~BrowserPage() override;

    /// Opens the first of these that is a folder: @a folder, the root folder of the last session, the home folder, "/".
    ///
    /// If @a folder is neither empty nor a folder, the page shows the reason, and the function returns the reason.
    /// Otherwise returns an empty text.
    wxString Start(const std::string& folder);

    FolderTree* GetTree() const { return m_tree; }
    ContentsList* GetList() const { return m_list; }
    FolderColourCombo* GetColour() const { return m_colour; }
    SizeFilter* GetFilter() const { return m_filter; }
    SizesRow* GetSizes() const { return m_sizes; }
    wxToolBar* GetTools() const { return m_tools; }
    wxAuiManager& GetLayout() { return m_layout; }

    /// Puts the panes where they were in the last session. Only the first call has an effect. Make this call when the
    /// page is on the screen: window managers keep a floating pane above the main window only if the pane appears
    /// after that window.
    void LoadLayout();

    /// Shows or hides the floating panes. Call this function when the page is shown or hidden: the toolkit does not
    /// show or hide floating panes with the page.
    void ShowFloatingPanes(bool show);

    void SaveSettings();

    /// @name The state of the page
    /// @{
    const std::string& GetFolder() const { return m_folder; }
    bool HasFolderAbove() const;
    bool ShowsFolders();
    wxString GetSummary() const;
    wxString GetSelectionText() const;
    /// @}

    /// Opens @a folder. If it is not a folder, shows the reason and returns false.
    bool Open(const std::string& folder);

    /// @name Commands
    /// @{
    void OpenFolder();
    void GoUp();
    void RefreshFolders();
    void ToggleFolders();

    /// Opens the drop-down with the colours for the folder.
    void ChooseColour();

    /// Writes the entries of the list into a file that the user chooses.
    void SaveReport();

    /// Puts the panes back to their initial places.
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
    wxPoint m_floatingPlace = wxDefaultPosition;  ///< The place of the folders' pane when the page was last hidden.
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
