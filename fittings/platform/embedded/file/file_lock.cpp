#include <fittings/platform/embedded/file/file_lock.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>

namespace fittings {

namespace {

using Clock = LockWait::Clock;

constexpr std::chrono::milliseconds kPause(1);

// Bytes of the lock file that are locked: one for the lock itself, and one for the turn. The process that has the turn
// takes the lock next. Without the turn, a process that stores in a loop would take the lock again before the waiting
// processes try.
constexpr off_t kLockByte = 0;
constexpr off_t kTurnByte = 1;

// How long a process waits for the turn while another process has the turn but does not take the free lock. Without
// this limit, a process that was stopped while it had the turn would block all others.
constexpr std::chrono::milliseconds kTimeToUseTheTurn(25);

struct flock RequestFor(short type, off_t byte)
{
    struct flock request = {};
    request.l_type = type;
    request.l_whence = SEEK_SET;
    request.l_start = byte;
    request.l_len = 1;
    return request;
}

enum class Attempt { Had, Taken, Impossible };

Attempt TryLock(int fd, off_t byte)
{
    struct flock request = RequestFor(F_WRLCK, byte);
    if (fcntl(fd, F_OFD_SETLK, &request) == 0)
        return Attempt::Had;
    return errno == EAGAIN || errno == EACCES || errno == EINTR ? Attempt::Taken : Attempt::Impossible;
}

void Unlock(int fd, off_t byte)
{
    struct flock request = RequestFor(F_UNLCK, byte);
    fcntl(fd, F_OFD_SETLK, &request);
}

bool IsFree(int fd, off_t byte)
{
    struct flock request = RequestFor(F_WRLCK, byte);
    return fcntl(fd, F_OFD_GETLK, &request) == 0 && request.l_type == F_UNLCK;
}

std::optional<FileIdentity> StateOf(int fd)
{
    struct stat info;
    return fstat(fd, &info) == 0 ? std::optional(FileIdentity(info)) : std::nullopt;
}

// One wait for the lock. Decides when the wait is over, and remembers in LockWait whether the holder is stuck.
class Waiting
{
public:
    Waiting(int fd, LockWait& wait) : m_fd(fd), m_wait(wait), m_state(StateOf(fd))
    {
        m_isStuck = m_wait.stuck && m_wait.stuck == m_state;
        if (m_wait.stuck && !m_isStuck)
            Restart();
    }

    bool IsOver()
    {
        if (const auto state = StateOf(m_fd); state && !(state == m_state)) {
            m_state = state;
            m_isStuck = false;
            Restart();
        }
        return m_isStuck || Clock::now() >= m_wait.deadline;
    }

    void End(bool isHeld)
    {
        if (isHeld)
            static_cast<void>(!futimens(m_fd, nullptr));
        m_wait.stuck = isHeld ? std::nullopt : m_state;
    }

private:
    void Restart() { m_wait.deadline = std::min(Clock::now() + m_wait.longest, m_wait.end); }

    const int m_fd;
    LockWait& m_wait;
    std::optional<FileIdentity> m_state;
    bool m_isStuck = false;
};

// Waits for the turn. Gives up when @a waiting is over, or when the process that has the turn does not use it.
Attempt WaitForTurn(int fd, Waiting& waiting)
{
    auto lastTaken = Clock::now();
    for (;;) {
        const Attempt attempt = TryLock(fd, kTurnByte);
        if (attempt != Attempt::Taken || waiting.IsOver())
            return attempt;
        const auto now = Clock::now();
        if (!IsFree(fd, kLockByte))
            lastTaken = now;
        else if (now - lastTaken >= kTimeToUseTheTurn)
            return attempt;
        std::this_thread::sleep_for(kPause);
    }
}

bool WaitForLock(int fd, Waiting& waiting)
{
    for (;;) {
        const Attempt attempt = TryLock(fd, kLockByte);
        if (attempt != Attempt::Taken || waiting.IsOver())
            return attempt == Attempt::Had;
        std::this_thread::sleep_for(kPause);
    }
}

// Opens the lock file, and creates it if it is missing. Does not follow a link: the link could lead to any file of
// another user. Returns -1 on any error.
int OpenLockFile(const std::string& path)
{
    constexpr int kFlags = O_RDWR | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW;
    const int found = open(path.c_str(), kFlags);
    if (found >= 0 || errno != ENOENT)
        return found;
    const int made = open(path.c_str(), kFlags | O_CREAT | O_EXCL, 0600);
    if (made >= 0)
        GiveToOwnerOfFolder(made, FolderOf(path));
    // Another process may have made the file just now.
    return made < 0 && errno == EEXIST ? open(path.c_str(), kFlags) : made;
}

}  // namespace

FileLock::FileLock(const std::string& path, LockWait& wait) : m_file(OpenLockFile(path))
{
    const int fd = m_file.Get();
    if (fd < 0)
        return;
    Waiting waiting(fd, wait);
    const Attempt turn = WaitForTurn(fd, waiting);
    if (turn == Attempt::Impossible)
        return;
    m_isHeld = WaitForLock(fd, waiting);
    waiting.End(m_isHeld);
    if (turn == Attempt::Had)
        Unlock(fd, kTurnByte);
}

FileLock::~FileLock()
{
    // Closing does not release the lock while a forked child has the file open.
    if (m_isHeld)
        Unlock(m_file.Get(), kLockByte);
}

}  // namespace fittings
