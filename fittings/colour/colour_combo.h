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

/// A drop-down for a colour. It can replace a wxColourPickerCtrl and sends the same events.
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
/// place to the full size of the popup. The constructor with a colour and Create() with a colour make the popup, a
/// wxColourPopup. To use another popup, make the control without a colour and call SetPopupControl().
///
/// The face shows the colour in effect. Tab moves the focus to the control; F4 and Alt+Down open the popup. These keys
/// work with wxCB_READONLY too, although the toolkit's own combo control refuses the focus with that style. While the
/// control is closed, has the focus and is read-only, Up chooses the previous colour and Down the next one. The mouse
/// wheel does the same. The order of the colours is "Automatic", then the grid row by row.
///
/// The popup's listener is called before each event is sent. The events are those of wxColourPickerCtrl, with the
/// control's id:
/// - wxEVT_COLOURPICKER_CURRENT_CHANGED, with the colour of each cell that becomes hot while the popup is open.
/// - wxEVT_COLOURPICKER_CHANGED, with the colour that was chosen, even if it is the one that was in effect.
/// - wxEVT_COLOURPICKER_DIALOG_CANCELLED, with the colour that stays, when the popup closes without a choice or the
///   dialog of "More Colours..." is cancelled.
///
/// A control that is being destroyed sends none of these three events.
///
/// A screen reader announces the label of the control and the colour in effect. The label is the static text that is
/// created just before the control, or the text of SetLabel(). The mnemonic of that static text moves the focus to the
/// control. While the popup is open, a screen reader announces the text of each cell that becomes hot.
///
/// Where a program cannot place its windows or copy the screen, as on Wayland, the popup opens without an animation.
/// Closing the popup during the animation ends only the animation: the popup is then shown. The listener and the events
/// report the end of the selection only when the shown popup is closed. A click outside the control, or in its text
/// field, also ends the animation; the popup is then shown and dismissed at once. Keys have no effect during the
/// animation. EnablePopupAnimation(false) turns the animation off.
///
/// wxEVT_COMBOBOX_DROPDOWN is sent when the popup opens. wxEVT_COMBOBOX_CLOSEUP is sent when the popup is closed by
/// Dismiss(), by the button or by a click outside the popup. It is not sent when the popup closes itself because a
/// colour was chosen or the selection was cancelled. The popup's listener is called in all these cases.
///
/// The value of the control is the text of a cell, such as the name of a colour. As in the toolkit, wxEVT_TEXT is sent
/// only by a control with a text field. If the button or Dismiss() closes the popup while a cell is hot, the field
/// sends wxEVT_TEXT twice: with the text of that cell, and then with the old text of the field.
///
/// Use dynamic_cast: wxDynamicCast() to wxColourCombo or wxColourPopup would succeed for other objects too. The
/// toolkit's class information does not distinguish wxColourCombo from wxComboCtrl, nor wxColourPopup from wxWindow.
///
/// GUI thread only.
class FITTINGS_API wxColourCombo : public wxComboCtrl
{
public:
    /// Makes the object; Create() makes the control.
    wxColourCombo();

    /// Makes the control and its popup. @a colour becomes the colour in effect, or black if @a colour is invalid. The
    /// other parameters are those of wxComboCtrl. If @a style lacks wxCB_READONLY, the control has a text field for the
    /// colour's name.
    wxColourCombo(wxWindow* parent, wxWindowID id, const wxColour& colour = *wxBLACK,
                  const wxPoint& pos = wxDefaultPosition, const wxSize& size = wxDefaultSize,
                  long style = wxCB_READONLY, const wxValidator& validator = wxDefaultValidator,
                  const wxString& name = wxASCII_STR(wxComboBoxNameStr));

    ~wxColourCombo() override;

    /// The toolkit's Create() takes a text and makes no popup. SetPopupControl() sets the popup and takes ownership of
    /// it.
    using wxComboCtrl::Create;

    /// Makes the control and its popup as the constructor with a colour does. Call it on an object that the default
    /// constructor has made.
    ///
    /// @a colour must be a wxColour. A call with a string in its place is a call of the toolkit's Create(), which shows
    /// the string in the text field.
    template <typename Colour, typename = std::enable_if_t<std::is_base_of_v<wxColour, Colour>>>
    bool Create(wxWindow* parent, wxWindowID id, const Colour& colour, const wxPoint& pos = wxDefaultPosition,
                const wxSize& size = wxDefaultSize, long style = wxCB_READONLY,
                const wxValidator& validator = wxDefaultValidator,
                const wxString& name = wxASCII_STR(wxComboBoxNameStr))
    {
        return CreateWithColour(parent, id, colour, pos, size, style, validator, name);
    }

