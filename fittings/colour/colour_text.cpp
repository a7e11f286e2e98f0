#include <fittings/colour/colour_text.h>

#include <wx/colour.h>
#include <wx/string.h>

#include <fittings/colour/colour_popup.h>
#include <fittings/colour/colour_table.h>
#include <fittings/platform/lng_util.h>

namespace fittings {

namespace {

// Returns the name of @a colour in the palette; if it has none, its number, such as "#0000FE".
wxString ColourName(const wxColour& colour)
{
    for (int i = 0; i < kColourCount; ++i) {
        const ColourTableEntry& entry = GetColourTable()[i];
        if (entry.szName && entry.crColour == colour.GetRGB())
            return wxString(entry.szName).Trim();
    }
    return colour.GetAsString(wxC2S_HTML_SYNTAX);
}

}  // namespace

const wchar_t* ColourText(const wchar_t* key)
{
    static CLanguageDomain everyCatalogue;
    return lng_util_internal::DoGetResourceString(key, &everyCatalogue);
}

wxString SpokenText(const wxColourPopup& popup)
{
    const wxString hot = popup.IsShownOnScreen() ? popup.GetStringValue().Trim() : wxString();
    return hot.empty() ? ColourName(popup.GetInitialColour()) : hot;
}

}  // namespace fittings
