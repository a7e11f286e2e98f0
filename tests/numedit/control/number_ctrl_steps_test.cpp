// Steps by keys and by the mouse wheel. What a wxNumberCtrl shows if its text is not a number within the bounds.

#include <fittings/numedit/number_ctrl.h>

#include <gtest/gtest.h>

#include <atk/atk.h>
#include <gtk/gtk.h>
#include <wx/uiaction.h>

#include <tests/numedit/control/number_ctrl_dialog.h>
#include <tests/support/gui.h>
#include <tests/support/process/child_process.h>

namespace {

class NumberSteps : public testing::Test
{
protected:
    NumberCtrlDialog screen{Bounded(-20, 35)};
};

TEST_F(NumberSteps, FollowTheArrowsAndThePageKeys)
{
    screen.Restart("5.50");
    screen.Press(WXK_UP);
    EXPECT_EQ(screen.Text(), L"6.50");
    screen.Press(WXK_PAGEUP);
    EXPECT_EQ(screen.Text(), L"16.50");
    screen.Press(WXK_DOWN);
    EXPECT_EQ(screen.Text(), L"15.50");
    screen.Press(WXK_PAGEDOWN);
    EXPECT_EQ(screen.Text(), L"5.50");
    EXPECT_EQ(screen.textEvents, 4);
    EXPECT_EQ(screen.numbers, (std::vector<std::string>{"6.50", "16.50", "15.50", "5.50"}));
    EXPECT_TRUE(screen.number->HasFocus());
    EXPECT_TRUE(screen.number->IsModified());
    EXPECT_EQ(screen.number->GetInsertionPoint(), 4);
}

TEST_F(NumberSteps, StayWithinTheBounds)
{
    screen.Restart("30");
    screen.Press(WXK_PAGEUP);
    EXPECT_EQ(screen.Text(), L"35");
    screen.Press(WXK_UP);
    EXPECT_EQ(screen.Text(), L"35");
    EXPECT_EQ(screen.textEvents, 1) << "the second key changes nothing";
    screen.Restart("-19.5");
    screen.Press(WXK_DOWN);
    EXPECT_EQ(screen.Text(), L"-20.0");
    screen.Restart("500");
    screen.Press(WXK_UP);
    EXPECT_EQ(screen.Text(), L"35") << "a step leads from beyond the bounds to the bound";
}

TEST_F(NumberSteps, BeginAtZeroInAnEmptyField)
{
    screen.Press(WXK_DOWN);
    EXPECT_EQ(screen.Text(), L"-1");
    screen.number->SetFormat(Bounded(10, 20));
    screen.Restart("");
    screen.Press(WXK_UP);
    EXPECT_EQ(screen.Text(), L"10");
}

TEST_F(NumberSteps, AreAsLongAsTheProgramSays)
{
    EXPECT_TRUE(screen.number->SetIncrement(0.1));
    screen.Restart("0.2");
    screen.Press(WXK_UP);
    EXPECT_EQ(screen.Text(), L"0.3") << "steps are exact in decimal digits";
    EXPECT_TRUE(screen.number->SetIncrement("0.25"));
    screen.Press(WXK_DOWN);
    EXPECT_EQ(screen.Text(), L"0.05");
    for (const char* const bad : {"0", "-1", "0.001", "", "x"})
        EXPECT_FALSE(screen.number->SetIncrement(bad)) << bad;
    screen.Press(WXK_DOWN);
    EXPECT_EQ(screen.Text(), L"-0.20");
}

TEST_F(NumberSteps, DoNotGoBelowZeroWhereNoSignIsAllowed)
{
    CNumberFormat format = Bounded(-20, 35);
    format.m_bAllowSign = false;
    screen.number->SetFormat(format);
    screen.Restart("5");
    screen.Press(WXK_PAGEDOWN);
    EXPECT_EQ(screen.Text(), L"0");
}

TEST_F(NumberSteps, FollowTheWheel)
{
    screen.Restart("5");
    screen.Leave();
    wxUIActionSimulator().MouseMove(screen.Middle());
    RunChild({"xdotool", "click", "4"});
    EXPECT_TRUE(PumpUntil([&] { return screen.number->GetDecimal() == "6"; }));
    RunChild({"xdotool", "click", "5"});
    RunChild({"xdotool", "click", "5"});
    EXPECT_TRUE(PumpUntil([&] { return screen.number->GetDecimal() == "4"; }));
    EXPECT_TRUE(PumpUntil([&] { return screen.number->HasFocus(); }));
    screen.number->SetEditable(false);
    RunChild({"xdotool", "click", "4"});
    PumpPending();
    EXPECT_EQ(screen.number->GetDecimal(), "4");
}

class NumberProblem : public testing::Test
{
protected:
    bool LooksWrong() const
    {
        return gtk_style_context_has_class(gtk_widget_get_style_context(screen.number->m_widget),
                                           GTK_STYLE_CLASS_ERROR);
    }

