#include <fittings/config/persistence/window_record.h>

#include <gtk/gtk.h>
#include <wx/event.h>
#include <wx/toplevel.h>

#include <fittings/config/persistence/place_when_unmaximized.h>
#include <fittings/config/window_geometry.h>

namespace {

// How long a place or size that the window manager has set must last before it is recorded, in milliseconds. A window
// manager that maximises a window moves and sizes the window before it reports the maximised state.
constexpr int kSettled = 500;

// Returns whether the program, and not the window manager, has moved or sized the window.
bool IsSetByProgram(const wxTopLevelWindow& window, const wxEvent& event)
{
    if (event.GetEventType() == wxEVT_MOVE) {
        const std::unique_ptr<GdkEvent, decltype(&gdk_event_free)> current(gtk_get_current_event(), &gdk_event_free);
        return !current || (current->type != GDK_CONFIGURE && current->type != GDK_PROPERTY_NOTIFY);
    }
    GtkWidget* const widget = window.GetHandle();
    return fittings::SizeWithoutDecorations(window) !=
           wxSize(gtk_widget_get_allocated_width(widget), gtk_widget_get_allocated_height(widget));
}

}  // namespace

namespace fittings {

std::shared_ptr<WindowRecord> WindowRecord::Attach(wxWindow& window, std::function<void()> atEnd)
{
    auto record = std::make_shared<WindowRecord>(std::move(atEnd));
    record->m_self = record;
    // The handler owns the record. A window destroys its handlers last, after its children.
    window.Bind(wxEVT_DESTROY, [record](wxWindowDestroyEvent& event) { event.Skip(); });
    return record;
}

void WindowRecord::Follow(wxTopLevelWindow& window)
{
    if (m_normal)
        return;
    m_normal = window.GetRect();
    const auto note = [record = m_self, &window](wxEvent& event) {
        event.Skip();
        const auto self = record.lock();
        if (self && IsSetByProgram(window, event))
            self->RecordPlaceOfProgram(window, event);
        else if (self)
            self->m_settling.StartOnce(kSettled);
    };
    m_settling.Bind(wxEVT_TIMER, [this, &window](wxTimerEvent&) { RecordPlace(window); });
    window.Bind(wxEVT_SIZE, note);
    window.Bind(wxEVT_MOVE, note);
    window.Bind(wxEVT_SHOW, [record = m_self, &window](wxShowEvent& event) {
        event.Skip();
        const auto self = record.lock();
        if (self && event.GetEventObject() == &window)
            self->m_wasMaximized = !event.IsShown() && window.IsMaximized();
    });
}

void WindowRecord::RecordPlaceOfProgram(wxTopLevelWindow& window, const wxEvent& event)
{
    const bool isChanged = event.GetEventType() == wxEVT_MOVE ? window.GetPosition() != m_normal->GetPosition()
                                                              : window.GetSize() != m_normal->GetSize();
    if (isChanged)
        LeavePlaceWhenUnmaximized(window);
    RecordPlace(window);
}

void WindowRecord::RecordPlace(const wxTopLevelWindow& window)
{
    // Do not record a rectangle that covers the work area: the size event of a window that is being maximised may come
    // before its maximise event.
    const wxRect rect = window.GetRect();
    if (window.IsShown() && !IsOutOfItsPlace(window) && !CoversWorkArea(rect))
        m_normal = rect;
}

bool WindowRecord::IsMaximized(const wxTopLevelWindow& window) const
{
    return window.IsMaximized() || m_wasMaximized;
}

bool WindowRecord::IsOutOfItsPlace(const wxTopLevelWindow& window) const
{
    return IsMaximized(window) || window.IsFullScreen() || window.IsIconized();
}

}  // namespace fittings
