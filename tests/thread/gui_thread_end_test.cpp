// The end of a worker: the event that reports it, HasEnded(), and a wait that keeps windows painted.

#include <fittings/thread/gui_thread.h>

#include <atomic>
#include <climits>
#include <memory>

#include <gtest/gtest.h>

#include <wx/frame.h>
#include <wx/panel.h>

#include <tests/support/gui.h>
#include <tests/thread/thread_support.h>

namespace {

using Worker = Working<wxGUIThread>;

const int kEnd = wxNewEventType();
const int kOther = wxNewEventType();

// Waits until as many events as in @a events have arrived, and a little longer in case more follow. Expects exactly
// these events.
void ExpectEvents(const Recorder& recorder, const Events& events)
{
    EXPECT_TRUE(PumpUntil([&] { return recorder.events.size() >= events.size(); }));
    EXPECT_FALSE(PumpUntil([&] { return recorder.events.size() > events.size(); }, 50));
    EXPECT_EQ(recorder.events, events);
}

TEST(EndEvent, ComesOnceWithTheRunNumberAndTheExitCode)
{
    Recorder recorder;
    Worker worker(&recorder, [](Worker&) { return Code(42); });
    worker.SetEndEvent(kEnd);
    ASSERT_EQ(worker.RunThread(), wxTHREAD_NO_ERROR);
    ExpectEvents(recorder, {Plain(kEnd, worker.GetRunNumber(), 0, Code(42))});
    EXPECT_TRUE(recorder.allOnGuiThread);
}

TEST(EndEvent, ComesAfterAllOthersOfTheWorker)
{
    Recorder recorder;
    Worker worker(&recorder, [](Worker& self) { self.PostEvent(kOther, 1); });
    worker.SetEndEvent(kEnd);
    worker.RunThread();
    ExpectEvents(recorder, {Plain(kOther, 1), Plain(kEnd, worker.GetRunNumber())});
}

TEST(EndEvent, ComesAfterStartKill)
{
    Recorder recorder;
    Worker worker(&recorder, [](Worker& self) {
        while (self.DoContinue())
            wxThread::Yield();
        return Code(7);
    });
    worker.SetEndEvent(kEnd);
    worker.RunThread();
    ASSERT_TRUE(worker.started.Wait());
    worker.StartKill();
    worker.Wait();
    ExpectEvents(recorder, {Plain(kEnd, worker.GetRunNumber(), 0, Code(7))});
}

TEST(EndEvent, ComesWhenTheWorkHasEnded)
{
    wxEvtHandler handler;
    Worker worker(&handler, [](Worker&) { return Code(42); });
    bool hasCome = false;
    bool hadEnded = false;
    wxThread::ExitCode exitCode = nullptr;
    handler.Bind(wxEventTypeTag<wxCommandEvent>(kEnd), [&](wxCommandEvent&) {
        hadEnded = worker.HasEnded();
        exitCode = worker.Wait();
        hasCome = true;
    });
    worker.SetEndEvent(kEnd);
    worker.RunThread();
    EXPECT_TRUE(PumpUntil([&] { return hasCome; }));
    EXPECT_TRUE(hadEnded);
    EXPECT_EQ(exitCode, Code(42));
}

TEST(EndEvent, DoesNotComeUnasked)
{
    Recorder recorder;
    Worker worker(&recorder, [](Worker&) { return Code(42); });
    worker.RunThread();
    worker.Wait();
    ExpectEvents(recorder, {});
}

TEST(EndEvent, NeedsNoHandler)
{
    Worker worker(nullptr, [](Worker&) { return Code(42); });
    worker.SetEndEvent(kEnd);
    worker.RunThread();
    EXPECT_EQ(worker.Wait(), Code(42));
}

TEST(EndEvent, IsDroppedWithTheHandler)
{
    auto recorder = std::make_unique<Recorder>();
    Worker worker(recorder.get(), [](Worker&) { return Code(42); });
    worker.SetEndEvent(kEnd);
    worker.RunThread();
    worker.Wait();
    recorder.reset();
    PumpPending();
}

TEST(RunNumber, GrowsFromWorkerToWorker)
{
    const Worker first(nullptr, [](Worker&) {});
    const Worker second(nullptr, [](Worker&) {});
    EXPECT_GT(first.GetRunNumber(), 0);
    EXPECT_GT(second.GetRunNumber(), first.GetRunNumber());
}

TEST(RunNumber, TellsALateEventOfAnEarlierWorker)
{
    Recorder recorder;
    auto worker = std::make_unique<Worker>(&recorder, [](Worker&) { return Code(1); });
    const int earlier = worker->GetRunNumber();
    worker->SetEndEvent(kEnd);
    worker->RunThread();
    worker->Wait();
    worker = std::make_unique<Worker>(&recorder, [](Worker&) { return Code(2); });
    worker->SetEndEvent(kEnd);
    worker->RunThread();
    ExpectEvents(recorder, {Plain(kEnd, earlier, 0, Code(1)), Plain(kEnd, worker->GetRunNumber(), 0, Code(2))});
}

TEST(PostResult, IsDeliveredAfterStartKill)
{
    Recorder recorder;
    bool isPosted = false;
    Worker worker(&recorder, [&](Worker& self) {
        wxCommandEvent event(kOther, 5);
        event.SetInt(3);
        event.SetString("half done");
        isPosted = self.PostResult(event);
    });
    worker.StartKill();
    worker.RunThread();
    worker.Wait();
    EXPECT_TRUE(isPosted);
    Event expected = Plain(kOther, 3);
    expected.id = 5;
    expected.string = "half done";
    ExpectEvents(recorder, {expected});
}

TEST(PostResult, TellsThatThereIsNoHandler)
{
    Worker worker(nullptr, [](Worker& self) { return Code(self.PostResult(wxCommandEvent(kOther)) ? 1 : 2); });
    worker.RunThread();
    EXPECT_EQ(worker.Wait(), Code(2));
}

TEST(HasEnded, IsTrueOnceTheWorkIsDone)
{
    HeldThread held;
    EXPECT_FALSE(held.thread.HasEnded());
    held.go.Set();
    EXPECT_TRUE(Becomes([&] { return held.thread.HasEnded(); }));
    EXPECT_EQ(held.thread.Wait(), Code(42));
    EXPECT_TRUE(held.thread.HasEnded());
}

TEST(HasEnded, IsFalseOfAThreadThatHasNotRun)
{
    const Worker worker(nullptr, [](Worker&) {});
    EXPECT_FALSE(worker.HasEnded());
}

TEST(WaitFor, AnswersAtOnceForAThreadThatHasNotRun)
{
    Worker worker(nullptr, [](Worker&) {});
    EXPECT_FALSE(worker.WaitFor(1'000'000));
}

TEST(WaitFor, GivesUpAfterTheTime)
{
    HeldThread held;
    EXPECT_FALSE(held.thread.WaitFor(0));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(held.thread.WaitFor(70));
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(70));
}

