#include <gallery/tour/simulated_user.h>

#include <algorithm>

#include <gtk/gtk.h>
#include <wx/treectrl.h>
#include <wx/uiaction.h>

#include <gallery/browser/contents_list.h>

namespace gallery::simulated_user {

void Click(const wxPoint& point)
{
    PointAt(point);
    wxUIActionSimulator().MouseClick();
    HandleEvents();
}

void DoubleClick(const wxPoint& point)
{
    PointAt(point);
    // Allow a minute between the clicks: on a busy machine the second one may come too late for a double click.
    GdkDisplay* const display = gdk_display_get_default();
    gdk_display_set_double_click_time(display, 60000);
    wxUIActionSimulator().MouseDblClick();
    gdk_display_sync(display);
    HandleEvents();
    guint usual = 0;
    g_object_get(gtk_settings_get_default(), "gtk-double-click-time", &usual, nullptr);
    gdk_display_set_double_click_time(display, usual);
}

void Drag(const wxPoint& from, const wxPoint& to)
{
    wxUIActionSimulator mouse;
    PointAt(from);
    mouse.MouseDown();
    HandleEvents();
    for (int step = 1; step <= 8; ++step)
        PointAt(from + (to - from) * step / 8);
    mouse.MouseUp();
    HandleEvents();
}

void PointAt(const wxPoint& point)
{
    wxUIActionSimulator().MouseMove(point);
    HandleEvents();
}

void Press(int key, int modifiers)
{
    wxUIActionSimulator().Char(key, modifiers);
    HandleEvents();
}

void Widen(const wxWindow& window, const wxRect& part, int pixels, int gap)
{
    const bool isRightToLeft = window.GetLayoutDirection() == wxLayout_RightToLeft;
    const int forward = isRightToLeft ? -1 : 1;
    const int end = isRightToLeft ? part.GetLeft() : part.GetRight();
    const wxPoint border(end + forward * gap, part.y + part.height / 2);
    Drag(border, border + wxSize(forward * pixels, 0));
}

wxPoint CentreOf(const wxRect& rect)
{
    return rect.GetPosition() + wxSize(rect.width / 2, rect.height / 2);
}

wxRect WidgetRect(GtkWidget* widget)
{
    if (!gtk_widget_get_realized(widget))
        return {};
    GtkWidget* const top = gtk_widget_get_toplevel(widget);
    int x = 0;
    int y = 0;
    gtk_widget_translate_coordinates(widget, top, 0, 0, &x, &y);
    wxPoint origin;
    gdk_window_get_origin(gtk_widget_get_window(top), &origin.x, &origin.y);
    return {origin.x + x, origin.y + y, gtk_widget_get_allocated_width(widget),
            gtk_widget_get_allocated_height(widget)};
}

wxRect WindowRect(const wxWindow& window)
{
    return WidgetRect(window.GetHandle());
}

wxRect LabelRect(const wxTreeCtrl& tree, const wxTreeItemId& item)
{
    wxRect rect;
    if (!tree.GetBoundingRect(item, rect, true))
        return {};
    const wxPoint start = tree.ClientToScreen(rect.GetTopLeft());
    const wxPoint end = tree.ClientToScreen(rect.GetTopLeft() + wxSize(rect.width, 0));
    return {wxPoint(std::min(start.x, end.x), start.y), rect.GetSize()};
}

wxRect HeaderRect(const ContentsList& list, SortColumn column)
{
    auto* handle = GTK_TREE_VIEW_COLUMN(list.GetColumn(static_cast<unsigned>(column))->GetGtkHandle());
    return WidgetRect(gtk_tree_view_column_get_button(handle));
}

wxRect NameRect(const ContentsList& list, unsigned row)
{
    // GetItemRect() measures x from the left edge, even in a right-to-left layout.
    wxRect rect = list.GetItemRect(list.ItemOf(row), list.GetColumn(0));
    rect.Offset(WindowRect(list).GetPosition());
    return rect;
}

}  // namespace gallery::simulated_user
