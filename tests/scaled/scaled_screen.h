#ifndef FITTINGS_TESTS_SCALED_SCALED_SCREEN_H_
#define FITTINGS_TESTS_SCALED_SCALED_SCREEN_H_

#include <wx/gdicmn.h>
#include <wx/image.h>

/// Returns the part of the screen at @a rect, which is in the toolkit's pixels. The image is in screen pixels: each of
/// the toolkit's pixels is two of them wide and two high.
wxImage GrabScaled(const wxRect& rect);

/// Returns the colour of the toolkit's pixel at @a place, as 0xRRGGBB. This pixel covers four screen pixels: the colour
/// is that of the lower right one.
int PixelAt(const wxPoint& place);

/// Returns whether each of the toolkit's pixels has one colour. The edges of the image may cut through such pixels.
/// Returns false for a blurred or finer image.
bool IsOfWholePixels(const wxImage& scaled);

#endif
