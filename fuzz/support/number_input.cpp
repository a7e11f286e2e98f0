#include <fuzz/support/number_input.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <string>

#include <fuzz/support/check.h>
#include <fuzzer/FuzzedDataProvider.h>
#include <locale.h>

namespace {

constexpr wchar_t kUnusual[] = {
    0x85,   0xA0,   0x665,  0x66B,  0x66C,  0x1680,   0x2003,   0x202F,
    0x2028, 0x3000, 0xFF11, 0x2212, 0xD800, 0x10FFFF, 0x110000, std::numeric_limits<wchar_t>::max()};
constexpr wchar_t kPoints[] = {L'.', L'.', L'.', L'.', L',', L',', 0x66B, 0x66B};
constexpr wchar_t kSeparators[] = {L',', L'.', L'\'', L' ', 0x66C, 0x202F};
constexpr const wchar_t* kTemplates[] = {L"%s kg", L"%%%s", L"[%12s]", L"[%-12s]", L"[%.3s]", L"", L"none"};
constexpr double kBounds[] = {0,      -0.0,     1,        -1,     0.5,   0.05,
                              12,     1000,     1e5,      -1e300, 1e300, std::numeric_limits<double>::quiet_NaN(),
                              5e-324, HUGE_VAL, -HUGE_VAL};
constexpr std::size_t kLargeText = 1 << 17;
constexpr std::size_t kLocales = 4;

struct NumberLocale
{
    locale_t locale;
    wchar_t point;
};

// Sets one of the locales, and returns its decimal point. All locales stay loaded, because setlocale() would read their
// files at each change.
wchar_t UseLocale(std::size_t index)
{
    static const auto load = [](const char* name, wchar_t point) {
        setenv("LOCPATH", TEST_LOCALES, 1);
        Check(std::setlocale(LC_ALL, name) != nullptr, "the locale exists");
        return NumberLocale{duplocale(LC_GLOBAL_LOCALE), point};
    };
    static const NumberLocale locales[kLocales] = {load("C", L'.'), load("C.UTF-8", L'.'), load("de_DE.UTF-8", L','),
                                                   load("ps_AF.UTF-8", 0x66B)};
    uselocale(locales[index].locale);
    return locales[index].point;
}

wchar_t CharacterOf(unsigned char byte)
{
    return byte < 0x80 ? static_cast<wchar_t>(byte) : kUnusual[byte % std::size(kUnusual)];
}

std::uint64_t ConsumeCount(FuzzedDataProvider& bytes)
{
    constexpr std::uint64_t kHuge[] = {0xFFFF'FFFF'FFFF'FFFF, 0xFFFF'FFFF, 0x8000'0000'0000'0000};
    const auto count = bytes.ConsumeIntegral<std::uint8_t>();
    // Only three of the 256 values of the byte give a huge count. A huge count is slow, because up to a million zeros
    // are added. The value 0xFF gives a small count, because fuzzers often try 0xFF.
    const unsigned huge = count - 0xA5U;
    return huge < std::size(kHuge) ? kHuge[huge] : count % 10;
}

double ConsumeBound(FuzzedDataProvider& bytes)
{
    return bytes.ConsumeBool() ? bytes.PickValueInArray(kBounds) : bytes.ConsumeIntegral<std::int16_t>() / 100.0;
}

template <std::size_t N>
wchar_t ConsumeSeparator(FuzzedDataProvider& bytes, const wchar_t (&usual)[N])
{
    const bool isUsual = bytes.ConsumeIntegralInRange(0, 7) < 7;
    return isUsual ? bytes.PickValueInArray(usual) : CharacterOf(bytes.ConsumeIntegral<std::uint8_t>());
}

CNumberFormat ConsumeFormat(FuzzedDataProvider& bytes)
{
    CNumberFormat format(eFixedFormat);
    format.m_bPadDecimals = bytes.ConsumeBool();
    format.m_bRoundDecimals = bytes.ConsumeBool();
    format.m_bAllowSign = bytes.ConsumeBool();
    format.m_bGroupDigits = bytes.ConsumeBool();
    format.m_bTrailingMinus = bytes.ConsumeBool();
    format.m_bAllowExponent = bytes.ConsumeBool();
    format.m_chDecimalPoint = ConsumeSeparator(bytes, kPoints);
    format.m_chThousandsSep = ConsumeSeparator(bytes, kSeparators);
    format.m_strTemplate = bytes.ConsumeBool() ? L"%s" : bytes.PickValueInArray(kTemplates);
    format.m_bHasDecimals = bytes.ConsumeBool();
    format.m_nDecimals = ConsumeCount(bytes);
    format.m_bHasMaxIntDigits = bytes.ConsumeBool();
    format.m_nMaxIntDigits = ConsumeCount(bytes);
    format.m_bHasMin = bytes.ConsumeBool();
    format.m_dMin = ConsumeBound(bytes);
    format.m_bHasMax = bytes.ConsumeBool();
    format.m_dMax = ConsumeBound(bytes);
    return format;
}

std::wstring ConsumeText(FuzzedDataProvider& bytes)
{
    // Make a few texts large: the fuzzer reports a timeout if a function takes more than linear time.
    const bool isLarge = bytes.ConsumeIntegral<std::uint16_t>() == 0x4040;
    std::wstring text;
    for (const char byte : bytes.ConsumeRemainingBytesAsString())
        text += CharacterOf(static_cast<unsigned char>(byte));
    if (isLarge && !text.empty()) {
        // Insert in the middle, so that the text begins and ends as before.
        const std::size_t middle = text.size() / 2;
        text.insert(middle, kLargeText, text[middle]);
    }
    return text;
}

}  // namespace

NumberInput::NumberInput(const std::uint8_t* data, std::size_t size) : format(eFixedFormat)
{
    FuzzedDataProvider bytes(data, size);
    localePoint = UseLocale(bytes.ConsumeIntegralInRange<std::size_t>(0, kLocales - 1));
    format = ConsumeFormat(bytes);
    text = ConsumeText(bytes);
}
