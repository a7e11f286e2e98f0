// Saves and restores wide and deep trees, and counts the calls of the toolkit's functions.

#include <fittings/tree/handy_tree_ctrl.h>

#include <string>

#include <gtest/gtest.h>

#include <wx/wupdlock.h>

#include <fittings/platform/local_reg_store.h>
#include <tests/support/temp_folder.h>
#include <tests/tree/tree_on_screen.h>

namespace {

constexpr int kWidth = 100'000;

// Counts calls by kind. A call for the next or previous sibling takes time in proportion to the number of siblings.
class CountingTree : public wxHandyTreeCtrl
{
public:
    mutable int bySibling = 0;
    mutable int byCookie = 0;
    mutable int labels = 0;
    int expansions = 0;

    wxTreeItemId GetNextSibling(const wxTreeItemId& item) const override
    {
        ++bySibling;
        return wxHandyTreeCtrl::GetNextSibling(item);
    }

    wxTreeItemId GetPrevSibling(const wxTreeItemId& item) const override
    {
        ++bySibling;
        return wxHandyTreeCtrl::GetPrevSibling(item);
    }

    // GetFirstChild() calls this function, too.
    wxTreeItemId GetNextChild(const wxTreeItemId& item, wxTreeItemIdValue& cookie) const override
    {
        ++byCookie;
        return wxHandyTreeCtrl::GetNextChild(item, cookie);
    }

    wxString GetItemText(const wxTreeItemId& item) const override
    {
        ++labels;
        return wxHandyTreeCtrl::GetItemText(item);
    }

    void Expand(const wxTreeItemId& item) override
    {
        ++expansions;
        wxHandyTreeCtrl::Expand(item);
    }

    void ForgetCounts() { bySibling = byCookie = labels = expansions = 0; }
};

class LargeTree : public testing::Test
{
protected:
    TempUserData settings;
    TreeOnScreen<CountingTree> screen;
    CountingTree& tree = *screen.tree;
    wxTreeCursor root = tree.AddRoot("root");

    // Appends @a count children to the root. If @a step is not 0, expands the first child and every @a step-th child
    // after it.
    void MakeWide(int step, int count = kWidth)
    {
        const wxWindowUpdateLocker frozen(&tree);
        for (int i = 0; i < count; ++i) {
            wxTreeCursor item = root.AppendItem(wxString::Format("%06d", i));
            item.SetChildren(true);
            if (step && i % step == 0)
                item.Expand();
        }
    }

