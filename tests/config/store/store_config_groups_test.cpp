// Groups, entries and paths. Includes wxWidgets' own tests of wxFileConfig, except the tests of the file itself.

#include <fittings/config/store_config.h>

#include <vector>

#include <gtest/gtest.h>

#include <tests/config/store/store_config_support.h>

namespace {

using Names = std::vector<wxString>;

const char* const kText = "[root]\n"
                          "entry=value\n"
                          "[root/group1]\n"
                          "[root/group1/subgroup]\n"
                          "subentry=subvalue\n"
                          "subentry2=subvalue2\n"
                          "[root/group2]\n";

class FileWithGroups : public StoreConfig
{
protected:
    FileWithGroups() { Open(kText); }

    wxString ChangedPath(const wxString& path)
    {
        m_config->SetPath(path);
        return m_config->GetPath();
    }

    void ExpectEntries(const wxString& path, const Names& names)
    {
        const wxConfigPathChanger change(m_config.get(), path + "/");
        EXPECT_EQ(m_config->GetNumberOfEntries(), names.size());
        EXPECT_EQ(EntryNames(*m_config), names);
    }

    void ExpectGroups(const wxString& path, const Names& names)
    {
        const wxConfigPathChanger change(m_config.get(), path + "/");
        EXPECT_EQ(m_config->GetNumberOfGroups(), names.size());
        EXPECT_EQ(GroupNames(*m_config), names);
    }
};

TEST_F(FileWithGroups, IsReadAsItStands)
{
    ExpectContents(kText);
    EXPECT_EQ(ReadFile(Path()), kText);
}

TEST_F(FileWithGroups, HasPaths)
{
    EXPECT_EQ(ChangedPath(""), "");
    EXPECT_EQ(ChangedPath("/"), "");
    EXPECT_EQ(ChangedPath("root"), "/root");
    EXPECT_EQ(ChangedPath("/root"), "/root");
    EXPECT_EQ(ChangedPath("/root/group1/subgroup"), "/root/group1/subgroup");
    EXPECT_EQ(ChangedPath("/root/group2"), "/root/group2");
    EXPECT_EQ(ChangedPath(".."), "/root");
    EXPECT_EQ(ChangedPath("group1/../group2"), "/root/group2");
    EXPECT_EQ(ChangedPath("//root//group1/./"), "/root/group1");
    EXPECT_EQ(ChangedPath("../../"), "");
}

TEST_F(FileWithGroups, NamesItsEntries)
{
    ExpectEntries("", {});
    ExpectEntries("/root", {"entry"});
    ExpectEntries("/root/group1", {});
    ExpectEntries("/root/group1/subgroup", {"subentry", "subentry2"});
}

TEST_F(FileWithGroups, NamesItsGroups)
{
    ExpectGroups("", {"root"});
    ExpectGroups("/root", {"group1", "group2"});
    ExpectGroups("/root/group1", {"subgroup"});
    ExpectGroups("/root/group2", {});
}

TEST_F(FileWithGroups, CountsAllThatAGroupHolds)
{
    EXPECT_EQ(m_config->GetNumberOfEntries(true), 3U);
    EXPECT_EQ(m_config->GetNumberOfGroups(true), 4U);
    m_config->SetPath("root/group1");
    EXPECT_EQ(m_config->GetNumberOfEntries(true), 2U);
    EXPECT_EQ(m_config->GetNumberOfGroups(true), 1U);
}

TEST_F(FileWithGroups, KnowsItsEntries)
{
    for (const char* const name :
         {"root/entry", "/root/entry", "root/group1/subgroup/subentry", "root/group2/../entry"})
        EXPECT_TRUE(m_config->HasEntry(name)) << name;
    for (const char* const name : {"root", "", "root/group1", "subgroup/subentry", "/root/no_such_group/entry"})
        EXPECT_FALSE(m_config->HasEntry(name)) << name;
    EXPECT_FALSE(m_config->HasGroup("/root/no_such_group"));
    EXPECT_TRUE(m_config->Exists("root/entry"));
    EXPECT_TRUE(m_config->Exists("root/group2"));
}

TEST_F(FileWithGroups, KnowsItsGroups)
{
    for (const char* const name : {"root", "root/group1", "root/group1/subgroup", "root/group2"})
        EXPECT_TRUE(m_config->HasGroup(name)) << name;
    for (const char* const name : {"", "root/group", "root//subgroup", "foot/subgroup", "foot"})
        EXPECT_FALSE(m_config->HasGroup(name)) << name;
}

TEST_F(FileWithGroups, ToldApartByCase)
{
    EXPECT_FALSE(m_config->HasGroup("Root"));
    EXPECT_FALSE(m_config->HasEntry("root/Entry"));
    EXPECT_TRUE(m_config->Write("root/Entry", "other"));
    EXPECT_EQ(m_config->Read("root/entry"), "value");
}

TEST_F(FileWithGroups, GetNoGroupByReading)
{
    wxString text;
    EXPECT_FALSE(m_config->Read("new/group/entry", &text));
    EXPECT_FALSE(m_config->HasGroup("new"));
    m_config->SetPath("new/group");
    EXPECT_TRUE(m_config->HasGroup("/new/group"));
    m_config->SetPath("/");
    EXPECT_TRUE(m_config->HasGroup("/new/group"));
    EXPECT_EQ(Saved(), kText);
}

TEST_F(FileWithGroups, DeletesAnEntryAndThenItsGroup)
{
    EXPECT_FALSE(m_config->DeleteEntry("foo"));
    EXPECT_TRUE(m_config->DeleteEntry("root/group1/subgroup/subentry"));
    EXPECT_EQ(Dump(*m_config), "[root]\nentry=value\n[root/group1]\n[root/group1/subgroup]\nsubentry2=subvalue2\n"
                               "[root/group2]\n");
    {
        const wxConfigPathChanger change(m_config.get(), "root/group1/subgroup/subentry2");
        EXPECT_TRUE(m_config->DeleteEntry("subentry2"));
        EXPECT_EQ(m_config->GetPath(), "/root/group1");
    }
    ExpectContents("[root]\nentry=value\n[root/group1]\n[root/group2]\n");
}

TEST_F(FileWithGroups, KeepsAnEmptyGroupWhereThatIsAskedFor)
{
    EXPECT_TRUE(m_config->DeleteEntry("root/group1/subgroup/subentry", false));
    EXPECT_TRUE(m_config->DeleteEntry("root/group1/subgroup/subentry2", false));
    EXPECT_TRUE(m_config->HasGroup("root/group1/subgroup"));
    EXPECT_EQ(Saved(), "[root]\nentry=value\n[root/group1]\n[root/group1/subgroup]\n[root/group2]\n");
}

TEST_F(FileWithGroups, DeletesGroups)
{
    EXPECT_FALSE(m_config->DeleteGroup("foo"));
    EXPECT_FALSE(m_config->DeleteGroup(""));
    EXPECT_FALSE(m_config->DeleteGroup("/"));
    EXPECT_TRUE(m_config->DeleteGroup("root/group1"));
    EXPECT_EQ(Saved(), "[root]\nentry=value\n[root/group2]\n");
    EXPECT_TRUE(m_config->DeleteGroup("root/group2/"));
    EXPECT_EQ(Saved(), "[root]\nentry=value\n");
    EXPECT_TRUE(m_config->DeleteGroup("root"));
    ExpectContents("");
    EXPECT_EQ(ReadFile(Path()), "");
}

TEST_F(FileWithGroups, LeavesAGroupThatIsDeleted)
{
    m_config->SetPath("root/group1/subgroup");
    EXPECT_TRUE(m_config->DeleteGroup("/root/group1"));
    EXPECT_EQ(m_config->GetPath(), "/root");
    EXPECT_EQ(EntryNames(*m_config), Names{"entry"});
}

TEST_F(FileWithGroups, DeletesAll)
{
    m_config->SetPath("root");
    EXPECT_TRUE(m_config->DeleteAll());
    EXPECT_EQ(m_config->GetPath(), "");
    ExpectContents("");

    wxStoreConfig other("test.ini");
    EXPECT_TRUE(other.Write("/new", "1"));
    EXPECT_TRUE(other.Flush());
    EXPECT_EQ(m_config->Read("new"), "1");
}

TEST_F(FileWithGroups, RenamesEntries)
{
    m_config->SetPath("root");
    EXPECT_TRUE(m_config->RenameEntry("entry", "newname"));
    m_config->SetPath("group1/subgroup");
    EXPECT_FALSE(m_config->RenameEntry("entry", "newname"));
    EXPECT_FALSE(m_config->RenameEntry("subentry", "subentry2"));
    EXPECT_FALSE(m_config->RenameEntry("subentry", ""));
    EXPECT_FALSE(m_config->RenameEntry("subentry", "a/b"));
    EXPECT_TRUE(m_config->RenameEntry("subentry", "subentry1"));
    m_config->SetPath("/");
    ExpectContents("[root]\nnewname=value\n[root/group1]\n[root/group1/subgroup]\nsubentry2=subvalue2\n"
                   "subentry1=subvalue\n[root/group2]\n");
}

TEST_F(FileWithGroups, RenamesGroups)
{
    EXPECT_TRUE(m_config->RenameGroup("root", "foot"));
    EXPECT_EQ(Saved(), "[foot]\nentry=value\n[foot/group1]\n[foot/group1/subgroup]\nsubentry=subvalue\n"
                       "subentry2=subvalue2\n[foot/group2]\n");
    EXPECT_FALSE(m_config->RenameGroup("foot/group1", "group2"));
    EXPECT_FALSE(m_config->RenameGroup("foot", "a/b"));
    EXPECT_FALSE(m_config->RenameGroup("foot", ""));
    EXPECT_FALSE(m_config->RenameGroup("foot", ".."));
    m_config->SetPath("foot");
    EXPECT_FALSE(m_config->RenameGroup("group1", "group2"));

    const wxString one =
        "[foot]\nentry=value\n[foot/group1]\n[foot/group2]\n[foot/group2/subgroup]\nsubentry=subvalue\n"
        "subentry2=subvalue2\n";
    EXPECT_TRUE(m_config->RenameGroup("group1", "groupTmp"));
    EXPECT_TRUE(m_config->RenameGroup("group2", "group1"));
    EXPECT_TRUE(m_config->RenameGroup("groupTmp", "group2"));
    EXPECT_EQ(Saved(), one);
    EXPECT_TRUE(m_config->RenameGroup("group1", "groupTmp"));
    EXPECT_TRUE(m_config->RenameGroup("group2", "group1"));
    EXPECT_TRUE(m_config->RenameGroup("groupTmp", "group2"));
    EXPECT_EQ(Saved(), "[foot]\nentry=value\n[foot/group1]\n[foot/group1/subgroup]\nsubentry=subvalue\n"
                       "subentry2=subvalue2\n[foot/group2]\n");
}

TEST_F(StoreConfig, AddsEntries)
{
    EXPECT_EQ(Dump(*m_config), "");
    EXPECT_TRUE(m_config->Write("/Foo", "foo"));
    EXPECT_EQ(Dump(*m_config), "Foo=foo\n");
    EXPECT_TRUE(m_config->Write("/Bar/Baz", "baz"));
    ExpectContents("Foo=foo\n[Bar]\nBaz=baz\n");
    EXPECT_EQ(ReadFile(Path()), "[%]\nFoo=foo\n\n[Bar]\nBaz=baz\n");

    EXPECT_TRUE(m_config->DeleteAll());
    EXPECT_EQ(Dump(*m_config), "");
    EXPECT_TRUE(m_config->Write("/Bar/Baz", "baz"));
    EXPECT_EQ(Dump(*m_config), "[Bar]\nBaz=baz\n");
    EXPECT_TRUE(m_config->Write("/Foo", "foo"));
    ExpectContents("Foo=foo\n[Bar]\nBaz=baz\n");
}

TEST_F(StoreConfig, WritesAnEntryAgainThatWasDeleted)
{
    Open("[root/group1]\nsubentry=subvalue\nsubentry2=subvalue2\nsubentry3=subvalue3\n");
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(m_config->DeleteEntry("/root/group1/subentry2"));
        EXPECT_TRUE(m_config->Write("/root/group1/subentry2", "testvalue"));
        EXPECT_EQ(m_config->DeleteEntry("/root/group2/subentry2"), round == 1);
        EXPECT_TRUE(m_config->Write("/root/group2/subentry2", "testvalue2"));
    }
    EXPECT_EQ(Dump(*m_config), "[root]\n[root/group1]\nsubentry=subvalue\nsubentry3=subvalue3\nsubentry2=testvalue\n"
                               "[root/group2]\nsubentry2=testvalue2\n");
    EXPECT_TRUE(m_config->DeleteEntry("/root/group2/subentry2"));
    EXPECT_EQ(Dump(*m_config), "[root]\n[root/group1]\nsubentry=subvalue\nsubentry3=subvalue3\nsubentry2=testvalue\n");
    for (const char* const name : {"subentry2", "subentry", "subentry3"})
        EXPECT_TRUE(m_config->DeleteEntry(wxString("/root/group1/") + name));
    EXPECT_EQ(Saved(), "");
    EXPECT_EQ(ReadFile(Path()), "");
}

