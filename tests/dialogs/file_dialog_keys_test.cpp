// The save and open dialogs as a user sees them: shown by a separate program and operated with keys.

#include <fittings/dialogs/file_dialog.h>

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/local_reg_store.h>
#include <tests/dialogs/driven_dialog.h>
#include <tests/support/temp_folder.h>

namespace {

namespace fs = std::filesystem;

constexpr const char* kNotAscii = "\xE5\xB8\xB3\xE7\xB0\xBF \xC3\xA4\xF0\x9F\x93\x92";

struct Call
{
    std::string mode = "save";
    std::string entry;
    std::string extension;
    std::string wildcard;
    std::string folder;
    std::string name;
    bool asNobody = false;
};

class Dialog : public DrivenDialog
{
public:
    Dialog(const std::string& settings, const Call& call)
        : DrivenDialog({FILE_DIALOG_PROBE, settings, call.mode, call.entry, "Choose one", call.extension, call.wildcard,
                        call.folder, call.name},
                       "Choose one", Environment(settings, call))
    {
    }

    // Waits until the dialog proposes @a name in @a folder.
    Dialog(const std::string& settings, const Call& call, const std::string& folder, const std::string& name)
        : Dialog(settings, call)
    {
        WaitForProposal(folder, name);
    }

    // Waits until the dialog has read the folder and proposes the name.
    void WaitForProposal(const std::string& folder, const std::string& name)
    {
        const std::string file = name.empty() ? "" : fs::path(folder) / name;
        WaitFor(folder + " with " + name, [&](const DialogState& state) {
            return state.isActive && state.folder == folder && state.text == name && state.file == file &&
                   state.canAccept == !name.empty() && !state.hasPopup;
        });
    }

    // Types a name in place of the proposed one. Returns when the dialog shows that name.
    void TypeName(const std::string& name)
    {
        const std::string folder = State().folder;
        Type(name);
        WaitForProposal(folder, name);
    }

private:
    static std::map<std::string, std::optional<std::string>> Environment(const std::string& settings, const Call& call)
    {
        if (!call.asNobody)
            return {};
        // Without root's rights, the probe cannot use the test's home folder, so HOME is the folder of the settings.
        return {{"FILE_DIALOG_AS_NOBODY", "1"}, {"HOME", settings}};
    }
};

class SaveDialogByKeys : public testing::Test
{
protected:
    SaveDialogByKeys()
    {
        fs::create_directories(m_folders / "plain");
        fs::create_directories(m_folders / kNotAscii);
        m_plain = m_folders / "plain";
        for (const std::string& folder : {m_settings.Path(), m_folders.Path(), m_plain})
            fs::permissions(folder, fs::perms::all);
    }

    Call CallIn(const std::string& folder, const std::string& name) const
    {
        Call call;
        call.entry = "Report";
        call.folder = folder + "/";
        call.name = name;
        return call;
    }

    // Returns a call with neither folder nor name. The dialog then proposes the remembered file.
    Call CallAgain() const
    {
        Call call;
        call.entry = "Report";
        return call;
    }

    static void Store(const std::string& path) { CLocalRegStore::WriteString("LastFiles", "Report", path.c_str()); }

