#ifndef FITTINGS_PLATFORM_LNG_UTIL_H_
#define FITTINGS_PLATFORM_LNG_UTIL_H_

#include <string>

#include <fittings/base/export.h>
#include <fittings/base/std_str.h>

class CLanguageDomain;

/// Translation of the library's own texts.
namespace lng_util_internal {

/// Returns the translation of the English text @a key, or @a key's own text when there is none.
///
/// Translations come from the host's wxTranslations; the library's own catalogue, "fittings", is loaded into it at the
/// first look-up, unless the host has loaded it. The toolkit prefers the catalogue loaded last: a host that translates
/// the same texts in its own way loads "fittings" before its own catalogue.
///
/// The result stays valid until the process ends. A null key gives null; a null @a domain counts as one with an empty
/// name. GUI thread.
FITTINGS_API const wchar_t* DoGetResourceString(const wchar_t* key, CLanguageDomain* domain);

}  // namespace lng_util_internal

/// Names the message catalogue in which a text is looked up; an empty name means every catalogue that is loaded.
class CLanguageDomain
{
public:
    CLanguageDomain() = default;

    /// Names the catalogue as gettext does: the file is @a name with ".mo" behind it.
    explicit CLanguageDomain(const CStdStr<wchar_t>& name) : m_name(name) {}

    /// The name that it was made with.
    const std::wstring& GetName() const { return m_name; }

private:
    std::wstring m_name;
};

#endif
