#ifndef FITTINGS_COLOUR_COLOUR_COMBO_H_
#define FITTINGS_COLOUR_COLOUR_COMBO_H_

#include <wx/bitmap.h>
#include <wx/combo.h>
#include <wx/gdicmn.h>
#include <wx/longlong.h>
#include <wx/timer.h>

#include <fittings/base/export.h>

namespace fittings {
class OutlineWindow;
}

/// A combo control whose popup opens with an animation: a black outline grows from the middle of the popup's place to
/// its full size. Made for a wxColourPopup, and works with any other popup as well.
///
/// @code
/// class LinePage : public wxPanel, private wxColorPopupListener
/// {
/// public:
///     explicit LinePage(wxWindow* parent) : wxPanel(parent)
///     {
///         auto* const combo = new wxColourCombo;
///         combo->Create(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxCB_READONLY);
///         auto* const popup = new wxColourPopup;
///         popup->SetInitialColour(m_line);
///         popup->SetColorListener(this);
///         combo->SetPopupControl(popup);
///     }
///
/// private:
///     void OnColourSelEnd(const wxColour& colour) override { m_line = colour; }
///
///     wxColour m_line = *wxBLUE;
/// };
/// @endcode
///
/// The face shows the colour in effect. The control is reached by Tab and opened by F4 and Alt+Down, with wxCB_READONLY
/// too; the toolkit's own combo control refuses the focus then.
///
/// A screen reader says the colour in effect by its name, and before it the static text that is made before the control,
/// whose mnemonic leads to the control, or what SetLabel() gives it. In the open popup it says the name of each hot cell.
///
/// Where no program may place its windows or copy the screen, as on Wayland, the popup opens at once. Closing the popup
/// while the animation runs ends the animation, and the popup is shown all the same. Keys have no effect until then.
/// wxComboCtrl::EnablePopupAnimation() turns the animation off.
///
/// wxEVT_COMBOBOX_DROPDOWN comes when it opens. wxEVT_COMBOBOX_CLOSEUP comes when it is dismissed from outside, and not when
/// the popup closes itself because a colour was chosen or the selection cancelled: the popup's listener hears of every end.
/// The control holds the names of colours, and sends wxEVT_TEXT, as the toolkit's does: with a text field only. A popup
/// that is dismissed by the button or by Dismiss() with a cell hot makes the field tell of that cell's name and at once of
/// its old text again.
///
/// The toolkit's class queries take this class for a wxComboCtrl, and wxColourPopup for a wxWindow: wxDynamicCast() to
/// either of them would succeed for others too. Use dynamic_cast.
///
/// GUI thread only.
class FITTINGS_API wxColourCombo : public wxComboCtrl
{
public:
    /// Makes the object; the control itself comes with Create(), the popup with SetPopupControl(), which takes it over.
    wxColourCombo();
    ~wxColourCombo() override;

    /// Takes the control off the screen and deletes it when no event is under way, so that a listener of its popup may
    /// call this. A control that is deleted in another way must not be so from within one of its own events.
    bool Destroy() override;

    /// Opens the popup; asserts and does nothing before SetPopupControl().
    void ShowPopup() override;

    /// Leaves the popup out of what the focus is passed on to, which would make the control refuse it.
    bool IsClientAreaChild(const wxWindow* child) const override;

    /// Tells assistive technologies of the colour in effect.
    void OnInternalIdle() override;

    /// One step of the animation; the last one shows the popup. The event is not used. Called for the ticks of the animation's
    /// timer, which handlers of the host hear of as well, and not for those of other timers.
    void OnTimerEvent(wxTimerEvent& event);

protected:
    /// Starts the animation, and returns false: the popup is shown at its end. True, and no animation, where the screen
    /// cannot be drawn to or @a rect, in screen coordinates, is empty.
    bool AnimateShow(const wxRect& rect, int flags) override;

    /// Takes a step when the animation's timer ticks, whatever the host has bound.
    bool TryBefore(wxEvent& event) override;

    /// Draws the button, and the sign of the focus on it where there is no text field: the face is all colour.
    void DrawButton(wxDC& dc, const wxRect& rect, int flags) override;

    /// The outline after @a elapsed milliseconds, from 0 to m_animDuration, in screen coordinates. It grows in 256 steps.
    wxRect OutlineAt(int elapsed) const;

    wxLongLong m_animStart;    ///< Local time in milliseconds.
    wxTimer m_animTimer;       ///< Of the steps of the animation.
    wxRect m_animRect;         ///< Where the popup will be on the screen.
    wxBitmap m_animBitmap;     ///< What the screen showed there.
    int m_animFlags = 0;       ///< For DoShowPopup().
    int m_animDuration = 200;  ///< Milliseconds.

private:
    void DrawStep(int elapsed);
    void EndAnimation(wxWindow& popup);

    fittings::OutlineWindow* m_outline = nullptr;

    wxDECLARE_EVENT_TABLE();
};

#endif
