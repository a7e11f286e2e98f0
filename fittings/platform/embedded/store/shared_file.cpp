#include <fittings/platform/embedded/store/shared_file.h>

#include <chrono>
#include <map>

#include <fittings/platform/file_util_ex.h>

namespace fittings {

namespace {

using Clock = LockWait::Clock;

// How long a write waits for a process that has the lock and is stuck.
constexpr std::chrono::milliseconds kTimeToGetTheLock(1800);

// How long a write waits for the lock while other processes get it, one after another.
constexpr std::chrono::seconds kTimeInABusyQueue(10);

// How much longer a write waits, in total, for an empty file to be filled and for another process to finish its
// exchange of two files. If a process is stuck, all waits together stay below two seconds.
constexpr std::chrono::milliseconds kTimeBeyondTheLock(100);

// A save is attempted again each time that another process saves first. The save fails after this many attempts, but
// not before LockWait::deadline.
constexpr int kMaxAttempts = 100;

}  // namespace

SharedFile& SharedFile::At(const std::string& path)
{
    // Never destroyed: static objects of the application may store settings while the process ends.
    static auto& mutex = *new std::mutex;
    static auto& files = *new std::map<std::string, SharedFile>;
    const std::lock_guard<std::mutex> lock(mutex);
    return files.try_emplace(path, path).first->second;
}

bool SharedFile::Store(const std::vector<SettingsChange>& changes)
{
    // Read the clock before locking the mutex: the time limits include the wait for other threads of this process.
    const Clock::time_point start = Clock::now();
    if (!file_util_ex::Mkdir(file_util_ex::ConvertFromUTF8W(FolderOf(m_path))))
        return false;
    const std::lock_guard<std::mutex> writing(m_writing);
    LockWait wait = {kTimeToGetTheLock, start + kTimeToGetTheLock, start + kTimeInABusyQueue, m_stuckLock};
    for (int attempt = 0; attempt < kMaxAttempts || Clock::now() < wait.deadline; ++attempt) {
        const UpdateResult result = StoreOnce(changes, wait);
        if (result != UpdateResult::Outdated)
            return result == UpdateResult::Saved;
    }
    return false;
}

UpdateResult SharedFile::StoreOnce(const std::vector<SettingsChange>& changes, LockWait& wait)
{
    const FileLock lock(m_path + ".lock", wait);
    const Clock::time_point deadline = wait.deadline + kTimeBeyondTheLock;

    // Read what other processes have stored, and change only the given settings.
    CIniFile file;
    file.Load(m_path, deadline);
    file.Apply(changes);
    return file.Update(deadline);
}

}  // namespace fittings
