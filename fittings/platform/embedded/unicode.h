#ifndef FITTINGS_PLATFORM_EMBEDDED_UNICODE_H_
#define FITTINGS_PLATFORM_EMBEDDED_UNICODE_H_

#include <string>

namespace fittings {

/// False for surrogates and for what is above U+10FFFF.
constexpr bool IsUnicode(char32_t code)
{
    return code < 0xD800 || (code > 0xDFFF && code <= 0x10FFFF);
}

constexpr bool IsControl(char32_t code)
{
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

/// Appends @a code in UTF-8, whose scheme is carried on up to 32 bits for what is no Unicode character.
void AppendUtf8(std::string& out, char32_t code);

}  // namespace fittings

#endif
