#include <fittings/platform/file_util_ex.h>

#include <cstddef>
#include <string_view>

#include <glib.h>
#include <glib/gstdio.h>

#include <fittings/platform/embedded/text/unicode.h>

namespace {

constexpr wchar_t kSeparator = L'/';
constexpr char32_t kReplacement = 0xFFFD;

std::wstring WithoutTrailingSeparators(std::wstring path)
{
    const std::size_t last = path.find_last_not_of(kSeparator);
    path.resize(last == std::wstring::npos ? 0 : last + 1);
    return path;
}

// A path with a NUL is refused, because the system would use only the part before the NUL.
bool CanBePath(const std::wstring& path)
{
    return !path.empty() && path.find(L'\0') == std::wstring::npos;
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
    for (std::string_view rest = text; !rest.empty();) {
        const fittings::DecodedUtf8 next = fittings::DecodeUtf8(rest);
        result += static_cast<wchar_t>(next.code.value_or(kReplacement));
        rest.remove_prefix(next.bytes);
    }
    return result;
}

}  // namespace file_util_ex
