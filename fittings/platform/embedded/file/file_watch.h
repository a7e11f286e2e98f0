#ifndef FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_WATCH_H_
#define FITTINGS_PLATFORM_EMBEDDED_FILE_FILE_WATCH_H_

#include <memory>
#include <string>

#include <time.h>

#include <fittings/platform/embedded/file/file_bytes.h>
#include <fittings/platform/embedded/file/file_descriptor.h>

namespace fittings {

/// Tells whether a file has changed. Most calls ask the open file and not its path, which takes a third of the time.
class FileWatch
{
public:
    /// Whether @a path leads to a file in the state @a known. Pass the same path in each call.
    ///
    /// A file that was written, replaced, renamed or removed is noticed at once. An open file does not show that its
    /// path leads elsewhere, because a folder above was moved, a link was changed or a file system was mounted. This is
    /// noticed with the next tick of the system's clock, at most 10 ms later.
    bool IsUnchanged(const std::string& path, const FileIdentity& known);

private:
    bool IsOpenIn(const FileIdentity& state) const;

    std::unique_ptr<const FileDescriptor> m_file;  ///< Null until the path has led to the known state once.
    timespec m_tick = {};                          ///< The time at which the path was followed last.
};

}  // namespace fittings

#endif
