#include <filesystem>

#include <wx/menu.h>
#include <wx/toolbar.h>

#include <gallery/folders/folder_listing.h>
#include <tests/gallery/browser/browser_fixture.h>

namespace {

using namespace gallery;
using namespace gallery::simulated_user;
namespace fs = std::filesystem;

class Browsing : public BrowserTest
{
protected:
    void SetUp() override
    {
        for (const char* const path : {"docs/letters/old", "docs/taxes", "music"})
            fs::create_directories(temp / path);
        WriteFile(temp / "big.bin", std::string(3000, 'x'));
        WriteFile(temp / "small.txt", "abc");
        WriteFile(temp / "docs/note.txt", "hello");
        Open(temp.Path());
    }
};

TEST_F(Browsing, StartsWithTheFoldersOfTheRoot)
{
    EXPECT_TRUE(Tree().IsExpanded(Tree().GetRootItem()));
    EXPECT_EQ(Tree().GetSelectedPath(), root);
    EXPECT_EQ(Rows(), (Strings{"docs", "music", "big.bin", "small.txt"}));
    EXPECT_EQ(frame->GetStatusBar()->GetStatusText(0),
              wxString::FromUTF8("4 items, 3.0\u00A0kB (3\u00A0003 bytes) in 2 files"));
}

// The process is in the C locale, whose character set lacks some characters of the labels.
TEST_F(Browsing, AllLabelsAreWholeInAnyLocale)
{
    EXPECT_EQ(frame->GetMenuBar()->FindItem(wxID_OPEN)->GetItemLabelText(), L"Open folder\u2026");
    EXPECT_EQ(frame->GetBrowser()->GetTools()->FindById(wxID_OPEN)->GetLabel(), L"Open folder\u2026");
    EXPECT_TRUE(frame->GetTitle().EndsWith(L" \u2013 Fittings Gallery")) << frame->GetTitle();
}

TEST_F(Browsing, RightAndLeftKeysExpandAndCollapse)
{
    // With a right-to-left layout, Left expands a folder and Right collapses it.
    const bool isRightToLeft = Tree().GetLayoutDirection() == wxLayout_RightToLeft;
    ClickFolder("docs");
    EXPECT_FALSE(Tree().IsExpanded(Item("docs")));
    Press(isRightToLeft ? WXK_LEFT : WXK_RIGHT);
    EXPECT_TRUE(PumpUntil([&] { return Tree().IsExpanded(Item("docs")); }));
    EXPECT_TRUE(Item("docs/letters").IsOk());
    EXPECT_TRUE(Item("docs/taxes").IsOk());
    Press(isRightToLeft ? WXK_RIGHT : WXK_LEFT);
    EXPECT_TRUE(PumpUntil([&] { return !Tree().IsExpanded(Item("docs")); }));
}

TEST_F(Browsing, OnlyFoldersWithFoldersShowAButton)
{
    EXPECT_TRUE(Tree().ItemHasChildren(Item("docs")));
    EXPECT_FALSE(Tree().ItemHasChildren(Item("music")));
}

TEST_F(Browsing, AClickOnAFolderListsIt)
{
    ClickFolder("docs");
    EXPECT_EQ(Rows(), (Strings{"letters", "taxes", "note.txt"}));
    EXPECT_TRUE(frame->GetTitle().StartsWith(wxString::FromUTF8(root + "/docs")));
}

TEST_F(Browsing, AClickOnAHeaderSortsAndASecondReverses)
{
    Click(CentreOf(HeaderRect(List(), SortColumn::Size)));
    EXPECT_TRUE(PumpUntil([&] { return Rows() == Strings{"music", "docs", "small.txt", "big.bin"}; }));
    Click(CentreOf(HeaderRect(List(), SortColumn::Size)));
    EXPECT_TRUE(PumpUntil([&] { return Rows() == Strings{"docs", "music", "big.bin", "small.txt"}; }));
    EXPECT_TRUE(List().GetColumn(1)->IsSortKey());
    EXPECT_FALSE(List().GetColumn(1)->IsSortOrderAscending());
    Click(CentreOf(HeaderRect(List(), SortColumn::Name)));
    EXPECT_TRUE(PumpUntil([&] { return List().GetColumn(0)->IsSortKey() && !List().GetColumn(1)->IsSortKey(); }));
}

// The toolkit's list keeps its own copy of the sort order. This copy must not be reset when the list shows another
// folder: the next click on the header must reverse the order again.
TEST_F(Browsing, TheOrderStaysInAnotherFolder)
{
    Click(CentreOf(HeaderRect(List(), SortColumn::Name)));
    ASSERT_TRUE(PumpUntil([&] { return !List().GetSortOrder().ascending; }));
    ClickFolder("docs");
    EXPECT_EQ(Rows(), (Strings{"taxes", "letters", "note.txt"}));
    Click(CentreOf(HeaderRect(List(), SortColumn::Name)));
    EXPECT_TRUE(PumpUntil([&] { return Rows() == Strings{"letters", "taxes", "note.txt"}; }));
}

TEST_F(Browsing, TheSelectedEntryStaysSelectedWhenSorted)
{
    Click(CentreOf(NameRect(List(), RowOf("small.txt"))));
    ASSERT_TRUE(PumpUntil([&] { return List().GetSelectedEntry() != nullptr; }));
    EXPECT_EQ(frame->GetStatusBar()->GetStatusText(1), "small.txt: 3 bytes");
    Click(CentreOf(HeaderRect(List(), SortColumn::Size)));
    ASSERT_TRUE(PumpUntil([&] { return Rows()[2] == "small.txt"; }));
    ASSERT_TRUE(List().GetSelectedEntry());
    EXPECT_EQ(List().GetSelectedEntry()->name, "small.txt");
    EXPECT_EQ(List().GetSelectedItemsCount(), 1);
}

TEST_F(Browsing, ADoubleClickEntersAFolder)
{
    DoubleClick(CentreOf(NameRect(List(), RowOf("docs"))));
    ASSERT_TRUE(SelectionComesTo("docs"));
    EXPECT_EQ(Rows(), (Strings{"letters", "taxes", "note.txt"}));
}

TEST_F(Browsing, EnterEntersAFolderAndBackspaceLeavesIt)
{
    Click(CentreOf(NameRect(List(), RowOf("docs"))));
    ASSERT_TRUE(PumpUntil([&] { return List().GetSelectedEntry() != nullptr; }));
    Press(WXK_RETURN);
    ASSERT_TRUE(SelectionComesTo("docs"));
    Press(WXK_BACK);
    ASSERT_TRUE(SelectionComesTo(""));
    ASSERT_TRUE(List().GetSelectedEntry());
    EXPECT_EQ(List().GetSelectedEntry()->name, "docs");
}

TEST_F(Browsing, AltUpGoesToTheFolderAbove)
{
    Select("docs/letters");
    EXPECT_TRUE(frame->GetMenuBar()->IsEnabled(wxID_UP));
    EXPECT_TRUE(frame->GetBrowser()->GetTools()->GetToolEnabled(wxID_UP));
    Press(WXK_UP, wxMOD_ALT);
    ASSERT_TRUE(SelectionComesTo("docs"));
    EXPECT_EQ(List().GetSelectedEntry()->name, "letters");
    Press(WXK_UP, wxMOD_ALT);
    ASSERT_TRUE(SelectionComesTo(""));
    EXPECT_FALSE(frame->GetMenuBar()->IsEnabled(wxID_UP));
    EXPECT_FALSE(frame->GetBrowser()->GetTools()->GetToolEnabled(wxID_UP));
}

TEST_F(Browsing, ADoubleClickOnAFileDoesNothing)
{
    DoubleClick(CentreOf(NameRect(List(), RowOf("big.bin"))));
    ASSERT_TRUE(PumpUntil([&] { return List().GetSelectedEntry() != nullptr; }));
    EXPECT_EQ(Tree().GetSelectedPath(), root);
}

TEST_F(Browsing, RefreshFindsWhatIsNewAndForgetsWhatIsGone)
{
    Select("docs/letters");
    Tree().Expand(Item("docs/letters"));
    for (const char* const path : {"docs/letters/archive", "docs/photos", "a first one", "music/rock"})
        fs::create_directories(temp / path);
    fs::remove_all(temp / "docs/taxes");
    WriteFile(temp / "docs/letters/new.txt", "");
    Press(WXK_F5);
    EXPECT_TRUE(PumpUntil([&] { return Rows() == Strings{"archive", "old", "new.txt"}; }));
    EXPECT_TRUE(Item("a first one").IsOk());
    EXPECT_EQ(Tree().GetPrevSibling(Item("docs")), Item("a first one"));
    EXPECT_EQ(Tree().GetNextSibling(Item("docs/letters")), Item("docs/photos"));
    EXPECT_FALSE(Item("docs/taxes").IsOk());
    EXPECT_TRUE(Tree().ItemHasChildren(Item("music")));
    EXPECT_TRUE(Tree().IsExpanded(Item("docs/letters")));
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/docs/letters");
}

TEST_F(Browsing, RefreshLeavesAFolderThatIsGone)
{
    Select("docs/taxes");
    fs::remove_all(temp / "docs/taxes");
    Press(WXK_F5);
    EXPECT_TRUE(PumpUntil([&] { return !Item("docs/taxes").IsOk(); }));
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/docs");
    EXPECT_EQ(frame->GetBrowser()->GetFolder(), root + "/docs");
}

TEST_F(Browsing, AFolderThatIsNewIsEnteredWithoutRefresh)
{
    Tree().Expand(Item("docs"));
    fs::create_directory(temp / "docs/brand new");
    ASSERT_NO_FATAL_FAILURE(Select("docs"));
    ASSERT_FALSE(Item("docs/brand new").IsOk());
    DoubleClick(CentreOf(NameRect(List(), RowOf("brand new"))));
    EXPECT_TRUE(SelectionComesTo("docs/brand new"));
}

TEST_F(Browsing, F9HidesAndShowsTheFolders)
{
    Press(WXK_F9);
    EXPECT_TRUE(PumpUntil([&] { return !Tree().IsShownOnScreen(); }));
    Press(WXK_F9);
    EXPECT_TRUE(PumpUntil([&] { return Tree().IsShownOnScreen(); }));
}

TEST_F(Browsing, F9ShowsFoldersThatWereClosedByTheirButton)
{
    Click(Tree().GetParent()->ClientToScreen(Tree().GetRect().GetTopRight() + wxSize(-8, -10)));
    ASSERT_TRUE(PumpUntil([&] { return !Tree().IsShownOnScreen(); }));
    EXPECT_FALSE(frame->GetMenuBar()->IsChecked(wxID_VIEW_LIST));
    Press(WXK_F9);
    EXPECT_TRUE(PumpUntil([&] { return Tree().IsShownOnScreen(); }));
    EXPECT_TRUE(frame->GetMenuBar()->IsChecked(wxID_VIEW_LIST));
}

TEST_F(Browsing, TheMenusKeysWorkInFloatingFolders)
{
    FloatFolders(frame->GetPosition() + wxSize(300, 200));
    Tree().Expand(Item("docs"));
    ClickFolder("docs/letters");
    ASSERT_TRUE(PumpUntil([&] { return Tree().HasFocus(); }));
    Press(WXK_UP, wxMOD_ALT);
    EXPECT_TRUE(SelectionComesTo("docs"));
    PumpPending();
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/docs");
    Press(WXK_F9);
    EXPECT_TRUE(PumpUntil([&] { return !Tree().IsShownOnScreen(); }));
}

TEST_F(Browsing, TabLeavesTheTree)
{
    Click(CentreOf(LabelRect(Tree(), Item("docs"))));
    ASSERT_TRUE(PumpUntil([&] { return Tree().HasFocus(); }));
    Press(WXK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return !Tree().HasFocus(); }));
}

TEST_F(Browsing, CtrlQClosesTheWindow)
{
    Press('Q', wxMOD_CONTROL);
    EXPECT_TRUE(PumpUntil([] { return wxTopLevelWindows.empty(); }));
    frame = nullptr;
}

}  // namespace
