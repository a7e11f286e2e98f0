// For each cell and key: which cell becomes hot, and whether the selection ends.

#include <map>
#include <ostream>
#include <vector>

#include <gtest/gtest.h>

#include <tests/colour/colour_listener.h>
#include <tests/colour/combo/combo_on_screen.h>
#include <tests/colour/popup/open_popup.h>

namespace {

constexpr int A = CELL_AUTOMATIC;
constexpr int M = CELL_MORE_COLOURS;
constexpr int N = CELL_NONE;

// Returns whether the popup handled the key and did not skip the event.
bool Press(wxWindow& window, int key)
{
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.m_keyCode = key;
    event.SetEventObject(&window);
    return window.ProcessWindowEvent(event);
}

struct Step
{
    int from;
    int to;
};

struct Boxes
{
    const char* name;
    bool automatic;
    bool more;
    std::map<int, std::vector<Step>> steps;  // by key code
};

void PrintTo(const Boxes& boxes, std::ostream* out)
{
    *out << boxes.name;
}

class ColourKeys : public testing::TestWithParam<Boxes>
{
};

TEST_P(ColourKeys, LeadFromCellToCell)
{
    const PopupInFrame popup([](OpenPopup& made) {
        if (!GetParam().automatic)
            made.m_strAutomatic.clear();
        if (!GetParam().more)
            made.m_strMoreColours.clear();
    });
    for (const auto& [key, steps] : GetParam().steps) {
        for (const Step& step : steps) {
            popup->m_nCurrentSel = step.from;
            EXPECT_TRUE(Press(*popup.popup, key));
            EXPECT_EQ(popup->m_nCurrentSel, step.to) << "key " << key << " from " << step.from;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    , ColourKeys,
    testing::Values(Boxes{"BothBoxes",
                          true,
                          true,
                          {{WXK_DOWN, {{A, 0}, {M, A}, {N, M}, {0, 8}, {7, 15}, {31, 39}, {32, M}, {35, M}, {39, M}}},
                           {WXK_UP, {{A, M}, {M, 39}, {N, A}, {0, A}, {7, A}, {8, 0}, {15, 7}, {39, 31}}},
                           {WXK_RIGHT, {{A, 0}, {M, A}, {N, M}, {0, 1}, {6, 7}, {7, 8}, {31, 32}, {38, 39}, {39, M}}},
                           {WXK_LEFT, {{A, M}, {M, 39}, {N, A}, {0, A}, {1, 0}, {8, 7}, {32, 31}, {39, 38}}}}},
                    Boxes{"MoreColoursOnly",
                          false,
                          true,
                          {{WXK_DOWN, {{M, 0}, {N, M}, {0, 8}, {32, M}, {39, M}, {A, M}}},
                           {WXK_UP, {{M, 39}, {N, M}, {0, M}, {7, M}, {8, 0}, {A, M}}},
                           {WXK_RIGHT, {{M, 0}, {N, M}, {7, 8}, {39, M}}},
                           {WXK_LEFT, {{M, 39}, {N, M}, {0, M}, {8, 7}}}}},
                    Boxes{"AutomaticOnly",
                          true,
                          false,
                          {{WXK_DOWN, {{A, 0}, {N, A}, {0, 8}, {32, A}, {39, A}}},
                           {WXK_UP, {{A, 39}, {N, A}, {0, A}, {3, A}, {8, 0}}},
                           {WXK_RIGHT, {{A, 0}, {N, A}, {7, 8}, {39, A}}},
                           {WXK_LEFT, {{A, 39}, {N, A}, {0, A}, {8, 7}}}}},
                    Boxes{"NoBox",
                          false,
                          false,
                          {{WXK_DOWN, {{N, 0}, {0, 8}, {32, 0}, {39, 0}}},
                           {WXK_UP, {{N, 39}, {0, 39}, {5, 39}, {8, 0}}},
                           {WXK_RIGHT, {{N, 0}, {7, 8}, {39, 0}}},
                           {WXK_LEFT, {{N, 39}, {0, 39}, {8, 7}}}}}),
    [](const auto& info) { return info.param.name; });

TEST(ColourKeysInTheGrid, MoveByOneCell)
{
    const PopupInFrame popup;
    for (int row = 0; row < 5; ++row) {
        for (int col = 0; col < 8; ++col) {
            const auto next = [&](int key) {
                popup->m_nCurrentSel = 8 * row + col;
                Press(*popup.popup, key);
                return popup->m_nCurrentSel;
            };
            EXPECT_EQ(next(WXK_DOWN), row < 4 ? 8 * row + col + 8 : M);
            EXPECT_EQ(next(WXK_UP), row > 0 ? 8 * row + col - 8 : A);
            EXPECT_EQ(next(WXK_RIGHT), row < 4 || col < 7 ? 8 * row + col + 1 : M);
            EXPECT_EQ(next(WXK_LEFT), row > 0 || col > 0 ? 8 * row + col - 1 : A);
        }
    }
}

TEST(ColourKeysInTheGrid, KnowAPartialLastRow)
{
    const PopupInFrame popup;
    popup->m_nNumColours = 37;
    const auto next = [&](int key, int from) {
        popup->m_nCurrentSel = from;
        Press(*popup.popup, key);
        return popup->m_nCurrentSel;
    };
    EXPECT_EQ(next(WXK_DOWN, 28), 36);
    EXPECT_EQ(next(WXK_DOWN, 29), M);
    EXPECT_EQ(next(WXK_RIGHT, 36), M);
    EXPECT_EQ(next(WXK_UP, M), 36);
    EXPECT_EQ(next(WXK_LEFT, M), 36);
}

TEST(ColourKeysForward, GoRoundAllCells)
{
    const PopupInFrame popup;
    ColourListener listener(*popup.popup);
    popup->m_nCurrentSel = A;
    for (int i = 0; i < 40; ++i) {
        Press(*popup.popup, WXK_RIGHT);
        EXPECT_EQ(popup->m_nCurrentSel, i);
    }
    Press(*popup.popup, WXK_RIGHT);
    EXPECT_EQ(popup->m_nCurrentSel, M);
    Press(*popup.popup, WXK_RIGHT);
    EXPECT_EQ(popup->m_nCurrentSel, A);
    const ColourCalls calls = listener.Take();
    ASSERT_EQ(calls.size(), 42u);
    EXPECT_EQ(calls[0], "change #000000");
    EXPECT_EQ(calls[1], "change #A52A00");
    EXPECT_EQ(calls[39], "change #FFFFFF");
}

class EndingKey : public testing::TestWithParam<int>
{
};

TEST_P(EndingKey, ChoosesTheHotCell)
{
    const ComboOnScreen<> on;
    ColourListener listener(*on.popup);
    on.popup->ChangeSelection(16);
    EXPECT_TRUE(Press(*on.popup, GetParam()));
    EXPECT_EQ(listener.Take(), (ColourCalls{"change #FF0000", "end #FF0000"}));
    EXPECT_EQ(on.popup->m_nChosenColourSel, 16);
}

INSTANTIATE_TEST_SUITE_P(, EndingKey, testing::Values(WXK_RETURN, WXK_NUMPAD_ENTER, WXK_SPACE));

TEST(ColourKeysEscape, Cancels)
{
    const ComboOnScreen<> on;
    ColourListener listener(*on.popup);
    on.popup->SetInitialColour(*wxBLUE);
    on.popup->ChangeSelection(16);
    EXPECT_TRUE(Press(*on.popup, WXK_ESCAPE));
    EXPECT_EQ(listener.Take(), (ColourCalls{"change #FF0000", "cancel #0000FF"}));
    EXPECT_EQ(on.popup->m_nChosenColourSel, -1);
}

TEST(ColourKeysOther, AreIgnored)
{
    const ComboOnScreen<> on;
    ColourListener listener(*on.popup);
    on.popup->m_nCurrentSel = 16;
    for (const int key : {int('a'), int(WXK_TAB), int(WXK_HOME), int(WXK_END), int(WXK_PAGEDOWN), int(WXK_F4),
                          int(WXK_NUMPAD_DOWN), int(WXK_NUMPAD_SPACE), int(WXK_DELETE)})
        EXPECT_FALSE(Press(*on.popup, key)) << key;
    EXPECT_EQ(listener.Take(), ColourCalls());
    EXPECT_EQ(on.popup->m_nCurrentSel, 16);
}

}  // namespace
