#include <fittings/config/wx_window_state.h>

#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/log.h>

#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>
#include <tests/config/window/spy_window.h>
#include <tests/config/window/stored_geometry.h>
#include <tests/support/gui.h>
#include <tests/support/locale/scoped_locale.h>
#include <tests/support/temp_folder.h>

namespace {

// True if SaveState() for this class of window returns nothing and LoadState() returns a bool.
template <typename Window>
constexpr bool kSavesNothingAndLoadsBool =
    std::is_void_v<decltype(wx_window_state::SaveState(static_cast<Window*>(nullptr), L""))>&&
        std::is_same_v<decltype(wx_window_state::LoadState(static_cast<Window*>(nullptr), L"")), bool>;
static_assert(kSavesNothingAndLoadsBool<wxWindow> && kSavesNothingAndLoadsBool<wxFrame>);

using SaveState = UserDataTest;
using LoadState = UserDataTest;

TEST_F(SaveState, StoresPositionAndSizeOfAWindow)
{
    SpyFrame frame(wxRect(100, 50, 800, 600));
    wx_window_state::SaveState(static_cast<wxWindow*>(&frame), L"Main");
    EXPECT_EQ(StoredGeometry(L"Main"), L"100;50;800;600");
}

TEST_F(SaveState, StoresNegativeCoordinates)
{
    SpyFrame frame;
    frame.SetSize(-1920, -7, 300, 200, wxSIZE_ALLOW_MINUS_ONE);
    wx_window_state::SaveState(&frame, L"Main");
    EXPECT_EQ(StoredGeometry(L"Main"), L"-1920;-7;300;200");
}

TEST_F(SaveState, StoresAChildRelativeToItsParent)
{
    SpyFrame frame(wxRect(300, 200, 400, 300));
    wxPanel first(&frame, wxID_ANY);
    wxPanel panel(&frame, wxID_ANY, wxPoint(30, 40), wxSize(200, 100));
    ASSERT_TRUE(ShowAndSettle(&frame));
    ASSERT_GE(panel.GetScreenPosition().x, 330);
    wx_window_state::SaveState(&panel, L"Panel");
    EXPECT_EQ(StoredGeometry(L"Panel"), L"30;40;200;100");
}

TEST_F(SaveState, StoresTheGeometryOfAFrameAndThenItsFlag)
{
    SpyFrame frame(wxRect(100, 50, 800, 600));
    wx_window_state::SaveState(&frame, L"Main");
    EXPECT_EQ(ReadFile(data / "settings.ini"),
              "[wxWindowState]\nMain=100;50;800;600\n\n[wxWindowMaximize]\nMain=false\n");
}

TEST_F(SaveState, KeepsNamesApart)
{
    SpyFrame one(wxRect(100, 50, 800, 600));
    SpyFrame two(wxRect(200, 80, 500, 400));
    wx_window_state::SaveState(&one, L"one");
    wx_window_state::SaveState(&two, L"two");
    wx_window_state::SaveState(&two, L"");
    EXPECT_EQ(StoredGeometry(L"one"), L"100;50;800;600");
    EXPECT_EQ(StoredGeometry(L"two"), L"200;80;500;400");
    EXPECT_EQ(StoredGeometry(L""), L"200;80;500;400");
}

TEST_F(SaveState, TakesANullNameForTheEmptyOne)
{
    SpyFrame frame(wxRect(100, 50, 800, 600));
    wx_window_state::SaveState(&frame, nullptr);
    EXPECT_EQ(StoredGeometry(L""), L"100;50;800;600");
    SpyFrame other;
    EXPECT_TRUE(wx_window_state::LoadState(&other, nullptr));
    EXPECT_EQ(other.GetRect(), wxRect(100, 50, 800, 600));
}

// A frame that records in which order its state is read.
class AskedFrame : public wxFrame
{
public:
    AskedFrame() : wxFrame(nullptr, wxID_ANY, "asked", wxPoint(300, 200), wxSize(400, 300)) { asked.clear(); }

    bool IsMaximized() const override
    {
        asked += "maximized ";
        return wxFrame::IsMaximized();
    }

