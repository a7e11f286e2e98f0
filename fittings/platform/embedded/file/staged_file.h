#ifndef FITTINGS_PLATFORM_EMBEDDED_FILE_STAGED_FILE_H_
#define FITTINGS_PLATFORM_EMBEDDED_FILE_STAGED_FILE_H_

#include <string>
#include <string_view>

struct stat;

namespace fittings {

enum class PlaceResult {
    Done,
    Failed,
    NotAsExpected,  ///< A file exists that was not expected, or an expected one is missing.
    Unsupported,    ///< The file system cannot do this in one step.
};

/// New content on the disk beside the file that it will replace, under a temporary name. The destructor removes the
/// file with the temporary name.
class StagedFile
{
public:
    /// Writes @a bytes for the file at @a target, which must not be a link. @a old has that file's mode and owner; it
    /// is null when there is no file. Removes the temporary files that killed processes have left in the folder.
    StagedFile(std::string target, std::string_view bytes, const struct stat* old);
    ~StagedFile();
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;

    /// Returns false when the bytes could not be written.
    bool IsWritten() const { return m_isWritten; }

    /// Replaces the target, whether there is a file or not.
    PlaceResult Replace();

    /// Puts the new file at the target, where no file may exist.
    PlaceResult PutNew();

    /// Exchanges the new file and the target. A second call undoes the first.
    PlaceResult Exchange();

    /// Returns the temporary name.
    const std::string& Path() const { return m_path; }

private:
    PlaceResult Rename(unsigned int flags);

    const std::string m_target;
    std::string m_path;
    bool m_isWritten = false;
};

}  // namespace fittings

#endif
