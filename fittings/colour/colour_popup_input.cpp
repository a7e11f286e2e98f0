#include <fittings/colour/colour_popup.h>

#include <initializer_list>
#include <memory>
#include <optional>
#include <utility>

#include <gtk/gtk.h>
#include <wx/clrpicker.h>
#include <wx/colordlg.h>
#include <wx/dcclient.h>

#include <fittings/base/or_empty.h>
#include <fittings/colour/direct_drawing.h>

namespace {

// Expires when the popup is destroyed: a listener may destroy the control and with it the popup.
using Life = std::weak_ptr<const bool>;

// Sets a flag of the popup. Clears it at the end of the scope, even if the listener throws, but not if the popup has
// been destroyed by then.
class ScopedFlag
{
public:
    ScopedFlag(Life life, bool& flag) : m_life(std::move(life)), m_flag(flag) { m_flag = true; }
    ~ScopedFlag()
    {
        if (!m_life.expired())
            m_flag = false;
    }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

private:
    const Life m_life;
    bool& m_flag;
};

// The frame is drawn in the second and the third pixel from each edge of the window.
constexpr int kFrameWidth = 3;

bool IsOwnKey(int key)
{
    switch (key) {
    case WXK_DOWN:
    case WXK_UP:
    case WXK_RIGHT:
    case WXK_LEFT:
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
    case WXK_SPACE:
    case WXK_ESCAPE:
        return true;
    default:
        return false;
    }
}

bool IsOfPalette(int index)
{
    return index >= 0 && index < fittings::kColourCount;
}

wxString NameOf(int index)
{
    return IsOfPalette(index) ? fittings::OrEmpty(GetColourName(index)) : L"";
}

int FirstPresent(std::initializer_list<int> cells)
{
    for (const int cell : cells) {
        if (cell != CELL_NONE)
            return cell;
    }
    return CELL_NONE;
}

// Centres the dialog on @a window itself. The toolkit's Centre() uses the top-level window that contains @a window.
void CentreOn(const wxWindow& window, wxDialog& dialog)
{
    dialog.Centre(wxBOTH);
    if (window.IsTopLevel())
        return;
    GtkRequisition size;
    gtk_widget_get_preferred_size(dialog.GetHandle(), nullptr, &size);
    const wxRect rect = wxRect(0, 0, size.width, size.height).CentreIn(window.GetScreenRect());
    gtk_window_move(GTK_WINDOW(dialog.GetHandle()), rect.x, rect.y);
}

}  // namespace

void wxColorPopupListener::OnColourPopup() {}

void wxColorPopupListener::OnColourSelChange(const wxColour& /*colour*/) {}

void wxColorPopupListener::OnColourSelEnd(const wxColour& /*colour*/) {}

void wxColorPopupListener::OnColourSelCancel(const wxColour& /*colour*/) {}

wxColorPopupListener::~wxColorPopupListener() = default;

wxBEGIN_EVENT_TABLE(wxColourPopup, wxWindow)
    EVT_PAINT(wxColourPopup::OnPaint)
    EVT_MOTION(wxColourPopup::OnMouseMove)
    EVT_LEFT_UP(wxColourPopup::OnLButtonUp)
    EVT_KEY_DOWN(wxColourPopup::OnKeyDown)
wxEND_EVENT_TABLE()

void wxColourPopup::OnPopup()
{
    FindCellFromColour(m_crInitialColour);
    m_nCurrentSel = CELL_NONE;
    // Remove the tooltip: it may still show the name of the cell that was hot when the popup closed, and the pointer
    // may no longer be over that cell.
    ShowNameAtPointer("");
    // While no cell is hot, Enter or a click chooses the colour in effect.
    m_crColour = m_crInitialColour;
    if (m_combo)
        m_valueWhenShown = m_combo->GetValue();
    Refresh();
    if (m_pListener)
        m_pListener->OnColourPopup();
}

void wxColourPopup::OnDismiss()
{
    // When the popup hides itself, DoEndSel() reports the end of the selection. When a listener closes the popup while
    // it is notified of the end, the end must not be reported twice.
    if (m_bInternalHide || m_ending)
        return;
    const Life life(m_life);
    RestoreValue();
    if (life.expired())
        return;
    if (m_pListener) {
        m_crColour = m_crInitialColour;
        // Pass a copy, here and below: the listener may destroy the popup.
        m_pListener->OnColourSelCancel(wxColour(m_crColour));
    }
    if (!life.expired())
        Send(wxEVT_COLOURPICKER_DIALOG_CANCELLED, m_crInitialColour);
}

