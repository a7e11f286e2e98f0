#ifndef FITTINGS_TESTS_COLOUR_POPUP_SYSTEM_VALUES_H_
#define FITTINGS_TESTS_COLOUR_POPUP_SYSTEM_VALUES_H_

#include <optional>

#include <wx/colour.h>

/// The colours of the test theme, all different. While a PinnedTheme exists, they replace the colours of the desktop.
inline const wxColour kFace(201, 202, 203);
inline const wxColour kShadow(121, 122, 123);
inline const wxColour kHighlight(251, 252, 253);
inline const wxColour kDark(21, 22, 23);

class PinnedTheme
{
public:
    PinnedTheme();
    ~PinnedTheme();
    PinnedTheme(const PinnedTheme&) = delete;
    PinnedTheme& operator=(const PinnedTheme&) = delete;
};

/// While the object exists, wxSYS_EDGE_X has the value @a width.
class PinnedEdge
{
public:
    explicit PinnedEdge(int width);
    ~PinnedEdge();
    PinnedEdge(const PinnedEdge&) = delete;
    PinnedEdge& operator=(const PinnedEdge&) = delete;
};

#endif
