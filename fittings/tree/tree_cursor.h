#ifndef FITTINGS_TREE_TREE_CURSOR_H_
#define FITTINGS_TREE_TREE_CURSOR_H_

#include <string>

#include <wx/treectrl.h>

#include <fittings/base/export.h>

/// The integer that wxTreeCursor::SetData() attaches to an item.
class FITTINGS_API wxGenericTreeItemData : public wxTreeItemData
{
public:
    explicit wxGenericTreeItemData(int value) : m_value(value) {}  ///< Stores the integer.

    /// Returns the integer.
    int GetValue() const { return m_value; }

private:
    int m_value;
};

/// One item of one tree control, with the operations on that item. Copying a cursor is cheap.
///
/// A cursor owns nothing and does not notice when its item is deleted. To visit the children, call GetChild() and then
/// GetNextSibling() until the cursor is invalid:
///
/// @code
/// for (wxTreeCursor child = parent.GetChild(); child.IsOk(); child = child.GetNextSibling())
///     child.SetTextColour(0x0000FF);  // red
/// @endcode
///
/// Each step of this loop calls wxTreeCtrl::GetNextSibling(), which searches from the first sibling. For many thousands
/// of siblings, use wxTreeCtrl::GetNextChild(). As in the toolkit, an operation on an invalid cursor asserts and
/// returns a default value. GUI thread only.
class FITTINGS_API wxTreeCursor
{
public:
    /// Makes an invalid cursor.
    wxTreeCursor() : tree(nullptr) {}

    /// Makes a cursor on an item of a tree.
    wxTreeCursor(wxTreeCtrl* tree_, const wxTreeItemId& item_) : tree(tree_), item(item_) {}

    wxTreeCtrl* tree;   ///< The control that the item belongs to; not owned.
    wxTreeItemId item;  ///< The item that the cursor is on; invalid when there is none.

    /// Returns true when there is an item.
    bool IsOk() const { return item.IsOk(); }

    /// @name Use in place of the toolkit's wxTreeItemId
    /// @{

    /// Returns true when there is an item.
    explicit operator bool() const { return IsOk(); }

    /// Returns the item, for toolkit functions that take an item: tree->EnsureVisible(tree->GetSelection()).
    operator wxTreeItemId() const { return item; }

    /// Returns the toolkit's identifier of the item; null when there is no item.
    wxTreeItemIdValue GetID() const { return item.GetID(); }

    /// Makes the cursor invalid; the tree is kept.
    void Unset() { item.Unset(); }

    /// @cond
    friend bool operator==(const wxTreeCursor& left, const wxTreeItemId& right) { return left.item == right; }
    friend bool operator==(const wxTreeItemId& left, const wxTreeCursor& right) { return left == right.item; }
    friend bool operator!=(const wxTreeCursor& left, const wxTreeItemId& right) { return !(left == right); }
    friend bool operator!=(const wxTreeItemId& left, const wxTreeCursor& right) { return !(left == right); }
    /// @endcond

    /// Returns whether the two cursors have the same item, or both have none. One of them may be a wxTreeItemId.
    friend bool operator==(const wxTreeCursor& left, const wxTreeCursor& right) { return left.item == right.item; }

    /// Returns whether the two cursors are not equal. One of them may be a wxTreeItemId.
    friend bool operator!=(const wxTreeCursor& left, const wxTreeCursor& right) { return !(left == right); }

    /// @}

    /// Returns the label.
    std::wstring GetText() const;

    /// Returns the item's image for the state @a which, as an index into the tree's image list; -1 when there is none.
    int GetImage(wxTreeItemIcon which) const;

    /// Sets the item's image for the state @a which, as an index into the tree's image list.
    void SetImage(int image, wxTreeItemIcon which);

    /// Adds @a bitmap to the tree's normal image list, which must exist, and shows the bitmap as the item's image.
    ///
    /// Returns @a which, not the index of the image; GetImage() returns the index.
    int SetImage(const wxBitmap& bitmap, const wxColour& mask, wxTreeItemIcon which);

    /// Attaches an integer to the item. Deletes the item's earlier data object.
    void SetData(int value);

    /// Returns the integer of SetData(). Returns -1 if the item has no data, or data of another class.
    int GetData() const;

    /// Shows or hides the expand button of an item that has no children yet. An item with children always has the
    /// button.
    void SetChildren(bool has);

    /// Appends a child without an image or data, and returns the child.
    wxTreeCursor AppendItem(const wxString& text);

    /// Shows the children, as wxTreeCtrl::Expand() does.
    void Expand();

    /// Returns whether the item itself is expanded. Its parent may be collapsed.
    bool IsExpanded() const;

    /// Deletes the item and all items below it.
    void Delete() const;

    /// Returns the parent; invalid for the root.
    wxTreeCursor GetParent() const;

    /// Returns the first child. If there is no child, the result is invalid. The invalid result has the tree if
    /// SetChildren() has announced children, and otherwise a null tree.
    wxTreeCursor GetChild() const;

    /// Returns the next sibling. For the last sibling, the result is invalid, but has the tree.
    wxTreeCursor GetNextSibling() const;

    /// Sets the colour of the text, as 0x00BBGGRR. Higher bits are ignored.
    void SetTextColour(unsigned long colour);

    /// Returns the colour of the text as 0x00BBGGRR; 0 when the item has no colour of its own.
    unsigned long GetTextColour() const;
};

#endif
