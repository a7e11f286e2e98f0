#include <fittings/config/aui_layout.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cwchar>
#include <string>

namespace {

constexpr std::wstring_view kStart = L"layout2|";

// The largest length of a layout in characters, and the largest number of panes and docks together. For each pane and
// each dock, the toolkit copies the rest of the text. A larger layout would therefore take too long.
constexpr std::size_t kLongest = 1'000'000;
constexpr int kMostParts = 2000;

// The toolkit searches every row of every layer several times for each dock. The number of steps is the number of
// layers times the number of rows times the number of panes and docks together. More than kMostSteps steps would take
// too long, and so would a layer or row with a number above kMostRows.
constexpr std::int64_t kMostSteps = 10'000'000;
constexpr std::int64_t kMostRows = 10'000;

// The toolkit may read part of a name or caption as a field: see AreReadAtOnce(). This is the largest value that such a
// field may have.
constexpr long kMostInText = 100;

// The largest coordinate or size, in pixels. The sum of kMostParts such numbers does not overflow.
constexpr std::int64_t kFarthest = 1'000'000;

constexpr std::int64_t kLastDirection = 5;                   // wxAUI_DOCK_CENTER
constexpr std::int64_t kActionPane = std::int64_t{1} << 31;  // wxAuiPaneInfo::actionPane: the pane being dragged

// Parses a text from its start. After the first error, every further step fails.
class Scanner
{
public:
    explicit Scanner(std::wstring_view text) : m_rest(text) {}

    bool IsOk() const { return m_isOk; }
    bool IsAtEnd() const { return m_isOk && m_rest.empty(); }
    bool IsBefore(std::wstring_view expected) const { return m_rest.substr(0, expected.size()) == expected; }

    void Skip(std::wstring_view expected)
    {
        m_isOk = m_isOk && IsBefore(expected);
        if (m_isOk)
            m_rest.remove_prefix(expected.size());
    }

    // Takes and returns the text before the position @a end, and skips the character at @a end.
    std::wstring_view TakeUpTo(std::size_t end)
    {
        m_isOk = m_isOk && end < m_rest.size();
        if (!m_isOk)
            return {};
        const std::wstring_view taken = m_rest.substr(0, end);
        m_rest.remove_prefix(end + 1);
        return taken;
    }

    // Takes a number from @a least to @a most. The number must look as printf writes it: no "+", no needless zero.
    std::int64_t TakeNumber(std::int64_t least, std::int64_t most)
    {
        const bool isNegative = IsBefore(L"-");
        if (isNegative)
            m_rest.remove_prefix(1);
        const std::size_t length = std::min(m_rest.find_first_not_of(L"0123456789"), m_rest.size());
        const bool hasNeedlessZero = IsBefore(L"0") && (length > 1 || isNegative);
        m_isOk = m_isOk && length > 0 && length <= 10 && !hasNeedlessZero;
        if (!m_isOk)
            return 0;
        std::int64_t number = 0;
        for (const wchar_t digit : m_rest.substr(0, length))
            number = 10 * number + (digit - L'0');
        m_rest.remove_prefix(length);
        if (isNegative)
            number = -number;
        m_isOk = number >= least && number <= most;
        return number;
    }

    std::int64_t TakeField(std::wstring_view name, std::int64_t least, std::int64_t most)
    {
        Skip(name);
        return TakeNumber(least, most);
    }

    // Returns the end of the next pane: the first "|" without a "\" before it.
    std::size_t EndOfPane() const
    {
        std::size_t end = m_rest.find(L'|');
        while (end != m_rest.npos && end > 0 && m_rest[end - 1] == L'\\')
            end = m_rest.find(L'|', end + 1);
        return end;
    }

private:
    std::wstring_view m_rest;
    bool m_isOk = true;
};

// Sums and maxima over all panes and docks of a layout.
struct Sums
{
    int panes = 0;
    int docks = 0;
    int actionPanes = 0;
    std::int64_t proportion = 0;
    std::int64_t lastLayer = 0;
    std::int64_t lastRow = 0;

    void AddPlace(std::int64_t layer, std::int64_t row)
    {
        lastLayer = std::max(lastLayer, layer);
        lastRow = std::max(lastRow, row);
    }

