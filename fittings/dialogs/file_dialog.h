#ifndef FITTINGS_DIALOGS_FILE_DIALOG_H_
#define FITTINGS_DIALOGS_FILE_DIALOG_H_

#include <string>

#include <fittings/base/export.h>
#include <fittings/base/std_str.h>
#include <fittings/platform/text_argument.h>

class wxWindow;

/// Asks the user where to save a file, in a modal dialog centred on its parent, and proposes the file chosen last in
/// the same context. GUI thread only.
///
/// The context is the registry entry, a name of the host's own, which is set around the call:
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
/// The full path of the file chosen is kept in UTF-8 in the default store: section "LastFiles", the registry entry as
/// the key. It is read anew by each dialog, and written by none that was cancelled.
///
/// Each text may be of any kind: fittings::TextArgument.
class FITTINGS_API CQVFileDialogI
{
public:
    /// @name A file extension and a file filter
    ///
    /// Kept for the host, one of each in the process, empty at first. The dialog uses neither.
    /// @{
    static void SetFileExtension(const CStdStr<wchar_t>& ext);  ///< Keeps a copy.
    static void SetFileFilter(const CStdStr<wchar_t>& filter);  ///< Keeps a copy.
    static CStdStr<wchar_t> GetFileExtension();                 ///< Returns the one set last.
    static CStdStr<wchar_t> GetFileFilter();                    ///< Returns the one set last.
    /// @}

    /// Sets the entry, in UTF-8, under which the dialog remembers its file, and returns the one before, to be set again
    /// afterwards. There is one in the process. While it is empty, as at first, nothing is proposed or remembered.
    static std::string SetRegEntry(const std::string& entry);

    /// Shows the dialog and returns the full path chosen, or an empty text when the user cancelled. The dialog asks
    /// before it returns a file that exists; it neither makes a file nor changes one.
    ///
    /// @param parent  may be null.
    /// @param defaultExtension  without the dot. Of the patterns in @a wildcard, the first that contains this text,
    ///     upper and lower case being different, is the one selected. What the user types stays as typed.
    /// @param wildcard  which files are shown, as wxFileDialog takes it: "Tables (*.csv)|*.csv|All files|*". Null or
    ///     empty: those with the default extension, or all files when that is empty too.
    /// @param title  null or empty: none.
    /// @param initialFolder  where to start, with a separator at the end: without it, the part behind the last
    ///     separator is taken for the name of a file. Empty: where the remembered file is, and before there is one, the
    ///     application's folder "Samples". The dialog leaves a folder that is gone, or cannot be read, for the nearest
    ///     one above. Must not be null: that asserts and gives an empty text.
    /// @param initialFileName  the name proposed. Null or empty: the name that came with the folder, without its
    ///     extension. To a name without one, the toolkit adds the extension of the first pattern.
    ///
    /// A file whose path is not UTF-8 on disk cannot be chosen: the toolkit then gives an empty path, as if cancelled.
    static CStdStr<wchar_t> LaunchSaveDialog(wxWindow* parent, const wchar_t* defaultExtension, const wchar_t* wildcard,
                                             const wchar_t* title, const wchar_t* initialFolder,
                                             const wchar_t* initialFileName);

    /// @name With texts of any kind
    /// @{

    /// As the function of CStdStr.
    template <typename Text, fittings::IfNot<CStdStr<wchar_t>, Text> = 0>
    static void SetFileExtension(const Text& ext)
    {
        SetFileExtension(CStdStr<wchar_t>(fittings::TextArgument(ext)));
    }

    /// As the function of CStdStr.
    template <typename Text, fittings::IfNot<CStdStr<wchar_t>, Text> = 0>
    static void SetFileFilter(const Text& filter)
    {
        SetFileFilter(CStdStr<wchar_t>(fittings::TextArgument(filter)));
    }

    /// As the function of UTF-8.
    template <typename Text, fittings::IfNot<std::string, Text> = 0>
    static std::string SetRegEntry(const Text& entry)
    {
        return SetRegEntry(fittings::NarrowText(entry));
    }

    /// As the function of wide text: default extension, wildcard, title, initial folder, initial name.
    template <typename... Texts, fittings::IfTexts<5, Texts...> = 0>
    static CStdStr<wchar_t> LaunchSaveDialog(wxWindow* parent, const Texts&... texts)
    {
        return LaunchSaveDialog(parent, fittings::TextArgument(texts)...);
    }

    /// @}
};

#endif
