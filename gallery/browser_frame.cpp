#include "browser_frame.h"

#include <cerrno>
#include <cstring>
#include <memory>
#include <vector>

#include <gtk/gtk.h>
#include <wx/aboutdlg.h>
#include <wx/accel.h>
#include <wx/artprov.h>
#include <wx/aui/dockart.h>
#include <wx/display.h>
#include <wx/infobar.h>
#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/toolbar.h>
#include <wx/utils.h>

#include <fittings/base/version.h>
#include <fittings/config/wx_window_state.h>
#include <fittings/dialogs/folder_dialog.h>

#include "browser_settings.h"
#include "contents_list.h"
#include "folder_listing.h"
#include "folder_tree.h"
#include "native_text.h"

namespace fittings {

namespace {

constexpr const wchar_t* stateName = L"Browser";
constexpr const char* foldersPane = "folders";

wxString ReasonText(int error)
{
    return wxString::FromUTF8(g_strerror(error));
}

/// "12 items, 1.2 MB (1234567 bytes) in 9 files"
wxString Summary(const std::vector<Entry>& entries)
{
    std::size_t files = 0;
    std::size_t unreadable = 0;
    std::uint64_t total = 0;
    for (const Entry& entry : entries) {
        files += entry.kind == EntryKind::File;
        unreadable += !entry.known;
        total += entry.size;
    }
    wxString text = Counted(entries.size(), "item", "items");
    if (files > 0)
        text << ", " << ExactSize(total) << " in " << Counted(files, "file", "files");
    if (unreadable > 0)
        text << ", " << unreadable << " unreadable";
    return text;
}

}  // namespace

BrowserFrame::BrowserFrame() : wxFrame(nullptr, wxID_ANY, "Fittings Gallery")
{
    SetName("Browser");
    SetMinSize(FromDIP(wxSize(480, 320)));
    wxSize size = FromDIP(wxSize(960, 640));
    size.DecTo(wxDisplay(this).GetClientArea().GetSize());
    SetSize(size);
    Centre();
    MakeMenus();
    MakeTools();
    const int widths[] = {-3, -2};
    CreateStatusBar(2)->SetStatusWidths(2, widths);

    auto* panel = new wxPanel(this);
    panel->SetSize(GetClientSize());
    m_layout.SetManagedWindow(panel);
    m_layout.SetFlags(wxAUI_MGR_DEFAULT | wxAUI_MGR_LIVE_RESIZE);
    wxAuiDockArt* art = m_layout.GetArtProvider();
    art->SetMetric(wxAUI_DOCKART_GRADIENT_TYPE, wxAUI_GRADIENT_NONE);
    art->SetMetric(wxAUI_DOCKART_CAPTION_SIZE, GetCharHeight() + FromDIP(6));
    art->SetFont(wxAUI_DOCKART_CAPTION_FONT, GetFont());
    for (const int part :
         {wxAUI_DOCKART_INACTIVE_CAPTION_COLOUR, wxAUI_DOCKART_BACKGROUND_COLOUR, wxAUI_DOCKART_SASH_COLOUR})
        art->SetColour(part, panel->GetBackgroundColour());
    art->SetColour(wxAUI_DOCKART_INACTIVE_CAPTION_TEXT_COLOUR, panel->GetForegroundColour());
    m_tree = new FolderTree(panel);
    ShareMenuKeys(m_tree);
    m_layout.AddPane(m_tree, wxAuiPaneInfo()
                                 .Name(foldersPane)
                                 .Caption("Folders")
                                 .Left()
                                 .BestSize(FromDIP(wxSize(260, 400)))
                                 .MinSize(m_tree->GetMinSize()));
    m_layout.AddPane(MakeContents(panel), wxAuiPaneInfo().Name("contents").CentrePane());
    m_layout.Update();
    m_firstLayout = m_layout.SavePerspective();
    BindEvents();

    m_list->SortBy(browser_settings::LoadSortOrder());
    m_list->SetColumnWidths(browser_settings::LoadColumnWidths(m_list->GetColumnWidths().size()));
    wx_window_state::LoadState(this, stateName);
    m_list->SetFocus();
}

BrowserFrame::~BrowserFrame()
{
    m_layout.UnInit();
}

wxString BrowserFrame::Start(const std::string& folder)
{
    wxString note;
    std::string root;
    if (!folder.empty()) {
        root = ResolveFolder(folder);
        if (root.empty())
            note = DisplayText(folder) + ": " + ReasonText(errno);
    }
    for (const std::string& other : {browser_settings::LoadRootFolder(), PathFromDialog(wxGetHomeDir())}) {
        if (root.empty() && !other.empty())
            root = ResolveFolder(other);
    }
    OpenRoot(root.empty() ? "/" : root);
    if (!note.empty())
        m_note->ShowMessage(note, wxICON_WARNING);
    return note;
}

void BrowserFrame::ResetLayout()
{
    m_layout.LoadPerspective(m_firstLayout);
    ShowLayoutInMenu();
}

void BrowserFrame::MakeMenus()
{
    auto* file = new wxMenu;
    file->Append(wxID_OPEN, L"&Open folder\u2026\tCtrl+O", "Browse another folder");
    file->Append(wxID_REFRESH, "&Refresh\tF5", "Read the folders again");
    file->AppendSeparator();
    file->Append(wxID_EXIT, "&Quit\tCtrl+Q", "Close the window");

    auto* view = new wxMenu;
    view->Append(wxID_UP, "Folder &above\tAlt+Up", "Select the folder that this one is in");
    view->AppendSeparator();
    view->AppendCheckItem(wxID_VIEW_LIST, "&Folders\tF9", "Show the folders beside the contents");
    view->Append(wxID_RESET, "Reset &layout", "Put the panes back where they were at first");

    auto* help = new wxMenu;
    help->Append(wxID_ABOUT, "&About", "Version and purpose");

    auto* menus = new wxMenuBar;
    menus->Append(file, "&File");
    menus->Append(view, "&View");
    menus->Append(help, "&Help");
    SetMenuBar(menus);
}

/// Lets the menus' keys work in a pane that floats, which is in a window of its own.
void BrowserFrame::ShareMenuKeys(wxWindow* pane)
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

void BrowserFrame::MakeTools()
{
    const auto icon = [](const wxArtID& id) { return wxArtProvider::GetBitmapBundle(id, wxART_TOOLBAR); };
    wxToolBar* tools = CreateToolBar(wxTB_HORIZONTAL | wxTB_HORZ_TEXT | wxTB_FLAT);
    tools->SetName("Tools");
    tools->AddTool(wxID_OPEN, L"Open folder\u2026", icon(wxART_FOLDER_OPEN), "Browse another folder (Ctrl+O)");
    tools->AddTool(wxID_UP, "Up", icon(wxART_GO_DIR_UP), "Select the folder that this one is in (Alt+Up)");
    tools->AddTool(wxID_REFRESH, "Refresh", icon(wxART_REFRESH), "Read the folders again (F5)");
    tools->Realize();
}

wxWindow* BrowserFrame::MakeContents(wxWindow* parent)
{
    auto* panel = new wxPanel(parent);
    m_location = new wxStaticText(panel, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                  wxST_ELLIPSIZE_MIDDLE | wxST_NO_AUTORESIZE);
    m_location->SetFont(m_location->GetFont().Bold());
    m_location->SetName("Location");
    m_note = new wxInfoBar(panel);
    m_list = new ContentsList(panel);

    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(m_location, wxSizerFlags().Expand().Border(wxALL, FromDIP(6)));
    rows->Add(m_note, wxSizerFlags().Expand());
    rows->Add(m_list, wxSizerFlags(1).Expand());
    panel->SetSizer(rows);
    return panel;
}

void BrowserFrame::BindEvents()
{
    const auto bindCommand = [this](int id, void (BrowserFrame::*run)()) {
        Bind(
            wxEVT_MENU, [this, run](wxCommandEvent&) { (this->*run)(); }, id);
    };
    bindCommand(wxID_OPEN, &BrowserFrame::OnOpen);
    bindCommand(wxID_UP, &BrowserFrame::OnUp);
    bindCommand(wxID_REFRESH, &BrowserFrame::OnRefresh);
    bindCommand(wxID_EXIT, &BrowserFrame::OnQuit);
    bindCommand(wxID_VIEW_LIST, &BrowserFrame::OnToggleFolders);
    bindCommand(wxID_RESET, &BrowserFrame::ResetLayout);
    bindCommand(wxID_ABOUT, &BrowserFrame::OnAbout);
    m_layout.Bind(wxEVT_AUI_PANE_CLOSE, [this](wxAuiManagerEvent& event) {
        CallAfter(&BrowserFrame::ShowLayoutInMenu);
        event.Skip();
    });
    Bind(wxEVT_CLOSE_WINDOW, &BrowserFrame::OnClose, this);
    // Window managers keep a floating pane above the window only when it appears after the window.
    const auto onMapped = +[](GtkWidget*, GdkEvent*, gpointer frame) -> gboolean {
        static_cast<BrowserFrame*>(frame)->LoadLayout();
        return FALSE;
    };
    g_signal_connect(GetHandle(), "map-event", G_CALLBACK(onMapped), this);

    m_tree->Bind(wxEVT_TREE_SEL_CHANGED, [this](wxTreeEvent& event) {
        const std::string path = m_tree->GetSelectedPath();
        if (!path.empty() && path != m_shown)
            ShowFolder(path);
        event.Skip();
    });
    m_list->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, &BrowserFrame::OnActivated, this);
    m_list->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent&) { ShowSelectedEntry(); });
    m_list->Bind(wxEVT_CHAR, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_BACK)
            OnUp();
        else
            event.Skip();
    });
}

