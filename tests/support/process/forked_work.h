#ifndef FITTINGS_TESTS_SUPPORT_PROCESS_FORKED_WORK_H_
#define FITTINGS_TESTS_SUPPORT_PROCESS_FORKED_WORK_H_

#include <functional>
#include <string>

#include <sys/types.h>

/// Starts a child process that runs @a work and then ends. Returns at once in the parent; WaitForSuccess() waits for
/// the child.
pid_t StartChild(const std::function<void()>& work);

/// Waits for the child to end. Returns whether the child ended by itself and none of its expectations failed.
bool WaitForSuccess(pid_t child);

/// Runs @a work in a child process, waits for the end of the child, and fails the test if the child fails. Changes that
/// @a work makes to the child process do not affect the calling process.
void InChild(const std::function<void()>& work);

/// Runs @a work in several child processes at the same time, with the number of the child process, from 0, as the
/// argument. Waits for the end of them all, and fails the test if one of them fails.
void InChildren(int count, const std::function<void(int)>& work);

#endif
