// Implements the platform interfaces with a map. Nothing is kept after the process ends.

#include "memory_platform.h"

#include <set>

#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/lng_util.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>

class CIniFile
{
public:
    std::map<std::pair<std::wstring, std::wstring>, std::wstring> values;
};

namespace {

MemoryStore g_store;
std::set<std::wstring> g_files;
std::set<std::wstring> g_folders;
std::wstring g_userDataDir;

std::wstring Text(const wchar_t* text)
{
    return text ? text : L"";
}

// Converts an ASCII text. This program uses no other characters.
std::wstring Widened(const char* text)
{
    return text ? std::wstring(text, text + std::char_traits<char>::length(text)) : std::wstring();
}

}  // namespace

const MemoryStore& GetMemoryStore()
{
    return g_store;
}

// This platform saves nothing, so a batch does nothing.
struct CLocalRegStore::Batch::Collected
{
};

CLocalRegStore::Batch::Batch() = default;

CLocalRegStore::Batch::~Batch() = default;

bool CLocalRegStore::Batch::Save()
{
    return true;
}

CIniFile* CLocalRegStore::CreateInitFile(bool)
{
    return new CIniFile;
}

bool CLocalRegStore::Load(CIniFile& ini, const wchar_t* path)
{
    ini.values.clear();
    for (const auto& [address, value] : g_store) {
        const auto& [file, section, key] = address;
        if (file == Text(path))
            ini.values[{section, key}] = value;
    }
    return g_files.count(Text(path)) != 0;
}

std::wstring CLocalRegStore::GetString(const CIniFile& ini, const wchar_t* section, const wchar_t* key,
                                       const wchar_t* defaultValue)
{
    const auto found = ini.values.find({Text(section), Text(key)});
    return found == ini.values.end() ? Text(defaultValue) : found->second;
}

void CLocalRegStore::WriteString(CIniFile& ini, const wchar_t* section, const wchar_t* key, const wchar_t* value)
{
    ini.values[{Text(section), Text(key)}] = Text(value);
}

bool CLocalRegStore::DeleteKey(CIniFile& ini, const wchar_t* section, const wchar_t* key)
{
    return ini.values.erase({Text(section), Text(key)}) != 0;
}

std::vector<std::wstring> CLocalRegStore::GetSectionNames(const CIniFile& ini)
{
    std::vector<std::wstring> names;
    for (const auto& [name, value] : ini.values)
        if (names.empty() || names.back() != name.first)
            names.push_back(name.first);
    return names;
}

std::vector<std::wstring> CLocalRegStore::GetKeyNames(const CIniFile& ini, const wchar_t* section)
{
    std::vector<std::wstring> names;
    for (const auto& [name, value] : ini.values)
        if (name.first == Text(section))
            names.push_back(name.second);
    return names;
}

std::vector<CLocalRegStore::Entry> CLocalRegStore::GetEntries(const CIniFile& ini, const wchar_t* section)
{
    std::vector<Entry> entries;
    for (const auto& [name, value] : ini.values)
        if (name.first == Text(section))
            entries.push_back({name.second, value});
    return entries;
}

// Reading a file is cheap on this platform, so every call reads the file and returns true.
bool CLocalRegStore::Refresh(CIniFile& ini, const wchar_t* path)
{
    Load(ini, path);
    return true;
}

bool CLocalRegStore::IsCurrent(const CIniFile&)
{
    return true;
}

// On this platform a section without keys does not exist, so changes of sections do nothing.
void CLocalRegStore::ApplyChanges(CIniFile& ini, const std::vector<Change>& changes)
{
    for (const Change& change : changes) {
        if (change.value && !change.isOfSection)
            WriteString(ini, change.section.c_str(), change.key.c_str(), change.value->c_str());
        else if (!change.isOfSection)
            DeleteKey(ini, change.section.c_str(), change.key.c_str());
    }
}

bool CLocalRegStore::SaveChanges(const wchar_t* path, const std::vector<Change>& changes)
{
    for (const Change& change : changes) {
        if (!change.isOfSection && !change.value)
            g_store.erase({Text(path), change.section, change.key});
    }
    CIniFile ini;
    Load(ini, path);
    ApplyChanges(ini, changes);
    return Save(ini, path);
}

bool CLocalRegStore::Save(const CIniFile& ini, const wchar_t* path)
{
    g_files.insert(Text(path));
    for (const auto& [address, value] : ini.values)
        g_store[{Text(path), address.first, address.second}] = value;
    return true;
}

