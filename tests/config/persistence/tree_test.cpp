#include <string>

#include <gtest/gtest.h>
#include <wx/frame.h>

#include <fittings/tree/handy_tree_ctrl.h>
#include <tests/config/persistence/stored.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>
#include <tests/support/process/processor_time.h>

namespace {

constexpr wchar_t kKind[] = L"Tree";

// A frame that contains only a tree.
class TreeFrame
{
public:
    explicit TreeFrame(long style = wxTR_HAS_BUTTONS)
        : frame(new wxFrame(nullptr, wxID_ANY, "tree", wxPoint(100, 100), wxSize(300, 200))),
          tree(new wxTreeCtrl(frame, wxID_ANY, wxDefaultPosition, wxDefaultSize, style))
    {
    }

    bool Show() { return ShowAndSettle(frame); }

    OwnedWindow<wxFrame> frame;
    wxTreeCtrl* tree;
};

// Returns the child of @a parent at the index @a number, or an invalid item if there is no such child.
wxTreeItemId Child(const wxTreeCtrl& tree, const wxTreeItemId& parent, int number)
{
    wxTreeItemIdValue cookie = nullptr;
    wxTreeItemId child = tree.GetFirstChild(parent, cookie);
    while (number-- > 0 && child.IsOk())
        child = tree.GetNextChild(parent, cookie);
    return child;
}

// Adds a root with three children. Each of the three has two children with the same label, and each of those has one
// child.
void Fill(wxTreeCtrl& tree)
{
    const wxTreeItemId root = tree.AddRoot("root");
    for (const char* const label : {"a", "b|/\\", "a"}) {
        const wxTreeItemId item = tree.AppendItem(root, label);
        for (int number = 0; number < 2; ++number)
            tree.AppendItem(tree.AppendItem(item, "twin"), "leaf");
    }
}

using PersistentTree = PersistenceTest;

TEST_F(PersistentTree, ExpandsAndSelectsByPath)
{
    {
        TreeFrame frame;
        Fill(*frame.tree);
        EXPECT_FALSE(wxPersistentRegisterAndRestore(frame.tree, "w"));
        const wxTreeItemId root = frame.tree->GetRootItem();
        frame.tree->Expand(root);
        frame.tree->Expand(Child(*frame.tree, root, 1));
        frame.tree->Expand(Child(*frame.tree, Child(*frame.tree, root, 1), 1));
        frame.tree->Expand(Child(*frame.tree, root, 2));
        frame.tree->SelectItem(Child(*frame.tree, Child(*frame.tree, root, 2), 1));
    }
    EXPECT_EQ(StoredValue(kKind, L"Items").find(L"0+"), 0u);
    TreeFrame frame;
    Fill(*frame.tree);
    EXPECT_TRUE(wxPersistentRegisterAndRestore(frame.tree, "w"));
    const wxTreeItemId root = frame.tree->GetRootItem();
    EXPECT_TRUE(frame.tree->IsExpanded(root));
    EXPECT_FALSE(frame.tree->IsExpanded(Child(*frame.tree, root, 0)));
    EXPECT_TRUE(frame.tree->IsExpanded(Child(*frame.tree, root, 1)));
    EXPECT_TRUE(frame.tree->IsExpanded(Child(*frame.tree, root, 2)));
    EXPECT_FALSE(frame.tree->IsExpanded(Child(*frame.tree, Child(*frame.tree, root, 1), 0)));
    EXPECT_TRUE(frame.tree->IsExpanded(Child(*frame.tree, Child(*frame.tree, root, 1), 1)));
    EXPECT_FALSE(frame.tree->IsExpanded(Child(*frame.tree, Child(*frame.tree, root, 2), 1)));
    EXPECT_EQ(frame.tree->GetSelection(), Child(*frame.tree, Child(*frame.tree, root, 2), 1));
}

TEST_F(PersistentTree, StoresReadableText)
{
    {
        TreeFrame frame;
        Fill(*frame.tree);
        wxPersistentRegisterAndRestore(frame.tree, "w");
        const wxTreeItemId root = frame.tree->GetRootItem();
        frame.tree->Expand(root);
        frame.tree->Expand(Child(*frame.tree, root, 1));
        frame.tree->SelectItem(Child(*frame.tree, root, 2));
        ASSERT_TRUE(frame.Show());
    }
    EXPECT_EQ(StoredValue(kKind, L"Items"), L"0+^:|1+:b\\|/\\\\|1*#2:a|");
}

// A hidden root cannot be expanded, but the items below it are restored.
TEST_F(PersistentTree, WithAHiddenRootIsRestored)
{
    for (const bool isRestored : {false, true}) {
        TreeFrame frame(wxTR_HIDE_ROOT | wxTR_HAS_BUTTONS);
        Fill(*frame.tree);
        EXPECT_EQ(wxPersistentRegisterAndRestore(frame.tree, "w"), isRestored);
        const wxTreeItemId last = Child(*frame.tree, frame.tree->GetRootItem(), 2);
        EXPECT_EQ(frame.tree->IsExpanded(last), isRestored);
        frame.tree->Expand(last);
        ASSERT_TRUE(frame.Show());
    }
}

TEST_F(PersistentTree, OfManySelectedRestoresAll)
{
    for (const bool isRestored : {false, true}) {
        TreeFrame frame(wxTR_MULTIPLE);
        Fill(*frame.tree);
        frame.tree->SelectItem(frame.tree->GetRootItem());
        EXPECT_EQ(wxPersistentRegisterAndRestore(frame.tree, "w"), isRestored);
        const wxTreeItemId root = frame.tree->GetRootItem();
        if (!isRestored) {
            frame.tree->UnselectAll();
            frame.tree->SelectItem(Child(*frame.tree, root, 0));
            frame.tree->SelectItem(Child(*frame.tree, root, 2));
        }
        EXPECT_FALSE(frame.tree->IsSelected(root));
        EXPECT_TRUE(frame.tree->IsSelected(Child(*frame.tree, root, 0)));
        EXPECT_FALSE(frame.tree->IsSelected(Child(*frame.tree, root, 1)));
        EXPECT_TRUE(frame.tree->IsSelected(Child(*frame.tree, root, 2)));
    }
}

TEST_F(PersistentTree, ScrollsToTheItemThatWasFirstInView)
{
    int first = 0;
    for (const bool isRestored : {false, true, true}) {
        TreeFrame frame;
        const wxTreeItemId root = frame.tree->AddRoot("root");
        for (int number = 0; number < 500; ++number)
            frame.tree->AppendItem(root, wxString::Format("item %d", number));
        frame.tree->Expand(root);
        EXPECT_EQ(wxPersistentRegisterAndRestore(frame.tree, "w"), isRestored);
        ASSERT_TRUE(frame.Show());
        if (!isRestored) {
            frame.tree->Scroll(-1, 333);
            first = frame.tree->GetViewStart().y;
            ASSERT_GT(first, 300);
        }
        EXPECT_TRUE(PumpUntil([&] { return std::abs(frame.tree->GetViewStart().y - first) <= 2; }))
            << frame.tree->GetViewStart().y << " for " << first;
        first = frame.tree->GetViewStart().y;
    }
}

// A tree that fills an item when the item is expanded. It replaces the item's children with three new children, which
// have the same label. Each new child has one child of its own, as a placeholder until the new child is expanded.
class LazyTree : public wxHandyTreeCtrl
{
public:
    explicit LazyTree(wxWindow* parent)
    {
        Create(parent);
        AddRoot("root").SetChildren(true);
    }

