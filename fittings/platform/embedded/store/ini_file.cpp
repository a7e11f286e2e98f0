#include <fittings/platform/embedded/store/ini_file.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <utility>

#include <unistd.h>

#include <fittings/platform/embedded/text/ini_codec.h>
#include <fittings/platform/file_util_ex.h>

using fittings::IniText;

bool CIniFile::Load(const std::string& path, std::chrono::steady_clock::time_point deadline)
{
    m_path = path;
    m_refreshedPath.reset();
    std::string bytes;
    m_content = fittings::ReadFileBytes(path, bytes, deadline);
    const bool isRead = m_content.result == fittings::ReadResult::Read;
    return Parse(isRead ? std::move(bytes) : "") && isRead;
}

bool CIniFile::Refresh(std::wstring_view path, const std::vector<Change>& changes, std::uint64_t revision)
{
    const bool isSameStore = path == m_refreshedPath && revision == m_revision;
    if (isSameStore && IsFresh())
        return false;
    CIniFile now;
    now.Load(file_util_ex::ConvertToUTF8(std::wstring(path)));
    // Another program may be about to fill the empty file. Keep the earlier content, and do not wait for the new one.
    if (isSameStore && now.m_content.IsEmptyForNow() && m_content.result == fittings::ReadResult::Read)
        return false;
    if (isSameStore && now.HasFailed() && HasFailed())
        return false;
    const bool isSame = isSameStore && now.HasFailed() == HasFailed() && !m_text->IsChanged() &&
                        now.m_text->Original() == m_text->Original();
    now.Apply(changes);
    now.m_refreshedPath = path;
    now.m_revision = revision;
    *this = std::move(now);
    return !isSame;
}

bool CIniFile::IsFresh()
{
    if (m_content.identity)
        return m_content.isSettled && m_watch.IsUnchanged(m_path, *m_content.identity);
    return m_content.result == fittings::ReadResult::Missing && !fittings::IdentityOf(m_path) && errno == ENOENT;
}

// Looks up the path instead of using m_watch, which may notice late that the path leads elsewhere.
bool CIniFile::IsCurrent() const
{
    return fittings::IdentityOf(m_path) == m_content.identity;
}

bool CIniFile::Parse(std::string text)
{
    m_unreadable.clear();
    m_text = std::make_unique<IniText>(std::move(text));
    if (m_text->IsSettings())
        return true;
    m_unreadable = m_text->Original();
    m_text = std::make_unique<IniText>("");
    return false;
}

bool CIniFile::Save(const std::string& path) const
{
    if (path.empty() || (HasFailed() && path == m_path))
        return false;
    // If the unreadable file is still at @a path, keep it under another name.
    if (!m_unreadable.empty()) {
        const auto result = ReplaceUnreadable(path, std::chrono::steady_clock::now());
        if (result != fittings::UpdateResult::Outdated)
            return result == fittings::UpdateResult::Saved;
    }
    return fittings::ReplaceFileBytes(path, m_text->Changed());
}

fittings::UpdateResult CIniFile::Update(std::chrono::steady_clock::time_point deadline) const
{
    using fittings::UpdateResult;
    if (HasFailed())
        return UpdateResult::Failed;
    if (!m_unreadable.empty())
        return ReplaceUnreadable(m_path, deadline);
    const auto merge = [this](std::string_view expected, std::string_view put, std::string_view displaced) {
        return Merged(expected, put, displaced);
    };
    return fittings::UpdateFileBytes(m_path, {m_content, m_text->Original(), m_text->Changed(), merge, deadline});
}

// Keeps the unreadable file under another name, and puts a new file at @a path. Does nothing if there are no changes to
// save. If the unreadable file is not at @a path, changes nothing there and returns Outdated.
fittings::UpdateResult CIniFile::ReplaceUnreadable(const std::string& path,
                                                   std::chrono::steady_clock::time_point deadline) const
{
    using fittings::UpdateResult;
    if (!fittings::HaveSameContent(fittings::IdentityOf(path), m_content.identity))
        return UpdateResult::Outdated;
    if (!m_text->IsChanged())
        return UpdateResult::Saved;
    const std::string other = fittings::KeepUnderOtherName(path);
    if (other.empty())
        return UpdateResult::Failed;
    // Read the identity again: adding the second name has changed it.
    fittings::FileContent found = m_content;
    found.identity = fittings::IdentityOf(other);
    const auto keepDisplaced = [](std::string_view, std::string_view, std::string_view) { return std::nullopt; };
    const UpdateResult result =
        fittings::HaveSameContent(found.identity, m_content.identity)
            ? fittings::UpdateFileBytes(path, {found, m_unreadable, m_text->Changed(), keepDisplaced, deadline})
            : UpdateResult::Outdated;
    // Remove the second name only if the file still has its first name. Otherwise another process may have replaced the
    // file and rely on the second name.
    if (result != UpdateResult::Saved && fittings::IdentityOf(path) == fittings::IdentityOf(other))
        unlink(other.c_str());
    return result;
}

