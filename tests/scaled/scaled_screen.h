#ifndef FITTINGS_TESTS_SCALED_SCALED_SCREEN_H_
#define FITTINGS_TESTS_SCALED_SCALED_SCREEN_H_

#include <wx/gdicmn.h>
#include <wx/image.h>

/// What the screen shows there, two of its pixels in each direction for each of the toolkit's.
wxImage GrabScaled(const wxRect& rect);

/// The screen's pixel, as 0xRRGGBB, in the middle of that one of the toolkit's.
int PixelAt(const wxPoint& place);

/// Whether each of the toolkit's pixels is one colour, wherever the first one begins: nothing is blurred, and nothing
/// drawn finer.
bool IsOfWholePixels(const wxImage& scaled);

#endif
