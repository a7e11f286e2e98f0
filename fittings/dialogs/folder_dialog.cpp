#include <fittings/dialogs/folder_dialog.h>

#include <string>

#include <wx/dirdlg.h>
#include <wx/utils.h>

#include <fittings/base/or_empty.h>
#include <fittings/dialogs/folder_dialog_p.h>
#include <fittings/platform/lng_util.h>
#include <fittings/platform/local_reg_store.h>

namespace {

constexpr wchar_t kPathKey[] = L"Path";

wxString DirSelector(wxWindow* parent, const wchar_t* message, const wchar_t* defaultFolder, int x, int y)
{
    wxDirDialog dialog(parent, fittings::OrEmpty(message), fittings::OrEmpty(defaultFolder), wxDD_DEFAULT_STYLE,
                       wxPoint(x, y), wxDefaultSize, wxDirDialogNameStr);
    // Set the home folder first, because SetPath() ignores a missing folder. Without a folder, GTK's dialog would show
    // the files that were used last, where nothing can be chosen.
    dialog.SetPath(wxGetHomeDir());
    dialog.SetPath(fittings::OrEmpty(defaultFolder));
    dialog.Centre(wxBOTH);
    return dialog.ShowModal() == wxID_OK ? dialog.GetPath() : wxString();
}

}  // namespace

wxString wxFolderDlg::DoModal(wxWindow* parent, const wchar_t* initialFolder, const wchar_t* message)
{
    if (!message) {
        // Translators: the title of the dialog in which a folder is chosen.
        message = lng_util_internal::DoGetResourceString(L"Current folder is:", nullptr);
    }
    return DirSelector(parent, message, initialFolder, wxDefaultCoord, wxDefaultCoord);
}

wxString wxFolderDlg::DoModalReg(wxWindow* parent, const wchar_t* section, const wchar_t* message)
{
    const wxString folder = DoModal(parent, fittings::LoadLastFolder(section).c_str(), message);
    fittings::SaveLastFolder(section, folder.wc_str());
    return folder;
}

namespace fittings {

std::wstring LoadLastFolder(const wchar_t* section)
{
    return CLocalRegStore::GetString(section, kPathKey, L"");
}

void SaveLastFolder(const wchar_t* section, const wchar_t* folder)
{
    if (*folder)
        CLocalRegStore::WriteString(section, kPathKey, folder);
}

}  // namespace fittings
