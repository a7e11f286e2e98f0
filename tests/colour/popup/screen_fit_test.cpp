// The position of the popup on the test screen of 1280 x 1024 pixels.

#include <gtest/gtest.h>

#include <tests/colour/popup/open_popup.h>

namespace {

class ColourScreenFit : public testing::Test
{
protected:
    ColourScreenFit() : popup(WithoutBoxes)
    {
        EXPECT_EQ(wxGetDisplaySize(), wxSize(1280, 1024));
        popup.frame->SetSize(300, 77);
    }

    wxPoint Placed(int x, int y, wxSize size = wxSize(100, 100))
    {
        popup->SetWindowSize(wxRect(wxPoint(x, y), size));
        EXPECT_EQ(popup->GetPosition(), popup->m_rectWindow.GetPosition());
        EXPECT_EQ(popup->GetSize(), popup->m_rectWindow.GetSize());
        return popup->GetPosition();
    }

    PopupInFrame popup;
};

TEST_F(ColourScreenFit, LeavesWhatFits)
{
    EXPECT_EQ(Placed(0, 0), wxPoint(0, 0));
    EXPECT_EQ(Placed(500, 300), wxPoint(500, 300));
    EXPECT_EQ(Placed(500, 300, wxSize(5000, 1)), wxPoint(500, 300));
    EXPECT_EQ(popup->m_rectWindow, wxRect(500, 300, 148, 94));
}

TEST_F(ColourScreenFit, ShiftsInFromTheRight)
{
    EXPECT_EQ(Placed(1132, 0), wxPoint(1132, 0));
    EXPECT_EQ(Placed(1133, 0), wxPoint(1133, 0));
    EXPECT_EQ(Placed(1134, 0), wxPoint(1133, 0));
    EXPECT_EQ(Placed(5000, 7), wxPoint(1133, 7));
}

TEST_F(ColourScreenFit, ShiftsInFromTheLeft)
{
    EXPECT_EQ(Placed(-2, 50), wxPoint(0, 50));
    EXPECT_EQ(Placed(-5000, 50), wxPoint(0, 50));
}

TEST_F(ColourScreenFit, KeepsTheLeftOfWhatIsWiderThanTheScreen)
{
    popup->m_nBoxSize = 200;
    EXPECT_EQ(Placed(500, 0).x, 0);
    EXPECT_EQ(popup->GetSize().x, 1604);
}

TEST_F(ColourScreenFit, FlipsAboveTheParent)
{
    EXPECT_EQ(Placed(10, 930), wxPoint(10, 930));
    EXPECT_EQ(Placed(10, 931), wxPoint(10, 931));
    EXPECT_EQ(Placed(10, 932), wxPoint(10, 932 - 77 - 94));
    EXPECT_EQ(Placed(1200, 1000), wxPoint(1133, 1000 - 77 - 94));
    // The given place is below the screen, so the popup is moved up, although the new place is below the screen too.
    EXPECT_EQ(Placed(10, 5000), wxPoint(10, 5000 - 77 - 94));
}

}  // namespace
