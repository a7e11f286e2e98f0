#include <fittings/config/persistence/tree_paths.h>

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <utility>

#include <fittings/base/tree_children.h>

using fittings::IsHiddenRoot;
using fittings::TreeChildren;

namespace {

// The deepest level that is recorded or restored. The toolkit calls some functions recursively, once for each expanded
// level: with many times more levels, these calls would overflow the stack.
constexpr std::size_t kDeepest = 10'000;

// Returns the first item whose top is in view. Restoring an item that is only partly in view would scroll the tree a
// little each time.
wxTreeItemId FirstInView(const wxTreeCtrl& tree)
{
    const int height = tree.GetClientSize().y;
    int y = 0;
    while (y < height) {
        int flags = 0;
        const wxTreeItemId item = tree.HitTest(wxPoint(1, y), flags);
        wxRect rect;
        if (!item.IsOk() || !tree.GetBoundingRect(item, rect))
            ++y;  // the line between two items belongs to neither
        else if (rect.y >= 0)
            return item;
        else
            y = std::max(y + 1, rect.GetBottom());
    }
    return {};
}

// Walks over a tree and records the steps to each expanded or selected item and to the first item in view.
class Walk
{
public:
    explicit Walk(const wxTreeCtrl& tree) : m_tree(tree)
    {
        if (tree.HasFlag(wxTR_MULTIPLE))
            tree.GetSelections(m_selected);
        else
            m_selected.push_back(tree.GetSelection());
        std::sort(m_selected.begin(), m_selected.end(), IsBefore);
        m_firstInView = FirstInView(tree);
    }

    fittings::TreeSteps Run()
    {
        Visit(m_tree.GetRootItem());
        while (!m_levels.empty()) {
            Level& level = m_levels.back();
            const wxTreeItemId child = level.children.Next(m_tree, level.item);
            if (child.IsOk())
                Visit(child);
            else
                m_levels.pop_back();
        }
        return std::move(m_steps);
    }

private:
    struct Level
    {
        wxTreeItemId item;
        TreeChildren children;
        bool isNoted;
        // NumberOf() uses these to number the item's children that have the same label. `counting` is at the child that
        // was numbered last. `counts` has the number of children with each label, up to that child.
        TreeChildren counting;
        std::unordered_map<std::wstring, std::size_t> counts;
    };

    static bool IsBefore(const wxTreeItemId& one, const wxTreeItemId& other)
    {
        return std::less<>()(one.GetID(), other.GetID());
    }

    void Visit(const wxTreeItemId& item)
    {
        const bool isExpanded = m_tree.IsExpanded(item) && !IsHiddenRoot(m_tree, item);
        const bool isSelected = std::binary_search(m_selected.begin(), m_selected.end(), item, IsBefore);
        const bool isFirstInView = item == m_firstInView;
        const bool isNoted = isExpanded || isSelected || isFirstInView;
        if (isNoted) {
            for (std::size_t level = 0; level < m_levels.size(); ++level) {
                if (!std::exchange(m_levels[level].isNoted, true))
                    Record(level, m_levels[level].item);
            }
            fittings::TreeStep& step = Record(m_levels.size(), item);
            step.isExpanded = isExpanded;
            step.isSelected = isSelected;
            step.isFirstInView = isFirstInView;
        }
        if (m_levels.size() < kDeepest && m_tree.ItemHasChildren(item))
            m_levels.push_back({item, {}, isNoted, {}, {}});
    }

    fittings::TreeStep& Record(std::size_t level, const wxTreeItemId& item)
    {
        fittings::TreeStep& step = m_steps.emplace_back();
        step.level = level;
        if (level > 0) {
            step.label = m_tree.GetItemText(item).ToStdWstring();
            step.number = NumberOf(m_levels[level - 1], item);
        }
        return step;
    }

