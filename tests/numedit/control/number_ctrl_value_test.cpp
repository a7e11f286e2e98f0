// Setting, reading and showing the numbers of a wxNumberCtrl.

#include <fittings/numedit/number_ctrl.h>

#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <wx/frame.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#include <tests/numedit/control/number_ctrl_dialog.h>
#include <tests/support/gui.h>
#include <tests/support/locale/scoped_locale.h>

namespace {

CNumberFormat Wide()
{
    CNumberFormat format(eFixedFormat);
    format.m_bHasMaxIntDigits = false;
    return format;
}

class NumberValue : public testing::Test
{
protected:
    NumberCtrlDialog screen{Wide()};
    double real = 77;
    std::int64_t whole = 77;
};

TEST_F(NumberValue, IsNoneInAnEmptyField)
{
    EXPECT_EQ(screen.number->GetDecimal(), "");
    EXPECT_FALSE(screen.number->GetNumber(&real));
    EXPECT_FALSE(screen.number->GetNumber(&whole));
    EXPECT_EQ(real, 77);
    EXPECT_EQ(whole, 77);
    EXPECT_TRUE(screen.number->IsAcceptable());
    ASSERT_TRUE(screen.number->SetNumber(0));
    EXPECT_TRUE(screen.number->GetNumber(&whole));
    EXPECT_EQ(whole, 0);
}

TEST_F(NumberValue, OfADoubleComesBackExactly)
{
    for (const double value : {0.1 + 0.2, -1234567.891, 1e23, 5e-324, std::numeric_limits<double>::max()}) {
        ASSERT_TRUE(screen.number->SetNumber(value));
        ASSERT_TRUE(screen.number->GetNumber(&real));
        EXPECT_EQ(real, value);
        EXPECT_TRUE(screen.number->IsAcceptable()) << "the program may set more decimals than can be typed";
        screen.Leave();
        ASSERT_TRUE(screen.number->GetNumber(&real));
        EXPECT_EQ(real, value);
        screen.Enter();
    }
    EXPECT_EQ(screen.textEvents, 0);
    EXPECT_TRUE(screen.numbers.empty());
}

TEST_F(NumberValue, OfAnIntegerComesBackExactly)
{
    for (const std::int64_t value :
         {std::numeric_limits<std::int64_t>::min(), std::int64_t{0}, std::numeric_limits<std::int64_t>::max()}) {
        ASSERT_TRUE(screen.number->SetNumber(value));
        ASSERT_TRUE(screen.number->GetNumber(&whole));
        EXPECT_EQ(whole, value);
    }
    EXPECT_TRUE(screen.number->SetNumber(5u));
    ASSERT_TRUE(screen.number->SetNumber(std::numeric_limits<std::uint64_t>::max()));
    EXPECT_EQ(screen.number->GetDecimal(), "18446744073709551615");
    EXPECT_FALSE(screen.number->GetNumber(&whole)) << "the number does not fit an integer";
}

TEST_F(NumberValue, IsReadAsAnIntegerOfASmallerType)
{
    int number = 77;
    unsigned count = 77;
    ASSERT_TRUE(screen.number->SetNumber(-5));
    EXPECT_TRUE(screen.number->GetNumber(&number));
    EXPECT_EQ(number, -5);
    EXPECT_FALSE(screen.number->GetNumber(&count));
    ASSERT_TRUE(screen.number->SetNumber(3000000000));
    EXPECT_FALSE(screen.number->GetNumber(&number));
    EXPECT_TRUE(screen.number->GetNumber(&count));
    EXPECT_EQ(count, 3000000000u);
    ASSERT_TRUE(screen.number->SetDecimal("1.5"));
    EXPECT_FALSE(screen.number->GetNumber(&number));
    EXPECT_FALSE(screen.number->GetNumber(&count));
    EXPECT_EQ(number, -5);
    EXPECT_EQ(count, 3000000000u);
}

TEST_F(NumberValue, OfAThousandDigitsComesBackExactly)
{
    const std::string digits = "-1" + std::string(998, '0') + "7.05";
    ASSERT_TRUE(screen.number->SetDecimal(digits));
    EXPECT_EQ(screen.number->GetDecimal(), digits);
    screen.Leave();
    EXPECT_EQ(screen.number->GetDecimal(), digits);
    EXPECT_TRUE(screen.number->GetValue().StartsWith("1,000,000,")) << "the minus follows the digits";
    screen.Enter();
    EXPECT_EQ(screen.Text(), std::wstring(digits.begin(), digits.end()));
}

// A GtkEntry drops the end of a text of more than 65,534 bytes.
TEST_F(NumberValue, HasAsManyDigitsAsTheFieldCanHold)
{
    const wxString most('7', 65534);
    ASSERT_TRUE(screen.number->SetDecimal(most));
    EXPECT_TRUE(screen.number->GetDecimal() == most);
    EXPECT_FALSE(screen.number->SetDecimal(most + "7"));
    EXPECT_FALSE(screen.number->SetDecimal("1e65534"));
    screen.Type("7");
    EXPECT_EQ(screen.BellsRung(), 1);
    screen.Leave();
    EXPECT_TRUE(screen.number->GetValue() == most) << "with groups the text would be too long";
    EXPECT_TRUE(screen.number->GetDecimal() == most);
    ASSERT_TRUE(screen.number->SetDecimal(wxString('9', 65534)));
    screen.Enter();
    screen.Press(WXK_UP);
    EXPECT_TRUE(screen.number->GetDecimal() == wxString('9', 65534));
}

TEST_F(NumberValue, IsLeftAloneByWhatIsNoNumber)
{
    screen.number->SetNumber(5);
    EXPECT_FALSE(screen.number->SetNumber(std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(screen.number->SetNumber(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(screen.number->SetDecimal("1,5"));
    EXPECT_FALSE(screen.number->SetDecimal("-"));
    EXPECT_EQ(screen.number->GetDecimal(), "5");
    EXPECT_TRUE(screen.number->SetDecimal(""));
    EXPECT_EQ(screen.number->GetDecimal(), "");
}

TEST_F(NumberValue, IsShownWithoutAPlus)
{
    CNumberFormat unsignedFormat = Wide();
    unsignedFormat.m_bAllowSign = false;
    screen.number->SetFormat(unsignedFormat);
    ASSERT_TRUE(screen.number->SetDecimal("+5"));
    EXPECT_EQ(screen.Text(), L"5");
    EXPECT_TRUE(screen.number->IsAcceptable());
}

TEST_F(NumberValue, WithAnExponentIsWrittenOutWhereNoneIsAllowed)
{
    ASSERT_TRUE(screen.number->SetDecimal("-1.5e3"));
    EXPECT_EQ(screen.Text(), L"-1500");
    EXPECT_FALSE(screen.number->SetDecimal("1e999999999"));
    CNumberFormat science = Wide();
    science.m_bAllowExponent = true;
    screen.number->SetFormat(science);
    ASSERT_TRUE(screen.number->SetDecimal("1e999999999"));
    EXPECT_EQ(screen.number->GetDecimal(), "1e999999999");
    EXPECT_FALSE(screen.number->GetNumber(&real));
}

TEST_F(NumberValue, IsShownByTheFormatWithoutTheFocusAndPlainWithIt)
{
    CNumberFormat weight = Wide();
    weight.m_strTemplate = L"%s kg";
    screen.number->SetFormat(weight);
    screen.Type("-1234.5");
    screen.Leave();
    EXPECT_EQ(screen.Text(), L"1,234.50- kg");
    EXPECT_EQ(screen.number->GetDecimal(), "-1234.5");
    screen.Enter();
    EXPECT_EQ(screen.Text(), L"-1234.5");
    EXPECT_EQ(screen.textEvents, 7) << "only typing sends text events";
    EXPECT_EQ(screen.number->GetStringSelection(), "-1234.5") << "the focus selects the text, as in every text field";
}

TEST_F(NumberValue, IsShownByTheFormatWhenItIsSetWithoutTheFocus)
{
    screen.Leave();
    screen.number->SetNumber(1234.5);
    EXPECT_EQ(screen.Text(), L"1,234.50");
    screen.number->SetFormat(FixedFormat(L';'));
    EXPECT_EQ(screen.Text(), L"1,234;50");
    screen.number->SetValue("77");
    EXPECT_EQ(screen.Text(), L"77;00");
    EXPECT_EQ(screen.textEvents, 1);
    screen.number->ChangeValue("");
    EXPECT_EQ(screen.Text(), L"");
    EXPECT_EQ(screen.textEvents, 1);
}

TEST_F(NumberValue, OfATextThatTheProgramSetsIsReadWithItsGroups)
{
    screen.number->SetValue("1,234.50-");
    EXPECT_EQ(screen.number->GetDecimal(), "-1234.50");
    screen.number->SetValue("12abc");
    EXPECT_EQ(screen.Text(), L"12abc");
    EXPECT_EQ(screen.number->GetDecimal(), "");
    screen.Leave();
    EXPECT_EQ(screen.Text(), L"12abc") << "an invalid text stays as it is";
}

TEST_F(NumberValue, IsMarkedAsModifiedByTheUserAlone)
{
    screen.number->SetNumber(5);
    screen.Leave();
    screen.Enter();
    EXPECT_FALSE(screen.number->IsModified());
    screen.Type("6");
    EXPECT_TRUE(screen.number->IsModified());
    screen.Leave();
    EXPECT_TRUE(screen.number->IsModified());
}

TEST_F(NumberValue, IsClickedAtTheDigitThatIsSeen)
{
    screen.number->SetNumber(12345);
    screen.Leave();
    ASSERT_EQ(screen.Text(), L"12,345.00");
    wxUIActionSimulator mouse;
    // Click after the last character.
    const wxSize size = screen.number->GetSize();
    mouse.MouseMove(screen.number->ClientToScreen(wxPoint(size.x - 14, size.y / 2)));
    mouse.MouseClick();
    ASSERT_TRUE(PumpUntil([&] { return screen.number->HasFocus() && screen.Text() == L"12345"; }));
    EXPECT_EQ(screen.number->GetInsertionPoint(), 5);
    EXPECT_EQ(screen.number->GetStringSelection(), "");
    screen.Leave();
    mouse.MouseMove(screen.number->ClientToScreen(wxPoint(12, size.y / 2)));
    mouse.MouseClick();
    ASSERT_TRUE(PumpUntil([&] { return screen.number->HasFocus() && screen.Text() == L"12345"; }));
    EXPECT_EQ(screen.number->GetInsertionPoint(), 0);
}

TEST_F(NumberValue, KeepsTheSelectionWhileAnotherWindowIsActive)
{
    screen.number->SetNumber(1234567);
    screen.number->SetSelection(1, 4);
    auto* const other = new wxFrame(nullptr, wxID_ANY, "Other", wxPoint(20, 20));
    ASSERT_TRUE(ShowAndSettle(other));
    ASSERT_TRUE(PumpUntil([&] { return screen.Text() == L"1,234,567.00"; }));
    EXPECT_EQ(screen.Selection(), "234,") << "the same digits stay selected";
    other->Destroy();
    screen.dialog->Raise();
    ASSERT_TRUE(PumpUntil([&] { return screen.number->HasFocus() && screen.Text() == L"1234567"; }));
    EXPECT_EQ(screen.Selection(), "234");
}

// While the object exists, LC_ALL names the user's locale, but the process itself uses the C locale.
class UsersLocale
{
public:
    explicit UsersLocale(const char* name) { wxSetEnv("LC_ALL", name); }
    ~UsersLocale() { wxSetEnv("LC_ALL", "C.UTF-8"); }
    UsersLocale(const UsersLocale&) = delete;
    UsersLocale& operator=(const UsersLocale&) = delete;

private:
    const ScopedLocale m_locale{"C"};
};

TEST(TheUsersFormat, IsThatOfTheEnvironment)
{
    const UsersLocale german("de_DE.UTF-8");
    const CNumberFormat format = wxNumberCtrl::FromLocale();
    EXPECT_EQ(format.m_chDecimalPoint, L',');
    EXPECT_EQ(format.m_chThousandsSep, L'.');
    EXPECT_TRUE(format.m_bGroupDigits);
    EXPECT_TRUE(format.m_bHasDecimals);
    EXPECT_EQ(format.m_nDecimals, 2u);
    EXPECT_EQ(wxNumberCtrl::FromLocale(5).m_nDecimals, 5u);
    NumberCtrlDialog screen(format);
    screen.number->SetNumber(1234.5);
    EXPECT_EQ(screen.Text(), L"1234,5");
    screen.Leave();
    EXPECT_EQ(screen.Text(), L"1.234,50");
    screen.number->SetValue("2.345,5");
    EXPECT_EQ(screen.number->GetDecimal(), "2345.5");
}

TEST(TheUsersFormat, HasNoGroupsWhereTheLocaleHasNone)
{
    const UsersLocale plain("C");
    const CNumberFormat format = wxNumberCtrl::FromLocale();
    EXPECT_EQ(format.m_chDecimalPoint, L'.');
    EXPECT_FALSE(format.m_bGroupDigits);
}

}  // namespace
