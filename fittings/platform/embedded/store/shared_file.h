#ifndef FITTINGS_PLATFORM_EMBEDDED_STORE_SHARED_FILE_H_
#define FITTINGS_PLATFORM_EMBEDDED_STORE_SHARED_FILE_H_

#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include <fittings/platform/embedded/file/file_lock.h>
#include <fittings/platform/embedded/store/ini_file.h>

namespace fittings {

/// A settings file that several processes and threads change. Callable from any thread.
class SharedFile
{
public:
    /// Returns the object for the file at @a path. The first call for a path creates the object, which is never
    /// destroyed.
    static SharedFile& At(const std::string& path);

    explicit SharedFile(std::string path) : m_path(std::move(path)) {}

    /// Makes all changes with one save. Returns false when they could not be saved; none of them is then stored.
    bool Store(const std::vector<SettingsChange>& changes);

private:
    UpdateResult StoreOnce(const std::vector<SettingsChange>& changes, LockWait& wait);

    const std::string m_path;

    std::mutex m_writing;  ///< Held during a write. Guards m_stuckLock.
    LockWait::Stuck m_stuckLock;
};

}  // namespace fittings

#endif
