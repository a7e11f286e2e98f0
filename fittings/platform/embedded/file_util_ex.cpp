#include <fittings/platform/file_util_ex.h>

#include <cstddef>

#include <glib.h>
#include <glib/gstdio.h>

#include <fittings/platform/embedded/unicode.h>

namespace {

constexpr wchar_t kSeparator = L'/';
constexpr char32_t kReplacement = 0xFFFD;

std::wstring WithoutTrailingSeparators(std::wstring path)
{
    const std::size_t last = path.find_last_not_of(kSeparator);
    path.resize(last == std::wstring::npos ? 0 : last + 1);
    return path;
}

// No file name holds a NUL, and the system would take the part before it for the whole.
bool CanBePath(const std::wstring& path)
{
    return !path.empty() && path.find(L'\0') == std::wstring::npos;
}

// One step of decoding: what stands at a position, and how many bytes it takes.
struct Decoded
{
    char32_t code;
    std::size_t bytes;
};

// Decodes the sequence that starts with a byte of 0x80 or more. A sequence that is cut short or wrong is replaced up
// to its first wrong byte, which may start the next one (the Unicode Standard's "maximal subpart" practice).
Decoded DecodeSequence(const unsigned char* at, const unsigned char* end)
{
    const unsigned char lead = at[0];
    std::size_t length = 0;
    char32_t code = 0;
    // Bounds of the second byte: they leave out overlong forms, surrogates and what is above U+10FFFF.
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        code = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        code = lead & 0x0F;
        low = lead == 0xE0 ? 0xA0 : 0x80;
        high = lead == 0xED ? 0x9F : 0xBF;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        code = lead & 0x07;
        low = lead == 0xF0 ? 0x90 : 0x80;
        high = lead == 0xF4 ? 0x8F : 0xBF;
    } else {
        return {kReplacement, 1};
    }
    for (std::size_t i = 1; i < length; ++i) {
        if (at + i == end || at[i] < low || at[i] > high)
            return {kReplacement, i};
        code = (code << 6) | (at[i] & 0x3F);
        low = 0x80;
        high = 0xBF;
    }
    return {code, length};
}

}  // namespace

namespace file_util_ex {

std::wstring MakePath(const CStdStr<wchar_t>& dir, const CStdStr<wchar_t>& name)
{
    if (dir.empty())
        return name;
    if (name.empty())
        return dir;
    const std::size_t start = name.find_first_not_of(kSeparator);
    std::wstring path = WithoutTrailingSeparators(dir);
    path += kSeparator;
    if (start != std::wstring::npos)
        path.append(name, start);
    return path;
}

bool DoesDirExist(const CStdStr<wchar_t>& path)
{
    return CanBePath(path) && g_file_test(ConvertToUTF8(path).c_str(), G_FILE_TEST_IS_DIR);
}

bool Mkdir(const CStdStr<wchar_t>& path)
{
    if (!CanBePath(path))
        return false;
    g_mkdir_with_parents(ConvertToUTF8(path).c_str(), 0700);
    return DoesDirExist(path);
}

std::wstring GetPathWithSep(const wchar_t* path)
{
    if (!path || !*path)
        return {};
    return WithoutTrailingSeparators(path) + kSeparator;
}

std::wstring RemoveBackSlash(const wchar_t* path)
{
    if (!path || !*path)
        return {};
    std::wstring result = WithoutTrailingSeparators(path);
    if (result.empty())
        result = kSeparator;
    return result;
}

std::string ConvertToUTF8(const std::wstring& text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (const wchar_t unit : text) {
        const auto code = static_cast<char32_t>(unit);
        fittings::AppendUtf8(bytes, fittings::IsUnicode(code) ? code : kReplacement);
    }
    return bytes;
}

std::wstring ConvertFromUTF8W(const std::string& text)
{
    std::wstring result;
    result.reserve(text.size());
    const auto* at = reinterpret_cast<const unsigned char*>(text.data());
    const unsigned char* const end = at + text.size();
    while (at != end) {
        const Decoded next = *at < 0x80 ? Decoded{*at, 1} : DecodeSequence(at, end);
        result += static_cast<wchar_t>(next.code);
        at += next.bytes;
    }
    return result;
}

}  // namespace file_util_ex
