// How CQVFileDialogI::LaunchSaveDialog sets up the toolkit's dialog, and how it uses the answer.

#include <fittings/dialogs/file_dialog.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <wx/frame.h>

#include <tests/dialogs/file_answer.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>
#include <tests/support/temp_folder.h>

namespace {

AskedFile AskedWith(const wchar_t* extension, const wchar_t* wildcard, const wchar_t* title, const wchar_t* folder,
                    const wchar_t* file, wxWindow* parent = nullptr)
{
    const FileAnswer cancel(wxID_CANCEL, "");
    CQVFileDialogI::LaunchSaveDialog(parent, extension, wildcard, title, folder, file);
    EXPECT_EQ(cancel.Shown(), 1);
    return cancel.Asked();
}

AskedFile AskedAt(const wchar_t* folder, const wchar_t* file)
{
    return AskedWith(L"", L"", L"Save", folder, file);
}

AskedFile AskedFor(const wchar_t* extension, const wchar_t* wildcard)
{
    return AskedWith(extension, wildcard, L"Save", L"/usr/", L"");
}

TEST(SaveDialog, IsMadeAsADialogThatAsksBeforeOverwriting)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "parent"));
    const AskedFile asked = AskedWith(L"prj", L"Projects|*.prj", L"Save \x5E33", L"/usr/share/", L"draft.prj", frame);
    EXPECT_EQ(asked.parent, frame);
    EXPECT_EQ(asked.title, L"Save \x5E33");
    EXPECT_EQ(asked.folder, "/usr/share");
    EXPECT_EQ(asked.file, "draft.prj");
    EXPECT_EQ(asked.wildcard, "Projects|*.prj");
    EXPECT_EQ(asked.style, 6);
    EXPECT_EQ(asked.position, wxPoint(-1, -1));
    EXPECT_EQ(asked.size, wxSize(-1, -1));
    EXPECT_EQ(asked.name, "filedlg");
}

TEST(SaveDialog, IsCentredBothWaysBeforeItIsShown)
{
    EXPECT_EQ(AskedAt(L"/usr/", L"").centred, std::vector<int>{wxBOTH});
}

TEST(SaveDialog, TakesNullForEveryTextButTheFolder)
{
    const AskedFile asked = AskedWith(nullptr, nullptr, nullptr, L"", nullptr);
    EXPECT_EQ(asked.parent, nullptr);
    EXPECT_EQ(asked.title, "");
    EXPECT_EQ(asked.folder, "");
    EXPECT_EQ(asked.file, "");
    EXPECT_EQ(asked.wildcard, "");
    EXPECT_EQ(asked.style, 6);
}

TEST(SaveDialog, AssertsAndChoosesNothingWithoutAFolder)
{
    const FileAnswer ok(wxID_OK, "/usr/chosen");
    const ExpectAssertions assertions;
    EXPECT_EQ(CQVFileDialogI::LaunchSaveDialog(nullptr, L"", L"", L"", nullptr, L""), L"");
    EXPECT_EQ(assertions.Count(), 1);
    EXPECT_EQ(ok.Shown(), 0);
}

TEST(SaveDialog, IsNotAffectedByTheExtensionAndFilterThatAreKept)
{
    CQVFileDialogI::SetFileExtension(L"x");
    CQVFileDialogI::SetFileFilter(L"All|*|X|*.x");
    const AskedFile asked = AskedFor(L"", L"");
    EXPECT_EQ(asked.wildcard, "");
    EXPECT_EQ(asked.file, "");
    EXPECT_EQ(asked.filterIndex, -1);
    const AskedFile nothing = AskedWith(nullptr, nullptr, nullptr, L"", nullptr);
    EXPECT_EQ(nothing.folder, "");
    EXPECT_EQ(nothing.file, "");
    EXPECT_EQ(nothing.wildcard, "");
    CQVFileDialogI::SetFileExtension(L"");
    CQVFileDialogI::SetFileFilter(L"");
}

// The toolkit asserts several times on a wildcard whose last filter has no pattern.
TEST(SaveDialog, BearsAWildcardThatIsCutShort)
{
    const ExpectAssertions assertions;
    EXPECT_EQ(AskedFor(L"b", L"A|*.a|B|*.b|C").filterIndex, 1);
    EXPECT_GT(assertions.Count(), 0);
}

TEST(SaveDialog, GivesThePathChosenAsItIs)
{
    for (const wxString path : {L"/usr/new.prj", L"/srv/\x5E33/\x1F4D2 \xE4", L"/usr/folder/", L"relative", L"/"}) {
        const FileAnswer ok(wxID_OK, path);
        EXPECT_EQ(CQVFileDialogI::LaunchSaveDialog(nullptr, L"txt", L"", L"", L"/usr/", L""), path.ToStdWstring());
    }
}

