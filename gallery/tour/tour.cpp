#include <gallery/tour/tour.h>

#include <cstdio>
#include <fstream>

#include <gtk/gtk.h>
#include <unistd.h>
#include <wx/button.h>
#include <wx/menu.h>
#include <wx/timer.h>

#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>

#include <gallery/app/gallery_frame.h>
#include <gallery/browser/browser_page.h>
#include <gallery/browser/contents_list.h>
#include <gallery/browser/folder_tree.h>
#include <gallery/browser/size_filter.h>
#include <gallery/browser/sizes_row.h>
#include <gallery/folders/native_text.h>
#include <gallery/pages/window_helpers.h>
#include <gallery/tour/screenshot.h>
#include <gallery/tour/simulated_user.h>

namespace gallery {

namespace {

using namespace simulated_user;

// Returns the open file or folder dialog, or null. Asks GTK, because wxTopLevelWindows does not contain these dialogs.
GtkWidget* FindFileDialog()
{
    GList* windows = gtk_window_list_toplevels();
    GtkWidget* dialog = nullptr;
    for (const GList* window = windows; window; window = window->next) {
        if (GTK_IS_FILE_CHOOSER_DIALOG(window->data) && gtk_widget_get_mapped(GTK_WIDGET(window->data)))
            dialog = GTK_WIDGET(window->data);
    }
    g_list_free(windows);
    return dialog;
}

// Waits until a file or folder dialog opens, and calls a function in the event loop of this dialog. Then cancels the
// dialog if it is still open.
class DialogVisitor : public wxTimer
{
public:
    explicit DialogVisitor(std::function<bool(GtkWidget*)> visit) : m_visit(std::move(visit)) { Start(20); }

    bool IsOver() const { return m_over; }
    bool WentWell() const { return m_wentWell; }

    void Notify() override
    {
        GtkWidget* dialog = FindFileDialog();
        if (!dialog)
            return;
        Stop();
        m_wentWell = m_visit(dialog);
        if (FindFileDialog())
            gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_CANCEL);
        m_over = true;
    }

private:
    std::function<bool(GtkWidget*)> m_visit;
    bool m_over = false;
    bool m_wentWell = false;
};

std::string FileIn(GtkWidget* dialog)
{
    g_autofree gchar* file = gtk_file_chooser_get_filename(GTK_FILE_CHOOSER(dialog));
    return file ? file : "";
}

// Returns the screen rectangle of the button that accepts the choice; empty while the button is disabled.
wxRect AcceptButton(GtkWidget* dialog)
{
    GtkWidget* button = gtk_dialog_get_widget_for_response(GTK_DIALOG(dialog), GTK_RESPONSE_ACCEPT);
    return button && gtk_widget_is_sensitive(button) ? WidgetRect(button) : wxRect();
}

// The state that must be the same after a cancelled dialog, after a folder is opened again, and in the next session.
struct State
{
    explicit State(GalleryFrame& frame) : window(frame.GetRect())
    {
        FolderTree& tree = *frame.GetBrowser()->GetTree();
        const ContentsList& list = *frame.GetBrowser()->GetList();
        treeWidth = tree.GetSize().x;
        root = tree.GetRootFolder();
        selected = tree.GetSelectedPath();
        colour = tree.GetItemTextColour(tree.GetSelection().item);
        rows = tree.GetCount();
        order = list.GetSortOrder();
        widths = list.GetColumnWidths();
    }

    bool operator==(const State& other) const
    {
        return window == other.window && treeWidth == other.treeWidth && root == other.root &&
               selected == other.selected && colour == other.colour && rows == other.rows &&
               order.column == other.order.column && order.ascending == other.order.ascending && widths == other.widths;
    }

    wxRect window;
    int treeWidth = 0;
    std::string root;
    std::string selected;
    wxColour colour;
    unsigned rows = 0;
    SortOrder order;
    std::vector<int> widths;
};

}  // namespace

Tour::Tour(const std::string& pictures, const std::string& folder)
    : m_pictures(pictures), m_folder(folder.empty() ? m_demo.Path() : folder)
{
    std_file_paths::SetUserDataDir(file_util_ex::ConvertFromUTF8W(m_demo.SettingsPath()));
    // Stop the caret from blinking: a picture is taken only of a window that no longer changes.
    g_object_set(gtk_settings_get_default(), "gtk-cursor-blink", FALSE, nullptr);
}

