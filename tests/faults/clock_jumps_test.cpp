// The system clock is set while the program runs: every wait ends in time, and no file change is missed.

#include <chrono>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>

#include <gtest/gtest.h>
#include <wx/time.h>

#include <tests/colour/combo/combo_on_screen.h>
#include <tests/faults/jumping_clock.h>
#include <tests/platform/processes/held_lock.h>
#include <tests/platform/store/store_support.h>
#include <tests/support/file_status.h>
#include <tests/support/patience.h>
#include <tests/support/process/forked_work.h>
#include <tests/support/temp_folder.h>
#include <tests/thread/thread_support.h>
#include <tests/tree/tree_on_screen.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr long kHour = 3600;
constexpr long kYear = 365 * 24 * kHour;

// The parameter is the jump of the clock in seconds.
class ClockJumps : public testing::TestWithParam<long>
{
protected:
    JumpingClock clock;
};

TEST_P(ClockJumps, AreWhatTheProgramSees)
{
    const long before = time(nullptr);
    const wxLongLong millisBefore = wxGetLocalTimeMillis();
    const auto steadyBefore = Clock::now();
    clock.Jump(GetParam());
    EXPECT_NEAR(time(nullptr) - before, GetParam(), 10);
    EXPECT_NEAR((wxGetLocalTimeMillis() - millisBefore).ToDouble() / 1000, GetParam(), 10);
    EXPECT_GE(Clock::now(), steadyBefore);
    EXPECT_LT(Clock::now() - steadyBefore, std::chrono::seconds(10));
}

// --- Waiting ---------------------------------------------------------------------------------------------------------

TEST_P(ClockJumps, DoNotKeepTheColourPopup)
{
    const ComboOnScreen<> screen;
    screen.combo->m_animDuration = 400;
    ASSERT_TRUE(ShowAndSettle(screen.frame));
    screen.combo->Popup();
    EXPECT_FALSE(screen.combo->IsPopupShown());
    const auto start = Clock::now();
    clock.Jump(GetParam());
    EXPECT_TRUE(PumpUntil([&] { return screen.combo->IsPopupShown(); }));
    EXPECT_LT(Clock::now() - start, Patience() * std::chrono::seconds(30));
    EXPECT_FALSE(screen.combo->m_animTimer.IsRunning());
    screen.combo->Dismiss();
    EXPECT_TRUE(PumpUntil([&] { return !screen.combo->IsPopupShown(); }));
    // The next time, the popup does not open earlier than usual.
    const auto again = Clock::now();
    EXPECT_TRUE(Opens(*screen.combo));
    EXPECT_GE(Clock::now() - again, std::chrono::milliseconds(390));
    screen.combo->Dismiss();
}

using ClockJumpsByAnHour = ClockJumps;

TEST_P(ClockJumpsByAnHour, LeaveTheWaitForTheStoresLockAsItIs)
{
    TempUserData data;
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    const std::string lockFile = data / "settings.ini.lock";
    const HeldLock lock(lockFile, 0, 1);
    const auto start = Clock::now();
    std::thread somebody([&] {
        EXPECT_TRUE(Becomes([&] { return IsTurnTaken(lockFile); })) << "the write does not wait";
        clock.Jump(GetParam());
    });
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"2"));
    const auto waited = Clock::now() - start;
    somebody.join();
    EXPECT_GE(waited, std::chrono::milliseconds(1800));
    EXPECT_LT(waited, Patience() * std::chrono::seconds(60));
    EXPECT_EQ(Stored(L"s", L"k"), L"2");
}

TEST_P(ClockJumps, NeitherEndNorProlongTheWaitForAThread)
{
    HeldThread held;
    ASSERT_TRUE(held.thread.started.Wait());
    wxThread::ExitCode code = nullptr;
    Helper waiter([&] { code = held.thread.Wait(); });
    EXPECT_TRUE(waiter.IsBlocked());
    clock.Jump(GetParam());
    EXPECT_TRUE(waiter.IsBlocked());
    EXPECT_FALSE(waiter.IsDone());
    const auto start = Clock::now();
    held.go.Set();
    EXPECT_TRUE(waiter.Ends());
    EXPECT_LT(Clock::now() - start, Patience() * std::chrono::seconds(30));
    EXPECT_EQ(code, Code(42));
}

TEST_P(ClockJumps, NeitherEndNorProlongAWaitOfLimitedTime)
{
    HeldThread held;
    ASSERT_TRUE(held.thread.started.Wait());
    Clock::duration waited{0};
    {
        Helper waiter([&] {
            clock.Jump(GetParam());
            const auto start = Clock::now();
            EXPECT_FALSE(held.thread.WaitFor(70));
            waited = Clock::now() - start;
        });
        EXPECT_TRUE(waiter.Ends());
        held.go.Set();
    }
    EXPECT_GE(waited, std::chrono::milliseconds(70));
    EXPECT_LT(waited, Patience() * std::chrono::seconds(30));
}

TEST_P(ClockJumps, DoNotKeepAThreadsEventsNorStopIt)
{
    Recorder handler;
    Working<wxGUIThread> thread(&handler, [&](Working<wxGUIThread>& self) {
        for (int i = 0; i < 3; ++i) {
            self.PostEvent(7, i, 0L);
            clock.Jump(i % 2 == 0 ? GetParam() : 0);
        }
    });
    thread.Create(0);
    thread.Run();
    EXPECT_EQ(thread.Wait(), Code(0));
    EXPECT_TRUE(PumpUntil([&] { return handler.events.size() == 3; }));
}

