#include <fittings/platform/local_reg_store.h>

#include <filesystem>
#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include <tests/platform/store/store_support.h>
#include <tests/support/temp_folder.h>

namespace {

using Wide = const wchar_t*;
using Narrow = const char*;

static_assert(std::is_same_v<decltype(CLocalRegStore::CreateInitFile), CIniFile*(bool)>);
static_assert(std::is_same_v<decltype(CLocalRegStore::DestroyIniFile), void(CIniFile*)>);

// These definitions must compile: the type of each pointer selects one overload.
[[maybe_unused]] constexpr bool (*kLoad)(CIniFile&, Wide) = CLocalRegStore::Load;
[[maybe_unused]] constexpr bool (*kSave)(const CIniFile&, Wide) = CLocalRegStore::Save;
[[maybe_unused]] constexpr bool (*kGetBool)(Wide, Wide, bool) = CLocalRegStore::GetProfileBool;
[[maybe_unused]] constexpr bool (*kWriteBool)(Wide, Wide, bool) = CLocalRegStore::WriteProfileBool;
[[maybe_unused]] constexpr bool (*kDelete)(Wide, Wide) = CLocalRegStore::DeleteProfile;
[[maybe_unused]] constexpr std::wstring (*kGetFromFile)(const CIniFile&, Wide, Wide, Wide) = CLocalRegStore::GetString;
[[maybe_unused]] constexpr void (*kWriteToFile)(CIniFile&, Wide, Wide, Wide) = CLocalRegStore::WriteString;
[[maybe_unused]] constexpr std::wstring (*kGet)(Wide, Wide, Wide) = CLocalRegStore::GetString;
[[maybe_unused]] constexpr std::string (*kGetNarrow)(Narrow, Narrow, Narrow) = CLocalRegStore::GetString;

TEST(NewIniFile, IsEmpty)
{
    const Ini ini;
    EXPECT_EQ(ini.Get(L"s", L"k", L"default"), L"default");
    EXPECT_EQ(ini.Get(L"", L"", L""), L"");
}

TEST(RefreshedIniFile, HoldsTheFileThatItWasRefreshedFromLast)
{
    const TempFolder folder;
    const std::string one = folder / "one.ini";
    const std::string two = folder / "two.ini";
    ASSERT_TRUE(CLocalRegStore::SaveChanges(one, {{L"s", L"number", L"1"}}));
    ASSERT_TRUE(CLocalRegStore::SaveChanges(two, {{L"s", L"number", L"2"}}));
    const fittings::OwnedIniFile ini{CLocalRegStore::CreateInitFile(false)};
    for (const auto& [path, number] :
         {std::pair(one, L"1"), std::pair(two, L"2"), std::pair(two, L"2"), std::pair(one, L"1")}) {
        CLocalRegStore::Refresh(*ini, path);
        EXPECT_EQ(CLocalRegStore::GetString(*ini, L"s", L"number", L""), number);
    }
}

TEST(NewIniFile, IsAnotherOneEachTime)
{
    Ini one;
    const Ini other;
    one.Set(L"s", L"k", L"v");
    EXPECT_EQ(other.Get(L"s", L"k"), L"(none)");
}

TEST(DestroyingAnIniFile, TakesNull)
{
    CLocalRegStore::DestroyIniFile(nullptr);
}

class AnIniFile : public testing::Test
{
protected:
    const TempFolder folder;
    Ini ini;
};

using LoadingAFile = AnIniFile;
using GettingAValue = AnIniFile;
using SettingAValue = AnIniFile;
using SavingAFile = AnIniFile;

TEST_F(LoadingAFile, ReadsItsValues)
{
    WriteFile(folder / "a.ini", "[One]\nkey=first\n[Two]\nkey=second\n");
    EXPECT_TRUE(ini.Load(folder / "a.ini"));
    EXPECT_EQ(ini.Get(L"One", L"key"), L"first");
    EXPECT_EQ(ini.Get(L"Two", L"key"), L"second");
}

TEST_F(LoadingAFile, ThatIsMissingFailsAndLeavesTheObjectEmptyAndUsable)
{
    ini.Set(L"s", L"old", L"1");
    EXPECT_FALSE(ini.Load(folder / "a.ini"));
    EXPECT_EQ(ini.Get(L"s", L"old"), L"(none)");
    ini.Set(L"s", L"k", L"v");
    EXPECT_EQ(ini.Get(L"s", L"k"), L"v");
    EXPECT_TRUE(ini.Save(folder / "a.ini"));
    EXPECT_EQ(ReadFile(folder / "a.ini"), "[s]\nk=v\n");
}

TEST_F(LoadingAFile, InAMissingFolderIsAMissingFile)
{
    EXPECT_FALSE(ini.Load(folder / "no/such/a.ini"));
    ini.Set(L"s", L"k", L"v");
    EXPECT_TRUE(ini.Save(folder / "no/such/a.ini"));
    EXPECT_EQ(ReadFile(folder / "no/such/a.ini"), "[s]\nk=v\n");
}

TEST_F(LoadingAFile, TakesThePlaceOfWhatTheObjectHeld)
{
    WriteFile(folder / "a.ini", "[s]\na=1\n");
    WriteFile(folder / "b.ini", "[s]\nb=2\n");
    EXPECT_TRUE(ini.Load(folder / "a.ini"));
    ini.Set(L"s", L"c", L"3");
    EXPECT_TRUE(ini.Load(folder / "b.ini"));
    EXPECT_EQ(ini.Get(L"s", L"a"), L"(none)");
    EXPECT_EQ(ini.Get(L"s", L"b"), L"2");
    EXPECT_EQ(ini.Get(L"s", L"c"), L"(none)");
    EXPECT_TRUE(ini.Save(folder / "a.ini"));
    EXPECT_EQ(ReadFile(folder / "a.ini"), "[s]\nb=2\n");
}

TEST_F(LoadingAFile, WithANullPathFails)
{
    const fittings::OwnedIniFile file{CLocalRegStore::CreateInitFile(false)};
    EXPECT_FALSE(CLocalRegStore::Load(*file, nullptr));
    EXPECT_FALSE(CLocalRegStore::Save(*file, nullptr));
}

TEST_F(GettingAValue, GivesTheDefaultWhenSectionOrKeyIsAbsent)
{
    ini.Set(L"s", L"k", L"v");
    EXPECT_EQ(ini.Get(L"s", L"k", L"default"), L"v");
    EXPECT_EQ(ini.Get(L"s", L"other", L"default"), L"default");
    EXPECT_EQ(ini.Get(L"other", L"k", L"default"), L"default");
}

TEST_F(GettingAValue, TellsAnEmptyValueFromAnAbsentOne)
{
    ini.Set(L"s", L"k", L"");
    EXPECT_EQ(ini.Get(L"s", L"k", L"default"), L"");
}

TEST_F(GettingAValue, TellsUpperFromLowerCase)
{
    ini.Set(L"s", L"k", L"small");
    ini.Set(L"S", L"k", L"section");
    ini.Set(L"s", L"K", L"key");
    EXPECT_EQ(ini.Get(L"s", L"k"), L"small");
    EXPECT_EQ(ini.Get(L"S", L"k"), L"section");
    EXPECT_EQ(ini.Get(L"s", L"K"), L"key");
}

TEST(NullTexts, CountAsEmpty)
{
    TempUserData data;
    Ini ini;
    ini.Set(nullptr, nullptr, nullptr);
    EXPECT_EQ(ini.Get(L"", L""), L"");
    EXPECT_EQ(ini.Get(L"no", L"such", nullptr), L"");
    ini.Set(L"", L"", L"v");
    EXPECT_EQ(ini.Get(nullptr, nullptr), L"v");

    const wchar_t* const wide = nullptr;
    const char* const narrow = nullptr;
    EXPECT_EQ(CLocalRegStore::GetString(L"a", L"b", wide), L"");
    EXPECT_EQ(CLocalRegStore::GetString("a", "b", narrow), "");
    EXPECT_TRUE(CLocalRegStore::WriteString(wide, wide, wide));
    EXPECT_EQ(Stored(L"", L""), L"");
    EXPECT_TRUE(CLocalRegStore::WriteString(narrow, narrow, "v"));
    EXPECT_EQ(Stored(L"", L""), L"v");
    EXPECT_TRUE(CLocalRegStore::DeleteProfile(nullptr, nullptr));
    EXPECT_EQ(Stored(L"", L""), L"(none)");
    EXPECT_TRUE(CLocalRegStore::WriteProfileBool(nullptr, nullptr, true));
    EXPECT_TRUE(CLocalRegStore::GetProfileBool(nullptr, nullptr, false));
}

TEST_F(SettingAValue, CreatesSectionAndKeyAndReplacesTheEarlierValue)
{
    ini.Set(L"One", L"a", L"1");
    ini.Set(L"One", L"b", L"2");
    ini.Set(L"Two", L"a", L"3");
    ini.Set(L"One", L"a", L"4");
    EXPECT_EQ(ini.Get(L"One", L"a"), L"4");
    EXPECT_TRUE(ini.Save(folder / "a.ini"));
    EXPECT_EQ(ReadFile(folder / "a.ini"), "[One]\na=4\nb=2\n\n[Two]\na=3\n");
}

TEST_F(SettingAValue, LastsOnlyOnceSaved)
{
    WriteFile(folder / "a.ini", "[s]\nk=old\n");
    EXPECT_TRUE(ini.Load(folder / "a.ini"));
    ini.Set(L"s", L"k", L"new");
    EXPECT_EQ(ReadFile(folder / "a.ini"), "[s]\nk=old\n");
}

TEST_F(SavingAFile, WritesAnEmptyFileFromAnEmptyObject)
{
    EXPECT_TRUE(ini.Save(folder / "a.ini"));
    EXPECT_TRUE(std::filesystem::is_regular_file(folder / "a.ini"));
    EXPECT_EQ(ReadFile(folder / "a.ini"), "");
}

TEST_F(SavingAFile, ReplacesTheWholeOfAnother)
{
    WriteFile(folder / "b.ini", "[old]\nx=1\n");
    ini.Set(L"s", L"k", L"v");
    EXPECT_TRUE(ini.Save(folder / "b.ini"));
    EXPECT_EQ(ReadFile(folder / "b.ini"), "[s]\nk=v\n");
}

TEST_F(SavingAFile, CanBeRepeatedAfterFurtherChanges)
{
    ini.Set(L"s", L"k", L"1");
    EXPECT_TRUE(ini.Save(folder / "a.ini"));
    ini.Set(L"s", L"k", L"2");
    ini.Set(L"s", L"l", L"3");
    EXPECT_TRUE(ini.Save(folder / "a.ini"));
    EXPECT_EQ(ReadFile(folder / "a.ini"), "[s]\nk=2\nl=3\n");
}

using TheDefaultStore = UserDataTest;

TEST_F(TheDefaultStore, GivesTheDefaultUntilAValueIsStored)
{
    EXPECT_EQ(CLocalRegStore::GetString(L"s", L"k", L"default"), L"default");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
    EXPECT_EQ(CLocalRegStore::GetString(L"s", L"k", L"default"), L"v");
    EXPECT_EQ(CLocalRegStore::GetString(L"s", L"other", L"default"), L"default");
}

TEST_F(TheDefaultStore, PersistsAtOnceInOneFileOfTheUserDataDirectory)
{
    EXPECT_TRUE(CLocalRegStore::WriteString(L"LastFiles", L"Report", L"/tmp/a b.txt"));
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[LastFiles]\nReport=/tmp/a b.txt\n");
}

TEST_F(TheDefaultStore, StoresAnEmptyValue)
{
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L""));
    EXPECT_EQ(CLocalRegStore::GetString(L"s", L"k", L"default"), L"");
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nk=\n");
}

