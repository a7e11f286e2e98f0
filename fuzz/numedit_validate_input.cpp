// ValidateInput() accepts every text that ValidateString() accepts. It also accepts the texts with which a number such
// as 0.05 begins, "0" and "0.0" for example, even if they are below the minimum. It accepts no other text.

#include <algorithm>

#include <fittings/numedit/number_edit_utils.h>
#include <fuzz/support/check.h>
#include <fuzz/support/number_input.h>

namespace {

bool IsOnTheWay(const std::wstring& typed, const CNumberFormat& format)
{
    if (!format.m_bHasDecimals || format.m_nDecimals == 0 || typed.empty())
        return false;
    if (typed.size() == 1)
        return typed[0] == L'0' || typed[0] == format.m_chDecimalPoint;
    return typed[0] == L'0' && typed[1] == format.m_chDecimalPoint && typed.size() - 2 <= format.m_nDecimals &&
           std::all_of(typed.begin() + 2, typed.end(), [](wchar_t character) { return character == L'0'; });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const NumberInput input(data, size);
    const std::wstring typed = input.Typed();
    const bool expected =
        IsOnTheWay(typed, input.format) || CNumberEditUtils::ValidateString(typed.c_str(), input.format);
    Check(CNumberEditUtils::ValidateInput(typed.c_str(), input.format) == expected,
          "valid texts and the way to a small fraction are accepted, and nothing else");
    return 0;
}
