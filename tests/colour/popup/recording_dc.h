#ifndef FITTINGS_TESTS_COLOUR_POPUP_RECORDING_DC_H_
#define FITTINGS_TESTS_COLOUR_POPUP_RECORDING_DC_H_

#include <string>
#include <vector>

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcmirror.h>
#include <wx/image.h>

#include <tests/colour/popup/system_values.h>

using Calls = std::vector<std::string>;

/// Draws on a picture, and records what is drawn, one call per line:
///
///   palette                            the palette is set
///   rect 2,2 18x18 FACE FACE           position, size, colour of the outline and of the inside
///   line 3,3-3,18 DARK                 from one point to the other, colour
///   text 'Automatic' 10,5 transparent  position, background mode
///   text colour DARK                   the colour of the texts is set
///
/// A colour is followed by "unusual" if the pen is not solid or not one pixel wide, or if the brush is not solid. Every
/// text has the size textSize.
class RecordingDCImpl : public wxMirrorDCImpl
{
public:
    RecordingDCImpl(wxDC* owner, wxDCImpl& target) : wxMirrorDCImpl(owner, target, false) {}

    Calls calls;
    wxSize textSize{60, 10};
    wxPalette palette;

    void SetPen(const wxPen& pen) override
    {
        m_penName = NameOf(pen.GetColour());
        if (pen.GetWidth() != 1 || pen.GetStyle() != wxPENSTYLE_SOLID)
            m_penName += " unusual";
        wxMirrorDCImpl::SetPen(pen);
    }

    void SetBrush(const wxBrush& brush) override
    {
        m_brushName = NameOf(brush.GetColour());
        if (brush.GetStyle() != wxBRUSHSTYLE_SOLID)
            m_brushName += " unusual";
        wxMirrorDCImpl::SetBrush(brush);
    }

    void SetFont(const wxFont& font) override
    {
        m_font = font;
        wxMirrorDCImpl::SetFont(font);
    }

    void SetBackgroundMode(int mode) override
    {
        m_backgroundName = mode == wxBRUSHSTYLE_TRANSPARENT ? "transparent" : "solid";
        wxMirrorDCImpl::SetBackgroundMode(mode);
    }

    void SetTextForeground(const wxColour& colour) override { calls.push_back("text colour " + NameOf(colour)); }

    void SetPalette(const wxPalette& set) override
    {
        palette = set;
        calls.emplace_back("palette");
    }

protected:
    void DoDrawLine(wxCoord x1, wxCoord y1, wxCoord x2, wxCoord y2) override
    {
        calls.push_back("line " + At(x1, y1) + "-" + At(x2, y2) + " " + m_penName);
        wxMirrorDCImpl::DoDrawLine(x1, y1, x2, y2);
    }

    void DoDrawRectangle(wxCoord x, wxCoord y, wxCoord width, wxCoord height) override
    {
        calls.push_back("rect " + At(x, y) + " " + std::to_string(width) + "x" + std::to_string(height) + " " +
                        m_penName + " " + m_brushName);
        wxMirrorDCImpl::DoDrawRectangle(x, y, width, height);
    }

    void DoDrawText(const wxString& text, wxCoord x, wxCoord y) override
    {
        calls.push_back("text '" + text.utf8_string() + "' " + At(x, y) + " " + m_backgroundName);
        wxMirrorDCImpl::DoDrawText(text, x, y);
    }

    void DoGetTextExtent(const wxString& /*text*/, wxCoord* x, wxCoord* y, wxCoord* descent, wxCoord* leading,
                         const wxFont* /*font*/) const override
    {
        *x = textSize.x;
        *y = textSize.y;
        if (descent)
            *descent = 0;
        if (leading)
            *leading = 0;
    }

private:
    static std::string At(int x, int y) { return std::to_string(x) + "," + std::to_string(y); }

    static std::string NameOf(const wxColour& colour)
    {
        if (colour == kFace)
            return "FACE";
        if (colour == kShadow)
            return "SHADOW";
        if (colour == kHighlight)
            return "HIGHLIGHT";
        if (colour == kDark)
            return "DARK";
        return colour.GetAsString(wxC2S_HTML_SYNTAX).utf8_string();
    }

    std::string m_penName = "no pen";
    std::string m_brushName = "no brush";
    std::string m_backgroundName = "no mode";
};

class RecordingDC : public wxDC
{
public:
    explicit RecordingDC(wxMemoryDC& target) : wxDC(new RecordingDCImpl(this, *target.GetImpl())) {}

    RecordingDCImpl& Record() { return *static_cast<RecordingDCImpl*>(m_pimpl); }
};

/// A picture to draw on, filled with one colour at first. At() returns a pixel. After the first At(), nothing more can
/// be drawn.
class Picture
{
public:
    explicit Picture(wxSize size, const wxColour& background = wxColour(255, 0, 255)) : m_bitmap(size, 24), dc(m_bitmap)
    {
        dc.SetBackground(background);
        dc.Clear();
    }

    wxColour At(int x, int y)
    {
        if (!m_image.IsOk()) {
            dc.SelectObject(wxNullBitmap);
            m_image = m_bitmap.ConvertToImage();
        }
        return {m_image.GetRed(x, y), m_image.GetGreen(x, y), m_image.GetBlue(x, y)};
    }

private:
    wxBitmap m_bitmap;
    wxImage m_image;

public:
    wxMemoryDC dc;
};

#endif
