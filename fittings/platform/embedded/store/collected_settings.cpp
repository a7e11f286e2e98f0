#include <fittings/platform/embedded/store/collected_settings.h>

#include <atomic>
#include <utility>

#include <fittings/platform/embedded/store/default_store.h>

namespace fittings {

namespace {

thread_local CollectedSettings* t_ofThread = nullptr;
std::atomic<std::uint64_t> g_lastRevision = 0;

}  // namespace

CollectedSettings* CollectedSettings::OfThread()
{
    return t_ofThread;
}

CollectedSettings::CollectedSettings()
{
    t_ofThread = this;
    NoteChange();
}

CollectedSettings::~CollectedSettings()
{
    t_ofThread = nullptr;
}

void CollectedSettings::NoteChange()
{
    m_revision = ++g_lastRevision;
}

void CollectedSettings::Put(SettingsChange change)
{
    NoteChange();
    const auto [place, isNew] =
        m_indices.try_emplace({change.isOfSection, change.section, change.key}, m_changes.size());
    if (isNew)
        m_changes.push_back(std::move(change));
    else
        m_changes[place->second].value = std::move(change.value);
}

const SettingsChange* CollectedSettings::Find(std::wstring_view section, std::wstring_view key) const
{
    const auto found = m_indices.find({false, std::wstring(section), std::wstring(key)});
    return found == m_indices.end() ? nullptr : &m_changes[found->second];
}

const CIniFile& CollectedSettings::Preview()
{
    m_preview.Refresh(DefaultStore::Path(), m_changes, m_revision);
    return m_preview;
}

bool CollectedSettings::Save()
{
    if (!m_changes.empty() && !DefaultStore::Instance().Store(m_changes))
        return false;
    m_changes.clear();
    m_indices.clear();
    NoteChange();
    return true;
}

}  // namespace fittings
