// A home folder that cannot be written: earlier settings are still read, and a failed write does not break anything
// else. New writes succeed as soon as the folder is writable again.

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <map>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include <fittings/config/ui_config_mgr.h>
#include <fittings/config/wx_window_state.h>
#include <fittings/dialogs/file_dialog.h>
#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>
#include <tests/config/aui_frame.h>
#include <tests/dialogs/driven_dialog.h>
#include <tests/dialogs/file_answer.h>
#include <tests/faults/own_home.h>
#include <tests/support/gui.h>
#include <tests/support/temp_folder.h>
#include <tests/tree/tree_on_screen.h>

namespace {

struct Trouble
{
    const char* name;
    void (*begin)();
    void (*end)();
    int error;  // The errno that a write sets while the fault lasts.

    friend void PrintTo(const Trouble& trouble, std::ostream* stream) { *stream << trouble.name; }
};

std::string DataFolder()
{
    return HomeFolder() + "/.local/share/fittings-test";
}

// Returns the contents of every file in the data folder. The keys are the relative paths of the files.
std::map<std::string, std::string> Files()
{
    std::map<std::string, std::string> files;
    for (const std::string& name : NamesIn(DataFolder())) {
        if (name != "ui_config")
            files[name] = ReadFile(DataFolder() + "/" + name);
    }
    for (const std::string& name : NamesIn(DataFolder() + "/ui_config"))
        files["ui_config/" + name] = ReadFile(DataFolder() + "/ui_config/" + name);
    return files;
}

class BadHome : public testing::TestWithParam<Trouble>
{
protected:
    void SetUp() override
    {
        if (!own_home::IsThere())
            GTEST_SKIP() << "no right to mount a disk";
        EXPECT_EQ(std_file_paths::GetUserDataDir(), file_util_ex::ConvertFromUTF8W(DataFolder()));
        // These stand for the settings of an earlier run of the application.
        ASSERT_TRUE(CLocalRegStore::WriteString(L"Application", L"Before", L"kept"));
        ui_config_mgr::WriteConfigString(L"application.ini", L"Application", L"Before", L"kept too");
    }

    void TearDown() override
    {
        if (!own_home::IsThere())
            return;
        if (m_isInTrouble)
            End();
        EXPECT_EQ(std::system("rm -rf \"$HOME\"/.local"), 0);
    }

    void Begin()
    {
        GetParam().begin();
        m_isInTrouble = true;
        m_before = Files();
        errno = 0;
        std::ofstream other(HomeFolder() + "/other");
        other << "x" << std::flush;
        EXPECT_FALSE(other) << "the fault has no effect";
        EXPECT_EQ(errno, GetParam().error);
    }

    // Expects all files to be as they were before the fault, and the earlier settings to be readable.
    void ExpectAllKept() const
    {
        EXPECT_EQ(Files(), m_before);
        EXPECT_EQ(Stored(L"Application", L"Before"), L"kept");
        EXPECT_EQ(ui_config_mgr::GetConfigString(L"application.ini", L"Application", L"Before"), L"kept too");
    }

    void End()
    {
        GetParam().end();
        m_isInTrouble = false;
        std::remove((HomeFolder() + "/other").c_str());
    }

private:
    bool m_isInTrouble = false;
    std::map<std::string, std::string> m_before;
};

TEST_P(BadHome, SaysThatAValueIsNotStored)
{
    Begin();
    EXPECT_FALSE(CLocalRegStore::WriteString(L"Application", L"Before", L"changed"));
    EXPECT_FALSE(CLocalRegStore::WriteString(L"Application", L"New", L"1"));
    EXPECT_FALSE(CLocalRegStore::WriteProfileBool(L"Application", L"Flag", true));
    EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"Application", L"NeverThere"));
    EXPECT_TRUE(CLocalRegStore::WriteString(L"Application", L"Before", L"kept"));
    ui_config_mgr::WriteConfigString(L"application.ini", L"Application", L"Before", L"changed");
    ui_config_mgr::WriteConfigInt(L"application.ini", L"Application", L"Size", 5);
    EXPECT_EQ(ui_config_mgr::GetConfigInt(L"application.ini", L"Application", L"Size"), 0);
    EXPECT_EQ(Stored(L"Application", L"New"), L"(none)");
    ExpectAllKept();

    End();
    EXPECT_TRUE(CLocalRegStore::WriteString(L"Application", L"Before", L"changed"));
    ui_config_mgr::WriteConfigInt(L"application.ini", L"Application", L"Size", 5);
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{
                           {"settings.ini", "[Application]\nBefore=changed\n"},
                           {"settings.ini.lock", ""},
                           {"ui_config/application.ini", "[Application]\nBefore=kept too\nSize=5\n"}}));
}

