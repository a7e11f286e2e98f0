// folder_dialog_probe SETTINGS modal TITLE [FOLDER] | reg TITLE SECTION: shows the folder dialog over a frame, with the
// settings in the folder SETTINGS, and prints what becomes of it, for a test that sends it keys:
//
//   frame X Y WIDTH HEIGHT     the frame on the screen, before the dialog is shown
//   state ACTIVE FOCUS POPUP OPEN FOLDER|TEXT    at every change: whether the dialog has the input focus, the kind of
//                              widget that has it in the dialog, whether a list of completions is there, whether the
//                              Open button can be pressed, the folder that would be chosen now, and the text of the
//                              location entry when that has the focus
//   chosen FOLDER              the result

#include <cstdio>
#include <string>

#include <gtk/gtk.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/frame.h>

#include <fittings/dialogs/folder_dialog.h>
#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/std_file_paths.h>

#include <tests/support/gui.h>

namespace {

void Print(const std::string& line)
{
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

std::string StateOf(GtkWindow* dialog, bool popup)
{
    GtkWidget* const focus = gtk_window_get_focus(dialog);
    char* const folder = gtk_file_chooser_get_filename(GTK_FILE_CHOOSER(dialog));
    std::string state = gtk_window_has_toplevel_focus(dialog) ? "active " : "inactive ";
    state += focus ? G_OBJECT_TYPE_NAME(focus) : "none";
    state += popup ? " popup" : " no-popup";
    GtkWidget* const open = gtk_window_get_default_widget(dialog);
    state += open && gtk_widget_is_sensitive(open) ? " open " : " no-open ";
    state += folder ? folder : "";
    state += "|";
    if (focus && GTK_IS_ENTRY(focus))
        state += gtk_entry_get_text(GTK_ENTRY(focus));
    g_free(folder);
    return state;
}

gboolean PrintState(void* lastPrinted)
{
    GtkWindow* dialog = nullptr;
    bool popup = false;
    GList* const windows = gtk_window_list_toplevels();
    for (GList* item = windows; item; item = item->next) {
        auto* const window = GTK_WINDOW(item->data);
        if (!gtk_widget_get_mapped(GTK_WIDGET(window)))
            continue;
        if (GTK_IS_FILE_CHOOSER(window))
            dialog = window;
        else if (gtk_window_get_window_type(window) == GTK_WINDOW_POPUP)
            popup = true;
    }
    g_list_free(windows);
    if (!dialog)
        return G_SOURCE_CONTINUE;
    const std::string state = StateOf(dialog, popup);
    std::string& last = *static_cast<std::string*>(lastPrinted);
    if (state != last)
        Print("state " + state);
    last = state;
    return G_SOURCE_CONTINUE;
}

class Probe : public wxApp
{
public:
    bool OnInit() override { return true; }

    int OnRun() override
    {
        wxGUIEventLoop loop;
        wxEventLoopActivator activate(&loop);
        auto* const frame = new wxFrame(nullptr, wxID_ANY, "parent", wxPoint(100, 150), wxSize(1000, 700));
        if (!ShowAndSettle(frame))
            return 1;
        const wxRect at = frame->GetScreenRect();
        Print("frame " + std::to_string(at.x) + " " + std::to_string(at.y) + " " + std::to_string(at.width) + " " +
              std::to_string(at.height));
        std::string lastState;
        const guint timer = g_timeout_add(10, PrintState, &lastState);
        const wxString folder = Ask(frame);
        g_source_remove(timer);
        Print("chosen " + file_util_ex::ConvertToUTF8(folder.ToStdWstring()));
        frame->Destroy();
        return 0;
    }

private:
    std::wstring Argument(int index) const { return index < argc ? argv[index].ToStdWstring() : std::wstring(); }

    wxString Ask(wxWindow* parent) const
    {
        std_file_paths::SetUserDataDir(Argument(1));
        const std::wstring title = Argument(3);
        const std::wstring place = Argument(4);
        return Argument(2) == L"reg" ? wxFolderDlg::DoModalReg(parent, place.c_str(), title.c_str())
                                     : wxFolderDlg::DoModal(parent, place.c_str(), title.c_str());
    }
};

}  // namespace

wxIMPLEMENT_APP(Probe);
