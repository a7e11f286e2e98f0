#include <fittings/colour/colour_validator.h>

#include <wx/clrpicker.h>
#include <wx/colour.h>

#include <fittings/colour/colour_combo.h>

wxColourValidator::wxColourValidator(wxColour* colour) : m_colour(colour) {}

// The window is not copied: each validator is set on its own window. NOLINTNEXTLINE(bugprone-copy-constructor-init)
wxColourValidator::wxColourValidator(const wxColourValidator& other) : wxValidator(), m_colour(other.m_colour) {}

wxColourValidator::~wxColourValidator() = default;

wxObject* wxColourValidator::Clone() const
{
    return new wxColourValidator(*this);
}

bool wxColourValidator::Validate(wxWindow* /*parent*/)
{
    return true;
}

bool wxColourValidator::TransferToWindow()
{
    if (!m_colour)
        return true;
    if (auto* const combo = dynamic_cast<wxColourCombo*>(GetWindow()))
        return combo->SetColour(*m_colour);
    auto* const picker = dynamic_cast<wxColourPickerCtrl*>(GetWindow());
    if (!picker || !m_colour->IsOk())
        return false;
    picker->SetColour(*m_colour);
    return true;
}

bool wxColourValidator::TransferFromWindow()
{
    if (!m_colour)
        return true;
    wxColour colour;
    if (const auto* const combo = dynamic_cast<wxColourCombo*>(GetWindow()))
        colour = combo->GetColour();
    else if (const auto* const picker = dynamic_cast<wxColourPickerCtrl*>(GetWindow()))
        colour = picker->GetColour();
    if (!colour.IsOk())
        return false;
    *m_colour = colour;
    return true;
}
