// The wait cursor, as the display shows it.

#include <fittings/tree/handy_tree_ctrl.h>

#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include <wx/uiaction.h>

#include <gdk/gdkx.h>
#include <X11/extensions/Xfixes.h>

#include <tests/tree/tree_on_screen.h>

namespace {

// Returns the name of the cursor under the pointer. Uses the program's own connection, so the display first handles all
// earlier requests of the program.
std::string CursorOnDisplay()
{
    Display* display = gdk_x11_get_default_xdisplay();
    XFixesCursorImage* image = XFixesGetCursorImage(display);
    const std::string name = image && image->name ? image->name : "";
    XFree(image);
    return name;
}

class BusyCursor : public testing::Test
{
protected:
    void SetUp() override
    {
        root = AddLazyRoot(tree, "R");
        tree.folders = {{L"R", {L"A"}}};
        screen.Show();
        wxUIActionSimulator mouse;
        mouse.MouseMove(tree.ClientToScreen(wxPoint(100, 150)));
        ASSERT_TRUE(PumpUntil([] { return CursorOnDisplay() == "left_ptr"; })) << CursorOnDisplay();
    }

    void TearDown() override
    {
        wxSetCursor(wxNullCursor);
        PumpPending();
    }

    TreeOnScreen<LazyTree> screen;
    LazyTree& tree = *screen.tree;
    wxTreeCursor root;
};

TEST_F(BusyCursor, IsShownForExactlyTheHook)
{
    std::string before, during, after;
    tree.Bind(wxEVT_TREE_ITEM_EXPANDING, [&](wxTreeEvent& event) {
        before = CursorOnDisplay();
        event.Skip();
    });
    tree.inHook = [&](const wxTreeCursor&) { during = CursorOnDisplay(); };
    tree.Bind(wxEVT_TREE_ITEM_EXPANDED, [&](wxTreeEvent&) { after = CursorOnDisplay(); });
    root.Expand();
    EXPECT_EQ(before, "left_ptr");
    EXPECT_EQ(during, "watch");
    EXPECT_EQ(after, "left_ptr");
    PumpPending();
    EXPECT_EQ(CursorOnDisplay(), "left_ptr");
}

TEST_F(BusyCursor, IsShownAgainWhenAFilledItemExpandsAgain)
{
    root.Expand();
    tree.Collapse(root.item);
    std::string during;
    tree.inHook = [&](const wxTreeCursor&) { during = CursorOnDisplay(); };
    root.Expand();
    EXPECT_EQ(during, "watch");
    EXPECT_EQ(CursorOnDisplay(), "left_ptr");
}

TEST_F(BusyCursor, GoesWhenAnExceptionLeavesTheHook)
{
    tree.inHook = [](const wxTreeCursor&) { throw std::runtime_error("no such folder"); };
    wxTreeEvent event(wxEVT_TREE_ITEM_EXPANDING, &tree, root.item);
    EXPECT_THROW(tree.OnEvtItemExpanding(event), std::runtime_error);
    EXPECT_EQ(CursorOnDisplay(), "left_ptr");
}

TEST_F(BusyCursor, GivesTheControlItsOwnCursorBack)
{
    tree.SetCursor(wxCursor(wxCURSOR_HAND));
    ASSERT_TRUE(PumpUntil([] { return CursorOnDisplay() == "hand2"; })) << CursorOnDisplay();
    root.Expand();
    EXPECT_EQ(CursorOnDisplay(), "hand2");
}

TEST_F(BusyCursor, GoesAlsoWhenTheApplicationWasBusyBefore)
{
    wxSetCursor(*wxHOURGLASS_CURSOR);
    ASSERT_EQ(CursorOnDisplay(), "watch");
    root.Expand();
    EXPECT_EQ(CursorOnDisplay(), "left_ptr");
}

}  // namespace
