// Files that the store itself would not write: a person, another program or a power failure has left them.

#include <fittings/platform/local_reg_store.h>

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tests/platform/store/store_support.h>
#include <tests/support/file_status.h>
#include <tests/support/process/processor_time.h>
#include <tests/support/temp_folder.h>

namespace {

using namespace std::string_literals;

struct Value
{
    const wchar_t* section;
    const wchar_t* key;
    const wchar_t* value;
};

struct DirtyFile
{
    const char* name;
    std::string before;
    std::vector<Value> reads;
    Value write;
    std::string after;
};

const wchar_t* const kNone = L"(none)";

const DirtyFile kFiles[] = {
    {"Comments",
     "# one\n; two\n[s]\n# three\n  ; four\nk=v\n#five\n",
     {{L"s", L"k", L"v"}},
     {L"s", L"k", L"w"},
     "# one\n; two\n[s]\n# three\n  ; four\nk=w\n#five\n"},
    {"CommentedOutKeys",
     "[s]\n;k=1\n#k=2\n",
     {{L"s", L"k", kNone}, {L"s", L";k", kNone}, {L"s", L"#k", kNone}},
     {L"s", L"k", L"v"},
     "[s]\nk=v\n;k=1\n#k=2\n"},
    {"BlankLines",
     "\n\n[s]\n\n\nk=v\n\n\n[t]\n\nk=w\n\n",
     {{L"s", L"k", L"v"}, {L"t", L"k", L"w"}},
     {L"s", L"l", L"x"},
     "\n\n[s]\n\n\nk=v\nl=x\n\n\n[t]\n\nk=w\n\n"},
    {"LinesWithBlanksOnly", "[s]\n  \t\nk=v\n   \n", {{L"s", L"k", L"v"}}, {L"s", L"k", L"w"}, "[s]\n  \t\nk=w\n   \n"},
    {"CarriageReturns",
     "# c\r\n[s]\r\nk=v\r\n\r\n[t]\r\nk=w\r\n",
     {{L"s", L"k", L"v"}, {L"t", L"k", L"w"}},
     {L"s", L"l", L"x"},
     "# c\r\n[s]\r\nk=v\r\nl=x\r\n\r\n[t]\r\nk=w\r\n"},
    {"CarriageReturnsKeptInTheChangedLine",
     "[s]\r\nk=v\r\n",
     {{L"s", L"k", L"v"}},
     {L"s", L"k", L"w"},
     "[s]\r\nk=w\r\n"},
    {"CarriageReturnsInANewSection",
     "[s]\r\nk=v\r\n",
     {{L"s", L"k", L"v"}},
     {L"t", L"k", L"w"},
     "[s]\r\nk=v\r\n\r\n[t]\r\nk=w\r\n"},
    {"MixedLineEnds",
     "[s]\na=1\r\nb=2\nc=3\r\n",
     {{L"s", L"a", L"1"}, {L"s", L"b", L"2"}, {L"s", L"c", L"3"}},
     {L"s", L"b", L"x"},
     "[s]\na=1\r\nb=x\nc=3\r\n"},
    {"ByteOrderMark", "\xEF\xBB\xBF[s]\nk=v\n", {{L"s", L"k", L"v"}}, {L"s", L"k", L"w"}, "\xEF\xBB\xBF[s]\nk=w\n"},
    {"ByteOrderMarkAlone", "\xEF\xBB\xBF", {{L"s", L"k", kNone}}, {L"s", L"k", L"v"}, "\xEF\xBB\xBF[s]\nk=v\n"},
    {"ByteOrderMarkAndUnknownLine",
     "\xEF\xBB\xBFhello\r\n[s]\r\nk=v\r\n",
     {{L"s", L"k", L"v"}},
     {L"s", L"k", L"w"},
     "\xEF\xBB\xBFhello\r\n[s]\r\nk=w\r\n"},
    {"LinesBeforeTheFirstSection",
     "title=x\nnote\n[s]\nk=v\n",
     {{L"s", L"k", L"v"}, {L"", L"title", kNone}, {L"s", L"title", kNone}},
     {L"", L"title", L"y"},
     "title=x\nnote\n[s]\nk=v\n\n[%]\ntitle=y\n"},
    {"LinesWithoutEquals",
     "[s]\na=1\nnonsense\nb=2\n",
     {{L"s", L"a", L"1"}, {L"s", L"b", L"2"}, {L"s", L"nonsense", kNone}},
     {L"s", L"nonsense", L"3"},
     "[s]\na=1\nnonsense\nb=2\nnonsense=3\n"},
    {"LineWithoutKey",
     "[s]\n=v\n = w\nk=v\n",
     {{L"s", L"k", L"v"}, {L"s", L"", kNone}},
     {L"s", L"", L"x"},
     "[s]\n=v\n = w\nk=v\n%=x\n"},
    {"HalfSection",
     "[a]\nk=1\n[half\nk=2\nl=3\n[b]\nk=4\n",
     {{L"a", L"k", L"1"}, {L"a", L"l", kNone}, {L"half", L"k", kNone}, {L"b", L"k", L"4"}},
     {L"a", L"l", L"x"},
     "[a]\nk=1\nl=x\n[half\nk=2\nl=3\n[b]\nk=4\n"},
    {"SectionWithTextBehind",
     "[a]\nk=1\n[b] # c\nk=2\n",
     {{L"a", L"k", L"1"}, {L"b", L"k", kNone}},
     {L"b", L"k", L"x"},
     "[a]\nk=1\n[b] # c\nk=2\n\n[b]\nk=x\n"},
    {"EmptySectionName",
     "[]\nk=1\n[s]\nk=2\n",
     {{L"", L"k", kNone}, {L"s", L"k", L"2"}},
     {L"s", L"k", L"3"},
     "[]\nk=1\n[s]\nk=3\n"},
    {"BlanksAround",
     "  [s] \t\n  k \t=  v  \t\nl\t=\tw\n",
     {{L"s", L"k", L"v"}, {L"s", L"l", L"w"}},
     {L"s", L"k", L"x"},
     "  [s] \t\n  k \t=  x\nl\t=\tw\n"},
    {"SectionTwice",
     "[s]\na=1\n[t]\nb=2\n[s]\nc=3\n\n# end\n",
     {{L"s", L"a", L"1"}, {L"t", L"b", L"2"}, {L"s", L"c", L"3"}},
     {L"s", L"d", L"4"},
     "[s]\na=1\n[t]\nb=2\n[s]\nc=3\nd=4\n\n# end\n"},
    {"KeyTwice", "[s]\nk=1\nk=2\n", {{L"s", L"k", L"2"}}, {L"s", L"k", L"3"}, "[s]\nk=1\nk=3\n"},
    {"KeyTwiceInTwoParts",
     "[s]\nk=1\n[t]\nk=9\n[s]\nk=2\n",
     {{L"s", L"k", L"2"}, {L"t", L"k", L"9"}},
     {L"s", L"k", L"3"},
     "[s]\nk=1\n[t]\nk=9\n[s]\nk=3\n"},
    {"NoLineEndAtTheEnd", "[s]\nk=v", {{L"s", L"k", L"v"}}, {L"s", L"l", L"w"}, "[s]\nk=v\nl=w\n"},
    {"NoLineEndAndANewSection", "[s]\nk=v", {{L"s", L"k", L"v"}}, {L"t", L"l", L"w"}, "[s]\nk=v\n\n[t]\nl=w\n"},
    {"NoLineEndAndTheSameKey", "[s]\nk=v", {{L"s", L"k", L"v"}}, {L"s", L"k", L"w"}, "[s]\nk=w"},
    {"Empty", "", {{L"s", L"k", kNone}}, {L"s", L"k", L"v"}, "[s]\nk=v\n"},
    {"OneBlankLine", "\n", {{L"s", L"k", kNone}}, {L"s", L"k", L"v"}, "\n[s]\nk=v\n"},
    {"TextOnly",
     "Dear diary,\nnothing happened.\n",
     {{L"s", L"k", kNone}},
     {L"s", L"k", L"v"},
     "Dear diary,\nnothing happened.\n\n[s]\nk=v\n"},
    {"ForeignEncodingKey",
     "[s]\nEncoding=ISO-8859-1\nk=v\n",
     {{L"s", L"Encoding", L"ISO-8859-1"}, {L"s", L"k", L"v"}},
     {L"s", L"Encoding", L"UTF-16"},
     "[s]\nEncoding=UTF-16\nk=v\n"},
    {"Translations",
     "[s]\nName=File\nName[de]=Datei\nName[de_DE@euro]=Akte\nName[gr\xC3\xB6\xC3\x9F]=g\n",
     {{L"s", L"Name", L"File"},
      {L"s", L"Name[de]", L"Datei"},
      {L"s", L"Name[de_DE@euro]", L"Akte"},
      {L"s", L"Name[größ]", L"g"}},
     {L"s", L"Name[de]", L"Ordner"},
     "[s]\nName=File\nName[de]=Ordner\nName[de_DE@euro]=Akte\nName[gr\xC3\xB6\xC3\x9F]=g\n"},
    {"BrokenTranslations",
     "[s]\nName[de=1\nName]=2\nName[d e]=3\nName[de]x=4\nName[\xC4\xAD]=5\nName [de]=6\nk=v\n",
     {{L"s", L"Name[de", kNone},
      {L"s", L"Name]", kNone},
      {L"s", L"Name[d e]", kNone},
      {L"s", L"Name[de]x", kNone},
      {L"s", L"Name[\u012D]", L"5"},
      {L"s", L"Name [de]", kNone},
      {L"s", L"k", L"v"}},
     {L"s", L"Name]", L"7"},
     "[s]\nName[de=1\nName]=2\nName[d e]=3\nName[de]x=4\nName[\xC4\xAD]=5\nName [de]=6\nk=v\nName%5D=7\n"},
    {"NamesNotEncoded",
     "[100%]\n50%=half\na%=b\n%zz=y\n%u{}=z\n%u{110000}x=w\n",
     {{L"100%", L"50%", L"half"},
      {L"100%", L"a%", L"b"},
      {L"100%", L"%zz", L"y"},
      {L"100%", L"%u{}", L"z"},
      {L"100%", L"\x110000x", L"w"}},
     {L"100%", L"50%", L"more"},
     "[100%]\n50%=more\na%=b\n%zz=y\n%u{}=z\n%u{110000}x=w\n"},
    {"NewKeyInASectionNotEncoded",
     "[100%]\na=1\n\n[t]\n",
     {{L"100%", L"a", L"1"}},
     {L"100%", L"b%", L"2"},
     "[100%]\na=1\nb%25=2\n\n[t]\n"},
    {"NewKeyInTheSectionOfOurOwnName",
     "[s]\na=1\n[%73]\nb=2\n",
     {{L"s", L"a", L"1"}, {L"s", L"b", L"2"}},
     {L"s", L"c", L"3"},
     "[s]\na=1\nc=3\n[%73]\nb=2\n"},
    {"NewKeyInTheLastSectionOfOtherNames",
     "[%73]\na=1\n[%u{73}]\nb=2\n",
     {{L"s", L"a", L"1"}, {L"s", L"b", L"2"}},
     {L"s", L"c", L"3"},
     "[%73]\na=1\n[%u{73}]\nb=2\nc=3\n"},
    {"NamesEncodedNeedlessly", "[%53]\n%4b=v\n", {{L"S", L"K", L"v"}}, {L"S", L"K", L"w"}, "[%53]\n%4b=w\n"},
    {"OwnNameWinsOverOthers",
     "[s]\na%25=own\na%=other\n",
     {{L"s", L"a%", L"own"}},
     {L"s", L"a%", L"new"},
     "[s]\na%25=new\na%=other\n"},
    {"LastOfSeveralOtherNamesCounts",
     "[s]\n%61=1\n[%73]\na=2\n%61=3\n",
     {{L"s", L"a", L"3"}},
     {L"s", L"a", L"4"},
     "[s]\n%61=1\n[%73]\na=2\n%61=4\n"},
    {"SectionNameWithBlanks",
     "[ s ]\nk=v\n",
     {{L" s ", L"k", L"v"}, {L"s", L"k", kNone}},
     {L" s ", L"k", L"w"},
     "[ s ]\nk=w\n"},
    {"WindowsPaths",
     "[s]\na=C:\\new\\table\nb=\"C:\\\\new\"\nc=\"C:\\new\"\n",
     {{L"s", L"a", L"C:\\new\\table"}, {L"s", L"b", L"C:\\new"}, {L"s", L"c", L"C:\new"}},
     {L"s", L"a", L"D:\\"},
     "[s]\na=D:\\\nb=\"C:\\\\new\"\nc=\"C:\\new\"\n"},
    {"QuotesNotWellFormed",
     "[s]\na=\"\nb=\"x\nc=\"a\"b\"\nd=\"\\q\"\ne=\"\\\"\nf=\"\\x4\"\ng=\"\\u{}\"\nh=\"\\u41\"\ni=\"\\x00\"\n",
     {{L"s", L"a", L"\""},
      {L"s", L"b", L"\"x"},
      {L"s", L"c", L"\"a\"b\""},
      {L"s", L"d", L"\"\\q\""},
      {L"s", L"e", L"\"\\\""},
      {L"s", L"f", L"\"\\x4\""},
      {L"s", L"g", L"\"\\u{}\""},
      {L"s", L"h", L"\"\\u41\""},
      {L"s", L"i", L"\"\\x00\""}},
     {L"s", L"b", L"\"x"},
     "[s]\na=\"\nb=\"x\nc=\"a\"b\"\nd=\"\\q\"\ne=\"\\\"\nf=\"\\x4\"\ng=\"\\u{}\"\nh=\"\\u41\"\ni=\"\\x00\"\n"},
    {"QuotesByHand",
     "[s]\na=\"\"\nb=\" x \"\nc=\"\\t\\x41\\u{1F600}\"  \n",
     {{L"s", L"a", L""}, {L"s", L"b", L" x "}, {L"s", L"c", L"\tA\U0001F600"}},
     {L"s", L"a", L"y"},
     "[s]\na=y\nb=\" x \"\nc=\"\\t\\x41\\u{1F600}\"  \n"},
    {"RawControlCharacters",
     "[s]\na\tb=c\td\ne=\x01\n",
     {{L"s", L"a\tb", L"c\td"}, {L"s", L"e", L"\x01"}},
     {L"s", L"a\tb", L"x"},
     "[s]\na\tb=x\ne=\x01\n"},
    {"ControlInSectionName",
     "[a\tb]\nk=1\n[s]\nk=2\n",
     {{L"a\tb", L"k", kNone}, {L"s", L"k", L"2"}},
     {L"a\tb", L"k", L"3"},
     "[a\tb]\nk=1\n[s]\nk=2\n\n[a%09b]\nk=3\n"},
    {"Latin1",
     "[caf\xE9]\ncaf\xE9=\xE9\n",
     {{L"caf\xDCE9", L"caf\xDCE9", L"\xDCE9"}},
     {L"caf\xDCE9", L"caf\xDCE9", L"tea"},
     "[caf\xE9]\ncaf\xE9=tea\n"},
    {"CutUtf8",
     "[s]\nk=\xE2\x82\n\xE2=\xE2\n",
     {{L"s", L"k", L"\xDCE2\xDC82"}, {L"s", L"\xDCE2", L"\xDCE2"}},
     {L"s", L"l", L"x"},
     "[s]\nk=\xE2\x82\n\xE2=\xE2\nl=x\n"},
    {"ZerosAtTheEnd",
     "[s]\na=1\nb=2\n\0\0\0\0\0\0"s,
     {{L"s", L"a", L"1"}, {L"s", L"b", L"2"}},
     {L"s", L"a", L"3"},
     "[s]\na=3\nb=2\n\0\0\0\0\0\0"s},
    {"ZerosAtTheEndAndANewSection",
     "[s]\na=1\n\0\0\0"s,
     {{L"s", L"a", L"1"}},
     {L"t", L"b", L"2"},
     "[s]\na=1\n\0\0\0\n\n[t]\nb=2\n"s},
    {"ZerosFromTheMiddleOfALine",
     "[s]\na=1\nb=22\0\0\0\0"s,
     {{L"s", L"a", L"1"}, {L"s", L"b", kNone}},
     {L"s", L"b", L"3"},
     "[s]\na=1\nb=3\nb=22\0\0\0\0"s},
    {"ZerosInASectionName",
     "[a]\nk=1\n[b\0]\nk=2\n"s,
     {{L"a", L"k", L"1"}, {L"b", L"k", kNone}},
     {L"a", L"k", L"3"},
     "[a]\nk=3\n[b\0]\nk=2\n"s},
    {"ZerosInAComment", "[a]\n# \0 c\nk=1\n"s, {{L"a", L"k", L"1"}}, {L"a", L"k", L"3"}, "[a]\n# \0 c\nk=3\n"s},
    {"MacLineEnds", "[s]\rk=v\r", {{L"s", L"k", kNone}}, {L"s", L"k", L"w"}, "[s]\rk=v\r\n\n[s]\nk=w\n"},
    {"CarriageReturnLast", "[s]\r\nk=v\r", {{L"s", L"k", L"v"}}, {L"s", L"k", L"w"}, "[s]\r\nk=w"},
    {"EmptyKeyAndSectionOnFile", "[%]\n%=v\n", {{L"", L"", L"v"}}, {L"", L"", L"w"}, "[%]\n%=w\n"},
};

using ADirtyFile = testing::TestWithParam<DirtyFile>;

TEST_P(ADirtyFile, IsReadAsFarAsItCanBe)
{
    TempFolder folder;
    WriteFile(folder / "a.ini", GetParam().before);
    Ini ini;
    EXPECT_TRUE(ini.Load(folder / "a.ini"));
    for (const Value& value : GetParam().reads)
        EXPECT_EQ(ini.Get(value.section, value.key), value.value);
}

TEST_P(ADirtyFile, StaysAsItIsWhenNothingChanges)
{
    TempFolder folder;
    WriteFile(folder / "a.ini", GetParam().before);
    const struct stat before = StatusOf(folder / "a.ini");
    EXPECT_TRUE(Ini(folder / "a.ini").Save(folder / "a.ini"));
    const struct stat after = StatusOf(folder / "a.ini");
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_ctim.tv_nsec, before.st_ctim.tv_nsec);
    EXPECT_TRUE(Ini(folder / "a.ini").Save(folder / "copy.ini"));
    EXPECT_EQ(ReadFile(folder / "copy.ini"), GetParam().before);
}