void BrowserFrame::LoadLayout()
{
    if (m_layoutLoaded)
        return;
    m_layoutLoaded = true;
    wx_window_state::LoadAuiManagerState(&m_layout, stateName);
    ShowLayoutInMenu();
    CallAfter([this] { m_tree->EnsureVisible(m_tree->GetSelection().item); });
}

void BrowserFrame::OpenRoot(const std::string& path)
{
    const wxBusyCursor busy;
    RememberRoot();
    const std::string selected = browser_settings::LoadSelectedFolder(path);
    {
        // What counts is the folder that is selected in the end.
        const wxEventBlocker noSelection(m_tree, wxEVT_TREE_SEL_CHANGED);
        m_tree->SetRootFolder(path);
        if (selected.empty())
            m_tree->Expand(m_tree->GetRootItem());
        else
            m_tree->LoadExpanded();
        m_tree->SelectPath(selected.empty() ? path : selected);
    }
    ShowFolder(m_tree->GetSelectedPath());
}

/// Stores what is kept for each root.
void BrowserFrame::RememberRoot()
{
    const std::string& root = m_tree->GetRootFolder();
    if (root.empty())
        return;
    m_tree->SaveExpanded();
    const std::string forgotten = browser_settings::SaveRootFolder(root);
    if (!forgotten.empty())
        FolderTree::ForgetExpanded(forgotten);
    browser_settings::SaveSelectedFolder(root, m_shown);
}

