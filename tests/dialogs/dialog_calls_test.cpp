// The calls that the save dialog, the remembering file dialog and wxFolderDlg::DoModalReg() make to the platform. The
// test's platform records every call.

#include <string>

#include <gtest/gtest.h>
#include <wx/defs.h>

#include <fittings/dialogs/file_dialog.h>
#include <fittings/dialogs/folder_dialog.h>
#include <fittings/dialogs/remembering_dialogs.h>
#include <tests/dialogs/file_answer.h>
#include <tests/support/noting_platform.h>

namespace {

wxString g_chosenFolder;

class SaveDialogCalls : public testing::Test
{
protected:
    SaveDialogCalls()
    {
        g_platform = {};
        g_platform.stored = L"/a/one.prj";
        CQVFileDialogI::SetRegEntry("Report");
    }
    ~SaveDialogCalls() override { CQVFileDialogI::SetRegEntry(""); }

    static AskedFile Ask(int result, const wxString& path, const wchar_t* folder = L"")
    {
        FileAnswer answer(result, path);
        answer.whileShown = [] { RecordCall(L"show"); };
        CQVFileDialogI::LaunchSaveDialog(nullptr, L"", L"", L"", folder, L"");
        return answer.Asked();
    }
};

TEST_F(SaveDialogCalls, OfADialogThatIsCancelled)
{
    const AskedFile asked = Ask(wxID_CANCEL, "/b/two.prj");
    EXPECT_EQ(g_platform.calls, (Calls{L"get narrow [LastFiles] [Report] []", L"from UTF-8 [/a/one.prj]", L"show"}));
    EXPECT_EQ(asked.folder, "/decoded/a");
    EXPECT_EQ(asked.file, "one");
}

TEST_F(SaveDialogCalls, OfADialogWhileNothingIsRemembered)
{
    g_platform.stored = L"";
    const AskedFile asked = Ask(wxID_CANCEL, "");
    EXPECT_EQ(g_platform.calls, (Calls{L"get narrow [LastFiles] [Report] []", L"application's folder [Samples]",
                                       L"with separator [/documents/Samples]", L"show"}));
    EXPECT_EQ(asked.folder, "/documents/Samples");
    EXPECT_EQ(asked.file, "");
}

TEST_F(SaveDialogCalls, OfADialogThatIsAccepted)
{
    Ask(wxID_OK, "/b/two/");
    EXPECT_EQ(g_platform.calls, (Calls{L"get narrow [LastFiles] [Report] []", L"from UTF-8 [/a/one.prj]", L"show",
                                       L"without separator [/b/two/]", L"to UTF-8 [/b/two/]",
                                       L"write narrow [LastFiles] [Report] [/encoded/b/two/]"}));
}

TEST_F(SaveDialogCalls, OfADialogInWhichNothingIsChosen)
{
    Ask(wxID_OK, "");
    EXPECT_EQ(g_platform.calls.back(), L"show");
}

TEST_F(SaveDialogCalls, OfADialogWithAFolderOfTheCallers)
{
    Ask(wxID_CANCEL, "/b/two.prj", L"/c/");
    EXPECT_EQ(g_platform.calls, Calls{L"show"});
}

TEST_F(SaveDialogCalls, OfADialogWithTextsOfOtherKinds)
{
    const FileAnswer answer(wxID_CANCEL, "");
    CQVFileDialogI::LaunchSaveDialog(nullptr, wxString("csv"), std::wstring(L"Tables|*.csv"), L"Save",
                                     std::wstring(L"/c/"), wxString("two"));
    EXPECT_EQ(answer.Asked().title, "Save");
    EXPECT_EQ(answer.Asked().wildcard, "Tables|*.csv");
    EXPECT_EQ(answer.Asked().folder, "/c");
    EXPECT_EQ(answer.Asked().file, "two");
}

TEST_F(SaveDialogCalls, OfADialogWithoutAnEntry)
{
    CQVFileDialogI::SetRegEntry("");
    Ask(wxID_OK, "/b/two.prj");
    EXPECT_EQ(g_platform.calls, Calls{L"show"});
}

// FileAnswer cannot answer a wxRememberingFileDialog, because that dialog calls the default constructor of
// wxFileDialog, which file_answer.cpp does not replace. Here Enter() answers the dialog, and Dialog::GetPath() returns
// the chosen path.
class RememberingDialogCalls : public testing::Test, private wxModalDialogHook
{
protected:
    RememberingDialogCalls()
    {
        g_platform = {};
        g_platform.stored = L"/a/one.prj";
        Register();
    }