TEST_P(ADirtyFile, ChangesInTheChangedLineOnly)
{
    TempFolder folder;
    WriteFile(folder / "a.ini", GetParam().before);
    const Value& write = GetParam().write;
    {
        Ini ini(folder / "a.ini");
        ini.Set(write.section, write.key, write.value);
        EXPECT_EQ(ini.Get(write.section, write.key), write.value);
        ASSERT_TRUE(ini.Save(folder / "a.ini"));
    }
    EXPECT_EQ(ReadFile(folder / "a.ini"), GetParam().after);
    const Ini ini(folder / "a.ini");
    EXPECT_EQ(ini.Get(write.section, write.key), write.value);
}

TEST_P(ADirtyFile, ChangesAlikeThroughTheDefaultStore)
{
    TempUserData data;
    WriteFile(data / "settings.ini", GetParam().before);
    for (const Value& value : GetParam().reads)
        EXPECT_EQ(Stored(value.section, value.key), value.value);
    const Value& write = GetParam().write;
    ASSERT_TRUE(CLocalRegStore::WriteString(write.section, write.key, write.value));
    EXPECT_EQ(ReadFile(data / "settings.ini"), GetParam().after);
    EXPECT_EQ(Stored(write.section, write.key), write.value);
}

INSTANTIATE_TEST_SUITE_P(, ADirtyFile, testing::ValuesIn(kFiles), [](const auto& info) { return info.param.name; });

