#include <fittings/tree/tree_state.h>

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include <wx/wupdlock.h>

namespace {

constexpr wchar_t SEPARATOR = L'|';

using LabelSet = std::unordered_set<std::wstring_view>;

// The labels of a state text. They point into it. What follows the last separator is no label.
LabelSet SplitLabels(std::wstring_view text)
{
    LabelSet labels;
    for (size_t end = text.find(SEPARATOR); end != text.npos; end = text.find(SEPARATOR)) {
        labels.insert(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return labels;
}

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
        const wxString label = m_tree.GetItemText(item);
        if (m_labels.count(std::wstring_view(label.wc_str(), label.length())))
            m_tree.Expand(item);
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
    std::unordered_map<std::wstring, bool> expanded;
    const wxTreeCtrl& tree = *start.tree;
    struct Level
    {
        wxTreeItemId parent;
        Place place;
    };
    std::vector<Level> levels;
    const auto visit = [&](const wxTreeItemId& item) {
        expanded.insert_or_assign(tree.GetItemText(item).ToStdWstring(), tree.IsExpanded(item));
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
    std::vector<std::wstring_view> labels;
    for (const auto& [label, isExpanded] : expanded) {
        if (isExpanded)
            labels.push_back(label);
    }
    std::sort(labels.begin(), labels.end());
    std::wstring text;
    for (const std::wstring_view label : labels)
        text.append(label).push_back(SEPARATOR);
    return text;
}

void ExpandLabels(const std::wstring& text, const wxTreeCursor& start)
{
    wxCHECK_RET(start.tree && start.IsOk(), "invalid tree item");
    const LabelSet labels = SplitLabels(text);
    // Each expansion alone would lay out the whole tree again.
    const wxWindowUpdateLocker frozen(start.tree);
    ExpandingWalk(*start.tree, labels).Run(start.item);
}

}  // namespace fittings
