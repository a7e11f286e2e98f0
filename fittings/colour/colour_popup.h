#ifndef FITTINGS_COLOUR_COLOUR_POPUP_H_
#define FITTINGS_COLOUR_COLOUR_POPUP_H_

#include <memory>
#include <optional>

#include <wx/colour.h>
#include <wx/combo.h>
#include <wx/font.h>
#include <wx/gdicmn.h>
#include <wx/palette.h>
#include <wx/string.h>
#include <wx/window.h>

#include <fittings/base/export.h>
#include <fittings/colour/colour_table.h>

/// Hears what the user does in a wxColourPopup. A host overrides what it needs.
class FITTINGS_API wxColorPopupListener
{
public:
    /// The popup is about to be shown. Where the combo's value names a colour, that one becomes hot next.
    virtual void OnColourPopup();

    /// Another cell became hot; @a colour is that cell's.
    virtual void OnColourSelChange(const wxColour& colour);

    /// @a colour was chosen. It is the one already in effect when no cell was hot, or when the dialog of "More
    /// Colours..." was cancelled.
    virtual void OnColourSelEnd(const wxColour& colour);

    /// Nothing was chosen; @a colour is the one that stays in effect.
    virtual void OnColourSelCancel(const wxColour& colour);

    virtual ~wxColorPopupListener();
};

/// The drop-down of a colour combo: a palette of 40 named colours, with a box "Automatic" above and a box
/// "More Colours..." below it.
///
/// @code
/// auto* combo = new wxColourCombo(this, wxID_ANY, m_lineColour);
/// combo->GetPopup()->SetAutomaticText("No line");
/// combo->GetPopup()->SetColorListener(this);
/// @endcode
///
/// A host that derives a class from this one gives it to a combo by wxComboCtrl::SetPopupControl().
///
/// The other settings than the colour are made before the popup is shown. The colour that the user chose reaches the
/// listener and the combo's wxEVT_COLOURPICKER_CHANGED, and is from then on the initial colour. A cell is named by its
/// index: 0 to 39 for a colour of the palette, else one of the constants CELL_NONE, CELL_MORE_COLOURS and
/// CELL_AUTOMATIC. The *hot* cell is the one under the pointer or reached by the keyboard; the *chosen* cell is the one
/// of the colour in effect.
///
/// The texts are in the language that is set when the popup is made, the colours' names in the one that is set when the
/// first popup of the process is made.
///
/// While it is open, the keys that it knows are its own: no dialog around it is closed by its Escape.
///
/// The combo owns the popup from SetPopupControl() on. GUI thread only.
class FITTINGS_API wxColourPopup : public wxWindow, public wxComboPopup
{
public:
    wxColourPopup();
    ~wxColourPopup() override;

    /// @name Settings
    /// @{

    /// The colour in effect: what the combo's face and the "More Colours..." cell show. Black at first. An invalid
    /// colour asserts and is not taken.
    ///
    /// The combo is redrawn, and no more: set it before the combo takes the popup, which marks "Automatic" then if this
    /// is the default colour, and that mark stays. Later, SetColour() is what moves the mark.
    void SetInitialColour(const wxColour& colour);

    /// Makes @a colour the one in effect, with the combo's face and value, the chosen cell and the mark of "Automatic".
    /// The listener hears nothing of it, and no event is sent. False, and nothing changes, for an invalid colour.
    ///
    /// It may be called at any time. While the popup is open, the colour stays in effect if nothing is chosen; while
    /// the listener or an event hears of the colour that was chosen, it takes its place.
    bool SetColour(const wxColour& colour);

    /// The colour in effect.
    const wxColour& GetInitialColour() const { return m_crInitialColour; }

    /// The colour that "Automatic" stands for. Black at first. An invalid colour asserts and is not taken.
    void SetDefaultColour(const wxColour& colour);

    /// The colour that "Automatic" stands for.
    const wxColour& GetDefaultColour() const { return m_crDefaultColour; }

    /// Whether the combo is redrawn each time another cell becomes hot. False at first.
    void SetRefreshCombo(bool refresh) { m_bRefreshCombo = refresh; }

    /// Whether the combo is redrawn each time another cell becomes hot.
    bool GetRefreshCombo() const { return m_bRefreshCombo; }

    /// The text of the upper box; the box is absent when it is empty.
    void SetAutomaticText(const wxString& text);

    /// The text of the lower box; the box is absent when it is empty.
    void SetMoreColoursText(const wxString& text);

