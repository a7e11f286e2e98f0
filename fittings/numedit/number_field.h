#ifndef FITTINGS_NUMEDIT_NUMBER_FIELD_H_
#define FITTINGS_NUMEDIT_NUMBER_FIELD_H_

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <wx/string.h>

#include <fittings/numedit/entry/number_entry.h>
#include <fittings/numedit/number_format.h>
#include <fittings/numedit/number_rules.h>

// Private to the library.

namespace fittings {

/// The data of a wxNumberCtrl, and functions that compute texts and numbers from it. No function changes the control.
class NumberField
{
public:
    explicit NumberField(const CNumberFormat& format);

    void SetFormat(const CNumberFormat& format);

    /// Converts a text of the control to plain text: without groups, blanks and the template, and with the sign in
    /// front. A text that is not a number stays as it is.
    std::wstring Reading(const std::wstring& text) const;

    /// Converts a plain text to the text that the field shows without the focus. A text stays as it is if it is not a
    /// number, has more digits than are allowed, or is too long for a GtkEntry after formatting.
    std::wstring Shown(const std::wstring& plain) const;

    /// Returns the problem of a plain text, in the user's language; empty if there is none.
    wxString Problem(const std::wstring& plain) const;

    NumberState State(const std::wstring& plain) const;

    /// Returns whether a GtkEntry can hold a text.
    static bool FitsEntry(const std::wstring& text);

    /// Returns whether an insertion makes the plain text longer than `mostCharacters` allows.
    bool IsTooLong(const NumberEntry::Insertion& insertion) const;

    /// Converts an insertion by the user to the insertion to make in the plain text. Returns nothing if the insertion
    /// is refused.
    std::optional<NumberEntry::Insertion> Accepted(NumberEntry::Insertion insertion) const;

    /// Returns the plain text after a step up or down. If @a tenfold is true, the step is ten times as large. A step
    /// beyond a bound ends at the bound. Returns nothing if the step does not change the number, or if the new number
    /// is not acceptable.
    std::optional<std::wstring> Stepped(const std::wstring& plain, bool up, bool tenfold) const;

    /// Returns the position in @a to that corresponds to the position @a place in @a from. The two positions are on the
    /// same side of the decimal point and the same number of digits away from the point. The beginnings of @a from and
    /// @a to correspond to each other, and so do the ends.
    long Place(const std::wstring& from, const std::wstring& to, long place) const;

    CNumberFormat format;
    NumberRules rules;
    Decimal increment = MakeDecimal("1", 1);
    std::size_t mostCharacters = 0;  ///< The largest number of characters that the user can type; 0 for no limit.
    bool showsPlain = false;
    bool awaitsPlain = false;         ///< True if ShowPlain() will be called after the current event.
    std::wstring plain;               ///< The plain text of `shown`.
    std::wstring shown;               ///< The last formatted text, which the field shows while it lacks the focus.
    std::wstring exact;               ///< The plain text from SetDecimal(), even with more decimals than allowed.
    std::optional<Decimal> told;      ///< The number that the program last set, or that the last event reported.
    std::pair<long, long> selection;  ///< The selection in the plain text at the time when the text was formatted.
    std::pair<long, long> mapped;     ///< The same selection in the formatted text.
    wxString problem;                 ///< The problem that is shown.
    wxString hostTip;                 ///< The program's own tooltip, kept while a problem is shown in its place.
    std::string hostDescription;      ///< The program's own accessible description, kept like the tooltip.
    int wheel = 0;                    ///< The wheel's rotation since the last whole step.
    std::unique_ptr<NumberEntry> entry;

private:
    /// Returns whether a text fits a GtkEntry, and is a number within the bounds or the beginning of such a number.
    bool MayStay(const std::wstring& text) const;
};

}  // namespace fittings

#endif
