#ifndef FITTINGS_TESTS_PLATFORM_STORE_STORE_SUPPORT_H_
#define FITTINGS_TESTS_PLATFORM_STORE_STORE_SUPPORT_H_

#include <string>

#include <fittings/config/owned_ini_file.h>
#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/local_reg_store.h>
#include <tests/support/temp_folder.h>

/// Owns a CIniFile. The functions take paths in UTF-8.
class Ini
{
public:
    Ini() = default;
    explicit Ini(const std::string& path) { Load(path); }

    bool Load(const std::string& path)
    {
        return CLocalRegStore::Load(*m_file, file_util_ex::ConvertFromUTF8W(path).c_str());
    }

    bool Save(const std::string& path) const
    {
        return CLocalRegStore::Save(*m_file, file_util_ex::ConvertFromUTF8W(path).c_str());
    }

    std::wstring Get(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue = L"(none)") const
    {
        return CLocalRegStore::GetString(*m_file, section, key, defaultValue);
    }

    void Set(const wchar_t* section, const wchar_t* key, const wchar_t* value)
    {
        CLocalRegStore::WriteString(*m_file, section, key, value);
    }

    bool Delete(const wchar_t* section, const wchar_t* key) { return CLocalRegStore::DeleteKey(*m_file, section, key); }

private:
    fittings::OwnedIniFile m_file{CLocalRegStore::CreateInitFile(false)};
};

#endif
