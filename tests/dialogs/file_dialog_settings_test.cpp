// The settings that CQVFileDialogI keeps for its host: the extension, the filter and the registry entry.

#include <fittings/dialogs/file_dialog.h>

#include <string>

#include <gtest/gtest.h>

namespace {

// These globals read the settings during static initialisation, before a test sets anything. A host's globals may do
// the same.
const CStdStr<wchar_t> g_firstExtension = CQVFileDialogI::GetFileExtension();
const CStdStr<wchar_t> g_firstFilter = CQVFileDialogI::GetFileFilter();
const std::string g_firstEntry = CQVFileDialogI::SetRegEntry("");

TEST(FileDialogSettings, AreEmptyAtFirst)
{
    EXPECT_EQ(g_firstExtension, L"");
    EXPECT_EQ(g_firstFilter, L"");
    EXPECT_EQ(g_firstEntry, "");
}

TEST(FileDialogExtension, IsTheOneSetLast)
{
    CQVFileDialogI::SetFileExtension(L"x");
    EXPECT_EQ(CQVFileDialogI::GetFileExtension(), L"x");
    CQVFileDialogI::SetFileExtension(L".t\x5E33 xt");
    EXPECT_EQ(CQVFileDialogI::GetFileExtension(), L".t\x5E33 xt");
    CQVFileDialogI::SetFileExtension(L"");
    EXPECT_EQ(CQVFileDialogI::GetFileExtension(), L"");
}

TEST(FileDialogExtension, IsEmptyForNull)
{
    CQVFileDialogI::SetFileExtension(L"x");
    CQVFileDialogI::SetFileExtension(nullptr);
    EXPECT_EQ(CQVFileDialogI::GetFileExtension(), L"");
}

TEST(FileDialogExtension, IsCopiedBothWays)
{
    CStdStr<wchar_t> given(L"first");
    CQVFileDialogI::SetFileExtension(given);
    given = L"other";
    CStdStr<wchar_t> got = CQVFileDialogI::GetFileExtension();
    EXPECT_EQ(got, L"first");
    got += L"+";
    EXPECT_EQ(CQVFileDialogI::GetFileExtension(), L"first");
    CQVFileDialogI::SetFileExtension(CQVFileDialogI::GetFileExtension().c_str());
    EXPECT_EQ(CQVFileDialogI::GetFileExtension(), L"first");
    CQVFileDialogI::SetFileExtension(L"");
}

TEST(FileDialogFilter, IsTheOneSetLast)
{
    CQVFileDialogI::SetFileFilter(L"Text (*.txt)|*.txt");
    EXPECT_EQ(CQVFileDialogI::GetFileFilter(), L"Text (*.txt)|*.txt");
    CQVFileDialogI::SetFileFilter(L"*");
    EXPECT_EQ(CQVFileDialogI::GetFileFilter(), L"*");
    CQVFileDialogI::SetFileFilter(L"");
    EXPECT_EQ(CQVFileDialogI::GetFileFilter(), L"");
}

TEST(FileDialogFilter, IsEmptyForNull)
{
    CQVFileDialogI::SetFileFilter(L"*");
    CQVFileDialogI::SetFileFilter(nullptr);
    EXPECT_EQ(CQVFileDialogI::GetFileFilter(), L"");
}

TEST(FileDialogFilter, IsCopiedBothWays)
{
    CStdStr<wchar_t> given(L"*.a");
    CQVFileDialogI::SetFileFilter(given);
    given = L"*.b";
    CStdStr<wchar_t> got = CQVFileDialogI::GetFileFilter();
    EXPECT_EQ(got, L"*.a");
    got += L"+";
    EXPECT_EQ(CQVFileDialogI::GetFileFilter(), L"*.a");
    CQVFileDialogI::SetFileFilter(CQVFileDialogI::GetFileFilter().c_str());
    EXPECT_EQ(CQVFileDialogI::GetFileFilter(), L"*.a");
    CQVFileDialogI::SetFileFilter(L"");
}

TEST(FileDialogFilter, AndTheExtensionAreApart)
{
    CQVFileDialogI::SetFileExtension(L"x");
    CQVFileDialogI::SetFileFilter(L"*.y");
    EXPECT_EQ(CQVFileDialogI::GetFileExtension(), L"x");
    EXPECT_EQ(CQVFileDialogI::GetFileFilter(), L"*.y");
    CQVFileDialogI::SetFileExtension(L"");
    EXPECT_EQ(CQVFileDialogI::GetFileFilter(), L"*.y");
    CQVFileDialogI::SetFileFilter(L"");
}

TEST(FileDialogEntry, IsSwapped)
{
    CQVFileDialogI::SetRegEntry("B");
    EXPECT_EQ(CQVFileDialogI::SetRegEntry("A"), "B");
    EXPECT_EQ(CQVFileDialogI::SetRegEntry("A"), "A");
    EXPECT_EQ(CQVFileDialogI::SetRegEntry(std::string("n\0t\xFF", 4)), "A");
    EXPECT_EQ(CQVFileDialogI::SetRegEntry(""), std::string("n\0t\xFF", 4));
    EXPECT_EQ(CQVFileDialogI::SetRegEntry(""), "");
}

}  // namespace
