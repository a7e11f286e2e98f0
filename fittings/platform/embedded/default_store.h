#ifndef FITTINGS_PLATFORM_EMBEDDED_DEFAULT_STORE_H_
#define FITTINGS_PLATFORM_EMBEDDED_DEFAULT_STORE_H_

#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <fittings/platform/embedded/ini_file.h>
#include <fittings/platform/embedded/shared_file.h>

namespace fittings {

/// The settings that all processes of the application share. Any thread.
class DefaultStore
{
public:
    static DefaultStore& Instance();

    /// The path of the file, which is another when the user data directory is.
    std::string Path();

    std::optional<std::wstring> Get(std::wstring_view section, std::wstring_view key);
    std::vector<std::wstring> SectionNames();
    std::vector<std::wstring> KeyNames(std::wstring_view section);

    /// Makes all of the changes by one save, or none of them. False when they could not be saved.
    bool Store(const std::vector<SettingsChange>& changes);

private:
    void Locate();
    const CIniFile& Refreshed();

    std::mutex m_mutex;  ///< Guards all that follows.
    std::wstring m_folder;
    SharedFile* m_shared = nullptr;
    CIniFile m_file;
};

}  // namespace fittings

#endif
