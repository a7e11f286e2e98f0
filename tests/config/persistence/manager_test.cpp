// When the values of windows are saved, and how often saving them calls fsync().

#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/treebook.h>

#include <fittings/platform/std_file_paths.h>
#include <tests/config/persistence/full_frame.h>
#include <tests/config/persistence/stored.h>
#include <tests/support/gui.h>

namespace {

int g_syncs = 0;

}  // namespace

// Replaces the C library's function: counts the call and makes the system call.
extern "C" int fsync(int fd)
{
    ++g_syncs;
    return static_cast<int>(syscall(SYS_fsync, fd));
}

namespace {

using ClosedFrame = PersistenceTest;
using Control = PersistenceTest;

TEST_F(ClosedFrame, SavesAllThatIsInItByOneSave)
{
    auto* frame = new FullFrame;
    EXPECT_FALSE(frame->RestoreAll());
    ASSERT_TRUE(ShowAndSettle(frame));
    frame->splitter->SetSashPosition(222);
    frame->book->SetSelection(1);
    frame->list->SetColumnWidth(1, 77);
    frame->tree->ExpandAll();
    g_syncs = 0;
    DestroyNow(frame);
    EXPECT_EQ(g_syncs, 2);

    frame = new FullFrame;
    EXPECT_TRUE(frame->RestoreAll());
    ASSERT_TRUE(ShowAndSettle(frame));
    EXPECT_EQ(frame->splitter->GetSashPosition(), 222);
    EXPECT_EQ(frame->book->GetSelection(), 1);
    EXPECT_EQ(frame->list->GetColumnWidth(1), 77);
    EXPECT_TRUE(frame->tree->IsExpanded(frame->tree->GetRootItem()));
    DestroyNow(frame);
}

// The values of a window are stored when the window is destroyed, even if other windows are still open. Therefore these
// values are not lost if a signal ends the process later.
TEST_F(ClosedFrame, IsSavedWhenItIsGone)
{
    auto* const other = new wxFrame(nullptr, wxID_ANY, "other");
    wxPersistentRegisterAndRestore(other, "other");
    auto* const frame = new FullFrame;
    frame->RestoreAll();
    ASSERT_TRUE(ShowAndSettle(frame));
    delete frame;
    EXPECT_EQ(StoredValue(L"Window", L"w"), L"600");
    EXPECT_EQ(StoredValue(L"Splitter", L"Position"), L"150");
    EXPECT_NE(StoredValue(L"Tree", L"Items"), L"(none)");
    EXPECT_NE(StoredValue(L"List", L"Widths"), L"(none)");
    delete other;
}

TEST_F(ClosedFrame, WithoutAnyChangeWritesNothing)
{
    for (int run = 0; run < 3; ++run) {
        auto* const frame = new FullFrame;
        frame->RestoreAll();
        ASSERT_TRUE(ShowAndSettle(frame));
        g_syncs = 0;
        DestroyNow(frame);
    }
    EXPECT_EQ(g_syncs, 0);
}

TEST_F(Control, ThatGoesAloneIsSavedOnTheNextTurn)
{
    auto* const frame = new FullFrame;
    frame->RestoreAll();
    ASSERT_TRUE(ShowAndSettle(frame));
    g_syncs = 0;
    frame->splitter->Unsplit(frame->tree);
    frame->tree->Destroy();
    EXPECT_EQ(StoredValue(L"Tree", L"Items"), L"(none)");
    PumpPending();
    EXPECT_NE(StoredValue(L"Tree", L"Items"), L"(none)");
    EXPECT_EQ(g_syncs, 2);
    DestroyNow(frame);
}

TEST_F(Control, ThatIsDeletedWithoutDestroyLeavesWhatWasStored)
{
    auto* const frame = new FullFrame;
    frame->RestoreAll();
    frame->book->DeletePage(1);
    DestroyNow(frame);
    EXPECT_EQ(StoredValue(L"List", L"Widths"), L"(none)");
}

TEST_F(Control, ThatWasNotRestoredIsSavedWithItsFrame)
{
    auto* const frame = new FullFrame;
    ASSERT_TRUE(ShowAndSettle(frame));
    frame->splitter->SetName("w");
    wxPersistenceManager::Get().Register(frame->splitter);
    delete frame;
    EXPECT_EQ(StoredValue(L"Splitter", L"Position"), L"150");
}

TEST(Manager, SaysThatItCouldNotSaveAndSavesLater)
{
    const TempPersistence data;
    wxStorePersistenceManager& manager = wxStorePersistenceManager::Install();
    EXPECT_TRUE(manager.Flush());
    std_file_paths::SetUserDataDir(L"/dev/null/none");
    auto* const frame = new FullFrame;
    frame->RestoreAll();
    DestroyNow(frame);
    EXPECT_FALSE(manager.Flush());
    std_file_paths::SetUserDataDir(std::wstring(data.Path().begin(), data.Path().end()).c_str());
    EXPECT_TRUE(manager.Flush());
    EXPECT_EQ(StoredValue(L"Window", L"w"), L"600");
}

TEST(Manager, IsTheToolkitsOnceItIsInstalled)
{
    EXPECT_EQ(&wxStorePersistenceManager::Install(), &wxPersistenceManager::Get());
    EXPECT_EQ(&wxStorePersistenceManager::Install(), &wxStorePersistenceManager::Install());
}

// The toolkit's classes cannot have written these values. The windows must still look as usual.
TEST(DamagedNumbers, DoNoHarm)
{
    const TempPersistence data;
    for (const wchar_t* const text : {L"", L"x", L"-2", L"-2147483648", L"2147483647", L"2147483648", L"99999999999"}) {
        StoreValue(L"Splitter", L"Position", text);
        StoreValue(L"Book", L"Selection", text);
        auto* const frame = new FullFrame;
        EXPECT_FALSE(frame->RestoreAll());
        ASSERT_TRUE(ShowAndSettle(frame));
        EXPECT_TRUE(frame->splitter->IsSplit());
        EXPECT_EQ(frame->book->GetSelection(), 0);
        EXPECT_GT(frame->splitter->GetSashPosition(), 0) << text;
        EXPECT_LT(frame->splitter->GetSashPosition(), 600) << text;
        DestroyNow(frame);
    }
}

TEST(TreeBook, IsStillTheToolkits)
{
    const TempPersistence data;
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "book");
    auto* const book = new wxTreebook(frame, wxID_ANY);
    book->AddPage(new wxPanel(book), "page");
    wxPersistentRegisterAndRestore(book, "w");
    EXPECT_EQ(wxPersistenceManager::Get().Find(book)->GetKind(), "TreeBook");
    DestroyNow(frame);
    EXPECT_EQ(StoredValue(L"TreeBook", L"Selection"), L"0");
}

}  // namespace