bool Tour::Run()
{
    if (!CanReadScreen()) {
        std::puts("The tour needs an X display.");
        return false;
    }
    if (m_demo.Path().empty() || !file_util_ex::Mkdir(file_util_ex::ConvertFromUTF8W(m_pictures))) {
        std::puts("The tour cannot make its folders.");
        return false;
    }
    // End the program even if a step hangs.
    alarm(120);

    const struct
    {
        const char* name;
        bool (Tour::*run)();
    } steps[] = {
        {"open the window", &Tour::OpenWindow},
        {"expand folders by keyboard", &Tour::ExpandByKeyboard},
        {"sort by a header", &Tour::SortByHeader},
        {"add up folders in the background", &Tour::AddUpFolders},
        {"leave out what is small", &Tour::LeaveOutSmallOnes},
        {"give a folder a colour", &Tour::ColourFolder},
        {"save a report", &Tour::SaveReport},
        {"choose a folder in the dialog", &Tour::ChooseFolder},
        {"cancel the dialog", &Tour::CancelFolder},
        {"open a recent folder", &Tour::OpenRecentFolder},
        {"format a number as it is typed", &Tour::TypeNumber},
        {"choose a colour", &Tour::ChooseColour},
        {"find the window again", &Tour::RememberWindow},
        {"find it maximised again", &Tour::RememberMaximised},
        {"find another window again", &Tour::RememberAnotherWindow},
    };
    bool allWell = true;
    for (const auto& step : steps) {
        const bool well = (this->*step.run)();
        std::printf("%s: %s\n", step.name, well ? "done" : "FAILED");
        std::fflush(stdout);
        allWell = allWell && well;
    }
    // Wait until the window is destroyed: it saves settings into a folder that the tour then removes.
    m_frame->Destroy();
    return Waits([] { return wxTopLevelWindows.empty(); }, "the window is destroyed") && allWell;
}

bool Tour::OpenWindow()
{
    m_frame = new GalleryFrame;
    const wxString note = m_frame->Start(m_folder);
    if (!note.empty())
        std::printf("%s\n", static_cast<const char*>(note.utf8_str()));
    m_frame->Show();
    m_frame->Raise();
    const FolderTree& tree = *m_frame->GetBrowser()->GetTree();
    return Waits([&] { return m_frame->IsActive() && m_frame->IsShownOnScreen(); }, "the window is shown") &&
           IsTrue(note.empty(), "the folder opens") &&
           IsTrue(gtk_widget_get_direction(m_frame->GetHandle()) == gtk_widget_get_default_direction(),
                  "all is laid out in one direction") &&
           IsTrue(tree.IsExpanded(tree.GetRootItem()), "its folders are listed");
}

bool Tour::ExpandByKeyboard()
{
    FolderTree& tree = *m_frame->GetBrowser()->GetTree();
    Click(CentreOf(LabelRect(tree, tree.GetRootItem())));
    if (!Waits([&] { return tree.HasFocus() && tree.GetSelection().item == tree.GetRootItem(); }, "a click selects"))
        return false;

    // Expand one folder on each of two levels. Of the first twelve folders, take the last one that can be expanded.
    for (int level = 0; level < 2; ++level) {
        const wxTreeItemId start = tree.GetSelection().item;
        wxTreeItemIdValue cookie;
        int steps = 0;
        int wanted = 0;
        wxTreeItemId folder;
        for (wxTreeItemId child = tree.GetFirstChild(start, cookie); child.IsOk() && steps < 12;
             child = tree.GetNextChild(start, cookie)) {
            ++steps;
            if (tree.ItemHasChildren(child)) {
                wanted = steps;
                folder = child;
            }
        }
        for (int i = 0; i < wanted; ++i)
            Press(WXK_DOWN);
        if (!folder.IsOk())
            break;
        if (!Waits([&] { return tree.GetSelection().item == folder; }, "Down moves the selection"))
            return false;
        Press(tree.GetLayoutDirection() == wxLayout_RightToLeft ? WXK_LEFT : WXK_RIGHT);
        if (!Waits([&] { return tree.IsExpanded(folder) && tree.GetChildrenCount(folder, false) > 0; },
                   "the arrow key in reading direction expands a folder"))
            return false;
    }
    return SavePicture("tree");
}

