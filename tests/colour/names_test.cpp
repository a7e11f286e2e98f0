// The look-up of the colours' names. This program replaces the function of the platform library that looks up a text.
// The replacement records each call, and can throw or return null.

#include <array>
#include <atomic>
#include <chrono>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <fittings/platform/lng_util.h>
#include <tests/colour/popup/open_popup.h>

namespace {

struct LookUp
{
    std::wstring key;
    CLanguageDomain* domain;
    const wchar_t* answer;
};

std::mutex g_mutex;
std::vector<LookUp> g_lookUps;
std::wstring g_throwAt;
std::atomic<bool> g_slow{false};
bool g_knowsMoreColours = true;

const wchar_t* Translated(const wchar_t* key)
{
    const std::wstring text = key;
    if (text == L"Dark blue" || text == L"Automatic" || (text == L"More Colours..." && !g_knowsMoreColours))
        return nullptr;
    if (text == L"Plum")
        return L"Zwetschge";
    // Give two colours the same name.
    if (text == L"Rose" || text == L"Pink")
        return L"Rosa";
    return key;
}

}  // namespace

// Replaces the platform library's function, and records its calls.
const wchar_t* lng_util_internal::DoGetResourceString(const wchar_t* key, CLanguageDomain* domain)
{
    // Give another thread the time to look up the same name.
    if (g_slow)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    const std::lock_guard lock(g_mutex);
    g_lookUps.push_back({key, domain, Translated(key)});
    if (key == g_throwAt)
        throw std::runtime_error("no translation today");
    return g_lookUps.back().answer;
}

namespace {

// A process builds the table of colours only once. Therefore SetUpTestSuite() makes the calls that fail to build it and
// then the calls that build it. The tests check the look-ups that were recorded during these calls.
class ColourNames : public testing::Test
{
protected:
    struct Threads
    {
        std::array<const ColourTableEntry*, 8> tables{};
        std::vector<LookUp> lookUps;
    };

    static void SetUpTestSuite()
    {
        g_throwAt = L"Orange";
        for (int i = 0; i < 2; ++i) {
            EXPECT_THROW(GetColourTable(), std::runtime_error);
            s_failed.push_back(std::exchange(g_lookUps, {}));
        }
        EXPECT_THROW(GetColourName(0), std::runtime_error);
        s_failed.push_back(std::exchange(g_lookUps, {}));
        g_throwAt.clear();
        AskByEightThreads();
    }

