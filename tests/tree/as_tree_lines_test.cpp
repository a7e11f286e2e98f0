// Code for the toolkit's tree control compiles with this library's controls and works the same: the same tests run on
// all three.

#include <algorithm>
#include <map>
#include <vector>

#include <gtest/gtest.h>

#include <wx/frame.h>
#include <wx/imaglist.h>

#include <fittings/tree/handy_tree_ctrl.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>
#include <tests/tree/tree_types.h>

namespace {

constexpr int kId = 4711;

// A tree created by its constructor, with a root, a child and a grandchild.
template <typename Tree>
class TreeLines : public testing::Test
{
protected:
    const OwnedWindow<wxFrame> frame{new wxFrame(nullptr, wxID_ANY, "tree")};
    Tree* const tree = new Tree(frame, kId, wxPoint(10, 20), wxSize(200, 100), wxTR_HAS_BUTTONS | wxTR_MULTIPLE,
                                wxDefaultValidator, "planets");
    const wxTreeItemId root = tree->AddRoot("Sun");
    const wxTreeItemId planet = tree->AppendItem(root, "Earth");
    const wxTreeItemId moon = tree->AppendItem(planet, "Moon");
};

TYPED_TEST_SUITE(TreeLines, Trees, TreeName);

TYPED_TEST(TreeLines, MakeTheControlInOneStep)
{
    EXPECT_NE(this->tree->GetHandle(), nullptr);
    EXPECT_EQ(this->tree->GetParent(), this->frame);
    EXPECT_EQ(this->tree->GetId(), kId);
    EXPECT_EQ(this->tree->GetPosition(), wxPoint(10, 20));
    EXPECT_EQ(this->tree->GetSize(), wxSize(200, 100));
    EXPECT_TRUE(this->tree->HasFlag(wxTR_MULTIPLE));
    EXPECT_FALSE(this->tree->HasFlag(wxTR_NO_LINES));
    EXPECT_EQ(this->tree->GetName(), "planets");
    EXPECT_EQ(this->tree->GetImageList(), nullptr);
}

TYPED_TEST(TreeLines, MakeTheControlInTwoSteps)
{
    auto* const later = new TypeParam;
    EXPECT_TRUE(
        later->Create(this->frame, kId, wxPoint(10, 20), wxSize(200, 100), wxTR_SINGLE, wxDefaultValidator, "moons"));
    EXPECT_EQ(later->GetId(), kId);
    EXPECT_EQ(later->GetSize(), wxSize(200, 100));
    EXPECT_FALSE(later->HasFlag(wxTR_HAS_BUTTONS));
    EXPECT_EQ(later->GetName(), "moons");
    EXPECT_EQ(later->GetImageList(), nullptr);
}

TYPED_TEST(TreeLines, MakeTheControlWithDefaults)
{
    const auto* const tree = new TypeParam(this->frame);
    const auto* const toolkits = new wxTreeCtrl(this->frame);
    EXPECT_EQ(tree->GetWindowStyle(), toolkits->GetWindowStyle());
    EXPECT_EQ(tree->GetName(), toolkits->GetName());
    EXPECT_EQ(tree->GetIndent(), toolkits->GetIndent());
}

TYPED_TEST(TreeLines, ShowRowsAsHighAsTheToolkits)
{
    auto* const toolkits = new wxTreeCtrl(this->frame);
    const wxTreeItemId item = toolkits->AddRoot("Sun");
    wxRect expected;
    ASSERT_TRUE(ShowAndSettle(this->frame));
    ASSERT_TRUE(toolkits->GetBoundingRect(item, expected));
    wxRect row;
    ASSERT_TRUE(this->tree->GetBoundingRect(this->root, row));
    EXPECT_EQ(row.height, expected.height);
}

TYPED_TEST(TreeLines, AskForTheSelection)
{
    this->tree->ToggleWindowStyle(wxTR_MULTIPLE);
    this->tree->UnselectAll();
    if (this->tree->GetSelection())
        ADD_FAILURE() << "there is a selection";
    EXPECT_TRUE(!this->tree->GetSelection());
    EXPECT_FALSE(this->tree->GetSelection().IsOk());
    EXPECT_EQ(this->tree->GetSelection().GetID(), nullptr);

    this->tree->SelectItem(this->planet);
    if (!this->tree->GetSelection())
        ADD_FAILURE() << "there is no selection";
    EXPECT_TRUE(this->tree->GetSelection() && this->root);
    EXPECT_TRUE(this->tree->GetSelection() == this->planet);
    EXPECT_TRUE(this->planet == this->tree->GetSelection());
    EXPECT_FALSE(this->tree->GetSelection() == this->root);
    EXPECT_TRUE(this->tree->GetSelection() != this->root);
    EXPECT_TRUE(this->root != this->tree->GetSelection());
    EXPECT_FALSE(this->tree->GetSelection() != this->planet);
    EXPECT_TRUE(this->tree->GetSelection() == this->tree->GetSelection());
    EXPECT_FALSE(this->tree->GetSelection() != this->tree->GetSelection());
    EXPECT_FALSE(this->tree->GetSelection() == this->tree->GetRootItem());
    EXPECT_EQ(this->tree->GetSelection().GetID(), this->planet.GetID());
}

TYPED_TEST(TreeLines, HandTheSelectionOn)
{
    this->tree->ToggleWindowStyle(wxTR_MULTIPLE);
    this->tree->SelectItem(this->planet);
    wxTreeItemId item = this->tree->GetSelection();
    EXPECT_EQ(item, this->planet);
    item = this->tree->GetSelection();
    EXPECT_EQ(this->tree->GetItemText(this->tree->GetSelection()), "Earth");
    EXPECT_EQ(this->tree->GetItemParent(this->tree->GetSelection()), this->root);
    this->tree->Expand(this->tree->GetSelection());
    EXPECT_TRUE(this->tree->IsExpanded(this->tree->GetSelection()));
    item = item.IsOk() ? this->tree->GetSelection() : this->root;
    const std::vector<wxTreeItemId> items{this->root, this->planet};
    EXPECT_NE(std::find(items.begin(), items.end(), this->tree->GetSelection()), items.end());
    const std::map<wxTreeItemId, int> numbers{{this->planet, 3}};
    EXPECT_EQ(numbers.at(this->tree->GetSelection()), 3);
    int above = 0;
    for (item = this->tree->GetSelection(); item; item = this->tree->GetItemParent(item))
        ++above;
    EXPECT_EQ(above, 2);
    auto selection = this->tree->GetSelection();
    selection.Unset();
    EXPECT_FALSE(selection.IsOk());
    this->tree->Delete(this->tree->GetSelection());
    EXPECT_FALSE(this->tree->ItemHasChildren(this->root));
}

TYPED_TEST(TreeLines, AddUnderAnAddedRoot)
{
    this->tree->DeleteAllItems();
    const wxTreeItemId child = this->tree->AppendItem(this->tree->AddRoot("Sun"), "Mars");
    EXPECT_EQ(this->tree->GetItemText(child), "Mars");
    EXPECT_EQ(this->tree->GetItemText(this->tree->GetItemParent(child)), "Sun");
}

TEST(TreeInOneStep, LetsADerivedClassInheritTheConstructors)
{
    struct Derived : wxHandyTreeCtrl
    {
        using wxHandyTreeCtrl::wxHandyTreeCtrl;
        void OnItemExpanding(const wxTreeCursor& item) override { filled.push_back(item.GetText()); }
        std::vector<std::wstring> filled;
    };
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "tree"));
    auto* const tree = new Derived(frame, kId);
    EXPECT_EQ(tree->GetId(), kId);
    wxTreeCursor root = tree->AddRoot("Sun");
    root.SetChildren(true);
    root.Expand();
    EXPECT_EQ(tree->filled, std::vector<std::wstring>{L"Sun"});
}

