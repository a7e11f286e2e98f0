#include <filesystem>

#include <wx/menu.h>

#include <gallery/browser/browser_settings.h>
#include <gallery/browser/folder_colour_combo.h>
#include <gallery/folders/folder_listing.h>
#include <tests/gallery/browser/browser_fixture.h>

namespace {

using namespace gallery;
using namespace gallery::simulated_user;
namespace fs = std::filesystem;

const wxColour darkRed(139, 0, 0);
const wxColour kIndigo(75, 0, 130);

// How a colour of the palette looks in the tree and in the label next to the combo. In the dark theme, the tree and
// the label make the colour light enough to be read.
struct Look
{
    wxColour inTree;
    wxColour inLocation;
};

Look In(const wxWindow& window, const Look& light, const Look& dark)
{
    return window.GetBackgroundColour().Red() < 128 ? dark : light;
}

class FolderColours : public BrowserTest
{
protected:
    void SetUp() override
    {
        fs::create_directories(temp / "docs/letters");
        fs::create_directories(temp / "music");
        Open(root);
        shownRed = In(*frame, {darkRed, darkRed}, {wxColour(200, 135, 135), wxColour(204, 143, 143)});
        shownIndigo = In(*frame, {kIndigo, kIndigo}, {wxColour(170, 135, 196), wxColour(181, 151, 204)});
        shownBlack = In(*frame, {*wxBLACK, *wxBLACK}, {wxColour(151, 151, 151), wxColour(159, 159, 159)});
    }

    FolderColourCombo& Combo() { return *frame->GetBrowser()->GetColour(); }

    void OpenColours()
    {
        Press('T', wxMOD_CONTROL);
        ASSERT_TRUE(PumpUntil([this] { return Combo().IsPopupShown() && Combo().GetPopup()->IsShownOnScreen(); }));
    }

    // Clicks a cell of the open popup, and waits until the popup is closed.
    void ClickCell(int cell)
    {
        PointAtCell(cell);
        Click(wxGetMousePosition());
        ASSERT_TRUE(PumpUntil([this] { return !Combo().IsPopupShown(); }));
    }

    void ChooseColour(int cell)
    {
        OpenColours();
        ClickCell(cell);
    }

    void PointAtCell(int cell)
    {
        wxRect rect;
        ASSERT_TRUE(Combo().GetPopup()->GetCellRect(cell, rect));
        PointAt(Combo().GetPopup()->ClientToScreen(CentreOf(rect)));
    }

    wxColour ColourOf(const std::string& path) { return Tree().GetItemTextColour(Item(path)); }

    wxColour LocationColour() { return wxWindow::FindWindowByName("Location", frame)->GetForegroundColour(); }

    Look shownRed;
    Look shownIndigo;
    Look shownBlack;
    const int darkRedCell = 8;
    const int indigoCell = 6;
};

TEST_F(FolderColours, AClickGivesAFolderOne)
{
    Select("docs");
    ChooseColour(darkRedCell);
    EXPECT_TRUE(PumpUntil([&] { return ColourOf("docs") == shownRed.inTree; }));
    EXPECT_EQ(LocationColour(), shownRed.inLocation);
    EXPECT_EQ(Combo().GetPopup()->GetInitialColour(), darkRed);
    EXPECT_FALSE(ColourOf("music").IsOk());
    EXPECT_FALSE(ColourOf("").IsOk());
    Select("music");
    EXPECT_EQ(ColourOf("docs"), shownRed.inTree);
    EXPECT_NE(LocationColour(), shownRed.inLocation);
    EXPECT_EQ(Combo().GetPopup()->GetInitialColour(), Tree().GetForegroundColour());
}

// The first Down leads to "More Colours...", and the others lead on to "Automatic", to black and to dark red.
TEST_F(FolderColours, TheKeyboardGivesAFolderOne)
{
    Select("docs");
    OpenColours();
    for (const int key : {WXK_DOWN, WXK_DOWN, WXK_DOWN, WXK_DOWN, WXK_RETURN})
        Press(key);
    EXPECT_TRUE(PumpUntil([&] { return ColourOf("docs") == shownRed.inTree; }));
    EXPECT_TRUE(PumpUntil([&] { return !Combo().IsPopupShown(); }));
}

TEST_F(FolderColours, TheComboIsReachedByTab)
{
    List().SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return List().HasFocus(); }));
    for (int i = 0; i < 5 && !Combo().HasFocus(); ++i) {
        Press(WXK_TAB, wxMOD_SHIFT);
        PumpPending();
    }
    ASSERT_TRUE(Combo().HasFocus());
    Press(WXK_F4);
    EXPECT_TRUE(PumpUntil([&] { return Combo().IsPopupShown(); }));
    Press(WXK_ESCAPE);
}

