#include "frame_rect.h"

#include <gtk/gtk.h>

namespace fittings {

wxRect FrameRect(GtkWidget* window)
{
    GdkRectangle rect;
    gdk_window_get_frame_extents(gtk_widget_get_window(window), &rect);
    return {rect.x, rect.y, rect.width, rect.height};
}

}  // namespace fittings
