// The page's field for the number, its buttons, and the results that the page shows for the number.

#include <wx/button.h>
#include <wx/checkbox.h>

#include <tests/gallery/numbers/numbers_page_fixture.h>

namespace {

using namespace gallery::simulated_user;

TEST_F(NumbersPageTest, TheFieldRefusesWhatTheFormatDoes)
{
    TypeNumber("x-123456.789");
    EXPECT_EQ(Number().GetValue(), "-12345.78");
    EXPECT_EQ(Result("FormatControlText"), "12,345.78-");
    // The field uses the new format at once.
    Press('S', wxMOD_ALT);
    Press('I', wxMOD_ALT);
    TypeNumber("-123456.789");
    EXPECT_EQ(Number().GetValue(), "123456.78");
}

TEST_F(NumbersPageTest, ResultsFollowEachKey)
{
    TypeNumber("0");
    EXPECT_EQ(Result("CutZeros"), "0");
    Type(".5");
    EXPECT_EQ(Result("CutZeros"), "0.5");
    EXPECT_EQ(Result("GroupDigits"), "0.5");
    EXPECT_EQ(Result("FormatControlText"), "0.50");
    Type("0");
    EXPECT_EQ(Result("CutZeros"), "0.5");
    EXPECT_EQ(Result("GroupDigits"), "0.50");
    TypeNumber("12345");
    EXPECT_EQ(Result("CutZeros"), "12345");
    EXPECT_EQ(Result("GroupDigits"), "12,345");
    EXPECT_EQ(Result("FormatControlText"), "12,345.00");
    TypeNumber("");
    EXPECT_EQ(Result("CutZeros"), "0");
    EXPECT_EQ(Result("FormatControlText"), "");
}

// While 0.05 is being typed, the value is below the minimum.
TEST_F(NumbersPageTest, VerdictsWhileTypingAndOnTheWholeDiffer)
{
    Press('M', wxMOD_ALT);
    GoTo("Min", WXK_TAB, wxMOD_NONE);
    Type("0.01");
    TypeNumber("0.0");
    EXPECT_EQ(Number().GetValue(), "0.0");
    EXPECT_EQ(Result("ValidateInput"), L"\u2713 accepted");
    EXPECT_EQ(Result("ValidateString"), L"\u2717 refused");
    Type("5");
    EXPECT_EQ(Result("ValidateString"), L"\u2713 accepted");
}

TEST_F(NumbersPageTest, AnAcceptedNumberIsKeptAndBroughtBack)
{
    TypeNumber("12.5");
    Press('C', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return frame->GetNumbers()->GetKept() == "12.5"; }));
    EXPECT_EQ(Label("Kept"), "Kept: 12.5");
    TypeNumber("77");
    EXPECT_EQ(frame->GetNumbers()->GetKept(), "12.5");
    Press('K', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return Number().GetValue() == "12.5"; }));
    EXPECT_TRUE(FocusComesTo("Number"));
}

TEST_F(NumbersPageTest, ARefusedNumberIsNotKept)
{
    TypeNumber("12.5");
    Press('C', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return frame->GetNumbers()->GetKept() == "12.5"; }));
    Number().SetValue("1.234");
    Click(CentreOf(WindowRect(Get<wxButton>("Keep"))));
    EXPECT_TRUE(PumpUntil([&] { return Label("Kept") == "Not accepted, so not kept."; }));
    EXPECT_EQ(frame->GetNumbers()->GetKept(), "12.5");
    EXPECT_TRUE(FocusComesTo("Number"));
}

TEST_F(NumbersPageTest, WithoutValidatorAnythingIsTypedAndJudged)
{
    Press('W', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return !Get<wxCheckBox>("Validates").GetValue(); }));
    EXPECT_FALSE(Get<wxButton>("Keep").IsEnabled());
    EXPECT_FALSE(Get<wxButton>("BringBack").IsEnabled());
    TypeNumber("12abc");
    EXPECT_EQ(Number().GetValue(), "12abc");
    EXPECT_EQ(Result("ValidateInput"), L"\u2717 refused");
    EXPECT_EQ(Result("FormatControlText"), "12");
    Press('W', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return Get<wxCheckBox>("Validates").GetValue(); }));
    TypeNumber("x3");
    EXPECT_EQ(Number().GetValue(), "3");
}

}  // namespace
