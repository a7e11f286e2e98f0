#ifndef FITTINGS_GALLERY_BROWSER_BROWSER_SETTINGS_H_
#define FITTINGS_GALLERY_BROWSER_BROWSER_SETTINGS_H_

#include <string>
#include <vector>

#include <wx/colour.h>

#include <gallery/folders/folder_listing.h>

namespace gallery {

/// What the browser stores about folders, and what an earlier version stored about columns.
namespace browser_settings {

/// Returns the root folders that SaveRootFolder() has stored, the latest first.
std::vector<std::string> LoadRootFolders();

/// Stores a root as the latest one. If more than 50 roots are then stored, removes the oldest root and its selected
/// folder, and returns the removed root. Otherwise returns an empty path.
std::string SaveRootFolder(const std::string& path);

/// Returns the selected folder that is stored for a root; empty when none is stored.
std::string LoadSelectedFolder(const std::string& root);
void SaveSelectedFolder(const std::string& root, const std::string& path);

/// Returns the stored colour of a folder; invalid when the folder has none.
wxColour LoadFolderColour(const std::string& path);
void SaveFolderColour(const std::string& path, const wxColour& colour);

/// @name The sort order and the column widths that an earlier version stored
/// @{
SortOrder LoadEarlierSortOrder();

/// Returns the widths of @a count columns; empty when any of them is missing or invalid.
std::vector<int> LoadEarlierColumnWidths(std::size_t count);
/// @}

}  // namespace browser_settings

}  // namespace gallery

#endif
