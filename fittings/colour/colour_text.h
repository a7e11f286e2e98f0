#ifndef FITTINGS_COLOUR_COLOUR_TEXT_H_
#define FITTINGS_COLOUR_COLOUR_TEXT_H_

class wxColourPopup;
class wxString;

namespace fittings {

/// Returns the text for @a key in the user's language; null if the platform library has no such text.
const wchar_t* ColourText(const wchar_t* key);

/// Returns the text that a screen reader announces for a popup: the text of the hot cell, or the colour in effect if
/// the popup is closed or no cell is hot. The text for that colour is its name in the palette; if it has none, its
/// number, such as "#0000FE".
wxString SpokenText(const wxColourPopup& popup);

}  // namespace fittings

#endif
