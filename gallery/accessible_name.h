#ifndef FITTINGS_GALLERY_ACCESSIBLE_NAME_H_
#define FITTINGS_GALLERY_ACCESSIBLE_NAME_H_

class wxString;
class wxWindow;

namespace fittings {

/// Gives a control of the toolkit the name that assistive technologies say, where no static text before it does so.
void SetAccessibleName(wxWindow* control, const wxString& name);

}  // namespace fittings

#endif
