#include <gallery/app/gallery_frame.h>

#include <functional>
#include <memory>
#include <vector>

#include <gtk/gtk.h>
#include <wx/aboutdlg.h>
#include <wx/accel.h>
#include <wx/display.h>
#include <wx/menu.h>
#include <wx/notebook.h>

#include <fittings/base/version.h>
#include <fittings/config/persistence.h>
#include <fittings/config/wx_window_state.h>
#include <fittings/platform/local_reg_store.h>

#include <gallery/browser/browser_page.h>
#include <gallery/browser/contents_list.h>
#include <gallery/browser/folder_tree.h>
#include <gallery/colours/colours_page.h>
#include <gallery/folders/native_text.h>
#include <gallery/numbers/numbers_page.h>
#include <gallery/pages/page_settings.h>
#include <gallery/pages/window_helpers.h>

namespace gallery {

namespace {

constexpr const wchar_t* kStateName = L"Browser";
constexpr const char* kPage = "Page";
constexpr int kFirstPageId = wxID_HIGHEST + 1;

}  // namespace

GalleryFrame::GalleryFrame() : wxFrame(nullptr, wxID_ANY, "Fittings Gallery")
{
    wxStorePersistenceManager::Install();
    SetName("Gallery");
    SetMinSize(FromDIP(wxSize(480, 320)));
    wxSize size = FromDIP(wxSize(960, 640));
    size.DecTo(wxDisplay(this).GetClientArea().GetSize());
    SetSize(size);
    Centre();
    const int widths[] = {-3, -2};
    CreateStatusBar(2)->SetStatusWidths(2, widths);

    m_pages = new wxNotebook(this, wxID_ANY);
    SetAccessibleName(m_pages, "Pages");
    m_browser = new BrowserPage(m_pages);
    m_pages->AddPage(m_browser, "Disk usage");
    m_numbers = new NumbersPage(m_pages);
    m_pages->AddPage(m_numbers, "Numbers");
    m_colours = new ColoursPage(m_pages);
    m_pages->AddPage(m_colours, "Colours");
    MakeMenus();
    ShareMenuKeys(m_browser->GetTree());
    BindEvents();

    wx_window_state::LoadState(this, kStateName);
    m_browser->GetList()->SetFocus();
    ShowPage(m_pages->FindPage(FindWindowByName(kWindowSettings.Load(kPage), m_pages)));
}

wxString GalleryFrame::Start(const std::string& folder)
{
    if (!folder.empty())
        ShowPage(m_pages->FindPage(m_browser));
    return m_browser->Start(folder);
}

void GalleryFrame::MakeMenus()
{
    auto* file = new wxMenu;
    file->Append(wxID_OPEN, L"&Open folder\u2026\tCtrl+O", "Browse another folder");
    file->AppendSubMenu(m_recent.MakeMenu(), "Recent &folders", "Browse a folder again");
    file->Append(wxID_REFRESH, "&Refresh\tF5", "Read the folders again");
    file->Append(wxID_SAVEAS, L"&Save report\u2026\tCtrl+S", "Write what the list shows into a file");
    file->AppendSeparator();
    file->Append(wxID_EXIT, "&Quit\tCtrl+Q", "Close the window");

    auto* help = new wxMenu;
    help->Append(wxID_ABOUT, "&About", "Version and purpose");

    auto* menus = new wxMenuBar;
    menus->Append(file, "&File");
    menus->Append(MakeViewMenu(), "&View");
    menus->Append(help, "&Help");
    SetMenuBar(menus);
}

wxMenu* GalleryFrame::MakeViewMenu() const
{
    auto* view = new wxMenu;
    for (std::size_t page = 0; page < m_pages->GetPageCount(); ++page) {
        const wxString title = m_pages->GetPageText(page);
        view->AppendRadioItem(kFirstPageId + static_cast<int>(page), wxString::Format("&%s\tAlt+%zu", title, page + 1),
                              "Show the page " + title);
    }
    view->AppendSeparator();
    view->Append(wxID_UP, "Folder &above\tAlt+Up", "Select the folder that this one is in");
    view->Append(wxID_SELECT_COLOR, L"Folder's &colour\u2026\tCtrl+T", "Give the folder a colour");
    view->AppendSeparator();
    view->AppendCheckItem(wxID_VIEW_LIST, "&Folders\tF9", "Show the folders beside the contents");
    view->Append(wxID_RESET, "Reset &layout", "Put the panes back where they were at first");
    return view;
}

// Makes the menus' keys work in a floating pane, which is a window of its own.
void GalleryFrame::ShareMenuKeys(wxWindow* pane)
{
    std::vector<wxAcceleratorEntry> keys;
    for (std::size_t menu = 0; menu < GetMenuBar()->GetMenuCount(); ++menu) {
        for (const wxMenuItem* item : GetMenuBar()->GetMenu(menu)->GetMenuItems()) {
            const std::unique_ptr<wxAcceleratorEntry> key(item->GetAccel());
            if (key)
                keys.emplace_back(key->GetFlags(), key->GetKeyCode(), item->GetId());
        }
    }
    pane->SetAcceleratorTable(wxAcceleratorTable(static_cast<int>(keys.size()), keys.data()));
}

void GalleryFrame::BindEvents()
{
    const auto bindCommand = [this](int id, const std::function<void()>& run) {
        Bind(
            wxEVT_MENU, [run](wxCommandEvent&) { run(); }, id);
    };
    bindCommand(wxID_UP, [this] { m_browser->GoUp(); });
    bindCommand(wxID_REFRESH, [this] { m_browser->RefreshFolders(); });
    bindCommand(wxID_VIEW_LIST, [this] { m_browser->ToggleFolders(); });
    bindCommand(wxID_SAVEAS, [this] { m_browser->SaveReport(); });
    bindCommand(wxID_SELECT_COLOR, [this] { m_browser->ChooseColour(); });
    bindCommand(wxID_RESET, [this] { m_browser->ResetLayout(); });
    bindCommand(wxID_OPEN, [this] {
        ShowPage(m_pages->FindPage(m_browser));
        m_browser->OpenFolder();
    });
    bindCommand(wxID_EXIT, [this] { Close(); });
    bindCommand(wxID_ABOUT, [this] { OnAbout(); });
    Bind(
        wxEVT_MENU, [this](wxCommandEvent& event) { ShowPage(event.GetId() - kFirstPageId); }, kFirstPageId,
        kFirstPageId + static_cast<int>(m_pages->GetPageCount()) - 1);
    Bind(
        wxEVT_MENU, [this](wxCommandEvent& event) { OpenRecent(event.GetId()); }, wxID_FILE1, wxID_FILE9);
    Bind(EVT_BROWSER_CHANGED, [this](wxCommandEvent&) { ShowState(); });
    Bind(wxEVT_CHAR_HOOK, &GalleryFrame::OnCharHook, this);
    Bind(wxEVT_CLOSE_WINDOW, &GalleryFrame::OnClose, this);
    m_pages->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, &GalleryFrame::OnPageChanged, this);

