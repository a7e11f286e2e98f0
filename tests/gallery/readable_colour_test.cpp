#include <gallery/pages/readable_colour.h>

#include <gtest/gtest.h>

#include <fittings/colour/colour_table.h>

namespace {

using namespace gallery;

const wxColour kWhite(255, 255, 255);
const wxColour kBlack(0, 0, 0);
const wxColour kDark(45, 45, 45);

TEST(ContrastRatio, IsThatOfTheGuidelines)
{
    EXPECT_NEAR(ContrastRatio(kWhite, kBlack), 21, 1e-9);
    EXPECT_NEAR(ContrastRatio(kBlack, kWhite), 21, 1e-9);
    EXPECT_NEAR(ContrastRatio(kDark, kDark), 1, 1e-9);
    EXPECT_NEAR(ContrastRatio(kWhite, wxColour(255, 0, 0)), 3.998, 0.001);
    EXPECT_NEAR(ContrastRatio(kWhite, wxColour(0, 0, 255)), 8.592, 0.001);
    EXPECT_NEAR(ContrastRatio(kWhite, wxColour(0, 255, 0)), 1.372, 0.001);
    EXPECT_NEAR(ContrastRatio(wxColour(119, 119, 119), kWhite), 4.478, 0.001);
}

TEST(ReadableColour, StaysWhereItCanBeRead)
{
    EXPECT_EQ(ReadableOn(kWhite, kBlack), kBlack);
    EXPECT_EQ(ReadableOn(kBlack, kWhite), kWhite);
    EXPECT_EQ(ReadableOn(kWhite, wxColour(128, 0, 0)), wxColour(128, 0, 0));
    EXPECT_EQ(ReadableOn(kWhite, wxColour(118, 118, 118)), wxColour(118, 118, 118));
    EXPECT_EQ(ReadableOn(kDark, wxColour(255, 255, 0)), wxColour(255, 255, 0));
}

TEST(ReadableColour, GoesNoFartherThanItTakes)
{
    EXPECT_EQ(ReadableOn(kWhite, wxColour(255, 0, 0)), wxColour(232, 0, 0));
    EXPECT_EQ(ReadableOn(kWhite, wxColour(119, 119, 119)), wxColour(116, 116, 116));
    EXPECT_EQ(ReadableOn(kDark, wxColour(255, 0, 0)), wxColour(255, 95, 95));
    EXPECT_EQ(ReadableOn(kDark, wxColour(0, 0, 255)), wxColour(135, 135, 255));
}

TEST(ReadableColour, ComesOfEachColourOnAnyBackground)
{
    for (int level = 0; level <= 255; level += 5) {
        const auto channel = static_cast<unsigned char>(level);
        const wxColour background(channel, channel, channel);
        for (int i = 0; i < fittings::kColourCount; ++i) {
            wxColour colour;
            colour.SetRGB(GetColourTable()[i].crColour);
            EXPECT_GE(ContrastRatio(background, ReadableOn(background, colour)), 4.5) << level << " " << i;
        }
    }
}

}  // namespace
