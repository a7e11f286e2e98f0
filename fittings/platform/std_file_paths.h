#ifndef FITTINGS_PLATFORM_STD_FILE_PATHS_H_
#define FITTINGS_PLATFORM_STD_FILE_PATHS_H_

#include <string>

#include <fittings/base/export.h>
#include <fittings/base/std_str.h>

/// Where an application's files live.
namespace std_file_paths {

/// Returns the folder for this user's settings, without a separator at its end.
///
/// $XDG_DATA_HOME/<application>, by default ~/.local/share/<application>, as the XDG Base Directory Specification
/// has it; <application> is wxTheApp->GetAppName() made safe as a file name, or the program's name. It is created
/// when something is first stored in it. The environment is read once, at first use.
FITTINGS_API std::wstring GetUserDataDir();

/// Makes GetUserDataDir() return @a path from now on; an empty path restores the default. Nothing is moved.
FITTINGS_API void SetUserDataDir(const CStdStr<wchar_t>& path);

/// Returns the folder @a name below the application's folder in the user's documents. It may not exist.
FITTINGS_API std::wstring GetAppFolderPath(const wchar_t* name);

}  // namespace std_file_paths

#endif
