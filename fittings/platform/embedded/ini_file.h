#ifndef FITTINGS_PLATFORM_EMBEDDED_INI_FILE_H_
#define FITTINGS_PLATFORM_EMBEDDED_INI_FILE_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include <glib.h>

#include <fittings/platform/embedded/file_bytes.h>
#include <fittings/platform/local_reg_store.h>

/// An INI file: the text as it was read, and a GKeyFile made of it that answers questions and takes changes.
///
/// What is saved is the text that was read, with the changed keys changed in it, so that all else stays as it was to
/// the byte.
class CIniFile
{
public:
    CIniFile();
    ~CIniFile();
    CIniFile(const CIniFile&) = delete;
    CIniFile& operator=(const CIniFile&) = delete;
    CIniFile& operator=(CIniFile&&) = default;

    /// Reads the file in place of what the object held. False when it could not be read or holds no settings but
    /// bytes that are no text.
    bool Load(const std::string& path);

    /// Loads the file and makes the changes in it, unless the file is known to be as it was when it was loaded last and the
    /// revision of the changes is the same. True when the object may hold something else than before.
    bool Refresh(const std::string& path, const std::vector<fittings::SettingsChange>& changes = {},
                 std::uint64_t revision = 0);

    /// Takes @a text in place of what the object held. False when it holds no settings but bytes that are no text.
    bool Parse(std::string_view text);

    /// Writes the file anew where its bytes change.
    bool Save(const std::string& path) const;

    /// Writes the file that was loaded last anew where its bytes change, unless it has changed since: what others store at the
    /// same time is kept.
    fittings::UpdateResult Update() const;

    std::optional<std::wstring> Get(std::wstring_view section, std::wstring_view key) const;

    /// True when Get() returns @a text.
    bool Has(std::wstring_view section, std::wstring_view key, std::optional<std::wstring_view> text) const;

    void Set(std::wstring_view section, std::wstring_view key, std::wstring_view value);
    /// Of the section of the empty name it removes the keys before the first section, too.
    void Delete(std::wstring_view section, std::wstring_view key);

    /// Makes a section, which may stay without keys.
    void AddSection(std::wstring_view section);

    /// Removes a section that has no keys.
    void DropSection(std::wstring_view section);

    using Change = fittings::SettingsChange;

    /// Makes the changes: those of keys, and then those of sections.
    void Apply(const std::vector<Change>& changes);

    /// True when Apply() would change nothing.
    bool HoldsAll(const std::vector<Change>& changes) const;

    /// The names of all sections, each once, in the order of the file. New ones come last.
    std::vector<std::wstring> SectionNames() const;

    /// The names of a section's keys, each once, in the order of the file. New ones come last.
    std::vector<std::wstring> KeyNames(std::wstring_view section) const;

    /// What KeyNames() names, with its values. Those of the section of the empty name come after the keys before the first
    /// section that are not in it, too.
    std::vector<fittings::SettingsEntry> Entries(std::wstring_view section) const;

    /// The last Load() met a file that is there but could not be read.
    bool HasFailed() const { return m_content.result == fittings::ReadResult::Failed; }

    /// What the last Load() found.
    const fittings::FileContent& Content() const { return m_content; }

private:
    /// A section and a key as they stand in the text and in the GKeyFile.
    using Slot = std::pair<std::string, std::string>;
    using GText = std::unique_ptr<char, decltype(&g_free)>;

    struct Unref
    {
        void operator()(GKeyFile* keys) const { g_key_file_unref(keys); }
    };

    void Clear();
    bool ParseBuffer();
    bool IsFresh() const;
    bool HasEarlyKey(std::wstring_view key) const;
    void AddEarlyKeys(std::vector<fittings::SettingsEntry>& entries) const;
    std::vector<std::string> GroupNames() const;
    std::vector<std::string> GroupNames(std::wstring_view section) const;
    std::optional<std::string> Merged(std::string_view expected, std::string_view put,
                                      std::string_view displaced) const;
    void NoteName(const std::string& section, std::string_view rawSection, std::string_view rawKey);
    GText Value(const Slot& slot) const;
    GText Find(std::wstring_view section, std::wstring_view key) const;
    std::optional<Slot> FindSlot(const Slot& names) const;
    Slot NewSlot(Slot names) const;
    void Remove(const Slot& slot);
    void NoteChange(const Slot& slot);
    std::string_view Text() const;
    std::string ChangedText() const;

    std::unique_ptr<GKeyFile, Unref> m_keys;
    std::string m_buffer;
    /// What stands in the text under a name that EncodeName() writes otherwise, by the name that it writes.
    std::unordered_map<std::string, std::vector<std::string>> m_otherSections;
    /// The keys before the first section, as they stand in the text, with their values.
    std::vector<std::pair<std::string, std::string>> m_earlyKeys;
    std::map<Slot, std::vector<Slot>> m_otherSlots;
    /// The changed slots, each once, in the order of their first change. The key is empty where a section was added or removed.
    std::vector<Slot> m_changes;
    std::unordered_set<std::string> m_changed;  ///< Section and key with a line break between them, which no name has.

    std::string m_path;
    fittings::FileContent m_content = {fittings::ReadResult::Missing, std::nullopt};
    bool m_isNoText = false;
    std::uint64_t m_revision = 0;
};

#endif
