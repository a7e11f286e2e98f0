#ifndef FITTINGS_PLATFORM_EMBEDDED_STORE_INI_FILE_H_
#define FITTINGS_PLATFORM_EMBEDDED_STORE_INI_FILE_H_

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <fittings/platform/embedded/file/file_bytes.h>
#include <fittings/platform/embedded/file/file_watch.h>
#include <fittings/platform/embedded/text/ini_text.h>
#include <fittings/platform/local_reg_store.h>

/// An INI file whose settings are read and changed as wide text.
///
/// Save() and Update() write the text that was read, with the changes made in it. Every other byte stays as it was.
class CIniFile
{
public:
    /// Replaces the content with that of the file. Returns false when the file could not be read, or when its bytes
    /// contain no settings and are not readable text. Waits for an empty file to be filled, at most until @a deadline.
    bool Load(const std::string& path, std::chrono::steady_clock::time_point deadline = {});

    /// Loads the file and applies the changes to the loaded content. Does nothing if the path and the revision of the
    /// changes are those of the last call and the file has certainly not changed since. Keeps the earlier content while
    /// FileContent::IsEmptyForNow() is true. Returns true when the content of the object may have changed.
    bool Refresh(std::wstring_view path, const std::vector<fittings::SettingsChange>& changes = {},
                 std::uint64_t revision = 0);

    /// Writes the file, unless it already has the same bytes. Returns false on any error.
    bool Save(const std::string& path) const;

    /// Writes the changes to the file that was loaded last. If the file has changed on the disk since it was loaded,
    /// returns Outdated and does not write. Changes that other processes store during the call are kept. Waits for
    /// other processes until @a deadline at the latest.
    fittings::UpdateResult Update(std::chrono::steady_clock::time_point deadline) const;

    std::optional<std::wstring> Get(std::wstring_view section, std::wstring_view key) const;

    void Set(std::wstring_view section, std::wstring_view key, std::wstring_view value);
    /// Removes a key as CLocalRegStore::DeleteKey() does. Returns whether a key was removed.
    bool Delete(std::wstring_view section, std::wstring_view key);

    using Change = fittings::SettingsChange;

    /// Makes the changes: first those of keys, then those of sections.
    void Apply(const std::vector<Change>& changes);

    /// Returns whether Apply() would change nothing.
    bool HoldsAll(const std::vector<Change>& changes) const;

    /// Returns the names of all sections, each once, in the order of the file. New ones come last.
    std::vector<std::wstring> SectionNames() const;

    /// Returns the names of a section's keys, each once, in the order of the file. New ones come last.
    std::vector<std::wstring> KeyNames(std::wstring_view section) const;

    /// Returns the keys of a section with their values, as CLocalRegStore::GetEntries() does.
    std::vector<fittings::SettingsEntry> Entries(std::wstring_view section) const;

    /// Returns whether the file is still as it was when its content was read into this object. Returns false while
    /// Refresh() keeps the earlier content of a file that was found empty.
    bool IsCurrent() const;

    /// Returns whether the last Load() found a file that it could not read or that is too large.
    bool HasFailed() const { return m_content.result == fittings::ReadResult::Failed; }

private:
    /// Replaces the content with @a text. Returns false when @a text has no settings and is not readable text.
    bool Parse(std::string text);
    fittings::UpdateResult ReplaceUnreadable(const std::string& path,
                                             std::chrono::steady_clock::time_point deadline) const;
    bool IsFresh();
    std::optional<std::string> Merged(std::string_view expected, std::string_view put,
                                      std::string_view displaced) const;

    std::unique_ptr<fittings::IniText> m_text = std::make_unique<fittings::IniText>("");
    std::string m_path;
    fittings::FileContent m_content = {fittings::ReadResult::Missing, std::nullopt};
    std::string m_unreadable;  ///< The bytes of the file if they cannot be parsed, otherwise empty.
    fittings::FileWatch m_watch;
    std::optional<std::wstring> m_refreshedPath;  ///< The path of the last Refresh(); none after Load().
    std::uint64_t m_revision = 0;                 ///< The revision of the last Refresh().
};

#endif
