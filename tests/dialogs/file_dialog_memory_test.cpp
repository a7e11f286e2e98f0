// Which file the save dialog proposes, and when it remembers a file.

#include <fittings/dialogs/file_dialog.h>

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>
#include <wx/filefn.h>

#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>
#include <tests/dialogs/file_answer.h>
#include <tests/support/temp_folder.h>

namespace {

std::wstring SaveAs(const wxString& path)
{
    const FileAnswer ok(wxID_OK, path);
    return CQVFileDialogI::LaunchSaveDialog(nullptr, L"", L"", L"", L"", L"");
}

void Cancel()
{
    const FileAnswer cancel(wxID_CANCEL, "/usr/cancelled");
    EXPECT_EQ(CQVFileDialogI::LaunchSaveDialog(nullptr, L"", L"", L"", L"", L""), L"");
}

AskedFile Proposed(const wchar_t* folder = L"", const wchar_t* file = L"")
{
    const FileAnswer cancel(wxID_CANCEL, "");
    CQVFileDialogI::LaunchSaveDialog(nullptr, L"", L"", L"", folder, file);
    return cancel.Asked();
}

wxString SamplesFolder()
{
    return wxString::FromUTF8(std::getenv("HOME")) + "/fittings-test/Samples";
}

class LastFile : public testing::Test
{
protected:
    LastFile() { CQVFileDialogI::SetRegEntry("Report"); }
    ~LastFile() override { CQVFileDialogI::SetRegEntry(""); }

    const TempUserData m_settings;
};

TEST_F(LastFile, IsInTheFolderOfSamplesAtFirst)
{
    EXPECT_EQ(Proposed().Place(), FilePlace(SamplesFolder(), ""));
    EXPECT_EQ(Proposed(L"", L"mine.prj").file, "mine.prj");
}

TEST_F(LastFile, DoesNotMakeTheFolderOfSamples)
{
    Proposed();
    EXPECT_FALSE(wxDirExists(SamplesFolder()));
}

TEST_F(LastFile, IsStoredWithItsFolder)
{
    EXPECT_EQ(SaveAs("/home/u/a/report.prj"), L"/home/u/a/report.prj");
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"/home/u/a/report.prj");
    EXPECT_EQ(Stored("LastFiles", "Report"), "/home/u/a/report.prj");
}

TEST_F(LastFile, IsProposedWithoutItsExtension)
{
    SaveAs("/home/u/a/report.prj");
    EXPECT_EQ(Proposed().Place(), FilePlace("/home/u/a", "report"));
}

TEST_F(LastFile, IsTheOneChosenLast)
{
    SaveAs("/usr/one");
    SaveAs("/srv/two");
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"/srv/two");
    EXPECT_EQ(Proposed().Place(), FilePlace("/srv", "two"));
}

TEST_F(LastFile, IsKeptExactly)
{
    for (const wxString path :
         {L"/usr/folder/", L"/gone/a b ", L"/\x5E33/\x1F4D2 \xE4.\x442", L"/a=b;c#d\n[e]", L"x"}) {
        EXPECT_EQ(SaveAs(path), path.ToStdWstring());
        EXPECT_EQ(Stored(L"LastFiles", L"Report"), path.ToStdWstring());
    }
}

TEST_F(LastFile, IsKeptInUtf8)
{
    SaveAs(L"/\x5E33/\x1F4D2 \xE4");
    EXPECT_EQ(Stored("LastFiles", "Report"), "/\xE5\xB8\xB3/\xF0\x9F\x93\x92 \xC3\xA4");
    EXPECT_EQ(Proposed().Place(), FilePlace(L"/\x5E33", L"\x1F4D2 \xE4"));
}

TEST_F(LastFile, IsKeptHoweverLong)
{
    const wxString folder = "/" + wxString(5000, 'd');
    SaveAs(folder + "/" + wxString(5000, 'f') + ".prj");
    EXPECT_EQ(Proposed().Place(), FilePlace(folder, wxString(5000, 'f')));
}

TEST_F(LastFile, GivesWayToTheNameGiven)
{
    SaveAs("/home/u/a/report.prj");
    EXPECT_EQ(Proposed(L"", L"mine.x").Place(), FilePlace("/home/u/a", "mine.x"));
}

TEST_F(LastFile, GivesWayToTheFolderGiven)
{
    SaveAs("/home/u/a/report.prj");
    EXPECT_EQ(Proposed(L"/data/").Place(), FilePlace("/data", ""));
}

