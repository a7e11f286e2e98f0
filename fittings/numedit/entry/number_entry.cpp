#include <fittings/numedit/entry/number_entry.h>

#include <algorithm>
#include <utility>

#include <wx/string.h>

namespace fittings {

namespace {

std::wstring Wide(const char* text, std::size_t length)
{
    return wxString::FromUTF8(text, length).ToStdWstring();
}

/// Hides a signal from the toolkit. GTK's own handlers, for example for assistive technologies, are still called.
class KeptFromToolkit
{
public:
    KeptFromToolkit(GtkEntry* entry, void* toolkit, const char* name)
        : m_entry(entry), m_toolkit(toolkit), m_signal(g_signal_lookup(name, GTK_TYPE_EDITABLE))
    {
        g_signal_handlers_block_matched(m_entry, kMatch, m_signal, 0, nullptr, nullptr, m_toolkit);
    }
    ~KeptFromToolkit() { g_signal_handlers_unblock_matched(m_entry, kMatch, m_signal, 0, nullptr, nullptr, m_toolkit); }
    KeptFromToolkit(const KeptFromToolkit&) = delete;
    KeptFromToolkit& operator=(const KeptFromToolkit&) = delete;

private:
    static constexpr auto kMatch = static_cast<GSignalMatchType>(G_SIGNAL_MATCH_ID | G_SIGNAL_MATCH_DATA);

    GtkEntry* m_entry;
    void* m_toolkit;
    guint m_signal;
};

}  // namespace

NumberEntry::NumberEntry(GtkEntry* entry, void* toolkit, Judge judge, std::function<void()> refused)
    : m_entry(entry), m_toolkit(toolkit), m_judge(std::move(judge)), m_refused(std::move(refused))
{
    g_signal_connect(m_entry, "insert-text", G_CALLBACK(OnInsert), this);
    g_signal_connect(m_entry, "delete-text", G_CALLBACK(OnDelete), this);
}

NumberEntry::~NumberEntry()
{
    g_signal_handlers_disconnect_by_data(m_entry, this);
    if (m_source != 0)
        g_source_remove(m_source);
}

int NumberEntry::Filter(const GdkEventKey* key, const std::function<int()>& filter)
{
    const Selection selected = Selected();
    m_filtering = true;
    m_hasRefused = false;
    // The US layout has the first key, the German layout the second.
    m_keypadPoint = key->keyval == GDK_KEY_KP_Decimal || key->keyval == GDK_KEY_KP_Separator;
    const int result = filter();
    m_filtering = m_keypadPoint = false;
    if (m_hasRefused) {
        Select(selected);
    } else if (m_waiting) {
        // No insertion followed: an input method has deleted text around the caret.
        const auto [begin, end] = *m_waiting;
        const Free free(this);
        gtk_editable_delete_text(GTK_EDITABLE(m_entry), begin, end);
    }
    m_waiting.reset();
    return result;
}

void NumberEntry::Take(const std::wstring& text)
{
    const Selection selected = Selected();
    int position = std::min(selected.anchor, selected.caret);
    m_waiting = std::make_pair(position, std::max(selected.anchor, selected.caret));
    m_hasRefused = false;
    Inserting(text, position);
    m_waiting.reset();
    if (m_hasRefused)
        Select(selected);
    else
        gtk_editable_set_position(GTK_EDITABLE(m_entry), position);
}

void NumberEntry::Soon(std::function<void()> action)
{
    m_soon = std::move(action);
    if (m_source == 0)
        m_source = g_idle_add_full(G_PRIORITY_HIGH, OnSoon, this, nullptr);
}

int NumberEntry::OnSoon(void* self)
{
    auto* const entry = static_cast<NumberEntry*>(self);
    entry->m_source = 0;
    entry->m_deleted.reset();
    if (const std::function<void()> action = std::exchange(entry->m_soon, nullptr))
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

/// Keeps the deleted text until the next input: if an insertion replaces it and is refused, it is restored.
void NumberEntry::Deleting(int begin, int end)
{
    const std::wstring text = Text();
    const auto from = std::min(static_cast<std::size_t>(begin), text.size());
    m_deleted =
        Deleted{text.substr(from, end < 0 ? text.npos : static_cast<std::size_t>(end - begin)), begin, Selected()};
    if (m_source == 0)
        m_source = g_idle_add_full(G_PRIORITY_HIGH, OnSoon, this, nullptr);
}

void NumberEntry::Inserting(const std::wstring& text, int& position)
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
    insertion.typed = m_filtering || (!m_waiting && text.size() == 1);
    insertion.keypadPoint = m_keypadPoint;
    const std::optional<std::wstring> accepted = m_judge(insertion);
    if (!accepted) {
        m_hasRefused = true;
        PutBack();
        m_refused();
        return;
    }
    m_waiting.reset();
    m_deleted.reset();
    Replace(begin, end);
    position = begin;
    Insert(*accepted, position);
}

/// Restores the text that was deleted just before a refusal.
void NumberEntry::PutBack()
{
    if (m_filtering || !m_deleted)
        return;
    const Deleted deleted = *std::exchange(m_deleted, std::nullopt);
    int position = deleted.begin;
    Insert(deleted.text, position);
    // GTK moves the caret after this handler returns, so restore the selection later.
    Soon([this, selection = deleted.selection] { Select(selection); });
}

/// Deletes without a report to the toolkit: the insertion that follows is reported.
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
    const std::string utf8 = wxString(text).utf8_string();
    const Free free(this);
    // The toolkit has already reported the character.
    const KeptFromToolkit silent(m_entry, m_toolkit, "insert-text");
    gtk_editable_insert_text(GTK_EDITABLE(m_entry), utf8.data(), static_cast<int>(utf8.length()), &position);
}

std::wstring NumberEntry::Text() const
{
    const char* const text = gtk_entry_get_text(m_entry);
    return Wide(text, std::char_traits<char>::length(text));
}

NumberEntry::Selection NumberEntry::Selected() const
{
    Selection selection;
    selection.caret = gtk_editable_get_position(GTK_EDITABLE(m_entry));
    int begin = 0;
    int end = 0;
    gtk_editable_get_selection_bounds(GTK_EDITABLE(m_entry), &begin, &end);
    selection.anchor = begin == end ? selection.caret : (selection.caret == begin ? end : begin);
    return selection;
}

void NumberEntry::Select(const Selection& selection)
{
    gtk_editable_select_region(GTK_EDITABLE(m_entry), selection.anchor, selection.caret);
}

}  // namespace fittings
