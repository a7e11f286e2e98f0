#ifndef FITTINGS_TESTS_SUPPORT_PROCESS_CHILD_PROCESS_H_
#define FITTINGS_TESTS_SUPPORT_PROCESS_CHILD_PROCESS_H_

#include <map>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

#include <tests/support/temp_folder.h>

/// A program run by a test, with what it prints. It never outlives the object.
class ChildProcess
{
public:
    /// Starts it in this process's environment with the changes in @a environment; no value removes a variable. What it
    /// says of errors goes where this process's does, or into the file @a errors.
    explicit ChildProcess(const std::vector<std::string>& command,
                          const std::map<std::string, std::optional<std::string>>& environment = {},
                          const std::string& errors = {});
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    bool IsRunning();

    void Send(int signal);

    /// Waits for its end; false when it still runs after @a milliseconds.
    bool WaitForEnd(int milliseconds = 60000);

    /// Its exit code once it has ended; minus the signal's number when a signal ended it.
    int ExitCode() const { return m_exitCode; }

    /// What it has printed so far.
    std::string Output() const { return ReadFile(m_folder / "output"); }

private:
    TempFolder m_folder;
    pid_t m_pid = 0;
    bool m_ended = false;
    int m_exitCode = 0;
};

/// Runs a program to its end and returns what it printed; fails the test when it fails or takes too long.
std::string RunChild(const std::vector<std::string>& command,
                     const std::map<std::string, std::optional<std::string>>& environment = {});

#endif
