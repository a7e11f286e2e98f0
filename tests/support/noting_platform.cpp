#include <tests/support/noting_platform.h>

#include <stdexcept>

#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>

NotingPlatform g_platform;

void RecordCall(const std::wstring& operation, const std::vector<std::wstring>& arguments)
{
    std::wstring call = operation;
    for (const std::wstring& argument : arguments)
        call += L" [" + argument + L"]";
    g_platform.calls.push_back(call);
    if (operation == g_platform.thrower)
        throw std::runtime_error("platform");
}

namespace {

std::wstring Widened(const std::string& ascii)
{
    return {ascii.begin(), ascii.end()};
}

std::string Narrowed(const std::wstring& ascii)
{
    return {ascii.begin(), ascii.end()};
}

bool SaveInDefaultStore()
{
    g_platform.savesWithoutBatch += g_platform.batches == 0;
    return g_platform.saves;
}

}  // namespace

class CIniFile
{
public:
    CIniFile() { ++g_platform.files; }
    ~CIniFile() { --g_platform.files; }
};

struct CLocalRegStore::Batch::Collected
{
};

CLocalRegStore::Batch::Batch()
{
    ++g_platform.batches;
}

CLocalRegStore::Batch::~Batch()
{
    --g_platform.batches;
}

bool CLocalRegStore::Batch::Save()
{
    RecordCall(L"save batch");
    return g_platform.saves;
}

CIniFile* CLocalRegStore::CreateInitFile(bool reserved)
{
    RecordCall(reserved ? L"create true" : L"create false");
    return new CIniFile;
}

bool CLocalRegStore::Load(CIniFile&, const wchar_t* path)
{
    RecordCall(L"load", {path});
    return g_platform.loads;
}

std::wstring CLocalRegStore::GetString(const CIniFile&, const wchar_t* section, const wchar_t* key,
                                       const wchar_t* defaultValue)
{
    RecordCall(L"get", {section, key, defaultValue});
    return g_platform.stored;
}

void CLocalRegStore::WriteString(CIniFile&, const wchar_t* section, const wchar_t* key, const wchar_t* value)
{
    RecordCall(L"write", {section, key, value});
}

bool CLocalRegStore::Save(const CIniFile&, const wchar_t* path)
{
    RecordCall(L"save", {path});
    return g_platform.saves;
}

void CLocalRegStore::DestroyIniFile(CIniFile* ini)
{
    delete ini;
    g_platform.calls.push_back(L"destroy");
}

std::wstring CLocalRegStore::GetString(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue)
{
    RecordCall(L"get from default store", {section, key, defaultValue});
    return g_platform.stored;
}

bool CLocalRegStore::WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value)
{
    RecordCall(L"write to default store", {section, key, value});
    return SaveInDefaultStore();
}

bool CLocalRegStore::GetProfileBool(const wchar_t* section, const wchar_t* key, bool defaultValue)
{
    RecordCall(L"get flag", {section, key, defaultValue ? L"true" : L"false"});
    return defaultValue;
}

bool CLocalRegStore::WriteProfileBool(const wchar_t* section, const wchar_t* key, bool value)
{
    RecordCall(L"write flag", {section, key, value ? L"true" : L"false"});
    return SaveInDefaultStore();
}

int CLocalRegStore::GetProfileInt(const wchar_t* section, const wchar_t* key, int defaultValue)
{
    RecordCall(L"get integer", {section, key, std::to_wstring(defaultValue)});
    return defaultValue;
}

bool CLocalRegStore::WriteProfileInt(const wchar_t* section, const wchar_t* key, int value)
{
    RecordCall(L"write integer", {section, key, std::to_wstring(value)});
    return SaveInDefaultStore();
}

bool CLocalRegStore::DeleteKey(CIniFile&, const wchar_t* section, const wchar_t* key)
{
    RecordCall(L"delete", {section, key});
    return true;
}