    mutable std::string asked;

protected:
    void DoGetSize(int* width, int* height) const override
    {
        asked += "size ";
        wxFrame::DoGetSize(width, height);
    }
    void DoGetPosition(int* x, int* y) const override
    {
        asked += "position ";
        wxFrame::DoGetPosition(x, y);
    }
};

TEST_F(SaveState, AsksAFrameWhetherItIsMaximizedFirst)
{
    AskedFrame frame;
    wx_window_state::SaveState(&frame, L"Main");
    EXPECT_EQ(frame.asked, "maximized size position ");
}

TEST_F(SaveState, AsksAnyWindowForItsGeometryAlone)
{
    AskedFrame frame;
    wx_window_state::SaveState(static_cast<wxWindow*>(&frame), L"Main");
    EXPECT_EQ(frame.asked, "size position ");
    EXPECT_TRUE(CLocalRegStore::GetProfileBool(L"wxWindowMaximize", L"Main", true));
    EXPECT_FALSE(CLocalRegStore::GetProfileBool(L"wxWindowMaximize", L"Main", false));
}

TEST_F(LoadState, BringsAShownFrameBack)
{
    {
        SpyFrame frame;
        ASSERT_TRUE(ShowAndSettle(&frame));
        frame.SetSize(420, 130, 510, 340);
        ASSERT_TRUE(PumpUntil([&] { return frame.GetScreenRect() == wxRect(420, 130, 510, 340); }));
        wx_window_state::SaveState(&frame, L"Main");
    }
    EXPECT_EQ(StoredGeometry(L"Main"), L"420;130;510;340");
    SpyFrame frame;
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"Main"));
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_EQ(frame.GetScreenRect(), wxRect(420, 130, 510, 340));
}

TEST_F(LoadState, BringsADialogBack)
{
    const long style = wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER;
    {
        wxDialog dialog(nullptr, wxID_ANY, "one", wxPoint(250, 150), wxSize(320, 240), style);
        ASSERT_TRUE(ShowAndSettle(&dialog));
        dialog.SetSize(250, 150, 320, 240);
        ASSERT_TRUE(PumpUntil([&] { return dialog.GetScreenRect() == wxRect(250, 150, 320, 240); }));
        wx_window_state::SaveState(&dialog, L"Dialog");
    }
    EXPECT_EQ(StoredGeometry(L"Dialog"), L"250;150;320;240");
    wxDialog dialog(nullptr, wxID_ANY, "two", wxDefaultPosition, wxDefaultSize, style);
    EXPECT_TRUE(wx_window_state::LoadState(&dialog, L"Dialog"));
    ASSERT_TRUE(ShowAndSettle(&dialog));
    EXPECT_EQ(dialog.GetScreenRect(), wxRect(250, 150, 320, 240));
}

TEST_F(LoadState, BringsAChildBackInsideItsParent)
{
    StoreGeometry(L"30;40;200;100");
    SpyFrame frame(wxRect(300, 200, 400, 300));
    SpyWindow<wxPanel> first(&frame, wxID_ANY);
    SpyWindow<wxPanel> panel(&frame, wxID_ANY, wxPoint(0, 0), wxSize(50, 50));
    ASSERT_TRUE(ShowAndSettle(&frame));
    panel.TakeCalls();
    EXPECT_TRUE(wx_window_state::LoadState(&panel, L"w"));
    EXPECT_EQ(panel.TakeCalls(), (SizeCalls{"30;40;200;100 4", "30;40;-1;-1 0"}));
    EXPECT_EQ(panel.GetRect(), wxRect(30, 40, 200, 100));
}

// Counts the messages that are logged while this object exists.
class CountingLog : public wxLog
{
public:
    CountingLog() : m_old(SetActiveTarget(this)) {}
    ~CountingLog() override { SetActiveTarget(m_old); }

    int count = 0;

protected:
    void DoLogRecord(wxLogLevel, const wxString&, const wxLogRecordInfo&) override { ++count; }

private:
    wxLog* m_old;
};

TEST_F(LoadState, LogsNothingAboutAChildOfAHiddenFrame)
{
    StoreGeometry(L"30;40;200;100");
    SpyFrame frame;
    wxPanel panel(&frame, wxID_ANY);
    CountingLog log;
    EXPECT_TRUE(wx_window_state::LoadState(&panel, L"w"));
    EXPECT_EQ(panel.GetRect(), wxRect(30, 40, 200, 100));
    EXPECT_EQ(log.count, 0);
}

// Not even root can create a folder in /proc, so nothing can be stored.
TEST(SettingsThatCannotBeStored, GoUnnoticed)
{
    const TempUserData data;
    std_file_paths::SetUserDataDir(L"/proc/fittings");
    SpyFrame frame;
    CountingLog log;
    wx_window_state::SaveState(&frame, L"Main");
    EXPECT_EQ(StoredGeometry(L"Main"), L"none");
    EXPECT_FALSE(wx_window_state::LoadState(&frame, L"Main"));
    EXPECT_EQ(frame.TakeCalls(), SizeCalls{});
    EXPECT_EQ(log.count, 0);
}

TEST_F(LoadState, SetsTheSizeThenThePositionAgain)
{
    StoreGeometry(L"100;50;800;600");
    SpyFrame frame;
    EXPECT_TRUE(wx_window_state::LoadState(static_cast<wxWindow*>(&frame), L"w"));
    EXPECT_EQ(frame.TakeCalls(), (SizeCalls{"100;50;800;600 4", "100;50;-1;-1 0"}));
    EXPECT_EQ(frame.GetRect(), wxRect(100, 50, 800, 600));
}

