// How wxFolderDlg sets up the toolkit's dialog, and how it uses the answer. A modal hook answers the dialog. The
// toolkit has no getters for some of the arguments, so this program replaces the dialog's constructor and DoCentre().

#include <fittings/dialogs/folder_dialog.h>

#include <functional>
#include <vector>

#include <gtest/gtest.h>
#include <wx/dirdlg.h>
#include <wx/frame.h>
#include <wx/modalhook.h>
#include <wx/translation.h>

#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>
#include <tests/dialogs/centring.h>
#include <tests/support/owned_window.h>
#include <tests/support/temp_folder.h>

namespace {

// These definitions must compile: the type of each pointer selects one overload.
using Ask = wxString (*)(wxWindow*, const wchar_t*, const wchar_t*);
[[maybe_unused]] constexpr Ask kAsk = wxFolderDlg::DoModal;
[[maybe_unused]] constexpr Ask kAskAndRemember = wxFolderDlg::DoModalReg;

struct Made
{
    wxWindow* parent;
    wxString message;
    wxString folder;
    long style;
    wxPoint position;
    wxSize size;
    wxString name;
};

std::vector<Made> g_made;

// While the object exists, answers every folder dialog in place of the user.
class Answer : public wxModalDialogHook
{
public:
    Answer(int result, const wxString& folder) : m_result(result), m_folder(folder)
    {
        g_made.clear();
        CentredDialogs().clear();
        Register();
    }

    std::function<void()> whileShown;

    // Returns how many dialogs have been answered.
    int Shown() const { return m_shown; }

    // Returns the number of times that dialogs were centred before the last answer.
    std::size_t CentredBefore() const { return m_centredBefore; }

protected:
    int Enter(wxDialog* dialog) override
    {
        ++m_shown;
        m_centredBefore = CentredDialogs().size();
        struct Folder : wxDirDialog
        {
            static wxString wxDirDialog::*Path() { return &Folder::m_path; }
        };
        auto* const asked = dynamic_cast<wxDirDialog*>(dialog);
        if (!asked) {
            ADD_FAILURE() << "no folder dialog";
            return wxID_CANCEL;
        }
        asked->*Folder::Path() = m_folder;
        if (whileShown)
            whileShown();
        return m_result;
    }

private:
    const int m_result;
    const wxString m_folder;
    int m_shown = 0;
    std::size_t m_centredBefore = 0;
};

Made TheOneMade()
{
    if (g_made.size() != 1) {
        ADD_FAILURE() << g_made.size() << " dialogs";
        return {};
    }
    return g_made[0];
}

wxString Chosen(const wchar_t* folder, const wxString& answer)
{
    const Answer ok(wxID_OK, answer);
    return wxFolderDlg::DoModal(nullptr, folder, L"Choose");
}

wxString ChosenFor(const wchar_t* section, const wxString& answer)
{
    const Answer ok(wxID_OK, answer);
    return wxFolderDlg::DoModalReg(nullptr, section, L"Choose");
}

wxString MessageFor(const wchar_t* message)
{
    const Answer cancel(wxID_CANCEL, "");
    wxFolderDlg::DoModal(nullptr, nullptr, message);
    return TheOneMade().message;
}

wxString FolderFor(const wchar_t* folder)
{
    const Answer cancel(wxID_CANCEL, "");
    wxFolderDlg::DoModal(nullptr, folder, nullptr);
    return TheOneMade().folder;
}

wxString RememberedFor(const wchar_t* section)
{
    const Answer cancel(wxID_CANCEL, "");
    wxFolderDlg::DoModalReg(nullptr, section, nullptr);
    return TheOneMade().folder;
}

TEST(FolderDialog, IsMadeAsADefaultFolderDialog)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "parent"));
    const Answer cancel(wxID_CANCEL, "");
    wxFolderDlg::DoModal(frame, L"/srv", L"Choose");
    const Made made = TheOneMade();
    EXPECT_EQ(made.parent, frame);
    EXPECT_EQ(made.style, 0x20001840);
    EXPECT_EQ(made.position, wxPoint(-1, -1));
    EXPECT_EQ(made.size, wxSize(-1, -1));
    EXPECT_EQ(made.name, "wxDirCtrl");
    EXPECT_EQ(cancel.Shown(), 1);
}