TEST(SaveDialog, GivesNothingUnlessAccepted)
{
    for (const int result : std::vector<int>{wxID_CANCEL, wxID_YES, wxID_SAVE, wxID_OPEN, wxID_APPLY, 0, 1}) {
        const FileAnswer answer(result, "/usr/new.prj");
        EXPECT_EQ(CQVFileDialogI::LaunchSaveDialog(nullptr, L"", L"", L"", L"/usr/", L""), L"") << result;
        EXPECT_EQ(answer.Shown(), 1);
    }
}

struct Start
{
    const char* name;
    std::wstring given;
    std::wstring folder;
    std::wstring file;
};

void PrintTo(const Start& start, std::ostream* out)
{
    *out << start.name;
}

class SaveDialogStart : public testing::TestWithParam<Start>
{
};

TEST_P(SaveDialogStart, IsFolderAndNameOfTheFolderGiven)
{
    for (const wchar_t* const noName : {L"", static_cast<const wchar_t*>(nullptr)}) {
        EXPECT_EQ(AskedAt(GetParam().given.c_str(), noName).Place(), FilePlace(GetParam().folder, GetParam().file));
    }
}

TEST_P(SaveDialogStart, HasTheNameGivenInAnyCase)
{
    EXPECT_EQ(AskedAt(GetParam().given.c_str(), L"mine.a.b").Place(), FilePlace(GetParam().folder, "mine.a.b"));
}

const std::wstring kLong(200, L'\x5E33');

INSTANTIATE_TEST_SUITE_P(
    , SaveDialogStart,
    testing::Values(
        Start{"NoSeparatorAtTheEnd", L"/data/out", L"/data", L"out"},
        Start{"SeparatorAtTheEnd", L"/data/out/", L"/data/out", L""},
        Start{"SeparatorBehindADot", L"/data/out.d/", L"/data/out.d", L""},
        Start{"File", L"/data/report.prj", L"/data", L"report"},
        Start{"FileOfTwoDots", L"/data/report.tar.gz", L"/data", L"report.tar"},
        Start{"FolderOfADot", L"/data.d/report", L"/data.d", L"report"},
        Start{"DotFile", L"/data/.profile", L"/data", L".profile"},
        Start{"DotFileWithExtension", L"/data/.profile.bak", L"/data", L".profile"},
        Start{"DotAtTheEnd", L"/data/report.", L"/data", L"report"}, Start{"Root", L"/", L"/", L""},
        Start{"BelowRoot", L"/report.prj", L"/", L"report"}, Start{"Relative", L"out/report.prj", L"out", L"report"},
        Start{"RelativeFolder", L"out/", L"out", L""}, Start{"NameAlone", L"report.prj", L"", L"report"},
        Start{"Above", L"../out/report", L"../out", L"report"},
        Start{"Blanks", L"/da ta / re port .p j", L"/da ta ", L" re port "},
        Start{"Backslash", L"/data/a\\b.c", L"/data", L"a\\b"}, Start{"Colon", L"/data/c:d.e", L"/data", L"c:d"},
        Start{"NewLine", L"/da\nta/re\nport.prj", L"/da\nta", L"re\nport"},
        Start{"NotAscii", L"/\x5E33\x7C3F/\x1F4D2 \xE4.\x442", L"/\x5E33\x7C3F", L"\x1F4D2 \xE4"},
        Start{"VeryLong", L"/" + kLong + L"/" + kLong + L"/" + kLong + L".prj", L"/" + kLong + L"/" + kLong, kLong}),
    [](const auto& info) { return info.param.name; });

// If the start folder is a file, GTK's dialog shows nothing. If the start folder is below a file, GTK's dialog shows an
// error. Therefore the library lets the dialog start in the nearest folder above the file.
TEST(SaveDialogFolder, IsTheNearestFolderAboveAFile)
{
    const TempFolder folder;
    WriteFile(folder / "file", "");
    const std::wstring file = wxString::FromUTF8(folder / "file").ToStdWstring();
    const AskedFile in = AskedAt((file + L"/").c_str(), L"");
    EXPECT_EQ(in.folder, folder / "file");
    EXPECT_EQ(in.shownFolder, folder.Path());
    const AskedFile below = AskedAt((file + L"/a/b/report").c_str(), L"");
    EXPECT_EQ(below.folder, folder / "file/a/b");
    EXPECT_EQ(below.shownFolder, folder.Path());
    EXPECT_EQ(below.file, "report");
}