TEST(TreeInOneStep, TakesItsImagesBackAndItsRowsWithThem)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "tree"));
    auto* const tree = new wxHandyTreeCtrl(frame);
    const wxTreeCursor root = tree->AddRoot("Sun");
    ASSERT_TRUE(ShowAndSettle(frame));
    wxRect before;
    ASSERT_TRUE(tree->GetBoundingRect(root, before));

    wxImageList large(64, 64, true, 1);
    large.Add(wxBitmap(64, 64));
    tree->SetImageList(&large);
    wxRect with;
    ASSERT_TRUE(PumpUntil([&] { return tree->GetBoundingRect(root, with) && with.height > 64; }));

    tree->SetImageList(nullptr);
    EXPECT_EQ(tree->GetImageList(), nullptr);
    // Newer versions of the toolkit make the rows of a tree without images a little higher than their text. Therefore
    // the height of the text is only a lower bound.
    wxRect after;
    EXPECT_TRUE(PumpUntil([&] { return tree->GetBoundingRect(root, after) && after.height <= before.height; }))
        << after.height;
    EXPECT_GE(after.height, tree->GetCharHeight());
}

TEST(TreeStates, AreStoredAndLoadedByATemporaryCursor)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "tree"));
    auto* const tree = new wxHandyTreeCtrl(frame);
    tree->SetProfile("Planets");
    tree->AddRoot("Sun").AppendItem("Earth");
    tree->Expand(tree->GetRootItem());
    tree->SaveState(wxTreeCursor(tree, tree->GetRootItem()));
    tree->SaveState("Other", wxTreeCursor(tree, tree->GetRootItem()));

    for (const bool isNamed : {false, true}) {
        tree->Collapse(tree->GetRootItem());
        const wxTreeCursor root(tree, tree->GetRootItem());
        if (isNamed)
            tree->LoadState("Other", root);
        else
            tree->LoadState(root);
        EXPECT_TRUE(root.IsExpanded());
    }
}

}  // namespace
