#ifndef FITTINGS_TREE_HANDY_TREE_CTRL_H_
#define FITTINGS_TREE_HANDY_TREE_CTRL_H_

#include <wx/string.h>

#include <fittings/base/export.h>
#include <fittings/tree/tree_ctrl_ex.h>

class wxImageList;

/// A browsing tree: filled as it is expanded, under a busy cursor, and able to remember which items were expanded.
///
/// @code
/// class FolderTree : public wxHandyTreeCtrl
/// {
///     void OnItemExpanding(const wxTreeCursor& item) override
///     {
///         if (item.GetChild().IsOk())
///             return;  // filled before
///         for (const wxString& name : FoldersIn(PathOf(item)))
///             wxTreeCursor(item).AppendItem(name).SetChildren(true);
///     }
/// };
///
/// auto* tree = new FolderTree;
/// tree->Create(parent);
/// tree->SetProfile("Folders");
/// wxTreeCursor root = tree->AddRoot("/");
/// root.SetChildren(true);
/// tree->LoadState(root);
/// @endcode
///
/// The state is the set of the labels of expanded items, not of their paths: of several items with one label, the last
/// one in the tree decides whether it is saved, and loading expands all of them. A label with a "|" in it is taken for
/// two. The state is kept in the default store, section "TreeControlState".
///
/// A screen reader says the label of the item that the keyboard moves to, and with it the static text that is made before
/// the control, or what SetLabel() gives it.
///
/// GUI thread only.
class FITTINGS_API wxHandyTreeCtrl : public wxTreeCtrlEx
{
public:
    /// Makes the object; the control itself comes with Create().
    wxHandyTreeCtrl();
    ~wxHandyTreeCtrl() override;

    /// Creates the control with the toolkit's default tree style, and its image list.
    void Create(wxWindow* parent);

    /// Gives the control an empty list of 16 × 16 images, which this object owns.
    ///
    /// The size is in the toolkit's pixels: bitmaps that wxBitmapBundle::GetBitmapFor() makes for this control have more
    /// where its screen has more, and look sharp there. Create() gives the list already. One from an earlier call is not
    /// released: call DetroyImageList() first.
    void CreateImageList();

    /// Deletes the image list, if there is one. The control must not be drawn with its images afterwards.
    void DetroyImageList();

    /// Names the state that the SaveState() and LoadState() without a name use. Empty at first.
    void SetProfile(const wxString& profile);

    /// Selects the root and gives the control the focus; returns false when there is no root.
    ///
    /// Where several may be selected (wxTR_MULTIPLE) the others stay so. A host may veto the selection by
    /// wxEVT_TREE_SEL_CHANGING; the result is true all the same.
    bool SelectRootItem();

    /// @name Expanded items
    ///
    /// From @a start downwards; its siblings are not looked at. Both take time in proportion to the number of items,
    /// and neither is bounded by the depth of the tree.
    /// @{

    /// Stores which items are expanded, collapsed levels included.
    void SaveState(const wxString& name, wxTreeCursor& start);

    /// Stores them under the name of SetProfile().
    void SaveState(wxTreeCursor& start);

    /// Expands the items whose labels were stored, parents first, so that children made by OnItemExpanding() are
    /// restored too. Nothing is collapsed.
    void LoadState(const wxString& name, wxTreeCursor& start);

    /// Expands those stored under the name of SetProfile().
    void LoadState(wxTreeCursor& start);

    /// @}

    /// Shows the busy cursor around OnItemExpanding(), in all of the application, and the usual one afterwards, whatever the
    /// host had set before. Bound to wxEVT_TREE_ITEM_EXPANDING by the constructor.
    ///
    /// The event ends here: neither the event table of a derived class nor a parent window hears of it. A host that wants
    /// to, to veto it for example, calls Bind() on the control, is asked first, and skips the event if the item is to be
    /// filled.
    void OnEvtItemExpanding(wxTreeEvent& event);

    /// Tells assistive technologies of the item that has the focus in the tree.
    void OnInternalIdle() override;

    /// Called each time an item is about to expand, for the children to be filled in. Does nothing here.
    ///
    /// It must not delete @a item, which expands afterwards. A handler of wxEVT_TREE_ITEM_EXPANDED may, and so may one
    /// that vetoes.
    virtual void OnItemExpanding(const wxTreeCursor& item);

private:
    wxImageList* m_imageList = nullptr;
    wxString m_profile;
};

#endif
