#include <fittings/platform/lng_util.h>

#include <dlfcn.h>

#include <filesystem>
#include <mutex>
#include <system_error>
#include <unordered_set>

#include <wx/string.h>
#include <wx/translation.h>

namespace {

const char* const kLibraryDomain = "fittings";

// Returns a copy of @a text that stays valid until the process ends.
const wchar_t* Intern(const std::wstring& text)
{
    static auto& texts = *new std::unordered_set<std::wstring>;
    return texts.insert(text).first->c_str();
}

// Returns the folder of the installed catalogues. Finds it relative to this library, because the installation may have
// been moved. Returns an empty path when the path of the library is unknown.
wxString CatalogueFolder()
{
    Dl_info library;
    std::error_code error;
    if (!dladdr(&kLibraryDomain, &library))
        return {};
    const std::filesystem::path file = std::filesystem::canonical(library.dli_fname, error);
    if (error)
        return {};
    return wxString((file.parent_path() / FITTINGS_LOCALE_DIR).lexically_normal().c_str(), *wxConvFileName);
}

// Called at every look-up, because the host may replace its wxTranslations object at any time.
void LoadOwnCatalogue(wxTranslations& translations)
{
    if (translations.IsLoaded(kLibraryDomain))
        return;
    static std::once_flag searched;
    std::call_once(searched, [] {
        if (const wxString folder = CatalogueFolder(); !folder.empty())
            wxFileTranslationsLoader::AddCatalogLookupPathPrefix(folder);
    });
    translations.AddCatalog(kLibraryDomain);
}

}  // namespace

namespace lng_util_internal {

const wchar_t* DoGetResourceString(const wchar_t* key, CLanguageDomain* domain)
{
    if (!key)
        return nullptr;
    wxTranslations* const translations = wxTranslations::Get();
    if (!translations)
        return Intern(key);
    LoadOwnCatalogue(*translations);
    const wxString name = domain ? wxString(domain->GetName()) : wxString();
    const wxString* const text = translations->GetTranslatedString(key, name);
    return Intern(text ? text->ToStdWstring() : key);
}

}  // namespace lng_util_internal
