// The remembering dialogs as a user sees them: shown by a separate program and operated with keys.

#include <fittings/dialogs/remembering_dialogs.h>

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include <fittings/platform/local_reg_store.h>
#include <tests/dialogs/driven_dialog.h>
#include <tests/support/temp_folder.h>

namespace {

namespace fs = std::filesystem;

class Dialog : public DrivenDialog
{
public:
    Dialog(const std::string& settings, const std::string& mode, const std::string& home = HomeFolder())
        : DrivenDialog({REMEMBERING_DIALOG_PROBE, settings, mode, "Report", "Choose one", "Tables|*.csv|All files|*"},
                       "Choose one", {{"HOME", home}})
    {
    }

    void WaitForFile(const std::string& path)
    {
        WaitFor(path, [&](const DialogState& state) {
            return state.isActive && !state.hasPopup && state.canAccept && state.file == path;
        });
    }

    void WaitForFolder(const std::string& folder)
    {
        WaitFor(folder, [&](const DialogState& state) { return state.isActive && state.folder == folder; });
    }
};

class RememberingByKeys : public testing::Test
{
protected:
    RememberingByKeys()
    {
        fs::create_directories(m_folders / "plain");
        m_plain = m_folders / "plain";
        WriteFile(m_plain + "/one.csv", "1");
        WriteFile(m_plain + "/two.csv", "2");
    }

    static void Store(const std::string& path) { CLocalRegStore::WriteString("LastFiles", "Report", path.c_str()); }

    const TempUserData m_settings;
    const TempFolder m_folders;
    std::string m_plain;
};

TEST_F(RememberingByKeys, ProposesTheFileChosenLastWithItsExtension)
{
    Store(m_plain + "/report.prj");
    {
        Dialog dialog(m_settings.Path(), "save");
        dialog.WaitForFile(m_plain + "/report.prj");
        dialog.Type("fresh.prj");
        dialog.WaitForFile(m_plain + "/fresh.prj");
        EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/fresh.prj");
    }
    EXPECT_EQ(ReadFile(m_settings / "settings.ini"),
              "[LastFiles]\nReport=" + m_plain + "/fresh.prj\n\n[LastFilters]\nReport=*\n");
    Dialog dialog(m_settings.Path(), "save");
    dialog.WaitForFile(m_plain + "/fresh.prj");
    EXPECT_EQ(dialog.ChosenBy("Escape"), "");
    EXPECT_EQ(Stored("LastFiles", "Report"), m_plain + "/fresh.prj");
}

TEST_F(RememberingByKeys, AsksBeforeItReplacesAFile)
{
    Store(m_plain + "/one.csv");
    Dialog dialog(m_settings.Path(), "save");
    dialog.WaitForFile(m_plain + "/one.csv");
    dialog.Press("Return");
    EXPECT_NE(dialog.Message().find("already exists"), std::string::npos) << dialog.Message();
    EXPECT_EQ(dialog.ChosenBy("alt+r"), m_plain + "/one.csv");
}

TEST_F(RememberingByKeys, StartsInTheDocumentsAtFirst)
{
    const std::string home = m_folders / "home";
    fs::create_directories(home + "/.config");
    fs::create_directories(home + "/Papers/fittings-test");
    WriteFile(home + "/.config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n");
    Dialog dialog(m_settings.Path(), "save", home);
    dialog.WaitForFolder(home + "/Papers");
    EXPECT_EQ(dialog.ChosenBy("Escape"), "");
    EXPECT_FALSE(dialog.HadMessage());
}

TEST_F(RememberingByKeys, StartsAboveAFolderThatIsGoneWithoutAnError)
{
    Store(m_plain + "/gone/away/report.csv");
    Dialog dialog(m_settings.Path(), "save");
    dialog.WaitForFile(m_plain + "/report.csv");
    EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/report.csv");
    EXPECT_FALSE(dialog.HadMessage());
}

TEST_F(RememberingByKeys, OpensTheFileChosenLastAgain)
{
    Store(m_plain + "/gone.csv");
    {
        Dialog dialog(m_settings.Path(), "open");
        dialog.WaitForFolder(m_plain);
        dialog.TypePath(m_plain + "/two.csv");
        EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/two.csv");
    }
    Dialog dialog(m_settings.Path(), "open");
    dialog.WaitForFile(m_plain + "/two.csv");
    EXPECT_EQ(dialog.ChosenBy("alt+o"), m_plain + "/two.csv");
    EXPECT_EQ(Stored("LastFiles", "Report"), m_plain + "/two.csv");
}

TEST_F(RememberingByKeys, OpensSeveralFiles)
{
    Store(m_plain + "/one.csv");
    Dialog dialog(m_settings.Path(), "several");
    dialog.WaitForFile(m_plain + "/one.csv");
    dialog.WaitFor("the list", [](const DialogState& state) { return state.focus == "GtkTreeView"; });
    dialog.Press("ctrl+a");
    dialog.Press("alt+o");
    const std::string chosen = dialog.Chosen();
    EXPECT_NE(chosen.find(m_plain + "/one.csv"), std::string::npos) << chosen;
    EXPECT_NE(chosen.find(m_plain + "/two.csv"), std::string::npos) << chosen;
    EXPECT_EQ(Stored("LastFiles", "Report"), chosen.substr(chosen.find('|') + 1));
}

TEST_F(RememberingByKeys, StartsInTheFolderChosenLast)
{
    {
        Dialog dialog(m_settings.Path(), "folder");
        dialog.WaitForFile(HomeFolder());
        dialog.TypePath(m_plain);
        EXPECT_EQ(dialog.ChosenBy("Return"), m_plain);
    }
    EXPECT_EQ(ReadFile(m_settings / "settings.ini"), "[Report]\nPath=" + m_plain + "\n");
    fs::remove_all(m_plain);
    Dialog dialog(m_settings.Path(), "folder");
    dialog.WaitForFile(m_folders.Path());
    EXPECT_EQ(dialog.ChosenBy("alt+o"), m_folders.Path());
}

}  // namespace
