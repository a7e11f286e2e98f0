// Hosts that add, sort and delete items while their tree is being restored.

#include <fittings/tree/handy_tree_ctrl.h>

#include <functional>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include <fittings/platform/local_reg_store.h>
#include <tests/support/temp_folder.h>
#include <tests/tree/tree_on_screen.h>

namespace {

// Counts the calls of ItemHasChildren() and GetNextChild() that pass a deleted item. In such a call, the toolkit would
// read freed memory.
class MortalTree : public LazyTree
{
public:
    std::set<void*> dead;
    mutable int askedOfTheDead = 0;

    bool ItemHasChildren(const wxTreeItemId& item) const override
    {
        askedOfTheDead += static_cast<int>(dead.count(item.GetID()));
        return LazyTree::ItemHasChildren(item);
    }

    wxTreeItemId GetNextChild(const wxTreeItemId& item, wxTreeItemIdValue& cookie) const override
    {
        askedOfTheDead += static_cast<int>(dead.count(item.GetID()));
        return LazyTree::GetNextChild(item, cookie);
    }
};

class LoadStateMeanwhile : public testing::Test
{
protected:
    LoadStateMeanwhile()
    {
        root = tree.AddRoot("R");
        for (wxTreeCursor folder : Append(root, {L"A", L"B", L"C"})) {
            const std::wstring label = folder.GetText();
            Append(folder, {label + L"1", label + L"2"});
            items[label] = folder;
        }
        tree.Bind(wxEVT_TREE_ITEM_EXPANDED, [&](wxTreeEvent& event) {
            const std::wstring label = tree.GetItemText(event.GetItem()).ToStdWstring();
            const auto found = when.find(label);
            if (found != when.end()) {
                const std::function<void()> action = found->second;
                when.erase(found);
                action();
            }
        });
    }

    // Loads a state in which every item is expanded, and returns the labels of the items passed to Expand().
    Labels Load()
    {
        const auto note = [this](wxTreeEvent& event) {
            tree.dead.insert(event.GetItem().GetID());
            event.Skip();
        };
        tree.Bind(wxEVT_TREE_DELETE_ITEM, note);
        CLocalRegStore::WriteString(L"TreeControlState", L"state", L"R|A|A1|A2|B|B1|B2|C|C1|C2|D|D1|X|");
        tree.expanded.clear();
        tree.LoadState("state", root);
        tree.Unbind(wxEVT_TREE_DELETE_ITEM, note);
        return tree.expanded;
    }

    TempUserData settings;
    Labels deleted;  // must outlive the tree, whose destructor may still report deleted items
    TreeOnScreen<MortalTree> screen;
    MortalTree& tree = *screen.tree;
    wxTreeCursor root;
    std::map<std::wstring, wxTreeCursor> items;
    std::map<std::wstring, std::function<void()>> when;  // The actions at the first expansion of an item, by label.
};

TEST_F(LoadStateMeanwhile, VisitsAnAppendedSibling)
{
    when[L"C"] = [&] { root.AppendItem("D").AppendItem("D1"); };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"A1", L"A2", L"B", L"B1", L"B2", L"C", L"C1", L"C2", L"D", L"D1"}));
}

TEST_F(LoadStateMeanwhile, VisitsASiblingInsertedNext)
{
    when[L"A"] = [&] { tree.InsertItem(root.item, items[L"A"].item, "X"); };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"A1", L"A2", L"X", L"B", L"B1", L"B2", L"C", L"C1", L"C2"}));
}

TEST_F(LoadStateMeanwhile, PassesOverASiblingInsertedBehindIt)
{
    when[L"B"] = [&] { tree.PrependItem(root.item, "X"); };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"A1", L"A2", L"B", L"B1", L"B2", L"C", L"C1", L"C2"}));
    EXPECT_EQ(ChildrenOf(root), (Labels{L"X", L"A", L"B", L"C"}));
}

TEST_F(LoadStateMeanwhile, VisitsChildrenAddedAnywhereBelow)
{
    when[L"A1"] = [&] { Append(items[L"A"], {L"X"}); };
    items[L"A"].GetChild().AppendItem("leaf");
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"A1", L"A2", L"X", L"B", L"B1", L"B2", L"C", L"C1", L"C2"}));
}

TEST_F(LoadStateMeanwhile, DoesNotTouchADeletedNextSibling)
{
    when[L"A"] = [&] { items[L"B"].Delete(); };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"A1", L"A2", L"C", L"C1", L"C2"}));
}

