// GroupDigits() inserts the separators at the right places. It changes nothing else in a text without null characters.

#include <fittings/numedit/number_edit_utils.h>
#include <fuzz/support/check.h>
#include <fuzz/support/number_input.h>
#include <fuzz/support/number_shape.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const NumberInput input(data, size);
    const wchar_t point = input.format.m_chDecimalPoint;
    const wchar_t separator = input.format.m_chThousandsSep;
    wxString text(input.text);
    CNumberEditUtils::GroupDigits(text, input.format);
    const std::wstring grouped = text.ToStdWstring();
    Check(grouped.find(L'\0') == std::wstring::npos, "the text ends at its first zero character");

    const std::size_t integer = std::min(input.text.find(point), input.text.size());
    if (separator == 0 || input.text.find(L'\0') != std::wstring::npos)
        return 0;
    const std::size_t separators = integer == 0 ? 0 : (integer - 1) / 3;
    Check(grouped.size() == input.text.size() + separators, "there is a separator for every three characters");
    Check(grouped.compare(integer + separators, std::wstring::npos, input.text, integer) == 0,
          "the fraction is unchanged");
    for (std::size_t back = 1; back <= separators; ++back)
        Check(grouped[integer + separators - 4 * back] == separator, "separators are counted from the point");
    if (input.text.find(separator) == std::wstring::npos)
        Check(Without(grouped, separator) == input.text, "without the separators the text is unchanged");
    return 0;
}
