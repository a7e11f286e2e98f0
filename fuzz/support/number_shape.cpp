#include <fuzz/support/number_shape.h>

#include <algorithm>
#include <cwchar>
#include <cwctype>

namespace {

enum State { kStart, kSign, kInteger, kFraction, kLetter, kExponentSign, kExponent, kRejected };
enum Kind { kDigit, kSignKind, kPoint, kLetterKind, kOther };

constexpr State kNext[kRejected][kOther] = {
    /* kStart        */ {kInteger, kSign, kFraction, kRejected},
    /* kSign         */ {kInteger, kRejected, kFraction, kRejected},
    /* kInteger      */ {kInteger, kExponentSign, kFraction, kLetter},
    /* kFraction     */ {kFraction, kExponentSign, kRejected, kLetter},
    /* kLetter       */ {kExponent, kExponentSign, kRejected, kRejected},
    /* kExponentSign */ {kExponent, kRejected, kRejected, kRejected},
    /* kExponent     */ {kExponent, kRejected, kRejected, kRejected},
};

bool IsDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

Kind KindOf(wchar_t character, wchar_t point)
{
    if (IsDigit(character))
        return kDigit;
    if (character == L'+' || character == L'-')
        return kSignKind;
    if (character == L'e' || character == L'E')
        return kLetterKind;
    return character == point ? kPoint : kOther;
}

bool IsAllowed(State from, State to, const NumberShape& shape)
{
    switch (to) {
    case kSign:
        return shape.sign;
    case kFraction:
        return shape.fraction;
    case kLetter:
        return shape.exponent;
    case kExponentSign:
        return shape.exponent && (from == kLetter || shape.exponentWithoutLetter);
    default:
        return to != kRejected;
    }
}

}  // namespace

bool HasShape(const std::wstring& text, const NumberShape& shape)
{
    State state = kStart;
    std::uint64_t intDigits = 0;
    std::uint64_t decimals = 0;
    for (const wchar_t character : text) {
        const Kind kind = KindOf(character, shape.point);
        const State next = kind == kOther ? kRejected : kNext[state][kind];
        if (!IsAllowed(state, next, shape))
            return false;
        intDigits += next == kInteger;
        decimals += next == kFraction && kind == kDigit;
        state = next;
    }
    return intDigits <= shape.maxIntDigits && decimals <= shape.maxDecimals;
}

bool IsPlainPoint(wchar_t point)
{
    return KindOf(point, point) == kPoint && point != 0 && !std::iswspace(static_cast<wint_t>(point));
}

std::wstring WithoutBlanks(const std::wstring& text)
{
    const auto isBlank = [](wchar_t character) { return std::iswspace(static_cast<wint_t>(character)) != 0; };
    const auto begin = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto end = std::find_if_not(text.rbegin(), std::make_reverse_iterator(begin), isBlank).base();
    return {begin, end};
}

double ValueOf(const std::wstring& text)
{
    return std::wcstod(text.c_str(), nullptr);
}

std::wstring Without(std::wstring text, wchar_t character)
{
    text.erase(std::remove(text.begin(), text.end(), character), text.end());
    return text;
}
