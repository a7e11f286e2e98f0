#include "accessible_name.h"

#include <gtk/gtk.h>
#include <wx/dataview.h>

namespace fittings {

void SetAccessibleName(wxWindow* control, const wxString& name)
{
    atk_object_set_name(gtk_widget_get_accessible(control->GetHandle()), name.utf8_str());
    // What is scrolled, and has the focus, is within.
    if (auto* const list = dynamic_cast<wxDataViewCtrl*>(control))
        atk_object_set_name(gtk_widget_get_accessible(list->GtkGetTreeView()), name.utf8_str());
}

}  // namespace fittings