struct Deletion
{
    const char* name;
    const char* before;
    const char* after;
};

using DeletingAKey = UserDataTestWithParam<Deletion>;

TEST_P(DeletingAKey, RemovesAllItsLinesAndNothingElse)
{
    WriteFile(data / "settings.ini", GetParam().before);
    EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"s", L"k%"));
    EXPECT_EQ(ReadFile(data / "settings.ini"), GetParam().after);
    EXPECT_EQ(Stored(L"s", L"k%"), L"(none)");
}

INSTANTIATE_TEST_SUITE_P(
    , DeletingAKey,
    testing::Values(Deletion{"OneLine", "# c\n[s]\n# d\nk%25=v\nl=w\n", "# c\n[s]\n# d\nl=w\n"},
                    Deletion{"TheLastLine", "[s]\nl=w\nk%25=v", "[s]\nl=w\n"},
                    Deletion{"TheOnlyKey", "[s]\nk%25=v\n\n[t]\nk%25=v\n", "[s]\n\n[t]\nk%25=v\n"},
                    Deletion{"CarriageReturns", "[s]\r\nk%25=v\r\nl=w\r\n", "[s]\r\nl=w\r\n"},
                    Deletion{"Twice", "[s]\nk%25=1\nl=w\nk%25=2\n[s]\nk%25=3\n", "[s]\nl=w\n[s]\n"},
                    Deletion{"OtherNames", "[s]\nk%=1\nk%25=2\nl=w\n[%73]\nk%=3\nk%25=4\n", "[s]\nl=w\n[%73]\n"},
                    Deletion{"Absent", "[s]\nl = w\n", "[s]\nl = w\n"},
                    Deletion{"AnotherCase", "[s]\nK%25=1\n[S]\nk%25=2\n", "[s]\nK%25=1\n[S]\nk%25=2\n"}),
    [](const auto& info) { return info.param.name; });

