#ifndef FITTINGS_TESTS_COLOUR_SCREEN_H_
#define FITTINGS_TESTS_COLOUR_SCREEN_H_

#include <wx/gdicmn.h>
#include <wx/image.h>

/// Returns what the user sees in that part of the screen. Reads it from the X server over a separate connection,
/// because the toolkit's screen DC answers from a copy.
wxImage GrabScreen(const wxRect& rect);

#endif
