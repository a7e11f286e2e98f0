#ifndef FITTINGS_CONFIG_WINDOW_GEOMETRY_H_
#define FITTINGS_CONFIG_WINDOW_GEOMETRY_H_

#include <wx/gdicmn.h>

class wxTopLevelWindow;
class wxWindow;

// Restores the stored geometry of a window. Private to the library.

namespace fittings {

/// Returns a stored coordinate or size as the nearest one that an X display can have.
int ToPixels(long stored);

/// Sets a window's geometry, and fits the window into the work area of the display that shows most of it. A window that
/// extends beyond the work area is clipped to it. A window that is wholly outside the work area is moved into it.
///
/// A window that is on no display is first moved to (0, 0). A geometry with a width or height of 10 or less is not set.
///
/// Returns false when the window is on no display at (0, 0) either, and leaves it there.
bool RestoreGeometry(wxWindow& window, const wxRect& stored);

/// Returns true when a rectangle covers the whole work area of a display, as that of a maximised window does.
bool CoversWorkArea(const wxRect& rect);

/// Returns a window's size without the decorations of the window manager.
wxSize SizeWithoutDecorations(const wxTopLevelWindow& window);

}  // namespace fittings

#endif
