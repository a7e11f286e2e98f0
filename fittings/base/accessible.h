#ifndef FITTINGS_BASE_ACCESSIBLE_H_
#define FITTINGS_BASE_ACCESSIBLE_H_

class wxString;
class wxWindow;

namespace fittings {

enum class AccessibleRole { ComboBox, Grid, Text, Tree };

/// Tells assistive technologies what a window is. Cheap when nothing has changed, so that it may be called on each
/// idle.
///
/// Its name is @a value, what is chosen in it, as that of GTK's own combo boxes is; @a label describes it then, and is
/// its name else.
void Describe(wxWindow& window, AccessibleRole role, const wxString& label, const wxString& value);

/// Lets the static texts that label a window, and their mnemonics, lead to the part of it that takes the focus. The
/// toolkit gives them the window itself, each time that the order of Tab changes.
void LabelPart(wxWindow& window, wxWindow& part);

}  // namespace fittings

#endif
