// Checking and formatting numbers, compared with functions of other libraries.

#include <cwchar>
#include <string>

#include <benchmark/benchmark.h>

#include <unicode/numberformatter.h>
#include <wx/numformatter.h>
#include <wx/regex.h>

#include <fittings/numedit/number_edit_utils.h>

namespace {

constexpr wchar_t kTyped[] = L"123456.78901";
constexpr char kShown[] = "1234567.891";

// Returns a text of @a length characters: digits, a point and two decimals.
template <typename CharT>
std::basic_string<CharT> Digits(std::int64_t length)
{
    std::basic_string<CharT> text;
    for (std::int64_t i = 0; i < length - 3; ++i)
        text += static_cast<CharT>('1' + i % 9);
    for (const char c : {'.', '2', '5'})
        text += static_cast<CharT>(c);
    return text;
}

CNumberFormat SixDecimals()
{
    CNumberFormat format(eFixedFormat);
    format.m_bHasMaxIntDigits = false;
    format.m_nDecimals = 6;
    return format;
}

void Validate(benchmark::State& state, const std::wstring& text, const CNumberFormat& format)
{
    for (auto _ : state) {
        if (!CNumberEditUtils::ValidateString(text.c_str(), format))
            state.SkipWithError("a number was refused");
    }
}

void Validate12(benchmark::State& state)
{
    Validate(state, kTyped, SixDecimals());
}

void ValidateBounds(benchmark::State& state)
{
    CNumberFormat format = SixDecimals();
    format.m_bHasMin = format.m_bHasMax = true;
    format.m_dMin = -1e6;
    format.m_dMax = 1e6;
    Validate(state, kTyped, format);
}

void ValidateLong(benchmark::State& state)
{
    Validate(state, Digits<wchar_t>(state.range(0)), SixDecimals());
}

// Validates with the grammar of SixDecimals() as a regular expression. The text is passed without a conversion.
void ValidateRegEx(benchmark::State& state, const std::wstring& text)
{
    const wxRegEx grammar("^[+-]?[0-9]*(\\.[0-9]{0,6})?$", wxRE_EXTENDED | wxRE_NOSUB);
    for (auto _ : state) {
        if (!grammar.Matches(text.c_str(), 0, text.size()))
            state.SkipWithError("a number was refused");
    }
}

void Validate12RegEx(benchmark::State& state)
{
    ValidateRegEx(state, kTyped);
}

void ValidateLongRegEx(benchmark::State& state)
{
    ValidateRegEx(state, Digits<wchar_t>(state.range(0)));
}

void ParseAlone(benchmark::State& state)
{
    const std::wstring text = kTyped;
    for (auto _ : state)
        benchmark::DoNotOptimize(std::wcstod(text.c_str(), nullptr));
}

CNumberFormat Amount()
{
    CNumberFormat format(eFixedFormat);
    format.m_bRoundDecimals = true;
    return format;
}

void Format(benchmark::State& state, const std::wstring& text)
{
    const CNumberFormat format = Amount();
    for (auto _ : state)
        benchmark::DoNotOptimize(CNumberEditUtils::FormatControlText(text.c_str(), format));
}

void FormatShort(benchmark::State& state)
{
    Format(state, std::wstring(kShown, kShown + sizeof kShown - 1));
}

void FormatLong(benchmark::State& state)
{
    Format(state, Digits<wchar_t>(state.range(0)));
}

// Measures ICU's formatter. Each round reuses the formatter and the memory of its result. The text and the result stay
// in ICU's types; a host would have to convert them.
void FormatIcu(benchmark::State& state, const std::string& text)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::number::LocalizedNumberFormatter formatter =
        icu::number::NumberFormatter::withLocale(icu::Locale::getUS())
            .precision(icu::number::Precision::fixedFraction(2))
            .roundingMode(UNUM_ROUND_HALFUP);
    icu::UnicodeString shown;
    for (auto _ : state) {
        shown = formatter.formatDecimal(text, status).toTempString(status);
        benchmark::DoNotOptimize(shown.getBuffer());
    }
    if (U_FAILURE(status))
        state.SkipWithError(u_errorName(status));
}

void FormatShortIcu(benchmark::State& state)
{
    FormatIcu(state, kShown);
}

void FormatLongIcu(benchmark::State& state)
{
    FormatIcu(state, Digits<char>(state.range(0)));
}

// Measures the toolkit's formatter. The C locale has no separator for groups, so the toolkit inserts none.
void FormatToolkit(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(wxNumberFormatter::ToString(1234567.891, 2));
}

BENCHMARK(Validate12)->Name("validate/12");
BENCHMARK(Validate12RegEx)->Name("validate/12/peer");
BENCHMARK(ValidateBounds)->Name("validate/12-bounds");
BENCHMARK(ParseAlone)->Name("validate/12-bounds/peer");
BENCHMARK(ValidateLong)->Name("validate/100k")->Arg(100000);
BENCHMARK(ValidateLongRegEx)->Name("validate/100k/peer")->Arg(100000);
BENCHMARK(ValidateLong)->Name("validate/1k")->Arg(1000);
BENCHMARK(FormatShort)->Name("format/1234567.891");
BENCHMARK(FormatShortIcu)->Name("format/1234567.891/peer");
BENCHMARK(FormatShort)->Name("format/1234567.891-wx");
BENCHMARK(FormatToolkit)->Name("format/1234567.891-wx/peer");
BENCHMARK(FormatLong)->Name("format/100k")->Arg(100000);
BENCHMARK(FormatLongIcu)->Name("format/100k/peer")->Arg(100000);
BENCHMARK(FormatLong)->Name("format/1k")->Arg(1000);

}  // namespace
