#ifndef FITTINGS_TREE_TREE_CTRL_EX_H_
#define FITTINGS_TREE_TREE_CTRL_EX_H_

#include <wx/treectrl.h>

#include <fittings/base/export.h>
#include <fittings/tree/tree_cursor.h>

/// The toolkit's tree control, with a few entry points that speak in cursors.
///
/// The base's operations of the same name stay: wxTreeCtrl::GetSelection() for a constant control or by its full name,
/// AddRoot() with an image.
///
/// The toolkit's class queries take it, and wxHandyTreeCtrl, for a wxTreeCtrl: wxDynamicCast() to either of them would
/// succeed for every tree control. Use dynamic_cast, or query for a class of the host's own that is derived from it and
/// declared by wxDECLARE_DYNAMIC_CLASS().
///
/// GUI thread only.
class FITTINGS_API wxTreeCtrlEx : public wxTreeCtrl
{
public:
    /// Makes the object; the control itself comes with Create(), which takes what the toolkit's does.
    wxTreeCtrlEx();

    /// Makes the object and the control, as the toolkit's constructor does.
    explicit wxTreeCtrlEx(wxWindow* parent, wxWindowID id = wxID_ANY, const wxPoint& pos = wxDefaultPosition,
                          const wxSize& size = wxDefaultSize, long style = wxTR_DEFAULT_STYLE,
                          const wxValidator& validator = wxDefaultValidator,
                          const wxString& name = wxString::FromAscii(wxTreeCtrlNameStr));

    ~wxTreeCtrlEx() override;

    /// Returns the selected item; invalid, with this control as its tree, when nothing is selected.
    ///
    /// Where several may be selected (wxTR_MULTIPLE) asserts, as the toolkit's does: GetSelections() tells all.
    wxTreeCursor GetSelection();
    using wxTreeCtrl::GetSelection;

    /// Deletes the item from the tree that the cursor names, which may be another than this one.
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
