#include <gallery/folders/folder_listing.h>

#include <random>

#include <gtest/gtest.h>

#include <tests/support/process/processor_time.h>
#include <tests/support/temp_folder.h>

namespace {

using namespace gallery;

Entry Make(const std::string& name, EntryKind kind, const std::string& type, std::uint64_t size, std::int64_t modified)
{
    Entry entry;
    entry.name = name;
    entry.sortKey = SortKey(name);
    entry.kind = kind;
    entry.type = type;
    entry.size = size;
    entry.modified = modified;
    entry.known = true;
    return entry;
}

const std::vector<Entry> kEntries = {
    Make("zoo.txt", EntryKind::File, "TXT file", 30, 500),   Make("beta", EntryKind::Folder, "Folder", 0, 300),
    Make("apple.png", EntryKind::File, "PNG file", 30, 100), Make("Alpha", EntryKind::Folder, "Folder", 0, 400),
    Make("link", EntryKind::Link, "Link", 0, 200),           Make("mid.png", EntryKind::File, "PNG file", 7, 600),
};

std::vector<std::string> Sorted(const std::vector<Entry>& all, SortOrder order)
{
    std::vector<std::string> names;
    for (const std::uint32_t position : SortedPositions(all, order))
        names.push_back(all[position].name);
    return names;
}

using Strings = std::vector<std::string>;

struct Case
{
    const char* name;
    SortOrder order;
    Strings expected;
};

class Sorting : public testing::TestWithParam<Case>
{
};

TEST_P(Sorting, PutsFoldersFirst)
{
    EXPECT_EQ(Sorted(kEntries, GetParam().order), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    , Sorting,
    testing::Values(
        Case{"NameUp", {SortColumn::Name, true}, {"Alpha", "beta", "apple.png", "link", "mid.png", "zoo.txt"}},
        Case{"NameDown", {SortColumn::Name, false}, {"beta", "Alpha", "zoo.txt", "mid.png", "link", "apple.png"}},
        Case{"SizeUp", {SortColumn::Size, true}, {"Alpha", "beta", "link", "mid.png", "apple.png", "zoo.txt"}},
        Case{"SizeDown", {SortColumn::Size, false}, {"Alpha", "beta", "apple.png", "zoo.txt", "mid.png", "link"}},
        Case{"TypeUp", {SortColumn::Type, true}, {"Alpha", "beta", "link", "apple.png", "mid.png", "zoo.txt"}},
        Case{"TypeDown", {SortColumn::Type, false}, {"Alpha", "beta", "zoo.txt", "apple.png", "mid.png", "link"}},
        Case{"TimeUp", {SortColumn::Modified, true}, {"beta", "Alpha", "apple.png", "link", "zoo.txt", "mid.png"}},
        Case{"TimeDown", {SortColumn::Modified, false}, {"Alpha", "beta", "mid.png", "zoo.txt", "link", "apple.png"}}),
    [](const auto& info) { return info.param.name; });

Strings SortedNames(const Strings& names)
{
    std::vector<Entry> all;
    for (const std::string& name : names)
        all.push_back(Make(name, EntryKind::File, "File", 0, 0));
    return Sorted(all, {SortColumn::Name, true});
}

TEST(NamesSort, WithNumbersByTheirValue)
{
    EXPECT_EQ(SortedNames({"file10", "file9", "file2b", "file2a", "file", "file010"}),
              (Strings{"file", "file2a", "file2b", "file9", "file010", "file10"}));
}

TEST(NamesSort, WithZerosAndLongNumbers)
{
    EXPECT_EQ(SortedNames({"1", "0", "00", "18446744073709551617", "18446744073709551616", "9"}),
              (Strings{"0", "00", "1", "9", "18446744073709551616", "18446744073709551617"}));
}

TEST(NamesSort, WithoutRegardToCaseAndAccents)
{
    EXPECT_EQ(SortedNames({"zebra", "\u00C9tude", "etage", "Foo", "\u00E9tuis"}),
              (Strings{"etage", "\u00C9tude", "\u00E9tuis", "Foo", "zebra"}));
}

TEST(NamesSort, WithEqualsByTheirBytes)
{
    EXPECT_EQ(SortedNames({"readme", "README", "Readme"}), (Strings{"README", "Readme", "readme"}));
}

TEST(NamesSort, WithUndecodableOnesToo)
{
    EXPECT_EQ(SortedNames({"b", "\xFF", "A\xFF", "a"}), (Strings{"a", "A\xFF", "b", "\xFF"}));
}

// The limit allows for a sanitizer on a slow machine. Without a sanitizer, the sorting takes a twentieth of the limit.
TEST(SortedPositions, TakeAHundredThousandEntriesInAMoment)
{
    std::mt19937 random(1);
    std::vector<Entry> many;
    for (int i = 0; i < 100000; ++i) {
        const unsigned number = random();
        many.push_back(Make("File number " + std::to_string(number) + ".txt", EntryKind::File, "TXT file", number, i));
    }
    for (const SortColumn column : {SortColumn::Name, SortColumn::Size, SortColumn::Type, SortColumn::Modified}) {
        const auto sort = [&] { EXPECT_EQ(SortedPositions(many, {column, true}).size(), 100000u); };
        const double seconds = ProcessorSeconds(sort);
        RecordProperty("seconds_" + std::to_string(static_cast<int>(column)), std::to_string(seconds));
        EXPECT_LT(seconds, 2);
    }
}

TEST(ReadFolder, TakesAHundredThousandEntries)
{
    TempFolder folder;
    for (int i = 0; i < 100000; ++i)
        WriteFile(folder / ("file" + std::to_string(i)), "");
    const double seconds = ProcessorSeconds([&] { EXPECT_EQ(ReadFolder(folder.Path()).entries.size(), 100000u); });
    RecordProperty("seconds", std::to_string(seconds));
    EXPECT_LT(seconds, 5);
}

}  // namespace
