#include <fittings/tree/tree_cursor.h>

#include <memory>

#include <wx/imaglist.h>

// Checks that there is an item. The toolkit's own checks suffice for most operations. But Delete() has no check, and
// without an item, AppendItem() would add a root.
#define CHECK_ITEM_MSG(result) wxCHECK_MSG(tree&& item.IsOk(), result, "invalid tree item")
#define CHECK_ITEM_RET() wxCHECK_RET(tree&& item.IsOk(), "invalid tree item")

std::wstring wxTreeCursor::GetText() const
{
    CHECK_ITEM_MSG(std::wstring());
    return tree->GetItemText(item).ToStdWstring();
}

int wxTreeCursor::GetImage(wxTreeItemIcon which) const
{
    CHECK_ITEM_MSG(-1);
    return tree->GetItemImage(item, which);
}

void wxTreeCursor::SetImage(int image, wxTreeItemIcon which)
{
    CHECK_ITEM_RET();
    tree->SetItemImage(item, image, which);
}

int wxTreeCursor::SetImage(const wxBitmap& bitmap, const wxColour& mask, wxTreeItemIcon which)
{
    CHECK_ITEM_MSG(which);
    wxImageList* images = tree->GetImageList();
    wxCHECK_MSG(images, which, "the tree has no image list");
    tree->SetItemImage(item, images->Add(bitmap, mask), which);
    return which;
}

void wxTreeCursor::SetData(int value)
{
    CHECK_ITEM_RET();
    // Delete the earlier data here: the control deletes the data of a deleted item, but not data that is replaced.
    const std::unique_ptr<wxTreeItemData> earlier(tree->GetItemData(item));
    tree->SetItemData(item, new wxGenericTreeItemData(value));
}

int wxTreeCursor::GetData() const
{
    CHECK_ITEM_MSG(-1);
    const auto* data = dynamic_cast<const wxGenericTreeItemData*>(tree->GetItemData(item));
    return data ? data->GetValue() : -1;
}

void wxTreeCursor::SetChildren(bool has)
{
    CHECK_ITEM_RET();
    tree->SetItemHasChildren(item, has);
}

wxTreeCursor wxTreeCursor::AppendItem(const wxString& text)
{
    CHECK_ITEM_MSG(wxTreeCursor(tree, wxTreeItemId()));
    return wxTreeCursor(tree, tree->AppendItem(item, text));
}

void wxTreeCursor::Expand()
{
    CHECK_ITEM_RET();
    tree->Expand(item);
}

bool wxTreeCursor::IsExpanded() const
{
    CHECK_ITEM_MSG(false);
    return tree->IsExpanded(item);
}

void wxTreeCursor::Delete() const
{
    CHECK_ITEM_RET();
    tree->Delete(item);
}

wxTreeCursor wxTreeCursor::GetParent() const
{
    CHECK_ITEM_MSG(wxTreeCursor(tree, wxTreeItemId()));
    return wxTreeCursor(tree, tree->GetItemParent(item));
}

wxTreeCursor wxTreeCursor::GetChild() const
{
    CHECK_ITEM_MSG(wxTreeCursor());
    if (!tree->ItemHasChildren(item))
        return wxTreeCursor();
    wxTreeItemIdValue cookie;
    return wxTreeCursor(tree, tree->GetFirstChild(item, cookie));
}

wxTreeCursor wxTreeCursor::GetNextSibling() const
{
    CHECK_ITEM_MSG(wxTreeCursor(tree, wxTreeItemId()));
    return wxTreeCursor(tree, tree->GetNextSibling(item));
}

void wxTreeCursor::SetTextColour(unsigned long colour)
{
    CHECK_ITEM_RET();
    tree->SetItemTextColour(item, wxColour(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF));
}

unsigned long wxTreeCursor::GetTextColour() const
{
    CHECK_ITEM_MSG(0);
    const wxColour colour = tree->GetItemTextColour(item);
    if (!colour.IsOk())
        return 0;
    return colour.Red() + colour.Green() * 0x100UL + colour.Blue() * 0x10000UL;
}
