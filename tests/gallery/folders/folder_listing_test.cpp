#include <gallery/folders/folder_listing.h>

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <tests/support/process/as_nobody.h>
#include <tests/support/temp_folder.h>

namespace {

using namespace gallery;
namespace fs = std::filesystem;

// Returns the entry with this name; fails the test if there is no such entry.
Entry Find(const Listing& listing, const std::string& name)
{
    for (const Entry& entry : listing.entries) {
        if (entry.name == name)
            return entry;
    }
    ADD_FAILURE() << "no entry " << name;
    return {};
}

std::vector<std::string> Names(const std::vector<Subfolder>& subfolders)
{
    std::vector<std::string> names;
    for (const Subfolder& subfolder : subfolders)
        names.push_back(subfolder.name);
    return names;
}

TEST(ReadFolder, DescribesEachKindOfEntry)
{
    TempFolder folder;
    WriteFile(folder / "photo.jpg", std::string(1234, 'x'));
    WriteFile(folder / "tool", "#!/bin/sh\n");
    chmod((folder / "tool").c_str(), 0755);
    WriteFile(folder / ".hidden", "");
    fs::create_directory(folder / "folder");
    fs::create_symlink("photo.jpg", folder / "link");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);

    const Listing listing = ReadFolder(folder.Path());
    EXPECT_EQ(listing.error, 0);
    EXPECT_EQ(listing.entries.size(), 6u);

    const Entry photo = Find(listing, "photo.jpg");
    EXPECT_EQ(photo.kind, EntryKind::File);
    EXPECT_EQ(photo.type, "JPG file");
    EXPECT_EQ(photo.size, 1234u);
    EXPECT_TRUE(photo.known);
    EXPECT_EQ(Find(listing, "tool").type, "Program");
    EXPECT_EQ(Find(listing, ".hidden").type, "File");
    EXPECT_EQ(Find(listing, "folder").kind, EntryKind::Folder);
    EXPECT_EQ(Find(listing, "folder").size, 0u);
    EXPECT_EQ(Find(listing, "link").kind, EntryKind::Link);
    EXPECT_EQ(Find(listing, "link").target, "photo.jpg");
    EXPECT_EQ(Find(listing, "link").size, 0u);
    EXPECT_EQ(Find(listing, "pipe").kind, EntryKind::Pipe);
    EXPECT_EQ(Find(listing, "pipe").type, "Pipe");
}

