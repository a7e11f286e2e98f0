#ifndef FITTINGS_TESTS_ACCESSIBILITY_ACCESSIBLES_H_
#define FITTINGS_TESTS_ACCESSIBILITY_ACCESSIBLES_H_

#include <ostream>
#include <string>
#include <vector>

/// What a screen reader learns of a part of a window.
struct Accessible
{
    std::string role;  ///< As RoleName() gives it.
    std::string name;
    std::string description;
    std::string label;  ///< The text that labels it.
    bool showing = false;
    bool focusable = false;  ///< And enabled.
    bool focused = false;
};

void PrintTo(const Accessible& accessible, std::ostream* out);

/// The name of a role as it is here: newer releases of AT-SPI and ATK call a push button a button.
std::string RoleName(const std::string& told);

/// Reads what this process tells of its windows now, parents before their children.
std::vector<Accessible> ReadAccessibles();

/// The one that has the focus; with an empty role when none has.
Accessible ReadFocused();

/// The first of that role that is showing; with an empty role when there is none.
Accessible ReadFirst(const std::string& role);

#endif
