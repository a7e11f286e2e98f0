// Running and stopping a worker.

#include <fittings/thread/gui_thread.h>

#include <memory>

#include <gtest/gtest.h>

#include <tests/support/gui.h>
#include <tests/thread/thread_support.h>

namespace {

using Worker = Working<wxGUIThread>;

TEST(RunThread, CreatesAndRuns)
{
    Worker worker(nullptr, [](Worker&) { return Code(42); });
    EXPECT_EQ(worker.RunThread(), wxTHREAD_NO_ERROR);
    EXPECT_EQ(worker.Wait(), Code(42));
}

TEST(RunThread, RunsAThreadThatWasCreatedBefore)
{
    Worker worker(nullptr, [](Worker&) { return Code(42); });
    EXPECT_EQ(worker.Create(0), wxTHREAD_NO_ERROR);
    EXPECT_EQ(worker.RunThread(), wxTHREAD_NO_ERROR);
    EXPECT_EQ(worker.Wait(), Code(42));
}

TEST(RunThread, IsRefusedASecondTime)
{
    Worker worker(nullptr, [](Worker&) { return Code(42); });
    EXPECT_EQ(worker.RunThread(), wxTHREAD_NO_ERROR);
    EXPECT_EQ(worker.RunThread(), wxTHREAD_RUNNING);
    EXPECT_EQ(worker.Wait(), Code(42));
    EXPECT_EQ(worker.RunThread(), wxTHREAD_RUNNING);
    EXPECT_EQ(worker.Wait(), Code(42));
}

TEST(DoContinue, IsTrueUntilStartKillOnBothThreads)
{
    bool before = false;
    bool after = true;
    Signal asked;
    Signal go;
    Worker worker(nullptr, [&](Worker& self) {
        before = self.DoContinue();
        asked.Set();
        go.Wait();
        after = self.DoContinue();
    });
    EXPECT_TRUE(worker.DoContinue());
    worker.RunThread();
    ASSERT_TRUE(asked.Wait());
    EXPECT_TRUE(worker.DoContinue());
    worker.StartKill();
    EXPECT_FALSE(worker.DoContinue());
    go.Set();
    worker.Wait();
    EXPECT_TRUE(before);
    EXPECT_FALSE(after);
}

TEST(DoContinue, IsNeverTrueAgain)
{
    Worker worker(nullptr, [](Worker& self) { return Code(self.DoContinue() ? 1 : 2); });
    worker.StartKill();
    worker.StartKill();
    EXPECT_FALSE(worker.DoContinue());
    EXPECT_EQ(worker.RunThread(), wxTHREAD_NO_ERROR);
    EXPECT_FALSE(worker.DoContinue());
    EXPECT_EQ(worker.Wait(), Code(2));
    EXPECT_FALSE(worker.DoContinue());
}

TEST(StartKill, DoesNotWait)
{
    Signal go;
    Worker worker(nullptr, [&](Worker&) {
        go.Wait();
        return Code(42);
    });
    worker.RunThread();
    ASSERT_TRUE(worker.started.Wait());
    worker.StartKill();
    go.Set();  // StartKill() has returned although the worker was still waiting
    EXPECT_EQ(worker.Wait(), Code(42));
}

TEST(Shutdown, StopsAWorkerThatPostsUntilItIsTold)
{
    Recorder handler;
    std::atomic<int> posted{0};
    auto worker = std::make_unique<Worker>(&handler, [&](Worker& self) {
        while (self.PostEvent(7, posted))
            ++posted;
        return Code(posted);
    });
    ASSERT_EQ(worker->RunThread(), wxTHREAD_NO_ERROR);
    ASSERT_TRUE(Becomes([&] { return posted >= 100; }));
    worker->StartKill();
    const wxThread::ExitCode code = worker->Wait();
    EXPECT_EQ(code, Code(posted));
    worker.reset();
    const auto count = static_cast<size_t>(posted);
    PumpPending();
    ASSERT_EQ(handler.events.size(), count);
    for (size_t i = 0; i < count; ++i)
        ASSERT_EQ(handler.events[i], Plain(7, static_cast<int>(i)));
}

TEST(Shutdown, LetsAWorkerGoThatEndedByItself)
{
    Recorder handler;
    {
        Worker worker(&handler, [](Worker& self) { self.PostEvent(7, 1); });
        worker.RunThread();
        worker.StartKill();
        worker.Wait();
    }
    PumpPending();
    EXPECT_LE(handler.events.size(), 1U);
}

TEST(Shutdown, OfAWorkerThatNeverRanDoesNotBlock)
{
    Worker worker(nullptr, [](Worker&) { return Code(42); });
    worker.StartKill();
    EXPECT_EQ(worker.Wait(), Code(-1));
}

TEST(Handler, MayBeDestroyedWithEventsQueued)
{
    const wxEventTypeTag<wxCommandEvent> type(wxNewEventType());
    int received = 0;
    auto handler = std::make_unique<wxEvtHandler>();
    handler->Bind(type, [&](wxCommandEvent&) { ++received; });
    Worker worker(handler.get(), [&](Worker& self) {
        for (int i = 0; i < 100; ++i)
            self.PostEvent(type, i);
    });
    worker.RunThread();
    worker.Wait();
    handler.reset();
    PumpPending();
    EXPECT_EQ(received, 0);
}

// Expects Entry() right after the destructor's two entries in the virtual table of @a Thread. For binary compatibility
// with hosts, wxGUIThread and wxGUIThreadEx must not put an entry before Entry().
template <typename Thread, typename... Arguments>
void ExpectEntryAfterTheDestructor(Arguments... arguments)
{
    const auto thread =
        std::make_unique<Working<Thread>>(std::move(arguments)..., [](Working<Thread>&) { return Code(42); });
    const auto* table = *reinterpret_cast<void* const* const*>(static_cast<Thread*>(thread.get()));
    EXPECT_EQ(reinterpret_cast<wxThread::ExitCode (*)(Thread*)>(table[2])(thread.get()), Code(42));
}

TEST(VirtualTable, OfGuiThreadsIsThatOfTheirBase)
{
    ExpectEntryAfterTheDestructor<wxGUIThread>(nullptr);
    ExpectEntryAfterTheDestructor<wxGUIThreadEx>(nullptr, 9);
}

}  // namespace
