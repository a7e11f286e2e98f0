// Planets whose colours the user chooses. The file planets.xrc beside the program describes the window with its tree
// and its drop-down for colours.

#include <wx/filename.h>
#include <wx/stdpaths.h>
#include <wx/wx.h>
#include <wx/xrc/xmlres.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/tree/handy_tree_ctrl.h>
#include <fittings/xrc/colour_combo_handler.h>
#include <fittings/xrc/tree_handler.h>

class PlanetsFrame : public wxFrame
{
public:
    PlanetsFrame()
    {
        wxXmlResource::Get()->LoadFrame(this, nullptr, "planets");
        m_tree = XRCCTRL(*this, "tree", wxHandyTreeCtrl);
        Bind(wxEVT_COLOURPICKER_CHANGED, &PlanetsFrame::OnColour, this, XRCID("colour"));

        wxTreeCursor sun = m_tree->AddRoot("Sun");
        sun.AppendItem("Earth").AppendItem("Moon");
        sun.AppendItem("Mars");
        m_tree->LoadState(sun);  // planets.xrc sets the profile under which the state is stored
        m_tree->SelectRootItem();
        Bind(wxEVT_CLOSE_WINDOW, [this, sun](wxCloseEvent& event) mutable {
            m_tree->SaveState(sun);
            event.Skip();
        });
    }

private:
    void OnColour(wxColourPickerEvent& event)
    {
        const wxTreeCursor planet = m_tree->GetSelection();
        m_tree->SetItemTextColour(planet, event.GetColour());
        SetTitle(planet.GetText() + " in " + event.GetColour().GetAsString(wxC2S_HTML_SYNTAX));
    }

    wxHandyTreeCtrl* m_tree = nullptr;
};

class PlanetsApp : public wxApp
{
    bool OnInit() override
    {
        wxXmlResource* resource = wxXmlResource::Get();
        resource->InitAllHandlers();
        resource->AddHandler(new wxColourComboXmlHandler);
        resource->AddHandler(new wxHandyTreeCtrlXmlHandler);
        const wxFileName program(wxStandardPaths::Get().GetExecutablePath());
        return resource->Load(program.GetPathWithSep() + "planets.xrc") && (new PlanetsFrame)->Show();
    }
};
wxIMPLEMENT_APP(PlanetsApp);
