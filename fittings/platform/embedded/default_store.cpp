#include <fittings/platform/embedded/default_store.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>
#include <utility>

#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/std_file_paths.h>

namespace fittings {

namespace {

using Clock = FileLock::Clock;

// How long a write waits for others in all.
constexpr std::chrono::milliseconds kPatience(1900);
constexpr std::chrono::milliseconds kPause(1);

// Each time that another process was faster takes a new attempt.
constexpr int kMaxAttempts = 100;

bool HoldsAll(const CIniFile& file, const std::vector<Setting>& settings)
{
    return std::all_of(settings.begin(), settings.end(),
                       [&](const Setting& setting) { return file.Has(setting.section, setting.key, setting.value); });
}

// Waits for a program that has emptied the file in place, such as an editor, to fill it.
void LoadFilled(CIniFile& file, const std::string& path)
{
    for (;;) {
        file.Load(path);
        if (!file.Content().IsEmptyForNow())
            return;
        std::this_thread::sleep_for(kPause);
    }
}

}  // namespace

DefaultStore& DefaultStore::Instance()
{
    // Never destroyed: an application's own objects may store something when the process ends.
    static auto& store = *new DefaultStore;
    return store;
}

std::optional<std::wstring> DefaultStore::Get(std::wstring_view section, std::wstring_view key)
{
    const std::lock_guard<std::mutex> reading(m_reading);
    return Refreshed().Get(section, key);
}

std::vector<std::wstring> DefaultStore::SectionNames()
{
    const std::lock_guard<std::mutex> reading(m_reading);
    return Refreshed().SectionNames();
}

std::vector<std::wstring> DefaultStore::KeyNames(std::wstring_view section)
{
    const std::lock_guard<std::mutex> reading(m_reading);
    return Refreshed().KeyNames(section);
}

bool DefaultStore::Store(const std::vector<Setting>& settings)
{
    const Clock::time_point start = Clock::now();
    std::wstring folder;
    std::string path;
    {
        const std::lock_guard<std::mutex> reading(m_reading);
        const CIniFile& file = Refreshed();
        if (file.HasFailed())
            return false;
        if (HoldsAll(file, settings))
            return true;
        folder = m_folder;
        path = m_path;
    }
    if (!file_util_ex::Mkdir(folder))
        return false;

    const std::lock_guard<std::mutex> writing(m_writing);
    Clock::time_point deadline = start + kPatience;
    for (int attempt = 0; attempt < kMaxAttempts; ++attempt) {
        const UpdateResult result = StoreOnce(path, settings, deadline);
        if (result != UpdateResult::Outdated)
            return result == UpdateResult::Saved;
        // Somebody else has saved, so nobody is stuck.
        deadline = Clock::now() + kPatience;
    }
    return false;
}

UpdateResult DefaultStore::StoreOnce(const std::string& path, const std::vector<Setting>& settings,
                                     Clock::time_point deadline)
{
    // Who holds the lock is stuck when an earlier wait for it was in vain, and nobody else has saved since.
    const bool isStuck = m_hasWaitedInVain && m_savedAfterThat == IdentityOf(path);
    const FileLock lock(path + ".lock", isStuck ? Clock::now() : deadline);

    // What other processes have stored since is read now, and only the given settings of it change.
    CIniFile file;
    LoadFilled(file, path);
    for (const Setting& setting : settings) {
        if (setting.value)
            file.Set(setting.section, setting.key, *setting.value);
        else
            file.Delete(setting.section, setting.key);
    }
    const UpdateResult result = file.Update();
    m_hasWaitedInVain = !lock.IsHeld() && result != UpdateResult::Outdated;
    m_savedAfterThat = m_hasWaitedInVain ? IdentityOf(path) : std::nullopt;
    return result;
}

// Reads the file unless it is known to be as it was.
const CIniFile& DefaultStore::Refreshed()
{
    std::wstring folder = std_file_paths::GetUserDataDir();
    const bool isOtherFile = folder != m_folder;
    if (isOtherFile) {
        m_path = file_util_ex::ConvertToUTF8(file_util_ex::MakePath(folder, L"settings.ini"));
        m_folder = std::move(folder);
    }
    if (isOtherFile || !IsFresh()) {
        auto file = std::make_unique<CIniFile>();
        file->Load(m_path);
        // A read does not wait for the file to be filled: what stood there a moment ago still holds.
        if (isOtherFile || !file->Content().IsEmptyForNow() || m_file->Content().result != ReadResult::Read)
            m_file = std::move(file);
    }
    return *m_file;
}

bool DefaultStore::IsFresh() const
{
    const auto identity = IdentityOf(m_path);
    if (!identity)
        return errno == ENOENT && m_file->Content().result == ReadResult::Missing;
    return m_file->Content().isSettled && m_file->Content().identity == identity;
}

}  // namespace fittings
