#ifndef FITTINGS_TESTS_NUMEDIT_NUMBER_TEXTS_H_
#define FITTINGS_TESTS_NUMEDIT_NUMBER_TEXTS_H_

#include <initializer_list>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <fittings/numedit/number_edit_utils.h>

/// A row in a table of texts and expected results.
struct TextCase
{
    const char* name;
    const wchar_t* text;
    const wchar_t* expected;
};

/// @name Functions of CNumberEditUtils for std::wstring; Cut() and Group() return the edited text
/// @{
inline std::wstring Cut(const std::wstring& text, const CNumberFormat& format = CNumberFormat(eFixedFormat))
{
    wxString result(text);
    CNumberEditUtils::CutZeros(result, format);
    return result.ToStdWstring();
}

inline std::wstring Group(const std::wstring& text, const CNumberFormat& format = CNumberFormat(eFixedFormat))
{
    wxString result(text);
    CNumberEditUtils::GroupDigits(result, format);
    return result.ToStdWstring();
}

inline std::wstring Shown(const std::wstring& text, const CNumberFormat& format)
{
    return CNumberEditUtils::FormatControlText(text.c_str(), format).ToStdWstring();
}

inline bool Valid(const wchar_t* text, const CNumberFormat& format)
{
    return CNumberEditUtils::ValidateString(text, format);
}

inline bool Valid(const std::wstring& text, const CNumberFormat& format)
{
    return Valid(text.c_str(), format);
}
/// @}

/// Expects that FormatControlText() makes the second text of each pair from the first one.
inline void ExpectShown(const CNumberFormat& format,
                        std::initializer_list<std::pair<const wchar_t*, const wchar_t*>> pairs)
{
    for (const auto& [text, expected] : pairs)
        EXPECT_EQ(Shown(text, format), expected) << text;
}

/// Expects that ValidateString() accepts each text.
inline void ExpectValid(const CNumberFormat& format, std::initializer_list<std::wstring> texts)
{
    for (const std::wstring& text : texts)
        EXPECT_TRUE(Valid(text, format)) << text;
}

/// Expects that ValidateString() refuses each text.
inline void ExpectInvalid(const CNumberFormat& format, std::initializer_list<std::wstring> texts)
{
    for (const std::wstring& text : texts)
        EXPECT_FALSE(Valid(text, format)) << text;
}

#endif
