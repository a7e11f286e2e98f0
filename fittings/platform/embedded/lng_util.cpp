#include <fittings/platform/lng_util.h>

#include <unordered_set>

#include <wx/string.h>
#include <wx/translation.h>

namespace {

const char* const LIBRARY_DOMAIN = "fittings";

// Never destroyed: the texts handed out stay valid until the process ends.
const wchar_t* Intern(const std::wstring& text)
{
    static auto& texts = *new std::unordered_set<std::wstring>;
    return texts.insert(text).first->c_str();
}

// The host may replace its translations at any time, so whether ours are among them is asked for at every look-up.
void LoadOwnCatalogue(wxTranslations& translations)
{
    if (translations.IsLoaded(LIBRARY_DOMAIN))
        return;
    static const bool searched = [] {
        wxFileTranslationsLoader::AddCatalogLookupPathPrefix(wxString::FromUTF8(FITTINGS_LOCALE_DIR));
        return true;
    }();
    static_cast<void>(searched);
    translations.AddCatalog(LIBRARY_DOMAIN);
}

}  // namespace

namespace lng_util_internal {

const wchar_t* DoGetResourceString(const wchar_t* key, CLanguageDomain* domain)
{
    if (!key)
        return nullptr;
    wxTranslations* const translations = wxTranslations::Get();
    // The empty key is where a catalogue keeps its header.
    if (!translations || !*key)
        return Intern(key);
    LoadOwnCatalogue(*translations);
    const wxString name = domain ? wxString(domain->GetName()) : wxString();
    const wxString* const text = translations->GetTranslatedString(key, name);
    return Intern(text ? text->ToStdWstring() : key);
}

}  // namespace lng_util_internal
