#include <fittings/colour/click_watch.h>

#include <wx/event.h>
#include <wx/weakref.h>
#include <wx/window.h>

namespace fittings {

void ClickWatch::Start()
{
    if (!std::exchange(m_started, true))
        wxEvtHandler::AddFilter(this);
}

void ClickWatch::Stop()
{
    if (std::exchange(m_started, false))
        wxEvtHandler::RemoveFilter(this);
}

int ClickWatch::FilterEvent(wxEvent& event)
{
    const auto* const mouse = dynamic_cast<wxMouseEvent*>(&event);
    if (!mouse || !(mouse->ButtonDown() || mouse->ButtonDClick()))
        return Event_Skip;
    const wxWeakRef<wxWindow> clicked(dynamic_cast<wxWindow*>(event.GetEventObject()));
    if (!clicked || clicked.get() == &m_owner)
        return Event_Skip;
    if (mouse->GetButton() == wxMOUSE_BTN_LEFT) {
        const wxMouseEvent click(*mouse);
        // Call a copy: the callback may stop the watch and destroy the control that owns the watch.
        const std::function<void()> onClick = m_onClick;
        onClick();
        // Pass the click on, as the toolkit does with a click that dismisses a popup.
        if (clicked)
            wxPostEvent(clicked->GetEventHandler(), click);
    }
    return Event_Processed;
}

}  // namespace fittings
