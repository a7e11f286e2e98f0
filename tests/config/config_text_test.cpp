#include <fittings/config/ui_config_mgr.h>

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fittings/platform/local_reg_store.h>
#include <tests/support/file_status.h>
#include <tests/support/temp_folder.h>

namespace {

namespace fs = std::filesystem;

struct Operation
{
    const char* name;
    void (*call)();
};

using EachOperation = UserDataTestWithParam<Operation>;

TEST_P(EachOperation, MakesTheSettingsFolder)
{
    ASSERT_FALSE(fs::exists(data / "ui_config"));
    GetParam().call();
    EXPECT_TRUE(fs::is_directory(data / "ui_config"));
}

TEST_P(EachOperation, MakesTheUserDataFolderToo)
{
    fs::remove(data.Path());
    GetParam().call();
    EXPECT_TRUE(fs::is_directory(data / "ui_config"));
}

INSTANTIATE_TEST_SUITE_P(
    , EachOperation,
    testing::Values(Operation{"WriteConfigString",
                              [] { ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"v"); }},
                    Operation{"GetConfigString", [] { ui_config_mgr::GetConfigString(L"a.ini", L"s", L"k"); }},
                    Operation{"DeleteConfig", [] { ui_config_mgr::DeleteConfig(L"a.ini", L"s", L"k"); }},
                    Operation{"GetConfigInt", [] { ui_config_mgr::GetConfigInt(L"a.ini", L"s", L"k"); }},
                    Operation{"WriteConfigInt", [] { ui_config_mgr::WriteConfigInt(L"a.ini", L"s", L"k", 1); }}),
    [](const auto& info) { return info.param.name; });

using WriteConfigString = UserDataTest;
using GetConfigString = UserDataTest;
using DeleteConfig = UserDataTest;

TEST_F(WriteConfigString, MakesAFileForTheUserAlone)
{
    ui_config_mgr::WriteConfigString(L"search.ini", L"Results", L"Order", L"by name");
    EXPECT_EQ(ModeOf(data / "ui_config/search.ini"), 0600u);
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"search.ini", L"Results", L"Order"), L"by name");
}

TEST_F(WriteConfigString, KeepsTheModeOfAFileThatIsThere)
{
    fs::create_directory(data / "ui_config");
    WriteFile(data / "ui_config/search.ini", "[Results]\nOrder=by size\n");
    fs::permissions(data / "ui_config/search.ini", fs::perms(0644));
    ui_config_mgr::WriteConfigString(L"search.ini", L"Results", L"Order", L"by name");
    EXPECT_EQ(ModeOf(data / "ui_config/search.ini"), 0644u);
}

TEST_F(WriteConfigString, WritesLinesThatAPersonCanRead)
{
    ui_config_mgr::WriteConfigString(L"search.ini", L"Results", L"Order", L"by name");
    EXPECT_EQ(ReadFile(data / "ui_config/search.ini"), "[Results]\nOrder=by name\n");
}

TEST_F(WriteConfigString, ReplacesOneValueAndKeepsTheOthers)
{
    ui_config_mgr::WriteConfigString(L"a.ini", L"one", L"k", L"1");
    ui_config_mgr::WriteConfigString(L"a.ini", L"one", L"other", L"2");
    ui_config_mgr::WriteConfigString(L"a.ini", L"two", L"k", L"3");
    ui_config_mgr::WriteConfigString(L"a.ini", L"one", L"k", L"4");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"one", L"k"), L"4");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"one", L"other"), L"2");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"two", L"k"), L"3");
}

// The default store keeps a lock file beside its file. ui_config_mgr makes no lock file beside its files.
TEST_F(WriteConfigString, TakesNoLock)
{
    ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"v");
    ui_config_mgr::WriteConfigInt(L"a.ini", L"s", L"n", 1);
    EXPECT_EQ(NamesIn(data.Path()), std::vector<std::string>{"ui_config"});
    EXPECT_EQ(NamesIn(data / "ui_config"), std::vector<std::string>{"a.ini"});
}

TEST_F(WriteConfigString, LeavesTheDefaultStoreAlone)
{
    ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"v");
    EXPECT_EQ(CLocalRegStore::GetString(L"s", L"k", L"none"), L"none");
    EXPECT_FALSE(fs::exists(data / "settings.ini"));
}

TEST_F(GetConfigString, OfAMissingFileIsEmptyAndMakesNone)
{
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"absent.ini", L"s", L"k"), L"");
    EXPECT_TRUE(fs::is_empty(data / "ui_config"));
}

