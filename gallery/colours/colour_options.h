#ifndef FITTINGS_GALLERY_COLOURS_COLOUR_OPTIONS_H_
#define FITTINGS_GALLERY_COLOURS_COLOUR_OPTIONS_H_

#include <wx/colour.h>
#include <wx/string.h>

class wxColourCombo;
class wxWindow;

namespace gallery {

/// The options of a colour combo and its popup, with their default values.
struct ColourOptions
{
    bool hasAutomatic = true;
    bool hasMore = true;
    wxString automatic;  ///< Empty: the popup's own text, in the user's language.
    wxString more;       ///< Empty: the popup's own text, in the user's language.
    wxColour defaultColour{0, 0, 0};

    /// @name Options that only a class derived from wxColourPopup can set
    /// @{
    int columns = 8;
    int cellSize = 18;  ///< In pixels, margins included. The popup uses a larger size if the margins need it.
    int margin = 2;     ///< In pixels.
    /// @}

    bool readOnly = true;
    bool refresh = false;
    bool centre = true;
    bool animate = true;
    int duration = 200;  ///< In milliseconds.
};

wxColourCombo* MakeColourCombo(wxWindow* parent, const ColourOptions& options, const wxColour& colour);

}  // namespace gallery

#endif
