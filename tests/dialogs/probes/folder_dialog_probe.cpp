// folder_dialog_probe SETTINGS modal TITLE [FOLDER] | reg TITLE SECTION: shows the folder dialog over a frame, with the
// settings in the folder SETTINGS, for a test that sends it keys. Prints the states of the dialog, and at its end
//
//   chosen FOLDER

#include <string>

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/frame.h>

#include <fittings/dialogs/folder_dialog.h>
#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/std_file_paths.h>

#include <tests/dialogs/probes/dialog_state.h>

namespace {

class Probe : public wxApp
{
public:
    bool OnInit() override { return true; }

    int OnRun() override
    {
        wxGUIEventLoop loop;
        wxEventLoopActivator activate(&loop);
        wxFrame* const frame = ShowParent();
        if (!frame)
            return 1;
        const StatePrinter printer;
        PrintLine("chosen " + file_util_ex::ConvertToUTF8(Ask(frame).ToStdWstring()));
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
