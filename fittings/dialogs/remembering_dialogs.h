#ifndef FITTINGS_DIALOGS_REMEMBERING_DIALOGS_H_
#define FITTINGS_DIALOGS_REMEMBERING_DIALOGS_H_

#include <wx/dirdlg.h>
#include <wx/filedlg.h>
#include <wx/string.h>

#include <fittings/base/export.h>

/// The toolkit's file dialog. It starts with the folder, the name and the filter of the last accepted dialog. GUI
/// thread only.
///
/// @code
/// wxRememberingFileDialog dialog(this, "Table", "Open a table", "Tables (*.csv)|*.csv|All files|*",
///                                wxFD_OPEN | wxFD_FILE_MUST_EXIST);
/// if (dialog.ShowModal() == wxID_OK)
///     Load(dialog.GetPath());
/// @endcode
///
/// What is remembered belongs to an entry, a name that the program chooses. All dialogs with the same entry share what
/// is remembered, whether they open or save files. When ShowModal() returns wxID_OK, the choice is stored in the
/// default store with one save:
///
/// - The full path, in section "LastFiles", with the entry as the key. CQVFileDialogI stores its file at the same
///   place. If several files were chosen, the path is the last one of GetPaths().
/// - The pattern of the filter, such as "*.csv", in section "LastFilters", with the entry as the key. The pattern is
///   stored only if there is more than one filter and one of them is selected.
///
/// A dialog that is cancelled or has an empty entry stores nothing. A failure to store is not reported.
class FITTINGS_API wxRememberingFileDialog : public wxFileDialog
{
public:
    /// Call Create() before anything else.
    wxRememberingFileDialog() = default;

    /// Makes the object and calls Create() with the same arguments.
    wxRememberingFileDialog(wxWindow* parent, const wxString& entry,
                            const wxString& message = wxASCII_STR(wxFileSelectorPromptStr),
                            const wxString& wildcard = wxASCII_STR(wxFileSelectorDefaultWildcardStr),
                            long style = wxFD_DEFAULT_STYLE, const wxString& defaultName = wxString());

    /// Makes the dialog as wxFileDialog::Create() does, and reads what is remembered. Setters of the toolkit that are
    /// called between Create() and ShowModal() take precedence.
    ///
    /// - Folder: the remembered one, or the nearest one above it that exists and can be read. If none is remembered,
    ///   the user's documents.
    /// - Filter: the remembered one, if the wildcard contains it. Otherwise the first filter that shows the proposed
    ///   name, if that name has an extension. Otherwise the first filter of all.
    /// - Name: @a defaultName, otherwise the remembered name with its extension. A dialog to open a file selects the
    ///   proposed file only if it exists and the filter shows it.
    ///
    /// @param parent  may be null.
    /// @param entry  the name that the choice is remembered under: any text. Empty: nothing is remembered.
    /// @param message  the title.
    /// @param wildcard  as in wxFileDialog: "Tables (*.csv)|*.csv|All files|*".
    /// @param style  any style of wxFileDialog.
    /// @param defaultName  a name without a folder; everything up to its last separator is removed. A name without an
    ///     extension gets that of the filter.
    bool Create(wxWindow* parent, const wxString& entry, const wxString& message = wxASCII_STR(wxFileSelectorPromptStr),
                const wxString& wildcard = wxASCII_STR(wxFileSelectorDefaultWildcardStr),
                long style = wxFD_DEFAULT_STYLE, const wxString& defaultName = wxString());

    /// Shows the dialog, and remembers the choice when the user accepts it. Returns what wxFileDialog::ShowModal()
    /// returns.
    int ShowModal() override;

protected:
    wxString m_entry;  ///< The entry of Create().
};

/// The toolkit's folder dialog. It starts in the folder that was chosen last. GUI thread only.
///
/// @code
/// wxRememberingDirDialog dialog(this, "ImportFolder", "Import from");
/// if (dialog.ShowModal() == wxID_OK)
///     Import(dialog.GetPath());
/// @endcode
///
/// The folder belongs to an entry, a name that the program chooses. When ShowModal() returns wxID_OK, the full path is
/// stored in the default store: key "Path" of the section with the entry's name. wxFolderDlg::DoModalReg() stores its
/// folder at the same place. If several folders were chosen, the path is the last one of GetPaths(). A dialog that is
/// cancelled or has an empty entry stores nothing. A failure to store is not reported.
class FITTINGS_API wxRememberingDirDialog : public wxDirDialog
{
public:
    /// Call Create() before anything else.
    wxRememberingDirDialog() = default;

    /// Makes the object and calls Create() with the same arguments.
    wxRememberingDirDialog(wxWindow* parent, const wxString& entry,
                           const wxString& message = wxASCII_STR(wxDirSelectorPromptStr),
                           long style = wxDD_DEFAULT_STYLE);

    /// Makes the dialog as wxDirDialog::Create() does. The dialog starts in the remembered folder, or in the nearest
    /// one above it that exists and can be read. If none is remembered, it starts in the user's documents. A call of
    /// SetPath() between Create() and ShowModal() takes precedence.
    ///
    /// @param parent  may be null.
    /// @param entry  the name that the folder is remembered under: any text. Empty: nothing is remembered.
    /// @param message  the title.
    /// @param style  any style of wxDirDialog.
    bool Create(wxWindow* parent, const wxString& entry, const wxString& message = wxASCII_STR(wxDirSelectorPromptStr),
                long style = wxDD_DEFAULT_STYLE);

    /// Shows the dialog, and remembers the folder when the user accepts it. Returns what wxDirDialog::ShowModal()
    /// returns.
    int ShowModal() override;

protected:
    wxString m_entry;  ///< The entry of Create().
};

#endif
