#include <gallery/folders/folder_size.h>

#include <filesystem>
#include <map>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <tests/gallery/folders/listed_size.h>
#include <tests/support/process/as_nobody.h>
#include <tests/support/temp_folder.h>

namespace {

using namespace gallery;
namespace fs = std::filesystem;

// Records the reports of a walk, and ends the walk after a number of items.
class Notes : public SizeObserver
{
public:
    void OnSubfolder(const std::string& name, const FolderSum& sum) override { subfolders[name] = sum; }

    bool OnProgress(const FolderSum& soFar, double fraction) override
    {
        EXPECT_GE(fraction, last);
        EXPECT_LE(fraction, 1 + 1e-9);
        last = fraction;
        ++calls;
        return soFar.items < most;
    }

    std::map<std::string, FolderSum> subfolders;
    double last = 0;
    int calls = 0;
    std::uint64_t most = UINT64_MAX;  // The number of items after which the walk ends.
};

FolderSum Sum(const std::string& path)
{
    Notes notes;
    return SumFolder(path, notes);
}

std::uint64_t OwnSize(const std::string& path)
{
    struct stat status;
    EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
    return static_cast<std::uint64_t>(status.st_size);
}

// Makes @a levels folders named "d" below @a path, each inside the previous one. Each folder contains a file of one
// byte. The path of the last folder may be too long for the system.
void MakeChain(const std::string& path, int levels)
{
    int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < levels; ++i) {
        ASSERT_EQ(mkdirat(folder, "d", 0755), 0);
        const int next = openat(folder, "d", O_RDONLY | O_DIRECTORY);
        close(folder);
        folder = next;
        const int file = openat(folder, "f", O_WRONLY | O_CREAT, 0644);
        ASSERT_EQ(write(file, "x", 1), 1);
        close(file);
    }
    close(folder);
}

class FewDescriptors
{
public:
    FewDescriptors()
    {
        getrlimit(RLIMIT_NOFILE, &m_earlier);
        const rlimit few{96, m_earlier.rlim_max};
        setrlimit(RLIMIT_NOFILE, &few);
    }
    ~FewDescriptors() { setrlimit(RLIMIT_NOFILE, &m_earlier); }

private:
    rlimit m_earlier{};
};

TEST(SumFolder, AddsUpEverythingBelowAndTheFoldersThemselves)
{
    TempFolder folder;
    fs::create_directories(folder / "a/b");
    WriteFile(folder / "one", std::string(1000, 'x'));
    WriteFile(folder / "a/two", std::string(200, 'x'));
    WriteFile(folder / "a/b/three", std::string(30, 'x'));
    fs::create_symlink("twelve bytes", folder / "a/link");
    const FolderSum sum = Sum(folder.Path());
    const std::uint64_t folders = OwnSize(folder.Path()) + OwnSize(folder / "a") + OwnSize(folder / "a/b");
    EXPECT_EQ(sum.bytes, 1000 + 200 + 30 + 12 + folders);
    EXPECT_EQ(sum.items, 7u);
    EXPECT_EQ(sum.unreadable, 0u);
    EXPECT_EQ(sum.bytes, ListedSize(folder.Path()));
}

TEST(SumFolder, AnEmptyFolderIsItself)
{
    TempFolder folder;
    Notes notes;
    const FolderSum sum = SumFolder(folder.Path(), notes);
    EXPECT_EQ(sum.bytes, OwnSize(folder.Path()));
    EXPECT_EQ(sum.items, 1u);
    EXPECT_TRUE(notes.subfolders.empty());
}

