#ifndef FITTINGS_GALLERY_FOLDERS_OPEN_FOLDER_H_
#define FITTINGS_GALLERY_FOLDERS_OPEN_FOLDER_H_

#include <memory>

#include <dirent.h>
#include <fcntl.h>

namespace gallery {

struct CloseFolder
{
    void operator()(DIR* folder) const { closedir(folder); }
};
using Folder = std::unique_ptr<DIR, CloseFolder>;

/// Opens the folder @a path, relative to the open folder @a base, with additional @a flags of openat(). If the folder
/// cannot be opened, sets errno and returns null.
Folder OpenFolder(int base, const char* path, int flags = 0);

/// Returns the next entry other than "." and "..". At the end, sets errno to 0 and returns null. After an error, sets
/// errno to the error and returns null.
const dirent* NextEntry(DIR* folder);

/// Flags for fstatat(): describe a link itself, and mount nothing.
constexpr int kLookAtLinks = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;

}  // namespace gallery

#endif
