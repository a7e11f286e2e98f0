#ifndef FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_DESCRIPTOR_H_
#define FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_DESCRIPTOR_H_

#include <cerrno>

#include <unistd.h>

namespace fittings {

/// Closes an open file in its destructor. The descriptor is negative when the file could not be opened.
class FileDescriptor
{
public:
    explicit FileDescriptor(int fd) : m_fd(fd) {}
    ~FileDescriptor()
    {
        if (m_fd >= 0)
            close(m_fd);
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    int Get() const { return m_fd; }

private:
    const int m_fd;
};

/// Writes the open file or folder to the disk, even if a signal interrupts the call. Returns false on an error.
inline bool Sync(int fd)
{
    int result = fsync(fd);
    while (result != 0 && errno == EINTR)
        result = fsync(fd);
    return result == 0;
}

}  // namespace fittings

#endif
