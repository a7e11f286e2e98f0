#ifndef FITTINGS_COLOUR_COLOUR_TEXT_H_
#define FITTINGS_COLOUR_COLOUR_TEXT_H_

namespace fittings {

/// Returns the text in the user's language; null when the platform has none.
const wchar_t* ColourText(const wchar_t* key);

}  // namespace fittings

#endif
