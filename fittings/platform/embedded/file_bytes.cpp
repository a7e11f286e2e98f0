#include <fittings/platform/embedded/file_bytes.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <glib.h>
#include <glib/gstdio.h>

namespace fittings {

namespace {

// A bigger one is no settings file, and reading it might take all memory.
constexpr off_t kMaxFileSize = off_t{1} << 30;

constexpr const char* kStagingPrefix = ".fittings-save-";

// What is older was left behind by a process that was killed while it saved.
constexpr time_t kStagingLifetimeSeconds = 60;

using GText = std::unique_ptr<char, decltype(&g_free)>;

class FileDescriptor
{
public:
    explicit FileDescriptor(int fd) : m_fd(fd) {}
    ~FileDescriptor()
    {
        if (m_fd >= 0)
            close(m_fd);
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    int Get() const { return m_fd; }

private:
    int m_fd;
};

bool IsBefore(const timespec& a, const timespec& b)
{
    return a.tv_sec != b.tv_sec ? a.tv_sec < b.tv_sec : a.tv_nsec < b.tv_nsec;
}

// Past the tick of the clock that stamped a file: one that changes from now on gets another stamp. Stamps without a
// fraction come from file systems that keep whole seconds, some every second one only.
bool IsPastTick(const timespec& stamp, const timespec& now)
{
    return stamp.tv_nsec == 0 ? stamp.tv_sec + 2 <= now.tv_sec : IsBefore(stamp, now);
}

bool IsSame(const timespec& a, const timespec& b)
{
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

bool ReadAll(int fd, std::size_t expected, std::string& bytes)
{
    std::size_t used = bytes.size();
    bytes.resize(used + expected + 1);
    for (;;) {
        const ssize_t count = read(fd, &bytes[used], bytes.size() - used);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            bytes.resize(used);
            return count == 0;
        }
        used += static_cast<std::size_t>(count);
        if (used > static_cast<std::size_t>(kMaxFileSize))
            return false;
        if (used == bytes.size())
            bytes.resize(used * 2);
    }
}

std::string FolderOf(const std::string& path)
{
    return GText(g_path_get_dirname(path.c_str()), g_free).get();
}

// The path behind the links at the end of @a path, also where there is no file yet. A circle gives a path that
// cannot be opened.
std::string FollowLinks(std::string path)
{
    for (int links = 0; links < 40; ++links) {
        const GText target(g_file_read_link(path.c_str(), nullptr), g_free);
        if (!target)
            break;
        path = g_path_is_absolute(target.get()) ? target.get() : FolderOf(path) + "/" + target.get();
    }
    return path;
}

bool HoldsBytes(const std::string& path, const struct stat& info, std::string_view bytes)
{
    std::string old;
    return static_cast<std::size_t>(info.st_size) == bytes.size() &&
           ReadFileBytes(path, old).result == ReadResult::Read && old == bytes;
}

void RemoveOldStagingFiles(const std::string& folder)
{
    GDir* const dir = g_dir_open(folder.c_str(), 0, nullptr);
    if (!dir)
        return;
    const time_t now = time(nullptr);
    while (const char* const name = g_dir_read_name(dir)) {
        struct stat info;
        const std::string path = folder + "/" + name;
        if (g_str_has_prefix(name, kStagingPrefix) && lstat(path.c_str(), &info) == 0 &&
            info.st_mtime + kStagingLifetimeSeconds < now)
            unlink(path.c_str());
    }
    g_dir_close(dir);
}

// Makes an empty file that nobody else writes, processes in other containers included. Unlike the temporary file
// beside a file of GLib's own making, its name is told from any that a person gives. An empty path on any error.
std::string NewStagingFile(const std::string& folder)
{
    std::string path = folder + "/" + kStagingPrefix + "XXXXXX";
    const FileDescriptor file(g_mkstemp_full(path.data(), O_WRONLY | O_CLOEXEC, 0600));
    return file.Get() >= 0 ? path : std::string();
}

// The bytes are on the disk when this returns. Renaming, and what makes that last, is left to the caller.
bool WriteStagingFile(const std::string& path, std::string_view bytes)
{
    return g_file_set_contents_full(path.c_str(), bytes.data(), static_cast<gssize>(bytes.size()),
                                    G_FILE_SET_CONTENTS_DURABLE, 0600, nullptr);
}

// Makes a renaming last. What cannot be synced is stored all the same, and comes back unless the power fails now.
void SyncFolder(const std::string& folder)
{
    const FileDescriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.Get() >= 0)
        fsync(descriptor.Get());
}

}  // namespace

FileIdentity::FileIdentity(const struct stat& info)
    : device(info.st_dev), inode(info.st_ino), size(info.st_size), modified(info.st_mtim), changed(info.st_ctim)
{
}

bool FileIdentity::operator==(const FileIdentity& other) const
{
    return device == other.device && inode == other.inode && size == other.size && IsSame(modified, other.modified) &&
           IsSame(changed, other.changed);
}

std::optional<FileIdentity> IdentityOf(const std::string& path)
{
    struct stat info;
    if (stat(path.c_str(), &info) != 0)
        return std::nullopt;
    return FileIdentity(info);
}

FileContent ReadFileBytes(const std::string& path, std::string& bytes)
{
    timespec now;
    clock_gettime(CLOCK_REALTIME_COARSE, &now);
    // A pipe in the file's place must not make the program wait for a writer.
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (file.Get() < 0)
        return {errno == ENOENT ? ReadResult::Missing : ReadResult::Failed, std::nullopt};
    struct stat info;
    if (fstat(file.Get(), &info) != 0 || !S_ISREG(info.st_mode) || info.st_size > kMaxFileSize ||
        !ReadAll(file.Get(), static_cast<std::size_t>(info.st_size), bytes))
        return {ReadResult::Failed, std::nullopt};
    return {ReadResult::Read, FileIdentity(info), IsPastTick(info.st_ctim, now)};
}

bool ReplaceFileBytes(const std::string& path, std::string_view bytes)
{
    const std::string target = FollowLinks(path);
    const std::string folder = FolderOf(target);
    struct stat old;
    const bool exists = lstat(target.c_str(), &old) == 0;
    if (exists && HoldsBytes(target, old, bytes))
        return true;
    // Renaming to the place of a folder fails by itself; a device or a pipe would be replaced.
    if (exists ? !S_ISREG(old.st_mode) : errno != ENOENT)
        return false;
    if (!exists && g_mkdir_with_parents(folder.c_str(), 0700) != 0)
        return false;

    RemoveOldStagingFiles(folder);
    const std::string staging = NewStagingFile(folder);
    if (staging.empty())
        return false;
    if (!WriteStagingFile(staging, bytes)) {
        unlink(staging.c_str());
        return false;
    }
    if (exists) {
        // Where they cannot be kept, as on a file system without owners, saving matters more.
        if (old.st_uid != geteuid() || old.st_gid != getegid())
            static_cast<void>(!chown(staging.c_str(), old.st_uid, old.st_gid));
        static_cast<void>(!chmod(staging.c_str(), old.st_mode & 07777));
    }
    if (rename(staging.c_str(), target.c_str()) != 0) {
        unlink(staging.c_str());
        return false;
    }
    SyncFolder(folder);
    return true;
}

std::string KeepUnderOtherName(const std::string& path)
{
    const std::string target = FollowLinks(path);
    for (int number = 1; number < 1000; ++number) {
        std::string other = target + ".unreadable" + (number > 1 ? "." + std::to_string(number) : "");
        if (link(target.c_str(), other.c_str()) == 0)
            return other;
        if (errno != EEXIST)
            break;
    }
    return {};
}

}  // namespace fittings
