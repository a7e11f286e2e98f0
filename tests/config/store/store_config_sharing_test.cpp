// wxStoreConfig objects that share a store with other objects, with a batch or with other processes. Also a store that
// cannot be saved.

#include <fittings/config/store_config.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/filehistory.h>
#include <wx/init.h>

#include <fittings/platform/local_reg_store.h>
#include <tests/config/store/store_config_support.h>
#include <tests/support/file_status.h>
#include <tests/support/process/forked_work.h>

namespace {

wxString Key(int process, int update)
{
    return wxString::Format("/Process%d/k%d", process % 3, process * 100 + update);
}

template <typename... File>
void ExpectSixProcessesLoseNothing(const File&... file)
{
    InChildren(6, [&](int process) {
        wxStoreConfig config(file...);
        for (int update = 0; update < 40; ++update) {
            EXPECT_TRUE(config.Write(Key(process, update), update));
            EXPECT_TRUE(config.Write("/last", process));
            EXPECT_TRUE(config.Flush());
        }
    });
    const wxStoreConfig config(file...);
    int kept = 0;
    for (int process = 0; process < 6; ++process)
        for (int update = 0; update < 40; ++update)
            kept += config.Read(Key(process, update), -1L) == update;
    EXPECT_EQ(kept, 240);
}

TEST(SixProcesses, LoseNothingOfTheirTwoHundredAndFortyUpdatesOfTheDefaultStore)
{
    const UserDataInMemory data;
    ExpectSixProcessesLoseNothing();
    EXPECT_EQ(NamesIn(data.Path()), (std::vector<std::string>{"settings.ini", "settings.ini.lock"}));
}

TEST(SixProcesses, LoseNothingOfTheirTwoHundredAndFortyUpdatesOfANamedFile)
{
    const UserDataInMemory data;
    ExpectSixProcessesLoseNothing("shared.ini");
    EXPECT_EQ(NamesIn(data / "ui_config"), (std::vector<std::string>{"shared.ini", "shared.ini.lock"}));
}

TEST_F(StoreConfig, SeesWhatAnotherObjectSaves)
{
    wxStoreConfig other("test.ini");
    EXPECT_TRUE(m_config->Write("g/mine", "1"));
    EXPECT_TRUE(other.Write("g/theirs", "2"));
    EXPECT_FALSE(m_config->HasEntry("g/theirs"));
    EXPECT_TRUE(other.Flush());
    EXPECT_EQ(m_config->Read("g/theirs"), "2");
    EXPECT_EQ(m_config->Read("g/mine"), "1");
    EXPECT_FALSE(other.HasEntry("g/mine"));
    EXPECT_TRUE(m_config->Flush());
    EXPECT_EQ(Dump(other), "[g]\ntheirs=2\nmine=1\n");
}

TEST_F(StoreConfig, SavesItsOwnChangesAlone)
{
    Open("[g]\na=1\nb=1\nc=1\n");
    EXPECT_EQ(m_config->Read("g/b"), "1");
    EXPECT_TRUE(m_config->Write("g/a", "2"));
    EXPECT_TRUE(m_config->Write("g/c", "1"));
    WriteFile(Path(), "[g]\na=5\nb=5\nc=5\n[h]\nnew=1\n");
    EXPECT_EQ(m_config->Read("g/a"), "2");
    EXPECT_EQ(m_config->Read("g/b"), "5");
    EXPECT_TRUE(m_config->Flush());
    EXPECT_EQ(ReadFile(Path()), "[g]\na=2\nb=5\nc=5\n[h]\nnew=1\n");
}

TEST_F(StoreConfig, DeletesInAGroupWhatItKnewAlone)
{
    Open("[g]\na=1\n");
    EXPECT_TRUE(m_config->DeleteGroup("g"));
    WriteFile(Path(), "[g]\na=1\nb=2\n");
    EXPECT_EQ(Dump(*m_config), "[g]\nb=2\n");
    EXPECT_TRUE(m_config->Flush());
    EXPECT_EQ(ReadFile(Path()), "[g]\nb=2\n");
}

TEST_F(StoreConfig, StaysInAGroupThatAnotherDeletes)
{
    Open("[a/b]\nk=1\n");
    m_config->SetPath("a/b");
    // Do not make the file empty: for half a second, the store expects another program to fill an empty file.
    WriteFile(Path(), "[x]\n");
    EXPECT_FALSE(m_config->HasEntry("k"));
    EXPECT_EQ(m_config->GetPath(), "/a/b");
    EXPECT_TRUE(m_config->Write("k", "2"));
    EXPECT_TRUE(m_config->Flush());
    EXPECT_EQ(ReadFile(Path()), "[x]\n\n[a/b]\nk=2\n");
}

TEST_F(StoreConfig, StoresAnEqualTextInAFileThatAnotherHasEmptied)
{
    Open("[g]\na=1\nb=1\n");
    EXPECT_EQ(m_config->Read("g/a"), "1");
    WriteFile(Path(), "");
    EXPECT_TRUE(m_config->Write("g/a", "1"));
    EXPECT_TRUE(m_config->Flush());
    EXPECT_EQ(ReadFile(Path()), "[g]\na=1\n");
}

// The file's folder is renamed just after a read. For a moment, another read may examine only the open file, and not
// its path. The write must look up the path and notice that there is no file any more.
TEST_F(StoreConfig, StoresAnEqualTextInAFolderThatAnotherHasReplaced)
{
    Open("[g]\na=1\n");
    WaitPastStamp(Path());
    EXPECT_EQ(m_config->Read("g/a"), "1");
    EXPECT_EQ(m_config->Read("g/a"), "1");
    std::filesystem::rename(data / "ui_config", data / "earlier");
    EXPECT_TRUE(m_config->Write("g/a", "1"));
    EXPECT_TRUE(m_config->Flush());
    EXPECT_EQ(ReadFile(Path()), "[g]\na=1\n");
}

TEST_F(StoreConfig, WritesNothingWhenNothingChanges)
{
    EXPECT_TRUE(m_config->Flush());
    EXPECT_TRUE(NamesIn(data.Path()).empty());
    Open("[g]\na=1\n");
    EXPECT_TRUE(m_config->Write("g/a", "1"));
    EXPECT_TRUE(m_config->Flush());
    EXPECT_EQ(NamesIn(data / "ui_config"), std::vector<std::string>{"test.ini"});
}

TEST_F(StoreConfig, SavesWhenItEnds)
{
    EXPECT_TRUE(m_config->Write("g/a", "1"));
    m_config.reset();
    EXPECT_EQ(ReadFile(Path()), "[g]\na=1\n");
}

TEST_F(StoreConfig, KeepsWhatCouldNotBeSavedForTheNextTime)
{
    EXPECT_TRUE(m_config->Write("g/a", "1"));
    std::filesystem::create_directories(Path());
    EXPECT_FALSE(m_config->Flush());
    EXPECT_EQ(m_config->Read("g/a"), "1");
    EXPECT_TRUE(m_config->Write("g/b", "2"));
    EXPECT_FALSE(m_config->Flush());
    EXPECT_EQ(Dump(*m_config), "[g]\na=1\nb=2\n");
    std::filesystem::remove(Path());
    EXPECT_TRUE(m_config->Flush());
    EXPECT_EQ(ReadFile(Path()), "[g]\na=1\nb=2\n");
}

using TheDefaultStoreAsAConfig = UserDataTest;

TEST_F(TheDefaultStoreAsAConfig, HasWhatTheComponentsStore)
{
    EXPECT_TRUE(CLocalRegStore::WriteString(L"LastFiles", L"Report", L"/tmp/a.txt"));
    wxStoreConfig config;
    EXPECT_EQ(config.Read("/LastFiles/Report"), "/tmp/a.txt");
    EXPECT_TRUE(config.Write("/wxWindowState/Main", "1;2;300;400"));
    EXPECT_TRUE(config.Flush());
    EXPECT_EQ(Stored(L"wxWindowState", L"Main"), L"1;2;300;400");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"LastFiles", L"Report", L"b"));
    EXPECT_EQ(config.Read("/LastFiles/Report"), "b");
}

