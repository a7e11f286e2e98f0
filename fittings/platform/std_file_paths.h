#ifndef FITTINGS_PLATFORM_STD_FILE_PATHS_H_
#define FITTINGS_PLATFORM_STD_FILE_PATHS_H_

#include <string>

#include <fittings/base/export.h>
#include <fittings/base/std_str.h>

/// The folders of an application's files. Callable from any thread, except while a thread renames the application.
///
/// `<application>` is wxTheApp->GetAppName(). If wxTheApp is null or the application has no name, `<application>` is
/// the name of the program. Characters that are not safe in a file name are replaced: '/' and control characters become
/// '_', and so does each '.' of the names "." and "..". A name of more than 255 bytes in UTF-8 is cut off.
namespace std_file_paths {

/// Returns the folder for this user's settings, without a separator at its end.
///
/// The folder is `$XDG_DATA_HOME/<application>`, by default `~/.local/share/<application>`, as in the XDG Base
/// Directory Specification: an empty or relative XDG_DATA_HOME is ignored. The first write to the folder creates it.
/// The environment variables are read once: later changes of them have no effect.
///
/// The home folder is taken from HOME, or from the password database if HOME is unset, empty or relative. If neither
/// names an absolute folder, the home folder is "/", where only root can store files. So the path is absolute, unless
/// SetUserDataDir() has set a relative one.
FITTINGS_API std::wstring GetUserDataDir();

/// Makes GetUserDataDir() return @a path from now on; an empty path restores the default. No file is moved.
FITTINGS_API void SetUserDataDir(const CStdStr<wchar_t>& path);

/// Returns `<documents>/<application>/`@a name. Creates no folder. If the user has no documents folder (no entry in the
/// user-dirs.dirs file of xdg-user-dirs), or if HOME is empty or relative, the path begins with the home folder that
/// GetUserDataDir() uses.
FITTINGS_API std::wstring GetAppFolderPath(const wchar_t* name);

}  // namespace std_file_paths

#endif
