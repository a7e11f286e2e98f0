// wx_window_state on a platform that records every call.

#include <fittings/config/wx_window_state.h>

#include <string>

#include <gtest/gtest.h>
#include <wx/aui/framemanager.h>
#include <wx/frame.h>

#include <tests/support/noting_platform.h>

// Replaces the toolkit's function: records the call, and returns false.
bool wxAuiManager::LoadPerspective(const wxString& layout, bool update)
{
    RecordCall(L"lay out", {layout.ToStdWstring(), update ? L"at once" : L"later"});
    return false;
}

namespace {

class WindowCalls : public testing::Test
{
protected:
    WindowCalls() { g_platform = {}; }

    wxFrame frame{nullptr, wxID_ANY, "frame", wxPoint(100, 50), wxSize(800, 600)};
};

TEST_F(WindowCalls, OfSaveStateOfAWindow)
{
    wx_window_state::SaveState(static_cast<wxWindow*>(&frame), L"Main");
    EXPECT_EQ(g_platform.calls, (Calls{L"write to default store [wxWindowState] [Main] [100;50;800;600]"}));
}

TEST_F(WindowCalls, OfSaveStateOfAFrame)
{
    wx_window_state::SaveState(&frame, L"Main");
    EXPECT_EQ(g_platform.calls, (Calls{L"write to default store [wxWindowState] [Main] [100;50;800;600]",
                                       L"write flag [wxWindowMaximize] [Main] [false]"}));
    EXPECT_EQ(g_platform.savesWithoutBatch, 0);
    EXPECT_EQ(g_platform.batches, 0);
}

TEST_F(WindowCalls, WithANameOfAnotherKind)
{
    g_platform.stored = L"200;150;400;300";
    wx_window_state::SaveState(static_cast<wxWindow*>(&frame), std::wstring(L"Main"));
    EXPECT_TRUE(wx_window_state::LoadState(static_cast<wxWindow*>(&frame), wxString("Main")));
    wx_window_state::LoadState(&frame, std::wstring(L"Main"));
    EXPECT_EQ(g_platform.calls, (Calls{L"write to default store [wxWindowState] [Main] [100;50;800;600]",
                                       L"get from default store [wxWindowState] [Main] []",
                                       L"get from default store [wxWindowState] [Main] []",
                                       L"get flag [wxWindowMaximize] [Main] [false]"}));
}

TEST_F(WindowCalls, OfLoadStateOfAWindow)
{
    g_platform.stored = L"200;150;400;300";
    EXPECT_TRUE(wx_window_state::LoadState(static_cast<wxWindow*>(&frame), L"Main"));
    EXPECT_EQ(g_platform.calls, (Calls{L"get from default store [wxWindowState] [Main] []"}));
}

TEST_F(WindowCalls, OfLoadStateOfAFrame)
{
    g_platform.stored = L"200;150;400;300";
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"Main"));
    EXPECT_EQ(g_platform.calls, (Calls{L"get from default store [wxWindowState] [Main] []",
                                       L"get flag [wxWindowMaximize] [Main] [false]"}));
}

TEST_F(WindowCalls, OfLoadStateOfAFrameWithoutAGeometry)
{
    for (const wchar_t* const text : {L"", L"1;2;3"}) {
        g_platform = {};
        g_platform.stored = text;
        EXPECT_FALSE(wx_window_state::LoadState(&frame, L"Main"));
        EXPECT_EQ(g_platform.calls, (Calls{L"get from default store [wxWindowState] [Main] []"}));
    }
}

// A frame that is off every display and ignores every change of its position and size.
class FrameOutOfSight : public wxFrame
{
public:
    FrameOutOfSight() : wxFrame(nullptr, wxID_ANY, "out of sight", wxPoint(5000, 5000), wxSize(400, 300)) {}

protected:
    void DoSetSize(int, int, int, int, int) override {}
};

TEST_F(WindowCalls, OfLoadStateOfAFrameThatNoDisplayCanShow)
{
    FrameOutOfSight outOfSight;
    g_platform.stored = L"200;150;400;300";
    EXPECT_FALSE(wx_window_state::LoadState(&outOfSight, L"Main"));
    EXPECT_EQ(g_platform.calls, (Calls{L"get from default store [wxWindowState] [Main] []"}));
}

TEST_F(WindowCalls, OfSaveAuiManagerState)
{
    wxAuiManager manager;
    wx_window_state::SaveAuiManagerState(&manager, L"Main");
    EXPECT_EQ(g_platform.calls,
              (Calls{L"exists [/data>ui_config]", L"create false", L"load [/data>ui_config>wxAuiManagerState.ini]",
                     L"write [wxAuiManagerState] [Main] [layout2|]", L"save [/data>ui_config>wxAuiManagerState.ini]",
                     L"destroy"}));
}

TEST_F(WindowCalls, OfLoadAuiManagerState)
{
    wxAuiManager manager;
    g_platform.stored = L"layout2|dock_size(5,0,0)=22|";
    EXPECT_TRUE(wx_window_state::LoadAuiManagerState(&manager, L"Main"));
    EXPECT_EQ(
        g_platform.calls,
        (Calls{L"exists [/data>ui_config]", L"create false", L"load [/data>ui_config>wxAuiManagerState.ini]",
               L"get [wxAuiManagerState] [Main] []", L"destroy", L"lay out [layout2|dock_size(5,0,0)=22|] [at once]"}));
}

TEST_F(WindowCalls, OfLoadAuiManagerStateWithoutALayout)
{
    wxAuiManager manager;
    for (const wchar_t* const text : {L"", L"stored"}) {
        g_platform = {};
        g_platform.stored = text;
        EXPECT_FALSE(wx_window_state::LoadAuiManagerState(&manager, L"Main"));
        EXPECT_EQ(g_platform.calls.back(), L"destroy");
    }
}

}  // namespace
