#ifndef FITTINGS_COLOUR_DIRECT_DRAWING_H_
#define FITTINGS_COLOUR_DIRECT_DRAWING_H_

#include <wx/dcscreen.h>

namespace fittings {

/// Whether a program can draw on the screen, and on its windows between paint events, and can place windows: on X11 it
/// can, on Wayland it cannot.
inline bool CanDrawDirectly()
{
    const wxSize size = wxScreenDC().GetSize();
    return size.x > 0 && size.y > 0;
}

}  // namespace fittings

#endif
