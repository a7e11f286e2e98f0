#include <fittings/platform/embedded/store/default_store.h>

#include <utility>

#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/std_file_paths.h>

namespace fittings {

DefaultStore& DefaultStore::Instance()
{
    // Never destroyed: an application's own objects may store settings while the process ends.
    static auto& store = *new DefaultStore;
    return store;
}

std::string DefaultStore::Path()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return Locate().Path();
}

bool DefaultStore::Store(const std::vector<SettingsChange>& changes)
{
    SharedFile* shared = nullptr;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const CIniFile& file = Refreshed();
        if (file.HasFailed())
            return false;
        if (file.HoldsAll(changes) && file.IsCurrent())
            return true;
        shared = m_shared;
    }
    return shared->Store(changes);
}

SharedFile& DefaultStore::Locate()
{
    std::wstring folder = std_file_paths::GetUserDataDir();
    if (!m_shared || folder != m_folder) {
        m_shared = &SharedFile::At(file_util_ex::ConvertToUTF8(file_util_ex::MakePath(folder, L"settings.ini")));
        m_folder = std::move(folder);
    }
    return *m_shared;
}

const CIniFile& DefaultStore::Refreshed()
{
    m_file.Refresh(Locate().Path());
    return m_file;
}

}  // namespace fittings
