#include <gallery/folders/native_text.h>

#include <string_view>

#include <glib.h>
#include <wx/datetime.h>
#include <wx/filefn.h>

#include <fittings/numedit/number_edit_utils.h>
#include <fittings/platform/file_util_ex.h>

namespace gallery {

namespace {

/// Returns how many bytes at the start of @a text are UTF-8.
std::size_t Utf8Length(std::string_view text)
{
    const char* end = nullptr;
    g_utf8_validate(text.data(), static_cast<gssize>(text.size()), &end);
    return static_cast<std::size_t>(end - text.data());
}

/// Calls @a ofText for each byte of valid UTF-8, and @a other for all other bytes.
template <typename OfText, typename Other>
void ForEachByte(std::string_view bytes, OfText ofText, Other other)
{
    while (!bytes.empty()) {
        const std::size_t good = Utf8Length(bytes);
        for (const char byte : bytes.substr(0, good))
            ofText(byte);
        bytes.remove_prefix(good);
        if (!bytes.empty()) {
            other(bytes.front());
            bytes.remove_prefix(1);
        }
    }
}

void AppendPercent(std::string& text, unsigned char byte)
{
    static constexpr char kDigits[] = "0123456789ABCDEF";
    text += '%';
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
}

bool IsControl(unsigned char byte)
{
    return byte < 0x20 || byte == 0x7F;
}

}  // namespace

wxString DisplayText(const std::string& bytes)
{
    std::string text;
    const auto appendPicture = [&text](char c) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte == 0x7F)
            text += "\u2421";
        else if (byte < 0x20)
            text += {'\xE2', '\x90', static_cast<char>(0x80 + byte)};
        else
            text += c;
    };
    ForEachByte(bytes, appendPicture, [&text](char) { text += "\uFFFD"; });
    return wxString::FromUTF8(text);
}

std::wstring TextFromPath(const std::string& path)
{
    std::string text;
    const auto appendPercent = [&text](char byte) { AppendPercent(text, static_cast<unsigned char>(byte)); };
    const auto append = [&](char c) {
        if (c == '%' || c == '|' || IsControl(static_cast<unsigned char>(c)))
            appendPercent(c);
        else
            text += c;
    };
    ForEachByte(path, append, appendPercent);
    return file_util_ex::ConvertFromUTF8W(text);
}

std::string PathFromText(const std::wstring& text)
{
    const std::string coded = file_util_ex::ConvertToUTF8(text);
    std::string path;
    for (std::size_t i = 0; i < coded.size(); ++i) {
        const int high = i + 2 < coded.size() ? g_ascii_xdigit_value(coded[i + 1]) : -1;
        const int low = high >= 0 ? g_ascii_xdigit_value(coded[i + 2]) : -1;
        if (coded[i] == '%' && low >= 0) {
            path += static_cast<char>(high * 16 + low);
            i += 2;
        } else {
            path += coded[i];
        }
    }
    return path;
}

std::string PathFromDialog(const wxString& path)
{
    const auto bytes = path.fn_str();
    return {bytes.data(), bytes.length()};
}

wxString HumanSize(std::uint64_t bytes)
{
    gchar* text = g_format_size(bytes);
    const wxString size = wxString::FromUTF8(text);
    g_free(text);
    return size;
}

wxString ExactSize(std::uint64_t bytes)
{
    return bytes < 1000 ? HumanSize(bytes) : HumanSize(bytes) + " (" + GroupedNumber(bytes) + " bytes)";
}

CNumberFormat GroupingFormat()
{
    CNumberFormat format(eLocaleFormat);
    format.m_bGroupDigits = true;
    if (format.m_chThousandsSep == 0)
        format.m_chThousandsSep = L'\u00A0';
    return format;
}

wxString GroupedNumber(std::uint64_t number)
{
    return CNumberEditUtils::FormatControlText(std::to_wstring(number).c_str(), GroupingFormat());
}

wxString HumanTime(std::int64_t secondsSinceEpoch)
{
    return wxDateTime(static_cast<time_t>(secondsSinceEpoch)).Format("%Y-%m-%d %H:%M");
}

wxString Counted(std::size_t count, const wxString& one, const wxString& many)
{
    return wxString::Format("%zu %s", count, count == 1 ? one : many);
}

}  // namespace gallery
