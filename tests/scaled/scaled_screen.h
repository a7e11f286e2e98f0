#ifndef FITTINGS_TESTS_SCALED_SCALED_SCREEN_H_
#define FITTINGS_TESTS_SCALED_SCALED_SCREEN_H_

#include <wx/gdicmn.h>
#include <wx/image.h>

/// Returns a part of the screen, with two screen pixels in each direction for each of the toolkit's pixels.
wxImage GrabScaled(const wxRect& rect);

/// Returns the lower right one of the four screen pixels of one of the toolkit's pixels, as 0xRRGGBB.
int PixelAt(const wxPoint& place);

/// Returns whether each of the toolkit's pixels has one colour. The first of these pixels may be cut at the edge of the
/// image. Returns false for a blurred or finer image.
bool IsOfWholePixels(const wxImage& scaled);

#endif
