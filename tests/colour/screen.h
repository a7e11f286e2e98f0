#ifndef FITTINGS_TESTS_COLOUR_SCREEN_H_
#define FITTINGS_TESTS_COLOUR_SCREEN_H_

#include <wx/gdicmn.h>
#include <wx/image.h>

/// Returns what the user sees in the part @a rect of the screen. Reads the pixels from the X server over a separate
/// connection, because wxScreenDC can return old pixels.
wxImage GrabScreen(const wxRect& rect);

/// Returns a pixel of an image as 0xRRGGBB.
int PixelOf(const wxImage& image, int x, int y);

/// Returns a pixel of the screen as 0xRRGGBB.
int PixelOfScreen(const wxPoint& at);

#endif
