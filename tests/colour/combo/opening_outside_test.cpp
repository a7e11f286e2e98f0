// A click outside the popup has the same effect while the popup opens as while it is open.

#include <string>

#include <gtest/gtest.h>

#include <wx/dialog.h>
#include <wx/menu.h>

#include <tests/colour/combo/opening_combo.h>
#include <tests/support/process/child_process.h>
#include <tests/support/xdotool.h>

namespace {

// If the parameter is true, the popup is still opening at the click. Otherwise the popup is open, and the toolkit
// dismisses it.
class ClickOutsideThePopup : public testing::TestWithParam<bool>, protected OpeningCombo
{
protected:
    void Open() { OpeningCombo::Open(GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(, ClickOutsideThePopup, testing::Bool(),
                         [](const auto& info) { return std::string(info.param ? "Opening" : "Open"); });

TEST_P(ClickOutsideThePopup, DismissesItOnTheTitleBar)
{
    Open();
    const wxPoint client = on.panel->ClientToScreen(wxPoint(0, 0));
    const wxRect frame = on.frame->GetScreenRect();
    ASSERT_LT(frame.y + 4, client.y) << "the frame has no title bar";
    Click(wxPoint(client.x + 250, (frame.y + client.y) / 2));
    ExpectShownAndDismissed();
    EXPECT_EQ(on.frame->GetScreenRect(), frame);
}

TEST_P(ClickOutsideThePopup, DismissesItOnTheDesktop)
{
    Open();
    Click(wxPoint(1200, 100));
    ExpectShownAndDismissed();
}

// The click that dismisses the popup does not reach the other program. The next click does.
TEST_P(ClickOutsideThePopup, DismissesItOnAnotherProgramsWindow)
{
    ChildProcess other({"stdbuf", "-oL", "xev", "-geometry", "300x200+800+600", "-name", "other", "-event", "button"});
    ASSERT_FALSE(Xdotool({"search", "--sync", "--onlyvisible", "--name", "^other$"}).empty());
    for (const int mouseButton : {wxMOUSE_BTN_LEFT, wxMOUSE_BTN_RIGHT}) {
        Open();
        Click(wxPoint(950, 720), mouseButton);
        ExpectShownAndDismissed();
        EXPECT_TRUE(on.frame->IsActive());
    }
    Click(wxPoint(955, 725));
    EXPECT_TRUE(PumpUntil([&] { return other.Output().find("root:(955,725)") != std::string::npos; }));
    EXPECT_EQ(other.Lines("ButtonPress ").size(), 1u) << other.Output();
}

TEST_P(ClickOutsideThePopup, DismissesItOnTheMenuBarWithoutOpeningAMenu)
{
    auto* const bar = new wxMenuBar;
    auto* const menu = new wxMenu;
    menu->Append(wxID_ANY, "item");
    bar->Append(menu, "Menu");
    on.frame->SetMenuBar(bar);
    int menus = 0;
    on.frame->Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent&) { ++menus; });
    Open();
    const wxPoint name = on.panel->ClientToScreen(wxPoint(20, -10));
    Click(name);
    ExpectShownAndDismissed();
    EXPECT_EQ(menus, 0);
    Click(name + wxPoint(2, 2));
    EXPECT_TRUE(PumpUntil([&] { return menus == 1; })) << "the next click does not open the menu";
    user.Char(WXK_ESCAPE);
    PumpPending();
}

// The modal dialog blocks the window under the pointer. A click there does not reach that window, but dismisses the
// popup.
TEST_P(ClickOutsideThePopup, DismissesItOnAWindowThatADialogBlocks)
{
    ASSERT_TRUE(ShowAndSettle(on.frame));
    wxDialog dialog(nullptr, wxID_ANY, "dialog", wxDefaultPosition, wxSize(300, 200),
                    wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
    combo.Reparent(new wxPanel(&dialog));
    dialog.CallAfter([&] {
        Open();
        const wxPoint blocked = on.panel->ClientToScreen(wxPoint(10, 300));
        EXPECT_FALSE(dialog.GetScreenRect().Contains(blocked));
        Click(blocked);
        ExpectShownAndDismissed();
        dialog.EndModal(wxID_OK);
    });
    dialog.ShowModal();
    combo.Reparent(on.panel);
}

}  // namespace
