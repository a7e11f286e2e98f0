// A restored window that the program shows, hides, moves or destroys.

#include <fittings/config/wx_window_state.h>

#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/frame.h>

#include <fittings/platform/local_reg_store.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>
#include <tests/support/temp_folder.h>

namespace {

class RestoredFrame : public UserDataTest
{
protected:
    RestoredFrame()
    {
        CLocalRegStore::WriteString(L"wxWindowState", L"Main", L"420;130;510;340");
        EXPECT_TRUE(wx_window_state::LoadState(frame, L"Main"));
    }

    wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "restored");
};

TEST_F(RestoredFrame, StaysHiddenUntilItIsShown)
{
    gtk_widget_realize(frame->GetHandle());
    PumpPending();
    EXPECT_FALSE(frame->IsShown());
    EXPECT_FALSE(gtk_widget_get_visible(frame->GetHandle()));
    ASSERT_TRUE(ShowAndSettle(frame));
    EXPECT_EQ(frame->GetScreenRect(), wxRect(420, 130, 510, 340));
    frame->Destroy();
}

TEST_F(RestoredFrame, StaysHiddenWhenItIsHiddenAtOnce)
{
    frame->Show();
    frame->Hide();
    PumpPending();
    EXPECT_FALSE(gtk_widget_get_visible(frame->GetHandle()));
    frame->Destroy();
}

TEST_F(RestoredFrame, MayBeDestroyedAtOnce)
{
    frame->Show();
    delete frame;
    PumpPending();
}

// A position and size that the program sets after LoadState() replace the restored ones.
TEST_F(RestoredFrame, GoesWhereItsProgramPutsIt)
{
    EXPECT_TRUE(wx_window_state::LoadState(frame, L"Main"));
    frame->SetSize(300, 200, 400, 300);
    ASSERT_TRUE(ShowAndSettle(frame));
    EXPECT_EQ(frame->GetScreenRect(), wxRect(300, 200, 400, 300));
    frame->Hide();
    frame->SetSize(310, 220, 420, 320);
    ASSERT_TRUE(ShowAndSettle(frame));
    EXPECT_EQ(frame->GetScreenRect(), wxRect(310, 220, 420, 320));
    frame->Destroy();
}

// Without a stored geometry, the window manager chooses the dialog's place. It never chooses the top left corner of the
// work area: if the dialog is there, LoadState() has moved it.
TEST(DialogWithoutAStoredGeometry, IsNotMovedToTheCorner)
{
    const TempUserData data;
    const OwnedWindow<wxDialog> dialog(
        new wxDialog(nullptr, wxID_ANY, "new", wxDefaultPosition, wxSize(400, 300), wxDEFAULT_DIALOG_STYLE));
    EXPECT_FALSE(wx_window_state::LoadState(dialog.get(), L"Main"));
    ASSERT_TRUE(ShowAndSettle(dialog.get()));
    EXPECT_NE(dialog->GetScreenPosition(), wxDisplay(0U).GetClientArea().GetPosition());
}

}  // namespace
