// All entries of a section at once.

#include <fittings/platform/embedded/ini_file.h>

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <fittings/platform/embedded/ini_codec.h>

std::vector<fittings::SettingsEntry> CIniFile::Entries(std::wstring_view section) const
{
    std::vector<fittings::SettingsEntry> entries;
    // Where each name stands as EncodeName() writes it, it leads to its value as it is.
    const std::string group = fittings::EncodeName(section);
    if (m_otherSections.empty() && m_otherSlots.empty()) {
        gsize count = 0;
        gchar** const names = g_key_file_get_keys(m_keys.get(), group.c_str(), &count, nullptr);
        entries.reserve(count);
        std::unordered_set<std::string_view> known;
        for (gsize i = 0; i < count; ++i) {
            const GText value = known.insert(names[i]).second ? Value({group, names[i]}) : GText(nullptr, g_free);
            if (value)
                entries.push_back({fittings::DecodeName(names[i]), fittings::DecodeValue(value.get())});
        }
        g_strfreev(names);
    } else {
        for (std::wstring& key : KeyNames(section)) {
            if (auto value = Get(section, key))
                entries.push_back({std::move(key), *std::move(value)});
        }
    }
    if (section.empty() && !m_earlyKeys.empty())
        AddEarlyKeys(entries);
    return entries;
}

bool CIniFile::HasEarlyKey(std::wstring_view key) const
{
    return std::any_of(m_earlyKeys.begin(), m_earlyKeys.end(),
                       [key](const auto& early) { return fittings::DecodeName(early.first) == key; });
}

// Of several lines with one key the last counts, as within a section.
void CIniFile::AddEarlyKeys(std::vector<fittings::SettingsEntry>& entries) const
{
    std::vector<fittings::SettingsEntry> all;
    std::unordered_map<std::wstring, std::size_t> places;
    for (const auto& [name, value] : m_earlyKeys) {
        const auto [place, isNew] = places.try_emplace(fittings::DecodeName(name), all.size());
        if (isNew)
            all.push_back({place->first, L""});
        all[place->second].value = fittings::DecodeValue(value);
    }
    for (fittings::SettingsEntry& entry : entries) {
        if (places.count(entry.key) != 0)
            all[places[entry.key]].value = std::move(entry.value);
        else
            all.push_back(std::move(entry));
    }
    entries = std::move(all);
}
