#ifndef FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_DESCRIPTOR_H_
#define FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_DESCRIPTOR_H_

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

}  // namespace fittings

#endif
