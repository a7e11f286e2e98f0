// ui_config_mgr against a platform that notes every call it gets, and can fail any one of them.

#include <fittings/config/ui_config_mgr.h>

#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>

namespace {

struct Platform
{
    std::vector<std::wstring> calls;
    std::wstring thrower;  ///< The operation that throws.
    bool folderExists = true;
    bool loads = true;
    bool saves = true;
    std::wstring stored = L"stored";
    int files = 0;  ///< File objects alive.
};

Platform g_platform;

void Note(const std::wstring& operation, const std::vector<std::wstring>& arguments = {})
{
    std::wstring call = operation;
    for (const std::wstring& argument : arguments)
        call += L" [" + argument + L"]";
    g_platform.calls.push_back(call);
    if (operation == g_platform.thrower)
        throw std::runtime_error("platform");
}

}  // namespace

class CIniFile
{
public:
    CIniFile() { ++g_platform.files; }
    ~CIniFile() { --g_platform.files; }
};

CIniFile* CLocalRegStore::CreateInitFile(bool reserved)
{
    Note(reserved ? L"create true" : L"create false");
    return new CIniFile;
}

bool CLocalRegStore::Load(CIniFile&, const wchar_t* path)
{
    Note(L"load", {path});
    return g_platform.loads;
}

std::wstring CLocalRegStore::GetString(const CIniFile&, const wchar_t* section, const wchar_t* key,
                                       const wchar_t* defaultValue)
{
    Note(L"get", {section, key, defaultValue});
    return g_platform.stored;
}

void CLocalRegStore::WriteString(CIniFile&, const wchar_t* section, const wchar_t* key, const wchar_t* value)
{
    Note(L"write", {section, key, value});
}

bool CLocalRegStore::Save(const CIniFile&, const wchar_t* path)
{
    Note(L"save", {path});
    return g_platform.saves;
}

void CLocalRegStore::DestroyIniFile(CIniFile* ini)
{
    delete ini;
    g_platform.calls.push_back(L"destroy");
}

bool CLocalRegStore::DeleteProfile(const wchar_t* section, const wchar_t* key)
{
    Note(L"delete from default store", {section, key});
    return true;
}

// A separator that only this function knows.
std::wstring file_util_ex::MakePath(const CStdStr<wchar_t>& dir, const CStdStr<wchar_t>& name)
{
    return dir + L">" + name;
}

bool file_util_ex::DoesDirExist(const CStdStr<wchar_t>& path)
{
    Note(L"exists", {path});
    return g_platform.folderExists;
}

bool file_util_ex::Mkdir(const CStdStr<wchar_t>& path)
{
    Note(L"mkdir", {path});
    return false;
}

std::wstring std_file_paths::GetUserDataDir()
{
    return L"/data";
}

namespace {

using Text = const wchar_t*;
static_assert(std::is_same_v<decltype(ui_config_mgr::WriteConfigString), void(Text, Text, Text, Text)>);
static_assert(std::is_same_v<decltype(ui_config_mgr::GetConfigString), std::wstring(Text, Text, Text)>);
static_assert(std::is_same_v<decltype(ui_config_mgr::DeleteConfig), void(Text, Text, Text)>);
static_assert(std::is_same_v<decltype(ui_config_mgr::GetConfigInt), int(Text, Text, Text)>);
static_assert(std::is_same_v<decltype(ui_config_mgr::WriteConfigInt), void(Text, Text, Text, int)>);

class ConfigCalls : public testing::Test
{
protected:
    ConfigCalls() { g_platform = {}; }
    ~ConfigCalls() override { EXPECT_EQ(g_platform.files, 0) << "file objects left behind"; }
};

using Calls = std::vector<std::wstring>;

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

// A store that answers from a file it could not read is not asked.
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

/// An operation of the platform that throws, and a call that comes to it.
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

void Write()
{
    ui_config_mgr::WriteConfigString(L"f.ini", L"section", L"key", L"value");
}

void Get()
{
    ui_config_mgr::GetConfigString(L"f.ini", L"section", L"key");
}

void Delete()
{
    ui_config_mgr::DeleteConfig(L"f.ini", L"section", L"key");
}

INSTANTIATE_TEST_SUITE_P(, ConfigCallThatThrows,
                         testing::Values(Failure{L"load", Write, "LoadInWrite"}, Failure{L"write", Write, "Write"},
                                         Failure{L"save", Write, "SaveInWrite"}, Failure{L"load", Get, "LoadInGet"},
                                         Failure{L"get", Get, "Get"}, Failure{L"load", Delete, "LoadInDelete"},
                                         Failure{L"delete from default store", Delete, "Delete"},
                                         Failure{L"save", Delete, "SaveInDelete"}),
                         [](const auto& info) { return info.param.name; });

}  // namespace
