#ifndef FITTINGS_CONFIG_FIRST_SHOWING_H_
#define FITTINGS_CONFIG_FIRST_SHOWING_H_

class wxTopLevelWindow;

namespace fittings {

/// Lets a hidden window come on the screen as soon as it is shown, and with the outer size that it has then.
///
/// The toolkit shows the first window of a kind only when the window manager has told how large its decorations are. By
/// then GTK has made the window at (0, 0), where some window managers leave it, and complains of sizes below zero;
/// others never tell, and the decorations come on top of the size. So the window is shown before the answer, and the
/// toolkit takes the decorations off its size when they are known.
///
/// Does nothing for a window that is shown already, nor on Wayland.
void ShowWithoutDelay(wxTopLevelWindow& window);

/// Lets a window come on the screen where it is now, also where the toolkit leaves the place to the window manager: it
/// does so for a position that the window has had from the start.
void KeepPlace(wxTopLevelWindow& window);

}  // namespace fittings

#endif
