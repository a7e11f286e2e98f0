#include <wx/wx.h>

#include <fittings/config/wx_window_state.h>
#include <fittings/tree/handy_tree_ctrl.h>

class Host : public wxApp
{
    bool OnInit() override
    {
        auto* frame = new wxFrame(nullptr, wxID_ANY, "Planets");
        auto* tree = new wxHandyTreeCtrl(frame);
        wxTreeCursor root = tree->AddRoot("Sun");
        root.AppendItem("Earth").AppendItem("Moon");
        tree->LoadState("Planets", root);
        wx_window_state::LoadState(frame, L"Main");
        frame->Bind(wxEVT_CLOSE_WINDOW, [=](wxCloseEvent& event) {
            tree->SaveState("Planets", root);
            wx_window_state::SaveState(frame, L"Main");
            event.Skip();
        });
        frame->Show();
        return true;
    }
};
wxIMPLEMENT_APP(Host);
