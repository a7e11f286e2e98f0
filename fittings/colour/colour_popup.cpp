#include <fittings/colour/colour_popup.h>

#include <algorithm>
#include <array>
#include <memory>

#include <wx/dcclient.h>
#include <wx/settings.h>
#include <wx/translation.h>

#include <fittings/base/accessible.h>
#include <fittings/base/or_empty.h>
#include <fittings/colour/colour_text.h>

namespace {

// Translators: chooses the default colour of a document or program.
constexpr const wchar_t* kAutomatic = wxTRANSLATE(L"Automatic");
// Translators: opens the dialog in which any colour can be mixed.
constexpr const wchar_t* kMoreColours = wxTRANSLATE(L"More Colours...");

constexpr int kColumns = 8;
constexpr int kBoxSize = 18;
constexpr int kSmallestSwatch = 7;
constexpr int kMarginWhereUnknown = 2;

// The size of the window until it is laid out.
constexpr int kFirstSize = 100;

bool IsOpen(const wxComboCtrlBase& combo)
{
    const int state = combo.GetPopupWindowState();
    return state == wxComboCtrlBase::Animating || state == wxComboCtrlBase::Visible;
}

wxRect FromCorners(int left, int top, int right, int bottom)
{
    return {wxPoint(left, top), wxPoint(right, bottom)};
}

wxSize TextExtent(wxDC& dc, const wxString& text)
{
    return text.empty() ? wxSize(0, 0) : dc.GetTextExtent(text);
}

// Returns the place for the popup: @a at, moved left or right if the popup would extend beyond a side of the screen. If
// the popup would extend below the screen, the place is higher by the sum of the heights of the popup and @a parent.
wxPoint FitToScreen(wxPoint at, const wxSize& size, const wxWindow& parent)
{
    int screenWidth = 0;
    int screenHeight = 0;
    wxDisplaySize(&screenWidth, &screenHeight);
    // The popup may extend one pixel beyond the right side and beyond the bottom of the screen.
    if (at.x + size.x - 1 > screenWidth)
        at.x = screenWidth - size.x + 1;
    at.x = std::max(at.x, 0);
    if (at.y + size.y - 1 > screenHeight)
        at.y -= parent.GetSize().y + size.y;
    return at;
}

}  // namespace

wxColourPopup::wxColourPopup()
{
    Initialise();
}

wxColourPopup::~wxColourPopup() = default;

void wxColourPopup::Initialise()
{
    m_pListener = nullptr;
    m_bRefreshCombo = false;
    m_bInternalHide = false;
    m_pCenterOn = nullptr;

    m_nNumColours = fittings::kColourCount;
    m_strAutomatic = fittings::OrEmpty(fittings::ColourText(kAutomatic));
    m_strMoreColours = fittings::OrEmpty(fittings::ColourText(kMoreColours));
    m_nNumColumns = kColumns;
    m_nNumRows = 0;
    m_nBoxSize = kBoxSize;
    m_nMargin = wxSystemSettings::GetMetric(wxSYS_EDGE_X);
    if (m_nMargin == -1)
        m_nMargin = kMarginWhereUnknown;

    m_nChosenColourSel = CELL_NONE;
    m_nCurrentSel = CELL_NONE;
    m_crInitialColour = wxColour(0, 0, 0);
    m_crColour = m_crInitialColour;
    m_crDefaultColour = wxColour(0, 0, 0);

    if (m_nBoxSize - 2 * m_nMargin < kSmallestSwatch)
        m_nBoxSize = 2 * m_nMargin + kSmallestSwatch;
    m_font = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);

    std::array<unsigned char, fittings::kColourCount> red;
    std::array<unsigned char, fittings::kColourCount> green;
    std::array<unsigned char, fittings::kColourCount> blue;
    for (int i = 0; i < fittings::kColourCount; ++i) {
        const wxColour colour = GetColour(i);
        red[i] = colour.Red();
        green[i] = colour.Green();
        blue[i] = colour.Blue();
    }
    m_palette.Create(fittings::kColourCount, red.data(), green.data(), blue.data());
}

void wxColourPopup::SetInitialColour(const wxColour& colour)
{
    wxCHECK_RET(colour.IsOk(), "invalid colour");
    m_crInitialColour = colour;
    if (m_combo)
        m_combo->Refresh();
}

