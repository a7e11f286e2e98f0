// CutZeros() removes only blanks, zeros and points, and adds at most one zero. A number keeps its value. A second call
// does not change the number again.

#include <cwctype>

#include <fittings/numedit/number_edit_utils.h>
#include <fuzz/support/check.h>
#include <fuzz/support/number_input.h>
#include <fuzz/support/number_shape.h>

namespace {

std::wstring Cut(const std::wstring& text, const CNumberFormat& format)
{
    wxString cut(text);
    CNumberEditUtils::CutZeros(cut, format);
    return cut.ToStdWstring();
}

// Returns the characters that CutZeros() must neither remove nor add.
std::wstring Rest(const std::wstring& text, wchar_t point)
{
    std::wstring rest;
    for (const wchar_t character : text) {
        if (character != L'0' && character != point && !std::iswspace(static_cast<wint_t>(character)))
            rest += character;
    }
    return rest;
}

bool HasNeedlessZero(const std::wstring& number)
{
    return number.size() > 1 && number[0] == L'0' && number[1] >= L'0' && number[1] <= L'9';
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const NumberInput input(data, size);
    const wchar_t point = input.format.m_chDecimalPoint;
    const std::wstring cut = Cut(input.text, input.format);
    Check(!cut.empty(), "the result is not empty");
    Check(cut.size() <= input.text.size() + 1, "at most one zero is added");
    Check(Rest(cut, point) == Rest(input.text, point), "only blanks, zeros and points are removed");

    const std::wstring number = WithoutBlanks(input.text);
    NumberShape shape{point};
    shape.exponentWithoutLetter = false;
    if (!IsPlainPoint(point) || !HasShape(number, shape))
        return 0;
    Check(Cut(cut, input.format) == cut, "a second call changes nothing");
    Check(!HasNeedlessZero(cut), "no unnecessary zero is left in front");
    if (point == input.localePoint)
        Check(ValueOf(cut) == ValueOf(number), "the value is unchanged");
    return 0;
}
