#include <fittings/numedit/num_validator.h>

#include <string>

#include <wx/textctrl.h>
#include <wx/utils.h>

#include <fittings/numedit/entry/refused_key.h>
#include <fittings/numedit/number_edit_utils.h>

namespace {

// Returns whether a key with this code can type a character. WXK_NONE counts: some characters have only a Unicode value
// and no key code.
bool IsCharacter(int keyCode)
{
    if (keyCode == WXK_DELETE || keyCode < WXK_SPACE)
        return keyCode == WXK_NONE;
    return keyCode <= WXK_START;
}

// Returns the text that the control would hold with the character. Throws std::out_of_range if the insertion point is
// beyond the text.
std::wstring TextWith(wchar_t character, const wxTextCtrl& control)
{
    std::wstring text = control.GetValue().ToStdWstring();
    const auto position = static_cast<std::size_t>(control.GetInsertionPoint());
    text.erase(position, control.GetStringSelection().length());
    text.insert(position, 1, character);
    return text;
}

// Returns whether the validator is on a text control. Asserts on any other control, because the number would be lost
// there without a message.
bool HasTextControl(const wxNumValidator& validator)
{
    const bool hasTextControl = validator.CheckValidator();
    wxASSERT_MSG(hasTextControl || !validator.GetWindow(), "wxNumValidator is for a wxTextCtrl, and no other control");
    return hasTextControl;
}

}  // namespace

wxBEGIN_EVENT_TABLE(wxNumValidator, wxValidator)
    EVT_CHAR(wxNumValidator::OnChar)
    EVT_KEY_DOWN(wxNumValidator::OnKeyDown)
wxEND_EVENT_TABLE()

wxNumValidator::wxNumValidator(const CNumberFormat& format, wxString* value) : m_format(eLocaleFormat), m_pString(value)
{
    m_format = format;
}

// The window and the state of the keypad key are not copied: each validator is set on its own window.
// NOLINTNEXTLINE(bugprone-copy-constructor-init)
wxNumValidator::wxNumValidator(const wxNumValidator& other)
    : wxValidator(), m_format(eLocaleFormat), m_pString(other.m_pString)
{
    m_format = other.m_format;
}

wxNumValidator::~wxNumValidator() = default;

wxObject* wxNumValidator::Clone() const
{
    return new wxNumValidator(*this);
}

const CNumberFormat& wxNumValidator::GetFormat() const
{
    return m_format;
}

bool wxNumValidator::CheckValidator() const
{
    return GetWindow() && GetWindow()->IsKindOf(wxCLASSINFO(wxTextCtrl));
}

bool wxNumValidator::Validate(wxWindow*)
{
    if (!HasTextControl(*this))
        return false;
    auto* control = static_cast<wxTextCtrl*>(GetWindow());
    if (!control->IsEnabled())
        return true;
    if (CNumberEditUtils::ValidateString(control->GetValue().wc_str(), m_format))
        return true;
    control->SetFocus();
    return false;
}

bool wxNumValidator::TransferToWindow()
{
    if (!m_pString)
        return true;
    if (!HasTextControl(*this))
        return false;
    static_cast<wxTextCtrl*>(GetWindow())->SetValue(*m_pString);
    return true;
}

bool wxNumValidator::TransferFromWindow()
{
    if (!m_pString)
        return true;
    if (!HasTextControl(*this))
        return false;
    const wxString value = static_cast<wxTextCtrl*>(GetWindow())->GetValue();
    if (!CNumberEditUtils::ValidateString(value.wc_str(), m_format))
        return false;
    *m_pString = value;
    return true;
}

void wxNumValidator::OnChar(wxKeyEvent& event)
{
    if (!CheckValidator() || !IsCharacter(event.GetKeyCode())) {
        event.Skip();
        return;
    }
    auto* control = static_cast<wxTextCtrl*>(GetWindow());

    wchar_t character = m_bNumpadDecimal ? m_format.m_chDecimalPoint : static_cast<wchar_t>(event.GetKeyCode());
    if (character == 0)
        character = event.GetUnicodeKey();

    if (!CNumberEditUtils::ValidateInput(TextWith(character, *control).c_str(), m_format)) {
        fittings::UndoKey(*control);
        if (!IsSilent())
            wxBell();
        return;
    }
    // Write the format's point in place of the character that the keyboard layout gives the keypad key.
    if (m_bNumpadDecimal)
        control->WriteText(wxString(character));
    else
        event.Skip();
}

void wxNumValidator::OnKeyDown(wxKeyEvent& event)
{
    m_bNumpadDecimal = event.GetKeyCode() == WXK_NUMPAD_DECIMAL;
    if (CheckValidator())
        fittings::BeginKey(*static_cast<wxTextCtrl*>(GetWindow()));
    event.Skip();
}
