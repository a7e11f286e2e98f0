#ifndef FITTINGS_NUMEDIT_NUMBER_FORMAT_H_
#define FITTINGS_NUMEDIT_NUMBER_FORMAT_H_

#include <cstdint>

#include <fittings/base/export.h>
#include <fittings/base/std_str.h>

/// @file
/// How a number looks, and which input is accepted: CNumberFormat and its presets.

/// The presets of a CNumberFormat.
enum EGeneralFormat : int {
    eLocaleFormat = 0,  ///< plain numbers with the separators of the process's locale
    eFixedFormat = 1    ///< amounts like 1,234.50 and 1,234.50-, the same in every locale
};

/// How a number looks in a text control, and which input the control accepts.
///
/// A plain record: choose a preset and change the fields that differ. Then pass the format to CNumberEditUtils, or to a
/// wxNumValidator, which copies it. Copies are deep.
///
/// @code
/// CNumberFormat weight(eFixedFormat);
/// weight.m_nDecimals = 3;
/// weight.m_bHasMin = true;
/// weight.m_dMin = 0;
/// weight.m_strTemplate = L"%s kg";
/// wxString shown = CNumberEditUtils::FormatControlText(L"1234.5", weight);  // "1,234.500 kg"
/// @endcode
///
/// The constructor reads the locale once. A format that was made before the host calls setlocale() keeps its
/// separators. Every field but m_strTemplate may have any value; the functions that read a field describe the effect of
/// unusual values. Make and change a format on the GUI thread.
class FITTINGS_API CNumberFormat
{
public:
    /// Fills every field from @a format. Any value but zero means eFixedFormat.
    ///
    /// | Field | eLocaleFormat | eFixedFormat |
    /// | --- | --- | --- |
    /// | m_bPadDecimals, m_bGroupDigits, m_bTrailingMinus | false | true |
    /// | m_chDecimalPoint, m_chThousandsSep | the locale's | `.` and `,` |
    /// | m_nDecimals, m_nMaxIntDigits | not in force | 2 and 5 |
    ///
    /// The other fields have the values below.
    CNumberFormat(EGeneralFormat format);

    /// Copies every field.
    CNumberFormat(const CNumberFormat& other) = default;

    /// Copies every field; assigning a format to itself changes nothing.
    CNumberFormat& operator=(const CNumberFormat& other);

    bool m_bPadDecimals = false;      ///< Show at least m_nDecimals decimals: fill with zeros.
    bool m_bRoundDecimals = false;    ///< Show at most m_nDecimals decimals: round half away from zero.
    bool m_bAllowSign = true;         ///< Accept one leading `+` or `-`.
    bool m_bGroupDigits = false;      ///< Show m_chThousandsSep between groups of three integer digits.
    bool m_bTrailingMinus = false;    ///< Show the minus sign after the number.
    bool m_bAllowExponent = false;    ///< Accept an exponent, such as the `e-3` of 1.5e-3.
    wchar_t m_chDecimalPoint = L'.';  ///< 0 if the locale's point cannot be converted.
    wchar_t m_chThousandsSep = L',';  ///< 0 if the locale has no groups: then leave m_bGroupDigits off.

    /// A printf format with exactly one `%s`, which the shown number replaces; a percent sign is `%%`.
    ///
    /// Use only texts of the program, never one that a user can change: as with every printf format, a wrong one reads
    /// memory beyond its arguments.
    CStdStr<wchar_t> m_strTemplate = L"%s";

    /// @name Limits, each in force only while its flag is set
    /// A limit that is not in force is never read.
    ///
    /// While the user types, the part of the number that is typed so far is checked against the bounds. If the bounds
    /// are as follows, the user can type every number within them, except numbers with an exponent:
    /// - A lowest value of 0 or less and a highest value of 0 or more.
    /// - A lowest value of 1, 0.1, 0.01 and so on. The user must then omit the plus sign, and begin a number below 1
    ///   with "0.".
    ///
    /// Other bounds refuse the beginning of numbers that they accept. A lowest value of 10 refuses the "1" of "12", and
    /// a highest value below 0 refuses each "-". Leave such a bound out, and check it when the dialog ends.
    /// @{

    /// If false, no decimals are accepted, and the decimals of a shown number stay as they are.
    bool m_bHasDecimals = false;
    std::uint64_t m_nDecimals = 0;      ///< The largest number of decimals.
    bool m_bHasMaxIntDigits = false;    ///< Whether m_nMaxIntDigits is in force.
    std::uint64_t m_nMaxIntDigits = 0;  ///< The largest number of digits before the point; the sign does not count.
    bool m_bHasMin = false;             ///< Whether m_dMin is in force.
    double m_dMin = 0;                  ///< The lowest accepted value; NaN accepts every value.
    bool m_bHasMax = false;             ///< Whether m_dMax is in force.
    double m_dMax = 0;                  ///< The highest accepted value; NaN accepts every value.
    /// @}
};

#endif
