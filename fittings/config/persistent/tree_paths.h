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

/// A step of a path in a tree: it leads down from the last step before it that is one level higher.
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

/// The steps to the items of a tree that are expanded or selected, and to the first one whose top is in view, in the
/// order in which the tree shows them. Levels that are collapsed are looked into, too.
TreeSteps StepsOf(const wxTreeCtrl& tree);

/// The steps as a text, such as "0+:|1+:Sun|2*:Earth|2#2:Earth|3^:Moon|": the level; "+" when expanded, "*" when
/// selected, "^" when the first in view; the number from 2 on; and the label, with a "\" before each "|" and "\", and
/// "\0" for a null.
std::wstring ToText(const TreeSteps& steps);

/// Reads such a text; none where ToText() cannot have written it.
std::optional<TreeSteps> FromText(std::wstring_view text);

/// Expands the items that are, and then selects those that are. Bears that the handlers of the expansions add and
/// delete items.
void RestoreSteps(wxTreeCtrl& tree, const TreeSteps& steps);

/// Makes the first item in view the topmost, as far as the tree can be scrolled.
void ScrollToSteps(wxTreeCtrl& tree, const TreeSteps& steps);

}  // namespace fittings

#endif
