#include <fittings/config/persistence/tree_paths.h>

#include <algorithm>
#include <unordered_map>

#include <wx/wupdlock.h>

#include <fittings/base/tree_children.h>

namespace {

// Follows paths down a tree. Event handlers may change the tree between the steps; deleted items are not used.
class Descent
{
public:
    explicit Descent(wxTreeCtrl& tree) : m_tree(tree)
    {
        m_tree.Bind(wxEVT_TREE_DELETE_ITEM, &Descent::OnDeleteItem, this);
    }

    ~Descent() { m_tree.Unbind(wxEVT_TREE_DELETE_ITEM, &Descent::OnDeleteItem, this); }

    Descent(const Descent&) = delete;
    Descent& operator=(const Descent&) = delete;

    // Follows the next step of the path. Returns the item of the step; null when there is none.
    wxTreeItemId Go(const fittings::TreeStep& step)
    {
        // The step's parent was not found.
        if (step.level > m_levels.size())
            return {};
        m_levels.erase(m_levels.begin() + static_cast<std::ptrdiff_t>(step.level), m_levels.end());
        const wxTreeItemId item = step.level == 0 ? m_tree.GetRootItem() : Find(m_levels.back(), step);
        if (item.IsOk())
            m_levels.push_back({item, false, {}});
        return item;
    }

    // Keeps an item until it is taken or deleted.
    void Keep(const wxTreeItemId& item) { m_kept.push_back(item); }

    // Takes the first kept item that still exists; returns null when there is none.
    wxTreeItemId TakeKept()
    {
        while (m_taken < m_kept.size()) {
            const wxTreeItemId item = m_kept[m_taken++];
            if (item.IsOk())
                return item;
        }
        return {};
    }

private:
    struct Level
    {
        wxTreeItemId item;
        bool isKnown;  // true if the map below has the item's children
        std::unordered_map<std::wstring, std::vector<wxTreeItemId>> children;
    };

    wxTreeItemId Find(Level& parent, const fittings::TreeStep& step)
    {
        if (!parent.isKnown) {
            parent.isKnown = true;
            wxTreeItemIdValue cookie = nullptr;
            for (wxTreeItemId child = m_tree.GetFirstChild(parent.item, cookie); child.IsOk();
                 child = m_tree.GetNextChild(parent.item, cookie))
                parent.children[m_tree.GetItemText(child).ToStdWstring()].push_back(child);
        }
        const auto same = parent.children.find(step.label);
        return same != parent.children.end() && step.number <= same->second.size() ? same->second[step.number - 1]
                                                                                   : wxTreeItemId();
    }

    void OnDeleteItem(wxTreeEvent& event)
    {
        event.Skip();
        const wxTreeItemId item = event.GetItem();
        std::replace(m_kept.begin() + static_cast<std::ptrdiff_t>(m_taken), m_kept.end(), item, wxTreeItemId());
        const wxTreeItemId parent = m_tree.GetItemParent(item);
        for (auto level = m_levels.begin(); level != m_levels.end(); ++level) {
            if (level->item == item) {
                m_levels.erase(level, m_levels.end());
                return;
            }
            if (level->item == parent) {
                level->isKnown = false;
                level->children.clear();
            }
        }
    }

    wxTreeCtrl& m_tree;
    std::vector<Level> m_levels;  // the items of the path that was followed last, from the root down
    std::vector<wxTreeItemId> m_kept;
    std::size_t m_taken = 0;
};

}  // namespace

namespace fittings {

void RestoreSteps(wxTreeCtrl& tree, const TreeSteps& steps)
{
    Descent descent(tree);
    {
        // Freeze the tree. Otherwise each expansion would lay out the whole tree again.
        const wxWindowUpdateLocker frozen(&tree);
        for (const TreeStep& step : steps) {
            const wxTreeItemId item = descent.Go(step);
            if (!item.IsOk())
                continue;
            // Keep the item before expanding it: the handlers of the expansion may delete it.
            if (step.isSelected)
                descent.Keep(item);
            if (step.isExpanded && !IsHiddenRoot(tree, item))
                tree.Expand(item);
        }
    }
    bool isFirst = true;
    for (wxTreeItemId item = descent.TakeKept(); item.IsOk(); item = descent.TakeKept()) {
        if (isFirst && tree.HasFlag(wxTR_MULTIPLE))
            tree.UnselectAll();
        isFirst = false;
        tree.SelectItem(item);
    }
}

void ScrollToSteps(wxTreeCtrl& tree, const TreeSteps& steps)
{
    Descent descent(tree);
    for (const TreeStep& step : steps) {
        const wxTreeItemId item = descent.Go(step);
        if (!step.isFirstInView)
            continue;
        wxRect rect;
        int pixels = 0;
        tree.GetScrollPixelsPerUnit(nullptr, &pixels);
        if (item.IsOk() && pixels > 0 && tree.GetBoundingRect(item, rect))
            tree.Scroll(-1, tree.GetViewStart().y + rect.y / pixels);
        return;
    }
}

}  // namespace fittings
