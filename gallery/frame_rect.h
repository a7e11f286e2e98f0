#ifndef FITTINGS_GALLERY_FRAME_RECT_H_
#define FITTINGS_GALLERY_FRAME_RECT_H_

#include <wx/gdicmn.h>

struct _GtkWidget;

namespace fittings {

/// Where a top-level window is on the screen, with its decorations.
wxRect FrameRect(_GtkWidget* window);

}  // namespace fittings

#endif
