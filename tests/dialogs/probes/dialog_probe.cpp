#include <tests/dialogs/probes/dialog_probe.h>

#include <cstdio>

#include <gtk/gtk.h>
#include <wx/evtloop.h>
#include <wx/frame.h>

#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/std_file_paths.h>

#include <tests/support/gui.h>

namespace {

void PrintLine(const std::string& line)
{
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

// Returns a copy of a string that GLib allocated, and frees the string. Returns an empty copy for null.
std::string Take(char* text)
{
    std::string result = text ? text : "";
    g_free(text);
    return result;
}

struct Windows
{
    GtkWindow* dialog = nullptr;
    GtkWindow* message = nullptr;
    bool popup = false;
};

Windows MappedWindows()
{
    Windows mapped;
    GList* const windows = gtk_window_list_toplevels();
    for (GList* item = windows; item; item = item->next) {
        auto* const window = GTK_WINDOW(item->data);
        if (!gtk_widget_get_mapped(GTK_WIDGET(window)))
            continue;
        if (GTK_IS_FILE_CHOOSER(window))
            mapped.dialog = window;
        else if (GTK_IS_MESSAGE_DIALOG(window))
            mapped.message = window;
        else if (gtk_window_get_window_type(window) == GTK_WINDOW_POPUP)
            mapped.popup = true;
    }
    g_list_free(windows);
    return mapped;
}

std::string Activity(GtkWindow* window)
{
    return gtk_window_has_toplevel_focus(window) ? "active" : "inactive";
}

std::string TextOf(GtkWindow* message)
{
    char* text = nullptr;
    g_object_get(message, "text", &text, nullptr);
    return Take(text);
}

std::string StateOf(const Windows& windows)
{
    GtkWidget* const focus = gtk_window_get_focus(windows.dialog);
    GtkWidget* const accept = gtk_window_get_default_widget(windows.dialog);
    std::string state = Activity(windows.dialog);
    state += std::string("\t") + (focus ? G_OBJECT_TYPE_NAME(focus) : "none");
    state += windows.popup ? "\tpopup" : "\t";
    state += accept && gtk_widget_is_sensitive(accept) ? "\taccept" : "\t";
    state += "\t" + Take(gtk_file_chooser_get_current_folder(GTK_FILE_CHOOSER(windows.dialog)));
    state += "\t" + Take(gtk_file_chooser_get_filename(GTK_FILE_CHOOSER(windows.dialog)));
    state += std::string("\t") + (focus && GTK_IS_ENTRY(focus) ? gtk_entry_get_text(GTK_ENTRY(focus)) : "");
    state += windows.message ? "\t" + Activity(windows.message) + " " + TextOf(windows.message) : "\t";
    return state;
}

// Shows the parent frame, prints its place, and returns the frame. Returns null if the frame does not appear.
wxFrame* ShowParent()
{
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "parent", wxPoint(100, 150), wxSize(1000, 700));
    if (!ShowAndSettle(frame))
        return nullptr;
    const wxRect at = frame->GetScreenRect();
    PrintLine("frame " + std::to_string(at.x) + " " + std::to_string(at.y) + " " + std::to_string(at.width) + " " +
              std::to_string(at.height));
    return frame;
}

int PrintState(void* lastState)
{
    const Windows windows = MappedWindows();
    if (!windows.dialog)
        return G_SOURCE_CONTINUE;
    const std::string state = StateOf(windows);
    std::string& last = *static_cast<std::string*>(lastState);
    if (state != last)
        PrintLine("state\t" + state);
    last = state;
    return G_SOURCE_CONTINUE;
}

}  // namespace

bool DialogProbe::OnInit()
{
    SetAppName("fittings-test");
    return true;
}

int DialogProbe::OnRun()
{
    wxGUIEventLoop loop;
    wxEventLoopActivator activate(&loop);
    wxFrame* const frame = ShowParent();
    if (!frame)
        return 1;
    std_file_paths::SetUserDataDir(Argument(1));
    std::string lastState;
    const unsigned timer = g_timeout_add(10, PrintState, &lastState);
    PrintLine("chosen " + file_util_ex::ConvertToUTF8(Ask(frame)));
    g_source_remove(timer);
    frame->Destroy();
    return 0;
}

std::wstring DialogProbe::Argument(int index) const
{
    return index < argc ? argv[index].ToStdWstring() : std::wstring();
}
