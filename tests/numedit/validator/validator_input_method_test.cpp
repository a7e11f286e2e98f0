// Text that an input method commits to a control with a wxNumValidator after the key events.

#include <gtest/gtest.h>

#include <tests/numedit/late_input_method.h>
#include <tests/numedit/validator/number_dialog.h>

namespace {

class TypingByAnInputMethod : public testing::Test
{
protected:
    NumberOnScreen screen{FixedFormat()};
    LateInputMethod method;
};

TEST_F(TypingByAnInputMethod, TakesDigits)
{
    method.Compose(screen, "12");
    EXPECT_EQ(screen.Text(), L"");
    method.Commit();
    screen.ExpectTextWithoutBell(L"12");
}

// The toolkit sends no char event for a committed text, so only Validate() checks the text.
TEST_F(TypingByAnInputMethod, IsRefusedByValidateIfItIsNoNumber)
{
    screen.Restart("12", 2);
    EXPECT_TRUE(screen.number->GetValidator()->Validate(nullptr));
    method.Compose(screen, "x");
    EXPECT_TRUE(screen.number->GetValidator()->Validate(nullptr)) << "nothing is committed";
    method.Commit();
    EXPECT_EQ(screen.Text(), L"12x");
    EXPECT_FALSE(screen.number->GetValidator()->Validate(nullptr));
}

TEST_F(TypingByAnInputMethod, ReplacesASelection)
{
    screen.Restart("12345", 0);
    screen.number->SetSelection(1, 4);
    method.Compose(screen, "7");
    EXPECT_EQ(screen.number->GetStringSelection(), "234");
    method.Commit();
    EXPECT_EQ(screen.Text(), L"175");
}

}  // namespace
