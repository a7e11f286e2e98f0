// number_driver LOCALE [NUMERIC_LOCALE]: passes cases from the standard input to the library.
//
// Input and output are binary in the machine's byte order, because a script on the same machine uses the driver.
// library.py describes the layout.

#include <fittings/numedit/number_edit_utils.h>

#include <clocale>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

void Require(bool fulfilled, const char* what)
{
    if (fulfilled)
        return;
    std::fprintf(stderr, "number_driver: %s\n", what);
    std::exit(2);
}

template <typename T>
T ReadValue()
{
    T value;
    Require(std::fread(&value, sizeof value, 1, stdin) == 1, "the case ends early");
    return value;
}

bool ReadFlag()
{
    return ReadValue<std::uint8_t>() != 0;
}

std::wstring ReadText()
{
    std::wstring text(ReadValue<std::uint32_t>(), L'\0');
    Require(std::fread(&text[0], sizeof(wchar_t), text.size(), stdin) == text.size(), "the text ends early");
    return text;
}

CNumberFormat ReadFormat()
{
    CNumberFormat format(eFixedFormat);
    format.m_bPadDecimals = ReadFlag();
    format.m_bRoundDecimals = ReadFlag();
    format.m_bAllowSign = ReadFlag();
    format.m_bGroupDigits = ReadFlag();
    format.m_bTrailingMinus = ReadFlag();
    format.m_bAllowExponent = ReadFlag();
    format.m_bHasDecimals = ReadFlag();
    format.m_bHasMaxIntDigits = ReadFlag();
    format.m_bHasMin = ReadFlag();
    format.m_bHasMax = ReadFlag();
    format.m_chDecimalPoint = ReadValue<wchar_t>();
    format.m_chThousandsSep = ReadValue<wchar_t>();
    format.m_nDecimals = ReadValue<std::uint64_t>();
    format.m_nMaxIntDigits = ReadValue<std::uint64_t>();
    format.m_dMin = ReadValue<double>();
    format.m_dMax = ReadValue<double>();
    format.m_strTemplate = ReadText();
    return format;
}

void WriteFlag(bool flag)
{
    std::fputc(flag ? 1 : 0, stdout);
}

void WriteText(const wxString& text)
{
    const auto length = static_cast<std::uint32_t>(text.length());
    std::fwrite(&length, sizeof length, 1, stdout);
    std::fwrite(text.wc_str(), sizeof(wchar_t), length, stdout);
}

void RunCase()
{
    const CNumberFormat format = ReadFormat();
    const bool isNull = ReadFlag();
    const std::wstring text = ReadText();
    const wchar_t* const pointer = isNull ? nullptr : text.c_str();

    wxString cut(text);
    CNumberEditUtils::CutZeros(cut, format);
    WriteText(cut);
    wxString grouped(text);
    CNumberEditUtils::GroupDigits(grouped, format);
    WriteText(grouped);
    WriteFlag(CNumberEditUtils::ValidateString(pointer, format));
    WriteFlag(CNumberEditUtils::ValidateInput(pointer, format));
    WriteText(CNumberEditUtils::FormatControlText(pointer, format));
    // Write the answers at once: if the next case ends the process, the script counts the answers to find that case.
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv)
{
    static_assert(sizeof(wchar_t) == sizeof(std::uint32_t));
    Require(argc >= 2 && std::setlocale(LC_ALL, argv[1]), "there is no such locale");
    if (argc > 2)
        Require(std::setlocale(LC_NUMERIC, argv[2]), "there is no such locale of numbers");
    for (int next = std::getc(stdin); next != EOF; next = std::getc(stdin)) {
        std::ungetc(next, stdin);
        RunCase();
    }
    return 0;
}
