#ifndef FITTINGS_GALLERY_PAGES_PAGE_SETTINGS_H_
#define FITTINGS_GALLERY_PAGES_PAGE_SETTINGS_H_

#include <wx/colour.h>
#include <wx/string.h>

namespace gallery {

/// The settings of a page: values by name, in one section of a settings file. Each call reads or writes the file. If a
/// value is missing or invalid, a function with the parameter @a otherwise returns this parameter.
class PageSettings
{
public:
    constexpr PageSettings(const wchar_t* file, const wchar_t* section) : m_file(file), m_section(section) {}

    /// Returns the stored text; empty when nothing is stored.
    wxString Load(const wxString& name) const;
    void Save(const wxString& name, const wxString& text) const;

    bool LoadFlag(const wxString& name, bool otherwise) const;
    void SaveFlag(const wxString& name, bool flag) const;

    int LoadNumber(const wxString& name, int least, int most, int otherwise) const;
    void SaveNumber(const wxString& name, int number) const;

    wxColour LoadColour(const wxString& name, const wxColour& otherwise) const;
    void SaveColour(const wxString& name, const wxColour& colour) const;

private:
    const wchar_t* m_file;
    const wchar_t* m_section;
};

inline constexpr PageSettings kWindowSettings(L"browser.ini", L"Window");
inline constexpr PageSettings kContentsSettings(L"browser.ini", L"Contents");
inline constexpr PageSettings kNumberSettings(L"numbers.ini", L"Number");
inline constexpr PageSettings kFormatSettings(L"numbers.ini", L"Format");
inline constexpr PageSettings kColourSettings(L"colours.ini", L"Combo");

}  // namespace gallery

#endif
