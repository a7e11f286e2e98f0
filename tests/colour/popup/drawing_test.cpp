// What the popup draws, call by call, with the colours of a test theme.

#include <algorithm>
#include <optional>
#include <utility>

#include <gtest/gtest.h>

#include <tests/colour/popup/open_popup.h>
#include <tests/colour/popup/recording_dc.h>

namespace {

class ColourDrawing : public testing::Test
{
protected:
    ColourDrawing()
        : popup([](OpenPopup& made) {
              WithoutBoxes(made);
              made.SetInitialColour(wxColour(1, 2, 3));
              made.SetDefaultColour(wxColour(4, 5, 6));
          })
    {
        popup->m_nChosenColourSel = CELL_NONE;
    }

    // Adds both boxes to the popup. Their coordinates and sizes all differ.
    void AddBoxes()
    {
        popup->m_strAutomatic = "Auto";
        popup->m_strMoreColours = "More";
        popup->m_rectAutomatic = wxRect(2, 3, 145, 31);
        popup->m_rectMoreColours = wxRect(4, 130, 141, 37);
    }

    Calls DrawnCell(int index)
    {
        dc.Record().calls.clear();
        popup->DrawCell(&dc, index);
        return dc.Record().calls;
    }

    Calls DrawnControl()
    {
        dc.Record().calls.clear();
        popup->DoDrawControl(&dc);
        return dc.Record().calls;
    }

