// Several settings that are stored with one save.

#include <fittings/platform/local_reg_store.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include <tests/support/temp_folder.h>

namespace {

using Names = std::vector<std::wstring>;

static_assert(!std::is_copy_constructible_v<CLocalRegStore::Batch>);
static_assert(!std::is_copy_assignable_v<CLocalRegStore::Batch>);

class ABatch : public UserDataTest
{
protected:
    ABatch() { WriteFile(m_path, "[s]\na=1\nb=2\n"); }

    std::string Now() const { return ReadFile(m_path); }

    const std::string m_path = data / "settings.ini";
};

TEST_F(ABatch, SavesWhenItEnds)
{
    {
        const CLocalRegStore::Batch batch;
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"a", L"3"));
        EXPECT_TRUE(CLocalRegStore::WriteProfileBool(L"s", L"c", true));
        EXPECT_TRUE(CLocalRegStore::WriteString("s", "d", "4"));
        EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"s", L"b"));
        EXPECT_EQ(Now(), "[s]\na=1\nb=2\n");
    }
    EXPECT_EQ(Now(), "[s]\na=3\nc=true\nd=4\n");
}

TEST_F(ABatch, IsSeenByTheReadsOfItsThread)
{
    const CLocalRegStore::Batch batch;
    CLocalRegStore::WriteString(L"s", L"a", L"3");
    CLocalRegStore::WriteProfileInt(L"t", L"n", 7);
    CLocalRegStore::WriteProfileBool(L"t", L"f", true);
    CLocalRegStore::DeleteProfile(L"s", L"b");
    EXPECT_EQ(Stored(L"s", L"a"), L"3");
    EXPECT_EQ(CLocalRegStore::GetString("s", "a", ""), "3");
    EXPECT_EQ(Stored(L"s", L"b"), L"(none)");
    EXPECT_EQ(CLocalRegStore::GetProfileInt(L"t", L"n", 0), 7);
    EXPECT_TRUE(CLocalRegStore::GetProfileBool(L"t", L"f", false));
    EXPECT_EQ(CLocalRegStore::GetSectionNames(), (Names{L"s", L"t"}));
    EXPECT_EQ(CLocalRegStore::GetKeyNames(L"s"), (Names{L"a"}));
    EXPECT_EQ(CLocalRegStore::GetKeyNames(L"t"), (Names{L"n", L"f"}));
}

TEST_F(ABatch, IsNoOtherThreadsBusiness)
{
    const CLocalRegStore::Batch batch;
    CLocalRegStore::WriteString(L"s", L"a", L"3");
    std::thread([] {
        EXPECT_EQ(Stored(L"s", L"a"), L"1");
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"b", L"5"));
    }).join();
    EXPECT_EQ(Now(), "[s]\na=1\nb=5\n");
    EXPECT_EQ(Stored(L"s", L"b"), L"5");
}

TEST_F(ABatch, SavesEarlierWhenAsked)
{
    CLocalRegStore::Batch batch;
    CLocalRegStore::WriteString(L"s", L"a", L"3");
    EXPECT_TRUE(batch.Save());
    EXPECT_EQ(Now(), "[s]\na=3\nb=2\n");
    EXPECT_TRUE(batch.Save());
    CLocalRegStore::WriteString(L"s", L"a", L"4");
    EXPECT_EQ(Now(), "[s]\na=3\nb=2\n");
}

TEST_F(ABatch, SavesWithTheOutermost)
{
    {
        const CLocalRegStore::Batch outer;
        CLocalRegStore::WriteString(L"s", L"a", L"3");
        {
            const CLocalRegStore::Batch inner;
            CLocalRegStore::WriteString(L"s", L"b", L"4");
        }
        EXPECT_EQ(Now(), "[s]\na=1\nb=2\n");
        EXPECT_EQ(Stored(L"s", L"b"), L"4");
    }
    EXPECT_EQ(Now(), "[s]\na=3\nb=4\n");
}

TEST_F(ABatch, SavesAllThatWasCollectedWhenAnInnerOneIsAsked)
{
    const CLocalRegStore::Batch outer;
    CLocalRegStore::WriteString(L"s", L"a", L"3");
    CLocalRegStore::Batch inner;
    CLocalRegStore::WriteString(L"s", L"b", L"4");
    EXPECT_TRUE(inner.Save());
    EXPECT_EQ(Now(), "[s]\na=3\nb=4\n");
}

TEST_F(ABatch, StoresTheLastOfSeveralValuesOfAKey)
{
    {
        const CLocalRegStore::Batch batch;
        CLocalRegStore::WriteString(L"s", L"a", L"3");
        CLocalRegStore::DeleteProfile(L"s", L"a");
        CLocalRegStore::WriteString(L"s", L"a", L"4");
        CLocalRegStore::WriteString(L"s", L"b", L"5");
        CLocalRegStore::DeleteProfile(L"s", L"b");
    }
    EXPECT_EQ(Now(), "[s]\na=4\n");
}

TEST_F(ABatch, KeepsWhatOthersStoreMeanwhile)
{
    {
        const CLocalRegStore::Batch batch;
        CLocalRegStore::WriteString(L"s", L"a", L"3");
        WriteFile(m_path, "[s]\na=1\nb=2\ntheirs=1\n");
    }
    EXPECT_EQ(Now(), "[s]\na=3\nb=2\ntheirs=1\n");
}

TEST_F(ABatch, SavesWhenAnExceptionEndsIt)
{
    try {
        const CLocalRegStore::Batch batch;
        CLocalRegStore::WriteString(L"s", L"a", L"3");
        throw std::runtime_error("any");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(Now(), "[s]\na=3\nb=2\n");
}

TEST_F(ABatch, SaysWhenItCannotSaveAndTriesAgain)
{
    CLocalRegStore::Batch batch;
    CLocalRegStore::WriteString(L"s", L"a", L"3");
    CLocalRegStore::WriteString(L"s", L"b", L"4");
    const std::string text = Now();
    std::filesystem::remove(m_path);
    std::filesystem::create_directory(m_path);
    EXPECT_FALSE(batch.Save());
    EXPECT_EQ(Stored(L"s", L"a"), L"3");
    std::filesystem::remove(m_path);
    WriteFile(m_path, text);
    EXPECT_TRUE(batch.Save());
    EXPECT_EQ(Now(), "[s]\na=3\nb=4\n");
}

TEST_F(ABatch, TouchesNothingWhenNothingChanges)
{
    std::filesystem::remove(m_path);
    {
        CLocalRegStore::Batch batch;
        CLocalRegStore::DeleteProfile(L"s", L"a");
        EXPECT_TRUE(batch.Save());
    }
    EXPECT_TRUE(NamesIn(data.Path()).empty());
}

}  // namespace
