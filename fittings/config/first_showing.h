#ifndef FITTINGS_CONFIG_FIRST_SHOWING_H_
#define FITTINGS_CONFIG_FIRST_SHOWING_H_

class wxTopLevelWindow;

namespace fittings {

/// Lets a hidden window come on the screen at the place and with the outer size that it has when it is shown.
///
/// The toolkit shows the first window of a kind only when the window manager has told how large its decorations are. By
/// then GTK has made the window at (0, 0), where some window managers leave it; others never tell, and the decorations
/// come on top of the size. So the window is shown before the answer, and the toolkit takes the decorations off its size
/// when they are known.
///
/// Does nothing for a window that is shown already, nor on Wayland.
void KeepGeometryWhenShown(wxTopLevelWindow& window);

}  // namespace fittings

#endif
