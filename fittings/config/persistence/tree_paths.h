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

/// A step of a path in a tree. Its parent is the nearest step before it whose level is one less.
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

/// Returns the steps to the expanded and selected items of a tree, and to the first item whose top is in view, in the
/// order of the tree. Includes expanded and selected items inside collapsed ones.
TreeSteps StepsOf(const wxTreeCtrl& tree);

/// Returns the steps as a text, such as "0+:|1+:Sun|2*:Earth|2+#2:Earth|3^:Moon|". The text of a step consists of its
/// level; "+" if it is expanded, "*" if it is selected, "^" if it is the first in view; "#" and the number if that is
/// not 1; ":", the label and "|". In the label, "|" and "\" have a "\" before them, and a null character is "\0".
std::wstring ToText(const TreeSteps& steps);

/// Reads a text from ToText(). Returns nothing for a text that ToText() cannot have written.
std::optional<TreeSteps> FromText(std::wstring_view text);

/// Expands the items that were expanded, and then selects those that were selected. Handlers of the expansions may add
/// and delete items.
void RestoreSteps(wxTreeCtrl& tree, const TreeSteps& steps);

/// Scrolls the item that was the first in view to the top, as far as the tree can be scrolled.
void ScrollToSteps(wxTreeCtrl& tree, const TreeSteps& steps);

}  // namespace fittings

#endif
