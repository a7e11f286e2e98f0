#ifndef FITTINGS_GALLERY_PAGES_WINDOW_HELPERS_H_
#define FITTINGS_GALLERY_PAGES_WINDOW_HELPERS_H_

#include <wx/event.h>
#include <wx/gdicmn.h>

class wxString;
class wxWindow;
struct _GtkWidget;

namespace gallery {

/// Gives a control of the toolkit a name for assistive technologies. Needed if no static text precedes the control.
void SetAccessibleName(wxWindow* control, const wxString& name);

/// Returns the rectangle of a top-level window on the screen, decorations included.
wxRect FrameRect(_GtkWidget* window);

/// Sends a command event from @a window, as the toolkit's controls do when the user changes them.
void TellChange(wxWindow& window, wxEventType type);

}  // namespace gallery

#endif
