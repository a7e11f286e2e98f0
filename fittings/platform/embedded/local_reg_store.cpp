#include <fittings/platform/local_reg_store.h>

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <system_error>

#include <glib.h>

#include <fittings/platform/embedded/store/collected_settings.h>
#include <fittings/platform/embedded/store/default_store.h>
#include <fittings/platform/embedded/store/ini_file.h>
#include <fittings/platform/embedded/store/shared_file.h>
#include <fittings/platform/embedded/text/ini_codec.h>
#include <fittings/platform/file_util_ex.h>

using fittings::CollectedSettings;
using fittings::DefaultStore;
using fittings::NarrowToWide;
using fittings::WideToNarrow;

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

std::optional<std::wstring> GetSetting(std::wstring_view section, std::wstring_view key)
{
    const CollectedSettings* const collected = CollectedSettings::OfThread();
    const fittings::SettingsChange* const change = collected ? collected->Find(section, key) : nullptr;
    return change ? change->value
                  : DefaultStore::Instance().With([&](const CIniFile& file) { return file.Get(section, key); });
}

// Calls @a read with the stored settings, including the changes that this thread has collected.
template <typename Read>
auto WithSettings(const Read& read)
{
    CollectedSettings* const collected = CollectedSettings::OfThread();
    return collected ? read(collected->Preview()) : DefaultStore::Instance().With(read);
}

bool StoreChanges(const std::vector<fittings::SettingsChange>& changes)
{
    CollectedSettings* const collected = CollectedSettings::OfThread();
    if (!collected)
        return DefaultStore::Instance().Store(changes);
    for (const fittings::SettingsChange& change : changes)
        collected->Put(change);
    return true;
}

// Stores @a value, or removes the key if @a value is nullopt.
bool StoreSetting(std::wstring_view section, std::wstring_view key, std::optional<std::wstring_view> value)
{
    return StoreChanges({{std::wstring(section), std::wstring(key), std::optional<std::wstring>(value)}});
}

}  // namespace

struct CLocalRegStore::Batch::Collected : CollectedSettings
{
};

CLocalRegStore::Batch::Batch()
{
    if (!CollectedSettings::OfThread())
        m_collected = std::make_unique<Collected>();
}

CLocalRegStore::Batch::~Batch()
{
    if (m_collected)
        m_collected->Save();
}

bool CLocalRegStore::Batch::Save()
{
    return CollectedSettings::OfThread()->Save();
}

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
    return ini.Get(View(section), View(key)).value_or(std::wstring(View(defaultValue)));
}

void CLocalRegStore::WriteString(CIniFile& ini, const wchar_t* section, const wchar_t* key, const wchar_t* value)
{
    ini.Set(View(section), View(key), View(value));
}

bool CLocalRegStore::DeleteKey(CIniFile& ini, const wchar_t* section, const wchar_t* key)
{
    return ini.Delete(View(section), View(key));
}

std::vector<std::wstring> CLocalRegStore::GetSectionNames(const CIniFile& ini)
{
    return ini.SectionNames();
}

std::vector<std::wstring> CLocalRegStore::GetKeyNames(const CIniFile& ini, const wchar_t* section)
{
    return ini.KeyNames(View(section));
}

std::vector<CLocalRegStore::Entry> CLocalRegStore::GetEntries(const CIniFile& ini, const wchar_t* section)
{
    return ini.Entries(View(section));
}

bool CLocalRegStore::Refresh(CIniFile& ini, const wchar_t* path)
{
    return ini.Refresh(View(path));
}

bool CLocalRegStore::IsCurrent(const CIniFile& ini)
{
    return ini.IsCurrent();
}

void CLocalRegStore::ApplyChanges(CIniFile& ini, const std::vector<Change>& changes)
{
    ini.Apply(changes);
}

bool CLocalRegStore::SaveChanges(const wchar_t* path, const std::vector<Change>& changes)
{
    const std::string file = SystemPath(path);
    return !file.empty() && (changes.empty() || fittings::SharedFile::At(file).Store(changes));
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
    return GetSetting(View(section), View(key)).value_or(std::wstring(View(defaultValue)));
}

bool CLocalRegStore::WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value)
{
    return StoreSetting(View(section), View(key), View(value));
}

bool CLocalRegStore::GetProfileBool(const wchar_t* section, const wchar_t* key, bool defaultValue)
{
    const std::string text = WideToNarrow(GetString(section, key, L""));
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

int CLocalRegStore::GetProfileInt(const wchar_t* section, const wchar_t* key, int defaultValue)
{
    const std::string text = WideToNarrow(GetString(section, key, L""));
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? value : defaultValue;
}

bool CLocalRegStore::WriteProfileInt(const wchar_t* section, const wchar_t* key, int value)
{
    return WriteString(section, key, std::to_wstring(value).c_str());
}

bool CLocalRegStore::DeleteProfile(const wchar_t* section, const wchar_t* key)
{
    return StoreSetting(View(section), View(key), std::nullopt);
}

bool CLocalRegStore::SaveChanges(const std::vector<Change>& changes)
{
    return StoreChanges(changes);
}

bool CLocalRegStore::Refresh(CIniFile& ini)
{
    const CollectedSettings* const collected = CollectedSettings::OfThread();
    const std::wstring path = DefaultStore::Path();
    return collected ? ini.Refresh(path, collected->Changes(), collected->Revision()) : ini.Refresh(path);
}

std::vector<std::wstring> CLocalRegStore::GetSectionNames()
{
    return WithSettings([](const CIniFile& file) { return file.SectionNames(); });
}

std::vector<std::wstring> CLocalRegStore::GetKeyNames(const wchar_t* section)
{
    return WithSettings([&](const CIniFile& file) { return file.KeyNames(View(section)); });
}

std::string CLocalRegStore::GetString(const char* section, const char* key, const char* defaultValue)
{
    const auto value = GetSetting(NarrowToWide(View(section)), NarrowToWide(View(key)));
    return value ? WideToNarrow(*value) : std::string(View(defaultValue));
}

bool CLocalRegStore::WriteString(const char* section, const char* key, const char* value)
{
    return StoreSetting(NarrowToWide(View(section)), NarrowToWide(View(key)), NarrowToWide(View(value)));
}
