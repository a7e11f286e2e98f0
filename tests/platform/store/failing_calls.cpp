// This file replaces both variants of some functions, for example stat() and stat64(). With _FILE_OFFSET_BITS defined,
// the compiler would take the two variants for one function.
#undef _FILE_OFFSET_BITS

#include <tests/platform/store/failing_calls.h>
#include <tests/support/replaced_function.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const Fault* g_fault = nullptr;
int g_calls = 0;
std::string g_failed;

bool Fails(const char* name)
{
    if (!g_fault)
        return false;
    ++g_calls;
    if (g_calls < g_fault->nth || (g_calls > g_fault->nth && !g_fault->lasts))
        return false;
    if (g_failed.empty())
        g_failed = name;
    errno = g_fault->error;
    return true;
}

}  // namespace

FailingCalls::FailingCalls(const Fault& fault)
{
    g_calls = 0;
    g_failed.clear();
    g_fault = &fault;
}

FailingCalls::~FailingCalls()
{
    g_fault = nullptr;
}

const std::string& FailingCalls::Failed()
{
    return g_failed;
}

// The functions below replace the C library's functions in the whole process.

#define TAKE_PLACE(result, name, parameters, arguments)                                                                \
    extern "C" result name parameters                                                                                  \
    {                                                                                                                  \
        static auto* const next = ReplacedFunction<result parameters>(#name);                                          \
        return Fails(#name) ? -1 : next arguments;                                                                     \
    }

TAKE_PLACE(ssize_t, read, (int fd, void* to, size_t size), (fd, to, size))
TAKE_PLACE(ssize_t, write, (int fd, const void* from, size_t size), (fd, from, size))
TAKE_PLACE(int, fsync, (int fd), (fd))
TAKE_PLACE(int, flock, (int fd, int operation) noexcept, (fd, operation))
TAKE_PLACE(int, ftruncate, (int fd, off_t size), (fd, size))
TAKE_PLACE(int, ftruncate64, (int fd, off64_t size), (fd, size))
TAKE_PLACE(int, fallocate, (int fd, int mode, off_t from, off_t size), (fd, mode, from, size))
TAKE_PLACE(int, fallocate64, (int fd, int mode, off64_t from, off64_t size), (fd, mode, from, size))
TAKE_PLACE(int, rename, (const char* from, const char* to) noexcept, (from, to))
TAKE_PLACE(int, renameat2,
           (int fromFolder, const char* from, int toFolder, const char* to, unsigned int flags) noexcept,
           (fromFolder, from, toFolder, to, flags))
TAKE_PLACE(ssize_t, readlink, (const char* path, char* to, size_t size) noexcept, (path, to, size))
TAKE_PLACE(off_t, lseek, (int fd, off_t to, int from) noexcept, (fd, to, from))
TAKE_PLACE(int, link, (const char* from, const char* to) noexcept, (from, to))
TAKE_PLACE(int, unlink, (const char* path) noexcept, (path))
TAKE_PLACE(int, mkdir, (const char* path, mode_t mode) noexcept, (path, mode))
TAKE_PLACE(int, fchmod, (int fd, mode_t mode) noexcept, (fd, mode))
TAKE_PLACE(int, fchown, (int fd, uid_t user, gid_t group) noexcept, (fd, user, group))
TAKE_PLACE(int, fstat, (int fd, struct stat* info) noexcept, (fd, info))
TAKE_PLACE(int, fstat64, (int fd, struct stat64* info) noexcept, (fd, info))
TAKE_PLACE(int, stat, (const char* path, struct stat* info) noexcept, (path, info))
TAKE_PLACE(int, stat64, (const char* path, struct stat64* info) noexcept, (path, info))
TAKE_PLACE(int, lstat, (const char* path, struct stat* info) noexcept, (path, info))
TAKE_PLACE(int, lstat64, (const char* path, struct stat64* info) noexcept, (path, info))

// Closes the file even if the call is to fail, as the system does.
extern "C" int close(int fd)
{
    static auto* const next = ReplacedFunction<int(int)>("close");
    const int result = next(fd);
    return Fails("close") ? -1 : result;
}

#define TAKE_PLACE_OF_OPEN(name)                                                                                       \
    extern "C" int name(const char* path, int flags, ...)                                                              \
    {                                                                                                                  \
        static auto* const next = ReplacedFunction<int(const char*, int, ...)>(#name);                                 \
        va_list rest;                                                                                                  \
        va_start(rest, flags);                                                                                         \
        const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;                                         \
        va_end(rest);                                                                                                  \
        return Fails("open") ? -1 : next(path, flags, mode);                                                           \
    }

TAKE_PLACE_OF_OPEN(open)
TAKE_PLACE_OF_OPEN(open64)

#define TAKE_PLACE_OF_FCNTL(name)                                                                                      \
    extern "C" int name(int fd, int command, ...)                                                                      \
    {                                                                                                                  \
        static auto* const next = ReplacedFunction<int(int, int, ...)>(#name);                                         \
        va_list rest;                                                                                                  \
        va_start(rest, command);                                                                                       \
        void* const argument = va_arg(rest, void*);                                                                    \
        va_end(rest);                                                                                                  \
        return Fails("fcntl") ? -1 : next(fd, command, argument);                                                      \
    }

TAKE_PLACE_OF_FCNTL(fcntl)
TAKE_PLACE_OF_FCNTL(fcntl64)
