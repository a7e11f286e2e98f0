#ifndef FITTINGS_TREE_TREE_STATE_H_
#define FITTINGS_TREE_TREE_STATE_H_

#include <string>

#include <fittings/tree/tree_cursor.h>

// Stores the expanded items of a subtree in one text, and restores them from that text. Private to the library.

namespace fittings {

/// Returns the labels of those items that are expanded, among @a start and all items below it. The labels are sorted.
/// Each label occurs once, and "|" follows it. If several items have the same label, the text contains the label only
/// if the last of these items is expanded.
std::wstring ExpandedLabels(const wxTreeCursor& start);

/// Expands each item from @a start downwards if its label is in @a text, parents first. During an expansion, event
/// handlers may add and delete items, including the item that is being expanded.
void ExpandLabels(const std::wstring& text, const wxTreeCursor& start);

}  // namespace fittings

#endif
