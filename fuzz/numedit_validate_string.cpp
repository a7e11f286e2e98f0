// ValidateString() accepts a text if and only if HasShape() accepts it and its value is within the bounds.

#include <algorithm>

#include <fittings/numedit/number_edit_utils.h>
#include <fuzz/support/check.h>
#include <fuzz/support/number_input.h>
#include <fuzz/support/number_shape.h>

namespace {

NumberShape ShapeOf(const CNumberFormat& format, wchar_t localePoint)
{
    NumberShape shape{localePoint};
    shape.sign = format.m_bAllowSign;
    shape.exponent = format.m_bAllowExponent;
    shape.fraction = format.m_bHasDecimals && format.m_nDecimals > 0;
    if (format.m_bHasDecimals)
        shape.maxDecimals = format.m_nDecimals;
    if (format.m_bHasMaxIntDigits)
        shape.maxIntDigits = format.m_nMaxIntDigits;
    return shape;
}

// Returns whether the bounds accept the value. A bound that is NaN accepts every value, and every bound accepts NaN.
bool IsWithinBounds(double value, const CNumberFormat& format)
{
    const bool isTooSmall = format.m_bHasMin && value < format.m_dMin;
    const bool isTooLarge = format.m_bHasMax && value > format.m_dMax;
    return !isTooSmall && !isTooLarge;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const NumberInput input(data, size);
    std::wstring typed = input.Typed();
    const bool isValid = CNumberEditUtils::ValidateString(typed.c_str(), input.format);

    std::replace(typed.begin(), typed.end(), input.format.m_chDecimalPoint, input.localePoint);
    const bool hasShape = HasShape(typed, ShapeOf(input.format, input.localePoint));
    const bool expected = hasShape && IsWithinBounds(ValueOf(typed), input.format);
    Check(isValid == expected, "exactly what the grammar and the bounds accept is valid");
    return 0;
}
