#include <fittings/platform/embedded/text/ini_lines.h>

#include <algorithm>
#include <array>

#include <glib.h>

#include <fittings/platform/embedded/text/ini_codec.h>

namespace fittings {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// A table, because every load checks every character of every name.
const std::array<bool, 256> kPlainCharacters = [] {
    std::array<bool, 256> plain = {};
    for (std::size_t byte = 0; byte < plain.size(); ++byte)
        plain[byte] = IsPlainInName(static_cast<char>(byte));
    return plain;
}();

std::size_t PlainLength(std::string_view text)
{
    const auto isPlain = [](char byte) { return kPlainCharacters[static_cast<unsigned char>(byte)]; };
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isPlain) - text.begin());
}

// Returns whether @a suffix, which begins with '[', is like "[de]" in the key Name[de]: it may contain letters, digits
// and the marks "-_.@", and it must end with ']'.
bool IsLocaleSuffix(std::string_view suffix)
{
    if (suffix.size() < 2 || suffix.back() != ']')
        return false;
    const std::string_view inner = suffix.substr(1, suffix.size() - 2);
    const char* const end = inner.data() + inner.size();
    for (const char* at = inner.data(); at < end; at = g_utf8_next_char(at)) {
        const gunichar character = g_utf8_get_char_validated(at, end - at);
        const bool isMark = character == '-' || character == '_' || character == '.' || character == '@';
        if (character > 0x10FFFF || (!isMark && !g_unichar_isalnum(character)))
            return false;
    }
    return true;
}

bool IsKeyName(std::string_view name)
{
    const std::size_t bracket = name.find_first_of("[]");
    if (bracket == std::string_view::npos)
        return true;
    return bracket > 0 && name[bracket] == '[' && name[bracket - 1] != ' ' && IsLocaleSuffix(name.substr(bracket));
}

bool ParseSection(IniLine& line, std::string_view text)
{
    const std::size_t close = text.find(']');
    if (close == std::string_view::npos || text.find_first_not_of(" \t", close + 1) != std::string_view::npos)
        return false;
    line.name = text.substr(1, close - 1);
    line.isPlainName = PlainLength(line.name) == line.name.size();
    return !line.name.empty() && std::none_of(line.name.begin(), line.name.end(),
                                              [](char byte) { return byte == '[' || g_ascii_iscntrl(byte); });
}

}  // namespace

IniLines::IniLines(std::string_view text)
    : m_text(text), m_at(ByteOrderMarkSize(text)), m_hasNul(text.find('\0') != std::string_view::npos)
{
}

bool IniLines::Next(IniLine& line)
{
    while (m_at < m_text.size()) {
        line.begin = m_at;
        const std::size_t lineFeed = m_text.find('\n', m_at);
        if (lineFeed == std::string_view::npos) {
            line.end = line.next = m_text.size();
        } else {
            line.next = lineFeed + 1;
            line.end = lineFeed > m_at && m_text[lineFeed - 1] == '\r' ? lineFeed - 1 : lineFeed;
        }
        m_at = line.next;
        if (Parse(line))
            return true;
    }
    return false;
}

// Returns whether the line has a section or a key that counts. The keys below a broken section line do not count.
bool IniLines::Parse(IniLine& line)
{
    std::string_view text = m_text.substr(line.begin, line.end - line.begin);
    while (!text.empty() && g_ascii_isspace(text.front()))
        text.remove_prefix(1);
    if (text.empty() || text.front() == '#' || text.front() == ';')
        return false;
    line.isSection = text.front() == '[';
    if (!line.isSection)
        return !m_isBelowBrokenSection && ParseKey(line, text);
    m_isBelowBrokenSection = !ParseSection(line, text);
    return !m_isBelowBrokenSection;
}

bool IniLines::ParseKey(IniLine& line, std::string_view text) const
{
    const std::size_t plainLength = PlainLength(text);
    const std::size_t equals = text.find('=', plainLength);
    if (equals == std::string_view::npos || equals == 0)
        return false;
    // A line with a NUL was cut or overwritten, so it is not a setting.
    if (m_hasNul && text.find('\0') != std::string_view::npos)
        return false;
    line.name = text.substr(0, equals);
    while (g_ascii_isspace(line.name.back()))
        line.name.remove_suffix(1);
    line.isPlainName = line.name.size() <= plainLength;
    if (!line.isPlainName && !IsKeyName(line.name))
        return false;
    line.value = line.end - (text.size() - equals - 1);
    while (line.value < line.end && g_ascii_isspace(m_text[line.value]))
        ++line.value;
    return true;
}

std::size_t ByteOrderMarkSize(std::string_view text)
{
    return text.substr(0, kByteOrderMark.size()) == kByteOrderMark ? kByteOrderMark.size() : 0;
}

}  // namespace fittings
