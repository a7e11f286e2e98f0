// Where wxRememberingDirDialog starts, and what it stores.

#include <fittings/dialogs/remembering_dialogs.h>

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fittings/dialogs/folder_dialog.h>
#include <fittings/platform/local_reg_store.h>
#include <tests/dialogs/answered_dialog.h>
#include <tests/support/temp_folder.h>

namespace {

namespace fs = std::filesystem;

class FolderDialog : public wxRememberingDirDialog
{
public:
    explicit FolderDialog(const wxString& entry = "Import", long style = wxDD_DEFAULT_STYLE)
        : wxRememberingDirDialog(nullptr, entry, "Import from", style)
    {
    }

    int ShowAndAnswer(int result, const std::vector<std::string>& folders)
    {
        const Answer answer([&](wxDialog*) {
            for (const std::string& folder : folders)
                m_paths.push_back(wxString::FromUTF8(folder));
            m_path = HasFlag(wxDD_MULTIPLE) ? wxString() : m_paths.back();
            return result;
        });
        return ShowModal();
    }
};

class RememberingFolderDialog : public RememberingDialog
{
protected:
    static std::string StoredFolder() { return Stored("Import", "Path"); }
};

TEST_F(RememberingFolderDialog, StartsInTheDocumentsAtFirst)
{
    EXPECT_EQ(FolderOf(FolderDialog()), Documents());
}

TEST_F(RememberingFolderDialog, RemembersTheFolder)
{
    EXPECT_EQ(FolderDialog().ShowAndAnswer(wxID_OK, {m_plain}), wxID_OK);
    EXPECT_EQ(Settings(), "[Import]\nPath=" + m_plain + "\n");
    EXPECT_EQ(FolderOf(FolderDialog()), m_plain);
    EXPECT_NE(FolderOf(FolderDialog("Export")), m_plain);
}

TEST_F(RememberingFolderDialog, RemembersTheLastOfSeveral)
{
    FolderDialog("Import", wxDD_DEFAULT_STYLE | wxDD_MULTIPLE).ShowAndAnswer(wxID_OK, {"/usr", m_plain});
    EXPECT_EQ(StoredFolder(), m_plain);
}

TEST_F(RememberingFolderDialog, StoresNothingUnlessAFolderIsChosen)
{
    EXPECT_EQ(FolderDialog().ShowAndAnswer(wxID_CANCEL, {m_plain}), wxID_CANCEL);
    EXPECT_EQ(FolderDialog().ShowAndAnswer(wxID_OK, {""}), wxID_OK);
    EXPECT_EQ(FolderDialog("Import", wxDD_DEFAULT_STYLE | wxDD_MULTIPLE).ShowAndAnswer(wxID_OK, {}), wxID_OK);
    EXPECT_EQ(FolderDialog("").ShowAndAnswer(wxID_OK, {m_plain}), wxID_OK);
    EXPECT_FALSE(fs::exists(m_settings / "settings.ini"));
}

TEST_F(RememberingFolderDialog, IgnoresWhatIsStoredForNoEntry)
{
    CLocalRegStore::WriteString("", "Path", m_plain.c_str());
    EXPECT_NE(FolderOf(FolderDialog("")), m_plain);
}

TEST_F(RememberingFolderDialog, StartsInTheNearestAboveAFolderThatIsGone)
{
    CLocalRegStore::WriteString("Import", "Path", (m_plain + "/gone/away").c_str());
    EXPECT_EQ(FolderOf(FolderDialog()), m_plain);
    CLocalRegStore::WriteString("Import", "Path", "plain");
    EXPECT_EQ(FolderOf(FolderDialog()), Documents());
}

TEST_F(RememberingFolderDialog, LetsTheProgramDecideBetweenCreationAndShowing)
{
    CLocalRegStore::WriteString("Import", "Path", m_plain.c_str());
    FolderDialog dialog;
    dialog.SetPath("/usr");
    EXPECT_EQ(FolderOf(dialog), "/usr");
}

TEST_F(RememberingFolderDialog, CanBeMadeInTwoSteps)
{
    CLocalRegStore::WriteString("Import", "Path", m_plain.c_str());
    wxRememberingDirDialog dialog;
    EXPECT_TRUE(dialog.Create(nullptr, "Import", "Import from"));
    EXPECT_EQ(TitleOf(dialog), "Import from");
    EXPECT_EQ(FolderOf(dialog), m_plain);
}

TEST_F(RememberingFolderDialog, SharesItsFolderWithTheOtherFolderDialog)
{
    FolderDialog().ShowAndAnswer(wxID_OK, {m_plain});
    const Answer answer([&](wxDialog* dialog) {
        EXPECT_EQ(FolderOf(*dialog), m_plain);
        return wxID_CANCEL;
    });
    EXPECT_EQ(wxFolderDlg::DoModalReg(nullptr, L"Import", L"Choose"), "");
}

}  // namespace
