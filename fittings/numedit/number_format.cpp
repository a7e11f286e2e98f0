#include <fittings/numedit/number_format.h>

#include <clocale>

#include <fittings/numedit/locale_text.h>

namespace {

// Returns the first character of a text of localeconv(). Returns 0 if the text is empty or cannot be converted.
wchar_t FirstCharacter(const char* text)
{
    const std::wstring wide = fittings::FromLocale(text);
    return wide.empty() ? L'\0' : wide.front();
}

}  // namespace

CNumberFormat::CNumberFormat(EGeneralFormat format)
{
    if (format == eLocaleFormat) {
        const std::lconv* locale = std::localeconv();
        m_chDecimalPoint = FirstCharacter(locale->decimal_point);
        m_chThousandsSep = FirstCharacter(locale->thousands_sep);
        return;
    }
    m_bPadDecimals = true;
    m_bGroupDigits = true;
    m_bTrailingMinus = true;
    m_bHasDecimals = true;
    m_nDecimals = 2;
    m_bHasMaxIntDigits = true;
    m_nMaxIntDigits = 5;
}

// Copies the template only up to its first null character.
CNumberFormat& CNumberFormat::operator=(const CNumberFormat& other)
{
    m_bPadDecimals = other.m_bPadDecimals;
    m_bRoundDecimals = other.m_bRoundDecimals;
    m_bAllowSign = other.m_bAllowSign;
    m_bGroupDigits = other.m_bGroupDigits;
    m_bTrailingMinus = other.m_bTrailingMinus;
    m_bAllowExponent = other.m_bAllowExponent;
    m_chDecimalPoint = other.m_chDecimalPoint;
    m_chThousandsSep = other.m_chThousandsSep;
    m_strTemplate = other.m_strTemplate.c_str();
    m_bHasDecimals = other.m_bHasDecimals;
    m_nDecimals = other.m_nDecimals;
    m_bHasMaxIntDigits = other.m_bHasMaxIntDigits;
    m_nMaxIntDigits = other.m_nMaxIntDigits;
    m_bHasMin = other.m_bHasMin;
    m_dMin = other.m_dMin;
    m_bHasMax = other.m_bHasMax;
    m_dMax = other.m_dMax;
    return *this;
}
