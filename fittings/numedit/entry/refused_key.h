#ifndef FITTINGS_NUMEDIT_ENTRY_REFUSED_KEY_H_
#define FITTINGS_NUMEDIT_ENTRY_REFUSED_KEY_H_

class wxTextCtrl;

// Private to the library.

namespace fittings {

/// Call this function when a key is pressed in a single-line control. From then on, the text that GTK deletes before it
/// inserts a character is kept for UndoKey().
void BeginKey(wxTextCtrl& control);

/// Restores the text that the current key has deleted, with the caret and the selection. No event is sent, and the
/// modified state does not change. Does nothing if nothing was deleted, or if no key press is being handled.
void UndoKey(wxTextCtrl& control);

}  // namespace fittings

#endif
