// fittings-gallery: a disk-usage browser built from the library's components.

#include <csignal>
#include <cstdio>
#include <string>
#include <vector>

#include <glib-unix.h>
#include <gtk/gtk.h>
#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/evtloop.h>
#include <wx/init.h>
#include <wx/modalhook.h>
#include <wx/uilocale.h>

#include <gallery/app/gallery_frame.h>
#include <gallery/tour/tour.h>

namespace {

constexpr const char* kUsage = "Usage: fittings-gallery [--tour DIR] [FOLDER]\n"
                               "Browse FOLDER, by default the folder of the last session.\n"
                               "\n"
                               "  --tour DIR  let the program show itself and write pictures into DIR\n"
                               "  --help      say this\n";

struct CommandLine
{
    std::string folder;
    std::string pictures;
    bool help = false;
    bool good = true;
};

// Parses the program's arguments. The folder stays a string of bytes, because its name need not be valid text.
CommandLine Parse(int count, char** arguments)
{
    CommandLine line;
    for (int i = 1; i < count; ++i) {
        const std::string argument = arguments[i];
        if (argument == "--help" || argument == "-h")
            line.help = true;
        else if (argument == "--tour" && i + 1 < count)
            line.pictures = arguments[++i];
        else if (argument[0] != '-' && line.folder.empty())
            line.folder = argument;
        else
            line.good = false;
    }
    return line;
}

CommandLine g_line;

// Ends the program when it receives a signal such as SIGTERM: cancels the open dialogs, the latest first, and then
// closes the window, which stores its state. The window is closed last, because the code that opened a dialog still
// uses the window.
class Stop : public wxModalDialogHook
{
public:
    void Begin()
    {
        m_begun = true;
        wxWindow* const window = wxTheApp->GetTopWindow();
        if (m_dialogs.empty()) {
            if (window)
                window->Close();
        } else if (m_dialogs.back()->IsModal()) {
            // Do not cancel a dialog twice: after EndModal(), it is no longer modal, but it may still be open. If GTK
            // asks whether to replace a file, a save dialog stays open until the user answers.
            m_dialogs.back()->EndModal(wxID_CANCEL);
        }
    }

protected:
    int Enter(wxDialog* dialog) override
    {
        m_dialogs.push_back(dialog);
        return wxID_NONE;
    }

    void Exit(wxDialog*) override
    {
        m_dialogs.pop_back();
        if (m_begun)
            wxTheApp->CallAfter([this] { Begin(); });
    }

private:
    std::vector<wxDialog*> m_dialogs;
    bool m_begun = false;
};

gboolean OnStopSignal(gpointer stop)
{
    // Do not call Begin() here, in a callback of GLib: it would close the window, but the toolkit would not destroy the
    // window before its next event, and the program would run until then.
    wxTheApp->CallAfter([stop] { static_cast<Stop*>(stop)->Begin(); });
    return G_SOURCE_CONTINUE;
}

}  // namespace

namespace gallery {

class GalleryApp : public wxApp
{
public:
    bool OnInit() override
    {
        SetAppName("fittings-gallery");
        SetAppDisplayName("Fittings Gallery");
        wxUILocale::UseDefault();
        // Set GTK's direction too: GTK chose it before the program had a language. Without this call, the windows of
        // wxWidgets follow the language, but GTK's widgets in them do not.
        if (GetLayoutDirection() == wxLayout_RightToLeft)
            gtk_widget_set_default_direction(GTK_TEXT_DIR_RTL);
        for (const int signal : {SIGTERM, SIGINT, SIGHUP})
            g_unix_signal_add(signal, OnStopSignal, &m_stop);
        m_stop.Register();

        gtk_window_set_default_icon_name("fittings-gallery");
        if (!g_line.pictures.empty())
            return true;

        auto* frame = new GalleryFrame;
        const wxString note = frame->Start(g_line.folder);
        if (!note.empty())
            std::fprintf(stderr, "fittings-gallery: %s\n", static_cast<const char*>(note.utf8_str()));
        frame->Show();
        return true;
    }

    int OnRun() override
    {
        if (g_line.pictures.empty())
            return wxApp::OnRun();
        wxGUIEventLoop loop;
        const wxEventLoopActivator active(&loop);
        return Tour(g_line.pictures, g_line.folder).Run() ? 0 : 1;
    }

private:
    Stop m_stop;
};

}  // namespace gallery

wxIMPLEMENT_APP_NO_MAIN(gallery::GalleryApp);

int main(int argc, char** argv)
{
    g_line = Parse(argc, argv);
    if (g_line.help || !g_line.good) {
        std::fputs(kUsage, g_line.good ? stdout : stderr);
        return g_line.good ? 0 : 2;
    }
    int noArguments = 1;
    return wxEntry(noArguments, argv);
}
