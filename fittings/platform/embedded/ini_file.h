#ifndef FITTINGS_PLATFORM_EMBEDDED_INI_FILE_H_
#define FITTINGS_PLATFORM_EMBEDDED_INI_FILE_H_

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <fittings/platform/embedded/file_bytes.h>
#include <fittings/platform/embedded/ini_text.h>
#include <fittings/platform/local_reg_store.h>

/// An INI file in wide text.
///
/// What is saved is the text that was read, with the changed keys changed in it, so that all else stays as it was to
/// the byte.
class CIniFile
{
public:
    /// Reads the file in place of what the object held. False when it could not be read or holds no settings but
    /// bytes that are no text.
    bool Load(const std::string& path);

    /// Loads the file and makes the changes in it, unless the file is known to be as it was when it was loaded last and
    /// the revision of the changes is the same. True when the object may hold something else than before.
    bool Refresh(const std::string& path, const std::vector<fittings::SettingsChange>& changes = {},
                 std::uint64_t revision = 0);

    /// The same for a path in wide text. The path of the last call is not converted again.
    bool Refresh(std::wstring_view path);

    /// Takes @a text in place of what the object held. False when it holds no settings but bytes that are no text.
    bool Parse(std::string text);

    /// Writes the file anew where its bytes change.
    bool Save(const std::string& path) const;

    /// Writes the file that was loaded last anew where its bytes change, unless it has changed since: what others store
    /// at the same time is kept.
    fittings::UpdateResult Update() const;

    std::optional<std::wstring> Get(std::wstring_view section, std::wstring_view key) const;

    /// True when Get() returns @a text.
    bool Has(std::wstring_view section, std::wstring_view key, std::optional<std::wstring_view> text) const;

    void Set(std::wstring_view section, std::wstring_view key, std::wstring_view value);
    /// Of the section of the empty name it removes the keys before the first section, too.
    void Delete(std::wstring_view section, std::wstring_view key);

    using Change = fittings::SettingsChange;

    /// Makes the changes: those of keys, and then those of sections.
    void Apply(const std::vector<Change>& changes);

    /// True when Apply() would change nothing.
    bool HoldsAll(const std::vector<Change>& changes) const;

    /// The names of all sections, each once, in the order of the file. New ones come last.
    std::vector<std::wstring> SectionNames() const;

    /// The names of a section's keys, each once, in the order of the file. New ones come last.
    std::vector<std::wstring> KeyNames(std::wstring_view section) const;

    /// What KeyNames() names, with its values. Those of the section of the empty name come after the keys before the
    /// first section that are not in it, too.
    std::vector<fittings::SettingsEntry> Entries(std::wstring_view section) const;

    /// The last Load() met a file that is there but could not be read.
    bool HasFailed() const { return m_content.result == fittings::ReadResult::Failed; }

    /// What the last Load() found.
    const fittings::FileContent& Content() const { return m_content; }

private:
    void Clear();
    bool IsFresh() const;
    std::optional<std::string_view> Find(std::wstring_view section, std::wstring_view key) const;
    bool HasEarlyKey(std::wstring_view key) const;
    std::vector<fittings::IniText::Key> WithEarlyKeys(const std::vector<fittings::IniText::Key>& keys) const;
    std::optional<std::string> Merged(std::string_view expected, std::string_view put,
                                      std::string_view displaced) const;

    std::unique_ptr<fittings::IniText> m_text = std::make_unique<fittings::IniText>("");
    std::string m_path;
    fittings::FileContent m_content = {fittings::ReadResult::Missing, std::nullopt};
    bool m_isNoText = false;
    std::uint64_t m_revision = 0;

    /// What the Refresh() of wide text was asked for last.
    struct
    {
        std::wstring path;
        std::string inUtf8;
    } m_asked;
};

#endif
