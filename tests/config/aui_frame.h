#ifndef FITTINGS_TESTS_CONFIG_AUI_FRAME_H_
#define FITTINGS_TESTS_CONFIG_AUI_FRAME_H_

#include <wx/aui/framemanager.h>
#include <wx/frame.h>
#include <wx/panel.h>

/// A frame with four panes, laid out by an AUI manager.
class AuiFrame : public wxFrame
{
public:
    AuiFrame() : wxFrame(nullptr, wxID_ANY, "aui", wxPoint(200, 100), wxSize(700, 500))
    {
        manager.SetManagedWindow(this);
        Add("tree", wxAuiPaneInfo().Left().Caption("Folders").BestSize(150, -1));
        Add("log", wxAuiPaneInfo().Bottom().Caption("Log").BestSize(-1, 90));
        Add("props", wxAuiPaneInfo().Right().Caption("Properties").BestSize(120, -1));
        Add("list", wxAuiPaneInfo().CenterPane());
        manager.Update();
    }
    ~AuiFrame() override { manager.UnInit(); }

    wxAuiPaneInfo& Pane(const char* name) { return manager.GetPane(name); }

    wxAuiManager manager;

private:
    void Add(const char* name, const wxAuiPaneInfo& info)
    {
        manager.AddPane(new wxPanel(this), wxAuiPaneInfo(info).Name(name));
    }
};

#endif
