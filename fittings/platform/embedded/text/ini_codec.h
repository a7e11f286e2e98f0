#ifndef FITTINGS_PLATFORM_EMBEDDED_TEXT_INI_CODEC_H_
#define FITTINGS_PLATFORM_EMBEDDED_TEXT_INI_CODEC_H_

#include <string>
#include <string_view>

// Conversion of text to and from its form in an INI file. Private to the library.
//
// In wide text, a byte that is not UTF-8 is represented by the code U+DC00 plus the byte. So the conversion back to
// narrow text returns the same byte.

namespace fittings {

/// Returns @a text as the name of a section or key. Characters that a name cannot contain are percent-encoded; the
/// empty text becomes "%". Different texts have different names.
std::string EncodeName(std::wstring_view text);

/// Returns the text that a name in a file stands for, even if another program or a person wrote the name.
std::wstring DecodeName(std::string_view name);

/// Returns whether @a byte is an ASCII letter, an ASCII digit or one of "_-./:". EncodeName() leaves these bytes as
/// they are, wherever they stand in a name.
bool IsPlainInName(char byte);

/// Encodes @a text as a value in the file. DecodeValue() reverses this. Puts quotes around a text that begins with a
/// quote or a space, ends with a space, or contains characters that must be escaped.
std::string EncodeValue(std::wstring_view text);

/// Returns the text of @a value, which must not begin with a blank. A value in quotes that is not well formed is taken
/// literally, with its quotes.
std::wstring DecodeValue(std::string_view value);

std::wstring NarrowToWide(std::string_view text);

/// Reverses NarrowToWide(). A code that represents a byte becomes that byte. Any other code is encoded by AppendUtf8(),
/// even a surrogate such as U+D800.
std::string WideToNarrow(std::wstring_view text);

}  // namespace fittings

#endif
