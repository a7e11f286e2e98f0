// Text that an input method commits to a wxNumberCtrl after the key events.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tests/numedit/control/number_ctrl_dialog.h>
#include <tests/numedit/late_input_method.h>
#include <tests/support/gui.h>

namespace {

class NumberFromAnInputMethod : public testing::Test
{
protected:
    void SetUp() override
    {
        screen.Restart("12345");
        screen.number->SetSelection(1, 4);
    }

    NumberCtrlDialog screen{FixedFormat()};
    LateInputMethod method;
};

TEST_F(NumberFromAnInputMethod, IsNotInTheTextBeforeItIsCommitted)
{
    method.Compose(screen, "78");
    EXPECT_EQ(screen.Text(), L"12345");
    EXPECT_EQ(screen.Selection(), "234");
    EXPECT_EQ(screen.number->GetDecimal(), "12345");
    EXPECT_EQ(screen.textEvents, 0);
    EXPECT_TRUE(screen.numbers.empty());
}

// GTK deletes the selection before it inserts the text, so the number changes twice, as the text of a wxTextCtrl does.
TEST_F(NumberFromAnInputMethod, ReplacesTheSelection)
{
    method.Compose(screen, "78");
    method.Commit();
    EXPECT_EQ(screen.Text(), L"1785");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 3);
    EXPECT_EQ(screen.textEvents, 2);
    EXPECT_EQ(screen.numbers, (std::vector<std::string>{"15", "1785"}));
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(NumberFromAnInputMethod, IsRefusedWholeAndLeavesTheSelection)
{
    for (const char* const refused : {"x", "7x", "7-"}) {
        screen.Restart("12345");
        screen.number->SetSelection(1, 4);
        method.Compose(screen, refused);
        EXPECT_EQ(screen.BellsRung(), 0) << refused;
        method.Commit();
        EXPECT_TRUE(PumpUntil([&] { return screen.Selection() == "234"; })) << refused;
        EXPECT_EQ(screen.Text(), L"12345") << refused;
        EXPECT_EQ(screen.number->GetDecimal(), "12345") << refused;
        EXPECT_EQ(screen.BellsRung(), 1) << refused;
        EXPECT_EQ(screen.numbers, (std::vector<std::string>{"15", "12345"})) << refused;
    }
}

TEST_F(NumberFromAnInputMethod, IsFormattedWhenTheFocusLeavesAndCommitsIt)
{
    method.commitsWhenTheFocusLeaves = true;
    screen.Restart("1234");
    method.Compose(screen, "5");
    screen.Leave();
    EXPECT_EQ(method.Preedit(), "");
    EXPECT_EQ(screen.number->GetDecimal(), "12345");
    EXPECT_EQ(screen.Text(), L"12,345.00");
    EXPECT_EQ(screen.numbers, std::vector<std::string>{"12345"});
}

}  // namespace
