#include "tell_change.h"

#include <wx/window.h>

namespace fittings {

void TellChange(wxWindow& window, wxEventType type)
{
    wxCommandEvent event(type, window.GetId());
    event.SetEventObject(&window);
    window.ProcessWindowEvent(event);
}

}  // namespace fittings
