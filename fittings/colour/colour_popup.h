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

/// Receives notifications of what the user does in a wxColourPopup. The description of that class says what the hot
/// cell is. A host overrides the functions that it needs.
class FITTINGS_API wxColorPopupListener
{
public:
    /// Called before the popup is shown, while no cell is hot. If the combo's value names a colour of the palette, the
    /// cell of that colour becomes hot after this call.
    virtual void OnColourPopup();

    /// Called when another cell has become hot; @a colour is the colour of that cell.
    virtual void OnColourSelChange(const wxColour& colour);

    /// Called when the selection ends with the choice of @a colour. If no cell was hot, or the dialog of "More
    /// Colours..." was cancelled, @a colour is the one that was already in effect.
    virtual void OnColourSelEnd(const wxColour& colour);

    /// Called when the selection ends without a choice; @a colour stays in effect.
    virtual void OnColourSelCancel(const wxColour& colour);

    virtual ~wxColorPopupListener();
};

/// The popup of a colour combo: a palette of 40 named colours, a box "Automatic" above it and a box "More Colours..."
/// below it.
///
/// @code
/// auto* combo = new wxColourCombo(this, wxID_ANY, m_lineColour);
/// combo->GetPopup()->SetAutomaticText("No line");
/// combo->GetPopup()->SetColorListener(this);
/// @endcode
///
/// To use a class that is derived from this one, pass an object of that class to wxComboCtrl::SetPopupControl().
///
/// All settings except the colour must be set before the popup is shown. The colour that the user chooses becomes the
/// colour in effect, which is also called the initial colour. The listener and the combo's wxEVT_COLOURPICKER_CHANGED
/// report it.
///
/// A cell is identified by its index: 0 to 39 for a colour of the palette, otherwise CELL_NONE, CELL_MORE_COLOURS or
/// CELL_AUTOMATIC. The *hot* cell is the one that the pointer or the keyboard reached last. The *chosen* cell is the
/// cell of the colour in effect.
///
/// The texts of the boxes are in the language that is set when the popup is made. The names of the colours are in the
/// language that was set at the first call of GetColourTable(). The constructor of a popup calls GetColourTable() too.
///
/// While the popup is open, it handles its keys before a dialog can: Escape closes the popup and not the dialog.
///
/// From SetPopupControl() on, the combo owns the popup. GUI thread only.
class FITTINGS_API wxColourPopup : public wxWindow, public wxComboPopup
{
public:
    wxColourPopup();
    ~wxColourPopup() override;

    /// @name Settings
    /// @{

    /// Sets the colour in effect. The combo's face shows it, and the dialog of "More Colours..." starts with it. Black
    /// at first. An invalid colour asserts and changes nothing.
    ///
    /// The function redraws the combo, but changes neither its value nor the chosen cell. Call it before
    /// wxComboCtrl::SetPopupControl(): when the window is created, the popup marks "Automatic" if @a colour is the
    /// default colour. A later call of this function does not move that mark, but SetColour() does.
    void SetInitialColour(const wxColour& colour);

    /// Makes @a colour the colour in effect and updates the combo's face and value, the chosen cell and the mark of
    /// "Automatic". The listener is not called, and no event is sent. Returns false and changes nothing for an invalid
    /// colour.
    ///
    /// It may be called at any time. If the popup is open and the user then chooses nothing, @a colour stays in effect.
    /// A listener or event handler that is notified of a chosen colour may call it: @a colour then replaces the chosen
    /// one.
    bool SetColour(const wxColour& colour);

    /// Returns the colour in effect.
    const wxColour& GetInitialColour() const { return m_crInitialColour; }

    /// Sets the colour that "Automatic" stands for. Black at first. An invalid colour asserts and changes nothing.
    void SetDefaultColour(const wxColour& colour);

    /// Returns the colour that "Automatic" stands for.
    const wxColour& GetDefaultColour() const { return m_crDefaultColour; }

    /// Sets whether the combo is redrawn each time another cell becomes hot. False at first.
    void SetRefreshCombo(bool refresh) { m_bRefreshCombo = refresh; }

    /// Returns whether the combo is redrawn each time another cell becomes hot.
    bool GetRefreshCombo() const { return m_bRefreshCombo; }

    /// Sets the text of the upper box. With an empty text, the popup has no upper box.
    void SetAutomaticText(const wxString& text);

    /// Sets the text of the lower box. With an empty text, the popup has no lower box.
    void SetMoreColoursText(const wxString& text);

    /// Sets the listener, which is not owned. The listener must outlive the popup or be replaced by null.
    void SetColorListener(wxColorPopupListener* listener) { m_pListener = listener; }

    /// Sets the parent of the dialog of "More Colours...". The dialog will be centred on @a window, but the popup does
    /// not move. The popup does not own @a window. With null, the combo is the parent.
    void SetCenterOn(wxWindow* window) { m_pCenterOn = window; }

    /// Resets every setting, the listener included, to its initial value. The constructor calls it. If the window
    /// exists, call SetWindowSize() afterwards.
    void Initialise();
    /// @}

