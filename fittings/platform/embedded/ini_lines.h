#ifndef FITTINGS_PLATFORM_EMBEDDED_INI_LINES_H_
#define FITTINGS_PLATFORM_EMBEDDED_INI_LINES_H_

#include <cstddef>
#include <string_view>

/// The grammar of an INI file.
namespace fittings {

enum class IniLineKind {
    Comment,        ///< A blank line or one that starts with '#'.
    Section,        ///< [name]
    Key,            ///< name=value below a section.
    EarlyKey,       ///< name=value before the first section.
    BrokenSection,  ///< Starts with '[' but is no section line. Keys below it belong to no section.
    Unknown,        ///< All else, lines that start with ';' among them.
};

/// One line: offsets into the text.
struct IniLine
{
    IniLineKind kind;
    std::size_t begin;
    std::size_t end;   ///< Before the line end.
    std::size_t next;  ///< Where the next line begins.
    std::string_view name;
    bool isPlainName;   ///< The name is certain to be as EncodeName() writes it.
    std::size_t value;  ///< Where a key's value begins.
};

/// Walks through a text line by line. What GKeyFile takes as a section or a key is one here, too.
class IniLines
{
public:
    explicit IniLines(std::string_view text);

    /// False at the end of the text.
    bool Next(IniLine& line);

    bool HasNul() const { return m_hasNul; }

private:
    IniLineKind Classify(IniLine& line);
    IniLineKind ClassifySection(IniLine& line, std::string_view text) const;
    IniLineKind ClassifyKey(IniLine& line, std::string_view text) const;

    std::string_view m_text;
    std::size_t m_at = 0;
    bool m_hasNul;
    bool m_hasSection = false;
    bool m_inSection = false;
};

/// The number of bytes of the byte order mark that @a text begins with, or 0.
std::size_t ByteOrderMarkSize(std::string_view text);

}  // namespace fittings

#endif
