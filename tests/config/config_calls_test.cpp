// ui_config_mgr on a platform that records every call and can let a call fail.

#include <fittings/config/ui_config_mgr.h>

#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include <tests/support/noting_platform.h>

namespace {

// The definitions below must compile: the type of each pointer selects one overload.
using Text = const wchar_t*;
[[maybe_unused]] constexpr void (*kWriteText)(Text, Text, Text, Text) = ui_config_mgr::WriteConfigString;
[[maybe_unused]] constexpr std::wstring (*kGetText)(Text, Text, Text) = ui_config_mgr::GetConfigString;
[[maybe_unused]] constexpr void (*kDeleteKey)(Text, Text, Text) = ui_config_mgr::DeleteConfig;
[[maybe_unused]] constexpr int (*kGetInteger)(Text, Text, Text) = ui_config_mgr::GetConfigInt;
[[maybe_unused]] constexpr void (*kWriteInteger)(Text, Text, Text, int) = ui_config_mgr::WriteConfigInt;

class ConfigCalls : public testing::Test
{
protected:
    ConfigCalls() { g_platform = {}; }
    ~ConfigCalls() override { EXPECT_EQ(g_platform.files, 0) << "file objects left behind"; }
};

TEST_F(ConfigCalls, OfWriteConfigString)
{
    ui_config_mgr::WriteConfigString(L"f.ini", L"section", L"key", L"value");
    EXPECT_EQ(g_platform.calls, (Calls{L"exists [/data>ui_config]", L"create false", L"load [/data>ui_config>f.ini]",
                                       L"write [section] [key] [value]", L"save [/data>ui_config>f.ini]", L"destroy"}));
}

TEST_F(ConfigCalls, OfWriteConfigStringToAFileThatIsMissing)
{
    g_platform.folderExists = false;
    g_platform.loads = false;
    g_platform.saves = false;
    ui_config_mgr::WriteConfigString(L"f.ini", L"section", L"key", L"value");
    EXPECT_EQ(g_platform.calls, (Calls{L"exists [/data>ui_config]", L"mkdir [/data>ui_config]", L"create false",
                                       L"load [/data>ui_config>f.ini]", L"write [section] [key] [value]",
                                       L"save [/data>ui_config>f.ini]", L"destroy"}));
}

TEST_F(ConfigCalls, OfGetConfigString)
{
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"f.ini", L"section", L"key"), L"stored");
    EXPECT_EQ(g_platform.calls, (Calls{L"exists [/data>ui_config]", L"create false", L"load [/data>ui_config>f.ini]",
                                       L"get [section] [key] []", L"destroy"}));
}

// If the file cannot be loaded, no value is read from it.
TEST_F(ConfigCalls, OfGetConfigStringFromAFileThatIsMissing)
{
    g_platform.folderExists = false;
    g_platform.loads = false;
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"f.ini", L"section", L"key"), L"");
    EXPECT_EQ(g_platform.calls, (Calls{L"exists [/data>ui_config]", L"mkdir [/data>ui_config]", L"create false",
                                       L"load [/data>ui_config>f.ini]", L"destroy"}));
}

TEST_F(ConfigCalls, OfDeleteConfig)
{
    ui_config_mgr::DeleteConfig(L"f.ini", L"section", L"key");
    EXPECT_EQ(g_platform.calls,
              (Calls{L"exists [/data>ui_config]", L"create false", L"load [/data>ui_config>f.ini]",
                     L"delete from default store [section] [key]", L"save [/data>ui_config>f.ini]", L"destroy"}));
}

TEST_F(ConfigCalls, OfDeleteConfigInAFileThatIsMissing)
{
    g_platform.folderExists = false;
    g_platform.loads = false;
    ui_config_mgr::DeleteConfig(L"f.ini", L"section", L"key");
    EXPECT_EQ(g_platform.calls, (Calls{L"exists [/data>ui_config]", L"mkdir [/data>ui_config]", L"create false",
                                       L"load [/data>ui_config>f.ini]", L"delete from default store [section] [key]",
                                       L"save [/data>ui_config>f.ini]", L"destroy"}));
}

