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

/// Returns whether both are states of the same file with the same content, judged by its size and modification time.
/// The file may have been renamed. Returns false if there is no file.
bool HaveSameContent(const std::optional<FileIdentity>& a, const std::optional<FileIdentity>& b);

/// Follows links and returns the state of the file at @a path. If there is no file, returns nothing and leaves the
/// reason in errno.
std::optional<FileIdentity> IdentityOf(const std::string& path);

enum class ReadResult { Read, Missing, Failed };

struct FileContent
{
    ReadResult result;
    std::optional<FileIdentity> identity;
    /// Whether every later change of the file changes its identity. False when the file was changed so recently that
    /// another change could leave it with the same timestamp.
    bool isSettled = false;

    /// Returns whether the file is empty and was changed less than half a second ago: a program that writes files in
    /// place may be about to fill it.
    bool IsEmptyForNow() const;
};

/// Replaces @a bytes with the content of the file at @a path. Fails if the file has more than 64 MiB or a million
/// lines: such a file is not a settings file, and its keys would need too much memory. If the file is empty for now,
/// waits until it has content, but not longer than half a second after its last change, and not beyond @a deadline.
/// Does not wait without a deadline.
FileContent ReadFileBytes(const std::string& path, std::string& bytes,
                          std::chrono::steady_clock::time_point deadline = {});

/// Replaces the content of the file at @a path with @a bytes. Follows links, and creates the folder if it is missing.
///
/// The file keeps its mode and, if possible, its owner; a new file has mode 0600. A file that already contains the
/// bytes is not written. Returns false on any error, or if ReadFileBytes() could not read the bytes again; the old file
/// is then unchanged.
bool ReplaceFileBytes(const std::string& path, std::string_view bytes);

enum class UpdateResult { Saved, Failed, Outdated };

/// The content that a reader found in a file, and the new content that will replace it.
struct FileUpdate
{
    const FileContent& found;
    std::string_view foundBytes;
    std::string newBytes;

    /// Called when @a put has replaced the file, and the file contained @a displaced instead of @a expected. Returns
    /// the merged content for the file. Returns nothing when @a displaced cannot be merged, for example because it is
    /// not a settings file.
    using Merge = std::function<std::optional<std::string>(std::string_view expected, std::string_view put,
                                                           std::string_view displaced)>;
    Merge merge;

    /// The time at which the update stops waiting for other processes.
    std::chrono::steady_clock::time_point deadline;
};

/// Like ReplaceFileBytes(), but keeps every change that other processes have stored since the file was read.
///
/// Does nothing if the new content is the one that was found. If the file has changed since it was read, returns
/// Outdated and does not touch the file. Otherwise exchanges the file and a new one, or makes the file if there was
/// none. A change between the check and the exchange is merged. If it cannot be merged, the function undoes the
/// exchange and returns Outdated. If another process prevents the undoing, the displaced file is kept under a name from
/// OtherName(). If the undoing fails with an error, the displaced file is kept in the same way; the new file stays in
/// place and the result is Saved. If the file has changed again after each of a hundred merges, undoes the last
/// exchange, keeps the file that was displaced before that one, and returns Failed.
///
/// On file systems that cannot exchange two files atomically, such as NFS, a change in the few microseconds after the
/// check can be lost.
UpdateResult UpdateFileBytes(const std::string& path, const FileUpdate& update);

/// Gives the file at @a path a second name that does not exist yet: its own name followed by ".unreadable", or
/// ".unreadable.2" and so on. If the file already has such a name, adds no other one. Follows links. Returns the second
/// name, or an empty string on any error.
std::string KeepUnderOtherName(const std::string& path);

/// Returns the second name with the number @a number. KeepUnderOtherName() tries the numbers from 1 on.
std::string OtherName(const std::string& path, int number);

/// Only second names with numbers below this one are tried.
inline constexpr int kMaxOtherNames = 1000;

/// If this process runs as root and the folder belongs to another user, makes that user the owner of the open file.
/// Otherwise that user could not use the file. Only for a file that this process has just made.
void GiveToOwnerOfFolder(int fd, const std::string& folder);

/// Returns the folder that the file at @a path is in.
std::string FolderOf(const std::string& path);

}  // namespace fittings

#endif
