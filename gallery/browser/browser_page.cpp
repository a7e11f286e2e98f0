#include <gallery/browser/browser_page.h>

#include <cerrno>
#include <utility>
#include <vector>

#include <glib.h>
#include <wx/artprov.h>
#include <wx/aui/dockart.h>
#include <wx/aui/floatpane.h>
#include <wx/infobar.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/toolbar.h>
#include <wx/utils.h>

#include <fittings/config/wx_window_state.h>
#include <fittings/dialogs/file_dialog.h>
#include <fittings/dialogs/folder_dialog.h>

#include <gallery/browser/browser_settings.h>
#include <gallery/browser/contents_list.h>
#include <gallery/browser/folder_colour_combo.h>
#include <gallery/browser/folder_tree.h>
#include <gallery/browser/size_filter.h>
#include <gallery/browser/sizes_row.h>
#include <gallery/folders/folder_listing.h>
#include <gallery/folders/native_text.h>
#include <gallery/folders/report.h>
#include <gallery/pages/page_layout.h>
#include <gallery/pages/page_settings.h>
#include <gallery/pages/readable_colour.h>
#include <gallery/pages/window_helpers.h>

namespace gallery {

wxDEFINE_EVENT(EVT_BROWSER_CHANGED, wxCommandEvent);

namespace {

constexpr const wchar_t* kStateName = L"Browser";
constexpr const char* kMinimumSize = "AtLeastMB";
constexpr const char* kFoldersPane = "folders";

wxString ReasonText(int error)
{
    return wxString::FromUTF8(g_strerror(error));
}

// Returns a text such as "12 items, 1.2 MB (1,234,567 bytes) in 9 files".
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

// Returns where a window is according to GDK. Until the window manager has put a frame around a new window, the
// toolkit may report the corner of the screen.
wxPoint PlaceOf(const wxFrame& window)
{
    return FrameRect(window.GetHandle()).GetPosition();
}

}  // namespace

BrowserPage::BrowserPage(wxWindow* parent) : wxPanel(parent)
{
    SetName("Browser");
    MakeTools();
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(m_tools, wxSizerFlags().Expand());
    rows->Add(MakePanes(), wxSizerFlags(1).Expand());
    SetSizer(rows);
    m_firstLayout = m_layout.SavePerspective();
    BindEvents();

    m_list->SortBy(browser_settings::LoadEarlierSortOrder());
    m_list->SetColumnWidths(browser_settings::LoadEarlierColumnWidths(m_list->GetColumnWidths().size()));
    m_list->RememberColumns();
    m_filter->SetMegabytes(kContentsSettings.Load(kMinimumSize));
}

BrowserPage::~BrowserPage()
{
    m_layout.UnInit();
}

wxString BrowserPage::Start(const std::string& folder)
{
    wxString note;
    std::string root;
    if (!folder.empty()) {
        root = ResolveFolder(folder);
        const int error = errno;
        if (root.empty())
            note = DisplayText(folder) + ": " + ReasonText(error);
    }
    const std::vector<std::string> earlier = browser_settings::LoadRootFolders();
    if (root.empty() && !earlier.empty())
        root = ResolveFolder(earlier.front());
    if (root.empty())
        root = ResolveFolder(PathFromDialog(wxGetHomeDir()));
    OpenRoot(root.empty() ? "/" : root);
    if (!note.empty())
        m_note->ShowMessage(note, wxICON_WARNING);
    return note;
}

void BrowserPage::LoadLayout()
{
    if (m_layoutLoaded)
        return;
    m_layoutLoaded = true;
    wx_window_state::LoadAuiManagerState(&m_layout, kStateName);
    TellChange();
    CallAfter([this] { m_tree->EnsureVisible(m_tree->GetSelection().item); });
}

void BrowserPage::ShowFloatingPanes(bool show)
{
    wxAuiPaneInfo& folders = m_layout.GetPane(kFoldersPane);
    if (!folders.frame || !folders.IsShown())
        return;
    if (!show)
        m_floatingPlace = PlaceOf(*folders.frame);
    folders.frame->Show(show);
}

void BrowserPage::SaveSettings()
{
    RememberRoot();
    kContentsSettings.Save(kMinimumSize, m_filter->GetMegabytes());
    if (!m_layoutLoaded)
        return;
    // Use the remembered place of a hidden pane, because a hidden window has no place on the screen.
    wxAuiPaneInfo& folders = m_layout.GetPane(kFoldersPane);
    if (folders.frame)
        folders.floating_pos = folders.frame->IsShown() ? PlaceOf(*folders.frame) : m_floatingPlace;
    wx_window_state::SaveAuiManagerState(&m_layout, kStateName);
}

bool BrowserPage::HasFolderAbove() const
{
    return m_folder != m_tree->GetRootFolder();
}

bool BrowserPage::ShowsFolders()
{
    return m_layout.GetPane(kFoldersPane).IsShown();
}

wxString BrowserPage::GetSummary() const
{
    if (m_filter->GetMinimum() == 0)
        return m_summary;
    return m_summary + wxString::Format("; showing %u of at least ", m_list->CountRows()) + m_filter->GetText();
}

wxString BrowserPage::GetSelectionText() const
{
    const Entry* entry = m_list->GetSelectedEntry();
    if (!entry)
        return {};
    wxString text = DisplayText(entry->name);
    if (entry->HasSize())
        text << ": " << ExactSize(entry->size);
    return text;
}

void BrowserPage::OpenFolder()
{
    const wxString folder = wxFolderDlg::DoModalReg(this, L"OpenFolder", L"Open folder");
    if (!folder.empty())
        Open(PathFromDialog(folder));
}

bool BrowserPage::Open(const std::string& folder)
{
    const std::string path = ResolveFolder(folder);
    const int error = errno;
    if (path.empty())
        m_note->ShowMessage(DisplayText(folder) + ": " + ReasonText(error), wxICON_WARNING);
    else
        OpenRoot(path);
    return !path.empty();
}

void BrowserPage::GoUp()
{
    const std::string from = m_folder;
    if (m_tree->SelectParent())
        m_list->SelectEntry(from.substr(from.rfind('/') + 1));
}

void BrowserPage::RefreshFolders()
{
    const wxBusyCursor busy;
    const Entry* selected = m_list->GetSelectedEntry();
    const std::string name = selected ? selected->name : std::string();
    m_tree->Reread();
    ShowFolder(m_tree->GetSelectedPath());
    m_list->SelectEntry(name);
}

void BrowserPage::ToggleFolders()
{
    wxAuiPaneInfo& pane = m_layout.GetPane(kFoldersPane);
    pane.Show(!pane.IsShown());
    m_layout.Update();
    TellChange();
}

void BrowserPage::ChooseColour()
{
    m_colour->SetFocus();
    m_colour->Popup();
}

void BrowserPage::ResetLayout()
{
    m_layout.LoadPerspective(m_firstLayout);
    TellChange();
}

void BrowserPage::SaveReport()
{
    const std::string earlier = CQVFileDialogI::SetRegEntry("Report");
    const wxString name = DisplayText(m_folder.substr(m_folder.rfind('/') + 1));
    const CStdStr<wchar_t> chosen =
        CQVFileDialogI::LaunchSaveDialog(this, L"csv", L"Tables (*.csv)|*.csv|All files|*", L"Save report", L"",
                                         (name.empty() ? wxString("report.csv") : name + ".csv"));
    CQVFileDialogI::SetRegEntry(earlier);
    if (chosen.empty())
        return;
    const wxString file(chosen);
    const int error = gallery::SaveReport(PathFromDialog(file), ReportText(m_folder, m_list->GetEntriesInOrder()));
    if (error != 0)
        m_note->ShowMessage(file + ": " + ReasonText(error), wxICON_WARNING);
    else
        m_note->ShowMessage("The report is in " + file, wxICON_INFORMATION);
}

void BrowserPage::MakeTools()
{
    const auto icon = [](const wxArtID& id) { return wxArtProvider::GetBitmapBundle(id, wxART_TOOLBAR); };
    m_tools =
        new wxToolBar(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTB_HORIZONTAL | wxTB_HORZ_TEXT | wxTB_FLAT);
    m_tools->SetName("Tools");
    m_tools->AddTool(wxID_OPEN, L"Open folder\u2026", icon(wxART_FOLDER_OPEN), "Browse another folder (Ctrl+O)");
    m_tools->AddTool(wxID_UP, "Up", icon(wxART_GO_UP), "Select the folder that this one is in (Alt+Up)");
    m_tools->AddTool(wxID_REFRESH, "Refresh", icon(wxART_REFRESH), "Read the folders again (F5)");
    m_tools->AddTool(wxID_SAVEAS, L"Save report\u2026", icon(wxART_FILE_SAVE_AS),
                     "Write what the list shows into a file (Ctrl+S)");
    m_tools->Realize();
}

wxWindow* BrowserPage::MakePanes()
{
    auto* panel = new wxPanel(this);
    // Give the panel a size, because the layout limits each pane to a share of the panel's size.
    panel->SetSize(wxGetTopLevelParent(this)->GetClientSize());
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
    m_layout.AddPane(m_tree, wxAuiPaneInfo()
                                 .Name(kFoldersPane)
                                 .Caption("Folders")
                                 .Left()
                                 .BestSize(FromDIP(wxSize(260, 400)))
                                 .MinSize(m_tree->GetMinSize()));
    m_layout.AddPane(MakeContents(panel), wxAuiPaneInfo().Name("contents").CentrePane());
    m_layout.Update();
    return panel;
}

wxWindow* BrowserPage::MakeContents(wxWindow* parent)
{
    auto* panel = new wxPanel(parent);
    m_location = new wxStaticText(panel, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                  wxST_ELLIPSIZE_MIDDLE | wxST_NO_AUTORESIZE);
    m_location->SetFont(m_location->GetFont().Bold());
    m_location->SetName("Location");
    BeginAtTheStart(m_location);
    m_colour = new FolderColourCombo(
        panel, [this](const wxColour& colour) { ShowColour(colour); },
        [this](const wxColour& colour) { browser_settings::SaveFolderColour(m_folder, colour); });
    m_colour->SetToolTip("Colour of the folder (Ctrl+T)");
    m_filter = new SizeFilter(panel);
    m_note = new wxInfoBar(panel);
    m_list = new ContentsList(panel);
    m_sizes = new SizesRow(panel, [this](const SizeNews& news) { OnSizes(news); });

    auto* rows = new wxBoxSizer(wxVERTICAL);
    auto* header = new wxBoxSizer(wxHORIZONTAL);
    header->Add(m_colour, wxSizerFlags().CentreVertical().Border(wxRIGHT, FromDIP(6)));
    header->Add(m_location, wxSizerFlags(1).CentreVertical().Border(wxRIGHT, FromDIP(18)));
    header->Add(m_filter, wxSizerFlags().CentreVertical());
    rows->Add(header, wxSizerFlags().Expand().Border(wxALL, FromDIP(6)));
    rows->Add(m_note, wxSizerFlags().Expand());
    rows->Add(m_list, wxSizerFlags(1).Expand());
    rows->Add(m_sizes, wxSizerFlags().Expand());
    panel->SetSizer(rows);
    return panel;
}

void BrowserPage::BindEvents()
{
    m_layout.Bind(wxEVT_AUI_PANE_CLOSE, [this](wxAuiManagerEvent& event) {
        CallAfter(&BrowserPage::TellChange);
        event.Skip();
    });
    m_tree->Bind(wxEVT_TREE_SEL_CHANGED, [this](wxTreeEvent& event) {
        const std::string path = m_tree->GetSelectedPath();
        if (!path.empty() && path != m_folder)
            ShowFolder(path);
        event.Skip();
    });
    m_filter->Bind(EVT_SIZE_FILTER_CHANGED, [this](wxCommandEvent&) {
        m_list->SetMinimum(m_filter->GetMinimum());
        TellChange();
    });
    m_list->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, &BrowserPage::OnActivated, this);
    m_list->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent&) { TellChange(); });
    m_list->Bind(wxEVT_CHAR, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_BACK)
            GoUp();
        else
            event.Skip();
    });
}

