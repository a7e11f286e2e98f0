#include <fittings/config/first_showing.h>

#include <memory>
#include <optional>

#include <gtk/gtk.h>
#include <wx/toplevel.h>
#include <wx/weakref.h>

#include <gdk/gdkx.h>

#include <fittings/config/window_geometry.h>

namespace {

using Window = wxWeakRef<wxTopLevelWindow>;

constexpr char kData[] = "fittings-first-showing";

// Watches a window until it is on the screen for the first time. Owned by the window's widget.
class FirstShowing
{
public:
    explicit FirstShowing(wxTopLevelWindow& window) : m_window(&window) {}

    void Watch(GtkWidget* widget);

    // Makes the window keep its place. Otherwise the window manager chooses the place.
    void KeepPlace() { m_keepsPlace = true; }

private:
    static gboolean ShowNow(gpointer data);
    static void OnRealize(GtkWidget* widget, FirstShowing* showing);
    static gboolean OnEvent(GtkWidget* widget, GdkEvent* event, FirstShowing* showing);
    static void AfterEvent(GtkWidget* widget, GdkEvent* event, FirstShowing* showing);

    const Window m_window;
    bool m_keepsPlace = false;
    std::optional<wxPoint> m_place;  // the position when the window was shown, if m_keepsPlace
    wxSize m_size;
};

template <typename T>
void Delete(gpointer data)
{
    const std::unique_ptr<T> owned(static_cast<T*>(data));
}

FirstShowing* ShowingOf(GtkWidget* widget)
{
    return static_cast<FirstShowing*>(g_object_get_data(G_OBJECT(widget), kData));
}

void FirstShowing::Watch(GtkWidget* widget)
{
    g_signal_connect(widget, "realize", G_CALLBACK(&OnRealize), this);
    g_signal_connect(widget, "event", G_CALLBACK(&OnEvent), this);
    g_signal_connect(widget, "event-after", G_CALLBACK(&AfterEvent), this);
}

// Shows the widget of a window on which Show() was called. The toolkit already counts such a window as shown.
gboolean FirstShowing::ShowNow(gpointer data)
{
    const Window& window = *static_cast<Window*>(data);
    if (window && window->IsShown()) {
        FirstShowing* const showing = ShowingOf(window->GetHandle());
        if (showing && showing->m_keepsPlace)
            showing->m_place = window->GetPosition();
        gtk_widget_show(window->GetHandle());
    }
    return G_SOURCE_REMOVE;
}

// Called before the toolkit asks the window manager for the size of the decorations. The idle handler shows the window
// after this request, but before the toolkit reads the answer.
void FirstShowing::OnRealize(GtkWidget* /*widget*/, FirstShowing* showing)
{
    if (showing->m_window)
        g_idle_add_full(G_PRIORITY_HIGH, &ShowNow, std::make_unique<Window>(showing->m_window).release(),
                        &Delete<Window>);
}

gboolean FirstShowing::OnEvent(GtkWidget* /*widget*/, GdkEvent* event, FirstShowing* showing)
{
    if (showing->m_window && fittings::TellsDecorations(*event))
        showing->m_size = showing->m_window->GetSize();
    return FALSE;
}

// A window manager may first announce the decorations of windows in general, and then the decorations of this window.
// The toolkit subtracts only the decorations that are announced first. So set the size again after each announcement.
// Set the place in the same request: the window manager may have moved the window into the work area while the window
// was too large.
void FirstShowing::AfterEvent(GtkWidget* widget, GdkEvent* event, FirstShowing* showing)
{
    const Window& window = showing->m_window;
    if (window && fittings::TellsDecorations(*event)) {
        if (!window->IsMaximized() && !window->IsFullScreen()) {
            window->SetSize(showing->m_size);
            const std::optional<wxPoint>& place = showing->m_place;
            const wxSize size = fittings::SizeWithoutDecorations(*window);
            if (place && size.x > 0 && size.y > 0)
                gdk_window_move_resize(event->property.window, place->x, place->y, size.x, size.y);
        }
        // The toolkit itself computes the position only when the window is moved. Let it compute the position with the
        // announced decorations now.
        wxPoint origin;
        gdk_window_get_origin(event->property.window, &origin.x, &origin.y);
        window->GTKConfigureEvent(origin.x, origin.y);
    }
    if (event->type == GDK_MAP) {
        g_signal_handlers_disconnect_by_data(widget, showing);
        g_object_set_data(G_OBJECT(widget), kData, nullptr);
    }
}

}  // namespace

bool fittings::TellsDecorations(const GdkEvent& event)
{
    return event.type == GDK_PROPERTY_NOTIFY &&
           event.property.atom == gdk_atom_intern_static_string("_NET_FRAME_EXTENTS");
}

void fittings::ShowWithoutDelay(wxWindow& window)
{
    auto* const topLevel = dynamic_cast<wxTopLevelWindow*>(&window);
    GtkWidget* const widget = window.GetHandle();
    if (!topLevel || !widget || window.IsShown() || !GDK_IS_X11_DISPLAY(gtk_widget_get_display(widget)) ||
        ShowingOf(widget))
        return;
    auto showing = std::make_unique<FirstShowing>(*topLevel);
    showing->Watch(widget);
    g_object_set_data_full(G_OBJECT(widget), kData, showing.release(), &Delete<FirstShowing>);
}

void fittings::KeepPlace(wxTopLevelWindow& window)
{
    const wxPoint position = window.GetPosition();
    if (!window.GetHandle() || position == wxDefaultPosition)
        return;
    gtk_window_move(GTK_WINDOW(window.GetHandle()), position.x, position.y);
    if (FirstShowing* const showing = ShowingOf(window.GetHandle()))
        showing->KeepPlace();
}
