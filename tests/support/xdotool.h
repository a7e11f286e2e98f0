#ifndef FITTINGS_TESTS_SUPPORT_XDOTOOL_H_
#define FITTINGS_TESTS_SUPPORT_XDOTOOL_H_

#include <string>
#include <vector>

#include <tests/support/process/child_process.h>

/// F4 for "xdotool key". By its name it would be sent with Alt where xkb-data is 2.48 or later.
inline constexpr const char* kF4 = "70";

/// Sends input to whatever has the focus of the X display, or asks about its windows, and returns the answer.
inline std::string Xdotool(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "xdotool");
    return RunChild(arguments);
}

#endif