TEST_F(FolderColours, PointingShowsItAndEscapeTakesItBack)
{
    Select("docs");
    ChooseColour(darkRedCell);
    ASSERT_TRUE(PumpUntil([&] { return LocationColour() == shownRed.inLocation; }));
    OpenColours();
    PointAtCell(indigoCell);
    EXPECT_TRUE(PumpUntil(
        [&] { return LocationColour() == shownIndigo.inLocation && ColourOf("docs") == shownIndigo.inTree; }));
    PointAtCell(CELL_AUTOMATIC);
    EXPECT_TRUE(PumpUntil([&] { return !ColourOf("docs").IsOk(); }));
    Press(WXK_ESCAPE);
    EXPECT_TRUE(
        PumpUntil([&] { return LocationColour() == shownRed.inLocation && ColourOf("docs") == shownRed.inTree; }));
    EXPECT_EQ(browser_settings::LoadFolderColour(root + "/docs"), darkRed);
}

TEST_F(FolderColours, AutomaticTakesItAway)
{
    Select("docs");
    const wxColour plain = LocationColour();
    ChooseColour(indigoCell);
    ASSERT_TRUE(PumpUntil([&] { return ColourOf("docs") == shownIndigo.inTree; }));
    ASSERT_NE(ReadFile(settings / "settings.ini").find("#4B0082"), std::string::npos);
    ChooseColour(CELL_AUTOMATIC);
    EXPECT_TRUE(PumpUntil([&] { return !ColourOf("docs").IsOk(); }));
    EXPECT_EQ(LocationColour(), plain);
    EXPECT_EQ(ReadFile(settings / "settings.ini").find("docs="), std::string::npos);
    Select("music");
    Select("docs");
    EXPECT_FALSE(ColourOf("docs").IsOk());
}

// The palette's black looks like plain text in the light theme. A folder for which the user chooses black must still
// get this colour.
TEST_F(FolderColours, BlackIsNotAutomatic)
{
    Select("docs");
    ChooseColour(0);
    EXPECT_TRUE(PumpUntil([&] { return ColourOf("docs") == shownBlack.inTree; }));
    EXPECT_EQ(browser_settings::LoadFolderColour(root + "/docs"), wxColour(0, 0, 0));
}

TEST_F(FolderColours, CanBeReadOnADarkBackground)
{
    Tree().SetBackgroundColour(wxColour(45, 45, 45));
    Select("docs");
    ChooseColour(13);  // blue
    EXPECT_TRUE(PumpUntil([&] { return ColourOf("docs") == wxColour(135, 135, 255); }));
    EXPECT_EQ(browser_settings::LoadFolderColour(root + "/docs"), wxColour(0, 0, 255));
}

TEST_F(FolderColours, TheFoldersOwnIsMarked)
{
    struct Inside : wxColourPopup
    {
        static int Marked(const wxColourPopup& popup) { return popup.*(&Inside::m_nChosenColourSel); }
    };
    Select("docs");
    OpenColours();
    EXPECT_EQ(Inside::Marked(*Combo().GetPopup()), CELL_AUTOMATIC);
    ClickCell(indigoCell);
    Select("music");
    OpenColours();
    EXPECT_EQ(Inside::Marked(*Combo().GetPopup()), CELL_AUTOMATIC);
    Press(WXK_ESCAPE);
    ASSERT_TRUE(PumpUntil([&] { return !Combo().IsPopupShown(); }));
    Select("docs");
    OpenColours();
    EXPECT_EQ(Inside::Marked(*Combo().GetPopup()), indigoCell);
}

