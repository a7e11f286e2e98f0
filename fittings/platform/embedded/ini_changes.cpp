// Several changes of an INI file at once, and those of two writers put together.

#include <fittings/platform/embedded/ini_file.h>

#include <algorithm>

#include <fittings/platform/embedded/ini_codec.h>

void CIniFile::AddSection(std::wstring_view section)
{
    if (!GroupNames(section).empty())
        return;
    const std::string name = fittings::EncodeName(section);
    g_key_file_set_value(m_keys.get(), name.c_str(), "k", "");
    g_key_file_remove_key(m_keys.get(), name.c_str(), "k", nullptr);
    NoteChange({name, ""});
}

void CIniFile::DropSection(std::wstring_view section)
{
    if (!KeyNames(section).empty())
        return;
    for (const std::string& group : GroupNames(section)) {
        g_key_file_remove_group(m_keys.get(), group.c_str(), nullptr);
        NoteChange({group, ""});
    }
}

void CIniFile::Apply(const std::vector<Change>& changes)
{
    m_changes.reserve(m_changes.size() + changes.size());
    m_changed.reserve(m_changes.size() + changes.size());
    // GKeyFile finds the last key of a section first.
    for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
        if (!change->isOfSection && !change->value)
            Delete(change->section, change->key);
    }
    for (const Change& change : changes) {
        if (!change.isOfSection && change.value)
            Set(change.section, change.key, *change.value);
    }
    for (const Change& change : changes) {
        if (change.isOfSection && change.value)
            AddSection(change.section);
        else if (change.isOfSection)
            DropSection(change.section);
    }
}

bool CIniFile::HoldsAll(const std::vector<Change>& changes) const
{
    return std::all_of(changes.begin(), changes.end(), [this](const Change& change) {
        if (!change.isOfSection)
            return Has(change.section, change.key, change.value) &&
                   (change.value || !change.section.empty() || !HasEarlyKey(change.key));
        const bool isThere = !GroupNames(change.section).empty();
        return change.value ? isThere : !isThere || !KeyNames(change.section).empty();
    });
}

// What stood in the file, with what was put there changed in it as against what was expected there. Where both changed a
// key, the change of this object counts, else the one that was displaced, which is newer than what else was put. Only this
// object removes a key: that it is missing elsewhere may mean that another process has not merged it yet.
std::optional<std::string> CIniFile::Merged(std::string_view expected, std::string_view put,
                                            std::string_view displaced) const
{
    CIniFile before;
    CIniFile ours;
    CIniFile result;
    if (!before.Parse(expected) || !ours.Parse(put) || !result.Parse(displaced))
        return std::nullopt;
    for (const std::wstring& section : ours.SectionNames()) {
        for (const std::wstring& key : ours.KeyNames(section)) {
            const auto old = before.Get(section, key);
            const auto value = ours.Get(section, key);
            if (value != old && result.Has(section, key, old))
                result.Set(section, key, *value);
        }
    }
    std::vector<Change> changes;
    for (const Slot& slot : m_changes) {
        const std::wstring section = fittings::DecodeName(slot.first);
        const std::wstring key = fittings::DecodeName(slot.second);
        const bool isOfSection = slot.second.empty();
        auto value = isOfSection && !GroupNames(section).empty() ? std::wstring() : Get(section, key);
        changes.push_back({section, key, std::move(value), isOfSection});
    }
    result.Apply(changes);
    return result.ChangedText();
}