    // Appends a chain of @a depth items to the root, and returns the last item.
    wxTreeCursor MakeDeep(int depth)
    {
        const wxWindowUpdateLocker frozen(&tree);
        wxTreeCursor item = root;
        for (int i = 0; i < depth; ++i)
            item = item.AppendItem(wxString::Format("%06d", i));
        return item;
    }
};

TEST_F(LargeTree, IsSavedByAFixedNumberOfStepsASibling)
{
    MakeWide(2);
    tree.ForgetCounts();
    tree.SaveState("state", root);
    EXPECT_EQ(tree.bySibling, 0);
    EXPECT_LE(tree.byCookie, 2 * kWidth + 2);
    EXPECT_EQ(tree.labels, kWidth + 1);

    const std::wstring stored = StoredState(L"state");
    EXPECT_EQ(stored.size(), 50'000u * 7);
    EXPECT_EQ(stored.substr(0, 21), L"000000|000002|000004|");
    EXPECT_EQ(stored.substr(stored.size() - 14), L"099996|099998|");
}

TEST_F(LargeTree, IsRestoredByAFixedNumberOfStepsASibling)
{
    MakeWide(0);
    std::wstring stored;
    for (int i = 0; i < kWidth; i += 10)
        stored += wxString::Format("%06d|", i).ToStdWstring();
    CLocalRegStore::WriteString(L"TreeControlState", L"state", stored.c_str());
    tree.ForgetCounts();
    tree.LoadState("state", root);
    EXPECT_EQ(tree.bySibling, 0);
    EXPECT_LE(tree.byCookie, 4 * kWidth);
    EXPECT_LE(tree.labels, kWidth + 1);
    EXPECT_EQ(tree.expansions, kWidth / 10);

    wxTreeItemIdValue cookie;
    int expanded = 0, position = 0;
    for (auto child = tree.GetFirstChild(root.item, cookie); child.IsOk();
         child = tree.GetNextChild(root.item, cookie)) {
        if (tree.IsExpanded(child)) {
            EXPECT_EQ(position % 10, 0);
            ++expanded;
        }
        ++position;
    }
    EXPECT_EQ(expanded, kWidth / 10);
}

TEST_F(LargeTree, IsVisitedAlsoWhenNothingIsStored)
{
    Append(root, {L"A", L"B"});
    root.GetChild().AppendItem("A1");
    tree.ForgetCounts();
    tree.LoadState("never saved", root);
    EXPECT_EQ(tree.labels, 4);
    EXPECT_EQ(tree.expansions, 0);
}

// Many items have the same label, and every second one is expanded. Only the state of the last item counts.
TEST_F(LargeTree, OfOneLabelIsSavedAsOne)
{
    {
        const wxWindowUpdateLocker frozen(&tree);
        for (int i = 0; i < kWidth; ++i) {
            wxTreeCursor item = root.AppendItem("same");
            item.SetChildren(true);
            if (i % 2)
                item.Expand();
        }
    }
    tree.SaveState("state", root);
    EXPECT_EQ(StoredState(L"state"), L"same|");
    root.AppendItem("same");
    tree.SaveState("state", root);
    EXPECT_EQ(StoredState(L"state"), L"");
}

// Some of so many labels have equal 32-bit hashes. Even so, each label must be stored.
TEST_F(LargeTree, TellsAllItsLabelsApart)
{
    MakeWide(1, 300'000);
    tree.SaveState("state", root);
    EXPECT_EQ(StoredState(L"state").size(), 300'000 * 7u);
}

TEST_F(LargeTree, FindsEachLabelAgain)
{
    MakeWide(1);
    MakeWide(0);
    tree.SaveState("state", root);
    EXPECT_EQ(StoredState(L"state"), L"");
}

TEST_F(LargeTree, IsSavedInOrderWhateverItsOwn)
{
    {
        const wxWindowUpdateLocker frozen(&tree);
        for (int i = 0; i < 1'000; ++i) {
            wxTreeCursor item = root.AppendItem(wxString::Format("%03d", i * 337 % 1'000));
            item.SetChildren(true);
            item.Expand();
        }
    }
    std::wstring expected;
    for (int i = 0; i < 1'000; ++i)
        expected += wxString::Format("%03d|", i).ToStdWstring();
    tree.SaveState("state", root);
    EXPECT_EQ(StoredState(L"state"), expected);
}

TEST_F(LargeTree, IsSavedAndVisitedWhateverItsDepth)
{
    constexpr int kDepth = 100'000;
    wxTreeCursor last = MakeDeep(kDepth);
    last.SetChildren(true);
    last.Expand();
    tree.SaveState("state", root);
    EXPECT_EQ(StoredState(L"state"), L"099999|");

    tree.Collapse(last.item);
    tree.ForgetCounts();
    tree.LoadState("state", root);
    EXPECT_TRUE(last.IsExpanded());
    EXPECT_EQ(tree.expansions, 1);
    EXPECT_LE(tree.byCookie, 4 * kDepth);
}

// With a stack of 8 MB, the toolkit cannot lay out a chain of expanded items that is much deeper than this one.
TEST_F(LargeTree, IsRestoredAsDeepAsTheToolkitBears)
{
    constexpr int kDepth = 20'000;
    MakeDeep(kDepth);
    std::wstring stored = L"root|";
    for (int i = 0; i < kDepth; ++i)
        stored += wxString::Format("%06d|", i).ToStdWstring();
    CLocalRegStore::WriteString(L"TreeControlState", L"state", stored.c_str());
    tree.LoadState("state", root);
    EXPECT_EQ(tree.expansions, kDepth + 1);

    // The last item is a leaf. It cannot be expanded, so its label is not stored.
    tree.SaveState("state", root);
    EXPECT_EQ(StoredState(L"state").size(), (kDepth - 1) * 7u + 5);
    EXPECT_EQ(StoredState(L"state").substr(0, 14), L"000000|000001|");
    EXPECT_EQ(StoredState(L"state").substr(StoredState(L"state").size() - 12), L"019998|root|");
}

}  // namespace