bool Tour::SortByHeader()
{
    ContentsList& list = *m_frame->GetBrowser()->GetList();
    for (const bool ascending : {true, false}) {
        Click(CentreOf(HeaderRect(list, SortColumn::Size)));
        if (!Waits(
                [&] {
                    const SortOrder order = list.GetSortOrder();
                    return order.column == SortColumn::Size && order.ascending == ascending;
                },
                "a click on the header sorts"))
            return false;
    }
    unsigned files = 0;
    for (unsigned row = list.CountRows(); row > 0 && list.GetEntry(row - 1).kind != EntryKind::Folder; --row) {
        ++files;
        if (row < list.CountRows() &&
            !IsTrue(list.GetEntry(row - 1).size >= list.GetEntry(row).size, "large goes first"))
            return false;
    }
    if (files > 0) {
        const unsigned first = list.CountRows() - files;
        list.EnsureVisible(list.ItemOf(first));
        if (!Waits([&] { return WindowRect(list).Contains(NameRect(list, first)); }, "a file comes into view"))
            return false;
        Click(CentreOf(NameRect(list, first)));
        if (!Waits([&] { return list.GetSelectedEntry() == &list.GetEntry(first); }, "a click selects a file"))
            return false;
    }
    return SavePicture("browser");
}

bool Tour::AddUpFolders()
{
    const SizesRow& row = *m_frame->GetBrowser()->GetSizes();
    const ContentsList& list = *m_frame->GetBrowser()->GetList();
    const auto isStopped = [&] { return !row.IsRunning(); };
    if (!IsTrue(WaitUntil(isStopped, 60000), "the folders are added up"))
        return false;
    const wxRect button = WindowRect(*row.GetButton());
    Click(CentreOf(button));
    if (!Waits([&] { return row.IsRunning() || row.GetText().EndsWith("done"); }, "a click starts anew") ||
        !IsTrue(WaitUntil(isStopped, 60000), "the folders are added up again"))
        return false;
    for (const Entry& entry : list.GetEntriesInOrder()) {
        if (!IsTrue(entry.kind != EntryKind::Folder || entry.summed, "each folder has its size"))
            return false;
    }
    return true;
}

bool Tour::LeaveOutSmallOnes()
{
    const ContentsList& list = *m_frame->GetBrowser()->GetList();
    const wxNumberCtrl& field = *m_frame->GetBrowser()->GetFilter()->GetField();
    const unsigned before = list.CountRows();
    Press('L', wxMOD_ALT);
    if (!Waits([&] { return field.HasFocus(); }, "Alt+L leads to the filter"))
        return false;
    for (const wchar_t key : {L'6', L'x', field.GetFormat().m_chDecimalPoint, L'5'})
        Press(key);
    if (!Waits([&] { return field.GetDecimal() == "6.5"; }, "only a size can be typed"))
        return false;
    for (const Entry& entry : list.GetEntriesInOrder()) {
        if (!IsTrue(entry.size >= 6500000, "what is smaller is left out"))
            return false;
    }
    if (!SavePicture("filter"))
        return false;
    Press(WXK_ESCAPE);
    return Waits([&] { return list.CountRows() == before; }, "Escape brings all back");
}

bool Tour::SaveReport()
{
    const std::string file = m_demo.SettingsPath() + "/report.csv";
    const bool well = VisitDialog('S', "Ctrl+S opens the save dialog", [&](GtkWidget* dialog) {
        auto* chooser = GTK_FILE_CHOOSER(dialog);
        gtk_file_chooser_set_current_folder(chooser, m_demo.SettingsPath().c_str());
        gtk_file_chooser_set_current_name(chooser, "report.csv");
        return AcceptFile(dialog, file, "save-dialog");
    });
    const auto isWritten = [&] {
        std::ifstream report(file);
        std::string header;
        return std::getline(report, header) && header == "Name,Kind,Bytes,Modified,Path\r";
    };
    return well && Waits(isWritten, "the report is written") &&
           IsTrue(CLocalRegStore::GetString("LastFiles", "Report", "") == file, "the dialog remembers the file");
}

bool Tour::ChooseFolder()
{
    const State before(*m_frame);
    const bool well = VisitDialog('O', "Ctrl+O opens the folder dialog", [&](GtkWidget* dialog) {
        gtk_file_chooser_set_current_folder(GTK_FILE_CHOOSER(dialog), before.root.c_str());
        return AcceptFile(dialog, before.root, "folder-dialog");
    });
    return well && Waits([&] { return State(*m_frame) == before; }, "a folder opened anew looks as it was left") &&
           IsTrue(CLocalRegStore::GetString("OpenFolder", "Path", "") == before.root,
                  "the dialog remembers the folder");
}

bool Tour::CancelFolder()
{
    const State before(*m_frame);
    return VisitDialog('O', "Ctrl+O opens the folder dialog",
                       [this](GtkWidget*) {
                           Press(WXK_ESCAPE);
                           return Waits([] { return !FindFileDialog(); }, "Escape cancels");
                       }) &&
           IsTrue(State(*m_frame) == before, "a cancelled dialog changes nothing");
}

