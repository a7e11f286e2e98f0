// The same key presses with the keyboard layouts of four countries.

#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fittings/numedit/num_validator.h>

#include <tests/colour/combo/combo_on_screen.h>
#include <tests/numedit/validator/keyboard.h>
#include <tests/numedit/validator/number_dialog.h>
#include <tests/support/gui.h>
#include <tests/support/process/child_process.h>
#include <tests/support/xdotool.h>
#include <tests/tree/tree_on_screen.h>

namespace {

// A key for xdotool, by its number or name. A modifier may precede the key, as in "shift+61".
using Key = std::string;

struct Keyboard
{
    const char* layout;
    // A key, one of its shift levels, and the symbol that this layout has there. None of the other tested layouts has
    // the same symbol there.
    unsigned key;
    unsigned level;
    const char* symbol;
    // The keys that type these characters.
    Key point;
    Key comma;
    Key plus;
    Key minus;
    Key asterisk;
    // The key code that a program receives for the keypad's decimal key, and the character that the key types.
    int keypadCode;
    wchar_t keypadCharacter;

    friend void PrintTo(const Keyboard& keyboard, std::ostream* stream) { *stream << keyboard.layout; }
};

class KeyboardLayouts : public testing::TestWithParam<Keyboard>
{
protected:
    static void Press(const Key& key) { RunChild({"xdotool", "key", key}); }

    Layout layout{{GetParam().layout}, GetParam().key, GetParam().level, GetParam().symbol};
};

TEST_P(KeyboardLayouts, TypeANumberWithItsPoint)
{
    for (const auto& [point, key] : {std::pair(L'.', GetParam().point), std::pair(L',', GetParam().comma)}) {
        NumberOnScreen screen{FixedFormat(point)};
        screen.PressRaw(std::to_string(kKey1));
        screen.PressRaw(key);
        screen.PressRaw(std::to_string(kKey5));
        screen.ExpectTextWithoutBell(std::wstring(L"1") + point + L"5");
        screen.PressRaw(std::to_string(kKeyA));
        screen.ExpectTextAndBell(std::wstring(L"1") + point + L"5");
    }
}

TEST_P(KeyboardLayouts, TypeAMinus)
{
    NumberOnScreen screen{FixedFormat()};
    screen.PressRaw(GetParam().minus);
    screen.PressRaw(std::to_string(kKey1));
    screen.ExpectTextWithoutBell(L"-1");
}

// The keypad's decimal key types the format's point if the program receives the key code of the decimal point.
// Otherwise, the key types its own character, which is refused if it is not the format's point.
TEST_P(KeyboardLayouts, TypeThePointOfTheKeypad)
{
    const NumLock numLock;
    for (const wchar_t point : {L'.', L','}) {
        NumberOnScreen screen{FixedFormat(point), "1"};
        screen.PressRaw(std::to_string(kKeypadDecimal));
        EXPECT_EQ(screen.keys.down, std::vector<int>{GetParam().keypadCode});
        const bool types = GetParam().keypadCode == 391 || GetParam().keypadCharacter == point;
        EXPECT_EQ(screen.Text(), types ? std::wstring(L"1") + point : std::wstring(L"1"));
        EXPECT_EQ(screen.BellsRung(), types ? 0 : 1);
    }
}

TEST_P(KeyboardLayouts, LeadThroughTheColourPopup)
{
    const ComboOnScreen<> screen;
    ASSERT_TRUE(ShowAndSettle(screen.frame));
    screen.combo->SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return screen.combo->HasFocus(); }));
    Press(kF4);
    ASSERT_TRUE(PumpUntil([&] { return screen.combo->IsPopupShown(); }));
    PumpPending();
    struct Step
    {
        const char* key;
        int cell;
    };
    // Go down to "More Colours...", "Automatic" and the first cell, then right, down, left and up, back to the first
    // cell, and then right to the second cell.
    for (const Step& step : {Step{"116", -2}, Step{"116", -3}, Step{"116", 0}, Step{"114", 1}, Step{"116", 9},
                             Step{"113", 8}, Step{"111", 0}, Step{"114", 1}}) {
        Press(step.key);
        EXPECT_TRUE(PumpUntil([&] { return screen.popup->m_nCurrentSel == step.cell; }))
            << "key " << step.key << " leads to " << screen.popup->m_nCurrentSel;
    }
    Press("36");  // Return
    EXPECT_TRUE(PumpUntil([&] { return !screen.combo->IsPopupShown(); }));
    EXPECT_EQ(screen.combo->GetValue(), "Brown");
    Press("alt+116");
    ASSERT_TRUE(PumpUntil([&] { return screen.combo->IsPopupShown(); }));
    PumpPending();
    Press("Escape");
    EXPECT_TRUE(PumpUntil([&] { return !screen.combo->IsPopupShown(); }));
    EXPECT_EQ(screen.combo->GetValue(), "Brown");
}

TEST_P(KeyboardLayouts, OpenAndCloseATreesItems)
{
    TreeOnScreen<LazyTree> screen;
    LazyTree& tree = *screen.tree;
    tree.folders = {{L"R", {L"A", L"B"}}, {L"A", {L"A1"}}, {L"B", {L"B1"}}};
    wxTreeCursor root = AddLazyRoot(tree, "R");
    screen.Show();
    tree.SelectItem(root.item);
    const auto press = [&](const Key& key, const std::function<bool()>& done) {
        Press(key);
        EXPECT_TRUE(PumpUntil(done)) << "key " << key;
    };
    const auto isAt = [&](const wchar_t* label) {
        return [&tree, label] { return tree.GetItemText(tree.wxTreeCtrl::GetSelection()).ToStdWstring() == label; };
    };
    press(GetParam().plus, [&] { return root.IsExpanded(); });
    press(GetParam().minus, [&] { return !root.IsExpanded(); });
    press("114", [&] { return root.IsExpanded(); });  // Right
    press("116", isAt(L"A"));
    press("116", isAt(L"B"));
    press("86", [&] { return tree.IsExpanded(tree.wxTreeCtrl::GetSelection()); });   // the keypad's plus
    press("82", [&] { return !tree.IsExpanded(tree.wxTreeCtrl::GetSelection()); });  // the keypad's minus
    press("110", isAt(L"R"));                                                        // Home
    press("113", [&] { return !root.IsExpanded(); });                                // Left
    press(GetParam().asterisk, [&] { return ChildrenOf(root.GetChild()) == Labels{L"A1"}; });
    press("115", isAt(L"B1"));  // End
    press("113", isAt(L"B"));   // Left
}

INSTANTIATE_TEST_SUITE_P(
    , KeyboardLayouts,
    testing::Values(Keyboard{"us", 48, 0, "apostrophe", "60", "59", "shift+21", "20", "shift+17", 391, L'.'},
                    Keyboard{"de", 48, 0, "adiaeresis", "60", "59", "35", "61", "shift+35", 389, L','},
                    Keyboard{"ru", 48, 0, "Cyrillic_e", "61", "shift+61", "shift+21", "20", "shift+17", 389, L','},
                    Keyboard{"br", 47, 0, "ccedilla", "60", "59", "shift+21", "20", "shift+17", 389, L','}),
    [](const auto& info) { return std::string(info.param.layout); });

}  // namespace