TEST(WaitFor, EndsWithTheWork)
{
    HeldThread held;
    EXPECT_FALSE(held.thread.WaitFor(30));
    held.go.Set();
    EXPECT_TRUE(held.thread.WaitFor(1'000'000));
    EXPECT_TRUE(held.thread.WaitFor(0));
    EXPECT_EQ(held.thread.Wait(), Code(42));
}

TEST(WaitFor, WaitsForAsLongAsThereIsANumberFor)
{
    for (const unsigned long milliseconds : {ULONG_MAX, ULONG_MAX / 2, ULONG_MAX / 1'000'000}) {
        HeldThread held;
        bool hasEnded = false;
        Helper waiter([&] { hasEnded = held.thread.WaitFor(milliseconds); });
        EXPECT_TRUE(waiter.IsBlocked()) << milliseconds;
        held.go.Set();
        EXPECT_TRUE(waiter.Ends());
        EXPECT_TRUE(hasEnded) << milliseconds;
    }
}

TEST(WaitFor, MayBeCalledByAnotherThread)
{
    bool hasEnded = false;
    Helper helper([&] {
        Running thread([](auto&) { return Code(42); });
        hasEnded = thread.WaitFor(1'000'000);
    });
    EXPECT_TRUE(helper.Ends());
    EXPECT_TRUE(hasEnded);
}

TEST(WaitFor, KeepsWindowsPaintedAndHandlesNothingElse)
{
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "painted");
    auto* const panel = new wxPanel(frame);
    ASSERT_TRUE(ShowAndSettle(frame));
    std::atomic<int> painted{0};
    panel->Bind(wxEVT_PAINT, [&](wxPaintEvent& event) {
        ++painted;
        event.Skip();
    });
    Recorder recorder;
    Worker worker(&recorder, [&](Worker& self) {
        self.PostEvent(kOther, 1);
        return Code(Becomes([&] { return painted > 0; }) ? 1 : 2);
    });
    panel->Refresh();
    worker.RunThread();
    EXPECT_TRUE(worker.WaitFor(1'000'000));
    EXPECT_EQ(worker.Wait(), Code(1));
    EXPECT_EQ(recorder.events, Events());
    ExpectEvents(recorder, {Plain(kOther, 1)});
    DestroyNow(frame);
}

}  // namespace
