#include <fittings/colour/colour_table.h>

#include <array>
#include <cstddef>

#include <wx/translation.h>

#include <fittings/colour/colour_text.h>

namespace {

constexpr std::uint32_t Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue)
{
    return red | green << 8 | blue << 16;
}

struct KeyedColour
{
    const wchar_t* key;
    std::uint32_t colour;
};

// The palette defines its own values: some of the names usually stand for a different colour.
constexpr KeyedColour kColours[] = {
    // Translators: one of 40 names of colours in a palette, shown as hints. No two may be alike in a language.
    {wxTRANSLATE(L"Black"), Rgb(0, 0, 0)},
    {wxTRANSLATE(L"Brown"), Rgb(165, 42, 0)},
    {wxTRANSLATE(L"Dark Olive Green"), Rgb(0, 64, 64)},
    {wxTRANSLATE(L"Dark Green"), Rgb(0, 85, 0)},
    {wxTRANSLATE(L"Dark Teal"), Rgb(0, 0, 94)},
    {wxTRANSLATE(L"Dark blue"), Rgb(0, 0, 139)},
    {wxTRANSLATE(L"Indigo"), Rgb(75, 0, 130)},
    {wxTRANSLATE(L"Dark grey"), Rgb(40, 40, 40)},

    {wxTRANSLATE(L"Dark red"), Rgb(139, 0, 0)},
    {wxTRANSLATE(L"Orange"), Rgb(255, 104, 32)},
    {wxTRANSLATE(L"Dark yellow"), Rgb(139, 139, 0)},
    {wxTRANSLATE(L"Green"), Rgb(0, 147, 0)},
    {wxTRANSLATE(L"Teal"), Rgb(56, 142, 142)},
    {wxTRANSLATE(L"Blue"), Rgb(0, 0, 255)},
    {wxTRANSLATE(L"Blue-grey"), Rgb(123, 123, 192)},
    // Translators: grey of 40 percent brightness.
    {wxTRANSLATE(L"Grey - 40"), Rgb(102, 102, 102)},

    {wxTRANSLATE(L"Red"), Rgb(255, 0, 0)},
    {wxTRANSLATE(L"Light orange"), Rgb(255, 173, 91)},
    // Translators: the green of the fruit (50, 205, 50).
    {wxTRANSLATE(L"Lime"), Rgb(50, 205, 50)},
    {wxTRANSLATE(L"Sea green"), Rgb(60, 179, 113)},
    // Translators: aquamarine (127, 255, 212).
    {wxTRANSLATE(L"Aqua"), Rgb(127, 255, 212)},
    {wxTRANSLATE(L"Light blue"), Rgb(125, 158, 192)},
    {wxTRANSLATE(L"Violet"), Rgb(128, 0, 128)},
    // Translators: grey of 50 percent brightness.
    {wxTRANSLATE(L"Grey - 50"), Rgb(127, 127, 127)},

    {wxTRANSLATE(L"Pink"), Rgb(255, 192, 203)},
    {wxTRANSLATE(L"Gold"), Rgb(255, 215, 0)},
    {wxTRANSLATE(L"Yellow"), Rgb(255, 255, 0)},
    {wxTRANSLATE(L"Bright green"), Rgb(0, 255, 0)},
    {wxTRANSLATE(L"Turquoise"), Rgb(64, 224, 208)},
    // Translators: the light blue of the sky (192, 255, 255).
    {wxTRANSLATE(L"Skyblue"), Rgb(192, 255, 255)},
    // Translators: the dark purple of the fruit (72, 0, 72).
    {wxTRANSLATE(L"Plum"), Rgb(72, 0, 72)},
    {wxTRANSLATE(L"Light grey"), Rgb(192, 192, 192)},

    // Translators: a very light pink (255, 228, 225).
    {wxTRANSLATE(L"Rose"), Rgb(255, 228, 225)},
    // Translators: a light brown (210, 180, 140).
    {wxTRANSLATE(L"Tan"), Rgb(210, 180, 140)},
    {wxTRANSLATE(L"Light yellow"), Rgb(255, 255, 224)},
    // Translators: the English text ends with a blank. End the translation without a blank.
    {wxTRANSLATE(L"Pale green "), Rgb(152, 251, 152)},
    {wxTRANSLATE(L"Pale turquoise"), Rgb(175, 238, 238)},
    {wxTRANSLATE(L"Pale blue"), Rgb(104, 131, 139)},
    {wxTRANSLATE(L"Lavender"), Rgb(230, 230, 250)},
    {wxTRANSLATE(L"White"), Rgb(255, 255, 255)},
};

using Table = std::array<ColourTableEntry, fittings::kColourCount>;
static_assert(std::size(kColours) == std::tuple_size_v<Table>);

Table Build()
{
    Table table;
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = {kColours[i].colour, fittings::ColourText(kColours[i].key)};
    return table;
}

}  // namespace

const ColourTableEntry* GetColourTable()
{
    static const Table table = Build();
    return table.data();
}

const wchar_t* GetColourName(int index)
{
    return GetColourTable()[index].szName;
}
