#ifndef FITTINGS_TREE_TREE_STATE_H_
#define FITTINGS_TREE_TREE_STATE_H_

#include <string>

#include <fittings/tree/tree_cursor.h>

// The expanded items of a subtree as one text, and back. Private to the library.

namespace fittings {

/// The labels of the expanded items from @a start downwards, each once, in ascending order, each followed by "|".
/// Of several items with one label, the last one decides.
std::wstring ExpandedLabels(const wxTreeCursor& start);

/// Expands each item from @a start downwards whose label is in @a text, parents first. Handlers of the expansions may
/// add and delete items, also those that are being visited.
void ExpandLabels(const std::wstring& text, const wxTreeCursor& start);

}  // namespace fittings

#endif
