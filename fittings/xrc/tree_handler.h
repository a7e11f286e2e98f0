#ifndef FITTINGS_XRC_TREE_HANDLER_H_
#define FITTINGS_XRC_TREE_HANDLER_H_

#include <wx/xrc/xmlreshandler.h>

#include <fittings/base/export.h>

/// Makes a wxHandyTreeCtrl from an XML resource, for an object of class "wxHandyTreeCtrl". If the object has a
/// `subclass`, makes an object of that class, which must be derived from wxHandyTreeCtrl.
///
/// @code{.xml}
/// <object class="wxHandyTreeCtrl" name="folders" subclass="FolderTree">
///   <size>200,300d</size>
///   <profile>Folders</profile>
///   <imagelist>
///     <bitmap stock_id="wxART_FOLDER"/>
///   </imagelist>
/// </object>
/// @endcode
///
/// @code
/// // Add the handler where the program calls InitAllHandlers(), before it makes controls from a resource.
/// wxXmlResource::Get()->AddHandler(new wxHandyTreeCtrlXmlHandler);
/// ...
/// auto* const folders = XRCCTRL(*this, "folders", wxHandyTreeCtrl);
/// wxTreeCursor root = folders->AddRoot("/");
/// folders->LoadState(root);
/// @endcode
///
/// | Property | Type | Meaning; default |
/// | --- | --- | --- |
/// | `style` | style | styles of wxTreeCtrl and of every window; those of wxHandyTreeCtrl::Create() |
/// | `imagelist` | image list | images of the items; the empty list of wxHandyTreeCtrl::CreateImageList() |
/// | `profile` | text, never translated | wxHandyTreeCtrl::SetProfile(); empty |
///
/// The properties of every window work too: `pos`, `size`, `tooltip`, `enabled`, `hidden`, `font` and the rest. The
/// images are as large as the bitmaps of `imagelist`. The program adds the items.
///
/// An invalid value is reported through wxXmlResource::ReportError() and ignored. The same holds for a `subclass` that
/// is not a wxHandyTreeCtrl: the control is then a plain wxHandyTreeCtrl. The class in `subclass` must use
/// wxDECLARE_DYNAMIC_CLASS().
///
/// GUI thread only.
class FITTINGS_API wxHandyTreeCtrlXmlHandler : public wxXmlResourceHandler
{
public:
    wxHandyTreeCtrlXmlHandler();
    ~wxHandyTreeCtrlXmlHandler() override;

    /// Returns whether @a node is an object of class "wxHandyTreeCtrl".
    bool CanHandle(wxXmlNode* node) override;

protected:
    /// Makes the control from the node that the base class holds.
    wxObject* DoCreateResource() override;
};

#endif
