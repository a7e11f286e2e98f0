#ifndef FITTINGS_TESTS_SUPPORT_XDOTOOL_H_
#define FITTINGS_TESTS_SUPPORT_XDOTOOL_H_

#include <string>
#include <vector>

#include <tests/support/child_process.h>

/// Sends input to whatever has the focus of the X display, or asks about its windows, and returns the answer.
inline std::string Xdotool(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "xdotool");
    return RunChild(arguments);
}

#endif
