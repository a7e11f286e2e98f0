// remembering_dialog_probe SETTINGS save|open|several|folder ENTRY TITLE [WILDCARD]: shows a dialog that remembers over
// a frame, with the settings in the folder SETTINGS, for a test that sends it keys. Prints the states of the dialog,
// and at its end
//
//   chosen PATH|PATH...

#include <string>

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/frame.h>

#include <fittings/dialogs/remembering_dialogs.h>
#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/std_file_paths.h>

#include <tests/dialogs/probes/dialog_state.h>

namespace {

class Probe : public wxApp
{
public:
    bool OnInit() override
    {
        SetAppName("fittings-test");
        return true;
    }

    int OnRun() override
    {
        wxGUIEventLoop loop;
        wxEventLoopActivator activate(&loop);
        wxFrame* const frame = ShowParent();
        if (!frame)
            return 1;
        const StatePrinter printer;
        std_file_paths::SetUserDataDir(Argument(1).ToStdWstring());
        PrintLine("chosen " + file_util_ex::ConvertToUTF8(Ask(frame).ToStdWstring()));
        frame->Destroy();
        return 0;
    }

private:
    wxString Argument(int index) const { return index < argc ? argv[index] : wxString(); }

    template <typename Dialog>
    static wxString PathsOf(Dialog&& dialog)
    {
        wxArrayString paths;
        if (dialog.ShowModal() == wxID_OK)
            dialog.GetPaths(paths);
        return wxJoin(paths, '|', '\0');
    }

    wxString Ask(wxWindow* parent) const
    {
        const wxString mode = Argument(2);
        if (mode == "folder")
            return PathsOf(wxRememberingDirDialog(parent, Argument(3), Argument(4)));
        const long style = mode == "save"   ? wxFD_SAVE | wxFD_OVERWRITE_PROMPT
                           : mode == "open" ? wxFD_OPEN | wxFD_FILE_MUST_EXIST
                                            : wxFD_OPEN | wxFD_MULTIPLE;
        return PathsOf(wxRememberingFileDialog(parent, Argument(3), Argument(4), Argument(5), style));
    }
};

}  // namespace

wxIMPLEMENT_APP(Probe);