TEST_F(StoreConfig, WritesTheLastEntryOfTheRootAgain)
{
    EXPECT_TRUE(m_config->Write("key", "value"));
    EXPECT_EQ(Saved(), "key=value\n");
    EXPECT_TRUE(m_config->DeleteEntry("key"));
    EXPECT_EQ(Saved(), "");
    EXPECT_TRUE(m_config->Write("key", "value"));
    EXPECT_EQ(Saved(), "key=value\n");
}

TEST_F(StoreConfig, AddsAGroupBeforeAndAfterEntries)
{
    EXPECT_TRUE(m_config->Write("sub/sub_first", "sub_one"));
    EXPECT_TRUE(m_config->Write("first", "one"));
    EXPECT_TRUE(m_config->Write("second", "two"));
    EXPECT_TRUE(m_config->Write("other/first", "one"));
    ExpectContents("first=one\nsecond=two\n[sub]\nsub_first=sub_one\n[other]\nfirst=one\n");
}

TEST_F(StoreConfig, DeletesTheLastGroupOfAFile)
{
    for (int round = 0; round < 2; ++round) {
        Reopen();
        EXPECT_EQ(m_config->Exists("/root"), round == 1);
        EXPECT_EQ(m_config->DeleteGroup("/root"), round == 1);
        EXPECT_EQ(m_config->GetNumberOfEntries(true), 0U);
        EXPECT_EQ(m_config->GetNumberOfGroups(true), 0U);
        EXPECT_TRUE(m_config->Write("/root/entry", "value"));
    }
    EXPECT_EQ(Saved(), "[root]\nentry=value\n");
}

