// A save exchanges the settings file with a new file. In these tests, other processes change the settings file between
// the store's last check of the file and this exchange.

#include <fittings/platform/local_reg_store.h>

#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <tests/platform/processes/watched_calls.h>
#include <tests/platform/store/store_support.h>
#include <tests/support/temp_folder.h>

namespace {

// Acts as other processes: runs the given actions in order, one before each exchange.
class Others
{
public:
    explicit Others(std::vector<std::function<void()>> acts) : m_acts(std::move(acts))
    {
        g_watchedCalls.beforeExchange = [this] {
            if (m_done < m_acts.size())
                m_acts[m_done++]();
            return 0;
        };
    }
    ~Others() { g_watchedCalls.beforeExchange = nullptr; }
    Others(const Others&) = delete;
    Others& operator=(const Others&) = delete;

    std::size_t Done() const { return m_done; }

private:
    const std::vector<std::function<void()>> m_acts;
    std::size_t m_done = 0;
};

class SettingsFile : public UserDataTest
{
protected:
    ~SettingsFile() override { g_watchedCalls = {}; }

    std::string Now() const { return ReadFile(m_path); }

    // Saves as another process does: a new file takes the place of the old one.
    void Put(const std::string& text) const
    {
        WriteFile(m_path + ".new", text);
        ASSERT_EQ(rename((m_path + ".new").c_str(), m_path.c_str()), 0);
    }

