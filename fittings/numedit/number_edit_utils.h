#ifndef FITTINGS_NUMEDIT_NUMBER_EDIT_UTILS_H_
#define FITTINGS_NUMEDIT_NUMBER_EDIT_UTILS_H_

#include <wx/string.h>

#include <fittings/base/export.h>
#include <fittings/numedit/number_format.h>

/// Checks, tidies and shows the text of a number as a CNumberFormat says. What is shown was never a `double`: of
/// thousands of digits each stays.
///
/// @code
/// const CNumberFormat format(eFixedFormat);
/// if (CNumberEditUtils::ValidateString(typed.wc_str(), format))
///     label->SetLabel(CNumberEditUtils::FormatControlText(typed.wc_str(), format));  // 1234.5 as 1,234.50
/// @endcode
///
/// A null text counts as the empty one, and no text is too odd: each operation leaves or returns a valid text, or
/// answers false. The time taken grows in proportion to the text. Digits are `0` to `9`; blanks are what iswspace()
/// calls so in the process's locale, whose decimal point is read anew by every call. Call on the GUI thread, as
/// localeconv() and the toolkit's current conversion demand.
class FITTINGS_API CNumberEditUtils
{
public:
    /// Removes the blanks around a number and the zeros that say nothing: " 000.500 " becomes "0.5", "1.500e10"
    /// becomes "1.5e10", "1.0" becomes "1", and "." and "" become "0".
    ///
    /// A sign stops the trimming in front, so "-007" keeps its zeros and "-.5" stays. Zeros behind the decimal point
    /// go, others stay: "10" is "10". The exponent stays as it is. Reads only the format's decimal point.
    static void CutZeros(wxString& text, const CNumberFormat& format);

    /// Puts the format's thousands separator between each three characters before the decimal point, counted from
    /// there: "1234567.891" becomes "1,234,567.891".
    ///
    /// Give it bare digits: every character before the point counts, so "-123" becomes "-,123". The text ends at its
    /// first zero character, and so a separator of 0 leaves the first group alone: 1234 becomes 1. Reads only the
    /// format's decimal point and thousands separator.
    static void GroupDigits(wxString& text, const CNumberFormat& format);

    /// Whether @a text is a number that the format accepts.
    ///
    /// Accepted is a sign, digits, a point and digits, and then an exponent, each as far as the format allows it.
    /// Whatever begins such a number is accepted too: the empty text, a lone sign, a lone point, "1." and "1e-". The
    /// exponent's letter may be left out, as in "12-5". Group separators, blanks and a trailing minus are not accepted,
    /// and so not everything that FormatControlText() shows.
    ///
    /// The point is the format's or the locale's; none is accepted where the toolkit's current conversion cannot read
    /// the locale's. A digit as the format's point stands for the point wherever it is typed.
    ///
    /// Bounds are checked against what wcstod() reads, which is 0 of a text that is no number yet: with a lowest value
    /// above 0 or a highest one below 0, the empty text and a lone sign are refused. Where the lowest value is above
    /// the highest, every text is.
    static bool ValidateString(const wchar_t* text, const CNumberFormat& format);

    /// Whether @a text may stand in a field while a user types.
    ///
    /// Besides what ValidateString() accepts, and whatever the bounds, that is the lone point, "0", "0." and up to
    /// m_nDecimals zeros behind it, where decimals are accepted. So 0.05 can be typed where the lowest value is 0.01.
    ///
    /// Other beginnings are checked against the bounds as they are. With a lowest value of 10, "1" is refused, although
    /// "12" is accepted; with a highest value below 0, "-" is refused, as it counts as 0.
    static bool ValidateInput(const wchar_t* text, const CNumberFormat& format);

    /// Returns @a text as it is to be shown: without needless zeros, its fraction rounded or padded, its digits
    /// grouped, the minus sign in its place, and all this put into the format's template.
    ///
    /// Under eFixedFormat, "1234.5" gives "1,234.50", "-1234.567" gives "1,234.567-", ".5" gives "0.50" and "" gives
    /// "", without the template. The text's point may be the format's or the locale's. Nothing is refused: what
    /// follows the number is dropped, so "12abc" gives "12" and the group separator in "1,234" leaves "1". A plus sign
    /// is dropped as well. A fraction before an exponent or before something dropped is not padded. A trailing minus
    /// stands before an exponent: "-1.5e3" gives "1.5-e3".
    ///
    /// An m_nDecimals too large for any text cannot ask for one: no more than 1,000,000 zeros are appended. Where the
    /// decimal point is 0, the shown number ends at it.
    ///
    /// The template must have exactly one `%s`. Without any it is returned with its `%%` made `%`, and the number is
    /// not seen; an empty one gives the empty text. With a second conversion or one of another type the behaviour is
    /// undefined, as with printf().
    static wxString FormatControlText(const wchar_t* text, const CNumberFormat& format);
};

#endif
