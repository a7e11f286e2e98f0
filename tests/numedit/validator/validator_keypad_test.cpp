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
    NumberDialog screen{FixedFormat(L',')};
    screen.Show("1");
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.keys.down, Codes{391});
    EXPECT_EQ(screen.keys.chars, Codes{46});
    EXPECT_EQ(screen.Text(), L"1,");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 2);
    EXPECT_EQ(screen.textEvents, 1);
    EXPECT_EQ(screen.BellsRung(), 0);
    screen.PressRaw(kOneKey);
    screen.Type("5");
    EXPECT_EQ(screen.Text(), L"1,15");
    EXPECT_EQ(screen.textEvents, 3);
}

TEST_F(Keypad, TypesAPointOnce)
{
    NumberDialog screen{FixedFormat()};
    screen.Show("1");
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.Text(), L"1.");
    EXPECT_EQ(screen.textEvents, 1);
}

TEST_F(Keypad, TypesInTheMiddle)
{
    NumberDialog screen{FixedFormat(L',')};
    screen.Show("1234");
    screen.number->SetInsertionPoint(2);
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.Text(), L"12,34");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 3);
}

TEST_F(Keypad, TypesAPointThatNoKeyHas)
{
    NumberDialog screen{FixedFormat(0x66B)};
    screen.Show("1");
    screen.PressRaw(kDecimalKey);
    screen.Type("5");
    EXPECT_EQ(screen.Text(), L"1\u066B5");
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(Keypad, TypesItsOwnCharacterWhereTheFormatHasNoPoint)
{
    NumberDialog screen{FixedFormat(0)};
    screen.Show("1");
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.Text(), L"1.");
    EXPECT_EQ(screen.textEvents, 1);
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(Keypad, ReplacesASelection)
{
    NumberDialog screen{FixedFormat(L',')};
    screen.Show("1234");
    screen.number->SetSelection(1, 3);
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.Text(), L"1,4");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 2);
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(Keypad, IsRefusedAsASecondPoint)
{
    NumberDialog screen{FixedFormat(L',')};
    screen.Show("1,2");
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.Text(), L"1,2");
    EXPECT_EQ(screen.number->GetInsertionPoint(), 3);
    EXPECT_EQ(screen.textEvents, 0);
    EXPECT_EQ(screen.BellsRung(), 1);
}

TEST_F(Keypad, IsRefusedWithoutDecimals)
{
    NumberDialog screen{CNumberFormat(eLocaleFormat)};
    screen.Show("1");
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.Text(), L"1");
    EXPECT_EQ(screen.textEvents, 0);
    EXPECT_EQ(screen.BellsRung(), 1);
}

TEST_F(Keypad, IsRefusedInSilenceWhenValidatorsAreSilent)
{
    const SilentValidators silence;
    NumberDialog screen{FixedFormat(L',')};
    screen.Show("1,2");
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.Text(), L"1,2");
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(Keypad, LeavesAReadOnlyControlAlone)
{
    NumberDialog screen(FixedFormat(L','), nullptr, wxTE_READONLY);
    screen.Show("1");
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.keys.down, Codes{391});
    EXPECT_EQ(screen.keys.chars, Codes{});
    EXPECT_EQ(screen.Text(), L"1");
    EXPECT_EQ(screen.textEvents, 0);
}

TEST_F(Keypad, TypesDigits)
{
    NumberDialog screen{FixedFormat()};
    screen.Show("1234");
    screen.PressRaw(kOneKey);
    EXPECT_EQ(screen.keys.down, Codes{325});
    EXPECT_EQ(screen.Text(), L"12341");
    screen.PressRaw(kOneKey);
    EXPECT_EQ(screen.Text(), L"12341");
    EXPECT_EQ(screen.BellsRung(), 1);
}

// The main keyboard's key for the point is not a keypad key, even if it types the same character as the keypad's key.
TEST_F(Keypad, IsNotTheMainKeyboardsPoint)
{
    NumberDialog screen{FixedFormat(L',')};
    screen.Show("1");
    screen.Type(".");
    EXPECT_EQ(screen.Text(), L"1.");
}

TEST(KeypadWithoutNumLock, Deletes)
{
    NumberDialog screen{FixedFormat(L',')};
    screen.Show("12");
    screen.number->SetInsertionPoint(0);
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.keys.down, Codes{385});
    EXPECT_EQ(screen.Text(), L"2");
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST(KeypadWithoutNumLock, MovesTheCaret)
{
    NumberDialog screen{FixedFormat(L',')};
    screen.Show("12345");
    screen.number->SetInsertionPoint(0);
    screen.PressRaw(kOneKey);
    EXPECT_EQ(screen.keys.down, Codes{382});
    EXPECT_EQ(screen.number->GetInsertionPoint(), 5);
    EXPECT_EQ(screen.Text(), L"12345");
    EXPECT_EQ(screen.BellsRung(), 0);
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
    NumberDialog screen{FixedFormat(L',')};
    screen.Show("1");
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.keys.down, Codes{389});
    EXPECT_EQ(screen.keys.chars, Codes{44});
    EXPECT_EQ(screen.Text(), L"1,");
    EXPECT_EQ(screen.textEvents, 1);
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(GermanKeypad, IsRefusedWhereTheFormatHasAPoint)
{
    NumberDialog screen{FixedFormat()};
    screen.Show("1");
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.Text(), L"1");
    EXPECT_EQ(screen.BellsRung(), 1);
}

TEST_F(Keypad, TypesTheLocalesPoint)
{
    const ScopedLocale german("de_DE.UTF-8", LC_NUMERIC);
    CNumberFormat format(eLocaleFormat);
    format.m_bHasDecimals = true;
    format.m_nDecimals = 2;
    NumberDialog screen(format);
    screen.Show("1");
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.keys.chars, Codes{46});
    EXPECT_EQ(screen.Text(), L"1,");
    screen.Type("5");
    EXPECT_EQ(screen.Text(), L"1,5");
    EXPECT_EQ(screen.BellsRung(), 0);
    screen.Type(".");
    EXPECT_EQ(screen.Text(), L"1,5");
    EXPECT_EQ(screen.BellsRung(), 1);
}

// The decimal key of the French keypad types a point. The validator inserts the format's comma instead.
TEST(FrenchKeypad, TypesTheFormatsComma)
{
    const Layout french({"fr"}, kKey2, 0, "eacute");
    const NumLock numLock;
    NumberDialog screen{FixedFormat(L',')};
    screen.Show("1");
    screen.PressRaw(kDecimalKey);
    EXPECT_EQ(screen.keys.down, Codes{391});
    EXPECT_EQ(screen.Text(), L"1,");
    EXPECT_EQ(screen.textEvents, 1);
    EXPECT_EQ(screen.BellsRung(), 0);
}

}  // namespace
