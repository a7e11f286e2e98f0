#ifndef FITTINGS_DIALOGS_FILE_DIALOG_P_H_
#define FITTINGS_DIALOGS_FILE_DIALOG_P_H_

#include <string>

#include <wx/string.h>

#include <fittings/base/std_str.h>

class wxWindow;

// What stands behind CQVFileDialogI, and the open dialog, which is not offered to hosts. Private to the library.

namespace fittings {

/// The section of the default store in which the last files are kept, by registry entry.
inline constexpr char kLastFilesSection[] = "LastFiles";
/// The application's folder that is proposed while nothing is remembered.
inline constexpr wchar_t kSamplesFolder[] = L"Samples";
/// What makes a wildcard of a bare extension.
inline constexpr wchar_t kWildcardPrefix[] = L"*.";
/// The registry entry of an application's projects.
inline constexpr char kLastProjectSave[] = "LastProjectSave";

std::string GetRegEntry();

/// As CQVFileDialogI::LaunchSaveDialog(), for a file that exists. Unlike there, an empty @a folderSwitch has the dialog
/// start where the toolkit likes, and any other text has it start at the file remembered, whatever it says. Never null.
CStdStr<wchar_t> LaunchOpenDialog(wxWindow* parent, const wchar_t* defaultExtension, const wchar_t* wildcard,
                                  const wchar_t* title, const wchar_t* folderSwitch);

/// Shows a file dialog with a wxFileDialog's @a style and returns the path chosen, empty when the user cancelled.
wxString FileSelector(const wchar_t* title, const wchar_t* defaultDir, const wchar_t* defaultFile,
                      const wchar_t* defaultExt, const wchar_t* wildcard, long style, wxWindow* parent, int x, int y);

/// The folder @a path, or the nearest above it, that is there and can be read.
wxString NearestThatCanBeShown(const wxString& path);

/// The file remembered under @a entry; empty when there is none, and for an empty entry.
std::wstring LoadLastFile(const char* entry);

/// The file remembered under @a entry, or else the application's folder of samples; empty for an empty entry.
std::wstring LoadLastPath(const char* entry);

/// Remembers @a path, exactly as it is, unless one of the two is empty.
void SaveLastPath(const wchar_t* path, const char* entry);

}  // namespace fittings

#endif
