// The control in a right-to-left program: a click chooses the colour that is shown at that place.

#include <vector>

#include <gtest/gtest.h>

#include <wx/uiaction.h>

#include <fittings/colour/colour_table.h>
#include <tests/colour/combo/combo_on_screen.h>
#include <tests/colour/screen.h>

namespace {

// Waits until the screen shows an area of @a colour. Returns a point in this area; wxDefaultPosition if it does not
// appear.
wxPoint PlaceOf(const wxColour& colour)
{
    const wxRect where(wxGetDisplaySize());
    wxPoint place = wxDefaultPosition;
    EXPECT_TRUE(PumpUntil([&] {
        const wxImage image = GrabScreen(where);
        for (int y = 4; y < image.GetHeight() - 4; ++y)
            for (int x = 4; x < image.GetWidth() - 4; ++x) {
                const auto has = [&](int dx, int dy) {
                    return image.GetRed(x + dx, y + dy) == colour.Red() &&
                           image.GetGreen(x + dx, y + dy) == colour.Green() &&
                           image.GetBlue(x + dx, y + dy) == colour.Blue();
                };
                if (has(-4, -4) && has(4, 4) && has(0, 0) && has(-4, 4) && has(4, -4)) {
                    place = wxPoint(x, y);
                    return true;
                }
            }
        return false;
    })) << colour.GetAsString();
    return place;
}

TEST(RightToLeft, TheColourClickedIsTheOneSeenThere)
{
    const ComboOnScreen<> screen;
    for (wxWindow* const window : std::vector<wxWindow*>{screen.frame, screen.panel, screen.combo, screen.popup})
        window->SetLayoutDirection(wxLayout_RightToLeft);
    ASSERT_TRUE(ShowAndSettle(screen.frame));
    for (const int index : {1, 6, 17, 20, 27}) {
        ASSERT_TRUE(Opens(*screen.combo));
        PumpPending();
        const wxColour colour = screen.popup->GetColour(index);
        PointTo(PlaceOf(colour));
        EXPECT_TRUE(PumpUntil([&] { return screen.popup->m_nCurrentSel == index; }))
            << index << " and not " << screen.popup->m_nCurrentSel;
        wxUIActionSimulator().MouseClick();
        EXPECT_TRUE(PumpUntil([&] { return !screen.combo->IsPopupShown(); }));
        EXPECT_EQ(screen.combo->GetValue(), GetColourName(index));
        // The face of the combo shows the colour.
        PointTo(wxPoint(5, 5));
        EXPECT_NE(PlaceOf(colour), wxDefaultPosition);
    }
}

}  // namespace
