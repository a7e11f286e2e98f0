#include <fittings/config/store_model.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace fittings {

namespace {

// No section or key has a null character, so that no two changes share an address.
std::wstring AddressOf(const CLocalRegStore::Change& change)
{
    std::wstring address = change.section;
    address += L'\0';
    if (change.isOfSection)
        address += L'\0';
    else
        address += change.key;
    return address;
}

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
    const bool isOther = m_file ? CLocalRegStore::Refresh(*m_ini, m_file->c_str(), m_changes)
                                : CLocalRegStore::Refresh(*m_ini, m_changes);
    if (isOther)
        Rebuild();
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
            group.entries.Add(entry.key, std::move(entry.value));
    }
    for (const StorePath& path : m_made)
        MakeStoreGroup(*m_root, path);
    m_current = &MakeStoreGroup(*m_root, m_currentPath);
}

void StoreModel::SetCurrent(const StorePath& path)
{
    m_current = FindStoreGroup(*m_root, path);
    if (!m_current) {
        m_made.insert(path);
        m_current = &MakeStoreGroup(*m_root, path);
    }
    m_currentPath = path;
}

void StoreModel::Set(StoreGroup& group, const std::wstring& name, const std::wstring& value)
{
    std::wstring* const old = group.entries.Find(name);
    if (old && *old == value)
        return;
    if (old)
        *old = value;
    else
        group.entries.Add(name, value);
    group.isSection = true;
    Note({group.Section(), name, value});
}

void StoreModel::Remove(StoreGroup& group, const std::wstring& name)
{
    group.entries.Remove(name);
    Note({group.Section(), name, std::nullopt});
}

void StoreModel::AddSection(StoreGroup& group)
{
    if (group.isSection)
        return;
    group.isSection = true;
    Note({group.Section(), L"", L"", true});
}

void StoreModel::DropSection(StoreGroup& group)
{
    group.isSection = false;
    Note({group.Section(), L"", std::nullopt, true});
}

void StoreModel::NoteRemoval(StoreGroup& group)
{
    for (const auto& [place, item] : group.groups.Items())
        NoteRemoval(*item.value);
    for (const auto& [place, item] : group.entries.Items())
        Note({group.Section(), item.name, std::nullopt});
    if (group.isSection)
        DropSection(group);
}

void StoreModel::RemoveGroup(StoreGroup& group)
{
    const StorePath path = PathOf(group);
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
    for (const auto& [place, item] : from.entries.Items())
        Set(to, item.name, item.value);
    for (const auto& [place, item] : from.groups.Items())
        CopyInto(*item.value, *to.groups.Add(item.name, std::make_unique<StoreGroup>(&to, item.name)));
}

void StoreModel::RemoveAll()
{
    NoteRemoval(*m_root);
    for (const std::wstring& section : CLocalRegStore::GetSectionNames(*m_ini)) {
        for (const std::wstring& key : CLocalRegStore::GetKeyNames(*m_ini, section.c_str()))
            Note({section, key, std::nullopt});
        Note({section, L"", std::nullopt, true});
    }
    for (Change& change : m_changes)
        change.value.reset();
    m_made.clear();
    m_currentPath.clear();
    m_root = std::make_unique<StoreGroup>(nullptr, L"");
    m_current = m_root.get();
}

std::wstring StoreModel::HiddenText(const std::wstring& section, const std::wstring& key) const
{
    const auto found = m_indices.find(AddressOf({section, key, std::nullopt}));
    if (found == m_indices.end())
        return CLocalRegStore::GetString(*m_ini, section.c_str(), key.c_str(), L"");
    return m_changes[found->second].value.value_or(L"");
}

void StoreModel::SetHidden(const std::wstring& section, const std::wstring& key, const std::wstring& value)
{
    Note({section, key, value});
}

void StoreModel::Note(Change change)
{
    const auto [place, isNew] = m_indices.try_emplace(AddressOf(change), m_changes.size());
    if (isNew)
        m_changes.push_back(std::move(change));
    else
        m_changes[place->second].value = std::move(change.value);
}

bool StoreModel::Save()
{
    if (m_changes.empty())
        return true;
    const bool isSaved =
        m_file ? CLocalRegStore::SaveChanges(m_file->c_str(), m_changes) : CLocalRegStore::SaveChanges(m_changes);
    if (!isSaved)
        return false;
    // What the file held before may stand there again when it is read next.
    m_ini.reset(CLocalRegStore::CreateInitFile(false));
    m_changes.clear();
    m_indices.clear();
    return true;
}

}  // namespace fittings