    void OnItemExpanding(const wxTreeCursor& item) override
    {
        ++filled;
        if (item.GetChild().IsOk())
            DeleteChildren(item);
        for (int number = 0; number < 3; ++number)
            AppendItem(AppendItem(item, "same|/"), "stands for the children");
    }

    int filled = 0;
};

TEST_F(PersistentTree, FilledAsItIsExpandedOpensOnTheWay)
{
    for (const bool isRestored : {false, true}) {
        const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "tree"));
        auto* const tree = new LazyTree(frame);
        EXPECT_EQ(wxPersistentRegisterAndRestore(tree, "w"), isRestored);
        EXPECT_EQ(tree->filled, isRestored ? 3 : 0);
        wxTreeItemId item = tree->GetRootItem();
        for (int level = 0; level < 3; ++level) {
            EXPECT_EQ(tree->IsExpanded(item), isRestored);
            tree->Expand(item);
            item = Child(*tree, item, 1);
        }
        EXPECT_EQ(tree->wxTreeCtrl::GetSelection() == item, isRestored);
        tree->SelectItem(item);
    }
}

TEST_F(PersistentTree, IsFoundForTheLibrarysTrees)
{
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "tree");
    auto* const tree = new wxTreeCtrlEx;
    tree->Create(frame);
    tree->AddRoot("root");
    EXPECT_FALSE(wxPersistentRegisterAndRestore(tree, "w"));
    wxPersistentObject* const object = wxPersistenceManager::Get().Find(tree);
    ASSERT_TRUE(object);
    EXPECT_EQ(object->GetKind(), "Tree");
    DestroyNow(frame);
    EXPECT_EQ(StoredValue(kKind, L"Items").substr(0, 1), L"0");
}

