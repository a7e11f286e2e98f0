#ifndef FITTINGS_TESTS_NUMEDIT_NUMBER_TEXTS_H_
#define FITTINGS_TESTS_NUMEDIT_NUMBER_TEXTS_H_

#include <string>

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

#endif
