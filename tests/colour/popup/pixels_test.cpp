// The pixels of the popup and of the combo's face. The tests do not check the ends of lines and the corners, because
// the toolkit smooths them.

#include <functional>
#include <string>

#include <gtest/gtest.h>
#include <wx/settings.h>

#include <tests/colour/popup/open_popup.h>
#include <tests/colour/popup/recording_dc.h>
#include <tests/colour/screen.h>

namespace {

const wxColour kBackground(255, 0, 255);

char LetterOf(const wxColour& colour)
{
    static const std::pair<wxColour, char> kLetters[] = {
        {kFace, 'f'}, {kShadow, 's'}, {kHighlight, 'H'}, {kDark, 'D'}, {kBackground, '.'}, {wxColour(0, 0, 0), '#'},
    };
    for (const auto& [known, letter] : kLetters) {
        if (known == colour)
            return letter;
    }
    return '?';
}

// Returns the pixels of a row or column as runs of equal pixels: "3. 1H 14f" is three pixels of background, one of
// highlight and 14 of face.
std::string Runs(const std::function<wxColour(int)>& at, int count)
{
    std::string runs;
    for (int i = 0; i < count;) {
        const char letter = LetterOf(at(i));
        int length = 0;
        while (i < count && LetterOf(at(i)) == letter) {
            ++i;
            ++length;
        }
        runs += (runs.empty() ? "" : " ") + std::to_string(length) + letter;
    }
    return runs;
}

class ColourPixels : public testing::Test
{
protected:
    ColourPixels() : popup(WithoutBoxes) { popup->m_nChosenColourSel = CELL_NONE; }

    std::string Row(int y)
    {
        return Runs([&](int x) { return picture.At(x, y); }, popup->GetSize().x);
    }

    std::string Column(int x, int height)
    {
        return Runs([&](int y) { return picture.At(x, y); }, height);
    }

    // Draws a black cell of 18 x 18 pixels at (3, 3). BlackRow() returns the row through the middle of this cell.
    void DrawBlack()
    {
        wxRect rect(3, 3, 18, 18);
        popup->DrawCellRect(&picture.dc, rect, 0);
    }

    // Adds both boxes to the popup. The texts are blanks, so no letters are drawn in the boxes.
    void AddBoxes()
    {
        popup->m_strAutomatic = " ";
        popup->m_strMoreColours = " ";
        popup->m_rectAutomatic = wxRect(2, 2, 145, 30);
        popup->m_rectMoreColours = wxRect(2, 128, 145, 30);
    }

    std::string BlackRow()
    {
        return Runs([&](int x) { return picture.At(x, 12); }, 24);
    }

