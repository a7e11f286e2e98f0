#ifndef FITTINGS_GALLERY_PAGES_PAGE_LAYOUT_H_
#define FITTINGS_GALLERY_PAGES_PAGE_LAYOUT_H_

#include <wx/scrolwin.h>

class wxBoxSizer;
class wxStaticText;
class wxString;
class wxWindow;

namespace gallery {

/// @name Distances in a page, in device-independent pixels
/// @{
constexpr int kMargin = 18;        ///< The space at the edges of a page, and between a heading and its buttons.
constexpr int kColumnGap = 24;     ///< The space beside and below a column.
constexpr int kColumnWidth = 260;  ///< The width of a number field, and the least width of some columns.
constexpr int kGap = 6;            ///< The space between related controls.
/// @}

/// Makes a heading, which is a label in bold. @a text may contain the toolkit's markup. A mnemonic in @a text leads to
/// the control that is made next.
wxStaticText* MakeHeading(wxWindow* parent, const wxString& text);

/// Aligns a label's text to the side where reading begins. The toolkit's own alignment does not work in a right-to-left
/// layout: the toolkit and GTK both mirror it, which puts the text on the wrong side.
void BeginAtTheStart(wxStaticText* label);

/// Puts columns next to each other if @a width pixels are enough, otherwise below each other.
void ArrangeColumns(wxBoxSizer* columns, int width);

/// Makes @a page scroll up or down whenever a control in it gets the focus and is not fully visible. The toolkit does
/// this only for direct children of the page. The page must already be in a top-level window.
void KeepFocusInSight(wxScrolledWindow* page);

}  // namespace gallery

#endif