std::vector<std::wstring> CLocalRegStore::GetSectionNames(const CIniFile&)
{
    RecordCall(L"sections");
    return {};
}

std::vector<std::wstring> CLocalRegStore::GetKeyNames(const CIniFile&, const wchar_t* section)
{
    RecordCall(L"keys", {section});
    return {};
}

std::vector<CLocalRegStore::Entry> CLocalRegStore::GetEntries(const CIniFile&, const wchar_t* section)
{
    RecordCall(L"entries", {section});
    return {};
}

bool CLocalRegStore::Refresh(CIniFile&, const wchar_t* path)
{
    RecordCall(L"refresh", {path});
    return g_platform.loads;
}

bool CLocalRegStore::Refresh(CIniFile&)
{
    RecordCall(L"refresh from default store");
    return g_platform.loads;
}

bool CLocalRegStore::IsCurrent(const CIniFile&)
{
    RecordCall(L"is current");
    return true;
}

void CLocalRegStore::ApplyChanges(CIniFile&, const std::vector<Change>&)
{
    RecordCall(L"apply changes");
}

bool CLocalRegStore::SaveChanges(const wchar_t* path, const std::vector<Change>&)
{
    RecordCall(L"save changes", {path});
    return g_platform.saves;
}

bool CLocalRegStore::SaveChanges(const std::vector<Change>&)
{
    RecordCall(L"save changes to default store");
    return SaveInDefaultStore();
}

std::vector<std::wstring> CLocalRegStore::GetSectionNames()
{
    RecordCall(L"sections of default store");
    return {};
}

std::vector<std::wstring> CLocalRegStore::GetKeyNames(const wchar_t* section)
{
    RecordCall(L"keys of default store", {section});
    return {};
}

bool CLocalRegStore::DeleteProfile(const wchar_t* section, const wchar_t* key)
{
    RecordCall(L"delete from default store", {section, key});
    return SaveInDefaultStore();
}

std::string CLocalRegStore::GetString(const char* section, const char* key, const char* defaultValue)
{
    RecordCall(L"get narrow", {Widened(section), Widened(key), Widened(defaultValue)});
    return Narrowed(g_platform.stored);
}

bool CLocalRegStore::WriteString(const char* section, const char* key, const char* value)
{
    RecordCall(L"write narrow", {Widened(section), Widened(key), Widened(value)});
    return SaveInDefaultStore();
}

// Joins the names with a separator that no other function uses.
std::wstring file_util_ex::MakePath(const CStdStr<wchar_t>& dir, const CStdStr<wchar_t>& name)
{
    return dir + L">" + name;
}

bool file_util_ex::DoesDirExist(const CStdStr<wchar_t>& path)
{
    RecordCall(L"exists", {path});
    return g_platform.folderExists;
}

bool file_util_ex::Mkdir(const CStdStr<wchar_t>& path)
{
    RecordCall(L"mkdir", {path});
    return false;
}

std::wstring file_util_ex::GetPathWithSep(const wchar_t* path)
{
    RecordCall(L"with separator", {path});
    return std::wstring(path) + L"/";
}

std::wstring file_util_ex::RemoveBackSlash(const wchar_t* path)
{
    RecordCall(L"without separator", {path});
    return L"/of/no/use";
}

// The two conversions add prefixes that no other function uses.
std::string file_util_ex::ConvertToUTF8(const std::wstring& text)
{
    RecordCall(L"to UTF-8", {text});
    return "/encoded" + Narrowed(text);
}

std::wstring file_util_ex::ConvertFromUTF8W(const std::string& text)
{
    RecordCall(L"from UTF-8", {Widened(text)});
    return L"/decoded" + Widened(text);
}

std::wstring std_file_paths::GetUserDataDir()
{
    return L"/data";
}

std::wstring std_file_paths::GetAppFolderPath(const wchar_t* name)
{
    RecordCall(L"application's folder", {name});
    return std::wstring(L"/documents/") + name;
}
