// Values of each type. Includes wxWidgets' own tests of wxConfig.

#include <fittings/config/store_config.h>

#include <climits>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include <wx/colour.h>

#include <tests/config/store/store_config_support.h>

namespace {

TEST_F(StoreConfig, ReadsWhatWasWritten)
{
    const wxLongLong_t negative = wxLL(0x8000000000000008);
    const wxULongLong_t large = wxULL(0x9000000000000009);
    m_config->DeleteAll();
    EXPECT_TRUE(m_config->Write("string1", "abc"));
    EXPECT_TRUE(m_config->Write("string2", wxString("def")));
    EXPECT_TRUE(m_config->Write("int1", 123));
    EXPECT_TRUE(m_config->Write(wxString("long1"), 234L));
    EXPECT_TRUE(m_config->Write("double1", 345.67));
    EXPECT_TRUE(m_config->Write("bool1", true));
    EXPECT_TRUE(m_config->Write("ll", negative));
    EXPECT_TRUE(m_config->Write("ull", large));
    EXPECT_TRUE(m_config->Write("size", size_t(UINT_MAX)));
    EXPECT_TRUE(m_config->Write("colour1", wxColour(11, 22, 33, 44)));
    EXPECT_TRUE(m_config->Flush());
    Reopen();

    EXPECT_EQ(m_config->Read("string1"), "abc");
    EXPECT_EQ(m_config->Read("string1", "defaultvalue"), "abc");
    wxString text;
    EXPECT_TRUE(m_config->Read("string2", &text));
    EXPECT_EQ(text, "def");
    EXPECT_TRUE(m_config->Read("string2", &text, "defaultvalue"));
    EXPECT_EQ(text, "def");
    EXPECT_EQ(m_config->Read("int1", 5), 123);
    long number = 0;
    EXPECT_TRUE(m_config->Read("long1", &number));
    EXPECT_EQ(number, 234);
    EXPECT_EQ(m_config->ReadLong("long1", 0), 234);
    double real = 0;
    EXPECT_TRUE(m_config->Read("double1", &real));
    EXPECT_EQ(real, 345.67);
    EXPECT_EQ(m_config->ReadDouble("double1", 0), 345.67);
    bool flag = false;
    EXPECT_FALSE(m_config->Read("foo", &flag));
    EXPECT_TRUE(m_config->Read("bool1", &flag));
    EXPECT_TRUE(flag);
    EXPECT_TRUE(m_config->ReadBool("bool1", false));
    wxLongLong_t wide = 0;
    EXPECT_TRUE(m_config->Read("ll", &wide));
    EXPECT_EQ(wide, negative);
    EXPECT_EQ(m_config->ReadLongLong("ll", 0), negative);
    EXPECT_TRUE(m_config->Read("ull", &wide));
    EXPECT_EQ(wide, static_cast<wxLongLong_t>(large));
    size_t size = 0;
    EXPECT_TRUE(m_config->Read("size", &size));
    EXPECT_EQ(size, UINT_MAX);
    wxColour colour;
    EXPECT_TRUE(m_config->Read("colour1", &colour));
    EXPECT_EQ(colour, wxColour(11, 22, 33, 44));
    EXPECT_EQ(m_config->ReadObject("colour1", wxColour()), colour);
}

// Reads ten values with a default for each, and returns the number of reads. Seven of the reads return whether the
// value exists: they must return @a areThere.
std::size_t ReadWithDefaults(const wxConfigBase& config, bool areThere)
{
    EXPECT_EQ(config.Read("string1", "abc"), "abc");
    EXPECT_EQ(config.Read("string2", wxString("def")), "def");
    wxString text;
    EXPECT_EQ(config.Read("string3", &text, "abc"), areThere);
    EXPECT_EQ(config.Read("string4", &text, wxString("def")), areThere);
    int integer = 0;
    EXPECT_EQ(config.Read("int1", &integer, 123), areThere);
    EXPECT_EQ(config.Read("int2", 1234), 1234);
    long number = 0;
    EXPECT_EQ(config.Read(wxString("long1"), &number, 234L), areThere);
    double real = 0;
    EXPECT_EQ(config.Read("double1", &real, 345.67), areThere);
    bool flag = false;
    EXPECT_EQ(config.Read("bool1", &flag, true), areThere);
    wxColour colour;
    EXPECT_EQ(config.Read("colour1", &colour, wxColour(11, 22, 33, 44)), areThere);
    return 10;
}

TEST_F(StoreConfig, RecordsDefaultsWhereThatIsAskedFor)
{
    m_config->SetRecordDefaults(false);
    ReadWithDefaults(*m_config, false);
    EXPECT_EQ(m_config->GetNumberOfEntries(), 0U);
    m_config->SetRecordDefaults(true);
    EXPECT_EQ(m_config->GetNumberOfEntries(), 0U);
    const std::size_t count = ReadWithDefaults(*m_config, false);
    EXPECT_EQ(m_config->GetNumberOfEntries(), count);
    ReadWithDefaults(*m_config, true);
    Reopen();
    ReadWithDefaults(*m_config, true);
}

TEST_F(StoreConfig, ReadsNumbersThatAPersonWrote)
{
    Open("[%]\nx=1.234\ny=-9876.5432\nz=2e+308\nn=12  \nnone=abc\nempty=\n");
    float real = 0;
    EXPECT_TRUE(m_config->Read("x", &real));
    EXPECT_EQ(real, 1.234f);
    EXPECT_TRUE(m_config->Read("y", &real));
    EXPECT_EQ(real, -9876.5432f);
    EXPECT_EQ(m_config->ReadLong("n", 0), 12);
    EXPECT_EQ(m_config->ReadLong("none", 7), 7);
    EXPECT_EQ(m_config->ReadLong("empty", 7), 7);
    EXPECT_EQ(m_config->Read("empty", "default"), "");
    EXPECT_EQ(m_config->GetEntryType("empty"), wxConfigBase::Type_String);
    EXPECT_EQ(m_config->GetEntryType("absent"), wxConfigBase::Type_Unknown);
}

TEST_F(StoreConfig, ReadsAndWritesBinaryData)
{
    Open("[root]\nbinary=Zm9vCg==\n");
    wxMemoryBuffer buffer;
    EXPECT_TRUE(m_config->Read("/root/binary", &buffer));
    EXPECT_EQ(std::string(static_cast<const char*>(buffer.GetData()), buffer.GetDataLen()), "foo\n");
    buffer.SetDataLen(0);
    buffer.AppendData("\0\1\2", 3);
    EXPECT_TRUE(m_config->Write("/root/012", buffer));
    EXPECT_EQ(Saved(), "[root]\nbinary=Zm9vCg==\n012=AAEC\n");
    EXPECT_FALSE(m_config->Read("/root/none", &buffer));
}

TEST_F(StoreConfig, ExpandsEnvironmentVariablesUnlessToldNotTo)
{
    ASSERT_EQ(setenv("FITTINGS_TEST_PLACE", "here", 1), 0);
    EXPECT_TRUE(m_config->Write("k", "$(FITTINGS_TEST_PLACE) ${FITTINGS_TEST_PLACE} \\$x"));
    EXPECT_EQ(m_config->Read("k"), "here here $x");
    m_config->SetExpandEnvVars(false);
    EXPECT_EQ(m_config->Read("k"), "$(FITTINGS_TEST_PLACE) ${FITTINGS_TEST_PLACE} \\$x");
}

TEST_F(StoreConfig, SeesWhatIsPutBackAfterItsOwnSave)
{
    Open("[root]\nkey=old\n");
    EXPECT_EQ(m_config->Read("/root/key"), "old");
    EXPECT_TRUE(m_config->Write("/root/key", "new"));
    EXPECT_TRUE(m_config->Flush());
    WriteFile(Path(), "[root]\nkey=old\n");
    EXPECT_EQ(m_config->Read("/root/key"), "old");
}

}  // namespace
