#ifndef FITTINGS_GALLERY_PAGES_READABLE_COLOUR_H_
#define FITTINGS_GALLERY_PAGES_READABLE_COLOUR_H_

#include <wx/colour.h>

namespace gallery {

/// Returns the contrast ratio of the Web Content Accessibility Guidelines 2: from 1 for equal colours to 21 for black
/// and white.
double ContrastRatio(const wxColour& a, const wxColour& b);

/// Returns black or white, whichever is easier to read on @a background.
const wxColour& BlackOrWhiteOn(const wxColour& background);

/// Returns @a colour, made lighter or darker until its contrast ratio with @a background is at least 4.5.
wxColour ReadableOn(const wxColour& background, const wxColour& colour);

}  // namespace gallery

#endif