TEST_F(FolderColours, EachFolderStartsWithItsOwn)
{
    Select("docs");
    ChooseColour(CELL_AUTOMATIC);
    Select("music");
    ChooseColour(indigoCell);
    Select("docs");
    Select("music");
    OpenColours();
    // Enter without an arrow key keeps the folder's colour.
    Press(WXK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return !Combo().IsPopupShown(); }));
    EXPECT_EQ(browser_settings::LoadFolderColour(root + "/music"), kIndigo);
    Select("docs");
    OpenColours();
    Press(WXK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return !Combo().IsPopupShown(); }));
    EXPECT_FALSE(ColourOf("docs").IsOk());
    EXPECT_FALSE(browser_settings::LoadFolderColour(root + "/docs").IsOk());
}

TEST_F(FolderColours, ComeBack)
{
    Select("docs");
    ChooseColour(darkRedCell);
    Tree().Expand(Item("docs"));
    Select("docs/letters");
    ChooseColour(indigoCell);
    OpenNextSession();
    EXPECT_EQ(ColourOf("docs"), shownRed.inTree);
    EXPECT_EQ(ColourOf("docs/letters"), shownIndigo.inTree);
    EXPECT_EQ(LocationColour(), shownIndigo.inLocation);
    EXPECT_FALSE(ColourOf("music").IsOk());
    Close();
    Open(root + "/docs");
    EXPECT_EQ(ColourOf(""), shownRed.inTree) << "the colour belongs to the folder, also as the root";
    EXPECT_EQ(ColourOf("letters"), shownIndigo.inTree);
    Press(WXK_F5);
    PumpPending();
    EXPECT_EQ(ColourOf("letters"), shownIndigo.inTree);
}

TEST_F(FolderColours, OddNamesHaveTheirOwn)
{
    const std::string odd = "odd|\xFF%7C\n=[x]";
    fs::create_directory(temp / odd);
    fs::create_directory(temp / "odd|\xFE%7C\n=[x]");
    Press(WXK_F5);
    ASSERT_TRUE(PumpUntil([&] { return RowOf(odd) < List().CountRows(); }));
    browser_settings::SaveFolderColour(JoinPath(root, odd), kIndigo);
    Close();
    Open(root);
    unsigned coloured = 0;
    wxTreeItemIdValue cookie;
    for (wxTreeItemId child = Tree().GetFirstChild(Tree().GetRootItem(), cookie); child.IsOk();
         child = Tree().GetNextChild(Tree().GetRootItem(), cookie)) {
        if (Tree().GetItemTextColour(child) == shownIndigo.inTree) {
            ++coloured;
            EXPECT_EQ(Tree().PathOf(child), JoinPath(root, odd));
        }
    }
    EXPECT_EQ(coloured, 1u);
}

TEST_F(FolderColours, NonsenseInTheSettingsIsNone)
{
    Close();
    for (const char* nonsense : {"red", "#12", "#GGGGGG", "rgb(1,2,3)", "1", "\"\""}) {
        WriteFile(settings / "settings.ini", "[FolderColours]\n" + root + "/docs=" + nonsense + "\n");
        Open(root);
        EXPECT_FALSE(ColourOf("docs").IsOk()) << nonsense;
        Close();
    }
    Open(root);
}

TEST_F(FolderColours, TheWindowClosesWithTheColoursOpen)
{
    Select("docs");
    OpenColours();
    PointAtCell(indigoCell);
    Close();
    EXPECT_FALSE(browser_settings::LoadFolderColour(root + "/docs").IsOk());
}

TEST_F(FolderColours, OtherPagesHaveNoMenuItemForThem)
{
    EXPECT_TRUE(frame->GetMenuBar()->IsEnabled(wxID_SELECT_COLOR));
    Press('2', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return !frame->GetMenuBar()->IsEnabled(wxID_SELECT_COLOR); }));
}

}  // namespace
