#include <fittings/numedit/number_field.h>

#include <algorithm>

#include <wx/translation.h>

#include <fittings/numedit/number_edit_utils.h>
#include <fittings/platform/lng_util.h>

namespace fittings {

namespace {

constexpr std::int64_t kAnyDecimals = kMostExponent / 4;
constexpr std::size_t kMostBytes = 65'534;  // A GtkEntry drops the end of a longer text.

wxString Translated(const wchar_t* key)
{
    static CLanguageDomain everyCatalogue;
    return lng_util_internal::DoGetResourceString(key, &everyCatalogue);
}

// Returns the translated text with @a number in place of %s.
wxString Translated(const wchar_t* key, const wxString& number)
{
    wxString text = Translated(key);
    text.Replace("%s", number, false);
    return text;
}

bool IsDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

// Returns how many digits follow the point.
std::int64_t DecimalsIn(const std::wstring& text, wchar_t point)
{
    const std::size_t found = text.find(point);
    if (found == text.npos)
        return 0;
    const auto begin = text.begin() + static_cast<std::ptrdiff_t>(found) + 1;
    return std::find_if_not(begin, text.end(), IsDigit) - begin;
}

// A place in a number: its side of the decimal point, and the number of digits between the place and the point.
struct Offset
{
    bool inFraction;
    long digits;
};

// Returns the place of the decimal point in a text. Without a point, returns the place where the point would be.
std::size_t PointIn(const std::wstring& text, wchar_t point)
{
    const std::size_t found = text.find(point);
    if (found != text.npos && found != 0)
        return found;
    const std::size_t last = text.find_last_of(L"0123456789");
    if (found == 0 || last == text.npos)
        return found == 0 ? 0 : text.size();
    const std::size_t exponent = text.find_first_of(L"eE");
    return exponent != text.npos && exponent < last ? exponent : last + 1;
}

Offset OffsetOf(const std::wstring& text, long place, wchar_t point)
{
    const std::size_t at = std::min(static_cast<std::size_t>(std::max(place, 0L)), text.size());
    const std::size_t middle = PointIn(text, point);
    const auto digits = [&](std::size_t from, std::size_t to) {
        return static_cast<long>(std::count_if(text.begin() + static_cast<std::ptrdiff_t>(from),
                                               text.begin() + static_cast<std::ptrdiff_t>(to), IsDigit));
    };
    if (at <= middle)
        return {false, digits(at, middle)};
    return {true, digits(middle, at)};
}

long PlaceOf(const std::wstring& text, const Offset& offset, wchar_t point)
{
    std::size_t at = PointIn(text, point);
    long left = offset.digits;
    if (!offset.inFraction) {
        while (left > 0 && at > 0)
            left -= IsDigit(text[--at]) ? 1 : 0;
        return static_cast<long>(at);
    }
    at = std::min(at + 1, text.size());
    while (left > 0 && at < text.size() && IsDigit(text[at])) {
        ++at;
        --left;
    }
    return static_cast<long>(at);
}

}  // namespace

NumberField::NumberField(const CNumberFormat& newFormat) : format(newFormat), rules(RulesOf(newFormat)) {}

void NumberField::SetFormat(const CNumberFormat& newFormat)
{
    format = newFormat;
    rules = RulesOf(newFormat);
}

std::wstring NumberField::Reading(const std::wstring& text) const
{
    if (Judge(text, rules) != NumberState::NoNumber)
        return text;
    return PlainTextOf(text, format).value_or(text);
}

NumberState NumberField::State(const std::wstring& text) const
{
    if (text != exact)
        return Judge(text, rules);
    NumberRules lenient = rules;
    lenient.mostDecimals = kAnyDecimals;
    return Judge(text, lenient);
}

std::wstring NumberField::Shown(const std::wstring& text) const
{
    switch (State(text)) {
    case NumberState::Good:
    case NumberState::TooLow:
    case NumberState::TooHigh: {
        const std::wstring formatted = CNumberEditUtils::FormatControlText(text.c_str(), format).ToStdWstring();
        return FitsEntry(formatted) ? formatted : text;
    }
    default:
        return text;
    }
}

bool NumberField::FitsEntry(const std::wstring& text)
{
    return wxString(text).utf8_str().length() <= kMostBytes;
}

wxString NumberField::Problem(const std::wstring& text) const
{
    const auto bound = [this](const std::optional<Decimal>& number) {
        const std::optional<std::string> digits = number ? PlainText(*number) : std::nullopt;
        return digits ? CNumberEditUtils::FormatControlText(WithPoint(*digits, rules.point).c_str(), format)
                      : wxString();
    };
    switch (State(text)) {
    case NumberState::Empty:
    case NumberState::Good:
        break;
    case NumberState::Unfinished:
        return Translated(wxTRANSLATE(L"The number is not complete."));
    case NumberState::NoNumber:
        return Translated(wxTRANSLATE(L"This is not a number."));
    case NumberState::TooManyIntegers:
        // Translators: %s is a number.
        return Translated(wxTRANSLATE(L"Too many digits before the decimal point: no more than %s are allowed."),
                          std::to_string(rules.mostIntegers));
    case NumberState::TooManyDecimals:
        // Translators: %s is a number.
        return Translated(wxTRANSLATE(L"Too many decimals: no more than %s are allowed."),
                          std::to_string(rules.mostDecimals));
    case NumberState::TooLow:
        // Translators: %s is the lowest number that is allowed.
        return Translated(wxTRANSLATE(L"The number is too low: the lowest is %s."), bound(rules.min));
    case NumberState::TooHigh:
        // Translators: %s is the highest number that is allowed.
        return Translated(wxTRANSLATE(L"The number is too high: the highest is %s."), bound(rules.max));
    }
    return {};
}

bool NumberField::MayStay(const std::wstring& text) const
{
    return FitsEntry(text) && (CanBeTyped(text, rules) || Judge(text, rules) == NumberState::Good);
}

bool NumberField::IsTooLong(const NumberEntry::Insertion& insertion) const
{
    return mostCharacters != 0 &&
           insertion.before.size() + insertion.text.size() + insertion.behind.size() > mostCharacters;
}

std::optional<NumberEntry::Insertion> NumberField::Accepted(NumberEntry::Insertion insertion) const
{
    const bool isFormatted = !showsPlain && insertion.before + insertion.replaced + insertion.behind == shown;
    if (isFormatted) {
        const auto place = [this](std::size_t at) {
            return static_cast<std::size_t>(Place(shown, plain, static_cast<long>(at)));
        };
        const std::size_t end = insertion.before.size() + insertion.replaced.size();
        insertion.before = plain.substr(0, place(insertion.before.size()));
        insertion.behind = plain.substr(std::max(place(end), insertion.before.size()));
    }
    std::wstring& text = insertion.text;
    if (insertion.keypadPoint && text.size() == 1 && !IsDigit(text[0]))
        text[0] = rules.point;
    if (insertion.typed || !showsPlain) {
        const std::wstring all = insertion.before + text + insertion.behind;
        if (FitsEntry(all) && CanBeTyped(showsPlain || isFormatted ? all : Reading(all), rules))
            return insertion;
        if (insertion.typed)
            return std::nullopt;
    }
    const std::optional<std::wstring> read = PlainTextOf(text, format);
    if (!read || !MayStay(insertion.before + *read + insertion.behind))
        return std::nullopt;
    text = *read;
    return insertion;
}

std::optional<std::wstring> NumberField::Stepped(const std::wstring& text, bool up, bool tenfold) const
{
    const std::optional<Decimal> present = NumberIn(text, rules.point);
    Decimal distance = up ? increment : Negated(increment);
    distance.point += tenfold ? 1 : 0;
    std::optional<Decimal> sum = Sum(present.value_or(Decimal()), distance);
    if (!sum)
        return std::nullopt;
    if (rules.max && Compare(*sum, *rules.max) > 0)
        sum = rules.max;
    if (rules.min && Compare(*sum, *rules.min) < 0)
        sum = rules.min;
    if (!rules.allowsSign && sum->negative)
        sum = Decimal();
    const std::optional<std::string> decimal =
        PlainText(*sum, std::min(DecimalsIn(text, rules.point), rules.mostDecimals));
    if (!decimal)
        return std::nullopt;
    const std::wstring result = WithPoint(*decimal, rules.point);
    if ((present && Compare(*sum, *present) == 0) || Judge(result, rules) != NumberState::Good || !FitsEntry(result))
        return std::nullopt;
    return result;
}

long NumberField::Place(const std::wstring& from, const std::wstring& to, long place) const
{
    if (place <= 0)
        return 0;
    if (place >= static_cast<long>(from.size()))
        return static_cast<long>(to.size());
    return std::min(PlaceOf(to, OffsetOf(from, place, rules.point), rules.point), static_cast<long>(to.size()));
}

}  // namespace fittings
