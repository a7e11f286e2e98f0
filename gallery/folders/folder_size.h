#ifndef FITTINGS_GALLERY_FOLDERS_FOLDER_SIZE_H_
#define FITTINGS_GALLERY_FOLDERS_FOLDER_SIZE_H_

#include <cstdint>
#include <string>

namespace gallery {

/// What a folder holds, everything below it and itself included.
struct FolderSum
{
    std::uint64_t bytes = 0;       ///< What their sizes are, folders' too; a file with several names counts once.
    std::uint64_t items = 0;       ///< Names of any kind.
    std::uint64_t unreadable = 0;  ///< Those of them that could not be looked at or, folders, not be read.
};

/// Is told how far a sum has come, on the thread that sums.
class SizeObserver
{
public:
    virtual ~SizeObserver() = default;

    /// A folder right in the summed one is done.
    virtual void OnSubfolder(const std::string& name, const FolderSum& sum) = 0;

    /// Comes after each item. @a fraction goes from 0 to 1, never back; every folder has an equal share of the one that
    /// it is in. Returning false ends the walk.
    virtual bool OnProgress(const FolderSum& soFar, double fraction) = 0;
};

/// Adds up the folder @a path and everything below it, to any depth and across mounts; links are not followed.
///
/// Returns the sum of what was seen before @a observer ended the walk. Safe on any thread.
FolderSum SumFolder(const std::string& path, SizeObserver& observer);

}  // namespace gallery

#endif
