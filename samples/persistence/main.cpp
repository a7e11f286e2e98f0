// A window that restores its geometry, splitter, page and columns, and the expanded items of the tree.

#include <wx/notebook.h>
#include <wx/splitter.h>
#include <wx/wx.h>

#include <fittings/config/persistence.h>

class PlanetsApp : public wxApp
{
    bool OnInit() override
    {
        wxStorePersistenceManager::Install();
        auto* frame = new wxFrame(nullptr, wxID_ANY, "Planets", wxDefaultPosition, wxSize(600, 400));
        auto* splitter = new wxSplitterWindow(frame);
        auto* tree = new wxTreeCtrl(splitter);
        tree->AppendItem(tree->AppendItem(tree->AddRoot("Sun"), "Earth"), "Moon");
        auto* book = new wxNotebook(splitter, wxID_ANY);
        auto* list = new wxListView(book);
        list->AppendColumn("Planet");
        list->AppendColumn("Moons");
        book->AddPage(list, "Moons");
        book->AddPage(new wxTextCtrl(book, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_MULTILINE), "Notes");
        splitter->SplitVertically(tree, book, 200);
        wxPersistentRegisterAndRestoreAll(frame, "Planets");
        return frame->Show();
    }
};
wxIMPLEMENT_APP(PlanetsApp);
