#include <fittings/tree/handy_tree_ctrl.h>

#include <string>

#include <gtest/gtest.h>

#include <fittings/platform/std_file_paths.h>
#include <tests/support/temp_folder.h>
#include <tests/tree/tree_on_screen.h>

namespace {

class SaveState : public testing::Test
{
protected:
    SaveState() { root = tree.AddRoot("R"); }

    std::wstring Saved(wxTreeCursor start)
    {
        tree.SaveState("state", start);
        return StoredState(L"state");
    }

    wxTreeCursor AppendExpanded(wxTreeCursor parent, const wxString& label)
    {
        wxTreeCursor item = parent.AppendItem(label);
        item.SetChildren(true);
        item.Expand();
        return item;
    }

    TempUserData settings;
    TreeOnScreen<> screen;
    wxHandyTreeCtrl& tree = *screen.tree;
    wxTreeCursor root;
};

TEST_F(SaveState, KeepsTheExpandedItemsSorted)
{
    wxTreeCursor collapsed = root.AppendItem("A");
    collapsed.SetChildren(true);
    AppendExpanded(root, "B");
    root.Expand();
    EXPECT_EQ(Saved(root), L"B|R|");
}

TEST_F(SaveState, PutsASeparatorBehindEachLabel)
{
    root.AppendItem("leaf");
    root.Expand();
    EXPECT_EQ(Saved(root), L"R|");
    AppendExpanded(root, "src");
    AppendExpanded(root, "Documents");
    AppendExpanded(root, "Projects");
    EXPECT_EQ(Saved(root), L"Documents|Projects|R|src|");
}

TEST_F(SaveState, IsAPlainLineInTheUsersSettings)
{
    AppendExpanded(root, "Documents");
    root.Expand();
    tree.SaveState("Folders", root);
    EXPECT_NE(ReadFile(settings / "settings.ini").find("[TreeControlState]\nFolders=Documents|R|\n"), std::string::npos)
        << ReadFile(settings / "settings.ini");
}

TEST_F(SaveState, StoresAnEmptyTextWhenNothingIsExpanded)
{
    Append(root, {L"A", L"B"});
    EXPECT_EQ(Saved(root), L"");
}

TEST_F(SaveState, ReplacesWhatWasStored)
{
    root.AppendItem("A");
    root.Expand();
    ASSERT_EQ(Saved(root), L"R|");
    tree.Collapse(root.item);
    EXPECT_EQ(Saved(root), L"");
}

TEST_F(SaveState, LooksIntoCollapsedItems)
{
    wxTreeCursor collapsed = root.AppendItem("A");
    AppendExpanded(collapsed, "deep");
    EXPECT_EQ(Saved(root), L"deep|");
}

TEST_F(SaveState, FromABranchLeavesOutTheRest)
{
    wxTreeCursor before = AppendExpanded(root, "before");
    wxTreeCursor start = AppendExpanded(root, "start");
    AppendExpanded(AppendExpanded(start, "inside"), "deeper");
    AppendExpanded(start, "another");
    AppendExpanded(root, "after");
    root.Expand();
    EXPECT_EQ(Saved(start), L"another|deeper|inside|start|");
    EXPECT_EQ(Saved(before), L"before|");
}

TEST_F(SaveState, FromALeafStoresAnEmptyText)
{
    root.Expand();
    EXPECT_EQ(Saved(root.AppendItem("leaf")), L"");
}

TEST_F(SaveState, LetsTheLastOfOneLabelDecide)
{
    AppendExpanded(root, "same");
    root.AppendItem("same");
    EXPECT_EQ(Saved(root), L"");
    AppendExpanded(root, "same");
    EXPECT_EQ(Saved(root), L"same|");
    AppendExpanded(root, "same");
    EXPECT_EQ(Saved(root), L"same|");
    root.AppendItem("same");
    EXPECT_EQ(Saved(root), L"");
}

// Of several items with the same label, the last one decides. A child comes after its parent and before its parent's
// next sibling.
TEST_F(SaveState, TakesTheLastInTheOrderOfTheTree)
{
    wxTreeCursor first = root.AppendItem("first");
    AppendExpanded(first, "same");
    root.AppendItem("same");
    EXPECT_EQ(Saved(root), L"");

    AppendExpanded(root.AppendItem("second"), "same");
    EXPECT_EQ(Saved(root), L"same|");
    AppendExpanded(AppendExpanded(root, "outer"), "outer").AppendItem("same");
    EXPECT_EQ(Saved(root), L"outer|");
}

TEST_F(SaveState, CountsALabelBelowItsOwnKind)
{
    AppendExpanded(root, "R");
    EXPECT_EQ(Saved(root), L"R|");
    root.Expand();
    root.AppendItem("R");
    EXPECT_EQ(Saved(root), L"");
}

TEST_F(SaveState, OrdersByCodeUnit)
{
    for (const wchar_t* label : {L"\U0001F333", L"z", L"\uFFFD", L"Z", L"\u00e9", L"a", L"aa", L"\U00010000", L"",
                                 L"A b", L"A", L"a-b", L"\xD800", L"10", L"9"})
        AppendExpanded(root, label);
    EXPECT_EQ(Saved(root), L"|10|9|A|A b|Z|a|a-b|aa|z|\u00e9|\xD800"
                           L"|\uFFFD|\U00010000|\U0001F333|");
}

TEST_F(SaveState, KeepsBlanksAndSpecialCharacters)
{
    for (const wchar_t* label : {L" edge ", L"[section]", L"key=value", L"#;%\\\"", L"two\nlines", L"\ttab"})
        AppendExpanded(root, label);
    EXPECT_EQ(Saved(root), L"\ttab| edge |#;%\\\"|[section]|key=value|two\nlines|");
}

TEST_F(SaveState, DoesNotGuardASeparatorInALabel)
{
    AppendExpanded(root, "a|b");
    EXPECT_EQ(Saved(root), L"a|b|");
}

TEST_F(SaveState, WithoutANameGoesUnderTheProfile)
{
    AppendExpanded(root, "A");
    tree.SetProfile("profile");
    tree.SaveState(root);
    EXPECT_EQ(StoredState(L"profile"), L"A|");
    EXPECT_EQ(StoredState(L""), L"(none)");
}

TEST_F(SaveState, WithoutANameAndProfileGoesUnderTheEmptyKey)
{
    AppendExpanded(root, "A");
    tree.SaveState(root);
    EXPECT_EQ(StoredState(L""), L"A|");
}

TEST_F(SaveState, KeepsSeveralNamesApart)
{
    TreeOnScreen<> other;
    wxTreeCursor otherRoot = AddLazyRoot(*other.tree, "other");
    otherRoot.Expand();
    root.AppendItem("A");
    root.Expand();
    tree.SaveState("one", root);
    other.tree->SaveState("two", otherRoot);
    EXPECT_EQ(StoredState(L"one"), L"R|");
    EXPECT_EQ(StoredState(L"two"), L"other|");
}

TEST_F(SaveState, WalksTheTreeOfTheCursor)
{
    TreeOnScreen<> other;
    wxTreeCursor otherRoot = AddLazyRoot(*other.tree, "other");
    otherRoot.Expand();
    EXPECT_EQ(Saved(otherRoot), L"other|");
}

TEST_F(SaveState, ChangesNothingInTheTree)
{
    wxTreeCursor folder = root.AppendItem("A");
    folder.AppendItem("A1");
    tree.SaveState("state", root);
    EXPECT_FALSE(root.IsExpanded());
    EXPECT_FALSE(folder.IsExpanded());
    EXPECT_EQ(root.tree, &tree);
}

// Not even root can create a folder in /proc, so nothing can be stored.
TEST_F(SaveState, IsLostQuietlyWhereNothingCanBeStored)
{
    std_file_paths::SetUserDataDir(L"/proc/fittings");
    root.AppendItem("A");
    root.Expand();
    EXPECT_EQ(Saved(root), L"(none)");
    tree.Collapse(root.item);
    tree.LoadState("state", root);
    EXPECT_FALSE(root.IsExpanded());
}

TEST_F(SaveState, FromAnInvalidCursorAssertsAndStoresAnEmptyText)
{
    root.AppendItem("A");
    root.Expand();
    ASSERT_EQ(Saved(root), L"R|");
    ExpectAssertions assertions;
    EXPECT_EQ(Saved(wxTreeCursor(&tree, wxTreeItemId())), L"");
    EXPECT_EQ(Saved(wxTreeCursor()), L"");
    EXPECT_EQ(assertions.Count(), 2);
}

}  // namespace