    const TempUserData m_settings;
    const TempFolder m_folders;
    std::string m_plain;
};

TEST_F(SaveDialogByKeys, GivesTheNameTyped)
{
    Dialog dialog(m_settings.Path(), CallIn(m_plain, ""), m_plain, "");
    dialog.TypeName("fresh.csv");
    EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/fresh.csv");
    EXPECT_EQ(Stored("LastFiles", "Report"), m_plain + "/fresh.csv");
    EXPECT_FALSE(fs::exists(m_plain + "/fresh.csv"));
}

TEST_F(SaveDialogByKeys, GivesTheNameTypedInPlaceOfTheOneProposed)
{
    Call call = CallIn(m_plain, "report");
    call.extension = "csv";
    call.wildcard = "All|*|Tables|*.csv";
    Dialog dialog(m_settings.Path(), call, m_plain, "report");
    dialog.TypeName("other");
    EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/other");
}

TEST_F(SaveDialogByKeys, GivesTheNameProposed)
{
    Dialog dialog(m_settings.Path(), CallIn(m_plain, "report.csv"), m_plain, "report.csv");
    EXPECT_EQ(dialog.ChosenBy("alt+s"), m_plain + "/report.csv");
}

TEST_F(SaveDialogByKeys, GivesNothingAfterEscape)
{
    Store("/usr/earlier");
    Dialog dialog(m_settings.Path(), CallIn(m_plain, "report.csv"), m_plain, "report.csv");
    EXPECT_EQ(dialog.ChosenBy("Escape"), "");
    EXPECT_EQ(Stored("LastFiles", "Report"), "/usr/earlier");
}

TEST_F(SaveDialogByKeys, ProposesTheFileChosenLast)
{
    {
        Dialog dialog(m_settings.Path(), CallIn(m_plain, "report.prj"), m_plain, "report.prj");
        EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/report.prj");
    }
    Dialog dialog(m_settings.Path(), CallAgain(), m_plain, "report");
    EXPECT_EQ(dialog.ChosenBy("Escape"), "");
    EXPECT_EQ(Stored("LastFiles", "Report"), m_plain + "/report.prj");
}

TEST_F(SaveDialogByKeys, ProposesTheExtensionOfThePatternAnew)
{
    Store(m_plain + "/report.prj");
    Call call = CallAgain();
    call.extension = "prj";
    Dialog dialog(m_settings.Path(), call, m_plain, "report.prj");
    EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/report.prj");
}

TEST_F(SaveDialogByKeys, KeepsAFileThatIsNotToBeReplaced)
{
    Store("/usr/earlier");
    WriteFile(m_plain + "/report.csv", "precious");
    Dialog dialog(m_settings.Path(), CallIn(m_plain, "report.csv"), m_plain, "report.csv");
    dialog.Press("Return");
    EXPECT_NE(dialog.Message().find("already exists"), std::string::npos) << dialog.Message();
    dialog.Press("Escape");
    dialog.WaitForNoMessage();
    dialog.WaitForProposal(m_plain, "report.csv");
    EXPECT_EQ(dialog.ChosenBy("Escape"), "");
    EXPECT_EQ(ReadFile(m_plain + "/report.csv"), "precious");
    EXPECT_EQ(Stored("LastFiles", "Report"), "/usr/earlier");
}

TEST_F(SaveDialogByKeys, LetsAnotherNameBeTypedForAFileThatIsNotToBeReplaced)
{
    WriteFile(m_plain + "/report.csv", "precious");
    Dialog dialog(m_settings.Path(), CallIn(m_plain, "report.csv"), m_plain, "report.csv");
    dialog.Press("Return");
    dialog.Message();
    dialog.Press("Escape");
    dialog.WaitForNoMessage();
    dialog.TypeName("report2.csv");
    EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/report2.csv");
    EXPECT_EQ(Stored("LastFiles", "Report"), m_plain + "/report2.csv");
}

TEST_F(SaveDialogByKeys, GivesAFileThatIsToBeReplaced)
{
    WriteFile(m_plain + "/report.csv", "precious");
    Dialog dialog(m_settings.Path(), CallIn(m_plain, "report.csv"), m_plain, "report.csv");
    dialog.Press("Return");
    dialog.Message();
    EXPECT_EQ(dialog.ChosenBy("alt+r"), m_plain + "/report.csv");
    EXPECT_EQ(Stored("LastFiles", "Report"), m_plain + "/report.csv");
    EXPECT_EQ(ReadFile(m_plain + "/report.csv"), "precious");
}

TEST_F(SaveDialogByKeys, GivesANameThatIsNotAscii)
{
    const std::string folder = m_folders / kNotAscii;
    const std::string name = std::string(kNotAscii) + ".csv";
    {
        Dialog dialog(m_settings.Path(), CallIn(folder, name), folder, name);
        EXPECT_EQ(dialog.ChosenBy("Return"), folder + "/" + name);
        EXPECT_EQ(Stored("LastFiles", "Report"), folder + "/" + name);
    }
    Dialog dialog(m_settings.Path(), CallAgain(), folder, kNotAscii);
    EXPECT_EQ(dialog.ChosenBy("Escape"), "");
}

TEST_F(SaveDialogByKeys, GivesTheLongestName)
{
    const std::string name(255, 'n');
    Dialog dialog(m_settings.Path(), CallIn(m_plain, name), m_plain, name);
    EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/" + name);
    EXPECT_EQ(Stored("LastFiles", "Report"), m_plain + "/" + name);
}

TEST_F(SaveDialogByKeys, RefusesANameThatIsTooLong)
{
    const std::string name(256, 'n');
    Dialog dialog(m_settings.Path(), CallIn(m_plain, name), m_plain, name);
    dialog.Press("Return");
    EXPECT_NE(dialog.Message().find("too long"), std::string::npos) << dialog.Message();
    dialog.Press("Return");
    dialog.WaitForNoMessage();
    dialog.TypeName("short");
    EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/short");
}

TEST_F(SaveDialogByKeys, StartsInTheFolderOfSamples)
{
    const fs::path home = HomeFolder();
    fs::create_directories(home / "fittings-test/Samples");
    Dialog dialog(m_settings.Path(), CallAgain(), home / "fittings-test/Samples", "");
    EXPECT_EQ(dialog.ChosenBy("Escape"), "");
    fs::remove_all(home / "fittings-test");
}

TEST_F(SaveDialogByKeys, StartsAboveSamplesThatAreNotThereWithoutAnError)
{
    const std::string home = HomeFolder();
    // GTK completes an empty entry with the common beginning of all names in the folder. If all names belonged to
    // hidden files, this beginning would be a dot. Therefore add a visible file.
    WriteFile(home + "/visible", "");
    Dialog dialog(m_settings.Path(), CallAgain(), home, "");
    dialog.TypeName("first.csv");
    EXPECT_EQ(dialog.ChosenBy("Return"), home + "/first.csv");
    EXPECT_FALSE(dialog.HadMessage());
}

TEST_F(SaveDialogByKeys, StartsAboveAFolderThatIsGoneWithoutAnError)
{
    Store(m_plain + "/gone/away/report.csv");
    Dialog dialog(m_settings.Path(), CallAgain(), m_plain, "report");
    EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/report");
    EXPECT_FALSE(dialog.HadMessage());
}

TEST_F(SaveDialogByKeys, StartsAboveAFileInPlaceOfAFolderWithoutAnError)
{
    WriteFile(m_plain + "/file", "");
    for (const std::string& gone : {m_plain + "/file/report.csv", m_plain + "/file/deeper/report.csv"}) {
        Store(gone);
        Dialog dialog(m_settings.Path(), CallAgain(), m_plain, "report");
        EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/report");
        EXPECT_FALSE(dialog.HadMessage());
    }
}

TEST_F(SaveDialogByKeys, StartsAboveAFolderThatCannotBeReadWithoutAnError)
{
    fs::create_directories(m_plain + "/closed/deeper");
    fs::permissions(m_plain + "/closed", fs::perms::none);
    for (const std::string& closed : {m_plain + "/closed", m_plain + "/closed/deeper"}) {
        Call call = CallIn(closed, "report");
        call.asNobody = true;
        Dialog dialog(m_settings.Path(), call, m_plain, "report");
        EXPECT_EQ(dialog.ChosenBy("Escape"), "");
        EXPECT_FALSE(dialog.HadMessage());
    }
    fs::permissions(m_plain + "/closed", fs::perms::owner_all);
}

TEST_F(SaveDialogByKeys, StartsInTheRootFolderWhenNothingElseCanBeRead)
{
    Call call = CallIn("/root", "report");
    call.asNobody = true;
    Dialog dialog(m_settings.Path(), call, "/", "report");
    EXPECT_EQ(dialog.ChosenBy("Escape"), "");
    EXPECT_FALSE(dialog.HadMessage());
}

TEST_F(SaveDialogByKeys, GivesAFileInAFolderThatCannotBeWritten)
{
    fs::permissions(m_plain, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    Call call = CallIn(m_plain, "report.csv");
    call.asNobody = true;
    Dialog dialog(m_settings.Path(), call, m_plain, "report.csv");
    EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/report.csv");
    EXPECT_FALSE(dialog.HadMessage());
    fs::permissions(m_plain, fs::perms::owner_all);
}

// The toolkit turns the character U+1000FF into the byte 0xFF, so the dialog starts in a folder whose name is not
// UTF-8. For a file in this folder, the toolkit returns an empty path.
TEST_F(SaveDialogByKeys, GivesNothingInAFolderWhoseNameIsNotUtf8)
{
    const std::string folder = m_plain + "/\xFF";
    fs::create_directories(folder);
    Store(m_plain + "/\xF4\x80\x83\xBF/report.csv");
    const std::string stored = Stored("LastFiles", "Report");
    Dialog dialog(m_settings.Path(), CallAgain(), folder, "report");
    EXPECT_EQ(dialog.ChosenBy("Return"), "");
    EXPECT_EQ(Stored("LastFiles", "Report"), stored);
}

TEST_F(SaveDialogByKeys, StandsInTheMiddleOfItsParent)
{
    Dialog dialog(m_settings.Path(), CallIn(m_plain, "report.csv"), m_plain, "report.csv");
    dialog.ExpectCentred();
    EXPECT_EQ(dialog.ChosenBy("Escape"), "");
}

class OpenDialogByKeys : public SaveDialogByKeys
{
protected:
    OpenDialogByKeys()
    {
        WriteFile(m_plain + "/one.csv", "1");
        WriteFile(m_plain + "/two.csv", "2");
    }

    Call OpenAgain() const
    {
        Call call = CallAgain();
        call.mode = "open";
        call.folder = "x";
        return call;
    }
};

TEST_F(OpenDialogByKeys, StartsInTheFolderOfTheRememberedFile)
{
    Store(m_plain + "/one.csv");
    Dialog dialog(m_settings.Path(), OpenAgain());
    dialog.WaitFor(m_plain, [&](const DialogState& state) { return state.isActive && state.folder == m_plain; });
    dialog.TypePath(m_plain + "/two.csv");
    EXPECT_EQ(dialog.ChosenBy("Return"), m_plain + "/two.csv");
    EXPECT_EQ(Stored("LastFiles", "Report"), m_plain + "/two.csv");
    EXPECT_FALSE(dialog.HadMessage());
}

TEST_F(OpenDialogByKeys, GivesNoFileThatIsNotThere)
{
    Store(m_plain + "/one.csv");
    Dialog dialog(m_settings.Path(), OpenAgain());
    dialog.WaitFor(m_plain, [&](const DialogState& state) { return state.isActive && state.folder == m_plain; });
    dialog.TypePath(m_plain + "/three.csv");
    dialog.Press("Return");
    EXPECT_EQ(dialog.Message(), "Please choose an existing file.");
    dialog.Press("Return");
    dialog.WaitForNoMessage();
    // The first Escape closes only the entry.
    dialog.Press("Escape");
    dialog.WaitFor("the list", [](const DialogState& state) { return state.focus == "GtkTreeView"; });
    EXPECT_EQ(dialog.ChosenBy("Escape"), "");
    EXPECT_EQ(Stored("LastFiles", "Report"), m_plain + "/one.csv");
}

}  // namespace
