#include <gallery/colours/colour_options.h>

#include <algorithm>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>

namespace gallery {

namespace {

// The least width of a cell without its margins, in pixels.
constexpr int kSmallestSwatch = 7;

class Popup : public wxColourPopup
{
public:
    explicit Popup(const ColourOptions& options)
    {
        m_nNumColumns = options.columns;
        m_nMargin = options.margin;
        m_nBoxSize = std::max(options.cellSize, 2 * options.margin + kSmallestSwatch);
        if (!options.hasAutomatic || !options.automatic.empty())
            SetAutomaticText(options.hasAutomatic ? options.automatic : wxString());
        if (!options.hasMore || !options.more.empty())
            SetMoreColoursText(options.hasMore ? options.more : wxString());
        SetDefaultColour(options.defaultColour);
        SetRefreshCombo(options.refresh);
    }
};

class Combo : public wxColourCombo
{
public:
    explicit Combo(const ColourOptions& options)
    {
        m_animDuration = options.duration;
        EnablePopupAnimation(options.animate);
    }
};

}  // namespace

wxColourCombo* MakeColourCombo(wxWindow* parent, const ColourOptions& options, const wxColour& colour)
{
    auto* popup = new Popup(options);
    if (options.centre)
        popup->SetCenterOn(wxGetTopLevelParent(parent));
    // Create the control with a text: with a colour, it would make a wxColourPopup. Only a class derived from
    // wxColourPopup can set the number of columns and the size of the cells.
    auto* combo = new Combo(options);
    combo->Create(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, options.readOnly ? wxCB_READONLY : 0);
    combo->SetPopupControl(popup);
    combo->SetColour(colour);
    return combo;
}

}  // namespace gallery
