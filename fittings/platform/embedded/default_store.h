#ifndef FITTINGS_PLATFORM_EMBEDDED_DEFAULT_STORE_H_
#define FITTINGS_PLATFORM_EMBEDDED_DEFAULT_STORE_H_

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <fittings/platform/embedded/file_lock.h>
#include <fittings/platform/embedded/ini_file.h>

namespace fittings {

/// What is to be stored under a key.
struct Setting
{
    std::wstring section;
    std::wstring key;
    std::optional<std::wstring> value;  ///< None removes the key.
};

/// The settings that all processes of the application share. Any thread.
class DefaultStore
{
public:
    static DefaultStore& Instance();

    std::optional<std::wstring> Get(std::wstring_view section, std::wstring_view key);
    std::vector<std::wstring> SectionNames();
    std::vector<std::wstring> KeyNames(std::wstring_view section);

    /// Stores all of the settings by one save, or none of them. False when they could not be saved.
    bool Store(const std::vector<Setting>& settings);

private:
    const CIniFile& Refreshed();
    bool IsFresh() const;
    UpdateResult StoreOnce(const std::string& path, const std::vector<Setting>& settings,
                           FileLock::Clock::time_point deadline);

    std::mutex m_writing;  ///< Taken before m_reading. Guards the two that follow.
    bool m_hasWaitedInVain = false;
    std::optional<FileIdentity> m_savedAfterThat;

    std::mutex m_reading;  ///< Guards all that follows.
    std::wstring m_folder;
    std::string m_path;
    std::unique_ptr<CIniFile> m_file = std::make_unique<CIniFile>();
};

}  // namespace fittings

#endif
