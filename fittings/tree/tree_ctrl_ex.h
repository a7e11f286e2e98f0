#ifndef FITTINGS_TREE_TREE_CTRL_EX_H_
#define FITTINGS_TREE_TREE_CTRL_EX_H_

#include <wx/treectrl.h>

#include <fittings/base/export.h>
#include <fittings/tree/tree_cursor.h>

/// The toolkit's tree control, with a few functions that take and return cursors.
///
/// The functions of the base class with the same names remain available. Call wxTreeCtrl::GetSelection() by this full
/// name, or call GetSelection() on a constant control. AddRoot() with an image calls wxTreeCtrl::AddRoot().
///
/// The toolkit's class information does not distinguish this class and wxHandyTreeCtrl from wxTreeCtrl: wxDynamicCast()
/// to either of them would succeed for every tree control. Use dynamic_cast instead. wxDynamicCast() does work with a
/// class of the host that is derived from one of them and has wxDECLARE_DYNAMIC_CLASS().
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
    /// Asserts with wxTR_MULTIPLE, as wxTreeCtrl::GetSelection() does: use GetSelections() there.
    wxTreeCursor GetSelection();
    using wxTreeCtrl::GetSelection;

    /// Deletes the item from the cursor's tree, which may be another control than this one.
    void DeleteItem(const wxTreeCursor& item);

    /// Adds the root item, without images and data.
    wxTreeCursor AddRoot(const wxString& text);

    /// Adds the root item as wxTreeCtrl::AddRoot() does.
    wxTreeItemId AddRoot(const wxString& text, int image, int selectedImage = -1,
                         wxTreeItemData* data = nullptr) override
    {
        return wxTreeCtrl::AddRoot(text, image, selectedImage, data);
    }
};

#endif
