#include <fittings/config/ui_config_mgr.h>

#include <climits>
#include <stdexcept>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/support/locale/scoped_locale.h>
#include <tests/support/temp_folder.h>

namespace {

void StoreText(const std::wstring& text)
{
    ui_config_mgr::WriteConfigString(L"n.ini", L"Numbers", L"n", text.c_str());
}

int Read()
{
    return ui_config_mgr::GetConfigInt(L"n.ini", L"Numbers", L"n");
}

struct Written
{
    const char* name;
    int value;
    const wchar_t* text;
};

using WriteConfigInt = UserDataTestWithParam<Written>;

TEST_P(WriteConfigInt, StoresDecimalText)
{
    ui_config_mgr::WriteConfigInt(L"n.ini", L"Numbers", L"n", GetParam().value);
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"n.ini", L"Numbers", L"n"), GetParam().text);
    EXPECT_EQ(Read(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(, WriteConfigInt,
                         testing::Values(Written{"Zero", 0, L"0"}, Written{"MinusFive", -5, L"-5"},
                                         Written{"Seven", 7, L"7"}, Written{"Ungrouped", 1234567, L"1234567"},
                                         Written{"Largest", INT_MAX, L"2147483647"},
                                         Written{"Smallest", INT_MIN, L"-2147483648"}),
                         [](const auto& info) { return info.param.name; });

struct Stored
{
    const char* name;
    const wchar_t* text;
    int value;
};

using GetConfigInt = UserDataTestWithParam<Stored>;

TEST_P(GetConfigInt, Gives)
{
    StoreText(GetParam().text);
    EXPECT_EQ(Read(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    , GetConfigInt,
    testing::Values(Stored{"Empty", L"", 0}, Stored{"Digits", L"12", 12}, Stored{"BlankBefore", L" 12", 12},
                    Stored{"AnyWhiteSpaceBefore", L"\t\r\n\v\f 12", 12}, Stored{"UnitBehind", L"12px", 12},
                    Stored{"TextBehind", L"42abc", 42}, Stored{"BlankBehind", L"12 34", 12},
                    Stored{"Negative", L"-12", -12}, Stored{"PlusSign", L"+12", 12}, Stored{"Fraction", L"1.9", 1},
                    Stored{"Grouped", L"1,234", 1}, Stored{"ZerosBefore", L"007", 7}, Stored{"Hexadecimal", L"0x10", 0},
                    Stored{"MinusZero", L"-0", 0}, Stored{"Largest", L"2147483647", INT_MAX},
                    Stored{"Smallest", L"-2147483648", INT_MIN}),
    [](const auto& info) { return info.param.name; });

TEST(IntegerInALocaleThatGroups, IsWrittenAndReadWithoutGroups)
{
    const TempUserData data;
    for (const auto& [name, grouped] : {std::pair("de_DE.UTF-8", L"1.234"), std::pair("ps_AF.UTF-8", L"1\u066C234")}) {
        const ScopedLocale locale(name);
        ui_config_mgr::WriteConfigInt(L"n.ini", L"Numbers", L"n", -1234567);
        EXPECT_EQ(ui_config_mgr::GetConfigString(L"n.ini", L"Numbers", L"n"), L"-1234567") << name;
        EXPECT_EQ(Read(), -1234567) << name;
        StoreText(grouped);
        EXPECT_EQ(Read(), 1) << name;
    }
}

TEST(MissingInteger, IsZero)
{
    const TempUserData data;
    EXPECT_EQ(Read(), 0);
    StoreText(L"5");
    EXPECT_EQ(ui_config_mgr::GetConfigInt(L"n.ini", L"Numbers", L"absent"), 0);
    EXPECT_EQ(ui_config_mgr::GetConfigInt(L"n.ini", L"absent", L"n"), 0);
    EXPECT_EQ(ui_config_mgr::GetConfigInt(L"absent.ini", L"Numbers", L"n"), 0);
}

struct Bad
{
    const char* name;
    std::wstring text;
};

using NoInteger = UserDataTestWithParam<Bad>;

TEST_P(NoInteger, ThrowsInvalidArgument)
{
    StoreText(GetParam().text);
    EXPECT_THAT(&Read, testing::ThrowsMessage<std::invalid_argument>("stoi"));
}

INSTANTIATE_TEST_SUITE_P(, NoInteger,
                         testing::Values(Bad{"Letters", L"abc"}, Bad{"LoneSign", L"-"}, Bad{"BlanksAlone", L"   "},
                                         Bad{"TwoSigns", L"--1"}, Bad{"SignApart", L"- 5"}, Bad{"UnitFirst", L"px12"},
                                         Bad{"PointFirst", L".5"}, Bad{"ArabicDigits", L"\u0661\u0662"}),
                         [](const auto& info) { return info.param.name; });

using IntegerOutOfRange = UserDataTestWithParam<Bad>;

TEST_P(IntegerOutOfRange, ThrowsOutOfRange)
{
    StoreText(GetParam().text);
    EXPECT_THAT(&Read, testing::ThrowsMessage<std::out_of_range>("stoi"));
}

INSTANTIATE_TEST_SUITE_P(, IntegerOutOfRange,
                         testing::Values(Bad{"ElevenNines", L"99999999999"}, Bad{"OneTooLarge", L"2147483648"},
                                         Bad{"OneTooSmall", L"-2147483649"}, Bad{"BeyondLong", L"9223372036854775808"},
                                         Bad{"BelowLong", L"-9223372036854775809"},
                                         Bad{"ThousandDigits", std::wstring(1000, L'7')},
                                         Bad{"TextBehind", L"99999999999px"}),
                         [](const auto& info) { return info.param.name; });

}  // namespace
