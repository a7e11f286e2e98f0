#ifndef FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_BYTES_H_
#define FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_BYTES_H_

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include <sys/types.h>
#include <time.h>

struct stat;

// Reading and atomic replacement of whole files. Paths are in the system's encoding. Private to the library.

namespace fittings {

/// Identifies one state of a file.
struct FileIdentity
{
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    timespec modified = {};
    timespec changed = {};

    explicit FileIdentity(const struct stat& info);
    bool operator==(const FileIdentity& other) const;
};

/// Returns whether @a a and @a b are states of one file with the same size and modification time. The file may have
/// been renamed between the two states. Returns false if one of the states is missing.
bool HaveSameContent(const std::optional<FileIdentity>& a, const std::optional<FileIdentity>& b);

/// Follows links and returns the state of the file at @a path. On any error, returns nothing and leaves the reason in
/// errno.
std::optional<FileIdentity> IdentityOf(const std::string& path);

enum class ReadResult { Read, Missing, Failed };

struct FileContent
{
    ReadResult result;
    std::optional<FileIdentity> identity;
    /// Whether a later change of the file certainly gives the file another identity. False when the file was changed so
    /// recently that the next change could set the same timestamp.
    bool isSettled = false;

    /// Returns whether the file is empty and was changed less than half a second ago: a program that writes files in
    /// place may be about to fill it.
    bool IsEmptyForNow() const;
};

/// Replaces @a bytes with the content of the file at @a path. Fails if the file has more than 64 MiB or more than a
/// million lines: such a file is not a settings file, and its keys would need too much memory. Waits while
/// FileContent::IsEmptyForNow() is true, until @a deadline at the latest. Without a deadline, does not wait.
FileContent ReadFileBytes(const std::string& path, std::string& bytes,
                          std::chrono::steady_clock::time_point deadline = {});

/// Replaces the content of the file at @a path with @a bytes. Follows links, and creates the folder if it is missing.
///
/// The file keeps its mode and, if possible, its owner; a new file has mode 0600. A file that already contains the
/// bytes is not written. Returns false on any error, or if @a bytes exceeds a limit of ReadFileBytes(); the old file is
/// then unchanged.
bool ReplaceFileBytes(const std::string& path, std::string_view bytes);

enum class UpdateResult { Saved, Failed, Outdated };

/// The content that a reader found in a file, and the new content that will replace it.
struct FileUpdate
{
    const FileContent& found;
    std::string_view foundBytes;
    std::string newBytes;

    /// Called after @a put has replaced the file, if the file contained @a displaced instead of @a expected. Returns
    /// the merged content, or nothing when @a displaced cannot be merged, for example because it has no settings.
    using Merge = std::function<std::optional<std::string>(std::string_view expected, std::string_view put,
                                                           std::string_view displaced)>;
    Merge merge;

    /// The time at which the update stops waiting for other processes.
    std::chrono::steady_clock::time_point deadline;
};

/// Like ReplaceFileBytes(), but keeps every change that other processes have stored since the file was read.
///
/// - If the new content is the one that was found, does nothing and returns Saved.
/// - If the file has changed since it was read, returns Outdated and does not touch the file.
/// - Otherwise exchanges the file and a new one, or makes the file if there was none. If the file changes between the
///   check and the exchange, merges that change. If the change cannot be merged, undoes the exchange and returns
///   Outdated.
/// - If the exchange cannot be undone, renames the displaced file to a name from OtherName(). If another process is the
///   reason, returns Outdated. If an error is the reason, the new file stays in place and the result is Saved.
/// - If the file has changed again after each of a hundred merges, undoes the last exchange and returns Failed.
/// - Another exchange stores the result of a merge. If this exchange is undone, the file lacks the changes that were
///   merged. The file with these changes, which the previous exchange displaced, is renamed to a name from OtherName().
///
/// On file systems that cannot exchange two files atomically, such as NFS, a change in the few microseconds after the
/// check can be lost.
UpdateResult UpdateFileBytes(const std::string& path, const FileUpdate& update);

/// Gives the file at @a path a second name that does not exist yet: its own name followed by ".unreadable", or
/// ".unreadable.2" and so on. If the file already has such a name, adds no other one. Follows links. Returns the second
/// name, or an empty string on any error.
std::string KeepUnderOtherName(const std::string& path);

/// Returns the second name that KeepUnderOtherName() tries in attempt @a number. The first attempt has the number 1.
std::string OtherName(const std::string& path, int number);

/// OtherName() is called only with numbers below this one.
inline constexpr int kMaxOtherNames = 1000;

/// If this process runs as root and the folder belongs to another user, makes that user the owner of the open file.
/// That user could not use a file of root. Call the function only for a file that this process has just made.
void GiveToOwnerOfFolder(int fd, const std::string& folder);

/// Returns the folder that the file at @a path is in.
std::string FolderOf(const std::string& path);

}  // namespace fittings

#endif
