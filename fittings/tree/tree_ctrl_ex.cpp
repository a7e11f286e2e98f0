#include <fittings/tree/tree_ctrl_ex.h>

wxTreeCtrlEx::wxTreeCtrlEx() = default;

wxTreeCtrlEx::wxTreeCtrlEx(wxWindow* parent, wxWindowID id, const wxPoint& pos, const wxSize& size, long style,
                           const wxValidator& validator, const wxString& name)
    : wxTreeCtrl(parent, id, pos, size, style, validator, name)
{
}

wxTreeCtrlEx::~wxTreeCtrlEx() = default;

wxTreeCursor wxTreeCtrlEx::GetSelection()
{
    return wxTreeCursor(this, wxTreeCtrl::GetSelection());
}

void wxTreeCtrlEx::DeleteItem(const wxTreeCursor& item)
{
    item.Delete();
}

wxTreeCursor wxTreeCtrlEx::AddRoot(const wxString& text)
{
    return wxTreeCursor(this, wxTreeCtrl::AddRoot(text));
}
