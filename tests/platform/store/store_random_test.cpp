// Random texts and files. The seeds are fixed, and the message of a failure contains the seed.

#include <fittings/platform/local_reg_store.h>

#include <map>
#include <random>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <tests/platform/store/store_support.h>
#include <tests/support/temp_folder.h>

namespace {

using Random = std::mt19937;

unsigned Below(Random& random, unsigned limit)
{
    return static_cast<unsigned>(random() % limit);
}

// Returns a random character. About every fourth character comes from the list of special characters.
wchar_t AnyCharacter(Random& random)
{
    static const std::wstring special = L"=[]#;%\"\\/ \t\r\n{}ux0189abAF.:-_\x7F\x85\xA0\xFEFF\x2028";
    switch (Below(random, 8)) {
    case 0:
        return static_cast<wchar_t>(1 + Below(random, 0x1F));
    case 1:
        return static_cast<wchar_t>(0x80 + Below(random, 0x780));
    case 2:
        return static_cast<wchar_t>(0xD800 + Below(random, 0x800));
    case 3:
        return static_cast<wchar_t>(1 + Below(random, 0x10FFFF));
    case 4:
        return static_cast<wchar_t>(0x10FFF0 + Below(random, 0x20));
    case 5:
        return static_cast<wchar_t>(random() | 1U);
    default:
        return special[Below(random, static_cast<unsigned>(special.size()))];
    }
}

std::wstring AnyText(Random& random, unsigned maxLength)
{
    std::wstring text(Below(random, maxLength + 1), L'\0');
    for (wchar_t& character : text)
        character = AnyCharacter(random);
    return text;
}

TEST(TenThousandTriples, ComeBack)
{
    constexpr unsigned kSeed = 20240607;
    SCOPED_TRACE(testing::Message() << "seed " << kSeed);
    RecordProperty("seed", kSeed);
    Random random(kSeed);
    const InMemory inMemory;
    TempFolder folder;
    int triples = 0;
    // The names of sections and keys are short, so that some names occur several times.
    for (int file = 0; triples < 10'000; ++file) {
        std::map<std::pair<std::wstring, std::wstring>, std::wstring> expected;
        const std::string path = folder / "a.ini";
        // A file that was saved and loaded again must accept further values, too.
        for (int saving = 0; saving < 4 && triples < 10'000; ++saving) {
            Ini ini(path);
            for (unsigned size = Below(random, 40); size > 0 && triples < 10'000; --size, ++triples) {
                const std::wstring section = AnyText(random, 1 + Below(random, 4));
                const std::wstring key = AnyText(random, 1 + Below(random, 4));
                const std::wstring value = AnyText(random, 20);
                ini.Set(section.c_str(), key.c_str(), value.c_str());
                expected[{section, key}] = value;
                ASSERT_TRUE(ini.Get(section.c_str(), key.c_str()) == value) << "triple " << triples;
            }
            ASSERT_TRUE(ini.Save(path));
        }
        const Ini ini(path);
        for (const auto& [names, value] : expected) {
            ASSERT_TRUE(ini.Get(names.first.c_str(), names.second.c_str()) == value)
                << "file " << file << ", before triple " << triples;
        }
        ASSERT_TRUE(Ini().Save(path));
    }
}

std::string AnyLine(Random& random)
{
    static const std::string pieces[] = {
        "[",  "]",    "=",   " ",      "\t",  "\r",  ";",          "#",          "a",
        "b",  "%",    "%61", "%u{61}", "\"",  "\\",  "\xE9",       "\xC3\xA9",   "\xEF\xBB\xBF",
        "\v", "\x7F", "[a]", "[b]",    "a=1", "b=2", "Encoding=x", "Name[de]=1", "\xE2"};
    std::string line;
    for (unsigned length = Below(random, 5); length > 0; --length)
        line += pieces[Below(random, static_cast<unsigned>(std::size(pieces)))];
    return line;
}

// Every file with the line [s] in it can be loaded, unless null characters damage this line. Without a change, a save
// keeps all bytes of the file. When one value changes, the file keeps its other values.
TEST(ThousandsOfDirtyFiles, KeepWhatTheyHold)
{
    constexpr unsigned kSeed = 77001;
    SCOPED_TRACE(testing::Message() << "seed " << kSeed);
    RecordProperty("seed", kSeed);
    Random random(kSeed);
    const InMemory inMemory;
    TempFolder folder;
    const wchar_t* const names[] = {L"a", L"b", L"é", L"\xDCE9", L"%", L"", L"s", L"Encoding", L"Name[de]"};
    for (int file = 0; file < 4000; ++file) {
        std::string bytes;
        const unsigned lines = 1 + Below(random, 12);
        const unsigned sectionLine = Below(random, lines);
        for (unsigned i = 0; i < lines; ++i)
            bytes += (i == sectionLine ? "[s]" : AnyLine(random)) + (Below(random, 4) == 0 ? "\r\n" : "\n");
        if (Below(random, 8) == 0)
            bytes.insert(Below(random, static_cast<unsigned>(bytes.size())), Below(random, 3), '\0');
        WriteFile(folder / "a.ini", bytes);

        Ini before;
        if (!before.Load(folder / "a.ini")) {
            // The null characters have made the only section line invalid.
            ASSERT_NE(bytes.find('\0'), std::string::npos) << "file " << file << ":\n" << bytes;
            continue;
        }
        // Write the same bytes to b.ini first: Save() then has nothing to write, and does not wait for the disk.
        WriteFile(folder / "b.ini", bytes);
        ASSERT_TRUE(before.Save(folder / "b.ini"));
        ASSERT_EQ(ReadFile(folder / "b.ini"), bytes) << "file " << file;

        const wchar_t* const section = names[Below(random, std::size(names))];
        const wchar_t* const key = names[Below(random, std::size(names))];
        Ini changed(folder / "a.ini");
        changed.Set(section, key, L"changed by the test");
        ASSERT_TRUE(changed.Save(folder / "a.ini"));
        const Ini after(folder / "a.ini");
        for (const wchar_t* const s : names) {
            for (const wchar_t* const k : names) {
                const bool isChanged = s == section && k == key;
                ASSERT_EQ(after.Get(s, k), isChanged ? L"changed by the test" : before.Get(s, k))
                    << "file " << file << ":\n"
                    << bytes << "\nafter:\n"
                    << ReadFile(folder / "a.ini");
            }
        }
    }
}

}  // namespace
