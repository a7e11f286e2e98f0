// Files that are too large for settings.

#include <fittings/platform/local_reg_store.h>

#include <fstream>
#include <string>

#include <unistd.h>

#include <gtest/gtest.h>

#include <tests/platform/store/store_support.h>
#include <tests/support/temp_folder.h>

namespace {

constexpr std::size_t kMiB = std::size_t{1} << 20;

std::size_t ResidentBytes()
{
    std::size_t all = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

std::string ShortKeys(int count)
{
    std::string text = "[s]\n";
    for (int key = 0; key < count; ++key)
        text += std::to_string(key) + "=\n";
    return text;
}

TEST(AFileOfFiveMillionKeys, IsNotReadAndNotReplaced)
{
    const UserDataInMemory data;
    const std::string text = ShortKeys(5'000'000);
    ASSERT_GT(text.size(), 40 * kMiB);
    WriteFile(data / "settings.ini", text);
    const std::size_t before = ResidentBytes();
    Ini ini;
    EXPECT_FALSE(ini.Load(data / "settings.ini"));
    EXPECT_EQ(ini.Get(L"s", L"1"), L"(none)");
    EXPECT_LT(ResidentBytes(), before + 600 * kMiB);  // includes the memory that a sanitizer needs
    ini.Set(L"s", L"k", L"v");
    EXPECT_FALSE(ini.Save(data / "settings.ini"));
    EXPECT_EQ(Stored(L"s", L"1"), L"(none)");
    EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
    EXPECT_TRUE(ReadFile(data / "settings.ini") == text);
}

TEST(AFileOfMoreThan64MiB, IsNotReadAndNotReplaced)
{
    const UserDataInMemory data;
    const std::string text = "[s]\nk=" + std::string(64 * kMiB, 'x') + "\n";
    WriteFile(data / "settings.ini", text);
    EXPECT_EQ(Stored(L"s", L"k"), L"(none)");
    EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
    EXPECT_TRUE(ReadFile(data / "settings.ini") == text);
}

// The store does not write a file that it could not read again.
TEST(AValueOfMoreThan64MiB, IsNotStored)
{
    const UserDataInMemory data;
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
    const std::wstring value(64 * kMiB, L'x');
    EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"k", value.c_str()));
    EXPECT_EQ(Stored(L"s", L"k"), L"v");
    Ini ini;
    ini.Set(L"s", L"k", value.c_str());
    EXPECT_FALSE(ini.Save(data / "a.ini"));
    EXPECT_EQ(NamesIn(data.Path()), (std::vector<std::string>{"settings.ini", "settings.ini.lock"}));
}

TEST(AMillionthLine, IsTheLast)
{
    const UserDataInMemory data;
    const std::string text = ShortKeys(999'999);
    WriteFile(data / "settings.ini", text);
    EXPECT_EQ(Stored(L"s", L"999998"), L"");
    EXPECT_FALSE(CLocalRegStore::WriteString(L"s", L"one more", L"v"));
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"999998", L"v"));
    EXPECT_EQ(Stored(L"s", L"999998"), L"v");
    EXPECT_EQ(Stored(L"s", L"0"), L"");
}

}  // namespace
