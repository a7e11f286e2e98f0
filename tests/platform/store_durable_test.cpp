// What is stored is on the disk when the call returns: the file's bytes before it is renamed, the folder's entry after.

#include <cstdio>
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

}  // namespace

// These take the place of the C library's in the whole process.

extern "C" int fsync(int fd)
{
    struct stat info;
    if (g_calls && fstat(fd, &info) == 0)
        g_calls->push_back(S_ISDIR(info.st_mode) ? "sync folder" : "sync file");
    return static_cast<int>(syscall(SYS_fsync, fd));
}

extern "C" int rename(const char* from, const char* to) noexcept
{
    if (g_calls)
        g_calls->push_back("rename");
    return static_cast<int>(syscall(SYS_renameat, AT_FDCWD, from, AT_FDCWD, to));
}

namespace {

TEST(StoringAValue, ReachesTheDiskBeforeItReturns)
{
    const TempUserData data;
    std::vector<std::string> calls;
    g_calls = &calls;
    const bool stored = CLocalRegStore::WriteString(L"Section", L"Key", L"value");
    g_calls = nullptr;
    EXPECT_TRUE(stored);
    EXPECT_EQ(calls, (std::vector<std::string>{"sync file", "rename", "sync folder"}));
}

}  // namespace
