#include <fittings/config/first_showing.h>

#include <memory>

#include <gtk/gtk.h>
#include <wx/toplevel.h>
#include <wx/weakref.h>

#include <gdk/gdkx.h>

namespace {

using Window = wxWeakRef<wxTopLevelWindow>;

void Delete(gpointer window)
{
    const std::unique_ptr<Window> owned(static_cast<Window*>(window));
}

void DeleteOfSignal(gpointer window, GClosure* /*closure*/)
{
    Delete(window);
}

gpointer Copy(wxTopLevelWindow* window)
{
    return std::make_unique<Window>(window).release();
}

// The toolkit counts the window as shown as soon as it is to be shown; to GTK it is hidden until then.
gboolean ShowNow(gpointer data)
{
    const Window& window = *static_cast<Window*>(data);
    if (window && window->IsShown())
        gtk_widget_show(window->GetHandle());
    return G_SOURCE_REMOVE;
}

// The toolkit does this as it asks for the decorations. It must not be disturbed in it, so the window is shown right after,
// before any answer is looked at.
void OnRealize(GtkWidget* widget, gpointer data)
{
    const Window& window = *static_cast<Window*>(data);
    if (window)
        g_idle_add_full(G_PRIORITY_HIGH, &ShowNow, Copy(window), &Delete);
    g_signal_handlers_disconnect_by_data(widget, data);
}

}  // namespace

void fittings::ShowWithoutDelay(wxTopLevelWindow& window)
{
    GtkWidget* const widget = window.GetHandle();
    if (widget && !window.IsShown() && GDK_IS_X11_DISPLAY(gtk_widget_get_display(widget)))
        g_signal_connect_data(widget, "realize", G_CALLBACK(&OnRealize), Copy(&window), &DeleteOfSignal,
                              GConnectFlags{});
}

void fittings::KeepPlace(wxTopLevelWindow& window)
{
    const wxPoint position = window.GetPosition();
    if (window.GetHandle() && position != wxDefaultPosition)
        gtk_window_move(GTK_WINDOW(window.GetHandle()), position.x, position.y);
}
