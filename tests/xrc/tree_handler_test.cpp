#include <fittings/xrc/tree_handler.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/uiaction.h>

#include <fittings/platform/local_reg_store.h>
#include <fittings/tree/handy_tree_ctrl.h>
#include <tests/support/gui.h>
#include <tests/xrc/loaded_resource.h>

// A host's class that controls.xrc names as the subclass of a control.
class PlanetTree : public wxHandyTreeCtrl
{
    void OnItemExpanding(const wxTreeCursor& item) override { wxTreeCursor(item).AppendItem("Earth"); }

    wxDECLARE_DYNAMIC_CLASS(PlanetTree);
};

wxIMPLEMENT_DYNAMIC_CLASS(PlanetTree, wxHandyTreeCtrl);

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using HandyTreeXmlHandler = LoadedResourceTest;

TEST_F(HandyTreeXmlHandler, GivesWhatTheResourceSays)
{
    wxFrame* const frame = resource.MakeFrame("frame");
    auto* const tree = XRCCTRL(*frame, "folders", wxHandyTreeCtrl);
    ASSERT_NE(dynamic_cast<wxHandyTreeCtrl*>(tree), nullptr);
    EXPECT_THAT(resource.errors, IsEmpty());

    EXPECT_EQ(tree->GetId(), XRCID("folders"));
    EXPECT_EQ(tree->GetName(), "folders");
    for (const long style : {wxTR_HAS_BUTTONS, wxTR_HIDE_ROOT, wxTR_MULTIPLE})
        EXPECT_TRUE(tree->HasFlag(style)) << style;
    EXPECT_FALSE(tree->HasFlag(wxTR_NO_LINES));
    EXPECT_EQ(tree->GetBackgroundColour(), wxColour(255, 255, 192));
    ASSERT_TRUE(ShowAndSettle(frame));
    EXPECT_EQ(tree->GetSize(), wxSize(200, 100));

    ASSERT_NE(tree->GetImageList(), nullptr);
    EXPECT_EQ(tree->GetImageList()->GetImageCount(), 2);
    EXPECT_EQ(tree->GetImageList()->GetSize(), wxSize(24, 24));

    wxTreeCursor root = tree->AddRoot("Sun");
    root.AppendItem("Earth").AppendItem("Moon");
    tree->Expand(root.GetChild().item);
    tree->SaveState(root);
    EXPECT_EQ(CLocalRegStore::GetString(L"TreeControlState", L"My_folders", L""), L"Earth|Sun|");
}

TEST_F(HandyTreeXmlHandler, TakesWhatIsUsualForWhatTheResourceDoesNotSay)
{
    wxFrame* const frame = resource.MakeFrame("frame");
    auto* const tree = XRCCTRL(*frame, "tree", wxHandyTreeCtrl);
    EXPECT_EQ(tree->GetWindowStyleFlag() & 0xFFFF, wxTR_HAS_BUTTONS | wxTR_NO_LINES);
    ASSERT_NE(tree->GetImageList(), nullptr);
    EXPECT_EQ(tree->GetImageList()->GetSize(), wxSize(16, 16));
    EXPECT_EQ(tree->GetImageList()->GetImageCount(), 0);

    wxTreeCursor root = tree->AddRoot("Sun");
    root.AppendItem("Earth");
    tree->Expand(root.item);
    tree->SaveState(root);
    EXPECT_EQ(CLocalRegStore::GetString(L"TreeControlState", L"", L""), L"Sun|");
}

TEST_F(HandyTreeXmlHandler, MakesTheSubclassThatTheResourceNames)
{
    wxFrame* const frame = resource.MakeFrame("subclasses");
    auto* const tree = dynamic_cast<PlanetTree*>(frame->FindWindow("tree"));
    ASSERT_NE(tree, nullptr);
    EXPECT_THAT(resource.errors, IsEmpty());
    wxTreeCursor root = tree->AddRoot("Sun");
    root.SetChildren(true);
    ASSERT_TRUE(ShowAndSettle(frame));
    ASSERT_TRUE(tree->SelectRootItem());
    ASSERT_TRUE(PumpUntil([&] { return tree->HasFocus(); }));
    wxUIActionSimulator().Char(WXK_RIGHT);
    EXPECT_TRUE(PumpUntil([&] { return root.IsExpanded(); }));
    EXPECT_EQ(root.GetChild().GetText(), L"Earth");
}

TEST_F(HandyTreeXmlHandler, ReportsWhatItCannotUnderstandAndTakesWhatIsUsual)
{
    const ExpectAssertions ofTheToolkit;  // the toolkit asserts on the invalid bitmap and goes on
    wxPanel* const panel = resource.MakePanel("bad-tree");
    ASSERT_NE(panel, nullptr);
    EXPECT_THAT(resource.errors, Contains(HasSubstr("wxTR_NO_ROOTS")).Times(1));
    EXPECT_THAT(resource.errors, Contains(HasSubstr("no-such-file.png")).Times(1));
    EXPECT_EQ(resource.errors.size(), 2U);

    auto* const tree = XRCCTRL(*panel, "tree", wxHandyTreeCtrl);
    ASSERT_NE(tree->GetImageList(), nullptr);
    EXPECT_EQ(tree->GetImageList()->GetSize(), wxSize(16, 16));
    wxTreeCursor root = tree->AddRoot("Sun");
    EXPECT_EQ(root.GetText(), L"Sun");
}

TEST_F(HandyTreeXmlHandler, MakesAPlainControlInsteadOfASubclassThatIsNone)
{
    wxPanel* const panel = resource.MakePanel("wrong-subclasses");
    EXPECT_THAT(resource.errors, Contains("the object to load is no wxHandyTreeCtrl").Times(1));
    EXPECT_NE(dynamic_cast<wxHandyTreeCtrl*>(panel->FindWindow("tree")), nullptr);
}

TEST_F(HandyTreeXmlHandler, LoadsIntoAnObjectOfTheHost)
{
    wxFrame* const frame = resource.MakeFrame("subclasses");
    auto* const tree = new wxHandyTreeCtrl;
    EXPECT_TRUE(resource.LoadObjectRecursively(tree, frame, "folders", "wxHandyTreeCtrl"));
    EXPECT_EQ(tree->GetParent(), frame);
    EXPECT_TRUE(tree->HasFlag(wxTR_MULTIPLE));
}

}  // namespace