struct Text
{
    const char* name;
    std::wstring text;
};

using TextThatIsNoGeometry = UserDataTestWithParam<Text>;

TEST_P(TextThatIsNoGeometry, ChangesNothing)
{
    StoreGeometry(GetParam().text);
    CLocalRegStore::WriteProfileBool(L"wxWindowMaximize", L"w", true);
    SpyFrame frame(wxRect(5000, 5000, 300, 200));
    EXPECT_FALSE(wx_window_state::LoadState(static_cast<wxWindow*>(&frame), L"w"));
    EXPECT_FALSE(wx_window_state::LoadState(&frame, L"w"));
    EXPECT_EQ(frame.TakeCalls(), SizeCalls{});
    EXPECT_EQ(frame.GetRect(), wxRect(5000, 5000, 300, 200));
}

INSTANTIATE_TEST_SUITE_P(, TextThatIsNoGeometry,
                         testing::Values(Text{"Empty", L""}, Text{"Blank", L" "}, Text{"OneField", L"100"},
                                         Text{"ThreeFields", L"1;2;3"}, Text{"EmptyFourthField", L"100;100;300;"},
                                         Text{"EmptyThirdField", L"100;100;;200"}, Text{"SemicolonsAlone", L";;;"},
                                         Text{"Commas", L"100,100,300,200"},
                                         Text{"BlankBeforeASemicolon", L"100 ;100;300;200"},
                                         Text{"NotANumber", L"nan;100;300;200"}, Text{"Infinity", L"100;100;inf;200"},
                                         Text{"Hexadecimal", L"0x64;100;300;200"},
                                         Text{"Fraction", L"100.5;100;300;200"}, Text{"TwoSigns", L"--1;100;300;200"},
                                         Text{"LoneSign", L"-;100;300;200"}, Text{"Percent", L"%d;%d;%d;%d"},
                                         Text{"MegabyteOfDigits", std::wstring(1 << 20, L'7')},
                                         Text{"MegabyteOfLetters", std::wstring(1 << 20, L'x')},
                                         Text{"OtherDigits", L"\u0661;\u0662;\u0663\u0663;\u0664\u0664"}),
                         [](const auto& info) { return info.param.name; });

TEST_F(LoadState, OfANameThatWasNeverStoredChangesNothing)
{
    SpyFrame frame(wxRect(5000, 5000, 300, 200));
    EXPECT_FALSE(wx_window_state::LoadState(&frame, L"w"));
    EXPECT_EQ(frame.TakeCalls(), SizeCalls{});
}

using TextReadLeniently = UserDataTestWithParam<Text>;

TEST_P(TextReadLeniently, GivesTheGeometry)
{
    RestoredSpyFrame frame(GetParam().text);
    EXPECT_EQ(frame.GetRect(), wxRect(100, 200, 300, 400));
}

INSTANTIATE_TEST_SUITE_P(
    , TextReadLeniently,
    testing::Values(Text{"AsWritten", L"100;200;300;400"}, Text{"BlanksBeforeNumbers", L" 100; 200;\t300;\n400"},
                    Text{"TextBehind", L"100;200;300;400trailing"}, Text{"FieldsBehind", L"100;200;300;400;500;600"},
                    Text{"PlusSigns", L"+100;+200;+300;+400"}, Text{"ZerosBefore", L"0100;00200;000300;0000400"},
                    Text{"MegabyteBehind", L"100;200;300;400" + std::wstring(1 << 20, L'x')},
                    Text{"MegabyteOfZeros", std::wstring(1 << 20, L'0') + L"100;200;300;400"}),
    [](const auto& info) { return info.param.name; });

TEST(GeometryInALocaleThatGroups, IsWrittenAndReadWithoutGroups)
{
    const TempUserData data;
    for (const auto& [name, grouped] : {std::pair("de_DE.UTF-8", L"1.100"), std::pair("ps_AF.UTF-8", L"1\u066C100")}) {
        const ScopedLocale locale(name);
        SpyFrame saved(wxRect(100, 50, 1100, 800));
        wx_window_state::SaveState(&saved, L"w");
        EXPECT_EQ(StoredGeometry(L"w"), L"100;50;1100;800") << name;
        SpyFrame loaded;
        EXPECT_TRUE(wx_window_state::LoadState(&loaded, L"w")) << name;
        EXPECT_EQ(loaded.GetRect(), wxRect(100, 50, 1100, 800)) << name;
        StoreGeometry(std::wstring(L"100;50;") + grouped + L";800");
        EXPECT_FALSE(wx_window_state::LoadState(&loaded, L"w")) << name;
    }
}

}  // namespace
