#include <fittings/platform/local_reg_store.h>

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include <glib.h>

#include <fittings/platform/embedded/default_store.h>
#include <fittings/platform/embedded/ini_codec.h>
#include <fittings/platform/embedded/ini_file.h>
#include <fittings/platform/file_util_ex.h>

namespace {

template <typename CharT>
std::basic_string_view<CharT> View(const CharT* text)
{
    return text ? std::basic_string_view<CharT>(text) : std::basic_string_view<CharT>();
}

std::string SystemPath(const wchar_t* path)
{
    return file_util_ex::ConvertToUTF8(std::wstring(View(path)));
}

bool IsOneOf(const std::string& text, std::initializer_list<const char*> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&](const char* word) { return g_ascii_strcasecmp(text.c_str(), word) == 0; });
}

}  // namespace

CIniFile* CLocalRegStore::CreateInitFile(bool)
{
    return new CIniFile;
}

bool CLocalRegStore::Load(CIniFile& ini, const wchar_t* path)
{
    return ini.Load(SystemPath(path));
}

std::wstring CLocalRegStore::GetString(const CIniFile& ini, const wchar_t* section, const wchar_t* key,
                                       const wchar_t* defaultValue)
{
    auto value = ini.Get(View(section), View(key));
    return value ? *std::move(value) : std::wstring(View(defaultValue));
}

void CLocalRegStore::WriteString(CIniFile& ini, const wchar_t* section, const wchar_t* key, const wchar_t* value)
{
    ini.Set(View(section), View(key), View(value));
}

bool CLocalRegStore::Save(const CIniFile& ini, const wchar_t* path)
{
    return ini.Save(SystemPath(path));
}

void CLocalRegStore::DestroyIniFile(CIniFile* ini)
{
    delete ini;
}

std::wstring CLocalRegStore::GetString(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue)
{
    auto value = fittings::DefaultStore::Instance().Get(View(section), View(key));
    return value ? *std::move(value) : std::wstring(View(defaultValue));
}

bool CLocalRegStore::WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value)
{
    return fittings::DefaultStore::Instance().Change(View(section), View(key), View(value));
}

bool CLocalRegStore::GetProfileBool(const wchar_t* section, const wchar_t* key, bool defaultValue)
{
    const std::string text = fittings::WideToNarrow(GetString(section, key, L""));
    if (IsOneOf(text, {"true", "yes", "1"}))
        return true;
    if (IsOneOf(text, {"false", "no", "0"}))
        return false;
    return defaultValue;
}

bool CLocalRegStore::WriteProfileBool(const wchar_t* section, const wchar_t* key, bool value)
{
    return WriteString(section, key, value ? L"true" : L"false");
}

bool CLocalRegStore::DeleteProfile(const wchar_t* section, const wchar_t* key)
{
    return fittings::DefaultStore::Instance().Change(View(section), View(key), std::nullopt);
}

std::string CLocalRegStore::GetString(const char* section, const char* key, const char* defaultValue)
{
    const auto value = fittings::DefaultStore::Instance().Get(fittings::NarrowToWide(View(section)),
                                                              fittings::NarrowToWide(View(key)));
    return value ? fittings::WideToNarrow(*value) : std::string(View(defaultValue));
}

bool CLocalRegStore::WriteString(const char* section, const char* key, const char* value)
{
    return fittings::DefaultStore::Instance().Change(
        fittings::NarrowToWide(View(section)), fittings::NarrowToWide(View(key)), fittings::NarrowToWide(View(value)));
}
