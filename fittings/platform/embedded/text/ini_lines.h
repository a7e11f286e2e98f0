#ifndef FITTINGS_PLATFORM_EMBEDDED_TEXT_INI_LINES_H_
#define FITTINGS_PLATFORM_EMBEDDED_TEXT_INI_LINES_H_

#include <cstddef>
#include <string_view>

// The grammar of an INI file. Private to the library.

namespace fittings {

enum class IniLineKind {
    Comment,        ///< A blank line or one that starts with '#'.
    Section,        ///< [name]
    Key,            ///< name=value below a section.
    EarlyKey,       ///< name=value before the first section.
    BrokenSection,  ///< Starts with '[' but is not a section line. The keys below it are Unknown.
    Unknown,        ///< Every other line, for example one that starts with ';'.
};

/// One line. The numbers are offsets into the text.
struct IniLine
{
    IniLineKind kind;
    std::size_t begin;
    std::size_t end;   ///< The place of the line end.
    std::size_t next;  ///< Where the next line begins.
    std::string_view name;
    bool isPlainName;   ///< True if the name is certainly as EncodeName() writes it.
    std::size_t value;  ///< The beginning of a key's value.
};

/// Walks through a text line by line. It recognises every section and key that GKeyFile does.
class IniLines
{
public:
    explicit IniLines(std::string_view text);

    /// Stores the next line in @a line. Returns false at the end of the text.
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

/// Returns the number of bytes of the byte order mark that @a text begins with; 0 if there is none.
std::size_t ByteOrderMarkSize(std::string_view text);

}  // namespace fittings

#endif
