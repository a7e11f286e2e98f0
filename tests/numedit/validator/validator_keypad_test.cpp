// The keypad's decimal key with several keyboard layouts.

#include <fittings/numedit/num_validator.h>

#include <gtest/gtest.h>

#include <tests/numedit/validator/keyboard.h>
#include <tests/numedit/validator/number_dialog.h>
#include <tests/support/locale/scoped_locale.h>

namespace {

const std::string kDecimalKey = std::to_string(kKeypadDecimal);
const std::string kOneKey = std::to_string(kKeypad1);

using Codes = std::vector<int>;

class Keypad : public testing::Test
{
protected:
    NumLock numLock;
};

TEST_F(Keypad, TypesTheFormatsPoint)
{
    NumberOnScreen screen{FixedFormat(L','), "1"};
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.keys.down, Codes{391});
    EXPECT_EQ(screen.keys.chars, Codes{46});
    screen.ExpectTextWithoutBell(L"1,");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 2);
    EXPECT_EQ(screen.textEvents, 1);
    screen.PressRaw(kOneKey);
    screen.Type("5");
    EXPECT_EQ(screen.Text(), L"1,15");
    EXPECT_EQ(screen.textEvents, 3);
}

TEST_F(Keypad, TypesAPointOnce)
{
    NumberOnScreen screen{FixedFormat(), "1"};
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.Text(), L"1.");
    EXPECT_EQ(screen.textEvents, 1);
}

TEST_F(Keypad, TypesInTheMiddle)
{
    NumberOnScreen screen{FixedFormat(L','), "1234"};
    screen.number->SetInsertionPoint(2);
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.Text(), L"12,34");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 3);
}

TEST_F(Keypad, TypesAPointThatNoKeyHas)
{
    NumberOnScreen screen{FixedFormat(0x66B), "1"};
    screen.PressRaw(kDecimalKey);
    screen.Type("5");
    screen.ExpectTextWithoutBell(L"1\u066B5");
}

TEST_F(Keypad, TypesItsOwnCharacterWhereTheFormatHasNoPoint)
{
    NumberOnScreen screen{FixedFormat(0), "1"};
    screen.PressRaw(kDecimalKey);
    screen.ExpectTextWithoutBell(L"1.");
    EXPECT_EQ(screen.textEvents, 1);
}

TEST_F(Keypad, ReplacesASelection)
{
    NumberOnScreen screen{FixedFormat(L','), "1234"};
    screen.number->SetSelection(1, 3);
    screen.PressRaw(kDecimalKey);
    screen.ExpectTextWithoutBell(L"1,4");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 2);
}

TEST_F(Keypad, IsRefusedAsASecondPoint)
{
    NumberOnScreen screen{FixedFormat(L','), "1,2"};
    screen.PressRaw(kDecimalKey);
    screen.ExpectTextAndBell(L"1,2");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 3);
    EXPECT_EQ(screen.textEvents, 0);
}

TEST_F(Keypad, IsRefusedWithoutDecimals)
{
    NumberOnScreen screen{CNumberFormat(eLocaleFormat), "1"};
    screen.PressRaw(kDecimalKey);
    screen.ExpectTextAndBell(L"1");
    EXPECT_EQ(screen.textEvents, 0);
}

TEST_F(Keypad, IsRefusedInSilenceWhenValidatorsAreSilent)
{
    const SilentValidators silence;
    NumberOnScreen screen{FixedFormat(L','), "1,2"};
    screen.PressRaw(kDecimalKey);
    screen.ExpectTextWithoutBell(L"1,2");
}

TEST_F(Keypad, LeavesAReadOnlyControlAlone)
{
    NumberOnScreen screen(FixedFormat(L','), "1", wxTE_READONLY);
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.keys.down, Codes{391});
    EXPECT_EQ(screen.keys.chars, Codes{});
    EXPECT_EQ(screen.Text(), L"1");
    EXPECT_EQ(screen.textEvents, 0);
}

TEST_F(Keypad, TypesDigits)
{
    NumberOnScreen screen{FixedFormat(), "1234"};
    screen.PressRaw(kOneKey);
    EXPECT_EQ(screen.keys.down, Codes{325});
    EXPECT_EQ(screen.Text(), L"12341");
    screen.PressRaw(kOneKey);
    screen.ExpectTextAndBell(L"12341");
}

// The main keyboard's key for the point is not a keypad key, even if it types the same character as the keypad's key.
TEST_F(Keypad, IsNotTheMainKeyboardsPoint)
{
    NumberOnScreen screen{FixedFormat(L','), "1"};
    screen.Type(".");
    EXPECT_EQ(screen.Text(), L"1.");
}

TEST(KeypadWithoutNumLock, Deletes)
{
    NumberOnScreen screen{FixedFormat(L','), "12"};
    screen.number->SetInsertionPoint(0);
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.keys.down, Codes{385});
    screen.ExpectTextWithoutBell(L"2");
}

TEST(KeypadWithoutNumLock, MovesTheCaret)
{
    NumberOnScreen screen{FixedFormat(L','), "12345"};
    screen.number->SetInsertionPoint(0);
    screen.PressRaw(kOneKey);
    EXPECT_EQ(screen.keys.down, Codes{382});
    EXPECT_EQ(screen.number->GetInsertionPoint(), 5);
    screen.ExpectTextWithoutBell(L"12345");
}

// In the German layout, the decimal key types a comma and has another key code. Therefore the validator treats the
// comma like any other character.
class GermanKeypad : public testing::Test
{
protected:
    Layout german{{"de"}, kKeypadDecimal, 1, "KP_Separator"};
    NumLock numLock;
};

TEST_F(GermanKeypad, TypesTheLayoutsComma)
{
    NumberOnScreen screen{FixedFormat(L','), "1"};
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.keys.down, Codes{389});
    EXPECT_EQ(screen.keys.chars, Codes{44});
    screen.ExpectTextWithoutBell(L"1,");
    EXPECT_EQ(screen.textEvents, 1);
}

TEST_F(GermanKeypad, IsRefusedWhereTheFormatHasAPoint)
{
    NumberOnScreen screen{FixedFormat(), "1"};
    screen.PressRaw(kDecimalKey);
    screen.ExpectTextAndBell(L"1");
}

TEST_F(Keypad, TypesTheLocalesPoint)
{
    const ScopedLocale german("de_DE.UTF-8", LC_NUMERIC);
    CNumberFormat format(eLocaleFormat);
    format.m_bHasDecimals = true;
    format.m_nDecimals = 2;
    NumberOnScreen screen(format, "1");
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.keys.chars, Codes{46});
    EXPECT_EQ(screen.Text(), L"1,");
    screen.Type("5");
    screen.ExpectTextWithoutBell(L"1,5");
    screen.Type(".");
    screen.ExpectTextAndBell(L"1,5");
}

// The decimal key of the French keypad types a point. The validator inserts the format's comma instead.
TEST(FrenchKeypad, TypesTheFormatsComma)
{
    const Layout french({"fr"}, kKey2, 0, "eacute");
    const NumLock numLock;
    NumberOnScreen screen{FixedFormat(L','), "1"};
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.keys.down, Codes{391});
    screen.ExpectTextWithoutBell(L"1,");
    EXPECT_EQ(screen.textEvents, 1);
}

}  // namespace
