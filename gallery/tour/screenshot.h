#ifndef FITTINGS_GALLERY_TOUR_SCREENSHOT_H_
#define FITTINGS_GALLERY_TOUR_SCREENSHOT_H_

#include <string>

struct _GtkWidget;

namespace gallery {

/// True where the pixels of the screen can be read: on an X display.
bool CanReadScreen();

/// Writes what the screen shows of a top-level window with its decorations as a PNG file, once something is drawn and
/// no longer changes. False when it never stands still, cannot be read or the file cannot be written.
bool SaveScreenshot(_GtkWidget* window, const std::string& path);

}  // namespace gallery

#endif
