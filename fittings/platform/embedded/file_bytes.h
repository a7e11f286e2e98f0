#ifndef FITTINGS_PLATFORM_EMBEDDED_FILE_BYTES_H_
#define FITTINGS_PLATFORM_EMBEDDED_FILE_BYTES_H_

#include <cstddef>
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
};

/// Appends the bytes of the file at @a path to @a bytes.
FileContent ReadFileBytes(const std::string& path, std::string& bytes);

/// Makes the file at @a path, links followed, hold exactly @a bytes, and makes its folder when there is none.
///
/// The file keeps its mode; a new one has 0600. One that already holds the bytes is not touched. False on any error;
/// the old file then stands whole.
bool ReplaceFileBytes(const std::string& path, std::string_view bytes);

/// Gives the file at @a path, links followed, a second name that is new: with ".unreadable" behind its own, or
/// ".unreadable.2" and so on. Returns it, or an empty text on any error.
std::string KeepUnderOtherName(const std::string& path);

}  // namespace fittings

#endif