TEST_F(LastFile, IsRememberedFromAFolderGivenToo)
{
    const FileAnswer ok(wxID_OK, "/data/new.prj");
    CQVFileDialogI::LaunchSaveDialog(nullptr, L"", L"", L"", L"/data/", L"");
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"/data/new.prj");
}

TEST_F(LastFile, StaysWhenTheDialogIsCancelled)
{
    SaveAs("/usr/one");
    Cancel();
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"/usr/one");
}

TEST_F(LastFile, IsNotMadeByCancelling)
{
    Cancel();
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"(none)");
}

// The dialog can be accepted with an empty path: the toolkit returns one for a file whose name is not UTF-8.
TEST_F(LastFile, StaysWhenTheDialogGivesNoPath)
{
    SaveAs("/usr/one");
    EXPECT_EQ(SaveAs(""), L"");
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"/usr/one");
}

TEST_F(LastFile, IsGivenAlsoWhereItCannotBeStored)
{
    WriteFile(m_settings / "file", "");
    std_file_paths::SetUserDataDir(wxString::FromUTF8(m_settings / "file/folder").ToStdWstring());
    EXPECT_EQ(SaveAs("/usr/one"), L"/usr/one");
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"(none)");
    EXPECT_EQ(Proposed().folder, SamplesFolder());
}

TEST_F(LastFile, BelongsToItsEntry)
{
    SaveAs("/usr/one");
    EXPECT_EQ(CQVFileDialogI::SetRegEntry("Table]="), "Report");
    EXPECT_EQ(Proposed().folder, SamplesFolder());
    SaveAs("/srv/two");
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"/usr/one");
    EXPECT_EQ(Stored(L"LastFiles", L"Table]="), L"/srv/two");
    CQVFileDialogI::SetRegEntry("report");
    EXPECT_EQ(Proposed().folder, SamplesFolder());
    CQVFileDialogI::SetRegEntry("Report");
    EXPECT_EQ(Proposed().file, "one");
}

TEST_F(LastFile, TakesItsEntryInUtf8)
{
    CQVFileDialogI::SetRegEntry("\xE5\xB8\xB3");
    SaveAs("/usr/one");
    EXPECT_EQ(Stored(L"LastFiles", L"\x5E33"), L"/usr/one");
    EXPECT_EQ(Proposed().file, "one");
}

TEST_F(LastFile, TakesItsEntryUpToANul)
{
    CQVFileDialogI::SetRegEntry(std::string("Re\0port", 7));
    SaveAs("/usr/one");
    EXPECT_EQ(Stored(L"LastFiles", L"Re"), L"/usr/one");
    EXPECT_EQ(Proposed().file, "one");
}

TEST_F(LastFile, IsStoredUnderTheEntryThatIsSetThen)
{
    FileAnswer ok(wxID_OK, "/usr/one");
    ok.whileShown = [] { CQVFileDialogI::SetRegEntry("Other"); };
    CQVFileDialogI::LaunchSaveDialog(nullptr, L"", L"", L"", L"", L"");
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"(none)");
    EXPECT_EQ(Stored(L"LastFiles", L"Other"), L"/usr/one");
}

TEST_F(LastFile, IsReadAnewEachTime)
{
    SaveAs("/usr/one");
    CLocalRegStore::WriteString(L"LastFiles", L"Report", L"/srv/two");
    EXPECT_EQ(Proposed().file, "two");
    CLocalRegStore::WriteString(L"LastFiles", L"Report", L"");
    EXPECT_EQ(Proposed().folder, SamplesFolder());
}

// An entry that begins with a null character counts as empty.
TEST_F(LastFile, IsNeitherReadNorKeptWithoutAnEntry)
{
    CLocalRegStore::WriteString(L"LastFiles", L"", L"/usr/one");
    for (const std::string& entry : {std::string(), std::string("\0Report", 7)}) {
        CQVFileDialogI::SetRegEntry(entry);
        EXPECT_EQ(Proposed().Place(), FilePlace("", ""));
        EXPECT_EQ(Proposed(L"", L"mine").file, "mine");
        EXPECT_EQ(Proposed(L"/data/out").folder, "/data");
        EXPECT_EQ(SaveAs("/srv/two"), L"/srv/two");
        EXPECT_EQ(Stored(L"LastFiles", L""), L"/usr/one");
        EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"(none)");
    }
}

}  // namespace
