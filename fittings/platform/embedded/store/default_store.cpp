#include <fittings/platform/embedded/store/default_store.h>

#include <fittings/platform/embedded/store/shared_file.h>
#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/std_file_paths.h>

namespace fittings {

DefaultStore& DefaultStore::Instance()
{
    // Never destroyed: an application's own objects may store settings while the process ends.
    static auto& store = *new DefaultStore;
    return store;
}

std::wstring DefaultStore::Path()
{
    // Called at every access, so append the name directly: MakePath() would copy the folder's path several times.
    return std_file_paths::GetUserDataDir() + L"/settings.ini";
}

bool DefaultStore::Store(const std::vector<SettingsChange>& changes)
{
    const std::wstring path = Path();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_file.Refresh(path);
        if (m_file.HasFailed())
            return false;
        if (m_file.HoldsAll(changes) && m_file.IsCurrent())
            return true;
    }
    return SharedFile::At(file_util_ex::ConvertToUTF8(path)).Store(changes);
}

}  // namespace fittings
