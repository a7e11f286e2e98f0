#include <fittings/xrc/tree_handler.h>

#include <memory>

#include <wx/imaglist.h>
#include <wx/treectrl.h>

#include <fittings/tree/handy_tree_ctrl.h>

wxHandyTreeCtrlXmlHandler::wxHandyTreeCtrlXmlHandler()
{
    XRC_ADD_STYLE(wxTR_EDIT_LABELS);
    XRC_ADD_STYLE(wxTR_NO_BUTTONS);
    XRC_ADD_STYLE(wxTR_HAS_BUTTONS);
    XRC_ADD_STYLE(wxTR_TWIST_BUTTONS);
    XRC_ADD_STYLE(wxTR_NO_LINES);
    XRC_ADD_STYLE(wxTR_FULL_ROW_HIGHLIGHT);
    XRC_ADD_STYLE(wxTR_LINES_AT_ROOT);
    XRC_ADD_STYLE(wxTR_HIDE_ROOT);
    XRC_ADD_STYLE(wxTR_ROW_LINES);
    XRC_ADD_STYLE(wxTR_HAS_VARIABLE_ROW_HEIGHT);
    XRC_ADD_STYLE(wxTR_SINGLE);
    XRC_ADD_STYLE(wxTR_MULTIPLE);
    XRC_ADD_STYLE(wxTR_DEFAULT_STYLE);
    AddWindowStyles();
}

wxHandyTreeCtrlXmlHandler::~wxHandyTreeCtrlXmlHandler() = default;

// Compares the `class` in the resource, so that an object with a `subclass` is handled too.
bool wxHandyTreeCtrlXmlHandler::CanHandle(wxXmlNode* node)
{
    return IsOfClass(node, "wxHandyTreeCtrl");
}

wxObject* wxHandyTreeCtrlXmlHandler::DoCreateResource()
{
    auto* tree = dynamic_cast<wxHandyTreeCtrl*>(m_instance);
    if (m_instance && !tree)
        ReportError("the object to load is no wxHandyTreeCtrl");
    if (!tree)
        tree = new wxHandyTreeCtrl;
    tree->Create(m_parentAsWindow, GetID(), GetPosition(), GetSize(),
                 GetStyle("style", wxTR_HAS_BUTTONS | wxTR_NO_LINES), wxDefaultValidator, GetName());
    std::unique_ptr<wxImageList> images(GetImageList());
    // The toolkit returns null if the resource names no bitmap. The list has the size 0 if it takes its size from a
    // bitmap that cannot be loaded. Make an empty list in both cases.
    if (images && images->GetSize() != wxSize(0, 0))
        tree->AssignImageList(images.release());
    else
        tree->CreateImageList();
    tree->SetProfile(GetParamValue("profile"));
    SetupWindow(tree);
    return tree;
}
