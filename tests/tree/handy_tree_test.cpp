#include <fittings/tree/handy_tree_ctrl.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/imaglist.h>
#include <wx/panel.h>
#include <wx/sizer.h>

#include <tests/tree/tree_on_screen.h>

namespace {

static_assert(std::is_base_of_v<wxTreeCtrlEx, wxHandyTreeCtrl>);
static_assert(sizeof(wxHandyTreeCtrl) == sizeof(wxTreeCtrlEx) + sizeof(wxImageList*) + sizeof(wxString));

template <typename Result, typename... Arguments>
using Operation = Result (wxHandyTreeCtrl::*)(Arguments...);

static_assert(std::is_same_v<decltype(std::declval<wxHandyTreeCtrl&>().Create(nullptr)), void>);
static_assert(std::is_same_v<decltype(&wxHandyTreeCtrl::CreateImageList), Operation<void>>);
static_assert(std::is_same_v<decltype(&wxHandyTreeCtrl::DetroyImageList), Operation<void>>);
static_assert(std::is_same_v<decltype(&wxHandyTreeCtrl::SetProfile), Operation<void, const wxString&>>);
static_assert(std::is_same_v<decltype(&wxHandyTreeCtrl::SelectRootItem), Operation<bool>>);
static_assert(std::is_same_v<decltype(&wxHandyTreeCtrl::OnEvtItemExpanding), Operation<void, wxTreeEvent&>>);
static_assert(std::is_same_v<decltype(&wxHandyTreeCtrl::OnItemExpanding), Operation<void, const wxTreeCursor&>>);

// Returns the offset of a virtual function in the virtual table, plus a constant. A pointer to a virtual member
// function begins with this number.
template <typename Pointer>
std::ptrdiff_t PlaceOf(Pointer operation)
{
    std::ptrdiff_t place = 0;
    std::memcpy(&place, &operation, sizeof(place));
    return place;
}

// Adds one virtual function to @a Tree. Its offset shows how many entries the virtual table of @a Tree has.
template <typename Tree>
struct Extended : Tree
{
    virtual void Next() {}
};

TEST(HandyTree, AddsTheHookAsItsOnlyVirtualOperation)
{
    const std::ptrdiff_t afterTheToolkits = PlaceOf(&Extended<wxTreeCtrl>::Next);
    EXPECT_EQ(PlaceOf(&Extended<wxTreeCtrlEx>::Next), afterTheToolkits);
    EXPECT_EQ(PlaceOf(&wxHandyTreeCtrl::OnItemExpanding), afterTheToolkits);
    EXPECT_EQ(PlaceOf(&Extended<wxHandyTreeCtrl>::Next), afterTheToolkits + static_cast<std::ptrdiff_t>(sizeof(void*)));
}

TEST(HandyTree, IsCreatedInTwoSteps)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "tree"));
    auto* tree = new wxHandyTreeCtrl;
    EXPECT_EQ(tree->GetHandle(), nullptr);
    EXPECT_EQ(tree->GetImageList(), nullptr);
    tree->Create(frame);
    EXPECT_NE(tree->GetHandle(), nullptr);
    EXPECT_EQ(tree->GetParent(), frame);
    EXPECT_NE(tree->GetImageList(), nullptr);
}

TEST(HandyTree, HasTheToolkitsDefaults)
{
    TreeOnScreen<> screen;
    EXPECT_EQ(screen.tree->GetWindowStyleFlag() & 0xFFFF, 5);
    EXPECT_EQ(screen.tree->GetWindowStyleFlag() & 0xFFFF, wxTR_HAS_BUTTONS | wxTR_NO_LINES);
    EXPECT_EQ(screen.tree->GetName(), "treeCtrl");
    EXPECT_LT(screen.tree->GetId(), 0);
    EXPECT_EQ(screen.tree->GetValidator(), nullptr);
}

TEST(HandyTree, HasTheToolkitsPlaceAndSize)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "trees"));
    auto* const panel = new wxPanel(frame);
    const auto* const plain = new wxTreeCtrl(panel);
    auto* const tree = new wxHandyTreeCtrl;
    tree->Create(panel);
    EXPECT_EQ(tree->GetPosition(), plain->GetPosition());
    EXPECT_EQ(tree->GetSize(), plain->GetSize());
}

TEST(HandyTree, HasAnEmptyListOfSmallImages)
{
    TreeOnScreen<> screen;
    wxImageList* images = screen.tree->GetImageList();
    ASSERT_NE(images, nullptr);
    EXPECT_EQ(images->GetImageCount(), 0);
    EXPECT_EQ(images->GetSize(), wxSize(16, 16));
    const int index = images->Add(wxBitmap(16, 16));
    ASSERT_EQ(index, 0);
    int width = 0, height = 0;
    EXPECT_TRUE(images->GetSize(index, width, height));
    EXPECT_EQ(wxSize(width, height), wxSize(16, 16));
}

TEST(HandyTree, KeepsMasksInItsImageList)
{
    TreeOnScreen<> screen;
    screen.tree->GetImageList()->Add(wxBitmap(16, 16, 24));
    EXPECT_NE(screen.tree->GetImageList()->GetBitmap(0).GetMask(), nullptr);
}

