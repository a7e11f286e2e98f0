#include <fittings/config/window_geometry.h>

#include <algorithm>

#include <wx/display.h>
#include <wx/toplevel.h>

#include <fittings/config/first_showing.h>

namespace {

// A stored geometry is not applied if its width or height is this many pixels or less.
constexpr int kTooSmall = 10;

// The largest coordinate or size on an X display, where these numbers have 16 bits. Stored numbers are limited to
// this, so that sums of them do not overflow.
constexpr long kFarthest = 32767;

// Returns the window's rectangle on the screen.
//
// If the top-level window is not shown yet, the toolkit cannot find this rectangle, and logs an error. In that case,
// this function adds up the positions of the window and its ancestors. Only the decorations are missing in the sum.
wxRect ScreenRect(wxWindow& window)
{
    if (wxGetTopLevelParent(&window)->IsShown())
        return window.GetScreenRect();
    wxRect rect = window.GetRect();
    for (const wxWindow* inner = &window; !inner->IsTopLevel(); inner = inner->GetParent())
        rect.Offset(inner->GetParent()->GetPosition());
    return rect;
}

// Returns the number of the display that shows most of the window; wxNOT_FOUND when no display shows any part of it.
//
// Uses wxDisplay::GetFromWindow() only to recognise a window that is not created yet. The display that GetFromWindow()
// returns may be wrong. It returns a display even for a window that is far away from all displays. For a hidden window
// that was moved, it uses the place before the move.
int DisplayOf(wxWindow& window)
{
    if (wxDisplay::GetFromWindow(&window) == wxNOT_FOUND)
        return wxNOT_FOUND;
    const wxRect rect = ScreenRect(window);
    int best = wxNOT_FOUND;
    int largest = 0;
    for (unsigned n = 0; n < wxDisplay::GetCount(); ++n) {
        const wxRect shown = wxDisplay(n).GetGeometry().Intersect(rect);
        const int area = shown.width * shown.height;
        if (area > largest) {
            largest = area;
            best = static_cast<int>(n);
        }
    }
    return best;
}

// Returns the part of @a rect that lies in @a area. A rectangle wholly outside the area, for example under a panel of
// the desktop, is moved into the area, and made smaller if it is larger than the area.
wxRect FitInto(const wxRect& area, const wxRect& rect)
{
    const wxRect common = area.Intersect(rect);
    if (!common.IsEmpty())
        return common;
    const wxSize size(std::min(rect.width, area.width), std::min(rect.height, area.height));
    return wxRect(wxPoint(std::max(area.x, std::min(rect.x, area.x + area.width - size.x)),
                          std::max(area.y, std::min(rect.y, area.y + area.height - size.y))),
                  size);
}

// Brings a window into the work area of its display. A window that is on no display is first moved to (0, 0). Returns
// false if it is on no display even there.
bool BringOntoDisplay(wxWindow& window)
{
    if (DisplayOf(window) == wxNOT_FOUND)
        window.SetSize(0, 0, -1, -1, wxSIZE_USE_EXISTING);
    const int display = DisplayOf(window);
    if (display == wxNOT_FOUND)
        return false;

    const wxRect area = wxDisplay(static_cast<unsigned>(display)).GetClientArea();
    wxRect rect(window.GetPosition(), window.GetSize());
    // A window without a position is compared as if it lay in the area's top left corner. If the window fits into the
    // area, the window manager chooses its place.
    if (rect.GetPosition() == wxDefaultPosition)
        rect.SetPosition(area.GetPosition());
    if (!area.Contains(rect))
        window.SetSize(FitInto(area, rect), wxSIZE_AUTO);
    return true;
}

}  // namespace

int fittings::ToPixels(long stored)
{
    return static_cast<int>(std::clamp(stored, -kFarthest, kFarthest));
}

bool fittings::RestoreGeometry(wxWindow& window, const wxRect& stored)
{
    if (stored.width > kTooSmall && stored.height > kTooSmall) {
        window.SetSize(stored, wxSIZE_ALLOW_MINUS_ONE);
        // Set the position again: the window may have moved when its size changed.
        window.SetSize(stored.x, stored.y, -1, -1, wxSIZE_USE_EXISTING);
        if (auto* const topLevel = dynamic_cast<wxTopLevelWindow*>(&window))
            KeepPlace(*topLevel);
    }
    return BringOntoDisplay(window);
}

bool fittings::CoversWorkArea(const wxRect& rect)
{
    for (unsigned n = 0; n < wxDisplay::GetCount(); ++n) {
        if (rect.Contains(wxDisplay(n).GetClientArea()))
            return true;
    }
    return false;
}

wxSize fittings::SizeWithoutDecorations(const wxTopLevelWindow& window)
{
    const auto& decorations = window.m_decorSize;
    return window.GetSize() - wxSize(decorations.left + decorations.right, decorations.top + decorations.bottom);
}
