// Several processes or threads use the default store or a named file. Some of the processes are killed.

#include <fittings/platform/local_reg_store.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <fittings/platform/std_file_paths.h>
#include <tests/platform/store/store_support.h>
#include <tests/support/file_status.h>
#include <tests/support/patience.h>
#include <tests/support/process/forked_work.h>
#include <tests/support/temp_folder.h>

namespace {

using Clock = std::chrono::steady_clock;

std::wstring Name(const wchar_t* prefix, int number)
{
    return prefix + std::to_wstring(number);
}

TEST(SixProcesses, KeepAllOfTheirTwoHundredAndFortyUpdates)
{
    const UserDataInMemory data;
    InChildren(6, [](int process) {
        for (int update = 0; update < 40; ++update) {
            EXPECT_TRUE(CLocalRegStore::WriteString(Name(L"Process", process % 3).c_str(),
                                                    Name(L"k", process * 100 + update).c_str(),
                                                    std::to_wstring(update).c_str()));
        }
    });
    int kept = 0;
    for (int process = 0; process < 6; ++process) {
        for (int update = 0; update < 40; ++update) {
            kept += Stored(Name(L"Process", process % 3).c_str(), Name(L"k", process * 100 + update).c_str()) ==
                    std::to_wstring(update);
        }
    }
    EXPECT_EQ(kept, 240);
    EXPECT_EQ(NamesIn(data.Path()), (std::vector<std::string>{"settings.ini", "settings.ini.lock"}));
}

// Runs @a work as process 1 of a new PID namespace, as in a container. Processes in different containers may have the
// same number, so this number alone does not make the names of temporary files unique.
void InOwnContainer(const std::function<void()>& work)
{
    ASSERT_TRUE(unshare(CLONE_NEWPID) == 0 || unshare(CLONE_NEWUSER | CLONE_NEWPID) == 0);
    InChild([&] {
        EXPECT_EQ(getpid(), 1);
        work();
    });
}

TEST(TwoContainersThatSaveOneFile, LeaveOneOfTheTwoStatesEachTime)
{
    if (!WaitForSuccess(StartChild([] { InOwnContainer([] {}); })))
        GTEST_SKIP() << "no right to make a container";
    const TempFolder folder;
    const std::string path = folder / "a.ini";
    const std::wstring texts[] = {std::wstring(3000, L'x'), std::wstring(2000, L'y')};
    InChildren(2, [&](int writer) {
        InOwnContainer([&] {
            for (int i = 0; i < 300; ++i) {
                Ini ini;
                ini.Set(L"s", L"k", (texts[writer] + std::to_wstring(i)).c_str());
                EXPECT_TRUE(ini.Save(path));
                const std::wstring found = Ini(path).Get(L"s", L"k");
                EXPECT_TRUE(found.substr(0, 3000) == texts[0] || found.substr(0, 2000) == texts[1]);
            }
        });
    });
    EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"a.ini"}));
}

TEST(FourThreads, KeepAllOfTheirUpdates)
{
    TempUserData data;
    std::atomic<bool> isDone = false;
    std::thread reader([&] {
        while (!isDone) {
            const std::wstring value = Stored(L"s", L"k0");
            EXPECT_TRUE(value == L"(none)" || value == L"v0");
        }
    });
    std::vector<std::thread> writers;
    for (int thread = 0; thread < 4; ++thread) {
        writers.emplace_back([thread] {
            for (int i = 0; i < 25; ++i) {
                const int number = thread * 25 + i;
                EXPECT_TRUE(CLocalRegStore::WriteString(L"s", Name(L"k", number).c_str(), Name(L"v", number).c_str()));
            }
        });
    }
    for (std::thread& writer : writers)
        writer.join();
    isDone = true;
    reader.join();
    for (int number = 0; number < 100; ++number)
        EXPECT_EQ(Stored(L"s", Name(L"k", number).c_str()), Name(L"v", number));
}

// The numbers of the last updates that a writing process has begun and completed. SharedProgress keeps these numbers in
// memory that outlives the process.
struct Progress
{
    std::atomic<int> begun;
    std::atomic<int> done;
};

