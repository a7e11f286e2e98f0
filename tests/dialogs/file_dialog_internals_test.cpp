// The open dialog, and the internals of the save dialog. The library does not export them, so this program compiles
// file_dialog.cpp again.

#include <fittings/dialogs/file_dialog_p.h>

#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <wx/frame.h>

#include <fittings/dialogs/file_dialog.h>
#include <fittings/platform/local_reg_store.h>
#include <tests/dialogs/file_answer.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>
#include <tests/support/temp_folder.h>

namespace {

constexpr long kStyle = 0x2;

std::wstring SamplesFolder()
{
    return wxString::FromUTF8(std::getenv("HOME")).ToStdWstring() + L"/fittings-test/Samples/";
}

TEST(FileDialogNames, AreFixed)
{
    EXPECT_STREQ(fittings::kLastFilesSection, "LastFiles");
    EXPECT_STREQ(fittings::kSamplesFolder, L"Samples");
    EXPECT_STREQ(fittings::kWildcardPrefix, L"*.");
    EXPECT_STREQ(fittings::kLastProjectSave, "LastProjectSave");
}

TEST(FileDialogEntry, CanBeRead)
{
    EXPECT_EQ(fittings::GetRegEntry(), "");
    CQVFileDialogI::SetRegEntry("A");
    std::string entry = fittings::GetRegEntry();
    EXPECT_EQ(entry, "A");
    entry += "+";
    EXPECT_EQ(CQVFileDialogI::SetRegEntry(fittings::GetRegEntry()), "A");
    EXPECT_EQ(fittings::GetRegEntry(), "A");
    CQVFileDialogI::SetRegEntry("");
}

class LastPath : public testing::Test
{
private:
    const TempUserData m_settings;
};

TEST_F(LastPath, IsEmptyWithoutAnEntry)
{
    CLocalRegStore::WriteString(L"LastFiles", L"", L"/usr/one");
    EXPECT_EQ(fittings::LoadLastPath(""), L"");
}

TEST_F(LastPath, IsTheFolderOfSamplesAtFirst)
{
    EXPECT_EQ(fittings::LoadLastPath("A"), SamplesFolder());
    CLocalRegStore::WriteString(L"LastFiles", L"A", L"");
    EXPECT_EQ(fittings::LoadLastPath("A"), SamplesFolder());
}

TEST_F(LastPath, IsTheOneSaved)
{
    for (const wchar_t* const path : {L"/usr/one.prj", L"/usr/folder/", L"/\x5E33/\x1F4D2 \xE4", L"r"}) {
        fittings::SaveLastPath(path, "A");
        EXPECT_EQ(Stored(L"LastFiles", L"A"), path);
        EXPECT_EQ(fittings::LoadLastPath("A"), path);
    }
}

TEST_F(LastPath, IsNotSavedWhenItIsEmpty)
{
    fittings::SaveLastPath(L"/usr/one", "A");
    fittings::SaveLastPath(L"", "A");
    EXPECT_EQ(Stored(L"LastFiles", L"A"), L"/usr/one");
    fittings::SaveLastPath(L"", "B");
    EXPECT_EQ(Stored(L"LastFiles", L"B"), L"(none)");
}

TEST_F(LastPath, IsNotSavedWithoutAnEntry)
{
    fittings::SaveLastPath(L"/usr/one", "");
    EXPECT_EQ(Stored(L"LastFiles", L""), L"(none)");
}

TEST_F(LastPath, IsSavedInUtf8)
{
    fittings::SaveLastPath(L"/\x5E33", "A");
    EXPECT_EQ(Stored("LastFiles", "A"), "/\xE5\xB8\xB3");
    CLocalRegStore::WriteString("LastFiles", "A", "/\xC3\xA4\xFF");
    EXPECT_EQ(fittings::LoadLastPath("A"), L"/\xE4\xFFFD");
}

AskedFile AskedBy(const wchar_t* title, const wchar_t* folder, const wchar_t* file, const wchar_t* extension,
                  const wchar_t* wildcard)
{
    const FileAnswer cancel(wxID_CANCEL, "");
    EXPECT_EQ(fittings::FileSelector(title, folder, file, extension, wildcard, kStyle, nullptr, -1, -1), "");
    return cancel.Asked();
}

TEST(FileSelector, HandsOnWhatItIsGiven)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "parent"));
    const FileAnswer ok(wxID_OK, "/usr/chosen");
    EXPECT_EQ(fittings::FileSelector(L"Title", L"/usr/a.b", L"name.c", L"c", L"*.b|*.b|*.c|*.c", 0x11, frame, 12, 34),
              "/usr/chosen");
    const AskedFile& asked = ok.Asked();
    EXPECT_EQ(asked.parent, frame);
    EXPECT_EQ(asked.title, "Title");
    EXPECT_EQ(asked.folder, "/usr/a.b");
    EXPECT_EQ(asked.file, "name.c");
    EXPECT_EQ(asked.wildcard, "*.b|*.b|*.c|*.c");
    EXPECT_EQ(asked.style, 17);
    EXPECT_EQ(asked.position, wxPoint(12, 34));
    EXPECT_EQ(asked.size, wxSize(-1, -1));
    EXPECT_EQ(asked.name, "filedlg");
    EXPECT_EQ(asked.filterIndex, 1);
    EXPECT_EQ(asked.centred, std::vector<int>{wxBOTH});
}

