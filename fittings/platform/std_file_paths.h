#ifndef FITTINGS_PLATFORM_STD_FILE_PATHS_H_
#define FITTINGS_PLATFORM_STD_FILE_PATHS_H_

#include <string>

#include <fittings/base/export.h>
#include <fittings/base/std_str.h>

/// Where an application's files live. Any thread, as long as none renames the application meanwhile.
///
/// `<application>` is wxTheApp->GetAppName(), or the program's name where there is none, made safe as a file name: '/'
/// and control characters become '_', so do the names "." and "..", and what a file name cannot hold is cut off.
namespace std_file_paths {

/// Returns the folder for this user's settings, without a separator at its end.
///
/// `$XDG_DATA_HOME/<application>`, by default `~/.local/share/<application>`, as the XDG Base Directory Specification
/// has it: an empty or relative XDG_DATA_HOME is ignored. The folder is created when something is first stored in it.
/// The environment is read once, at first use.
///
/// The home folder is what HOME says, or the password database where HOME is unset, empty or relative. Where neither
/// names an absolute folder it is "/", in which only root can store anything: the path is absolute, whatever happens.
FITTINGS_API std::wstring GetUserDataDir();

/// Makes GetUserDataDir() return @a path from now on; an empty path restores the default. Nothing is moved.
FITTINGS_API void SetUserDataDir(const CStdStr<wchar_t>& path);

/// Returns `<documents>/<application>/`@a name. The folder may not exist. Where the user has no documents folder (none
/// in user-dirs.dirs, as xdg-user-dirs keeps it), the home folder takes its place, as GetUserDataDir() has it.
FITTINGS_API std::wstring GetAppFolderPath(const wchar_t* name);

}  // namespace std_file_paths

#endif
