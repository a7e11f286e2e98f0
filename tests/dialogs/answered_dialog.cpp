#include <tests/dialogs/answered_dialog.h>

#include <filesystem>

#include <gtest/gtest.h>

#include <wx/stopwatch.h>
#include <wx/timer.h>

#include <fittings/platform/std_file_paths.h>
#include <tests/support/gui.h>

namespace {

// Returns a copy of a string that GLib allocated, and frees the string. Returns an empty copy for null.
std::string Take(char* text)
{
    std::string result = text ? text : "";
    g_free(text);
    return result;
}

}  // namespace

GtkFileChooser* ChooserOf(const wxWindow& dialog)
{
    return GTK_FILE_CHOOSER(dialog.GetHandle());
}

std::string FolderOf(const wxWindow& dialog)
{
    std::string folder;
    EXPECT_TRUE(PumpUntil([&] {
        folder = Take(gtk_file_chooser_get_current_folder(ChooserOf(dialog)));
        return !folder.empty();
    }));
    return folder;
}

std::string TitleOf(const wxWindow& dialog)
{
    return gtk_window_get_title(GTK_WINDOW(dialog.GetHandle()));
}

std::string NameOf(const wxWindow& saveDialog)
{
    return Take(gtk_file_chooser_get_current_name(ChooserOf(saveDialog)));
}

wxArrayString PathsOf(const wxFileDialog& dialog)
{
    wxArrayString paths;
    dialog.GetPaths(paths);
    return paths;
}

int Choose(wxFileDialog& dialog, const std::string& path)
{
    const wxString chosen = wxString::FromUTF8(path);
    const auto isShown = [&] { return PathsOf(dialog).Index(chosen) != wxNOT_FOUND; };
    bool shown = false;
    for (int i = 0; i < 15 && !shown; ++i) {
        dialog.SetPath(chosen);  // GTK can ignore the path while the first folder is loading
        shown = PumpUntil(isShown, 3000);
    }
    EXPECT_TRUE(shown) << path;
    return wxID_OK;
}

int ShowAndChoose(wxFileDialog& dialog, const std::string& path)
{
    const Answer answer([&](wxDialog*) { return Choose(dialog, path); });
    return dialog.ShowModal();
}

int AcceptWhen(wxFileDialog& dialog, const std::function<bool()>& isReady)
{
    wxTimer timer;
    const wxStopWatch watch;
    timer.Bind(wxEVT_TIMER, [&](wxTimerEvent&) {
        GtkDialog* const shown = GTK_DIALOG(dialog.GetHandle());
        if (watch.Time() > 60000)
            gtk_dialog_response(shown, GTK_RESPONSE_CANCEL);
        else if (gtk_widget_get_mapped(GTK_WIDGET(shown)) && isReady())
            gtk_dialog_response(shown, GTK_RESPONSE_ACCEPT);  // GTK can ignore it at first, so each tick sends it
    });
    timer.Start(10);
    return dialog.ShowModal();
}

RememberingDialog::RememberingDialog() : m_plain(m_folders / "plain")
{
    std::filesystem::create_directories(m_plain);
}

std::string RememberingDialog::Documents()
{
    return std::filesystem::path(std_file_paths::GetAppFolderPath(L"")).parent_path();
}
