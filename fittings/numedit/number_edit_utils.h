#ifndef FITTINGS_NUMEDIT_NUMBER_EDIT_UTILS_H_
#define FITTINGS_NUMEDIT_NUMBER_EDIT_UTILS_H_

#include <wx/string.h>

#include <fittings/base/export.h>
#include <fittings/numedit/number_format.h>

/// Checks, cleans up and formats the text of a number as a CNumberFormat says. The text is never converted to a
/// `double` for display, so even thousands of digits are all kept.
///
/// @code
/// const CNumberFormat format(eFixedFormat);
/// if (CNumberEditUtils::ValidateString(typed.wc_str(), format))
///     label->SetLabel(CNumberEditUtils::FormatControlText(typed.wc_str(), format));  // 1234.5 as 1,234.50
/// @endcode
///
/// A null text counts as empty, and any other text may be passed. The time grows in proportion to the length of the
/// text. Digits are `0` to `9`. Blanks are the characters for which iswspace() is true in the process's locale. No
/// function remembers the decimal point of that locale: it is read again when it is needed. Call on the GUI thread:
/// localeconv() and the toolkit's current conversion require it.
class FITTINGS_API CNumberEditUtils
{
public:
    /// Removes the blanks around a number and needless zeros: " 000.500 " becomes "0.5", "1.500e10" becomes "1.5e10",
    /// "1.0" becomes "1", and "." and "" become "0".
    ///
    /// A sign stops the trimming at the front, so "-007" keeps its zeros and "-.5" stays. At the end, only zeros after
    /// the decimal point are removed: "10" stays "10". The exponent stays as it is. Only the decimal point of the
    /// format is used.
    static void CutZeros(wxString& text, const CNumberFormat& format);

    /// Inserts the format's thousands separator after every three characters, counted from the decimal point to the
    /// left: "1234567.891" becomes "1,234,567.891".
    ///
    /// Pass digits without a sign: every character before the point counts, so "-123" becomes "-,123". The text ends at
    /// its first zero character, so with a separator of 0 only the first group remains: 1234 becomes 1. Only the
    /// decimal point and the thousands separator of the format are used.
    static void GroupDigits(wxString& text, const CNumberFormat& format);

    /// Returns whether @a text is a number that the format accepts.
    ///
    /// Accepts a sign, digits, a point and digits, and then an exponent, each if the format allows it. Accepts the
    /// beginning of such a number too: the empty text, a lone sign, a lone point, "1." and "1e-". The exponent's letter
    /// may be missing, as in "12-5". Refuses group separators and blanks. Refuses a trailing minus too, unless an
    /// exponent is allowed: "12-" is the beginning of "12-5". So some results of FormatControlText() are refused.
    ///
    /// The point is the format's or the locale's. If the toolkit's current conversion cannot read the locale's point,
    /// no point is accepted. If the format's point is a digit, that digit always counts as the point.
    ///
    /// Bounds are compared with the value that wcstod() reads, which is 0 for a text without digits. So with a lowest
    /// value above 0 or a highest value below 0, the empty text and a lone sign are refused. If the lowest value is
    /// above the highest, every text is refused.
    static bool ValidateString(const wchar_t* text, const CNumberFormat& format);

    /// Returns whether a field may have @a text while a user types.
    ///
    /// Accepts what ValidateString() accepts. If decimals are accepted, these texts are accepted too, whatever the
    /// bounds: the lone point, "0", "0." and up to m_nDecimals zeros after the point. So 0.05 can be typed if the
    /// lowest value is 0.01.
    ///
    /// Other beginnings must be within the bounds themselves. With a lowest value of 10, "1" is refused, although "12"
    /// is accepted. With a highest value below 0, "-" is refused, because a lone sign counts as 0.
    static bool ValidateInput(const wchar_t* text, const CNumberFormat& format);

    /// Returns @a text formatted for display: without needless zeros, with a rounded or padded fraction, grouped digits
    /// and the minus sign in its place, and put into the format's template.
    ///
    /// With eFixedFormat, "1234.5" gives "1,234.50", "-1234.567" gives "1,234.567-", ".5" gives "0.50" and "" gives "",
    /// without the template. The text's point may be the format's or the locale's. No text is refused: everything after
    /// the number is dropped, so "12abc" gives "12" and "1,234" gives "1". A plus sign is dropped too. A fraction is
    /// not padded if an exponent or a dropped text follows it. A trailing minus comes before an exponent: "-1.5e3"
    /// gives "1.5-e3".
    ///
    /// At most 1,000,000 zeros are appended, even if m_nDecimals is larger. If the decimal point is 0, the shown number
    /// ends at the point.
    ///
    /// The template must have exactly one `%s`. Without any, the result is the template with `%` for each `%%`, and
    /// without the number; an empty template gives the empty text. With a second conversion or one of another type, the
    /// behaviour is undefined, as with printf().
    static wxString FormatControlText(const wchar_t* text, const CNumberFormat& format);
};

#endif
