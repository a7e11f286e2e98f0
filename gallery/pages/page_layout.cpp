#include <gallery/pages/page_layout.h>

#include <gtk/gtk.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/toplevel.h>

namespace gallery {

namespace {

void OnFocus(GtkWindow*, GtkWidget* part, wxScrolledWindow* page)
{
    int top = 0;
    if (!part || !gtk_widget_is_ancestor(part, page->GetHandle()) ||
        !gtk_widget_translate_coordinates(part, page->GetHandle(), 0, 0, nullptr, &top))
        return;
    int unit = 0;
    page->GetScrollPixelsPerUnit(nullptr, &unit);
    const int below = top + gtk_widget_get_allocated_height(part) - page->GetClientSize().y;
    if (top < 0)
        page->Scroll(wxDefaultCoord, page->GetViewStart().y + top / unit - 1);
    else if (below > 0)
        page->Scroll(wxDefaultCoord, page->GetViewStart().y + below / unit + 1);
}

}  // namespace

wxStaticText* MakeHeading(wxWindow* parent, const wxString& text)
{
    auto* heading = new wxStaticText(parent, wxID_ANY, "");
    // Use markup: a font that is set on the label is measured too late for the layout.
    heading->SetLabelMarkup("<b>" + text + "</b>");
    BeginAtTheStart(heading);
    return heading;
}

void BeginAtTheStart(wxStaticText* label)
{
    gtk_label_set_xalign(GTK_LABEL(label->GetHandle()), 0);
}

void ArrangeColumns(wxBoxSizer* columns, int width)
{
    columns->SetOrientation(wxHORIZONTAL);
    if (columns->GetMinSize().x > width)
        columns->SetOrientation(wxVERTICAL);
}

void KeepFocusInSight(wxScrolledWindow* page)
{
    GClosure* follow = g_cclosure_new(G_CALLBACK(OnFocus), page, nullptr);
    g_object_watch_closure(G_OBJECT(page->GetHandle()), follow);
    g_signal_connect_closure(wxGetTopLevelParent(page)->GetHandle(), "set-focus", follow, FALSE);
}

}  // namespace gallery
