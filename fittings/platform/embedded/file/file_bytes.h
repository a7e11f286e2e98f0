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

/// Reads whole files and replaces them in one step. Paths are in the system's encoding.
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

    /// Returns whether both are states of the same file with the same content. The file may have been renamed.
    bool HasContentOf(const FileIdentity& other) const;
};

/// Returns the state of the file at @a path and follows links. Returns nothing when there is no file; errno tells why.
std::optional<FileIdentity> IdentityOf(const std::string& path);

enum class ReadResult { Read, Missing, Failed };

struct FileContent
{
    ReadResult result;
    std::optional<FileIdentity> identity;
    /// Whether every later change of the file changes its identity. False when the file was changed within the current
    /// tick of the clock that sets file timestamps.
    bool isSettled = false;

    /// Returns whether the file is empty and was changed less than half a second ago: a program that writes files in
    /// place may be about to fill it.
    bool IsEmptyForNow() const;
};

/// Appends the bytes of the file at @a path to @a bytes. A file of more than kMaxFileSize bytes fails.
FileContent ReadFileBytes(const std::string& path, std::string& bytes);

/// Replaces @a bytes with the content of the file, read as ReadFileBytes() does. If the file is empty for now, waits
/// until it has content, but not longer than half a second after its last change, and not beyond @a deadline.
FileContent ReadFilledBytes(const std::string& path, std::string& bytes,
                            std::chrono::steady_clock::time_point deadline);

/// Larger files are neither read nor written: they are not settings files, and their keys would need too much memory.
inline constexpr off_t kMaxFileSize = off_t{64} << 20;

/// Writes @a bytes to the file at @a path in place of its content. Follows links and makes a missing folder.
///
/// The file keeps its mode; a new one has 0600. A file that already has the bytes is not touched. Returns false on any
/// error; the old file is then unchanged.
bool ReplaceFileBytes(const std::string& path, std::string_view bytes);

enum class UpdateResult { Saved, Failed, Outdated };

/// The content that a reader found in a file, and the new content.
struct FileUpdate
{
    const FileContent& found;
    std::string_view foundBytes;
    std::string newBytes;

    /// Returns the merged content for a file that held @a displaced, and not @a expected, when @a put replaced it.
    /// Returns nothing when @a displaced is not a settings file.
    using Merge = std::function<std::optional<std::string>(std::string_view expected, std::string_view put,
                                                           std::string_view displaced)>;
    Merge merge;

    /// The time at which the update stops waiting for other processes.
    std::chrono::steady_clock::time_point deadline;
};

/// Like ReplaceFileBytes(), but keeps every change that others have stored since the file was read.
///
/// Returns Outdated and does not touch the file if the file has changed since it was read. A change between this check
/// and the exchange of the two files is merged. If it cannot be merged, the function undoes the exchange and returns
/// Outdated. If other processes prevent that too, the displaced file is kept under a name from OtherName(). On file
/// systems that cannot exchange two files in one step, such as NFS, a change within those few microseconds can be lost.
UpdateResult UpdateFileBytes(const std::string& path, const FileUpdate& update);

/// Gives the file at @a path a second name that does not exist yet: its own name followed by ".unreadable", or
/// ".unreadable.2" and so on. A file that has such a name already keeps it. Follows links. Returns the second name, or
/// an empty text on any error.
std::string KeepUnderOtherName(const std::string& path);

/// Returns the second name that KeepUnderOtherName() tries as number @a number, from 1 on.
std::string OtherName(const std::string& path, int number);

/// Second names with numbers below this one are tried.
inline constexpr int kMaxOtherNames = 1000;

/// If root has made the open file in the folder of another user, makes that user the owner of the file. Otherwise that
/// user could not use the file. Only for a file that this process has just made.
void GiveToOwnerOfFolder(int fd, const std::string& folder);

/// Returns the folder that the file at @a path is in.
std::string FolderOf(const std::string& path);

}  // namespace fittings

#endif
