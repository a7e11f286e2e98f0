#ifndef FITTINGS_TESTS_TREE_TREE_ON_SCREEN_H_
#define FITTINGS_TESTS_TREE_TREE_ON_SCREEN_H_

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/frame.h>

#include <fittings/tree/handy_tree_ctrl.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>
#include <tests/support/temp_folder.h>

using Labels = std::vector<std::wstring>;

/// A frame with a tree of the given class, destroyed with this object.
template <typename Tree = wxHandyTreeCtrl>
class TreeOnScreen
{
public:
    TreeOnScreen() : frame(new wxFrame(nullptr, wxID_ANY, "tree", wxPoint(100, 100), wxSize(400, 400))), tree(new Tree)
    {
        tree->Create(frame);
    }

    /// Shows the frame and gives the tree the focus.
    void Show()
    {
        ASSERT_TRUE(ShowAndSettle(frame));
        tree->SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return tree->HasFocus(); }));
    }

    OwnedWindow<wxFrame> frame;
    Tree* tree;
};

/// A tree that adds an item's children when the item is expanded. Records the items that are passed to
/// OnItemExpanding() and Expand().
class LazyTree : public wxHandyTreeCtrl
{
public:
    std::map<std::wstring, Labels> folders;  ///< The labels of the children, by the label of their parent.
    Labels hooked;                           ///< The labels of the items passed to OnItemExpanding().
    Labels expanded;                         ///< The labels of the items passed to Expand().
    std::function<void(const wxTreeCursor&)> inHook;

    void OnItemExpanding(const wxTreeCursor& item) override
    {
        hooked.push_back(item.GetText());
        if (inHook)
            inHook(item);
        if (item.GetChild().IsOk())
            return;
        for (const std::wstring& name : folders[item.GetText()])
            wxTreeCursor(item).AppendItem(name).SetChildren(folders.count(name) > 0);
    }

    void Expand(const wxTreeItemId& item) override
    {
        expanded.push_back(GetItemText(item).ToStdWstring());
        wxHandyTreeCtrl::Expand(item);
    }
};

/// Returns the tree state that is stored under this name.
inline std::wstring StoredState(const wchar_t* name)
{
    return Stored(L"TreeControlState", name);
}

/// Adds a root without children, but marks the root as an item with children.
inline wxTreeCursor AddLazyRoot(wxTreeCtrlEx& tree, const wxString& label)
{
    wxTreeCursor root = tree.AddRoot(label);
    root.SetChildren(true);
    return root;
}

/// Appends one child for each label, and returns the children.
inline std::vector<wxTreeCursor> Append(wxTreeCursor parent, const Labels& labels)
{
    std::vector<wxTreeCursor> items;
    for (const std::wstring& label : labels)
        items.push_back(parent.AppendItem(label));
    return items;
}

/// Returns the labels of the children that a walk with cursors finds.
inline Labels ChildrenOf(const wxTreeCursor& parent)
{
    Labels labels;
    for (wxTreeCursor child = parent.GetChild(); child.IsOk(); child = child.GetNextSibling())
        labels.push_back(child.GetText());
    return labels;
}

/// Returns a point on the screen, in the row of @a item, for which HitTest() reports @a part.
inline wxPoint PointOn(const wxTreeCursor& item, int part)
{
    const wxTreeCtrl& tree = *item.tree;
    wxRect label;
    EXPECT_TRUE(tree.GetBoundingRect(item.item, label, true));
    wxPoint point(0, label.y + label.height / 2);
    for (; point.x < tree.GetClientSize().x; ++point.x) {
        int flags = 0;
        if (tree.HitTest(point, flags) == item.item && (flags & part))
            return tree.ClientToScreen(point + wxSize(2, 0));
    }
    ADD_FAILURE() << "the row does not have that part";
    return {};
}

#endif