TEST(FolderDialog, IsCentredBothWaysBeforeItIsShown)
{
    const Answer cancel(wxID_CANCEL, "");
    wxFolderDlg::DoModal(nullptr, nullptr, nullptr);
    EXPECT_EQ(CentredDialogs(), std::vector<int>{wxBOTH});
    EXPECT_EQ(cancel.CentredBefore(), 1u);
}

TEST(FolderDialogMessage, IsTheDefaultForNull)
{
    EXPECT_EQ(MessageFor(nullptr), L"Current folder is:");
}

TEST(FolderDialogMessage, IsTheCallersOtherwise)
{
    EXPECT_EQ(MessageFor(L"Import from \x5E33"), L"Import from \x5E33");
    EXPECT_EQ(MessageFor(L""), L"");
}

TEST(FolderDialogMessage, IsTranslatedWhenItIsTheDefault)
{
    auto* const german = new wxTranslations;
    wxTranslations::Set(german);
    german->SetLanguage("de");
    EXPECT_EQ(MessageFor(nullptr), L"Aktueller Ordner:");
    EXPECT_EQ(MessageFor(L"Current folder is:"), L"Current folder is:");
    EXPECT_EQ(MessageFor(L""), L"");
    wxTranslations::Set(nullptr);
}

TEST(FolderDialogStart, IsTheFolderGiven)
{
    EXPECT_EQ(FolderFor(L"/usr"), L"/usr");
    EXPECT_EQ(FolderFor(L"/usr/"), L"/usr/");
    EXPECT_EQ(FolderFor(L"not/there \x5E33"), L"not/there \x5E33");
}

TEST(FolderDialogStart, IsTheToolkitsWithoutAFolder)
{
    EXPECT_EQ(FolderFor(nullptr), L"");
    EXPECT_EQ(FolderFor(L""), L"");
}

TEST(FolderDialogResult, IsTheFolderChosenAsItIs)
{
    EXPECT_EQ(Chosen(L"/usr", "/srv/data"), "/srv/data");
    EXPECT_EQ(Chosen(nullptr, L"/srv/\x5E33 /"), L"/srv/\x5E33 /");
    EXPECT_EQ(Chosen(L"/usr", "/not/there"), "/not/there");
}

TEST(FolderDialogResult, IsEmptyUnlessAccepted)
{
    for (const int result : {wxID_CANCEL, wxID_YES, wxID_OPEN, wxID_APPLY}) {
        const Answer answer(result, "/srv/data");
        EXPECT_EQ(wxFolderDlg::DoModal(nullptr, L"/usr", L"Choose"), "") << result;
    }
}

class RememberedFolder : public testing::Test
{
private:
    const TempUserData m_settings;
};

TEST_F(RememberedFolder, IsEmptyAtFirst)
{
    EXPECT_EQ(RememberedFor(L"Import"), "");
}

TEST_F(RememberedFolder, IsTheOneChosenLast)
{
    EXPECT_EQ(ChosenFor(L"Import", "/usr"), "/usr");
    EXPECT_EQ(Stored(L"Import", L"Path"), L"/usr");
    EXPECT_EQ(RememberedFor(L"Import"), "/usr");
    EXPECT_EQ(ChosenFor(L"Import", "/usr/share"), "/usr/share");
    EXPECT_EQ(RememberedFor(L"Import"), "/usr/share");
}

TEST_F(RememberedFolder, IsKeptExactly)
{
    for (const wxString folder : {L"/gone/away", L"/usr/", L" /a b ", L"/\x5E33/\x1F4D2", L"a=b;c#d\n[e]"}) {
        EXPECT_EQ(ChosenFor(L"Import", folder), folder);
        EXPECT_EQ(Stored(L"Import", L"Path"), folder.ToStdWstring());
        EXPECT_EQ(RememberedFor(L"Import"), folder);
    }
}

TEST_F(RememberedFolder, BelongsToItsSection)
{
    ChosenFor(L"Import", "/usr");
    ChosenFor(L"Export]", "/srv");
    EXPECT_EQ(RememberedFor(L"Import"), "/usr");
    EXPECT_EQ(RememberedFor(L"Export]"), "/srv");
    EXPECT_EQ(RememberedFor(L"import"), "");
}

