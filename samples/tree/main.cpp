// The user's folders, which are read when they are expanded. The folders that were expanded when the window was closed
// are expanded again at the next start. Hidden folders are grey.

#include <wx/dir.h>
#include <wx/wx.h>

#include <fittings/tree/handy_tree_ctrl.h>

static wxString PathOf(const wxTreeCursor& item)
{
    const wxTreeCursor parent = item.GetParent();
    return parent.IsOk() ? PathOf(parent) + "/" + item.GetText() : wxString(item.GetText());
}

class FolderTree : public wxHandyTreeCtrl
{
public:
    using wxHandyTreeCtrl::wxHandyTreeCtrl;
    void OnItemExpanding(const wxTreeCursor& item) override
    {
        wxLogNull noMessages;  // without this, wxDir shows a message for a folder that the user cannot read
        wxDir folder(PathOf(item));
        if (item.GetChild().IsOk() || !folder.IsOpened())
            return;  // already filled, or nothing to show
        wxString name;
        for (bool more = folder.GetFirst(&name, "", wxDIR_DIRS | wxDIR_HIDDEN); more; more = folder.GetNext(&name)) {
            wxTreeCursor child = wxTreeCursor(item).AppendItem(name);
            child.SetChildren(wxDir(PathOf(child)).HasSubDirs());
            if (name.StartsWith("."))
                child.SetTextColour(0x808080);
        }
        SortChildren(item);
    }
};

class FoldersApp : public wxApp
{
    bool OnInit() override
    {
        auto* frame = new wxFrame(nullptr, wxID_ANY, "Folders");
        auto* tree = new FolderTree(frame);
        tree->SetProfile("Folders");
        wxTreeCursor root = tree->AddRoot(wxGetHomeDir());
        root.SetChildren(true);
        tree->LoadState(root);
        tree->SelectRootItem();
        tree->Bind(wxEVT_TREE_SEL_CHANGED, [=](wxTreeEvent&) { frame->SetTitle(PathOf(tree->GetSelection())); });
        frame->Bind(wxEVT_CLOSE_WINDOW, [=](wxCloseEvent& event) {
            tree->SaveState(root);
            event.Skip();
        });
        return frame->Show();
    }
};
wxIMPLEMENT_APP(FoldersApp);
