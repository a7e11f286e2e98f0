// Two displays, side by side: 0;0;640;1024 and 640;0;640;1024. A virtual X server has only one display, so this
// program replaces the GDK functions that describe the displays.

#include <fittings/config/persistence.h>

#include <gdk/gdk.h>
#include <gtest/gtest.h>
#include <wx/display.h>

#include <tests/config/persistence/stored.h>
#include <tests/config/window/spy_window.h>
#include <tests/config/window/stored_geometry.h>
#include <tests/support/gui.h>
#include <tests/support/temp_folder.h>

extern "C" {

int gdk_screen_get_n_monitors(GdkScreen*)
{
    return 2;
}

void gdk_screen_get_monitor_geometry(GdkScreen*, int number, GdkRectangle* geometry)
{
    *geometry = number == 1 ? GdkRectangle{640, 0, 640, 1024} : GdkRectangle{0, 0, 640, 1024};
}

void gdk_screen_get_monitor_workarea(GdkScreen*, int number, GdkRectangle* area)
{
    *area = number == 1 ? GdkRectangle{640, 24, 600, 960} : GdkRectangle{16, 24, 624, 960};
}
}

namespace {

TEST(Displays, AreThoseThatTheseTestsExpect)
{
    ASSERT_EQ(wxDisplay::GetCount(), 2u);
    EXPECT_EQ(wxDisplay(0u).GetGeometry(), wxRect(0, 0, 640, 1024));
    EXPECT_EQ(wxDisplay(1u).GetGeometry(), wxRect(640, 0, 640, 1024));
    EXPECT_EQ(wxDisplay(0u).GetClientArea(), wxRect(16, 24, 624, 960));
    EXPECT_EQ(wxDisplay(1u).GetClientArea(), wxRect(640, 24, 600, 960));
}

struct Restored
{
    const char* name;
    const wchar_t* stored;
    wxRect rect;
};

using StoredOnTwoDisplays = UserDataTestWithParam<Restored>;

TEST_P(StoredOnTwoDisplays, ComesOntoTheOneThatShowsMostOfIt)
{
    RestoredSpyFrame frame(GetParam().stored);
    EXPECT_EQ(frame.GetRect(), GetParam().rect);
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_EQ(frame.GetScreenRect(), GetParam().rect);
}

INSTANTIATE_TEST_SUITE_P(, StoredOnTwoDisplays,
                         testing::Values(Restored{"OnTheFirst", L"100;100;300;200", wxRect(100, 100, 300, 200)},
                                         Restored{"OnTheSecond", L"700;100;300;200", wxRect(700, 100, 300, 200)},
                                         Restored{"MostlyOnTheFirst", L"450;100;300;200", wxRect(450, 100, 190, 200)},
                                         Restored{"MostlyOnTheSecond", L"550;100;300;200", wxRect(640, 100, 210, 200)},
                                         Restored{"EquallyOnBoth", L"490;100;300;200", wxRect(490, 100, 150, 200)},
                                         Restored{"OutOfTheSecond", L"1100;900;300;200", wxRect(1100, 900, 140, 84)},
                                         Restored{"UnderTheRightPanel", L"1250;100;300;200",
                                                  wxRect(940, 100, 300, 200)},
                                         Restored{"OffBoth", L"1300;100;300;200", wxRect(16, 24, 284, 176)}),
                         [](const auto& info) { return info.param.name; });

TEST(PersistentFrame, ComesOntoTheDisplayThatShowsMostOfIt)
{
    const TempPersistence data;
    StorePlace(L"1100", L"900", L"300", L"200");
    SpyFrame frame;
    EXPECT_TRUE(wxPersistentRegisterAndRestore(static_cast<wxFrame*>(&frame), "w"));
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_EQ(frame.GetScreenRect(), wxRect(1100, 900, 140, 84));
}

}  // namespace
