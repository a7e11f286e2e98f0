// What wxRememberingFileDialog proposes, and what it stores.

#include <fittings/dialogs/remembering_dialogs.h>

#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <fittings/dialogs/file_dialog.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>
#include <tests/dialogs/answered_dialog.h>
#include <tests/support/gui.h>
#include <tests/support/temp_folder.h>

namespace {

namespace fs = std::filesystem;

constexpr const char* kTables = "Tables|*.csv;*.tsv|Texts|*.txt|All files|*";
constexpr const char* kNotAscii = "\xE5\xB8\xB3\xE7\xB0\xBF \xC3\xA4\xF0\x9F\x93\x92";

class SaveDialog : public wxRememberingFileDialog
{
public:
    explicit SaveDialog(const wxString& defaultName = "", const wxString& wildcard = kTables,
                        const wxString& entry = "Report")
        : wxRememberingFileDialog(nullptr, entry, "Save", wildcard, wxFD_SAVE, defaultName)
    {
    }
};

class OpenDialog : public wxRememberingFileDialog
{
public:
    explicit OpenDialog(const wxString& wildcard = kTables, long style = wxFD_OPEN)
        : wxRememberingFileDialog(nullptr, "Report", "Open", wildcard, style)
    {
    }
};

class RememberingFileDialog : public RememberingDialog
{
protected:
    static std::string StoredFile() { return Stored("LastFiles", "Report"); }
    static void StoreFile(const std::string& path) { CLocalRegStore::WriteString("LastFiles", "Report", path.c_str()); }
    static void StoreFilter(const char* pattern) { CLocalRegStore::WriteString("LastFilters", "Report", pattern); }
};

TEST_F(RememberingFileDialog, StartsInTheDocumentsAtFirst)
{
    const SaveDialog dialog;
    EXPECT_EQ(FolderOf(dialog), Documents());
    EXPECT_EQ(NameOf(dialog), "");
    EXPECT_EQ(dialog.GetFilterIndex(), 0);
    EXPECT_EQ(OpenDialog().GetFilename(), "");
}

TEST_F(RememberingFileDialog, RemembersFolderNameAndFilter)
{
    SaveDialog first;
    const Answer answer([&](wxDialog*) {
        Choose(first, m_plain + "/report.old.csv");
        first.SetFilterIndex(1);  // replaces the filter that the toolkit has chosen for the extension
        return wxID_OK;
    });
    EXPECT_EQ(first.ShowModal(), wxID_OK);
    EXPECT_EQ(Settings(), "[LastFiles]\nReport=" + m_plain + "/report.old.csv\n\n[LastFilters]\nReport=*.txt\n");

    const SaveDialog next;
    EXPECT_EQ(FolderOf(next), m_plain);
    EXPECT_EQ(NameOf(next), "report.old.csv");
    EXPECT_EQ(next.GetFilterIndex(), 1);
}

TEST_F(RememberingFileDialog, RemembersWhatIsNotAscii)
{
    const std::string folder = m_folders / kNotAscii;
    fs::create_directories(folder);
    const std::string path = folder + "/" + kNotAscii + ".csv";
    ShowAndChoose(SaveDialog(), path);
    EXPECT_EQ(StoredFile(), path);
    const SaveDialog next;
    EXPECT_EQ(FolderOf(next), folder);
    EXPECT_EQ(NameOf(next), std::string(kNotAscii) + ".csv");
}

TEST_F(RememberingFileDialog, StoresNothingWhenItIsCancelled)
{
    StoreFile(m_plain + "/report.csv");
    const std::string before = Settings();
    SaveDialog dialog;
    dialog.SetFilterIndex(1);
    const Answer cancel([&](wxDialog*) {
        Choose(dialog, m_plain + "/other.csv");
        return wxID_CANCEL;
    });
    EXPECT_EQ(dialog.ShowModal(), wxID_CANCEL);
    EXPECT_EQ(Settings(), before);
}

TEST_F(RememberingFileDialog, RemembersNothingWithoutAnEntry)
{
    CLocalRegStore::WriteString("LastFiles", "", (m_plain + "/report.csv").c_str());
    SaveDialog dialog("", kTables, "");
    EXPECT_NE(FolderOf(dialog), m_plain);
    EXPECT_EQ(NameOf(dialog), "");
    const std::string before = Settings();
    EXPECT_EQ(ShowAndChoose(dialog, m_plain + "/other.csv"), wxID_OK);
    EXPECT_EQ(Settings(), before);
}

TEST_F(RememberingFileDialog, TakesAnyEntry)
{
    const wxString entry = wxString::FromUTF8("a=b]\n[c/ \xE5\xB8\xB3");
    ShowAndChoose(SaveDialog("", kTables, entry), m_plain + "/report.csv");
    EXPECT_EQ(Stored("LastFiles", entry.utf8_str()), m_plain + "/report.csv");
    EXPECT_EQ(NameOf(SaveDialog("", kTables, entry)), "report.csv");
    EXPECT_EQ(NameOf(SaveDialog("", kTables, "a=b")), "");
}

TEST_F(RememberingFileDialog, IsAcceptedWhereNothingCanBeStored)
{
    std_file_paths::SetUserDataDir(L"/proc/fittings");
    EXPECT_EQ(ShowAndChoose(SaveDialog(), m_plain + "/report.csv"), wxID_OK);
    EXPECT_EQ(StoredFile(), "(none)");
}

TEST_F(RememberingFileDialog, CanBeMadeInTwoSteps)
{
    StoreFile(m_plain + "/report.csv");
    wxRememberingFileDialog dialog;
    EXPECT_TRUE(dialog.Create(nullptr, "Report", "Save it", kTables, wxFD_SAVE));
    EXPECT_EQ(TitleOf(dialog), "Save it");
    EXPECT_EQ(NameOf(dialog), "report.csv");
    EXPECT_EQ(ShowAndChoose(dialog, m_plain + "/other.csv"), wxID_OK);
    EXPECT_EQ(StoredFile(), m_plain + "/other.csv");
}

TEST_F(RememberingFileDialog, RemembersEachOfItsShowings)
{
    SaveDialog dialog;
    for (const char* const name : {"/one.csv", "/two.csv"}) {
        ShowAndChoose(dialog, m_plain + name);
        EXPECT_EQ(StoredFile(), m_plain + name);
    }
}

TEST_F(RememberingFileDialog, LetsTheProgramDecideBetweenCreationAndShowing)
{
    StoreFile(m_plain + "/report.csv");
    SaveDialog dialog;
    dialog.SetDirectory("/usr");
    dialog.SetFilename("other.txt");
    dialog.SetFilterIndex(2);
    const Answer cancel([&](wxDialog*) {
        EXPECT_EQ(FolderOf(dialog), "/usr");
        EXPECT_EQ(NameOf(dialog), "other.txt");
        EXPECT_EQ(dialog.GetFilterIndex(), 2);
        return wxID_CANCEL;
    });
    dialog.ShowModal();
}

TEST_F(RememberingFileDialog, SharesItsFileWithTheOtherSaveDialog)
{
    ShowAndChoose(SaveDialog(), m_plain + "/report.csv");
    CQVFileDialogI::SetRegEntry("Report");
    {
        const Answer answer([&](wxDialog* dialog) {
            EXPECT_EQ(FolderOf(*dialog), m_plain);
            EXPECT_EQ(NameOf(*dialog), "report");
            return Choose(dynamic_cast<wxFileDialog&>(*dialog), m_plain + "/other.txt");
        });
        CQVFileDialogI::LaunchSaveDialog(nullptr, L"", L"", L"", L"", L"");
    }
    CQVFileDialogI::SetRegEntry("");
    const SaveDialog next;
    EXPECT_EQ(FolderOf(next), m_plain);
    EXPECT_EQ(NameOf(next), "other.txt");
}

class RememberedStart : public RememberingFileDialog
{
protected:
    static std::string StartFor(const std::string& path)
    {
        StoreFile(path);
        return FolderOf(SaveDialog());
    }
};

TEST_F(RememberedStart, IsTheNearestAboveAFolderThatIsGone)
{
    EXPECT_EQ(StartFor(m_plain + "/gone/away/report.csv"), m_plain);
    EXPECT_EQ(StartFor("/not-there/report.csv"), "/");
    EXPECT_EQ(StartFor("/report.csv"), "/");
    EXPECT_EQ(NameOf(SaveDialog()), "report.csv");
}

TEST_F(RememberedStart, IsTheNearestAboveAFileInPlaceOfAFolder)
{
    WriteFile(m_plain + "/file", "");
    EXPECT_EQ(StartFor(m_plain + "/file/report.csv"), m_plain);
}

TEST_F(RememberedStart, IsTheDocumentsForWhatIsNoPath)
{
    for (const char* const path : {"report.csv", "plain/report.csv", "~/report.csv", "../report.csv"})
        EXPECT_EQ(StartFor(path), Documents()) << path;
}

TEST_F(RememberedStart, IsKeptByAPathThatEndsInAFolder)
{
    EXPECT_EQ(StartFor(m_plain + "/"), m_plain);
    EXPECT_EQ(NameOf(SaveDialog()), "");
}

class RememberedFilter : public RememberingFileDialog
{
};

TEST_F(RememberedFilter, IsFoundByItsPattern)
{
    StoreFilter("*.csv;*.tsv");
    EXPECT_EQ(SaveDialog("", "All files|*|Texts|*.txt|Comma or tab|*.csv;*.tsv").GetFilterIndex(), 2);
}

TEST_F(RememberedFilter, IsTheFirstThatShowsTheNameWhenItIsNotThere)
{
    StoreFilter("*.prj");
    StoreFile(m_plain + "/report.txt");
    EXPECT_EQ(SaveDialog().GetFilterIndex(), 1);
    StoreFile(m_plain + "/report.tsv");
    EXPECT_EQ(SaveDialog().GetFilterIndex(), 0);
    StoreFile(m_plain + "/txt.bin");
    EXPECT_EQ(SaveDialog().GetFilterIndex(), 2);
    StoreFile(m_plain + "/report.TXT");
    EXPECT_EQ(SaveDialog("", "Tables|*.csv|Texts|*.txt").GetFilterIndex(), 0);
    EXPECT_EQ(SaveDialog("other.txt").GetFilterIndex(), 1);
}

TEST_F(RememberedFilter, IsTheFirstWithoutAName)
{
    EXPECT_EQ(SaveDialog("", "Tables|*.csv|All files|*").GetFilterIndex(), 0);
}

TEST_F(RememberedFilter, StaysWhereThereIsNoneToChooseFrom)
{
    StoreFilter("*.txt");
    ShowAndChoose(SaveDialog("", "*.csv"), m_plain + "/report.csv");
    EXPECT_EQ(Stored("LastFilters", "Report"), "*.txt");
    ShowAndChoose(SaveDialog("", "Tables|*.csv"), m_plain + "/report.csv");
    EXPECT_EQ(Stored("LastFilters", "Report"), "*.txt");
}

TEST_F(RememberedFilter, OfAWildcardThatTheProgramSetLater)
{
    SaveDialog dialog;
    dialog.SetWildcard("Projects|*.prj|All files|*");
    dialog.SetFilterIndex(1);
    ShowAndChoose(dialog, m_plain + "/report.csv");
    EXPECT_EQ(Stored("LastFilters", "Report"), "*");
}

class ProposedName : public RememberingFileDialog
{
};

TEST_F(ProposedName, StaysWithoutAnExtension)
{
    StoreFile(m_plain + "/report");
    EXPECT_EQ(NameOf(SaveDialog()), "report");
}

TEST_F(ProposedName, IsTheProgramsWhereItHasOne)
{
    StoreFile(m_plain + "/report.csv");
    const SaveDialog dialog("other.csv");
    EXPECT_EQ(FolderOf(dialog), m_plain);
    EXPECT_EQ(NameOf(dialog), "other.csv");
    EXPECT_EQ(NameOf(SaveDialog("/usr/share/other.csv")), "other.csv");
    EXPECT_EQ(NameOf(SaveDialog("/usr/share/")), "");
}

TEST_F(ProposedName, OfTheProgramGetsTheExtensionOfTheFilter)
{
    EXPECT_EQ(NameOf(SaveDialog("other")), "other.csv");
    StoreFilter("*.txt");
    EXPECT_EQ(NameOf(SaveDialog("other")), "other.txt");
    StoreFilter("*");
    EXPECT_EQ(NameOf(SaveDialog("other")), "other");
}

class OpenedFile : public RememberingFileDialog
{
protected:
    OpenedFile()
    {
        WriteFile(m_plain + "/one.csv", "1");
        WriteFile(m_plain + "/two.csv", "2");
    }
};

TEST_F(OpenedFile, IsSelectedAgain)
{
    ShowAndChoose(OpenDialog(), m_plain + "/two.csv");
    EXPECT_EQ(StoredFile(), m_plain + "/two.csv");
    const OpenDialog next;
    EXPECT_EQ(next.GetFilename(), "two.csv");
    EXPECT_TRUE(PumpUntil([&] { return next.GetPath() == wxString::FromUTF8(m_plain + "/two.csv"); }));
    EXPECT_EQ(FolderOf(next), m_plain);
}

TEST_F(OpenedFile, IsNotSelectedWhenItIsGone)
{
    StoreFile(m_plain + "/gone.csv");
    const OpenDialog dialog;
    EXPECT_EQ(FolderOf(dialog), m_plain);
    EXPECT_EQ(dialog.GetFilename(), "");
    fs::create_directories(m_plain + "/folder.csv");
    StoreFile(m_plain + "/folder.csv");
    EXPECT_EQ(OpenDialog().GetFilename(), "");
    // If the folder does not exist, the dialog starts in the nearest existing folder above it.
    StoreFile(m_plain + "/gone/one.csv");
    EXPECT_EQ(FolderOf(OpenDialog()), m_plain);
}

TEST_F(OpenedFile, IsNotSelectedWhenTheFilterHidesIt)
{
    StoreFile(m_plain + "/one.csv");
    StoreFilter("*.txt");
    OpenDialog dialog;
    EXPECT_EQ(dialog.GetFilterIndex(), 1);
    EXPECT_EQ(dialog.GetFilename(), "");
    ShowAndChoose(OpenDialog("Texts|*.txt"), m_plain + "/two.csv");
    EXPECT_EQ(StoredFile(), m_plain + "/two.csv");
}

// If every filter hides the selected file, GTK's dialog has no filter any more, and wxFileDialog::GetFilterIndex()
// asserts. The file must be remembered all the same.
TEST_F(OpenedFile, IsRememberedWhenTheProgramSelectsOneThatEachFilterHides)
{
    StoreFilter("*.txt");
    OpenDialog dialog("Texts|*.txt|Pictures|*.png");
    dialog.SetPath(wxString::FromUTF8(m_plain + "/two.csv"));
    EXPECT_EQ(AcceptWhen(dialog,
                         [&] { return !dialog.GetPath().empty() && !gtk_file_chooser_get_filter(ChooserOf(dialog)); }),
              wxID_OK);
    EXPECT_EQ(StoredFile(), m_plain + "/two.csv");
    EXPECT_EQ(Stored("LastFilters", "Report"), "*.txt");
}

TEST_F(OpenedFile, IsTheLastOfSeveral)
{
    StoreFile(m_plain + "/one.csv");
    OpenDialog dialog(kTables, wxFD_OPEN | wxFD_MULTIPLE);
    EXPECT_EQ(AcceptWhen(dialog,
                         [&] {
                             gtk_file_chooser_select_all(ChooserOf(dialog));
                             return PathsOf(dialog).size() == 2;
                         }),
              wxID_OK);
    EXPECT_EQ(StoredFile(), PathsOf(dialog).back().utf8_string());
    const OpenDialog next(kTables, wxFD_OPEN | wxFD_MULTIPLE);
    EXPECT_TRUE(PumpUntil([&] { return PathsOf(next).size() == 1; }));
    EXPECT_EQ(PathsOf(next).back(), wxString::FromUTF8(StoredFile()));
}

TEST_F(OpenedFile, KeepsItsFilterWhenItIsSelectedAgain)
{
    StoreFile(m_plain + "/one.csv");
    StoreFilter("*");
    OpenDialog dialog;
    EXPECT_EQ(dialog.GetFilterIndex(), 2);
    EXPECT_EQ(AcceptWhen(dialog, [&] { return !dialog.GetPath().empty(); }), wxID_OK);
    EXPECT_EQ(StoredFile(), m_plain + "/one.csv");
    EXPECT_EQ(Stored("LastFilters", "Report"), "*");
}

}  // namespace