TEST_F(GetConfigString, OfAMissingSectionOrKeyIsEmpty)
{
    ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"v");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"s", L"absent"), L"");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"absent", L"k"), L"");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"S", L"k"), L"");
}

TEST_F(GetConfigString, OfAnEmptyValueIsEmpty)
{
    ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"v");
    ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"s", L"k"), L"");
}

TEST_F(GetConfigString, SeesWhatOthersWroteSinceTheLastCall)
{
    ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"ours");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"s", L"k"), L"ours");
    WriteFile(data / "ui_config/a.ini", "[s]\nk=hers\n");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"s", L"k"), L"hers");
    fs::remove(data / "ui_config/a.ini");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"s", L"k"), L"");
}

TEST_F(GetConfigString, DoesNotTouchTheFile)
{
    fs::create_directory(data / "ui_config");
    WriteFile(data / "ui_config/a.ini", "; by hand\n\n[s]\r\nk = v\nno equals sign");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"s", L"k"), L"v");
    EXPECT_EQ(ReadFile(data / "ui_config/a.ini"), "; by hand\n\n[s]\r\nk = v\nno equals sign");
}

TEST_F(DeleteConfig, KeepsTheKeyInTheFileAndRemovesItFromTheDefaultStore)
{
    ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"in the file");
    CLocalRegStore::WriteString(L"s", L"k", L"in the store");
    CLocalRegStore::WriteString(L"s", L"other", L"kept");
    CLocalRegStore::WriteString(L"t", L"k", L"kept too");

    ui_config_mgr::DeleteConfig(L"a.ini", L"s", L"k");

    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"s", L"k"), L"in the file");
    EXPECT_EQ(CLocalRegStore::GetString(L"s", L"k", L"none"), L"none");
    EXPECT_EQ(CLocalRegStore::GetString(L"s", L"other", L"none"), L"kept");
    EXPECT_EQ(CLocalRegStore::GetString(L"t", L"k", L"none"), L"kept too");
}

TEST_F(DeleteConfig, SavesTheFileAsItWas)
{
    fs::create_directory(data / "ui_config");
    WriteFile(data / "ui_config/a.ini", "; by hand\n\n[s]\nk=v\nlast=1");
    ui_config_mgr::DeleteConfig(L"a.ini", L"s", L"k");
    EXPECT_EQ(ReadFile(data / "ui_config/a.ini"), "; by hand\n\n[s]\nk=v\nlast=1");
}

TEST_F(DeleteConfig, MakesAnEmptyFileWhereThereIsNone)
{
    ui_config_mgr::DeleteConfig(L"a.ini", L"s", L"k");
    EXPECT_TRUE(fs::is_regular_file(data / "ui_config/a.ini"));
    EXPECT_EQ(ReadFile(data / "ui_config/a.ini"), "");
}

TEST(FileName, IsUsedExactlyAsGiven)
{
    const TempUserData data;
    ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"with");
    ui_config_mgr::WriteConfigString(L"a", L"s", L"k", L"without");
    ui_config_mgr::WriteConfigString(L"A.ini", L"s", L"k", L"upper case");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"s", L"k"), L"with");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a", L"s", L"k"), L"without");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"A.ini", L"s", L"k"), L"upper case");
    EXPECT_TRUE(fs::is_regular_file(data / "ui_config/a.ini"));
    EXPECT_TRUE(fs::is_regular_file(data / "ui_config/a"));
    EXPECT_TRUE(fs::is_regular_file(data / "ui_config/A.ini"));
}

TEST(NullTexts, CountAsEmpty)
{
    const TempUserData data;
    ui_config_mgr::WriteConfigString(L"a.ini", nullptr, nullptr, L"v");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", L"", L""), L"v");
    ui_config_mgr::WriteConfigString(L"a.ini", L"", L"", L"w");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", nullptr, nullptr), L"w");
    ui_config_mgr::WriteConfigString(L"a.ini", nullptr, nullptr, nullptr);
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"a.ini", nullptr, nullptr), L"");
    CLocalRegStore::WriteString(L"", L"", L"in the store");
    ui_config_mgr::DeleteConfig(L"a.ini", nullptr, nullptr);
    EXPECT_EQ(CLocalRegStore::GetString(L"", L"", L"none"), L"none");
    ui_config_mgr::WriteConfigInt(L"a.ini", nullptr, nullptr, 7);
    EXPECT_EQ(ui_config_mgr::GetConfigInt(L"a.ini", nullptr, nullptr), 7);
}

}  // namespace