// A name of 24 letters k can be written in many ways. Returns one of them: each bit of @a n says whether a letter is
// written as it is (1) or encoded (0).
std::string NthName(unsigned n)
{
    std::string name;
    for (int bit = 0; bit < 24; ++bit)
        name += n >> bit & 1U ? "k" : "%6b";
    return name;
}

TEST(DeletingAKeyOfManyNames, TakesLinearTimeInTheNamesThatItHas)
{
    TempUserData data;
    std::string bytes = "[s]\n";
    for (unsigned n = 0; n < 20'000; ++n)
        bytes += NthName(n) + "=v\n";
    WriteFile(data / "settings.ini", bytes + "l=w\n");
    const auto remove = [] { EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"s", std::wstring(24, L'k').c_str())); };
    EXPECT_LT(ProcessorSeconds(remove), 10);
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nl=w\n");
}

// Changed and new values leave all other lines in place.
TEST(ManyChanges, GoWhereTheyBelong)
{
    TempFolder folder;
    WriteFile(folder / "a.ini", "# head\n[a]\nx=1 \n\n[b]\ny = 2\n; tail\n");
    {
        Ini ini(folder / "a.ini");
        ini.Set(L"c", L"n", L"1");
        ini.Set(L"b", L"new", L"2");
        ini.Set(L"a", L"x", L"3");
        ini.Set(L"b", L"y", L"4");
        ini.Set(L"c", L"m", L"5");
        ini.Set(L"a", L"new", L"6");
        ini.Set(L"a", L"newer", L"7");
        ini.Set(L"c", L"n", L"8");
        ASSERT_TRUE(ini.Save(folder / "a.ini"));
    }
    EXPECT_EQ(ReadFile(folder / "a.ini"),
              "# head\n[a]\nx=3\nnew=6\nnewer=7\n\n[b]\ny = 4\nnew=2\n; tail\n\n[c]\nn=8\nm=5\n");
}