TEST(ReadFolder, KnowsSocketsAndDevices)
{
    TempFolder folder;
    const int handle = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    (folder / "socket").copy(address.sun_path, sizeof(address.sun_path) - 1);
    ASSERT_EQ(bind(handle, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    EXPECT_EQ(Find(ReadFolder(folder.Path()), "socket").kind, EntryKind::Socket);
    close(handle);
    EXPECT_EQ(Find(ReadFolder("/dev"), "null").kind, EntryKind::Device);
}

TEST(ReadFolder, TellsTheTimeOfALinkItself)
{
    TempFolder folder;
    fs::create_symlink("nowhere", folder / "link");
    const timespec times[] = {{1000000000, 0}, {1000000000, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, (folder / "link").c_str(), times, AT_SYMLINK_NOFOLLOW), 0);
    EXPECT_EQ(Find(ReadFolder(folder.Path()), "link").modified, 1000000000);
}

TEST(ReadFolder, ReadsTheProcessFileSystem)
{
    EXPECT_GT(ReadFolder("/proc/self").entries.size(), 20u);
}

TEST(ReadFolder, KeepsTheBytesOfAName)
{
    TempFolder folder;
    WriteFile(folder / "caf\xE9\xFF\n", "x");
    EXPECT_EQ(Find(ReadFolder(folder.Path()), "caf\xE9\xFF\n").size, 1u);
}

TEST(ReadFolder, SaysWhyThereIsNothing)
{
    TempFolder folder;
    WriteFile(folder / "file", "");
    EXPECT_EQ(ReadFolder(folder / "gone").error, ENOENT);
    EXPECT_EQ(ReadFolder(folder / "file").error, ENOTDIR);
    EXPECT_EQ(ReadFolder(folder / std::string(5000, 'x')).error, ENAMETOOLONG);
}

TEST(ReadFolder, SaysThatItMayNot)
{
    TempFolder folder;
    chmod(folder.Path().c_str(), 0755);
    fs::create_directory(folder / "private");
    chmod((folder / "private").c_str(), 0000);
    const AsNobody nobody;
    const Listing listing = ReadFolder(folder / "private");
    EXPECT_EQ(listing.error, EACCES);
    EXPECT_TRUE(listing.entries.empty());
}

// If a folder is readable but cannot be entered, the names of its entries are known, but their sizes are not.
TEST(ReadFolder, ListsWhatItCannotDescribe)
{
    TempFolder folder;
    chmod(folder.Path().c_str(), 0755);
    fs::create_directories(folder / "shut/inner");
    WriteFile(folder / "shut/file.txt", "abc");
    chmod((folder / "shut").c_str(), 0444);
    const AsNobody nobody;
    const Listing listing = ReadFolder(folder / "shut");
    EXPECT_EQ(listing.error, EACCES);
    EXPECT_EQ(listing.entries.size(), 2u);
    EXPECT_FALSE(Find(listing, "file.txt").known);
    EXPECT_EQ(Find(listing, "file.txt").kind, EntryKind::File);
    EXPECT_EQ(Find(listing, "file.txt").size, 0u);
    EXPECT_EQ(Find(listing, "inner").kind, EntryKind::Folder);
}

TEST(ReadSubfolders, LeavesLinksAndFilesOut)
{
    TempFolder folder;
    fs::create_directories(folder / "b/inner");
    fs::create_directory(folder / "a");
    fs::create_directory(folder / ".hidden");
    WriteFile(folder / "file", "");
    fs::create_symlink(".", folder / "circle");
    fs::create_symlink("b", folder / "link");
    EXPECT_EQ(Names(ReadSubfolders(folder.Path())), (std::vector<std::string>{".hidden", "a", "b"}));
}

TEST(ReadSubfolders, KnowWhetherTheyHaveFoldersThemselves)
{
    TempFolder folder;
    fs::create_directories(folder / "full/inner");
    fs::create_directory(folder / "links");
    fs::create_symlink("..", folder / "links/circle");
    const std::vector<Subfolder> subfolders = ReadSubfolders(folder.Path());
    ASSERT_EQ(Names(subfolders), (std::vector<std::string>{"full", "links"}));
    EXPECT_TRUE(subfolders[0].mayHaveSubfolders);
    EXPECT_FALSE(subfolders[1].mayHaveSubfolders);
}

TEST(ReadSubfolders, SayWhichCannotBeRead)
{
    TempFolder folder;
    chmod(folder.Path().c_str(), 0755);
    fs::create_directories(folder / "private/inner");
    chmod((folder / "private").c_str(), 0000);
    const AsNobody nobody;
    const std::vector<Subfolder> subfolders = ReadSubfolders(folder.Path());
    ASSERT_EQ(subfolders.size(), 1u);
    EXPECT_FALSE(subfolders[0].readable);
    EXPECT_FALSE(subfolders[0].mayHaveSubfolders);
}

TEST(ReadSubfolders, AreNoneWhereThereIsNoFolder)
{
    EXPECT_TRUE(ReadSubfolders("/no such folder").empty());
}

TEST(ResolveFolder, FollowsLinksAndDots)
{
    TempFolder folder;
    fs::create_directory(folder / "real");
    fs::create_symlink("real", folder / "link");
    const std::string real = fs::canonical(folder / "real").native();
    EXPECT_EQ(ResolveFolder(folder / "link/"), real);
    EXPECT_EQ(ResolveFolder(folder / "real/../real/."), real);
    EXPECT_EQ(ResolveFolder("/"), "/");
}

TEST(ResolveFolder, SaysWhatIsNoFolder)
{
    TempFolder folder;
    WriteFile(folder / "file", "");
    EXPECT_EQ(ResolveFolder(folder / "file"), "");
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_EQ(ResolveFolder(folder / "gone"), "");
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(ResolveFolder(""), "");
}

TEST(JoinPath, PutsOneSeparatorBetween)
{
    EXPECT_EQ(JoinPath("/usr", "share"), "/usr/share");
    EXPECT_EQ(JoinPath("/", "usr"), "/usr");
}

}  // namespace
