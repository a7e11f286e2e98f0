#ifndef FITTINGS_PLATFORM_EMBEDDED_COLLECTED_SETTINGS_H_
#define FITTINGS_PLATFORM_EMBEDDED_COLLECTED_SETTINGS_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <fittings/platform/embedded/ini_file.h>

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

    void Put(SettingsChange change);

    /// Null when nothing was collected for that key.
    const SettingsChange* Find(std::wstring_view section, std::wstring_view key) const;

    /// What was collected, in the order of the first change of each key.
    const std::vector<SettingsChange>& Changes() const { return m_changes; }

    /// Another number, and never 0, whenever Changes() are others, those of an earlier object included.
    std::uint64_t Revision() const { return m_revision; }

    /// The default store as it will be.
    const CIniFile& Preview();

    /// What could not be saved stays collected.
    bool Save();

private:
    using Address = std::tuple<bool, std::wstring, std::wstring>;

    void NoteChange();

    std::vector<SettingsChange> m_changes;
    std::map<Address, std::size_t> m_indices;
    std::uint64_t m_revision = 0;
    CIniFile m_preview;
};

}  // namespace fittings

#endif
