#include <fittings/colour/colour_popup.h>

#include <wx/brush.h>
#include <wx/dcclient.h>
#include <wx/pen.h>
#include <wx/settings.h>

namespace {

wxColour Face()
{
    return wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE);
}

wxColour Shadow()
{
    return wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW);
}

wxColour Highlight()
{
    return wxSystemSettings::GetColour(wxSYS_COLOUR_BTNHIGHLIGHT);
}

wxColour Dark()
{
    return wxSystemSettings::GetColour(wxSYS_COLOUR_3DDKSHADOW);
}

void DrawRectangle(wxDC& dc, const wxRect& rect, const wxColour& pen, const wxColour& brush)
{
    dc.SetPen(wxPen(pen));
    dc.SetBrush(wxBrush(brush));
    dc.DrawRectangle(rect);
}

void Fill(wxDC& dc, const wxRect& rect, const wxColour& colour)
{
    DrawRectangle(dc, rect, colour, colour);
}

void DrawLeftTop(wxDC& dc, const wxRect& r, const wxColour& colour)
{
    dc.SetPen(wxPen(colour));
    dc.DrawLine(r.x, r.y, r.x, r.y + r.height - 1);
    dc.DrawLine(r.x + 1, r.y, r.x + r.width - 1, r.y);
}

void DrawRightBottom(wxDC& dc, const wxRect& r, const wxColour& colour)
{
    dc.SetPen(wxPen(colour));
    dc.DrawLine(r.x + r.width - 1, r.y - 1, r.x + r.width - 1, r.y + r.height - 1);
    dc.DrawLine(r.x - 1, r.y + r.height - 1, r.x + r.width, r.y + r.height - 1);
}

void DrawRaisedEdge(wxDC& dc, const wxRect& rect)
{
    const wxRect outer = rect.Deflate(1, 1);
    DrawLeftTop(dc, outer, Highlight());
    DrawRightBottom(dc, outer, Dark());
    const wxRect inner = rect.Deflate(2, 2);
    DrawLeftTop(dc, inner, Face());
    DrawRightBottom(dc, inner, Shadow());
}

// Draws a sunken edge of three rings. The outermost ring is drawn only at the left and at the top.
void DrawSunkenEdge(wxDC& dc, const wxRect& rect)
{
    DrawLeftTop(dc, rect, Shadow());
    const wxRect middle = rect.Deflate(1, 1);
    DrawLeftTop(dc, middle, Dark());
    DrawRightBottom(dc, middle, Highlight());
    const wxRect inner = rect.Deflate(2, 2);
    DrawLeftTop(dc, inner, Highlight());
    DrawRightBottom(dc, inner, Face());
}

void DrawCentredText(wxDC& dc, const wxRect& rect, const wxFont& font, const wxString& text)
{
    dc.SetFont(font);
    dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    const wxSize size = dc.GetTextExtent(text);
    dc.DrawText(text, rect.x + (rect.width - size.x) / 2, rect.y + (rect.height - size.y) / 2);
}

}  // namespace

void wxColourPopup::OnPaint(wxPaintEvent& /*event*/)
{
    wxPaintDC dc(this);
    DoDrawControl(&dc);
}

void wxColourPopup::DoDrawControl(wxDC* dc)
{
    if (!m_strAutomatic.empty())
        DrawCell(dc, CELL_AUTOMATIC);
    for (int i = 0; i < m_nNumColours; ++i)
        DrawCell(dc, i);
    if (!m_strMoreColours.empty())
        DrawCell(dc, CELL_MORE_COLOURS);
    DoDrawClientEdge(dc);
}

void wxColourPopup::DrawCell(wxDC* dc, int index)
{
    if (index == CELL_MORE_COLOURS && !m_strMoreColours.empty()) {
        DrawMoreColours(*dc);
    } else if (index == CELL_AUTOMATIC && !m_strAutomatic.empty()) {
        DrawAutomatic(*dc);
    } else {
        wxRect rect;
        if (GetCellRect(index, rect))
            DrawCellRect(dc, rect, index);
    }
}

void wxColourPopup::DrawCellRect(wxDC* dc, wxRect& rect, int index)
{
    DrawCellRect(*dc, rect, index, m_nMargin + 1);
}

void wxColourPopup::DrawCellRect(wxDC& dc, wxRect& rect, int index, int inset)
{
    dc.SetPalette(m_palette);
    const bool isHot = index == m_nCurrentSel;
    const bool isChosen = index == m_nChosenColourSel;
    Fill(dc, rect, isChosen && !isHot ? Highlight() : Face());
    DrawEdge(dc, rect, index);

    const wxColour colour = GetColour(index);
    rect.Deflate(inset);
    DrawRectangle(dc, rect, Shadow(), wxColour(colour.Red(), colour.Green(), colour.Blue()));
}

void wxColourPopup::DrawMoreColours(wxDC& dc)
{
    const wxRect& box = m_rectMoreColours;
    wxRect below = box;
    below.y += 2 * m_nMargin;
    Fill(dc, below, Face());

    Fill(dc, wxRect(box.x + 2 * m_nMargin, box.y, box.width - 4 * m_nMargin, 1), Shadow());
    Fill(dc, wxRect(box.x + 2 * m_nMargin, box.y + 1, box.width - 4 * m_nMargin, 1), Highlight());

    wxRect base = below.Deflate(1, 1);
    base.height -= 2;
    Fill(dc, base, Face());
    DrawEdge(dc, base, CELL_MORE_COLOURS);
    DrawCentredText(dc, base, m_font, m_strMoreColours);
}

void wxColourPopup::DrawAutomatic(wxDC& dc)
{
    const wxRect& box = m_rectAutomatic;
    Fill(dc, box, Face());
    const wxRect base = box.Deflate(1, 1);
    Fill(dc, base, Face());
    DrawRectangle(dc, base.Deflate(2 * m_nMargin, 2 * m_nMargin), Shadow(), Face());
    DrawEdge(dc, base, CELL_AUTOMATIC);
    DrawCentredText(dc, base, m_font, m_strAutomatic);

    const int side = box.height / 3;
    const int inset = (box.height - side) / 2;
    wxRect swatch(box.x + inset, box.y + inset, side, side);
    DrawCellRect(dc, swatch, CELL_AUTOMATIC, 0);  // without the margin of the cells in the palette
}

void wxColourPopup::DrawEdge(wxDC& dc, const wxRect& rect, int index)
{
    if (index == m_nCurrentSel)
        DrawRaisedEdge(dc, rect);
    else if (index == m_nChosenColourSel)
        DrawSunkenEdge(dc, rect);
}

void wxColourPopup::DoDrawClientEdge(wxDC* dc)
{
    DrawRaisedEdge(*dc, wxRect(GetClientAreaOrigin(), GetClientSize()));
}

void wxColourPopup::PaintComboControl(wxDC& dc, const wxRect& rect)
{
    Fill(dc, rect, m_crInitialColour);
}
