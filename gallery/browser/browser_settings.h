#ifndef FITTINGS_GALLERY_BROWSER_BROWSER_SETTINGS_H_
#define FITTINGS_GALLERY_BROWSER_BROWSER_SETTINGS_H_

#include <string>
#include <vector>

#include <wx/colour.h>
#include <wx/string.h>

#include <gallery/folders/folder_listing.h>

namespace gallery {

/// What the gallery keeps besides the library's window state and tree state.
namespace browser_settings {

/// The name of the page that was shown last; empty in the first session.
wxString LoadPage();
void SavePage(const wxString& name);

/// Those of earlier sessions, the last one first.
std::vector<std::string> LoadRootFolders();

/// Returns the root that is forgotten for this one, with what is kept here for it; empty when there is room for all.
/// The last 50 are remembered.
std::string SaveRootFolder(const std::string& path);

/// The folder that was selected below a root; empty when there is none.
std::string LoadSelectedFolder(const std::string& root);
void SaveSelectedFolder(const std::string& root, const std::string& path);

/// The colour that a folder was given; invalid when it has none.
wxColour LoadFolderColour(const std::string& path);
void SaveFolderColour(const std::string& path, const wxColour& colour);

/// The smallest size listed, as SizeFilter takes it; empty when there is none.
wxString LoadMinimumSize();
void SaveMinimumSize(const wxString& megabytes);

/// @name Of a version that kept the columns here
/// @{
SortOrder LoadEarlierSortOrder();

/// Empty when not all @a count widths can be used.
std::vector<int> LoadEarlierColumnWidths(std::size_t count);
/// @}

}  // namespace browser_settings

}  // namespace gallery

#endif