void BrowserPage::OpenRoot(const std::string& path)
{
    const wxBusyCursor busy;
    RememberRoot();
    const std::string selected = browser_settings::LoadSelectedFolder(path);
    {
        // Block the selection events: ShowFolder() below shows the folder that is selected after these calls.
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

// Stores the settings that belong to the current root.
void BrowserPage::RememberRoot()
{
    const std::string& root = m_tree->GetRootFolder();
    if (root.empty())
        return;
    m_tree->SaveExpanded();
    const std::string forgotten = browser_settings::SaveRootFolder(root);
    if (!forgotten.empty())
        FolderTree::ForgetExpanded(forgotten);
    browser_settings::SaveSelectedFolder(root, m_folder);
}

void BrowserPage::ShowFolder(const std::string& path)
{
    const wxBusyCursor busy;
    m_folder = path;
    Listing listing = ReadFolder(path);
    m_summary = Summary(listing.entries);
    m_location->SetLabelText(DisplayText(path));
    if (listing.error != 0)
        m_note->ShowMessage(DisplayText(path) + ": " + ReasonText(listing.error), wxICON_WARNING);
    else if (m_note->IsShown())
        m_note->Dismiss();
    const wxColour colour = browser_settings::LoadFolderColour(path);
    m_colour->ShowColour(colour, m_tree->GetForegroundColour());
    ShowColour(colour);
    m_list->SetEntries(std::move(listing.entries));
    m_tools->EnableTool(wxID_UP, HasFolderAbove());
    m_sizes->Start(path);
    TellChange();
}

// Shows the selected folder in a colour, in the tree and in the line with its path. If @a colour is invalid, shows it
// without a colour.
void BrowserPage::ShowColour(const wxColour& colour)
{
    m_tree->ShowColour(colour);
    m_location->SetForegroundColour(colour.IsOk() ? ReadableOn(m_location->GetBackgroundColour(), colour)
                                                  : wxNullColour);
    m_location->Refresh();
}

void BrowserPage::OnSizes(const SizeNews& news)
{
    m_list->SetFolderSizes(news.folders);
    if (news.done && m_list->GetSortOrder().column == SortColumn::Size)
        m_list->SortBy(m_list->GetSortOrder());
    TellChange();
}

void BrowserPage::OnActivated(wxDataViewEvent& event)
{
    const Entry* entry = m_list->EntryOf(event.GetItem());
    if (entry && entry->kind == EntryKind::Folder)
        m_tree->SelectSubfolder(std::string(entry->name));
}

void BrowserPage::TellChange()
{
    gallery::TellChange(*this, EVT_BROWSER_CHANGED);
}

}  // namespace gallery
