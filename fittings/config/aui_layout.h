#ifndef FITTINGS_CONFIG_AUI_LAYOUT_H_
#define FITTINGS_CONFIG_AUI_LAYOUT_H_

#include <string_view>

namespace fittings {

/// Returns true if wxAuiManager::SavePerspective() can have written the text and LoadPerspective() can lay it out
/// quickly.
///
/// False for a text that is cut off, lacks a field or has an invalid number. Also false for a text with which the
/// toolkit would count rows for minutes or divide by zero.
///
/// A caption such as "a;b" is accepted, although LoadPerspective() asserts on the ";" and cuts the caption there.
bool IsAuiLayout(std::wstring_view text);

}  // namespace fittings

#endif
