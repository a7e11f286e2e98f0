// Characters beyond ASCII, from keyboards that have keys for them.

#include <fittings/numedit/num_validator.h>

#include <gtest/gtest.h>

#include <tests/numedit/validator/keyboard.h>
#include <tests/numedit/validator/number_dialog.h>

namespace {

using Codes = std::vector<int>;

// Compare the characters and not the key codes: newer versions of the toolkit report no key code for this letter.
TEST(LatinLetter, IsRefused)
{
    const Layout french({"fr"}, kKey2, 0, "eacute");
    NumberOnScreen screen{FixedFormat(), "1"};
    screen.PressRaw(std::to_string(kKey2));
    EXPECT_EQ(screen.keys.characters, L"\u00E9");
    screen.ExpectTextAndBell(L"1");
    EXPECT_EQ(screen.textEvents, 0);
}

TEST(LatinLetter, IsTakenAsTheFormatsPoint)
{
    const Layout french({"fr"}, kKey2, 0, "eacute");
    NumberOnScreen screen{FixedFormat(0xE9), "1"};
    screen.PressRaw(std::to_string(kKey2));
    screen.ExpectTextWithoutBell(L"1\u00E9");
    EXPECT_EQ(screen.textEvents, 1);
}

class CharacterWithoutKeyCode : public testing::Test
{
protected:
    void TypeBehindOne(NumberDialog& screen, wchar_t character)
    {
        RemapKey(kKeyA, character);
        screen.Show("1");
        screen.PressRaw(std::to_string(kKeyA));
        EXPECT_EQ(screen.keys.chars, Codes{0});
    }

    // The destructor of Layout restores the letter of the key that TypeBehindOne() changes.
    Layout layout{{"us"}, kKeyA, 0, "a"};
};

struct Foreign
{
    const char* name;
    wchar_t character;
};

class ForeignCharacter : public CharacterWithoutKeyCode, public testing::WithParamInterface<Foreign>
{
};

TEST_P(ForeignCharacter, IsRefused)
{
    NumberDialog screen{FixedFormat()};
    TypeBehindOne(screen, GetParam().character);
    screen.ExpectTextAndBell(L"1");
    EXPECT_EQ(screen.textEvents, 0);
}

INSTANTIATE_TEST_SUITE_P(, ForeignCharacter,
                         testing::Values(Foreign{"Euro", 0x20AC}, Foreign{"ArabicFive", 0x665},
                                         Foreign{"CyrillicLetter", 0x44F}, Foreign{"BeyondTheFirstPlane", 0x1D7D3}),
                         [](const auto& info) { return info.param.name; });

TEST_F(CharacterWithoutKeyCode, IsTakenAsTheFormatsPoint)
{
    NumberDialog screen{FixedFormat(0x66B)};
    TypeBehindOne(screen, 0x66B);
    screen.ExpectTextWithoutBell(L"1\u066B");
    EXPECT_EQ(screen.textEvents, 1);
    screen.PressRaw(std::to_string(kKeyA));
    screen.ExpectTextAndBell(L"1\u066B");
    EXPECT_EQ(screen.textEvents, 1);
}

TEST(EuroSign, OfAGermanKeyboardIsRefused)
{
    const Layout german({"de"}, kKeyE, 2, "EuroSign");
    NumberOnScreen screen{FixedFormat(), "1"};
    screen.PressRaw("ISO_Level3_Shift+" + std::to_string(kKeyE));
    EXPECT_EQ(screen.keys.chars.back(), 0);
    screen.ExpectTextAndBell(L"1");
    EXPECT_EQ(screen.textEvents, 0);
}

class DeadAccent : public testing::Test
{
protected:
    void SetUp() override
    {
        screen.PressRaw(std::to_string(kKeyApostrophe));
        EXPECT_EQ(screen.Text(), L"1");
        EXPECT_EQ(screen.BellsRung(), 0) << "a dead key alone types no character";
    }

    Layout international{{"-layout", "us", "-variant", "intl"}, kKeyApostrophe, 0, "dead_acute"};
    NumberOnScreen screen{FixedFormat(), "1"};
};

TEST_F(DeadAccent, OnALetterIsRefusedOnce)
{
    screen.PressRaw(std::to_string(kKeyE));
    EXPECT_EQ(screen.keys.characters, L"\u00E9");
    screen.ExpectTextAndBell(L"1");
}

// The input method commits the accent and the digit together. If one of them is refused, neither is inserted.
TEST_F(DeadAccent, BeforeADigitIsRefusedWithTheDigit)
{
    screen.PressRaw(std::to_string(kKey1));
    EXPECT_EQ(screen.keys.characters, L"\u00B4");
    screen.ExpectTextAndBell(L"1");
    EXPECT_EQ(screen.textEvents, 0);
    screen.PressRaw(std::to_string(kKey1));
    screen.ExpectTextAndBell(L"11");
}

}  // namespace
