#include <tests/accessibility/accessibles.h>

#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include <tests/support/gui.h>
#include <tests/support/process/child_process.h>

namespace {

Accessible Parse(const std::string& line)
{
    std::istringstream rest(line.substr(line.find(' ') + 1));
    Accessible accessible;
    std::string states;
    for (std::string* part : {&accessible.role, &accessible.name, &accessible.description, &accessible.label, &states})
        std::getline(rest, *part, '|');
    accessible.role = RoleName(accessible.role);
    const auto is = [&](const char* state) { return states.find(state) != std::string::npos; };
    accessible.showing = is(" showing");
    accessible.focusable = is(" focusable") && is(" sensitive");
    accessible.focused = is(" focused");
    return accessible;
}

template <typename Condition>
Accessible ReadOne(const Condition& condition)
{
    const std::vector<Accessible> all = ReadAccessibles();
    const auto found = std::find_if(all.begin(), all.end(), condition);
    return found == all.end() ? Accessible() : *found;
}

}  // namespace

void PrintTo(const Accessible& accessible, std::ostream* out)
{
    *out << accessible.role << " '" << accessible.name << "', described by '" << accessible.description
         << "', labelled by '" << accessible.label << "'";
}

std::string RoleName(const std::string& told)
{
    return told == "button" ? "push button" : told;
}

std::vector<Accessible> ReadAccessibles()
{
    PumpPending();
    ChildProcess reader({READ_ACCESSIBLES, std::to_string(getpid())});
    // Handle events until the reader ends, because this process must answer the reader's requests.
    EXPECT_TRUE(PumpUntil([&] { return !reader.IsRunning(); })) << "the reader does not end";
    EXPECT_EQ(reader.ExitCode(), 0) << reader.Output();
    std::vector<Accessible> all;
    for (const std::string& line : reader.Lines())
        all.push_back(Parse(line));
    EXPECT_FALSE(all.empty()) << "the reader found no object";
    return all;
}

Accessible ReadFocused()
{
    return ReadOne([](const Accessible& each) { return each.focused; });
}

Accessible ReadFirst(const std::string& role)
{
    return ReadOne([&](const Accessible& each) { return each.showing && each.role == role; });
}
