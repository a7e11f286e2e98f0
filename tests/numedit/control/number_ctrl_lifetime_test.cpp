// A wxNumberCtrl before Create(), and one that a handler of the program destroys.

#include <fittings/numedit/number_ctrl.h>

#include <cstdint>
#include <memory>

#include <gtest/gtest.h>

#include <wx/clipbrd.h>
#include <wx/uiaction.h>
#include <wx/weakref.h>

#include <tests/numedit/control/number_ctrl_dialog.h>
#include <tests/support/gui.h>

namespace {

TEST(NumberLifetime, BeginsWithCreate)
{
    const std::unique_ptr<wxNumberCtrl> number = std::make_unique<wxNumberCtrl>();
    double real = 77;
    std::int64_t whole = 77;
    int small = 77;
    unsigned count = 77;
    const ExpectAssertions assertions;
    number->SetFormat(FixedFormat());
    number->GetFormat();
    EXPECT_EQ(assertions.Count(), 2);
    EXPECT_FALSE(number->SetNumber(5));
    EXPECT_FALSE(number->SetNumber(5.5));
    EXPECT_FALSE(number->SetDecimal("5"));
    EXPECT_FALSE(number->GetNumber(&real));
    EXPECT_FALSE(number->GetNumber(&whole));
    EXPECT_EQ(number->GetDecimal(), "");
    EXPECT_EQ(assertions.Count(), 8);
    EXPECT_FALSE(number->IsAcceptable());
    EXPECT_EQ(number->GetProblem(), "");
    EXPECT_FALSE(number->SetRange("0", "10"));
    EXPECT_FALSE(number->SetRange(0, 10));
    EXPECT_FALSE(number->SetIncrement("2"));
    EXPECT_FALSE(number->SetIncrement(2));
    EXPECT_FALSE(number->Validate());
    EXPECT_EQ(assertions.Count(), 15);
    EXPECT_FALSE(number->GetNumber(&small));
    EXPECT_FALSE(number->GetNumber(&count));
    number->SetMaxLength(5);
    EXPECT_EQ(assertions.Count(), 18);
    EXPECT_EQ(small, 77);
    EXPECT_EQ(count, 77u);
    EXPECT_EQ(real, 77);
    EXPECT_EQ(whole, 77);
}

class NumberEnd : public testing::Test
{
protected:
    void Paste(const wxString& text)
    {
        SetClipboard(text);
        number->Paste();
        wxClipboardLocker clipboard;
        wxTheClipboard->Clear();
    }

    // Sends one mouse event that turns the wheel by three steps.
    void Turn()
    {
        wxMouseEvent wheel(wxEVT_MOUSEWHEEL);
        wheel.m_wheelRotation = 360;
        wheel.m_wheelDelta = 120;
        wheel.SetEventObject(number);
        number->ProcessWindowEvent(wheel);
    }

    template <typename Event>
    void DestroyOn(const wxEventTypeTag<Event>& type)
    {
        number->Bind(type, [this](Event&) { number->Destroy(); });
    }

    NumberCtrlDialog screen{FixedFormat()};
    const wxWeakRef<wxNumberCtrl> number{screen.number};
};

TEST_F(NumberEnd, MayComeWhenATextIsPasted)
{
    DestroyOn(wxEVT_TEXT);
    Paste("5");
    EXPECT_FALSE(number);
}

TEST_F(NumberEnd, MayComeWhenAPastedNumberReplacesAnother)
{
    screen.Restart("12");
    number->SelectAll();
    DestroyOn(wxEVT_NUMBER_CHANGED);
    Paste("5");
    EXPECT_FALSE(number);
}

TEST_F(NumberEnd, MayComeWhenACharacterIsTyped)
{
    DestroyOn(wxEVT_TEXT);
    wxUIActionSimulator().Char('5');
    EXPECT_TRUE(PumpUntil([&] { return !number; }));
}

TEST_F(NumberEnd, MayComeWhenACharacterReplacesANumber)
{
    screen.Restart("12");
    number->SelectAll();
    DestroyOn(wxEVT_NUMBER_CHANGED);
    wxUIActionSimulator().Char('5');
    EXPECT_TRUE(PumpUntil([&] { return !number; }));
}

TEST_F(NumberEnd, MayComeWhenTheWheelSteps)
{
    DestroyOn(wxEVT_TEXT);
    Turn();
    EXPECT_FALSE(number);
}

TEST_F(NumberEnd, MayComeWhenTheWheelSetsTheFocus)
{
    screen.Leave();
    DestroyOn(wxEVT_SET_FOCUS);
    Turn();
    EXPECT_FALSE(number);
}

}  // namespace
