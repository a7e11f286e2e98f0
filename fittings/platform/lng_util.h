#ifndef FITTINGS_PLATFORM_LNG_UTIL_H_
#define FITTINGS_PLATFORM_LNG_UTIL_H_

#include <string>

#include <fittings/base/export.h>
#include <fittings/base/std_str.h>

class CLanguageDomain;

/// Translation of the library's own texts.
namespace lng_util_internal {

/// Returns the translation of the English text @a key, or the text of @a key itself when there is none.
///
/// Translations come from the host's wxTranslations. The first look-up adds the library's own catalogue, "fittings",
/// unless the host has loaded this catalogue. The toolkit prefers the catalogue that was loaded last. So a host with
/// its own translations of the same texts loads "fittings" before its own catalogue.
///
/// The result stays valid until the process ends. A null key gives null. A null @a domain counts as a domain with an
/// empty name. GUI thread only.
FITTINGS_API const wchar_t* DoGetResourceString(const wchar_t* key, CLanguageDomain* domain);

}  // namespace lng_util_internal

/// Names the message catalogue in which a text is looked up. An empty name means all loaded catalogues.
class CLanguageDomain
{
public:
    CLanguageDomain() = default;

    /// Names the catalogue as gettext does: the file name is @a name followed by ".mo".
    explicit CLanguageDomain(const CStdStr<wchar_t>& name) : m_name(name) {}

    /// Returns the name of the catalogue.
    const std::wstring& GetName() const { return m_name; }

private:
    std::wstring m_name;
};

#endif
