#include <gallery/folders/open_folder.h>

#include <cerrno>
#include <cstring>

#include <unistd.h>

namespace gallery {

Folder OpenFolder(int base, const char* path, int flags)
{
    const int file = openat(base, path, O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC | flags);
    if (file < 0)
        return nullptr;
    Folder folder(fdopendir(file));
    if (!folder)
        close(file);
    return folder;
}

const dirent* NextEntry(DIR* folder)
{
    for (;;) {
        errno = 0;
        const dirent* entry = readdir(folder);
        if (!entry || (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0))
            return entry;
    }
}

}  // namespace gallery
