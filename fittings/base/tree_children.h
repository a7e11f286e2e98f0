#ifndef FITTINGS_BASE_TREE_CHILDREN_H_
#define FITTINGS_BASE_TREE_CHILDREN_H_

#include <utility>

#include <wx/treectrl.h>

// How the library iterates over a tree. Private to the library.

namespace fittings {

/// Iterates over the children of an item. Each step takes constant time. wxTreeCtrl::GetNextSibling() would search the
/// siblings for the item.
class TreeChildren
{
public:
    /// Returns the next child, or an invalid item after the last one. Pass the same tree and parent in each call.
    wxTreeItemId Next(const wxTreeCtrl& tree, const wxTreeItemId& parent)
    {
        return std::exchange(m_isAtStart, false) ? tree.GetFirstChild(parent, m_cookie)
                                                 : tree.GetNextChild(parent, m_cookie);
    }

private:
    bool m_isAtStart = true;
    wxTreeItemIdValue m_cookie = nullptr;
};

/// Returns whether the item is a root that is not shown. The toolkit keeps this root expanded, and asserts when a
/// program expands it.
inline bool IsHiddenRoot(const wxTreeCtrl& tree, const wxTreeItemId& item)
{
    return tree.HasFlag(wxTR_HIDE_ROOT) && item == tree.GetRootItem();
}

}  // namespace fittings

#endif
