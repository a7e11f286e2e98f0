#ifndef FITTINGS_CONFIG_PERSISTENCE_TREE_PATHS_H_
#define FITTINGS_CONFIG_PERSISTENCE_TREE_PATHS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <wx/treectrl.h>

// Private to the library.

namespace fittings {

/// A step of a path in a tree. The parent of a step is the nearest step before it whose level is lower by one.
struct TreeStep
{
    std::size_t level = 0;   ///< 0 for the root.
    std::size_t number = 1;  ///< The position among the siblings with the same label, from 1.
    bool isExpanded = false;
    bool isSelected = false;
    bool isFirstInView = false;
    std::wstring label;  ///< Empty for the root.
};

using TreeSteps = std::vector<TreeStep>;

/// Returns the steps to the expanded and selected items of a tree, and to the first item whose top is in view. The
/// steps are in the order of the tree. Expanded and selected items inside collapsed items are included.
TreeSteps StepsOf(const wxTreeCtrl& tree);

/// Returns the steps as a text, such as "0+:|1+:Sun|2*:Earth|2+#2:Earth|3^:Moon|". The text of a step has these parts:
/// - the level
/// - "+" if the item is expanded, "*" if it is selected, "^" if it is the first in view
/// - "#" and the number, if the number is not 1
/// - ":", the label and "|"
///
/// In the label, "|" and "\" have a "\" before them, and a null character is "\0".
std::wstring ToText(const TreeSteps& steps);

/// Reads a text that ToText() has written. Returns none for a text of another form.
std::optional<TreeSteps> FromText(std::wstring_view text);

/// Expands the items that were expanded, and then selects those that were selected. Handlers of the expansions may add
/// and delete items.
void RestoreSteps(wxTreeCtrl& tree, const TreeSteps& steps);

/// Scrolls the item that was the first in view to the top, as far as the tree can be scrolled.
void ScrollToSteps(wxTreeCtrl& tree, const TreeSteps& steps);

}  // namespace fittings

#endif
