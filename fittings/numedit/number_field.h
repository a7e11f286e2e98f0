#ifndef FITTINGS_NUMEDIT_NUMBER_FIELD_H_
#define FITTINGS_NUMEDIT_NUMBER_FIELD_H_

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <wx/string.h>

#include <fittings/numedit/number_entry.h>
#include <fittings/numedit/number_format.h>
#include <fittings/numedit/number_rules.h>

// Private to the library.

namespace fittings {

/// What a wxNumberCtrl knows about its number, without the window.
class NumberField
{
public:
    explicit NumberField(const CNumberFormat& format);

    void SetFormat(const CNumberFormat& format);

    /// The plain text that a text of the control stands for.
    std::wstring Reading(const std::wstring& text) const;

    /// How a plain text is shown without the focus. One that is no number is shown as it is.
    std::wstring Shown(const std::wstring& plain) const;

    /// What is wrong with a plain text, in the user's language.
    wxString Problem(const std::wstring& plain) const;

    NumberState State(const std::wstring& plain) const;

    /// What goes in of an insertion; nothing where it is refused.
    std::optional<std::wstring> Accepted(const NumberEntry::Insertion& insertion) const;

    /// The plain text one step up or down, or ten; nothing where there is no such number, or it is the same.
    std::optional<std::wstring> Stepped(const std::wstring& plain, bool up, bool tenfold) const;

    /// The place in the second text that a place in the first one is at, counted from the decimal point.
    long Place(const std::wstring& from, const std::wstring& to, long place) const;

    CNumberFormat format;
    NumberRules rules;
    Decimal increment = MakeDecimal("1", 1);
    bool showsPlain = false;
    std::wstring plain;               ///< While it is formatted: what it is the formatting of.
    std::wstring shown;               ///< While it is formatted: the formatted text.
    std::wstring exact;               ///< What the program has set, which may have more decimals than the format.
    std::optional<Decimal> told;      ///< The number that the program knows of.
    std::pair<long, long> selection;  ///< Of the plain text, when it was formatted.
    std::pair<long, long> mapped;     ///< The same, of the formatted text.
    wxString problem;                 ///< What is shown as wrong.
    wxString hostTip;                 ///< The program's own tooltip, meanwhile.
    std::string hostDescription;      ///< And its accessible description.
    int wheel = 0;                    ///< How far the wheel has been turned, less than a step.
    std::unique_ptr<NumberEntry> entry;

private:
    /// Whether a text may stay, as a number within the bounds or the beginning of one.
    bool MayStay(const std::wstring& text) const;
};

}  // namespace fittings

#endif
