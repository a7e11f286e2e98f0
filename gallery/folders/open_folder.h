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

/// Opens the folder @a path, relative to the open folder @a base, with additional @a flags of openat(). Returns null,
/// with errno set, when it cannot be read.
Folder OpenFolder(int base, const char* path, int flags = 0);

/// Returns the next entry other than "." and "..". Returns null at the end, with errno 0, and after an error, with the
/// error in errno.
const dirent* NextEntry(DIR* folder);

/// Flags for fstatat(): describe a link itself, and mount nothing.
constexpr int kLookAtLinks = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;

}  // namespace gallery

#endif
