#ifndef FITTINGS_TREE_HANDY_TREE_CTRL_H_
#define FITTINGS_TREE_HANDY_TREE_CTRL_H_

#include <wx/string.h>

#include <fittings/base/export.h>
#include <fittings/tree/tree_ctrl_ex.h>

class wxImageList;

/// A tree for browsing. When an item is expanded, the tree calls OnItemExpanding() to fill the item. The busy cursor is
/// shown during this call. The tree can also remember which items were expanded.
///
/// @code
/// class FolderTree : public wxHandyTreeCtrl
/// {
///     using wxHandyTreeCtrl::wxHandyTreeCtrl;
///
///     void OnItemExpanding(const wxTreeCursor& item) override
///     {
///         if (item.GetChild().IsOk())
///             return;  // already filled
///         for (const wxString& name : FoldersIn(PathOf(item)))
///             wxTreeCursor(item).AppendItem(name).SetChildren(true);
///     }
/// };
///
/// auto* tree = new FolderTree(parent);
/// tree->SetProfile("Folders");
/// wxTreeCursor root = tree->AddRoot("/");
/// root.SetChildren(true);
/// tree->LoadState(root);
/// @endcode
///
/// The saved state consists of the labels of the expanded items, not of their paths. If several items have the same
/// label, SaveState() saves the label only if the last of these items is expanded. LoadState() expands all of these
/// items, and reads a label with a "|" as two labels. The state is in the section "TreeControlState" of the default
/// store.
///
/// A screen reader announces the label of the item that has the focus. It also announces the label of the control: the
/// static text that is created just before the control, or the text of SetLabel().
///
/// GUI thread only.
class FITTINGS_API wxHandyTreeCtrl : public wxTreeCtrlEx
{
public:
    /// Makes the object; Create() makes the control.
    wxHandyTreeCtrl();

    /// Makes the object and the control, as the toolkit's constructor does: without an image list.
    explicit wxHandyTreeCtrl(wxWindow* parent, wxWindowID id = wxID_ANY, const wxPoint& pos = wxDefaultPosition,
                             const wxSize& size = wxDefaultSize, long style = wxTR_DEFAULT_STYLE,
                             const wxValidator& validator = wxDefaultValidator,
                             const wxString& name = wxString::FromAscii(wxTreeCtrlNameStr));

    ~wxHandyTreeCtrl() override;

    /// Creates the control with the toolkit's default tree style and an empty image list. The list may make the rows a
    /// little higher.
    void Create(wxWindow* parent);

    /// Creates the control as the toolkit's Create() does: without an image list. Returns false if the control could
    /// not be created.
    bool Create(wxWindow* parent, wxWindowID id, const wxPoint& pos = wxDefaultPosition,
                const wxSize& size = wxDefaultSize, long style = wxTR_DEFAULT_STYLE,
                const wxValidator& validator = wxDefaultValidator,
                const wxString& name = wxString::FromAscii(wxTreeCtrlNameStr));

    /// Gives the control an empty list for 16 × 16 images. This object owns the list.
    ///
    /// The size is in logical pixels: on a high-density screen, bitmaps from wxBitmapBundle::GetBitmapFor() for this
    /// control have more physical pixels and look sharp. Create() with only a parent calls this function. Another call
    /// does not delete the earlier list: call DetroyImageList() first.
    void CreateImageList();

    /// Shows the images of another list, which this object does not own. If @a images is null, the row height shrinks
    /// to the height of the text.
    void SetImageList(wxImageList* images) override;

    /// Deletes the list of CreateImageList(), if there is one. If the control still uses the list, call SetImageList()
    /// before the control is drawn again.
    void DetroyImageList();

    /// Sets the name that SaveState() and LoadState() use when no name is passed. The name is empty at first.
    void SetProfile(const wxString& profile);

    /// Selects the root and gives the control the focus; returns false when there is no root.
    ///
    /// With wxTR_MULTIPLE, the other selected items stay selected. If a handler of wxEVT_TREE_SEL_CHANGING vetoes the
    /// selection, the function still returns true.
    bool SelectRootItem();

    /// @name Expanded items
    ///
    /// The functions work on @a start and the items below it, not on its siblings. Their time grows almost in
    /// proportion to the number of items. The depth of the tree is not limited.
    /// @{

    /// Stores under @a name which items are expanded. This includes expanded items below a collapsed one.
    void SaveState(const wxString& name, wxTreeCursor& start);
    void SaveState(const wxString& name, const wxTreeCursor& start);  ///< Does the same for a constant cursor.

    /// Stores which items are expanded, under the name of SetProfile().
    void SaveState(wxTreeCursor& start);
    void SaveState(const wxTreeCursor& start);  ///< Does the same for a constant cursor.

    /// Expands the items whose labels are stored under @a name. Parents are expanded first, so children that
    /// OnItemExpanding() adds are expanded too. No item is collapsed.
    void LoadState(const wxString& name, wxTreeCursor& start);
    void LoadState(const wxString& name, const wxTreeCursor& start);  ///< Does the same for a constant cursor.

    /// Expands the items whose labels are stored under the name of SetProfile().
    void LoadState(wxTreeCursor& start);
    void LoadState(const wxTreeCursor& start);  ///< Does the same for a constant cursor.

    /// @}

    /// Calls OnItemExpanding(), and shows the busy cursor in the whole application during this call. Then shows the
    /// default cursor, even if the host had set another cursor. The constructor binds this function to
    /// wxEVT_TREE_ITEM_EXPANDING.
    ///
    /// The event reaches neither the event table of a derived class nor a parent window. A host that needs the event,
    /// for example to veto it, calls Bind() on the control: the host's handler is then called first. If this handler
    /// does not skip the event, the item is not filled.
    void OnEvtItemExpanding(wxTreeEvent& event);

    /// Tells assistive technologies which item of the tree has the focus.
    void OnInternalIdle() override;

    /// Called each time before an item expands. Override this function to add the children. The default does nothing.
    ///
    /// The function must not delete @a item, because the item expands afterwards. A handler of wxEVT_TREE_ITEM_EXPANDED
    /// may delete the item. A handler that vetoes the expansion may delete the item too.
    virtual void OnItemExpanding(const wxTreeCursor& item);

private:
    wxImageList* m_imageList = nullptr;
    wxString m_profile;
};

#endif
