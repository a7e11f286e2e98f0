#ifndef FITTINGS_GALLERY_BROWSER_FOLDER_TREE_H_
#define FITTINGS_GALLERY_BROWSER_FOLDER_TREE_H_

#include <string>
#include <vector>

#include <fittings/tree/handy_tree_ctrl.h>

namespace gallery {

struct Subfolder;

/// The folders below a root folder, each in its colour. A folder is read when it is expanded.
///
/// Each item stores an index into a table of file names: a label is only for display, and some file names cannot be
/// recovered from their label. Links are left out: circular links would make the tree endless.
class FolderTree : public wxHandyTreeCtrl
{
public:
    explicit FolderTree(wxWindow* parent);

    /// Starts again with one collapsed, selected root.
    void SetRootFolder(const std::string& path);
    const std::string& GetRootFolder() const { return m_root; }

    /// @name Paths of the file system
    /// @{
    std::string PathOf(const wxTreeItemId& item) const;

    /// Returns the path of the selected folder; empty when nothing is selected.
    std::string GetSelectedPath();

    /// Selects the folder @a path and scrolls to it. Reads the folders above it that are not read yet. If the folder no
    /// longer exists, selects the nearest folder above it that exists.
    void SelectPath(const std::string& path);
    /// @}

    /// Selects the subfolder @a name of the selected folder. Returns false when the subfolder does not exist.
    bool SelectSubfolder(const std::string& name);

    /// Selects the parent of the selected folder. Returns false at the root, and when nothing is selected.
    bool SelectParent();

    /// Reads again each folder that the tree has read: adds new subfolders and removes those that no longer exist. The
    /// other items keep their state. If the selected folder no longer exists, selects the nearest folder above it that
    /// exists.
    void Reread();

    /// Shows the selected folder in @a colour, or without a colour when @a colour is invalid. Does not store the
    /// colour: when the tree reads the parent folder again, the item gets the stored colour.
    void ShowColour(const wxColour& colour);

    /// @name The expanded folders, stored separately for each root
    /// @{
    void SaveExpanded();
    void LoadExpanded();
    static void ForgetExpanded(const std::string& root);
    /// @}

    void OnItemExpanding(const wxTreeCursor& item) override;

    /// Returns the label. While SaveExpanded() or LoadExpanded() runs, returns the path below the root instead, because
    /// several folders can have the same label.
    wxString GetItemText(const wxTreeItemId& item) const override;

private:
    struct Images
    {
        int folder;
        int open;
        int unreadable;
        int disk;
    };

    void Fill(const wxTreeItemId& item);
    void Refill(const wxTreeItemId& item);
    void Dress(const wxTreeItemId& item, const Subfolder& folder);
    void Colour(const wxTreeItemId& item, const wxColour& colour);
    std::vector<wxTreeItemId> ChildrenOf(const wxTreeItemId& item) const;
    wxTreeItemId FindSubfolder(const wxTreeItemId& item, const std::string& name);
    const std::string& NameOf(const wxTreeItemId& item) const;
    std::string PathBelowRoot(const wxTreeItemId& item) const;

    std::string m_root;
    std::vector<std::string> m_names;
    Images m_images{};
    bool m_namesPaths = false;  ///< True while GetItemText() returns paths.
};

}  // namespace gallery

#endif
