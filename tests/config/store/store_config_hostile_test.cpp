// Unusual names, unusual values and damaged files.

#include <fittings/config/store_config.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tests/config/store/store_config_support.h>

namespace {

const std::vector<std::wstring> kTexts = {L" ",
                                          L"=",
                                          L"[a]=b",
                                          L"# no comment",
                                          L" edges ",
                                          L"new\nline\r\n\t",
                                          L"\"quoted\"",
                                          L"100 %",
                                          L"%",
                                          L"!immutable",
                                          L"C:\\new",
                                          L"ключ 鍵 \U0001F511",
                                          L"\xD800 lone",
                                          L"...",
                                          std::wstring(100'000, L'x')};

TEST_F(StoreConfig, KeepsAnyTextAsGroupEntryAndValue)
{
    m_config->SetExpandEnvVars(false);
    for (const std::wstring& text : kTexts)
        EXPECT_TRUE(m_config->Write("/" + wxString(text) + "/" + wxString(text), wxString(text)));
    for (int round = 0; round < 2; ++round) {
        for (const std::wstring& text : kTexts) {
            m_config->SetPath("/" + wxString(text));
            EXPECT_EQ(m_config->Read(text), wxString(text));
            EXPECT_EQ(EntryNames(*m_config), std::vector<wxString>{text});
        }
        m_config->SetPath("/");
        EXPECT_EQ(m_config->GetNumberOfGroups(), kTexts.size());
        Reopen();
        m_config->SetExpandEnvVars(false);
    }
}

TEST_F(StoreConfig, RefusesWhatCannotBeStored)
{
    const wxString null(L"a\0b", 3);
    EXPECT_FALSE(m_config->Write(null, "v"));
    EXPECT_FALSE(m_config->Write(null + "/k", "v"));
    EXPECT_FALSE(m_config->Write("k", null));
    EXPECT_TRUE(m_config->Write("k", "v"));
    EXPECT_FALSE(m_config->RenameEntry("k", null));
    EXPECT_TRUE(m_config->Write("g/k", "v"));
    EXPECT_FALSE(m_config->RenameGroup("g", null));
    m_config->SetPath(null);
    EXPECT_EQ(m_config->GetPath(), "");
    EXPECT_FALSE(m_config->HasEntry(null));
    EXPECT_FALSE(m_config->DeleteGroup(null));
    EXPECT_EQ(Saved(), "k=v\n[g]\nk=v\n");
}

TEST_F(StoreConfig, RefusesGroupsThatAreTooDeep)
{
    wxString deep;
    for (int level = 0; level < 100; ++level)
        deep += "/g";
    EXPECT_TRUE(m_config->Write(deep + "/k", "v"));
    EXPECT_FALSE(m_config->Write(deep + "/g/k", "v"));
    m_config->SetPath(deep + "/g");
    EXPECT_EQ(m_config->GetPath(), "");
    m_config->SetPath(deep);
    EXPECT_EQ(m_config->Read("k"), "v");
    EXPECT_TRUE(m_config->Flush());
    Reopen();
    EXPECT_EQ(m_config->Read(deep + "/k"), "v");
    EXPECT_TRUE(m_config->DeleteGroup("g"));
    EXPECT_EQ(Saved(), "");
}

TEST_F(StoreConfig, OfAFileWithAGroupOfAMillionLevelsIsUsable)
{
    std::string name;
    for (int level = 0; level < 1'000'000; ++level)
        name += "g/";
    const std::string text = "[" + name + "g]\nk=v\n";
    Open(text);
    EXPECT_EQ(Dump(*m_config), "");
    EXPECT_TRUE(m_config->Write("k", "v"));
    EXPECT_EQ(Saved(), "k=v\n");
    EXPECT_EQ(ReadFile(Path()).substr(0, text.size()), text);
}

TEST_F(StoreConfig, KeepsSectionsThatAreNoPaths)
{
    const std::string text = "[A//B]\nk=1\n[/A]\nk=2\n[A/]\nk=3\n[A/../B]\nk=4\n[.]\nk=5\n[A]\nk=6\n";
    Open(text);
    EXPECT_EQ(Dump(*m_config), "[A]\nk=6\n");
    EXPECT_TRUE(m_config->Write("A/k", "7"));
    EXPECT_TRUE(m_config->Flush());
    EXPECT_EQ(ReadFile(Path()), text.substr(0, text.size() - 2) + "7\n");
    EXPECT_TRUE(m_config->DeleteAll());
    EXPECT_TRUE(m_config->Flush());
    EXPECT_EQ(ReadFile(Path()), "");
}

TEST_F(StoreConfig, IsUsableWhateverTheFileHolds)
{
    for (const std::string& text :
         {std::string("\xFF\xFEutf16"), std::string(1000, '\0'), std::string("[a\nb=c\n"), std::string("[[a]]\n]=[\n"),
          std::string("[a]\nk=1\n[a]\nk=2\nk=3\n"), std::string("[%%]\nk=1\n"), std::string("[a]\n\xE9=\xE9\n")}) {
        Open(text);
        const wxString before = Dump(*m_config);
        EXPECT_TRUE(m_config->Write("new/entry", "v"));
        EXPECT_EQ(Saved(), before + "[new]\nentry=v\n");
        EXPECT_TRUE(m_config->DeleteAll());
        EXPECT_EQ(Saved(), "");
    }
}

TEST_F(StoreConfig, TakesEveryKindOfPath)
{
    EXPECT_TRUE(m_config->Write("a/b", "1"));
    for (const char* const path :
         {"", "/", "//", ".", "..", "../..", "a", "a/", "/a/", "a/..", "a/b/", "./a", "x/../a", "/.."}) {
        EXPECT_FALSE(m_config->HasEntry(path)) << path;
        EXPECT_FALSE(m_config->DeleteEntry(path)) << path;
        wxString text;
        EXPECT_FALSE(m_config->Read(path, &text)) << path;
        m_config->SetPath(path);
        m_config->SetPath("/");
    }
    EXPECT_TRUE(m_config->Write("/", ""));
    EXPECT_EQ(Saved(), "[a]\nb=1\n");
}

}  // namespace
