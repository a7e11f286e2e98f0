#include <fittings/platform/embedded/file/file_watch.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace fittings {

bool FileWatch::IsUnchanged(const std::string& path, const FileIdentity& known)
{
    timespec tick;
    clock_gettime(CLOCK_MONOTONIC_COARSE, &tick);
    if (m_file && tick.tv_sec == m_tick.tv_sec && tick.tv_nsec == m_tick.tv_nsec)
        return IsOpenIn(known);
    m_tick = tick;
    if (!(IdentityOf(path) == known)) {
        m_file.reset();
        return false;
    }
    if (!m_file) {
        m_file = std::make_unique<const FileDescriptor>(open(path.c_str(), O_PATH | O_CLOEXEC));
        if (!IsOpenIn(known))
            m_file.reset();
    }
    return true;
}

// Also checks that the file still has a name: some file systems do not change the timestamps of a file that is removed
// or replaced.
bool FileWatch::IsOpenIn(const FileIdentity& state) const
{
    struct stat info;
    return fstat(m_file->Get(), &info) == 0 && info.st_nlink > 0 && FileIdentity(info) == state;
}

}  // namespace fittings
