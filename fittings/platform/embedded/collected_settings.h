#ifndef FITTINGS_PLATFORM_EMBEDDED_COLLECTED_SETTINGS_H_
#define FITTINGS_PLATFORM_EMBEDDED_COLLECTED_SETTINGS_H_

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fittings/platform/embedded/default_store.h>

namespace fittings {

/// What a thread stores in the default store while the object lives, to be saved as one.
class CollectedSettings
{
public:
    /// What collects for this thread, or null.
    static CollectedSettings* OfThread();

    /// Collects for this thread, which has none yet.
    CollectedSettings();
    ~CollectedSettings();
    CollectedSettings(const CollectedSettings&) = delete;
    CollectedSettings& operator=(const CollectedSettings&) = delete;

    void Put(Setting setting);

    /// Null when nothing was collected for that key.
    const Setting* Find(std::wstring_view section, std::wstring_view key) const;

    /// @name What the stored names will be
    /// @{
    std::vector<std::wstring> SectionNames(std::vector<std::wstring> stored) const;
    std::vector<std::wstring> KeyNames(std::wstring_view section, std::vector<std::wstring> stored) const;
    /// @}

    /// What could not be saved stays collected.
    bool Save();

private:
    std::vector<Setting> m_settings;
    std::map<std::pair<std::wstring, std::wstring>, std::size_t> m_indices;
};

}  // namespace fittings

#endif
