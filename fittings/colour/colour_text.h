#ifndef FITTINGS_COLOUR_COLOUR_TEXT_H_
#define FITTINGS_COLOUR_COLOUR_TEXT_H_

class wxColourPopup;
class wxString;

namespace fittings {

/// Returns the text in the user's language; null when the platform has none.
const wchar_t* ColourText(const wchar_t* key);

/// Returns what a screen reader is to say of a popup: the hot cell while it is open, else the colour in effect, by its
/// name in the palette or its number, as "#0000FE".
wxString SpokenText(const wxColourPopup& popup);

}  // namespace fittings

#endif
