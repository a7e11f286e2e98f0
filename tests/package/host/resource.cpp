// Creates the controls from the XML resource given on the command line. Prints the colour of the combo and the selected
// item of the tree.

#include <wx/app.h>
#include <wx/crt.h>
#include <wx/frame.h>
#include <wx/init.h>
#include <wx/xrc/xmlres.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>
#include <fittings/tree/handy_tree_ctrl.h>
#include <fittings/xrc/colour_combo_handler.h>
#include <fittings/xrc/tree_handler.h>

int main(int argc, char** argv)
{
    wxApp::SetInstance(new wxApp);
    const wxInitializer toolkit(argc, argv);
    wxXmlResource* const resource = wxXmlResource::Get();
    resource->InitAllHandlers();
    resource->AddHandler(new wxColourComboXmlHandler);
    resource->AddHandler(new wxHandyTreeCtrlXmlHandler);
    if (argc < 2 || !resource->Load(argv[1]))
        return 1;
    wxFrame* const frame = resource->LoadFrame(nullptr, "frame");
    auto* const line = XRCCTRL(*frame, "line", wxColourCombo);
    auto* const planets = XRCCTRL(*frame, "planets", wxHandyTreeCtrl);
    planets->AddRoot("Sun");
    planets->SelectRootItem();
    wxPrintf("%s %s\n", dynamic_cast<wxColourPopup*>(line->GetPopupControl())->GetInitialColour().GetAsString(),
             planets->GetSelection().GetText());
    frame->Destroy();
}
