#include <gallery/pages/page_settings.h>

#include <fittings/config/ui_config_mgr.h>

namespace gallery {

wxString PageSettings::Load(const wxString& name) const
{
    return ui_config_mgr::GetConfigString(m_file, m_section, name);
}

void PageSettings::Save(const wxString& name, const wxString& text) const
{
    ui_config_mgr::WriteConfigString(m_file, m_section, name, text);
}

bool PageSettings::LoadFlag(const wxString& name, bool otherwise) const
{
    const wxString text = Load(name);
    return text == "0" || text == "1" ? text == "1" : otherwise;
}

void PageSettings::SaveFlag(const wxString& name, bool flag) const
{
    Save(name, flag ? "1" : "0");
}

int PageSettings::LoadNumber(const wxString& name, int least, int most, int otherwise) const
{
    long number = 0;
    const bool isUsable = Load(name).ToLong(&number) && number >= least && number <= most;
    return isUsable ? static_cast<int>(number) : otherwise;
}

void PageSettings::SaveNumber(const wxString& name, int number) const
{
    Save(name, wxString::Format("%d", number));
}

wxColour PageSettings::LoadColour(const wxString& name, const wxColour& otherwise) const
{
    const wxString text = Load(name);
    wxColour colour;
    return text.StartsWith("#") && colour.Set(text) ? colour : otherwise;
}

void PageSettings::SaveColour(const wxString& name, const wxColour& colour) const
{
    Save(name, colour.GetAsString(wxC2S_HTML_SYNTAX));
}

}  // namespace gallery
