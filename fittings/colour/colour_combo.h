#ifndef FITTINGS_COLOUR_COLOUR_COMBO_H_
#define FITTINGS_COLOUR_COLOUR_COMBO_H_

#include <memory>
#include <type_traits>

#include <wx/bitmap.h>
#include <wx/clrpicker.h>
#include <wx/colour.h>
#include <wx/combo.h>
#include <wx/gdicmn.h>
#include <wx/longlong.h>
#include <wx/timer.h>

#include <fittings/base/export.h>

class wxColourPopup;

namespace fittings {
class ClickWatch;
class OutlineWindow;
}  // namespace fittings

/// A drop-down for a colour. It stands where a wxColourPickerCtrl may stand, and sends its events.
///
/// @code
/// class LinePage : public wxPanel
/// {
/// public:
///     explicit LinePage(wxWindow* parent) : wxPanel(parent)
///     {
///         auto* const combo = new wxColourCombo(this, wxID_ANY, m_line);
///         combo->Bind(wxEVT_COLOURPICKER_CHANGED, [this](wxColourPickerEvent& event) { m_line = event.GetColour(); });
///     }
///
/// private:
///     wxColour m_line = *wxBLUE;
/// };
/// @endcode
///
/// It is a combo control whose popup opens with an animation: a black outline grows from the middle of the popup's
/// place to its full size. The popup is a wxColourPopup, which the constructor with a colour and Create() with a colour
/// make; one of a class of the host's, or any other, is set by SetPopupControl() on a control that is made without a
/// colour.
///
/// The face shows the colour in effect. The control is reached by Tab and opened by F4 and Alt+Down, with wxCB_READONLY
/// too; the toolkit's own combo control refuses the focus then. While it is closed, has the focus and is read-only, Up
/// and Down choose the colour before and the one after: "Automatic" and the grid row by row. So does the mouse wheel.
///
/// The events are those of wxColourPickerCtrl, with the control's id. They come after the calls of the
/// popup's listener:
/// - wxEVT_COLOURPICKER_CURRENT_CHANGED, with the colour of each cell that becomes hot while the popup is open.
/// - wxEVT_COLOURPICKER_CHANGED, with the colour that was chosen, be it the one that was in effect.
/// - wxEVT_COLOURPICKER_DIALOG_CANCELLED, with the colour that stays, when the popup closes without a choice or the
///   dialog of "More Colours..." is cancelled. A control that is being destroyed sends none.
///
/// A screen reader says the colour in effect by its name, and before it the static text that is made before the
/// control, whose mnemonic leads to the control, or what SetLabel() gives it. In the open popup it says the name of
/// each hot cell.
///
/// Where no program may place its windows or copy the screen, as on Wayland, the popup opens at once. Closing the popup
/// while the animation runs ends the animation, and the popup is shown all the same; nobody hears of an end before the
/// popup closes again. A click on another of the program's windows, or in the text field, ends the animation, too, and
/// dismisses the popup as soon as it is shown. Keys have no effect until then. wxComboCtrl::EnablePopupAnimation()
/// turns the animation off.
///
/// wxEVT_COMBOBOX_DROPDOWN comes when it opens. wxEVT_COMBOBOX_CLOSEUP comes when it is dismissed from outside, and not
/// when the popup closes itself because a colour was chosen or the selection cancelled: the popup's listener hears of
/// every end. The control holds the names of colours, and sends wxEVT_TEXT, as the toolkit's does: with a text field
/// only. A popup that is dismissed by the button or by Dismiss() with a cell hot makes the field tell of that cell's
/// name and at once of its old text again.
///
/// The toolkit's class queries take this class for a wxComboCtrl, and wxColourPopup for a wxWindow: wxDynamicCast() to
/// either of them would succeed for others too. Use dynamic_cast.
///
/// GUI thread only.
class FITTINGS_API wxColourCombo : public wxComboCtrl
{
public:
    /// Makes the object alone; the control comes with Create().
    wxColourCombo();

    /// Makes the control and its popup. @a colour is the one in effect, black where it is invalid; the rest is
    /// wxComboCtrl's. With a @a style without wxCB_READONLY there is a text field for the colour's name.
    wxColourCombo(wxWindow* parent, wxWindowID id, const wxColour& colour = *wxBLACK,
                  const wxPoint& pos = wxDefaultPosition, const wxSize& size = wxDefaultSize,
                  long style = wxCB_READONLY, const wxValidator& validator = wxDefaultValidator,
                  const wxString& name = wxASCII_STR(wxComboBoxNameStr));

    ~wxColourCombo() override;

