#ifndef FITTINGS_COLOUR_DIRECT_DRAWING_H_
#define FITTINGS_COLOUR_DIRECT_DRAWING_H_

#include <wx/dcscreen.h>

namespace fittings {

/// Returns whether a program can place its windows, draw on the screen, and draw on its windows outside paint events:
/// true on X11, false on Wayland.
inline bool CanDrawDirectly()
{
    const wxSize size = wxScreenDC().GetSize();
    return size.x > 0 && size.y > 0;
}

}  // namespace fittings

#endif
