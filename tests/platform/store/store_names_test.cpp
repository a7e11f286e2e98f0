// The names of sections and keys, the deletion of keys, and integer values.

#include <fittings/platform/local_reg_store.h>

#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fittings/platform/file_util_ex.h>

#include <tests/platform/store/store_support.h>
#include <tests/support/temp_folder.h>

namespace {

using Names = std::vector<std::wstring>;

class NamesOfAFile : public testing::Test
{
protected:
    void Load(const std::string& text)
    {
        const TempFolder folder;
        WriteFile(folder / "a.ini", text);
        EXPECT_TRUE(CLocalRegStore::Load(*m_file, file_util_ex::ConvertFromUTF8W(folder / "a.ini").c_str()));
    }

    Names Sections() const { return CLocalRegStore::GetSectionNames(*m_file); }
    Names Keys(const wchar_t* section) const { return CLocalRegStore::GetKeyNames(*m_file, section); }

    const fittings::OwnedIniFile m_file{CLocalRegStore::CreateInitFile(false)};
};

TEST_F(NamesOfAFile, StandInTheOrderOfTheFile)
{
    Load("# mine\n[Zoo]\nlion=1\nbear=2\n; bear=3\n[Ark]\n\n[Bar]\nx=\n");
    EXPECT_EQ(Sections(), (Names{L"Zoo", L"Ark", L"Bar"}));
    EXPECT_EQ(Keys(L"Zoo"), (Names{L"lion", L"bear"}));
    EXPECT_EQ(Keys(L"Ark"), Names());
    EXPECT_EQ(Keys(L"Bar"), (Names{L"x"}));
    EXPECT_EQ(Keys(L"None"), Names());
    EXPECT_EQ(Keys(nullptr), Names());
}

TEST_F(NamesOfAFile, AreTheTextsThatWereWritten)
{
    const Names texts = {L"", L"[a]=b", L" edge ", L"new\nline", L"100 %", L"\xD800", L"ключ"};
    for (const std::wstring& text : texts)
        CLocalRegStore::WriteString(*m_file, text.c_str(), text.c_str(), L"1");
    EXPECT_EQ(Sections(), texts);
    for (const std::wstring& text : texts)
        EXPECT_EQ(Keys(text.c_str()), Names{text});
}

TEST_F(NamesOfAFile, StandOnceThoughTheyAreWrittenInTwoWays)
{
    Load("[a b]\nk k=1\nk%20k=2\nl=3\n[a%20b]\nl=4\nm=5\n[a b]\nn=6\n");
    EXPECT_EQ(Sections(), (Names{L"a b"}));
    EXPECT_EQ(Keys(L"a b"), (Names{L"k k", L"l", L"m", L"n"}));
}

TEST_F(NamesOfAFile, ChangeWithIt)
{
    Load("[s]\na=1\nb=2\n");
    CLocalRegStore::WriteString(*m_file, L"t", L"c", L"3");
    CLocalRegStore::WriteString(*m_file, L"s", L"d", L"4");
    EXPECT_TRUE(CLocalRegStore::DeleteKey(*m_file, L"s", L"a"));
    EXPECT_EQ(Sections(), (Names{L"s", L"t"}));
    EXPECT_EQ(Keys(L"s"), (Names{L"b", L"d"}));
}

TEST_F(NamesOfAFile, AreGoneWithAKeyThatStoodThereTwice)
{
    Load("[s]\na=1\n[t]\n[s]\na=2\na=3\nb=1\n");
    EXPECT_EQ(Keys(L"s"), (Names{L"a", L"b"}));
    EXPECT_TRUE(CLocalRegStore::DeleteKey(*m_file, L"s", L"a"));
    EXPECT_EQ(Keys(L"s"), (Names{L"b"}));
}

TEST(NamesInTheDefaultStore, StandInTheOrderOfTheFile)
{
    const TempUserData data;
    EXPECT_EQ(CLocalRegStore::GetSectionNames(), Names());
    EXPECT_EQ(CLocalRegStore::GetKeyNames(L"s"), Names());
    CLocalRegStore::WriteString(L"s", L"b", L"1");
    CLocalRegStore::WriteString(L"r", L"c", L"1");
    CLocalRegStore::WriteString(L"s", L"a", L"1");
    EXPECT_EQ(CLocalRegStore::GetSectionNames(), (Names{L"s", L"r"}));
    EXPECT_EQ(CLocalRegStore::GetKeyNames(L"s"), (Names{L"b", L"a"}));
}

TEST(DeletingAKeyOfAnIniFile, SaysWhetherItWasThere)
{
    const TempFolder folder;
    WriteFile(folder / "a.ini", "# mine\n[s]\na=1\n# of b\nb=2\n");
    Ini file;
    EXPECT_TRUE(file.Load(folder / "a.ini"));
    EXPECT_FALSE(file.Delete(L"s", L"c"));
    EXPECT_FALSE(file.Delete(L"t", L"a"));
    EXPECT_FALSE(file.Delete(nullptr, nullptr));
    EXPECT_TRUE(file.Delete(L"s", L"a"));
    EXPECT_FALSE(file.Delete(L"s", L"a"));
    EXPECT_EQ(ReadFile(folder / "a.ini"), "# mine\n[s]\na=1\n# of b\nb=2\n");
    EXPECT_TRUE(file.Save(folder / "a.ini"));
    EXPECT_EQ(ReadFile(folder / "a.ini"), "# mine\n[s]\n# of b\nb=2\n");
}

TEST(DeletingAKeyOfTheEmptySection, IncludesTheOneBeforeTheFirstSection)
{
    const TempFolder folder;
    WriteFile(folder / "a.ini", "a=1\nb=2\n[%]\na=3\nc=4\n[s]\nb=5\n");
    Ini file;
    EXPECT_TRUE(file.Load(folder / "a.ini"));
    EXPECT_FALSE(file.Delete(L"s", L"a"));
    EXPECT_TRUE(file.Delete(L"", L"a"));
    EXPECT_TRUE(file.Delete(nullptr, L"b"));
    EXPECT_FALSE(file.Delete(L"", L"a"));
    EXPECT_FALSE(file.Delete(L"", L"b"));
    EXPECT_TRUE(file.Save(folder / "a.ini"));
    EXPECT_EQ(ReadFile(folder / "a.ini"), "[%]\nc=4\n[s]\nb=5\n");
}

TEST(AStoredInteger, ComesBack)
{
    const TempUserData data;
    for (const int value : {0, -1, 42, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_TRUE(CLocalRegStore::WriteProfileInt(L"s", L"n", value));
        EXPECT_EQ(CLocalRegStore::GetProfileInt(L"s", L"n", 5), value);
    }
    EXPECT_EQ(Stored(L"s", L"n"), L"-2147483648");
    EXPECT_EQ(CLocalRegStore::GetProfileInt(L"s", L"none", 5), 5);
}

TEST(AStoredInteger, ThatIsNoneGivesTheDefault)
{
    const TempUserData data;
    for (const wchar_t* const text : {L"", L"x", L"12px", L"1.5", L"2147483648", L"-2147483649",
                                      L"99999999999999999999", L"0x10", L" 7", L"7 ", L"+7", L"--7", L"٧"}) {
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"n", text));
        EXPECT_EQ(CLocalRegStore::GetProfileInt(L"s", L"n", 5), 5) << file_util_ex::ConvertToUTF8(text);
    }
}

}  // namespace
