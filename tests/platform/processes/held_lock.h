#ifndef FITTINGS_TESTS_PLATFORM_PROCESSES_HELD_LOCK_H_
#define FITTINGS_TESTS_PLATFORM_PROCESSES_HELD_LOCK_H_

#include <string>

#include <fcntl.h>
#include <unistd.h>

#include <gtest/gtest.h>

/// Describes bytes of the lock file for fcntl(). The first byte is the lock. The process that locks the second byte
/// gets the lock next.
inline struct flock BytesOfLock(off_t begin, off_t count)
{
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = begin;
    lock.l_len = count;
    return lock;
}

/// Returns whether a process has locked the second byte.
inline bool IsTurnTaken(const std::string& path)
{
    const int file = open(path.c_str(), O_RDWR | O_CLOEXEC);
    struct flock lock = BytesOfLock(1, 1);
    EXPECT_EQ(fcntl(file, F_OFD_GETLK, &lock), 0);
    close(file);
    return lock.l_type != F_UNLCK;
}

/// Locks @a count bytes of the default store's lock file, as another process would. By default, locks both bytes.
class HeldLock
{
public:
    explicit HeldLock(const std::string& path, off_t begin = 0, off_t count = 2)
        : m_fd(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
    {
        struct flock lock = BytesOfLock(begin, count);
        EXPECT_EQ(fcntl(m_fd, F_OFD_SETLK, &lock), 0);
    }
    ~HeldLock() { Release(); }
    HeldLock(const HeldLock&) = delete;
    HeldLock& operator=(const HeldLock&) = delete;

    void Release()
    {
        if (m_fd < 0)
            return;
        // Unlock before closing: a process that was forked while the lock was held would otherwise keep it.
        struct flock lock = BytesOfLock(0, 0);
        lock.l_type = F_UNLCK;
        EXPECT_EQ(fcntl(m_fd, F_OFD_SETLK, &lock), 0);
        close(m_fd);
        m_fd = -1;
    }

private:
    int m_fd;
};

#endif