void BrowserFrame::ShowFolder(const std::string& path)
{
    const wxBusyCursor busy;
    m_shown = path;
    Listing listing = ReadFolder(path);
    SetTitle(DisplayText(path) + L" \u2013 Fittings Gallery");
    m_location->SetLabelText(DisplayText(path));
    SetStatusText(Summary(listing.entries), 0);
    if (listing.error != 0)
        m_note->ShowMessage(DisplayText(path) + ": " + ReasonText(listing.error), wxICON_WARNING);
    else if (m_note->IsShown())
        m_note->Dismiss();
    m_list->SetEntries(std::move(listing.entries));
    ShowSelectedEntry();

    const bool hasParent = path != m_tree->GetRootFolder();
    GetMenuBar()->Enable(wxID_UP, hasParent);
    GetToolBar()->EnableTool(wxID_UP, hasParent);
}

void BrowserFrame::ShowSelectedEntry()
{
    const Entry* entry = m_list->GetSelectedEntry();
    wxString text;
    if (entry) {
        text = DisplayText(entry->name);
        if (entry->kind == EntryKind::File && entry->known)
            text << ": " << ExactSize(entry->size);
    }
    SetStatusText(text, 1);
}

void BrowserFrame::ShowLayoutInMenu()
{
    GetMenuBar()->Check(wxID_VIEW_LIST, m_layout.GetPane(foldersPane).IsShown());
}

void BrowserFrame::OnOpen()
{
    const wxString folder = wxFolderDlg::DoModalReg(this, L"OpenFolder", L"Open folder");
    if (folder.empty())
        return;
    const std::string path = ResolveFolder(PathFromDialog(folder));
    if (path.empty())
        m_note->ShowMessage(folder + ": " + ReasonText(errno), wxICON_WARNING);
    else
        OpenRoot(path);
}

void BrowserFrame::OnUp()
{
    const std::string from = m_shown;
    if (m_tree->SelectParent())
        m_list->SelectEntry(from.substr(from.rfind('/') + 1));
}

void BrowserFrame::OnRefresh()
{
    const wxBusyCursor busy;
    const Entry* selected = m_list->GetSelectedEntry();
    const std::string name = selected ? selected->name : std::string();
    m_tree->Reread();
    ShowFolder(m_tree->GetSelectedPath());
    m_list->SelectEntry(name);
}

void BrowserFrame::OnQuit()
{
    Close();
}

void BrowserFrame::OnToggleFolders()
{
    wxAuiPaneInfo& pane = m_layout.GetPane(foldersPane);
    pane.Show(!pane.IsShown());
    m_layout.Update();
    ShowLayoutInMenu();
}

void BrowserFrame::OnAbout()
{
    wxAboutDialogInfo info;
    info.SetName("Fittings Gallery");
    info.SetVersion(FITTINGS_VERSION);
    info.SetDescription("A disk-usage browser that shows the components of the fittings library at work.");
    wxAboutBox(info, this);
}

void BrowserFrame::OnActivated(wxDataViewEvent& event)
{
    const Entry* entry = m_list->EntryOf(event.GetItem());
    if (entry && entry->kind == EntryKind::Folder)
        m_tree->SelectSubfolder(std::string(entry->name));
}

void BrowserFrame::OnClose(wxCloseEvent& event)
{
    RememberRoot();
    browser_settings::SaveSortOrder(m_list->GetSortOrder());
    browser_settings::SaveColumnWidths(m_list->GetColumnWidths());
    if (m_layoutLoaded)
        wx_window_state::SaveAuiManagerState(&m_layout, stateName);
    wx_window_state::SaveState(this, stateName);
    event.Skip();
}

}  // namespace fittings
