#ifndef FITTINGS_NUMEDIT_REFUSED_KEY_H_
#define FITTINGS_NUMEDIT_REFUSED_KEY_H_

class wxTextCtrl;

// Private to the library.

namespace fittings {

/// Says that a key has gone down in a single-line control: from now on, what GTK deletes to make place for a character
/// is kept.
void BeginKey(wxTextCtrl& control);

/// Puts back what the present key has deleted, with caret and selection as they were. No event tells of it, and the
/// control is as unmodified as before. Does nothing where nothing was deleted.
void UndoKey(wxTextCtrl& control);

}  // namespace fittings

#endif
