// Settings that an earlier version of a program stored with another configuration class.

#include <fittings/config/store_config.h>

#include <gtest/gtest.h>

#include <wx/fileconf.h>
#include <wx/sstream.h>

#include <tests/config/store/store_config_support.h>

namespace {

const char* const kEarlier = "rootkey=a value\n"
                             "path=C:\\\\new\\ttab\n"
                             "[Search]\n"
                             "Folder=$(HOME)/x\n"
                             "WholeWords=1\n"
                             "[View/Colours]\n"
                             "Line=\" black\"\n"
                             "[View/Empty]\n";

const char* const kTakenOver = "path=C:\\new\ttab\n"
                               "rootkey=a value\n"
                               "[Search]\n"
                               "Folder=$(HOME)/x\n"
                               "WholeWords=1\n"
                               "[View]\n"
                               "[View/Colours]\n"
                               "Line= black\n"
                               "[View/Empty]\n";

class AnImport : public StoreConfig
{
protected:
    AnImport() { m_config->SetExpandEnvVars(false); }

    wxStringInputStream m_stream{kEarlier};
    wxFileConfig m_old{m_stream};
};

TEST_F(AnImport, TakesOverAllGroupsAndEntries)
{
    EXPECT_TRUE(m_config->ImportFrom(m_old));
    EXPECT_EQ(Dump(*m_config), kTakenOver);
    wxStoreConfig other("test.ini");
    other.SetExpandEnvVars(false);
    EXPECT_EQ(Dump(other), kTakenOver);
}

TEST_F(AnImport, LeavesTheEarlierConfigurationAsItWas)
{
    m_old.SetPath("/View/Colours");
    m_old.SetRecordDefaults(true);
    EXPECT_TRUE(m_config->ImportFrom(m_old));
    EXPECT_EQ(m_old.GetPath(), "/View/Colours");
    EXPECT_TRUE(m_old.IsExpandingEnvVars());
    EXPECT_TRUE(m_old.IsRecordingDefaults());
    m_old.SetPath("/");
    m_old.SetExpandEnvVars(false);
    EXPECT_EQ(Dump(m_old), kTakenOver);
}

TEST_F(AnImport, KeepsWhatIsThereAlready)
{
    EXPECT_TRUE(m_config->Write("Search/WholeWords", false));
    EXPECT_TRUE(m_config->Write("Search/New", "x"));
    EXPECT_TRUE(m_config->ImportFrom(m_old));
    EXPECT_FALSE(m_config->ReadBool("Search/WholeWords", true));
    EXPECT_EQ(m_config->Read("Search/New"), "x");
    EXPECT_EQ(m_config->Read("Search/Folder"), "$(HOME)/x");
}

TEST_F(AnImport, HappensOnce)
{
    EXPECT_TRUE(m_config->ImportFrom(m_old));
    EXPECT_TRUE(m_config->DeleteEntry("rootkey"));
    EXPECT_TRUE(m_config->ImportFrom(m_old));
    EXPECT_FALSE(m_config->HasEntry("rootkey"));
    Reopen();
    EXPECT_TRUE(m_old.Write("Later", "1"));
    EXPECT_TRUE(m_config->ImportFrom(m_old));
    EXPECT_FALSE(m_config->HasEntry("rootkey"));
    EXPECT_FALSE(m_config->HasEntry("Later"));
    EXPECT_FALSE(m_config->HasGroup("wxStoreConfig"));
}

TEST_F(AnImport, SaysThatItCouldNotBeSavedAndIsTriedAgain)
{
    std::filesystem::create_directories(Path());
    EXPECT_FALSE(m_config->ImportFrom(m_old));
    EXPECT_EQ(m_config->Read("rootkey"), "a value");
    std::filesystem::remove(Path());
    EXPECT_TRUE(m_config->ImportFrom(m_old));
    Reopen();
    EXPECT_EQ(m_config->Read("rootkey"), "a value");
}

TEST_F(AnImport, FromItselfChangesNothing)
{
    EXPECT_TRUE(m_config->Write("g/k", "v"));
    EXPECT_TRUE(m_config->ImportFrom(*m_config));
    EXPECT_EQ(ReadFile(Path()), "[g]\nk=v\n");
    EXPECT_TRUE(m_config->ImportFrom(m_old));
    EXPECT_EQ(m_config->Read("rootkey"), "a value");
}

TEST_F(AnImport, TakesAnotherStoreToo)
{
    wxStoreConfig other("other.ini");
    EXPECT_TRUE(other.Write("g/k", "v"));
    EXPECT_TRUE(m_config->ImportFrom(other));
    EXPECT_EQ(Dump(*m_config), "[g]\nk=v\n");
    wxStoreConfig sameFile("test.ini");
    EXPECT_TRUE(m_config->ImportFrom(sameFile));
    EXPECT_EQ(Dump(*m_config), "[g]\nk=v\n");
}

}  // namespace
