#ifndef FITTINGS_FUZZ_NUMBER_INPUT_H_
#define FITTINGS_FUZZ_NUMBER_INPUT_H_

#include <cstddef>
#include <cstdint>
#include <string>

#include <fittings/numedit/number_format.h>

/// A format, a text and a locale, made from a fuzzer's bytes.
///
/// The first bytes are the text, one character for each byte. ASCII bytes are the characters themselves. Higher bytes
/// are blanks, digits and points of other scripts, and invalid characters. The last bytes are the locale and the
/// format. Therefore a text file is a good first input.
struct NumberInput
{
    /// Makes the format and the text from the bytes, and sets the locale that the bytes choose.
    NumberInput(const std::uint8_t* data, std::size_t size);

    /// Returns the text up to its first null character.
    std::wstring Typed() const { return text.substr(0, text.find(L'\0')); }

    CNumberFormat format;
    std::wstring text;  ///< may contain null characters

    /// The decimal point of the locale that is set.
    wchar_t localePoint = L'.';
};

#endif
