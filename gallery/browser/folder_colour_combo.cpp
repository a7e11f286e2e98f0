#include <gallery/browser/folder_colour_combo.h>

#include <utility>

namespace gallery {

class FolderColourCombo::ColourPopup : public wxColourPopup
{
public:
    // Returns the colour that the folder gets if the user chooses the hot cell; invalid for "Automatic". @a colour is
    // the colour that the popup reports. @a own is the folder's current colour.
    wxColour FolderColour(const wxColour& colour, const wxColour& own) const
    {
        if (m_nCurrentSel == CELL_AUTOMATIC)
            return {};
        // Keep the folder's own colour if the popup reports a colour that the user has not chosen. This is the case if
        // no cell is hot, if "More Colours..." is hot, or after its dialog was cancelled. The reported colour is then
        // the folder's own, or the default colour if the folder has none.
        const bool ofPalette = m_nCurrentSel >= 0;
        return !ofPalette && colour == (own.IsOk() ? own : GetDefaultColour()) ? own : colour;
    }

    void StartWith(const wxColour& colour, const wxColour& automatic)
    {
        // Replace the chosen cell: the popup would keep "Automatic" chosen, but that choice was made for another
        // folder.
        m_nChosenColourSel = colour.IsOk() ? CELL_NONE : CELL_AUTOMATIC;
        SetDefaultColour(automatic);
        SetInitialColour(colour.IsOk() ? colour : automatic);
    }
};

FolderColourCombo::FolderColourCombo(wxWindow* parent, Handler onLook, Handler onChoose)
    : m_onLook(std::move(onLook)), m_onChoose(std::move(onChoose)), m_colours(new ColourPopup)
{
    Create(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxCB_READONLY);
    SetName("FolderColour");
    SetMinSize(FromDIP(wxSize(52, 28)));
    m_colours->SetColorListener(this);
    m_colours->SetCenterOn(wxGetTopLevelParent(parent));
    SetPopupControl(m_colours);
}

FolderColourCombo::~FolderColourCombo()
{
    // Remove this object as the listener: the base class closes an open popup when this class's part of the object is
    // already destroyed.
    m_colours->SetColorListener(nullptr);
}

void FolderColourCombo::ShowColour(const wxColour& colour, const wxColour& automatic)
{
    m_colour = colour;
    m_colours->StartWith(colour, automatic);
    // Clear the text. It may still be the name of the colour that was chosen for another folder: when the popup opens,
    // it would make that colour's cell hot, and the arrow keys would start there.
    SetText("");
}

void FolderColourCombo::OnColourSelChange(const wxColour& colour)
{
    m_onLook(m_colours->FolderColour(colour, m_colour));
}

void FolderColourCombo::OnColourSelEnd(const wxColour& colour)
{
    m_colour = m_colours->FolderColour(colour, m_colour);
    m_onLook(m_colour);
    m_onChoose(m_colour);
}

void FolderColourCombo::OnColourSelCancel(const wxColour& /*colour*/)
{
    m_onLook(m_colour);
}

}  // namespace gallery
