// file_dialog_probe SETTINGS save ENTRY TITLE EXTENSION WILDCARD FOLDER NAME
// file_dialog_probe SETTINGS open ENTRY TITLE EXTENSION WILDCARD SWITCH
//
// A DialogProbe for the file dialog. If FILE_DIALOG_AS_NOBODY is in the environment and root runs the probe, the probe
// gives up root's rights.

#include <cstdlib>
#include <string>

#include <grp.h>
#include <unistd.h>

#include <fittings/dialogs/file_dialog.h>
#include <fittings/dialogs/file_dialog_p.h>
#include <fittings/platform/file_util_ex.h>

#include <tests/dialogs/probes/dialog_probe.h>

namespace {

class Probe : public DialogProbe
{
    static bool BecomeNobody() { return setgroups(0, nullptr) == 0 && setgid(65534) == 0 && setuid(65534) == 0; }

    std::wstring Ask(wxWindow* parent) override
    {
        if (std::getenv("FILE_DIALOG_AS_NOBODY") && geteuid() == 0 && !BecomeNobody())
            std::_Exit(2);
        CQVFileDialogI::SetRegEntry(file_util_ex::ConvertToUTF8(Argument(3)));
        const std::wstring title = Argument(4);
        const std::wstring extension = Argument(5);
        const std::wstring wildcard = Argument(6);
        const std::wstring folder = Argument(7);
        if (Argument(2) == L"open")
            return fittings::LaunchOpenDialog(parent, extension.c_str(), wildcard.c_str(), title.c_str(),
                                              folder.c_str());
        return CQVFileDialogI::LaunchSaveDialog(parent, extension.c_str(), wildcard.c_str(), title.c_str(),
                                                folder.c_str(), Argument(8).c_str());
    }
};

}  // namespace

wxIMPLEMENT_APP(Probe);
