#include <gallery/colours/colour_field.h>

#include <utility>

namespace gallery {

ColourField::ColourField(wxWindow* parent, std::function<void()> onChoose)
    : m_onChoose(std::move(onChoose)), m_colours(new wxColourPopup)
{
    Create(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxCB_READONLY);
    m_colours->SetAutomaticText("");
    m_colours->SetColorListener(this);
    m_colours->SetCenterOn(wxGetTopLevelParent(parent));
    SetPopupControl(m_colours);
}

ColourField::~ColourField()
{
    // An open popup closes with the window, when what would be told of it may be gone.
    m_colours->SetColorListener(nullptr);
}

void ColourField::SetColour(const wxColour& colour)
{
    m_colours->SetInitialColour(colour);
    Refresh();
}

void ColourField::OnColourSelEnd(const wxColour& /*colour*/)
{
    m_onChoose();
}

}  // namespace gallery
