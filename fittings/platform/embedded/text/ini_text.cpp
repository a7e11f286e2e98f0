#include <fittings/platform/embedded/text/ini_text.h>

#include <utility>

#include <fittings/platform/embedded/text/ini_codec.h>

namespace fittings {

namespace {

bool IsUtf16(std::string_view text)
{
    return text.substr(0, 2) == "\xFF\xFE" || text.substr(0, 2) == "\xFE\xFF";
}

bool EndsWithBlankLine(std::string_view text)
{
    text.remove_suffix(1);
    if (!text.empty() && text.back() == '\r')
        text.remove_suffix(1);
    return text.size() == ByteOrderMarkSize(text) || text.back() == '\n';
}

}  // namespace

IniText::IniText(std::string text) : m_text(std::move(text))
{
    Section* section = &SectionOf(kEarlyKeys);
    bool hasOwnName = true;
    IniLines lines(m_text);
    for (IniLine line = {}; lines.Next(line);) {
        if (line.isSection) {
            const std::string_view name = NameOf(line);
            section = &SectionOf(name);
            hasOwnName = name == line.name;
        }
        AddLine(*section, line, hasOwnName);
    }
    m_isSettings = m_sections.size() > 1 || !(lines.HasNul() || IsUtf16(m_text));
}

// Returns the name of a line as EncodeName() writes it.
std::string_view IniText::NameOf(const IniLine& line)
{
    if (line.isPlainName)
        return line.name;
    std::string name = EncodeName(DecodeName(line.name));
    return name == line.name ? line.name : std::string_view(m_names.emplace_back(std::move(name)));
}

IniText::Section& IniText::SectionOf(std::string_view name)
{
    Section*& section = m_sectionsByName[name];
    if (!section) {
        m_sections.push_back({name});
        section = &m_sections.back();
    }
    return *section;
}

std::size_t IniText::EntryIndex(Section& section, std::string_view name)
{
    const auto [index, isNew] = section.indices.try_emplace(name, section.entries.size());
    if (isNew)
        section.entries.push_back({name});
    return index->second;
}

void IniText::AddLine(Section& section, const IniLine& line, bool hasOwnSection)
{
    if (hasOwnSection || !section.hasOwnName) {
        section.lastLine = m_lines.size();
        section.hasOwnName = hasOwnSection;
    }
    std::size_t entryIndex = kNone;
    if (!line.isSection) {
        const std::string_view name = NameOf(line);
        entryIndex = EntryIndex(section, name);
        Entry& entry = section.entries[entryIndex];
        const bool hasOwnName = hasOwnSection && name == line.name;
        if (hasOwnName || !entry.hasOwnName) {
            entry.line = m_lines.size();
            entry.hasOwnName = hasOwnName;
        }
    }
    m_lines.push_back({line.begin, line.value, line.end, line.next, &section, entryIndex});
}

std::optional<std::string_view> IniText::Find(std::string_view section, std::string_view key) const
{
    const Entry* const entry = FindEntry(section, key);
    return entry ? ValueOf(*entry) : std::nullopt;
}

void IniText::Set(const std::string& sectionName, const std::string& key, std::string value)
{
    Entry* entry = FindEntry(sectionName, key);
    if (!entry) {
        Section* const found = FindSection(sectionName);
        Section& section = found ? *found : SectionOf(m_names.emplace_back(sectionName));
        entry = &section.entries[EntryIndex(section, m_names.emplace_back(key))];
    }
    entry->state = State::Set;
    entry->value = std::move(value);
    m_isChanged = true;
}

bool IniText::Remove(std::string_view section, std::string_view key)
{
    Entry* const entry = FindEntry(section, key);
    if (!entry || entry->state == State::Removed)
        return false;
    entry->state = State::Removed;
    m_isChanged = true;
    return true;
}

void IniText::AddSection(const std::string& section)
{
    if (HasSection(section))
        return;
    SectionOf(m_names.emplace_back(section)).isMade = true;
    m_isChanged = true;
}

void IniText::RemoveSection(std::string_view name)
{
    Section* const section = FindSection(name);
    if (!section)
        return;
    for (Entry& entry : section->entries)
        entry.state = State::Removed;
    section->isRemoved = true;
    m_sectionsByName.erase(section->name);
    m_isChanged = true;
}

std::vector<std::string_view> IniText::Sections() const
{
    std::vector<std::string_view> names;
    for (const Section& section : m_sections) {
        if (!section.isRemoved && section.name != kEarlyKeys)
            names.push_back(section.name);
    }
    return names;
}

std::vector<IniText::Key> IniText::Keys(std::string_view name) const
{
    std::vector<Key> keys;
    const Section* const section = FindSection(name);
    if (!section)
        return keys;
    keys.reserve(section->entries.size());
    for (const Entry& entry : section->entries) {
        if (const auto value = ValueOf(entry))
            keys.push_back({entry.name, *value});
    }
    return keys;
}

std::vector<IniText::Change> IniText::Changes() const
{
    std::vector<Change> changes;
    for (const Section& section : m_sections) {
        for (const Entry& entry : section.entries) {
            if (entry.state != State::AsRead)
                changes.push_back({section.name, entry.name, ValueOf(entry)});
        }
        if (section.isRemoved && !HasSection(section.name))
            changes.push_back({section.name, "", std::nullopt});
        else if (section.isMade && !section.isRemoved)
            changes.push_back({section.name, "", ""});
    }
    return changes;
}

std::string IniText::Changed() const
{
    if (!m_isChanged)
        return m_text;
    std::string result;
    result.reserve(m_text.size() + 256);
    std::size_t at = 0;
    const auto copyUpTo = [&](std::size_t end) { result.append(m_text, at, end - at); };
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const Line& line = m_lines[i];
        const Section& section = *line.section;
        const Entry* const entry = line.entry == kNone ? nullptr : &section.entries[line.entry];
        if (entry ? entry->state == State::Removed : section.isRemoved) {
            copyUpTo(line.begin);
            at = line.next;
        } else if (entry && entry->state == State::Set && entry->line == i) {
            copyUpTo(line.value);
            result += entry->value;
            at = line.end;
        }
        if (section.lastLine == i && !section.entries.empty() && section.entries.back().line == kNone) {
            copyUpTo(line.next);
            at = line.next;
            AppendNewKeys(result, section);
        }
    }
    copyUpTo(m_text.size());
    AppendNewSections(result);
    return result;
}

