#ifndef FITTINGS_TESTS_COLOUR_SCREEN_H_
#define FITTINGS_TESTS_COLOUR_SCREEN_H_

#include <wx/gdicmn.h>
#include <wx/image.h>

/// What a user sees in that part of the screen, read from the X server over a connection of its own: the toolkit's own
/// screen DC answers from a copy.
wxImage GrabScreen(const wxRect& rect);

#endif
