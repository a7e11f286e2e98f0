#ifndef FITTINGS_TESTS_NUMEDIT_VALIDATOR_KEYBOARD_H_
#define FITTINGS_TESTS_NUMEDIT_VALIDATOR_KEYBOARD_H_

#include <string>
#include <vector>

/// The key codes of a PC keyboard, independent of the layout.
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

/// Sets a keyboard layout while the object exists, and restores the US layout afterwards.
class Layout
{
public:
    /// Passes @a arguments to setxkbmap. Returns when this program sees that @a key has the given symbol on @a level.
    Layout(const std::vector<std::string>& arguments, unsigned key, unsigned level, const std::string& symbol);
    ~Layout();
    Layout(const Layout&) = delete;
    Layout& operator=(const Layout&) = delete;
};

/// Puts a character on a key of the current layout. The next change of the layout removes the character from the key.
void RemapKey(unsigned key, wchar_t character);

/// Turns NumLock on while the object exists.
class NumLock
{
public:
    NumLock();
    ~NumLock();
    NumLock(const NumLock&) = delete;
    NumLock& operator=(const NumLock&) = delete;
};

#endif
