#ifndef FITTINGS_NUMEDIT_ENTRY_NUMBER_ENTRY_H_
#define FITTINGS_NUMEDIT_ENTRY_NUMBER_ENTRY_H_

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include <gtk/gtk.h>
#include <wx/tracker.h>
#include <wx/weakref.h>

#include <fittings/numedit/entry/entry_text.h>

// Private to the library.

namespace fittings {

/// Checks each text from the keyboard, an input method, the clipboard or the mouse before it is inserted into a
/// GtkEntry.
///
/// GTK deletes the selection before it inserts the new text. While a key is handled, the deletion is postponed until
/// the insertion is accepted, so a refused key changes nothing. An input method may also insert a text later, without a
/// key. If that text is refused, the deleted selection is restored. A text that is dropped on the selection replaces
/// the selection only if the text is accepted.
///
/// The program's handlers for a change of the text are called during the insertion. They may destroy the object.
class NumberEntry : public wxTrackable
{
public:
    /// A text that is about to be inserted into the control.
    struct Insertion
    {
        std::wstring before;
        std::wstring text;
        std::wstring behind;
        std::wstring replaced;  ///< The text between `before` and `behind` that the insertion replaces.
        /// True if the text counts as typed, and false if it counts as pasted. A text that is inserted while a key is
        /// handled counts as typed. Any other single character does too, except in Take().
        bool typed;
        bool keypadPoint;  ///< True for the keypad's decimal key.
    };

    /// Returns the insertion to make, whose texts may differ from the argument's. Returns nothing to refuse the
    /// insertion.
    using Judge = std::function<std::optional<Insertion>(const Insertion&)>;

    /// @a entry must outlive the object. @a toolkit is the user data of the toolkit's own signal handlers on the entry.
    /// @a refused is called for each refusal.
    NumberEntry(GtkEntry* entry, void* toolkit, Judge judge, std::function<void()> refused);
    ~NumberEntry();
    NumberEntry(const NumberEntry&) = delete;
    NumberEntry& operator=(const NumberEntry&) = delete;

    /// Calls @a filter, which passes @a key to GTK's input method. Returns the result of @a filter. A text that the
    /// input method inserts during this call counts as typed with the key.
    int Filter(const GdkEventKey* key, const std::function<int()>& filter);

    /// Replaces the selection by a text as if the text were pasted. Returns whether the text was accepted.
    bool Take(const std::wstring& text);

    /// While an object of this class exists, changes of the text are not checked. Used for changes by the program and
    /// by NumberEntry itself.
    class Free;

    /// Calls @a action after the current event, before any other input. Replaces an earlier action that has not been
    /// called yet.
    void Soon(std::function<void()> action);

private:
    struct Deleted
    {
        std::wstring text;
        int begin = 0;
        EntrySelection selection;
    };

    static void OnInsert(GtkEditable*, const char* text, int length, int* position, NumberEntry* self);
    static void OnDelete(GtkEditable*, int begin, int end, NumberEntry* self);
    static void OnDropped(GtkWidget*, GdkDragContext* drag, int x, int y, GtkSelectionData* data, unsigned info,
                          unsigned time, NumberEntry* self);
    static int OnSoon(void* self);

    bool Inserting(const std::wstring& text, int& position);
    void Deleting(int begin, int end);
    bool Dropped(const char* text, int x);
    void PutBack();
    void Wake();
    void Replace(int begin, int end);
    void Insert(const std::wstring& text, int& position);
    std::wstring Text() const;

    GtkEntry* m_entry;
    void* m_toolkit;
    Judge m_judge;
    std::function<void()> m_refused;
    int m_free = 0;
    bool m_filtering = false;
    bool m_keypadPoint = false;
    bool m_hasRefused = false;
    std::optional<std::pair<int, int>> m_waiting;  ///< The deletion that is postponed until an insertion.
    std::optional<Deleted> m_deleted;              ///< The last deletion, until the next input.
    std::optional<EntrySelection> m_selectSoon;    ///< The selection to restore after the current event.
    std::function<void()> m_soon;
    unsigned m_source = 0;
};

class NumberEntry::Free
{
public:
    explicit Free(NumberEntry* entry) : m_entry(entry) { m_entry ? ++m_entry->m_free : 0; }
    ~Free() { m_entry ? --m_entry->m_free : 0; }
    Free(const Free&) = delete;
    Free& operator=(const Free&) = delete;

private:
    const wxWeakRef<NumberEntry> m_entry;
};

}  // namespace fittings

#endif
