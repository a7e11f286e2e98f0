#include <fittings/config/ui_config_mgr.h>

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include <fittings/platform/std_file_paths.h>
#include <tests/support/process/as_nobody.h>
#include <tests/support/temp_folder.h>

namespace {

namespace fs = std::filesystem;

// Calls each function of ui_config_mgr once.
void UseAll(const std::wstring& file)
{
    ui_config_mgr::WriteConfigString(file.c_str(), L"s", L"k", L"v");
    ui_config_mgr::GetConfigString(file.c_str(), L"s", L"k");
    ui_config_mgr::WriteConfigInt(file.c_str(), L"s", L"n", 5);
    ui_config_mgr::GetConfigInt(file.c_str(), L"s", L"n");
    ui_config_mgr::DeleteConfig(file.c_str(), L"s", L"k");
}

std::wstring ValueIn(const std::wstring& file)
{
    return ui_config_mgr::GetConfigString(file.c_str(), L"s", L"k");
}

// A file name that no file can have.
struct Name
{
    const char* name;
    std::wstring file;
};

using ImpossibleFileName = UserDataTestWithParam<Name>;

TEST_P(ImpossibleFileName, FailsQuietly)
{
    UseAll(GetParam().file);
    EXPECT_EQ(ValueIn(GetParam().file), L"");
    EXPECT_EQ(ui_config_mgr::GetConfigInt(GetParam().file.c_str(), L"s", L"n"), 0);
    EXPECT_TRUE(fs::is_empty(data / "ui_config"));
}

INSTANTIATE_TEST_SUITE_P(, ImpossibleFileName,
                         testing::Values(Name{"Empty", L""}, Name{"TheFolderItself", L"."}, Name{"TheOneAbove", L".."},
                                         Name{"LongerThanAFileNameMayBe", std::wstring(256, L'x')},
                                         Name{"LongerThanAPathMayBe", std::wstring(5000, L'x')},
                                         Name{"Megabyte", std::wstring(1 << 20, L'\u20ac')}),
                         [](const auto& info) { return info.param.name; });

// An unusual file name, and the path of its file below the user data folder.
struct Odd
{
    const char* name;
    const wchar_t* file;
    const char* path;
};

using OddFileName = UserDataTestWithParam<Odd>;

TEST_P(OddFileName, NamesTheFileExactly)
{
    UseAll(GetParam().file);
    EXPECT_EQ(ValueIn(GetParam().file), L"v");
    EXPECT_TRUE(fs::is_regular_file(data / GetParam().path));
}

INSTANTIATE_TEST_SUITE_P(
    , OddFileName,
    testing::Values(Odd{"OutsideTheFolder", L"../x", "x"},
                    Odd{"NotAscii", L"\u00e9\u20ac\u6f22\U0001f3a8.ini", "ui_config/\u00e9\u20ac\u6f22\U0001f3a8.ini"},
                    Odd{"Blanks", L" a b ", "ui_config/ a b "}, Odd{"LineBreak", L"a\nb", "ui_config/a\nb"},
                    Odd{"Percent", L"%s%n%d", "ui_config/%s%n%d"}, Odd{"Backslash", L"a\\b", "ui_config/a\\b"},
                    Odd{"DotFirst", L".hidden", "ui_config/.hidden"}),
    [](const auto& info) { return info.param.name; });

TEST(FileNameThatIsNotUnicode, DoesNoHarm)
{
    const TempUserData data;
    UseAll(std::wstring(1, static_cast<wchar_t>(0xD800)));
    UseAll(std::wstring(1, static_cast<wchar_t>(0x110000)));
    UseAll(std::wstring(1, static_cast<wchar_t>(0x7fffffff)));
    EXPECT_TRUE(fs::is_directory(data / "ui_config"));
}

TEST(FileNameWithAFolder, NamesAFileInIt)
{
    const TempUserData data;
    fs::create_directories(data / "ui_config/a");
    UseAll(L"a/b");
    EXPECT_EQ(ValueIn(L"a/b"), L"v");
    EXPECT_TRUE(fs::is_regular_file(data / "ui_config/a/b"));
}

TEST(FileNameOfAFolder, FailsQuietly)
{
    const TempUserData data;
    UseAll(L"a/");
    EXPECT_EQ(ValueIn(L"a/"), L"");
    EXPECT_FALSE(fs::is_regular_file(data / "ui_config/a"));
}

struct Triple
{
    const char* name;
    std::wstring section, key, value;
};

using AnyText = UserDataTestWithParam<Triple>;

TEST_P(AnyText, ComesBackExactly)
{
    const Triple& triple = GetParam();
    ui_config_mgr::WriteConfigString(L"t.ini", L"first", L"k", L"before");
    ui_config_mgr::WriteConfigString(L"t.ini", triple.section.c_str(), triple.key.c_str(), triple.value.c_str());
    ui_config_mgr::WriteConfigString(L"t.ini", L"last", L"k", L"behind");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"t.ini", triple.section.c_str(), triple.key.c_str()), triple.value);
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"t.ini", L"first", L"k"), L"before");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"t.ini", L"last", L"k"), L"behind");
}

