#ifndef FITTINGS_TESTS_PLATFORM_PROCESSES_WATCHED_CALLS_H_
#define FITTINGS_TESTS_PLATFORM_PROCESSES_WATCHED_CALLS_H_

#include <functional>

/// What happens in the process before it makes a call on a file.
struct WatchedCalls
{
    std::function<void()> beforeSync;

    /// Before a file takes the place of another, or a place where there is none. A number other than 0 is the error that the
    /// call then fails with.
    std::function<int()> beforeExchange;
};

/// Of the whole process; a forked process has its own.
extern WatchedCalls g_watchedCalls;

#endif
