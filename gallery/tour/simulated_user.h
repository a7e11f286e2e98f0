#ifndef FITTINGS_GALLERY_TOUR_SIMULATED_USER_H_
#define FITTINGS_GALLERY_TOUR_SIMULATED_USER_H_

#include <wx/defs.h>
#include <wx/gdicmn.h>

#include <gallery/tour/event_pump.h>

struct _GtkWidget;
class wxTreeCtrl;
class wxTreeItemId;
class wxWindow;

namespace gallery {

class ContentsList;
enum class SortColumn;

/// Simulates a person at the mouse and the keyboard with real input events. X11 only; a top-level window must exist.
namespace simulated_user {

/// @name Input. Points are in screen coordinates.
/// @{
void Click(const wxPoint& point);
void DoubleClick(const wxPoint& point);
void Drag(const wxPoint& from, const wxPoint& to);
void PointAt(const wxPoint& point);
void Press(int key, int modifiers = wxMOD_NONE);
/// Makes @a part of a window wider by @a pixels: drags the border, which is @a gap pixels beyond the end of the part.
/// In a right-to-left layout, the end is the left side.
void Widen(const wxWindow& window, const wxRect& part, int pixels, int gap = 0);
/// @}

/// @name Points and rectangles on the screen. The rectangle of a part that is not shown yet is empty.
/// @{
wxPoint CentreOf(const wxRect& rect);
wxRect WidgetRect(_GtkWidget* widget);
/// Use this function instead of GetScreenRect(), which returns a wrong place in a right-to-left layout.
wxRect WindowRect(const wxWindow& window);
wxRect LabelRect(const wxTreeCtrl& tree, const wxTreeItemId& item);
wxRect HeaderRect(const ContentsList& list, SortColumn column);
wxRect NameRect(const ContentsList& list, unsigned row);
/// @}

}  // namespace simulated_user

}  // namespace gallery

#endif
