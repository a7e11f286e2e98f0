// If HOME is not an absolute path, nothing is stored in the current folder.

#include <filesystem>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include <tests/support/process/child_process.h>
#include <tests/support/temp_folder.h>

namespace {

// Runs the probe in @a folder with @a home as HOME, and returns its output.
std::string SeenIn(const std::string& folder, const std::optional<std::string>& home, const std::string& registered,
                   const std::string& more = "", const std::optional<std::string>& dataHome = {})
{
    return RunChild({"/bin/sh", "-c", "cd \"$1\" && shift && exec \"$@\"", "sh", folder, HOME_PROBE, registered, more},
                    {{"HOME", home}, {"XDG_DATA_HOME", dataHome}});
}

std::string Below(const std::string& home)
{
    return home + "/.local/share/Ledger\n" + home + "/Ledger/Samples\n";
}

using HomeThatIsNoFolder = testing::TestWithParam<const char*>;

TEST_P(HomeThatIsNoFolder, GivesWayToTheRegisteredOne)
{
    const TempFolder here;
    const TempFolder home;
    EXPECT_EQ(SeenIn(here.Path(), GetParam(), home.Path(), "store"), Below(home.Path()));
    EXPECT_TRUE(std::filesystem::is_empty(here.Path())) << "something is stored in the current folder";
    EXPECT_EQ(ReadFile(home / ".local/share/Ledger/settings.ini"), "[Section]\nKey=value\n");
}

TEST_P(HomeThatIsNoFolder, GivesWayToTheRootWhereNoneIsRegistered)
{
    const TempFolder here;
    for (const char* const registered : {"none", "", "relative", "./home"})
        EXPECT_EQ(SeenIn(here.Path(), GetParam(), registered), "/.local/share/Ledger\n/Ledger/Samples\n") << registered;
}

TEST_P(HomeThatIsNoFolder, DoesNotMatterToADataHome)
{
    const TempFolder here;
    const TempFolder data;
    const std::string seen = SeenIn(here.Path(), GetParam(), "/home/ann", "store", data.Path());
    EXPECT_EQ(seen, data.Path() + "/Ledger\n/home/ann/Ledger/Samples\n");
    EXPECT_EQ(ReadFile(data / "Ledger/settings.ini"), "[Section]\nKey=value\n");
    EXPECT_TRUE(std::filesystem::is_empty(here.Path()));
}

TEST_P(HomeThatIsNoFolder, GivesWayUnderARelativeDataHomeToo)
{
    const TempFolder here;
    EXPECT_EQ(SeenIn(here.Path(), GetParam(), "/home/ann", "", "data"), Below("/home/ann"));
}

// The file that names the documents folder must not be read from the current folder. Without that file, the home folder
// is the documents folder.
TEST_P(HomeThatIsNoFolder, HasNoDocuments)
{
    const TempFolder here;
    for (const std::string folder : {"", "relative/"}) {
        std::filesystem::create_directories(here / (folder + ".config"));
        WriteFile(here / (folder + ".config/user-dirs.dirs"), "XDG_DOCUMENTS_DIR=\"$HOME/Documents\"\n");
    }
    EXPECT_EQ(SeenIn(here.Path(), GetParam(), "/home/ann"), Below("/home/ann"));
}

INSTANTIATE_TEST_SUITE_P(, HomeThatIsNoFolder, testing::Values("", "relative", "./relative", ".", "~"));

TEST(HomeThatIsAFolder, IsTakenBeforeTheRegisteredOne)
{
    const TempFolder here;
    EXPECT_EQ(SeenIn(here.Path(), "/srv/ann", "/home/ann"), Below("/srv/ann"));
}

}  // namespace
