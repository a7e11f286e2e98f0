#include <filesystem>

#include <sys/stat.h>
#include <wx/infobar.h>

#include <gallery/folders/folder_listing.h>
#include <tests/gallery/browser/browser_fixture.h>
#include <tests/support/process/as_nobody.h>
#include <tests/support/process/processor_time.h>

namespace {

using namespace gallery;
using namespace gallery::simulated_user;
namespace fs = std::filesystem;

class UnusualFolders : public BrowserTest
{
protected:
    bool HasNote() { return NoteIsShown(frame); }

private:
    static bool NoteIsShown(wxWindow* window)
    {
        if (auto* note = dynamic_cast<wxInfoBar*>(window))
            return note->IsShown();
        for (wxWindow* child : window->GetChildren()) {
            if (NoteIsShown(child))
                return true;
        }
        return false;
    }
};

TEST_F(UnusualFolders, ALinkToAFolderIsALeaf)
{
    fs::create_directory(temp / "folder");
    fs::create_symlink("..", temp / "folder/circle");
    Open(root);
    Select("folder");
    EXPECT_EQ(Tree().GetChildrenCount(Item("folder")), 0u);
    EXPECT_FALSE(Tree().ItemHasChildren(Item("folder")));
    ASSERT_EQ(Rows(), Strings{"circle"});
    DoubleClick(CentreOf(NameRect(List(), 0)));
    ASSERT_TRUE(PumpUntil([&] { return List().GetSelectedEntry() != nullptr; }));
    EXPECT_EQ(Tree().GetSelectedPath(), root + "/folder");
}

TEST_F(UnusualFolders, AnUndecodableNameIsShownAndOpened)
{
    fs::create_directories(temp / "caf\xE9/deep\xFF");
    WriteFile(temp / "caf\xE9/deep\xFF/file", "");
    Open(root);
    EXPECT_EQ(Tree().GetItemText(Item("caf\xE9")), wxString::FromUTF8("caf\uFFFD"));
    DoubleClick(CentreOf(NameRect(List(), 0)));
    ASSERT_TRUE(SelectionComesTo("caf\xE9"));
    Tree().Expand(Item("caf\xE9"));
    ClickFolder("caf\xE9/deep\xFF");
    EXPECT_EQ(Rows(), Strings{"file"});
}

TEST_F(UnusualFolders, AnUnreadableOneIsSaidToBe)
{
    chmod(root.c_str(), 0755);
    fs::create_directories(temp / "private/inner");
    chmod((root + "/private").c_str(), 0);
    const AsNobody nobody;
    Open(root);
    EXPECT_FALSE(HasNote());
    EXPECT_FALSE(Tree().ItemHasChildren(Item("private")));
    ClickFolder("private");
    EXPECT_EQ(List().CountRows(), 0u);
    EXPECT_TRUE(HasNote());
    ClickFolder("");
    EXPECT_TRUE(PumpUntil([&] { return !HasNote(); }));
}

TEST_F(UnusualFolders, OneThatIsNoneIsSaidToBe)
{
    WriteFile(temp / "file", "");
    frame = new GalleryFrame;
    EXPECT_EQ(frame->Start(root + "/gone"), wxString::FromUTF8(root + "/gone: No such file or directory"));
    ASSERT_TRUE(ShowAndSettle(frame));
    EXPECT_TRUE(HasNote());
    EXPECT_EQ(Tree().GetRootFolder(), fs::canonical(getenv("HOME")).native());
    Close();
    frame = new GalleryFrame;
    EXPECT_EQ(frame->Start(root + "/file"), wxString::FromUTF8(root + "/file: Not a directory"));
    ASSERT_TRUE(ShowAndSettle(frame));
}

TEST_F(UnusualFolders, SystemFoldersCanBeBrowsed)
{
    Open("/");
    for (const char* path : {"/proc", "/proc/1", "/dev", "/sys"}) {
        if (fs::is_empty(path))
            continue;  // this file system is not mounted, for example in a container
        Tree().SelectPath(path);
        ASSERT_TRUE(PumpUntil([&] { return Tree().GetSelectedPath() == path; })) << path;
        EXPECT_GT(List().CountRows(), 3u) << path;
    }
}

TEST_F(UnusualFolders, AHundredThousandEntriesAreShownInAMoment)
{
    fs::create_directory(temp / "many");
    for (int i = 0; i < 100000; ++i)
        WriteFile(temp / ("many/file" + std::to_string(i)), "");
    Open(root);
    const auto measure = [&](const char* what, const std::function<void()>& act, const std::function<bool()>& done) {
        const double seconds = ProcessorSeconds([&] {
            act();
            EXPECT_TRUE(PumpUntil(done, 60000)) << what;
            List().Update();
        });
        RecordProperty(what, std::to_string(seconds));
        EXPECT_LT(seconds, 8) << what;
    };
    measure(
        "seconds_to_show", [&] { Click(CentreOf(LabelRect(Tree(), Item("many")))); },
        [&] { return List().CountRows() == 100000; });
    EXPECT_EQ(List().GetEntry(99999).name, "file99999");
    measure(
        "seconds_to_reverse", [&] { Click(CentreOf(HeaderRect(List(), SortColumn::Name))); },
        [&] { return List().GetEntry(0).name == "file99999"; });
}

TEST_F(UnusualFolders, ALongChainIsOpened)
{
    std::string path = temp.Path();
    for (int level = 0; level < 100; ++level)
        path += "/d";
    fs::create_directories(path);
    Open(root);
    const std::string deepest = root + path.substr(temp.Path().size());
    Tree().SelectPath(deepest);
    ASSERT_TRUE(PumpUntil([&] { return Tree().GetSelectedPath() == deepest; }));
    OpenNextSession();
    EXPECT_EQ(Tree().GetSelectedPath(), deepest);
}

}  // namespace
