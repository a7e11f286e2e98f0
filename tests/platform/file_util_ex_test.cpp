#include <fittings/platform/file_util_ex.h>

#include <algorithm>
#include <clocale>
#include <filesystem>
#include <limits>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <tests/support/file_status.h>
#include <tests/support/process/processor_time.h>
#include <tests/support/temp_folder.h>

namespace {

using file_util_ex::ConvertFromUTF8W;
using file_util_ex::ConvertToUTF8;

struct Join
{
    const wchar_t* dir;
    const wchar_t* name;
    const wchar_t* expected;
};

using MakePath = testing::TestWithParam<Join>;

TEST_P(MakePath, JoinsWithOneSeparator)
{
    EXPECT_EQ(file_util_ex::MakePath(GetParam().dir, GetParam().name), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    , MakePath,
    testing::Values(Join{L"/a", L"b", L"/a/b"}, Join{L"/a/", L"b", L"/a/b"}, Join{L"/a", L"/b", L"/a/b"},
                    Join{L"/a/", L"/b", L"/a/b"}, Join{L"/a//", L"//b", L"/a/b"}, Join{L"/", L"b", L"/b"},
                    Join{L"/", L"/b", L"/b"}, Join{L"//", L"b", L"/b"}, Join{L"/", L"/", L"/"}, Join{L"a", L"/", L"a/"},
                    Join{L"a", L"b/", L"a/b/"}, Join{L"a", L"b/c", L"a/b/c"}, Join{L"a", L"..", L"a/.."},
                    Join{L"a\\", L"b", L"a\\/b"}, Join{L"a ", L" b", L"a / b"}, Join{L"", L"b", L"b"},
                    Join{L"", L"/b", L"/b"}, Join{L"/a", L"", L"/a"}, Join{L"/a/", L"", L"/a/"}, Join{L"", L"", L""},
                    Join{nullptr, L"b", L"b"}, Join{L"/a", nullptr, L"/a"}, Join{nullptr, nullptr, L""},
                    Join{L"/\x5E33", L"\x1F4D2", L"/\x5E33/\x1F4D2"}));

// A path, and the expected results of GetPathWithSep() and RemoveBackSlash() for this path.
struct PathEnd
{
    const char* name;
    const wchar_t* path;
    const wchar_t* with;
    const wchar_t* without;
};

using SeparatorAtTheEnd = testing::TestWithParam<PathEnd>;

TEST_P(SeparatorAtTheEnd, IsOneAfterGetPathWithSep)
{
    EXPECT_EQ(file_util_ex::GetPathWithSep(GetParam().path), GetParam().with);
}

TEST_P(SeparatorAtTheEnd, IsGoneAfterRemoveBackSlash)
{
    EXPECT_EQ(file_util_ex::RemoveBackSlash(GetParam().path), GetParam().without);
}

INSTANTIATE_TEST_SUITE_P(, SeparatorAtTheEnd,
                         testing::Values(PathEnd{"Folder", L"/a/b", L"/a/b/", L"/a/b"},
                                         PathEnd{"FolderWithOne", L"/a/b/", L"/a/b/", L"/a/b"},
                                         PathEnd{"FolderWithTwo", L"/a/b//", L"/a/b/", L"/a/b"},
                                         PathEnd{"Relative", L"a", L"a/", L"a"},
                                         PathEnd{"RelativeWithOne", L"a/", L"a/", L"a"},
                                         PathEnd{"Root", L"/", L"/", L"/"}, PathEnd{"TwoSeparators", L"//", L"/", L"/"},
                                         PathEnd{"RelativeWithBackslash", L"a\\", L"a\\/", L"a\\"},
                                         PathEnd{"FolderWithBackslash", L"/a/b\\", L"/a/b\\/", L"/a/b\\"},
                                         PathEnd{"Empty", L"", L"", L""}, PathEnd{"Null", nullptr, L"", L""}),
                         [](const auto& info) { return info.param.name; });

std::wstring Wide(const std::string& path)
{
    return ConvertFromUTF8W(path);
}

TEST(DoesDirExist, IsTrueOfFolders)
{
    const TempFolder folder;
    EXPECT_TRUE(file_util_ex::DoesDirExist(Wide(folder.Path())));
    EXPECT_TRUE(file_util_ex::DoesDirExist(Wide(folder.Path() + "/")));
    EXPECT_TRUE(file_util_ex::DoesDirExist(L"/"));
    EXPECT_TRUE(file_util_ex::DoesDirExist(L"."));
}

TEST(DoesDirExist, IsFalseOfAnythingElse)
{
    const TempFolder folder;
    WriteFile(folder / "file", "");
    EXPECT_FALSE(file_util_ex::DoesDirExist(Wide(folder / "file")));
    EXPECT_FALSE(file_util_ex::DoesDirExist(Wide(folder / "missing")));
    EXPECT_FALSE(file_util_ex::DoesDirExist(L""));
    EXPECT_FALSE(file_util_ex::DoesDirExist(nullptr));
}

TEST(DoesDirExist, FollowsLinks)
{
    const TempFolder folder;
    std::filesystem::create_directory(folder / "real");
    std::filesystem::create_symlink(folder / "real", folder / "link");
    std::filesystem::create_symlink(folder / "missing", folder / "dangling");
    EXPECT_TRUE(file_util_ex::DoesDirExist(Wide(folder / "link")));
    EXPECT_FALSE(file_util_ex::DoesDirExist(Wide(folder / "dangling")));
}

// The system ends a path at a null character. A path that contains one must not be cut there.
TEST(PathWithNul, NamesNoFolder)
{
    const TempFolder folder;
    const std::wstring path = Wide(folder.Path()) + L'\0' + L"x";
    EXPECT_FALSE(file_util_ex::DoesDirExist(path));
    EXPECT_FALSE(file_util_ex::Mkdir(path));
    EXPECT_FALSE(file_util_ex::Mkdir(Wide(folder / "new") + L'\0' + L"x"));
    EXPECT_FALSE(std::filesystem::exists(folder / "new"));
}

// The umask of the process may remove bits of the mode 0700, so these tests set the umask to 0.
class Mkdir : public testing::Test
{
protected:
    Mkdir() : m_mask(umask(0)) {}
    ~Mkdir() override { umask(m_mask); }

    const TempFolder m_folder;

private:
    mode_t m_mask;
};

TEST_F(Mkdir, MakesTheFolderForTheUserAlone)
{
    EXPECT_TRUE(file_util_ex::Mkdir(Wide(m_folder / "a")));
    EXPECT_TRUE(std::filesystem::is_directory(m_folder / "a"));
    EXPECT_EQ(ModeOf(m_folder / "a"), 0700U);
}

TEST_F(Mkdir, MakesTheFoldersAbove)
{
    EXPECT_TRUE(file_util_ex::Mkdir(Wide(m_folder / "a/b/c/")));
    EXPECT_EQ(ModeOf(m_folder / "a"), 0700U);
    EXPECT_EQ(ModeOf(m_folder / "a/b"), 0700U);
    EXPECT_EQ(ModeOf(m_folder / "a/b/c"), 0700U);
}

TEST_F(Mkdir, LeavesAFolderThatExistsAsItIs)
{
    std::filesystem::create_directory(m_folder / "a");
    chmod((m_folder / "a").c_str(), 0755);
    EXPECT_TRUE(file_util_ex::Mkdir(Wide(m_folder / "a")));
    EXPECT_EQ(ModeOf(m_folder / "a"), 0755U);
    EXPECT_TRUE(file_util_ex::Mkdir(L"/"));
}

TEST_F(Mkdir, TakesNamesThatAreNotAsciiInAnyLocale)
{
    // Every program runs in the C locale until it sets another one.
    const std::string locale = setlocale(LC_ALL, nullptr);
    setlocale(LC_ALL, "C");
    EXPECT_TRUE(file_util_ex::Mkdir(Wide(m_folder.Path()) + L"/\x5E33 \x00E4\x1F4D2"));
    EXPECT_TRUE(std::filesystem::is_directory(m_folder / "\xE5\xB8\xB3 \xC3\xA4\xF0\x9F\x93\x92"));
    EXPECT_TRUE(file_util_ex::DoesDirExist(Wide(m_folder.Path()) + L"/\x5E33 \x00E4\x1F4D2"));
    setlocale(LC_ALL, locale.c_str());
}

TEST_F(Mkdir, SaysWhenItCannot)
{
    WriteFile(m_folder / "file", "kept");
    std::filesystem::create_symlink(m_folder / "missing", m_folder / "dangling");
    EXPECT_FALSE(file_util_ex::Mkdir(Wide(m_folder / "file")));
    EXPECT_FALSE(file_util_ex::Mkdir(Wide(m_folder / "file/below")));
    EXPECT_FALSE(file_util_ex::Mkdir(Wide(m_folder / "dangling")));
    EXPECT_FALSE(file_util_ex::Mkdir(Wide(m_folder / std::string(300, 'x'))));
    EXPECT_FALSE(file_util_ex::Mkdir(L""));
    EXPECT_FALSE(file_util_ex::Mkdir(nullptr));
    EXPECT_EQ(ReadFile(m_folder / "file"), "kept");
}

TEST_F(Mkdir, SucceedsInAllThreadsAtOnce)
{
    std::vector<int> results(8);
    std::vector<std::thread> threads;
    for (int& result : results)
        threads.emplace_back([&] { result = file_util_ex::Mkdir(Wide(m_folder / "a/b/c/d/e/f/g/h")); });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(results, std::vector<int>(8, 1));
}

struct Encoding
{
    std::wstring wide;
    std::string utf8;
};

using Utf8 = testing::TestWithParam<Encoding>;

TEST_P(Utf8, EncodesAndDecodes)
{
    EXPECT_EQ(ConvertToUTF8(GetParam().wide), GetParam().utf8);
    EXPECT_EQ(ConvertFromUTF8W(GetParam().utf8), GetParam().wide);
}

INSTANTIATE_TEST_SUITE_P(, Utf8,
                         testing::Values(Encoding{L"", ""}, Encoding{L"/home/u/a\n\x7F", "/home/u/a\n\x7F"},
                                         Encoding{L"\x80\x7FF", "\xC2\x80\xDF\xBF"},
                                         Encoding{L"\x800\xFFFD", "\xE0\xA0\x80\xEF\xBF\xBD"},
                                         Encoding{L"\xD7FF\xE000", "\xED\x9F\xBF\xEE\x80\x80"},
                                         Encoding{L"\xFFFE\xFFFF", "\xEF\xBF\xBE\xEF\xBF\xBF"},
                                         Encoding{L"\x10000\x10FFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
                                         Encoding{L"\xFEFFx", "\xEF\xBB\xBFx"},
                                         Encoding{std::wstring(L"a\0\0b\0", 5), std::string("a\0\0b\0", 5)}));

using NoCharacter = testing::TestWithParam<long>;

TEST_P(NoCharacter, BecomesTheReplacementCharacter)
{
    EXPECT_EQ(ConvertToUTF8(std::wstring{L'a', static_cast<wchar_t>(GetParam()), L'z'}), "a\xEF\xBF\xBDz");
}

INSTANTIATE_TEST_SUITE_P(, NoCharacter,
                         testing::Values(0xD800L, 0xDBFFL, 0xDC00L, 0xDFFFL, 0x110000L, 0x7FFFFFFFL, -1L,
                                         -2147483647L - 1));

// On Linux, a wide character is a whole character, so the two halves of a surrogate pair are two invalid characters.
TEST(SurrogatePair, BecomesTwoReplacementCharacters)
{
    EXPECT_EQ(ConvertToUTF8(std::wstring{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDCD2)}),
              "\xEF\xBF\xBD\xEF\xBF\xBD");
}

struct Broken
{
    std::string bytes;
    std::wstring expected;
};

using NotUtf8 = testing::TestWithParam<Broken>;

TEST_P(NotUtf8, BecomesReplacementCharacters)
{
    EXPECT_EQ(ConvertFromUTF8W(GetParam().bytes), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    , NotUtf8,
    testing::Values(
        // Bytes that cannot start a sequence.
        Broken{"a\x80z", L"a\xFFFDz"}, Broken{"a\xBFz", L"a\xFFFDz"}, Broken{"\xFEz", L"\xFFFDz"},
        Broken{"\xFF\xFF", L"\xFFFD\xFFFD"}, Broken{"\xF8\x88\x80\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD"},
        Broken{"\xE5\xB8\xB3\xB3", L"\x5E33\xFFFD"},
        // Overlong sequences.
        Broken{"\xC0\xAF", L"\xFFFD\xFFFD"}, Broken{"\xC1\xBF", L"\xFFFD\xFFFD"},
        Broken{"\xE0\x80\xAF", L"\xFFFD\xFFFD\xFFFD"}, Broken{"\xE0\x9F\xBF", L"\xFFFD\xFFFD\xFFFD"},
        Broken{"\xF0\x8F\xBF\xBF", L"\xFFFD\xFFFD\xFFFD\xFFFD"},
        // Surrogates, and code points above U+10FFFF.
        Broken{"\xED\xA0\x80", L"\xFFFD\xFFFD\xFFFD"}, Broken{"\xED\xBF\xBF", L"\xFFFD\xFFFD\xFFFD"},
        Broken{"\xF4\x90\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD"},
        Broken{"\xF5\x80\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD"},
        // Incomplete sequences, at the end of the text or before another character.
        Broken{"\xC3", L"\xFFFD"}, Broken{"\xE5\xB8", L"\xFFFD"}, Broken{"\xF0\x9F\x93", L"\xFFFD"},
        Broken{"\xC3z", L"\xFFFDz"}, Broken{"\xE5\xB8z", L"\xFFFDz"}, Broken{"\xF0\x9F\x93z", L"\xFFFDz"},
        Broken{"\xE5\xC3\xA4", L"\xFFFD\xE4"}, Broken{"\xF0\x9F\xE5\xB8\xB3", L"\xFFFD\x5E33"},
        Broken{std::string("\xC3\0z", 3), std::wstring(L"\xFFFD\0z", 3)}));

double SecondsFor(std::size_t characters)
{
    const std::wstring text(characters, L'\x5E33');
    double best = std::numeric_limits<double>::infinity();
    for (int i = 0; i < 5; ++i) {
        std::wstring back;
        best = std::min(best, ProcessorSeconds([&] { back = ConvertFromUTF8W(ConvertToUTF8(text)); }));
        EXPECT_TRUE(back == text);
    }
    return best;
}

// Ten times the text takes about ten times as long. In quadratic time, it would take a hundred times as long.
TEST(Utf8OfMegabytes, IsLinear)
{
    EXPECT_LT(SecondsFor(4000000) / SecondsFor(400000), 40);
}

}  // namespace