TEST(SaveDialogFolder, IsTheNearestFolderAboveARelativeFile)
{
    const TempFolder folder;
    WriteFile(folder / "file", "");
    const auto earlier = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    const AskedFile in = AskedAt(L"file/report", L"");
    std::filesystem::current_path(earlier);
    EXPECT_EQ(in.folder, "file");
    EXPECT_EQ(in.shownFolder, folder.Path());
}

// If the folder does not exist, GTK's dialog itself starts in an existing folder above it. So the library passes the
// folder on as it is.
TEST(SaveDialogFolder, IsAFolderThatIsGone)
{
    const TempFolder folder;
    const std::wstring gone = wxString::FromUTF8(folder / "gone/away").ToStdWstring();
    EXPECT_EQ(AskedAt((gone + L"/").c_str(), L"").shownFolder, folder / "gone/away");
}

TEST(SaveDialogFolder, IsAFolderThatIsThere)
{
    const TempFolder folder;
    const std::wstring path = wxString::FromUTF8(folder.Path()).ToStdWstring();
    EXPECT_EQ(AskedAt((path + L"/").c_str(), L"").shownFolder, folder.Path());
}

struct Filter
{
    const char* name;
    const wchar_t* extension;
    const wchar_t* wildcard;
    const wchar_t* effective;
    int index;
};

void PrintTo(const Filter& filter, std::ostream* out)
{
    *out << filter.name;
}

class SaveDialogFilter : public testing::TestWithParam<Filter>
{
};

TEST_P(SaveDialogFilter, IsMadeOfWildcardAndExtension)
{
    const AskedFile asked = AskedFor(GetParam().extension, GetParam().wildcard);
    EXPECT_EQ(asked.wildcard, GetParam().effective);
    EXPECT_EQ(asked.filterIndex, GetParam().index);
    // The first filter is selected without a call of SetFilterIndex().
    EXPECT_EQ(asked.filtersSet, GetParam().index > 0 ? std::vector<int>{GetParam().index} : std::vector<int>());
}

const wchar_t kTextCsv[] = L"Text (*.txt)|*.txt|CSV (*.csv)|*.csv";
const wchar_t kDescribed[] = L"csv and pdf|*.x|all|*.xcsv;*.pdf|CSV|*.csv";

INSTANTIATE_TEST_SUITE_P(, SaveDialogFilter,
                         testing::Values(Filter{"Nothing", L"", L"", L"", -1},
                                         Filter{"Null", nullptr, nullptr, L"", -1},
                                         Filter{"ExtensionAlone", L"txt", L"", L"*.txt", 0},
                                         Filter{"ExtensionAndNull", L"txt", nullptr, L"*.txt", 0},
                                         Filter{"ExtensionWithADot", L".txt", L"", L"*..txt", 0},
                                         Filter{"ExtensionNotAscii", L"\x5E33", L"", L"*.\x5E33", 0},
                                         Filter{"WildcardAlone", L"", L"*.csv", L"*.csv", 0},
                                         Filter{"WildcardAndNull", nullptr, kTextCsv, kTextCsv, 0},
                                         Filter{"WildcardAndEmpty", L"", kTextCsv, kTextCsv, 0},
                                         Filter{"WildcardOfAnotherExtension", L"txt", L"*.csv", L"*.csv", 0},
                                         Filter{"FirstPattern", L"txt", kTextCsv, kTextCsv, 0},
                                         Filter{"SecondPattern", L"csv", kTextCsv, kTextCsv, 1},
                                         Filter{"NoPattern", L"pdf", kTextCsv, kTextCsv, 0},
                                         Filter{"OtherCase", L"CSV", kTextCsv, kTextCsv, 0},
                                         Filter{"PartOfAPattern", L"sv", kTextCsv, kTextCsv, 1},
                                         Filter{"PartOfBothPatterns", L"*.", kTextCsv, kTextCsv, 0},
                                         Filter{"MoreThanAPattern", L"csvx", kTextCsv, kTextCsv, 0},
                                         Filter{"FirstOfTwoPatterns", L"csv", kDescribed, kDescribed, 1},
                                         Filter{"SecondPartOfAPattern", L"pdf", kDescribed, kDescribed, 1},
                                         Filter{"LastPattern", L"*.csv", kDescribed, kDescribed, 2},
                                         Filter{"DescriptionOnly", L"and", kDescribed, kDescribed, 0}),
                         [](const auto& info) { return info.param.name; });

}  // namespace