    static void AskByEightThreads()
    {
        g_slow = true;
        std::atomic<int> ready{0};
        std::vector<std::thread> threads;
        for (auto& table : s_threads.tables) {
            threads.emplace_back([&] {
                ++ready;
                while (ready < 8)
                    std::this_thread::yield();
                table = GetColourTable();
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        g_slow = false;
        s_threads.lookUps = std::exchange(g_lookUps, {});
    }

    // Passes the popup a text, and returns its hot cell.
    static int HotAfter(const PopupInFrame& popup, const wxString& text)
    {
        popup->SetStringValue(text);
        return popup->m_nCurrentSel;
    }

    static std::vector<std::vector<LookUp>> s_failed;
    static Threads s_threads;
};

std::vector<std::vector<LookUp>> ColourNames::s_failed;
ColourNames::Threads ColourNames::s_threads;

TEST_F(ColourNames, AreLookedUpAgainAfterAFailure)
{
    ASSERT_EQ(s_failed.size(), 3U);
    for (const auto& lookUps : s_failed) {
        // Each call looks up the names from the first one to the one whose look-up throws.
        ASSERT_EQ(lookUps.size(), 10U);
        EXPECT_EQ(lookUps.front().key, L"Black");
        EXPECT_EQ(lookUps.back().key, L"Orange");
    }
}

TEST_F(ColourNames, AreLookedUpOnceByEightThreads)
{
    EXPECT_EQ(s_threads.lookUps.size(), 40U);
    for (const ColourTableEntry* const table : s_threads.tables) {
        EXPECT_NE(table, nullptr);
        EXPECT_EQ(table, s_threads.tables[0]);
    }
    g_lookUps.clear();
    EXPECT_EQ(GetColourTable(), s_threads.tables[0]);
    EXPECT_STREQ(GetColourName(39), L"White");
    EXPECT_TRUE(g_lookUps.empty());
}

TEST_F(ColourNames, AreLookedUpInOrderByTheirKeys)
{
    ASSERT_EQ(s_threads.lookUps.size(), 40U);
    EXPECT_EQ(s_threads.lookUps[0].key, L"Black");
    EXPECT_EQ(s_threads.lookUps[1].key, L"Brown");
    EXPECT_EQ(s_threads.lookUps[2].key, L"Dark Olive Green");
    EXPECT_EQ(s_threads.lookUps[35].key, L"Pale green ");
    EXPECT_EQ(s_threads.lookUps[39].key, L"White");
    for (int i = 0; i < 40; ++i) {
        if (i != 5 && i != 24 && i != 30 && i != 32) {
            EXPECT_STREQ(GetColourName(i), s_threads.lookUps[i].key.c_str());
        }
    }
}

TEST_F(ColourNames, AreThePlatformsOwnTexts)
{
    EXPECT_EQ(GetColourName(3), s_threads.lookUps.at(3).answer);
    EXPECT_EQ(GetColourName(39), s_threads.lookUps.at(39).answer);
}

TEST_F(ColourNames, AreLookedUpInOneDomainThatNamesNone)
{
    CLanguageDomain* const domain = s_threads.lookUps.at(0).domain;
    ASSERT_NE(domain, nullptr);
    EXPECT_EQ(domain->GetName(), L"");
    for (const LookUp& lookUp : s_threads.lookUps)
        EXPECT_EQ(lookUp.domain, domain);
    for (const auto& lookUps : s_failed)
        EXPECT_EQ(lookUps[0].domain, domain);

    g_lookUps.clear();
    const OpenPopup popup;
    ASSERT_EQ(g_lookUps.size(), 2U);
    EXPECT_EQ(g_lookUps[0].key, L"Automatic");
    EXPECT_EQ(g_lookUps[0].domain, domain);
    EXPECT_EQ(g_lookUps[1].key, L"More Colours...");
    EXPECT_EQ(g_lookUps[1].domain, domain);
}

TEST_F(ColourNames, ThatAreMissingAreEmpty)
{
    EXPECT_EQ(GetColourName(5), nullptr);
    EXPECT_EQ(GetColourTable()[5].szName, nullptr);
    const PopupInFrame popup;
    popup->m_nCurrentSel = 5;
    EXPECT_EQ(popup->GetStringValue(), "");
    popup->m_nCurrentSel = 6;
    EXPECT_EQ(popup->GetStringValue(), "Indigo");
}

TEST_F(ColourNames, ThatAreMissingEqualNoText)
{
    const PopupInFrame popup;
    popup->m_nCurrentSel = 1;
    EXPECT_EQ(HotAfter(popup, ""), 1);
    EXPECT_EQ(HotAfter(popup, "Indigo"), 6);
}

TEST_F(ColourNames, AreFoundByTheirTextAndNotByTheirKey)
{
    const PopupInFrame popup;
    popup->m_nCurrentSel = 1;
    EXPECT_EQ(HotAfter(popup, "Plum"), 1);
    EXPECT_EQ(HotAfter(popup, "Zwetschge"), 30);
}

TEST_F(ColourNames, ThatAreAlikeAreThatOfTheFirst)
{
    const PopupInFrame popup;
    EXPECT_EQ(HotAfter(popup, "Rosa"), 24);
    popup->m_nCurrentSel = 32;
    EXPECT_EQ(popup->GetStringValue(), "Rosa");
}

TEST_F(ColourNames, AreNotNeededForTheColours)
{
    const PopupInFrame popup;
    EXPECT_EQ(popup->GetColour(5), wxColour(0, 0, 139));
    popup->FindCellFromColour(wxColour(0, 0, 139));
    EXPECT_EQ(popup->m_nChosenColourSel, 5);
}

TEST_F(ColourNames, OfABoxThatAreMissingLeaveItOut)
{
    const PopupInFrame popup;
    EXPECT_EQ(popup->m_strAutomatic, "");
    EXPECT_EQ(popup->m_strMoreColours, "More Colours...");
    EXPECT_EQ(popup->GetRow(CELL_AUTOMATIC), -1);

    g_knowsMoreColours = false;
    const PopupInFrame bare;
    g_knowsMoreColours = true;
    EXPECT_EQ(bare->m_strMoreColours, "");
    EXPECT_EQ(bare->GetRow(CELL_MORE_COLOURS), -1);
    EXPECT_EQ(bare->GetSize(), wxSize(148, 94));
}

}  // namespace
