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

/// The gallery's window. Its pages are the disk-usage browser, a page for numbers and a page for colours.
///
/// A new window starts in the state that the previous window had when it was closed.
class GalleryFrame : public wxFrame
{
public:
    GalleryFrame();

    /// Opens a folder in the browser, and returns what BrowserPage::Start() returns. If @a folder is not empty, also
    /// selects the browser's page.
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
