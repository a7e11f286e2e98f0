#include "simulated_user.h"

#include <chrono>

#include <gtk/gtk.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/treectrl.h>
#include <wx/uiaction.h>

#include "contents_list.h"

namespace fittings::simulated_user {

namespace {

void HandleEvents()
{
    wxEventLoopBase* loop = wxEventLoopBase::GetActive();
    while (loop->Pending())
        loop->Dispatch();
    // Asking for pending events switches the loop's own idle handling off.
    wxTheApp->ProcessPendingEvents();
    loop->ProcessIdle();
}

}  // namespace

bool WaitUntil(const std::function<bool()>& done, int milliseconds)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    for (;;) {
        HandleEvents();
        if (done())
            return true;
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        wxEventLoopBase::GetActive()->DispatchTimeout(5);
    }
}

void Click(const wxPoint& point)
{
    PointAt(point);
    wxUIActionSimulator().MouseClick();
    HandleEvents();
}

void DoubleClick(const wxPoint& point)
{
    PointAt(point);
    wxUIActionSimulator().MouseDblClick();
    HandleEvents();
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

wxPoint CentreOf(const wxRect& rect)
{
    return rect.GetPosition() + wxSize(rect.width / 2, rect.height / 2);
}

wxRect WidgetRect(GtkWidget* widget)
{
    if (!gtk_widget_get_realized(widget))
        return {};
    GtkAllocation place;
    gtk_widget_get_allocation(widget, &place);
    int x = 0;
    int y = 0;
    gdk_window_get_origin(gtk_widget_get_window(widget), &x, &y);
    return {x + place.x, y + place.y, place.width, place.height};
}

wxRect LabelRect(const wxTreeCtrl& tree, const wxTreeItemId& item)
{
    wxRect rect;
    if (!tree.GetBoundingRect(item, rect, true))
        return {};
    rect.SetPosition(tree.ClientToScreen(rect.GetPosition()));
    return rect;
}

wxRect HeaderRect(const ContentsList& list, SortColumn column)
{
    auto* handle = GTK_TREE_VIEW_COLUMN(list.GetColumn(static_cast<unsigned>(column))->GetGtkHandle());
    return WidgetRect(gtk_tree_view_column_get_button(handle));
}

wxRect NameRect(const ContentsList& list, unsigned row)
{
    wxRect rect = list.GetItemRect(list.ItemOf(row), list.GetColumn(0));
    rect.SetPosition(list.ClientToScreen(rect.GetPosition()));
    return rect;
}

}  // namespace fittings::simulated_user
