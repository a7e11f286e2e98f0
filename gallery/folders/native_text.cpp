#include <gallery/folders/native_text.h>

#include <glib.h>
#include <wx/datetime.h>
#include <wx/filefn.h>

#include <fittings/numedit/number_edit_utils.h>
#include <fittings/platform/file_util_ex.h>

namespace gallery {

wxString DisplayText(const std::string& bytes)
{
    g_autofree gchar* valid = g_utf8_make_valid(bytes.data(), static_cast<gssize>(bytes.size()));
    std::wstring text = file_util_ex::ConvertFromUTF8W(valid);
    for (wchar_t& c : text) {
        if (c == 0x7F)
            c = L'\u2421';
        else if (c < 0x20)
            c = static_cast<wchar_t>(L'\u2400' + c);
    }
    return text;
}

std::wstring TextFromPath(const std::string& path)
{
    // g_uri_escape_string() always keeps letters, digits and "-._~". Keep the rest of printable ASCII too, except "%"
    // and "|".
    static constexpr char kKept[] = " !\"#$&'()*+,/:;<=>?@[\\]^`{}";
    g_autofree gchar* text = g_uri_escape_string(path.c_str(), kKept, TRUE);
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
    g_autofree gchar* text = g_format_size(bytes);
    return wxString::FromUTF8(text);
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