TEST_F(PersistentTree, LeavesOutWhatIsGoneAndDoesNotCollapse)
{
    StoreValue(kKind, L"Items", L"0+:|1+:gone|2+*:twin|1+#3:a|2+:twin|1+#2:a|2*#2:twin|");
    TreeFrame frame;
    Fill(*frame.tree);
    const wxTreeItemId root = frame.tree->GetRootItem();
    frame.tree->Expand(Child(*frame.tree, root, 0));
    EXPECT_TRUE(wxPersistentRegisterAndRestore(frame.tree, "w"));
    EXPECT_TRUE(frame.tree->IsExpanded(Child(*frame.tree, root, 0)));
    EXPECT_FALSE(frame.tree->IsExpanded(Child(*frame.tree, Child(*frame.tree, root, 0), 0)));
    EXPECT_TRUE(frame.tree->IsExpanded(Child(*frame.tree, root, 2)));
    EXPECT_EQ(frame.tree->GetSelection(), Child(*frame.tree, Child(*frame.tree, root, 2), 1));
}

// Handlers may change the tree while it is being restored.
TEST_F(PersistentTree, BearsHandlersThatDeleteItems)
{
    for (int deleted = 0; deleted < 4; ++deleted) {
        StoreValue(kKind, L"Items", L"0+:|1+*:a|2+*:twin|1+*:b\\|/\\\\|2+*:twin|2+*#2:twin|1+*#2:a|");
        TreeFrame frame(wxTR_MULTIPLE);
        Fill(*frame.tree);
        wxTreeCtrl& tree = *frame.tree;
        tree.Bind(wxEVT_TREE_ITEM_EXPANDED, [&](wxTreeEvent& event) {
            event.Skip();
            const wxTreeItemId root = tree.GetRootItem();
            if (tree.GetItemText(event.GetItem()) != "b|/\\")
                return;
            if (deleted == 3)
                tree.DeleteAllItems();
            else
                tree.Delete(Child(tree, root, deleted));
        });
        tree.Bind(wxEVT_TREE_SEL_CHANGED, [&](wxTreeEvent& event) {
            if (tree.GetChildrenCount(tree.GetRootItem(), false) > 1)
                tree.Delete(Child(tree, tree.GetRootItem(), 0));
            event.Skip();
        });
        wxPersistentRegisterAndRestore(&tree, "w");
        EXPECT_LT(tree.GetCount(), 15u);
        PumpPending();
    }
}

using DamagedItems = PersistenceTestWithParam<const wchar_t*>;

TEST_P(DamagedItems, CountAsNone)
{
    StoreValue(kKind, L"Items", GetParam());
    TreeFrame frame;
    Fill(*frame.tree);
    EXPECT_FALSE(wxPersistentRegisterAndRestore(frame.tree, "w"));
    EXPECT_FALSE(frame.tree->IsExpanded(frame.tree->GetRootItem()));
    ASSERT_TRUE(frame.Show());
    PumpPending();
}

INSTANTIATE_TEST_SUITE_P(, DamagedItems,
                         testing::Values(L"x", L"|", L"0", L"0+", L"0+:", L"0+:|1+", L"0+:|1+:a", L"0+:|1+:a\\|",
                                         L"0+:|1+:\\x|", L"0+:|2+:a|", L"0+:|0+:|", L"1+:a|", L"0+:|1+#1:a|",
                                         L"0+:|1+#:a|", L"0+:|1+#9999999999:a|", L"0+:|01+:a|", L"0+:|-1+:a|",
                                         L"0+:|1++:a|", L"0+:|1^*:a|", L"0+:|99999999999:a|", L"0+:|1+:a||"));

