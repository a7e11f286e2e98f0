// Frames and dialogs that the toolkit's own wxPersistentTLW saves and restores. The display of these tests has 1280 x
// 1024 pixels. Its work area begins at (16, 24) and has 1264 x 960 pixels.

#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/frame.h>

#include <tests/config/persistence/stored.h>
#include <tests/support/gui.h>

namespace {

constexpr wchar_t kKind[] = L"Window";

wxFrame* NewFrame()
{
    return new wxFrame(nullptr, wxID_ANY, "w", wxPoint(300, 200), wxSize(400, 300));
}

testing::AssertionResult SettlesAt(const wxTopLevelWindow& window, const wxRect& rect)
{
    if (PumpUntil([&] { return !window.IsMaximized() && window.GetScreenRect() == rect; }))
        return testing::AssertionSuccess();
    const wxRect now = window.GetScreenRect();
    return testing::AssertionFailure() << now.x << ";" << now.y << ";" << now.width << ";" << now.height;
}

bool SettlesMaximized(const wxTopLevelWindow& window)
{
    return PumpUntil([&] { return window.IsMaximized() && window.GetSize() == wxSize(1264, 960); });
}

// Registers, shows, changes and destroys a frame, as one run of a program does. Expects the registration to return @a
// isRestored.
template <typename Change>
void InOneRun(bool isRestored, Change change)
{
    wxFrame* const frame = NewFrame();
    EXPECT_EQ(wxPersistentRegisterAndRestore(frame, "w"), isRestored);
    ASSERT_TRUE(ShowAndSettle(frame));
    change(*frame);
    DestroyNow(frame);
}

using PersistentFrame = PersistenceTest;

TEST_F(PersistentFrame, ComesBackWhereItWas)
{
    InOneRun(false, [](wxFrame& frame) {
        frame.SetSize(150, 120, 500, 340);
        ASSERT_TRUE(SettlesAt(frame, wxRect(150, 120, 500, 340)));
    });
    EXPECT_EQ(StoredValue(kKind, L"x"), L"150");
    EXPECT_EQ(StoredValue(kKind, L"h"), L"340");
    InOneRun(true, [](wxFrame& frame) { EXPECT_TRUE(SettlesAt(frame, wxRect(150, 120, 500, 340))); });
}

TEST_F(PersistentFrame, ThatWasMaximizedComesBackSoAndIsRestoredToItsEarlierSize)
{
    InOneRun(false, [](wxFrame& frame) {
        frame.SetSize(150, 120, 500, 340);
        ASSERT_TRUE(SettlesAt(frame, wxRect(150, 120, 500, 340)));
        frame.Maximize();
        ASSERT_TRUE(SettlesMaximized(frame));
    });
    EXPECT_EQ(StoredValue(kKind, L"Maximized"), L"1");
    EXPECT_EQ(StoredValue(kKind, L"w"), L"500");
    // The frame stays maximised during this run. Its size before it was maximised must stay stored.
    InOneRun(true, [](wxFrame& frame) { ASSERT_TRUE(SettlesMaximized(frame)); });
    InOneRun(true, [](wxFrame& frame) {
        ASSERT_TRUE(SettlesMaximized(frame));
        frame.Maximize(false);
        EXPECT_TRUE(SettlesAt(frame, wxRect(150, 120, 500, 340)));
    });
    EXPECT_EQ(StoredValue(kKind, L"Maximized"), L"0");
    InOneRun(true, [](wxFrame& frame) { EXPECT_TRUE(SettlesAt(frame, wxRect(150, 120, 500, 340))); });
}

TEST_F(PersistentFrame, ThatIsMovedAsSoonAsItIsUnmaximizedStaysThere)
{
    StorePlace(L"150", L"120", L"500", L"340");
    StoreValue(kKind, L"Maximized", L"1");
    InOneRun(true, [](wxFrame& frame) {
        ASSERT_TRUE(SettlesMaximized(frame));
        frame.Maximize(false);
        ASSERT_TRUE(PumpUntil([&] { return !frame.IsMaximized(); }));
        frame.SetSize(200, 180, 400, 300);
        ASSERT_TRUE(ShowAndSettle(&frame));
        // The frame may be larger than the size that was set: decorations that are announced after SetSize() are added
        // to this size.
        EXPECT_TRUE(PumpUntil([&] { return frame.GetPosition() == wxPoint(200, 180) && frame.GetSize().x < 450; }))
            << frame.GetPosition().x << ";" << frame.GetPosition().y << ";" << frame.GetSize().x;
    });
}

TEST_F(PersistentFrame, ThatWasOnTheFullScreenComesBackAtItsEarlierSize)
{
    InOneRun(false, [](wxFrame& frame) {
        frame.ShowFullScreen(true);
        ASSERT_TRUE(PumpUntil([&] { return frame.GetSize() == wxSize(1280, 1024); }));
    });
    InOneRun(true, [](wxFrame& frame) { EXPECT_TRUE(SettlesAt(frame, wxRect(300, 200, 400, 300))); });
}

// If another frame is open, the toolkit hides a closed frame before destroying it. This test does the same. The window
// manager then forgets that the closed frame is maximised.
TEST_F(PersistentFrame, ThatIsClosedMaximizedBeforeAnotherIsRemembered)
{
    wxFrame* const other = new wxFrame(nullptr, wxID_ANY, "other");
    ASSERT_TRUE(ShowAndSettle(other));
    InOneRun(false, [](wxFrame& frame) {
        frame.Maximize();
        ASSERT_TRUE(SettlesMaximized(frame));
        frame.Hide();
        EXPECT_TRUE(PumpUntil([&] { return !frame.IsMaximized(); }, 3000));
    });
    DestroyNow(other);
    EXPECT_EQ(StoredValue(kKind, L"Maximized"), L"1");
    EXPECT_EQ(StoredValue(kKind, L"w"), L"400");
}

// The frame is registered but not restored. Its size before it was maximised is unknown, so the stored size must stay.
TEST_F(PersistentFrame, ThatIsMaximizedAndWasNotRestoredLeavesTheStoredPlace)
{
    StorePlace(L"100", L"100", L"300", L"200");
    wxFrame* const frame = NewFrame();
    frame->SetName("w");
    wxPersistenceManager::Get().Register(frame);
    ASSERT_TRUE(ShowAndSettle(frame));
    frame->Maximize();
    ASSERT_TRUE(SettlesMaximized(*frame));
    DestroyNow(frame);
    EXPECT_EQ(StoredValue(kKind, L"w"), L"300");
    EXPECT_EQ(StoredValue(kKind, L"Maximized"), L"1");
}

struct Restored
{
    const char* name;
    const wchar_t* fields[4];
    wxRect rect;
};

using StoredPlace = PersistenceTestWithParam<Restored>;

TEST_P(StoredPlace, ComesOntoTheDisplay)
{
    const Restored& stored = GetParam();
    StorePlace(stored.fields[0], stored.fields[1], stored.fields[2], stored.fields[3]);
    wxFrame* const frame = NewFrame();
    EXPECT_TRUE(wxPersistentRegisterAndRestore(frame, "w"));
    EXPECT_EQ(frame->GetRect(), stored.rect);
    ASSERT_TRUE(ShowAndSettle(frame));
    EXPECT_TRUE(SettlesAt(*frame, stored.rect));
    DestroyNow(frame);
}

INSTANTIATE_TEST_SUITE_P(
    , StoredPlace,
    testing::Values(Restored{"Inside", {L"100", L"100", L"300", L"200"}, wxRect(100, 100, 300, 200)},
                    Restored{"OnADisplayThatIsGone", {L"5000", L"100", L"300", L"200"}, wxRect(16, 24, 284, 176)},
                    Restored{"LeftOfAll", {L"-5000", L"100", L"300", L"200"}, wxRect(16, 24, 284, 176)},
                    Restored{"TooLarge", {L"0", L"0", L"3000", L"3000"}, wxRect(16, 24, 1264, 960)},
                    Restored{"AtTheOrigin", {L"0", L"0", L"300", L"200"}, wxRect(16, 24, 284, 176)},
                    Restored{"OutOnTheRight", {L"1100", L"100", L"300", L"200"}, wxRect(1100, 100, 180, 200)},
                    Restored{"UnderThePanel", {L"100", L"-180", L"300", L"200"}, wxRect(100, 24, 300, 200)},
                    Restored{"TooSmall", {L"100", L"100", L"5", L"600"}, wxRect(300, 200, 400, 300)},
                    Restored{"HugeNumbers",
                             {L"-9000000000", L"-9000000000", L"9000000000", L"9000000000"},
                             wxRect(16, 24, 1264, 960)},
                    Restored{"HugeSize", {L"100", L"100", L"2147483647", L"2147483647"}, wxRect(100, 100, 1180, 884)}),
    [](const auto& info) { return info.param.name; });

// A stored geometry in which one field is no integer, or is too large for a long. The parameter is the key of this
// field.
using DamagedPlace = PersistenceTestWithParam<const wchar_t*>;

TEST_P(DamagedPlace, CountsAsNone)
{
    for (const wchar_t* const text : {L"", L"12x", L"nan", L"99999999999999999999", L"1e3", L"\x1F600"}) {
        StorePlace(L"100", L"100", L"300", L"200");
        StoreValue(kKind, GetParam(), text);
        wxFrame* const frame = NewFrame();
        EXPECT_FALSE(wxPersistentRegisterAndRestore(frame, "w")) << text;
        EXPECT_EQ(frame->GetRect(), wxRect(300, 200, 400, 300)) << text;
        DestroyNow(frame);
    }
}

INSTANTIATE_TEST_SUITE_P(, DamagedPlace, testing::Values(L"x", L"y", L"w", L"h"));

TEST(DamagedFlagsAndDecorations, ChangeNothing)
{
    const TempPersistence data;
    for (const wchar_t* const key : {L"Maximized", L"Iconized", L"decor_l", L"decor_r", L"decor_t", L"decor_b"}) {
        for (const wchar_t* const text : {L"", L"x", L"-2147483649", L"9999999999"}) {
            StorePlace(L"100", L"100", L"300", L"200");
            StoreValue(kKind, key, text);
            SCOPED_TRACE(wxString(key) + "=" + text);
            ASSERT_NO_FATAL_FAILURE(InOneRun(true, [](wxFrame& frame) {
                EXPECT_TRUE(SettlesAt(frame, wxRect(100, 100, 300, 200)));
                EXPECT_FALSE(frame.IsIconized());
            }));
        }
    }
    StoreValue(kKind, L"decor_t", L"30000");
    InOneRun(true, [](wxFrame& frame) { EXPECT_TRUE(SettlesAt(frame, wxRect(100, 100, 300, 200))); });
}

TEST(PersistentDialog, ComesBackWhereItWas)
{
    const TempPersistence data;
    for (const bool isRestored : {false, true}) {
        auto* const dialog = new wxDialog(nullptr, wxID_ANY, "w", wxPoint(300, 200), wxSize(400, 300),
                                          wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
        EXPECT_EQ(wxPersistentRegisterAndRestore(dialog, "w"), isRestored);
        ASSERT_TRUE(ShowAndSettle(dialog));
        if (!isRestored)
            dialog->SetSize(200, 150, 450, 350);
        EXPECT_TRUE(SettlesAt(*dialog, wxRect(200, 150, 450, 350)));
        DestroyNow(dialog);
    }
}

}  // namespace
