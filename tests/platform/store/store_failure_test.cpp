// Disks, folders and files that cannot be written.

#include <fittings/platform/local_reg_store.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <fittings/platform/std_file_paths.h>
#include <tests/platform/store/store_support.h>
#include <tests/support/file_status.h>
#include <tests/support/process/as_nobody.h>
#include <tests/support/process/forked_work.h>
#include <tests/support/process/own_mounts.h>
#include <tests/support/temp_folder.h>

namespace {

namespace fs = std::filesystem;

bool SaveKey(const std::string& path, const wchar_t* value)
{
    Ini ini(path);
    ini.Set(L"s", L"k", value);
    return ini.Save(path);
}

const std::string kOld = "# mine\n[s]\nk=old\nother=1\n";
const std::string kNew = "# mine\n[s]\nk=new\nother=1\n";

// Expects that no function can write a value of 1 MiB, and that the old files stay as they are. Only the lock file may
// be new.
void ExpectWritesToFail(const std::string& folder)
{
    const std::string big(1 << 20, 'x');
    const std::wstring bigText(big.begin(), big.end());
    const std::vector<std::string> names = NamesIn(folder);
    EXPECT_FALSE(SaveKey(folder + "/settings.ini", bigText.c_str()));
    EXPECT_FALSE(SaveKey(folder + "/new.ini", bigText.c_str()));
    EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", bigText.c_str()));
    EXPECT_EQ(ReadFile(folder + "/settings.ini"), kOld);
    EXPECT_EQ(Stored(L"s", L"k"), L"old");
    EXPECT_EQ(Stored(L"s", L"other"), L"1");
    std::vector<std::string> after = NamesIn(folder);
    after.erase(std::remove(after.begin(), after.end(), "settings.ini.lock"), after.end());
    EXPECT_EQ(after, names);
}

TEST(AWriteThatTheSystemCutsShort, LeavesTheOldFile)
{
    TempUserData data;
    WriteFile(data / "settings.ini", kOld);
    InChild([&] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {4096, 4096};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
        ExpectWritesToFail(data.Path());
        // A value that fits is saved.
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
        EXPECT_EQ(ReadFile(data / "settings.ini"), kNew);
    });
}

TEST(AFullDisk, LeavesTheOldFile)
{
    TempUserData data;
    if (!WaitForSuccess(StartChild([&] { ASSERT_TRUE(EnterOwnMounts() && MountSmallDisk(data.Path())); })))
        GTEST_SKIP() << "no right to mount a small disk; another test covers a write that is cut short";
    InChild([&] {
        ASSERT_TRUE(EnterOwnMounts() && MountSmallDisk(data.Path()));
        WriteFile(data / "settings.ini", kOld);
        ExpectWritesToFail(data.Path());
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
        EXPECT_EQ(ReadFile(data / "settings.ini"), kNew);
    });
}

TEST(AReadOnlyFolder, LeavesTheOldFile)
{
    TempUserData data;
    WriteFile(data / "settings.ini", kOld);
    chmod((data / "settings.ini").c_str(), 0644);
    chmod(data.Path().c_str(), 0555);
    InChild([&] {
        const AsNobody nobody;
        ExpectWritesToFail(data.Path());
        EXPECT_FALSE(CLocalRegStore::DeleteProfile(L"s", L"k"));
        EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"s", L"absent"));
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"old"));
    });
    chmod(data.Path().c_str(), 0700);
}

TEST(AFileThatMayNotBeRead, IsNotReplaced)
{
    TempUserData data;
    WriteFile(data / "settings.ini", kOld);
    chmod((data / "settings.ini").c_str(), 0);
    chmod(data.Path().c_str(), 0777);
    InChild([&] {
        const AsNobody nobody;
        Ini ini;
        EXPECT_FALSE(ini.Load(data / "settings.ini"));
        EXPECT_EQ(ini.Get(L"s", L"k"), L"(none)");
        EXPECT_FALSE(ini.Save(data / "settings.ini"));
        ini.Set(L"s", L"k", L"v");
        EXPECT_EQ(ini.Get(L"s", L"k"), L"v");
        EXPECT_FALSE(ini.Save(data / "settings.ini"));
        EXPECT_TRUE(ini.Save(data / "elsewhere.ini"));
        EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
        EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
        EXPECT_FALSE(CLocalRegStore::DeleteProfile(L"s", L"absent"));
        EXPECT_FALSE(CLocalRegStore::WriteProfileBool(L"s", L"k", true));
    });
    chmod((data / "settings.ini").c_str(), 0600);
    EXPECT_EQ(ReadFile(data / "settings.ini"), kOld);
    // When the file can be read again, it has all its values.
    EXPECT_EQ(Stored(L"s", L"k"), L"old");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    EXPECT_EQ(ReadFile(data / "settings.ini"), kNew);
}

