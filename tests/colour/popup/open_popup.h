#ifndef FITTINGS_TESTS_COLOUR_POPUP_OPEN_POPUP_H_
#define FITTINGS_TESTS_COLOUR_POPUP_OPEN_POPUP_H_

#include <functional>

#include <wx/frame.h>

#include <fittings/colour/colour_popup.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>

/// A popup whose state a test can read and set.
class OpenPopup : public wxColourPopup
{
public:
    using wxColourPopup::m_bInternalHide;
    using wxColourPopup::m_bRefreshCombo;
    using wxColourPopup::m_crColour;
    using wxColourPopup::m_crDefaultColour;
    using wxColourPopup::m_crInitialColour;
    using wxColourPopup::m_font;
    using wxColourPopup::m_nBoxSize;
    using wxColourPopup::m_nChosenColourSel;
    using wxColourPopup::m_nCurrentSel;
    using wxColourPopup::m_nMargin;
    using wxColourPopup::m_nNumColours;
    using wxColourPopup::m_nNumColumns;
    using wxColourPopup::m_nNumRows;
    using wxColourPopup::m_palette;
    using wxColourPopup::m_pCenterOn;
    using wxColourPopup::m_pListener;
    using wxColourPopup::m_rectAutomatic;
    using wxColourPopup::m_rectMoreColours;
    using wxColourPopup::m_rectWindow;
    using wxColourPopup::m_strAutomatic;
    using wxColourPopup::m_strMoreColours;
    using wxColourPopup::m_strToolTip;
};

/// A popup in a window, without a combo. The destructor destroys both.
class PopupInFrame
{
public:
    /// Calls @a prepare with the popup before Create().
    explicit PopupInFrame(const std::function<void(OpenPopup&)>& prepare = {})
        : frame(new wxFrame(nullptr, wxID_ANY, "colours", wxPoint(100, 100), wxSize(300, 260))), popup(new OpenPopup)
    {
        if (prepare)
            prepare(*popup);
        popup->Create(frame);
    }

    OpenPopup* operator->() const { return popup; }

    OwnedWindow<wxFrame> frame;
    OpenPopup* popup;
};

/// Clears the texts of both boxes, which removes the boxes from the next layout.
inline void WithoutBoxes(OpenPopup& popup)
{
    popup.m_strAutomatic.clear();
    popup.m_strMoreColours.clear();
}

#endif