TEST(SumFolder, TellsTheSumOfEachFolderRightInIt)
{
    TempFolder folder;
    fs::create_directories(folder / "a/deep/deeper");
    fs::create_directory(folder / "empty");
    WriteFile(folder / "beside", std::string(5000, 'x'));
    WriteFile(folder / "a/one", std::string(700, 'x'));
    WriteFile(folder / "a/deep/deeper/two", std::string(80, 'x'));
    Notes notes;
    SumFolder(folder.Path(), notes);
    ASSERT_EQ(notes.subfolders.size(), 2u);
    const FolderSum a = notes.subfolders["a"];
    EXPECT_EQ(a.bytes, 780 + OwnSize(folder / "a") + OwnSize(folder / "a/deep") + OwnSize(folder / "a/deep/deeper"));
    EXPECT_EQ(a.items, 5u);
    EXPECT_EQ(a.bytes, ListedSize(folder / "a"));
    EXPECT_EQ(notes.subfolders["empty"].bytes, OwnSize(folder / "empty"));
    EXPECT_EQ(notes.subfolders["empty"].items, 1u);
}

TEST(SumFolder, CountsAFileWithSeveralNamesOnce)
{
    TempFolder folder;
    fs::create_directories(folder / "a");
    fs::create_directories(folder / "b");
    WriteFile(folder / "a/file", std::string(100000, 'x'));
    fs::create_hard_link(folder / "a/file", folder / "a/again");
    fs::create_hard_link(folder / "a/file", folder / "b/elsewhere");
    Notes notes;
    const FolderSum sum = SumFolder(folder.Path(), notes);
    EXPECT_EQ(sum.bytes, 100000 + OwnSize(folder.Path()) + OwnSize(folder / "a") + OwnSize(folder / "b"));
    EXPECT_EQ(sum.items, 6u);
    EXPECT_EQ(sum.bytes, ListedSize(folder.Path()));
    EXPECT_EQ(notes.subfolders["a"].bytes + notes.subfolders["b"].bytes + OwnSize(folder.Path()), sum.bytes);
}

TEST(SumFolder, AHoleCountsAsWhatCanBeRead)
{
    TempFolder folder;
    WriteFile(folder / "sparse", "");
    ASSERT_EQ(truncate((folder / "sparse").c_str(), 1LL << 40), 0);
    EXPECT_EQ(Sum(folder.Path()).bytes, (1ULL << 40) + OwnSize(folder.Path()));
}

TEST(SumFolder, LinksAreNotFollowed)
{
    TempFolder folder;
    fs::create_directory(folder / "a");
    WriteFile(folder / "a/file", std::string(100000, 'x'));
    fs::create_directory(folder / "b");
    fs::create_symlink("../a", folder / "b/link");
    fs::create_symlink("..", folder / "b/circle");
    EXPECT_EQ(Sum(folder / "b").bytes, OwnSize(folder / "b") + 4 + 2);
}

TEST(SumFolder, CountsWhatCannotBeRead)
{
    TempFolder folder;
    chmod(folder.Path().c_str(), 0755);
    fs::create_directories(folder / "closed/in");
    fs::create_directories(folder / "names-only/in");
    WriteFile(folder / "open", "12345");
    chmod((folder / "closed").c_str(), 0);
    chmod((folder / "names-only").c_str(), 0444);
    const AsNobody asNobody;
    Notes notes;
    const FolderSum sum = SumFolder(folder.Path(), notes);
    EXPECT_EQ(sum.unreadable, 2u);
    EXPECT_EQ(sum.items, 5u);  // "names-only/in" is counted, but its size is unknown
    EXPECT_EQ(sum.bytes, 5 + OwnSize(folder.Path()) + OwnSize(folder / "closed") + OwnSize(folder / "names-only"));
    EXPECT_EQ(notes.subfolders["closed"].unreadable, 1u);
    EXPECT_EQ(notes.subfolders["names-only"].unreadable, 1u);
    EXPECT_EQ(notes.last, 1.0);
}

TEST(SumFolder, AFolderThatIsGoneIsOneUnreadableItem)
{
    const FolderSum sum = Sum("/nonexistent/folder");
    EXPECT_EQ(sum.items, 1u);
    EXPECT_EQ(sum.unreadable, 1u);
    EXPECT_EQ(sum.bytes, 0u);
}

