#include <tests/support/process/child_process.h>

#include <csignal>
#include <sstream>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <tests/support/becomes.h>

ChildProcess::ChildProcess(const std::vector<std::string>& command,
                           const std::map<std::string, std::optional<std::string>>& environment,
                           const std::string& errors)
{
    std::vector<std::string> variables;
    for (char** variable = environ; *variable; ++variable) {
        const std::string text = *variable;
        if (!environment.count(text.substr(0, text.find('='))))
            variables.push_back(text);
    }
    for (const auto& [name, value] : environment) {
        if (value)
            variables.push_back(name + "=" + *value);
    }
    const auto pointers = [](const std::vector<std::string>& texts) {
        std::vector<char*> result;
        for (const std::string& text : texts)
            result.push_back(const_cast<char*>(text.c_str()));
        result.push_back(nullptr);
        return result;
    };

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    const int flags = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, (m_folder / "output").c_str(), flags, 0600);
    if (!errors.empty())
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errors.c_str(), flags, 0600);
    const int error = posix_spawnp(&m_pid, command[0].c_str(), &actions, nullptr, pointers(command).data(),
                                   pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    if (error) {
        ADD_FAILURE() << "cannot run " << command[0];
        m_ended = true;
        m_exitCode = 127;
    }
}

ChildProcess::~ChildProcess()
{
    if (IsRunning()) {
        kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
    }
}

bool ChildProcess::IsRunning()
{
    int status = 0;
    if (!m_ended && waitpid(m_pid, &status, WNOHANG) == m_pid) {
        m_ended = true;
        m_exitCode = WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
    }
    return !m_ended;
}

void ChildProcess::Send(int signal)
{
    if (IsRunning())
        kill(m_pid, signal);
}

bool ChildProcess::WaitForEnd(int milliseconds)
{
    return Becomes([this] { return !IsRunning(); }, milliseconds);
}

std::vector<std::string> ChildProcess::Lines(const std::string& start) const
{
    return LinesOf(Output(), start);
}

std::vector<std::string> LinesOf(const std::string& text, const std::string& start)
{
    std::vector<std::string> lines;
    std::istringstream all(text);
    for (std::string line; std::getline(all, line) && !all.eof();) {
        if (line.compare(0, start.size(), start) == 0)
            lines.push_back(line.substr(start.size()));
    }
    return lines;
}

std::string RunChild(const std::vector<std::string>& command,
                     const std::map<std::string, std::optional<std::string>>& environment)
{
    ChildProcess child(command, environment);
    if (!child.WaitForEnd())
        ADD_FAILURE() << command[0] << " does not end";
    else if (child.ExitCode() != 0)
        ADD_FAILURE() << command[0] << " ended with " << child.ExitCode();
    return child.Output();
}
