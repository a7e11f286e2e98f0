#ifndef FITTINGS_COLOUR_COLOUR_TEXT_H_
#define FITTINGS_COLOUR_COLOUR_TEXT_H_

class wxColour;
class wxColourPopup;
class wxString;

namespace fittings {

/// Returns the text in the user's language; null when the platform has none.
const wchar_t* ColourText(const wchar_t* key);

/// Returns the name that the palette has for a colour, else its number, as "#0000FE".
wxString ColourName(const wxColour& colour);

/// Returns what a screen reader is to say of a popup: the hot cell while it is open, else the colour in effect.
wxString SpokenText(const wxColourPopup& popup);

}  // namespace fittings

#endif
