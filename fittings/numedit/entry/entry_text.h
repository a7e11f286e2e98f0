#ifndef FITTINGS_NUMEDIT_ENTRY_ENTRY_TEXT_H_
#define FITTINGS_NUMEDIT_ENTRY_ENTRY_TEXT_H_

#include <string>

#include <gtk/gtk.h>

// Private to the library. Offsets are in characters, as GTK counts them.

namespace fittings {

/// The caret and the other end of the selection. They are equal if nothing is selected.
struct EntrySelection
{
    int anchor = 0;
    int caret = 0;
};

EntrySelection SelectionOf(GtkEntry* entry);
void Select(GtkEntry* entry, const EntrySelection& selection);

/// Returns the offset in the text that is nearest to @a x, a horizontal position in the entry's widget, in pixels.
int PlaceAt(GtkEntry* entry, int x);

/// While the object exists, one signal of the entry does not reach the toolkit. GTK's own handlers, for example for
/// assistive technologies, are still called. A handler of the signal may destroy the entry.
class KeptFromToolkit
{
public:
    /// @a toolkit is the user data of the toolkit's own signal handlers on the entry.
    KeptFromToolkit(GtkEntry* entry, void* toolkit, const char* signal);
    ~KeptFromToolkit();
    KeptFromToolkit(const KeptFromToolkit&) = delete;
    KeptFromToolkit& operator=(const KeptFromToolkit&) = delete;

private:
    GtkEntry* m_entry;
    void* m_toolkit;
    guint m_signal;
};

/// Inserts a text in UTF-8, and moves @a position to the end of the inserted text. Does not call the toolkit's own
/// handler of "insert-text". While a key is handled, that handler would report each inserted character as typed.
void InsertUntyped(GtkEntry* entry, void* toolkit, const std::string& text, int& position);

}  // namespace fittings

#endif