// In a folder with the sticky bit, all users may add files, but may replace only their own files. Therefore the last
// step of the save fails.
TEST(AFileOfAnotherUser, StandsWhereItMayNotBeReplaced)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make a file of another user";
    TempUserData data;
    WriteFile(data / "settings.ini", kOld);
    chmod((data / "settings.ini").c_str(), 0644);
    chmod(data.Path().c_str(), 01777);
    InChild([&] {
        const AsNobody nobody;
        EXPECT_FALSE(SaveKey(data / "settings.ini", L"new"));
        EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
    });
    EXPECT_EQ(ReadFile(data / "settings.ini"), kOld);
    EXPECT_EQ(NamesIn(data.Path()), (std::vector<std::string>{"settings.ini", "settings.ini.lock"}));
}

TEST(AFolderInTheFilesPlace, MakesWritingFail)
{
    TempUserData data;
    fs::create_directory(data / "settings.ini");
    Ini ini;
    EXPECT_FALSE(ini.Load(data / "settings.ini"));
    ini.Set(L"s", L"k", L"v");
    EXPECT_FALSE(ini.Save(data / "settings.ini"));
    EXPECT_FALSE(Ini().Save(data / "settings.ini"));
    EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
    EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
    EXPECT_TRUE(fs::is_directory(data / "settings.ini"));
    EXPECT_EQ(NamesIn(data.Path()), (std::vector<std::string>{"settings.ini"}));
    fs::remove(data / "settings.ini");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
    EXPECT_EQ(Stored(L"s", L"k"), L"v");
}

TEST(AFileInTheFoldersPlace, MakesWritingFail)
{
    TempFolder folder;
    WriteFile(folder / "data", "precious");
    TempUserData data;
    std_file_paths::SetUserDataDir(file_util_ex::ConvertFromUTF8W(folder / "data"));
    EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
    EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
    EXPECT_FALSE(SaveKey(folder / "data/a.ini", L"v"));
    EXPECT_EQ(ReadFile(folder / "data"), "precious");
}

// A file takes the place of the folder, so the store can no longer find out whether the key exists. Then even deleting
// a missing key fails.
TEST(AFolderThatBecomesAFile, MakesWritingFail)
{
    TempFolder folder;
    TempUserData data;
    std_file_paths::SetUserDataDir(file_util_ex::ConvertFromUTF8W(folder / "data"));
    EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
    EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"s", L"k"));
    WriteFile(folder / "data", "precious");
    EXPECT_FALSE(CLocalRegStore::DeleteProfile(L"s", L"k"));
    EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
    EXPECT_EQ(ReadFile(folder / "data"), "precious");
}

TEST(AFolderThatMayNotBeEntered, MakesWritingFailUntilItMay)
{
    TempFolder folder;
    chmod(folder.Path().c_str(), 0755);
    TempUserData data;
    std_file_paths::SetUserDataDir(file_util_ex::ConvertFromUTF8W(folder / "data"));
    InChild([&] {
        fs::create_directory(folder / "data");
        chmod((folder / "data").c_str(), 0777);
        const AsNobody nobody;
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"old"));
        EXPECT_EQ(Stored(L"s", L"k"), L"old");
    });
    const auto expectFailure = [&] {
        EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
        EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
        EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", L"old"));
        EXPECT_FALSE(CLocalRegStore::DeleteProfile(L"s", L"absent"));
        Ini ini;
        EXPECT_FALSE(ini.Load(folder / "data/settings.ini"));
        ini.Set(L"s", L"k", L"new");
        EXPECT_FALSE(ini.Save(folder / "data/settings.ini"));
    };
    EXPECT_EQ(Stored(L"s", L"k"), L"old");
    chmod((folder / "data").c_str(), 0);
    InChild([&] {
        const AsNobody nobody;
        expectFailure();
    });
    chmod((folder / "data").c_str(), 0777);
    EXPECT_EQ(ReadFile(folder / "data/settings.ini"), "[s]\nk=old\n");
    InChild([&] {
        const AsNobody nobody;
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
        EXPECT_EQ(Stored(L"s", L"k"), L"new");
    });
}

TEST(APipeInTheFilesPlace, IsNeitherWaitedForNorReplaced)
{
    TempUserData data;
    ASSERT_EQ(mkfifo((data / "settings.ini").c_str(), 0600), 0);
    EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
    EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
    EXPECT_FALSE(Ini().Save(data / "settings.ini"));
    EXPECT_TRUE(S_ISFIFO(StatusOf(data / "settings.ini").st_mode));
}

