#include <fittings/config/store_model.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace fittings {

namespace {

StorePath PathOf(const StoreGroup& group)
{
    if (!group.parent)
        return {};
    StorePath path = PathOf(*group.parent);
    path.push_back(group.name);
    return path;
}

bool IsWithin(const StorePath& path, const StorePath& outer)
{
    return path.size() >= outer.size() && std::equal(outer.begin(), outer.end(), path.begin());
}

}  // namespace

StoreModel::StoreModel(std::optional<std::wstring> file)
    : m_file(std::move(file)), m_ini(CLocalRegStore::CreateInitFile(false))
{
    Rebuild();
}

StoreModel::~StoreModel() = default;

void StoreModel::Refresh()
{
    m_isLoaded = true;
    const bool isOther = m_file ? CLocalRegStore::Refresh(*m_ini, m_file->c_str()) : CLocalRegStore::Refresh(*m_ini);
    if (!isOther)
        return;
    const std::vector<Change> changes = Changes();
    CLocalRegStore::ApplyChanges(*m_ini, changes);
    Rebuild();
    for (const Change& change : changes) {
        const auto path = PathOfSection(change.section);
        StoreGroup* const group = path ? FindStoreGroup(*m_root, *path) : nullptr;
        StoreEntry* const entry = group ? group->entries.Find(change.key) : nullptr;
        if (change.isOfSection && change.value && group)
            group->isMade = true;
        else if (change.value && entry)
            entry->isChanged = true;
    }
}

void StoreModel::Rebuild()
{
    m_root = std::make_unique<StoreGroup>(nullptr, L"");
    for (const std::wstring& section : CLocalRegStore::GetSectionNames(*m_ini)) {
        const auto path = PathOfSection(section);
        if (!path)
            continue;
        StoreGroup& group = MakeStoreGroup(*m_root, *path);
        group.isSection = true;
        for (CLocalRegStore::Entry& entry : CLocalRegStore::GetEntries(*m_ini, section.c_str()))
            group.entries.Add(entry.key, {std::move(entry.value)});
    }
    // The keys before the first section belong to the root, too.
    if (!m_root->isSection) {
        for (CLocalRegStore::Entry& entry : CLocalRegStore::GetEntries(*m_ini, L""))
            m_root->entries.Add(entry.key, {std::move(entry.value)});
    }
    for (const StorePath& path : m_made)
        MakeStoreGroup(*m_root, path);
    m_current = &MakeStoreGroup(*m_root, m_currentPath);
    m_lastFound = nullptr;
}

StoreGroup* StoreModel::Find(std::wstring_view path)
{
    if (path.empty())
        return m_current;
    if (m_lastFound && m_lastPath == path)
        return m_lastFound;
    m_lastFound = FindStoreGroup(*m_root, FollowedPath(m_currentPath, path));
    m_lastPath = path;
    return m_lastFound;
}

void StoreModel::SetCurrent(const StorePath& path)
{
    m_lastFound = nullptr;
    m_current = FindStoreGroup(*m_root, path);
    if (!m_current) {
        m_made.insert(path);
        m_current = &MakeStoreGroup(*m_root, path);
    }
    m_currentPath = path;
}

void StoreModel::Set(StoreGroup& group, std::wstring_view name, std::wstring_view value)
{
    StoreEntry* const entry = group.entries.Find(name);
    // If the file has changed since it was loaded, record even the same text: another process may have changed or
    // removed the entry.
    if (entry && entry->text == value && (entry->isChanged || CLocalRegStore::IsCurrent(*m_ini)))
        return;
    if (entry) {
        entry->text = value;
        entry->isChanged = true;
    } else {
        group.entries.Add(name, {std::wstring(value), true});
    }
    m_hasChanges = true;
    if (!m_removed.empty()) {
        if (const auto removed = m_removed.find(group.Section()); removed != m_removed.end())
            removed->second.erase(std::wstring(name));
    }
    if (!group.isSection) {
        AddSection(group);
        // As in wxFileConfig, a group still exists after its last entry is deleted. So the next save stores the section
        // of this group even if the group has no entries by then. The root always exists and needs no section.
        group.isMade = group.parent != nullptr;
    }
}

void StoreModel::Remove(StoreGroup& group, std::wstring_view name)
{
    m_removed[group.Section()].emplace(name);
    group.entries.Remove(name);
    m_hasChanges = true;
}

void StoreModel::AddSection(StoreGroup& group)
{
    // Record the section even if it was stored before, because another process may have removed it.
    group.isSection = true;
    group.isMade = true;
    m_dropped.erase(group.Section());
    m_hasChanges = true;
}

void StoreModel::DropSection(StoreGroup& group)
{
    group.isSection = false;
    group.isMade = false;
    m_dropped.insert(group.Section());
    m_hasChanges = true;
}

void StoreModel::NoteRemoval(StoreGroup& group)
{
    long place = 0;
    while (const auto* const inner = group.groups.Next(place))
        NoteRemoval(*inner->value);
    if (group.entries.Size() > 0) {
        std::set<std::wstring>& removed = m_removed[group.Section()];
        place = 0;
        while (const auto* const entry = group.entries.Next(place))
            removed.insert(entry->name);
    }
    if (group.isSection)
        DropSection(group);
}

