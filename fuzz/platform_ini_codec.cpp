// Texts in INI files: every text without null characters can be encoded in one line and read back exactly. Every byte
// of a file can be decoded, except NUL.

#include <algorithm>
#include <cstdint>
#include <string>

#include <fuzzer/FuzzedDataProvider.h>

#include <fittings/platform/embedded/text/ini_codec.h>
#include <fuzz/support/check.h>

namespace {

// Returns a text of any characters, valid or invalid, except the null character.
std::wstring ConsumeText(FuzzedDataProvider& bytes)
{
    std::wstring text;
    for (std::size_t left = bytes.ConsumeIntegral<std::uint8_t>(); left > 0 && bytes.remaining_bytes() > 0; --left) {
        const auto low = bytes.ConsumeIntegral<std::uint8_t>();
        const auto high = low < 0x80 ? 0 : bytes.ConsumeIntegralInRange<std::uint32_t>(0, 0x110FFF);
        text += static_cast<wchar_t>(high != 0 ? high : low);
    }
    text.erase(std::remove(text.begin(), text.end(), L'\0'), text.end());
    return text;
}

bool IsOneLine(const std::string& text)
{
    return text.find_first_of(std::string("\r\n\0", 3)) == text.npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider bytes(data, size);
    const std::wstring text = ConsumeText(bytes);
    const std::wstring other = ConsumeText(bytes);
    std::string file = bytes.ConsumeRemainingBytesAsString();
    file.erase(std::remove(file.begin(), file.end(), '\0'), file.end());

    const std::string name = fittings::EncodeName(text);
    Check(IsOneLine(name) && !name.empty() && name.find_first_of("[]=") == name.npos,
          "an encoded name is a name in a file");
    Check(fittings::DecodeName(name) == text, "a name is read back");
    Check((fittings::EncodeName(other) == name) == (other == text), "different texts have different names");

    const std::string value = fittings::EncodeValue(text);
    Check(IsOneLine(value), "an encoded value is one line");
    Check(fittings::DecodeValue(value) == text, "a value is read back");

    Check(fittings::WideToNarrow(fittings::NarrowToWide(file)) == file, "every byte is read back");
    const std::wstring decoded = fittings::DecodeValue(file);
    Check(fittings::DecodeValue(fittings::EncodeValue(decoded)) == decoded, "a decoded value can be encoded");
    const std::wstring decodedName = fittings::DecodeName(file);
    Check(fittings::DecodeName(fittings::EncodeName(decodedName)) == decodedName, "a decoded name can be encoded");
    return 0;
}
