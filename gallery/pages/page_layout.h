#ifndef FITTINGS_GALLERY_PAGES_PAGE_LAYOUT_H_
#define FITTINGS_GALLERY_PAGES_PAGE_LAYOUT_H_

#include <wx/scrolwin.h>

class wxBoxSizer;
class wxStaticText;
class wxString;
class wxWindow;

namespace gallery {

/// @name What pages are laid out with, in device-independent pixels
/// @{
constexpr int kMargin = 18;        ///< Around a page.
constexpr int kColumnGap = 24;     ///< Behind and below a column.
constexpr int kColumnWidth = 260;  ///< Of the first column, at least.
constexpr int kGap = 6;            ///< Between what belongs together.
/// @}

/// A label in bold, over what belongs together. @a text is the toolkit's markup; a mnemonic leads to the control that
/// is made next.
wxStaticText* MakeHeading(wxWindow* parent, const wxString& text);

/// Shows a label's text where reading begins, also where the label is wider. For a language that is read from right to
/// left the toolkit turns that round, and GTK turns it back.
void BeginAtTheStart(wxStaticText* label);

/// Puts columns beside each other if @a width pixels are enough, else below each other.
void ArrangeColumns(wxBoxSizer* columns, int width);

/// Scrolls @a page, whenever the focus moves, as far as it takes to show all of the control that gets it. The toolkit
/// does so for the page's own children alone. Call it when the page is in its window.
void KeepFocusInSight(wxScrolledWindow* page);

}  // namespace gallery

#endif
