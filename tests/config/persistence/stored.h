#ifndef FITTINGS_TESTS_CONFIG_PERSISTENCE_STORED_H_
#define FITTINGS_TESTS_CONFIG_PERSISTENCE_STORED_H_

#include <string>

#include <fittings/config/persistence.h>
#include <fittings/platform/local_reg_store.h>
#include <tests/support/temp_folder.h>

/// An empty default store in which the toolkit's persistence keeps its values.
class TempPersistence : public TempUserData
{
public:
    TempPersistence() { wxStorePersistenceManager::Install(); }
    ~TempPersistence() { wxStorePersistenceManager::Install().Flush(); }
};

/// A test with an empty default store of its own.
class PersistenceTest : public testing::Test
{
protected:
    const TempPersistence data;
};

template <typename Param>
class PersistenceTestWithParam : public PersistenceTest, public testing::WithParamInterface<Param>
{
};

inline std::wstring StoredSection(const std::wstring& kind)
{
    return L"Persistent_Options/" + kind + L"/w";
}

/// Stores a value of the object "w" as an earlier run of the program would have stored it.
inline void StoreValue(const std::wstring& kind, const wchar_t* key, const std::wstring& text)
{
    CLocalRegStore::WriteString(StoredSection(kind).c_str(), key, text.c_str());
}

/// Returns the stored value of this key of the object "w", or "(none)" if no value is stored.
inline std::wstring StoredValue(const std::wstring& kind, const wchar_t* key)
{
    return Stored(StoredSection(kind).c_str(), key);
}

/// Stores the position and the size of the window "w".
inline void StorePlace(const std::wstring& x, const std::wstring& y, const std::wstring& width,
                       const std::wstring& height)
{
    StoreValue(L"Window", L"x", x);
    StoreValue(L"Window", L"y", y);
    StoreValue(L"Window", L"w", width);
    StoreValue(L"Window", L"h", height);
}

#endif
