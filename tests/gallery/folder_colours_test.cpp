#include <filesystem>

#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/stattext.h>

#include <gallery/browser_settings.h>
#include <gallery/folder_colour_combo.h>
#include <gallery/folder_listing.h>
#include <tests/gallery/browser_fixture.h>

namespace {

using namespace fittings;
using namespace fittings::simulated_user;
namespace fs = std::filesystem;

const wxColour darkRed(139, 0, 0);
const wxColour kIndigo(75, 0, 130);

class FolderColours : public BrowserTest
{
protected:
    void SetUp() override
    {
        fs::create_directories(temp / "docs/letters");
        fs::create_directories(temp / "music");
        Open(root);
    }

    FolderColourCombo& Combo() { return *frame->GetBrowser()->GetColour(); }

    void OpenColours()
    {
        Press('T', wxMOD_CONTROL);
        ASSERT_TRUE(
            PumpUntil([this] { return Combo().IsPopupShown() && Combo().GetColourPopup()->IsShownOnScreen(); }));
    }

    /// Points at a cell of the open colours, and clicks it.
    void ClickCell(int cell)
    {
        PointAtCell(cell);
        Click(wxGetMousePosition());
        ASSERT_TRUE(PumpUntil([this] { return !Combo().IsPopupShown(); }));
    }

    void PointAtCell(int cell)
    {
        wxRect rect;
        ASSERT_TRUE(Combo().GetColourPopup()->GetCellRect(cell, rect));
        PointAt(Combo().GetColourPopup()->ClientToScreen(CentreOf(rect)));
    }

    void Select(const std::string& path)
    {
        Tree().SelectPath(JoinPath(root, path));
        ASSERT_TRUE(SelectionComesTo(path));
    }

    wxColour ColourOf(const std::string& path) { return Tree().GetItemTextColour(Item(path)); }

    wxColour LocationColour() { return wxWindow::FindWindowByName("Location", frame)->GetForegroundColour(); }

    const int darkRedCell = 8;
    const int indigoCell = 6;
};

TEST_F(FolderColours, AClickGivesAFolderOne)
{
    Select("docs");
    OpenColours();
    ClickCell(darkRedCell);
    EXPECT_TRUE(PumpUntil([&] { return ColourOf("docs") == darkRed; }));
    EXPECT_EQ(LocationColour(), darkRed);
    EXPECT_EQ(Combo().GetColourPopup()->GetInitialColour(), darkRed);
    EXPECT_FALSE(ColourOf("music").IsOk());
    EXPECT_FALSE(ColourOf("").IsOk());
    Select("music");
    EXPECT_EQ(ColourOf("docs"), darkRed);
    EXPECT_NE(LocationColour(), darkRed);
    EXPECT_EQ(Combo().GetColourPopup()->GetInitialColour(), Tree().GetForegroundColour());
}

// Down from "More Colours..." leads to "Automatic", from there to the palette's first row.
TEST_F(FolderColours, TheKeyboardGivesAFolderOne)
{
    Select("docs");
    OpenColours();
    for (const int key : {WXK_DOWN, WXK_DOWN, WXK_DOWN, WXK_DOWN, WXK_RETURN})
        Press(key);
    EXPECT_TRUE(PumpUntil([&] { return ColourOf("docs") == darkRed; }));
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
    OpenColours();
    ClickCell(darkRedCell);
    ASSERT_TRUE(PumpUntil([&] { return LocationColour() == darkRed; }));
    OpenColours();
    PointAtCell(indigoCell);
    EXPECT_TRUE(PumpUntil([&] { return LocationColour() == kIndigo && ColourOf("docs") == kIndigo; }));
    PointAtCell(CELL_AUTOMATIC);
    EXPECT_TRUE(PumpUntil([&] { return !ColourOf("docs").IsOk(); }));
    Press(WXK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return LocationColour() == darkRed && ColourOf("docs") == darkRed; }));
    EXPECT_EQ(browser_settings::LoadFolderColour(root + "/docs"), darkRed);
}

TEST_F(FolderColours, AutomaticTakesItAway)
{
    Select("docs");
    const wxColour plain = LocationColour();
    OpenColours();
    ClickCell(indigoCell);
    ASSERT_TRUE(PumpUntil([&] { return ColourOf("docs") == kIndigo; }));
    ASSERT_NE(ReadFile(settings / "settings.ini").find("#4B0082"), std::string::npos);
    OpenColours();
    ClickCell(CELL_AUTOMATIC);
    EXPECT_TRUE(PumpUntil([&] { return !ColourOf("docs").IsOk(); }));
    EXPECT_EQ(LocationColour(), plain);
    EXPECT_EQ(ReadFile(settings / "settings.ini").find("docs="), std::string::npos);
    Select("music");
    Select("docs");
    EXPECT_FALSE(ColourOf("docs").IsOk());
}

// The plain text's colour is also in the palette.
TEST_F(FolderColours, BlackIsNotAutomatic)
{
    Select("docs");
    OpenColours();
    ClickCell(0);
    EXPECT_TRUE(PumpUntil([&] { return ColourOf("docs") == wxColour(0, 0, 0); }));
    EXPECT_EQ(browser_settings::LoadFolderColour(root + "/docs"), wxColour(0, 0, 0));
}

TEST_F(FolderColours, CanBeReadOnADarkBackground)
{
    Tree().SetBackgroundColour(wxColour(45, 45, 45));
    Select("docs");
    OpenColours();
    ClickCell(13);  // blue
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
    EXPECT_EQ(Inside::Marked(*Combo().GetColourPopup()), CELL_AUTOMATIC);
    ClickCell(indigoCell);
    Select("music");
    OpenColours();
    EXPECT_EQ(Inside::Marked(*Combo().GetColourPopup()), CELL_AUTOMATIC);
    Press(WXK_ESCAPE);
    ASSERT_TRUE(PumpUntil([&] { return !Combo().IsPopupShown(); }));
    Select("docs");
    OpenColours();
    EXPECT_EQ(Inside::Marked(*Combo().GetColourPopup()), indigoCell);
}

TEST_F(FolderColours, EachFolderStartsWithItsOwn)
{
    Select("docs");
    OpenColours();
    ClickCell(CELL_AUTOMATIC);
    Select("music");
    OpenColours();
    ClickCell(indigoCell);
    Select("docs");
    Select("music");
    OpenColours();
    // Enter without a move keeps what the folder has.
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
    OpenColours();
    ClickCell(darkRedCell);
    Tree().Expand(Item("docs"));
    Select("docs/letters");
    OpenColours();
    ClickCell(indigoCell);
    Close();
    Open("");
    EXPECT_EQ(ColourOf("docs"), darkRed);
    EXPECT_EQ(ColourOf("docs/letters"), kIndigo);
    EXPECT_EQ(LocationColour(), kIndigo);
    EXPECT_FALSE(ColourOf("music").IsOk());
    Close();
    Open(root + "/docs");
    EXPECT_EQ(ColourOf(""), darkRed) << "the folder is the root now";
    EXPECT_EQ(ColourOf("letters"), kIndigo);
    Press(WXK_F5);
    PumpPending();
    EXPECT_EQ(ColourOf("letters"), kIndigo);
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
        if (Tree().GetItemTextColour(child) == kIndigo) {
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
