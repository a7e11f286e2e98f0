#ifndef FITTINGS_PLATFORM_EMBEDDED_STAGED_FILE_H_
#define FITTINGS_PLATFORM_EMBEDDED_STAGED_FILE_H_

#include <string>
#include <string_view>

struct stat;

namespace fittings {

enum class PlaceResult {
    Done,
    Failed,
    NotAsExpected,  ///< There is a file where none was expected, or none where one was.
    Unsupported,    ///< The file system cannot do this in one step.
};

/// Bytes on the disk beside the file whose place they will take, under a name of their own until then. What stands
/// under that name goes with the object.
class StagedFile
{
public:
    /// Writes @a bytes for the file at @a target, which is no link. @a old has that file's mode and owner, and is null
    /// when there is none. Removes what killed processes have left in the folder.
    StagedFile(std::string target, std::string_view bytes, const struct stat* old);
    ~StagedFile();
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;

    /// False when the bytes could not be written.
    bool IsWritten() const { return m_isWritten; }

    /// Takes the place of whatever file is there.
    PlaceResult Replace();

    /// Takes the place where no file is.
    PlaceResult PutNew();

    /// Takes the file's place and gives it its own. A second call undoes the first.
    PlaceResult Exchange();

    /// The name of its own.
    const std::string& Path() const { return m_path; }

private:
    PlaceResult Rename(unsigned int flags);

    const std::string m_target;
    std::string m_path;
    bool m_isWritten = false;
};

}  // namespace fittings

#endif
