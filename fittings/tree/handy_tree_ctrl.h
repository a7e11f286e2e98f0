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
///     using wxHandyTreeCtrl::wxHandyTreeCtrl;
///
///     void OnItemExpanding(const wxTreeCursor& item) override
///     {
///         if (item.GetChild().IsOk())
///             return;  // filled before
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
/// The state is the set of the labels of expanded items, not of their paths: of several items with one label, the last
/// one in the tree decides whether it is saved, and loading expands all of them. A label with a "|" in it is taken for
/// two. The state is kept in the default store, section "TreeControlState".
///
/// A screen reader says the label of the item that the keyboard moves to, and with it the static text that is made
/// before the control, or what SetLabel() gives it.
///
/// GUI thread only.
class FITTINGS_API wxHandyTreeCtrl : public wxTreeCtrlEx
{
public:
    /// Makes the object; the control itself comes with Create().
    wxHandyTreeCtrl();

    /// Makes the object and the control, as the toolkit's constructor does: without an image list.
    explicit wxHandyTreeCtrl(wxWindow* parent, wxWindowID id = wxID_ANY, const wxPoint& pos = wxDefaultPosition,
                             const wxSize& size = wxDefaultSize, long style = wxTR_DEFAULT_STYLE,
                             const wxValidator& validator = wxDefaultValidator,
                             const wxString& name = wxString::FromAscii(wxTreeCtrlNameStr));

    ~wxHandyTreeCtrl() override;

    /// Creates the control with the toolkit's default tree style, and its image list, which may make the rows a little
    /// higher.
    void Create(wxWindow* parent);

    /// Creates the control as the toolkit's Create() does: without an image list. False when it could not be created.
    bool Create(wxWindow* parent, wxWindowID id, const wxPoint& pos = wxDefaultPosition,
                const wxSize& size = wxDefaultSize, long style = wxTR_DEFAULT_STYLE,
                const wxValidator& validator = wxDefaultValidator,
                const wxString& name = wxString::FromAscii(wxTreeCtrlNameStr));

    /// Gives the control an empty list of 16 × 16 images, which this object owns.
    ///
    /// The size is in the toolkit's pixels: bitmaps that wxBitmapBundle::GetBitmapFor() makes for this control have
    /// more where its screen has more, and look sharp there. Create() with the parent alone gives the list already. One
    /// from an earlier call is not released: call DetroyImageList() first.
    void CreateImageList();

    /// Shows the images of another list, which this object does not own. Without one the rows become as low as their
    /// text.
    void SetImageList(wxImageList* images) override;

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
    void SaveState(const wxString& name, const wxTreeCursor& start);  ///< For a constant cursor.

    /// Stores them under the name of SetProfile().
    void SaveState(wxTreeCursor& start);
    void SaveState(const wxTreeCursor& start);  ///< For a constant cursor.

    /// Expands the items whose labels were stored, parents first, so that children made by OnItemExpanding() are
    /// restored too. Nothing is collapsed.
    void LoadState(const wxString& name, wxTreeCursor& start);
    void LoadState(const wxString& name, const wxTreeCursor& start);  ///< For a constant cursor.

    /// Expands those stored under the name of SetProfile().
    void LoadState(wxTreeCursor& start);
    void LoadState(const wxTreeCursor& start);  ///< For a constant cursor.

    /// @}

    /// Shows the busy cursor around OnItemExpanding(), in all of the application, and the usual one afterwards,
    /// whatever the host had set before. Bound to wxEVT_TREE_ITEM_EXPANDING by the constructor.
    ///
    /// The event ends here: neither the event table of a derived class nor a parent window hears of it. A host that
    /// wants to, to veto it for example, calls Bind() on the control, is asked first, and skips the event if the item
    /// is to be filled.
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
