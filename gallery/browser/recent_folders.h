#ifndef FITTINGS_GALLERY_BROWSER_RECENT_FOLDERS_H_
#define FITTINGS_GALLERY_BROWSER_RECENT_FOLDERS_H_

#include <string>

#include <wx/filehistory.h>

class wxMenu;

namespace gallery {

/// A menu of the folders that were opened last. The folders are kept in the settings store.
class RecentFolders
{
public:
    /// Loads the folders of earlier sessions.
    RecentFolders();

    /// Returns a new menu of the folders. The caller adds it to another menu, which then owns it. This object keeps the
    /// menu up to date. The ids of the menu's items are wxID_FILE1 to wxID_FILE9.
    wxMenu* MakeMenu();

    /// Puts a folder at the beginning of the list.
    void Add(const std::string& path);

    /// Returns the folder of a menu item.
    std::string PathOf(int id) const;

    void Remove(int id);

    void Save();

private:
    wxFileHistory m_history;
};

}  // namespace gallery

#endif
