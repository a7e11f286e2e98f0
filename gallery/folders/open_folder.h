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

/// Null, with errno set, when the folder cannot be read.
Folder OpenFolder(int base, const char* path, int flags = 0);

/// The next entry but "." and ".."; null at the end, with errno telling whether it is a real one.
const dirent* NextEntry(DIR* folder);

/// For fstatat(): describes a link itself, and mounts nothing.
constexpr int kLookAtLinks = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;

}  // namespace gallery

#endif
