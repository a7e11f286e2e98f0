#ifndef FITTINGS_GALLERY_BROWSER_BROWSER_SETTINGS_H_
#define FITTINGS_GALLERY_BROWSER_BROWSER_SETTINGS_H_

#include <string>
#include <vector>

#include <wx/colour.h>

#include <gallery/folders/folder_listing.h>

namespace gallery {

/// What the browser remembers about folders.
namespace browser_settings {

/// Returns the root folders that SaveRootFolder() has stored, the latest first.
std::vector<std::string> LoadRootFolders();

/// Stores a root as the latest one. Only the settings of the latest 50 roots are kept: if there are more, forgets the
/// oldest root and which folder was selected below it. Returns the forgotten root, or an empty path.
std::string SaveRootFolder(const std::string& path);

/// Returns the folder that was selected below a root; empty when there is none.
std::string LoadSelectedFolder(const std::string& root);
void SaveSelectedFolder(const std::string& root, const std::string& path);

/// Returns the colour that a folder was given; invalid when it has none.
wxColour LoadFolderColour(const std::string& path);
void SaveFolderColour(const std::string& path, const wxColour& colour);

/// @name The order and the widths of the columns, as an earlier version stored them
/// @{
SortOrder LoadEarlierSortOrder();

/// Returns the widths of @a count columns; empty when any of them cannot be used.
std::vector<int> LoadEarlierColumnWidths(std::size_t count);
/// @}

}  // namespace browser_settings

}  // namespace gallery

#endif
