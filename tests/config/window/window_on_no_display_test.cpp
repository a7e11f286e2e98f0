// A window that is on no display according to the toolkit.

#include <fittings/config/wx_window_state.h>

#include <vector>

#include <gtest/gtest.h>
#include <wx/display.h>

#include <fittings/platform/local_reg_store.h>
#include <tests/config/window/spy_window.h>
#include <tests/support/gui.h>
#include <tests/support/replaced_function.h>
#include <tests/support/temp_folder.h>

namespace {

// The results of the next calls of wxDisplay::GetFromWindow(). The last element is returned first.
std::vector<int> g_answers;

}  // namespace

// Replaces the toolkit's function: returns the next prepared result, or calls the toolkit's function if there is none.
int wxDisplay::GetFromWindow(const wxWindow* window)
{
    if (!g_answers.empty()) {
        const int answer = g_answers.back();
        g_answers.pop_back();
        return answer;
    }
    static const auto original = ReplacedFunction<int(const wxWindow*)>("_ZN9wxDisplay13GetFromWindowEPK8wxWindow");
    return original(window);
}

namespace {

// The first two recorded calls apply the stored geometry. The third call moves the frame to (0, 0).
TEST(WindowOnNoDisplay, IsMovedToTheFirstAndStaysThereIfThatDoesNotHelp)
{
    const TempUserData data;
    CLocalRegStore::WriteString(L"wxWindowState", L"w", L"100;100;300;200");
    SpyFrame frame;
    g_answers = {wxNOT_FOUND, wxNOT_FOUND};
    EXPECT_FALSE(wx_window_state::LoadState(&frame, L"w"));
    EXPECT_TRUE(g_answers.empty());
    EXPECT_EQ(frame.TakeCalls(), (SizeCalls{"100;100;300;200 4", "100;100;-1;-1 0", "0;0;-1;-1 0"}));
}

TEST(WindowOnNoDisplay, IsClippedWhereTheMoveHelps)
{
    const TempUserData data;
    CLocalRegStore::WriteString(L"wxWindowState", L"w", L"100;100;300;200");
    SpyFrame frame;
    g_answers = {0, wxNOT_FOUND};
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
    EXPECT_TRUE(g_answers.empty());
    EXPECT_EQ(frame.TakeCalls(), (SizeCalls{"100;100;300;200 4", "100;100;-1;-1 0", "0;0;-1;-1 0", "16;24;284;176 3"}));
}

TEST(WindowThatIsNotCreated, IsOnNoDisplay)
{
    const TempUserData data;
    CLocalRegStore::WriteString(L"wxWindowState", L"w", L"100;100;300;200");
    const ExpectAssertions theToolkits;
    wxPanel panel;
    EXPECT_FALSE(wx_window_state::LoadState(&panel, L"w"));
    wxFrame frame;
    EXPECT_FALSE(wx_window_state::LoadState(&frame, L"w"));
}

}  // namespace