void StoreModel::RemoveGroup(StoreGroup& group)
{
    const StorePath path = PathOf(group);
    m_lastFound = nullptr;
    NoteRemoval(group);
    for (auto made = m_made.begin(); made != m_made.end();)
        made = IsWithin(*made, path) ? m_made.erase(made) : std::next(made);
    group.parent->groups.Remove(path.back());
    if (IsWithin(m_currentPath, path)) {
        m_currentPath.assign(path.begin(), path.end() - 1);
        m_current = FindStoreGroup(*m_root, m_currentPath);
    }
}

void StoreModel::RenameGroup(StoreGroup& group, const std::wstring& newName)
{
    StorePath path = PathOf(group);
    path.back() = newName;
    CopyInto(group, MakeStoreGroup(*m_root, path));
    RemoveGroup(group);
}

void StoreModel::CopyInto(StoreGroup& from, StoreGroup& to)
{
    if (from.isSection)
        AddSection(to);
    else
        m_made.insert(PathOf(to));
    long place = 0;
    while (const auto* const entry = from.entries.Next(place))
        Set(to, entry->name, entry->value.text);
    place = 0;
    while (const auto* const inner = from.groups.Next(place))
        CopyInto(*inner->value, *to.groups.Add(inner->name, std::make_unique<StoreGroup>(&to, inner->name)));
}

void StoreModel::RemoveAll()
{
    NoteRemoval(*m_root);
    for (const std::wstring& section : CLocalRegStore::GetSectionNames(*m_ini)) {
        for (std::wstring& key : CLocalRegStore::GetKeyNames(*m_ini, section.c_str()))
            m_removed[section].insert(std::move(key));
        m_dropped.insert(section);
    }
    for (const auto& [address, value] : m_hidden) {
        m_removed[address.first].insert(address.second);
        m_dropped.insert(address.first);
    }
    m_hidden.clear();
    m_hasChanges = true;
    m_made.clear();
    m_currentPath.clear();
    m_root = std::make_unique<StoreGroup>(nullptr, L"");
    m_current = m_root.get();
    m_lastFound = nullptr;
}

std::wstring StoreModel::HiddenText(const std::wstring& section, const std::wstring& key) const
{
    if (const auto found = m_hidden.find({section, key}); found != m_hidden.end())
        return found->second;
    const auto removed = m_removed.find(section);
    if (removed != m_removed.end() && removed->second.count(key) != 0)
        return {};
    return CLocalRegStore::GetString(*m_ini, section.c_str(), key.c_str(), L"");
}

void StoreModel::SetHidden(const std::wstring& section, const std::wstring& key, const std::wstring& value)
{
    m_hidden[{section, key}] = value;
    m_hasChanges = true;
}

void StoreModel::CollectChanges(StoreGroup& group, std::vector<Change>& changes) const
{
    const std::wstring section = group.Section();
    if (group.isMade)
        changes.push_back({section, L"", L"", true});
    long place = 0;
    while (const auto* const entry = group.entries.Next(place)) {
        if (entry->value.isChanged)
            changes.push_back({section, entry->name, entry->value.text});
    }
    place = 0;
    while (const auto* const inner = group.groups.Next(place))
        CollectChanges(*inner->value, changes);
}

std::vector<StoreModel::Change> StoreModel::Changes() const
{
    std::vector<Change> changes;
    if (!m_hasChanges)
        return changes;
    for (const auto& [section, keys] : m_removed) {
        for (const std::wstring& key : keys)
            changes.push_back({section, key, std::nullopt});
    }
    for (const std::wstring& section : m_dropped)
        changes.push_back({section, L"", std::nullopt, true});
    CollectChanges(*m_root, changes);
    for (const auto& [address, value] : m_hidden)
        changes.push_back({address.first, address.second, value});
    return changes;
}

void StoreModel::ForgetChanges(StoreGroup& group)
{
    group.isMade = false;
    long place = 0;
    while (auto* const entry = group.entries.Next(place))
        entry->value.isChanged = false;
    place = 0;
    while (auto* const inner = group.groups.Next(place))
        ForgetChanges(*inner->value);
}

bool StoreModel::Save()
{
    const std::vector<Change> changes = Changes();
    const bool isSaved = changes.empty() || (m_file ? CLocalRegStore::SaveChanges(m_file->c_str(), changes)
                                                    : CLocalRegStore::SaveChanges(changes));
    if (!isSaved)
        return false;
    if (!m_hasChanges)
        return true;
    // Forget what was loaded: the next Refresh() then always rebuilds the groups. Otherwise, if another process changed
    // the file back to what was loaded, Refresh() would find no difference, and the groups would keep the values of
    // this save.
    m_ini.reset(CLocalRegStore::CreateInitFile(false));
    ForgetChanges(*m_root);
    m_removed.clear();
    m_dropped.clear();
    m_hidden.clear();
    m_hasChanges = false;
    return true;
}

}  // namespace fittings
