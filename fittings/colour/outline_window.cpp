#include <fittings/colour/outline_window.h>

#include <gtk/gtk.h>
#include <wx/region.h>

namespace fittings {

OutlineWindow::OutlineWindow(wxWindow* parent) : wxPopupWindow(parent, wxBORDER_NONE | wxFRAME_SHAPED)
{
    SetBackgroundColour(*wxBLACK);
    // No part of the window takes input.
    cairo_region_t* const nothing = cairo_region_create();
    gtk_widget_input_shape_combine_region(GetHandle(), nothing);
    cairo_region_destroy(nothing);
}

void OutlineWindow::ShowOutline(const wxRect& area, const wxRect& outline)
{
    // The toolkit treats an empty shape as no shape: the whole area would turn black.
    if (outline.IsEmpty()) {
        Hide();
        return;
    }
    wxRect ring = outline;
    ring.Offset(-area.x, -area.y);
    wxRegion shape(ring);
    ring.Deflate(1);
    if (!ring.IsEmpty())
        shape.Subtract(ring);
    SetSize(area);
    SetShape(shape);
    Show();
}

}  // namespace fittings
