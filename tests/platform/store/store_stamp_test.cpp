// The default store knows by the file's timestamps when its copy is out of date. Here the test sets the timestamps and
// the clock, so that two changes fall into one tick when the test needs it.

#include <filesystem>
#include <optional>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <tests/platform/store/store_support.h>
#include <tests/support/temp_folder.h>

namespace {

std::optional<timespec> g_stamp;
std::optional<timespec> g_now;

int Status(int folder, const char* path, struct stat* info, int flags)
{
    const long result = syscall(SYS_newfstatat, folder, path, info, flags);
    if (result == 0 && g_stamp)
        info->st_mtim = info->st_ctim = *g_stamp;
    return static_cast<int>(result);
}

}  // namespace

// The functions below replace the C library's functions in the whole process.

extern "C" int stat(const char* path, struct stat* info) noexcept
{
    return Status(AT_FDCWD, path, info, 0);
}

extern "C" int fstat(int fd, struct stat* info) noexcept
{
    return Status(fd, "", info, AT_EMPTY_PATH);
}

extern "C" int clock_gettime(clockid_t clock, timespec* now) noexcept
{
    if (g_now && clock == CLOCK_REALTIME_COARSE) {
        *now = *g_now;
        return 0;
    }
    return static_cast<int>(syscall(SYS_clock_gettime, clock, now));
}

namespace {

// A file whose timestamps never change, read once at a time that the test sets.
class AnUnchangedStamp : public testing::Test
{
protected:
    ~AnUnchangedStamp() override
    {
        g_stamp.reset();
        g_now.reset();
    }

    void ReadOnce(const timespec& stamp, const timespec& now)
    {
        g_stamp = stamp;
        g_now = now;
        EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
        WriteFile(m_data / "settings.ini", "[s]\nk=1\n");
        EXPECT_EQ(Stored(L"s", L"k"), L"1");
    }

    std::wstring ReadAfterChange()
    {
        WriteFile(m_data / "settings.ini", "[s]\nk=2\n");
        return Stored(L"s", L"k");
    }

    const TempUserData m_data;
};

TEST_F(AnUnchangedStamp, IsTrustedWhenTheFileWasReadInALaterTick)
{
    ReadOnce({1'700'000'000, 4'000'000}, {1'700'000'000, 8'000'000});
    EXPECT_EQ(ReadAfterChange(), L"1");
}

TEST_F(AnUnchangedStamp, IsNotTrustedWhenTheFileWasReadInTheSameTick)
{
    ReadOnce({1'700'000'000, 4'000'000}, {1'700'000'000, 4'000'000});
    EXPECT_EQ(ReadAfterChange(), L"2");
}

TEST_F(AnUnchangedStamp, IsNotTrustedWhenTheClockWasPutBack)
{
    ReadOnce({1'700'000'000, 4'000'000}, {1'600'000'000, 8'000'000});
    EXPECT_EQ(ReadAfterChange(), L"2");
}

// Some file systems keep only whole seconds, and some only even ones.
TEST_F(AnUnchangedStamp, OfWholeSecondsIsNotTrustedForTwoOfThem)
{
    ReadOnce({1'700'000'000, 0}, {1'700'000'001, 996'000'000});
    EXPECT_EQ(ReadAfterChange(), L"2");
}

TEST_F(AnUnchangedStamp, OfWholeSecondsIsTrustedAfterTwo)
{
    ReadOnce({1'700'000'000, 0}, {1'700'000'002, 0});
    EXPECT_EQ(ReadAfterChange(), L"1");
}

TEST_F(AnUnchangedStamp, IsNotTrustedInAnotherFile)
{
    ReadOnce({1'700'000'000, 4'000'000}, {1'700'000'000, 8'000'000});
    WriteFile(m_data / "other.ini", "[s]\nk=2\n");
    std::filesystem::rename(m_data / "other.ini", m_data / "settings.ini");
    EXPECT_EQ(Stored(L"s", L"k"), L"2");
}

TEST_F(AnUnchangedStamp, IsNotTrustedWithAnotherSize)
{
    ReadOnce({1'700'000'000, 4'000'000}, {1'700'000'000, 8'000'000});
    WriteFile(m_data / "settings.ini", "[s]\nk=22\n");
    EXPECT_EQ(Stored(L"s", L"k"), L"22");
}

}  // namespace