TEST_F(LoadStateMeanwhile, SkipsNothingWhenASiblingBehindItIsDeleted)
{
    when[L"B"] = [&] { items[L"A"].Delete(); };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"A1", L"A2", L"B", L"B1", L"B2", L"C", L"C1", L"C2"}));
}

// The number of siblings stays the same, but their places change.
TEST_F(LoadStateMeanwhile, KeepsItsPlaceWhenSiblingsAreExchanged)
{
    when[L"B"] = [&] {
        items[L"A"].Delete();
        root.AppendItem("D");
    };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"A1", L"A2", L"B", L"B1", L"B2", L"C", L"C1", L"C2", L"D"}));
}

TEST_F(LoadStateMeanwhile, EndsAfterTheLastWhenAllOthersAreDeleted)
{
    when[L"C"] = [&] {
        items[L"A"].Delete();
        items[L"B"].Delete();
    };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"A1", L"A2", L"B", L"B1", L"B2", L"C", L"C1", L"C2"}));
}

TEST_F(LoadStateMeanwhile, GoesOnBehindAnItemThatDeletesItself)
{
    when[L"B"] = [&] { items[L"B"].Delete(); };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"A1", L"A2", L"B", L"C", L"C1", L"C2"}));
    EXPECT_EQ(tree.askedOfTheDead, 0);
}

// The new item often has the same address as the deleted one, but LoadState() must not confuse the two items.
TEST_F(LoadStateMeanwhile, GoesOnBehindAnItemThatIsMadeAnew)
{
    when[L"A"] = [&] {
        items[L"A"].Delete();
        root.AppendItem("A");
    };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"B", L"B1", L"B2", L"C", L"C1", L"C2", L"A"}));
}

TEST_F(LoadStateMeanwhile, LeavesADeletedParentAlone)
{
    items[L"A"].GetChild().AppendItem("leaf");
    when[L"A1"] = [&] { items[L"A"].Delete(); };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"A1", L"B", L"B1", L"B2", L"C", L"C1", L"C2"}));
    EXPECT_EQ(tree.askedOfTheDead, 0);
}

TEST_F(LoadStateMeanwhile, EndsWhenTheStartIsDeleted)
{
    items[L"A"].GetChild().AppendItem("leaf");
    when[L"A1"] = [&] { tree.DeleteAllItems(); };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"A1"}));
    EXPECT_TRUE(tree.IsEmpty());
}

TEST_F(LoadStateMeanwhile, EndsWhenTheStartDeletesItself)
{
    when[L"R"] = [&] { tree.DeleteAllItems(); };
    EXPECT_EQ(Load(), (Labels{L"R"}));
    EXPECT_EQ(tree.askedOfTheDead, 0);
}

TEST_F(LoadStateMeanwhile, VisitsWhatReplacesTheChildrenOfAnItem)
{
    when[L"B"] = [&] {
        tree.DeleteChildren(items[L"B"].item);
        Append(items[L"B"], {L"X"});
    };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"A1", L"A2", L"B", L"X", L"C", L"C1", L"C2"}));
}

TEST_F(LoadStateMeanwhile, FollowsTheNewOrderOfSortedSiblings)
{
    wxTreeCursor first(&tree, tree.PrependItem(root.item, "D"));
    first.AppendItem("D1");
    when[L"D"] = [&] { tree.SortChildren(root.item); };
    EXPECT_EQ(Load(), (Labels{L"R", L"D", L"D1"}));
    EXPECT_EQ(ChildrenOf(root), (Labels{L"A", L"B", L"C", L"D"}));
}

TEST_F(LoadStateMeanwhile, LetsTheHostsOwnHandlerHearOfDeletions)
{
    tree.Bind(wxEVT_TREE_DELETE_ITEM,
              [&](wxTreeEvent& event) { deleted.push_back(tree.GetItemText(event.GetItem()).ToStdWstring()); });
    when[L"A"] = [&] { items[L"B"].Delete(); };
    Load();
    EXPECT_EQ(deleted, (Labels{L"B1", L"B2", L"B"}));
}

TEST_F(LoadStateMeanwhile, CanLoadAnotherBranch)
{
    CLocalRegStore::WriteString(L"TreeControlState", L"other", L"C|");
    when[L"A"] = [&] { tree.LoadState("other", items[L"C"]); };
    EXPECT_EQ(Load(), (Labels{L"R", L"A", L"C", L"A1", L"A2", L"B", L"B1", L"B2", L"C", L"C1", L"C2"}));
}

}  // namespace