TEST(AFileThatIsFarTooBig, IsLeftAlone)
{
    TempFolder folder;
    WriteFile(folder / "a.ini", "[s]\nk=v\n");
    fs::resize_file(folder / "a.ini", (std::uintmax_t{1} << 30) + 1);
    Ini ini;
    EXPECT_FALSE(ini.Load(folder / "a.ini"));
    ini.Set(L"s", L"k", L"w");
    EXPECT_FALSE(ini.Save(folder / "a.ini"));
    EXPECT_EQ(fs::file_size(folder / "a.ini"), (std::uintmax_t{1} << 30) + 1);
}

TEST(AFileThatHoldsNoText, StaysWhereItIsWhenNoNewOneCanBeSaved)
{
    TempFolder folder;
    const std::string bytes(100, '\0');
    WriteFile(folder / "a.ini", bytes);
    InChild([&] {
        Ini ini;
        EXPECT_FALSE(ini.Load(folder / "a.ini"));
        ini.Set(L"s", L"k",
                L"a text that is longer than the file that it would replace, to go beyond the limit, "
                L"which is one of a hundred bytes");
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {100, 100};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
        EXPECT_FALSE(ini.Save(folder / "a.ini"));
    });
    EXPECT_EQ(ReadFile(folder / "a.ini"), bytes);
    EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"a.ini"}));
}

TEST(ANewFile, IsTheUsersAlone)
{
    TempFolder folder;
    const mode_t mask = umask(0);
    EXPECT_TRUE(SaveKey(folder / "one/two/a.ini", L"v"));
    EXPECT_EQ(ModeOf(folder / "one/two/a.ini"), 0600U);
    EXPECT_EQ(ModeOf(folder / "one/two"), 0700U);
    EXPECT_EQ(ModeOf(folder / "one"), 0700U);
    TempUserData data;
    std_file_paths::SetUserDataDir(file_util_ex::ConvertFromUTF8W(data / "new"));
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
    EXPECT_EQ(ModeOf(data / "new"), 0700U);
    EXPECT_EQ(ModeOf(data / "new/settings.ini"), 0600U);
    EXPECT_EQ(ModeOf(data / "new/settings.ini.lock"), 0600U);
    umask(mask);
}

TEST(AFilesMode, IsKept)
{
    TempUserData data;
    const mode_t mask = umask(077);
    for (const mode_t mode : {0600U, 0644U, 0664U, 0640U, 0400U, 0666U}) {
        WriteFile(data / "settings.ini", kOld);
        chmod((data / "settings.ini").c_str(), mode);
        EXPECT_TRUE(SaveKey(data / "settings.ini", L"newer"));
        EXPECT_EQ(ModeOf(data / "settings.ini"), mode);
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"new"));
        EXPECT_EQ(ModeOf(data / "settings.ini"), mode);
        EXPECT_EQ(ReadFile(data / "settings.ini"), kNew);
        fs::remove(data / "settings.ini");
    }
    umask(mask);
}

TEST(AFilesOwner, IsKeptWhereTheProcessMay)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may write for others";
    TempFolder folder;
    WriteFile(folder / "a.ini", kOld);
    ASSERT_EQ(chown((folder / "a.ini").c_str(), 65534, 65534), 0);
    EXPECT_TRUE(SaveKey(folder / "a.ini", L"new"));
    EXPECT_EQ(StatusOf(folder / "a.ini").st_uid, 65534U);
    EXPECT_EQ(StatusOf(folder / "a.ini").st_gid, 65534U);
}

TEST(ALinkedFile, KeepsItsLink)
{
    TempUserData data;
    fs::create_directories(data / "real/deep");
    fs::create_symlink("real/middle.ini", data / "settings.ini");
    fs::create_symlink("deep/file.ini", data / "real/middle.ini");
    WriteFile(data / "real/deep/file.ini", kOld);
    chmod((data / "real/deep/file.ini").c_str(), 0640);
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"newer"));
    EXPECT_TRUE(SaveKey(data / "settings.ini", L"new"));
    EXPECT_EQ(fs::read_symlink(data / "settings.ini"), "real/middle.ini");
    EXPECT_EQ(fs::read_symlink(data / "real/middle.ini"), "deep/file.ini");
    EXPECT_EQ(ReadFile(data / "real/deep/file.ini"), kNew);
    EXPECT_EQ(ModeOf(data / "real/deep/file.ini"), 0640U);
    EXPECT_EQ(NamesIn(data / "real/deep"), (std::vector<std::string>{"file.ini"}));
    EXPECT_EQ(NamesIn(data / "real"), (std::vector<std::string>{"deep", "middle.ini"}));
}

