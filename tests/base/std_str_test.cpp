#include <fittings/base/std_str.h>

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

namespace {

using Text = CStdStr<wchar_t>;

const wchar_t* const kNull = nullptr;

Text PassThrough(const Text& text)
{
    return text;
}

TEST(StdStr, FromANullPointerIsEmpty)
{
    const Text text(kNull);
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(std::wstring(text.c_str()), L"");
}

TEST(StdStr, BecomesEmptyWhenANullPointerIsAssigned)
{
    Text text(L"something");
    text = kNull;
    EXPECT_TRUE(text.empty());
}

TEST(StdStr, TakesAnArgumentThatIsANullPointer)
{
    EXPECT_EQ(PassThrough(kNull), L"");
}

TEST(StdStr, HoldsWhatItIsMadeFrom)
{
    EXPECT_EQ(Text(L"abc"), L"abc");
    EXPECT_EQ(Text(std::wstring(L"a\0b", 3)).size(), 3u);
    std::wstring source(200, L'x');
    const wchar_t* buffer = source.data();
    const Text moved(std::move(source));
    EXPECT_EQ(moved.size(), 200u);
    EXPECT_EQ(moved.data(), buffer);
}

TEST(StdStr, TakesTheTextOfAPointer)
{
    Text text;
    text = L"first";
    EXPECT_EQ(text, L"first");
    EXPECT_EQ(&(text = L"second"), &text);
    EXPECT_EQ(text, L"second");
}

// The text is too long to be stored inside the object. An assignment that frees the old buffer too early would
// therefore read freed memory.
TEST(StdStr, SurvivesAssignmentFromItsOwnBuffer)
{
    Text text(L"0123456789012345678901234567890123456789");
    text = text.c_str();
    EXPECT_EQ(text, L"0123456789012345678901234567890123456789");
    text = text.c_str() + 30;
    EXPECT_EQ(text, L"0123456789");
    text = text.c_str() + 9;
    EXPECT_EQ(text, L"9");
    text = text.c_str() + 1;
    EXPECT_EQ(text, L"");
}

TEST(StdStr, SurvivesAssignmentOfItself)
{
    Text text(L"0123456789012345678901234567890123456789");
    const Text& same = text;
    text = same;
    EXPECT_EQ(text, L"0123456789012345678901234567890123456789");
}

TEST(StdStr, IsAStandardString)
{
    static_assert(std::is_convertible_v<Text, std::wstring>);
    static_assert(std::is_base_of_v<std::wstring, Text>);
    Text text(L"12");
    text += L"34";
    EXPECT_EQ(std::stoi(text), 1234);
    const std::wstring standard = text;
    EXPECT_EQ(standard, L"1234");
}

TEST(StdStr, IsMadeAsAStandardStringIs)
{
    const std::wstring source(L"abcdef");
    EXPECT_EQ(Text(L"abc", 2), L"ab");
    EXPECT_EQ(Text(3, L'x'), L"xxx");
    EXPECT_EQ(Text(source.begin() + 1, source.end()), L"bcdef");
    EXPECT_EQ(Text(source, 4), L"ef");
    EXPECT_EQ(Text(source, 1, 2), L"bc");
    EXPECT_EQ((Text{L'a', L'b'}), L"ab");
    EXPECT_EQ(Text(std::wstring_view(L"abc")), L"abc");
}

TEST(StdStr, IsEmptyOfWhatHoldsNothing)
{
    EXPECT_TRUE(Text{}.empty());
    EXPECT_TRUE(Text(nullptr).empty());
    Text text(L"something");
    text = nullptr;
    EXPECT_TRUE(text.empty());
    text = L"something";
    text = {};
    EXPECT_TRUE(text.empty());
}

TEST(StdStr, IsMadeOfNarrowCharactersToo)
{
    CStdStr<char> text(static_cast<const char*>(nullptr));
    EXPECT_EQ(text, "");
    text = "abc";
    EXPECT_EQ(text, "abc");
}

}  // namespace
