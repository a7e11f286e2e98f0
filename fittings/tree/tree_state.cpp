#include <fittings/tree/tree_state.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include <wx/wupdlock.h>

#include <fittings/base/tree_children.h>

using fittings::IsHiddenRoot;
using fittings::TreeChildren;

namespace {

constexpr wchar_t kSeparator = L'|';

using Labels = std::unordered_set<std::wstring_view>;

std::wstring_view View(const wxString& text)
{
    return std::wstring_view(text.wc_str(), text.length());
}

// Visits the items of a subtree and expands some of them. Event handlers may change any part of the tree during an
// expansion. The walk still visits the items that GetChild() and GetNextSibling() would return, and never uses a
// deleted item.
class ExpandingWalk
{
public:
    ExpandingWalk(wxTreeCtrl& tree, const Labels& labels) : m_tree(tree), m_labels(labels)
    {
        m_tree.Bind(wxEVT_TREE_DELETE_ITEM, &ExpandingWalk::OnDeleteItem, this);
    }

    ~ExpandingWalk() { m_tree.Unbind(wxEVT_TREE_DELETE_ITEM, &ExpandingWalk::OnDeleteItem, this); }

    ExpandingWalk(const ExpandingWalk&) = delete;
    ExpandingWalk& operator=(const ExpandingWalk&) = delete;

    void Run(const wxTreeItemId& start)
    {
        m_path.push_back({start, TreeChildren(), TreeChildren()});
        do
            Visit();
        while (Descend() || Advance());
    }

private:
    struct VisitedItem
    {
        wxTreeItemId item;  // Invalid after the item was deleted.
        TreeChildren here;  // The place before the item: Next() returns the item.
        TreeChildren next;  // The place after the item.
    };

    void Visit()
    {
        const wxTreeItemId item = m_path.back().item;
        if (m_labels.count(View(m_tree.GetItemText(item))) != 0 && !IsHiddenRoot(m_tree, item))
            m_tree.Expand(item);
    }

    // Moves to the first child of the last item of the path. Returns false when that item has no child.
    bool Descend()
    {
        const wxTreeItemId parent = m_path.back().item;
        if (!parent.IsOk() || !m_tree.ItemHasChildren(parent))
            return false;
        VisitedItem visited;
        visited.item = visited.next.Next(m_tree, parent);
        if (!visited.item.IsOk())
            return false;
        m_path.push_back(visited);
        return true;
    }

    // Shortens the path until its last item has a next sibling, and moves to that sibling. Returns false when only the
    // first item of the path is left: its siblings are not visited.
    bool Advance()
    {
        for (; m_path.size() > 1; m_path.pop_back()) {
            VisitedItem& visited = m_path.back();
            const wxTreeItemId parent = m_path[m_path.size() - 2].item;
            FindAgain(visited, parent);
            visited.here = visited.next;
            visited.item = visited.next.Next(m_tree, parent);
            if (visited.item.IsOk())
                return true;
        }
        return false;
    }

    // Corrects visited.next if an event handler has changed the siblings: searches for the visited item, and sets
    // visited.next to the place after it. If the item was deleted, uses its old place, where its next sibling is now.
    void FindAgain(VisitedItem& visited, const wxTreeItemId& parent) const
    {
        TreeChildren same = visited.here;
        if (visited.item.IsOk() && same.Next(m_tree, parent) == visited.item)
            return;
        TreeChildren place;
        for (wxTreeItemId child = place.Next(m_tree, parent); child.IsOk(); child = place.Next(m_tree, parent)) {
            if (child == visited.item) {
                visited.next = place;
                return;
            }
        }
        visited.next = visited.here;
    }

    void OnDeleteItem(wxTreeEvent& event)
    {
        event.Skip();
        const auto deleted = std::find_if(m_path.begin(), m_path.end(),
                                          [&](const VisitedItem& visited) { return visited.item == event.GetItem(); });
        if (deleted == m_path.end())
            return;
        deleted->item.Unset();
        m_path.erase(deleted + 1, m_path.end());
    }

    wxTreeCtrl& m_tree;
    const Labels& m_labels;
    std::vector<VisitedItem>
        m_path;  // The items from the start to the visited one. Recursion would overflow the stack in a deep tree.
};

// Returns the labels in a stored text, in which a separator follows each label. Ignores the text after the last
// separator.
Labels SplitLabels(std::wstring_view text)
{
    Labels labels;
    // Keep most buckets empty. Most labels of a tree are not in the set, and their look-up is short if it finds an
    // empty bucket.
    labels.max_load_factor(0.25F);
    labels.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), kSeparator)));
    for (std::size_t end = text.find(kSeparator); end != text.npos; end = text.find(kSeparator)) {
        labels.insert(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return labels;
}

struct Item
{
    std::wstring label;
    bool isExpanded;
};

// Joins the labels of the expanded items, each once, in ascending order. If several items have the same label, the text
// contains the label only if the last of these items is expanded.
std::wstring JoinExpanded(std::vector<Item> items)
{
    const auto isBefore = [](const Item& a, const Item& b) { return a.label < b.label; };
    // Siblings are usually in order already, so sort only if needed. Do not sort the first item with the others, but
    // merge it afterwards: it is the root of the subtree, and its label would usually break the order.
    const auto second = items.begin() + (items.empty() ? 0 : 1);
    if (!std::is_sorted(second, items.end(), isBefore))
        std::stable_sort(second, items.end(), isBefore);
    std::inplace_merge(items.begin(), second, items.end(), isBefore);
    std::wstring text;
    for (auto item = items.begin(); item != items.end(); ++item) {
        const auto next = std::next(item);
        if (item->isExpanded && (next == items.end() || next->label != item->label))
            text.append(item->label).push_back(kSeparator);
    }
    return text;
}

}  // namespace

namespace fittings {

std::wstring ExpandedLabels(const wxTreeCursor& start)
{
    wxCHECK_MSG(start.tree && start.IsOk(), std::wstring(), "invalid tree item");
    struct Level
    {
        wxTreeItemId parent;
        TreeChildren place;
    };
    const wxTreeCtrl& tree = *start.tree;
    std::vector<Item> items;
    std::vector<Level> levels;
    const auto visit = [&](const wxTreeItemId& item) {
        items.push_back({tree.GetItemText(item).ToStdWstring(), tree.IsExpanded(item)});
        if (tree.ItemHasChildren(item))
            levels.push_back({item, TreeChildren()});
    };
    visit(start.item);
    while (!levels.empty()) {
        Level& level = levels.back();
        const wxTreeItemId child = level.place.Next(tree, level.parent);
        if (child.IsOk())
            visit(child);
        else
            levels.pop_back();
    }
    return JoinExpanded(std::move(items));
}

void ExpandLabels(const std::wstring& text, const wxTreeCursor& start)
{
    wxCHECK_RET(start.tree && start.IsOk(), "invalid tree item");
    const Labels labels = SplitLabels(text);
    // Without a freeze, each expansion would lay out the whole tree again. A control that is not created yet cannot be
    // frozen.
    wxWindowUpdateLocker frozen;
    if (start.tree->GetHandle())
        frozen.Lock(start.tree);
    ExpandingWalk(*start.tree, labels).Run(start.item);
}

}  // namespace fittings