    class Dialog : public wxRememberingFileDialog
    {
    public:
        using wxRememberingFileDialog::wxRememberingFileDialog;
        wxString GetPath() const override { return "/b/two.prj"; }
    };

    int m_result = wxID_OK;

private:
    int Enter(wxDialog*) override
    {
        RecordCall(L"show");
        return m_result;
    }
};

TEST_F(RememberingDialogCalls, OfADialogThatIsAccepted)
{
    Dialog(nullptr, "Report", "Save", "Tables|*.csv|All files|*", wxFD_SAVE).ShowModal();
    EXPECT_EQ(g_platform.calls,
              (Calls{L"to UTF-8 [Report]", L"get narrow [LastFiles] [/encodedReport] []", L"from UTF-8 [/a/one.prj]",
                     L"get from default store [LastFilters] [Report] []", L"show", L"to UTF-8 [Report]",
                     L"without separator [/b/two.prj]", L"to UTF-8 [/b/two.prj]",
                     L"write narrow [LastFiles] [/encodedReport] [/encoded/b/two.prj]",
                     L"write to default store [LastFilters] [Report] [*]"}));
    EXPECT_EQ(g_platform.savesWithoutBatch, 0);
    EXPECT_EQ(g_platform.batches, 0);
}

TEST_F(RememberingDialogCalls, OfADialogThatIsCancelled)
{
    m_result = wxID_CANCEL;
    Dialog(nullptr, "Report", "Save", "Tables|*.csv|All files|*", wxFD_SAVE).ShowModal();
    EXPECT_EQ(g_platform.calls.back(), L"show");
}

class FolderDialogCalls : public testing::Test
{
protected:
    FolderDialogCalls() { g_platform = {}; }
    ~FolderDialogCalls() override { EXPECT_EQ(m_cancel.Shown(), 0) << "the toolkit has shown a dialog of its own"; }

private:
    const FileAnswer m_cancel{wxID_CANCEL, ""};
};

TEST_F(FolderDialogCalls, OfADialogThatIsAccepted)
{
    g_chosenFolder = "/chosen/";
    EXPECT_EQ(wxFolderDlg::DoModalReg(nullptr, L"Import", L"Choose"), "/chosen/");
    EXPECT_EQ(g_platform.calls, (Calls{L"get from default store [Import] [Path] []", L"show [stored] [Choose]",
                                       L"write to default store [Import] [Path] [/chosen/]"}));
}

TEST_F(FolderDialogCalls, OfADialogWithTextsOfOtherKinds)
{
    g_chosenFolder = "";
    wxFolderDlg::DoModalReg(nullptr, wxString("Import"), std::wstring(L"Choose"));
    EXPECT_EQ(g_platform.calls, (Calls{L"get from default store [Import] [Path] []", L"show [stored] [Choose]"}));
}

TEST_F(FolderDialogCalls, OfADialogThatIsCancelled)
{
    g_chosenFolder = "";
    EXPECT_EQ(wxFolderDlg::DoModalReg(nullptr, L"Import", nullptr), "");
    EXPECT_EQ(g_platform.calls, (Calls{L"get from default store [Import] [Path] []", L"show [stored] [(null)]"}));
}

}  // namespace

// Replaces the library's function: records the call, and returns the chosen folder.
wxString wxFolderDlg::DoModal(wxWindow*, const wchar_t* initialFolder, const wchar_t* message)
{
    RecordCall(L"show", {initialFolder, message ? message : L"(null)"});
    return g_chosenFolder;
}
