#ifndef FITTINGS_TESTS_CONFIG_STORED_GEOMETRY_H_
#define FITTINGS_TESTS_CONFIG_STORED_GEOMETRY_H_

#include <string>

#include <fittings/platform/local_reg_store.h>

/// Returns the geometry that is stored under @a name, or "none" if there is none.
inline std::wstring StoredGeometry(const wchar_t* name = L"w")
{
    return CLocalRegStore::GetString(L"wxWindowState", name, L"none");
}

/// Stores a geometry as an earlier run of the program would have stored it.
inline void StoreGeometry(const std::wstring& text, const wchar_t* name = L"w")
{
    CLocalRegStore::WriteString(L"wxWindowState", name, text.c_str());
}

#endif
