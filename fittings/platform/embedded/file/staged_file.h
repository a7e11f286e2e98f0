#ifndef FITTINGS_PLATFORM_EMBEDDED_FILE_STAGED_FILE_H_
#define FITTINGS_PLATFORM_EMBEDDED_FILE_STAGED_FILE_H_

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include <sys/stat.h>

#include <fittings/platform/embedded/file/file_bytes.h>

namespace fittings {

enum class PlaceResult {
    Done,
    Failed,
    NotAsExpected,  ///< A file exists that was not expected, or an expected one is missing.
    Unsupported,    ///< The file system or the kernel cannot do this atomically.
};

/// A new file with a temporary name, beside the target that it will replace. The destructor removes the file that then
/// has the temporary name.
class StagedFile
{
public:
    /// Writes @a bytes to a new file beside @a target, which must not be a link. @a old is the state of the file at
    /// @a target, or nothing when there is no file. The new file gets the owner and the mode of @a old if the file
    /// system allows it. Without @a old, calls GiveToOwnerOfFolder(). Also removes the temporary files that killed
    /// processes have left in the folder more than a minute ago.
    StagedFile(std::string target, std::string_view bytes, const std::optional<struct stat>& old);
    ~StagedFile();
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;

    /// Returns false when the bytes could not be written.
    bool IsWritten() const { return m_isWritten; }

    /// Puts the new file at the target, whether there is a file or not.
    PlaceResult Replace() { return Rename(0); }

    /// Puts the new file at the target if there is no file. Otherwise returns NotAsExpected.
    PlaceResult PutNew() { return Rename(RENAME_NOREPLACE); }

    /// Exchanges the new file and the target. The displaced file then has the temporary name.
    PlaceResult Exchange();

    /// Undoes Exchange(). If another process has replaced, changed or removed the new file since then, keeps what that
    /// process has stored and returns NotAsExpected. If the result is not Done, the displaced file keeps the temporary
    /// name.
    PlaceResult PutBack();

    /// Renames the displaced file to a name from OtherName(), so that a user notices the file and the destructor does
    /// not remove it. If the renaming fails, the destructor removes the file.
    void SetAside();

    /// Returns the temporary name.
    const std::string& Path() const { return m_path; }

private:
    PlaceResult Rename(unsigned int flags);

    const std::string m_target;
    std::string m_path;
    bool m_isWritten = false;
    std::optional<FileIdentity> m_placed;  ///< The file that the last exchange put at the target.
};

}  // namespace fittings

#endif
