#ifndef FITTINGS_GALLERY_TELL_CHANGE_H_
#define FITTINGS_GALLERY_TELL_CHANGE_H_

#include <wx/event.h>

class wxWindow;

namespace fittings {

/// Sends a command event from @a window, as the toolkit's controls do when the user changes them.
void TellChange(wxWindow& window, wxEventType type);

}  // namespace fittings

#endif
