#ifndef FITTINGS_TESTS_SUPPORT_XDOTOOL_H_
#define FITTINGS_TESTS_SUPPORT_XDOTOOL_H_

#include <string>
#include <vector>

#include <tests/support/process/child_process.h>

/// The key F4 for "xdotool key", by its code: with xkb-data 2.48 or later, the name F4 would send Alt+F4.
inline constexpr const char* kF4 = "70";

/// Runs xdotool, which sends input to the focused window of the X display or reports about its windows. Returns its
/// output.
inline std::string Xdotool(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "xdotool");
    return RunChild(arguments);
}

#endif
