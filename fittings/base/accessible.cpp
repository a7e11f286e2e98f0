#include <fittings/base/accessible.h>

#include <gtk/gtk.h>
#include <wx/string.h>
#include <wx/window.h>

namespace fittings {

namespace {

AtkRole RoleOf(AccessibleRole role)
{
    switch (role) {
    case AccessibleRole::ComboBox:
        return ATK_ROLE_COMBO_BOX;
    case AccessibleRole::Grid:
        return ATK_ROLE_LIST_BOX;
    case AccessibleRole::Tree:
        return ATK_ROLE_TREE;
    case AccessibleRole::Text:
        break;
    }
    return ATK_ROLE_TEXT;
}

// Returns the widget that takes the focus. In a scrolled window, this is an inner widget.
GtkWidget* FocusedPart(const wxWindow& window)
{
    return window.m_wxwindow ? window.m_wxwindow : window.m_widget;
}

bool Differ(const char* text, const char* other)
{
    return g_strcmp0(text, other) != 0;
}

void Name(AtkObject* object, const char* name)
{
    if (Differ(atk_object_get_name(object), name))
        atk_object_set_name(object, name);
}

}  // namespace

void Describe(wxWindow& window, AccessibleRole role, const wxString& label, const wxString& value)
{
    AtkObject* const object = gtk_widget_get_accessible(FocusedPart(window));
    if (atk_object_get_role(object) != RoleOf(role))
        atk_object_set_role(object, RoleOf(role));
    const wxScopedCharBuffer name = (value.empty() ? label : value).utf8_str();
    Name(object, name);
    Name(gtk_widget_get_accessible(window.m_widget), name);
    // Do not set an empty description: GTK uses the tooltip as the description only while no description is set.
    const wxScopedCharBuffer description = label.utf8_str();
    if (!label.empty() && !value.empty() && Differ(atk_object_get_description(object), description))
        atk_object_set_description(object, description);
}

void LabelPart(wxWindow& window, wxWindow& part)
{
    GtkWidget* const focused = FocusedPart(part);
    if (focused == window.m_widget)
        return;
    GList* const labels = gtk_widget_list_mnemonic_labels(window.m_widget);
    for (const GList* label = labels; label; label = label->next) {
        if (GTK_IS_LABEL(label->data))
            gtk_label_set_mnemonic_widget(GTK_LABEL(label->data), focused);
    }
    g_list_free(labels);
}

}  // namespace fittings
