// A stored value is on the disk when the call returns. The file's bytes are synced before the rename or exchange, and
// the folder is synced after it.

#include <cerrno>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <fittings/platform/local_reg_store.h>

#include <tests/support/temp_folder.h>

namespace {

std::vector<std::string>* g_calls = nullptr;
bool g_interruptsFolderSync = false;

}  // namespace

// The functions below replace the C library's functions in the whole process.

extern "C" int fsync(int fd)
{
    struct stat info;
    if (g_calls && fstat(fd, &info) == 0)
        g_calls->push_back(S_ISDIR(info.st_mode) ? "sync folder" : "sync file");
    if (g_interruptsFolderSync && g_calls && g_calls->back() == "sync folder") {
        g_interruptsFolderSync = false;
        errno = EINTR;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, fd));
}

extern "C" int rename(const char* from, const char* to) noexcept
{
    if (g_calls)
        g_calls->push_back("rename");
    return static_cast<int>(syscall(SYS_renameat, AT_FDCWD, from, AT_FDCWD, to));
}

extern "C" int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned int flags) noexcept
{
    if (g_calls)
        g_calls->push_back(flags == RENAME_EXCHANGE ? "exchange" : "rename");
    return static_cast<int>(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

namespace {

using Calls = std::vector<std::string>;

Calls CallsOf(const std::function<void()>& work)
{
    Calls calls;
    g_calls = &calls;
    work();
    g_calls = nullptr;
    return calls;
}

TEST(StoringAValue, ReachesTheDiskBeforeItReturns)
{
    const TempUserData data;
    EXPECT_EQ(CallsOf([] { EXPECT_TRUE(CLocalRegStore::WriteString(L"Section", L"Key", L"value")); }),
              (Calls{"sync file", "rename", "sync folder"}));
    EXPECT_EQ(CallsOf([] { EXPECT_TRUE(CLocalRegStore::WriteString(L"Section", L"Key", L"other")); }),
              (Calls{"sync file", "exchange", "sync folder"}));
}

// On some file systems, such as those of FUSE, a signal can interrupt fsync().
TEST(StoringAValue, SyncsTheFolderAgainAfterASignal)
{
    const TempUserData data;
    g_interruptsFolderSync = true;
    EXPECT_EQ(CallsOf([] { EXPECT_TRUE(CLocalRegStore::WriteString(L"Section", L"Key", L"value")); }),
              (Calls{"sync file", "rename", "sync folder", "sync folder"}));
    EXPECT_FALSE(g_interruptsFolderSync);
}

TEST(ABatchOfTwentyTwoValues, ReachesTheDiskByOneSave)
{
    const TempUserData data;
    EXPECT_TRUE(CLocalRegStore::WriteString(L"Section", L"Key", L"value"));
    EXPECT_EQ(CallsOf([] {
                  CLocalRegStore::Batch batch;
                  for (int i = 0; i < 22; ++i)
                      EXPECT_TRUE(CLocalRegStore::WriteProfileInt(L"Window", std::to_wstring(i).c_str(), i));
              }),
              (Calls{"sync file", "exchange", "sync folder"}));
    for (int i = 0; i < 22; ++i)
        EXPECT_EQ(CLocalRegStore::GetProfileInt(L"Window", std::to_wstring(i).c_str(), -1), i);
}

}  // namespace
