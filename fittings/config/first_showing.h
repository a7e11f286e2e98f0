#ifndef FITTINGS_CONFIG_FIRST_SHOWING_H_
#define FITTINGS_CONFIG_FIRST_SHOWING_H_

#include <gdk/gdk.h>

class wxTopLevelWindow;
class wxWindow;

namespace fittings {

/// Makes a hidden window appear as soon as Show() is called, with the outer size that it has at that moment.
///
/// Without this call, the toolkit shows the first window of a style only after the window manager has announced the
/// size of the decorations. This delay has faults:
/// - GTK makes the window at (0, 0) before the announcement, and some window managers leave the window there.
/// - GTK warns of negative sizes.
/// - If there is no announcement before the window is shown, the window is too large by the size of the decorations.
///
/// With this call, the window appears before the announcement. The toolkit subtracts the decorations from the window's
/// size as soon as they are announced.
///
/// Does nothing for a child window, for a window that is already shown, and on Wayland.
void ShowWithoutDelay(wxWindow& window);

/// Makes a window appear at the position that it has now. The toolkit passes a position to GTK only when the position
/// changes. Without this call, the window manager would therefore choose the position of a window that has never been
/// moved.
void KeepPlace(wxTopLevelWindow& window);

/// Returns whether @a event is the event by which the window manager announces the size of a window's decorations.
bool TellsDecorations(const GdkEvent& event);

}  // namespace fittings

#endif
