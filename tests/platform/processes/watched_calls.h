#ifndef FITTINGS_TESTS_PLATFORM_PROCESSES_WATCHED_CALLS_H_
#define FITTINGS_TESTS_PLATFORM_PROCESSES_WATCHED_CALLS_H_

#include <functional>

/// Functions that run before this process syncs a file, renames or exchanges one, or locks a folder.
struct WatchedCalls
{
    std::function<void()> beforeSync;

    /// Called before a file is renamed or exchanged. If it returns an error number instead of 0, the call fails with
    /// this error.
    std::function<int()> beforeExchange;

    /// Called before a folder is locked. If it returns an error number instead of 0, the call fails with this error.
    std::function<int()> beforeFolderLock;
};

/// The functions of this process. A forked process has a copy.
extern WatchedCalls g_watchedCalls;

#endif