    std::string Description() const
    {
        const char* const text = atk_object_get_description(gtk_widget_get_accessible(screen.number->m_widget));
        return text ? text : "";
    }

    void ExpectProblem(const wxString& problem)
    {
        EXPECT_EQ(screen.number->GetProblem(), problem);
        EXPECT_EQ(screen.number->GetToolTipText(), problem);
        EXPECT_EQ(Description(), problem.utf8_string());
        EXPECT_EQ(LooksWrong(), !problem.empty());
        EXPECT_EQ(screen.number->IsAcceptable(), problem.empty());
        EXPECT_EQ(screen.number->Validate(), problem.empty());
        EXPECT_EQ(screen.dialog->Validate(), problem.empty());
    }

    NumberCtrlDialog screen{Bounded(10, 1000)};
};

TEST_F(NumberProblem, IsShownAndSaidAndRefused)
{
    ExpectProblem("");
    screen.Type("5");
    ExpectProblem("The number is too low: the lowest is 10.00.");
    screen.Type("0");
    ExpectProblem("");
    screen.number->SetDecimal("2000");
    ExpectProblem("The number is too high: the highest is 1,000.00.");
    screen.number->SetValue(".");
    ExpectProblem("The number is not complete.");
    screen.number->SetValue("12abc");
    ExpectProblem("This is not a number.");
    screen.number->SetValue("12.345");
    ExpectProblem("Too many decimals: no more than 2 are allowed.");
    screen.number->SetValue("123456");
    ExpectProblem("Too many digits before the decimal point: no more than 5 are allowed.");
    screen.number->SetValue("");
    ExpectProblem("");
}

TEST_F(NumberProblem, LeavesTheTextAsItIs)
{
    screen.number->SetDecimal("2000");
    screen.Leave();
    EXPECT_EQ(screen.Text(), L"2,000.00");
    EXPECT_EQ(screen.number->GetDecimal(), "2000");
    EXPECT_TRUE(LooksWrong());
    screen.Enter();
    EXPECT_EQ(screen.Text(), L"2000");
    screen.number->SetValue(".");
    screen.Leave();
    EXPECT_EQ(screen.Text(), L".");
}

TEST_F(NumberProblem, GivesTheProgramsOwnTipAndDescriptionBack)
{
    screen.number->SetToolTip("In kilograms");
    AtkObject* const accessible = gtk_widget_get_accessible(screen.number->m_widget);
    atk_object_set_description(accessible, "Weight");
    screen.number->SetDecimal("2000");
    EXPECT_EQ(screen.number->GetToolTipText(), screen.number->GetProblem());
    screen.number->SetDecimal("20");
    EXPECT_EQ(screen.number->GetToolTipText(), "In kilograms");
    EXPECT_EQ(Description(), "Weight");
    screen.number->SetDecimal("2000");
    screen.number->SetToolTip("In tons");
    screen.number->SetDecimal("20");
    EXPECT_EQ(screen.number->GetToolTipText(), "In tons");
}

TEST_F(NumberProblem, FollowsTheBounds)
{
    screen.number->SetDecimal("2000");
    EXPECT_TRUE(screen.number->SetRange(0, 5000));
    EXPECT_TRUE(screen.number->IsAcceptable());
    EXPECT_TRUE(screen.number->SetRange("2000.01", ""));
    EXPECT_FALSE(screen.number->IsAcceptable());
    EXPECT_FALSE(screen.number->SetRange("2", "1"));
    EXPECT_FALSE(screen.number->SetRange("x", ""));
    EXPECT_FALSE(screen.number->IsAcceptable()) << "an invalid range changes nothing";
    EXPECT_TRUE(screen.number->SetRange("", ""));
    EXPECT_TRUE(screen.number->IsAcceptable());
}

TEST_F(NumberProblem, IsNoneOfADisabledField)
{
    screen.number->SetDecimal("2000");
    screen.number->Disable();
    EXPECT_TRUE(screen.number->Validate());
    EXPECT_TRUE(screen.dialog->Validate());
}

}  // namespace