TEST(SumFolder, GoesDeeperThanPathsAndDescriptorsReach)
{
    TempFolder folder;
    fs::create_directory(folder / "a");
    fs::create_directory(folder / "b");
    MakeChain(folder / "a", 3000);
    MakeChain(folder / "b", 70);
    const std::uint64_t expected = ListedSize(folder.Path());
    const FewDescriptors few;
    const FolderSum sum = Sum(folder.Path());
    EXPECT_EQ(sum.unreadable, 0u);
    EXPECT_EQ(sum.items, 3u + 2 * 3070u);
    EXPECT_EQ(sum.bytes, expected);
}

TEST(SumFolder, ComesBackToEveryFolderOnTheWayUp)
{
    TempFolder folder;
    std::string path = folder.Path();
    for (int i = 0; i < 150; ++i) {
        for (const char* name : {"/a", "/m", "/z"})
            fs::create_directory(path + name);
        WriteFile(path + "/a/file", "x");
        WriteFile(path + "/z/file", "x");
        path += "/m";
    }
    const FolderSum sum = Sum(folder.Path());
    EXPECT_EQ(sum.unreadable, 0u);
    EXPECT_EQ(sum.items, 1u + 150u * 5);
    EXPECT_EQ(sum.bytes, ListedSize(folder.Path()));
}

// Moves a part of each of two chains after 200 items. The walk is then about 100 levels deep in one of the chains, and
// has not entered the other one.
class Mover : public Notes
{
public:
    explicit Mover(const TempFolder& folder) : m_folder(folder) {}

    bool OnProgress(const FolderSum& soFar, double fraction) override
    {
        if (soFar.items == 200) {
            for (const std::string name : {"a", "b"})
                fs::rename(m_folder / ("top/" + name + "/d/d/d"), m_folder / ("elsewhere/1/2/" + name + "/d"));
        }
        return Notes::OnProgress(soFar, fraction);
    }

private:
    const TempFolder& m_folder;
};

// The walk closes "top" on the way down to save descriptors, and looks for it on the way back, four levels above the
// part that was moved. The folder there is now "elsewhere", whose subfolders have the same names. The walk must not go
// on in "elsewhere". It cannot reach "top" again, so it counts the chain that it has not entered as unreadable.
TEST(SumFolder, AFolderMovedAwayDuringTheWalkLeadsToNoOtherFolder)
{
    TempFolder folder;
    for (const char* const name : {"a", "b"}) {
        fs::create_directories(folder / ("elsewhere/1/2/" + std::string(name)));
        fs::create_directories(folder / ("elsewhere/" + std::string(name) + "/more"));
        fs::create_directories(folder / ("top/" + std::string(name)));
        MakeChain(folder / ("top/" + std::string(name)), 150);
    }
    Mover mover(folder);
    const FolderSum sum = SumFolder(folder / "top", mover);
    EXPECT_EQ(sum.items, 3u + 2 * 150u) << "top, a and b, and the folders and files of one chain";
    EXPECT_EQ(sum.unreadable, 1u) << "the other chain";
    EXPECT_EQ(mover.last, 1.0);
}

TEST(SumFolder, ProgressEndsAtOneAndComesAfterEachItem)
{
    TempFolder folder;
    for (int i = 0; i < 7; ++i) {
        fs::create_directories(folder / (std::to_string(i) + "/x/y"));
        WriteFile(folder / (std::to_string(i) + "/x/file"), "");
    }
    Notes notes;
    const FolderSum sum = SumFolder(folder.Path(), notes);
    EXPECT_EQ(notes.last, 1.0);
    EXPECT_GE(notes.calls, static_cast<int>(sum.items));
}

TEST(SumFolder, EndsWithTheItemAfterWhichItIsToldTo)
{
    TempFolder folder;
    for (int i = 0; i < 20; ++i)
        fs::create_directories(folder / (std::to_string(i) + "/x"));
    for (const std::uint64_t most : {1u, 2u, 20u, 25u, 41u}) {
        Notes notes;
        notes.most = most;
        EXPECT_EQ(SumFolder(folder.Path(), notes).items, most);
    }
}

}  // namespace
