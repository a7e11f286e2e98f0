#ifndef FITTINGS_PLATFORM_EMBEDDED_TEXT_UNICODE_H_
#define FITTINGS_PLATFORM_EMBEDDED_TEXT_UNICODE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace fittings {

/// Returns whether a code is a Unicode character: false for surrogates and for codes above U+10FFFF.
constexpr bool IsUnicode(char32_t code)
{
    return code < 0xD800 || (code > 0xDFFF && code <= 0x10FFFF);
}

constexpr bool IsControl(char32_t code)
{
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

/// The result of decoding the first character of a text.
struct DecodedUtf8
{
    std::optional<char32_t> code;  ///< None if no valid UTF-8 character begins here.
    std::size_t bytes;             ///< The number of bytes that the character or the invalid sequence takes.
};

/// Does the work of DecodeUtf8() for a character that is not ASCII.
DecodedUtf8 DecodeMultibyte(std::string_view text);

/// Decodes the first character of @a text, which must not be empty. A byte that cannot start a character is an invalid
/// sequence by itself. Any other incomplete or invalid sequence ends before the first byte that cannot continue it.
/// That byte may start the next character (the "maximal subpart" practice of the Unicode Standard).
inline DecodedUtf8 DecodeUtf8(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    return lead < 0x80 ? DecodedUtf8{lead, 1} : DecodeMultibyte(text);
}

/// Appends @a code in UTF-8. For codes that are not Unicode characters, the scheme of UTF-8 is extended to 32 bits.
void AppendUtf8(std::string& out, char32_t code);

}  // namespace fittings

#endif
