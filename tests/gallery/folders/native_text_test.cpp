#include <gallery/folders/native_text.h>

#include <random>

#include <gtest/gtest.h>

namespace {

using namespace gallery;

TEST(DisplayText, KeepsText)
{
    EXPECT_EQ(DisplayText("caf\u00E9 %41 | \U0001F600"), wxString::FromUTF8("caf\u00E9 %41 | \U0001F600"));
    EXPECT_EQ(DisplayText(""), "");
}

TEST(DisplayText, ReplacesEachByteThatIsNoText)
{
    EXPECT_EQ(DisplayText("caf\xE9"), wxString::FromUTF8("caf\uFFFD"));
    EXPECT_EQ(DisplayText("\xFF\xFE"), wxString::FromUTF8("\uFFFD\uFFFD"));
    EXPECT_EQ(DisplayText("a\xE2\x82"), wxString::FromUTF8("a\uFFFD\uFFFD"));
}

TEST(DisplayText, ShowsControlCharactersAsPictures)
{
    EXPECT_EQ(DisplayText("a\nb\x01\x7F"), wxString::FromUTF8("a\u240Ab\u2401\u2421"));
}

TEST(TextFromPath, EncodesWhatIsNotPlain)
{
    EXPECT_EQ(TextFromPath("/home/caf\u00E9"), L"/home/caf\u00E9");
    EXPECT_EQ(TextFromPath("100%|a"), L"100%25%7Ca");
    EXPECT_EQ(TextFromPath("\xFFz\n"), L"%FFz%0A");
}

TEST(PathFromText, DecodesWhatIsEncoded)
{
    EXPECT_EQ(PathFromText(L"100%25%7ca"), "100%|a");
    EXPECT_EQ(PathFromText(L"%FFz%0A"), "\xFFz\n");
}

TEST(PathFromText, KeepsWhatIsNoEncoding)
{
    EXPECT_EQ(PathFromText(L"100%"), "100%");
    EXPECT_EQ(PathFromText(L"%4"), "%4");
    EXPECT_EQ(PathFromText(L"%zz%%41"), "%zz%A");
}

TEST(PathsAndTexts, AreTheSameBytesAfterwards)
{
    std::mt19937 random(7);
    for (int round = 0; round < 10000; ++round) {
        std::string path;
        for (unsigned length = random() % 24; length > 0; --length)
            path += static_cast<char>(1 + random() % 255);
        const std::wstring text = TextFromPath(path);
        ASSERT_EQ(PathFromText(text), path);
        ASSERT_EQ(text.find(L'|'), std::wstring::npos);
    }
}

TEST(HumanSize, CountsInThousands)
{
    EXPECT_EQ(HumanSize(0), "0 bytes");
    EXPECT_EQ(HumanSize(1), "1 byte");
    EXPECT_EQ(HumanSize(999), "999 bytes");
    EXPECT_EQ(HumanSize(1000), wxString::FromUTF8("1.0\u00A0kB"));
    EXPECT_EQ(HumanSize(148897792), wxString::FromUTF8("148.9\u00A0MB"));
    EXPECT_EQ(HumanSize(18446744073709551615u), wxString::FromUTF8("18.4\u00A0EB"));
}

TEST(ExactSize, TellsTheBytes)
{
    EXPECT_EQ(ExactSize(12), "12 bytes");
    EXPECT_EQ(ExactSize(1234), wxString::FromUTF8("1.2\u00A0kB (1\u00A0234 bytes)"));
}

TEST(Counted, HasOneAndMany)
{
    EXPECT_EQ(Counted(0, "item", "items"), "0 items");
    EXPECT_EQ(Counted(1, "item", "items"), "1 item");
    EXPECT_EQ(Counted(2, "item", "items"), "2 items");
}

}  // namespace
