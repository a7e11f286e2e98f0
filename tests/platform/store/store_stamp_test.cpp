// The default store knows from the file's timestamps whether its copy in memory is out of date. These tests set the
// timestamps and the clocks, so that two changes or two reads can fall into one tick.

#include <filesystem>
#include <optional>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <tests/support/file_status.h>
#include <tests/support/temp_folder.h>

namespace {

std::optional<timespec> g_stamp;
std::optional<timespec> g_now;
std::optional<timespec> g_tick;

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
    if (g_tick && clock == CLOCK_MONOTONIC_COARSE) {
        *now = *g_tick;
        return 0;
    }
    return static_cast<int>(syscall(SYS_clock_gettime, clock, now));
}

namespace {

// A file whose timestamps never change. The test sets the time at which the store reads the file.
class AnUnchangedStamp : public UserDataTest
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
        WriteFile(data / "settings.ini", "[s]\nk=1\n");
        EXPECT_EQ(Stored(L"s", L"k"), L"1");
    }

    std::wstring ReadAfterChange()
    {
        WriteFile(data / "settings.ini", "[s]\nk=2\n");
        return Stored(L"s", L"k");
    }
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

// Some file systems keep only whole seconds, and some only even seconds. Therefore a timestamp of whole seconds is
// trusted only after two seconds.
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
    WriteFile(data / "other.ini", "[s]\nk=2\n");
    std::filesystem::rename(data / "other.ini", data / "settings.ini");
    EXPECT_EQ(Stored(L"s", L"k"), L"2");
}

TEST_F(AnUnchangedStamp, IsNotTrustedWithAnotherSize)
{
    ReadOnce({1'700'000'000, 4'000'000}, {1'700'000'000, 8'000'000});
    WriteFile(data / "settings.ini", "[s]\nk=22\n");
    EXPECT_EQ(Stored(L"s", L"k"), L"22");
}

// A file that is read several times within one tick. The later reads look at the open file and not at its path.
class AReadInTheSameTick : public UserDataTest
{
protected:
    AReadInTheSameTick()
    {
        g_tick = timespec{1000, 0};
        WriteFile(Path(), "[s]\nk=1\n");
        WaitPastStamp(Path());
        for (int read = 0; read < 3; ++read)
            EXPECT_EQ(Stored(L"s", L"k"), L"1");
    }

    ~AReadInTheSameTick() override
    {
        g_stamp.reset();
        g_tick.reset();
    }

    std::string Path() const { return data / "settings.ini"; }

    // Moves the file's folder away, and makes a new folder with a new file at the old path.
    void ReplaceFolder(const std::string& bytes)
    {
        std::filesystem::rename(data.Path(), m_earlier / "moved");
        std::filesystem::create_directory(data.Path());
        WriteFile(Path(), bytes);
    }

    const TempFolder m_earlier;
};

TEST_F(AReadInTheSameTick, SeesWhatWasWrittenInPlace)
{
    WriteFile(Path(), "[s]\nk=2\n");
    EXPECT_EQ(Stored(L"s", L"k"), L"2");
}

TEST_F(AReadInTheSameTick, SeesAnotherFile)
{
    WriteFile(data / "other.ini", "[s]\nk=2\n");
    std::filesystem::rename(data / "other.ini", Path());
    EXPECT_EQ(Stored(L"s", L"k"), L"2");
}

// Some file systems do not change the timestamps of a file when another file replaces it. The store must notice that
// the earlier file no longer has a name.
TEST_F(AReadInTheSameTick, SeesAnotherFileByTheNamesOfTheEarlierOne)
{
    g_stamp = timespec{1'700'000'000, 4'000'000};
    WriteFile(Path(), "[s]\nk=12\n");
    for (int read = 0; read < 3; ++read)
        EXPECT_EQ(Stored(L"s", L"k"), L"12");
    WriteFile(data / "other.ini", "[s]\nk=22\n");
    std::filesystem::rename(data / "other.ini", Path());
    EXPECT_EQ(Stored(L"s", L"k"), L"22");
}

TEST_F(AReadInTheSameTick, SeesTheFileRenamed)
{
    std::filesystem::rename(Path(), data / "other.ini");
    EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
}

TEST_F(AReadInTheSameTick, SeesTheFileRemoved)
{
    std::filesystem::remove(Path());
    EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
    WriteFile(Path(), "[s]\nk=2\n");
    EXPECT_EQ(Stored(L"s", L"k"), L"2");
}

TEST_F(AReadInTheSameTick, SeesALinkInPlaceOfTheFile)
{
    WriteFile(data / "other.ini", "[s]\nk=2\n");
    std::filesystem::remove(Path());
    std::filesystem::create_symlink("other.ini", Path());
    EXPECT_EQ(Stored(L"s", L"k"), L"2");
}

TEST_F(AReadInTheSameTick, SeesWhatWasSaved)
{
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"2"));
    EXPECT_EQ(Stored(L"s", L"k"), L"2");
}

TEST_F(AReadInTheSameTick, IsFollowedByOneThatSeesAnotherFolder)
{
    ReplaceFolder("[s]\nk=2\n");
    g_tick->tv_nsec += 4'000'000;
    EXPECT_EQ(Stored(L"s", L"k"), L"2");
}

TEST_F(AReadInTheSameTick, IsFollowedByOneThatSeesWhereALinkLeads)
{
    WriteFile(m_earlier / "one.ini", "[s]\nk=1\n");
    WriteFile(m_earlier / "two.ini", "[s]\nk=2\n");
    std::filesystem::remove(Path());
    std::filesystem::create_symlink(m_earlier / "one.ini", Path());
    WaitPastStamp(Path());
    for (int read = 0; read < 3; ++read)
        EXPECT_EQ(Stored(L"s", L"k"), L"1");
    std::filesystem::remove(Path());
    std::filesystem::create_symlink(m_earlier / "two.ini", Path());
    g_tick->tv_nsec += 4'000'000;
    EXPECT_EQ(Stored(L"s", L"k"), L"2");
}

TEST_F(AReadInTheSameTick, MakesNoWriteRelyOnAnotherFolder)
{
    ReplaceFolder("[s]\nk=2\n");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    EXPECT_EQ(ReadFile(Path()), "[s]\nk=1\n");
    EXPECT_EQ(Stored(L"s", L"k"), L"1");
}

}  // namespace