    bool AreLaidOutAtOnce() const
    {
        return panes + docks <= kMostParts && actionPanes <= 1 && proportion <= INT_MAX &&
               (lastLayer + 1) * (lastRow + 1) * (panes + docks) <= kMostSteps;
    }
};

// Returns whether the texts are "name=A;caption=B" with a "\" before each ";" in A or B.
bool AreTexts(std::wstring_view texts)
{
    constexpr std::wstring_view kCaption = L";caption=";
    std::size_t separator = texts.npos;
    for (std::size_t at = texts.find(L';'); at != texts.npos; at = texts.find(L';', at + 1)) {
        if (at > 0 && texts[at - 1] == L'\\')
            continue;
        if (separator != texts.npos)
            return false;
        separator = at;
    }
    // If the name ends with a "\", the loop takes the separator for an escaped ";" and skips it. The separator is then
    // the ";" of the first ";caption=".
    if (separator == texts.npos)
        separator = texts.find(kCaption);
    return separator != texts.npos && texts.substr(0, 5) == L"name=" &&
           texts.substr(separator, kCaption.size()) == kCaption;
}

// Returns false if the toolkit would read part of the texts as a field with a value below 0 or above kMostInText.
//
// The toolkit ends a field even at an escaped ";", and reads the text after it as the next field. From the caption
// "a;row=99999999;", it reads a row of 99999999. The field after that row is empty. The toolkit treats an empty field
// as the end of the pane, so it does not read the pane's real row. A "\b" is the toolkit's placeholder for an escaped
// ";".
bool AreReadAtOnce(std::wstring_view texts)
{
    for (std::size_t at = texts.find_first_of(L";\b"); at != texts.npos; at = texts.find_first_of(L";\b", at + 1)) {
        const std::wstring field(texts.substr(at + 1, texts.find_first_of(L";\b", at + 1) - at - 1));
        const std::size_t value = field.find(L'=');
        if (value == field.npos || field.compare(0, value, L"caption") == 0)
            continue;
        const long number = std::wcstol(field.c_str() + value + 1, nullptr, 10);
        if (number < 0 || number > kMostInText)
            return false;
    }
    return true;
}

bool IsPane(std::wstring_view text, Sums& sums)
{
    // Only fields with numbers follow the field "state". So the last match is that field, whatever the caption
    // contains.
    const std::size_t numbers = text.rfind(L";state=");
    if (numbers == text.npos)
        return false;
    const std::wstring_view texts = text.substr(0, numbers);
    if (!AreTexts(texts) || !AreReadAtOnce(texts))
        return false;

    Scanner scanner(text.substr(numbers));
    const std::int64_t state = scanner.TakeField(L";state=", 0, UINT_MAX);
    scanner.TakeField(L";dir=", 0, kLastDirection);
    const std::int64_t layer = scanner.TakeField(L";layer=", 0, kMostRows);
    const std::int64_t row = scanner.TakeField(L";row=", 0, kMostRows);
    scanner.TakeField(L";pos=", -kFarthest, kFarthest);
    // Accept no negative proportions: they may add up to zero, and the toolkit divides by the sum.
    sums.proportion += scanner.TakeField(L";prop=", 0, INT_MAX);
    for (const std::wstring_view name : {L";bestw=", L";besth=", L";minw=", L";minh=", L";maxw=", L";maxh=",
                                         L";floatx=", L";floaty=", L";floatw=", L";floath="})
        scanner.TakeField(name, -kFarthest, kFarthest);
    ++sums.panes;
    sums.actionPanes += (state & kActionPane) != 0;
    sums.AddPlace(layer, row);
    return scanner.IsAtEnd();
}

void TakeDock(Scanner& scanner, Sums& sums)
{
    scanner.TakeField(L"dock_size(", 0, kLastDirection);
    const std::int64_t layer = scanner.TakeField(L",", 0, kMostRows);
    const std::int64_t row = scanner.TakeField(L",", 0, kMostRows);
    scanner.TakeField(L")=", -kFarthest, kFarthest);
    scanner.Skip(L"|");
    ++sums.docks;
    sums.AddPlace(layer, row);
}

}  // namespace

bool fittings::IsAuiLayout(std::wstring_view text)
{
    if (text.size() > kLongest)
        return false;
    Scanner scanner(text);
    scanner.Skip(kStart);
    Sums sums;
    while (scanner.IsBefore(L"name=")) {
        const std::size_t end = scanner.EndOfPane();
        if (!IsPane(scanner.TakeUpTo(end), sums))
            return false;
    }
    while (scanner.IsOk() && !scanner.IsAtEnd())
        TakeDock(scanner, sums);
    return scanner.IsAtEnd() && sums.AreLaidOutAtOnce();
}