    PopupInFrame popup;
    PinnedTheme theme;
    Picture picture{wxSize(160, 180), kBackground};
};

TEST_F(ColourPixels, OfACell)
{
    DrawBlack();
    EXPECT_EQ(BlackRow(), "3. 3f 1s 10# 1s 3f 3.");
    EXPECT_EQ(Column(12, 24), "3. 3f 1s 10# 1s 3f 3.");
}

// From outside to inside, the left and top edges are face, highlight and face. The right and bottom edges are face,
// dark and shadow. The outline of the colour follows.
TEST_F(ColourPixels, OfTheHotCell)
{
    popup->m_nCurrentSel = 0;
    DrawBlack();
    EXPECT_EQ(BlackRow(), "3. 1f 1H 1f 1s 10# 2s 1D 1f 3.");
    EXPECT_EQ(Column(12, 24), "3. 1f 1H 1f 1s 10# 2s 1D 1f 3.");
}

// From outside to inside, the left and top edges are shadow, dark and highlight. The right and bottom edges are
// highlight, highlight and face. The outline of the colour follows.
TEST_F(ColourPixels, OfTheChosenCell)
{
    popup->m_nChosenColourSel = 0;
    DrawBlack();
    EXPECT_EQ(BlackRow(), "3. 1s 1D 1H 1s 10# 1s 1f 2H 3.");
    EXPECT_EQ(Column(12, 24), "3. 1s 1D 1H 1s 10# 1s 1f 2H 3.");
}

TEST_F(ColourPixels, OfACellBothHotAndChosenAreThoseOfTheHot)
{
    popup->m_nChosenColourSel = 0;
    popup->m_nCurrentSel = 0;
    DrawBlack();
    EXPECT_EQ(BlackRow(), "3. 1f 1H 1f 1s 10# 2s 1D 1f 3.");
}

TEST_F(ColourPixels, OfTheGrid)
{
    popup->m_nChosenColourSel = 5;
    popup->DoDrawControl(&picture.dc);
    // A row through a black cell (#). The other seven colours have no letter of their own (?).
    EXPECT_EQ(Row(11), "1. 1H 3f 1s 10# 1s 6f 1s 10? 1s 6f 1s 10? 1s 6f 1s 10? 1s 6f 1s 10? 1s 3f "
                       "1s 1D 1H 1s 10? 1s 1f 2H 3f 1s 10? 1s 6f 1s 10? 1s 2f 1s 1D 1.");
    EXPECT_EQ(Column(11, 94), "1. 1H 3f 1s 10# 1s 6f 1s 10? 1s 6f 1s 10? 1s 6f 1s 10? 1s 6f 1s 10? 1s 2f 1s 1D 1.");
    EXPECT_EQ(picture.At(29, 11), wxColour(165, 42, 0));
    EXPECT_EQ(picture.At(137, 83), wxColour(255, 255, 255));
    EXPECT_EQ(picture.At(11, 29), wxColour(139, 0, 0));
}

TEST_F(ColourPixels, OfTheBoxes)
{
    AddBoxes();
    popup->SetSize(148, 162);
    popup->DoDrawControl(&picture.dc);
    // This column lies between two columns of cells. It crosses the frame, the upper box with its outline, a gap, the
    // grid, a gap, the separator, a gap, the lower box and the frame.
    EXPECT_EQ(Column(75, 162), "1. 1H 5f 1s 18f 1s 5f 2. 90f 4. 1s 1H 2. 27f 1s 1D 1f");
    EXPECT_EQ(Row(10), "1. 1H 5f 1s 133f 1s 3f 1s 1D 1.");
    // The automatic colour is black.
    EXPECT_EQ(Row(17), "1. 1H 5f 1s 4f 1s 8# 1s 119f 1s 3f 1s 1D 1.");
    EXPECT_EQ(Row(150), "1. 1H 143f 1s 1D 1.");
}

TEST_F(ColourPixels, OfTheHotAndTheChosenBox)
{
    AddBoxes();
    popup->m_nCurrentSel = CELL_AUTOMATIC;
    popup->m_nChosenColourSel = CELL_MORE_COLOURS;
    popup->DrawCell(&picture.dc, CELL_AUTOMATIC);
    popup->DrawCell(&picture.dc, CELL_MORE_COLOURS);
    EXPECT_EQ(Column(75, 162), "2. 2f 1H 2f 1s 18f 1s 1f 1s 1D 2f 96. 1s 1H 2. 1f 1s 1D 1H 21f 1H 4f");
}

TEST_F(ColourPixels, OfTheCombosFace)
{
    popup->SetInitialColour(wxColour(0, 0, 0));
    popup->PaintComboControl(picture.dc, wxRect(10, 20, 30, 8));
    EXPECT_EQ(Runs([&](int x) { return picture.At(x, 24); }, 60), "10. 30# 20.");
    EXPECT_EQ(Runs([&](int y) { return picture.At(20, y); }, 40), "20. 8# 12.");
}

TEST(ColourWindow, ShowsItsCellsAndFrame)
{
    const PopupInFrame popup;
    // A second child keeps the frame from resizing the popup.
    new wxWindow(popup.frame, wxID_ANY);
    popup->Move(20, 20);
    ASSERT_TRUE(ShowAndSettle(popup.frame));
    wxRect cell;
    ASSERT_TRUE(popup->GetCellRect(9, cell));
    const wxPoint orange = cell.GetPosition() + wxSize(9, 9);
    wxImage seen;
    EXPECT_TRUE(PumpUntil([&] {
        seen = GrabScreen(wxRect(popup->ClientToScreen(wxPoint(0, 0)), popup->GetSize()));
        return PixelOf(seen, orange.x, orange.y) == 0xFF6820;
    }));
    const wxColour frame = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNHIGHLIGHT);
    EXPECT_EQ(wxColour(seen.GetRed(1, 50), seen.GetGreen(1, 50), seen.GetBlue(1, 50)), frame);
}

}  // namespace