// Sends an event of the combo. Returns false if a handler has destroyed the popup.
bool wxColourPopup::Send(wxEventType type, const wxColour& colour)
{
    const Life life(m_life);
    // Send nothing while the combo is being deleted: the objects whose handlers are bound to the combo may already be
    // partly destroyed.
    if (m_combo && !m_combo->IsBeingDeleted()) {
        wxColourPickerEvent event(m_combo, m_combo->GetId(), colour, type);
        m_combo->HandleWindowEvent(event);
    }
    return !life.expired();
}

void wxColourPopup::ChangeSelection(int index)
{
    if (index > m_nNumColours)
        index = CELL_MORE_COLOURS;
    const int old = m_nCurrentSel;
    m_nCurrentSel = index;
    if (GetHandle())
        RedrawHotCells(old);

    const bool isCell = IsOfPalette(index) || index == CELL_MORE_COLOURS || index == CELL_AUTOMATIC;
    m_crColour = isCell ? GetColour(index) : m_crInitialColour;

    ShowNameAtPointer(NameOf(index));
    DoSelChange();
}

void wxColourPopup::ShowNameAtPointer(const wxString& name)
{
    if (name == m_strToolTip)
        return;
    m_strToolTip = name;
    if (GetHandle())
        SetToolTip(m_strToolTip);
}

// Redraws the old and the new hot cell, and then the frame of the popup on top. Redrawing the whole popup on each move
// of the pointer would be slow.
void wxColourPopup::RedrawHotCells(int old)
{
    wxClientDC dc(this);
    DrawCell(&dc, old);
    DrawCell(&dc, m_nCurrentSel);
    DoDrawClientEdge(&dc);
    if (fittings::CanDrawDirectly())
        return;

    for (const int cell : {old, m_nCurrentSel}) {
        wxRect rect;
        if (!GetCellRect(cell, rect))
            continue;
        // This box is drawn two margins lower than its rectangle, under the separator.
        if (cell == CELL_MORE_COLOURS)
            rect.height += 2 * m_nMargin;
        RefreshRect(rect);
    }
    const wxSize size = GetClientSize();
    RefreshRect(wxRect(0, 0, size.x, kFrameWidth));
    RefreshRect(wxRect(0, size.y - kFrameWidth, size.x, kFrameWidth));
    RefreshRect(wxRect(0, 0, kFrameWidth, size.y));
    RefreshRect(wxRect(size.x - kFrameWidth, 0, kFrameWidth, size.y));
}

void wxColourPopup::DoSelChange()
{
    const Life life(m_life);
    if (m_pListener)
        m_pListener->OnColourSelChange(wxColour(m_crColour));
    if (life.expired())
        return;
    if (m_valueWhenShown && !Send(wxEVT_COLOURPICKER_CURRENT_CHANGED, m_crColour))
        return;
    if (m_bRefreshCombo && m_combo)
        m_combo->Refresh();
}

void wxColourPopup::EndSelection(bool ok)
{
    if (ok && m_nCurrentSel == CELL_MORE_COLOURS) {
        if (!HideCombo())
            return;
        const Life life(m_life);
        DoShowColorDlg();
        if (life.expired())
            return;
    }
    DoEndSel(ok);
}

void wxColourPopup::DoShowColorDlg()
{
    const Life life(m_life);
    wxColourData data;
    data.SetChooseFull(true);
    data.SetColour(m_crInitialColour);
    wxWindow* const parent = m_pCenterOn ? m_pCenterOn : m_combo;
    wxColourDialog dialog(parent, &data);
    if (m_pCenterOn)
        CentreOn(*m_pCenterOn, dialog);
    const bool ok = dialog.ShowModal() == wxID_OK;
    if (life.expired())
        return;
    if (ok)
        m_crInitialColour = dialog.GetColourData().GetColour();
    m_crColour = m_crInitialColour;
    m_dialogCancelled = !ok;
}

