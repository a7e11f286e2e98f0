// The outline that grows while the popup opens.

#include <gtest/gtest.h>

#include <tests/colour/combo_on_screen.h>

namespace {

struct Outline
{
    int elapsed;
    wxRect expected;
};

TEST(ColourComboAnimation, GrowsTheOutlineFromTheMiddle)
{
    OpenCombo combo;
    combo.m_animRect = wxRect(100, 200, 148, 162);
    for (const Outline& outline : {Outline{0, wxRect(174, 281, 0, 0)}, Outline{50, wxRect(156, 261, 37, 40)},
                                   Outline{100, wxRect(137, 241, 74, 81)}, Outline{199, wxRect(101, 202, 146, 159)}})
        EXPECT_EQ(combo.OutlineAt(outline.elapsed), outline.expected) << outline.elapsed;
}

TEST(ColourComboAnimation, ShowsThePopupAtItsEnd)
{
    ComboOnScreen<> on;
    ASSERT_TRUE(ShowAndSettle(on.frame));
    on.combo->Popup();
    EXPECT_TRUE(on.combo->m_animTimer.IsRunning());
    EXPECT_FALSE(on.combo->IsPopupShown());
    EXPECT_TRUE(PumpUntil([&] { return on.combo->IsPopupShown(); }));
    EXPECT_FALSE(on.combo->m_animTimer.IsRunning());
    EXPECT_EQ(on.combo->shown.size(), 1u);
    on.combo->Dismiss();
}

}  // namespace
