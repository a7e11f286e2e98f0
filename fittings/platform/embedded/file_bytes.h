#ifndef FITTINGS_PLATFORM_EMBEDDED_FILE_BYTES_H_
#define FITTINGS_PLATFORM_EMBEDDED_FILE_BYTES_H_

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include <sys/types.h>
#include <time.h>

struct stat;

/// Whole files: read, and replaced in one step. Paths are in the system's encoding.
namespace fittings {

/// Tells one state of a file from another.
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

/// The state of the file at @a path, links followed. None when there is no file; errno tells why.
std::optional<FileIdentity> IdentityOf(const std::string& path);

enum class ReadResult { Read, Missing, Failed };

struct FileContent
{
    ReadResult result;
    std::optional<FileIdentity> identity;
    /// A later change of the file cannot leave its identity as it is. Not so when the file was changed within the
    /// same tick of the clock that stamps files.
    bool isSettled = false;

    /// The file is empty and was changed less than half a second ago: a program that writes files in place may be about
    /// to fill it.
    bool IsEmptyForNow() const;
};

/// Appends the bytes of the file at @a path to @a bytes. A file of more than kMaxFileSize bytes fails.
FileContent ReadFileBytes(const std::string& path, std::string& bytes);

/// Larger files are not read and not written: they hold no settings, and their keys would take all memory.
inline constexpr off_t kMaxFileSize = off_t{64} << 20;

/// Makes the file at @a path, links followed, hold exactly @a bytes, and makes its folder when there is none.
///
/// The file keeps its mode; a new one has 0600. One that already holds the bytes is not touched. False on any error;
/// the old file then stands whole.
bool ReplaceFileBytes(const std::string& path, std::string_view bytes);

enum class UpdateResult { Saved, Failed, Outdated };

/// What a reader found in a file, and what is to stand there instead.
struct FileUpdate
{
    const FileContent& found;
    std::string_view foundBytes;
    std::string newBytes;

    /// Returns what the file should hold when it held @a displaced, and not @a expected, as @a put took its place. None
    /// when @a displaced holds no settings.
    using Merge = std::function<std::optional<std::string>(std::string_view expected, std::string_view put,
                                                           std::string_view displaced)>;
    Merge merge;
};

/// Like ReplaceFileBytes(), but never undoes what somebody else has stored since the file was read.
///
/// Outdated when the file is not as it was found any more; it was not touched then. A change that comes between that
/// look and the exchange of the two files is merged. File systems that cannot exchange two files in one step, such as
/// NFS, leave those few microseconds open.
UpdateResult UpdateFileBytes(const std::string& path, const FileUpdate& update);

/// Gives the file at @a path, links followed, a second name that is new: with ".unreadable" behind its own, or
/// ".unreadable.2" and so on. Returns it, or an empty text on any error.
std::string KeepUnderOtherName(const std::string& path);

/// Root gives a file that it makes in the folder of another user to that user, who could not use it otherwise.
void GiveToOwnerOfFolder(const std::string& path, const std::string& folder);

/// Returns the folder that the file at @a path is in.
std::string FolderOf(const std::string& path);

}  // namespace fittings

#endif