TEST_F(TheDefaultStore, HasTheSameValuesForNarrowAndWideText)
{
    EXPECT_EQ(CLocalRegStore::GetString("s", "k", "default"), "default");
    EXPECT_TRUE(CLocalRegStore::WriteString("Gr\xC3\xB6\xC3\x9F\x65", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"));
    EXPECT_EQ(Stored(L"Größe", L"€"), L"\U0001F600");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"Größe", L"€", L"neu"));
    EXPECT_EQ(CLocalRegStore::GetString("Gr\xC3\xB6\xC3\x9F\x65", "\xE2\x82\xAC", "default"), "neu");
}

TEST_F(TheDefaultStore, DeletesOneKeyOnly)
{
    WriteFile(data / "settings.ini", "[s]\na=1\nb=2\n[t]\na=3\n");
    EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"s", L"a"));
    EXPECT_EQ(CLocalRegStore::GetString(L"s", L"a", L"default"), L"default");
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nb=2\n[t]\na=3\n");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"a", L"again"));
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nb=2\na=again\n[t]\na=3\n");
}

TEST_F(TheDefaultStore, KeepsBooleans)
{
    EXPECT_TRUE(CLocalRegStore::GetProfileBool(L"s", L"k", true));
    EXPECT_FALSE(CLocalRegStore::GetProfileBool(L"s", L"k", false));
    EXPECT_TRUE(CLocalRegStore::WriteProfileBool(L"s", L"k", true));
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nk=true\n");
    EXPECT_TRUE(CLocalRegStore::GetProfileBool(L"s", L"k", false));
    EXPECT_TRUE(CLocalRegStore::WriteProfileBool(L"s", L"k", false));
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nk=false\n");
    EXPECT_FALSE(CLocalRegStore::GetProfileBool(L"s", L"k", true));
}

