#ifndef FITTINGS_PLATFORM_EMBEDDED_INI_CODEC_H_
#define FITTINGS_PLATFORM_EMBEDDED_INI_CODEC_H_

#include <string>
#include <string_view>

/// Text to and from what stands in an INI file.
///
/// A byte that is not UTF-8 is the character U+DC00 plus the byte, in wide text, so that both forms of text carry it.
namespace fittings {

/// Returns @a text as the name of a section or key: percent-encoded where a file could not hold it otherwise, and
/// "%" when empty. Different texts have different names.
std::string EncodeName(std::wstring_view text);

/// Returns the text that a name in a file stands for, whoever wrote it.
std::wstring DecodeName(std::string_view name);

/// True for a byte that every name may hold as it is, at any place.
bool IsPlainInName(char byte);

/// Returns @a text as a value: as it is where that comes back exactly, else in quotes.
std::string EncodeValue(std::wstring_view text);

/// Returns the text of a value, which does not begin with a blank. One in quotes that are not well formed is taken
/// literally, quotes included.
std::wstring DecodeValue(std::string_view value);

/// True when DecodeValue() returns @a text for @a value. A difference is found without decoding what follows it.
bool DecodesTo(std::string_view value, std::wstring_view text);

std::wstring NarrowToWide(std::string_view text);

/// The reverse of NarrowToWide(). A character that has no bytes, such as the surrogate U+D800, gets those that UTF-8
/// would have for it.
std::string WideToNarrow(std::wstring_view text);

}  // namespace fittings

#endif
