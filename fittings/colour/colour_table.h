#ifndef FITTINGS_COLOUR_COLOUR_TABLE_H_
#define FITTINGS_COLOUR_COLOUR_TABLE_H_

#include <cstdint>

#include <fittings/base/export.h>

/// @file
/// The palette of wxColourPopup: its colours, their names, and the indices of its cells.

/// @name Cells of the colour popup
///
/// Cells 0 to 39 are the colours of the palette, row by row. These constants are the other indices.
/// @{
inline constexpr int CELL_NONE = -1;          ///< No cell.
inline constexpr int CELL_MORE_COLOURS = -2;  ///< The box "More Colours..." below the palette.
inline constexpr int CELL_AUTOMATIC = -3;     ///< The box "Automatic" above the palette.
/// @}

/// Names of the library that are too general for the global namespace.
namespace fittings {

/// How many colours the palette has.
inline constexpr int kColourCount = 40;

}  // namespace fittings

/// A colour of the palette.
struct ColourTableEntry
{
    std::uint32_t crColour;  ///< 0x00BBGGRR: red in the lowest byte.
    const wchar_t* szName;   ///< In the user's language; null if the platform library has no such text.
};

/// Returns a pointer to the first of the palette's 40 colours.
///
/// @code
/// for (int i = 0; i < fittings::kColourCount; ++i)
///     list->Append(GetColourTable()[i].szName);
/// @endcode
///
/// The first call looks up the names in the language that is set then, and later calls return the same names. So set
/// the language first, and make the first call on the GUI thread. Concurrent first calls look up the names only once.
/// An exception from the look-up reaches the caller, and the next call tries again. The table and its names are valid
/// until the process ends.
FITTINGS_API const ColourTableEntry* GetColourTable();

/// Returns the name of the palette's colour @a index; null if the platform library has no such text. @a index must be
/// from 0 to 39; it is not checked.
FITTINGS_API const wchar_t* GetColourName(int index);

#endif