bool wxColourPopup::SetColour(const wxColour& colour)
{
    if (!colour.IsOk())
        return false;
    m_crInitialColour = colour;
    m_nChosenColourSel = CELL_NONE;
    FindCellFromColour(m_crInitialColour);
    const bool hotIsFixed = m_nCurrentSel == CELL_AUTOMATIC || (m_nCurrentSel >= 0 && m_nCurrentSel < m_nNumColours);
    m_crColour = hotIsFixed ? GetColour(m_nCurrentSel) : m_crInitialColour;
    if (GetHandle())
        Refresh();
    if (!m_combo)
        return true;
    const wxString name = TextOf(m_nChosenColourSel);
    // Remember the new name for RestoreValue(). When the popup closes, the combo's value changes to the name of the hot
    // cell, and RestoreValue() changes it back.
    if (m_valueWhenShown || m_ending)
        m_valueWhenShown = name;
    if (m_combo->GetValue() != name)
        m_combo->SetText(name);
    m_combo->Refresh();
    return true;
}

void wxColourPopup::SetDefaultColour(const wxColour& colour)
{
    wxCHECK_RET(colour.IsOk(), "invalid colour");
    m_crDefaultColour = colour;
}

void wxColourPopup::SetAutomaticText(const wxString& text)
{
    m_strAutomatic = text;
    LayOutBox(CELL_AUTOMATIC, text);
}

void wxColourPopup::SetMoreColoursText(const wxString& text)
{
    m_strMoreColours = text;
    LayOutBox(CELL_MORE_COLOURS, text);
}

void wxColourPopup::LayOutBox(int index, const wxString& text)
{
    if (text.empty() && m_nCurrentSel == index)
        m_nCurrentSel = CELL_NONE;
    if (text.empty() && m_nChosenColourSel == index)
        m_nChosenColourSel = CELL_NONE;
    if (GetHandle()) {
        SetWindowSize(GetRect());
        Refresh();
    }
}

wxColour wxColourPopup::GetColour(int index) const
{
    if (index == CELL_MORE_COLOURS)
        return m_crInitialColour;
    if (index == CELL_AUTOMATIC)
        return m_crDefaultColour;
    const std::uint32_t packed = GetColourTable()[index].crColour;
    return {static_cast<unsigned char>(packed), static_cast<unsigned char>(packed >> 8),
            static_cast<unsigned char>(packed >> 16)};
}

int wxColourPopup::GetRow(int index) const
{
    if (index == CELL_MORE_COLOURS && !m_strMoreColours.empty())
        return CELL_MORE_COLOURS;
    if (index == CELL_AUTOMATIC && !m_strAutomatic.empty())
        return CELL_AUTOMATIC;
    return index >= 0 && index < m_nNumColours ? index / m_nNumColumns : CELL_NONE;
}

int wxColourPopup::GetColumn(int index) const
{
    const int row = GetRow(index);
    return row >= 0 ? index % m_nNumColumns : row;
}

int wxColourPopup::GetIndex(int row, int col) const
{
    if ((row == CELL_MORE_COLOURS || col == CELL_MORE_COLOURS) && !m_strMoreColours.empty())
        return CELL_MORE_COLOURS;
    if ((row == CELL_AUTOMATIC || col == CELL_AUTOMATIC) && !m_strAutomatic.empty())
        return CELL_AUTOMATIC;
    if (row < 0 || col < 0 || row >= m_nNumRows || col >= m_nNumColumns)
        return CELL_NONE;
    // The last row may have fewer cells.
    const int index = m_nNumColumns * row + col;
    return index < m_nNumColours ? index : CELL_NONE;
}

void wxColourPopup::FindCellFromColour(const wxColour& colour)
{
    if (colour == m_crDefaultColour && !m_strAutomatic.empty() && m_nChosenColourSel == CELL_NONE)
        m_nChosenColourSel = CELL_AUTOMATIC;
    if (m_nChosenColourSel == CELL_AUTOMATIC)
        return;
    for (int i = 0; i < m_nNumColours; ++i) {
        if (GetColour(i) == colour) {
            m_nChosenColourSel = i;
            return;
        }
    }
    m_nChosenColourSel = m_strMoreColours.empty() ? CELL_NONE : CELL_MORE_COLOURS;
}

wxString wxColourPopup::GetStringValue() const
{
    // While DoEndSel() hides the popup, the combo calls this function and takes the result as its value. Return the
    // value that DoEndSel() restores next. If the name of the hot cell were returned, the combo's text field would send
    // an event with a colour that was not chosen, and then another event with the old text.
    if (m_isClosingAfterCancel && m_valueWhenShown)
        return *m_valueWhenShown;
    return TextOf(m_nCurrentSel);
}

wxString wxColourPopup::TextOf(int index) const
{
    if (index == CELL_AUTOMATIC)
        return m_strAutomatic;
    if (index == CELL_MORE_COLOURS)
        return m_strMoreColours;
    if (index >= 0 && index < fittings::kColourCount)
        return fittings::OrEmpty(GetColourName(index));
    return {};
}

