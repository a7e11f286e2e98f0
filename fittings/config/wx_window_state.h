#ifndef FITTINGS_CONFIG_WX_WINDOW_STATE_H_
#define FITTINGS_CONFIG_WX_WINDOW_STATE_H_

#include <fittings/base/export.h>
#include <fittings/platform/text_argument.h>

class wxAuiManager;
class wxFrame;
class wxWindow;

/// Window geometry, a frame's maximised state and AUI layouts, each kept under a name of the caller's choosing.
///
/// Call the load functions once the window or all panes exist and before the window is shown, layouts with floating
/// panes once it is shown; call the save functions when it closes. Geometry and the maximised state live in the
/// default store, sections "wxWindowState" and "wxWindowMaximize"; layouts in the file "wxAuiManagerState.ini" of
/// ui_config_mgr. GUI thread only.
///
/// Windows and managers must not be null; a null name counts as an empty one. A name may be text of any kind, as
/// fittings::TextArgument takes it. Failures to save are not reported.
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

/// Stores position and outer size in pixels: relative to the parent for a child window, on the screen for a top-level
/// one. A hidden or iconized window is stored as the toolkit reports it.
FITTINGS_API void SaveState(wxWindow* window, const wchar_t* name);

/// Stores the geometry as for any window, then whether the frame is maximised. The geometry of a maximised frame is
/// the maximised one.
FITTINGS_API void SaveState(wxFrame* frame, const wchar_t* name);

/// Gives a window its stored geometry and brings it onto a display.
///
/// A stored width or height of 10 or less leaves the window's own geometry. A window off every display moves to
/// (0, 0); one that reaches out of its display's work area is clipped to it, and one that is wholly outside of that
/// area, under a panel, moves into it. Numbers beyond the 16 bits of an X display count as the largest of these.
///
/// A hidden window comes back in its place when it is shown, the first one of a process too, under any window manager
/// that lets programs place their windows. wxWindow::Show() is all that it takes.
///
/// Meant for top-level windows: a child's position in its parent is measured against the work area as it is.
///
/// Returns false, and changes nothing, when there is no stored geometry or it is not four integers. Returns false too
/// for a window that is on no display even at (0, 0), where it stays.
FITTINGS_API bool LoadState(wxWindow* window, const wchar_t* name);

/// As for any window; a frame that was stored maximised is then maximised by MaximizeFrame().
FITTINGS_API bool LoadState(wxFrame* frame, const wchar_t* name);

/// Maximises the frame on a later turn of the event loop, so that it may still be hidden when this is called.
FITTINGS_API void MaximizeFrame(wxFrame* frame);

/// Puts the window's top right corner one pixel inside the reference's on the screen, keeping its size. Beside a
/// reference narrower than 800 pixels half of the window sticks out to the right.
FITTINGS_API void MoveWindowToRightCorner(wxWindow* window, wxWindow* reference);

/// Stores the positions, sizes and captions of the manager's panes, as wxAuiManager::SavePerspective() gives them.
FITTINGS_API void SaveAuiManagerState(wxAuiManager* manager, const wchar_t* name);

/// Restores a stored layout and updates the window; returns false, and changes nothing, when there is none.
///
/// A text that the toolkit cannot have written counts as none: one that is cut or damaged, and one with more rows or
/// layers than the toolkit lays out at once. wxAuiManager::LoadPerspective() asserts on some of these, and never comes
/// to an end with others.
///
/// As wxAuiManager::LoadPerspective() has it, panes that the stored layout does not name are hidden, and captions come
/// back as they were stored. It cannot read back a caption with a ";", or with a "\" before a "|": keep these out of
/// captions.
///
/// A floating pane is shown at once, and before the frame is on the screen a window manager does not keep it above the
/// frame. Where panes can float, load the layout when GTK reports the frame mapped ("map-event"), before it is drawn.
FITTINGS_API bool LoadAuiManagerState(wxAuiManager* manager, const wchar_t* name);

/// @name With names of any kind
/// @{

/// As the function of a wide name, for the window's own class.
template <typename Window, typename Name, fittings::IfTexts<1, Name> = 0>
void SaveState(Window* window, const Name& name)
{
    SaveState(window, fittings::TextArgument(name));
}

/// As the function of a wide name, for the window's own class.
template <typename Window, typename Name, fittings::IfTexts<1, Name> = 0>
bool LoadState(Window* window, const Name& name)
{
    return LoadState(window, fittings::TextArgument(name));
}

/// As the function of a wide name.
template <typename Name, fittings::IfTexts<1, Name> = 0>
void SaveAuiManagerState(wxAuiManager* manager, const Name& name)
{
    SaveAuiManagerState(manager, fittings::TextArgument(name));
}

/// As the function of a wide name.
template <typename Name, fittings::IfTexts<1, Name> = 0>
bool LoadAuiManagerState(wxAuiManager* manager, const Name& name)
{
    return LoadAuiManagerState(manager, fittings::TextArgument(name));
}

/// @}

}  // namespace wx_window_state

#endif
