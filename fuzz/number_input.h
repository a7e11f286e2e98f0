#ifndef FITTINGS_FUZZ_NUMBER_INPUT_H_
#define FITTINGS_FUZZ_NUMBER_INPUT_H_

#include <cstddef>
#include <cstdint>
#include <string>

#include <fittings/numedit/number_format.h>

/// A format and a text made from a fuzzer's bytes, and the locale they ask for.
///
/// The text stands first in the bytes, a character each: ASCII as itself, higher bytes for blanks, digits and points of
/// other scripts and for what is no character at all. The last bytes are the format. So a text file is a good first
/// input.
struct NumberInput
{
    /// Sets the locale.
    NumberInput(const std::uint8_t* data, std::size_t size);

    /// The text as a pointer to it gives it.
    std::wstring Typed() const { return text.substr(0, text.find(L'\0')); }

    CNumberFormat format;
    std::wstring text;  ///< may hold zero characters

    /// The decimal point of the locale that is set.
    wchar_t localePoint = L'.';
};

#endif
