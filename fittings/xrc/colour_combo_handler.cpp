#include <fittings/xrc/colour_combo_handler.h>

#include <wx/combo.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>

wxColourComboXmlHandler::wxColourComboXmlHandler()
{
    XRC_ADD_STYLE(wxCB_READONLY);
    XRC_ADD_STYLE(wxTE_PROCESS_ENTER);
    XRC_ADD_STYLE(wxCC_SPECIAL_DCLICK);
    XRC_ADD_STYLE(wxCC_STD_BUTTON);
    AddWindowStyles();
}

wxColourComboXmlHandler::~wxColourComboXmlHandler() = default;

// Compares the `class` in the resource, so that an object with a `subclass` is handled too.
bool wxColourComboXmlHandler::CanHandle(wxXmlNode* node)
{
    return IsOfClass(node, "wxColourCombo");
}

namespace {

// Returns whether the text is a colour such as "#FF0000" or "rgb(255, 0, 0)". Returns false for the name of a colour,
// because a name becomes the field's text.
bool IsColour(const wxString& value)
{
    return (value.StartsWith("#") || value.Lower().StartsWith("rgb")) && wxColour(value).IsOk();
}

}  // namespace

wxObject* wxColourComboXmlHandler::DoCreateResource()
{
    auto* combo = dynamic_cast<wxColourCombo*>(m_instance);
    if (m_instance && !combo)
        ReportError("the object to load is no wxColourCombo");
    if (!combo)
        combo = new wxColourCombo;
    const wxString value = GetText("value");
    const wxColour colour = GetColour("colour", IsColour(value) ? wxColour(value) : wxNullColour);
    combo->Create(m_parentAsWindow, GetID(), IsColour(value) ? wxString() : value, GetPosition(), GetSize(), GetStyle(),
                  wxDefaultValidator, GetName());
    if (HasParam("buttonsize")) {
        const wxSize size = GetSize("buttonsize", combo);
        combo->SetButtonPosition(size.x, size.y);
    }
    combo->SetPopupControl(MakePopup());
    if (colour.IsOk())
        combo->SetColour(colour);
    SetupWindow(combo);
    return combo;
}

wxColourPopup* wxColourComboXmlHandler::MakePopup()
{
    auto* const popup = new wxColourPopup;
    const wxColour initial = GetColour("initial-colour", popup->GetInitialColour());
    if (initial.IsOk())
        popup->SetInitialColour(initial);
    const wxColour automatic = GetColour("default-colour", popup->GetDefaultColour());
    if (automatic.IsOk())
        popup->SetDefaultColour(automatic);
    if (HasParam("automatic-text"))
        popup->SetAutomaticText(GetNodeText(GetParamNode("automatic-text"), wxXRC_TEXT_NO_ESCAPE));
    if (HasParam("more-colours-text"))
        popup->SetMoreColoursText(GetNodeText(GetParamNode("more-colours-text"), wxXRC_TEXT_NO_ESCAPE));
    // Report an invalid text here: the toolkit takes every text except "1" as false.
    const wxString refresh = GetParamValue("refresh-combo");
    if (!refresh.empty() && refresh != "0" && refresh != "1")
        ReportParamError("refresh-combo", wxString::Format("\"%s\" is neither 0 nor 1", refresh));
    popup->SetRefreshCombo(refresh == "1");
    return popup;
}
