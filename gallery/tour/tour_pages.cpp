// The tour's steps with colours and numbers.

#include <wx/dataview.h>
#include <wx/notebook.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <fittings/colour/colour_table.h>

#include <gallery/app/gallery_frame.h>
#include <gallery/browser/browser_page.h>
#include <gallery/browser/browser_settings.h>
#include <gallery/browser/folder_colour_combo.h>
#include <gallery/browser/folder_tree.h>
#include <gallery/colours/colours_page.h>
#include <gallery/numbers/numbers_page.h>
#include <gallery/pages/readable_colour.h>
#include <gallery/tour/simulated_user.h>
#include <gallery/tour/tour.h>

namespace gallery {

using namespace simulated_user;

namespace {

// Cells of the palette.
constexpr int kOrange = 9;
constexpr int kGreen = 11;
constexpr int kViolet = 22;

}  // namespace

bool Tour::ShowPage(char key, const wxWindow* page)
{
    Press(key, wxMOD_ALT);
    return Waits([&] { return m_frame->GetPages()->GetCurrentPage() == page && page->IsShownOnScreen(); },
                 "Alt with a digit shows a page");
}

bool Tour::OpenFolderColours()
{
    const FolderColourCombo& combo = *m_frame->GetBrowser()->GetColour();
    Press('T', wxMOD_CONTROL);
    return Waits([&] { return combo.GetPopup()->IsShownOnScreen(); }, "Ctrl+T opens the colours");
}

// Waits until the popup closes. Then checks that the colour of @a cell is stored for the selected folder, and that the
// tree shows the folder in the colour that ReadableOn() returns for this colour.
bool Tour::FolderGets(int cell)
{
    const FolderColourCombo& combo = *m_frame->GetBrowser()->GetColour();
    FolderTree& tree = *m_frame->GetBrowser()->GetTree();
    const wxColour colour = combo.GetPopup()->GetColour(cell);
    return Waits([&] { return !combo.IsPopupShown(); }, "a choice closes the colours") &&
           IsTrue(tree.GetItemTextColour(tree.GetSelection().item) == ReadableOn(tree.GetBackgroundColour(), colour),
                  "the folder is shown in its colour") &&
           IsTrue(browser_settings::LoadFolderColour(tree.GetSelectedPath()) == colour, "its colour is remembered");
}

bool Tour::ColourFolder()
{
    FolderTree& tree = *m_frame->GetBrowser()->GetTree();
    const wxColourPopup& colours = *m_frame->GetBrowser()->GetColour()->GetPopup();
    if (!OpenFolderColours())
        return false;
    // The Down keys move to "More Colours...", "Automatic", the first cell of the first row, and the first cell of the
    // second row. The Right keys move to the fourth cell of the second row, which is kGreen.
    for (const int key : {WXK_DOWN, WXK_DOWN, WXK_DOWN, WXK_DOWN, WXK_RIGHT, WXK_RIGHT, WXK_RIGHT})
        Press(key);
    if (!Waits([&] { return colours.GetStringValue() == GetColourName(kGreen); },
               "the keyboard moves through the colours") ||
        !SavePicture("colour-popup"))
        return false;
    Press(WXK_RETURN);
    if (!FolderGets(kGreen))
        return false;
    if (!m_frame->GetBrowser()->HasFolderAbove())
        return SavePicture("folder-colours");

    const wxTreeItemId first = tree.GetSelection().item;
    Press(WXK_UP, wxMOD_ALT);
    if (!Waits([&] { return tree.GetSelection().item == tree.GetItemParent(first); },
               "Alt+Up leads to the folder above") ||
        !OpenFolderColours())
        return false;
    wxRect cell;
    colours.GetCellRect(kViolet, cell);
    Click(colours.ClientToScreen(CentreOf(cell)));
    if (!FolderGets(kViolet))
        return false;
    Click(CentreOf(LabelRect(tree, first)));
    return Waits([&] { return tree.GetSelection().item == first; }, "a click selects the first again") &&
           SavePicture("folder-colours");
}

bool Tour::TypeNumber()
{
    if (!ShowPage('2', m_frame->GetNumbers()))
        return false;
    const auto* field = dynamic_cast<wxTextCtrl*>(wxWindow::FindWindowByName("Number", m_frame->GetNumbers()));
    const auto* shown =
        dynamic_cast<wxStaticText*>(wxWindow::FindWindowByName("FormatControlTextResult", m_frame->GetNumbers()));
    if (!Waits([&] { return field->HasFocus(); }, "the number has the focus"))
        return false;
    Press('A', wxMOD_CONTROL);
    // The letter, the sixth digit and the third decimal are refused.
    for (const char key : {'-', '1', '2', 'x', '3', '4', '5', '6', '.', '8', '9', '7'})
        Press(key);
    if (!Waits([&] { return field->GetValue() == "-12345.89"; }, "only a number can be typed") ||
        !IsTrue(shown->GetLabelText() == "12,345.89-", "the number is shown as its format says"))
        return false;
    Press('L', wxMOD_ALT);
    for (int i = 0; i < 3; ++i)
        Press(WXK_DOWN);
    if (!Waits([&] { return shown->GetLabelText() == "EUR 12,345.89-"; }, "the keyboard chooses a template"))
        return false;
    Press('C', wxMOD_ALT);
    return Waits([&] { return m_frame->GetNumbers()->GetKept() == "-12345.89"; }, "an accepted number is kept") &&
           SavePicture("numbers") && ShowPage('1', m_frame->GetBrowser());
}

bool Tour::ChooseColour()
{
    ColoursPage& page = *m_frame->GetColours();
    const wxColourPopup& colours = *page.GetCombo()->GetPopup();
    const wxDataViewListCtrl& events = *page.GetEvents();
    const auto lastEvent = [&events] { return events.GetTextValue(events.GetItemCount() - 1, 0); };
    if (!ShowPage('3', &page))
        return false;
    Press(WXK_F4);
    if (!Waits([&] { return colours.IsShownOnScreen(); }, "F4 opens the colours"))
        return false;
    wxRect cell;
    colours.GetCellRect(kOrange, cell);
    const wxPoint orange = colours.ClientToScreen(CentreOf(cell));
    PointAt(orange);
    if (!Waits([&] { return lastEvent() == "wxEVT_COLOURPICKER_CURRENT_CHANGED"; }, "an event tells of a cell") ||
        !SavePicture("colours", orange))
        return false;
    Click(orange);
    if (!Waits([&] { return page.GetColour() == colours.GetColour(kOrange); }, "a click chooses") ||
        !IsTrue(lastEvent() == "wxEVT_COLOURPICKER_CHANGED", "an event tells of it"))
        return false;

    Press('A', wxMOD_ALT);
    if (!Waits([&] { return page.GetCombo()->GetPopup()->GetRow(CELL_AUTOMATIC) == -1; },
               "\"Automatic\" can be left out"))
        return false;
    Press('A', wxMOD_ALT);
    return Waits([&] { return page.GetCombo()->GetPopup()->GetRow(CELL_AUTOMATIC) == CELL_AUTOMATIC; },
                 "\"Automatic\" can be brought back") &&
           ShowPage('1', m_frame->GetBrowser());
}

}  // namespace gallery
