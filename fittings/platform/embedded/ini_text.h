#ifndef FITTINGS_PLATFORM_EMBEDDED_INI_TEXT_H_
#define FITTINGS_PLATFORM_EMBEDDED_INI_TEXT_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The lines of an INI file as a person wrote them, and changes to it that leave every other byte alone.
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

/// Walks through a text line by line. GKeyFile takes what is called a section, a key or a comment here as the same.
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

struct IniEdit
{
    std::string section;  ///< As it stands in the text. Empty: the edit removes a key before the first section.
    std::string key;      ///< As it stands in the text. Empty: the edit is of the section itself.
    std::optional<std::string> value;  ///< None removes the key, or the line of the section.
};

/// Returns @a text after the edits, none of which may name a key twice.
///
/// A value is replaced in its line; of several lines with one key in the last, which is the one that counts. New keys
/// come after the last key of their section, new sections after a blank line at the end. What is not a key stays where a
/// section is removed, and who removes one removes its keys too.
std::string ApplyEdits(std::string_view text, const std::vector<IniEdit>& edits);

}  // namespace fittings

#endif
