#include <fittings/config/ui_config_mgr.h>

#include <memory>
#include <string>

#include <fittings/base/or_empty.h>
#include <fittings/config/owned_ini_file.h>
#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>

using fittings::OrEmpty;
using fittings::OwnedIniFile;

namespace {

OwnedIniFile NewIniFile()
{
    return OwnedIniFile(CLocalRegStore::CreateInitFile(false));
}

// Returns the path of a settings file. Makes its folder if possible.
std::wstring SettingsPath(const wchar_t* file)
{
    const std::wstring folder = file_util_ex::MakePath(std_file_paths::GetUserDataDir(), L"ui_config");
    if (!file_util_ex::DoesDirExist(folder))
        file_util_ex::Mkdir(folder);
    return file_util_ex::MakePath(folder, file);
}

}  // namespace

void ui_config_mgr::WriteConfigString(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                                      const wchar_t* value)
{
    const std::wstring path = SettingsPath(file);
    const OwnedIniFile ini = NewIniFile();
    // A missing file counts as empty; saving creates it.
    CLocalRegStore::Load(*ini, path.c_str());
    CLocalRegStore::WriteString(*ini, OrEmpty(section), OrEmpty(key), OrEmpty(value));
    CLocalRegStore::Save(*ini, path.c_str());
}

std::wstring ui_config_mgr::GetConfigString(const wchar_t* file, const wchar_t* section, const wchar_t* key)
{
    const std::wstring path = SettingsPath(file);
    const OwnedIniFile ini = NewIniFile();
    if (!CLocalRegStore::Load(*ini, path.c_str()))
        return {};
    return CLocalRegStore::GetString(*ini, OrEmpty(section), OrEmpty(key), L"");
}

void ui_config_mgr::DeleteConfig(const wchar_t* file, const wchar_t* section, const wchar_t* key)
{
    const std::wstring path = SettingsPath(file);
    const OwnedIniFile ini = NewIniFile();
    CLocalRegStore::Load(*ini, path.c_str());
    // Callers rely on this: the key is removed from the default store, not from the file.
    CLocalRegStore::DeleteProfile(OrEmpty(section), OrEmpty(key));
    CLocalRegStore::Save(*ini, path.c_str());
}

int ui_config_mgr::GetConfigInt(const wchar_t* file, const wchar_t* section, const wchar_t* key)
{
    const std::wstring text = GetConfigString(file, section, key);
    return text.empty() ? 0 : std::stoi(text);
}

void ui_config_mgr::WriteConfigInt(const wchar_t* file, const wchar_t* section, const wchar_t* key, int value)
{
    WriteConfigString(file, section, key, std::to_wstring(value).c_str());
}
