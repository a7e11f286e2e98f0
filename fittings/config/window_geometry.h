#ifndef FITTINGS_CONFIG_WINDOW_GEOMETRY_H_
#define FITTINGS_CONFIG_WINDOW_GEOMETRY_H_

#include <wx/gdicmn.h>

class wxWindow;

// How a window comes back to a stored geometry, whoever has stored it. Private to the library.

namespace fittings {

/// Returns a stored coordinate or size as the nearest one that an X display can have.
int ToPixels(long stored);

/// Gives a window a geometry and brings it into the work area of the display that shows most of it; from off every
/// display it comes to the first. A geometry with a width or height of 10 or less is not given to it.
///
/// Returns false, and leaves the window at (0, 0), when it is on no display even there.
bool RestoreGeometry(wxWindow& window, const wxRect& stored);

/// Whether a rectangle covers the whole work area of a display, as that of a maximised window does.
bool CoversWorkArea(const wxRect& rect);

}  // namespace fittings

#endif
