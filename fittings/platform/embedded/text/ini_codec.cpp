#include <fittings/platform/embedded/text/ini_codec.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include <glib.h>

#include <fittings/platform/embedded/text/unicode.h>

namespace fittings {

namespace {

// In wide text, a byte that is not UTF-8 (0x80 to 0xFF) is represented by this number plus the byte.
constexpr char32_t kByteBase = 0xDC00;

bool IsByte(char32_t code)
{
    return code >= kByteBase + 0x80 && code <= kByteBase + 0xFF;
}

struct Decoded
{
    char32_t code;
    std::size_t bytes;
};

Decoded DecodeNext(std::string_view text)
{
    const DecodedUtf8 next = DecodeUtf8(text);
    return next.code ? Decoded{*next.code, next.bytes}
                     : Decoded{kByteBase + static_cast<unsigned char>(text.front()), 1};
}

// Appends an escaped character. If @a code is ASCII or represents a byte: @a byteMark and two hexadecimal digits.
// Otherwise: @a codeMark, a hexadecimal number and a closing brace.
void AppendNumber(std::string& out, char32_t code, const char* byteMark, const char* codeMark)
{
    const bool isByte = code < 0x80 || IsByte(code);
    char digits[9];
    g_snprintf(digits, sizeof digits, isByte ? "%02X" : "%X", IsByte(code) ? code - kByteBase : code);
    out.append(isByte ? byteMark : codeMark).append(digits).append(isByte ? "" : "}");
}

// Reads a hexadecimal number. Refuses 0, because no text of the store contains a NUL.
std::optional<char32_t> ReadHex(std::string_view digits)
{
    std::uint32_t code = 0;
    const char* const end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, code, 16);
    return read.ptr == end && code != 0 ? std::optional<char32_t>(code) : std::nullopt;
}

bool StartsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

// Reads an escaped character in the form of AppendNumber(). Returns nothing if @a text does not begin with one.
std::optional<Decoded> ReadNumber(std::string_view text, std::string_view byteMark, std::string_view codeMark)
{
    if (StartsWith(text, codeMark)) {
        constexpr std::size_t kMaxDigits = 8;
        const std::string_view digits = text.substr(codeMark.size());
        const std::size_t count = digits.substr(0, kMaxDigits + 1).find('}');
        const auto code = count == std::string_view::npos ? std::nullopt : ReadHex(digits.substr(0, count));
        return code ? std::optional(Decoded{*code, codeMark.size() + count + 1}) : std::nullopt;
    }
    const std::size_t end = byteMark.size() + 2;
    const auto code =
        StartsWith(text, byteMark) && text.size() >= end ? ReadHex(text.substr(byteMark.size(), 2)) : std::nullopt;
    return code ? std::optional(Decoded{*code < 0x80 ? *code : kByteBase + *code, end}) : std::nullopt;
}

bool MustEscape(char32_t code)
{
    return IsControl(code) || !IsUnicode(code);
}

bool MustEncodeInName(char32_t code, bool first, bool last)
{
    if (code == '#' || code == ';')
        return first;
    if (code == ' ')
        return first || last;
    return code == '%' || code == '=' || code == '[' || code == ']' || MustEscape(code);
}

bool MustQuote(std::wstring_view text)
{
    if (text.empty())
        return false;
    return text.front() == L'"' || text.front() == L' ' || text.back() == L' ' ||
           std::any_of(text.begin(), text.end(), [](wchar_t unit) { return MustEscape(static_cast<char32_t>(unit)); });
}

// Characters and the letters that stand for them after a backslash.
constexpr std::pair<char32_t, char> kShortEscapes[] = {{'\n', 'n'}, {'\t', 't'}, {'\r', 'r'}, {'\\', '\\'}, {'"', '"'}};

void AppendQuoted(std::string& out, char32_t code)
{
    for (const auto& [escaped, letter] : kShortEscapes) {
        if (escaped == code) {
            out.append(1, '\\').append(1, letter);
            return;
        }
    }
    if (MustEscape(code))
        AppendNumber(out, code, "\\x", "\\u{");
    else
        AppendUtf8(out, code);
}

// Reads an escaped character. @a text begins with the backslash of that character.
std::optional<Decoded> ReadEscape(std::string_view text)
{
    for (const auto& [escaped, letter] : kShortEscapes) {
        if (text.size() > 1 && letter == text[1])
            return Decoded{escaped, 2};
    }
    return ReadNumber(text, "\\x", "\\u{");
}

// Decodes the part of a value between the quotes. Returns nothing if this part is not well formed.
std::optional<std::wstring> Unquoted(std::string_view inner)
{
    std::wstring text;
    text.reserve(inner.size());
    while (!inner.empty()) {
        if (inner.front() == '"')
            return std::nullopt;
        const auto next = inner.front() == '\\' ? ReadEscape(inner) : DecodeNext(inner);
        if (!next)
            return std::nullopt;
        text += static_cast<wchar_t>(next->code);
        inner.remove_prefix(next->bytes);
    }
    return text;
}

}  // namespace

std::string EncodeName(std::wstring_view text)
{
    if (text.empty())
        return "%";
    std::string name;
    name.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto code = static_cast<char32_t>(text[i]);
        if (MustEncodeInName(code, i == 0, i + 1 == text.size()))
            AppendNumber(name, code, "%", "%u{");
        else
            AppendUtf8(name, code);
    }
    return name;
}

std::wstring DecodeName(std::string_view name)
{
    std::wstring text;
    if (name == "%")
        return text;
    text.reserve(name.size());
    while (!name.empty()) {
        const Decoded next = ReadNumber(name, "%", "%u{").value_or(DecodeNext(name));
        text += static_cast<wchar_t>(next.code);
        name.remove_prefix(next.bytes);
    }
    return text;
}

bool IsPlainInName(char byte)
{
    return g_ascii_isalnum(byte) || byte == '_' || byte == '-' || byte == '.' || byte == '/' || byte == ':';
}

std::string EncodeValue(std::wstring_view text)
{
    if (!MustQuote(text))
        return WideToNarrow(text);
    std::string value = "\"";
    for (const wchar_t unit : text)
        AppendQuoted(value, static_cast<char32_t>(unit));
    value += '"';
    return value;
}

std::wstring DecodeValue(std::string_view value)
{
    while (!value.empty() && g_ascii_isspace(value.back()))
        value.remove_suffix(1);
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"') {
        if (auto text = Unquoted(value.substr(1, value.size() - 2)))
            return *std::move(text);
    }
    return NarrowToWide(value);
}

std::wstring NarrowToWide(std::string_view text)
{
    const auto other = std::find_if(text.begin(), text.end(), [](char byte) { return (byte & 0x80) != 0; });
    std::wstring wide(text.begin(), other);
    text.remove_prefix(wide.size());
    wide.reserve(wide.size() + text.size());
    while (!text.empty()) {
        const Decoded next = DecodeNext(text);
        wide += static_cast<wchar_t>(next.code);
        text.remove_prefix(next.bytes);
    }
    return wide;
}

std::string WideToNarrow(std::wstring_view text)
{
    std::string narrow;
    narrow.reserve(text.size());
    for (const wchar_t unit : text) {
        const auto code = static_cast<char32_t>(unit);
        if (IsByte(code))
            narrow += static_cast<char>(code - kByteBase);
        else
            AppendUtf8(narrow, code);
    }
    return narrow;
}

}  // namespace fittings
