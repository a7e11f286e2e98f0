// Texts with characters that have a meaning in an INI file. The store encodes these characters where they would be
// misread.

#include <fittings/platform/local_reg_store.h>

#include <set>
#include <string>

#include <gtest/gtest.h>

#include <tests/platform/store/store_support.h>
#include <tests/support/file_status.h>
#include <tests/support/temp_folder.h>

namespace {

struct Triple
{
    const char* name;
    const wchar_t* section;
    const wchar_t* key;
    const wchar_t* value;
    const char* file;  // the expected content of the whole file
};

const Triple kTriples[] = {
    {"Plain", L"Section", L"Key", L"value", "[Section]\nKey=value\n"},
    {"AllEmpty", L"", L"", L"", "[%]\n%=\n"},
    {"EmptySection", L"", L"k", L"v", "[%]\nk=v\n"},
    {"EmptyKey", L"s", L"", L"v", "[s]\n%=v\n"},
    {"PercentKey", L"s", L"%", L"v", "[s]\n%25=v\n"},
    {"PercentSection", L"%", L"k", L"v", "[%25]\nk=v\n"},
    {"EncodedLookingKey", L"s", L"%25", L"v", "[s]\n%2525=v\n"},
    {"BraceLookingKey", L"s", L"%u{41}", L"v", "[s]\n%25u{41}=v\n"},
    {"EqualsInKey", L"s", L"a=b", L"v", "[s]\na%3Db=v\n"},
    {"EqualsAloneAsKey", L"s", L"=", L"v", "[s]\n%3D=v\n"},
    {"EqualsInSection", L"a=b", L"k", L"v", "[a%3Db]\nk=v\n"},
    {"EqualsInValue", L"s", L"equals", L"=a=b=", "[s]\nequals==a=b=\n"},
    {"OpeningBracketSection", L"[", L"k", L"v", "[%5B]\nk=v\n"},
    {"ClosingBracketSection", L"]", L"k", L"v", "[%5D]\nk=v\n"},
    {"BracketedSection", L"[s]", L"k", L"v", "[%5Bs%5D]\nk=v\n"},
    {"BracketedKey", L"s", L"[k]", L"v", "[s]\n%5Bk%5D=v\n"},
    {"TranslationLikeKey", L"s", L"Name[de]", L"v", "[s]\nName%5Bde%5D=v\n"},
    {"BracketedValue", L"s", L"bracketed", L"[v]", "[s]\nbracketed=[v]\n"},
    {"HashKey", L"s", L"#k", L"v", "[s]\n%23k=v\n"},
    {"HashInKey", L"s", L"k#", L"v", "[s]\nk#=v\n"},
    {"HashSection", L"#s", L"k", L"v", "[%23s]\nk=v\n"},
    {"HashValue", L"s", L"hash", L"# no comment", "[s]\nhash=# no comment\n"},
    {"SemicolonKey", L"s", L";k", L"v", "[s]\n%3Bk=v\n"},
    {"SemicolonInKey", L"s", L"k;l", L"v", "[s]\nk;l=v\n"},
    {"SemicolonValue", L"s", L"semicolon", L"a;b;", "[s]\nsemicolon=a;b;\n"},
    {"QuoteValue", L"s", L"quote", L"\"", "[s]\nquote=\"\\\"\"\n"},
    {"QuotedValue", L"s", L"quoted", L"\"a\"", "[s]\nquoted=\"\\\"a\\\"\"\n"},
    {"InnerQuoteValue", L"s", L"inner", L"a \"b\"", "[s]\ninner=a \"b\"\n"},
    {"QuoteKey", L"s", L"\"k\"", L"v", "[s]\n\"k\"=v\n"},
    {"BackslashValue", L"s", L"backslash", L"C:\\new\\", "[s]\nbackslash=C:\\new\\\n"},
    {"BackslashAloneValue", L"s", L"backslashes", L"\\", "[s]\nbackslashes=\\\n"},
    {"QuotedBackslashValue", L"s", L"both", L"\"C:\\new", "[s]\nboth=\"\\\"C:\\\\new\"\n"},
    {"BackslashKey", L"s", L"a\\b", L"v", "[s]\na\\b=v\n"},
    {"SlashKey", L"a/b", L"c/d", L"v", "[a/b]\nc/d=v\n"},
    {"SlashSplitElsewhere", L"a", L"b/c/d", L"w", "[a]\nb/c/d=w\n"},
    {"PercentValue", L"s", L"percent", L"100% %41", "[s]\npercent=100% %41\n"},
    {"LeadingBlankValue", L"s", L"leading", L" v", "[s]\nleading=\" v\"\n"},
    {"TrailingBlankValue", L"s", L"trailing", L"v ", "[s]\ntrailing=\"v \"\n"},
    {"BlankValue", L"s", L"blank", L" ", "[s]\nblank=\" \"\n"},
    {"InnerBlanks", L"My Section", L"my key", L"my  value", "[My Section]\nmy key=my  value\n"},
    {"LeadingBlankKey", L"s", L" k", L"v", "[s]\n%20k=v\n"},
    {"TrailingBlankKey", L"s", L"k ", L"v", "[s]\nk%20=v\n"},
    {"BlankKey", L"s", L" ", L"v", "[s]\n%20=v\n"},
    {"BlankEdgesSection", L" s ", L"k", L"v", "[%20s%20]\nk=v\n"},
    {"NewLineValue", L"s", L"lines", L"a\nb\n", "[s]\nlines=\"a\\nb\\n\"\n"},
    {"CarriageReturnValue", L"s", L"returns", L"a\r\nb\r", "[s]\nreturns=\"a\\r\\nb\\r\"\n"},
    {"TabValue", L"s", L"tab", L"a\tb", "[s]\ntab=\"a\\tb\"\n"},
    {"InjectedSectionValue", L"s", L"inject", L"v\n[t]\nk=w", "[s]\ninject=\"v\\n[t]\\nk=w\"\n"},
    {"NewLineKey", L"s", L"a\nb", L"v", "[s]\na%0Ab=v\n"},
    {"NewLineSection", L"a]\n[b", L"k", L"v", "[a%5D%0A%5Bb]\nk=v\n"},
    {"TabKey", L"s", L"\tk", L"v", "[s]\n%09k=v\n"},
    {"ControlValue", L"s", L"control", L"\x01\x1B\x7F", "[s]\ncontrol=\"\\x01\\x1B\\x7F\"\n"},
    {"ControlKey", L"s", L"\x01\x1F\x7F", L"v", "[s]\n%01%1F%7F=v\n"},
    {"SecondControlValue", L"s", L"nel", L"\x85\x9F", "[s]\nnel=\"\\u{85}\\u{9F}\"\n"},
    {"SecondControlKey", L"s", L"\x85", L"v", "[s]\n%u{85}=v\n"},
    {"VerticalTabValue", L"s", L"vertical", L"\v\f", "[s]\nvertical=\"\\x0B\\x0C\"\n"},
    {"Accents", L"Größe", L"Höhe", L"später", "[Gr\xC3\xB6\xC3\x9F\x65]\nH\xC3\xB6he=sp\xC3\xA4ter\n"},
    {"Combining", L"s", L"e\u0301", L"e\u0301", "[s]\ne\xCC\x81=e\xCC\x81\n"},
    {"Precomposed", L"s", L"\u00E9", L"\u00E9", "[s]\n\xC3\xA9=\xC3\xA9\n"},
    {"Cjk", L"設定", L"鍵", L"値", "[\xE8\xA8\xAD\xE5\xAE\x9A]\n\xE9\x8D\xB5=\xE5\x80\xA4\n"},
    {"Astral", L"s", L"\U0001F600", L"\U0010FFFF", "[s]\n\xF0\x9F\x98\x80=\xF4\x8F\xBF\xBF\n"},
    {"NoBreakBlank", L"s", L"\u00A0", L"\u00A0v\u2003", "[s]\n\xC2\xA0=\xC2\xA0v\xE2\x80\x83\n"},
    {"ByteOrderMark", L"\uFEFF", L"\uFEFFk", L"\uFEFF", "[\xEF\xBB\xBF]\n\xEF\xBB\xBFk=\xEF\xBB\xBF\n"},
    {"NonCharacter", L"s", L"\uFFFF", L"\uFFFE", "[s]\n\xEF\xBF\xBF=\xEF\xBF\xBE\n"},
    {"LineSeparator", L"s", L"\u2028", L"\u2028", "[s]\n\xE2\x80\xA8=\xE2\x80\xA8\n"},
    {"HighSurrogate", L"s", L"\xD800", L"\xD800", "[s]\n%u{D800}=\"\\u{D800}\"\n"},
    {"LowSurrogate", L"\xDFFF", L"k", L"a\xDFFF", "[%u{DFFF}]\nk=\"a\\u{DFFF}\"\n"},
    {"SurrogatePair", L"s", L"\xD83D\xDE00", L"\xD83D\xDE00", "[s]\n%u{D83D}%u{DE00}=\"\\u{D83D}\\u{DE00}\"\n"},
    {"ByteSurrogates", L"s", L"\xDC80\xDCFF", L"\xDCC3\xDCA9", "[s]\n%80%FF=\"\\xC3\\xA9\"\n"},
    {"BesideByteSurrogates", L"s", L"\xDC7F\xDD00", L"\xDC7F\xDD00", "[s]\n%u{DC7F}%u{DD00}=\"\\u{DC7F}\\u{DD00}\"\n"},
    {"AboveUnicode", L"s", L"\x110000", L"\x110000", "[s]\n%u{110000}=\"\\u{110000}\"\n"},
    {"HighestOfSigned", L"s", L"\x7FFFFFFF", L"\x7FFFFFFF", "[s]\n%u{7FFFFFFF}=\"\\u{7FFFFFFF}\"\n"},
    {"HighestOfAll", L"\xFFFFFFFF", L"k", L"\xFFFFFFFF", "[%u{FFFFFFFF}]\nk=\"\\u{FFFFFFFF}\"\n"},
    {"EncodingKey", L"First", L"Encoding", L"latin1", "[First]\nEncoding=latin1\n"},
    {"EscapeLookingValue", L"s", L"escape", L"\\x41\\u{42}\\n", "[s]\nescape=\\x41\\u{42}\\n\n"},
    {"DotsAndDashes", L"..", L"-", L"--", "[..]\n-=--\n"},
    {"TwoPercents", L"%%", L"k", L"v", "[%25%25]\nk=v\n"},
    {"Long", L"s", L"a key of some length that is longer than any short buffer would be, by far", L"v",
     "[s]\na key of some length that is longer than any short buffer would be, by far=v\n"},
};

class AHostileTriple : public UserDataTestWithParam<Triple>
{
protected:
    const Triple& triple = GetParam();
};

TEST_P(AHostileTriple, ComesBackFromAFile)
{
    TempFolder folder;
    Ini ini;
    ini.Set(triple.section, triple.key, triple.value);
    EXPECT_EQ(ini.Get(triple.section, triple.key), triple.value);
    ASSERT_TRUE(ini.Save(folder / "a.ini"));
    EXPECT_EQ(ReadFile(folder / "a.ini"), triple.file);
    Ini again;
    EXPECT_TRUE(again.Load(folder / "a.ini"));
    EXPECT_EQ(again.Get(triple.section, triple.key), triple.value);
}

TEST_P(AHostileTriple, ComesBackFromTheDefaultStore)
{
    ASSERT_TRUE(CLocalRegStore::WriteString(triple.section, triple.key, triple.value));
    EXPECT_EQ(Stored(triple.section, triple.key), triple.value);
    EXPECT_EQ(ReadFile(data / "settings.ini"), triple.file);
    ASSERT_TRUE(CLocalRegStore::DeleteProfile(triple.section, triple.key));
    EXPECT_EQ(Stored(triple.section, triple.key), L"(none)");
}

// The inode number of the file changes with every save, because the new file is made while the old one still exists.
TEST_P(AHostileTriple, IsNotWrittenAgainUnchanged)
{
    ASSERT_TRUE(CLocalRegStore::WriteString(triple.section, triple.key, triple.value));
    const ino_t file = StatusOf(data / "settings.ini").st_ino;
    ASSERT_TRUE(CLocalRegStore::WriteString(triple.section, triple.key, triple.value));
    EXPECT_EQ(StatusOf(data / "settings.ini").st_ino, file);
}

TEST_P(AHostileTriple, TakesThePlaceOfALongerAndAShorterOne)
{
    const std::wstring value = triple.value;
    for (const std::wstring& other : {value + L"x", value.substr(0, value.size() - !value.empty())}) {
        ASSERT_TRUE(CLocalRegStore::WriteString(triple.section, triple.key, other.c_str()));
        EXPECT_EQ(Stored(triple.section, triple.key), other);
        ASSERT_TRUE(CLocalRegStore::WriteString(triple.section, triple.key, triple.value));
        EXPECT_EQ(Stored(triple.section, triple.key), value);
    }
}

INSTANTIATE_TEST_SUITE_P(, AHostileTriple, testing::ValuesIn(kTriples),
                         [](const auto& info) { return info.param.name; });

TEST(HostileTriples, ShareNoSlotOfAFile)
{
    TempFolder folder;
    std::set<std::pair<std::wstring, std::wstring>> names;
    {
        Ini ini;
        for (const Triple& triple : kTriples) {
            EXPECT_TRUE(names.emplace(triple.section, triple.key).second) << triple.name;
            EXPECT_EQ(ini.Get(triple.section, triple.key), L"(none)") << triple.name;
            ini.Set(triple.section, triple.key, triple.value);
        }
        ASSERT_TRUE(ini.Save(folder / "a.ini"));
    }
    const Ini ini(folder / "a.ini");
    for (const Triple& triple : kTriples)
        EXPECT_EQ(ini.Get(triple.section, triple.key), triple.value) << triple.name;
}

TEST(HostileTriples, ShareNoSlotOfTheDefaultStore)
{
    TempUserData data;
    for (const Triple& triple : kTriples)
        ASSERT_TRUE(CLocalRegStore::WriteString(triple.section, triple.key, triple.value)) << triple.name;
    for (const Triple& triple : kTriples)
        EXPECT_EQ(Stored(triple.section, triple.key), triple.value) << triple.name;
    for (const Triple& triple : kTriples) {
        ASSERT_TRUE(CLocalRegStore::DeleteProfile(triple.section, triple.key));
        EXPECT_EQ(Stored(triple.section, triple.key), L"(none)") << triple.name;
    }
}

TEST(AValueOfMegabytes, ComesBack)
{
    TempFolder folder;
    const std::wstring plain(3'000'000, L'x');
    const std::wstring quoted(1'000'000, L'\n');
    const std::wstring name(100'000, L'=');
    {
        Ini ini;
        ini.Set(L"s", L"plain", plain.c_str());
        ini.Set(L"s", L"quoted", quoted.c_str());
        ini.Set(name.c_str(), name.c_str(), L"v");
        ASSERT_TRUE(ini.Save(folder / "a.ini"));
    }
    const Ini ini(folder / "a.ini");
    EXPECT_TRUE(ini.Get(L"s", L"plain") == plain);
    EXPECT_TRUE(ini.Get(L"s", L"quoted") == quoted);
    EXPECT_EQ(ini.Get(name.c_str(), name.c_str()), L"v");
}

struct NarrowCase
{
    const char* name;
    const char* text;
    const wchar_t* wide;
};

using NarrowText = UserDataTestWithParam<NarrowCase>;

TEST_P(NarrowText, ComesBackByteForByteAsSectionKeyAndValue)
{
    const char* const text = GetParam().text;
    ASSERT_TRUE(CLocalRegStore::WriteString(text, text, text));
    EXPECT_EQ(CLocalRegStore::GetString(text, text, "default"), text);
    EXPECT_EQ(Stored(GetParam().wide, GetParam().wide), GetParam().wide);
    ASSERT_TRUE(CLocalRegStore::WriteString(GetParam().wide, GetParam().wide, L"changed"));
    EXPECT_EQ(CLocalRegStore::GetString(text, text, "default"), "changed");
}

INSTANTIATE_TEST_SUITE_P(, NarrowText,
                         testing::Values(NarrowCase{"Empty", "", L""}, NarrowCase{"Ascii", "plain", L"plain"},
                                         NarrowCase{"Utf8", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", L"é€\U0001F600"},
                                         NarrowCase{"Latin1", "caf\xE9", L"caf\xDCE9"},
                                         NarrowCase{"LoneContinuation", "\x80\xBF", L"\xDC80\xDCBF"},
                                         NarrowCase{"CutShort", "\xE2\x82", L"\xDCE2\xDC82"},
                                         NarrowCase{"Overlong", "\xC0\xAF", L"\xDCC0\xDCAF"},
                                         NarrowCase{"EncodedSurrogate", "\xED\xA0\x80", L"\xDCED\xDCA0\xDC80"},
                                         NarrowCase{"AboveUnicode", "\xF4\x90\x80\x80", L"\xDCF4\xDC90\xDC80\xDC80"},
                                         NarrowCase{"AllOnes", "\xFE\xFF", L"\xDCFE\xDCFF"}),
                         [](const auto& info) { return info.param.name; });

// Valid UTF-8 does not contain these characters. A narrow text can contain them: each is encoded by the rules
// of UTF-8, in up to seven bytes. The wide text stays the same.
TEST(WideText, ThatIsNoUnicodeIsReadableAsNarrowText)
{
    TempUserData data;
    ASSERT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"\xD800|\x110000|\xFFFFFFFF"));
    EXPECT_EQ(CLocalRegStore::GetString("s", "k", ""), "\xED\xA0\x80|\xF4\x90\x80\x80|\xFE\x83\xBF\xBF\xBF\xBF\xBF");
    EXPECT_EQ(Stored(L"s", L"k"), L"\xD800|\x110000|\xFFFFFFFF");
}

}  // namespace
