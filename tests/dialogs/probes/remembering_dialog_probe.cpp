// remembering_dialog_probe SETTINGS save|open|several|folder ENTRY TITLE [WILDCARD]: a DialogProbe for the remembering
// dialogs. The chosen paths are separated by "|".

#include <string>

#include <fittings/dialogs/remembering_dialogs.h>

#include <tests/dialogs/probes/dialog_probe.h>

namespace {

class Probe : public DialogProbe
{
    template <typename Dialog>
    static std::wstring PathsOf(Dialog&& dialog)
    {
        wxArrayString paths;
        if (dialog.ShowModal() == wxID_OK)
            dialog.GetPaths(paths);
        return wxJoin(paths, '|', '\0').ToStdWstring();
    }

    std::wstring Ask(wxWindow* parent) override
    {
        const std::wstring mode = Argument(2);
        if (mode == L"folder")
            return PathsOf(wxRememberingDirDialog(parent, Argument(3), Argument(4)));
        const long style = mode == L"save"   ? wxFD_SAVE | wxFD_OVERWRITE_PROMPT
                           : mode == L"open" ? wxFD_OPEN | wxFD_FILE_MUST_EXIST
                                             : wxFD_OPEN | wxFD_MULTIPLE;
        return PathsOf(wxRememberingFileDialog(parent, Argument(3), Argument(4), Argument(5), style));
    }
};

}  // namespace

wxIMPLEMENT_APP(Probe);
