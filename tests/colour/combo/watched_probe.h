#ifndef FITTINGS_TESTS_COLOUR_COMBO_WATCHED_PROBE_H_
#define FITTINGS_TESTS_COLOUR_COMBO_WATCHED_PROBE_H_

#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tests/support/becomes.h>
#include <tests/support/process/child_process.h>
#include <tests/support/xdotool.h>

/// A running colour_combo_probe and the lines that it prints.
class WatchedProbe
{
public:
    explicit WatchedProbe(int ends, const std::map<std::string, std::optional<std::string>>& environment = {})
        : m_child({COLOUR_COMBO_PROBE, std::to_string(ends)}, environment)
    {
        EXPECT_TRUE(Waits("combo ")) << "does not start";
    }

    /// Waits for at least @a count lines that begin with @a start. If they do not come in time, or the program ends
    /// without them, fails the test and returns false.
    bool Waits(const std::string& start, int count = 1)
    {
        const bool came = Becomes([&] { return !m_child.IsRunning() || Lines(start).size() >= std::size_t(count); }) &&
                          Lines(start).size() >= std::size_t(count);
        if (!came)
            ADD_FAILURE() << "no line " << start << " in\n" << m_child.Output();
        return came;
    }

    /// Returns the rest of each line that begins with @a start.
    std::vector<std::string> Lines(const std::string& start) const { return m_child.Lines(start); }

    /// Returns the numbers in the last line that begins with @a start.
    std::vector<int> Numbers(const std::string& start) const
    {
        std::vector<int> numbers;
        const std::vector<std::string> lines = Lines(start);
        std::istringstream line(lines.empty() ? "" : lines.back());
        for (int number; line >> number;)
            numbers.push_back(number);
        return numbers;
    }

    /// Waits for the program to end, and expects success.
    void ExpectEnd()
    {
        EXPECT_TRUE(m_child.WaitForEnd()) << m_child.Output();
        EXPECT_EQ(m_child.ExitCode(), 0) << m_child.Output();
    }

private:
    ChildProcess m_child;
};

#endif
