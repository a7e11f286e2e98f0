#ifndef FITTINGS_GALLERY_COLOUR_SETTINGS_H_
#define FITTINGS_GALLERY_COLOUR_SETTINGS_H_

#include <wx/colour.h>
#include <wx/string.h>

namespace fittings {

/// What the page of colours remembers between sessions. Each function reads or writes the settings store at once.
namespace colour_settings {

/// Empty when nothing is stored.
wxString Load(const wxString& key);
void Save(const wxString& key, const wxString& text);

/// Returns @a otherwise when no colour is stored.
wxColour LoadColour(const wxString& key, const wxColour& otherwise);
void SaveColour(const wxString& key, const wxColour& colour);

}  // namespace colour_settings

}  // namespace fittings

#endif
