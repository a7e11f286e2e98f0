#include <fittings/xrc/number_ctrl_handler.h>

#include <fittings/numedit/number_ctrl.h>

namespace {

// Returns whether a printf format has one `%s` and no other conversion. A format with more conversions would read
// arguments that do not exist.
bool TakesOneText(const wxString& format)
{
    wxString rest = format;
    rest.Replace("%%", "");
    return rest.Freq('%') == 1 && rest.Contains("%s");
}

}  // namespace

wxNumberCtrlXmlHandler::wxNumberCtrlXmlHandler()
{
    XRC_ADD_STYLE(wxTE_PROCESS_ENTER);
    XRC_ADD_STYLE(wxTE_PROCESS_TAB);
    XRC_ADD_STYLE(wxTE_READONLY);
    XRC_ADD_STYLE(wxTE_LEFT);
    XRC_ADD_STYLE(wxTE_CENTRE);
    XRC_ADD_STYLE(wxTE_RIGHT);
    AddWindowStyles();
}

wxNumberCtrlXmlHandler::~wxNumberCtrlXmlHandler() = default;

// Compares the `class` in the resource, so that an object with a `subclass` is handled too.
bool wxNumberCtrlXmlHandler::CanHandle(wxXmlNode* node)
{
    return IsOfClass(node, "wxNumberCtrl");
}

wxObject* wxNumberCtrlXmlHandler::DoCreateResource()
{
    auto* control = dynamic_cast<wxNumberCtrl*>(m_instance);
    if (m_instance && !control)
        ReportError("the object to load is no wxNumberCtrl");
    if (!control)
        control = new wxNumberCtrl;

    const long decimals = GetLong("decimals", 2);
    if (decimals < 0)
        ReportParamError("decimals", wxString::Format("\"%ld\" is below 0", decimals));
    CNumberFormat format = wxNumberCtrl::FromLocale(decimals < 0 ? 2 : static_cast<std::uint64_t>(decimals));
    if (HasParam("template")) {
        const wxString text = GetNodeText(GetParamNode("template"), wxXRC_TEXT_NO_ESCAPE);
        if (TakesOneText(text))
            format.m_strTemplate = text.wc_str();
        else
            ReportParamError("template", wxString::Format("\"%s\" has not one %%s", text));
    }
    control->Create(m_parentAsWindow, GetID(), format, GetPosition(), GetSize(), GetStyle(), wxDefaultValidator,
                    GetName());
    const auto report = [this](const wxString& name) {
        ReportParamError(name, wxString::Format("\"%s\" is refused", GetParamValue(name)));
    };
    wxString min = GetParamValue("min");
    if (!control->SetRange(min, wxString())) {
        report("min");
        min.clear();
    }
    if (!control->SetRange(min, GetParamValue("max")))
        report("max");
    if (HasParam("inc") && !control->SetIncrement(GetParamValue("inc")))
        report("inc");
    if (!control->SetDecimal(GetParamValue("value")))
        report("value");
    SetupWindow(control);
    return control;
}
