#include <fittings/colour/colour_popup.h>

#include <initializer_list>

#include <wx/colordlg.h>
#include <wx/dcclient.h>

#include <fittings/base/or_empty.h>

namespace {

int FirstPresent(std::initializer_list<int> cells)
{
    for (const int cell : cells) {
        if (cell != CELL_NONE)
            return cell;
    }
    return CELL_NONE;
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
    Refresh();
    if (m_pListener)
        m_pListener->OnColourPopup();
}

void wxColourPopup::OnDismiss()
{
    if (m_bInternalHide || !m_pListener)
        return;
    m_crColour = m_crInitialColour;
    m_pListener->OnColourSelCancel(m_crColour);
}

void wxColourPopup::ChangeSelection(int index)
{
    wxClientDC dc(this);
    if (index > m_nNumColours)
        index = CELL_MORE_COLOURS;
    const int old = m_nCurrentSel;
    if ((old >= 0 && old < m_nNumColours) || old == CELL_MORE_COLOURS || old == CELL_AUTOMATIC) {
        m_nCurrentSel = CELL_NONE;
        DrawCell(&dc, old);
    }
    m_nCurrentSel = index;
    DrawCell(&dc, index);
    DoDrawClientEdge(&dc);
    m_crColour = GetColour(m_nCurrentSel);

    wxString name;
    if (m_nCurrentSel >= 0 && m_nCurrentSel < fittings::kColourCount)
        name = fittings::OrEmpty(GetColourName(m_nCurrentSel));
    if (name != m_strToolTip) {
        m_strToolTip = name;
        SetToolTip(m_strToolTip);
    }
    DoSelChange();
}

void wxColourPopup::DoSelChange()
{
    if (m_pListener)
        m_pListener->OnColourSelChange(m_crColour);
    if (m_bRefreshCombo)
        m_combo->Refresh();
}

void wxColourPopup::EndSelection(bool ok)
{
    if (ok && m_nCurrentSel == CELL_MORE_COLOURS) {
        m_bInternalHide = true;
        m_combo->HidePopup(false);
        m_bInternalHide = false;
        DoShowColorDlg();
    }
    DoEndSel(ok);
}

void wxColourPopup::DoShowColorDlg()
{
    wxColourData data;
    data.SetChooseFull(true);
    data.SetColour(m_crInitialColour);
    wxColourDialog dialog(m_pCenterOn ? m_pCenterOn : m_combo, &data);
    if (m_pCenterOn)
        dialog.Centre(wxBOTH);
    if (dialog.ShowModal() == wxID_OK) {
        m_crColour = dialog.GetColourData().GetColour();
        m_crInitialColour = m_crColour;
    } else {
        m_crColour = m_crInitialColour;
    }
}

void wxColourPopup::DoEndSel(bool ok)
{
    if (ok) {
        m_crInitialColour = m_crColour;
        m_nChosenColourSel = m_nCurrentSel;
        if (m_pListener)
            m_pListener->OnColourSelEnd(m_crColour);
    } else {
        m_crColour = m_crInitialColour;
        m_nChosenColourSel = CELL_NONE;
        if (m_pListener)
            m_pListener->OnColourSelCancel(m_crColour);
    }
    if (m_combo->IsPopupShown()) {
        m_bInternalHide = true;
        m_combo->HidePopup(false);
        m_bInternalHide = false;
    }
    m_combo->Refresh();
}

void wxColourPopup::OnMouseMove(wxMouseEvent& event)
{
    // The point is moved by one margin, but for the boxes too, and not by the one below "Automatic".
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
}

void wxColourPopup::OnLButtonUp(wxMouseEvent& event)
{
    EndSelection(wxRect(GetClientAreaOrigin(), GetClientSize()).Contains(event.GetPosition()));
}

void wxColourPopup::OnKeyDown(wxKeyEvent& event)
{
    switch (event.GetKeyCode()) {
    case WXK_DOWN:
        ChangeSelection(CellBelow());
        break;
    case WXK_UP:
        ChangeSelection(CellAbove());
        break;
    case WXK_RIGHT:
        ChangeSelection(CellRight());
        break;
    case WXK_LEFT:
        ChangeSelection(CellLeft());
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

// The cells follow one another in a circle: "Automatic", the grid row by row, "More Colours...". A box that is absent
// is passed over; GetIndex() gives it as no cell.

int wxColourPopup::CellBelow() const
{
    const int more = GetIndex(CELL_MORE_COLOURS, CELL_MORE_COLOURS);
    const int automatic = GetIndex(CELL_AUTOMATIC, CELL_AUTOMATIC);
    const int row = GetRow(m_nCurrentSel);
    if (row == CELL_AUTOMATIC)
        return GetIndex(0, 0);
    if (row == CELL_MORE_COLOURS)
        return FirstPresent({automatic, GetIndex(0, 0)});
    return FirstPresent({GetIndex(row + 1, GetColumn(m_nCurrentSel)), more, automatic, GetIndex(0, 0)});
}

int wxColourPopup::CellAbove() const
{
    const int more = GetIndex(CELL_MORE_COLOURS, CELL_MORE_COLOURS);
    const int automatic = GetIndex(CELL_AUTOMATIC, CELL_AUTOMATIC);
    const int last = m_nNumColours - 1;
    const int row = GetRow(m_nCurrentSel);
    if (row == CELL_AUTOMATIC)
        return FirstPresent({more, last});
    if (row == CELL_MORE_COLOURS)
        return last;
    return row > 0 ? GetIndex(row - 1, GetColumn(m_nCurrentSel)) : FirstPresent({automatic, more, last});
}

int wxColourPopup::CellRight() const
{
    const int more = GetIndex(CELL_MORE_COLOURS, CELL_MORE_COLOURS);
    const int automatic = GetIndex(CELL_AUTOMATIC, CELL_AUTOMATIC);
    const int row = GetRow(m_nCurrentSel);
    if (row == CELL_AUTOMATIC)
        return GetIndex(0, 0);
    if (row == CELL_MORE_COLOURS)
        return FirstPresent({automatic, GetIndex(0, 0)});
    const int col = GetColumn(m_nCurrentSel);
    const int next = col < m_nNumColumns - 1 ? GetIndex(row, col + 1) : GetIndex(row + 1, 0);
    return FirstPresent({next, more, automatic, GetIndex(0, 0)});
}

int wxColourPopup::CellLeft() const
{
    const int more = GetIndex(CELL_MORE_COLOURS, CELL_MORE_COLOURS);
    const int automatic = GetIndex(CELL_AUTOMATIC, CELL_AUTOMATIC);
    const int last = m_nNumColours - 1;
    const int row = GetRow(m_nCurrentSel);
    if (row == CELL_AUTOMATIC)
        return FirstPresent({more, last});
    if (row == CELL_MORE_COLOURS)
        return last;
    const int col = GetColumn(m_nCurrentSel);
    if (col > 0)
        return GetIndex(row, col - 1);
    return row > 0 ? GetIndex(row - 1, m_nNumColumns - 1) : FirstPresent({automatic, more, last});
}
