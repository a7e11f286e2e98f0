#ifndef FITTINGS_GALLERY_APP_GALLERY_FRAME_H_
#define FITTINGS_GALLERY_APP_GALLERY_FRAME_H_

#include <string>

#include <wx/frame.h>

#include <gallery/browser/recent_folders.h>

class wxBookCtrlEvent;
class wxMenu;
class wxNotebook;

namespace gallery {

class BrowserPage;
class ColoursPage;
class NumbersPage;

/// The gallery's window: the disk-usage browser, and a page for each component that is shown by itself.
///
/// The window and its pages are restored as they were when the last window was closed.
class GalleryFrame : public wxFrame
{
public:
    GalleryFrame();

    /// Opens a folder in the browser, see BrowserPage::Start(). When a folder is given, also selects the browser's
    /// page.
    wxString Start(const std::string& folder);

    wxNotebook* GetPages() const { return m_pages; }
    BrowserPage* GetBrowser() const { return m_browser; }
    NumbersPage* GetNumbers() const { return m_numbers; }
    ColoursPage* GetColours() const { return m_colours; }

private:
    void MakeMenus();
    wxMenu* MakeViewMenu() const;
    void ShareMenuKeys(wxWindow* pane);
    void BindEvents();
    bool ShowsBrowser() const;
    void ShowPage(int index);
    void ShowState();
    void OpenRecent(int id);
    void OnMapped();
    void OnPageChanged(wxBookCtrlEvent& event);
    void OnCharHook(wxKeyEvent& event);
    void OnAbout();
    void OnClose(wxCloseEvent& event);

    wxNotebook* m_pages = nullptr;
    BrowserPage* m_browser = nullptr;
    NumbersPage* m_numbers = nullptr;
    ColoursPage* m_colours = nullptr;
    RecentFolders m_recent;
    bool m_mapped = false;
};

}  // namespace gallery

#endif
