#include <fittings/numedit/entry/entry_text.h>

namespace fittings {

namespace {

constexpr auto kToolkitsHandler = static_cast<GSignalMatchType>(G_SIGNAL_MATCH_ID | G_SIGNAL_MATCH_DATA);

}  // namespace

EntrySelection SelectionOf(GtkEntry* entry)
{
    const int caret = gtk_editable_get_position(GTK_EDITABLE(entry));
    int begin = 0;
    int end = 0;
    if (!gtk_editable_get_selection_bounds(GTK_EDITABLE(entry), &begin, &end))
        return {caret, caret};
    return {caret == begin ? end : begin, caret};
}

void Select(GtkEntry* entry, const EntrySelection& selection)
{
    gtk_editable_select_region(GTK_EDITABLE(entry), selection.anchor, selection.caret);
}

int PlaceAt(GtkEntry* entry, int x)
{
    int left = 0;
    int index = 0;
    int trailing = 0;
    gtk_entry_get_layout_offsets(entry, &left, nullptr);
    pango_layout_xy_to_index(gtk_entry_get_layout(entry), (x - left) * PANGO_SCALE, 0, &index, &trailing);
    const char* const text = gtk_entry_get_text(entry);
    const auto place = g_utf8_pointer_to_offset(text, text + gtk_entry_layout_index_to_text_index(entry, index));
    return static_cast<int>(place) + trailing;
}

KeptFromToolkit::KeptFromToolkit(GtkEntry* entry, void* toolkit, const char* signal)
    : m_entry(GTK_ENTRY(g_object_ref(entry))), m_toolkit(toolkit), m_signal(g_signal_lookup(signal, GTK_TYPE_EDITABLE))
{
    g_signal_handlers_block_matched(m_entry, kToolkitsHandler, m_signal, 0, nullptr, nullptr, m_toolkit);
}

KeptFromToolkit::~KeptFromToolkit()
{
    g_signal_handlers_unblock_matched(m_entry, kToolkitsHandler, m_signal, 0, nullptr, nullptr, m_toolkit);
    g_object_unref(m_entry);
}

void InsertUntyped(GtkEntry* entry, void* toolkit, const std::string& text, int& position)
{
    const KeptFromToolkit silent(entry, toolkit, "insert-text");
    gtk_editable_insert_text(GTK_EDITABLE(entry), text.data(), static_cast<int>(text.size()), &position);
}

}  // namespace fittings
