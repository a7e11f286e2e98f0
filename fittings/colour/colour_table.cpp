#include <fittings/colour/colour_table.h>

#include <array>
#include <cstddef>

#include <fittings/colour/colour_text.h>
#include <fittings/platform/lng_util.h>

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

// The palette's own values, some of them unlike the colour commonly known by that name.
constexpr KeyedColour kColours[] = {
    {L"Black", Rgb(0, 0, 0)},
    {L"Brown", Rgb(165, 42, 0)},
    {L"Dark Olive Green", Rgb(0, 64, 64)},
    {L"Dark Green", Rgb(0, 85, 0)},
    {L"Dark Teal", Rgb(0, 0, 94)},
    {L"Dark blue", Rgb(0, 0, 139)},
    {L"Indigo", Rgb(75, 0, 130)},
    {L"Dark grey", Rgb(40, 40, 40)},

    {L"Dark red", Rgb(139, 0, 0)},
    {L"Orange", Rgb(255, 104, 32)},
    {L"Dark yellow", Rgb(139, 139, 0)},
    {L"Green", Rgb(0, 147, 0)},
    {L"Teal", Rgb(56, 142, 142)},
    {L"Blue", Rgb(0, 0, 255)},
    {L"Blue-grey", Rgb(123, 123, 192)},
    {L"Grey - 40", Rgb(102, 102, 102)},

    {L"Red", Rgb(255, 0, 0)},
    {L"Light orange", Rgb(255, 173, 91)},
    {L"Lime", Rgb(50, 205, 50)},
    {L"Sea green", Rgb(60, 179, 113)},
    {L"Aqua", Rgb(127, 255, 212)},
    {L"Light blue", Rgb(125, 158, 192)},
    {L"Violet", Rgb(128, 0, 128)},
    {L"Grey - 50", Rgb(127, 127, 127)},

    {L"Pink", Rgb(255, 192, 203)},
    {L"Gold", Rgb(255, 215, 0)},
    {L"Yellow", Rgb(255, 255, 0)},
    {L"Bright green", Rgb(0, 255, 0)},
    {L"Turquoise", Rgb(64, 224, 208)},
    {L"Skyblue", Rgb(192, 255, 255)},
    {L"Plum", Rgb(72, 0, 72)},
    {L"Light grey", Rgb(192, 192, 192)},

    {L"Rose", Rgb(255, 228, 225)},
    {L"Tan", Rgb(210, 180, 140)},
    {L"Light yellow", Rgb(255, 255, 224)},
    {L"Pale green ", Rgb(152, 251, 152)},
    {L"Pale turquoise", Rgb(175, 238, 238)},
    {L"Pale blue", Rgb(104, 131, 139)},
    {L"Lavender", Rgb(230, 230, 250)},
    {L"White", Rgb(255, 255, 255)},
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

const wchar_t* fittings::ColourText(const wchar_t* key)
{
    static CLanguageDomain everyCatalogue;
    return lng_util_internal::DoGetResourceString(key, &everyCatalogue);
}

const ColourTableEntry* GetColourTable()
{
    static const Table table = Build();
    return table.data();
}

const wchar_t* GetColourName(int index)
{
    return GetColourTable()[index].szName;
}