struct BoolCase
{
    const char* name;
    const wchar_t* text;
    int meaning;  // 1: true; 0: false; -1: not a boolean, so the default is returned
};

using ABooleanTypedByHand = UserDataTestWithParam<BoolCase>;

TEST_P(ABooleanTypedByHand, Means)
{
    ASSERT_TRUE(CLocalRegStore::WriteString(L"s", L"k", GetParam().text));
    const int meaning = GetParam().meaning;
    EXPECT_EQ(CLocalRegStore::GetProfileBool(L"s", L"k", true), meaning != 0);
    EXPECT_EQ(CLocalRegStore::GetProfileBool(L"s", L"k", false), meaning == 1);
}

INSTANTIATE_TEST_SUITE_P(, ABooleanTypedByHand,
                         testing::Values(BoolCase{"One", L"1", 1}, BoolCase{"Zero", L"0", 0},
                                         BoolCase{"True", L"true", 1}, BoolCase{"False", L"false", 0},
                                         BoolCase{"CapitalTrue", L"TRUE", 1}, BoolCase{"MixedFalse", L"False", 0},
                                         BoolCase{"Yes", L"yes", 1}, BoolCase{"No", L"NO", 0},
                                         BoolCase{"Two", L"2", -1}, BoolCase{"Minus", L"-1", -1},
                                         BoolCase{"Empty", L"", -1}, BoolCase{"Word", L"truely", -1},
                                         BoolCase{"OneAndMore", L"10", -1}, BoolCase{"Foreign", L"ｔｒｕｅ", -1}),
                         [](const auto& info) { return info.param.name; });

}  // namespace
