#include <fittings/platform/embedded/text/unicode.h>

#include <cstdint>

namespace fittings {

DecodedUtf8 DecodeMultibyte(std::string_view text)
{
    const auto byteAt = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byteAt(0);
    if (lead < 0xC2 || lead > 0xF4)
        return {std::nullopt, 1};
    const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t code = lead & (0xFF >> (length + 1));
    // Bounds of the second byte: they exclude overlong forms, surrogates and codes above U+10FFFF.
    unsigned char low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    unsigned char high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    for (std::size_t i = 1; i < length; ++i) {
        if (i == text.size() || byteAt(i) < low || byteAt(i) > high)
            return {std::nullopt, i};
        code = (code << 6) | (byteAt(i) & 0x3F);
        low = 0x80;
        high = 0xBF;
    }
    return {code, length};
}

void AppendUtf8(std::string& out, char32_t code)
{
    if (code < 0x80) {
        out += static_cast<char>(code);
        return;
    }
    const auto value = static_cast<std::uint64_t>(code);
    int tail = 1;
    while (tail < 6 && value >> (5 * tail + 6) != 0)
        ++tail;
    out += static_cast<char>((0xFF00U >> (tail + 1)) | (value >> (6 * tail)));
    while (tail-- > 0)
        out += static_cast<char>(0x80 | ((value >> (6 * tail)) & 0x3F));
}

}  // namespace fittings
