#ifndef FITTINGS_CONFIG_FIRST_SHOWING_H_
#define FITTINGS_CONFIG_FIRST_SHOWING_H_

class wxTopLevelWindow;

namespace fittings {

/// Makes a hidden window appear as soon as it is shown, with the outer size that it has then.
///
/// The toolkit shows the first window of a kind only after the window manager has announced the size of its
/// decorations. By then GTK has made the window at (0, 0), where some window managers leave it, and warns of negative
/// sizes. Other window managers never announce them, and the decorations enlarge the window. So the window is shown
/// before the answer, and the toolkit subtracts the decorations from its size when they are known.
///
/// Does nothing for a window that is already shown, and nothing on Wayland.
void ShowWithoutDelay(wxTopLevelWindow& window);

/// Makes a window appear at its present position. Without this, the toolkit leaves the place to the window manager if
/// the window has always had this position.
void KeepPlace(wxTopLevelWindow& window);

}  // namespace fittings

#endif
