#include "colour_settings.h"

#include <fittings/config/ui_config_mgr.h>

namespace fittings::colour_settings {

namespace {

constexpr const wchar_t* kFile = L"colours.ini";
constexpr const wchar_t* kSection = L"Combo";

}  // namespace

wxString Load(const wxString& key)
{
    return ui_config_mgr::GetConfigString(kFile, kSection, key.wc_str());
}

void Save(const wxString& key, const wxString& text)
{
    ui_config_mgr::WriteConfigString(kFile, kSection, key.wc_str(), text.wc_str());
}

wxColour LoadColour(const wxString& key, const wxColour& otherwise)
{
    const wxString text = Load(key);
    wxColour colour;
    return text.StartsWith("#") && colour.Set(text) ? colour : otherwise;
}

void SaveColour(const wxString& key, const wxColour& colour)
{
    Save(key, colour.GetAsString(wxC2S_HTML_SYNTAX));
}

}  // namespace fittings::colour_settings
