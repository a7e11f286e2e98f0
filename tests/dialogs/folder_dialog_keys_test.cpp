// The folder dialog as a user sees it: shown by a separate program and operated with keys.

#include <fittings/dialogs/folder_dialog.h>

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tests/dialogs/driven_dialog.h>
#include <tests/support/temp_folder.h>

namespace {

class Dialog : public DrivenDialog
{
public:
    Dialog(std::vector<std::string> arguments, const std::string& title)
        : DrivenDialog((arguments.insert(arguments.begin(), FOLDER_DIALOG_PROBE), std::move(arguments)), title)
    {
    }

    // Waits until the dialog shows the home folder. wxFolderDlg starts there if no folder is given. By default, GTK's
    // dialog would show the files used last, and its Open button would stay disabled whatever is typed.
    void WaitForHome() { WaitForFolder(HomeFolder()); }

    void WaitForFolder(const std::string& folder)
    {
        WaitFor(folder,
                [&](const DialogState& state) { return !state.hasPopup && state.canAccept && state.file == folder; });
    }
};

class FolderDialogByKeys : public testing::Test
{
protected:
    FolderDialogByKeys()
    {
        std::filesystem::create_directories(m_folders / "plain");
        std::filesystem::create_directories(m_folders / "other");
        std::filesystem::create_directories(m_folders / kNotAscii);
    }

    static constexpr const char* kNotAscii = "\xE5\xB8\xB3\xE7\xB0\xBF \xC3\xA4\xF0\x9F\x93\x92";

    const TempFolder m_settings;
    const TempFolder m_folders;
};

TEST_F(FolderDialogByKeys, GivesTheFolderTyped)
{
    Dialog dialog({m_settings.Path(), "modal", "Choose one"}, "Choose one");
    dialog.WaitForHome();
    dialog.TypePath(m_folders / "plain");
    EXPECT_EQ(dialog.ChosenBy("Return"), m_folders / "plain");
}

TEST_F(FolderDialogByKeys, GivesTheHomeFolderAtFirst)
{
    Dialog dialog({m_settings.Path(), "reg", "Choose one", "Import"}, "Choose one");
    dialog.WaitForHome();
    EXPECT_EQ(dialog.ChosenBy("alt+o"), HomeFolder());
}

TEST_F(FolderDialogByKeys, GivesTheFolderTypedInPlaceOfTheStart)
{
    Dialog dialog({m_settings.Path(), "modal", "Choose one", m_folders / kNotAscii}, "Choose one");
    dialog.WaitForFolder(m_folders / kNotAscii);
    dialog.TypePath(m_folders / "other");
    EXPECT_EQ(dialog.ChosenBy("Return"), m_folders / "other");
}

TEST_F(FolderDialogByKeys, GivesTheFolderItStartsIn)
{
    Dialog dialog({m_settings.Path(), "modal", "Choose one", m_folders / kNotAscii}, "Choose one");
    dialog.WaitForFolder(m_folders / kNotAscii);
    EXPECT_EQ(dialog.ChosenBy("alt+o"), m_folders / kNotAscii);
}

TEST_F(FolderDialogByKeys, GivesNothingAfterEscape)
{
    Dialog dialog({m_settings.Path(), "modal", "Choose one", m_folders / "plain"}, "Choose one");
    dialog.WaitForFolder(m_folders / "plain");
    EXPECT_EQ(dialog.ChosenBy("Escape"), "");
}

TEST_F(FolderDialogByKeys, RemembersTheFolderChosen)
{
    const std::vector<std::string> command{m_settings.Path(), "reg", "Choose one", "Import"};
    {
        Dialog dialog(command, "Choose one");
        dialog.WaitForHome();
        dialog.TypePath(m_folders / "other");
        EXPECT_EQ(dialog.ChosenBy("Return"), m_folders / "other");
    }
    {
        Dialog dialog(command, "Choose one");
        dialog.WaitForFolder(m_folders / "other");
        EXPECT_EQ(dialog.ChosenBy("Escape"), "");
    }
    Dialog dialog(command, "Choose one");
    dialog.WaitForFolder(m_folders / "other");
    EXPECT_EQ(dialog.ChosenBy("alt+o"), m_folders / "other");
}

TEST_F(FolderDialogByKeys, BearsARememberedFolderThatIsGone)
{
    const std::vector<std::string> command{m_settings.Path(), "reg", "Choose one", "Import"};
    {
        Dialog dialog(command, "Choose one");
        dialog.WaitForHome();
        dialog.TypePath(m_folders / "plain");
        EXPECT_EQ(dialog.ChosenBy("Return"), m_folders / "plain");
    }
    std::filesystem::remove(m_folders / "plain");
    Dialog dialog(command, "Choose one");
    dialog.WaitForHome();
    dialog.TypePath(m_folders / "other");
    EXPECT_EQ(dialog.ChosenBy("Return"), m_folders / "other");
}

TEST_F(FolderDialogByKeys, StandsInTheMiddleOfItsParent)
{
    Dialog dialog({m_settings.Path(), "modal", "Choose one", m_folders / "plain"}, "Choose one");
    dialog.ExpectCentred();
    EXPECT_EQ(dialog.ChosenBy("Escape"), "");
}

}  // namespace
