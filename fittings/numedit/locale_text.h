#ifndef FITTINGS_NUMEDIT_LOCALE_TEXT_H_
#define FITTINGS_NUMEDIT_LOCALE_TEXT_H_

#include <string>

#include <wx/strconv.h>
#include <wx/string.h>

// Converts the texts of localeconv() to wide text. Private to the library.

namespace fittings {

/// Converts a text of localeconv() to wide text. Returns an empty text when the toolkit's current conversion fails.
///
/// Nearly every text is one ASCII character, which needs no conversion. A conversion by wxString takes longer than the
/// whole check of a number.
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
