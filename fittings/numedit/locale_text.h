#ifndef FITTINGS_NUMEDIT_LOCALE_TEXT_H_
#define FITTINGS_NUMEDIT_LOCALE_TEXT_H_

#include <string>

#include <wx/strconv.h>
#include <wx/string.h>

// The texts of localeconv() as wide ones. Private to the library.

namespace fittings {

/// Widens a text of localeconv(); empty when the toolkit's current conversion cannot.
///
/// A converting wxString costs more than checking a number, and nearly every locale's text is one ASCII character.
inline std::wstring FromLocale(const char* text)
{
    if (text[0] == '\0')
        return {};
    if (text[1] == '\0' && static_cast<unsigned char>(text[0]) < 0x80)
        return std::wstring(1, static_cast<wchar_t>(text[0]));
    return wxString(text, *wxConvCurrent).ToStdWstring();
}

}  // namespace fittings

#endif
