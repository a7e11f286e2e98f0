#ifndef FITTINGS_TESTS_PLATFORM_PROCESSES_WATCHED_CALLS_H_
#define FITTINGS_TESTS_PLATFORM_PROCESSES_WATCHED_CALLS_H_

#include <functional>

/// Functions that run before this process calls fsync(), renameat2() or flock(). The store calls these three to sync
/// files and folders, to rename or exchange files, and to lock a folder.
struct WatchedCalls
{
    std::function<void()> beforeSync;

    /// Called before renameat2(). If it returns an error number instead of 0, renameat2() fails with this error. Not
    /// called before rename().
    std::function<int()> beforeExchange;

    /// Called before flock(), except to unlock. If it returns an error number instead of 0, flock() fails with this
    /// error.
    std::function<int()> beforeFolderLock;
};

/// The functions that run in this process. A child process that is forked starts with a copy of them.
extern WatchedCalls g_watchedCalls;

#endif
