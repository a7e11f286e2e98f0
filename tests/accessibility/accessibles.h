#ifndef FITTINGS_TESTS_ACCESSIBILITY_ACCESSIBLES_H_
#define FITTINGS_TESTS_ACCESSIBILITY_ACCESSIBLES_H_

#include <ostream>
#include <string>
#include <vector>

/// A part of a window as a screen reader sees it.
struct Accessible
{
    std::string role;  ///< Such as "push button". RoleName() makes it the same for all releases of AT-SPI.
    std::string name;
    std::string description;
    std::string label;  ///< The text of the label control that belongs to this part; empty if there is none.
    bool showing = false;
    bool focusable = false;  ///< Focusable and enabled.
    bool focused = false;
};

void PrintTo(const Accessible& accessible, std::ostream* out);

/// Returns @a told, or "push button" if @a told is "button". Older releases of AT-SPI and ATK call this role "push
/// button", newer ones "button".
std::string RoleName(const std::string& told);

/// Returns the visible accessible objects of this process's windows, parents before their children. Leaves out the
/// contents of menu bars and tables.
std::vector<Accessible> ReadAccessibles();

/// Returns the focused object. If no object is focused, returns one with an empty role.
Accessible ReadFocused();

/// Returns the first visible object with the role @a role. If there is none, returns an object with an empty role.
Accessible ReadFirst(const std::string& role);

#endif