TEST_F(RememberedFolder, StaysWhenTheDialogIsCancelled)
{
    ChosenFor(L"Import", "/usr");
    const Answer cancel(wxID_CANCEL, "/srv");
    EXPECT_EQ(wxFolderDlg::DoModalReg(nullptr, L"Import", nullptr), "");
    EXPECT_EQ(Stored(L"Import", L"Path"), L"/usr");
}

TEST_F(RememberedFolder, IsNotMadeByCancelling)
{
    RememberedFor(L"Import");
    EXPECT_EQ(Stored(L"Import", L"Path"), L"(none)");
}

TEST_F(RememberedFolder, StaysWhenNothingWasChosen)
{
    ChosenFor(L"Import", "/usr");
    EXPECT_EQ(ChosenFor(L"Import", ""), "");
    EXPECT_EQ(Stored(L"Import", L"Path"), L"/usr");
}

TEST_F(RememberedFolder, IsReadAnewEachTime)
{
    ChosenFor(L"Import", "/usr");
    CLocalRegStore::WriteString(L"Import", L"Path", L"/srv");
    EXPECT_EQ(RememberedFor(L"Import"), "/srv");
}

TEST_F(RememberedFolder, IsReadBeforeTheDialogAndStoredAfterIt)
{
    ChosenFor(L"Import", "/usr");
    const auto storeAnother = [] {
        EXPECT_EQ(Stored(L"Import", L"Path"), L"/usr");
        CLocalRegStore::WriteString(L"Import", L"Path", L"/another");
    };
    {
        Answer ok(wxID_OK, "/srv");
        ok.whileShown = storeAnother;
        EXPECT_EQ(wxFolderDlg::DoModalReg(nullptr, L"Import", nullptr), "/srv");
        EXPECT_EQ(TheOneMade().folder, "/usr");
        EXPECT_EQ(Stored(L"Import", L"Path"), L"/srv");
    }
    ChosenFor(L"Import", "/usr");
    Answer cancel(wxID_CANCEL, "/srv");
    cancel.whileShown = storeAnother;
    EXPECT_EQ(wxFolderDlg::DoModalReg(nullptr, L"Import", nullptr), "");
    EXPECT_EQ(Stored(L"Import", L"Path"), L"/another");
}

// Nothing can be stored, because not even root can create a folder in /proc.
TEST_F(RememberedFolder, IsGivenAllTheSameWhereItCannotBeStored)
{
    std_file_paths::SetUserDataDir(L"/proc/fittings");
    EXPECT_EQ(ChosenFor(L"Import", "/usr"), "/usr");
    EXPECT_EQ(Stored(L"Import", L"Path"), L"(none)");
    EXPECT_EQ(RememberedFor(L"Import"), "");
}

TEST_F(RememberedFolder, IsKeptUnderItsKeyAlone)
{
    const TempUserData settings;
    ChosenFor(L"Import", "/usr");
    EXPECT_EQ(ReadFile(settings / "settings.ini"), "[Import]\nPath=/usr\n");
}

TEST_F(RememberedFolder, ComesWithTheSameDialog)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "parent"));
    const Answer cancel(wxID_CANCEL, "");
    wxFolderDlg::DoModalReg(frame, L"Import", nullptr);
    wxFolderDlg::DoModalReg(frame, L"Import", L"");
    wxFolderDlg::DoModalReg(frame, L"Import", L"Import from");
    ASSERT_EQ(g_made.size(), 3u);
    EXPECT_EQ(g_made[0].message, "Current folder is:");
    EXPECT_EQ(g_made[1].message, "");
    EXPECT_EQ(g_made[2].message, "Import from");
    EXPECT_EQ(g_made[2].parent, frame);
    EXPECT_EQ(g_made[2].style, 0x20001840);
    EXPECT_EQ(CentredDialogs(), (std::vector<int>{wxBOTH, wxBOTH, wxBOTH}));
}

}  // namespace

// Replaces the toolkit's constructor: records the arguments, and creates the dialog.
wxDirDialog::wxDirDialog(wxWindow* parent, const wxString& message, const wxString& folder, long style,
                         const wxPoint& position, const wxSize& size, const wxString& name)
{
    g_made.push_back({parent, message, folder, style, position, size, name});
    Create(parent, message, folder, style, position, size, name);
}