TEST_F(TheDefaultStoreAsAConfig, StoresAnEqualTextInAFileThatAnotherHasEmptied)
{
    EXPECT_TRUE(CLocalRegStore::WriteString(L"g", L"a", L"1"));
    wxStoreConfig config;
    EXPECT_EQ(config.Read("g/a"), "1");
    WriteFile(data / "settings.ini", "");
    EXPECT_TRUE(config.Write("g/a", "1"));
    EXPECT_TRUE(config.Flush());
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[g]\na=1\n");
}

TEST_F(TheDefaultStoreAsAConfig, IsPartOfTheThreadsBatch)
{
    wxStoreConfig config;
    EXPECT_TRUE(config.Write("g/before", "1"));
    {
        CLocalRegStore::Batch batch;
        EXPECT_TRUE(CLocalRegStore::WriteString(L"g", L"collected", L"2"));
        EXPECT_EQ(config.Read("g/collected"), "2");
        EXPECT_EQ(config.Read("g/before"), "1");
        EXPECT_TRUE(config.Write("g/inside", "3"));
        EXPECT_TRUE(config.Flush());
        EXPECT_EQ(Stored(L"g", L"inside"), L"3");
        EXPECT_TRUE(config.DeleteEntry("g/collected"));
        EXPECT_TRUE(config.Flush());
        EXPECT_EQ(Dump(config), "[g]\nbefore=1\ninside=3\n");
        EXPECT_EQ(CLocalRegStore::GetKeyNames(L"g"), (std::vector<std::wstring>{L"before", L"inside"}));
        EXPECT_TRUE(NamesIn(data.Path()).empty());
        EXPECT_TRUE(config.DeleteGroup("g"));
        EXPECT_TRUE(config.Flush());
        EXPECT_TRUE(CLocalRegStore::GetSectionNames().empty());
        EXPECT_TRUE(config.Write("h/k", "4"));
        EXPECT_TRUE(config.Flush());
        EXPECT_TRUE(batch.Save());
        EXPECT_EQ(ReadFile(data / "settings.ini"), "[h]\nk=4\n");
    }
    EXPECT_EQ(Dump(config), "[h]\nk=4\n");
}