TEST_P(BadHome, GivesAFrameItsPlace)
{
    CLocalRegStore::WriteString(L"wxWindowState", L"Main", L"420;130;510;340");
    CLocalRegStore::WriteProfileBool(L"wxWindowMaximize", L"Main", false);
    Begin();
    wxFrame frame(nullptr, wxID_ANY, "frame", wxPoint(300, 200), wxSize(400, 300));
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"Main"));
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_EQ(frame.GetScreenRect(), wxRect(420, 130, 510, 340));
    frame.Maximize();
    ASSERT_TRUE(PumpUntil([&] { return frame.IsMaximized() && frame.GetSize() == wxSize(1264, 960); }));
    wx_window_state::SaveState(&frame, L"Main");
    EXPECT_EQ(Stored(L"wxWindowState", L"Main"), L"420;130;510;340");
    EXPECT_FALSE(CLocalRegStore::GetProfileBool(L"wxWindowMaximize", L"Main", true));
    ExpectAllKept();

    End();
    frame.Maximize(false);
    ASSERT_TRUE(PumpUntil([&] { return !frame.IsMaximized() && frame.GetScreenRect() == wxRect(420, 130, 510, 340); }));
    frame.SetSize(200, 150, 400, 300);
    ASSERT_TRUE(PumpUntil([&] { return frame.GetScreenRect() == wxRect(200, 150, 400, 300); }));
    wx_window_state::SaveState(&frame, L"Main");
    EXPECT_EQ(Stored(L"wxWindowState", L"Main"), L"200;150;400;300");
}

TEST_P(BadHome, GivesPanesTheirLayout)
{
    AuiFrame frame;
    wx_window_state::SaveAuiManagerState(&frame.manager, L"Main");
    Begin();
    frame.Pane("log").Hide();
    frame.manager.Update();
    wx_window_state::SaveAuiManagerState(&frame.manager, L"Main");
    EXPECT_TRUE(wx_window_state::LoadAuiManagerState(&frame.manager, L"Main"));
    EXPECT_TRUE(frame.Pane("log").IsShown());
    ExpectAllKept();

    End();
    frame.Pane("log").Hide();
    frame.manager.Update();
    wx_window_state::SaveAuiManagerState(&frame.manager, L"Main");
    frame.Pane("log").Show();
    EXPECT_TRUE(wx_window_state::LoadAuiManagerState(&frame.manager, L"Main"));
    EXPECT_FALSE(frame.Pane("log").IsShown());
}

TEST_P(BadHome, GivesATreeItsState)
{
    CLocalRegStore::WriteString(L"TreeControlState", L"Folders", L"B|R|");
    Begin();
    const TreeOnScreen<LazyTree> screen;
    LazyTree& tree = *screen.tree;
    tree.folders = {{L"R", {L"A", L"B"}}, {L"A", {L"A1"}}, {L"B", {L"B1"}}};
    wxTreeCursor root = AddLazyRoot(tree, "R");
    tree.LoadState("Folders", root);
    EXPECT_EQ(tree.expanded, (Labels{L"R", L"B"}));
    wxTreeCursor(root.GetChild()).Expand();
    tree.SaveState("Folders", root);
    EXPECT_EQ(Stored(L"TreeControlState", L"Folders"), L"B|R|");
    ExpectAllKept();

    End();
    tree.SaveState("Folders", root);
    EXPECT_EQ(Stored(L"TreeControlState", L"Folders"), L"A|B|R|");
}

AskedFile SaveAs(const wxString& path)
{
    const FileAnswer ok(wxID_OK, path);
    EXPECT_EQ(CQVFileDialogI::LaunchSaveDialog(nullptr, L"", L"", L"", L"", L""), path.ToStdWstring());
    return ok.Asked();
}

TEST_P(BadHome, GivesTheSaveDialogTheLastFile)
{
    CQVFileDialogI::SetRegEntry("Report");
    CLocalRegStore::WriteString(L"LastFiles", L"Report", L"/usr/one");
    Begin();
    AskedFile asked = SaveAs("/srv/two");
    EXPECT_EQ(asked.folder, "/usr");
    EXPECT_EQ(asked.file, "one");
    asked = SaveAs("/srv/three");
    EXPECT_EQ(asked.folder, "/usr");
    EXPECT_EQ(asked.file, "one");
    ExpectAllKept();

    End();
    SaveAs("/srv/two");
    EXPECT_EQ(Stored(L"LastFiles", L"Report"), L"/srv/two");
    asked = SaveAs("/srv/three");
    EXPECT_EQ(asked.folder, "/srv");
    EXPECT_EQ(asked.file, "two");
    CQVFileDialogI::SetRegEntry("");
}

// Shows the folder dialog in a separate program with the same home folder, and returns the chosen folder.
std::string Chosen(const std::string& startFolder)
{
    DrivenDialog dialog({FOLDER_DIALOG_PROBE, DataFolder(), "reg", "Choose one", "Import"}, "Choose one");
    dialog.WaitFor(startFolder, [&](const DialogState& state) { return state.canAccept && state.file == startFolder; });
    dialog.Press("alt+o");
    return dialog.Chosen();
}

TEST_P(BadHome, GivesTheFolderDialogTheLastFolder)
{
    CLocalRegStore::WriteString(L"Import", L"Path", L"/usr/share");
    Begin();
    EXPECT_EQ(Chosen("/usr/share"), "/usr/share");
    ExpectAllKept();
}

const Trouble kReadOnly{"ReadOnly", [] { own_home::MakeReadOnly(true); }, [] { own_home::MakeReadOnly(false); }, EROFS};
const Trouble kFull{"Full", [] { own_home::Fill(true); }, [] { own_home::Fill(false); }, ENOSPC};

INSTANTIATE_TEST_SUITE_P(, BadHome, testing::Values(kReadOnly, kFull),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
