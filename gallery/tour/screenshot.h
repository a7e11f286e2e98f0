#ifndef FITTINGS_GALLERY_TOUR_SCREENSHOT_H_
#define FITTINGS_GALLERY_TOUR_SCREENSHOT_H_

#include <string>

struct _GtkWidget;

namespace gallery {

/// Returns whether the pixels of the screen can be read: true on an X display.
bool CanReadScreen();

/// Writes a picture of a top-level window and its decorations to a PNG file. Takes the picture from the screen, once
/// the window is drawn and no longer changes. Returns false when the window keeps changing, the screen cannot be read
/// or the file cannot be written.
bool SaveScreenshot(_GtkWidget* window, const std::string& path);

}  // namespace gallery

#endif
