#include <fittings/tree/handy_tree_ctrl.h>

#include <stdexcept>

#include <gtest/gtest.h>

#include <fittings/platform/local_reg_store.h>
#include <tests/support/temp_folder.h>
#include <tests/tree/tree_on_screen.h>

namespace {

class LoadState : public testing::Test
{
protected:
    LoadState()
    {
        tree.folders = {{L"R", {L"A", L"B"}}, {L"A", {L"A1"}}, {L"B", {L"B1", L"B2"}}, {L"B2", {L"deep"}}};
        root = AddLazyRoot(tree, "R");
    }

    void Load(const wchar_t* stored) { LoadFrom(root, stored); }

    void LoadFrom(wxTreeCursor start, const wchar_t* stored)
    {
        CLocalRegStore::WriteString(L"TreeControlState", L"state", stored);
        tree.expanded.clear();
        tree.LoadState("state", start);
    }

    TempUserData settings;
    TreeOnScreen<LazyTree> screen;
    LazyTree& tree = *screen.tree;
    wxTreeCursor root;
};

TEST_F(LoadState, RestoresLazilyFilledLevels)
{
    Load(L"B|R|");
    EXPECT_TRUE(root.IsExpanded());
    EXPECT_EQ(ChildrenOf(root), (Labels{L"A", L"B"}));
    EXPECT_FALSE(root.GetChild().IsExpanded());
    const wxTreeCursor folder = root.GetChild().GetNextSibling();
    EXPECT_TRUE(folder.IsExpanded());
    EXPECT_EQ(ChildrenOf(folder), (Labels{L"B1", L"B2"}));
    EXPECT_EQ(tree.hooked, (Labels{L"R", L"B"}));
}

struct StoredLabels
{
    const char* name;
    const wchar_t* labels;
    Labels expanded;
    Labels filled;
};

class LoadStateFromRoot : public LoadState, public testing::WithParamInterface<StoredLabels>
{
};

TEST_P(LoadStateFromRoot, ExpandsItems)
{
    Load(GetParam().labels);
    EXPECT_EQ(tree.expanded, GetParam().expanded);
    EXPECT_EQ(tree.hooked, GetParam().filled);
    EXPECT_EQ(root.IsExpanded(), !GetParam().expanded.empty());
}

INSTANTIATE_TEST_SUITE_P(
    , LoadStateFromRoot,
    testing::Values(StoredLabels{"ParentsFirstInTheOrderOfTheTree",
                                 L"A|A1|B|B2|R|deep|",
                                 {L"R", L"A", L"A1", L"B", L"B2", L"deep"},
                                 {L"R", L"A", L"B", L"B2"}},
                    StoredLabels{"ButDropsALastLabelWithoutSeparator", L"R|B", {L"R"}, {L"R"}},
                    StoredLabels{"ButNoneForALoneLabelWithoutSeparator", L"R", {}, {}},
                    StoredLabels{"WhateverTheOrderOrRepetition", L"R|B|R|B|", {L"R", L"B"}, {L"R", L"B"}},
                    StoredLabels{"ButStopsAtCollapsedLevelsThatAreNotFilled", L"B|", {}, {}},
                    StoredLabels{"ButIgnoresLabelsThatMatchNothing", L"gone|R|missing|", {L"R"}, {L"R"}},
                    StoredLabels{"ButTellsLabelsApartExactly", L"r| R|R |", {}, {}}),
    [](const auto& info) { return info.param.name; });

TEST_F(LoadState, LooksIntoCollapsedLevelsThatAreFilled)
{
    root.Expand();
    tree.Collapse(root.item);
    Load(L"B|");
    EXPECT_FALSE(root.IsExpanded());
    EXPECT_TRUE(root.GetChild().GetNextSibling().IsExpanded());
}

TEST_F(LoadState, WithNothingStoredExpandsNothing)
{
    tree.LoadState("never saved", root);
    EXPECT_TRUE(tree.expanded.empty());
    EXPECT_FALSE(root.IsExpanded());
    Load(L"");
    EXPECT_TRUE(tree.expanded.empty());
}

TEST_F(LoadState, NeverCollapses)
{
    root.Expand();
    wxTreeCursor folder = root.GetChild();
    folder.Expand();
    Load(L"B|");
    EXPECT_TRUE(root.IsExpanded());
    EXPECT_TRUE(folder.IsExpanded());
    EXPECT_TRUE(folder.GetNextSibling().IsExpanded());
}

TEST_F(LoadState, ExpandsAlsoWhatIsExpandedAndLeaves)
{
    root.Expand();
    tree.hooked.clear();
    Load(L"R|A|A1|");
    EXPECT_EQ(tree.expanded, (Labels{L"R", L"A", L"A1"}));
    EXPECT_EQ(tree.hooked, (Labels{L"A"}));
}

TEST_F(LoadState, ExpandsAllItemsOfOneLabel)
{
    tree.folders = {{L"R", {L"same", L"B"}}, {L"B", {L"same"}}, {L"same", {L"x"}}};
    Load(L"B|R|same|");
    EXPECT_EQ(tree.expanded, (Labels{L"R", L"same", L"B", L"same"}));
}

TEST_F(LoadState, TakesAnEmptyTokenForTheEmptyLabel)
{
    tree.folders = {{L"R", {L"", L"A"}}, {L"", {L"inside"}}};
    Load(L"R||");
    EXPECT_EQ(tree.expanded, (Labels{L"R", L""}));
    EXPECT_EQ(ChildrenOf(root.GetChild()), (Labels{L"inside"}));

    Load(L"|");
    EXPECT_EQ(tree.expanded, (Labels{L""}));
    Load(L"|R|");
    EXPECT_EQ(tree.expanded, (Labels{L"R", L""}));
    Load(L"R|");
    EXPECT_EQ(tree.expanded, (Labels{L"R"}));
}

TEST_F(LoadState, TakesALabelWithASeparatorForTwo)
{
    tree.folders = {{L"R", {L"a|b", L"a", L"b"}}, {L"a|b", {L"x"}}, {L"a", {L"x"}}, {L"b", {L"x"}}};
    root.Expand();
    root.GetChild().Expand();
    tree.SaveState("state", root);
    tree.expanded.clear();
    tree.LoadState("state", root);
    EXPECT_EQ(tree.expanded, (Labels{L"R", L"a", L"b"}));
}

TEST_F(LoadState, FromABranchLeavesTheRestAlone)
{
    root.Expand();
    LoadFrom(root.GetChild(), L"A|B|R|");
    EXPECT_EQ(tree.expanded, (Labels{L"A"}));
    EXPECT_TRUE(root.GetChild().IsExpanded());
    EXPECT_FALSE(root.GetChild().GetNextSibling().IsExpanded());
}

TEST_F(LoadState, ExpandsInTheTreeOfTheCursor)
{
    TreeOnScreen<LazyTree> other;
    other.tree->folders = tree.folders;
    LoadFrom(AddLazyRoot(*other.tree, "R"), L"R|B|");
    EXPECT_EQ(other.tree->expanded, (Labels{L"R", L"B"}));
    EXPECT_TRUE(tree.expanded.empty());
    EXPECT_FALSE(root.IsExpanded());
}

TEST_F(LoadState, LeavesWhatIsStoredAsItIs)
{
    Load(L"gone|R|unfinished");
    EXPECT_EQ(StoredState(L"state"), L"gone|R|unfinished");
}

TEST_F(LoadState, FindsUnicodeLabels)
{
    tree.folders = {{L"R", {L"\U0001F333 \u00e9", L"\U0001F332"}}, {L"\U0001F333 \u00e9", {L"x"}}};
    Load(L"R|\U0001F333 \u00e9|");
    EXPECT_EQ(tree.expanded, (Labels{L"R", L"\U0001F333 \u00e9"}));
}

TEST_F(LoadState, WithoutANameUsesTheProfile)
{
    CLocalRegStore::WriteString(L"TreeControlState", L"profile", L"R|");
    CLocalRegStore::WriteString(L"TreeControlState", L"", L"R|B|");
    tree.SetProfile("profile");
    tree.LoadState(root);
    EXPECT_EQ(tree.expanded, (Labels{L"R"}));
}

TEST_F(LoadState, WithoutANameAndProfileUsesTheEmptyKey)
{
    CLocalRegStore::WriteString(L"TreeControlState", L"", L"R|B|");
    tree.LoadState(root);
    EXPECT_EQ(tree.expanded, (Labels{L"R", L"B"}));
}

TEST_F(LoadState, BringsBackWhatAnotherTreeSaved)
{
    root.Expand();
    root.GetChild().GetNextSibling().Expand();
    root.GetChild().GetNextSibling().GetChild().GetNextSibling().Expand();
    tree.SaveState("state", root);

    TreeOnScreen<LazyTree> other;
    other.tree->folders = tree.folders;
    wxTreeCursor otherRoot = AddLazyRoot(*other.tree, "R");
    other.tree->LoadState("state", otherRoot);
    EXPECT_EQ(other.tree->hooked, (Labels{L"R", L"B", L"B2"}));
}

TEST_F(LoadState, GoesOnPastAVetoedExpansion)
{
    tree.Bind(wxEVT_TREE_ITEM_EXPANDING, [&](wxTreeEvent& event) {
        if (tree.GetItemText(event.GetItem()) == "A")
            event.Veto();
        else
            event.Skip();
    });
    Load(L"A|B|R|");
    EXPECT_EQ(tree.expanded, (Labels{L"R", L"A", L"B"}));
    EXPECT_FALSE(root.GetChild().IsExpanded());
    EXPECT_TRUE(root.GetChild().GetNextSibling().IsExpanded());
}

TEST_F(LoadState, OfAnInvalidCursorAssertsAndExpandsNothing)
{
    ExpectAssertions assertions;
    LoadFrom(wxTreeCursor(&tree, wxTreeItemId()), L"R|");
    LoadFrom(wxTreeCursor(), L"R|");
    EXPECT_EQ(assertions.Count(), 2);
    EXPECT_TRUE(tree.expanded.empty());
}

TEST_F(LoadState, ShowsTheTreeAsItWillStayAtOnce)
{
    screen.Show();
    int frozen = 0;
    tree.inHook = [&](const wxTreeCursor&) { frozen += tree.IsFrozen(); };
    Load(L"B|R|");
    EXPECT_EQ(frozen, 2);
    EXPECT_FALSE(tree.IsFrozen());
    wxRect rect;
    EXPECT_TRUE(tree.GetBoundingRect(root.GetChild().GetNextSibling().GetChild().item, rect, true));
    EXPECT_GT(rect.y, 0);
}

TEST_F(LoadState, LeavesAFrozenTreeFrozen)
{
    tree.Freeze();
    Load(L"B|R|");
    EXPECT_TRUE(tree.IsFrozen());
    tree.Thaw();
    EXPECT_EQ(tree.expanded, (Labels{L"R", L"B"}));
}

TEST_F(LoadState, LeavesTheTreeUsableWhenAnExceptionLeavesTheHook)
{
    tree.inHook = [](const wxTreeCursor& item) {
        if (item.GetText() == L"B")
            throw std::runtime_error("no such folder");
    };
    EXPECT_THROW(Load(L"A|B|R|"), std::runtime_error);
    EXPECT_FALSE(tree.IsFrozen());
    EXPECT_TRUE(root.GetChild().IsExpanded());
    tree.inHook = nullptr;
    Load(L"A|B|R|");
    EXPECT_TRUE(root.GetChild().GetNextSibling().IsExpanded());
}

TEST_F(LoadState, BearsAControlThatIsNotCreated)
{
    CLocalRegStore::WriteString(L"TreeControlState", L"state", L"other|");
    wxHandyTreeCtrl pending;
    wxTreeCursor item = pending.AddRoot("R");
    item.AppendItem("A");
    pending.LoadState("state", item);
    pending.SaveState("state", item);
    EXPECT_EQ(StoredState(L"state"), L"");
}

}  // namespace
