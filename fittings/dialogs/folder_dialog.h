#ifndef FITTINGS_DIALOGS_FOLDER_DIALOG_H_
#define FITTINGS_DIALOGS_FOLDER_DIALOG_H_

#include <wx/string.h>

#include <fittings/base/export.h>

class wxWindow;

/// Asks the user for a folder, in a modal dialog centred on its parent. GUI thread only.
///
/// @code
/// wxString folder = wxFolderDlg::DoModalReg(this, L"ImportFolder", L"Import from");
/// if (!folder.empty())
///     Import(folder);
/// @endcode
///
/// Folders are neither checked, made nor changed: a remembered folder that is gone is handed to the dialog as it is. Given
/// no folder, or one that is gone, the dialog shows the home folder.
class FITTINGS_API wxFolderDlg
{
public:
    /// Starts in @a initialFolder (null or empty: the home folder) and returns the chosen folder, empty when
    /// the user cancelled. A null @a message shows "Current folder is:" in the language of the host; an empty one
    /// shows none.
    static wxString DoModal(wxWindow* parent, const wchar_t* initialFolder, const wchar_t* message);

    /// As DoModal(), starting in the folder chosen last under @a section and remembering the new choice: in the
    /// default store, key "Path" of that section. A cancelled dialog leaves it as it was.
    static wxString DoModalReg(wxWindow* parent, const wchar_t* section, const wchar_t* message);
};

#endif
