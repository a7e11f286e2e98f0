#include <fittings/platform/embedded/collected_settings.h>

#include <algorithm>
#include <set>

namespace fittings {

namespace {

thread_local CollectedSettings* t_ofThread = nullptr;

}  // namespace

CollectedSettings* CollectedSettings::OfThread()
{
    return t_ofThread;
}

CollectedSettings::CollectedSettings()
{
    t_ofThread = this;
}

CollectedSettings::~CollectedSettings()
{
    t_ofThread = nullptr;
}

void CollectedSettings::Put(Setting setting)
{
    const auto [place, isNew] = m_indices.try_emplace({setting.section, setting.key}, m_settings.size());
    if (isNew)
        m_settings.push_back(std::move(setting));
    else
        m_settings[place->second].value = std::move(setting.value);
}

const Setting* CollectedSettings::Find(std::wstring_view section, std::wstring_view key) const
{
    const auto found = m_indices.find({std::wstring(section), std::wstring(key)});
    return found == m_indices.end() ? nullptr : &m_settings[found->second];
}

std::vector<std::wstring> CollectedSettings::SectionNames(std::vector<std::wstring> stored) const
{
    std::set<std::wstring> known(stored.begin(), stored.end());
    for (const Setting& setting : m_settings) {
        if (setting.value && known.insert(setting.section).second)
            stored.push_back(setting.section);
    }
    return stored;
}

std::vector<std::wstring> CollectedSettings::KeyNames(std::wstring_view section, std::vector<std::wstring> stored) const
{
    const auto isRemoved = [&](const std::wstring& key) {
        const Setting* const setting = Find(section, key);
        return setting && !setting->value;
    };
    stored.erase(std::remove_if(stored.begin(), stored.end(), isRemoved), stored.end());
    std::set<std::wstring> known(stored.begin(), stored.end());
    for (const Setting& setting : m_settings) {
        if (setting.section == section && setting.value && known.insert(setting.key).second)
            stored.push_back(setting.key);
    }
    return stored;
}

bool CollectedSettings::Save()
{
    if (!m_settings.empty() && !DefaultStore::Instance().Store(m_settings))
        return false;
    m_settings.clear();
    m_indices.clear();
    return true;
}

}  // namespace fittings
