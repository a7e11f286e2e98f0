#ifndef FITTINGS_BASE_ACCESSIBLE_H_
#define FITTINGS_BASE_ACCESSIBLE_H_

class wxString;
class wxWindow;

namespace fittings {

enum class AccessibleRole { ComboBox, Grid, Text, Tree };

/// Describes a window to assistive technologies. A call that changes nothing is cheap, so the function may be called on
/// every idle event.
///
/// @a value, the current choice, becomes the accessible name, as in GTK's own combo boxes. @a label becomes the
/// description. If @a value is empty, @a label becomes the name. If @a value or @a label is empty, the description does
/// not change.
void Describe(wxWindow& window, AccessibleRole role, const wxString& label, const wxString& value);

/// Makes the mnemonics of the labels of @a window move the focus to @a part, the part of the window that takes the
/// focus. The labels are the static texts that the toolkit has connected to the window. Call this function again after
/// each change of the Tab order: the toolkit then connects the labels to the window again.
void LabelPart(wxWindow& window, wxWindow& part);

}  // namespace fittings

#endif