std::optional<std::wstring> CIniFile::Get(std::wstring_view section, std::wstring_view key) const
{
    const auto value = m_text->Find(fittings::EncodeName(section), fittings::EncodeName(key));
    return value ? std::optional(fittings::DecodeValue(*value)) : std::nullopt;
}

void CIniFile::Set(std::wstring_view section, std::wstring_view key, std::wstring_view value)
{
    if (Get(section, key) != value)
        m_text->Set(fittings::EncodeName(section), fittings::EncodeName(key), fittings::EncodeValue(value));
}

bool CIniFile::Delete(std::wstring_view section, std::wstring_view key)
{
    const std::string name = fittings::EncodeName(key);
    const bool isRemoved = m_text->Remove(fittings::EncodeName(section), name);
    const bool isEarlyRemoved = section.empty() && m_text->Remove(IniText::kEarlyKeys, name);
    return isRemoved || isEarlyRemoved;
}

void CIniFile::Apply(const std::vector<Change>& changes)
{
    for (const Change& change : changes) {
        if (!change.isOfSection && change.value)
            Set(change.section, change.key, *change.value);
        else if (!change.isOfSection)
            Delete(change.section, change.key);
    }
    for (const Change& change : changes) {
        if (!change.isOfSection)
            continue;
        const std::string section = fittings::EncodeName(change.section);
        if (change.value)
            m_text->AddSection(section);
        else if (m_text->Keys(section).empty())
            m_text->RemoveSection(section);
    }
}

bool CIniFile::HoldsAll(const std::vector<Change>& changes) const
{
    return std::all_of(changes.begin(), changes.end(), [this](const Change& change) {
        if (!change.isOfSection)
            return Get(change.section, change.key) == change.value &&
                   (change.value || !change.section.empty() ||
                    !m_text->Find(IniText::kEarlyKeys, fittings::EncodeName(change.key)));
        const std::string section = fittings::EncodeName(change.section);
        const bool isThere = m_text->HasSection(section);
        return change.value ? isThere : !isThere || !m_text->Keys(section).empty();
    });
}

std::vector<std::wstring> CIniFile::SectionNames() const
{
    std::vector<std::wstring> names;
    for (const std::string_view name : m_text->Sections())
        names.push_back(fittings::DecodeName(name));
    return names;
}

std::vector<std::wstring> CIniFile::KeyNames(std::wstring_view section) const
{
    std::vector<std::wstring> names;
    for (const IniText::Key& key : m_text->Keys(fittings::EncodeName(section)))
        names.push_back(fittings::DecodeName(key.name));
    return names;
}

std::vector<fittings::SettingsEntry> CIniFile::Entries(std::wstring_view section) const
{
    const std::string name = fittings::EncodeName(section);
    std::vector<IniText::Key> keys;
    if (section.empty()) {
        keys = m_text->Keys(IniText::kEarlyKeys);
        for (IniText::Key& key : keys)
            key.value = m_text->Find(name, key.name).value_or(key.value);
    }
    for (const IniText::Key& key : m_text->Keys(name)) {
        if (!section.empty() || !m_text->Find(IniText::kEarlyKeys, key.name))
            keys.push_back(key);
    }
    std::vector<fittings::SettingsEntry> entries;
    entries.reserve(keys.size());
    for (const IniText::Key& key : keys)
        entries.push_back({fittings::DecodeName(key.name), fittings::DecodeValue(key.value)});
    return entries;
}

// Merges three ways. This object has put @a put in place of a file that contained @a displaced instead of @a expected.
// After an earlier merge, @a put also contains changes of other processes.
//
// Starts with @a displaced, and makes every change of this object. Then makes the other changes from @a expected to
// @a put, but only of keys whose value in @a displaced is still the expected one: any other value is newer. Removes a
// key only if this object has removed it. Another key that is in @a expected but not in @a put may be a new key of
// another process, which is not merged into @a put yet.
std::optional<std::string> CIniFile::Merged(std::string_view expected, std::string_view put,
                                            std::string_view displaced) const
{
    CIniFile before;
    CIniFile ours;
    CIniFile result;
    if (!before.Parse(std::string(expected)) || !ours.Parse(std::string(put)) || !result.Parse(std::string(displaced)))
        return std::nullopt;
    for (const std::wstring& section : ours.SectionNames()) {
        for (const std::wstring& key : ours.KeyNames(section)) {
            const auto old = before.Get(section, key);
            const auto value = ours.Get(section, key);
            if (value != old && result.Get(section, key) == old)
                result.Set(section, key, *value);
        }
    }
    std::vector<Change> changes;
    for (const IniText::Change& change : m_text->Changes()) {
        auto value = change.value ? std::optional(fittings::DecodeValue(*change.value)) : std::nullopt;
        changes.push_back({fittings::DecodeName(change.section), fittings::DecodeName(change.key), std::move(value),
                           change.key.empty()});
    }
    result.Apply(changes);
    return result.m_text->Changed();
}
