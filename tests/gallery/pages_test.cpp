#include <filesystem>

#include <wx/menu.h>
#include <wx/notebook.h>

#include <tests/gallery/browser/browser_fixture.h>

namespace {

using namespace gallery;
using namespace gallery::simulated_user;
namespace fs = std::filesystem;

class Pages : public BrowserTest
{
protected:
    void SetUp() override
    {
        fs::create_directories(temp / "a/b");
        WriteFile(temp / "file", "x");
    }

    bool ShowsPage(const wxString& name)
    {
        return PumpUntil([&] {
            const wxWindow* page = frame->GetPages()->GetCurrentPage();
            return page->GetName() == name && page->IsShownOnScreen();
        });
    }

    void ShowPage(char digit, const wxString& name)
    {
        Press(digit, wxMOD_ALT);
        ASSERT_TRUE(ShowsPage(name));
    }

    // Opens the window with the pane of the folders floating, and selects another page, which hides the pane.
    void LeaveFloatingFolders()
    {
        Open(root);
        place = frame->GetPosition() + wxSize(300, 200);
        FloatFolders(place);
        frame->Raise();
        List().SetFocus();
        ShowPage('2', "Numbers");
        EXPECT_TRUE(PumpUntil([&] { return !Tree().IsShownOnScreen(); }));
    }

    bool IsEnabled(int item) { return frame->GetMenuBar()->IsEnabled(item); }

    wxPoint place;  // Where LeaveFloatingFolders() puts the floating pane on the screen.
};

TEST_F(Pages, AltWithADigitShowsOne)
{
    Open(root);
    ShowPage('2', "Numbers");
    ShowPage('1', "Browser");
}

TEST_F(Pages, AClickOnATabShowsOne)
{
    Open(root);
    const wxNotebook& pages = *frame->GetPages();
    Click(pages.ClientToScreen(wxPoint(150, 15)));
    EXPECT_TRUE(ShowsPage("Numbers"));
    Click(pages.ClientToScreen(wxPoint(30, 15)));
    EXPECT_TRUE(ShowsPage("Browser"));
}

TEST_F(Pages, TitleAndMenusFollowThePage)
{
    Open(root);
    Select("a");
    EXPECT_TRUE(frame->GetTitle().EndsWith(L"/a \u2013 Fittings Gallery")) << frame->GetTitle();
    for (const int item : {wxID_UP, wxID_REFRESH, wxID_VIEW_LIST, wxID_RESET})
        EXPECT_TRUE(IsEnabled(item)) << item;
    ShowPage('2', "Numbers");
    EXPECT_EQ(frame->GetTitle(), L"Numbers \u2013 Fittings Gallery");
    EXPECT_EQ(frame->GetStatusBar()->GetStatusText(0), "");
    for (const int item : {wxID_UP, wxID_REFRESH, wxID_VIEW_LIST, wxID_RESET})
        EXPECT_FALSE(IsEnabled(item)) << item;
    EXPECT_TRUE(IsEnabled(wxID_OPEN));
    EXPECT_TRUE(frame->GetMenuBar()->IsChecked(frame->GetMenuBar()->FindMenuItem("View", "Numbers")));
    ShowPage('1', "Browser");
    EXPECT_TRUE(frame->GetTitle().EndsWith(L"/a \u2013 Fittings Gallery")) << frame->GetTitle();
    EXPECT_EQ(frame->GetStatusBar()->GetStatusText(0), "1 item");
    EXPECT_TRUE(IsEnabled(wxID_UP));
    EXPECT_TRUE(frame->GetMenuBar()->IsChecked(frame->GetMenuBar()->FindMenuItem("View", "Disk usage")));
}

TEST_F(Pages, TheFocusComesBackToWhereItWas)
{
    Open(root);
    ASSERT_TRUE(PumpUntil([&] { return List().HasFocus(); }));
    Press('2', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return wxWindow::FindFocus() && wxWindow::FindFocus()->GetName() == "Number"; }));
    Press('1', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return List().HasFocus(); }));
}

TEST_F(Pages, TheShownPageComesBack)
{
    Open(root);
    ShowPage('2', "Numbers");
    OpenNextSession();
    EXPECT_TRUE(ShowsPage("Numbers"));
    EXPECT_EQ(frame->GetTitle(), L"Numbers \u2013 Fittings Gallery");
    EXPECT_EQ(Tree().GetRootFolder(), root);
}

TEST_F(Pages, AFolderThatIsAskedForIsShown)
{
    Open(root);
    ShowPage('2', "Numbers");
    Close();
    Open(root + "/a");
    EXPECT_TRUE(ShowsPage("Browser"));
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/a");
}

TEST_F(Pages, NonsenseInTheSettingsShowsTheFirst)
{
    fs::create_directories(settings / "ui_config");
    WriteFile(settings / "ui_config/browser.ini", "[Window]\nPage=Contents\n[Folders]\nRoots=" + root + "|\n");
    Open("");
    EXPECT_TRUE(ShowsPage("Browser"));
}

TEST_F(Pages, FloatingFoldersGoAndComeWithTheirPage)
{
    LeaveFloatingFolders();
    OpenNextSession();
    ASSERT_TRUE(ShowsPage("Numbers"));
    PumpPending();
    EXPECT_FALSE(Tree().IsShownOnScreen());
    Press('1', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return Tree().IsShownOnScreen(); }));
    EXPECT_TRUE(FoldersComeTo(place));
}

// The window manager may report a move of a window that is already hidden. Such a move must not change the stored
// place.
TEST_F(Pages, FloatingFoldersComeBackWhereTheyWereSeen)
{
    LeaveFloatingFolders();
    frame->GetBrowser()->GetLayout().GetPane(&Tree()).frame->Move(place + wxSize(60, 60));
    OpenNextSession();
    ASSERT_TRUE(ShowsPage("Numbers"));
    Press('1', wxMOD_ALT);
    EXPECT_TRUE(FoldersComeTo(place));
}

// The layout is loaded when the page is shown. A session that does not show the page must not store another layout.
TEST_F(Pages, FoldersThatWereNotShownKeepTheirLayout)
{
    Open(root);
    const int width = Tree().GetSize().x;
    Widen(Tree(), WindowRect(Tree()), 75, 4);
    ASSERT_TRUE(PumpUntil([&] { return Tree().GetSize().x > width + 50; }));
    const int dragged = Tree().GetSize().x;
    ShowPage('2', "Numbers");
    OpenNextSession();
    OpenNextSession();
    ShowPage('1', "Browser");
    EXPECT_TRUE(PumpUntil([&] { return Tree().GetSize().x == dragged; }));
}

}  // namespace
