#ifndef FITTINGS_TESTS_SUPPORT_PROCESS_FORKED_WORK_H_
#define FITTINGS_TESTS_SUPPORT_PROCESS_FORKED_WORK_H_

#include <functional>
#include <string>

#include <sys/types.h>

/// Starts a child process that runs @a work and ends. The parent goes on; WaitForSuccess() waits for the child.
pid_t StartChild(const std::function<void()>& work);

/// True when the child ended by itself and none of its expectations failed.
bool WaitForSuccess(pid_t child);

/// Runs @a work, with its expectations, in a child process, and waits for it. Its changes of the process end with the
/// child.
void InChild(const std::function<void()>& work);

#endif