TEST(FileSelector, TakesNullForEmpty)
{
    const AskedFile asked = AskedBy(nullptr, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(asked.title, "");
    EXPECT_EQ(asked.folder, "");
    EXPECT_EQ(asked.file, "");
    EXPECT_EQ(asked.wildcard, "");
    const AskedFile empty = AskedBy(L"", L"", L"", L"", L"");
    EXPECT_EQ(empty.folder, "");
    EXPECT_EQ(empty.file, "");
    EXPECT_EQ(empty.wildcard, "");
}

class OpenDialog : public testing::Test
{
protected:
    OpenDialog() { CQVFileDialogI::SetRegEntry("Report"); }
    ~OpenDialog() override { CQVFileDialogI::SetRegEntry(""); }

    static AskedFile Asked(const wchar_t* folderSwitch)
    {
        const FileAnswer cancel(wxID_CANCEL, "/usr/cancelled");
        EXPECT_EQ(fittings::LaunchOpenDialog(nullptr, L"", L"", L"Open", folderSwitch), L"");
        return cancel.Asked();
    }

    const TempUserData m_settings;
};

TEST_F(OpenDialog, IsMadeAsADialogForFilesThatExist)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "parent"));
    const FileAnswer ok(wxID_OK, "/usr/one");
    EXPECT_EQ(fittings::LaunchOpenDialog(frame, L"csv", L"A|*.a|B|*.csv", L"Open \x5E33", L""), L"/usr/one");
    const AskedFile& asked = ok.Asked();
    EXPECT_EQ(asked.parent, frame);
    EXPECT_EQ(asked.title, L"Open \x5E33");
    EXPECT_EQ(asked.folder, "");
    EXPECT_EQ(asked.file, "");
    EXPECT_EQ(asked.wildcard, "A|*.a|B|*.csv");
    EXPECT_EQ(asked.filterIndex, 1);
    EXPECT_EQ(asked.style, 17);
    EXPECT_EQ(asked.position, wxPoint(-1, -1));
    EXPECT_EQ(asked.centred, std::vector<int>{wxBOTH});
}

TEST_F(OpenDialog, HasNoFolderForAnEmptySwitch)
{
    fittings::SaveLastPath(L"/home/u/a/report.prj", "Report");
    EXPECT_EQ(Asked(L"").Place(), FilePlace("", ""));
}

TEST_F(OpenDialog, HasTheRememberedPathWholeForAnyOtherSwitch)
{
    fittings::SaveLastPath(L"/home/u/a/report.prj", "Report");
    for (const wchar_t* const text : {L"/data/out/", L"x", L" "}) {
        EXPECT_EQ(Asked(text).Place(), FilePlace("/home/u/a/report.prj", ""));
    }
}

TEST_F(OpenDialog, HasTheFolderOfSamplesAtFirst)
{
    EXPECT_EQ(Asked(L"x").folder, SamplesFolder());
}

TEST_F(OpenDialog, HasNoFolderWithoutAnEntry)
{
    CQVFileDialogI::SetRegEntry("");
    EXPECT_EQ(Asked(L"x").folder, "");
}

TEST_F(OpenDialog, ShowsTheFolderOfTheRememberedFile)
{
    const TempFolder folder;
    WriteFile(folder / "report.prj", "");
    fittings::SaveLastPath(wxString::FromUTF8(folder / "report.prj").wc_str(), "Report");
    const AskedFile asked = Asked(L"x");
    EXPECT_EQ(asked.folder, folder / "report.prj");
    EXPECT_EQ(asked.shownFolder, folder.Path());
}

TEST_F(OpenDialog, RemembersWhatWasChosen)
{
    const FileAnswer ok(wxID_OK, L"/srv/\x5E33.prj");
    EXPECT_EQ(fittings::LaunchOpenDialog(nullptr, nullptr, nullptr, nullptr, L""), L"/srv/\x5E33.prj");
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"/srv/\x5E33.prj");
}

TEST_F(OpenDialog, RemembersNothingWhenCancelled)
{
    fittings::SaveLastPath(L"/usr/one", "Report");
    Asked(L"x");
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"/usr/one");
}

TEST_F(OpenDialog, SharesWhatIsRememberedWithTheSaveDialog)
{
    {
        const FileAnswer ok(wxID_OK, "/srv/two.prj");
        fittings::LaunchOpenDialog(nullptr, L"", L"", L"", L"");
    }
    const FileAnswer cancel(wxID_CANCEL, "");
    CQVFileDialogI::LaunchSaveDialog(nullptr, L"", L"", L"", L"", L"");
    EXPECT_EQ(cancel.Asked().Place(), FilePlace("/srv", "two"));
}

TEST_F(OpenDialog, AssertsAndChoosesNothingWithoutASwitch)
{
    const FileAnswer ok(wxID_OK, "/usr/chosen");
    const ExpectAssertions assertions;
    EXPECT_EQ(fittings::LaunchOpenDialog(nullptr, L"", L"", L"", nullptr), L"");
    EXPECT_EQ(assertions.Count(), 1);
    EXPECT_EQ(ok.Shown(), 0);
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"(none)");
}

}  // namespace
