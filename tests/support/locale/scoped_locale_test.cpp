#include <tests/support/locale/scoped_locale.h>

#include <cwchar>
#include <cwctype>
#include <langinfo.h>
#include <string>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace {

std::string Point()
{
    return localeconv()->decimal_point;
}

std::string Thousands()
{
    return localeconv()->thousands_sep;
}

TEST(ScopedLocale, HasTheSeparatorsOfItsLanguage)
{
    {
        const ScopedLocale german("de_DE.UTF-8");
        EXPECT_EQ(Point(), ",");
        EXPECT_EQ(Thousands(), ".");
    }
    {
        const ScopedLocale french("fr_FR.UTF-8");
        EXPECT_EQ(Point(), ",");
        EXPECT_EQ(Thousands(), "\xE2\x80\xAF");
    }
    {
        const ScopedLocale pashto("ps_AF.UTF-8");
        EXPECT_EQ(Point(), "\xD9\xAB");
        EXPECT_EQ(Thousands(), "\xD9\xAC");
        EXPECT_EQ(std::wcstod(L"1\u066B5", nullptr), 1.5);
    }
}

TEST(ScopedLocale, EndsWithItsScope)
{
    const std::string before = setlocale(LC_ALL, nullptr);
    {
        const ScopedLocale german("de_DE.UTF-8");
        const ScopedLocale pashto("ps_AF.UTF-8");
    }
    EXPECT_EQ(setlocale(LC_ALL, nullptr), before);
}

TEST(ScopedLocale, ChangesOneCategoryWhenAsked)
{
    const ScopedLocale plain("C");
    const ScopedLocale pashto("ps_AF.UTF-8", LC_NUMERIC);
    EXPECT_EQ(Point(), "\xD9\xAB");
    EXPECT_STREQ(setlocale(LC_CTYPE, nullptr), "C");
}

TEST(ScopedLocale, LeavesTheSystemsUtf8LocaleInReach)
{
    const ScopedLocale german("de_DE.UTF-8");
    const ScopedLocale utf8("C.UTF-8");
    EXPECT_STREQ(nl_langinfo(CODESET), "UTF-8");
    EXPECT_TRUE(std::iswspace(0x2003));
    EXPECT_EQ(Point(), ".");
}

TEST(ScopedLocale, FailsTheTestWithoutSuchALocale)
{
    EXPECT_NONFATAL_FAILURE(ScopedLocale("xx_XX.UTF-8"), "xx_XX.UTF-8");
}

}  // namespace