TEST(AnotherHardLink, KeepsWhatTheFileHeld)
{
    TempFolder folder;
    WriteFile(folder / "a.ini", kOld);
    fs::create_hard_link(folder / "a.ini", folder / "b.ini");
    EXPECT_TRUE(SaveKey(folder / "a.ini", L"new"));
    EXPECT_EQ(ReadFile(folder / "a.ini"), kNew);
    EXPECT_EQ(ReadFile(folder / "b.ini"), kOld);
}

TEST(ALinkToNothing, IsWrittenThrough)
{
    TempFolder folder;
    fs::create_symlink("new/file.ini", folder / "relative.ini");
    fs::create_symlink(folder / "absolute/file.ini", folder / "absolute.ini");
    for (const std::string name : {"relative", "absolute"}) {
        EXPECT_TRUE(SaveKey(folder / (name + ".ini"), L"v"));
        EXPECT_TRUE(fs::is_symlink(folder / (name + ".ini")));
        EXPECT_EQ(ReadFile(folder / (name + ".ini")), "[s]\nk=v\n");
    }
    EXPECT_EQ(ReadFile(folder / "new/file.ini"), "[s]\nk=v\n");
    EXPECT_EQ(ReadFile(folder / "absolute/file.ini"), "[s]\nk=v\n");
}

TEST(LinksInACircle, MakeWritingFail)
{
    TempFolder folder;
    fs::create_symlink("b.ini", folder / "a.ini");
    fs::create_symlink("a.ini", folder / "b.ini");
    EXPECT_FALSE(SaveKey(folder / "a.ini", L"v"));
    EXPECT_FALSE(Ini().Save(folder / "a.ini"));
    EXPECT_EQ(fs::read_symlink(folder / "a.ini"), "b.ini");
    EXPECT_EQ(fs::read_symlink(folder / "b.ini"), "a.ini");
}

TEST(AWriteThatChangesNothing, LeavesTheFileUntouched)
{
    TempUserData data;
    WriteFile(data / "settings.ini", kOld);
    const struct stat before = StatusOf(data / "settings.ini");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"old"));
    EXPECT_TRUE(CLocalRegStore::WriteString("s", "k", "old"));
    EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"s", L"absent"));
    EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"absent", L"k"));
    EXPECT_TRUE(SaveKey(data / "settings.ini", L"old"));
    const struct stat after = StatusOf(data / "settings.ini");
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_ctim.tv_sec, before.st_ctim.tv_sec);
    EXPECT_EQ(after.st_ctim.tv_nsec, before.st_ctim.tv_nsec);
}

using TheDefaultStore = UserDataTest;

TEST_F(TheDefaultStore, MakesNothingUntilSomethingIsStored)
{
    std_file_paths::SetUserDataDir(file_util_ex::ConvertFromUTF8W(data / "new"));
    EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
    EXPECT_EQ(CLocalRegStore::GetString("s", "k", "default"), "default");
    EXPECT_TRUE(CLocalRegStore::GetProfileBool(L"s", L"k", true));
    EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"s", L"k"));
    EXPECT_FALSE(fs::exists(data / "new"));
}

// Temporary files have a name that no person would choose: a prefix and a UUID. A save removes only files with such a
// name, and only if they are at least a minute old.
TEST(LeftoversOfAKilledProcess, GoAMinuteLaterAndNothingElseDoes)
{
    const TempFolder folder;
    const std::string leftover = ".fittings-save-0c5a1a4e-3f0b-4d5c-9a55-6a1f0c9d7e10";
    const std::string recent = ".fittings-save-7a3f1b9c-64c2-4f86-8f1e-2b9d0e5c4a31";
    const std::vector<std::string> others = {".a",
                                             ".fittings-save-backup",
                                             ".fittings-save-mine",
                                             ".fittings-save-0c5a1a4e-3f0b-4d5c-9a55-6a1f0c9d7e10.old",
                                             "a.ini.A1b2C3",
                                             "a.ini.backup"};
    const timespec old[] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
    std::vector<std::string> expected = others;
    expected.insert(expected.end(), {"a.ini", recent});
    std::sort(expected.begin(), expected.end());
    for (const std::string& name : others)
        WriteFile(folder / name, "x");
    WriteFile(folder / leftover, "x");
    for (const std::string& name : NamesIn(folder.Path()))
        ASSERT_EQ(utimensat(AT_FDCWD, (folder / name).c_str(), old, 0), 0);
    WriteFile(folder / recent, "x");
    EXPECT_TRUE(SaveKey(folder / "a.ini", L"v"));
    EXPECT_EQ(NamesIn(folder.Path()), expected);
}

}  // namespace
