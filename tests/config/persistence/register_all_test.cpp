// wxPersistentRegisterAndRestoreAll() registers a window and the windows in it.

#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/listbook.h>
#include <wx/panel.h>

#include <tests/config/persistence/full_frame.h>
#include <tests/config/persistence/stored.h>
#include <tests/support/gui.h>

namespace {

std::wstring StoredOf(const std::wstring& section, const wchar_t* key)
{
    return Stored((L"Persistent_Options/" + section).c_str(), key);
}

using RegisteringAll = PersistenceTest;

TEST_F(RegisteringAll, BringsBackAWindowWithAllThatIsInIt)
{
    auto* frame = new FullFrame;
    EXPECT_FALSE(wxPersistentRegisterAndRestoreAll(frame, "Planets"));
    ASSERT_TRUE(ShowAndSettle(frame));
    frame->SetSize(620, 440);
    PumpPending();
    frame->splitter->SetSashPosition(222);
    frame->book->SetSelection(1);
    frame->list->SetColumnWidth(0, 77);
    frame->tree->Expand(frame->tree->GetRootItem());
    DestroyNow(frame);

    frame = new FullFrame;
    EXPECT_TRUE(wxPersistentRegisterAndRestoreAll(frame, "Planets"));
    ASSERT_TRUE(ShowAndSettle(frame));
    EXPECT_EQ(frame->GetSize(), wxSize(620, 440));
    EXPECT_EQ(frame->splitter->GetSashPosition(), 222);
    EXPECT_EQ(frame->book->GetSelection(), 1);
    EXPECT_EQ(frame->list->GetColumnWidth(0), 77);
    EXPECT_TRUE(frame->tree->IsExpanded(frame->tree->GetRootItem()));
    DestroyNow(frame);
}

TEST_F(RegisteringAll, StoresEachUnderItsOwnNameAndLeavesThatAsItIs)
{
    auto* frame = new FullFrame;
    frame->list->SetName("Moons");
    wxPersistentRegisterAndRestoreAll(frame, "Planets");
    EXPECT_EQ(frame->GetName(), "frame");
    EXPECT_EQ(frame->list->GetName(), "Moons");
    ASSERT_TRUE(ShowAndSettle(frame));
    DestroyNow(frame);
    EXPECT_EQ(StoredOf(L"Window/Planets", L"w"), L"600");
    EXPECT_EQ(StoredOf(L"Splitter/Planets/splitter", L"Position"), L"150");
    EXPECT_EQ(StoredOf(L"Book/Planets/notebook", L"Selection"), L"0");
    EXPECT_NE(StoredOf(L"List/Planets/Moons", L"Widths"), L"(none)");
    EXPECT_NE(StoredOf(L"Tree/Planets/treeCtrl", L"Items"), L"(none)");
}

TEST_F(RegisteringAll, TellsWindowsWithOneNameApart)
{
    for (const bool isRestored : {false, true}) {
        auto* const frame = new wxFrame(nullptr, wxID_ANY, "two trees");
        wxTreeCtrl* trees[] = {new wxTreeCtrl(frame), new wxTreeCtrl(frame)};
        for (wxTreeCtrl* tree : trees)
            tree->AppendItem(tree->AddRoot("root"), "item");
        wxPersistentRegisterAndRestoreAll(frame, "Two");
        EXPECT_FALSE(trees[0]->IsExpanded(trees[0]->GetRootItem()));
        EXPECT_EQ(trees[1]->IsExpanded(trees[1]->GetRootItem()), isRestored);
        trees[1]->ExpandAll();
        DestroyNow(frame);
    }
}

TEST_F(RegisteringAll, LeavesOutWhatIsRegisteredAndOtherTopLevelWindows)
{
    auto* frame = new FullFrame;
    auto* dialog = new wxDialog(frame, wxID_ANY, "dialog");
    new wxTreeCtrl(dialog);
    wxPersistentRegisterAndRestore(frame->tree, "own");
    wxPersistentRegisterAndRestoreAll(frame, "Planets");
    wxPersistentRegisterAndRestoreAll(frame, "Twice");
    EXPECT_EQ(wxPersistenceManager::Get().Find(dialog), nullptr);
    ASSERT_TRUE(ShowAndSettle(frame));
    DestroyNow(frame);
    EXPECT_NE(StoredOf(L"Tree/own", L"Items"), L"(none)");
    EXPECT_EQ(StoredOf(L"Tree/Planets/treeCtrl", L"Items"), L"(none)");
    EXPECT_EQ(StoredOf(L"Window/Twice", L"w"), L"(none)");
}

// A wxListbook contains a list with which the user chooses a page. That list is not registered.
TEST_F(RegisteringAll, LooksIntoThePagesOfABookAlone)
{
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "book");
    auto* const book = new wxListbook(frame, wxID_ANY);
    auto* const icons = new wxListCtrl(book, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxLC_ICON);
    auto* const page = new wxPanel(book);
    auto* const tree = new wxTreeCtrl(page);
    book->AddPage(icons, "icons");
    book->AddPage(page, "tree");
    wxPersistentRegisterAndRestoreAll(frame, "Book");
    wxPersistenceManager& manager = wxPersistenceManager::Get();
    EXPECT_NE(manager.Find(book), nullptr);
    EXPECT_NE(manager.Find(tree), nullptr);
    EXPECT_EQ(manager.Find(icons), nullptr) << "no report";
    EXPECT_EQ(manager.Find(book->GetListView()), nullptr);
    DestroyNow(frame);
}

}  // namespace
