#ifndef FITTINGS_CONFIG_AUI_LAYOUT_H_
#define FITTINGS_CONFIG_AUI_LAYOUT_H_

#include <string_view>

namespace fittings {

/// Whether wxAuiManager::SavePerspective() can have written the text, and LoadPerspective() lays it out at once.
///
/// False for a text that is cut, lacks a field or has a wrong number in one; and for a damaged text for which the
/// toolkit would count rows for minutes, or divide by zero.
///
/// A ";" in a caption is fine here, but LoadPerspective() asserts on it and cuts the caption.
bool IsAuiLayout(std::wstring_view text);

}  // namespace fittings

#endif
