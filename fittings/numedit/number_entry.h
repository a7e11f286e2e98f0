#ifndef FITTINGS_NUMEDIT_NUMBER_ENTRY_H_
#define FITTINGS_NUMEDIT_NUMBER_ENTRY_H_

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include <gtk/gtk.h>

// Private to the library.

namespace fittings {

/// Judges what goes into a GtkEntry, by keyboard, input method, clipboard and mouse, before it is there.
///
/// GTK deletes a selection before it inserts what takes its place. While a key is on its way, that deletion waits for
/// the verdict, and so a refused key has changed nothing. What an input method or a drop brings later comes without
/// such a frame: there the selection is put back.
class NumberEntry
{
public:
    /// A text on its way into the control.
    struct Insertion
    {
        std::wstring before;
        std::wstring text;
        std::wstring behind;
        bool typed;        ///< One character, or on its way from a key.
        bool keypadPoint;  ///< By the keypad's decimal key.
    };

    /// What goes in instead of the text; nothing where it is refused.
    using Judge = std::function<std::optional<std::wstring>(const Insertion&)>;

    /// @a entry outlives the object. @a toolkit is what the toolkit's own handlers of the entry's signals have as their
    /// data. @a refused is called for each refusal.
    NumberEntry(GtkEntry* entry, void* toolkit, Judge judge, std::function<void()> refused);
    ~NumberEntry();
    NumberEntry(const NumberEntry&) = delete;
    NumberEntry& operator=(const NumberEntry&) = delete;

    /// Frames the handling of a key by GTK's input method: @a filter hands it on, and its result is returned.
    int Filter(const GdkEventKey* key, const std::function<int()>& filter);

    /// Puts a text in place of the selection, as if it were pasted.
    void Take(const std::wstring& text);

    /// What the program does while the object lives is not judged.
    class Free
    {
    public:
        explicit Free(NumberEntry* entry) : m_entry(entry) { m_entry ? ++m_entry->m_free : 0; }
        ~Free() { m_entry ? --m_entry->m_free : 0; }
        Free(const Free&) = delete;
        Free& operator=(const Free&) = delete;

    private:
        NumberEntry* m_entry;
    };

    /// Calls @a action when what is going on has ended, and before any other input.
    void Soon(std::function<void()> action);

private:
    struct Selection
    {
        int anchor = 0;
        int caret = 0;
    };

    struct Deleted
    {
        std::wstring text;
        int begin = 0;
        Selection selection;
    };

    static void OnInsert(GtkEditable*, const char* text, int length, int* position, NumberEntry* self);
    static void OnDelete(GtkEditable*, int begin, int end, NumberEntry* self);
    static int OnSoon(void* self);

    void Inserting(const std::wstring& text, int& position);
    void Deleting(int begin, int end);
    void PutBack();
    void Replace(int begin, int end);
    void Insert(const std::wstring& text, int& position);
    std::wstring Text() const;
    Selection Selected() const;
    void Select(const Selection& selection);

    GtkEntry* m_entry;
    void* m_toolkit;
    Judge m_judge;
    std::function<void()> m_refused;
    int m_free = 0;
    bool m_filtering = false;
    bool m_keypadPoint = false;
    bool m_hasRefused = false;
    std::optional<std::pair<int, int>> m_waiting;  ///< The deletion that waits for a verdict.
    std::optional<Deleted> m_deleted;              ///< What was deleted just now.
    std::function<void()> m_soon;
    unsigned m_source = 0;
};

}  // namespace fittings

#endif
