#include <fittings/numedit/entry/number_entry.h>

#include <algorithm>
#include <memory>
#include <utility>

#include <wx/string.h>

namespace fittings {

namespace {

std::wstring Wide(const char* text, std::size_t length)
{
    return wxString::FromUTF8(text, length).ToStdWstring();
}

}  // namespace

NumberEntry::NumberEntry(GtkEntry* entry, void* toolkit, Judge judge, std::function<void()> refused)
    : m_entry(entry), m_toolkit(toolkit), m_judge(std::move(judge)), m_refused(std::move(refused))
{
    g_signal_connect(m_entry, "insert-text", G_CALLBACK(OnInsert), this);
    g_signal_connect(m_entry, "delete-text", G_CALLBACK(OnDelete), this);
    g_signal_connect(m_entry, "drag-data-received", G_CALLBACK(OnDropped), this);
}

NumberEntry::~NumberEntry()
{
    g_signal_handlers_disconnect_by_data(m_entry, this);
    if (m_source != 0)
        g_source_remove(m_source);
}

int NumberEntry::Filter(const GdkEventKey* key, const std::function<int()>& filter)
{
    const wxWeakRef<NumberEntry> self(this);
    const EntrySelection selected = SelectionOf(m_entry);
    m_filtering = true;
    m_hasRefused = false;
    // The keypad of the US layout has the first of these keys, the keypad of the German layout the second.
    m_keypadPoint = key->keyval == GDK_KEY_KP_Decimal || key->keyval == GDK_KEY_KP_Separator;
    const int result = filter();
    if (!self)
        return result;
    m_filtering = m_keypadPoint = false;
    if (m_hasRefused) {
        Select(m_entry, selected);
    } else if (m_waiting) {
        // No insertion followed the deletion that OnDelete() postponed: an input method has only deleted text around
        // the caret. Delete the text now.
        const auto [begin, end] = *m_waiting;
        const Free free(this);
        gtk_editable_delete_text(GTK_EDITABLE(m_entry), begin, end);
    }
    if (self)
        m_waiting.reset();
    return result;
}

bool NumberEntry::Take(const std::wstring& text)
{
    const wxWeakRef<NumberEntry> self(this);
    const EntrySelection selected = SelectionOf(m_entry);
    int position = std::min(selected.anchor, selected.caret);
    m_waiting = std::make_pair(position, std::max(selected.anchor, selected.caret));
    const bool isAccepted = Inserting(text, position);
    if (!self)
        return isAccepted;
    m_waiting.reset();
    if (isAccepted)
        gtk_editable_set_position(GTK_EDITABLE(m_entry), position);
    else
        Select(m_entry, selected);
    return isAccepted;
}

void NumberEntry::Soon(std::function<void()> action)
{
    m_soon = std::move(action);
    Wake();
}

void NumberEntry::Wake()
{
    if (m_source == 0)
        m_source = g_idle_add_full(G_PRIORITY_HIGH, OnSoon, this, nullptr);
}

int NumberEntry::OnSoon(void* self)
{
    auto* const entry = static_cast<NumberEntry*>(self);
    entry->m_source = 0;
    entry->m_deleted.reset();
    const std::function<void()> action = std::exchange(entry->m_soon, nullptr);
    // Restore the selection before the action, because the action may change the text.
    if (const auto selection = std::exchange(entry->m_selectSoon, std::nullopt))
        Select(entry->m_entry, *selection);
    if (action)
        action();
    return G_SOURCE_REMOVE;
}

void NumberEntry::OnInsert(GtkEditable* entry, const char* text, int length, int* position, NumberEntry* self)
{
    if (self->m_free != 0)
        return;
    g_signal_stop_emission_by_name(entry, "insert-text");
    self->Inserting(Wide(text, length < 0 ? std::char_traits<char>::length(text) : static_cast<std::size_t>(length)),
                    *position);
}

void NumberEntry::OnDelete(GtkEditable* entry, int begin, int end, NumberEntry* self)
{
    if (self->m_free != 0)
        return;
    if (self->m_filtering) {
        g_signal_stop_emission_by_name(entry, "delete-text");
        self->m_waiting = std::make_pair(begin, end);
        return;
    }
    self->Deleting(begin, end);
}

// Inserts a dropped text as GTK does, but reports a refusal to the source of the drag. GTK would report every text as
// taken. When a text is moved, the source would then delete the text even after a refusal.
void NumberEntry::OnDropped(GtkWidget* entry, GdkDragContext* drag, int x, int, GtkSelectionData* data, unsigned,
                            unsigned time, NumberEntry* self)
{
    // If the program has set its own wxDropTarget, GTK has no list of data types for the entry: leave the drop to the
    // wxDropTarget.
    if (!gtk_drag_dest_get_target_list(entry))
        return;
    g_signal_stop_emission_by_name(entry, "drag-data-received");
    const std::unique_ptr<guchar, void (*)(void*)> text(gtk_selection_data_get_text(data), g_free);
    const bool isTaken = text && gtk_editable_get_editable(GTK_EDITABLE(entry)) != 0 &&
                         self->Dropped(reinterpret_cast<const char*>(text.get()), x);
    gtk_drag_finish(drag, isTaken, isTaken && gdk_drag_context_get_selected_action(drag) == GDK_ACTION_MOVE, time);
}

bool NumberEntry::Dropped(const char* text, int x)
{
    const std::wstring dropped = Wide(text, std::char_traits<char>::length(text));
    const EntrySelection selected = SelectionOf(m_entry);
    const auto [begin, end] = std::minmax(selected.anchor, selected.caret);
    int position = PlaceAt(m_entry, x);
    const bool isOnSelection = begin != end && position >= begin && position <= end;
    return isOnSelection ? Take(dropped) : Inserting(dropped, position);
}

// Keeps a copy of the deleted text until the next input. If the insertion that replaces this text is refused, the text
// is restored.
void NumberEntry::Deleting(int begin, int end)
{
    const std::wstring text = Text();
    const auto from = std::min(static_cast<std::size_t>(begin), text.size());
    m_deleted = Deleted{text.substr(from, end < 0 ? text.npos : static_cast<std::size_t>(end - begin)), begin,
                        SelectionOf(m_entry)};
    Wake();
}

// Asks m_judge about a text. If m_judge accepts the text, makes the postponed deletion, and then the insertion that
// m_judge has returned. Returns whether the text was accepted.
bool NumberEntry::Inserting(const std::wstring& text, int& position)
{
    const std::wstring all = Text();
    const auto length = static_cast<int>(all.size());
    const int begin = std::clamp(m_waiting ? m_waiting->first : position, 0, length);
    int end = m_waiting ? m_waiting->second : begin;
    end = end < 0 ? length : std::clamp(end, begin, length);
    Insertion insertion;
    insertion.before = all.substr(0, static_cast<std::size_t>(begin));
    insertion.text = text;
    insertion.behind = all.substr(static_cast<std::size_t>(end));
    insertion.replaced = all.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin));
    insertion.typed = m_filtering || (!m_waiting && text.size() == 1);
    insertion.keypadPoint = m_keypadPoint;
    const std::optional<Insertion> accepted = m_judge(insertion);
    if (!accepted) {
        m_hasRefused = true;
        m_refused();
        PutBack();
        return false;
    }
    m_waiting.reset();
    m_deleted.reset();
    if (accepted->before == insertion.before && accepted->behind == insertion.behind) {
        Replace(begin, end);
        position = begin;
        Insert(accepted->text, position);
        return true;
    }
    Replace(0, length);
    position = 0;
    Insert(accepted->before + accepted->text + accepted->behind, position);
    position = static_cast<int>(accepted->before.size() + accepted->text.size());
    return true;
}

