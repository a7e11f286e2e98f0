#ifndef FITTINGS_PLATFORM_EMBEDDED_TEXT_INI_TEXT_H_
#define FITTINGS_PLATFORM_EMBEDDED_TEXT_INI_TEXT_H_

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <fittings/platform/embedded/text/ini_lines.h>

namespace fittings {

/// The text of an INI file, an index of its sections and keys, and the changes made in it.
///
/// The functions take and return each name as EncodeName() writes it, even if the file spells the name differently.
/// Values are as they stand in the file: EncodeValue() writes them, and DecodeValue() reads them. If several lines have
/// the same key, the last one counts. However, a line whose section and key are spelled as EncodeName() writes them has
/// precedence over the other lines.
class IniText
{
public:
    /// The name of the section that holds the keys before the first section line. No section line can have this name.
    static constexpr std::string_view kEarlyKeys = "";

    explicit IniText(std::string text);
    IniText(const IniText&) = delete;
    IniText& operator=(const IniText&) = delete;

    /// Returns whether the text can be a settings file: it has a section, or it contains no null character and is not
    /// UTF-16.
    bool IsSettings() const { return m_isSettings; }

    bool IsChanged() const { return m_isChanged; }

    /// Returns the text without the changes.
    const std::string& Original() const { return m_text; }

    /// Returns the text with the changes.
    ///
    /// A value is replaced in its line. The lines of removed keys and sections are left out. New keys follow the last
    /// key of their section, or its section line. New sections are appended at the end, separated by blank lines. Every
    /// other byte stays as it is, including the comments in a removed section.
    std::string Changed() const;

    std::optional<std::string_view> Find(std::string_view section, std::string_view key) const;
    void Set(const std::string& section, const std::string& key, std::string value);
    /// Returns whether there was such a key.
    bool Remove(std::string_view section, std::string_view key);

    bool HasSection(std::string_view section) const { return FindSection(section) != nullptr; }
    /// Makes a section if there is none with that name. The section is written even if no key is set in it.
    void AddSection(const std::string& section);
    /// Removes a section and all its keys.
    void RemoveSection(std::string_view section);

    struct Key
    {
        std::string_view name;
        std::string_view value;
    };

    /// Returns all sections except kEarlyKeys, in the order of the text. New ones come last.
    std::vector<std::string_view> Sections() const;

    /// Returns the keys of a section, in the order of the text. New ones come last.
    std::vector<Key> Keys(std::string_view section) const;

    struct Change
    {
        std::string_view section;
        std::string_view key;                   ///< Empty if the section itself was made or removed.
        std::optional<std::string_view> value;  ///< None when the key or the section was removed.
    };

    /// Returns all changes. A key or section can occur more than once if it was set or added again after
    /// RemoveSection(). Then the last of these changes counts.
    std::vector<Change> Changes() const;

private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    enum class State { AsRead, Set, Removed };

    struct Entry
    {
        std::string_view name;
        std::size_t line = kNone;  ///< Index of the line whose value counts. kNone: the key is new.
        bool hasOwnName = false;   ///< True if the section and the key of the line are as EncodeName() writes them.
        State state = State::AsRead;
        std::string value = {};  ///< The value that was set.
    };

    struct Section
    {
        std::string_view name;
        std::vector<Entry> entries = {};
        std::unordered_map<std::string_view, std::size_t> indices = {};  ///< Indices of the entries, by name.
        std::size_t lastLine = kNone;  ///< The line after which new keys are inserted. kNone: the section is new.
        bool hasOwnName = false;       ///< True if the name of lastLine's section is spelled as EncodeName() writes it.
        bool isMade = false;           ///< True if AddSection() made the section.
        bool isRemoved = false;
    };

    /// A section line or a key line: offsets into the text, the section, and the index of the entry in the section.
    struct Line
    {
        std::size_t begin;
        std::size_t value;
        std::size_t end;   ///< Where the line end begins.
        std::size_t next;  ///< Where the next line begins.
        const Section* section;
        std::size_t entry;  ///< kNone for a section line.
    };

    std::string_view NameOf(const IniLine& line);
    Section& SectionOf(std::string_view name);
    static std::size_t EntryIndex(Section& section, std::string_view name);
    void AddLine(Section& section, const IniLine& line, bool hasOwnName);
    Section* FindSection(std::string_view name) const;
    Entry* FindEntry(std::string_view section, std::string_view key) const;
    std::optional<std::string_view> ValueOf(const Entry& entry) const;
    void AppendNewKeys(std::string& text, const Section& section) const;
    void AppendNewSections(std::string& text) const;
    const char* LineEnd() const;

    const std::string m_text;
    std::deque<std::string> m_names;                                  ///< Owns the names that are not part of m_text.
    std::deque<Section> m_sections;                                   ///< Includes removed sections.
    std::unordered_map<std::string_view, Section*> m_sectionsByName;  ///< Without removed sections.
    std::vector<Line> m_lines;
    bool m_isSettings = false;
    bool m_isChanged = false;
};

}  // namespace fittings

#endif
