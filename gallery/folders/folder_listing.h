#ifndef FITTINGS_GALLERY_FOLDERS_FOLDER_LISTING_H_
#define FITTINGS_GALLERY_FOLDERS_FOLDER_LISTING_H_

#include <cstdint>
#include <string>
#include <vector>

namespace gallery {

enum class EntryKind { Folder, File, Link, Pipe, Socket, Device, Unknown };

/// One entry of a folder, as the file system describes it. For a link, the fields describe the link and not its target.
struct Entry
{
    std::string name;     ///< The bytes, in no particular encoding.
    std::string sortKey;  ///< Compared byte by byte to sort names: see SortKey().
    std::string type;     ///< The shown type, such as "Folder" or "PNG file".
    std::string target;   ///< Where a link points.
    EntryKind kind = EntryKind::Unknown;
    bool known = false;         ///< True if size and time could be read.
    bool summed = false;        ///< True if the size includes everything in the folder.
    std::uint64_t size = 0;     ///< In bytes, for a file or a summed folder; otherwise 0.
    std::int64_t modified = 0;  ///< Seconds since the epoch.

    bool HasSize() const { return summed || (known && kind == EntryKind::File); }
};

struct Listing
{
    std::vector<Entry> entries;
    int error = 0;  ///< The errno of the first failure; 0 for none.
};

/// Reads all entries of a folder, hidden ones included. Opens none of them.
Listing ReadFolder(const std::string& path);

struct Subfolder
{
    std::string name;
    std::string sortKey;
    bool mayHaveSubfolders = true;
    bool readable = true;
};

/// Returns the subfolders of a folder, sorted by name. Links to folders are not included.
///
/// Looks into each subfolder, but stops after 50 milliseconds. The remaining subfolders count as readable and as having
/// subfolders.
std::vector<Subfolder> ReadSubfolders(const std::string& path);

/// Returns the key by which a name is sorted: case and accents do not count, and numbers count by their value.
std::string SortKey(const std::string& name);

/// The columns of the list, in their order.
enum class SortColumn { Name, Size, Type, Modified };

struct SortOrder
{
    SortColumn column = SortColumn::Name;
    bool ascending = true;
};

/// Returns the positions of @a entries in the order of display. Folders always come first. Entries that are equal in
/// the column are in ascending order of their names.
std::vector<std::uint32_t> SortedPositions(const std::vector<Entry>& entries, SortOrder order);

std::string JoinPath(const std::string& folder, const std::string& name);

/// Returns the absolute path of the folder that @a path leads to, with all links resolved. If @a path does not lead to
/// a folder, sets errno and returns an empty path.
std::string ResolveFolder(const std::string& path);

}  // namespace gallery

#endif
