#ifndef FITTINGS_TESTS_GALLERY_BROWSER_BROWSER_FIXTURE_H_
#define FITTINGS_TESTS_GALLERY_BROWSER_BROWSER_FIXTURE_H_

#include <string>
#include <vector>

#include <gallery/app/gallery_frame.h>
#include <gallery/browser/browser_page.h>
#include <gallery/browser/contents_list.h>
#include <gallery/browser/folder_tree.h>
#include <gallery/tour/simulated_user.h>
#include <gtest/gtest.h>

#include <tests/support/gui.h>
#include <tests/support/temp_folder.h>

/// A browser window on a temporary folder, with temporary settings.
class BrowserTest : public testing::Test
{
protected:
    using Strings = std::vector<std::string>;

    BrowserTest();
    ~BrowserTest() override;

    /// Opens a window on @a path, and waits until the window is shown. If @a path is empty, the window shows the folder
    /// of the last session.
    void Open(const std::string& path);

    /// Closes the window as a user does, and waits until it is destroyed.
    void Close();

    /// Closes the window, and opens a window of the next session.
    void OpenNextSession();

    /// Resizes the window and waits until the screen shows all of it in the new size.
    void Resize(const wxSize& size);

    gallery::FolderTree& Tree() { return *frame->GetBrowser()->GetTree(); }
    gallery::ContentsList& List() { return *frame->GetBrowser()->GetList(); }

    /// Returns the names in the list, from top to bottom.
    Strings Rows();
    unsigned RowOf(const std::string& name);

    /// Returns the tree item of the folder at @a path, which is relative to the root. The result is invalid if the tree
    /// does not contain the item.
    wxTreeItemId Item(const std::string& path);

    /// Clicks a folder in the tree, and waits until the folder is selected. @a path is relative to the root.
    void ClickFolder(const std::string& path);

    /// Selects a folder without a click, and waits until the folder is selected. @a path is relative to the root.
    void Select(const std::string& path);

    bool SelectionComesTo(const std::string& path);

    /// Makes the pane of the folders float at a place on the screen.
    void FloatFolders(const wxPoint& place);

    /// Waits until the pane of the folders floats at @a place; returns false if this takes too long.
    bool FoldersComeTo(const wxPoint& place);

    TempUserData settings;
    TempFolder temp;
    std::string root;  ///< The root folder, as the browser spells its path.
    gallery::GalleryFrame* frame = nullptr;
};

#endif
