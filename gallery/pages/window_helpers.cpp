#include <gallery/pages/window_helpers.h>

#include <gtk/gtk.h>
#include <wx/dataview.h>

namespace gallery {

void SetAccessibleName(wxWindow* control, const wxString& name)
{
    atk_object_set_name(gtk_widget_get_accessible(control->GetHandle()), name.utf8_str());
    // Name the tree view in the control too, because the focus is on that view.
    if (auto* const list = dynamic_cast<wxDataViewCtrl*>(control))
        atk_object_set_name(gtk_widget_get_accessible(list->GtkGetTreeView()), name.utf8_str());
}

wxRect FrameRect(GtkWidget* window)
{
    GdkRectangle rect;
    gdk_window_get_frame_extents(gtk_widget_get_window(window), &rect);
    return {rect.x, rect.y, rect.width, rect.height};
}

void TellChange(wxWindow& window, wxEventType type)
{
    wxCommandEvent event(type, window.GetId());
    event.SetEventObject(&window);
    window.ProcessWindowEvent(event);
}

}  // namespace gallery
