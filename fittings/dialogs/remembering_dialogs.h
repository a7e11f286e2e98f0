#ifndef FITTINGS_DIALOGS_REMEMBERING_DIALOGS_H_
#define FITTINGS_DIALOGS_REMEMBERING_DIALOGS_H_

#include <wx/dirdlg.h>
#include <wx/filedlg.h>
#include <wx/string.h>

#include <fittings/base/export.h>

/// The toolkit's file dialog, which starts where it was accepted last: in the folder, with the name and the filter
/// chosen then. GUI thread only.
///
/// @code
/// wxRememberingFileDialog dialog(this, "Table", "Open a table", "Tables (*.csv)|*.csv|All files|*",
///                                wxFD_OPEN | wxFD_FILE_MUST_EXIST);
/// if (dialog.ShowModal() == wxID_OK)
///     Load(dialog.GetPath());
/// @endcode
///
/// What is remembered belongs to an entry, a name of the program's own. Dialogs with the same entry share it, to open
/// and to save. When ShowModal() returns wxID_OK, all is stored by one save in the default store:
///
/// - the full path, in section "LastFiles", the entry as the key. CQVFileDialogI keeps its file there too, under the
///   same entry. Of several files, it is the last of GetPaths();
/// - the pattern of the filter, such as "*.csv", in section "LastFilters", when there is more than one to choose from.
///
/// A dialog that is cancelled stores nothing, nor does one whose entry is empty. Failures to store are not reported.
class FITTINGS_API wxRememberingFileDialog : public wxFileDialog
{
public:
    /// Call Create() before anything else.
    wxRememberingFileDialog() = default;

    /// As Create().
    wxRememberingFileDialog(wxWindow* parent, const wxString& entry,
                            const wxString& message = wxASCII_STR(wxFileSelectorPromptStr),
                            const wxString& wildcard = wxASCII_STR(wxFileSelectorDefaultWildcardStr),
                            long style = wxFD_DEFAULT_STYLE, const wxString& defaultName = wxString());

    /// Makes the dialog as wxFileDialog::Create() does, and reads what is remembered. Setters of the toolkit's that are
    /// called between this and ShowModal() go first.
    ///
    /// - Folder: the one remembered, or the nearest above it that is there and can be read. While nothing is
    ///   remembered, the user's documents.
    /// - Filter: the one remembered. When the wildcard does not have it, the first that shows the name proposed, where
    ///   that has an extension; else the first.
    /// - Name: @a defaultName, else the name remembered, with its extension. A dialog to open selects the file only
    ///   where it is there and the filter shows it.
    ///
    /// @param parent  may be null.
    /// @param entry  any text.
    /// @param message  the title.
    /// @param wildcard  as wxFileDialog takes it: "Tables (*.csv)|*.csv|All files|*".
    /// @param style  any of wxFileDialog's.
    /// @param defaultName  a name without a folder; what stands before its last separator is left out. A name without
    ///     an extension gets the one of the filter.
    bool Create(wxWindow* parent, const wxString& entry, const wxString& message = wxASCII_STR(wxFileSelectorPromptStr),
                const wxString& wildcard = wxASCII_STR(wxFileSelectorDefaultWildcardStr),
                long style = wxFD_DEFAULT_STYLE, const wxString& defaultName = wxString());

    /// Shows the dialog, and remembers what was chosen when the user accepts it. Returns what wxFileDialog does.
    int ShowModal() override;

protected:
    wxString m_entry;  ///< Under which it remembers.
};

/// The toolkit's folder dialog, which starts in the folder chosen last. GUI thread only.
///
/// @code
/// wxRememberingDirDialog dialog(this, "ImportFolder", "Import from");
/// if (dialog.ShowModal() == wxID_OK)
///     Import(dialog.GetPath());
/// @endcode
///
/// The folder belongs to an entry, a name of the program's own. When ShowModal() returns wxID_OK, its full path is
/// stored in the default store, key "Path" of the section that is named as the entry: where wxFolderDlg::DoModalReg()
/// keeps it. Of several folders, it is the last of GetPaths(). A dialog that is cancelled stores nothing, nor does one
/// whose entry is empty. Failures to store are not reported.
class FITTINGS_API wxRememberingDirDialog : public wxDirDialog
{
public:
    /// Call Create() before anything else.
    wxRememberingDirDialog() = default;

    /// As Create().
    wxRememberingDirDialog(wxWindow* parent, const wxString& entry,
                           const wxString& message = wxASCII_STR(wxDirSelectorPromptStr),
                           long style = wxDD_DEFAULT_STYLE);

    /// Makes the dialog as wxDirDialog::Create() does. It starts in the folder remembered, or in the nearest above it
    /// that is there and can be read; while nothing is remembered, in the user's documents. SetPath() goes first.
    ///
    /// @param parent  may be null.
    /// @param entry  any text.
    /// @param message  the title.
    /// @param style  any of wxDirDialog's.
    bool Create(wxWindow* parent, const wxString& entry, const wxString& message = wxASCII_STR(wxDirSelectorPromptStr),
                long style = wxDD_DEFAULT_STYLE);

    /// Shows the dialog, and remembers the folder when the user accepts it. Returns what wxDirDialog does.
    int ShowModal() override;

protected:
    wxString m_entry;  ///< Under which it remembers.
};

#endif