TEST_P(ClockJumps, DoNotDisturbATreeThatIsFilledWhileItIsLoaded)
{
    TempUserData data;
    CLocalRegStore::WriteString(L"TreeControlState", L"Folders", L"B|R|");
    const TreeOnScreen<LazyTree> screen;
    screen.tree->folders = {{L"R", {L"A", L"B"}}, {L"B", {L"B1"}}};
    screen.tree->inHook = [&](const wxTreeCursor& item) { clock.Jump(item.GetText() == "R" ? GetParam() : 0); };
    wxTreeCursor root = AddLazyRoot(*screen.tree, "R");
    screen.tree->LoadState("Folders", root);
    EXPECT_EQ(screen.tree->expanded, (Labels{L"R", L"B"}));
}

// --- Files -----------------------------------------------------------------------------------------------------------

// Sets the modification time of a file to the time of the changed clock plus @a seconds.
void SetTime(const std::string& path, long seconds)
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    const timespec times[] = {{now.tv_sec + seconds, 0}, {now.tv_sec + seconds, 0}};
    EXPECT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
}

TEST_P(ClockJumps, HideNoChangeByAnotherProcess)
{
    TempUserData data;
    const std::string path = data / "settings.ini";
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"0"));
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"mine", L"m"));
    EXPECT_EQ(Stored(L"s", L"k"), L"0");
    for (int i = 1; i <= 6; ++i) {
        const long ahead = i % 2 == 1 ? GetParam() : 0;
        clock.Jump(ahead);
        const std::wstring value = std::to_wstring(i);
        InChild([&] { EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", value.c_str())); });
        // The system has given the file the true time. Give the file the time of the changed clock instead.
        SetTime(path, 0);
        EXPECT_EQ(Stored(L"s", L"k"), value);
        EXPECT_EQ(Stored(L"s", L"k"), value);
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"mine", (L"m" + value).c_str()));
        EXPECT_EQ(ReadFile(path), "[s]\nk=" + std::to_string(i) + "\nmine=m" + std::to_string(i) + "\n");
    }
    EXPECT_EQ(NamesIn(data.Path()), (std::vector<std::string>{"settings.ini", "settings.ini.lock"}));
}

// Each change writes the same number of bytes. The test then sets the modification time to that of the first contents,
// or to the time of a clock that has jumped. The store must still notice each change.
TEST_P(ClockJumps, HideNoChangeInPlace)
{
    TempUserData data;
    const std::string path = data / "settings.ini";
    WriteFile(path, "[s]\nk=1\n");
    const timespec first = StatusOf(path).st_mtim;
    WaitPastStamp(path);  // otherwise the store would not trust the timestamp, and would read the file again each time
    EXPECT_EQ(Stored(L"s", L"k"), L"1");
    clock.Jump(GetParam());
    WriteFile(path, "[s]\nk=2\n");
    const timespec times[] = {first, first};
    ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
    EXPECT_EQ(Stored(L"s", L"k"), L"2");
    WriteFile(path, "[s]\nk=3\n");
    SetTime(path, 0);
    EXPECT_EQ(Stored(L"s", L"k"), L"3");
    clock.Jump(0);
    WriteFile(path, "[s]\nk=4\n");
    SetTime(path, -GetParam());
    EXPECT_EQ(Stored(L"s", L"k"), L"4");
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"5"));
    EXPECT_EQ(ReadFile(path), "[s]\nk=5\n");
}

TEST_P(ClockJumps, SaveANamedFile)
{
    const TempFolder folder;
    const std::string path = folder / "a.ini";
    for (int i = 0; i < 4; ++i) {
        clock.Jump(i % 2 == 0 ? GetParam() : 0);
        Ini ini(path);
        EXPECT_EQ(ini.Get(L"s", L"k", L"0"), std::to_wstring(i));
        ini.Set(L"s", L"k", std::to_wstring(i + 1).c_str());
        EXPECT_TRUE(ini.Save(path));
    }
    EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"a.ini"});
}

std::string NameOf(const testing::TestParamInfo<long>& info)
{
    return std::string(info.param < 0 ? "Back" : "Ahead") + std::to_string(std::abs(info.param)) + "s";
}

INSTANTIATE_TEST_SUITE_P(, ClockJumps, testing::Values(-kYear, -1, 1, kYear), NameOf);
INSTANTIATE_TEST_SUITE_P(, ClockJumpsByAnHour, testing::Values(-kHour, kHour), NameOf);

// A temporary file whose timestamp is in the future may belong to a process that is still writing it, so the file
// stays.
TEST(AFileFromTheFuture, IsClearedAwayOnceItsTimeIsPast)
{
    TempUserData data;
    const std::string leftover = data / ".fittings-save-0c5a1a4e-3f0b-4d5c-9a55-6a1f0c9d7e10";
    WriteFile(leftover, "half");
    JumpingClock clock(-kHour);
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"1"));
    EXPECT_TRUE(std::filesystem::exists(leftover));
    clock.Jump(kHour);
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"2"));
    EXPECT_FALSE(std::filesystem::exists(leftover));
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nk=2\n");
}

}  // namespace