// Adds a bitmap to the list, and returns the bitmap. The bitmap's reference count shows whether the list still exists.
wxBitmap Held(wxImageList& list)
{
    wxBitmap bitmap(16, 16, 24);
    bitmap.SetMask(new wxMask(wxBitmap(16, 16, 1)));
    list.Add(bitmap);
    EXPECT_EQ(bitmap.GetRefData()->GetRefCount(), 2);
    return bitmap;
}

TEST(HandyTree, DeletesItsImageListWithoutTellingTheControl)
{
    TreeOnScreen<> screen;
    const wxImageList* const images = screen.tree->GetImageList();
    const wxBitmap bitmap = Held(*screen.tree->GetImageList());
    screen.tree->DetroyImageList();
    EXPECT_EQ(bitmap.GetRefData()->GetRefCount(), 1);
    EXPECT_EQ(screen.tree->GetImageList(), images);
    screen.tree->CreateImageList();
}

TEST(HandyTree, DeletesItsImageListBeforeTheControlGoes)
{
    wxBitmap bitmap;
    std::vector<int> holders;
    {
        TreeOnScreen<> screen;
        bitmap = Held(*screen.tree->GetImageList());
        screen.tree->AddRoot("root");
        screen.tree->Bind(wxEVT_TREE_DELETE_ITEM,
                          [&](wxTreeEvent&) { holders.push_back(bitmap.GetRefData()->GetRefCount()); });
    }
    EXPECT_EQ(holders, std::vector<int>{1});
    EXPECT_EQ(bitmap.GetRefData()->GetRefCount(), 1);
}

// An image list that reports its deletion.
struct TrackedImages : wxImageList
{
    explicit TrackedImages(bool& deleted) : wxImageList(16, 16), m_deleted(deleted) {}
    ~TrackedImages() override { m_deleted = true; }
    bool& m_deleted;
};

TEST(HandyTree, DoesNotDeleteAListThatIsNotItsOwn)
{
    bool deleted = false;
    auto foreign = std::make_unique<TrackedImages>(deleted);
    {
        TreeOnScreen<> screen;
        screen.tree->SetImageList(foreign.get());
        screen.tree->DetroyImageList();
        EXPECT_FALSE(deleted);
        EXPECT_EQ(screen.tree->GetImageList(), foreign.get());
    }
    EXPECT_FALSE(deleted);
}

TEST(HandyTree, DestroysItsImageListOnceAndForgetsIt)
{
    TreeOnScreen<> screen;
    screen.tree->DetroyImageList();
    screen.tree->DetroyImageList();
    screen.tree->CreateImageList();
    ASSERT_NE(screen.tree->GetImageList(), nullptr);
    EXPECT_EQ(screen.tree->GetImageList()->GetImageCount(), 0);
}

TEST(HandyTree, ReplacesTheImageListWithoutReleasingIt)
{
    TreeOnScreen<> screen;
    wxImageList* first = screen.tree->GetImageList();
    first->Add(wxBitmap(16, 16));
    screen.tree->CreateImageList();
    EXPECT_NE(screen.tree->GetImageList(), first);
    EXPECT_EQ(first->GetImageCount(), 1);
    delete first;
}

TEST(HandyTree, SelectsAndFocusesTheRoot)
{
    TreeOnScreen<> screen;
    auto* button = new wxButton(screen.frame, wxID_ANY, "other");
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(button);
    sizer->Add(screen.tree, 1, wxEXPAND);
    screen.frame->SetSizer(sizer);
    wxTreeCursor root = screen.tree->AddRoot("root");
    wxTreeCursor child = root.AppendItem("child");
    ASSERT_TRUE(ShowAndSettle(screen.frame));
    button->SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return button->HasFocus(); }));
    screen.tree->SelectItem(child.item);
    std::vector<bool> focused;
    screen.tree->Bind(wxEVT_TREE_SEL_CHANGED, [&](wxTreeEvent&) { focused.push_back(screen.tree->HasFocus()); });

    EXPECT_TRUE(screen.tree->SelectRootItem());
    EXPECT_EQ(focused, std::vector<bool>{false}) << "the focus comes after the selection";
    EXPECT_TRUE(screen.tree->GetSelection().item == root.item);
    EXPECT_FALSE(screen.tree->IsSelected(child.item));
    EXPECT_TRUE(PumpUntil([&] { return screen.tree->HasFocus(); }));
}

TEST(HandyTree, WithoutARootSelectsNothingAndLeavesTheFocus)
{
    TreeOnScreen<> screen;
    auto* button = new wxButton(screen.frame, wxID_ANY, "other");
    ASSERT_TRUE(ShowAndSettle(screen.frame));
    button->SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return button->HasFocus(); }));
    EXPECT_FALSE(screen.tree->SelectRootItem());
    PumpPending();
    EXPECT_TRUE(button->HasFocus());
}

TEST(HandyTree, GetsItsImageListAlsoWhenTheControlCannotBeCreated)
{
    ExpectAssertions assertions;
    wxHandyTreeCtrl tree;
    tree.Create(nullptr);
    EXPECT_GE(assertions.Count(), 1);
    EXPECT_NE(tree.GetImageList(), nullptr);
}

TEST(HandyTree, CanBeDestroyedWithoutHavingBeenCreated)
{
    wxHandyTreeCtrl tree;
    EXPECT_FALSE(tree.SelectRootItem());
    tree.DetroyImageList();
}

}  // namespace
