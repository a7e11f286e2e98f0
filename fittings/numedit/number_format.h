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
/// A plain record: choose a preset, and change fields as needed. Then pass the format to CNumberEditUtils, or to a
/// validator or wxNumberCtrl, which copies the format. Copies are deep.
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
/// separators. Every field except m_strTemplate may have any value. The effect of an unusual value is described at the
/// functions that read the field. Make and change a format on the GUI thread.
class FITTINGS_API CNumberFormat
{
public:
    /// Fills every field from @a format. Any value except 0 means eFixedFormat.
    ///
    /// | Field | eLocaleFormat | eFixedFormat |
    /// | --- | --- | --- |
    /// | m_bPadDecimals, m_bGroupDigits, m_bTrailingMinus | false | true |
    /// | m_chDecimalPoint, m_chThousandsSep | the locale's | `.` and `,` |
    /// | m_nDecimals, m_nMaxIntDigits | not applied | 2 and 5 |
    ///
    /// The other fields have the values below.
    CNumberFormat(EGeneralFormat format);

    /// Copies every field.
    CNumberFormat(const CNumberFormat& other) = default;

    /// Copies every field, but the template only up to its first null character. A format may be assigned to itself.
    CNumberFormat& operator=(const CNumberFormat& other);

    bool m_bPadDecimals = false;      ///< Show at least m_nDecimals decimals: fill with zeros.
    bool m_bRoundDecimals = false;    ///< Show at most m_nDecimals decimals: round half away from zero.
    bool m_bAllowSign = true;         ///< Accept one leading `+` or `-`.
    bool m_bGroupDigits = false;      ///< Show m_chThousandsSep between groups of three integer digits.
    bool m_bTrailingMinus = false;    ///< Show the minus sign after the number.
    bool m_bAllowExponent = false;    ///< Accept an exponent, such as the `e-3` of 1.5e-3.
    wchar_t m_chDecimalPoint = L'.';  ///< With eLocaleFormat, 0 if the locale's point cannot be converted to wide text.
    wchar_t m_chThousandsSep = L',';  ///< With eLocaleFormat, 0 if the locale has none: then leave m_bGroupDigits off.

    /// A printf format with exactly one `%s`, which the shown number replaces. Write a percent sign as `%%`.
    ///
    /// Use only texts of the program, and never a text that a user can change. As with every printf format, a wrong
    /// format reads memory beyond the arguments.
    CStdStr<wchar_t> m_strTemplate = L"%s";

    /// @name Limits: each applies only while its flag is set
    /// A limit that does not apply is never read.
    ///
    /// CNumberEditUtils::ValidateInput() and wxNumValidator check the part of the number that is typed so far against
    /// the bounds. With the following bounds, the user can type every number within the bounds, except numbers with an
    /// exponent:
    /// - A lowest value of 0 or less and a highest value of 0 or more.
    /// - A lowest value of 1, 0.1, 0.01 and so on. The user must then omit the plus sign, and begin a number below 1
    ///   with "0.".
    ///
    /// With other bounds, the beginning of some accepted numbers is refused: the "1" of "12" with a lowest value of 10,
    /// and each "-" with a highest value below 0. Leave out such a bound and check it when the dialog ends, or use a
    /// wxNumberCtrl.
    /// @{

    /// If false, no decimals are accepted, and the decimals of a shown number are neither rounded nor padded.
    bool m_bHasDecimals = false;
    std::uint64_t m_nDecimals = 0;      ///< The largest number of decimals.
    bool m_bHasMaxIntDigits = false;    ///< Whether m_nMaxIntDigits applies.
    std::uint64_t m_nMaxIntDigits = 0;  ///< The largest number of digits before the point; the sign does not count.
    bool m_bHasMin = false;             ///< Whether m_dMin applies.
    double m_dMin = 0;                  ///< The lowest accepted value; NaN accepts every value.
    bool m_bHasMax = false;             ///< Whether m_dMax applies.
    double m_dMax = 0;                  ///< The highest accepted value; NaN accepts every value.
    /// @}
};

#endif
