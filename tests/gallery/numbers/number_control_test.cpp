// The wxNumberCtrl of the page of numbers.

#include <fittings/numedit/number_ctrl.h>
#include <tests/gallery/numbers/numbers_page_fixture.h>

namespace {

using namespace gallery::simulated_user;

TEST_F(NumbersPageTest, TheControlTellsItsNumberAtEachKey)
{
    const wxNumberCtrl& control = Get<wxNumberCtrl>("NumberCtrl");
    EXPECT_EQ(Label("NumberCtrlNumber"), L"\u2713 1234.5");
    Press('A', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("NumberCtrl"));
    Press('A', wxMOD_CONTROL);
    Type("-12x345.67");
    EXPECT_TRUE(PumpUntil([&] { return Label("NumberCtrlNumber") == L"\u2713 -12345.67"; }));
    // When the format changes, the control shows its number in the new format.
    Press('P', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("DecimalPoint"));
    Type(",");
    EXPECT_TRUE(PumpUntil([&] { return control.GetValue() == "12,345,67-"; })) << control.GetValue();
    EXPECT_EQ(Label("NumberCtrlNumber"), L"\u2713 -12345.67");
    OpenNextSession();
    EXPECT_EQ(Label("NumberCtrlNumber"), L"\u2713 -12345.67");
}

TEST_F(NumbersPageTest, TheControlTellsWhyANumberIsBeyondTheBounds)
{
    Press('U', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return Get<wxTextCtrl>("Max").IsEnabled(); }));
    Press(WXK_TAB);
    ASSERT_TRUE(FocusComesTo("Max"));
    Type("20");
    EXPECT_TRUE(PumpUntil([&] {
        return Label("NumberCtrlNumber") == L"\u2717 The number is too high: the highest is 20.00.";
    })) << Label("NumberCtrlNumber");
    Press('A', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("NumberCtrl"));
    Press('A', wxMOD_CONTROL);
    Press(WXK_BACK);
    EXPECT_TRUE(PumpUntil([&] { return Label("NumberCtrlNumber").empty(); })) << Label("NumberCtrlNumber");
    Type("-");
    EXPECT_TRUE(PumpUntil([&] { return Label("NumberCtrlNumber") == L"\u2717 The number is not complete."; }))
        << Label("NumberCtrlNumber");
    Type("\b19");
    EXPECT_TRUE(PumpUntil([&] { return Label("NumberCtrlNumber") == L"\u2713 19"; })) << Label("NumberCtrlNumber");
}

}  // namespace
