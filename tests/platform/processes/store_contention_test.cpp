// Many processes store settings at the same time: on slow disks, or with locks that are stuck, missing or without
// effect. Each value whose write has returned true must be kept. With FITTINGS_TEST_SOAK=N in the environment, many of
// the tests write N times as often.

#include <fittings/platform/local_reg_store.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <tests/platform/processes/held_lock.h>
#include <tests/platform/processes/watched_calls.h>
#include <tests/support/becomes.h>
#include <tests/support/file_status.h>
#include <tests/support/patience.h>
#include <tests/support/process/as_nobody.h>
#include <tests/support/process/forked_work.h>
#include <tests/support/temp_folder.h>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

int Soak()
{
    const char* const text = std::getenv("FITTINGS_TEST_SOAK");
    return std::max(1, text ? std::atoi(text) : 1);
}

std::wstring Name(const wchar_t* prefix, int number)
{
    return prefix + std::to_wstring(number);
}

void SlowDisk(milliseconds perSync)
{
    g_watchedCalls.beforeSync = [perSync] { std::this_thread::sleep_for(perSync); };
}

// Does the work of one of several processes: in each update, stores an increased counter and a new key.
void StoreCounterAndKeys(int process, int updates)
{
    for (int update = 0; update < updates; ++update) {
        const std::wstring value = std::to_wstring(update);
        EXPECT_TRUE(CLocalRegStore::WriteString(L"Counters", Name(L"process", process).c_str(), value.c_str()));
        EXPECT_TRUE(CLocalRegStore::WriteString(Name(L"Process", process).c_str(), Name(L"key", update).c_str(),
                                                value.c_str()));
    }
}

void ExpectCounterAndKeys(int processes, int updates)
{
    for (int process = 0; process < processes; ++process) {
        EXPECT_EQ(Stored(L"Counters", Name(L"process", process).c_str()), std::to_wstring(updates - 1));
        for (int update = 0; update < updates; ++update) {
            EXPECT_EQ(Stored(Name(L"Process", process).c_str(), Name(L"key", update).c_str()), std::to_wstring(update))
                << "process " << process;
        }
    }
}

void Contend(
    int processes, int updates, const std::function<void()>& prepare = [] {})
{
    InChildren(processes, [&](int process) {
        prepare();
        StoreCounterAndKeys(process, updates);
    });
    ExpectCounterAndKeys(processes, updates);
}

TEST(SixProcesses, LoseNothingOnADiskThatTakes60MillisecondsASync)
{
    const UserDataInMemory data;
    Contend(6, 4 * Soak(), [] { SlowDisk(milliseconds(60)); });
}

TEST(ThreeProcesses, LoseNothingOnADiskThatTakes600MillisecondsASync)
{
    const UserDataInMemory data;
    Contend(3, Soak(), [] { SlowDisk(milliseconds(600)); });
}

TEST(ManyProcesses, LoseNothingOnAFastDisk)
{
    const UserDataInMemory data;
    Contend(128, 2 * Soak());
}

TEST(TwelveProcesses, LoseNothingInAStoreOfAHundredThousandKeys)
{
    const UserDataInMemory data;
    std::string text;
    for (int key = 0; key < 100'000; ++key) {
        if (key % 1000 == 0)
            text += "[Section" + std::to_string(key / 1000) + "]\n";
        text += "WindowGeometry" + std::to_string(key) + "=" + std::to_string(key) + ";10;640;480\n";
    }
    WriteFile(data / "settings.ini", text);
    Contend(12, Soak());
    EXPECT_EQ(ReadFile(data / "settings.ini").substr(0, text.size()), text);
}

// Starts a process that stops itself while it holds the lock, as happens under a debugger or in a suspended container.
pid_t StartHolderThatStops()
{
    const pid_t child = StartChild([] {
        g_watchedCalls.beforeSync = [] {
            g_watchedCalls.beforeSync = nullptr;
            raise(SIGSTOP);
        };
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"holder", L"held"));
    });
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, WUNTRACED), child);
    EXPECT_TRUE(WIFSTOPPED(status));
    return child;
}

