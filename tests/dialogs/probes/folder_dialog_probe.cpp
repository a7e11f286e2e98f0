// folder_dialog_probe SETTINGS modal TITLE [FOLDER]
// folder_dialog_probe SETTINGS reg TITLE SECTION
//
// A DialogProbe for the folder dialog: calls DoModal() or DoModalReg().

#include <string>

#include <fittings/dialogs/folder_dialog.h>

#include <tests/dialogs/probes/dialog_probe.h>

namespace {

class Probe : public DialogProbe
{
    std::wstring Ask(wxWindow* parent) override
    {
        const std::wstring title = Argument(3);
        const std::wstring place = Argument(4);
        const wxString chosen = Argument(2) == L"reg" ? wxFolderDlg::DoModalReg(parent, place.c_str(), title.c_str())
                                                      : wxFolderDlg::DoModal(parent, place.c_str(), title.c_str());
        return chosen.ToStdWstring();
    }
};

}  // namespace

wxIMPLEMENT_APP(Probe);
