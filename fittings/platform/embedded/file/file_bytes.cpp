#include <fittings/platform/embedded/file/file_bytes.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <glib.h>

#include <fittings/platform/embedded/file/file_descriptor.h>
#include <fittings/platform/embedded/file/staged_file.h>

namespace fittings {

namespace {

constexpr std::chrono::milliseconds kTimeToFillAFile(500);
constexpr std::chrono::milliseconds kTimeToExchange(500);

// A wait for an ExchangeLock may last this long even if its deadline is earlier. A process that was stopped may begin
// the wait after the deadline. If it did not wait then, it could exchange the file at the same time as another process.
// An exchange takes only microseconds.
constexpr std::chrono::milliseconds kLeastTimeToExchange(30);

constexpr std::chrono::milliseconds kPause(1);

// O_NONBLOCK, because opening a pipe would otherwise wait for a writer.
constexpr int kForReading = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

constexpr off_t kMaxFileSize = off_t{64} << 20;
constexpr std::ptrdiff_t kMaxLines = 1'000'000;

// The largest number of merges in one save. Each merge is due to another process that stores at the same moment.
constexpr int kMaxMerges = 100;

// Returns the time as a pair, because a timespec has no comparison operators.
std::pair<time_t, long> Comparable(const timespec& time)
{
    return {time.tv_sec, time.tv_nsec};
}

// Returns whether a file with the timestamp @a stamp gets another timestamp if it changes after @a now. A timestamp
// without nanoseconds counts as one with a resolution of two seconds: some file systems store only whole seconds, and
// some only even seconds.
bool IsPastTick(const timespec& stamp, const timespec& now)
{
    return stamp.tv_nsec == 0 ? stamp.tv_sec + 2 <= now.tv_sec : Comparable(stamp) < Comparable(now);
}

bool IsTooLarge(std::string_view bytes)
{
    return bytes.size() > static_cast<std::size_t>(kMaxFileSize) ||
           std::count(bytes.begin(), bytes.end(), '\n') > kMaxLines;
}

bool ReadAll(int fd, std::size_t expected, std::string& bytes)
{
    std::size_t used = 0;
    bytes.resize(expected + 1);
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

// Returns the path of the file that @a path leads to through links, even if there is no file yet. Returns nothing on an
// error. For a loop of links, returns a path that cannot be opened.
std::optional<std::string> FollowLinks(std::string path)
{
    for (int links = 0; links < 40; ++links) {
        std::error_code error;
        const std::filesystem::path target = std::filesystem::read_symlink(path, error);
        if (error == std::errc::invalid_argument || error == std::errc::no_such_file_or_directory)
            return path;  // not a link, or no file yet
        if (error)
            return std::nullopt;
        path = FolderOf(path) / target;
    }
    return path;
}

bool HoldsBytes(const std::string& path, const struct stat& info, std::string_view bytes)
{
    std::string old;
    return static_cast<std::size_t>(info.st_size) == bytes.size() &&
           ReadFileBytes(path, old).result == ReadResult::Read && old == bytes;
}

// Makes the renaming of a file in the folder durable. Ignores an error: the renaming is done, and only a power failure
// could still undo it.
void SyncFolder(const std::string& folder)
{
    const FileDescriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.Get() >= 0)
        Sync(descriptor.Get());
}

// Replaces @a bytes with the whole content of the open file.
FileContent ReadOpenFile(int fd, std::string& bytes)
{
    timespec now;
    clock_gettime(CLOCK_REALTIME_COARSE, &now);
    struct stat info;
    if (fstat(fd, &info) != 0 || !S_ISREG(info.st_mode) || info.st_size > kMaxFileSize || lseek(fd, 0, SEEK_SET) != 0 ||
        !ReadAll(fd, static_cast<std::size_t>(info.st_size), bytes))
        return {ReadResult::Failed, std::nullopt};
    return {IsTooLarge(bytes) ? ReadResult::Failed : ReadResult::Read, FileIdentity(info),
            IsPastTick(info.st_ctim, now)};
}

template <typename Read>
FileContent ReadUntilFilled(const Read& read, std::string& bytes, std::chrono::steady_clock::time_point deadline)
{
    for (;;) {
        const FileContent content = read(bytes);
        if (!content.IsEmptyForNow() || std::chrono::steady_clock::now() >= deadline)
            return content;
        std::this_thread::sleep_for(kPause);
    }
}

// Returns the content of the displaced file. Waits for content until @a deadline, as ReadFileBytes() does.
//
// If the name of the displaced file is gone, another process has removed the file as an old leftover. Only the file
// that was the target before the exchange can be old enough for that, so reads its open descriptor @a before instead.
std::optional<std::string> ReadDisplaced(const StagedFile& staged, int before,
                                         std::chrono::steady_clock::time_point deadline)
{
    std::string bytes;
    // Do not follow a link that another process has put at the target: the link itself must be put back.
    const FileDescriptor file(open(staged.Path().c_str(), kForReading | O_NOFOLLOW));
    if (file.Get() < 0 && errno != ENOENT)
        return std::nullopt;
    const int fd = file.Get() >= 0 ? file.Get() : before;
    const FileContent content =
        ReadUntilFilled([fd](std::string& read) { return ReadOpenFile(fd, read); }, bytes, deadline);
    return content.result == ReadResult::Read ? std::optional(std::move(bytes)) : std::nullopt;
}

struct Target
{
    std::string path;
    std::optional<struct stat> old;  // None when there is no file.
};

// Follows links, and creates the folder if there is no file. Returns nothing when the file cannot be replaced.
std::optional<Target> PrepareTarget(const std::string& path)
{
    const auto target = FollowLinks(path);
    if (!target)
        return std::nullopt;
    struct stat old;
    if (lstat(target->c_str(), &old) == 0) {
        // Replace only regular files: renaming would also replace a device or a pipe.
        if (!S_ISREG(old.st_mode))
            return std::nullopt;
        return Target{*target, old};
    }
    if (errno != ENOENT || g_mkdir_with_parents(FolderOf(*target).c_str(), 0700) != 0)
        return std::nullopt;
    return Target{*target, std::nullopt};
}

UpdateResult ResultOf(PlaceResult placed)
{
    if (placed == PlaceResult::NotAsExpected)
        return UpdateResult::Outdated;
    return placed == PlaceResult::Done ? UpdateResult::Saved : UpdateResult::Failed;
}

// An exchange of the target and a staged file.
struct Exchanged
{
    StagedFile& staged;
    int before;                 // The open file that was the target before the exchange.
    std::string_view expected;  // The content that the target should have had before the exchange.
    std::string_view put;
};

// The result of an exchange and of the merges after it.
struct Outcome
{
    UpdateResult result;
    bool isUndone = false;  // True if the exchange was undone, and no other process had changed the new file.
};

Outcome Undo(StagedFile& staged)
{
    const PlaceResult undone = staged.PutBack();
    if (undone != PlaceResult::Done)
        staged.SetAside();
    // If an error prevents the undoing, the new file stays at the target and counts as saved.
    return {undone == PlaceResult::Failed ? UpdateResult::Saved : UpdateResult::Outdated, undone == PlaceResult::Done};
}

// Called after an exchange. If the displaced content is not the expected one, merges the displaced content with our
// change and exchanges again. Then does the same for the file that the new exchange displaced.
Outcome MergeDisplaced(const Target& target, const Exchanged& done, const FileUpdate& update, int merges = 0)
{
    const auto now = std::chrono::steady_clock::now();
    // Do not wait if the expected content is empty: ReadFileBytes() has already waited for content before the update.
    const auto displaced = ReadDisplaced(
        done.staged, done.before, done.expected.empty() ? now : std::min(now + kTimeToFillAFile, update.deadline));
    if (displaced && *displaced == done.expected)
        return {UpdateResult::Saved};
    if (merges == kMaxMerges)
        return {UpdateResult::Failed, Undo(done.staged).isUndone};
    const auto merged = displaced ? update.merge(done.expected, done.put, *displaced) : std::nullopt;
    if (!merged || IsTooLarge(*merged))
        return Undo(done.staged);
    StagedFile next(target.path, *merged, target.old);
    const FileDescriptor ours(open(target.path.c_str(), kForReading | O_NOFOLLOW));
    if (!next.IsWritten() || next.Exchange() != PlaceResult::Done)
        return Undo(done.staged);
    const Outcome outcome = MergeDisplaced(target, {next, ours.Get(), done.put, *merged}, update, merges + 1);
    if (outcome.isUndone)
        done.staged.SetAside();
    return {outcome.result};
}

// A lock of a folder, held for the microseconds in which a file in the folder is checked and exchanged. The lock is
// advisory: a caller that cannot get it continues without it. Unlike a lock file, this lock cannot be removed.
class ExchangeLock
{
public:
    explicit ExchangeLock(const std::string& folder)
        : m_folder(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
    }
    ~ExchangeLock()
    {
        // Closing does not release the lock while a forked child has the folder open.
        if (m_isHeld)
            flock(m_folder.Get(), LOCK_UN);
    }
    ExchangeLock(const ExchangeLock&) = delete;
    ExchangeLock& operator=(const ExchangeLock&) = delete;