TEST_F(StoreConfig, MakesAGroupAgainThatWasDeleted)
{
    Open("[First]\nValue1=Foo\n[Second]\nValue2=Bar\n");
    EXPECT_TRUE(m_config->DeleteGroup("Second"));
    EXPECT_EQ(Dump(*m_config), "[First]\nValue1=Foo\n");
    EXPECT_TRUE(m_config->Write("Second/Value2", "New"));
    ExpectContents("[First]\nValue1=Foo\n[Second]\nValue2=New\n");
}

TEST_F(StoreConfig, AddsToTheRootBesideGroups)
{
    Open("[Group]\nvalue1=foo\n");
    EXPECT_TRUE(m_config->Write("/value1", "bar"));
    ExpectContents("value1=bar\n[Group]\nvalue1=foo\n");
}

TEST_F(StoreConfig, StoresAGroupWithoutEntries)
{
    EXPECT_TRUE(m_config->Write("empty/inner/", ""));
    EXPECT_EQ(Saved(), "[empty]\n[empty/inner]\n");
    EXPECT_EQ(ReadFile(Path()), "[empty/inner]\n");
    EXPECT_TRUE(m_config->DeleteGroup("empty"));
    EXPECT_EQ(Saved(), "");
}

TEST_F(StoreConfig, StoresAGroupWithoutEntriesAfterAnotherHasSaved)
{
    EXPECT_TRUE(m_config->Write("/empty/", ""));
    wxStoreConfig other("test.ini");
    EXPECT_TRUE(other.Write("/theirs/k", "1"));
    EXPECT_TRUE(other.Flush());
    EXPECT_TRUE(m_config->HasGroup("/theirs"));
    EXPECT_EQ(Saved(), "[theirs]\nk=1\n[empty]\n");
}

