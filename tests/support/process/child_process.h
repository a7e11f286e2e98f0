#ifndef FITTINGS_TESTS_SUPPORT_PROCESS_CHILD_PROCESS_H_
#define FITTINGS_TESTS_SUPPORT_PROCESS_CHILD_PROCESS_H_

#include <map>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

#include <tests/support/temp_folder.h>

/// A program that a test runs, and its output. The destructor ends the program.
class ChildProcess
{
public:
    /// Starts the program in this process's environment with the changes in @a environment; an entry without a value
    /// removes the variable. The program writes its standard error to the file @a errors. Without this argument, the
    /// program inherits the standard error of this process.
    explicit ChildProcess(const std::vector<std::string>& command,
                          const std::map<std::string, std::optional<std::string>>& environment = {},
                          const std::string& errors = {});
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    bool IsRunning();

    void Send(int signal);

    /// Waits for the end of the program. Returns false if the program still runs after @a milliseconds times
    /// Patience().
    bool WaitForEnd(int milliseconds = 60000);

    /// Returns the exit code of the program, which must have ended. If a signal ended the program, the result is minus
    /// the signal's number.
    int ExitCode() const { return m_exitCode; }

    /// Returns the output so far.
    std::string Output() const { return ReadFile(m_folder / "output"); }

    /// Returns what LinesOf() returns for the output so far.
    std::vector<std::string> Lines(const std::string& start = {}) const;

private:
    TempFolder m_folder;
    pid_t m_pid = 0;
    bool m_ended = false;
    int m_exitCode = 0;
};

/// Returns each line of @a text that begins with @a start, without that start. Leaves out a last line without a line
/// end, because the program may still be writing that line.
std::vector<std::string> LinesOf(const std::string& text, const std::string& start = {});

/// Runs a program to its end and returns its output; fails the test if the program fails or takes too long.
std::string RunChild(const std::vector<std::string>& command,
                     const std::map<std::string, std::optional<std::string>>& environment = {});

#endif
