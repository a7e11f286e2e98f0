#ifndef FITTINGS_NUMEDIT_NUMBER_EDIT_UTILS_H_
#define FITTINGS_NUMEDIT_NUMBER_EDIT_UTILS_H_

#include <wx/string.h>

#include <fittings/base/export.h>
#include <fittings/numedit/number_format.h>

/// Checks, cleans up and formats the text of a number as a CNumberFormat says. The text is never converted to a
/// `double` for display, so no digit is lost even in a number with thousands of digits.
///
/// @code
/// const CNumberFormat format(eFixedFormat);
/// if (CNumberEditUtils::ValidateString(typed.wc_str(), format))
///     label->SetLabel(CNumberEditUtils::FormatControlText(typed.wc_str(), format));  // 1234.5 as 1,234.50
/// @endcode
///
/// A null pointer counts as the empty text. Any other text may be passed. The time grows in proportion to the length of
/// the text. Digits are `0` to `9`. Blanks are the characters for which iswspace() is true in the process's locale. The
/// functions read the decimal point of that locale each time they need it. Call them on the GUI thread only:
/// localeconv() and the toolkit's current conversion require this.
class FITTINGS_API CNumberEditUtils
{
public:
    /// Removes the blanks around a number and needless zeros: " 000.500 " becomes "0.5", "1.500e10" becomes "1.5e10",
    /// "1.0" becomes "1", and "." and "" become "0".
    ///
    /// Zeros after a sign stay: "-007" stays "-007". No zero is put after a sign: "-.5" stays "-.5". At the end, only
    /// zeros after the decimal point are removed: "10" stays "10". The exponent stays as it is. Of the format, only the
    /// decimal point is used.
    static void CutZeros(wxString& text, const CNumberFormat& format);

    /// Inserts the format's thousands separator between groups of three characters, counted from the decimal point to
    /// the left: "1234567.891" becomes "1,234,567.891".
    ///
    /// Pass digits without a sign: every character before the point counts, so "-123" becomes "-,123". The result ends
    /// before the first null character. So if m_chThousandsSep is 0, only the first group remains: "1234" becomes "1".
    /// Of the format, only the decimal point and the thousands separator are used.
    static void GroupDigits(wxString& text, const CNumberFormat& format);

    /// Returns whether @a text is a number that the format accepts.
    ///
    /// Accepts a sign, digits, a point, digits and an exponent, in this order. Accepts only the parts that the format
    /// allows. Accepts the beginning of such a number too: the empty text, a lone sign, a lone point, "1." and "1e-".
    /// The exponent's letter may be missing, as in "12-5". Refuses group separators and blanks. Refuses a trailing
    /// minus if the format allows no exponent, so some results of FormatControlText() are refused. If the format allows
    /// an exponent, accepts "12-", because it is the beginning of "12-5".
    ///
    /// The point may be the format's or the locale's. If wxConvCurrent cannot convert the locale's point, no point is
    /// accepted, not even the format's. If the format's point is a digit, that digit always counts as the point.
    ///
    /// The bounds are compared with the value that wcstod() returns, which is 0 for a text without digits. So with a
    /// lowest value above 0 or a highest value below 0, the empty text and a lone sign are refused. If the lowest value
    /// is above the highest value, every text is refused.
    static bool ValidateString(const wchar_t* text, const CNumberFormat& format);

    /// Returns whether a field may have @a text while a user types.
    ///
    /// Accepts what ValidateString() accepts. If the format allows decimals, also accepts these texts, whatever the
    /// bounds: the lone point, "0", "0.", and "0." with at most m_nDecimals zeros after the point. So 0.05 can be typed
    /// if the lowest value is 0.01.
    ///
    /// Every other beginning of a number must itself be within the bounds. With a lowest value of 10, "1" is refused,
    /// although "12" is accepted. With a highest value below 0, "-" is refused, because a lone sign counts as 0.
    static bool ValidateInput(const wchar_t* text, const CNumberFormat& format);

    /// Returns @a text formatted for display. Removes the same zeros as CutZeros(). As the format says, rounds or pads
    /// the fraction, groups the digits, places the minus sign, and puts the result into the template.
    ///
    /// With eFixedFormat, "1234.5" gives "1,234.50", "-1234.567" gives "1,234.567-" and ".5" gives "0.50". The empty
    /// text gives the empty text, without the template. The text's point may be the format's or the locale's. No text
    /// is refused: everything after the number is dropped, so "12abc" gives "12". If the locale's point is not a comma,
    /// "1,234" gives "1". A plus sign is dropped too. A number is not padded if an exponent or a dropped text follows
    /// it. A trailing minus comes before an exponent: "-1.5e3" gives "1.5-e3".
    ///
    /// At most 1,000,000 zeros are appended, even if m_nDecimals is larger. If m_chDecimalPoint is 0, the point and the
    /// decimals are not shown.
    ///
    /// The template must have exactly one `%s`. Without a `%s`, the result is the template without the number, and with
    /// `%` for each `%%`. An empty template gives the empty text. With a second conversion, or a conversion of another
    /// type, the behaviour is undefined, as with printf().
    static wxString FormatControlText(const wchar_t* text, const CNumberFormat& format);
};

#endif
