#include <fittings/config/wx_window_state.h>

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include <fittings/config/ui_config_mgr.h>
#include <fittings/platform/local_reg_store.h>
#include <tests/config/aui_frame.h>
#include <tests/support/gui.h>
#include <tests/support/temp_folder.h>

namespace {

std::wstring StoredLayout(const wchar_t* name)
{
    return ui_config_mgr::GetConfigString(L"wxAuiManagerState.ini", L"wxAuiManagerState", name);
}

void StoreLayout(const wxString& layout)
{
    ui_config_mgr::WriteConfigString(L"wxAuiManagerState.ini", L"wxAuiManagerState", L"Main", layout);
}

using SaveAuiManagerState = UserDataTest;
using LoadAuiManagerState = UserDataTest;

TEST_F(SaveAuiManagerState, StoresThePerspectiveInAFileOfItsOwn)
{
    AuiFrame frame;
    wx_window_state::SaveAuiManagerState(&frame.manager, L"Main");
    EXPECT_EQ(wxString(StoredLayout(L"Main")), frame.manager.SavePerspective());
    EXPECT_EQ(StoredLayout(L"Main").rfind(L"layout2|name=tree;caption=Folders;", 0), 0u);
    EXPECT_TRUE(std::filesystem::is_regular_file(data / "ui_config/wxAuiManagerState.ini"));
    const std::string file = ReadFile(data / "ui_config/wxAuiManagerState.ini");
    EXPECT_EQ(file.rfind("[wxAuiManagerState]\nMain=layout2|name=tree;caption=Folders;", 0), 0u) << file;
    EXPECT_EQ(CLocalRegStore::GetString(L"wxAuiManagerState", L"Main", L"none"), L"none");
}

TEST_F(SaveAuiManagerState, KeepsNamesApart)
{
    AuiFrame frame;
    wx_window_state::SaveAuiManagerState(&frame.manager, L"one");
    frame.Pane("log").Hide();
    frame.manager.Update();
    wx_window_state::SaveAuiManagerState(&frame.manager, L"two");
    wx_window_state::SaveAuiManagerState(&frame.manager, nullptr);
    EXPECT_NE(StoredLayout(L"one"), StoredLayout(L"two"));
    EXPECT_EQ(StoredLayout(L""), StoredLayout(L"two"));
    EXPECT_TRUE(wx_window_state::LoadAuiManagerState(&frame.manager, L"one"));
    EXPECT_TRUE(frame.Pane("log").IsShown());
    EXPECT_TRUE(wx_window_state::LoadAuiManagerState(&frame.manager, nullptr));
    EXPECT_FALSE(frame.Pane("log").IsShown());
}

TEST_F(LoadAuiManagerState, LeavesAManagerAloneWhenNothingIsStored)
{
    AuiFrame frame;
    // Hide() marks the pane as hidden, but the pane's window stays shown until the manager is updated. If the window
    // is hidden after the calls below, LoadAuiManagerState() has updated the manager.
    frame.Pane("log").Hide();
    const wxString before = frame.manager.SavePerspective();
    EXPECT_FALSE(wx_window_state::LoadAuiManagerState(&frame.manager, L"Main"));
    StoreLayout("");
    EXPECT_FALSE(wx_window_state::LoadAuiManagerState(&frame.manager, L"Main"));
    EXPECT_EQ(frame.manager.SavePerspective(), before);
    EXPECT_TRUE(frame.Pane("log").window->IsShown());
}

// Hides the log, floats the properties, and changes the side, caption and size of the tree's pane.
void Rearrange(AuiFrame& frame)
{
    frame.Pane("log").Hide();
    frame.Pane("props").Float().FloatingPosition(820, 300).FloatingSize(230, 180);
    frame.Pane("tree").Right().Caption("Folders, renamed").BestSize(220, -1);
    frame.manager.Update();
}

TEST_F(LoadAuiManagerState, BringsALayoutBackIntoAnotherWindow)
{
    wxString stored;
    {
        AuiFrame frame;
        ASSERT_TRUE(ShowAndSettle(&frame));
        Rearrange(frame);
        ASSERT_TRUE(PumpUntil([&] { return frame.Pane("props").window->IsShownOnScreen(); }));
        wx_window_state::SaveAuiManagerState(&frame.manager, L"Main");
        stored = frame.manager.SavePerspective();
    }
    AuiFrame frame;
    ASSERT_NE(frame.manager.SavePerspective(), stored);
    EXPECT_TRUE(wx_window_state::LoadAuiManagerState(&frame.manager, L"Main"));

    EXPECT_FALSE(frame.Pane("log").IsShown());
    EXPECT_TRUE(frame.Pane("props").IsFloating());
    EXPECT_EQ(frame.Pane("props").floating_size, wxSize(230, 180));
    EXPECT_EQ(frame.Pane("tree").dock_direction, wxAUI_DOCK_RIGHT);
    EXPECT_EQ(frame.Pane("tree").caption, "Folders, renamed");
    EXPECT_EQ(frame.Pane("tree").best_size.x, 220);
    EXPECT_TRUE(frame.Pane("list").IsShown());
    EXPECT_EQ(frame.manager.SavePerspective().utf8_string(), stored.utf8_string());
}

TEST_F(LoadAuiManagerState, UpdatesTheWindowAtOnce)
{
    {
        AuiFrame frame;
        Rearrange(frame);
        wx_window_state::SaveAuiManagerState(&frame.manager, L"Main");
    }
    AuiFrame frame;
    ASSERT_TRUE(ShowAndSettle(&frame));
    ASSERT_TRUE(frame.Pane("log").window->IsShown());
    ASSERT_LT(frame.Pane("tree").window->GetPosition().x, 100);
    EXPECT_TRUE(wx_window_state::LoadAuiManagerState(&frame.manager, L"Main"));
    EXPECT_FALSE(frame.Pane("log").window->IsShown());
    EXPECT_GT(frame.Pane("tree").window->GetPosition().x, 350);
    ASSERT_NE(frame.Pane("props").frame, nullptr);
    EXPECT_TRUE(PumpUntil([&] { return frame.Pane("props").window->IsShownOnScreen(); }));
}

TEST_F(LoadAuiManagerState, BringsTheWidthOfADraggedPaneBack)
{
    {
        AuiFrame frame;
        ASSERT_TRUE(ShowAndSettle(&frame));
        wxString layout = frame.manager.SavePerspective();
        ASSERT_EQ(layout.Replace("dock_size(4,0,0)=152", "dock_size(4,0,0)=277"), 1u) << layout;
        frame.manager.LoadPerspective(layout);
        ASSERT_EQ(frame.Pane("tree").rect.width, 275);  // the width without the borders
        wx_window_state::SaveAuiManagerState(&frame.manager, L"Main");
    }
    AuiFrame frame;
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_TRUE(wx_window_state::LoadAuiManagerState(&frame.manager, L"Main"));
    EXPECT_EQ(frame.Pane("tree").rect.width, 275);
}

TEST_F(LoadAuiManagerState, HidesAPaneThatTheLayoutDoesNotName)
{
    {
        AuiFrame frame;
        wx_window_state::SaveAuiManagerState(&frame.manager, L"Main");
    }
    AuiFrame frame;
    frame.manager.AddPane(new wxPanel(&frame), wxAuiPaneInfo().Name("added").Top().Caption("Added later"));
    frame.manager.Update();
    EXPECT_TRUE(wx_window_state::LoadAuiManagerState(&frame.manager, L"Main"));
    EXPECT_FALSE(frame.Pane("added").IsShown());
}

TEST_F(LoadAuiManagerState, TakesALayoutWithPanesThatAreGone)
{
    {
        AuiFrame frame;
        frame.manager.AddPane(new wxPanel(&frame), wxAuiPaneInfo().Name("gone").Top());
        frame.Pane("log").Hide();
        frame.manager.Update();
        wx_window_state::SaveAuiManagerState(&frame.manager, L"Main");
    }
    AuiFrame frame;
    EXPECT_TRUE(wx_window_state::LoadAuiManagerState(&frame.manager, L"Main"));
    EXPECT_FALSE(frame.Pane("log").IsShown());
    EXPECT_TRUE(frame.Pane("list").IsShown());
}

// LoadAuiManagerState() must refuse each text that the toolkit cannot have written.
class DamagedLayout : public UserDataTest
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(ShowAndSettle(&frame));
        whole = frame.manager.SavePerspective();
        frame.Pane("log").Hide();
        frame.manager.Update();
        before = frame.manager.SavePerspective();
    }

    // Returns the complete layout with the first occurrence of @a part replaced.
    wxString With(const wxString& part, const wxString& replacement) const
    {
        wxString layout = whole;
        EXPECT_EQ(layout.Replace(part, replacement, false), 1u) << part;
        return layout;
    }

    void ExpectNotLoaded(const wxString& layout)
    {
        StoreLayout(layout);
        EXPECT_FALSE(wx_window_state::LoadAuiManagerState(&frame.manager, L"Main")) << layout;
        EXPECT_EQ(frame.manager.SavePerspective(), before) << layout;
        EXPECT_TRUE(frame.Pane("list").window->IsShown());
        EXPECT_FALSE(frame.Pane("log").window->IsShown());
    }

    AuiFrame frame;
    wxString whole;
    wxString before;
};

