#ifndef FITTINGS_COLOUR_OUTLINE_WINDOW_H_
#define FITTINGS_COLOUR_OUTLINE_WINDOW_H_

#include <wx/popupwin.h>

namespace fittings {

/// A black outline, one pixel wide, above all windows of the screen. Clicks pass through it.
class OutlineWindow : public wxPopupWindow
{
public:
    /// Makes a hidden window, which @a parent owns.
    explicit OutlineWindow(wxWindow* parent);

    /// Shows @a outline, a rectangle inside @a area. Both are in screen coordinates. Hides the window if @a outline is
    /// empty.
    void ShowOutline(const wxRect& area, const wxRect& outline);
};

}  // namespace fittings

#endif
