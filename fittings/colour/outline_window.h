#ifndef FITTINGS_COLOUR_OUTLINE_WINDOW_H_
#define FITTINGS_COLOUR_OUTLINE_WINDOW_H_

#include <wx/popupwin.h>

namespace fittings {

/// A black outline above all windows of the screen, one pixel wide. It lets every click through.
class OutlineWindow : public wxPopupWindow
{
public:
    /// @a parent owns the window; it is hidden at first.
    explicit OutlineWindow(wxWindow* parent);

    /// Shows the outline @a outline, a part of @a area, both in screen coordinates. An empty outline is none.
    void ShowOutline(const wxRect& area, const wxRect& outline);
};

}  // namespace fittings

#endif