TEST(StoredItems, OfMegabytesAndDeepAreRestoredAtOnce)
{
    const TempPersistence data;
    std::wstring wide = L"0+:|";
    for (int number = 0; number < 400'000; ++number)
        wide += L"1+:no such item|";
    std::wstring deep = L"0+:|";
    for (int level = 1; level <= 10'000; ++level)
        deep += std::to_wstring(level) + L"+:same\\|/|";
    std::wstring tooDeep = L"0+:|";
    for (int level = 1; level <= 100'000; ++level)
        tooDeep += std::to_wstring(level) + L"+:same\\|/|";
    const std::wstring label = L"0+:|1+:" + std::wstring(8'000'000, L'x') + L"|";
    for (const std::wstring& text : {wide, tooDeep, label}) {
        StoreValue(kKind, L"Items", text);
        TreeFrame frame;
        Fill(*frame.tree);
        EXPECT_LT(ProcessorSeconds([&] { wxPersistentRegisterAndRestore(frame.tree, "w"); }), 20);
        PumpPending();
    }
    // A tree without end: the children of an item are created when the item is expanded.
    StoreValue(kKind, L"Items", deep);
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "tree"));
    auto* const tree = new LazyTree(frame);
    EXPECT_LT(ProcessorSeconds([&] { EXPECT_TRUE(wxPersistentRegisterAndRestore(tree, "w")); }), 60);
    EXPECT_EQ(tree->filled, 10'001);
    ASSERT_TRUE(ShowAndSettle(frame));
}

TEST_F(PersistentTree, OfManyItemsIsSavedAndRestoredInProportion)
{
    for (const bool isRestored : {false, true}) {
        auto* const frame = new wxFrame(nullptr, wxID_ANY, "tree");
        auto* const tree = new wxTreeCtrl(frame);
        const wxTreeItemId root = tree->AddRoot("root");
        wxTreeItemId last;
        for (int number = 0; number < 50'000; ++number) {
            last = tree->AppendItem(root, wxString::Format("item %d", number / 2));
            tree->AppendItem(last, "child");
        }
        EXPECT_LT(ProcessorSeconds([&] { EXPECT_EQ(wxPersistentRegisterAndRestore(tree, "w"), isRestored); }), 30);
        EXPECT_EQ(tree->IsExpanded(last), isRestored);
        if (!isRestored) {
            tree->Freeze();
            tree->ExpandAll();
        }
        EXPECT_LT(ProcessorSeconds([&] { DestroyNow(frame); }), 30);
    }
}

// A tree that is deleted without Destroy() is no longer a wxTreeCtrl when its state should be stored, so the earlier
// state stays.
TEST_F(PersistentTree, ThatIsDeletedAtOnceLeavesTheStoredState)
{
    StoreValue(kKind, L"Items", L"0+:|");
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "tree");
    auto* const tree = new wxTreeCtrl(frame);
    tree->AddRoot("root");
    EXPECT_TRUE(wxPersistentRegisterAndRestore(tree, "w"));
    delete tree;
    DestroyNow(frame);
    EXPECT_EQ(StoredValue(kKind, L"Items"), L"0+:|");
}

TEST_F(PersistentTree, WithoutItemsIsSavedAndRestored)
{
    for (const bool isRestored : {false, true}) {
        TreeFrame frame;
        EXPECT_EQ(wxPersistentRegisterAndRestore(frame.tree, "w"), isRestored);
        ASSERT_TRUE(frame.Show());
    }
}

TEST_F(PersistentTree, KeepsLabelsWithVariablesAndNullCharacters)
{
    const wxString label(L"$HOME ${HOME}\n\0 \xD83D", 17);
    for (const bool isRestored : {false, true}) {
        TreeFrame frame;
        const wxTreeItemId item = frame.tree->AppendItem(frame.tree->AddRoot("root"), label);
        frame.tree->AppendItem(item, "child");
        EXPECT_EQ(wxPersistentRegisterAndRestore(frame.tree, "w"), isRestored);
        EXPECT_EQ(frame.tree->IsExpanded(item), isRestored);
        frame.tree->Expand(item);
    }
}

}  // namespace
