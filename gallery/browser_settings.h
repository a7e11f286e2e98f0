#ifndef FITTINGS_GALLERY_BROWSER_SETTINGS_H_
#define FITTINGS_GALLERY_BROWSER_SETTINGS_H_

#include <string>
#include <vector>

#include "folder_listing.h"

namespace fittings {

/// What the browser keeps in its own settings file. The library's window state and tree state stand elsewhere.
namespace browser_settings {

/// Empty in the first session.
std::string LoadRootFolder();
void SaveRootFolder(const std::string& path);

/// The folder that was selected below a root; empty when there is none.
std::string LoadSelectedFolder(const std::string& root);
void SaveSelectedFolder(const std::string& root, const std::string& path);

SortOrder LoadSortOrder();
void SaveSortOrder(SortOrder order);

/// Empty in the first session, and when not all @a count widths can be used.
std::vector<int> LoadColumnWidths(std::size_t count);
void SaveColumnWidths(const std::vector<int>& widths);

}  // namespace browser_settings

}  // namespace fittings

#endif
