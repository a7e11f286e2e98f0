#ifndef FITTINGS_PLATFORM_EMBEDDED_FILE_LOCK_H_
#define FITTINGS_PLATFORM_EMBEDDED_FILE_LOCK_H_

#include <string>

namespace fittings {

/// Keeps other processes and threads that take the same lock waiting for as long as the object lives.
///
/// The lock file is made when missing and never removed: another process may be waiting for that very file. A lock
/// that cannot be had within two seconds is done without; its holder may have been stopped.
class FileLock
{
public:
    explicit FileLock(const std::string& path);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

private:
    int m_fd;
};

}  // namespace fittings

#endif