    // Waits for the lock while @a isAsItWas returns true. Gives up at the deadline, because the holder may be stopped.
    // Each later wait then lasts only kLeastTimeToExchange, until one of these waits gets the lock.
    void WaitWhile(const std::function<bool()>& isAsItWas, std::chrono::steady_clock::time_point deadline)
    {
        static std::atomic<bool> isStuck = false;
        const auto least = std::chrono::steady_clock::now() + kLeastTimeToExchange;
        const auto end = isStuck ? least : std::max(least, deadline);
        for (int attempts = 1; m_folder.Get() >= 0 && isAsItWas(); ++attempts) {
            m_isHeld = flock(m_folder.Get(), LOCK_EX | LOCK_NB) == 0;
            if (m_isHeld)
                isStuck = false;
            if (m_isHeld || (errno != EWOULDBLOCK && errno != EINTR))
                return;
            if (attempts > 1 && std::chrono::steady_clock::now() >= end) {
                isStuck = true;
                return;
            }
            std::this_thread::sleep_for(kPause);
        }
    }

private:
    const FileDescriptor m_folder;
    bool m_isHeld = false;
};

UpdateResult ExchangeAndMerge(const Target& target, StagedFile& staged, const FileUpdate& update)
{
    const FileDescriptor before(open(target.path.c_str(), kForReading | O_NOFOLLOW));
    if (before.Get() < 0)
        return errno == ENOENT || errno == ELOOP ? UpdateResult::Outdated : UpdateResult::Failed;
    const auto isAsItWas = [&] { return IdentityOf(target.path) == update.found.identity; };
    PlaceResult placed = PlaceResult::NotAsExpected;
    {
        ExchangeLock lock(FolderOf(target.path));
        lock.WaitWhile(isAsItWas, std::min(std::chrono::steady_clock::now() + kTimeToExchange, update.deadline));
        if (isAsItWas())
            placed = staged.Exchange();
        if (placed == PlaceResult::Unsupported)
            return ResultOf(staged.Replace());
    }
    if (placed != PlaceResult::Done)
        return ResultOf(placed);
    return MergeDisplaced(target, {staged, before.Get(), update.foundBytes, update.newBytes}, update).result;
}

}  // namespace

FileIdentity::FileIdentity(const struct stat& info)
    : device(info.st_dev), inode(info.st_ino), size(info.st_size), modified(info.st_mtim), changed(info.st_ctim)
{
}

bool FileIdentity::operator==(const FileIdentity& other) const
{
    return HaveSameContent(*this, other) && Comparable(changed) == Comparable(other.changed);
}

bool HaveSameContent(const std::optional<FileIdentity>& a, const std::optional<FileIdentity>& b)
{
    return a && b && a->device == b->device && a->inode == b->inode && a->size == b->size &&
           Comparable(a->modified) == Comparable(b->modified);
}

std::optional<FileIdentity> IdentityOf(const std::string& path)
{
    struct stat info;
    if (stat(path.c_str(), &info) != 0)
        return std::nullopt;
    return FileIdentity(info);
}

FileContent ReadFileBytes(const std::string& path, std::string& bytes, std::chrono::steady_clock::time_point deadline)
{
    const auto readOnce = [&path](std::string& read) -> FileContent {
        const FileDescriptor file(open(path.c_str(), kForReading));
        if (file.Get() < 0)
            return {errno == ENOENT ? ReadResult::Missing : ReadResult::Failed, std::nullopt};
        return ReadOpenFile(file.Get(), read);
    };
    return ReadUntilFilled(readOnce, bytes, deadline);
}

bool FileContent::IsEmptyForNow() const
{
    if (result != ReadResult::Read || !identity || identity->size != 0)
        return false;
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    const auto age = std::chrono::seconds(now.tv_sec - identity->modified.tv_sec) +
                     std::chrono::nanoseconds(now.tv_nsec - identity->modified.tv_nsec);
    return age >= age.zero() && age < kTimeToFillAFile;
}

bool ReplaceFileBytes(const std::string& path, std::string_view bytes)
{
    const auto target = PrepareTarget(path);
    if (!target || IsTooLarge(bytes))
        return false;
    if (target->old && HoldsBytes(target->path, *target->old, bytes))
        return true;
    StagedFile staged(target->path, bytes, target->old);
    if (!staged.IsWritten() || staged.Replace() != PlaceResult::Done)
        return false;
    SyncFolder(FolderOf(target->path));
    return true;
}

UpdateResult UpdateFileBytes(const std::string& path, const FileUpdate& update)
{
    if (update.found.result == ReadResult::Read && update.newBytes == update.foundBytes)
        return UpdateResult::Saved;
    const auto target = PrepareTarget(path);
    if (!target || IsTooLarge(update.newBytes))
        return UpdateResult::Failed;
    if (target->old.has_value() != (update.found.result == ReadResult::Read))
        return UpdateResult::Outdated;
    StagedFile staged(target->path, update.newBytes, target->old);
    if (!staged.IsWritten())
        return UpdateResult::Failed;

    UpdateResult result = UpdateResult::Failed;
    if (target->old) {
        result = ExchangeAndMerge(*target, staged, update);
    } else {
        PlaceResult placed = staged.PutNew();
        if (placed == PlaceResult::Unsupported)
            placed = IdentityOf(target->path) ? PlaceResult::NotAsExpected : staged.Replace();
        result = ResultOf(placed);
    }
    if (result == UpdateResult::Saved)
        SyncFolder(FolderOf(target->path));
    return result;
}

std::string KeepUnderOtherName(const std::string& path)
{
    const auto target = FollowLinks(path);
    if (!target)
        return {};
    for (int number = 1; number < kMaxOtherNames; ++number) {
        std::string other = OtherName(*target, number);
        if (link(target->c_str(), other.c_str()) == 0)
            return other;
        if (errno != EEXIST)
            break;
        // The file may already have this name: this process or another one may have added the name before.
        if (HaveSameContent(IdentityOf(other), IdentityOf(*target)))
            return other;
    }
    return {};
}

std::string OtherName(const std::string& path, int number)
{
    return path + ".unreadable" + (number > 1 ? "." + std::to_string(number) : "");
}

void GiveToOwnerOfFolder(int fd, const std::string& folder)
{
    struct stat owner;
    if (geteuid() == 0 && stat(folder.c_str(), &owner) == 0 && owner.st_uid != 0)
        static_cast<void>(!fchown(fd, owner.st_uid, owner.st_gid));
}

std::string FolderOf(const std::string& path)
{
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    return folder.empty() ? "." : folder;
}

}  // namespace fittings
