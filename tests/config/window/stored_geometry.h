#ifndef FITTINGS_TESTS_CONFIG_STORED_GEOMETRY_H_
#define FITTINGS_TESTS_CONFIG_STORED_GEOMETRY_H_

#include <string>

#include <gtest/gtest.h>

#include <fittings/config/wx_window_state.h>
#include <fittings/platform/local_reg_store.h>
#include <tests/config/window/spy_window.h>

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

/// A frame for which LoadState() has been called, as in the next run of a program that has stored this geometry.
class RestoredSpyFrame : public SpyFrame
{
public:
    explicit RestoredSpyFrame(const std::wstring& geometry, const wxRect& before = wxRect(300, 200, 400, 300))
        : SpyFrame(before)
    {
        StoreGeometry(geometry);
        EXPECT_TRUE(wx_window_state::LoadState(this, L"w"));
    }
};

#endif
