// The lock that lets one process at a time change the default store.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <string>
#include <thread>
#include <vector>

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <tests/platform/processes/held_lock.h>
#include <tests/support/becomes.h>
#include <tests/support/process/forked_work.h>
#include <tests/support/temp_folder.h>

namespace {

using Clock = std::chrono::steady_clock;

TEST(AHeldLock, DelaysAWriteByTwoSeconds)
{
    TempUserData data;
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    const HeldLock lock(data / "settings.ini.lock");
    const auto start = Clock::now();
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"2"));
    const auto waited = Clock::now() - start;
    EXPECT_GE(waited, std::chrono::milliseconds(1800));
    EXPECT_LT(waited, std::chrono::seconds(60));
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nk=2\n");
}

TEST(AHeldLock, DelaysAWriteNoLongerThanItIsHeld)
{
    const UserDataInMemory data;
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    const std::string lockFile = data / "settings.ini.lock";
    HeldLock lock(lockFile, 0, 1);
    std::thread holder([&] {
        EXPECT_TRUE(Becomes([&] { return IsTurnTaken(lockFile); })) << "the write does not wait";
        WriteFile(data / "settings.ini", "[s]\nk=1\ntheirs=1\n");
        lock.Release();
    });
    const auto start = Clock::now();
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"2"));
    EXPECT_LT(Clock::now() - start, std::chrono::milliseconds(1700));
    holder.join();
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nk=2\ntheirs=1\n");
}

TEST(AHeldLock, DelaysNoReadAndNoWriteThatChangesNothing)
{
    const UserDataInMemory data;
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    const HeldLock lock(data / "settings.ini.lock");
    const auto start = Clock::now();
    EXPECT_EQ(Stored(L"s", L"k"), L"1");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"s", L"other"));
    EXPECT_LT(Clock::now() - start, std::chrono::milliseconds(1000));
}

TEST(AHeldLock, GoesToWhoHasWaitedLongest)
{
    const UserDataInMemory data;
    const std::string lockFile = data / "settings.ini.lock";
    HeldLock lock(lockFile, 0, 1);
    const pid_t first = StartChild([] { EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"first", L"1")); });
    EXPECT_TRUE(Becomes([&] { return IsTurnTaken(lockFile); }, 1500));
    const pid_t second = StartChild([] { EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"second", L"2")); });
    lock.Release();
    EXPECT_TRUE(WaitForSuccess(first));
    EXPECT_TRUE(WaitForSuccess(second));
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nfirst=1\nsecond=2\n");
    EXPECT_FALSE(IsTurnTaken(lockFile));
}

// A child that is forked while a thread stores something inherits the open lock file. The child must not keep
// the lock.
TEST(AChildForkedWhileTheLockIsHeld, DoesNotKeepIt)
{
    const UserDataInMemory data;
    std::atomic<bool> isDone = false;
    std::atomic<int> writes = 0;
    Clock::duration longest{0};
    std::thread writer([&] {
        for (int i = 0; !isDone; ++i) {
            const auto start = Clock::now();
            EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", std::to_wstring(i).c_str()));
            longest = std::max(longest, Clock::now() - start);
            ++writes;
        }
    });
    std::vector<pid_t> children;
    for (int i = 0; i < 10; ++i) {
        const pid_t child = fork();
        if (child == 0) {
            for (;;)
                pause();
        }
        ASSERT_GT(child, 0);
        children.push_back(child);
        for (const int before = writes; writes < before + 2;)
            std::this_thread::sleep_for(std::chrono::microseconds(100 + 97 * i));
    }
    isDone = true;
    writer.join();
    for (const pid_t child : children) {
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
    EXPECT_LT(longest, std::chrono::milliseconds(1500));
}

}  // namespace