TEST_F(StoreConfig, StoresAGroupThatHasLostItsEntries)
{
    EXPECT_TRUE(m_config->Write("/a/k", "1"));
    EXPECT_TRUE(m_config->DeleteEntry("/a/k", false));
    EXPECT_TRUE(m_config->Write("/a/", ""));
    EXPECT_TRUE(m_config->Write("/b/k", "1"));
    EXPECT_TRUE(m_config->DeleteEntry("/b/k", false));
    EXPECT_EQ(Saved(), "[a]\n[b]\n");
}

TEST_F(StoreConfig, StoresAGroupAgainThatAnotherHasDeleted)
{
    EXPECT_TRUE(m_config->Write("/a/k", "1"));
    EXPECT_EQ(Saved(), "[a]\nk=1\n");
    wxStoreConfig other("test.ini");
    EXPECT_TRUE(other.DeleteGroup("/a"));
    EXPECT_TRUE(other.Flush());
    EXPECT_TRUE(m_config->Write("/a/", ""));
    EXPECT_EQ(Saved(), "[a]\n");
}

TEST_F(StoreConfig, FindsNoEntryOfAnotherGroup)
{
    Open("[%]\ncommunity=censored\n[City1]\nURL=www.fake1.na\n[City1/A1]\n[City1/A1/1]\nIP=192.168.1.66\n"
         "URL=www.fake2.na\n");
    wxString url;
    EXPECT_FALSE(m_config->Read("URL", &url));
    EXPECT_EQ(m_config->Read("community"), "censored");
}

