#ifndef FITTINGS_PLATFORM_EMBEDDED_DEFAULT_STORE_H_
#define FITTINGS_PLATFORM_EMBEDDED_DEFAULT_STORE_H_

#include <mutex>
#include <optional>
#include <string>
#include <string_view>

#include <fittings/platform/embedded/ini_file.h>

namespace fittings {

/// The settings that all processes of the application share. Any thread.
class DefaultStore
{
public:
    static DefaultStore& Instance();

    std::optional<std::wstring> Get(std::wstring_view section, std::wstring_view key);

    /// Stores a value, or removes the key. False when that could not be saved.
    bool Change(std::wstring_view section, std::wstring_view key, std::optional<std::wstring_view> value);

private:
    void Refresh();
    bool IsFresh() const;

    std::mutex m_writing;  ///< Taken before m_reading.
    std::mutex m_reading;  ///< Guards all that follows.
    std::wstring m_folder;
    std::string m_path;
    CIniFile m_file;
};

}  // namespace fittings

#endif