    /// @name Cells and colours
    /// @{

    /// Returns the colour of a cell of the palette, of CELL_MORE_COLOURS (the initial colour) or of CELL_AUTOMATIC (the
    /// default colour). Do not pass any other index: it is not checked.
    wxColour GetColour(int index) const;

    /// Returns the row of a cell in the grid. For a box that is present, the result is @a index itself. For an absent
    /// box and for any other index, the result is -1.
    int GetRow(int index) const;

    /// Returns the column of a cell in the grid. For an index outside the grid, the result is that of GetRow().
    int GetColumn(int index) const;

    /// Returns the cell of the grid at @a row and @a col; CELL_NONE if there is none. If @a row or @a col is the index
    /// of a box that is present, the result is that box, whatever the other coordinate is.
    int GetIndex(int row, int col) const;

    /// Marks the cell of @a colour as chosen: the first cell of the palette with exactly this colour and opacity. If
    /// there is no such cell, marks "More Colours...", or no cell if that box is absent.
    ///
    /// If no cell was chosen and @a colour is the default colour, "Automatic" becomes chosen instead, provided that its
    /// box is present. If "Automatic" was chosen, it stays chosen whatever @a colour is, so a user who chose it finds
    /// it marked again.
    void FindCellFromColour(const wxColour& colour);

    /// Returns the text of the hot cell; empty when no cell is hot.
    ///
    /// While DoEndSel() closes the popup, the result is the combo's final value. If the selection was cancelled, this
    /// is the value that the combo had when the popup opened, or that the host has set since. If SetColour() has
    /// replaced the chosen colour, it is the text of the new colour.
    wxString GetStringValue() const override;

    /// Makes the cell with the name @a value hot. The language and the letter case must be those of the table. Any
    /// other text, such as the text of a box, changes nothing. While the popup is open, the name of the hot cell
    /// changes nothing.
    ///
    /// Every name is ignored while the popup hides itself or restores the combo's value: the combo then passes names
    /// that the user has not chosen. Every name is also ignored while the popup notifies the listener and the event
    /// handlers of the end of the selection.
    ///
    /// A value that the host sets while the popup is open stays the combo's value if the user chooses nothing.
    void SetStringValue(const wxString& value) override;
    /// @}

    /// @name Size and layout, in pixels
    /// @{

    /// Creates the window. The combo calls it.
    bool Create(wxWindow* parent) override;

    /// Lays out the popup and moves the window to the position of @a rect, or to a position where the window fits on
    /// the screen. The size of @a rect is ignored. Does nothing before Create().
    void SetWindowSize(const wxRect& rect);

    /// Stores the rectangle of a cell in @a rect and returns true. If there is no such cell, returns false and leaves
    /// @a rect as it is.
    ///
    /// A box always has a rectangle: the one of the last layout, which is empty if the box was absent then.
    bool GetCellRect(int index, wxRect& rect) const;

    /// Returns the size of the popup; the parameters are ignored.
    wxSize GetAdjustedSize(int minWidth, int prefHeight, int maxHeight) override;

    /// Returns the popup itself, for the combo.
    wxWindow* GetControl() override { return this; }
    /// @}

    /// Describes the hot cell to assistive technologies, or the colour in effect if no cell is hot.
    void OnInternalIdle() override;

    /// @name Drawing
    /// @{

    /// Handles wxEVT_PAINT: calls DoDrawControl().
    void OnPaint(wxPaintEvent& event);

    /// Draws the cells, the boxes and the frame, but not the background between them.
    void DoDrawControl(wxDC* dc);

    /// Draws one cell in its current state: plain, chosen or hot.
    void DrawCell(wxDC* dc, int index);

    /// Draws a cell of the palette into @a rect, and then shrinks @a rect to the area of the colour itself.
    void DrawCellRect(wxDC* dc, wxRect& rect, int index);

    /// Draws the frame of the popup.
    void DoDrawClientEdge(wxDC* dc);

    /// Fills the combo's face with the colour in effect.
    void PaintComboControl(wxDC& dc, const wxRect& rect) override;
    /// @}

    /// @name Mouse and keyboard
    /// @{

    /// Called when the combo shows the popup. Marks the cell of the colour in effect as chosen, sets the hot cell to
    /// CELL_NONE, removes the tooltip, and notifies the listener.
    void OnPopup() override;

    /// Called when the combo hides the popup. Restores the combo's value, notifies the listener that nothing was
    /// chosen, and has the combo send wxEVT_COLOURPICKER_DIALOG_CANCELLED. Does nothing while the popup hides itself or
    /// reports the end of the selection.
    void OnDismiss() override;

    /// Makes a cell hot, redraws the old and the new hot cell, and notifies the listener. An index above the number of
    /// the palette's cells counts as CELL_MORE_COLOURS. Any other index that is not a cell is stored as it is: no cell
    /// looks hot then, and the reported colour is the one in effect.
    void ChangeSelection(int index);

