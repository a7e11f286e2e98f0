#ifndef FITTINGS_GALLERY_FOLDERS_FOLDER_SIZE_H_
#define FITTINGS_GALLERY_FOLDERS_FOLDER_SIZE_H_

#include <cstdint>
#include <string>

namespace gallery {

/// The sum of a folder and everything below it.
struct FolderSum
{
    std::uint64_t bytes = 0;       ///< The sizes of all files and folders; a file with several names counts once.
    std::uint64_t items = 0;       ///< The number of entries of all kinds; each name of a file counts.
    std::uint64_t unreadable = 0;  ///< The number of sizes and folders that could not be read.
};

/// Receives the progress of SumFolder(), on the thread that calls it.
class SizeObserver
{
public:
    virtual ~SizeObserver() = default;

    /// Called when a direct subfolder of the summed folder is finished.
    virtual void OnSubfolder(const std::string& name, const FolderSum& sum) = 0;

    /// Called after each item and after each finished subfolder. @a fraction rises from 0 to 1: the share of a folder
    /// is divided equally among its subfolders. Return false to end the walk.
    virtual bool OnProgress(const FolderSum& soFar, double fraction) = 0;
};

/// Adds up the sizes of the folder @a path and of everything below it, to any depth and across mounts. Links are not
/// followed.
///
/// If @a observer ends the walk, returns the sum until then. Safe on any thread.
FolderSum SumFolder(const std::string& path, SizeObserver& observer);

}  // namespace gallery

#endif