TEST(AStoppedHolderOfTheLock, UndoesNothingWhenItGoesOn)
{
    for (int trial = 0; trial < 2 * Soak(); ++trial) {
        const TempUserData data;
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"first", L"1"));
        const pid_t holder = StartHolderThatStops();
        for (int update = 0; update < 3; ++update)
            EXPECT_TRUE(CLocalRegStore::WriteString(L"s", Name(L"key", update).c_str(), L"1"));
        kill(holder, SIGCONT);
        EXPECT_TRUE(WaitForSuccess(holder));
        EXPECT_EQ(Stored(L"s", L"holder"), L"held");
        EXPECT_EQ(Stored(L"s", L"first"), L"1");
        for (int update = 0; update < 3; ++update)
            EXPECT_EQ(Stored(L"s", Name(L"key", update).c_str()), L"1") << "trial " << trial;
    }
}

TEST(AStoppedHolderOfTheLock, DelaysAllWritesOfAProcessByTwoSecondsTogether)
{
    const UserDataInMemory data;
    const pid_t holder = StartHolderThatStops();
    const auto start = Clock::now();
    for (int update = 0; update < 22; ++update)
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", Name(L"key", update).c_str(), L"1"));
    EXPECT_LT(Clock::now() - start, Patience() * milliseconds(10'000));
    kill(holder, SIGKILL);
    waitpid(holder, nullptr, 0);
}

TEST(AStoppedHolderOfTheLock, DelaysEightThreadsByTwoSecondsTogether)
{
    const UserDataInMemory data;
    const pid_t holder = StartHolderThatStops();
    const auto start = Clock::now();
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread) {
        threads.emplace_back(
            [thread] { EXPECT_TRUE(CLocalRegStore::WriteString(L"s", Name(L"key", thread).c_str(), L"1")); });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_LT(Clock::now() - start, Patience() * milliseconds(8000));
    for (int thread = 0; thread < 8; ++thread)
        EXPECT_EQ(Stored(L"s", Name(L"key", thread).c_str()), L"1");
    kill(holder, SIGKILL);
    waitpid(holder, nullptr, 0);
}

// The file changes eight times while WriteString() tries to save. The write starts again after each change, but waits
// for the lock only once.
TEST(AStoppedHolderOfTheLock, DelaysAWriteOnceWhileTheFileIsEmptiedAllTheTime)
{
    const UserDataInMemory data;
    const std::string path = data / "settings.ini";
    WriteFile(path, "[s]\nk=0\n");
    const HeldLock lock(path + ".lock");
    int edits = 0;
    g_watchedCalls.beforeSync = [&] {
        if (edits < 8)
            WriteFile(path, ++edits % 2 == 0 ? "[s]\na=1\n" : "");
    };
    g_watchedCalls.beforeExchange = [&] {
        EXPECT_EQ(edits, 8);
        return 0;
    };
    const auto start = Clock::now();
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    EXPECT_LT(Clock::now() - start, Patience() * milliseconds(8000));
    g_watchedCalls = {};
    EXPECT_EQ(ReadFile(path), "[s]\na=1\nk=1\n");
}

// The first write waits for the lock in vain. The later writes must not wait, because the holder of the lock is still
// stopped. When another process saves the file without the lock, this does not show that the holder is running again.
TEST(AStoppedHolderOfTheLock, DelaysAProcessOnceWhileAnotherOneStoresTheSameWay)
{
    const UserDataInMemory data;
    const HeldLock lock(data / "settings.ini.lock");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"0"));
    const auto start = Clock::now();
    for (int update = 1; update <= 8; ++update) {
        WriteFile(data / "new", "[s]\nk=1\ntheirs=" + std::to_string(update) + "\n");
        std::filesystem::rename(data / "new", data / "settings.ini");
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", std::to_wstring(update + 1).c_str()));
    }
    EXPECT_LT(Clock::now() - start, Patience() * milliseconds(8000));
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nk=9\ntheirs=8\n");
}

// A process can be stopped in the microseconds in which it holds the folder's lock to exchange the file. Here the test
// itself holds the lock.
TEST(AStoppedHolderOfTheFoldersLock, DelaysAllWritesOfAProcessByHalfASecondTogether)
{
    const UserDataInMemory data;
    WriteFile(data / "settings.ini", "[s]\n");
    const int folder = open(data.Path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(flock(folder, LOCK_EX | LOCK_NB), 0);
    const auto start = Clock::now();
    for (int update = 0; update < 22; ++update)
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", Name(L"key", update).c_str(), L"1"));
    EXPECT_LT(Clock::now() - start, Patience() * milliseconds(8000));
    close(folder);
}

TEST(AStoppedHolderOfTheLock, DoesNotDelayAWriteThatChangesNothingWhileAnotherThreadWaits)
{
    const TempUserData data;
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    const pid_t holder = StartHolderThatStops();
    std::atomic<bool> isDone = false;
    std::thread writer([&] {
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"other", L"1"));
        isDone = true;
    });
    int unchanged = 0;
    do {
        const auto start = Clock::now();
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
        EXPECT_LT(Clock::now() - start, Patience() * milliseconds(1000));
        std::this_thread::sleep_for(milliseconds(10));
        ++unchanged;
    } while (!isDone);
    writer.join();
    EXPECT_GT(unchanged, 1);
    kill(holder, SIGKILL);
    waitpid(holder, nullptr, 0);
}

