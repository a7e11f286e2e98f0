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
/// Folders are neither checked, made nor changed: a remembered folder that is gone is handed to the dialog as it is.
/// Given no folder, or one that is gone, the dialog shows the home folder. Each text may be of any kind:
/// fittings::TextArgument.
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

    /// As the function of wide text.
    template <typename Folder, typename Message, fittings::IfTexts<2, Folder, Message> = 0>
    static wxString DoModal(wxWindow* parent, const Folder& initialFolder, const Message& message)
    {
        return DoModal(parent, fittings::TextArgument(initialFolder), fittings::TextArgument(message));
    }

    /// As the function of wide text.
    template <typename Section, typename Message, fittings::IfTexts<2, Section, Message> = 0>
    static wxString DoModalReg(wxWindow* parent, const Section& section, const Message& message)
    {
        return DoModalReg(parent, fittings::TextArgument(section), fittings::TextArgument(message));
    }
};

#endif
