#ifndef FITTINGS_TESTS_COLOUR_SCREEN_H_
#define FITTINGS_TESTS_COLOUR_SCREEN_H_

#include <wx/gdicmn.h>
#include <wx/image.h>

/// Returns what the user sees in the part @a rect of the screen. Reads the pixels from the X server over a separate
/// connection, because wxScreenDC can return old pixels.
wxImage GrabScreen(const wxRect& rect);

#endif
