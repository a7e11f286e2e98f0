#include <wx/wx.h>

#include <fittings/config/persistence.h>
#include <fittings/tree/handy_tree_ctrl.h>

class Host : public wxApp
{
    bool OnInit() override
    {
        wxStorePersistenceManager::Install();
        auto* frame = new wxFrame(nullptr, wxID_ANY, "Planets");
        auto* tree = new wxHandyTreeCtrl(frame);
        tree->AddRoot("Sun").AppendItem("Earth").AppendItem("Moon");
        wxPersistentRegisterAndRestoreAll(frame, "Main");
        return frame->Show();
    }
};
wxIMPLEMENT_APP(Host);
