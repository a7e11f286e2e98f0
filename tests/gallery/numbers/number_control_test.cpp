// The wxNumberCtrl of the page of numbers.

#include <fittings/numedit/number_ctrl.h>
#include <tests/gallery/numbers/numbers_page_fixture.h>

namespace {

using namespace gallery::simulated_user;

TEST_F(NumbersPageTest, TheControlTellsItsNumberAtEachKey)
{
    const wxNumberCtrl& control = Get<wxNumberCtrl>("NumberCtrl");
    EXPECT_EQ(Label("NumberCtrlNumber"), L"\u2713 1234.5");
    GoTo("NumberCtrl", 'A');
    Press('A', wxMOD_CONTROL);
    Type("-12x345.67");
    EXPECT_TRUE(PumpUntil([&] { return Label("NumberCtrlNumber") == L"\u2713 -12345.67"; }));
    // When the format changes, the control shows its number in the new format.
    GoTo("DecimalPoint", 'P');
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
    GoTo("Max", WXK_TAB, wxMOD_NONE);
    Type("20");
    EXPECT_TRUE(PumpUntil([&] {
        return Label("NumberCtrlNumber") == L"\u2717 The number is too high: the highest is 20.00.";
    })) << Label("NumberCtrlNumber");
    GoTo("NumberCtrl", 'A');
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