void wxColourPopup::DoEndSel(bool ok)
{
    const Life life(m_life);
    TellOfTheEnd(ok);
    if (life.expired() || !m_combo)
        return;
    if (m_combo->IsPopupShown()) {
        std::optional<ScopedFlag> closing;
        if (m_valueWhenShown)
            closing.emplace(m_life, m_isClosingAfterCancel);
        if (!HideCombo())
            return;
    }
    // Restore the combo's value even if the listener has closed the popup: the combo's value is then the name of the
    // hot cell.
    RestoreValue();
    if (life.expired())
        return;
    m_valueWhenShown.reset();
    m_combo->Refresh();
}

void wxColourPopup::TellOfTheEnd(bool ok)
{
    const Life life(m_life);
    const ScopedFlag ending(m_life, m_ending);
    const bool cancelled = std::exchange(m_dialogCancelled, false) || !ok;
    if (ok) {
        m_crInitialColour = m_crColour;
        m_nChosenColourSel = m_nCurrentSel;
        m_valueWhenShown.reset();
        if (m_pListener)
            m_pListener->OnColourSelEnd(wxColour(m_crColour));
    } else {
        m_crColour = m_crInitialColour;
        m_nChosenColourSel = CELL_NONE;
        if (m_pListener)
            m_pListener->OnColourSelCancel(wxColour(m_crColour));
    }
    if (!life.expired())
        Send(cancelled ? wxEVT_COLOURPICKER_DIALOG_CANCELLED : wxEVT_COLOURPICKER_CHANGED, m_crInitialColour);
}

// Closes the popup without notifying the listener. Returns false if that has destroyed the popup.
bool wxColourPopup::HideCombo()
{
    const Life life(m_life);
    const ScopedFlag hiding(m_life, m_bInternalHide);
    if (m_combo)
        m_combo->HidePopup(false);
    return !life.expired();
}

// Restores the value that the combo had when the popup opened. When the popup closed, the value changed to the name of
// the hot cell. If the name stayed, the combo would pass it to SetStringValue() when the popup opens again. That cell
// would then be hot, and Enter would choose a colour that the user does not want.
void wxColourPopup::RestoreValue()
{
    const std::optional<wxString> kept = std::exchange(m_valueWhenShown, std::nullopt);
    if (!m_combo || !kept || m_combo->GetValue() == *kept)
        return;
    const wxString& value = *kept;
    const ScopedFlag restoring(m_life, m_bInternalHide);
    m_combo->SetValueByUser(value);
}

void wxColourPopup::OnMouseMove(wxMouseEvent& event)
{
    // Shift the point by one margin, because the grid begins one margin inside the popup. The positions of the boxes
    // include that margin, but the boxes are compared with the shifted point too. The margin below "Automatic" is not
    // subtracted. The areas therefore differ from what is drawn, as the header says.
    wxPoint point(event.GetX() - m_nMargin, event.GetY() - m_nMargin);
    int target = CELL_NONE;
    if (!m_strMoreColours.empty() && m_rectMoreColours.Contains(point)) {
        target = CELL_MORE_COLOURS;
    } else if (!m_strAutomatic.empty() && m_rectAutomatic.Contains(point)) {
        target = CELL_AUTOMATIC;
    } else {
        if (!m_strAutomatic.empty())
            point.y -= m_rectAutomatic.height;
        target = GetIndex(point.y / m_nBoxSize, point.x / m_nBoxSize);
        if (target < 0 || target >= m_nNumColours)
            return;
    }
    if (target != m_nCurrentSel)
        ChangeSelection(target);
    else
        ShowNameAtPointer(NameOf(target));  // A cell that became hot when the popup opened shows no name yet.
}

void wxColourPopup::OnLButtonUp(wxMouseEvent& event)
{
    EndSelection(wxRect(GetClientAreaOrigin(), GetClientSize()).Contains(event.GetPosition()));
}

// Keeps the popup's own keys from a dialog, which would treat Escape as Cancel, and from a host, which might handle any
// key.
void wxColourPopup::OnCharHook(wxKeyEvent& event)
{
    if (IsOwnKey(event.GetKeyCode()))
        event.StopPropagation();
    event.Skip();
}

