#include <fittings/colour/colour_table.h>

#include <string>

#include <gtest/gtest.h>

namespace {

struct Colour
{
    const wchar_t* name;
    unsigned red;
    unsigned green;
    unsigned blue;
};

// This program loads no translations, so it expects the English names.
constexpr Colour kExpected[] = {
    {L"Black", 0, 0, 0},
    {L"Brown", 165, 42, 0},
    {L"Dark Olive Green", 0, 64, 64},
    {L"Dark Green", 0, 85, 0},
    {L"Dark Teal", 0, 0, 94},
    {L"Dark blue", 0, 0, 139},
    {L"Indigo", 75, 0, 130},
    {L"Dark grey", 40, 40, 40},
    {L"Dark red", 139, 0, 0},
    {L"Orange", 255, 104, 32},
    {L"Dark yellow", 139, 139, 0},
    {L"Green", 0, 147, 0},
    {L"Teal", 56, 142, 142},
    {L"Blue", 0, 0, 255},
    {L"Blue-grey", 123, 123, 192},
    {L"Grey - 40", 102, 102, 102},
    {L"Red", 255, 0, 0},
    {L"Light orange", 255, 173, 91},
    {L"Lime", 50, 205, 50},
    {L"Sea green", 60, 179, 113},
    {L"Aqua", 127, 255, 212},
    {L"Light blue", 125, 158, 192},
    {L"Violet", 128, 0, 128},
    {L"Grey - 50", 127, 127, 127},
    {L"Pink", 255, 192, 203},
    {L"Gold", 255, 215, 0},
    {L"Yellow", 255, 255, 0},
    {L"Bright green", 0, 255, 0},
    {L"Turquoise", 64, 224, 208},
    {L"Skyblue", 192, 255, 255},
    {L"Plum", 72, 0, 72},
    {L"Light grey", 192, 192, 192},
    {L"Rose", 255, 228, 225},
    {L"Tan", 210, 180, 140},
    {L"Light yellow", 255, 255, 224},
    {L"Pale green ", 152, 251, 152},
    {L"Pale turquoise", 175, 238, 238},
    {L"Pale blue", 104, 131, 139},
    {L"Lavender", 230, 230, 250},
    {L"White", 255, 255, 255},
};

class ColourTable : public testing::TestWithParam<int>
{
};

TEST_P(ColourTable, HoldsTheColourAndItsName)
{
    const ColourTableEntry& entry = GetColourTable()[GetParam()];
    const Colour& expected = kExpected[GetParam()];
    EXPECT_EQ(entry.crColour & 0xFF, expected.red);
    EXPECT_EQ(entry.crColour >> 8 & 0xFF, expected.green);
    EXPECT_EQ(entry.crColour >> 16 & 0xFF, expected.blue);
    EXPECT_EQ(entry.crColour >> 24, 0U);
    EXPECT_STREQ(entry.szName, expected.name);
    EXPECT_EQ(GetColourName(GetParam()), entry.szName);
}

INSTANTIATE_TEST_SUITE_P(, ColourTable, testing::Range(0, 40),
                         [](const auto& info) { return std::to_string(info.param); });

TEST(ColourTableOrder, PacksRedLowest)
{
    EXPECT_EQ(GetColourTable()[1].crColour, 0x00002AA5U);
    EXPECT_EQ(GetColourTable()[4].crColour, 0x005E0000U);
    EXPECT_EQ(GetColourTable()[37].crColour, 0x008B8368U);
}

TEST(ColourTableOrder, IsTheSameTableEachTime)
{
    EXPECT_EQ(GetColourTable(), GetColourTable());
}

TEST(ColourCells, HaveTheirNumbers)
{
    EXPECT_EQ(CELL_NONE, -1);
    EXPECT_EQ(CELL_MORE_COLOURS, -2);
    EXPECT_EQ(CELL_AUTOMATIC, -3);
    EXPECT_EQ(fittings::kColourCount, 40);
}

}  // namespace
