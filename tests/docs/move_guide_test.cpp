// The examples of docs/guides/move.md about dialogs, and about windows that the toolkit has remembered, word for word.

#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <wx/fileconf.h>
#include <wx/filedlg.h>
#include <wx/frame.h>
#include <wx/listctrl.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/splitter.h>

#include <fittings/config/persistence.h>
#include <fittings/config/store_config.h>
#include <fittings/dialogs/remembering_dialogs.h>
#include <fittings/platform/local_reg_store.h>
#include <tests/dialogs/answered_dialog.h>
#include <tests/support/gui.h>
#include <tests/support/temp_folder.h>

namespace {

namespace before {

wxString AskForNote(wxWindow* parent, const wxString& notes)
{
    wxConfigBase& config = *wxConfigBase::Get();
    wxFileDialog dialog(parent, "Open a note", config.Read("/Dialogs/Notes", notes), "",
                        "Notes (*.txt)|*.txt|All files|*", wxFD_OPEN | wxFD_FILE_MUST_EXIST);
    if (dialog.ShowModal() != wxID_OK)
        return wxString();
    config.Write("/Dialogs/Notes", dialog.GetDirectory());
    return dialog.GetPath();
}

}  // namespace before

wxString AskForNote(wxWindow* parent, const wxString& notes)
{
    wxRememberingFileDialog dialog(parent, "Notes", "Open a note", "Notes (*.txt)|*.txt|All files|*",
                                   wxFD_OPEN | wxFD_FILE_MUST_EXIST);
    // Without this call, the first dialog starts in the user's documents.
    if (CLocalRegStore::GetString(L"LastFiles", L"Notes", L"").empty())
        dialog.SetDirectory(notes);
    return dialog.ShowModal() == wxID_OK ? dialog.GetPath() : wxString();
}

void Restore(wxFrame* frame, wxSplitterWindow* splitter, wxBookCtrlBase* book)
{
    // Use the names that the earlier version has given to these windows.
    wxPersistentRegisterAndRestore(splitter, "MainSplitter");
    wxPersistentRegisterAndRestore(book, "MainBook");
    // The frame, and everything in it that is not registered yet.
    wxPersistentRegisterAndRestoreAll(frame, "Main");
}

struct NotesFrame : wxFrame
{
    NotesFrame() : wxFrame(nullptr, wxID_ANY, "notes", wxPoint(20, 30), wxSize(500, 400))
    {
        for (const char* page : {"Note", "Bookmarks"})
            book->AddPage(new wxPanel(book), page);
        splitter->SplitHorizontally(list, book, 90);
        list->AppendColumn("Name");
    }

    wxSplitterWindow* splitter = new wxSplitterWindow(this);
    wxListView* list = new wxListView(splitter);
    wxNotebook* book = new wxNotebook(splitter, wxID_ANY);
};

// Replaces the toolkit's persistence by the persistence of the store while the object exists.
class StorePersistence
{
public:
    StorePersistence() { wxPersistenceManager::Set(wxStorePersistenceManager::Install()); }
    ~StorePersistence()
    {
        PumpPending();
        wxStorePersistenceManager::Install().Flush();
        wxPersistenceManager::Set(m_former);
    }

private:
    wxPersistenceManager& m_former = wxPersistenceManager::Get();
};

TEST(MoveGuide, RestoresWindowsThatTheToolkitHasRemembered)
{
    const TempUserData data;
    const TempFolder folder;
    wxFileConfig earlier("guide", "", folder / "config", "", wxCONFIG_USE_LOCAL_FILE);
    wxConfigBase* const former = wxConfigBase::Set(&earlier);
    auto* frame = new NotesFrame;
    wxPersistentRegisterAndRestore(frame, "Main");
    wxPersistentRegisterAndRestore(frame->splitter, "MainSplitter");
    wxPersistentRegisterAndRestore(frame->book, "MainBook");
    ASSERT_TRUE(ShowAndSettle(frame));
    frame->SetSize(160, 120, 520, 410);
    ASSERT_TRUE(PumpUntil([&] { return frame->GetRect() == wxRect(160, 120, 520, 410); }));
    frame->splitter->SetSashPosition(133);
    frame->book->SetSelection(1);
    DestroyNow(frame);
    wxConfigBase::Set(former);

    EXPECT_TRUE(wxStoreConfig().ImportFrom(earlier));
    const StorePersistence persistence;
    for (int start = 0; start < 2; ++start) {
        frame = new NotesFrame;
        Restore(frame, frame->splitter, frame->book);
        ASSERT_TRUE(ShowAndSettle(frame));
        EXPECT_EQ(frame->GetRect(), wxRect(160, 120, 520, 410)) << start;
        EXPECT_EQ(frame->splitter->GetSashPosition(), 133) << start;
        EXPECT_EQ(frame->book->GetSelection(), 1) << start;
        EXPECT_EQ(frame->list->GetColumnWidth(0) == 91, start == 1);
        frame->list->SetColumnWidth(0, 91);
        DestroyNow(frame);
    }
}

class NotesDialog : public RememberingDialog
{
protected:
    using Ask = wxString (*)(wxWindow*, const wxString&);

    // Chooses @a note in the dialog, and returns the folder that the dialog showed at first.
    std::string Accept(Ask ask, const std::string& notes, const std::string& note)
    {
        std::string shown;
        const Answer answer([&](wxDialog* dialog) {
            shown = FolderOf(*dialog);
            return Choose(dynamic_cast<wxFileDialog&>(*dialog), note);
        });
        EXPECT_EQ(ask(nullptr, wxString::FromUTF8(notes)), wxString::FromUTF8(note));
        return shown;
    }
};

TEST_F(NotesDialog, StartsInTheFolderOfTheProgramOnce)
{
    wxFileConfig config("guide", "", m_folders / "config", "", wxCONFIG_USE_LOCAL_FILE);
    wxConfigBase* const former = wxConfigBase::Set(&config);
    const std::string note = m_plain + "/note.txt";
    std::ofstream(note) << "text";
    for (const Ask ask : {before::AskForNote, AskForNote}) {
        EXPECT_EQ(Accept(ask, m_folders.Path(), note), m_folders.Path());
        EXPECT_EQ(Accept(ask, m_folders.Path(), note), m_plain);
    }
    wxConfigBase::Set(former);
}

}  // namespace