    /// The listener, not owned, is to outlive the popup or be replaced by null.
    void SetColorListener(wxColorPopupListener* listener) { m_pListener = listener; }

    /// The window that the dialog of "More Colours..." belongs to and is centred on; not owned. With null it belongs to
    /// the combo. The popup itself is not moved.
    void SetCenterOn(wxWindow* window) { m_pCenterOn = window; }

    /// Brings every setting, the listener included, to its initial value. The constructor does it. A window that
    /// exists has to be laid out again by SetWindowSize().
    void Initialise();
    /// @}

    /// @name Cells and colours
    /// @{

    /// The colour of a cell of the palette, of CELL_MORE_COLOURS (the initial colour) or of CELL_AUTOMATIC (the default
    /// colour). Any other index is not checked, and must not be passed.
    wxColour GetColour(int index) const;

    /// The row of a cell in the grid. A box is its own row: the result is @a index itself. -1 for a box that is absent
    /// and for any other index.
    int GetRow(int index) const;

    /// The column of a cell in the grid, with the same answers as GetRow() for what is not in it.
    int GetColumn(int index) const;

    /// The cell at a place of the grid. A row or a column that stands for a box names that box where it is present, the
    /// other coordinate whatever it is. CELL_NONE where there is no cell.
    int GetIndex(int row, int col) const;

    /// Marks the cell of @a colour as chosen: the first of the palette that has exactly this colour and opacity, else
    /// "More Colours...", else none.
    ///
    /// "Automatic" is chosen when nothing was and the colour is the default colour, and stays chosen whatever
    /// @a colour is: who chose it finds it marked again.
    void FindCellFromColour(const wxColour& colour);

    /// The text of the hot cell; empty when none is hot. While a cancelled selection closes the popup, or one whose
    /// colour SetColour() has replaced, the combo's value.
    wxString GetStringValue() const override;

    /// Makes the colour of that name hot, in the language and the letter case that the table has it in. Any other text,
    /// those of the boxes included, changes nothing. Neither does the name of the hot cell while the popup is
    /// open, nor any while the popup hides itself: what the combo then hands back is no choice of the user's.
    ///
    /// A value that the host sets while the popup is open stays the combo's if nothing is chosen.
    void SetStringValue(const wxString& value) override;
    /// @}

    /// @name Size and layout, in pixels
    /// @{

    /// Creates the window; called by the combo.
    bool Create(wxWindow* parent) override;

    /// Lays out the popup and moves the window to the position of @a rect, or where it fits on the screen. Of the size
    /// nothing is used. Does nothing before Create().
    void SetWindowSize(const wxRect& rect);

    /// Gives the rectangle of a cell and true. False, and @a rect as it was, when there is no such cell.
    ///
    /// A box always has one: that of the last layout, empty where the box was absent then.
    bool GetCellRect(int index, wxRect& rect) const;

    /// The popup's own size, whatever the combo would like.
    wxSize GetAdjustedSize(int minWidth, int prefHeight, int maxHeight) override;

    /// The popup itself, for the combo.
    wxWindow* GetControl() override { return this; }
    /// @}

    /// Tells assistive technologies of the hot cell, or of the colour in effect.
    void OnInternalIdle() override;

    /// @name Drawing
    /// @{

    /// Draws the popup when the screen has to be painted.
    void OnPaint(wxPaintEvent& event);

    /// Draws the cells, the boxes and the frame. What is between them is left as it is.
    void DoDrawControl(wxDC* dc);

    /// Draws one cell as it is now: plain, chosen or hot.
    void DrawCell(wxDC* dc, int index);

    /// Draws a cell of the palette into @a rect, which shrinks to the rectangle of the colour itself.
    void DrawCellRect(wxDC* dc, wxRect& rect, int index);

    /// Draws the frame of the popup.
    void DoDrawClientEdge(wxDC* dc);

    /// Fills the combo's face with the colour in effect.
    void PaintComboControl(wxDC& dc, const wxRect& rect) override;
    /// @}

    /// @name Mouse and keyboard
    /// @{

    /// The combo shows the popup: nothing is hot yet and no name is shown at the pointer, the cell of the colour in
    /// effect is chosen, and the listener hears of it.
    void OnPopup() override;

    /// The combo hides the popup. Unless the popup does that itself, the listener hears that nothing was chosen.
    void OnDismiss() override;

    /// Makes a cell hot, draws it so and tells the listener. An index above the number of the palette's cells counts as
    /// CELL_MORE_COLOURS; any other that names no cell is kept, none looks hot, and the colour is the one in effect.
    void ChangeSelection(int index);

