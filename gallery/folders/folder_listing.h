#ifndef FITTINGS_GALLERY_FOLDERS_FOLDER_LISTING_H_
#define FITTINGS_GALLERY_FOLDERS_FOLDER_LISTING_H_

#include <cstdint>
#include <string>
#include <vector>

namespace gallery {

enum class EntryKind { Folder, File, Link, Pipe, Socket, Device, Unknown };

/// What the file system says about one name in a folder. Links are described themselves, never followed.
struct Entry
{
    std::string name;     ///< Its bytes, in no particular encoding.
    std::string sortKey;  ///< Compared byte by byte it gives the order in which people look for names.
    std::string type;     ///< For people: "Folder", "PNG file".
    std::string target;   ///< Where a link points.
    EntryKind kind = EntryKind::Unknown;
    bool known = false;         ///< Whether size and time could be read.
    bool summed = false;        ///< Whether the size is that of everything in the folder.
    std::uint64_t size = 0;     ///< Of a file or a summed folder, in bytes; 0 for everything else.
    std::int64_t modified = 0;  ///< Seconds since the epoch.

    bool HasSize() const { return summed || (known && kind == EntryKind::File); }
};

struct Listing
{
    std::vector<Entry> entries;
    int error = 0;  ///< The errno of the first thing that could not be read.
};

/// Reads all of one folder, hidden entries included. Nothing in it is opened.
Listing ReadFolder(const std::string& path);

struct Subfolder
{
    std::string name;
    std::string sortKey;
    bool mayHaveSubfolders = true;
    bool readable = true;
};

/// Reads the folders in a folder, sorted by name. Links to folders are not among them.
///
/// Each of them is looked into, to say whether it has folders of its own, as long as that takes no longer than a
/// twentieth of a second in all; the others count as if they had.
std::vector<Subfolder> ReadSubfolders(const std::string& path);

/// Returns the key of a name: case and accents do not count, and numbers count by their value.
std::string SortKey(const std::string& name);

enum class SortColumn { Name, Size, Type, Modified };

struct SortOrder
{
    SortColumn column = SortColumn::Name;
    bool ascending = true;
};

/// Returns the positions of @a entries in the order in which they are shown. Folders come first in either direction;
/// equals stand in ascending order of their names.
std::vector<std::uint32_t> SortedPositions(const std::vector<Entry>& entries, SortOrder order);

/// Joins a folder's path and the name of an entry in it.
std::string JoinPath(const std::string& folder, const std::string& name);

/// Returns the path of the folder that @a path leads to, absolute and without links in it. Empty, with errno set, when
/// it leads to no folder.
std::string ResolveFolder(const std::string& path);

}  // namespace gallery

#endif
