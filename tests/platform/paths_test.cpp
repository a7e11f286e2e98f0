#include <fittings/platform/std_file_paths.h>

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tests/support/process/child_process.h>
#include <tests/support/temp_folder.h>

namespace {

using Environment = std::map<std::string, std::optional<std::string>>;

struct Paths
{
    std::string userData;
    std::string samples;
};

// Returns the folders that a new process prints. A process reads the environment only once, so each call starts a new
// process.
Paths PathsIn(const Environment& environment, const std::vector<std::string>& arguments = {"--app", "Ledger"},
              const std::string& program = PATHS_PROBE)
{
    std::vector<std::string> command{program};
    command.insert(command.end(), arguments.begin(), arguments.end());
    const std::string output = RunChild(command, environment);
    const std::size_t end = output.find('\n');
    if (end == std::string::npos || output.back() != '\n') {
        ADD_FAILURE() << "no two lines: " << output;
        return {};
    }
    return {output.substr(0, end), output.substr(end + 1, output.size() - end - 2)};
}

std::string UserDataOf(const std::vector<std::string>& arguments)
{
    return PathsIn({{"XDG_DATA_HOME", "/d"}}, arguments).userData;
}

struct DataHome
{
    const char* name;
    std::optional<std::string> value;
    const char* expected;
};

using UserDataDir = testing::TestWithParam<DataHome>;

TEST_P(UserDataDir, IsBelowTheDataHome)
{
    EXPECT_EQ(PathsIn({{"HOME", "/home/ann"}, {"XDG_DATA_HOME", GetParam().value}}).userData, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(, UserDataDir,
                         testing::Values(DataHome{"Given", "/srv/data", "/srv/data/Ledger"},
                                         DataHome{"WithSeparator", "/srv/data/", "/srv/data/Ledger"},
                                         DataHome{"Root", "/", "/Ledger"},
                                         DataHome{"NotAscii", "/srv/d\xC3\xA4ten", "/srv/d\xC3\xA4ten/Ledger"},
                                         DataHome{"Unset", std::nullopt, "/home/ann/.local/share/Ledger"},
                                         DataHome{"Empty", "", "/home/ann/.local/share/Ledger"},
                                         DataHome{"Relative", "data", "/home/ann/.local/share/Ledger"},
                                         DataHome{"DotRelative", "./data", "/home/ann/.local/share/Ledger"}),
                         [](const auto& info) { return info.param.name; });

struct AppName
{
    const char* name;
    std::string given;
    std::string expected;
};

using UserDataDirName = testing::TestWithParam<AppName>;

TEST_P(UserDataDirName, IsSafeAsAFileName)
{
    EXPECT_EQ(UserDataOf({"--app", GetParam().given}), "/d/" + GetParam().expected);
}

std::string Repeated(const std::string& text, int times)
{
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

INSTANTIATE_TEST_SUITE_P(
    , UserDataDirName,
    testing::Values(AppName{"Plain", "Ledger 2", "Ledger 2"}, AppName{"Slash", "a/b", "a_b"},
                    AppName{"Upwards", "../../etc/passwd", ".._.._etc_passwd"}, AppName{"Dot", ".", "_"},
                    AppName{"DotDot", "..", "__"}, AppName{"ThreeDots", "...", "..."},
                    AppName{"LineBreak", "a\nb\tc", "a_b_c"}, AppName{"Delete", "a\x7Fz", "a_z"},
                    AppName{"C1Control", "a\xC2\x85z", "a_z"}, AppName{"NoBreakSpace", "a\xC2\xA0z", "a\xC2\xA0z"},
                    AppName{"Backslash", "a\\b", "a\\b"},
                    AppName{"Unicode", "\xE5\xB8\xB3\xE7\xB0\xBF \xF0\x9F\x93\x92",
                            "\xE5\xB8\xB3\xE7\xB0\xBF \xF0\x9F\x93\x92"},
                    AppName{"Longest", std::string(255, 'x'), std::string(255, 'x')},
                    AppName{"TooLong", std::string(5000, 'x'), std::string(255, 'x')},
                    // 85 characters of three bytes are 255 bytes; no character is cut in two.
                    AppName{"TooLongOfThreeBytes", Repeated("\xE5\xB8\xB3", 200), Repeated("\xE5\xB8\xB3", 85)},
                    AppName{"TooLongOfTwoBytes", Repeated("\xC3\xA4", 200), Repeated("\xC3\xA4", 127)}),
    [](const auto& info) { return info.param.name; });

TEST(UserDataDirWithoutName, IsTheProgramsName)
{
    EXPECT_EQ(UserDataOf({"--app", ""}), "/d/paths_probe");
    EXPECT_EQ(UserDataOf({"--app"}), "/d/paths_probe");
}

TEST(UserDataDirWithoutApp, IsTheProgramsName)
{
    EXPECT_EQ(UserDataOf({}), "/d/paths_probe");
}

TEST(UserDataDirOfANamelessProgram, IsThatOfAnApplication)
{
    const std::vector<std::string> nameless{"-c", "exec -a '' \"$0\"", PATHS_PROBE};
    EXPECT_EQ(PathsIn({{"XDG_DATA_HOME", "/d"}}, nameless, "/bin/bash").userData, "/d/application");
}

TEST(UserDataDirOfALink, IsTheLinksName)
{
    const TempFolder folder;
    std::filesystem::create_symlink(PATHS_PROBE, folder / "my\ttool");
    EXPECT_EQ(PathsIn({{"XDG_DATA_HOME", "/d"}}, {}, folder / "my\ttool").userData, "/d/my_tool");
}

TEST(UserDataDirIsNotMade, ByAskingForIt)
{
    const TempFolder folder;
    PathsIn({{"XDG_DATA_HOME", folder.Path()}});
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(AppFolderPath, IsBelowTheDocuments)
{
    const TempFolder home;
    std::filesystem::create_directory(home / ".config");
    WriteFile(home / ".config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/Unterlagen \xC3\xA4\"\n");
    EXPECT_EQ(PathsIn({{"HOME", home.Path()}}).samples, home / "Unterlagen \xC3\xA4/Ledger/Samples");
}

TEST(AppFolderPath, IsBelowTheHomeWithoutDocuments)
{
    const TempFolder home;
    EXPECT_EQ(PathsIn({{"HOME", home.Path()}}).samples, home / "Ledger/Samples");
}

TEST(AppFolderPath, HasTheApplicationsSafeName)
{
    EXPECT_EQ(PathsIn({{"HOME", "/home/ann"}}, {"--app", "a/b"}).samples, "/home/ann/a_b/Samples");
    EXPECT_EQ(PathsIn({{"HOME", "/home/ann"}}, {}).samples, "/home/ann/paths_probe/Samples");
}

TEST(AppFolderPath, IsTheApplicationsFolderWithoutName)
{
    const std::wstring folder = std_file_paths::GetAppFolderPath(nullptr);
    EXPECT_EQ(std_file_paths::GetAppFolderPath(L""), folder);
    EXPECT_EQ(std_file_paths::GetAppFolderPath(L"x"), folder + L"/x");
}

TEST(AppFolderPath, IsNotTheUserDataDir)
{
    const std::wstring folder = std_file_paths::GetAppFolderPath(L"Samples");
    const TempUserData elsewhere;
    EXPECT_EQ(std_file_paths::GetAppFolderPath(L"Samples"), folder);
}

class ChosenUserDataDir : public testing::Test
{
protected:
    ~ChosenUserDataDir() override { std_file_paths::SetUserDataDir(L""); }

    static std::wstring Chosen(const CStdStr<wchar_t>& path)
    {
        std_file_paths::SetUserDataDir(path);
        return std_file_paths::GetUserDataDir();
    }
};

TEST_F(ChosenUserDataDir, TakesThePlaceOfTheDefault)
{
    EXPECT_EQ(Chosen(L"/srv/\x5E33\x7C3F"), L"/srv/\x5E33\x7C3F");
    EXPECT_EQ(Chosen(L"/srv/other"), L"/srv/other");
}

TEST_F(ChosenUserDataDir, HasNoSeparatorAtItsEnd)
{
    EXPECT_EQ(Chosen(L"/srv/data/"), L"/srv/data");
    EXPECT_EQ(Chosen(L"/"), L"/");
}

TEST_F(ChosenUserDataDir, GoesWithAnEmptyPath)
{
    const std::wstring usual = std_file_paths::GetUserDataDir();
    EXPECT_NE(usual, L"");
    EXPECT_EQ(Chosen(L"/srv/data"), L"/srv/data");
    EXPECT_EQ(Chosen(L""), usual);
    EXPECT_EQ(Chosen(L"/srv/data"), L"/srv/data");
    EXPECT_EQ(Chosen(nullptr), usual);
}

}  // namespace
