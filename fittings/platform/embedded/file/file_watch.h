#ifndef FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_WATCH_H_
#define FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_WATCH_H_

#include <memory>
#include <string>

#include <time.h>

#include <fittings/platform/embedded/file/file_bytes.h>
#include <fittings/platform/embedded/file/file_descriptor.h>

namespace fittings {

/// Reports whether a file has changed. Most calls only examine the open file, because a look-up of its path takes three
/// times as long.
class FileWatch
{
public:
    /// Returns whether @a path leads to a file in the state @a known. Pass the same path in each call.
    ///
    /// Notices at once that the file was written, replaced, renamed or removed. When a folder is moved, a link is
    /// changed or a file system is mounted, the path can lead to another file. The function notices this at the next
    /// tick of the system's clock, at most 10 ms later.
    bool IsUnchanged(const std::string& path, const FileIdentity& known);

private:
    bool IsOpenIn(const FileIdentity& state) const;

    std::unique_ptr<const FileDescriptor> m_file;  ///< Null if the last lookup did not find the known state.
    timespec m_tick = {};                          ///< The tick at which the path was last looked up.
};

}  // namespace fittings

#endif