bool Tour::OpenRecentFolder()
{
    const State before(*m_frame);
    const std::string other = before.selected != before.root ? before.selected : m_demo.Path();
    m_frame->Start(other);
    const wxMenu* const file = m_frame->GetMenuBar()->GetMenu(0);
    const wxMenuItem* const second = m_frame->GetMenuBar()->FindItem(wxID_FILE2);
    if (!Waits([&] { return State(*m_frame).root == other; }, "another folder opens") ||
        !IsTrue(second && second->GetItemLabelText().AfterFirst(' ').utf8_string() == before.root,
                "the folder before is second in the menu"))
        return false;
    Press('F', wxMOD_ALT);
    if (!Waits([&] { return gtk_widget_get_mapped(file->m_menu) != 0; }, "Alt+F opens the menu"))
        return false;
    Press('F');
    if (!Waits([&] { return gtk_widget_get_mapped(second->GetMenu()->m_menu) != 0; }, "F shows the recent folders"))
        return false;
    Press('2');
    return Waits([&] { return State(*m_frame) == before; }, "a recent folder looks as it was left");
}

bool Tour::RememberWindow()
{
    FolderTree& tree = *m_frame->GetBrowser()->GetTree();
    const int width = tree.GetSize().x;
    Widen(tree, WindowRect(tree), 60, 4);
    if (!Waits([&] { return tree.GetSize().x > width + 30; }, "the panes' border can be dragged"))
        return false;
    const wxRect wanted(90, 70, 1020, 560);
    m_frame->SetSize(wanted);
    if (!Waits([&] { return m_frame->GetRect() == wanted; }, "the window moves"))
        return false;

    const State before(*m_frame);
    return Reopen() && Waits([&] { return State(*m_frame) == before; }, "all is as it was left") &&
           SavePicture("window-state");
}

bool Tour::RememberMaximised()
{
    m_frame->Maximize();
    return Waits([&] { return m_frame->IsMaximized(); }, "the window is maximised") && Reopen() &&
           Waits([&] { return m_frame->IsMaximized(); }, "the next one is maximised too");
}

bool Tour::IsTrue(bool condition, const char* claim)
{
    if (!condition)
        std::printf("Not so: %s\n", claim);
    return condition;
}

bool Tour::Waits(const std::function<bool()>& condition, const char* claim)
{
    return IsTrue(WaitUntil(condition), claim);
}

// Presses Ctrl and @a key, which opens a file or folder dialog, and calls @a visit with the dialog. Then waits until
// the program's window is active again.
bool Tour::VisitDialog(char key, const char* claim, const std::function<bool(GtkWidget*)>& visit)
{
    DialogVisitor visitor(visit);
    Press(key, wxMOD_CONTROL);
    return Waits([&] { return visitor.IsOver(); }, claim) && visitor.WentWell() &&
           Waits([&] { return m_frame->IsActive(); }, "the window is active again");
}

// Waits until @a file, which may be a folder, is selected in the dialog. Then takes a picture, and clicks the button
// that accepts the choice.
bool Tour::AcceptFile(GtkWidget* dialog, const std::string& file, const char* picture)
{
    if (!Waits([&] { return FileIn(dialog) == file && !AcceptButton(dialog).IsEmpty(); }, "the name is taken") ||
        !IsTrue(SaveScreenshot(dialog, m_pictures + "/" + picture + ".png"), "the picture is taken"))
        return false;
    Click(CentreOf(AcceptButton(dialog)));
    return Waits([] { return !FindFileDialog(); }, "a click chooses");
}

bool Tour::SavePicture(const char* component)
{
    // Keep the pointer away from everything in the picture.
    const wxRect frame = FrameRect(m_frame->GetHandle());
    return SavePicture(component, frame.GetBottomRight() + wxSize(4, 4));
}

bool Tour::SavePicture(const char* component, const wxPoint& pointer)
{
    PointAt(pointer);
    return IsTrue(SaveScreenshot(m_frame->GetHandle(), m_pictures + "/" + component + ".png"), "the picture is taken");
}

// Closes the window as a person does, and opens the window of the next session.
bool Tour::Reopen()
{
    m_frame->Close();
    if (!Waits([&] { return wxTopLevelWindows.empty(); }, "the window closes"))
        return false;
    m_frame = new GalleryFrame;
    m_frame->Start(std::string());
    m_frame->Show();
    m_frame->Raise();
    return Waits([&] { return m_frame->IsActive() && m_frame->IsShownOnScreen(); }, "the next window is shown");
}

}  // namespace gallery
