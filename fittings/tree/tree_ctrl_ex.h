#ifndef FITTINGS_TREE_TREE_CTRL_EX_H_
#define FITTINGS_TREE_TREE_CTRL_EX_H_

#include <wx/treectrl.h>

#include <fittings/base/export.h>
#include <fittings/tree/tree_cursor.h>

/// The toolkit's tree control, with a few functions that take or return cursors.
///
/// The base class's functions of the same names remain available. To call wxTreeCtrl::GetSelection(), write this full
/// name or use a constant control. AddRoot() with an image returns what wxTreeCtrl::AddRoot() returns.
///
/// The toolkit's class information does not distinguish this class and wxHandyTreeCtrl from wxTreeCtrl: wxDynamicCast()
/// to one of these two classes would succeed for every tree control. Use dynamic_cast instead. wxDynamicCast() works
/// for a class of the host that is derived from one of them and has wxDECLARE_DYNAMIC_CLASS().
///
/// GUI thread only.
class FITTINGS_API wxTreeCtrlEx : public wxTreeCtrl
{
public:
    /// Makes the object; Create() makes the control, with the parameters of wxTreeCtrl::Create().
    wxTreeCtrlEx();

    /// Makes the object and the control, as the toolkit's constructor does.
    explicit wxTreeCtrlEx(wxWindow* parent, wxWindowID id = wxID_ANY, const wxPoint& pos = wxDefaultPosition,
                          const wxSize& size = wxDefaultSize, long style = wxTR_DEFAULT_STYLE,
                          const wxValidator& validator = wxDefaultValidator,
                          const wxString& name = wxString::FromAscii(wxTreeCtrlNameStr));

    ~wxTreeCtrlEx() override;

    /// Returns the selected item. When nothing is selected, the cursor is invalid and has this control as its tree.
    ///
    /// With wxTR_MULTIPLE, asserts as wxTreeCtrl::GetSelection() does: use GetSelections() instead.
    wxTreeCursor GetSelection();
    using wxTreeCtrl::GetSelection;

    /// Deletes the item from the cursor's tree, even if that tree is not this control.
    void DeleteItem(const wxTreeCursor& item);

    /// Adds the root item without images or data.
    wxTreeCursor AddRoot(const wxString& text);

    /// Adds the root item as wxTreeCtrl::AddRoot() does.
    wxTreeItemId AddRoot(const wxString& text, int image, int selectedImage = -1,
                         wxTreeItemData* data = nullptr) override
    {
        return wxTreeCtrl::AddRoot(text, image, selectedImage, data);
    }
};

#endif