    /// Tells the listener, and the combo where SetRefreshCombo() says so, of the hot cell's colour.
    void DoSelChange();

    /// Ends the selection: with the hot cell's colour, asked for in the dialog where that is CELL_MORE_COLOURS, or,
    /// unless
    /// @a ok, with the one that was in effect.
    void EndSelection(bool ok);

    /// Tells the listener of the end, and makes a colour that was chosen the initial one.
    void DoEndSel(bool ok);

    /// Asks for a colour in the toolkit's dialog, which begins with the one in effect. Its answer takes effect; a
    /// cancelled dialog leaves the colour as it was.
    void DoShowColorDlg();

    /// Makes the cell under the pointer hot; where there is none, what was hot stays so.
    ///
    /// The boxes are taken to lie one margin lower and further right than they are drawn, and the palette below an
    /// "Automatic" box one margin higher: the lowest rows of pixels of each of its cells stand for the cell below.
    void OnMouseMove(wxMouseEvent& event);

    /// Ends the selection: with the hot cell's colour within the popup, between its cells too, and outside as a cancel.
    void OnLButtonUp(wxMouseEvent& event);

    /// The arrows move the hot cell, Enter and the space bar choose it, Escape cancels. Other keys are skipped.
    ///
    /// The cells follow one another in a circle: "Automatic", the palette row by row, "More Colours...". While none is
    /// hot, Down and Right begin with "More Colours...", Up and Left with "Automatic".
    void OnKeyDown(wxKeyEvent& event);

    /// A key of the combo that has the focus while the popup is closed. With wxCB_READONLY, Up chooses the colour
    /// before the one in effect and Down the one after: the listener hears of the choice, and the combo sends its
    /// event. They do nothing at the first and the last cell, and do not move the focus. Other keys are skipped.
    void OnComboKeyEvent(wxKeyEvent& event) override;
    /// @}

protected:
    wxString m_strMoreColours;          ///< The text of the lower box.
    wxString m_strAutomatic;            ///< The text of the upper box.
    wxPalette m_palette;                ///< The table's colours, selected where cells are drawn.
    wxRect m_rectMoreColours;           ///< The lower box.
    wxRect m_rectAutomatic;             ///< The upper box.
    wxRect m_rectWindow;                ///< The popup itself.
    int m_nNumColours;                  ///< Cells of the palette.
    int m_nNumColumns;                  ///< Columns of the grid.
    int m_nNumRows;                     ///< Rows of the grid.
    int m_nBoxSize;                     ///< The side of a cell of the palette.
    int m_nMargin;                      ///< The unit of all distances.
    int m_nChosenColourSel;             ///< The chosen cell.
    int m_nCurrentSel;                  ///< The hot cell.
    wxFont m_font;                      ///< Of the boxes.
    wxColour m_crColour;                ///< Of the hot cell.
    wxColour m_crInitialColour;         ///< In effect.
    wxColour m_crDefaultColour;         ///< What "Automatic" stands for.
    wxColorPopupListener* m_pListener;  ///< Not owned.
    bool m_bRefreshCombo;               ///< Whether the combo is redrawn with each hot cell.
    bool m_bInternalHide;               ///< While the popup hides itself.
    wxWindow* m_pCenterOn;              ///< Not owned.
    wxString m_strToolTip;              ///< The name that is shown at the pointer.

private:
    void LayOutBox(int index, const wxString& text);
    wxSize MeasureTexts();
    void DrawMoreColours(wxDC& dc);
    void DrawAutomatic(wxDC& dc);
    void DrawEdge(wxDC& dc, const wxRect& rect, int index);
    int CellTowards(int key) const;
    void RedrawHotCells(int old);
    void ShowNameAtPointer(const wxString& name);
    void OnCharHook(wxKeyEvent& event);
    void TellOfTheEnd(bool ok);
    bool HideCombo();
    void RestoreValue();
    wxString TextOf(int index) const;
    int CellBeside(int step) const;
    void ChooseClosed(int index);
    bool Send(wxEventType type, const wxColour& colour);

    bool m_ending = false;                     ///< While the listener hears of an end.
    bool m_handsValueBack = false;             ///< While a cancelled selection closes the popup.
    bool m_dialogCancelled = false;            ///< From the end of the dialog to that of the selection.
    std::optional<wxString> m_valueWhenShown;  ///< Of the combo, while the popup is open.
    const std::shared_ptr<const bool> m_life = std::make_shared<const bool>(true);  ///< Ends with the popup.

    wxDECLARE_EVENT_TABLE();
};

#endif
