#include <fittings/platform/embedded/default_store.h>

#include <cerrno>

#include <fittings/platform/embedded/file_lock.h>
#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/std_file_paths.h>

namespace fittings {

DefaultStore& DefaultStore::Instance()
{
    // Never destroyed: an application's own objects may store something when the process ends.
    static auto& store = *new DefaultStore;
    return store;
}

std::optional<std::wstring> DefaultStore::Get(std::wstring_view section, std::wstring_view key)
{
    const std::lock_guard<std::mutex> reading(m_reading);
    Refresh();
    return m_file.Get(section, key);
}

bool DefaultStore::Change(std::wstring_view section, std::wstring_view key, std::optional<std::wstring_view> value)
{
    const std::lock_guard<std::mutex> writing(m_writing);
    std::wstring folder;
    std::string path;
    {
        const std::lock_guard<std::mutex> reading(m_reading);
        Refresh();
        if (m_file.HasFailed())
            return false;
        if (m_file.Has(section, key, value))
            return true;
        folder = m_folder;
        path = m_path;
    }
    if (!file_util_ex::Mkdir(folder))
        return false;

    // What other processes have stored since is read under the lock, and only this one key of it changes.
    const FileLock lock(path + ".lock");
    CIniFile file;
    file.Load(path);
    if (value)
        file.Set(section, key, *value);
    else
        file.Delete(section, key);
    return file.Save(path);
}

// Reads the file unless it is known to be as it was.
void DefaultStore::Refresh()
{
    std::wstring folder = std_file_paths::GetUserDataDir();
    if (folder != m_folder) {
        m_path = file_util_ex::ConvertToUTF8(file_util_ex::MakePath(folder, L"settings.ini"));
        m_folder = std::move(folder);
    }
    if (!IsFresh())
        m_file.Load(m_path);
}

bool DefaultStore::IsFresh() const
{
    const auto identity = IdentityOf(m_path);
    if (!identity)
        return errno == ENOENT && m_file.Content().result == ReadResult::Missing;
    return m_file.Content().isSettled && m_file.Content().identity == identity;
}

}  // namespace fittings