    /// The toolkit's own, with a text and without a popup: SetPopupControl() sets it and takes it over.
    using wxComboCtrl::Create;

    /// Makes the control and its popup, as the constructor with a colour does, of an object that was made without.
    ///
    /// For a wxColour alone: texts are those of the text field, as with the toolkit's.
    template <typename Colour, typename = std::enable_if_t<std::is_base_of_v<wxColour, Colour>>>
    bool Create(wxWindow* parent, wxWindowID id, const Colour& colour, const wxPoint& pos = wxDefaultPosition,
                const wxSize& size = wxDefaultSize, long style = wxCB_READONLY,
                const wxValidator& validator = wxDefaultValidator,
                const wxString& name = wxASCII_STR(wxComboBoxNameStr))
    {
        return CreateWithColour(parent, id, colour, pos, size, style, validator, name);
    }

    /// The colour in effect; an invalid one while there is no wxColourPopup.
    wxColour GetColour() const;

    /// Makes @a colour, or the one that a text names as wxColour::Set() reads it, the colour in effect.
    ///
    /// The face, the text, the chosen cell and the mark of "Automatic" follow at once, and no event is sent. While the
    /// popup is open, it stays in effect when nothing is chosen. False, and nothing changes, for an invalid colour and
    /// while there is no wxColourPopup.
    bool SetColour(const wxColour& colour);

    /// Sets the colour that "Automatic" stands for; black at first. "Automatic" is marked from now on if this is the
    /// colour in effect, which stays as it is.
    ///
    /// False, and nothing changes, for an invalid colour and while there is no wxColourPopup.
    bool SetAutomaticColour(const wxColour& colour);

    /// The popup, for its other settings; null while there is none or it is no wxColourPopup.
    wxColourPopup* GetPopup() const;

    /// Takes the control off the screen and deletes it when no event is under way, so that a listener of its popup may
    /// call this. A control that is deleted in another way must not be so from within one of its own events.
    bool Destroy() override;

    /// Sends wxEVT_COMBOBOX_DROPDOWN and opens the popup. Does nothing while the popup opens.
    void Popup() override;

    /// Opens the popup; asserts and does nothing without one.
    void ShowPopup() override;

    /// Closes the popup; one that is opening is shown all the same.
    void HidePopup(bool generateEvent = false) override;

    /// Leaves the popup out of what the focus is passed on to, which would make the control refuse it.
    bool IsClientAreaChild(const wxWindow* child) const override;

    /// Tells assistive technologies of the colour in effect.
    void OnInternalIdle() override;

    /// One step of the animation; the last one shows the popup. The event is not used. Called for the ticks of the
    /// animation's timer, which handlers of the host hear of as well, and not for those of other timers.
    void OnTimerEvent(wxTimerEvent& event);

protected:
    /// Starts the animation, and returns false: the popup is shown at its end. True, and no animation, where the screen
    /// cannot be drawn to or @a rect, in screen coordinates, is empty.
    bool AnimateShow(const wxRect& rect, int flags) override;

    /// Takes the popup over. A popup that is opening is replaced by it and hears of its end.
    void DoSetPopupControl(wxComboPopup* popup) override;

    /// Takes a step when the animation's timer ticks, whatever the host has bound.
    bool TryBefore(wxEvent& event) override;

    /// Draws the button, and the sign of the focus on it where there is no text field: the face is all colour.
    void DrawButton(wxDC& dc, const wxRect& rect, int flags) override;

    /// The outline after @a elapsed milliseconds, from 0 to m_animDuration, in screen coordinates. It grows in 256
    /// steps.
    wxRect OutlineAt(int elapsed) const;

    wxLongLong m_animStart;    ///< Local time in milliseconds.
    wxTimer m_animTimer;       ///< Of the steps of the animation.
    wxRect m_animRect;         ///< Where the popup will be on the screen.
    wxBitmap m_animBitmap;     ///< What the screen showed there.
    int m_animFlags = 0;       ///< For DoShowPopup().
    int m_animDuration = 200;  ///< Milliseconds.

private:
    bool CreateWithColour(wxWindow* parent, wxWindowID id, const wxColour& colour, const wxPoint& pos,
                          const wxSize& size, long style, const wxValidator& validator, const wxString& name);
    void DrawStep(int elapsed);
    void EndAnimation(wxWindow& popup);
    void DismissOpening();

    fittings::OutlineWindow* m_outline = nullptr;
    const std::unique_ptr<fittings::ClickWatch> m_clicks;  ///< While the animation runs.

    wxDECLARE_EVENT_TABLE();
};

#endif
