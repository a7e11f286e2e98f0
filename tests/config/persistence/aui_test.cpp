// A layout of AUI panes is stored when the manager or its window is destroyed.

#include <memory>

#include <gtest/gtest.h>

#include <tests/config/aui_frame.h>
#include <tests/config/persistence/stored.h>
#include <tests/support/gui.h>

namespace {

constexpr wchar_t kKind[] = L"AuiManager";

void MoveLogToTheTop(wxAuiManager& manager)
{
    manager.GetPane("log").Top();
    manager.Update();
}

bool IsLogAtTheTop(wxAuiManager& manager)
{
    return manager.GetPane("log").dock_direction == wxAUI_DOCK_TOP;
}

// Restores the layout in a new frame, and expects the log at the top.
void ExpectLogAtTheTop()
{
    AuiFrame frame;
    EXPECT_TRUE(wxPersistentRegisterAndRestore(&frame.manager, "w"));
    EXPECT_TRUE(IsLogAtTheTop(frame.manager));
}

using PersistentAui = PersistenceTest;

// The destructor of AuiFrame calls UnInit() before the window is destroyed. The layout must still be stored.
TEST_F(PersistentAui, OfAFrameThatEndsItsManagerIsRemembered)
{
    {
        AuiFrame frame;
        EXPECT_FALSE(wxPersistentRegisterAndRestore(&frame.manager, "w"));
        ASSERT_TRUE(ShowAndSettle(&frame));
        MoveLogToTheTop(frame.manager);
    }
    EXPECT_NE(StoredValue(kKind, L"Layout"), L"(none)");
    ExpectLogAtTheTop();
}

TEST_F(PersistentAui, OfAFrameThatIsClosedIsRememberedWithoutADrawing)
{
    auto* const frame = new AuiFrame;
    wxPersistentRegisterAndRestore(&frame->manager, "w");
    frame->Pane("log").Top();
    frame->Close();
    PumpPending();
    ExpectLogAtTheTop();
}

TEST_F(PersistentAui, OfAManagerThatNobodyEndsIsRemembered)
{
    for (const bool isManagerFirst : {false, true}) {
        auto* const frame = new wxFrame(nullptr, wxID_ANY, "aui");
        auto manager = std::make_unique<wxAuiManager>(frame);
        manager->AddPane(new wxPanel(frame), wxAuiPaneInfo().Name("log").Left());
        wxPersistentRegisterAndRestore(manager.get(), "w");
        EXPECT_EQ(IsLogAtTheTop(*manager), isManagerFirst);
        MoveLogToTheTop(*manager);
        ASSERT_TRUE(ShowAndSettle(frame));
        if (isManagerFirst)
            manager.reset();
        DestroyNow(frame);
        EXPECT_NE(StoredValue(kKind, L"Layout").find(L"dir=1;"), std::wstring::npos) << StoredValue(kKind, L"Layout");
    }
}

TEST_F(PersistentAui, OfAManagerThatIsEndedEarlyIsStoredWithItsWindow)
{
    wxAuiManager manager;
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "aui");
    manager.SetManagedWindow(frame);
    manager.AddPane(new wxPanel(frame), wxAuiPaneInfo().Name("log").Top());
    manager.Update();
    wxPersistentRegisterAndRestore(&manager, "w");
    manager.UnInit();
    EXPECT_EQ(StoredValue(kKind, L"Layout"), L"(none)");
    DestroyNow(frame);
    EXPECT_NE(StoredValue(kKind, L"Layout").find(L"dir=1;"), std::wstring::npos);
}

TEST_F(PersistentAui, ThatIsNotRegisteredAnyMoreStoresNothing)
{
    {
        AuiFrame frame;
        wxPersistentRegisterAndRestore(&frame.manager, "w");
        wxPersistenceManager::Get().Unregister(&frame.manager);
        ASSERT_TRUE(ShowAndSettle(&frame));
        EXPECT_TRUE(frame.Close());
        EXPECT_EQ(StoredValue(kKind, L"Layout"), L"(none)");
    }
    EXPECT_EQ(StoredValue(kKind, L"Layout"), L"(none)");
}

TEST_F(PersistentAui, IsNamedAsItsWindowWhereItHasNoName)
{
    {
        AuiFrame frame;
        frame.SetName("w");
        EXPECT_FALSE(wxPersistentRegisterAndRestore(&frame.manager));
        ASSERT_TRUE(ShowAndSettle(&frame));
        MoveLogToTheTop(frame.manager);
    }
    ExpectLogAtTheTop();
}

TEST(DamagedLayout, LoadsNothing)
{
    const TempPersistence data;
    std::wstring layout;
    {
        AuiFrame frame;
        MoveLogToTheTop(frame.manager);
        layout = frame.manager.SavePerspective().ToStdWstring();
    }
    for (std::size_t length = 1; length + 1 < layout.size(); length += 9) {
        // Skip a text that ends with "|": it is still a complete layout.
        if (layout[length - 1] == L'|')
            continue;
        StoreValue(kKind, L"Layout", layout.substr(0, length));
        AuiFrame frame;
        EXPECT_FALSE(wxPersistentRegisterAndRestore(&frame.manager, "w"));
        EXPECT_FALSE(IsLogAtTheTop(frame.manager));
    }
}

}  // namespace
