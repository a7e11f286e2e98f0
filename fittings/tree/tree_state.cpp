#include <fittings/tree/tree_state.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory_resource>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include <wx/wupdlock.h>

namespace {

constexpr wchar_t kSeparator = L'|';

using LabelSet = std::unordered_set<std::wstring_view>;

std::wstring_view View(const wxString& text)
{
    return std::wstring_view(text.wc_str(), text.length());
}

// The labels of a state text. They point into it. What follows the last separator is no label.
LabelSet SplitLabels(std::wstring_view text)
{
    LabelSet labels;
    for (size_t end = text.find(kSeparator); end != text.npos; end = text.find(kSeparator)) {
        labels.insert(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return labels;
}

// Sorts by merging what is in order already: siblings mostly are, and then one comparison each is enough.
template <typename T, typename Less>
void MergeRuns(std::vector<T>& items, Less less)
{
    std::vector<size_t> ends{0};
    for (size_t i = 1; i < items.size(); ++i) {
        if (less(items[i], items[i - 1]))
            ends.push_back(i);
    }
    ends.push_back(items.size());
    while (ends.size() > 2) {
        size_t kept = 1;
        for (size_t i = 2; i < ends.size(); i += 2) {
            const auto begin = items.begin();
            std::inplace_merge(begin + ends[i - 2], begin + ends[i - 1], begin + ends[i], less);
            ends[kept++] = ends[i];
        }
        if (ends.size() % 2 == 0)
            ends[kept++] = ends.back();
        ends.resize(kept);
    }
}

// The labels whose last visited item is expanded. A label that was only seen collapsed is no different from one that was
// never seen, so it takes no room. There may be a hundred thousand of them and more: they share an open hash table and
// blocks of memory, instead of an allocation each.
class ExpandedLabelSet
{
public:
    ExpandedLabelSet() : m_slots(1024) {}

    void Note(std::wstring_view label, bool expanded)
    {
        const auto hash = static_cast<std::uint32_t>(std::hash<std::wstring_view>()(label));
        size_t slot = FirstSlot(hash);
        for (; m_slots[slot]; slot = NextSlot(slot)) {
            Entry& entry = m_entries[m_slots[slot] - 1];
            if (entry.hash == hash && entry.label == label) {
                entry.expanded = expanded;
                return;
            }
        }
        if (!expanded)
            return;
        m_entries.push_back({Keep(label), hash, true});
        m_length += label.size() + 1;
        m_slots[slot] = static_cast<std::uint32_t>(m_entries.size());
        // Most labels are looked up in vain, which a sparse table answers by its first slot.
        if (m_entries.size() > m_slots.size() / 4)
            Grow();
    }

    // The labels as a state text. Ends the use of the set.
    std::wstring TakeText()
    {
        m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), [](const Entry& e) { return !e.expanded; }),
                        m_entries.end());
        MergeRuns(m_entries, [](const Entry& a, const Entry& b) { return a.label < b.label; });
        std::wstring text;
        text.reserve(m_length);
        for (const Entry& entry : m_entries)
            text.append(entry.label).push_back(kSeparator);
        return text;
    }

private:
    struct Entry
    {
        std::wstring_view label;
        std::uint32_t hash;
        bool expanded;
    };

    std::wstring_view Keep(std::wstring_view label)
    {
        auto* copy = static_cast<wchar_t*>(m_memory.allocate(label.size() * sizeof(wchar_t), alignof(wchar_t)));
        std::copy(label.begin(), label.end(), copy);
        return {copy, label.size()};
    }

    size_t FirstSlot(std::uint32_t hash) const { return hash & (m_slots.size() - 1); }
    size_t NextSlot(size_t slot) const { return (slot + 1) & (m_slots.size() - 1); }

    void Grow()
    {
        m_slots.assign(m_slots.size() * 2, 0);
        std::uint32_t number = 0;
        for (const Entry& entry : m_entries) {
            size_t slot = FirstSlot(entry.hash);
            while (m_slots[slot])
                slot = NextSlot(slot);
            m_slots[slot] = ++number;
        }
    }

    std::pmr::monotonic_buffer_resource m_memory;
    std::vector<Entry> m_entries;
    std::vector<std::uint32_t> m_slots;  // The number of an entry, from 1, or 0.
    size_t m_length = 0;                 // Of the text, unless labels are collapsed again.
};

// A place among the children of an item. Unlike GetNextSibling(), which searches for the item that it is given, a step
// takes the same time wherever it is made.
class Place
{
public:
    // Returns the child that stands here, null after the last one, and moves on to the next place.
    wxTreeItemId Step(const wxTreeCtrl& tree, const wxTreeItemId& parent)
    {
        return std::exchange(m_first, false) ? tree.GetFirstChild(parent, m_cookie)
                                             : tree.GetNextChild(parent, m_cookie);
    }

private:
    bool m_first = true;
    wxTreeItemIdValue m_cookie = nullptr;
};