TEST_F(DamagedLayout, OfOtherTextIsNotLoaded)
{
    for (const char* const layout :
         {"nonsense", "layout1|", "layout2", "layout2||", "layout2|;;;=", "layout2|name=", "layout2|name=tree",
          "layout2|\x01\x02|%s%n|", "layout2|dock_size(", "layout2|dock_size(4,0,0)=", "layout2|dock_size(9,9,9)=-5|"})
        ExpectNotLoaded(layout);
}

TEST_F(DamagedLayout, ThatIsCutIsNotLoaded)
{
    for (std::size_t length = 1; length < whole.length(); length += 7) {
        if (whole[length - 1] != '|')
            ExpectNotLoaded(whole.Left(length));
    }
}

// An unknown field in a layout makes an assertion of the toolkit fail.
TEST_F(DamagedLayout, WithAnUnknownFieldIsNotLoaded)
{
    ExpectNotLoaded(With("state=", "stat="));
    ExpectNotLoaded(With(";floath=", ";floath=1;more="));
}

// The toolkit takes minutes for a layout in which the number of a row or layer is this large.
TEST_F(DamagedLayout, WithARowFarOutIsNotLoaded)
{
    ExpectNotLoaded(With("row=0", "row=2147483647"));
    ExpectNotLoaded(With("layer=0", "layer=2147483647"));
    ExpectNotLoaded(With("dock_size(4,0,0)", "dock_size(4,0,2147483647)"));
}

// In this layout, the proportions of the two panes at the bottom add up to zero. The toolkit would divide by the sum.
TEST_F(DamagedLayout, WithANegativeProportionIsNotLoaded)
{
    ExpectNotLoaded(With("dir=4;layer=0;row=0;pos=0;prop=100000", "dir=3;layer=0;row=0;pos=0;prop=-100000"));
}

TEST_F(DamagedLayout, IsLoadedOnceItIsWholeAgain)
{
    ExpectNotLoaded(With("state=", "stat="));
    StoreLayout(whole);
    EXPECT_TRUE(wx_window_state::LoadAuiManagerState(&frame.manager, L"Main"));
    for (const char* const name : {"tree", "log", "props", "list"}) {
        EXPECT_TRUE(frame.Pane(name).IsDocked()) << name;
        EXPECT_TRUE(frame.Pane(name).window->IsShownOnScreen()) << name;
    }
}

}  // namespace