// Restores the deleted text after the insertion that replaces it was refused.
void NumberEntry::PutBack()
{
    if (m_filtering || !m_deleted)
        return;
    const Deleted deleted = *std::exchange(m_deleted, std::nullopt);
    int position = deleted.begin;
    const wxWeakRef<NumberEntry> self(this);
    Insert(deleted.text, position);
    if (!self)
        return;
    // GTK moves the caret after the handler of "insert-text" returns, so restore the selection later.
    m_selectSoon = deleted.selection;
    Wake();
}

// Deletes the text that the next call of Insert() replaces. The toolkit does not receive the "changed" signal of this
// deletion, so the program gets a single wxEVT_TEXT for the deletion and the insertion.
void NumberEntry::Replace(int begin, int end)
{
    if (begin == end)
        return;
    const Free free(this);
    const KeptFromToolkit silent(m_entry, m_toolkit, "changed");
    gtk_editable_delete_text(GTK_EDITABLE(m_entry), begin, end);
}

void NumberEntry::Insert(const std::wstring& text, int& position)
{
    const Free free(this);
    // Insert the text without the toolkit's handler: if the text comes from a key, the toolkit has already reported the
    // character, and would report it again.
    InsertUntyped(m_entry, m_toolkit, wxString(text).utf8_string(), position);
}

std::wstring NumberEntry::Text() const
{
    const char* const text = gtk_entry_get_text(m_entry);
    return Wide(text, std::char_traits<char>::length(text));
}

}  // namespace fittings
