#include <fittings/colour/click_watch.h>

#include <gtk/gtk.h>
#include <wx/event.h>
#include <wx/window.h>

namespace fittings {

namespace {

GdkSeat* PointerOf(GtkWidget* widget)
{
    return gdk_display_get_default_seat(gtk_widget_get_display(widget));
}

// Handles the clicks on other windows of the program. GTK sends them to the widget with the grab, and the toolkit
// ignores them there.
gboolean OnPress(GtkWidget* owner, GdkEventButton* press, void* watch)
{
    GtkWidget* const clicked = gtk_get_event_widget(reinterpret_cast<GdkEvent*>(press));
    if (clicked && (clicked == owner || gtk_widget_is_ancestor(clicked, owner)))
        return false;
    static_cast<ClickWatch*>(watch)->Click();
    return true;
}

}  // namespace

void ClickWatch::Start()
{
    if (std::exchange(m_started, true))
        return;
    wxEvtHandler::AddFilter(this);
    GtkWidget* const widget = m_owner.GetHandle();
    m_handler = g_signal_connect(widget, "button-press-event", G_CALLBACK(OnPress), this);
    // GTK's grab takes the clicks on the windows of this program. The display's grab takes the clicks on title bars and
    // other programs.
    gtk_grab_add(widget);
    if (gtk_widget_get_mapped(widget))
        gdk_seat_grab(PointerOf(widget), gtk_widget_get_window(widget), GDK_SEAT_CAPABILITY_ALL_POINTING, true, nullptr,
                      nullptr, nullptr, nullptr);
}

void ClickWatch::Stop()
{
    if (!std::exchange(m_started, false))
        return;
    wxEvtHandler::RemoveFilter(this);
    GtkWidget* const widget = m_owner.GetHandle();
    gdk_seat_ungrab(PointerOf(widget));
    gtk_grab_remove(widget);
    g_signal_handler_disconnect(widget, m_handler);
}

int ClickWatch::FilterEvent(wxEvent& event)
{
    const auto* const mouse = dynamic_cast<wxMouseEvent*>(&event);
    if (!mouse)
        return Event_Skip;
    if (mouse->GetWheelRotation())
        return Event_Processed;
    // Check the position too: the toolkit reports clicks outside the program to the owner.
    const bool isOnOwner = event.GetEventObject() == &m_owner && m_owner.GetClientRect().Contains(mouse->GetPosition());
    if (isOnOwner || !(mouse->ButtonDown() || mouse->ButtonDClick()))
        return Event_Skip;
    Click();
    return Event_Processed;
}

void ClickWatch::Click() const
{
    // Call a copy: the callback may stop the watch and destroy the control that owns the watch.
    const std::function<void()> onClick = m_onClick;
    onClick();
}

}  // namespace fittings