TEST(SettingAValueToWhatItIs, LeavesItAsItWasTyped)
{
    TempFolder folder;
    const std::string typed = "[s]\nk = \"plain\"  \n%6c=1\n";
    WriteFile(folder / "a.ini", typed);
    Ini ini(folder / "a.ini");
    ini.Set(L"s", L"k", L"plain");
    ini.Set(L"s", L"l", L"1");
    ASSERT_TRUE(ini.Save(folder / "b.ini"));
    EXPECT_EQ(ReadFile(folder / "b.ini"), typed);
}

TEST(AFileThatNamesAnEncoding, IsReadAsAnyOther)
{
    TempFolder folder;
    WriteFile(folder / "a.ini", "[%%]\nEncoding=latin1\n");
    Ini ini(folder / "a.ini");
    EXPECT_EQ(ini.Get(L"%%", L"Encoding"), L"latin1");
    ini.Set(L"s", L"k", L"v");
    ASSERT_TRUE(ini.Save(folder / "a.ini"));
    EXPECT_EQ(ReadFile(folder / "a.ini"), "[%%]\nEncoding=latin1\n\n[s]\nk=v\n");
}

TEST(AFileThatHoldsNoText, IsSetAsideWhenANewOneIsSaved)
{
    TempFolder folder;
    const std::string files[] = {std::string(4096, '\0'), "\xFF\xFE[\0s\0]\0\n\0"s, "\xFE\xFF\x4E\x2D\x65\x87",
                                 "\177ELF\0\0[s"s};
    for (const std::string& bytes : files) {
        WriteFile(folder / "a.ini", bytes);
        Ini ini;
        EXPECT_FALSE(ini.Load(folder / "a.ini"));
        EXPECT_EQ(ini.Get(L"s", L"k"), kNone);
        EXPECT_TRUE(ini.Save(folder / "a.ini"));
        EXPECT_EQ(ReadFile(folder / "a.ini"), bytes);
        EXPECT_FALSE(std::filesystem::exists(folder / "a.ini.unreadable"));

        ini.Set(L"s", L"k", L"v");
        EXPECT_TRUE(ini.Save(folder / "a.ini"));
        EXPECT_EQ(ReadFile(folder / "a.ini"), "[s]\nk=v\n");
        EXPECT_EQ(ReadFile(folder / "a.ini.unreadable"), bytes);

        ini.Set(L"s", L"k", L"w");
        EXPECT_TRUE(ini.Save(folder / "a.ini"));
        EXPECT_EQ(ReadFile(folder / "a.ini"), "[s]\nk=w\n");
        EXPECT_FALSE(std::filesystem::exists(folder / "a.ini.unreadable.2"));
        std::filesystem::remove(folder / "a.ini.unreadable");
    }
}

