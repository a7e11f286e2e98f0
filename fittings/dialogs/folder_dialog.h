#ifndef FITTINGS_DIALOGS_FOLDER_DIALOG_H_
#define FITTINGS_DIALOGS_FOLDER_DIALOG_H_

#include <wx/string.h>

#include <fittings/base/export.h>
#include <fittings/platform/text_argument.h>

class wxWindow;

/// Asks the user for a folder, in a modal dialog centred on its parent. GUI thread only.
///
/// @code
/// wxString folder = wxFolderDlg::DoModalReg(this, "ImportFolder", "Import from");
/// if (!folder.empty())
///     Import(folder);
/// @endcode
///
/// No folder is checked, made or changed. A remembered folder that no longer exists is passed to the dialog as it is.
/// Without a folder, or with one that does not exist, the dialog shows the home folder. Each text may be of any
/// kind: see fittings::TextArgument.
class FITTINGS_API wxFolderDlg
{
public:
    /// Shows the dialog and returns the chosen folder; empty when the user cancelled. The dialog starts in
    /// @a initialFolder, or in the home folder if @a initialFolder is null or empty. If @a message is null, the dialog
    /// shows "Current folder is:" in the language of the host. If @a message is empty, the dialog shows none.
    static wxString DoModal(wxWindow* parent, const wchar_t* initialFolder, const wchar_t* message);

    /// Does the same as DoModal(), but starts in the folder that was chosen last under @a section, and remembers the
    /// new choice. The folder is stored in the default store, key "Path" of that section. A cancelled dialog does not
    /// change the remembered folder.
    static wxString DoModalReg(wxWindow* parent, const wchar_t* section, const wchar_t* message);

    /// Does the same as the function for wide text.
    template <typename Folder, typename Message, fittings::IfTexts<2, Folder, Message> = 0>
    static wxString DoModal(wxWindow* parent, const Folder& initialFolder, const Message& message)
    {
        return DoModal(parent, fittings::TextArgument(initialFolder), fittings::TextArgument(message));
    }

    /// Does the same as the function for wide text.
    template <typename Section, typename Message, fittings::IfTexts<2, Section, Message> = 0>
    static wxString DoModalReg(wxWindow* parent, const Section& section, const Message& message)
    {
        return DoModalReg(parent, fittings::TextArgument(section), fittings::TextArgument(message));
    }
};

#endif
