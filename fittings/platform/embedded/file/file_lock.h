#ifndef FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_LOCK_H_
#define FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_LOCK_H_

#include <chrono>
#include <string>

#include <fittings/platform/embedded/file/file_descriptor.h>

namespace fittings {

/// While the object exists, other processes and threads that take the same lock wait.
///
/// The lock is advisory: a caller that cannot get it continues without it. The lock file is made when missing and never
/// removed, because another process may be waiting for it.
class FileLock
{
public:
    using Clock = std::chrono::steady_clock;

    /// Waits for the lock until @a deadline at the latest.
    FileLock(const std::string& path, Clock::time_point deadline);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// Returns whether this object has the lock. The result is also false if the lock file cannot be opened or is a
    /// link.
    bool IsHeld() const { return m_isHeld; }

private:
    const FileDescriptor m_file;
    bool m_isHeld = false;
};

}  // namespace fittings

#endif