TEST(AFileThatHoldsNoText, IsSetAsideUnderANewNameEachTime)
{
    TempUserData data;
    for (const char* bytes : {"one", "two", "three"}) {
        WriteFile(data / "settings.ini", bytes + "\0"s);
        EXPECT_EQ(Stored(L"s", L"k"), kNone);
        EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"s", L"k"));
        EXPECT_EQ(ReadFile(data / "settings.ini"), bytes + "\0"s);
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
        EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nk=v\n");
    }
    EXPECT_EQ(ReadFile(data / "settings.ini.unreadable"), "one\0"s);
    EXPECT_EQ(ReadFile(data / "settings.ini.unreadable.2"), "two\0"s);
    EXPECT_EQ(ReadFile(data / "settings.ini.unreadable.3"), "three\0"s);
}

TEST(AFileThatHoldsNoText, IsNoLongerInTheWayOnceItIsReplaced)
{
    TempFolder folder;
    WriteFile(folder / "a.ini", std::string(10, '\0'));
    Ini ini;
    EXPECT_FALSE(ini.Load(folder / "a.ini"));
    ini.Set(L"s", L"k", L"v");
    WriteFile(folder / "b.ini", "[t]\nk=w\n");
    std::filesystem::rename(folder / "b.ini", folder / "a.ini");
    EXPECT_TRUE(ini.Save(folder / "a.ini"));
    EXPECT_EQ(ReadFile(folder / "a.ini"), "[s]\nk=v\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "a.ini.unreadable"));
}

}  // namespace