    /// Notifies the listener of the hot cell's colour. While the popup is open, the combo then sends
    /// wxEVT_COLOURPICKER_CURRENT_CHANGED. Redraws the combo if GetRefreshCombo() is true.
    void DoSelChange();

    /// Ends the selection. If @a ok is true, the colour of the hot cell is chosen; for CELL_MORE_COLOURS, the dialog
    /// asks for the colour. If @a ok is false, the colour in effect stays.
    void EndSelection(bool ok);

    /// Ends the selection. If @a ok is true, makes the chosen colour the initial colour. Notifies the listener of the
    /// end, has the combo send the event for it, and closes the popup.
    void DoEndSel(bool ok);

    /// Asks for a colour in the toolkit's dialog, which starts with the colour in effect. The colour of the dialog
    /// becomes the one in effect, unless the dialog is cancelled.
    void DoShowColorDlg();

    /// Makes the cell under the pointer hot. If the pointer is not over a cell, the hot cell does not change.
    ///
    /// The areas that react to the pointer differ from the drawn ones. The areas of the boxes lie one margin further
    /// right. The area of "Automatic" lies one margin lower, and that of "More Colours..." one margin higher. If there
    /// is an "Automatic" box, the areas of the palette's cells lie one margin higher, so the lowest pixels of a cell
    /// belong to the cell below.
    void OnMouseMove(wxMouseEvent& event);

    /// Ends the selection. If the button is released within the popup, even between the cells, the colour of the hot
    /// cell is chosen. If it is released outside the popup, the selection is cancelled.
    void OnLButtonUp(wxMouseEvent& event);

    /// The arrow keys make another cell hot, Enter and the space bar choose the hot cell, and Escape cancels. Other
    /// keys are skipped.
    ///
    /// Left and Right move in a circle: "Automatic", the palette row by row, "More Colours...". On a box, Up and Down
    /// move in the same circle. On the palette, Up and Down move within a column: Up from the first row leads to
    /// "Automatic", and Down from the last row to "More Colours...". While no cell is hot, Down and Right begin with
    /// "More Colours...", and Up and Left with "Automatic".
    void OnKeyDown(wxKeyEvent& event);

    /// Handles a key of the combo while the popup is closed and the combo has the focus. With wxCB_READONLY, Up chooses
    /// the colour before the one in effect and Down the one after it. The listener is notified of the choice, and the
    /// combo sends wxEVT_COLOURPICKER_CHANGED. Up at the first cell and Down at the last one do nothing. Neither key
    /// moves the focus. Other keys, and keys with a modifier, are skipped.
    void OnComboKeyEvent(wxKeyEvent& event) override;
    /// @}

protected:
    wxString m_strMoreColours;          ///< The text of the lower box.
    wxString m_strAutomatic;            ///< The text of the upper box.
    wxPalette m_palette;                ///< The palette's colours. Set in the DC before a cell is drawn.
    wxRect m_rectMoreColours;           ///< The lower box.
    wxRect m_rectAutomatic;             ///< The upper box.
    wxRect m_rectWindow;                ///< The place and size of the popup.
    int m_nNumColours;                  ///< Cells of the palette.
    int m_nNumColumns;                  ///< Columns of the grid.
    int m_nNumRows;                     ///< Rows of the grid.
    int m_nBoxSize;                     ///< The side of a cell of the palette.
    int m_nMargin;                      ///< The margin around and between the parts.
    int m_nChosenColourSel;             ///< The chosen cell.
    int m_nCurrentSel;                  ///< The hot cell.
    wxFont m_font;                      ///< The font of the boxes.
    wxColour m_crColour;                ///< The colour of the hot cell; the one in effect while none is hot.
    wxColour m_crInitialColour;         ///< The colour in effect.
    wxColour m_crDefaultColour;         ///< What "Automatic" stands for.
    wxColorPopupListener* m_pListener;  ///< Not owned.
    bool m_bRefreshCombo;               ///< Whether the combo is redrawn when another cell becomes hot.
    bool m_bInternalHide;               ///< True while the popup hides itself or restores the combo's value.
    wxWindow* m_pCenterOn;              ///< Not owned.
    wxString m_strToolTip;              ///< The name that is shown at the pointer.

private:
    void LayOutBox(int index, const wxString& text);
    wxSize MeasureTexts();
    void DrawCellRect(wxDC& dc, wxRect& rect, int index, int inset);
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

    /// True while the listener and the event handlers are notified of the end of the selection.
    bool m_ending = false;
    bool m_isClosingAfterCancel = false;
    bool m_dialogCancelled = false;            ///< True after the dialog was cancelled, until the selection ends.
    std::optional<wxString> m_valueWhenShown;  ///< The value to restore if nothing is chosen; none while closed.
    /// A weak pointer to m_life expires when the popup is destroyed.
    const std::shared_ptr<const bool> m_life = std::make_shared<const bool>(true);

    wxDECLARE_EVENT_TABLE();
};

#endif
