// Numbers that a wxDecimalValidator copies between fields and the program's variables.

#include <fittings/numedit/decimal_validator.h>

#include <cstdint>
#include <initializer_list>
#include <limits>

#include <gtest/gtest.h>

#include <wx/combobox.h>

#include <tests/numedit/control/number_ctrl_dialog.h>
#include <tests/support/gui.h>

namespace {

CNumberFormat WithoutLimits()
{
    CNumberFormat format(eFixedFormat);
    format.m_bHasMaxIntDigits = false;
    return format;
}

TEST(AValidatorOnANumberCtrl, MovesADouble)
{
    double price = 9.95;
    NumberCtrlDialog screen(FixedFormat(), wxDecimalValidator(&price));
    ASSERT_TRUE(screen.dialog->TransferDataToWindow());
    EXPECT_EQ(screen.Text(), L"9.95");
    screen.Restart("1234.5");
    screen.Leave();
    EXPECT_TRUE(screen.dialog->Validate());
    EXPECT_TRUE(screen.dialog->TransferDataFromWindow());
    EXPECT_EQ(price, 1234.5);
}

TEST(AValidatorOnANumberCtrl, RefusesAnEmptyFieldForAVariableThatCannotSayIt)
{
    std::int64_t count = 7;
    NumberCtrlDialog screen(FixedFormat(), wxDecimalValidator(&count));
    screen.Leave();
    EXPECT_FALSE(screen.dialog->Validate());
    EXPECT_TRUE(PumpUntil([&] { return screen.number->HasFocus(); }));
    EXPECT_FALSE(screen.number->GetValidator()->TransferFromWindow());
    EXPECT_EQ(count, 7);
    screen.Restart("2.5");
    EXPECT_FALSE(screen.dialog->Validate()) << "no whole number";
    screen.Restart("2.00");
    EXPECT_TRUE(screen.dialog->Validate());
    EXPECT_TRUE(screen.number->GetValidator()->TransferFromWindow());
    EXPECT_EQ(count, 2);
}

TEST(AValidatorOnANumberCtrl, MovesDecimalTextOfAnyLength)
{
    wxString digits = "12345678901234567890123.45";
    NumberCtrlDialog screen(WithoutLimits(), wxDecimalValidator(&digits));
    ASSERT_TRUE(screen.number->GetValidator()->TransferToWindow());
    EXPECT_EQ(screen.number->GetDecimal(), digits);
    screen.Restart("");
    EXPECT_TRUE(screen.dialog->Validate());
    EXPECT_TRUE(screen.number->GetValidator()->TransferFromWindow());
    EXPECT_EQ(digits, "");
    digits = "twelve";
    EXPECT_FALSE(screen.number->GetValidator()->TransferToWindow());
    EXPECT_EQ(screen.Text(), L"");
}

TEST(AValidatorOnANumberCtrl, RefusesWhatTheControlRefuses)
{
    double price = 1;
    NumberCtrlDialog screen(Bounded(10, 20), wxDecimalValidator(&price));
    screen.Restart("5");
    EXPECT_FALSE(screen.dialog->Validate());
    EXPECT_FALSE(screen.number->GetValidator()->TransferFromWindow());
    EXPECT_EQ(price, 1);
    price = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(screen.number->GetValidator()->TransferToWindow());
    EXPECT_EQ(screen.Text(), L"5");
}

// Expects that the validator refuses each text, and that the host's variable keeps its value.
template <typename Integer>
void ExpectRefused(NumberCtrlDialog& screen, const Integer& variable, std::initializer_list<const char*> texts)
{
    const Integer before = variable;
    for (const char* const text : texts) {
        screen.Restart(text);
        EXPECT_FALSE(screen.dialog->Validate()) << text;
        EXPECT_FALSE(screen.number->GetValidator()->TransferFromWindow()) << text;
        EXPECT_EQ(variable, before) << text;
    }
}

TEST(AValidatorOnANumberCtrl, MovesAnInt)
{
    int count = std::numeric_limits<int>::min();
    NumberCtrlDialog screen(WithoutLimits(), wxDecimalValidator(&count));
    ASSERT_TRUE(screen.dialog->TransferDataToWindow());
    EXPECT_EQ(screen.Text(), L"-2147483648");
    ExpectRefused(screen, count, {"2147483648", "-2147483649", "2.5", "12345678901234567890", ""});
    screen.Restart("2147483647");
    EXPECT_TRUE(screen.dialog->Validate());
    EXPECT_TRUE(screen.dialog->TransferDataFromWindow());
    EXPECT_EQ(count, std::numeric_limits<int>::max());
}

TEST(AValidatorOnANumberCtrl, MovesAnUnsigned)
{
    unsigned count = std::numeric_limits<unsigned>::max();
    NumberCtrlDialog screen(WithoutLimits(), wxDecimalValidator(&count));
    ASSERT_TRUE(screen.dialog->TransferDataToWindow());
    EXPECT_EQ(screen.Text(), L"4294967295");
    ExpectRefused(screen, count, {"4294967296", "-1", "2.5", ""});
    screen.Restart("0.00");
    EXPECT_TRUE(screen.dialog->TransferDataFromWindow());
    EXPECT_EQ(count, 0u);
}

class AValidatorOnAComboBox : public testing::Test
{
protected:
    void SetUp() override
    {
        frame = new wxDialog(nullptr, wxID_ANY, "Combo", wxPoint(200, 200), wxDefaultSize,
                             wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
        combo = new wxComboBox(frame, wxID_ANY);
        ASSERT_TRUE(ShowAndSettle(frame));
    }

    void TearDown() override { DestroyNow(frame); }

    wxDialog* frame = nullptr;
    wxComboBox* combo = nullptr;
};

TEST_F(AValidatorOnAComboBox, MovesNumbersByItsOwnFormat)
{
    double price = 1234.5;
    combo->SetValidator(wxDecimalValidator(&price, FixedFormat(L',')));
    ASSERT_TRUE(frame->TransferDataToWindow());
    EXPECT_EQ(combo->GetValue(), "1234,5");
    combo->SetValue("77,25-");
    EXPECT_TRUE(frame->Validate());
    EXPECT_TRUE(frame->TransferDataFromWindow());
    EXPECT_EQ(price, -77.25);
    for (const char* const text : {"x", "-", "1,234", "", "123456"}) {
        combo->SetValue(text);
        EXPECT_FALSE(frame->Validate()) << text;
        EXPECT_FALSE(combo->GetValidator()->TransferFromWindow());
    }
    EXPECT_EQ(price, -77.25);
}

TEST_F(AValidatorOnAComboBox, MovesIntegersByItsOwnFormat)
{
    int change = -7;
    combo->SetValidator(wxDecimalValidator(&change, FixedFormat(L',')));
    ASSERT_TRUE(frame->TransferDataToWindow());
    EXPECT_EQ(combo->GetValue(), "-7");
    combo->SetValue("77-");
    EXPECT_TRUE(frame->TransferDataFromWindow());
    EXPECT_EQ(change, -77);
    unsigned count = 7;
    combo->SetValidator(wxDecimalValidator(&count, FixedFormat(L',')));
    EXPECT_FALSE(frame->TransferDataFromWindow());
    EXPECT_EQ(count, 7u);
}

TEST_F(AValidatorOnAComboBox, ReportsANumberThatIsNotShownWhole)
{
    wxString digits("123456");
    combo->SetValidator(wxDecimalValidator(&digits, FixedFormat()));
    EXPECT_TRUE(combo->GetValidator()->TransferToWindow());
    combo->SetMaxLength(3);
    EXPECT_FALSE(combo->GetValidator()->TransferToWindow());
}

TEST_F(AValidatorOnAComboBox, ChecksWithoutAVariable)
{
    combo->SetValidator(wxDecimalValidator());
    EXPECT_TRUE(combo->GetValidator()->TransferToWindow());
    EXPECT_TRUE(combo->GetValidator()->TransferFromWindow());
    EXPECT_TRUE(frame->Validate());
    combo->SetValue("twelve");
    EXPECT_FALSE(frame->Validate());
    combo->Disable();
    EXPECT_TRUE(frame->Validate());
}

TEST_F(AValidatorOnAComboBox, FailsOnAWindowWithoutText)
{
    double price = 1;
    frame->SetValidator(wxDecimalValidator(&price));
    EXPECT_FALSE(frame->GetValidator()->Validate(nullptr));
    EXPECT_FALSE(frame->GetValidator()->TransferToWindow());
    EXPECT_FALSE(frame->GetValidator()->TransferFromWindow());
}

}  // namespace