TEST_F(ConfigCalls, OfGetConfigInt)
{
    g_platform.folderExists = false;
    g_platform.stored = L"42";
    EXPECT_EQ(ui_config_mgr::GetConfigInt(L"f.ini", L"section", L"key"), 42);
    EXPECT_EQ(g_platform.calls, (Calls{L"exists [/data>ui_config]", L"mkdir [/data>ui_config]", L"create false",
                                       L"load [/data>ui_config>f.ini]", L"get [section] [key] []", L"destroy"}));
}

TEST_F(ConfigCalls, OfWriteConfigInt)
{
    g_platform.folderExists = false;
    ui_config_mgr::WriteConfigInt(L"f.ini", L"section", L"key", -5);
    EXPECT_EQ(g_platform.calls, (Calls{L"exists [/data>ui_config]", L"mkdir [/data>ui_config]", L"create false",
                                       L"load [/data>ui_config>f.ini]", L"write [section] [key] [-5]",
                                       L"save [/data>ui_config>f.ini]", L"destroy"}));
}

TEST_F(ConfigCalls, GetEmptyTextsForNullPointers)
{
    ui_config_mgr::WriteConfigString(nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(g_platform.calls, (Calls{L"exists [/data>ui_config]", L"create false", L"load [/data>ui_config>]",
                                       L"write [] [] []", L"save [/data>ui_config>]", L"destroy"}));
    g_platform.calls.clear();
    ui_config_mgr::GetConfigString(nullptr, nullptr, nullptr);
    EXPECT_EQ(g_platform.calls, (Calls{L"exists [/data>ui_config]", L"create false", L"load [/data>ui_config>]",
                                       L"get [] [] []", L"destroy"}));
    g_platform.calls.clear();
    ui_config_mgr::DeleteConfig(nullptr, nullptr, nullptr);
    EXPECT_EQ(g_platform.calls, (Calls{L"exists [/data>ui_config]", L"create false", L"load [/data>ui_config>]",
                                       L"delete from default store [] []", L"save [/data>ui_config>]", L"destroy"}));
}

TEST_F(ConfigCalls, LeaveNoFileObjectBehindABadNumber)
{
    g_platform.stored = L"abc";
    EXPECT_THROW(ui_config_mgr::GetConfigInt(L"f.ini", L"section", L"key"), std::invalid_argument);
    EXPECT_EQ(g_platform.calls.back(), L"destroy");
}

// The platform operation that throws, and a call that uses this operation.
struct Failure
{
    const wchar_t* operation;
    void (*call)();
    const char* name;
};

class ConfigCallThatThrows : public ConfigCalls, public testing::WithParamInterface<Failure>
{
};

TEST_P(ConfigCallThatThrows, DestroysTheFileObjectOnce)
{
    g_platform.thrower = GetParam().operation;
    EXPECT_THROW(GetParam().call(), std::runtime_error);
    ASSERT_GE(g_platform.calls.size(), 2u);
    EXPECT_EQ(g_platform.calls[g_platform.calls.size() - 2].find(GetParam().operation), 0u);
    EXPECT_EQ(g_platform.calls.back(), L"destroy");
}

const auto kWrite = [] { ui_config_mgr::WriteConfigString(L"f.ini", L"section", L"key", L"value"); };
const auto kGet = [] { ui_config_mgr::GetConfigString(L"f.ini", L"section", L"key"); };
const auto kDelete = [] { ui_config_mgr::DeleteConfig(L"f.ini", L"section", L"key"); };

INSTANTIATE_TEST_SUITE_P(, ConfigCallThatThrows,
                         testing::Values(Failure{L"load", kWrite, "LoadInWrite"}, Failure{L"write", kWrite, "Write"},
                                         Failure{L"save", kWrite, "SaveInWrite"}, Failure{L"load", kGet, "LoadInGet"},
                                         Failure{L"get", kGet, "Get"}, Failure{L"load", kDelete, "LoadInDelete"},
                                         Failure{L"delete from default store", kDelete, "Delete"},
                                         Failure{L"save", kDelete, "SaveInDelete"}),
                         [](const auto& info) { return info.param.name; });

}  // namespace