    PopupInFrame popup;
    std::optional<PinnedTheme> theme{std::in_place};
    Picture picture{wxSize(160, 180)};
    RecordingDC dc{picture.dc};
};

TEST_F(ColourDrawing, OfACellIsItsColourOnTheFace)
{
    EXPECT_EQ(DrawnCell(1), (Calls{"palette", "rect 20,2 18x18 FACE FACE", "rect 23,5 12x12 SHADOW #A52A00"}));
}

TEST_F(ColourDrawing, OfTheHotCellIsRaised)
{
    popup->m_nCurrentSel = 0;
    EXPECT_EQ(DrawnCell(0), (Calls{
                                "palette",
                                "rect 2,2 18x18 FACE FACE",
                                "line 3,3-3,18 HIGHLIGHT",
                                "line 4,3-18,3 HIGHLIGHT",
                                "line 18,2-18,18 DARK",
                                "line 2,18-19,18 DARK",
                                "line 4,4-4,17 FACE",
                                "line 5,4-17,4 FACE",
                                "line 17,3-17,17 SHADOW",
                                "line 3,17-18,17 SHADOW",
                                "rect 5,5 12x12 SHADOW #000000",
                            }));
}

TEST_F(ColourDrawing, OfTheChosenCellIsSunkenOnTheHighlight)
{
    popup->m_nChosenColourSel = 9;
    EXPECT_EQ(DrawnCell(9), (Calls{
                                "palette",
                                "rect 20,20 18x18 HIGHLIGHT HIGHLIGHT",
                                "line 20,20-20,37 SHADOW",
                                "line 21,20-37,20 SHADOW",
                                "line 21,21-21,36 DARK",
                                "line 22,21-36,21 DARK",
                                "line 36,20-36,36 HIGHLIGHT",
                                "line 20,36-37,36 HIGHLIGHT",
                                "line 22,22-22,35 HIGHLIGHT",
                                "line 23,22-35,22 HIGHLIGHT",
                                "line 35,21-35,35 FACE",
                                "line 21,35-36,35 FACE",
                                "rect 23,23 12x12 SHADOW #FF6820",
                            }));
}

TEST_F(ColourDrawing, OfACellBothHotAndChosenIsRaisedOnTheFace)
{
    popup->m_nChosenColourSel = 0;
    popup->m_nCurrentSel = 0;
    const Calls calls = DrawnCell(0);
    ASSERT_EQ(calls.size(), 11U);
    EXPECT_EQ(calls[1], "rect 2,2 18x18 FACE FACE");
    EXPECT_EQ(calls[2], "line 3,3-3,18 HIGHLIGHT");
    EXPECT_EQ(calls[4], "line 18,2-18,18 DARK");
}

TEST_F(ColourDrawing, OfAnotherCellIsPlainBesideTheHotAndTheChosen)
{
    popup->m_nChosenColourSel = 0;
    popup->m_nCurrentSel = 2;
    EXPECT_EQ(DrawnCell(1), (Calls{"palette", "rect 20,2 18x18 FACE FACE", "rect 23,5 12x12 SHADOW #A52A00"}));
}

TEST_F(ColourDrawing, ShrinksTheCallersRectangleToTheColour)
{
    wxRect rect(10, 20, 18, 18);
    popup->DrawCellRect(&dc, rect, 39);
    EXPECT_EQ(rect, wxRect(13, 23, 12, 12));
    EXPECT_EQ(dc.Record().calls.back(), "rect 13,23 12x12 SHADOW #FFFFFF");

    popup->m_nMargin = 6;
    rect = wxRect(10, 20, 19, 19);
    popup->DrawCellRect(&dc, rect, 39);
    EXPECT_EQ(rect, wxRect(17, 27, 5, 5));
}

TEST_F(ColourDrawing, ShowsATranslucentColourOpaque)
{
    popup->SetDefaultColour(wxColour(40, 50, 60, 70));
    wxRect rect(0, 0, 18, 18);
    popup->DrawCellRect(&dc, rect, CELL_AUTOMATIC);
    EXPECT_EQ(dc.Record().calls.back(), "rect 3,3 12x12 SHADOW #28323C");
    EXPECT_EQ(dc.GetImpl()->GetBrush().IsOk(), false);
    EXPECT_EQ(picture.dc.GetBrush().GetColour().Alpha(), 255);
}

TEST_F(ColourDrawing, SetsThePaletteOfItsColours)
{
    DrawnCell(0);
    EXPECT_TRUE(dc.Record().palette.IsSameAs(popup->m_palette));
}

TEST_F(ColourDrawing, OfNoCellIsNothing)
{
    AddBoxes();
    EXPECT_EQ(DrawnCell(-1), Calls{});
    EXPECT_EQ(DrawnCell(40), Calls{});
    EXPECT_EQ(DrawnCell(-4), Calls{});
}

// A box whose text was removed keeps its rectangle until the next layout. Until then, DrawCell() draws the box like a
// cell of the palette.
TEST_F(ColourDrawing, OfABoxWithoutTextIsThatOfACell)
{
    popup->m_rectMoreColours = wxRect(10, 20, 30, 40);
    EXPECT_EQ(DrawnCell(CELL_MORE_COLOURS),
              (Calls{"palette", "rect 10,20 30x40 FACE FACE", "rect 13,23 24x34 SHADOW #010203"}));
    popup->m_rectAutomatic = wxRect(10, 20, 30, 40);
    EXPECT_EQ(DrawnCell(CELL_AUTOMATIC),
              (Calls{"palette", "rect 10,20 30x40 FACE FACE", "rect 13,23 24x34 SHADOW #040506"}));
}

TEST_F(ColourDrawing, OfMoreColoursIsASeparatorAndAText)
{
    AddBoxes();
    // The box of 139 x 33 pixels leaves 79 x 23 pixels around this text. Half of 79 and half of 23 are rounded down.
    dc.Record().textSize = wxSize(60, 10);
    EXPECT_EQ(DrawnCell(CELL_MORE_COLOURS), (Calls{
                                                "rect 4,134 141x37 FACE FACE",
                                                "rect 8,130 133x1 SHADOW SHADOW",
                                                "rect 8,131 133x1 HIGHLIGHT HIGHLIGHT",
                                                "rect 5,135 139x33 FACE FACE",
                                                "text 'More' 44,146 transparent",
                                            }));
    EXPECT_EQ(dc.Record().GetFont(), popup->m_font);
}

TEST_F(ColourDrawing, OfMoreColoursIsRaisedWhenHot)
{
    AddBoxes();
    popup->m_nCurrentSel = CELL_MORE_COLOURS;
    popup->m_nChosenColourSel = CELL_MORE_COLOURS;
    EXPECT_EQ(DrawnCell(CELL_MORE_COLOURS), (Calls{
                                                "rect 4,134 141x37 FACE FACE",
                                                "rect 8,130 133x1 SHADOW SHADOW",
                                                "rect 8,131 133x1 HIGHLIGHT HIGHLIGHT",
                                                "rect 5,135 139x33 FACE FACE",
                                                "line 6,136-6,166 HIGHLIGHT",
                                                "line 7,136-142,136 HIGHLIGHT",
                                                "line 142,135-142,166 DARK",
                                                "line 5,166-143,166 DARK",
                                                "line 7,137-7,165 FACE",
                                                "line 8,137-141,137 FACE",
                                                "line 141,136-141,165 SHADOW",
                                                "line 6,165-142,165 SHADOW",
                                                "text 'More' 44,146 transparent",
                                            }));
}

TEST_F(ColourDrawing, OfMoreColoursIsSunkenOnTheFaceWhenChosen)
{
    AddBoxes();
    popup->m_nChosenColourSel = CELL_MORE_COLOURS;
    EXPECT_EQ(DrawnCell(CELL_MORE_COLOURS), (Calls{
                                                "rect 4,134 141x37 FACE FACE",
                                                "rect 8,130 133x1 SHADOW SHADOW",
                                                "rect 8,131 133x1 HIGHLIGHT HIGHLIGHT",
                                                "rect 5,135 139x33 FACE FACE",
                                                "line 5,135-5,167 SHADOW",
                                                "line 6,135-143,135 SHADOW",
                                                "line 6,136-6,166 DARK",
                                                "line 7,136-142,136 DARK",
                                                "line 142,135-142,166 HIGHLIGHT",
                                                "line 5,166-143,166 HIGHLIGHT",
                                                "line 7,137-7,165 HIGHLIGHT",
                                                "line 8,137-141,137 HIGHLIGHT",
                                                "line 141,136-141,165 FACE",
                                                "line 6,165-142,165 FACE",
                                                "text 'More' 44,146 transparent",
                                            }));
}

TEST_F(ColourDrawing, OfMoreColoursFollowsTheMargin)
{
    AddBoxes();
    popup->m_nMargin = 6;
    EXPECT_EQ(DrawnCell(CELL_MORE_COLOURS), (Calls{
                                                "rect 4,142 141x37 FACE FACE",
                                                "rect 16,130 117x1 SHADOW SHADOW",
                                                "rect 16,131 117x1 HIGHLIGHT HIGHLIGHT",
                                                "rect 5,143 139x33 FACE FACE",
                                                "text 'More' 44,154 transparent",
                                            }));
}

TEST_F(ColourDrawing, OfAutomaticIsAFramedTextAndItsColour)
{
    AddBoxes();
    dc.Record().textSize = wxSize(60, 10);
    EXPECT_EQ(DrawnCell(CELL_AUTOMATIC), (Calls{
                                             "rect 2,3 145x31 FACE FACE",
                                             "rect 3,4 143x29 FACE FACE",
                                             "rect 7,8 135x21 SHADOW FACE",
                                             "text 'Auto' 44,13 transparent",
                                             "palette",
                                             "rect 12,13 10x10 FACE FACE",
                                             "rect 12,13 10x10 SHADOW #040506",
                                         }));
    EXPECT_EQ(dc.Record().GetFont(), popup->m_font);
    EXPECT_EQ(popup->m_nMargin, 2);
}

TEST_F(ColourDrawing, OfAutomaticIsRaisedWhenHot)
{
    AddBoxes();
    popup->m_nCurrentSel = CELL_AUTOMATIC;
    popup->m_nChosenColourSel = CELL_AUTOMATIC;
    EXPECT_EQ(DrawnCell(CELL_AUTOMATIC), (Calls{
                                             "rect 2,3 145x31 FACE FACE",
                                             "rect 3,4 143x29 FACE FACE",
                                             "rect 7,8 135x21 SHADOW FACE",
                                             "line 4,5-4,31 HIGHLIGHT",
                                             "line 5,5-144,5 HIGHLIGHT",
                                             "line 144,4-144,31 DARK",
                                             "line 3,31-145,31 DARK",
                                             "line 5,6-5,30 FACE",
                                             "line 6,6-143,6 FACE",
                                             "line 143,5-143,30 SHADOW",
                                             "line 4,30-144,30 SHADOW",
                                             "text 'Auto' 44,13 transparent",
                                             "palette",
                                             "rect 12,13 10x10 FACE FACE",
                                             "line 13,14-13,21 HIGHLIGHT",
                                             "line 14,14-20,14 HIGHLIGHT",
                                             "line 20,13-20,21 DARK",
                                             "line 12,21-21,21 DARK",
                                             "line 14,15-14,20 FACE",
                                             "line 15,15-19,15 FACE",
                                             "line 19,14-19,20 SHADOW",
                                             "line 13,20-20,20 SHADOW",
                                             "rect 12,13 10x10 SHADOW #040506",
                                         }));
}

TEST_F(ColourDrawing, OfAutomaticIsSunkenOnTheFaceWhenChosen)
{
    AddBoxes();
    popup->m_nChosenColourSel = CELL_AUTOMATIC;
    const Calls calls = DrawnCell(CELL_AUTOMATIC);
    ASSERT_EQ(calls.size(), 27U);
    EXPECT_EQ(Calls(calls.begin(), calls.begin() + 13), (Calls{
                                                            "rect 2,3 145x31 FACE FACE",
                                                            "rect 3,4 143x29 FACE FACE",
                                                            "rect 7,8 135x21 SHADOW FACE",
                                                            "line 3,4-3,32 SHADOW",
                                                            "line 4,4-145,4 SHADOW",
                                                            "line 4,5-4,31 DARK",
                                                            "line 5,5-144,5 DARK",
                                                            "line 144,4-144,31 HIGHLIGHT",
                                                            "line 3,31-145,31 HIGHLIGHT",
                                                            "line 5,6-5,30 HIGHLIGHT",
                                                            "line 6,6-143,6 HIGHLIGHT",
                                                            "line 143,5-143,30 FACE",
                                                            "line 4,30-144,30 FACE",
                                                        }));
    EXPECT_EQ(calls[13], "text 'Auto' 44,13 transparent");
    EXPECT_EQ(calls[15], "rect 12,13 10x10 HIGHLIGHT HIGHLIGHT");
    EXPECT_EQ(calls[26], "rect 12,13 10x10 SHADOW #040506");
}

TEST_F(ColourDrawing, OfAutomaticFollowsTheMargin)
{
    AddBoxes();
    popup->m_nMargin = 6;
    EXPECT_EQ(DrawnCell(CELL_AUTOMATIC), (Calls{
                                             "rect 2,3 145x31 FACE FACE",
                                             "rect 3,4 143x29 FACE FACE",
                                             "rect 15,16 119x5 SHADOW FACE",
                                             "text 'Auto' 44,13 transparent",
                                             "palette",
                                             "rect 12,13 10x10 FACE FACE",
                                             "rect 12,13 10x10 SHADOW #040506",
                                         }));
    EXPECT_EQ(popup->m_nMargin, 6);
}

// The side of the swatch is a third of the box's height. The distance from the swatch to the top and to the left of the
// box is half of the remaining height. Both numbers are rounded down.
TEST_F(ColourDrawing, OfTheAutomaticColourIsCentredInTheLeftSquare)
{
    AddBoxes();
    popup->m_rectAutomatic = wxRect(2, 3, 145, 32);
    EXPECT_EQ(DrawnCell(CELL_AUTOMATIC).back(), "rect 13,14 10x10 SHADOW #040506");
    popup->m_rectAutomatic = wxRect(2, 3, 145, 30);
    EXPECT_EQ(DrawnCell(CELL_AUTOMATIC).back(), "rect 12,13 10x10 SHADOW #040506");
    popup->m_rectAutomatic = wxRect(2, 3, 145, 29);
    EXPECT_EQ(DrawnCell(CELL_AUTOMATIC).back(), "rect 12,13 9x9 SHADOW #040506");
}

// Half of the difference between the sizes of the box and the text is rounded toward zero, even if the text is larger.
TEST_F(ColourDrawing, OfATextLargerThanItsBoxStandsOutOnBothSides)
{
    AddBoxes();
    dc.Record().textSize = wxSize(146, 32);
    EXPECT_EQ(DrawnCell(CELL_AUTOMATIC)[3], "text 'Auto' 2,3 transparent");
    dc.Record().textSize = wxSize(142, 36);
    EXPECT_EQ(DrawnCell(CELL_MORE_COLOURS)[4], "text 'More' 4,134 transparent");
}

TEST_F(ColourDrawing, OfTheControlGoesFromTheTopToTheFrame)
{
    AddBoxes();
    Calls expected = DrawnCell(CELL_AUTOMATIC);
    for (int i = 0; i < 40; ++i) {
        const Calls cell = DrawnCell(i);
        expected.insert(expected.end(), cell.begin(), cell.end());
    }
    const Calls more = DrawnCell(CELL_MORE_COLOURS);
    expected.insert(expected.end(), more.begin(), more.end());
    const Calls frame{
        "line 1,1-1,92 HIGHLIGHT", "line 2,1-146,1 HIGHLIGHT", "line 146,0-146,92 DARK",   "line 0,92-147,92 DARK",
        "line 2,2-2,91 FACE",      "line 3,2-145,2 FACE",      "line 145,1-145,91 SHADOW", "line 1,91-146,91 SHADOW",
    };
    expected.insert(expected.end(), frame.begin(), frame.end());
    EXPECT_EQ(DrawnControl(), expected);
    EXPECT_EQ(expected.size(), 7U + 40U * 3U + 5U + 8U);
}

TEST_F(ColourDrawing, OfTheControlLeavesOutAbsentBoxes)
{
    const Calls calls = DrawnControl();
    ASSERT_EQ(calls.size(), 40U * 3U + 8U);
    EXPECT_EQ(calls[1], "rect 2,2 18x18 FACE FACE");
    EXPECT_EQ(calls[119], "rect 131,77 12x12 SHADOW #FFFFFF");
    EXPECT_EQ(calls[120], "line 1,1-1,92 HIGHLIGHT");

    AddBoxes();
    popup->m_strAutomatic.clear();
    EXPECT_EQ(DrawnControl().size(), 40U * 3U + 5U + 8U);

    AddBoxes();
    popup->m_strMoreColours.clear();
    EXPECT_EQ(DrawnControl().size(), 7U + 40U * 3U + 8U);
}

TEST_F(ColourDrawing, OfTheFrameIsRaised)
{
    popup->SetSize(50, 40);
    popup->DoDrawClientEdge(&dc);
    EXPECT_EQ(dc.Record().calls, (Calls{
                                     "line 1,1-1,38 HIGHLIGHT",
                                     "line 2,1-48,1 HIGHLIGHT",
                                     "line 48,0-48,38 DARK",
                                     "line 0,38-49,38 DARK",
                                     "line 2,2-2,37 FACE",
                                     "line 3,2-47,2 FACE",
                                     "line 47,1-47,37 SHADOW",
                                     "line 1,37-48,37 SHADOW",
                                 }));
}

// The popup reads the theme's colours anew each time it draws.
TEST_F(ColourDrawing, FollowsTheThemeAtOnce)
{
    AddBoxes();
    popup->m_nCurrentSel = 0;
    popup->m_nChosenColourSel = 1;
    const auto uses = [&](const std::string& colour) {
        const Calls calls = DrawnControl();
        return std::any_of(calls.begin(), calls.end(),
                           [&](const std::string& call) { return call.find(colour) != std::string::npos; });
    };
    for (const char* const colour : {"FACE", "SHADOW", "HIGHLIGHT", "DARK"})
        EXPECT_TRUE(uses(colour)) << colour;
    theme.reset();
    for (const char* const colour : {"FACE", "SHADOW", "HIGHLIGHT", "DARK"})
        EXPECT_FALSE(uses(colour)) << colour;
}

TEST_F(ColourDrawing, OfTheCombosFaceIsTheColourInEffect)
{
    popup->m_nCurrentSel = 16;
    popup->m_crColour = wxColour(255, 0, 0);
    popup->PaintComboControl(dc, wxRect(5, 6, 70, 8));
    EXPECT_EQ(dc.Record().calls, Calls{"rect 5,6 70x8 #010203 #010203"});
    popup->SetInitialColour(wxColour(7, 8, 9));
    popup->PaintComboControl(dc, wxRect(5, 6, 70, 8));
    EXPECT_EQ(dc.Record().calls.back(), "rect 5,6 70x8 #070809 #070809");
}

}  // namespace
