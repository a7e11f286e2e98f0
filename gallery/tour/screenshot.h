#ifndef FITTINGS_GALLERY_TOUR_SCREENSHOT_H_
#define FITTINGS_GALLERY_TOUR_SCREENSHOT_H_

#include <string>

struct _GtkWidget;

namespace gallery {

/// Returns whether the pixels of the screen can be read: true on an X display.
bool CanReadScreen();

/// Writes a picture of a top-level window and its decorations to a PNG file. Waits until the window is drawn and no
/// longer changes, then reads the screen. Returns false if the window keeps changing, if the screen cannot be read, or
/// if the file cannot be written.
bool SaveScreenshot(_GtkWidget* window, const std::string& path);

}  // namespace gallery

#endif
