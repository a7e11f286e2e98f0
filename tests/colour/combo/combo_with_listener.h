#ifndef FITTINGS_TESTS_COLOUR_COMBO_COMBO_WITH_LISTENER_H_
#define FITTINGS_TESTS_COLOUR_COMBO_COMBO_WITH_LISTENER_H_

#include <gtest/gtest.h>

#include <tests/colour/colour_listener.h>
#include <tests/colour/combo/combo_on_screen.h>

/// A combo on the screen, and the listener of its popup. The popup opens without an animation.
class ComboWithListener
{
protected:
    explicit ComboWithListener(const wxColour& colour, long style = wxCB_READONLY)
        : on(style, [&colour](OpenPopup& popup) { popup.SetInitialColour(colour); })
    {
        on.combo->hidden.clear();
        on.popup->SetColorListener(&listener);
        on.combo->EnablePopupAnimation(false);
        EXPECT_TRUE(ShowAndSettle(on.frame));
    }

    void Open() const { ASSERT_TRUE(Opens(*on.combo)); }

    /// Opens the popup, makes the cell @a index hot, and ends the selection: chooses the cell if @a ok is true, cancels
    /// otherwise.
    void Select(int index, bool ok) const
    {
        Open();
        on.popup->ChangeSelection(index);
        on.popup->EndSelection(ok);
    }

    ColourListener listener;  // must outlive the popup, whose destruction may call it
    const ComboOnScreen<> on;
};

#endif
