#ifndef FITTINGS_TESTS_SUPPORT_TEMP_FOLDER_H_
#define FITTINGS_TESTS_SUPPORT_TEMP_FOLDER_H_

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fittings/platform/local_reg_store.h>
#include <tests/support/temp_user_data.h>

/// A test with an empty user data directory of its own.
class UserDataTest : public testing::Test
{
protected:
    const TempUserData data;
};

template <typename Param>
class UserDataTestWithParam : public UserDataTest, public testing::WithParamInterface<Param>
{
};

/// Returns the default store's value of a key, or "(none)".
inline std::wstring Stored(const wchar_t* section, const wchar_t* key)
{
    return CLocalRegStore::GetString(section, key, L"(none)");
}
inline std::string Stored(const char* section, const char* key)
{
    return CLocalRegStore::GetString(section, key, "(none)");
}

/// Returns the sorted names of a folder's contents.
std::vector<std::string> NamesIn(const std::string& folder);

/// Returns the bytes of a file; empty when it cannot be read.
std::string ReadFile(const std::string& path);

/// Creates a file, or replaces its contents. Fails the test if the file cannot be written.
void WriteFile(const std::string& path, const std::string& bytes);

#endif
