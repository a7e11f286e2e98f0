#ifndef FITTINGS_TESTS_PLATFORM_PROCESSES_WATCHED_CALLS_H_
#define FITTINGS_TESTS_PLATFORM_PROCESSES_WATCHED_CALLS_H_

#include <functional>

/// Actions that run before this process makes a call on a file.
struct WatchedCalls
{
    std::function<void()> beforeSync;

    /// Called before a file is renamed or exchanged. When it returns a number other than 0, the call fails with that
    /// error.
    std::function<int()> beforeExchange;

    /// Called before a folder is locked. When it returns a number other than 0, the call fails with that error.
    std::function<int()> beforeFolderLock;
};

/// The actions of this process. A forked process has a copy.
extern WatchedCalls g_watchedCalls;

#endif
