// Painting the whole colour popup, compared with painting the same rectangles, lines and texts with prepared pens and
// brushes.

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <utility>

#include <benchmark/benchmark.h>

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/frame.h>
#include <wx/image.h>
#include <wx/settings.h>

#include <fittings/colour/colour_popup.h>

namespace {

// A popup with the boxes "Automatic" and "More Colours...", and a picture of its size to paint on.
class Popup
{
public:
    Popup() : m_frame(new wxFrame(nullptr, wxID_ANY, "bench")), popup(*new wxColourPopup)
    {
        // The popup must have no chosen cell, because the class Primitives draws none. If no cell has the initial
        // colour, Create() chooses "More Colours...", unless this box is absent. Therefore add the box after Create().
        popup.SetDefaultColour(wxColour(1, 2, 3));
        popup.SetInitialColour(wxColour(4, 5, 6));
        popup.SetMoreColoursText("");
        popup.Create(m_frame.get());
        popup.SetMoreColoursText("More Colours...");
        bitmap.Create(popup.GetSize(), 24);
        dc.SelectObject(bitmap);
        dc.SetBackground(*wxWHITE_BRUSH);
        dc.Clear();
    }

private:
    std::unique_ptr<wxFrame> m_frame;

public:
    wxColourPopup& popup;
    wxBitmap bitmap;
    wxMemoryDC dc;
};

// Draws the popup without a hot or chosen cell, with prepared pens and brushes.
class Primitives
{
public:
    explicit Primitives(const wxColourPopup& popup)
        : m_frame(popup.GetClientSize()), m_default(popup.GetDefaultColour())
    {
        popup.GetCellRect(CELL_AUTOMATIC, m_automatic);
        popup.GetCellRect(CELL_MORE_COLOURS, m_more);
        for (int i = 0; i < fittings::kColourCount; ++i) {
            popup.GetCellRect(i, m_cells[i].rect);
            m_cells[i].brush = wxBrush(popup.GetColour(i));
        }
    }

    void Draw(wxDC& dc) const
    {
        DrawAutomatic(dc);
        for (const Cell& cell : m_cells)
            DrawCell(dc, cell.rect, kMargin + 1, cell.brush);
        DrawMore(dc);
        DrawFrame(dc);
    }

private:
    // The popup's margin. The popup takes it from the metric wxSYS_EDGE_X. The benchmarks' display does not have this
    // metric, so the margin is 2.
    static constexpr int kMargin = 2;

    struct Cell
    {
        wxRect rect;
        wxBrush brush;
    };

    struct Ink
    {
        explicit Ink(wxSystemColour index) : pen(wxSystemSettings::GetColour(index)), brush(pen.GetColour()) {}
        wxPen pen;
        wxBrush brush;
    };

    static void Rectangle(wxDC& dc, const wxRect& rect, const wxPen& pen, const wxBrush& brush)
    {
        dc.SetPen(pen);
        dc.SetBrush(brush);
        dc.DrawRectangle(rect);
    }

    static void Fill(wxDC& dc, const wxRect& rect, const Ink& ink) { Rectangle(dc, rect, ink.pen, ink.brush); }

    void Text(wxDC& dc, const wxRect& rect, const wxString& text) const
    {
        dc.SetFont(m_font);
        dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
        const wxSize size = dc.GetTextExtent(text);
        dc.DrawText(text, rect.x + (rect.width - size.x) / 2, rect.y + (rect.height - size.y) / 2);
    }

    void DrawCell(wxDC& dc, const wxRect& rect, int inset, const wxBrush& brush) const
    {
        Fill(dc, rect, m_face);
        Rectangle(dc, rect.Deflate(inset, inset), m_shadow.pen, brush);
    }

    void DrawAutomatic(wxDC& dc) const
    {
        const wxRect base = m_automatic.Deflate(1, 1);
        Fill(dc, m_automatic, m_face);
        Fill(dc, base, m_face);
        Rectangle(dc, base.Deflate(2 * kMargin, 2 * kMargin), m_shadow.pen, m_face.brush);
        Text(dc, base, "Automatic");
        const int side = m_automatic.height / 3;
        const int inset = (m_automatic.height - side) / 2;
        DrawCell(dc, wxRect(m_automatic.x + inset, m_automatic.y + inset, side, side), 0, m_default);
    }

    void DrawMore(wxDC& dc) const
    {
        wxRect below = m_more;
        below.y += 2 * kMargin;
        Fill(dc, below, m_face);
        const int inset = 2 * kMargin;
        Fill(dc, wxRect(m_more.x + inset, m_more.y, m_more.width - 2 * inset, 1), m_shadow);
        Fill(dc, wxRect(m_more.x + inset, m_more.y + 1, m_more.width - 2 * inset, 1), m_highlight);
        wxRect base = below.Deflate(1, 1);
        base.height -= 2;
        Fill(dc, base, m_face);
        Text(dc, base, "More Colours...");
    }

    void DrawFrame(wxDC& dc) const
    {
        const std::pair<const wxPen&, const wxPen&> rings[] = {{m_highlight.pen, m_dark.pen},
                                                               {m_face.pen, m_shadow.pen}};
        int inset = 0;
        for (const auto& [leftTop, rightBottom] : rings) {
            ++inset;
            const int right = m_frame.x - 1 - inset;
            const int bottom = m_frame.y - 1 - inset;
            dc.SetPen(leftTop);
            dc.DrawLine(inset, inset, inset, bottom);
            dc.DrawLine(inset + 1, inset, right, inset);
            dc.SetPen(rightBottom);
            dc.DrawLine(right, inset - 1, right, bottom);
            dc.DrawLine(inset - 1, bottom, right + 1, bottom);
        }
    }

    wxSize m_frame;
    wxRect m_automatic;
    wxRect m_more;
    std::array<Cell, fittings::kColourCount> m_cells;
    wxBrush m_default;
    wxFont m_font = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
    Ink m_face{wxSYS_COLOUR_BTNFACE};
    Ink m_shadow{wxSYS_COLOUR_BTNSHADOW};
    Ink m_highlight{wxSYS_COLOUR_BTNHIGHLIGHT};
    Ink m_dark{wxSYS_COLOUR_3DDKSHADOW};
};

wxImage PictureOf(Popup& shown)
{
    shown.dc.SelectObject(wxNullBitmap);
    return shown.bitmap.ConvertToImage();
}

// Returns whether the popup and Primitives draw exactly the same picture.
bool AreAlike()
{
    Popup ours;
    ours.popup.DoDrawControl(&ours.dc);
    Popup peers;
    Primitives(peers.popup).Draw(peers.dc);
    const wxImage a = PictureOf(ours);
    const wxImage b = PictureOf(peers);
    return a.GetSize() == b.GetSize() &&
           std::memcmp(a.GetData(), b.GetData(), std::size_t{3} * a.GetWidth() * a.GetHeight()) == 0;
}

void Paint(benchmark::State& state)
{
    if (!AreAlike())
        state.SkipWithError("the peer draws something else");
    Popup shown;
    for (auto _ : state)
        shown.popup.DoDrawControl(&shown.dc);
}

void PaintPrimitives(benchmark::State& state)
{
    Popup shown;
    const Primitives primitives(shown.popup);
    for (auto _ : state)
        primitives.Draw(shown.dc);
}

BENCHMARK(Paint)->Name("colour/paint");
BENCHMARK(PaintPrimitives)->Name("colour/paint/peer");

}  // namespace