void wxColourPopup::OnKeyDown(wxKeyEvent& event)
{
    switch (event.GetKeyCode()) {
    case WXK_DOWN:
    case WXK_UP:
    case WXK_RIGHT:
    case WXK_LEFT:
        ChangeSelection(CellTowards(event.GetKeyCode()));
        break;
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
    case WXK_SPACE:
        EndSelection(true);
        break;
    case WXK_ESCAPE:
        EndSelection(false);
        break;
    default:
        event.Skip();
    }
}

void wxColourPopup::OnComboKeyEvent(wxKeyEvent& event)
{
    const int key = event.GetKeyCode();
    const bool isDown = key == WXK_DOWN || key == WXK_NUMPAD_DOWN;
    const bool isUp = key == WXK_UP || key == WXK_NUMPAD_UP;
    // The toolkit turns the mouse wheel over a combo into these keys. A combo without the focus skips them, so that the
    // page scrolls.
    if ((!isDown && !isUp) || event.HasAnyModifiers() || m_valueWhenShown || !m_combo->HasFocus()) {
        event.Skip();
        return;
    }
    // Do not skip the key, even with a text field: GTK would move the focus.
    if (!m_combo->HasFlag(wxCB_READONLY))
        return;
    FindCellFromColour(m_crInitialColour);
    ChooseClosed(CellBeside(isDown ? 1 : -1));
}

// Returns the cell after the chosen one if @a step is above 0, otherwise the cell before it. Returns CELL_NONE if there
// is no such cell. The order is "Automatic", then the grid row by row. "More Colours..." is never the result. If it is
// the chosen cell, it comes after the last cell of the grid. If no cell is chosen, returns the first cell or the last
// one.
int wxColourPopup::CellBeside(int step) const
{
    const int automatic = GetIndex(CELL_AUTOMATIC, CELL_AUTOMATIC);
    const int last = m_nNumColours - 1;
    switch (m_nChosenColourSel) {
    case CELL_AUTOMATIC:
        return step > 0 ? 0 : CELL_NONE;
    case CELL_MORE_COLOURS:
        return step > 0 ? CELL_NONE : last;
    case CELL_NONE:
        return step > 0 ? FirstPresent({automatic, 0}) : last;
    default:
        break;
    }
    const int beside = m_nChosenColourSel + step;
    if (beside < 0)
        return automatic;
    return beside <= last ? beside : CELL_NONE;
}

// Chooses a cell while the popup is closed.
void wxColourPopup::ChooseClosed(int index)
{
    if (index == CELL_NONE)
        return;
    m_nCurrentSel = index;
    m_crColour = GetColour(index);
    m_combo->SetText(TextOf(index));
    const Life life(m_life);
    TellOfTheEnd(true);
    if (life.expired())
        return;
    m_valueWhenShown.reset();
    m_combo->Refresh();
}

// Returns the cell that the arrow key @a key makes hot. OnKeyDown() describes the order of the cells.
int wxColourPopup::CellTowards(int key) const
{
    // GetIndex() returns CELL_NONE for an absent box.
    const int automatic = GetIndex(CELL_AUTOMATIC, CELL_AUTOMATIC);
    const int more = GetIndex(CELL_MORE_COLOURS, CELL_MORE_COLOURS);
    const int first = GetIndex(0, 0);
    const int last = GetIndex(GetRow(m_nNumColours - 1), GetColumn(m_nNumColours - 1));
    const bool forward = key == WXK_DOWN || key == WXK_RIGHT;

    const int row = GetRow(m_nCurrentSel);
    const int col = GetColumn(m_nCurrentSel);
    if (row == CELL_AUTOMATIC)
        return forward ? first : FirstPresent({more, last});
    if (row == CELL_MORE_COLOURS)
        return forward ? FirstPresent({automatic, first}) : last;

    int next = CELL_NONE;
    if (key == WXK_DOWN)
        next = GetIndex(row + 1, col);
    else if (key == WXK_RIGHT)
        next = col < m_nNumColumns - 1 ? GetIndex(row, col + 1) : GetIndex(row + 1, 0);
    else if (key == WXK_LEFT && col > 0)
        next = GetIndex(row, col - 1);
    else if (row > 0)
        next = GetIndex(row - 1, key == WXK_UP ? col : m_nNumColumns - 1);
    return forward ? FirstPresent({next, more, automatic, first}) : FirstPresent({next, automatic, more, last});
}
