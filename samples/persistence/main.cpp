// A window that comes back as it was left, by one call for each window that remembers: its place and size, where it is
// split, which page is shown, how wide the columns are, and what is open and selected in the tree.

#include <utility>

#include <wx/notebook.h>
#include <wx/splitter.h>
#include <wx/wx.h>

#include <fittings/config/persistence.h>

class PlanetsFrame : public wxFrame
{
public:
    PlanetsFrame() : wxFrame(nullptr, wxID_ANY, "Planets", wxDefaultPosition, wxSize(600, 400))
    {
        auto* splitter = new wxSplitterWindow(this);
        auto* tree = new wxTreeCtrl(splitter);
        auto* book = new wxNotebook(splitter, wxID_ANY);
        auto* list = new wxListView(book);
        const wxTreeItemId sun = tree->AddRoot("Sun");
        list->AppendColumn("Planet");
        list->AppendColumn("Moon");
        for (const auto& [planet, moon] : {std::pair("Earth", "Moon"), std::pair("Mars", "Phobos")}) {
            tree->AppendItem(tree->AppendItem(sun, planet), moon);
            list->SetItem(list->InsertItem(list->GetItemCount(), planet), 1, moon);
        }
        book->AddPage(list, "Moons");
        book->AddPage(new wxTextCtrl(book, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_MULTILINE), "Notes");
        splitter->SplitVertically(tree, book, 200);

        wxPersistentRegisterAndRestore(this, "Planets");
        wxPersistentRegisterAndRestore(splitter, "Planets");
        wxPersistentRegisterAndRestore(tree, "Planets");
        wxPersistentRegisterAndRestore(book, "Planets");
        wxPersistentRegisterAndRestore(list, "Planets");
    }
};

class PlanetsApp : public wxApp
{
    bool OnInit() override
    {
        wxStorePersistenceManager::Install();
        return (new PlanetsFrame)->Show();
    }
};
wxIMPLEMENT_APP(PlanetsApp);