void wxColourPopup::SetStringValue(const wxString& value)
{
    if (m_bInternalHide || m_ending)
        return;
    // Remember a value that the host sets while the popup is open, but not one that the combo passes while it opens or
    // closes the popup.
    if (m_valueWhenShown && m_combo && IsOpen(*m_combo))
        m_valueWhenShown = m_combo->GetValue();
    const std::weak_ptr<const bool> life(m_life);
    for (int i = 0; i < fittings::kColourCount; ++i) {
        const wchar_t* const name = GetColourName(i);
        if (name && value == name) {
            // While a combo dismisses its popup, it passes the name of the hot cell to this function. Change nothing
            // then: that cell is hot already.
            if (i != m_nCurrentSel || !m_valueWhenShown || m_crColour != GetColour(i))
                ChangeSelection(i);
            // While a combo opens its popup, it passes its text to this function. The pointer may be over another cell
            // then, so do not show the name at the pointer. A listener may have destroyed the popup by now.
            if (!life.expired() && m_valueWhenShown && m_combo && !m_combo->IsPopupShown())
                ShowNameAtPointer("");
            return;
        }
    }
}

void wxColourPopup::OnInternalIdle()
{
    wxWindow::OnInternalIdle();
    fittings::Describe(*this, fittings::AccessibleRole::Grid, m_combo ? m_combo->GetLabelText() : wxString(),
                       fittings::SpokenText(*this));
}

bool wxColourPopup::Create(wxWindow* parent)
{
    const wxRect rect(parent->GetPosition(), wxSize(kFirstSize, kFirstSize));
    if (!wxWindow::Create(parent, wxID_ANY, rect.GetPosition(), rect.GetSize(), wxWANTS_CHARS, "ColourPopup"))
        return false;
    Bind(wxEVT_CHAR_HOOK, &wxColourPopup::OnCharHook, this);
    SetWindowSize(rect);
    FindCellFromColour(m_crInitialColour);
    return true;
}

void wxColourPopup::SetWindowSize(const wxRect& rect)
{
    if (!GetHandle())
        return;
    const int margin = m_nMargin;
    m_nNumRows = (m_nNumColours + m_nNumColumns - 1) / m_nNumColumns;
    const wxSize text = MeasureTexts();
    // The popup is as wide as the widest of three: the grid and the two boxes with their texts.
    const int width = std::max(m_nNumColumns * m_nBoxSize + 2 * margin, text.x);
    int height = m_nNumRows * m_nBoxSize + 2 * margin;
    m_rectAutomatic = {};
    if (!m_strAutomatic.empty()) {
        m_rectAutomatic = FromCorners(margin, margin, width - margin, text.y + 2 * margin);
        height += m_rectAutomatic.height + 2 * margin;
    }
    m_rectMoreColours = {};
    if (!m_strMoreColours.empty()) {
        m_rectMoreColours = FromCorners(margin, height, width - margin, height + margin + text.y);
        height += m_rectMoreColours.height + 2 * margin;
    }

    m_rectWindow = wxRect(FitToScreen(rect.GetPosition(), wxSize(width, height), *GetParent()), wxSize(width, height));
    SetSize(m_rectWindow, wxSIZE_AUTO);
}

wxSize wxColourPopup::MeasureTexts()
{
    if (m_strAutomatic.empty() && m_strMoreColours.empty())
        return {0, 0};
    wxClientDC dc(this);
    dc.SetFont(m_font);
    wxSize size = TextExtent(dc, m_strAutomatic);
    size.IncTo(TextExtent(dc, m_strMoreColours));
    return size + wxSize(2 * m_nMargin, 4 * m_nMargin + 2);
}

bool wxColourPopup::GetCellRect(int index, wxRect& rect) const
{
    if (index == CELL_MORE_COLOURS) {
        rect = m_rectMoreColours;
        return true;
    }
    if (index == CELL_AUTOMATIC) {
        rect = m_rectAutomatic;
        return true;
    }
    if (index < 0 || index >= m_nNumColours)
        return false;
    rect = wxRect(GetColumn(index) * m_nBoxSize + m_nMargin, GetRow(index) * m_nBoxSize + m_nMargin, m_nBoxSize,
                  m_nBoxSize);
    if (!m_strAutomatic.empty())
        rect.y += m_nMargin + m_rectAutomatic.height;
    return true;
}

wxSize wxColourPopup::GetAdjustedSize(int /*minWidth*/, int /*prefHeight*/, int /*maxHeight*/)
{
    return m_rectWindow.GetSize();
}
