#ifndef FITTINGS_CONFIG_FIRST_SHOWING_H_
#define FITTINGS_CONFIG_FIRST_SHOWING_H_

#include <gdk/gdk.h>

class wxTopLevelWindow;
class wxWindow;

namespace fittings {

/// Makes a hidden window appear as soon as Show() is called, with the outer size that it has then.
///
/// The toolkit shows the first window of a kind only after the window manager has announced the size of its
/// decorations. By then GTK has made the window at (0, 0), and some window managers leave it there. GTK also warns of
/// negative sizes. Other window managers never announce the decorations: the window is then too large by their size.
/// After a call of this function, the window appears before the announcement. The toolkit subtracts the decorations
/// from the window's size as soon as they are announced.
///
/// Does nothing for a child window or a window that is already shown, and nothing on Wayland.
void ShowWithoutDelay(wxWindow& window);

/// Makes a window appear at the position that it has now. The toolkit passes a position to GTK only when the position
/// changes. Without this call, the window manager would therefore place a window that has never been moved.
void KeepPlace(wxTopLevelWindow& window);

/// Returns whether @a event is the one by which the window manager announces the size of a window's decorations.
bool TellsDecorations(const GdkEvent& event);

}  // namespace fittings

#endif
