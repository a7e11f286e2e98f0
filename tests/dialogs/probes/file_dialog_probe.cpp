// file_dialog_probe SETTINGS save ENTRY TITLE EXTENSION WILDCARD FOLDER NAME
// file_dialog_probe SETTINGS open ENTRY TITLE EXTENSION WILDCARD SWITCH
//
// Shows the file dialog over a frame, with the settings in the folder SETTINGS, for a test that sends it keys. Prints
// the states of the dialog, and at its end
//
//   chosen PATH
//
// With FILE_DIALOG_AS_NOBODY in the environment it has no more rights than any user, even when root runs it.

#include <cstdlib>
#include <string>

#include <grp.h>
#include <unistd.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/frame.h>

#include <fittings/dialogs/file_dialog.h>
#include <fittings/dialogs/file_dialog_p.h>
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
        if (std::getenv("FILE_DIALOG_AS_NOBODY") && geteuid() == 0 && !BecomeNobody())
            return 2;
        const StatePrinter printer;
        PrintLine("chosen " + file_util_ex::ConvertToUTF8(Ask(frame)));
        frame->Destroy();
        return 0;
    }

private:
    static bool BecomeNobody() { return setgroups(0, nullptr) == 0 && setgid(65534) == 0 && setuid(65534) == 0; }

    std::wstring Ask(wxWindow* parent) const
    {
        const auto argument = [this](int index) { return index < argc ? argv[index].ToStdWstring() : std::wstring(); };
        std_file_paths::SetUserDataDir(argument(1));
        CQVFileDialogI::SetRegEntry(file_util_ex::ConvertToUTF8(argument(3)));
        const std::wstring title = argument(4);
        const std::wstring extension = argument(5);
        const std::wstring wildcard = argument(6);
        const std::wstring folder = argument(7);
        const std::wstring name = argument(8);
        if (argument(2) == L"open")
            return fittings::LaunchOpenDialog(parent, extension.c_str(), wildcard.c_str(), title.c_str(),
                                              folder.c_str());
        return CQVFileDialogI::LaunchSaveDialog(parent, extension.c_str(), wildcard.c_str(), title.c_str(),
                                                folder.c_str(), name.c_str());
    }
};

}  // namespace

wxIMPLEMENT_APP(Probe);
