#ifndef FITTINGS_CONFIG_PERSISTENCE_PLACE_WHEN_UNMAXIMIZED_H_
#define FITTINGS_CONFIG_PERSISTENCE_PLACE_WHEN_UNMAXIMIZED_H_

class wxRect;
class wxTopLevelWindow;

// Private to the library.

namespace fittings {

/// Gives a window the outer rectangle @a rect when it is unmaximised for the first time. Call this for a hidden window
/// that will be shown maximised.
///
/// A window manager remembers the rectangle of a window before it maximises the window. It cannot know the rectangle of
/// a window that is maximised from the start. When such a window is unmaximised without this call, it is too large
/// by its decorations, or it is at a place that the window manager chooses.
///
/// If the left mouse button is down when the window is unmaximised, the user may be dragging the window. The window
/// then gets only the size of @a rect, as soon as the button is released. Does nothing if GTK draws the decorations, as
/// on Wayland.
void PlaceWhenUnmaximized(wxTopLevelWindow& window, const wxRect& rect);

/// Stops what PlaceWhenUnmaximized() has started. A window that is already placed stays where it is.
void LeavePlaceWhenUnmaximized(wxTopLevelWindow& window);

}  // namespace fittings

#endif
