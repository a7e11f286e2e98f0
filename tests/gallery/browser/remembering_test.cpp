#include <filesystem>

#include <wx/display.h>
#include <wx/menu.h>

#include <gallery/folders/folder_listing.h>
#include <tests/gallery/browser/browser_fixture.h>

namespace {

using namespace gallery;
using namespace gallery::simulated_user;
namespace fs = std::filesystem;

class Remembering : public BrowserTest
{
protected:
    void SetUp() override
    {
        for (const char* const path : {"a/share/inner", "b/share/inner", "c/d/e/f"})
            fs::create_directories(temp / path);
        WriteFile(temp / "a/file", "x");
    }
};

TEST_F(Remembering, TheFirstSessionStartsCentred)
{
    Open(root);
    const wxRect screen = wxDisplay(frame).GetGeometry();
    const wxRect window = frame->GetRect();
    EXPECT_EQ(frame->GetSize(), wxSize(960, 640));
    EXPECT_NEAR(window.x + window.width / 2, screen.width / 2, 40);
    EXPECT_NEAR(window.y + window.height / 2, screen.height / 2, 40);
    EXPECT_EQ(Tree().GetSelectedPath(), root);
    EXPECT_EQ(Tree().GetSize().x, 260);
}

TEST_F(Remembering, TheWindowComesBackWhereItWas)
{
    Open(root);
    frame->SetSize(130, 90, 800, 500);
    ASSERT_TRUE(PumpUntil([&] { return frame->GetRect() == wxRect(130, 90, 800, 500); }));
    OpenNextSession();
    EXPECT_EQ(frame->GetRect(), wxRect(130, 90, 800, 500));
    EXPECT_FALSE(frame->IsMaximized());
}

TEST_F(Remembering, TheWindowComesBackMaximised)
{
    Open(root);
    frame->Maximize();
    ASSERT_TRUE(PumpUntil([&] { return frame->IsMaximized(); }));
    OpenNextSession();
    EXPECT_TRUE(PumpUntil([&] { return frame->IsMaximized(); }));
}

TEST_F(Remembering, ThePanesComeBackAsTheyWereDragged)
{
    Open(root);
    const int first = Tree().GetSize().x;
    Widen(Tree(), WindowRect(Tree()), 75, 4);
    ASSERT_TRUE(PumpUntil([&] { return Tree().GetSize().x > first + 50; }));
    const int width = Tree().GetSize().x;
    OpenNextSession();
    EXPECT_EQ(Tree().GetSize().x, width);
    frame->GetBrowser()->ResetLayout();
    EXPECT_TRUE(PumpUntil([&] { return Tree().GetSize().x == first; }));
}

// The floating pane must stay above the window, even after a click on the window. Otherwise the window would hide the
// pane.
TEST_F(Remembering, FloatingFoldersComeBackAboveTheWindow)
{
    Open(root);
    const wxRect window = frame->GetRect();
    const wxPoint place = window.GetPosition() + wxSize(window.width / 2, window.height / 3);
    FloatFolders(place);
    OpenNextSession();
    ASSERT_TRUE(PumpUntil([&] { return Tree().IsShownOnScreen(); }));
    EXPECT_TRUE(frame->GetBrowser()->GetLayout().GetPane(&Tree()).IsFloating());
    EXPECT_TRUE(FoldersComeTo(place));
    Click(frame->GetScreenRect().GetBottomLeft() + wxSize(100, -60));
    ClickFolder("b");
    EXPECT_TRUE(frame->GetMenuBar()->IsChecked(wxID_VIEW_LIST));
}

TEST_F(Remembering, HiddenFoldersStayHidden)
{
    Open(root);
    Press(WXK_F9);
    ASSERT_TRUE(PumpUntil([&] { return !Tree().IsShownOnScreen(); }));
    OpenNextSession();
    EXPECT_FALSE(Tree().IsShownOnScreen());
    EXPECT_FALSE(frame->GetMenuBar()->IsChecked(wxID_VIEW_LIST));
}

TEST_F(Remembering, ExpandedFoldersComeBackAndNoOthers)
{
    Open(root);
    for (const char* const path : {"a", "a/share", "b", "c", "c/d"})
        Tree().Expand(Item(path));
    Tree().Collapse(Item("c"));
    OpenNextSession();
    for (const char* const path : {"", "a", "a/share", "b"})
        EXPECT_TRUE(Tree().IsExpanded(Item(path))) << path;
    EXPECT_FALSE(Tree().IsExpanded(Item("b/share"))) << "another folder of the same name was expanded";
    EXPECT_FALSE(Tree().IsExpanded(Item("c")));
}

TEST_F(Remembering, ACollapsedRootStaysCollapsed)
{
    Open(root);
    Tree().Collapse(Tree().GetRootItem());
    OpenNextSession();
    EXPECT_FALSE(Tree().IsExpanded(Tree().GetRootItem()));
}

TEST_F(Remembering, TheSelectedFolderComesBack)
{
    Open(root);
    Select("a/share");
    OpenNextSession();
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/a/share");
    EXPECT_EQ(Rows(), std::vector<std::string>{"inner"});
    Close();
    Open(root);
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/a/share");
}

TEST_F(Remembering, TheNearestFolderIsSelectedWhenThatOneIsGone)
{
    Open(root);
    Select("c/d/e");
    Close();
    fs::remove_all(temp / "c/d/e");
    Open("");
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/c/d");
}

TEST_F(Remembering, EachRootKeepsItsOwn)
{
    Open(root + "/a");
    Tree().SelectPath(root + "/a/share");
    Tree().Expand(Item("share"));
    Close();
    Open(root + "/b");
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/b");
    EXPECT_FALSE(Tree().IsExpanded(Item("share")));
    Close();
    Open(root + "/a");
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/a/share");
    EXPECT_TRUE(Tree().IsExpanded(Item("share")));
}

TEST_F(Remembering, OnlyTheLastFiftyRootsKeepTheirs)
{
    const auto open = [this](const std::string& name) {
        frame->Start(root + "/" + name);
        Tree().SelectSubfolder("inner");
    };
    const auto files = [this] {
        return ReadFile(settings / "settings.ini") + ReadFile(settings / "ui_config/browser.ini");
    };
    for (int i = 1; i <= 51; ++i)
        fs::create_directories(temp / ("root" + std::to_string(i) + "/inner"));
    Open(root + "/root1");
    for (int i = 2; i <= 50; ++i)
        open("root" + std::to_string(i));
    open("root1");
    EXPECT_NE(files().find("root2="), std::string::npos);
    open("root51");
    Close();
    EXPECT_EQ(files().find("root2="), std::string::npos);
    EXPECT_EQ(files().find("root2|"), std::string::npos);
    Open(root + "/root1");
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/root1/inner");
    frame->Start(root + "/root2");
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/root2");
}

TEST_F(Remembering, NamesThatAreNoTextComeBack)
{
    fs::create_directories(temp / "odd|\xFF%7C/in\nner/x");
    Open(root);
    Tree().Expand(Item("odd|\xFF%7C"));
    Select("odd|\xFF%7C/in\nner");
    OpenNextSession();
    EXPECT_TRUE(Tree().IsExpanded(Item("odd|\xFF%7C")));
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/odd|\xFF%7C/in\nner");
    Close();
    Open(root + "/odd|\xFF%7C");
    OpenNextSession();
    EXPECT_EQ(Tree().GetRootFolder(), root + "/odd|\xFF%7C");
}

TEST_F(Remembering, OrderAndColumnWidthsComeBack)
{
    Open(root);
    Click(CentreOf(HeaderRect(List(), SortColumn::Modified)));
    ASSERT_TRUE(PumpUntil([&] { return List().GetSortOrder().column == SortColumn::Modified; }));
    Click(CentreOf(HeaderRect(List(), SortColumn::Modified)));
    ASSERT_TRUE(PumpUntil([&] { return !List().GetSortOrder().ascending; }));
    const int width = List().GetColumnWidths()[1];
    Widen(List(), HeaderRect(List(), SortColumn::Type), 40);
    ASSERT_TRUE(PumpUntil([&] { return List().GetColumnWidths()[1] > width + 20; }));
    const std::vector<int> widths = List().GetColumnWidths();
    OpenNextSession();
    EXPECT_EQ(List().GetSortOrder().column, SortColumn::Modified);
    EXPECT_FALSE(List().GetSortOrder().ascending);
    EXPECT_TRUE(List().GetColumn(3)->IsSortKey());
    EXPECT_FALSE(List().GetColumn(3)->IsSortOrderAscending());
    EXPECT_TRUE(PumpUntil([&] { return List().GetColumnWidths() == widths; }));
    // The first click on the header of the sorted column reverses the restored order.
    Click(CentreOf(HeaderRect(List(), SortColumn::Modified)));
    EXPECT_TRUE(PumpUntil([&] { return List().GetSortOrder().ascending; }));
    EXPECT_EQ(List().GetSortOrder().column, SortColumn::Modified);
}

// Earlier versions of the gallery stored the columns in ui_config/browser.ini.
TEST_F(Remembering, OrderAndColumnWidthsOfAnEarlierVersionComeBack)
{
    fs::create_directories(settings / "ui_config");
    const std::string earlier = settings / "ui_config/browser.ini";
    WriteFile(earlier, "[Contents]\nSortColumn=1\nSortDescending=1\nWidth1=111\nWidth2=122\nWidth3=133\n");
    const std::vector<int> widths{111, 122, 133};
    for (const std::string& folder : {root, root + "/a"}) {
        Open(folder);
        EXPECT_EQ(List().GetSortOrder().column, SortColumn::Size);
        EXPECT_FALSE(List().GetSortOrder().ascending);
        EXPECT_TRUE(List().GetColumn(1)->IsSortKey());
        EXPECT_TRUE(PumpUntil([&] { return List().GetColumnWidths() == widths; }));
        Close();
        fs::remove(earlier);
    }
}

TEST_F(Remembering, TheNameColumnComesBackNoWiderThanItsRoom)
{
    Open(root);
    Resize(wxSize(1200, 640));
    OpenNextSession();
    Resize(wxSize(900, 640));
    EXPECT_TRUE(PumpUntil([&] {
        int width = List().GetColumn(0)->GetWidth();
        for (const int other : List().GetColumnWidths())
            width += other;
        return width <= List().GetClientSize().x;
    })) << List().GetColumn(0)->GetWidth();
}

TEST_F(Remembering, NonsenseInTheSettingsDoesNoHarm)
{
    fs::create_directories(settings / "ui_config");
    WriteFile(settings / "ui_config/browser.ini", "[Contents]\nSortColumn=abc\nSortDescending=99999999999\nWidth1=-5\n"
                                                  "Width2=wide\nWidth3=100000\n[Folders]\nRoots=|/gone%zz\n");
    WriteFile(settings / "settings.ini", "[wxWindowState]\nBrowser=1;2;x\n[TreeControlState]\n" + root + "=||%|\n" +
                                             "[Persistent_Options/DataView/Contents/Columns/Size]\nWidth=-5\n" +
                                             "[Persistent_Options/DataView/Contents/Columns/Kind]\nWidth=wide\n" +
                                             "[Persistent_Options/DataView/Contents/Sorting]\nColumn=Colour\nAsc=x\n");
    Open(root);
    EXPECT_EQ(frame->GetSize(), wxSize(960, 640));
    EXPECT_EQ(List().GetSortOrder().column, SortColumn::Name);
    for (const int width : List().GetColumnWidths())
        EXPECT_GT(width, 40);
}

TEST_F(Remembering, TheHomeFolderIsOpenedWhenTheLastOneIsGone)
{
    Open(root + "/c");
    Close();
    fs::remove_all(temp / "c");
    Open("");
    EXPECT_EQ(Tree().GetRootFolder(), fs::canonical(getenv("HOME")).native());
}

}  // namespace
