#ifndef FITTINGS_PLATFORM_LNG_UTIL_H_
#define FITTINGS_PLATFORM_LNG_UTIL_H_

#include <string>

#include <fittings/base/export.h>
#include <fittings/base/std_str.h>

class CLanguageDomain;

/// Translation of the library's own texts.
namespace lng_util_internal {

/// Returns the translation of the English text @a key, or a copy of @a key when there is none.
///
/// Translations come from the host's wxTranslations. A look-up adds the library's own catalogue, "fittings", unless
/// that catalogue is already loaded. The toolkit prefers the catalogue that was loaded last. So a host that has its own
/// translations of the library's texts should load "fittings" first, and then the host's catalogue.
///
/// The result stays valid until the process ends. Returns null for a null key. A null @a domain counts as a domain with
/// an empty name. GUI thread only.
FITTINGS_API const wchar_t* DoGetResourceString(const wchar_t* key, CLanguageDomain* domain);

}  // namespace lng_util_internal

/// Names the message catalogue in which a text is looked up. An empty name means all loaded catalogues.
class CLanguageDomain
{
public:
    CLanguageDomain() = default;

    /// Names a catalogue by its gettext domain: the file name of the catalogue is @a name followed by ".mo".
    explicit CLanguageDomain(const CStdStr<wchar_t>& name) : m_name(name) {}

    /// Returns the name of the catalogue.
    const std::wstring& GetName() const { return m_name; }

private:
    std::wstring m_name;
};

#endif
