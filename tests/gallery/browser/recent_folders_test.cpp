#include <filesystem>

#include <wx/menu.h>

#include <tests/gallery/browser/browser_fixture.h>

namespace {

using namespace gallery;
namespace fs = std::filesystem;

class RecentFoldersMenu : public BrowserTest
{
protected:
    void SetUp() override
    {
        for (const char* const name : {"a", "b", "c"})
            fs::create_directories(temp / name);
    }

    // Returns the folders in the menu from top to bottom, as paths below the root.
    std::vector<std::string> Folders()
    {
        std::vector<std::string> folders;
        for (int id = wxID_FILE1; id <= wxID_FILE9; ++id) {
            const wxMenuItem* const item = frame->GetMenuBar()->FindItem(id);
            if (item)
                folders.push_back(item->GetItemLabelText().AfterFirst(' ').utf8_string().substr(root.size()));
        }
        return folders;
    }

    void Choose(int id) const
    {
        wxCommandEvent event(wxEVT_MENU, id);
        frame->ProcessWindowEvent(event);
    }
};

using Names = std::vector<std::string>;

TEST_F(RecentFoldersMenu, ShowsTheFolderOpenedLastFirst)
{
    Open(root + "/a");
    EXPECT_EQ(Folders(), Names{"/a"});
    frame->Start(root + "/b");
    frame->Start(root + "/c");
    EXPECT_EQ(Folders(), (Names{"/c", "/b", "/a"}));
    frame->Start(root + "/a");
    EXPECT_EQ(Folders(), (Names{"/a", "/c", "/b"}));
}

TEST_F(RecentFoldersMenu, ComesBack)
{
    Open(root + "/a");
    frame->Start(root + "/b");
    Close();
    EXPECT_NE(ReadFile(settings / "settings.ini").find("[RecentFolders]\nfile1=" + root + "/b\nfile2=" + root + "/a\n"),
              std::string::npos)
        << ReadFile(settings / "settings.ini");
    Open("");
    EXPECT_EQ(Folders(), (Names{"/b", "/a"}));
}

TEST_F(RecentFoldersMenu, OpensAFolderAgain)
{
    Open(root + "/a");
    frame->Start(root + "/b");
    Choose(wxID_FILE2);
    EXPECT_EQ(Tree().GetRootFolder(), root + "/a");
    EXPECT_EQ(Folders(), (Names{"/a", "/b"}));
}

TEST_F(RecentFoldersMenu, ForgetsAFolderThatIsGone)
{
    Open(root + "/a");
    frame->Start(root + "/b");
    fs::remove(temp / "a");
    Choose(wxID_FILE2);
    EXPECT_EQ(Tree().GetRootFolder(), root + "/b");
    EXPECT_EQ(Folders(), Names{"/b"});
}

TEST_F(RecentFoldersMenu, ShowsTheFoldersOfAVersionWithoutIt)
{
    fs::create_directories(settings / "ui_config");
    std::string roots;
    for (int i = 1; i <= 11; ++i)
        roots += root + "/" + std::to_string(i) + "|";
    WriteFile(settings / "ui_config/browser.ini", "[Folders]\nRoots=" + root + "/a|" + roots + "\n");
    Open("");
    EXPECT_EQ(Tree().GetRootFolder(), root + "/a");
    EXPECT_EQ(Folders(), (Names{"/a", "/1", "/2", "/3", "/4", "/5", "/6", "/7", "/8"}));
}

TEST_F(RecentFoldersMenu, TakesNamesThatAreNoText)
{
    const Names names{"$HOME", "odd|\xFF%7C&_", "in\nner"};
    for (const std::string& name : names)
        fs::create_directories(temp / name);
    Open(root + "/a");
    for (const std::string& name : names)
        frame->Start(root + "/" + name);
    Close();
    Open(root + "/b");
    for (const std::string& name : names) {
        Choose(wxID_FILE4);
        EXPECT_EQ(Tree().GetRootFolder(), root + "/" + name);
    }
}

}  // namespace
