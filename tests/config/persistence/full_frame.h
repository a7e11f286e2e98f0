#ifndef FITTINGS_TESTS_CONFIG_PERSISTENCE_FULL_FRAME_H_
#define FITTINGS_TESTS_CONFIG_PERSISTENCE_FULL_FRAME_H_

#include <wx/frame.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/splitter.h>

#include <fittings/config/persistence.h>

/// A frame that contains a splitter, a book of two pages, a list and a tree. RestoreAll() registers and restores the
/// frame and these four controls.
class FullFrame : public wxFrame
{
public:
    FullFrame()
        : wxFrame(nullptr, wxID_ANY, "full", wxPoint(100, 100), wxSize(600, 400)), splitter(new wxSplitterWindow(this)),
          tree(new wxTreeCtrl(splitter)), book(new wxNotebook(splitter, wxID_ANY)), list(new wxListView(book))
    {
        splitter->SplitVertically(tree, book, 150);
        tree->AppendItem(tree->AppendItem(tree->AddRoot("root"), "folder"), "file");
        for (int column = 0; column < 3; ++column)
            list->AppendColumn("column");
        book->AddPage(new wxPanel(book), "first");
        book->AddPage(list, "second");
    }

    bool RestoreAll()
    {
        bool all = wxPersistentRegisterAndRestore(splitter, "w");
        all = wxPersistentRegisterAndRestore(tree, "w") && all;
        all = wxPersistentRegisterAndRestore(book, "w") && all;
        all = wxPersistentRegisterAndRestore(list, "w") && all;
        return wxPersistentRegisterAndRestore(this, "w") && all;
    }

    wxSplitterWindow* splitter;
    wxTreeCtrl* tree;
    wxNotebook* book;
    wxListView* list;
};

#endif
