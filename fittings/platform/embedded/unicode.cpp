#include <fittings/platform/embedded/unicode.h>

#include <cstdint>

namespace fittings {

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
