#ifndef FITTINGS_TESTS_SUPPORT_PROCESS_FORKED_WORK_H_
#define FITTINGS_TESTS_SUPPORT_PROCESS_FORKED_WORK_H_

#include <functional>
#include <string>

#include <sys/types.h>

/// Starts a child process that does @a work and ends. The parent goes on; WaitForSuccess() collects the child.
pid_t StartChild(const std::function<void()>& work);

/// True when the child ended by itself and none of its expectations failed.
bool WaitForSuccess(pid_t child);

/// Runs @a work in a child process, with its expectations, and waits for it. What the work does to the process
/// ends with the child.
void InChild(const std::function<void()>& work);

#endif