TEST_F(TheDefaultStoreAsAConfig, LeavesItsChangesToTheBatchThatSavesThemLater)
{
    wxStoreConfig config;
    CLocalRegStore::Batch batch;
    EXPECT_TRUE(config.Write("g/k", "1"));
    EXPECT_TRUE(config.Flush());
    std::filesystem::create_directory(data / "settings.ini");
    EXPECT_FALSE(batch.Save());
    EXPECT_EQ(config.Read("g/k"), "1");
    std::filesystem::remove(data / "settings.ini");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"g", L"k", L"2"));
    // The batch now contains two changes of this key: first to 1, then to 2. The first one comes from the Flush()
    // above. If the Flush() below added it once more, the batch would store 1.
    EXPECT_TRUE(config.Flush());
    EXPECT_TRUE(batch.Save());
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[g]\nk=2\n");
}

TEST_F(TheDefaultStoreAsAConfig, MovesWithTheUserDataDirectory)
{
    wxStoreConfig config;
    EXPECT_TRUE(config.Write("g/k", "1"));
    EXPECT_TRUE(config.Flush());
    const TempUserData other;
    EXPECT_FALSE(config.HasEntry("g/k"));
}

TEST(TheToolkitsConfig, IsSavedWhenTheToolkitEnds)
{
    const TempUserData data;
    InChild([] {
        const wxInitializer toolkit;
        EXPECT_EQ(wxConfigBase::Set(new wxStoreConfig), nullptr);
        wxFileHistory history(3);
        history.AddFileToHistory("/tmp/a.txt");
        history.AddFileToHistory("/tmp/b.txt");
        history.Save(*wxConfigBase::Get());
    });
    wxStoreConfig config;
    wxFileHistory history(3);
    history.Load(config);
    ASSERT_EQ(history.GetCount(), 2U);
    EXPECT_EQ(history.GetHistoryFile(0), "/tmp/b.txt");
    EXPECT_EQ(history.GetHistoryFile(1), "/tmp/a.txt");
}

// This pointer is constructed before the store is first used, so it is destroyed after any static objects of the store.
// The store must still work at that time, because the wxStoreConfig object then saves its changes.
std::unique_ptr<wxStoreConfig> g_config;

TEST(AConfigThatOutlivesMain, IsSavedWhenTheProcessEnds)
{
    const TempUserData data;
    const pid_t child = fork();
    if (child == 0) {
        g_config = std::make_unique<wxStoreConfig>();
        g_config->Write("g/k", "v");
        std::exit(0);
    }
    EXPECT_TRUE(WaitForSuccess(child));
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[g]\nk=v\n");
}

}  // namespace
