#ifndef FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_LOCK_H_
#define FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_LOCK_H_

#include <chrono>
#include <optional>
#include <string>

#include <fittings/platform/embedded/file/file_bytes.h>
#include <fittings/platform/embedded/file/file_descriptor.h>

namespace fittings {

/// How long a caller waits for a lock.
struct LockWait
{
    using Clock = std::chrono::steady_clock;

    /// The state of the lock file when the last wait for the lock failed; none after a wait that succeeded. Until the
    /// state changes, the holder counts as stuck.
    using Stuck = std::optional<FileIdentity>;

    std::chrono::milliseconds longest;  ///< How long to wait for one holder. Starts again with each new holder.
    Clock::time_point deadline;         ///< The end of the wait; postponed when another process takes the lock.
    Clock::time_point end;              ///< The deadline is never postponed beyond this time.
    Stuck& stuck;
};

/// While the object exists, other processes and threads that need the same lock wait.
///
/// The lock is advisory: a caller that cannot get it continues without it. The lock file is created if it is missing.
/// The file is never removed, because another process may be waiting for the lock. A process that gets the lock updates
/// the timestamp of the lock file, so that the waiting processes can see that the holder is not stuck.
class FileLock
{
public:
    /// Waits for the lock within the limits of @a wait, but tries at least once.
    FileLock(const std::string& path, LockWait& wait);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

private:
    const FileDescriptor m_file;
    bool m_isHeld = false;
};

}  // namespace fittings

#endif
