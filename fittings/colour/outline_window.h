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

    /// Gives the window the place and size of @a area, and shows @a outline, a rectangle inside the area. Both are in
    /// screen coordinates. Hides the window if @a outline is empty.
    void ShowOutline(const wxRect& area, const wxRect& outline);
};

}  // namespace fittings

#endif
