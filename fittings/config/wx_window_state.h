#ifndef FITTINGS_CONFIG_WX_WINDOW_STATE_H_
#define FITTINGS_CONFIG_WX_WINDOW_STATE_H_

#include <fittings/base/export.h>
#include <fittings/platform/text_argument.h>

class wxAuiManager;
class wxFrame;
class wxWindow;

/// Window geometry, a frame's maximised state and AUI layouts, each stored under a name that the caller chooses.
///
/// Load the state of a window before the window is shown. Load a layout when all panes exist. If no pane can float,
/// load it before the window is shown. If panes can float, load it when the window appears on the screen (see
/// LoadAuiManagerState()). Call the save functions when the window closes. Geometry and the maximised state are in the
/// default store, sections "wxWindowState" and "wxWindowMaximize"; layouts are in the file "wxAuiManagerState.ini" of
/// ui_config_mgr. GUI thread only.
///
/// Windows and managers must not be null. A null name counts as empty. A name may be a text of any kind: see
/// fittings::TextArgument. A failure to save is not reported.
///
/// @code
/// MainFrame::MainFrame() : wxFrame(nullptr, wxID_ANY, "Planets")
/// {
///     wx_window_state::LoadState(this, L"Main");
///     Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
///         wx_window_state::SaveState(this, L"Main");
///         event.Skip();
///     });
/// }
/// @endcode
namespace wx_window_state {

/// Stores the position and the outer size in pixels. The position is relative to the parent for a child window, and on
/// the screen for a top-level window. The values are those that the toolkit reports, even for a hidden or iconised
/// window.
FITTINGS_API void SaveState(wxWindow* window, const wchar_t* name);

/// Stores the geometry as for any window, and whether the frame is maximised. If the frame is maximised, its maximised
/// geometry is stored.
FITTINGS_API void SaveState(wxFrame* frame, const wchar_t* name);

/// Gives a window its stored geometry and moves it onto a display.
///
/// If the stored width or height is 10 or less, the window keeps its own geometry. A window that is on no display moves
/// to (0, 0). If only a part of the window lies in its display's work area, the window gets the place and size of that
/// part. A window that is wholly outside the area, for example under a panel of the desktop, moves into the area.
/// Numbers beyond the 16 bits of an X coordinate are limited to that range.
///
/// A hidden window appears in its place when the host calls wxWindow::Show(); no other call is needed. This is also
/// true for the first window of a process, under any window manager that lets programs place their windows.
///
/// The function is meant for top-level windows. It compares a child's position with the work area too, although that
/// position is relative to the parent.
///
/// Returns false if no geometry is stored, or if the stored text is not four integers. The window then keeps its place
/// and size. Also returns false if the window is on no display even at (0, 0). The window then stays there.
FITTINGS_API bool LoadState(wxWindow* window, const wchar_t* name);

/// Does the same as the overload for a wxWindow. If that returns true and the frame was stored as maximised, also calls
/// MaximizeFrame().
FITTINGS_API bool LoadState(wxFrame* frame, const wchar_t* name);

/// Maximises the frame on a later turn of the event loop, so the frame may still be hidden when this is called.
FITTINGS_API void MaximizeFrame(wxFrame* frame);

/// Moves the window so that its top right corner is one pixel to the left of the reference's top right corner on the
/// screen. The window keeps its size. If the reference is narrower than 800 pixels, half of the window extends past the
/// reference's right edge instead.
FITTINGS_API void MoveWindowToRightCorner(wxWindow* window, wxWindow* reference);

/// Stores the positions, sizes and captions of the manager's panes, as wxAuiManager::SavePerspective() returns them.
FITTINGS_API void SaveAuiManagerState(wxAuiManager* manager, const wchar_t* name);

/// Restores a stored layout and updates the window. Returns false and changes nothing when no layout is stored.
///
/// A stored text counts as missing if it is cut off or damaged, or if it has more rows or layers than the toolkit lays
/// out quickly. wxAuiManager::LoadPerspective() asserts on some of these texts, and does not return for others.
///
/// As in wxAuiManager::LoadPerspective(), panes that the stored layout does not name are hidden, and captions are
/// restored as they were stored. LoadPerspective() cannot read a caption with a ";" or with a "\" before a "|": do not
/// use these in captions.
///
/// A floating pane is shown at once. Before the frame is on the screen, a window manager does not keep the pane above
/// the frame. If panes can float, load the layout when GTK reports the frame as mapped ("map-event"). At that moment,
/// the frame is not drawn yet.
FITTINGS_API bool LoadAuiManagerState(wxAuiManager* manager, const wchar_t* name);

/// @name With names of any kind
/// @{

/// Does the same as the overload for a wide name and the same class of window.
template <typename Window, typename Name, fittings::IfTexts<1, Name> = 0>
void SaveState(Window* window, const Name& name)
{
    SaveState(window, fittings::TextArgument(name));
}

/// Does the same as the overload for a wide name and the same class of window.
template <typename Window, typename Name, fittings::IfTexts<1, Name> = 0>
bool LoadState(Window* window, const Name& name)
{
    return LoadState(window, fittings::TextArgument(name));
}

/// Does the same as the overload for a wide name.
template <typename Name, fittings::IfTexts<1, Name> = 0>
void SaveAuiManagerState(wxAuiManager* manager, const Name& name)
{
    SaveAuiManagerState(manager, fittings::TextArgument(name));
}

/// Does the same as the overload for a wide name.
template <typename Name, fittings::IfTexts<1, Name> = 0>
bool LoadAuiManagerState(wxAuiManager* manager, const Name& name)
{
    return LoadAuiManagerState(manager, fittings::TextArgument(name));
}

/// @}

}  // namespace wx_window_state

#endif
