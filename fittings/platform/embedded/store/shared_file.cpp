#include <fittings/platform/embedded/store/shared_file.h>

#include <chrono>
#include <map>
#include <memory>

#include <fittings/platform/file_util_ex.h>

namespace fittings {

namespace {

using Clock = FileLock::Clock;

// How long a write waits for other writes and for a file that is being filled, in total.
constexpr std::chrono::milliseconds kPatience(1900);

// A save needs another attempt each time that another process saves first.
constexpr int kMaxAttempts = 100;

}  // namespace

SharedFile& SharedFile::At(const std::string& path)
{
    // Never destroyed: an application's own objects may store settings while the process ends.
    static auto& mutex = *new std::mutex;
    static auto& files = *new std::map<std::string, std::unique_ptr<SharedFile>>;
    const std::lock_guard<std::mutex> lock(mutex);
    std::unique_ptr<SharedFile>& file = files[path];
    if (!file)
        file = std::make_unique<SharedFile>(path);
    return *file;
}

bool SharedFile::Store(const std::vector<SettingsChange>& changes)
{
    const Clock::time_point deadline = Clock::now() + kPatience;
    Deadlines deadlines = {deadline, deadline};
    if (!file_util_ex::Mkdir(file_util_ex::ConvertFromUTF8W(FolderOf(m_path))))
        return false;
    const std::lock_guard<std::mutex> writing(m_writing);
    for (int attempt = 0; attempt < kMaxAttempts; ++attempt) {
        const UpdateResult result = StoreOnce(changes, deadlines);
        if (result != UpdateResult::Outdated)
            return result == UpdateResult::Saved;
        // Another process has saved, so the holder of the lock is not stuck.
        deadlines.lock = Clock::now() + kPatience;
    }
    return false;
}

UpdateResult SharedFile::StoreOnce(const std::vector<SettingsChange>& changes, const Deadlines& deadlines)
{
    // The holder of the lock is stuck if an earlier wait for the lock failed and no other process has saved since.
    const bool isStuck = m_hasWaitedInVain && m_savedAfterThat == IdentityOf(m_path);
    const FileLock lock(m_path + ".lock", isStuck ? Clock::now() : deadlines.lock);

    // Read what other processes have stored, and change only the given settings.
    CIniFile file;
    file.Load(m_path, [&](const std::string& path, std::string& bytes) {
        return ReadFilledBytes(path, bytes, deadlines.filling);
    });
    file.Apply(changes);
    const UpdateResult result = file.Update();
    m_hasWaitedInVain = !lock.IsHeld() && result != UpdateResult::Outdated;
    m_savedAfterThat = m_hasWaitedInVain ? IdentityOf(m_path) : std::nullopt;
    return result;
}

}  // namespace fittings
