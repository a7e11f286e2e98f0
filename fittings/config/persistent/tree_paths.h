#ifndef FITTINGS_CONFIG_PERSISTENT_TREE_PATHS_H_
#define FITTINGS_CONFIG_PERSISTENT_TREE_PATHS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <wx/treectrl.h>

// Private to the library.

namespace fittings {

/// A step of a path in a tree. Its parent is the nearest step before it that is one level higher.
struct TreeStep
{
    std::size_t level = 0;   ///< 0 for the root.
    std::size_t number = 1;  ///< Among the siblings with the same label, from 1.
    bool isExpanded = false;
    bool isSelected = false;
    bool isFirstInView = false;
    std::wstring label;  ///< Empty for the root.
};

using TreeSteps = std::vector<TreeStep>;

/// Returns the steps to the expanded and selected items of a tree, and to the first one whose top is in view, in the
/// order of the tree. Includes items inside collapsed levels.
TreeSteps StepsOf(const wxTreeCtrl& tree);

/// Returns the steps as a text, such as "0+:|1+:Sun|2*:Earth|2#2:Earth|3^:Moon|": the level; "+" when expanded, "*"
/// when selected, "^" when the first in view; "#" and the number from 2 on; and the label, with a "\" before each "|"
/// and "\", and "\0" for a null.
std::wstring ToText(const TreeSteps& steps);

/// Reads such a text; returns none when ToText() cannot have written it.
std::optional<TreeSteps> FromText(std::wstring_view text);

/// Expands the items that were expanded, and then selects those that were selected. Handlers of the expansions may add
/// and delete items.
void RestoreSteps(wxTreeCtrl& tree, const TreeSteps& steps);

/// Scrolls the item that was the first in view to the top, as far as the tree can be scrolled.
void ScrollToSteps(wxTreeCtrl& tree, const TreeSteps& steps);

}  // namespace fittings

#endif
