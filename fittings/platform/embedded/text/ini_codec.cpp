#include <fittings/platform/embedded/text/ini_codec.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include <glib.h>

#include <fittings/platform/embedded/text/unicode.h>

namespace fittings {

namespace {

// A byte that is not UTF-8, from 0x80 to 0xFF, is represented by this character plus the byte.
constexpr char32_t kByteBase = 0xDC00;

bool IsByte(char32_t code)
{
    return code >= kByteBase + 0x80 && code <= kByteBase + 0xFF;
}

bool IsBlank(char32_t code)
{
    return code < 0x80 && g_ascii_isspace(static_cast<char>(code));
}

std::string_view WithoutBlanksAtEnd(std::string_view text)
{
    while (!text.empty() && g_ascii_isspace(text.back()))
        text.remove_suffix(1);
    return text;
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

void AppendHex(std::string& out, char32_t code, int minDigits)
{
    int digits = minDigits;
    while (digits < 8 && code >> (4 * digits) != 0)
        ++digits;
    while (digits-- > 0)
        out += "0123456789ABCDEF"[(code >> (4 * digits)) & 0xF];
}

// Appends an escaped character. For a byte or an ASCII character: @a byteMark and two hexadecimal digits. For any other
// character: @a codeMark, a hexadecimal number and a closing brace.
void AppendNumber(std::string& out, char32_t code, std::string_view byteMark, std::string_view codeMark)
{
    if (code < 0x80 || IsByte(code)) {
        out += byteMark;
        AppendHex(out, IsByte(code) ? code - kByteBase : code, 2);
    } else {
        out += codeMark;
        AppendHex(out, code, 1);
        out += '}';
    }
}

// Reads a number if @a digits is 1 to 8 hexadecimal digits. Refuses 0, because no text of the store contains a NUL.
std::optional<char32_t> ReadHex(std::string_view digits)
{
    if (digits.empty() || digits.size() > 8)
        return std::nullopt;
    char32_t code = 0;
    for (const char digit : digits) {
        const int value = g_ascii_xdigit_value(digit);
        if (value < 0)
            return std::nullopt;
        code = code << 4 | static_cast<char32_t>(value);
    }
    if (code == 0)
        return std::nullopt;
    return code;
}

// Reverses AppendNumber(). ReadByteDigits() reads the form HH at the beginning of @a text, ReadBraces() the form
// {digits}.
std::optional<Decoded> ReadByteDigits(std::string_view text)
{
    const auto code = text.size() < 2 ? std::nullopt : ReadHex(text.substr(0, 2));
    if (!code)
        return std::nullopt;
    return Decoded{*code < 0x80 ? *code : kByteBase + *code, 2};
}

std::optional<Decoded> ReadBraces(std::string_view text)
{
    const std::size_t close = text.substr(0, 10).find('}');
    if (close == std::string_view::npos || text.front() != '{')
        return std::nullopt;
    const auto code = ReadHex(text.substr(1, close - 1));
    if (!code)
        return std::nullopt;
    return Decoded{*code, close + 1};
}

bool MustEncodeInName(char32_t code, bool first, bool last)
{
    switch (code) {
    case '%':
    case '=':
    case '[':
    case ']':
        return true;
    case '#':
    case ';':
        return first;
    case ' ':
        return first || last;
    default:
        return IsControl(code) || !IsUnicode(code);
    }
}

bool MustQuote(std::wstring_view text)
{
    if (text.empty())
        return false;
    if (text.front() == L'"' || IsBlank(static_cast<char32_t>(text.front())) ||
        IsBlank(static_cast<char32_t>(text.back())))
        return true;
    return std::any_of(text.begin(), text.end(), [](wchar_t unit) {
        const auto code = static_cast<char32_t>(unit);
        return IsControl(code) || !IsUnicode(code);
    });
}

struct ShortEscape
{
    char32_t code;
    char letter;
};

constexpr ShortEscape kShortEscapes[] = {{'\n', 'n'}, {'\t', 't'}, {'\r', 'r'}, {'\\', '\\'}, {'"', '"'}};

void AppendQuoted(std::string& out, char32_t code)
{
    for (const ShortEscape& escape : kShortEscapes) {
        if (escape.code == code) {
            out += '\\';
            out += escape.letter;
            return;
        }
    }
    if (IsControl(code) || !IsUnicode(code))
        AppendNumber(out, code, "\\x", "\\u{");
    else
        AppendUtf8(out, code);
}

// Reads an escape whose backslash stands directly before @a text.
std::optional<Decoded> ReadEscape(std::string_view text)
{
    if (text.empty())
        return std::nullopt;
    for (const ShortEscape& escape : kShortEscapes) {
        if (escape.letter == text.front())
            return Decoded{escape.code, 1};
    }
    std::optional<Decoded> number;
    if (text.front() == 'x')
        number = ReadByteDigits(text.substr(1));
    else if (text.front() == 'u' && text.size() > 1)
        number = ReadBraces(text.substr(1));
    if (number)
        ++number->bytes;
    return number;
}

bool IsQuoted(std::string_view value)
{
    return value.size() >= 2 && value.front() == '"' && value.back() == '"';
}

// Decodes @a inner, the part of a value between its quotes. Returns nothing if it is not well formed.
std::optional<std::wstring> Unquoted(std::string_view inner)
{
    std::wstring text;
    text.reserve(inner.size());
    while (!inner.empty()) {
        if (inner.front() == '"')
            return std::nullopt;
        Decoded next = {0, 0};
        if (inner.front() == '\\') {
            const auto escape = ReadEscape(inner.substr(1));
            if (!escape)
                return std::nullopt;
            next = {escape->code, escape->bytes + 1};
        } else {
            next = DecodeNext(inner);
        }
        text += static_cast<wchar_t>(next.code);
        inner.remove_prefix(next.bytes);
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
        Decoded next = DecodeNext(name);
        if (name.front() == '%') {
            const std::string_view rest = name.substr(1);
            const bool braces = rest.substr(0, 2) == "u{";
            if (const auto number = braces ? ReadBraces(rest.substr(1)) : ReadByteDigits(rest))
                next = {number->code, number->bytes + (braces ? 2 : 1)};
        }
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
    value = WithoutBlanksAtEnd(value);  // a value has no blanks at its beginning
    if (IsQuoted(value)) {
        if (auto text = Unquoted(value.substr(1, value.size() - 2)))
            return *std::move(text);
    }
    return NarrowToWide(value);
}

bool DecodesTo(std::string_view value, std::wstring_view text)
{
    value = WithoutBlanksAtEnd(value);
    if (IsQuoted(value))
        return DecodeValue(value) == text;
    for (; !value.empty() && !text.empty(); text.remove_prefix(1)) {
        const Decoded next = DecodeNext(value);
        if (static_cast<wchar_t>(next.code) != text.front())
            return false;
        value.remove_prefix(next.bytes);
    }
    return value.empty() && text.empty();
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
