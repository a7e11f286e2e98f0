#include <tests/numedit/validator/keyboard.h>

#include <cstdint>
#include <iomanip>
#include <sstream>

#include <gtest/gtest.h>

#include <gdk/gdk.h>

#include <tests/support/gui.h>
#include <tests/support/process/child_process.h>

namespace {

GdkKeymap* Keymap()
{
    return gdk_keymap_get_for_display(gdk_display_get_default());
}

guint Symbol(unsigned key, unsigned level)
{
    const GdkKeymapKey where = {key, 0, static_cast<gint>(level)};
    return gdk_keymap_lookup_key(Keymap(), &where);
}

std::string SymbolName(unsigned key, unsigned level)
{
    const char* const name = gdk_keyval_name(Symbol(key, level));
    return name ? name : "";
}

void WaitForSymbol(unsigned key, unsigned level, const std::string& symbol)
{
    EXPECT_TRUE(PumpUntil([&] { return SymbolName(key, level) == symbol; }))
        << "key " << key << " has " << SymbolName(key, level) << " instead of " << symbol;
}

void SetNumLock(bool on)
{
    if (gdk_keymap_get_num_lock_state(Keymap()) == on)
        return;
    RunChild({"xdotool", "key", "Num_Lock"});
    EXPECT_TRUE(PumpUntil([&] { return bool{gdk_keymap_get_num_lock_state(Keymap()) != 0} == on; }));
}

}  // namespace

Layout::Layout(const std::vector<std::string>& arguments, unsigned key, unsigned level, const std::string& symbol)
{
    std::vector<std::string> command = {"setxkbmap"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    RunChild(command);
    WaitForSymbol(key, level, symbol);
}

Layout::~Layout()
{
    RunChild({"setxkbmap", "-layout", "us", "-variant", ""});
    WaitForSymbol(kKeypadDecimal, 1, "KP_Decimal");
    WaitForSymbol(kKey2, 0, "2");
    WaitForSymbol(kKeyApostrophe, 0, "apostrophe");
    WaitForSymbol(kKeyA, 0, "a");
}

void RemapKey(unsigned key, wchar_t character)
{
    std::ostringstream command;
    command << "keycode " << key << " = U" << std::hex << std::setw(4) << std::setfill('0') << std::uint32_t(character);
    RunChild({"xmodmap", "-e", command.str()});
    EXPECT_TRUE(PumpUntil([&] { return gdk_keyval_to_unicode(Symbol(key, 0)) == std::uint32_t(character); }))
        << "key " << key << " has " << SymbolName(key, 0);
}

NumLock::NumLock()
{
    SetNumLock(true);
}

NumLock::~NumLock()
{
    SetNumLock(false);
}