class SharedProgress
{
public:
    SharedProgress()
        : m_memory(mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)),
          m_progress(new (m_memory) Progress{})
    {
    }
    ~SharedProgress() { munmap(m_memory, sizeof(Progress)); }
    SharedProgress(const SharedProgress&) = delete;
    SharedProgress& operator=(const SharedProgress&) = delete;

    Progress* operator->() const { return m_progress; }

private:
    void* m_memory;
    Progress* m_progress;
};

// Returns a text with the number of the update. The length of the text changes with the number.
std::wstring UpdateText(int update)
{
    return std::to_wstring(update) + std::wstring(static_cast<std::size_t>(update % 7) * 100, L'.');
}

constexpr int kOtherKeys = 60;

class AKilledWriter : public testing::Test
{
protected:
    AKilledWriter()
    {
        Ini ini;
        for (int other = 0; other < kOtherKeys; ++other)
            ini.Set(Name(L"Others", other % 4).c_str(), Name(L"other", other).c_str(), Name(L"value", other).c_str());
        ini.Set(L"Kill", L"update", UpdateText(0).c_str());
        EXPECT_TRUE(ini.Save(m_data / "settings.ini"));
        const auto start = Clock::now();
        EXPECT_TRUE(ini.Save(m_data / "named.ini"));
        m_saving = std::min(std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start),
                            Patience() * std::chrono::microseconds(10'000));
    }

    // Starts a writer, kills it after a random time, and checks the file.
    template <typename Write>
    void KillOnce(int round, Write write, const std::string& path)
    {
        const pid_t child = StartChild([&] {
            for (int update = m_progress->done + 1;; ++update) {
                m_progress->begun = update;
                write(UpdateText(update));
                m_progress->done = update;
            }
        });
        // Kill the writer at a random moment: before, during or after its first write.
        std::this_thread::sleep_for(std::chrono::microseconds(m_random() % (Patience() * 3000 + 2 * m_saving.count())));
        ASSERT_EQ(kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "the writer ended by itself";

        const Ini ini(path);
        const std::wstring found = ini.Get(L"Kill", L"update");
        ASSERT_TRUE(found == UpdateText(m_progress->done) || found == UpdateText(m_progress->begun))
            << "round " << round << ": done " << m_progress->done << ", begun " << m_progress->begun;
        m_old += m_progress->done != m_progress->begun && found == UpdateText(m_progress->done);
        m_new += m_progress->done != m_progress->begun && found == UpdateText(m_progress->begun);
        for (int other = 0; other < kOtherKeys; ++other) {
            ASSERT_EQ(ini.Get(Name(L"Others", other % 4).c_str(), Name(L"other", other).c_str()), Name(L"value", other))
                << "round " << round;
        }
        // The next writer continues from the value in the file.
        m_progress->done = m_progress->begun =
            found == UpdateText(m_progress->begun) ? +m_progress->begun : +m_progress->done;
    }

    // Expects a save to remove the temporary files of killed writers. Sets the times of all files an hour back, because
    // a save removes only temporary files that are at least a minute old.
    void ExpectLeftoversToGo(const std::vector<std::string>& expected)
    {
        for (const std::string& name : NamesIn(m_data.Path())) {
            const timespec anHourAgo[] = {{time(nullptr) - 3600, 0}, {time(nullptr) - 3600, 0}};
            utimensat(AT_FDCWD, (m_data / name).c_str(), anHourAgo, 0);
        }
        EXPECT_TRUE(CLocalRegStore::WriteString(L"Kill", L"last", L"1"));
        EXPECT_EQ(NamesIn(m_data.Path()), expected);
    }

    const UserDataInMemory m_data;
    SharedProgress m_progress;
    std::minstd_rand m_random{4711};
    std::chrono::microseconds m_saving{0};
    int m_old = 0;
    int m_new = 0;
};

TEST_F(AKilledWriter, LeavesTheOldOrTheNewValueAndAllOthersInTheDefaultStore)
{
    for (int round = 0; round < 350 && !HasFatalFailure(); ++round) {
        KillOnce(
            round, [](const std::wstring& text) { CLocalRegStore::WriteString(L"Kill", L"update", text.c_str()); },
            m_data / "settings.ini");
        // The default store returns the value that KillOnce() has found in the file. It does not wait for the lock of
        // the killed writer, which the kernel has released.
        const auto start = Clock::now();
        ASSERT_EQ(Stored(L"Kill", L"update"), UpdateText(m_progress->done));
        ASSERT_LT(Clock::now() - start, std::chrono::milliseconds(1500));
    }
    RecordProperty("old", m_old);
    RecordProperty("new", m_new);
    EXPECT_GT(m_progress->done, 50);
    EXPECT_GT(m_old, 20) << "too few writers were killed while they wrote";
    ExpectLeftoversToGo({"named.ini", "settings.ini", "settings.ini.lock"});
}

TEST_F(AKilledWriter, LeavesTheOldOrTheNewValueAndAllOthersInANamedFile)
{
    const std::string path = m_data / "named.ini";
    for (int round = 0; round < 150 && !HasFatalFailure(); ++round) {
        KillOnce(
            round,
            [&](const std::wstring& text) {
                Ini ini(path);
                ini.Set(L"Kill", L"update", text.c_str());
                ini.Save(path);
            },
            path);
    }
    EXPECT_GT(m_progress->done, 50);
    EXPECT_GT(m_old, 10) << "too few writers were killed while they wrote";
    ExpectLeftoversToGo({"named.ini", "settings.ini", "settings.ini.lock"});
}

TEST(AChangeByAnotherProcess, IsSeenByTheNextRead)
{
    TempUserData data;
    EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
    for (const wchar_t* value : {L"1", L"2", L"3", L"4"}) {
        InChild([&] { EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", value)); });
        EXPECT_EQ(Stored(L"s", L"k"), value);
        EXPECT_EQ(Stored(L"s", L"k"), value);
    }
    std::filesystem::remove(data / "settings.ini");
    EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
}

TEST(AChangeByAnotherProcess, IsNotUndoneByTheNextWrite)
{
    TempUserData data;
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"mine", L"1"));
    EXPECT_EQ(Stored(L"s", L"mine"), L"1");
    InChild([] { EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"theirs", L"2")); });
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"mine", L"3"));
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nmine=3\ntheirs=2\n");
}

