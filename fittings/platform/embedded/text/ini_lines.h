#ifndef FITTINGS_PLATFORM_EMBEDDED_TEXT_INI_LINES_H_
#define FITTINGS_PLATFORM_EMBEDDED_TEXT_INI_LINES_H_

#include <cstddef>
#include <string_view>

// The grammar of an INI file. Private to the library.

namespace fittings {

/// A section line, [name], or a key line, name=value. The numbers are offsets into the text.
struct IniLine
{
    bool isSection;
    std::size_t begin;
    std::size_t end;   ///< Where the line end begins.
    std::size_t next;  ///< Where the next line begins.
    std::string_view name;
    bool isPlainName;   ///< True if IsPlainInName() is true for every byte of the name.
    std::size_t value;  ///< Where the value of a key begins.
};

/// Finds the lines with the sections and keys of a text. It recognises every section and key that GKeyFile recognises,
/// and also keys before the first section.
class IniLines
{
public:
    explicit IniLines(std::string_view text);

    /// Stores the next section or key in @a line. Returns false when there is none.
    bool Next(IniLine& line);

    bool HasNul() const { return m_hasNul; }

private:
    bool Parse(IniLine& line);
    bool ParseKey(IniLine& line, std::string_view text) const;

    std::string_view m_text;
    std::size_t m_at = 0;
    bool m_hasNul;
    bool m_isBelowBrokenSection = false;  ///< True below a line that starts with '[' but is not a section line.
};

/// Returns the number of bytes of the byte order mark that @a text begins with; 0 if there is none.
std::size_t ByteOrderMarkSize(std::string_view text);

}  // namespace fittings

#endif
