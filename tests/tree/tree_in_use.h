#ifndef FITTINGS_TESTS_TREE_TREE_IN_USE_H_
#define FITTINGS_TESTS_TREE_TREE_IN_USE_H_

#include <functional>
#include <map>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <wx/uiaction.h>

#include <tests/tree/tree_on_screen.h>

/// Records each event of a tree as a string such as "selected b after a", and calls the host's handler for this string.
/// Must outlive the tree.
class TreeLog
{
public:
    void Watch(wxTreeCtrl& tree)
    {
        m_tree = &tree;
        Watch(wxEVT_TREE_SEL_CHANGING, L"selecting");
        Watch(wxEVT_TREE_SEL_CHANGED, L"selected");
        Watch(wxEVT_TREE_ITEM_EXPANDING, L"expanding");
        Watch(wxEVT_TREE_ITEM_EXPANDED, L"expanded");
        Watch(wxEVT_TREE_ITEM_COLLAPSING, L"collapsing");
        Watch(wxEVT_TREE_ITEM_COLLAPSED, L"collapsed");
        Watch(wxEVT_TREE_ITEM_ACTIVATED, L"activated");
        Watch(wxEVT_TREE_DELETE_ITEM, L"deleted");
        Watch(wxEVT_TREE_BEGIN_LABEL_EDIT, L"editing");
        Watch(wxEVT_TREE_END_LABEL_EDIT, L"edited");
        Watch(wxEVT_TREE_BEGIN_DRAG, L"dragging");
        Watch(wxEVT_TREE_END_DRAG, L"dropped");
        Watch(wxEVT_TREE_ITEM_RIGHT_CLICK, L"right");
        Watch(wxEVT_TREE_ITEM_MENU, L"menu");
        Watch(wxEVT_TREE_ITEM_MIDDLE_CLICK, L"middle");
        Watch(wxEVT_TREE_KEY_DOWN, L"key");
    }

    /// The host's handlers, by the string that is recorded for the event. An event without a handler is skipped.
    std::map<std::wstring, std::function<void(wxTreeEvent&)>> on;

    /// Returns the strings recorded since the previous call.
    Labels Take() { return std::exchange(m_notes, {}); }

    const Labels& Notes() const { return m_notes; }

private:
    void Watch(const wxEventTypeTag<wxTreeEvent>& type, const std::wstring& name)
    {
        m_tree->Bind(type, [this, name](wxTreeEvent& event) {
            const std::wstring note = Described(name, event);
            m_notes.push_back(note);
            const auto reaction = on.find(note);
            if (reaction != on.end())
                reaction->second(event);
            else
                event.Skip();
        });
    }

    std::wstring Described(const std::wstring& name, const wxTreeEvent& event) const
    {
        if (event.GetEventType() == wxEVT_TREE_KEY_DOWN)
            return name + L" " + std::to_wstring(event.GetKeyCode());
        std::wstring note = name;
        if (event.GetItem().IsOk())
            note += L" " + m_tree->GetItemText(event.GetItem()).ToStdWstring();
        if (event.GetOldItem().IsOk())
            note += L" after " + m_tree->GetItemText(event.GetOldItem()).ToStdWstring();
        if (event.GetEventType() == wxEVT_TREE_END_LABEL_EDIT)
            note += event.IsEditCancelled() ? L" in vain" : L" to " + event.GetLabel().ToStdWstring();
        return note;
    }

    wxTreeCtrl* m_tree = nullptr;
    Labels m_notes;
};

/// A tree in a window on the screen, with a root, its children a, b and c, and a's children a1 and a2. The root is
/// expanded and selected.
template <typename Tree>
class TreeInUse : public testing::Test
{
protected:
    TreeInUse()
        : root(&tree, tree.wxTreeCtrl::AddRoot("root")), a(root.AppendItem("a")), b(root.AppendItem("b")),
          c(root.AppendItem("c")), a1(a.AppendItem("a1")), a2(a.AppendItem("a2"))
    {
        tree.Expand(root.item);
        tree.SelectItem(root.item);
        log.Watch(tree);
    }

    void SetUp() override
    {
        screen.Show();
        log.Take();
    }

    void Click(const wxTreeCursor& item, int button = wxMOUSE_BTN_LEFT, int part = wxTREE_HITTEST_ONITEMLABEL)
    {
        PointTo(PointOn(item, part));
        user.MouseClick(button);
    }

    /// Waits until as many events as in @a events are recorded, and a little longer in case more follow. Expects
    /// exactly these events.
    void ExpectEvents(const Labels& events)
    {
        EXPECT_TRUE(PumpUntil([&] { return log.Notes().size() >= events.size(); }));
        EXPECT_FALSE(PumpUntil([&] { return log.Notes().size() > events.size(); }, 50));
        EXPECT_EQ(log.Take(), events);
    }

    Labels Selected() const
    {
        wxArrayTreeItemIds items;
        tree.GetSelections(items);
        Labels labels;
        for (const wxTreeItemId item : items)
            labels.push_back(tree.GetItemText(item).ToStdWstring());
        return labels;
    }

    TreeLog log;
    TreeOnScreen<Tree> screen;
    Tree& tree = *screen.tree;
    wxTreeCursor root, a, b, c, a1, a2;
    wxUIActionSimulator user;
};

#endif