void CLocalRegStore::DestroyIniFile(CIniFile* ini)
{
    delete ini;
}

std::wstring CLocalRegStore::GetString(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue)
{
    const auto found = g_store.find({L"", Text(section), Text(key)});
    return found == g_store.end() ? Text(defaultValue) : found->second;
}

bool CLocalRegStore::WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value)
{
    g_store[{L"", Text(section), Text(key)}] = Text(value);
    return true;
}

bool CLocalRegStore::GetProfileBool(const wchar_t* section, const wchar_t* key, bool defaultValue)
{
    return GetString(section, key, defaultValue ? L"yes" : L"no") == L"yes";
}

bool CLocalRegStore::WriteProfileBool(const wchar_t* section, const wchar_t* key, bool value)
{
    return WriteString(section, key, value ? L"yes" : L"no");
}

int CLocalRegStore::GetProfileInt(const wchar_t* section, const wchar_t* key, int defaultValue)
{
    const std::wstring text = GetString(section, key, L"");
    return text.empty() ? defaultValue : std::stoi(text);
}

bool CLocalRegStore::WriteProfileInt(const wchar_t* section, const wchar_t* key, int value)
{
    return WriteString(section, key, std::to_wstring(value).c_str());
}

// The default store is the file with an empty name.
std::vector<std::wstring> CLocalRegStore::GetSectionNames()
{
    CIniFile defaultStore;
    Load(defaultStore, L"");
    return GetSectionNames(defaultStore);
}

bool CLocalRegStore::Refresh(CIniFile& ini)
{
    return Refresh(ini, L"");
}

bool CLocalRegStore::SaveChanges(const std::vector<Change>& changes)
{
    return SaveChanges(L"", changes);
}

std::vector<std::wstring> CLocalRegStore::GetKeyNames(const wchar_t* section)
{
    CIniFile defaultStore;
    Load(defaultStore, L"");
    return GetKeyNames(defaultStore, section);
}

bool CLocalRegStore::DeleteProfile(const wchar_t* section, const wchar_t* key)
{
    g_store.erase({L"", Text(section), Text(key)});
    return true;
}

std::string CLocalRegStore::GetString(const char* section, const char* key, const char* defaultValue)
{
    return file_util_ex::ConvertToUTF8(
        GetString(Widened(section).c_str(), Widened(key).c_str(), Widened(defaultValue).c_str()));
}

bool CLocalRegStore::WriteString(const char* section, const char* key, const char* value)
{
    return WriteString(Widened(section).c_str(), Widened(key).c_str(), Widened(value).c_str());
}

std::wstring file_util_ex::MakePath(const CStdStr<wchar_t>& dir, const CStdStr<wchar_t>& name)
{
    return GetPathWithSep(dir.c_str()) + name;
}

bool file_util_ex::DoesDirExist(const CStdStr<wchar_t>& path)
{
    return g_folders.count(path) != 0;
}

bool file_util_ex::Mkdir(const CStdStr<wchar_t>& path)
{
    g_folders.insert(path);
    return true;
}

std::wstring file_util_ex::GetPathWithSep(const wchar_t* path)
{
    const std::wstring text = RemoveBackSlash(path);
    return text.empty() || text == L"/" ? text : text + L"/";
}

std::wstring file_util_ex::RemoveBackSlash(const wchar_t* path)
{
    std::wstring text = Text(path);
    if (text.size() > 1 && text.back() == L'/')
        text.pop_back();
    return text;
}

std::string file_util_ex::ConvertToUTF8(const std::wstring& text)
{
    std::string bytes;
    for (const wchar_t character : text)
        bytes += static_cast<char>(character);
    return bytes;
}

std::wstring file_util_ex::ConvertFromUTF8W(const std::string& text)
{
    return Widened(text.c_str());
}

std::wstring std_file_paths::GetUserDataDir()
{
    return g_userDataDir.empty() ? L"/memory" : g_userDataDir;
}

void std_file_paths::SetUserDataDir(const CStdStr<wchar_t>& path)
{
    g_userDataDir = path;
}

std::wstring std_file_paths::GetAppFolderPath(const wchar_t* name)
{
    return file_util_ex::MakePath(L"/memory/documents", name);
}

const wchar_t* lng_util_internal::DoGetResourceString(const wchar_t* key, CLanguageDomain*)
{
    return key;
}
