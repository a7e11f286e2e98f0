#ifndef FITTINGS_DIALOGS_FILE_DIALOG_P_H_
#define FITTINGS_DIALOGS_FILE_DIALOG_P_H_

#include <string>

#include <wx/string.h>

#include <fittings/base/std_str.h>

class wxWindow;

// The functions behind CQVFileDialogI, and a dialog that opens a file. Private to the library.

namespace fittings {

/// The section of the default store that contains the last file of each registry entry.
inline constexpr char kLastFilesSection[] = "LastFiles";
/// The application's folder that is proposed while a registry entry has no file yet.
inline constexpr wchar_t kSamplesFolder[] = L"Samples";
/// The text that is put before an extension to make a wildcard.
inline constexpr wchar_t kWildcardPrefix[] = L"*.";
/// The registry entry under which an application remembers the project that it saved last.
inline constexpr char kLastProjectSave[] = "LastProjectSave";

std::string GetRegEntry();

/// Like CQVFileDialogI::LaunchSaveDialog(), but asks for an existing file. If @a folderSwitch is empty, the toolkit
/// chooses where the dialog starts. With any other text, the dialog starts at the path that LoadLastPath() returns.
/// @a folderSwitch must not be null.
CStdStr<wchar_t> LaunchOpenDialog(wxWindow* parent, const wchar_t* defaultExtension, const wchar_t* wildcard,
                                  const wchar_t* title, const wchar_t* folderSwitch);

/// Shows a file dialog and returns the chosen path; empty when the user cancelled. @a style is a style of wxFileDialog.
wxString FileSelector(const wchar_t* title, const wchar_t* defaultDir, const wchar_t* defaultFile,
                      const wchar_t* defaultExt, const wchar_t* wildcard, long style, wxWindow* parent, int x, int y);

/// Returns the nearest folder that exists and can be read, beginning with @a path and going up.
wxString NearestThatCanBeShown(const wxString& path);

/// Returns the file remembered under @a entry; empty when there is none or @a entry is empty.
std::wstring LoadLastFile(const char* entry);

/// Returns the file remembered under @a entry, or else the application's folder of samples; empty for an empty entry.
std::wstring LoadLastPath(const char* entry);

/// Remembers @a path exactly as it is, unless @a path or @a entry is empty.
void SaveLastPath(const wchar_t* path, const char* entry);

}  // namespace fittings

#endif
