// fittings-gallery: a disk-usage browser built from the library's components.

#include <csignal>
#include <cstdio>
#include <string>

#include <glib-unix.h>
#include <gtk/gtk.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/init.h>
#include <wx/uilocale.h>

#include "gallery_frame.h"
#include "tour.h"

namespace {

using fittings::GalleryFrame;

constexpr const char* usage = "Usage: fittings-gallery [--tour DIR] [FOLDER]\n"
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

/// Arguments stay bytes, because a folder's name may be no text.
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

/// Closes the window as a person would, so that it is remembered.
gboolean OnStopSignal(gpointer)
{
    // Later, because a window closed by GLib's own event loop is not destroyed before the next wx event.
    wxTheApp->CallAfter([] {
        if (wxTheApp->GetTopWindow())
            wxTheApp->GetTopWindow()->Close();
    });
    return G_SOURCE_CONTINUE;
}

class GalleryApp : public wxApp
{
public:
    bool OnInit() override
    {
        SetAppName("fittings-gallery");
        SetAppDisplayName("Fittings Gallery");
        wxUILocale::UseDefault();
        for (const int signal : {SIGTERM, SIGINT, SIGHUP})
            g_unix_signal_add(signal, OnStopSignal, nullptr);

        gtk_window_set_default_icon_name("fittings-gallery");
        if (!g_line.pictures.empty())
            return true;

        auto* frame = new GalleryFrame;
        const wxString note = frame->Start(g_line.folder);
        if (!note.empty())
            std::fprintf(stderr, "fittings-gallery: %s\n", static_cast<const char*>(note.utf8_str()));
        frame->Show();
        frame->Raise();
        return true;
    }

    int OnRun() override
    {
        if (g_line.pictures.empty())
            return wxApp::OnRun();
        wxGUIEventLoop loop;
        const wxEventLoopActivator active(&loop);
        return fittings::Tour(g_line.pictures, g_line.folder).Run() ? 0 : 1;
    }
};

}  // namespace

wxIMPLEMENT_APP_NO_MAIN(GalleryApp);

int main(int argc, char** argv)
{
    g_line = Parse(argc, argv);
    if (g_line.help || !g_line.good) {
        std::fputs(usage, g_line.good ? stdout : stderr);
        return g_line.good ? 0 : 2;
    }
    int noArguments = 1;
    return wxEntry(noArguments, argv);
}
