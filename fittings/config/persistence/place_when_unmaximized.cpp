#include <fittings/config/persistence/place_when_unmaximized.h>

#include <memory>

#include <gtk/gtk.h>
#include <wx/timer.h>
#include <wx/toplevel.h>
#include <wx/utils.h>
#include <wx/weakref.h>

#include <gdk/gdkx.h>

#include <fittings/config/first_showing.h>
#include <fittings/config/window_geometry.h>

namespace {

constexpr char kData[] = "fittings-place-when-unmaximized";

// How long the place and size are corrected after the window is unmaximised, in microseconds. The window manager may
// announce the decorations several times. When an announcement changes their size, the window's size must be set
// again.
constexpr gint64 kCorrected = 2 * G_TIME_SPAN_SECOND;

// How often to check whether the mouse button is released, in milliseconds.
constexpr int kReleaseInterval = 50;

// Watches a window until the window is unmaximised, and then sets its place and size. Owned by the window's widget.
class PlaceKeeper
{
public:
    PlaceKeeper(wxTopLevelWindow& window, const wxRect& rect) : m_window(&window), m_rect(rect)
    {
        m_release.Bind(wxEVT_TIMER, &PlaceKeeper::OnReleaseTimer, this);
    }

    void Watch(GtkWidget* widget);

private:
    static void AfterEvent(GtkWidget* widget, GdkEvent* event, PlaceKeeper* keeper);

    bool IsDoneAfter(const GdkEvent& event);
    void OnReleaseTimer(wxTimerEvent& event);
    void StartPlacing();
    void Place();

    const wxWeakRef<wxTopLevelWindow> m_window;
    const wxRect m_rect;
    bool m_isOnScreen = false;
    bool m_isDragged = false;
    wxTimer m_release;      // Runs until the user releases the mouse button.
    wxSize m_requested;     // The size requested last, without decorations; 0 x 0 until the window is unmaximised.
    gint64 m_deadline = 0;  // When the corrections end, in monotonic time; 0 before they begin.
};

bool DrawsItsDecorations(GtkWidget* widget)
{
    return gtk_style_context_has_class(gtk_widget_get_style_context(widget), GTK_STYLE_CLASS_CSD);
}

void StopWatching(GtkWidget* widget)
{
    if (gpointer const keeper = g_object_get_data(G_OBJECT(widget), kData)) {
        g_signal_handlers_disconnect_by_data(widget, keeper);
        g_object_set_data(G_OBJECT(widget), kData, nullptr);
    }
}

void PlaceKeeper::Watch(GtkWidget* widget)
{
    g_signal_connect(widget, "event-after", G_CALLBACK(&AfterEvent), this);
}

void PlaceKeeper::AfterEvent(GtkWidget* widget, GdkEvent* event, PlaceKeeper* keeper)
{
    if (keeper->m_window && !keeper->IsDoneAfter(*event))
        return;
    StopWatching(widget);
}

bool ChangesMaximized(const GdkEvent& event)
{
    return event.type == GDK_WINDOW_STATE && (event.window_state.changed_mask & GDK_WINDOW_STATE_MAXIMIZED);
}

// Places the window if the event requires it. Returns true when no more events need to be watched. Ignores all events
// until the window is on the screen: a window manager may unmaximise a window for a moment before it shows the window
// maximised.
bool PlaceKeeper::IsDoneAfter(const GdkEvent& event)
{
    if (event.type == GDK_MAP)
        m_isOnScreen = true;
    if (!m_isOnScreen)
        return false;
    if (ChangesMaximized(event) && m_window->IsMaximized()) {
        m_deadline = 0;
        m_requested = wxSize();
    } else if (ChangesMaximized(event) && m_window->IsShown()) {
        // The condition IsShown() excludes a window that is being hidden. Hiding a window ends its maximised state, but
        // only until the window is shown again.
        if (DrawsItsDecorations(m_window->GetHandle()))
            return true;
        // The toolkit computes positions with a copy of the decorations' size. It does not update the copy while the
        // window is maximised. This call updates the copy.
        m_window->GTKUpdateDecorSize(m_window->m_decorSize);
        m_isDragged = wxGetMouseState().LeftIsDown();
        if (m_isDragged)
            m_release.Start(kReleaseInterval);
        else
            StartPlacing();
    } else if (m_deadline != 0 && fittings::TellsDecorations(event)) {
        Place();
    }
    return m_deadline != 0 && g_get_monotonic_time() > m_deadline;
}

void PlaceKeeper::OnReleaseTimer(wxTimerEvent& /*event*/)
{
    if (!m_window || wxGetMouseState().LeftIsDown())
        return;
    m_release.Stop();
    if (!m_window->IsMaximized())
        StartPlacing();
}

void PlaceKeeper::StartPlacing()
{
    m_deadline = g_get_monotonic_time() + kCorrected;
    Place();
}

// Asks the window manager for the place and the size. Calls GDK and not gtk_window_resize(): GTK does not send a
// request that equals the last one that GTK sent, even if the window manager did not comply with that one.
void PlaceKeeper::Place()
{
    const wxSize decorations = m_window->GetSize() - fittings::SizeWithoutDecorations(*m_window);
    const wxSize size = m_rect.GetSize() - decorations;
    if (size == m_requested)
        return;
    m_requested = size;
    GdkWindow* const window = gtk_widget_get_window(m_window->GetHandle());
    GdkRectangle now;
    gdk_window_get_frame_extents(window, &now);
    const wxPoint position = m_isDragged ? wxPoint(now.x, now.y) : m_rect.GetPosition();
    gdk_window_move_resize(window, position.x, position.y, size.x, size.y);
}

}  // namespace

void fittings::PlaceWhenUnmaximized(wxTopLevelWindow& window, const wxRect& rect)
{
    GtkWidget* const widget = window.GetHandle();
    if (!widget || window.IsShown() || !GDK_IS_X11_DISPLAY(gtk_widget_get_display(widget)))
        return;
    StopWatching(widget);
    auto keeper = std::make_unique<PlaceKeeper>(window, rect);
    keeper->Watch(widget);
    g_object_set_data_full(G_OBJECT(widget), kData, keeper.release(),
                           [](gpointer data) { delete static_cast<PlaceKeeper*>(data); });
}

void fittings::LeavePlaceWhenUnmaximized(wxTopLevelWindow& window)
{
    if (window.GetHandle())
        StopWatching(window.GetHandle());
}
