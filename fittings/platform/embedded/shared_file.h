#ifndef FITTINGS_PLATFORM_EMBEDDED_SHARED_FILE_H_
#define FITTINGS_PLATFORM_EMBEDDED_SHARED_FILE_H_

#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include <fittings/platform/embedded/file_lock.h>
#include <fittings/platform/embedded/ini_file.h>

namespace fittings {

/// A settings file that several processes and threads change. Any thread.
class SharedFile
{
public:
    /// The file at @a path, made when it is asked for first and never destroyed.
    static SharedFile& At(const std::string& path);

    explicit SharedFile(std::string path) : m_path(std::move(path)) {}

    const std::string& Path() const { return m_path; }

    /// Makes all of the changes by one save, or none of them. False when they could not be saved.
    bool Store(const std::vector<SettingsChange>& changes);

private:
    UpdateResult StoreOnce(const std::vector<SettingsChange>& changes, FileLock::Clock::time_point deadline);

    const std::string m_path;

    std::mutex m_writing;  ///< Guards the two that follow.
    bool m_hasWaitedInVain = false;
    std::optional<FileIdentity> m_savedAfterThat;
};

}  // namespace fittings

#endif