    std::size_t NumberOf(Level& parent, const wxTreeItemId& item) const
    {
        for (;;) {
            const wxTreeItemId child = parent.counting.Next(m_tree, parent.item);
            if (!child.IsOk())
                return 1;
            const std::size_t count = ++parent.counts[m_tree.GetItemText(child).ToStdWstring()];
            if (child == item)
                return count;
        }
    }

    const wxTreeCtrl& m_tree;
    wxArrayTreeItemIds m_selected;
    wxTreeItemId m_firstInView;
    std::vector<Level> m_levels;  // the items above the one being visited
    fittings::TreeSteps m_steps;
};

// Reads a number of at most nine digits without leading zeros.
std::optional<std::size_t> TakeNumber(std::wstring_view& text)
{
    const std::size_t length = std::min(text.find_first_not_of(L"0123456789"), text.size());
    if (length == 0 || length > 9 || (length > 1 && text[0] == L'0'))
        return std::nullopt;
    std::size_t number = 0;
    for (const wchar_t digit : text.substr(0, length))
        number = 10 * number + static_cast<std::size_t>(digit - L'0');
    text.remove_prefix(length);
    return number;
}

bool TakeMark(std::wstring_view& text, wchar_t mark)
{
    const bool isThere = !text.empty() && text[0] == mark;
    if (isThere)
        text.remove_prefix(1);
    return isThere;
}

// Reads a label and the "|" after it.
std::optional<std::wstring> TakeLabel(std::wstring_view& text)
{
    std::wstring label;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == L'|') {
            text.remove_prefix(at + 1);
            return label;
        }
        if (text[at] != L'\\') {
            label += text[at];
            continue;
        }
        ++at;
        if (at == text.size() || (text[at] != L'\\' && text[at] != L'|' && text[at] != L'0'))
            return std::nullopt;
        label += text[at] == L'0' ? L'\0' : text[at];
    }
    return std::nullopt;
}

std::optional<fittings::TreeStep> TakeStep(std::wstring_view& text)
{
    fittings::TreeStep step;
    const auto level = TakeNumber(text);
    if (!level || *level > kDeepest)
        return std::nullopt;
    step.level = *level;
    step.isExpanded = TakeMark(text, L'+');
    step.isSelected = TakeMark(text, L'*');
    step.isFirstInView = TakeMark(text, L'^');
    if (TakeMark(text, L'#')) {
        const auto number = TakeNumber(text);
        if (!number || *number < 2)
            return std::nullopt;
        step.number = *number;
    }
    if (!TakeMark(text, L':'))
        return std::nullopt;
    auto label = TakeLabel(text);
    if (!label)
        return std::nullopt;
    step.label = std::move(*label);
    return step;
}

}  // namespace

namespace fittings {

TreeSteps StepsOf(const wxTreeCtrl& tree)
{
    return tree.GetRootItem().IsOk() ? Walk(tree).Run() : TreeSteps();
}

std::wstring ToText(const TreeSteps& steps)
{
    std::wstring text;
    for (const TreeStep& step : steps) {
        text += std::to_wstring(step.level);
        text += step.isExpanded ? L"+" : L"";
        text += step.isSelected ? L"*" : L"";
        text += step.isFirstInView ? L"^" : L"";
        if (step.number > 1)
            text += L"#" + std::to_wstring(step.number);
        text += L':';
        for (const wchar_t character : step.label) {
            if (character == L'|' || character == L'\\' || character == L'\0')
                text += L'\\';
            text += character == L'\0' ? L'0' : character;
        }
        text += L'|';
    }
    return text;
}

std::optional<TreeSteps> FromText(std::wstring_view text)
{
    TreeSteps steps;
    while (!text.empty()) {
        auto step = TakeStep(text);
        if (!step)
            return std::nullopt;
        // The root comes first and only once. Each other step is at most one level deeper than the step before it.
        const bool isRoot = step->level == 0;
        if (isRoot != steps.empty() || (!isRoot && step->level > steps.back().level + 1))
            return std::nullopt;
        steps.push_back(std::move(*step));
    }
    return steps;
}

}  // namespace fittings