INSTANTIATE_TEST_SUITE_P(
    , AnyText,
    testing::Values(Triple{"EmptyNames", L"", L"", L"v"}, Triple{"Brackets", L"a]b[", L"[k]", L"[v]"},
                    Triple{"EqualsSigns", L"a=b", L"x=y", L"=v="}, Triple{"Comments", L"#a;", L";k#", L"# v ; w"},
                    Triple{"LineBreaks", L"a\nb", L"k\r\n[s]", L"1\n[first]\nk=2\r\n"},
                    Triple{"EdgeBlanks", L" a ", L"\tk\t", L"  v  "}, Triple{"Quotes", L"\"a\"", L"'k'", L"\"v\""},
                    Triple{"Backslashes", L"C:\\new", L"\\n", L"C:\\new\\"},
                    Triple{"OtherScripts", L"\u6f22\u5b57", L"\u0416", L"\U0001f3a8\u0301"},
                    Triple{"NoUnicode", std::wstring(1, wchar_t(0xD800)), std::wstring(1, wchar_t(0xDFFF)),
                           std::wstring(1, wchar_t(0x110000))},
                    Triple{"ControlCharacters", L"\x01\x7f", L"\x1b", L"\x01\x02\b\x1f"},
                    Triple{"Megabyte", L"s", L"k", std::wstring(1 << 20, L'v')}),
    [](const auto& info) { return info.param.name; });

TEST(ConfigFileThatIsAFolder, StaysAndReadsAsEmpty)
{
    const TempUserData data;
    fs::create_directories(data / "ui_config/a.ini/inside");
    UseAll(L"a.ini");
    EXPECT_EQ(ValueIn(L"a.ini"), L"");
    EXPECT_TRUE(fs::is_directory(data / "ui_config/a.ini/inside"));
}

TEST(SettingsFolderThatIsAFile, StaysAndReadsAsEmpty)
{
    const TempUserData data;
    WriteFile(data / "ui_config", "precious");
    UseAll(L"a.ini");
    EXPECT_EQ(ValueIn(L"a.ini"), L"");
    EXPECT_EQ(ReadFile(data / "ui_config"), "precious");
}

TEST(ReadOnlySettingsFolder, KeepsItsFilesAndIgnoresWrites)
{
    const TempUserData data;
    ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"old");
    fs::permissions(data / "ui_config/a.ini", fs::perms(0444));
    fs::permissions(data / "ui_config", fs::perms(0555));
    fs::permissions(data.Path(), fs::perms(0555));
    {
        const AsNobody nobody;
        ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"new");
        ui_config_mgr::DeleteConfig(L"b.ini", L"s", L"k");
        EXPECT_EQ(ValueIn(L"a.ini"), L"old");
        EXPECT_EQ(ValueIn(L"b.ini"), L"");
    }
    fs::permissions(data.Path(), fs::perms(0755));
    fs::permissions(data / "ui_config", fs::perms(0755));
    EXPECT_EQ(ReadFile(data / "ui_config/a.ini"), "[s]\nk=old\n");
    EXPECT_FALSE(fs::exists(data / "ui_config/b.ini"));
}

TEST(SettingsFileWithoutPermission, ReadsAsEmptyAndIsNotReplaced)
{
    const TempUserData data;
    ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"secret");
    fs::permissions(data.Path(), fs::perms(0777));
    fs::permissions(data / "ui_config", fs::perms(0777));
    fs::permissions(data / "ui_config/a.ini", fs::perms(0000));
    {
        const AsNobody nobody;
        EXPECT_EQ(ValueIn(L"a.ini"), L"");
        ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"new");
    }
    fs::permissions(data / "ui_config/a.ini", fs::perms(0600));
    EXPECT_EQ(ReadFile(data / "ui_config/a.ini"), "[s]\nk=secret\n");
}

// Not even root can create a folder in /proc, so no file can be stored.
TEST(UserDataFolderThatCannotBeMade, ReadsAsEmpty)
{
    const TempUserData data;
    std_file_paths::SetUserDataDir(L"/proc/fittings");
    UseAll(L"a.ini");
    EXPECT_EQ(ValueIn(L"a.ini"), L"");
    EXPECT_EQ(ui_config_mgr::GetConfigInt(L"a.ini", L"s", L"n"), 0);
}

TEST(SettingsFileOfGarbage, GivesWhatCanBeReadAndKeepsIt)
{
    const TempUserData data;
    fs::create_directory(data / "ui_config");
    WriteFile(data / "ui_config/a.ini", "\xff\xfe\x80 junk\n[s]\nk=v\n=\n[[\nbroken");
    EXPECT_EQ(ValueIn(L"a.ini"), L"v");
    ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"n", L"1");
    EXPECT_EQ(ValueIn(L"a.ini"), L"v");
    EXPECT_EQ(ui_config_mgr::GetConfigInt(L"a.ini", L"s", L"n"), 1);
}

}  // namespace
