#include <fittings/platform/embedded/file/staged_file.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include <glib.h>

#include <fittings/platform/embedded/file/file_bytes.h>
#include <fittings/platform/embedded/file/file_descriptor.h>

namespace fittings {

namespace {

using GText = std::unique_ptr<char, decltype(&g_free)>;

constexpr std::string_view kPrefix = ".fittings-save-";

// Temporary files that are older than this were left by processes that were killed while they saved.
constexpr time_t kLifetimeSeconds = 60;

// The largest number of exchanges in one PutBack(). Each exchange after the first is due to another process that stores
// something at the same moment.
constexpr int kMaxExchanges = 100;

// Makes an empty file with a name that no person would choose, and opens it. Sets @a path only on success. Returns -1
// on any error.
int MakeFile(const std::string& folder, std::string& path)
{
    for (int attempt = 0; attempt < 1000; ++attempt) {
        std::string made = folder + "/" + std::string(kPrefix) + GText(g_uuid_string_random(), g_free).get();
        const int file = open(made.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOCTTY, 0600);
        if (file >= 0) {
            path = std::move(made);
            return file;
        }
        // The name may exist: a forked process gets the same random numbers as its parent.
        if (errno != EEXIST)
            break;
    }
    return -1;
}

bool IsStagingName(std::string_view name)
{
    return name.substr(0, kPrefix.size()) == kPrefix &&
           g_uuid_string_is_valid(std::string(name.substr(kPrefix.size())).c_str());
}

void RemoveLeftovers(const std::string& folder)
{
    GDir* const dir = g_dir_open(folder.c_str(), 0, nullptr);
    if (!dir)
        return;
    const time_t now = time(nullptr);
    while (const char* const name = g_dir_read_name(dir)) {
        struct stat info;
        const std::string path = folder + "/" + name;
        if (IsStagingName(name) && lstat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode) &&
            info.st_mtime + kLifetimeSeconds < now)
            unlink(path.c_str());
    }
    g_dir_close(dir);
}

// Like IdentityOf(), but for a link returns the state of the link itself.
std::optional<FileIdentity> IdentityOfName(const std::string& path)
{
    struct stat info;
    if (lstat(path.c_str(), &info) != 0)
        return std::nullopt;
    return FileIdentity(info);
}

bool WriteDurably(int fd, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = write(fd, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return Sync(fd);
}

void KeepOwnerAndMode(int fd, const struct stat& old)
{
    // Ignore an error, for example on a file system without owners: saving is more important.
    if (old.st_uid != geteuid() || old.st_gid != getegid())
        static_cast<void>(!fchown(fd, old.st_uid, old.st_gid));
    static_cast<void>(!fchmod(fd, old.st_mode & 07777));
}

}  // namespace

StagedFile::StagedFile(std::string target, std::string_view bytes, const std::optional<struct stat>& old)
    : m_target(std::move(target))
{
    const std::string folder = FolderOf(m_target);
    RemoveLeftovers(folder);
    // Use the descriptor and not the path: the folder's owner could replace the new file by a link, and a process of
    // root would then change the file that the link leads to.
    const FileDescriptor file(MakeFile(folder, m_path));
    if (file.Get() < 0)
        return;
    m_isWritten = WriteDurably(file.Get(), bytes);
    if (old)
        KeepOwnerAndMode(file.Get(), *old);
    else
        GiveToOwnerOfFolder(file.Get(), folder);
}

StagedFile::~StagedFile()
{
    if (!m_path.empty())
        unlink(m_path.c_str());
}

PlaceResult StagedFile::Exchange()
{
    const auto placed = IdentityOfName(m_path);
    const PlaceResult result = Rename(RENAME_EXCHANGE);
    if (result == PlaceResult::Done)
        m_placed = placed;
    return result;
}

// Each exchange should displace the file that this object last put at the target. If it displaces another file, that
// file is newer and comes from another process: the next exchange returns the newer file to the target.
PlaceResult StagedFile::PutBack()
{
    const auto ours = m_placed;
    for (int exchanges = 0; exchanges < kMaxExchanges; ++exchanges) {
        const auto expected = m_placed;
        const PlaceResult result = Exchange();
        if (result != PlaceResult::Done)
            return exchanges == 0 ? result : PlaceResult::NotAsExpected;
        const auto displaced = IdentityOfName(m_path);
        if (HaveSameContent(displaced, expected))
            return HaveSameContent(displaced, ours) ? PlaceResult::Done : PlaceResult::NotAsExpected;
    }
    return PlaceResult::NotAsExpected;
}

void StagedFile::SetAside()
{
    for (int number = 1; number < kMaxOtherNames; ++number) {
        if (renameat2(AT_FDCWD, m_path.c_str(), AT_FDCWD, OtherName(m_target, number).c_str(), RENAME_NOREPLACE) == 0)
            m_path.clear();
        if (m_path.empty() || errno != EEXIST)
            return;
    }
}

PlaceResult StagedFile::Rename(unsigned int flags)
{
    const int result = flags ? renameat2(AT_FDCWD, m_path.c_str(), AT_FDCWD, m_target.c_str(), flags)
                             : rename(m_path.c_str(), m_target.c_str());
    if (result == 0) {
        if (flags != RENAME_EXCHANGE)
            m_path.clear();
        return PlaceResult::Done;
    }
    switch (errno) {
    case EEXIST:
    case ENOENT:
        return PlaceResult::NotAsExpected;
    case EINVAL:  // the file system does not support the flag
    case ENOSYS:  // the kernel or a sandbox does not allow the call
    case EPERM:
        return flags ? PlaceResult::Unsupported : PlaceResult::Failed;
    default:
        return PlaceResult::Failed;
    }
}

}  // namespace fittings