// The walk of a subtree that expands on its way. A handler of an expansion may change the tree wherever it likes: the
// items visited are still those that GetChild() and GetNextSibling() lead to, and a deleted item is not touched.
class ExpandingWalk
{
public:
    ExpandingWalk(wxTreeCtrl& tree, const LabelSet& labels) : m_tree(tree), m_labels(labels)
    {
        m_tree.Bind(wxEVT_TREE_DELETE_ITEM, &ExpandingWalk::OnDeleteItem, this);
    }

    ~ExpandingWalk() { m_tree.Unbind(wxEVT_TREE_DELETE_ITEM, &ExpandingWalk::OnDeleteItem, this); }

    ExpandingWalk(const ExpandingWalk&) = delete;
    ExpandingWalk& operator=(const ExpandingWalk&) = delete;

    void Run(const wxTreeItemId& start)
    {
        m_path.push_back({start, Place(), Place()});
        do
            Visit();
        while (Descend() || Advance());
    }

private:
    struct Step
    {
        wxTreeItemId item;  // Null once it is deleted.
        Place here;         // Where the item was among its siblings when it was found.
        Place next;
    };

    void Visit()
    {
        const wxTreeItemId item = m_path.back().item;
        if (m_labels.count(View(m_tree.GetItemText(item))) && !IsHiddenRoot(item))
            m_tree.Expand(item);
    }

    // The toolkit keeps a hidden root expanded, and asserts when it is to be expanded again.
    bool IsHiddenRoot(const wxTreeItemId& item) const
    {
        return m_tree.HasFlag(wxTR_HIDE_ROOT) && item == m_tree.GetRootItem();
    }

    // Goes on to the first child of the last item of the path, if it has one.
    bool Descend()
    {
        const wxTreeItemId parent = m_path.back().item;
        if (!parent.IsOk() || !m_tree.ItemHasChildren(parent))
            return false;
        Step step;
        step.item = step.next.Step(m_tree, parent);
        if (!step.item.IsOk())
            return false;
        m_path.push_back(step);
        return true;
    }

    // Goes on to the next sibling of the last item of the path that has one.
    bool Advance()
    {
        for (; m_path.size() > 1; m_path.pop_back()) {
            Step& step = m_path.back();
            const wxTreeItemId parent = m_path[m_path.size() - 2].item;
            FindAgain(step, parent);
            step.here = step.next;
            step.item = step.next.Step(m_tree, parent);
            if (step.item.IsOk())
                return true;
        }
        return false;
    }

    // Mends the places of a step whose siblings have changed. Where the item itself is gone, what followed it stands
    // in its place now.
    void FindAgain(Step& step, const wxTreeItemId& parent) const
    {
        Place same = step.here;
        if (step.item.IsOk() && same.Step(m_tree, parent) == step.item)
            return;
        Place place;
        for (wxTreeItemId child = place.Step(m_tree, parent); child.IsOk(); child = place.Step(m_tree, parent)) {
            if (child == step.item) {
                step.next = place;
                return;
            }
        }
        step.next = step.here;
    }

    void OnDeleteItem(wxTreeEvent& event)
    {
        event.Skip();
        const auto deleted =
            std::find_if(m_path.begin(), m_path.end(), [&](const Step& step) { return step.item == event.GetItem(); });
        if (deleted == m_path.end())
            return;
        deleted->item.Unset();
        m_path.erase(deleted + 1, m_path.end());
    }

    wxTreeCtrl& m_tree;
    const LabelSet& m_labels;
    std::vector<Step> m_path;  // From the start to the item being visited: a deep tree must not use up the stack.
};

}  // namespace

namespace fittings {

std::wstring ExpandedLabels(const wxTreeCursor& start)
{
    wxCHECK_MSG(start.tree && start.IsOk(), std::wstring(), "invalid tree item");
    struct Level
    {
        wxTreeItemId parent;
        Place place;
    };
    const wxTreeCtrl& tree = *start.tree;
    ExpandedLabelSet labels;
    std::vector<Level> levels;
    const auto visit = [&](const wxTreeItemId& item) {
        labels.Note(View(tree.GetItemText(item)), tree.IsExpanded(item));
        if (tree.ItemHasChildren(item))
            levels.push_back({item, Place()});
    };
    visit(start.item);
    while (!levels.empty()) {
        Level& level = levels.back();
        const wxTreeItemId child = level.place.Step(tree, level.parent);
        if (child.IsOk())
            visit(child);
        else
            levels.pop_back();
    }
    return labels.TakeText();
}

void ExpandLabels(const std::wstring& text, const wxTreeCursor& start)
{
    wxCHECK_RET(start.tree && start.IsOk(), "invalid tree item");
    const LabelSet labels = SplitLabels(text);
    // Each expansion alone would lay out the whole tree again. A control that is not created cannot be frozen.
    wxWindowUpdateLocker frozen;
    if (start.tree->GetHandle())
        frozen.Lock(start.tree);
    ExpandingWalk(*start.tree, labels).Run(start.item);
}

}  // namespace fittings