IniText::Section* IniText::FindSection(std::string_view name) const
{
    const auto section = m_sectionsByName.find(name);
    return section == m_sectionsByName.end() ? nullptr : section->second;
}

IniText::Entry* IniText::FindEntry(std::string_view sectionName, std::string_view key) const
{
    Section* const section = FindSection(sectionName);
    if (!section)
        return nullptr;
    const auto index = section->indices.find(key);
    return index == section->indices.end() ? nullptr : &section->entries[index->second];
}

std::optional<std::string_view> IniText::ValueOf(const Entry& entry) const
{
    switch (entry.state) {
    case State::AsRead: {
        const Line& line = m_lines[entry.line];
        return std::string_view(m_text).substr(line.value, line.end - line.value);
    }
    case State::Set:
        return entry.value;
    case State::Removed:
        break;
    }
    return std::nullopt;
}

void IniText::AppendNewKeys(std::string& text, const Section& section) const
{
    for (const Entry& entry : section.entries) {
        if (entry.line != kNone || entry.state != State::Set)
            continue;
        // Complete the last line of the file, which may have no line end.
        if (text.back() != '\n')
            text += LineEnd();
        text.append(entry.name).append("=").append(entry.value).append(LineEnd());
    }
}

void IniText::AppendNewSections(std::string& text) const
{
    for (const Section& section : m_sections) {
        if (section.lastLine != kNone || section.isRemoved)
            continue;
        const std::string header = std::string("[").append(section.name).append("]").append(LineEnd());
        std::string lines = header;
        AppendNewKeys(lines, section);
        if (lines == header && !section.isMade)
            continue;
        if (text.size() > ByteOrderMarkSize(text)) {
            if (text.back() != '\n')
                text += LineEnd();
            if (!EndsWithBlankLine(text))
                text += LineEnd();
        }
        text += lines;
    }
}

// Returns the line end of the first line, or "\n" if the text has no line end.
const char* IniText::LineEnd() const
{
    const std::size_t first = m_text.find('\n');
    return first != std::string::npos && first > 0 && m_text[first - 1] == '\r' ? "\r\n" : "\n";
}

}  // namespace fittings
