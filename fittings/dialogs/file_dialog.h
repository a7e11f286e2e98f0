#ifndef FITTINGS_DIALOGS_FILE_DIALOG_H_
#define FITTINGS_DIALOGS_FILE_DIALOG_H_

#include <string>

#include <fittings/base/export.h>
#include <fittings/base/std_str.h>
#include <fittings/platform/text_argument.h>

class wxWindow;

/// Asks the user where to save a file, in a modal dialog centred on its parent. The dialog proposes the file that was
/// chosen last in the same context. GUI thread only.
///
/// The context is the registry entry, a name that the host chooses. The host sets it before the call and restores the
/// earlier entry after the call:
///
/// @code
/// const std::string earlier = CQVFileDialogI::SetRegEntry("LastReport");
/// const CStdStr<wchar_t> path =
///     CQVFileDialogI::LaunchSaveDialog(this, "csv", "Tables (*.csv)|*.csv", "Save the report", "", "");
/// CQVFileDialogI::SetRegEntry(earlier);
/// if (!path.empty())
///     WriteReport(path);
/// @endcode
///
/// The full path of the chosen file is stored in UTF-8 in the default store, section "LastFiles", with the registry
/// entry as the key. Nothing is cached: a dialog that needs the stored path reads it anew. A cancelled dialog does
/// not change the stored path.
///
/// Each text argument may be of any kind: see fittings::TextArgument.
class FITTINGS_API CQVFileDialogI
{
public:
    /// @name A file extension and a file filter
    ///
    /// These two texts are kept in memory for the host. A process has one of each, which is empty at first. The dialog
    /// does not use them.
    /// @{
    static void SetFileExtension(const CStdStr<wchar_t>& ext);  ///< Keeps a copy.
    static void SetFileFilter(const CStdStr<wchar_t>& filter);  ///< Keeps a copy.
    static CStdStr<wchar_t> GetFileExtension();                 ///< Returns the last one that was set.
    static CStdStr<wchar_t> GetFileFilter();                    ///< Returns the last one that was set.
    /// @}

    /// Sets the entry, in UTF-8, under which the dialog remembers its file. Returns the earlier entry, so that the
    /// caller can restore it. A process has one entry, which is empty at first. While the entry is empty, the dialog
    /// does not remember a file and does not propose a remembered one.
    static std::string SetRegEntry(const std::string& entry);

    /// Shows the dialog and returns the full path of the chosen file, or an empty text when the user cancelled. The
    /// dialog asks before it returns an existing file. No file is made or changed.
    ///
    /// @param parent  may be null.
    /// @param defaultExtension  without the dot. The first pattern in @a wildcard that contains this text, in the same
    ///     letter case, is selected. A name that the user types is not changed.
    /// @param wildcard  the files that are shown, as in wxFileDialog: "Tables (*.csv)|*.csv|All files|*". Null or
    ///     empty: files with the default extension, or all files if that is empty too.
    /// @param title  null or empty: no title.
    /// @param initialFolder  the folder to start in, with a separator at its end. Without the separator, the last part
    ///     of this path is taken for a file name. Empty: the folder of the remembered file, or the application's folder
    ///     "Samples" if the registry entry has no file yet. If the registry entry is empty too, the toolkit chooses the
    ///     folder. If the folder does not exist or cannot be read, the dialog starts in the nearest folder above it
    ///     that can be read. Must not be null: the call would assert and return an empty text.
    /// @param initialFileName  the proposed name. Null or empty: the file name that was taken from @a initialFolder, or
    ///     the name of the remembered file if @a initialFolder is empty. In these two cases, the extension is dropped.
    ///     If the proposed name has no extension, the toolkit adds that of the first pattern.
    ///
    /// A file whose path is not UTF-8 on disk cannot be chosen: the toolkit returns an empty path, as if the user had
    /// cancelled.
    static CStdStr<wchar_t> LaunchSaveDialog(wxWindow* parent, const wchar_t* defaultExtension, const wchar_t* wildcard,
                                             const wchar_t* title, const wchar_t* initialFolder,
                                             const wchar_t* initialFileName);

    /// @name With texts of any kind
    /// @{

    /// Does the same as the function for CStdStr.
    template <typename Text, fittings::IfNot<CStdStr<wchar_t>, Text> = 0>
    static void SetFileExtension(const Text& ext)
    {
        SetFileExtension(CStdStr<wchar_t>(fittings::TextArgument(ext)));
    }

    /// Does the same as the function for CStdStr.
    template <typename Text, fittings::IfNot<CStdStr<wchar_t>, Text> = 0>
    static void SetFileFilter(const Text& filter)
    {
        SetFileFilter(CStdStr<wchar_t>(fittings::TextArgument(filter)));
    }

    /// Does the same as the function for UTF-8.
    template <typename Text, fittings::IfNot<std::string, Text> = 0>
    static std::string SetRegEntry(const Text& entry)
    {
        return SetRegEntry(fittings::NarrowText(entry));
    }

    /// Does the same as the function for wide text. The texts are the default extension, the wildcard, the title, the
    /// initial folder and the initial name, in this order.
    template <typename... Texts, fittings::IfTexts<5, Texts...> = 0>
    static CStdStr<wchar_t> LaunchSaveDialog(wxWindow* parent, const Texts&... texts)
    {
        return LaunchSaveDialog(parent, fittings::TextArgument(texts)...);
    }

    /// @}
};

#endif