    /// Returns the colour in effect; an invalid one while there is no wxColourPopup.
    wxColour GetColour() const;

    /// Makes @a colour the colour in effect. A string is converted as by wxColour::Set().
    ///
    /// The face, the text, the chosen cell and the mark of "Automatic" change at once, and no event is sent. The popup
    /// may be open: @a colour then stays in effect if the user chooses nothing. Returns false and changes nothing for
    /// an invalid colour and while there is no wxColourPopup.
    bool SetColour(const wxColour& colour);

    /// Sets the colour that "Automatic" stands for; black at first. Marks "Automatic" if that colour is the one in
    /// effect, and otherwise removes the mark. The colour in effect does not change.
    ///
    /// Returns false and changes nothing for an invalid colour and while there is no wxColourPopup.
    bool SetAutomaticColour(const wxColour& colour);

    /// Returns the popup, which has more settings; null while there is no wxColourPopup.
    wxColourPopup* GetPopup() const;

    /// Hides the control and deletes it as soon as no event is being handled. A listener of its popup may therefore
    /// call this function. A handler of one of the control's events must not delete the control in another way.
    bool Destroy() override;

    /// Sends wxEVT_COMBOBOX_DROPDOWN and opens the popup. Does nothing during the animation.
    void Popup() override;

    /// Opens the popup. Does nothing during the animation. Without a popup, asserts and does nothing.
    void ShowPopup() override;

    /// Closes the popup. During the animation, ends only the animation: the popup is then shown.
    void HidePopup(bool generateEvent = false) override;

    /// Returns false for the window of the popup. The toolkit then does not count this window among the children that
    /// can take the focus in place of the control. If it counted the window, the control itself would refuse the focus.
    bool IsClientAreaChild(const wxWindow* child) const override;

    /// Describes the control to assistive technologies: its label, and the hot cell or the colour in effect.
    void OnInternalIdle() override;

    /// Makes one step of the animation; the last step shows the popup. The event is not used. The control calls this
    /// function when the animation starts, and at each tick of the animation's timer. The host's handlers receive these
    /// ticks too.
    void OnTimerEvent(wxTimerEvent& event);

protected:
    /// Starts the animation, whose last step shows the popup, and returns false. If @a rect is empty or the program
    /// cannot draw on the screen, starts no animation and returns true: the toolkit then shows the popup. @a rect is in
    /// screen coordinates.
    bool AnimateShow(const wxRect& rect, int flags) override;

    /// Takes ownership of @a popup. If the earlier popup is still opening, it is dismissed first.
    void DoSetPopupControl(wxComboPopup* popup) override;

    /// Makes a step when the animation's timer ticks, whatever handlers the host has bound.
    bool TryBefore(wxEvent& event) override;

    /// Draws the button. If the control is closed, has the focus and has no text field, also draws the focus rectangle
    /// on the button, because the face shows only the colour.
    void DrawButton(wxDC& dc, const wxRect& rect, int flags) override;

    /// Returns the outline after @a elapsed milliseconds, in screen coordinates. @a elapsed is from 0 to
    /// m_animDuration. The width of the outline is a multiple of 1/256 of the popup's width, rounded down to pixels.
    wxRect OutlineAt(int elapsed) const;

    wxLongLong m_animStart;    ///< When the animation began, in milliseconds of local time.
    wxTimer m_animTimer;       ///< Each tick makes a step.
    wxRect m_animRect;         ///< Where the popup will be on the screen.
    wxBitmap m_animBitmap;     ///< What the screen showed in m_animRect at the start.
    int m_animFlags = 0;       ///< The flags for DoShowPopup().
    int m_animDuration = 200;  ///< Milliseconds.

private:
    bool CreateWithColour(wxWindow* parent, wxWindowID id, const wxColour& colour, const wxPoint& pos,
                          const wxSize& size, long style, const wxValidator& validator, const wxString& name);
    void DrawStep(int elapsed);
    void EndAnimation(wxWindow& popup);
    void DismissOpening();

    fittings::OutlineWindow* m_outline = nullptr;
    const std::unique_ptr<fittings::ClickWatch> m_clicks;  ///< Runs during the animation.

    wxDECLARE_EVENT_TABLE();
};

#endif