TEST_F(StoreConfig, OfAnEmptyFileIsEmpty)
{
    Open("");
    EXPECT_EQ(Dump(*m_config), "");
}

TEST_F(StoreConfig, KeepsWhatAPersonWroteBesideItsChanges)
{
    Open("# mine\n[a]\nx=1\n\n# of b\n[b]\ny=2\n; old\n");
    EXPECT_TRUE(m_config->Write("a/x", "3"));
    EXPECT_TRUE(m_config->DeleteGroup("b"));
    EXPECT_TRUE(m_config->Flush());
    EXPECT_EQ(ReadFile(Path()), "# mine\n[a]\nx=3\n\n# of b\n; old\n");
}

TEST_F(StoreConfig, FindsTheKeysBeforeTheFirstSection)
{
    Open("# mine\nName=Ada\nAge=1\nName=Eva\n; Old=1\n\n[g]\nk=v\n[half\nno=1\n");
    EXPECT_EQ(Dump(*m_config), "Name=Eva\nAge=1\n[g]\nk=v\n");
    EXPECT_TRUE(m_config->Write("Age", "2"));
    EXPECT_EQ(Saved(), "Name=Eva\nAge=2\n[g]\nk=v\n");
    EXPECT_TRUE(m_config->DeleteEntry("Name"));
    EXPECT_TRUE(m_config->DeleteEntry("Age"));
    EXPECT_EQ(Saved(), "[g]\nk=v\n");
    EXPECT_EQ(ReadFile(Path()), "# mine\n; Old=1\n\n[g]\nk=v\n[half\nno=1\n\n");
    EXPECT_FALSE(m_config->HasEntry("Name"));
}

TEST_F(StoreConfig, EnumeratesWhileEntriesGo)
{
    for (int i = 0; i < 100; ++i)
        EXPECT_TRUE(m_config->Write(wxString::Format("g/k%d", i), i));
    m_config->SetPath("g");
    wxString name;
    long place = 0;
    int count = 0;
    for (bool more = m_config->GetFirstEntry(name, place); more; more = m_config->GetNextEntry(name, place)) {
        EXPECT_TRUE(m_config->DeleteEntry(name));
        ++count;
    }
    EXPECT_EQ(count, 100);
    EXPECT_EQ(m_config->GetPath(), "");
    for (const long odd : {-1L, 1000000L, -9223372036854775807L}) {
        place = odd;
        EXPECT_FALSE(m_config->GetNextEntry(name, place));
        EXPECT_FALSE(m_config->GetNextGroup(name, place));
    }
}

}  // namespace