TEST(AStoppedWaiter, DelaysNobodyForLong)
{
    const TempUserData data;
    const std::string lockFile = data / "settings.ini.lock";
    HeldLock lock(lockFile, 0, 1);
    const pid_t waiter = StartChild([] { EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"waiter", L"1")); });
    EXPECT_TRUE(Becomes([&] { return IsTurnTaken(lockFile); }, 1500));
    kill(waiter, SIGSTOP);
    int status = 0;
    EXPECT_EQ(waitpid(waiter, &status, WUNTRACED), waiter);
    lock.Release();
    ASSERT_TRUE(WIFSTOPPED(status)) << "the waiting process ended before it was stopped";
    const auto start = Clock::now();
    for (int update = 0; update < 3; ++update)
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", Name(L"key", update).c_str(), L"1"));
    EXPECT_LT(Clock::now() - start, Patience() * milliseconds(1500));
    kill(waiter, SIGCONT);
    EXPECT_TRUE(WaitForSuccess(waiter));
    EXPECT_EQ(Stored(L"s", L"waiter"), L"1");
    for (int update = 0; update < 3; ++update)
        EXPECT_EQ(Stored(L"s", Name(L"key", update).c_str()), L"1");
}

// Removes the lock file again and again.
class LockRemover
{
public:
    LockRemover(const std::string& path, milliseconds pause)
        : m_thread([this, path, pause] {
              while (!m_isDone) {
                  m_removed += unlink(path.c_str()) == 0;
                  std::this_thread::sleep_for(pause);
              }
          })
    {
    }
    ~LockRemover()
    {
        m_isDone = true;
        m_thread.join();
        EXPECT_GT(m_removed, 0);
    }
    LockRemover(const LockRemover&) = delete;
    LockRemover& operator=(const LockRemover&) = delete;

private:
    std::atomic<bool> m_isDone = false;
    std::atomic<int> m_removed = 0;
    std::thread m_thread;
};

TEST(ALockFileThatIsRemovedAllTheTime, LosesNothing)
{
    {
        const UserDataInMemory data;
        const LockRemover remover(data / "settings.ini.lock", milliseconds(2));
        Contend(6, 30 * Soak());
    }
    {
        const UserDataInMemory data;
        const LockRemover remover(data / "settings.ini.lock", milliseconds(1000));
        Contend(6, 10 * Soak(), [] { SlowDisk(milliseconds(10)); });
    }
}

TEST(AFolderInPlaceOfTheLockFile, LosesNothing)
{
    const UserDataInMemory data;
    std::filesystem::create_directory(data / "settings.ini.lock");
    Contend(6, 10 * Soak());
}

TEST(ALinkInPlaceOfTheLockFile, IsNotFollowedAndLosesNothing)
{
    const UserDataInMemory data;
    const TempFolder elsewhere;
    std::filesystem::create_symlink(elsewhere / "made", data / "settings.ini.lock");
    Contend(6, 10 * Soak());
    EXPECT_EQ(NamesIn(elsewhere.Path()), std::vector<std::string>());
}

TEST(ALockFileThatCannotBeOpened, LosesNothing)
{
    const UserDataInMemory data;
    WriteFile(data / "settings.ini.lock", "");
    ASSERT_EQ(chmod((data / "settings.ini.lock").c_str(), 0), 0);
    // The lock file belongs to root, and the folder to a user. This happens when the user has run a program with sudo.
    if (geteuid() == 0) {
        ASSERT_EQ(chown(data.Path().c_str(), 65534, 65534), 0);
    }
    const AsNobody nobody;
    ASSERT_EQ(open((data / "settings.ini.lock").c_str(), O_RDWR | O_CLOEXEC), -1);
    Contend(6, 10 * Soak());
}

