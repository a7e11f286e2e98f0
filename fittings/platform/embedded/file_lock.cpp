#include <fittings/platform/embedded/file_lock.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

namespace fittings {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience(2);
constexpr std::chrono::milliseconds kPause(1);

// The lock itself, and the turn to be the next who gets it: without the turn, a process that stores in a loop would
// take the lock again before those who wait look at it.
constexpr off_t kLockByte = 0;
constexpr off_t kTurnByte = 1;

bool SetLock(int fd, short type, off_t byte)
{
    struct flock lock = {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = byte;
    lock.l_len = 1;
    return fcntl(fd, F_OFD_SETLK, &lock) == 0;
}

bool WaitForLock(int fd, off_t byte, Clock::time_point deadline)
{
    while (!SetLock(fd, F_WRLCK, byte)) {
        if ((errno != EAGAIN && errno != EACCES && errno != EINTR) || Clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(kPause);
    }
    return true;
}

}  // namespace

FileLock::FileLock(const std::string& path)
    : m_fd(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0600))
{
    if (m_fd < 0)
        return;
    const Clock::time_point deadline = Clock::now() + kPatience;
    if (WaitForLock(m_fd, kTurnByte, deadline)) {
        WaitForLock(m_fd, kLockByte, deadline);
        SetLock(m_fd, F_UNLCK, kTurnByte);
    }
}

FileLock::~FileLock()
{
    if (m_fd < 0)
        return;
    // Closing would leave the lock with a child that was forked meanwhile.
    SetLock(m_fd, F_UNLCK, kLockByte);
    close(m_fd);
}

}  // namespace fittings
