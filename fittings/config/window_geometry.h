#ifndef FITTINGS_CONFIG_WINDOW_GEOMETRY_H_
#define FITTINGS_CONFIG_WINDOW_GEOMETRY_H_

#include <wx/gdicmn.h>

class wxTopLevelWindow;
class wxWindow;

// Restores the stored geometry of a window. Private to the library.

namespace fittings {

/// Returns a stored coordinate or size, limited to the numbers that an X display can have.
int ToPixels(long stored);

/// Sets a window's geometry, and fits the window into the work area of the display that shows most of it. If only a
/// part of the window lies in the work area, the window gets the place and size of that part. A window that is wholly
/// outside the work area is moved into it.
///
/// A window that is on no display is first moved to (0, 0). A geometry with a width or height of 10 or less is not set.
///
/// Returns false if the window is on no display even at (0, 0). The window then stays there.
bool RestoreGeometry(wxWindow& window, const wxRect& stored);

/// Returns true when a rectangle covers the whole work area of a display, as the rectangle of a maximised window does.
bool CoversWorkArea(const wxRect& rect);

/// Returns a window's size without the decorations of the window manager.
wxSize SizeWithoutDecorations(const wxTopLevelWindow& window);

}  // namespace fittings

#endif