    const std::string m_path = data / "settings.ini";
    const std::string m_zeros = std::string(100, '\0');
};

class AnExchange : public SettingsFile
{
protected:
    AnExchange() { WriteFile(m_path, "[s]\na=1\nk=old\n"); }
};

TEST_F(AnExchange, KeepsWhatAnotherProcessHasJustStored)
{
    WriteFile(m_path, "# mine\n[s]\na=1\nk=old\n");
    const Others others({[&] { Put("# mine\n# theirs\n[s]\na=2\nk=old\nb=3\n"); }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(Now(), "# mine\n# theirs\n[s]\na=2\nk=new\nb=3\n");
    EXPECT_EQ(others.Done(), 1U);
}

TEST_F(AnExchange, KeepsWhatAnotherProcessHasJustRemoved)
{
    const Others others({[&] { Put("[s]\nk=old\n"); }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(Now(), "[s]\nk=new\n");
}

TEST_F(AnExchange, RemovesAKeyFromWhatAnotherProcessHasJustStored)
{
    const Others others({[&] { Put("[s]\na=2\nk=old\n"); }});
    EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"s", L"k"));
    EXPECT_EQ(Now(), "[s]\na=2\n");
}

TEST_F(AnExchange, StoresItsOwnValueOverTheOneThatAnotherProcessHasJustStored)
{
    WriteFile(m_path, "[s]\nk=old\n");
    const Others others({[&] { Put("[s]\nk=theirs\n"); }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(Now(), "[s]\nk=new\n");
}

// The first exchange displaces a file of another process. The next process starts from the file that this exchange put
// in place, and does not know the change in the displaced file.
TEST_F(AnExchange, KeepsTheChangesOfSeveralProcesses)
{
    WriteFile(m_path, "[s]\na=1\nb=1\nk=old\n");
    const Others others({[&] { Put("[s]\na=2\nb=1\nk=old\n"); }, [&] { Put("[s]\na=1\nb=2\nk=new\nc=3\n"); },
                         [&] { Put("[s]\na=2\nb=1\nk=new\nd=4\n"); }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(others.Done(), 3U);
    const Ini now(m_path);
    EXPECT_EQ(now.Get(L"s", L"a"), L"2");
    EXPECT_EQ(now.Get(L"s", L"b"), L"2");
    EXPECT_EQ(now.Get(L"s", L"c"), L"3");
    EXPECT_EQ(now.Get(L"s", L"d"), L"4");
    EXPECT_EQ(now.Get(L"s", L"k"), L"new");
}

// Two other processes change the value of a. The file of the second one contains the new value of k, so this process
// has read the file that the first exchange put in place. Therefore its value of a is the newer one and must be kept.
TEST_F(AnExchange, KeepsTheNewerOfTwoValuesOfOthers)
{
    const Others others({[&] { Put("[s]\na=2\nk=old\n"); }, [&] { Put("[s]\na=3\nk=new\n"); }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(Now(), "[s]\na=3\nk=new\n");
}

TEST_F(AnExchange, WaitsForAnEditorThatHasJustEmptiedTheFile)
{
    std::thread editor;
    const Others others({[&] {
        const int file = open(m_path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
        editor = std::thread([file] {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            const std::string text = "[s]\na=2\nk=old\n";
            EXPECT_EQ(write(file, text.data(), text.size()), static_cast<ssize_t>(text.size()));
            close(file);
        });
    }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    editor.join();
    EXPECT_EQ(Now(), "[s]\na=2\nk=new\n");
}

// A file that is not text cannot be merged. The store puts it back, and then keeps it as settings.ini.unreadable, as
// it does with every unreadable file.
TEST_F(AnExchange, PutsBackWhatIsNoText)
{
    const Others others(
        {[&] { Put(m_zeros); }, [&] { EXPECT_NE(Now(), m_zeros); }, [&] { EXPECT_EQ(Now(), m_zeros); }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(others.Done(), 3U);
    EXPECT_EQ(Now(), "[s]\nk=new\n");
    EXPECT_EQ(ReadFile(m_path + ".unreadable"), m_zeros);
}

// The store has displaced the file of a second process and has to put it back. Before that, a third process replaces
// the file that the store has put in place.
TEST_F(AnExchange, KeepsWhatAThirdProcessStoresBeforeAFileIsPutBack)
{
    const Others others({[&] { Put(m_zeros); }, [&] { Put("[s]\na=1\nk=new\nb=3\n"); }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(Now(), "[s]\na=1\nk=new\nb=3\n");
    EXPECT_EQ(ReadFile(m_path + ".unreadable"), m_zeros);
    EXPECT_EQ(NamesIn(data.Path()),
              (std::vector<std::string>{"settings.ini", "settings.ini.lock", "settings.ini.unreadable"}));
}

// As in the previous test, but a fourth process also stores something: after the store has put back the file of the
// second process, and before it puts back the file of the third process.
TEST_F(AnExchange, DestroysNothingThatThreeOtherProcessesStore)
{
    const std::string third = "[s]\na=1\nk=new\nb=3\n";
    const Others others({[&] { Put(m_zeros); }, [&] { Put(third); }, [&] { Put("[s]\nc=4\n"); }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(Now(), "[s]\nc=4\nk=new\n");
    EXPECT_EQ(ReadFile(m_path + ".unreadable"), third);
}

// The store merges its change into a copy of the second process's file. Then the pipe appears, and the store exchanges
// it with this copy. The store puts the pipe back, and removes the copy. It keeps the second process's file as
// settings.ini.unreadable.
TEST_F(AnExchange, DestroysNothingOfASecondProcessWhenAThirdPutsAPipeInPlaceOfTheFile)
{
    const std::string second = "[s]\na=2\nk=old\n";
    const Others others({[&] { Put(second); },
                         [&] {
                             ASSERT_EQ(mkfifo((m_path + ".new").c_str(), 0600), 0);
                             ASSERT_EQ(rename((m_path + ".new").c_str(), m_path.c_str()), 0);
                         }});
    EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_TRUE(std::filesystem::is_fifo(m_path));
    EXPECT_EQ(ReadFile(m_path + ".unreadable"), second);
}

// By default, opening a pipe waits until another program opens it for writing. The store must not wait.
TEST_F(AnExchange, DoesNotWaitForAPipeThatTakesThePlaceOfTheFile)
{
    const Others others({[&] { Put("[s]\na=2\nk=old\n"); }});
    int syncs = 0;
    g_watchedCalls.beforeSync = [&] {
        if (++syncs != 2)
            return;
        ASSERT_EQ(unlink(m_path.c_str()), 0);
        ASSERT_EQ(mkfifo(m_path.c_str(), 0600), 0);
    };
    EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_TRUE(std::filesystem::is_fifo(m_path));
}

TEST_F(AnExchange, KeepsALinkThatTakesThePlaceOfTheFile)
{
    const TempFolder elsewhere;
    WriteFile(elsewhere / "settings.ini", "[s]\na=2\n");
    const Others others({[&] {
        ASSERT_EQ(unlink(m_path.c_str()), 0);
        ASSERT_EQ(symlink((elsewhere / "settings.ini").c_str(), m_path.c_str()), 0);
    }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_TRUE(std::filesystem::is_symlink(m_path));
    EXPECT_EQ(ReadFile(elsewhere / "settings.ini"), "[s]\na=2\nk=new\n");
}

TEST_F(AnExchange, KeepsTheFileThatTakesThePlaceOfAnUnreadableOne)
{
    WriteFile(m_path, m_zeros);
    bool isFirst = true;
    g_watchedCalls.beforeSync = [&] {
        if (std::exchange(isFirst, false))
            Put("[s]\na=1\n");
    };
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(Now(), "[s]\na=1\nk=new\n");
    EXPECT_EQ(ReadFile(m_path + ".unreadable"), m_zeros);
}

TEST_F(AnExchange, MakesTheFileAnewThatWasRemovedJustNow)
{
    const Others others({[&] { ASSERT_EQ(unlink(m_path.c_str()), 0); }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(Now(), "[s]\nk=new\n");
}

TEST_F(AnExchange, KeepsTheFileThatAnotherProcessHasJustMade)
{
    ASSERT_EQ(unlink(m_path.c_str()), 0);
    const Others others({[&] { Put("[s]\na=1\n"); }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(Now(), "[s]\na=1\nk=new\n");
}

TEST_F(AnExchange, LeavesNothingBehind)
{
    const Others others({[&] { Put("[s]\na=2\nk=old\n"); }, [&] { Put("[s]\na=3\nk=new\n"); }});
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(NamesIn(data.Path()), (std::vector<std::string>{"settings.ini", "settings.ini.lock"}));
}

// The time limit of the write is over, as if the process had been stopped for a while. Another process holds the
// folder's lock to exchange its file. The write must still wait for that lock.
TEST_F(AnExchange, WaitsForTheExchangeOfAnotherProcessEvenWhenNoTimeIsLeft)
{
    WriteFile(m_path, "[s]\nk=old\n");
    int attempts = 0;
    g_watchedCalls.beforeSync = [] { std::this_thread::sleep_for(std::chrono::milliseconds(2100)); };
    g_watchedCalls.beforeFolderLock = [&] { return ++attempts == 1 ? EWOULDBLOCK : 0; };
    g_watchedCalls.beforeExchange = [&] {
        EXPECT_EQ(attempts, 2);
        g_watchedCalls.beforeSync = nullptr;
        return 0;
    };
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(attempts, 2);
    EXPECT_EQ(Now(), "[s]\nk=new\n");
}

class WithoutExchange : public SettingsFile, public testing::WithParamInterface<int>
{
protected:
    WithoutExchange()
    {
        g_watchedCalls.beforeExchange = [] { return GetParam(); };
    }
};

TEST_P(WithoutExchange, AValueIsStoredAsAnywhere)
{
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"2"));
    EXPECT_EQ(Now(), "[s]\nk=2\n");
    EXPECT_EQ(NamesIn(data.Path()), (std::vector<std::string>{"settings.ini", "settings.ini.lock"}));
}

TEST_P(WithoutExchange, WhatAnotherProcessStoresWhileTheFileIsWrittenIsKept)
{
    WriteFile(m_path, "[s]\nk=1\n");
    bool isFirst = true;
    g_watchedCalls.beforeSync = [&] {
        if (isFirst)
            Put("[s]\nk=1\na=2\n");
        isFirst = false;
    };
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"2"));
    EXPECT_EQ(Now(), "[s]\nk=2\na=2\n");
}

INSTANTIATE_TEST_SUITE_P(, WithoutExchange, testing::Values(EINVAL, ENOSYS, EPERM));

}  // namespace
