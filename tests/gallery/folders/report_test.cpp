#include <gallery/folders/report.h>

#include <cerrno>
#include <filesystem>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <gallery/folders/native_text.h>
#include <tests/support/process/as_nobody.h>
#include <tests/support/temp_folder.h>

namespace {

using namespace gallery;
namespace fs = std::filesystem;

Entry File(const std::string& name, std::uint64_t size)
{
    Entry entry;
    entry.name = name;
    entry.type = "File";
    entry.kind = EntryKind::File;
    entry.known = true;
    entry.size = size;
    return entry;
}

TEST(Report, HasALineForEachEntryInOrder)
{
    Entry folder;
    folder.name = "sub";
    folder.type = "Folder";
    folder.kind = EntryKind::Folder;
    folder.known = true;
    Entry summed = folder;
    summed.name = "summed";
    summed.summed = true;
    summed.size = 123456789012;
    const std::string time(HumanTime(0).utf8_str());
    std::string expected = "Name,Kind,Bytes,Modified,Path\r\n";
    expected += "sub,Folder,," + time + ",/data/sub\r\n";
    expected += "summed,Folder,123456789012," + time + ",/data/summed\r\n";
    expected += "z,File,3," + time + ",/data/z\r\n";
    EXPECT_EQ(ReportText("/data", {folder, summed, File("z", 3)}), expected);
}

TEST(Report, OfAnEmptyFolderIsTheHeader)
{
    EXPECT_EQ(ReportText("/", {}), "Name,Kind,Bytes,Modified,Path\r\n");
}

TEST(Report, LeavesOutWhatIsNotKnown)
{
    Entry unknown;
    unknown.name = "gone";
    unknown.type = "Unknown";
    EXPECT_EQ(ReportText("/", {unknown}), "Name,Kind,Bytes,Modified,Path\r\ngone,Unknown,,,/gone\r\n");
}

TEST(Report, QuotesCommasAndQuotes)
{
    const std::string text = ReportText("/a,b", {File("say \"hi\"", 1)});
    EXPECT_NE(text.find("\r\n\"say \"\"hi\"\"\",File,1,"), std::string::npos) << text;
    EXPECT_NE(text.find(",\"/a,b/say \"\"hi\"\"\"\r\n"), std::string::npos) << text;
}

TEST(Report, IsUtf8WhateverTheNamesAre)
{
    const std::string text = ReportText("/", {File("caf\xC3\xA9", 1), File("caf\xE9", 2), File("two\nlines", 3)});
    EXPECT_NE(text.find("\r\ncaf\xC3\xA9,File,1,"), std::string::npos);
    EXPECT_NE(text.find("\r\ncaf\xEF\xBF\xBD,File,2,"), std::string::npos);
    // Each control character becomes a visible symbol, so that each entry is one line.
    EXPECT_NE(text.find("\r\ntwo\xE2\x90\x8Alines,File,3,"), std::string::npos);
}

TEST(SaveReport, WritesAFileOthersMayReadAsTheUserWants)
{
    TempFolder folder;
    const mode_t mask = umask(027);
    EXPECT_EQ(SaveReport(folder / "report.csv", "text"), 0);
    umask(mask);
    EXPECT_EQ(ReadFile(folder / "report.csv"), "text");
    EXPECT_EQ(fs::status(folder / "report.csv").permissions(), fs::perms{0640});
}

TEST(SaveReport, ReplacesAFileAndKeepsItsMode)
{
    TempFolder folder;
    WriteFile(folder / "report.csv", "much longer than the new one");
    chmod((folder / "report.csv").c_str(), 0600);
    EXPECT_EQ(SaveReport(folder / "report.csv", "new"), 0);
    EXPECT_EQ(ReadFile(folder / "report.csv"), "new");
    EXPECT_EQ(fs::status(folder / "report.csv").permissions(), fs::perms{0600});
    EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"report.csv"});
}

TEST(SaveReport, WritesThroughALink)
{
    TempFolder folder;
    WriteFile(folder / "file", "old");
    fs::create_symlink("file", folder / "link");
    EXPECT_EQ(SaveReport(folder / "link", "new"), 0);
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(ReadFile(folder / "file"), "new");
}

TEST(SaveReport, SaysWhyItCannotAndLeavesWhatWasThere)
{
    TempFolder folder;
    fs::create_directory(folder / "read-only");
    WriteFile(folder / "read-only/report.csv", "old");
    chmod((folder / "read-only").c_str(), 0555);
    chmod(folder.Path().c_str(), 0755);
    {
        const AsNobody asNobody;
        EXPECT_EQ(SaveReport(folder / "read-only/report.csv", "new"), EACCES);
    }
    EXPECT_EQ(ReadFile(folder / "read-only/report.csv"), "old");
    EXPECT_EQ(NamesIn(folder / "read-only"), std::vector<std::string>{"report.csv"});
    EXPECT_EQ(SaveReport(folder / "missing/report.csv", "new"), ENOENT);
    EXPECT_NE(SaveReport(folder.Path(), "new"), 0);
}

}  // namespace
