#include <tests/platform/processes/watched_calls.h>

#include <cerrno>

#include <sys/file.h>
#include <sys/syscall.h>
#include <unistd.h>

WatchedCalls g_watchedCalls;

// The functions below replace the C library's functions in the whole process.

extern "C" int fsync(int fd)
{
    if (g_watchedCalls.beforeSync)
        g_watchedCalls.beforeSync();
    return static_cast<int>(syscall(SYS_fsync, fd));
}

extern "C" int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned int flags) noexcept
{
    if (g_watchedCalls.beforeExchange) {
        errno = g_watchedCalls.beforeExchange();
        if (errno != 0)
            return -1;
    }
    return static_cast<int>(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

extern "C" int flock(int fd, int operation) noexcept
{
    if (g_watchedCalls.beforeFolderLock && operation != LOCK_UN) {
        errno = g_watchedCalls.beforeFolderLock();
        if (errno != 0)
            return -1;
    }
    return static_cast<int>(syscall(SYS_flock, fd, operation));
}