// Saves a file as an editor does: empties it, and fills it a moment later.
void EditInPlace(const std::string& path, milliseconds pause)
{
    const std::string text = ReadFile(path);
    const int file = open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
    std::this_thread::sleep_for(pause);
    EXPECT_EQ(write(file, text.data(), text.size()), static_cast<ssize_t>(text.size()));
    close(file);
}

TEST(AnEditorThatEmptiesTheFileAndFillsItLater, LosesNoOtherSetting)
{
    for (const int pause : {2, 20}) {
        for (int trial = 0; trial < 30 * Soak(); ++trial) {
            const UserDataInMemory data;
            const std::string others = "# mine\n[other]\na=1\nb=2\n";
            WriteFile(data / "settings.ini", others);
            std::thread editor([&] { EditInPlace(data / "settings.ini", milliseconds(pause)); });
            std::this_thread::sleep_for(std::chrono::microseconds(trial % 15 * 200));
            EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
            editor.join();
            EXPECT_EQ(ReadFile(data / "settings.ini").substr(0, others.size()), others) << "trial " << trial;
        }
    }
}

TEST(AnEmptiedFile, KeepsItsValuesForReadersForAMoment)
{
    const TempUserData data;
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    EXPECT_EQ(Stored(L"s", L"k"), L"1");
    std::filesystem::resize_file(data / "settings.ini", 0);
    EXPECT_EQ(Stored(L"s", L"k"), L"1");
    EXPECT_TRUE(Becomes([] { return Stored(L"s", L"k") == L"(none)"; }, 5000));
}

TEST(AnEmptiedFile, IsGivenTheValueAgainThatIsWritten)
{
    const TempUserData data;
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    EXPECT_EQ(Stored(L"s", L"k"), L"1");
    std::filesystem::resize_file(data / "settings.ini", 0);
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nk=1\n");
}

// While a program that runs as root writes the new file, the folder's owner can replace that file with a link.
TEST(ALinkInPlaceOfTheNewFile, ChangesNoOtherFile)
{
    const TempUserData data;
    const TempFolder elsewhere;
    WriteFile(elsewhere / "secret", "s");
    ASSERT_EQ(chmod((elsewhere / "secret").c_str(), 0600), 0);
    WriteFile(data / "settings.ini", "[s]\nk=0\n");
    ASSERT_EQ(chmod((data / "settings.ini").c_str(), 0666), 0);
    if (geteuid() == 0) {
        ASSERT_EQ(chown((data / "settings.ini").c_str(), 65534, 65534), 0);
    }
    int replaced = 0;
    g_watchedCalls.beforeSync = [&] {
        for (const std::string& name : NamesIn(data.Path()))
            if (replaced == 0 && name.rfind(".fittings-save-", 0) == 0) {
                std::filesystem::remove(data / name);
                std::filesystem::create_symlink(elsewhere / "secret", data / name);
                ++replaced;
            }
    };
    CLocalRegStore::WriteString(L"s", L"k", L"1");
    g_watchedCalls.beforeSync = nullptr;
    EXPECT_EQ(replaced, 1);
    EXPECT_EQ(ModeOf(elsewhere / "secret"), 0600U);
    EXPECT_EQ(StatusOf(elsewhere / "secret").st_uid, geteuid());
    EXPECT_EQ(ReadFile(elsewhere / "secret"), "s");
}

TEST(AFileThatIsEmptiedAllTheTime, DelaysAWriteByTwoSeconds)
{
    const UserDataInMemory data;
    WriteFile(data / "settings.ini", "");
    std::atomic<bool> isDone = false;
    std::thread other([&] {
        const auto end = Clock::now() + Patience() * milliseconds(20'000);
        while (!isDone && Clock::now() < end) {
            const int file = open((data / "settings.ini").c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
            close(file);
            std::this_thread::sleep_for(milliseconds(50));
        }
    });
    const auto start = Clock::now();
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    EXPECT_LT(Clock::now() - start, Patience() * milliseconds(10'000));
    isDone = true;
    other.join();
}

TEST(RootInTheFolderOfAnotherUser, GivesTheFilesToThatUser)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give files away";
    const TempUserData data;
    ASSERT_EQ(chown(data.Path().c_str(), 65534, 65534), 0);
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    for (const char* const name : {"settings.ini", "settings.ini.lock"}) {
        EXPECT_EQ(StatusOf(data / name).st_uid, 65534U) << name;
        EXPECT_EQ(StatusOf(data / name).st_gid, 65534U) << name;
    }
}

}  // namespace
