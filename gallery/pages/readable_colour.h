#ifndef FITTINGS_GALLERY_PAGES_READABLE_COLOUR_H_
#define FITTINGS_GALLERY_PAGES_READABLE_COLOUR_H_

#include <wx/colour.h>

namespace gallery {

/// The ratio that the Web Content Accessibility Guidelines 2 define: 1 of equal colours to 21 of black and white.
double ContrastRatio(const wxColour& a, const wxColour& b);

/// Returns black or white, whichever is the easier to read on @a background.
const wxColour& BlackOrWhiteOn(const wxColour& background);

/// Returns @a colour, or as little lighter or darker a one as can be read on @a background: with a contrast ratio of
/// 4.5.
wxColour ReadableOn(const wxColour& background, const wxColour& colour);

}  // namespace gallery

#endif
