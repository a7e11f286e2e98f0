#ifndef FITTINGS_PLATFORM_EMBEDDED_STORE_COLLECTED_SETTINGS_H_
#define FITTINGS_PLATFORM_EMBEDDED_STORE_COLLECTED_SETTINGS_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <fittings/platform/embedded/store/ini_file.h>

namespace fittings {

/// Collects the changes that a thread makes in the default store while the object exists, to save them together.
class CollectedSettings
{
public:
    /// Returns the object that collects for this thread, or null.
    static CollectedSettings* OfThread();

    /// Starts to collect for this thread, which must have no other object.
    CollectedSettings();
    ~CollectedSettings();
    CollectedSettings(const CollectedSettings&) = delete;
    CollectedSettings& operator=(const CollectedSettings&) = delete;

    void Put(SettingsChange change);

    /// Returns the collected change of a key, or null.
    const SettingsChange* Find(std::wstring_view section, std::wstring_view key) const;

    /// Returns the collected changes, in the order of the first change of each key or section.
    const std::vector<SettingsChange>& Changes() const { return m_changes; }

    /// Returns a number that identifies the current state of Changes(). No other state has the same number, even in
    /// another object, and no state has the number 0.
    std::uint64_t Revision() const { return m_revision; }

    /// Returns the content of the default store with the collected changes made in it.
    const CIniFile& Preview();

    /// Saves the changes. Returns false when they could not be saved; they then stay collected.
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