    const auto onMapped = +[](GtkWidget*, GdkEvent*, gpointer frame) -> gboolean {
        static_cast<GalleryFrame*>(frame)->OnMapped();
        return FALSE;
    };
    g_signal_connect(GetHandle(), "map-event", G_CALLBACK(onMapped), this);
}

bool GalleryFrame::ShowsBrowser() const
{
    return m_pages->GetCurrentPage() == m_browser;
}

// Selects a page and restores the focus in it. A negative index, or the index of the selected page, changes nothing.
void GalleryFrame::ShowPage(int index)
{
    if (index < 0 || index == m_pages->GetSelection())
        return;
    m_pages->SetSelection(static_cast<std::size_t>(index));
    m_pages->GetCurrentPage()->SetFocus();
}

// Adds the browser's root folder to the recent folders. Updates the title, the status texts and the menus for the
// selected page.
void GalleryFrame::ShowState()
{
    if (!m_browser->GetTree()->GetRootFolder().empty())
        m_recent.Add(m_browser->GetTree()->GetRootFolder());
    const bool browser = ShowsBrowser();
    const wxString page = m_pages->GetPageText(static_cast<std::size_t>(m_pages->GetSelection()));
    SetTitle((browser ? DisplayText(m_browser->GetFolder()) : page) + L" \u2013 Fittings Gallery");
    SetStatusText(browser ? m_browser->GetSummary() : wxString(), 0);
    SetStatusText(browser ? m_browser->GetSelectionText() : wxString(), 1);

    wxMenuBar* menus = GetMenuBar();
    menus->Check(kFirstPageId + m_pages->GetSelection(), true);
    for (const int id : {wxID_REFRESH, wxID_SAVEAS, wxID_VIEW_LIST, wxID_SELECT_COLOR, wxID_RESET})
        menus->Enable(id, browser);
    menus->Enable(wxID_UP, browser && m_browser->HasFolderAbove());
    menus->Check(wxID_VIEW_LIST, m_browser->ShowsFolders());
}

void GalleryFrame::OpenRecent(int id)
{
    ShowPage(m_pages->FindPage(m_browser));
    if (!m_browser->Open(m_recent.PathOf(id)))
        m_recent.Remove(id);
}

void GalleryFrame::OnMapped()
{
    m_mapped = true;
    if (ShowsBrowser())
        m_browser->LoadLayout();
}

void GalleryFrame::OnPageChanged(wxBookCtrlEvent& event)
{
    if (m_mapped && ShowsBrowser())
        m_browser->LoadLayout();
    m_browser->ShowFloatingPanes(ShowsBrowser());
    ShowState();
    event.Skip();
}

// Activates the menu or the mnemonic of a key with Alt before the focused control gets the key. Otherwise a focused
// number field would refuse the letter, and the key would have no effect.
void GalleryFrame::OnCharHook(wxKeyEvent& event)
{
    const std::unique_ptr<GdkEvent, void (*)(GdkEvent*)> key(gtk_get_current_event(), gdk_event_free);
    if (event.GetModifiers() != wxMOD_ALT || !key || key->type != GDK_KEY_PRESS ||
        !gtk_window_activate_key(GTK_WINDOW(GetHandle()), &key->key))
        event.Skip();
}

void GalleryFrame::OnAbout()
{
    wxAboutDialogInfo info;
    info.SetName("Fittings Gallery");
    info.SetVersion(FITTINGS_VERSION);
    info.SetDescription("A disk-usage browser that shows the components of the fittings library at work.");
    wxAboutBox(info, this);
}

void GalleryFrame::OnClose(wxCloseEvent& event)
{
    CLocalRegStore::Batch together;
    m_browser->SaveSettings();
    m_numbers->SaveSettings();
    m_colours->SaveSettings();
    kWindowSettings.Save(kPage, m_pages->GetCurrentPage()->GetName());
    m_recent.Save();
    wx_window_state::SaveState(this, kStateName);
    event.Skip();
}

}  // namespace gallery