// All states of the file have the same size, and many have the same timestamp. Such states differ only in their bytes.
TEST(AChangeInPlace, IsSeenHoweverFastItFollowsAnother)
{
    TempUserData data;
    WriteFile(data / "settings.ini", "[s]\nk=0\n");
    const int file = open((data / "settings.ini").c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_GE(file, 0);
    for (int i = 0; i < 2000; ++i) {
        const char digit = static_cast<char>('0' + i % 10);
        ASSERT_EQ(pwrite(file, &digit, 1, 6), 1);
        ASSERT_EQ(Stored(L"s", L"k"), std::to_wstring(i % 10)) << i;
    }
    close(file);
}

TEST(AChangeInPlace, IsSeenWhenItsTimeIsPutBack)
{
    TempUserData data;
    const std::string path = data / "settings.ini";
    WriteFile(path, "[s]\nk=1\n");
    const struct stat before = StatusOf(path);
    WaitPastStamp(path);
    EXPECT_EQ(Stored(L"s", L"k"), L"1");
    WriteFile(path, "[s]\nk=2\n");
    const timespec times[] = {before.st_atim, before.st_mtim};
    ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
    EXPECT_EQ(Stored(L"s", L"k"), L"2");
}

TEST(AnotherUserDataDirectory, IsAnotherStoreAtOnce)
{
    TempUserData one;
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"one"));
    EXPECT_EQ(Stored(L"s", L"k"), L"one");
    TempFolder two;
    std_file_paths::SetUserDataDir(file_util_ex::ConvertFromUTF8W(two.Path()));
    EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"two"));
    std_file_paths::SetUserDataDir(file_util_ex::ConvertFromUTF8W(one.Path()));
    EXPECT_EQ(Stored(L"s", L"k"), L"one");
    EXPECT_EQ(ReadFile(two / "settings.ini"), "[s]\nk=two\n");
}

}  // namespace
