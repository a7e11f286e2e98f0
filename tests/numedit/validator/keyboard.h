#ifndef FITTINGS_TESTS_NUMEDIT_VALIDATOR_KEYBOARD_H_
#define FITTINGS_TESTS_NUMEDIT_VALIDATOR_KEYBOARD_H_

#include <string>
#include <vector>

/// The keys' numbers on a PC's keyboard, whatever the layout makes of them.
/// @{
constexpr unsigned kKey1 = 10;
constexpr unsigned kKey2 = 11;
constexpr unsigned kKey5 = 14;
constexpr unsigned kKeyE = 26;
constexpr unsigned kKeyA = 38;
constexpr unsigned kKeyApostrophe = 48;
constexpr unsigned kKeypad1 = 87;
constexpr unsigned kKeypadDecimal = 91;
/// @}

/// Gives the display a keyboard layout for as long as the object lives, and the US one again afterwards.
class Layout
{
public:
    /// @a arguments are those of setxkbmap. Returns once this program has noticed that @a key has got the symbol of the
    /// given name on @a level.
    Layout(const std::vector<std::string>& arguments, unsigned key, unsigned level, const std::string& symbol);
    ~Layout();
    Layout(const Layout&) = delete;
    Layout& operator=(const Layout&) = delete;
};

/// Puts a character on a key of the present layout; ends with it.
void RemapKey(unsigned key, wchar_t character);

/// Turns NumLock on for as long as the object lives.
class NumLock
{
public:
    NumLock();
    ~NumLock();
    NumLock(const NumLock&) = delete;
    NumLock& operator=(const NumLock&) = delete;
};

#endif
