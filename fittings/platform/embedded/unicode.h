#ifndef FITTINGS_PLATFORM_EMBEDDED_UNICODE_H_
#define FITTINGS_PLATFORM_EMBEDDED_UNICODE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

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

/// What the beginning of a text stands for.
struct DecodedUtf8
{
    std::optional<char32_t> code;  ///< None where no character of UTF-8 begins.
    std::size_t bytes;             ///< How many bytes it takes.
};

/// Decodes the first character of @a text, which must not be empty. A sequence that is cut short or wrong takes the
/// bytes up to its first wrong one, which may start the next (the Unicode Standard's "maximal subpart" practice).
DecodedUtf8 DecodeUtf8(std::string_view text);

/// Appends @a code in UTF-8, whose scheme is carried on up to 32 bits for what is no Unicode character.
void AppendUtf8(std::string& out, char32_t code);

}  // namespace fittings

#endif
