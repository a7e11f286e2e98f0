// The toolkit's own tests of wxThread, applied to the thread objects of this library.

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/msgqueue.h>
#include <wx/panel.h>
#include <wx/thread.h>
#include <wx/tls.h>

#include <tests/support/gui.h>
#include <tests/support/owned_window.h>
#include <tests/thread/thread_support.h>

namespace {

using Thread = Working<wxThreadEx>;
using Worker = Working<wxGUIThread>;

// Running thread objects that are waited for together.
class Threads
{
public:
    template <typename Work>
    void Start(Work work)
    {
        const auto& thread = m_threads.emplace_back(std::make_unique<Thread>(wxTHREAD_JOINABLE, std::move(work)));
        EXPECT_EQ(thread->Create(0), wxTHREAD_NO_ERROR);
        EXPECT_EQ(thread->Run(), wxTHREAD_NO_ERROR);
    }

    std::vector<wxThread::ExitCode> Wait()
    {
        std::vector<wxThread::ExitCode> codes;
        for (const auto& thread : m_threads)
            codes.push_back(thread->Wait());
        return codes;
    }

private:
    std::vector<std::unique_ptr<Thread>> m_threads;
};

// --- Work ------------------------------------------------------------------------------------------------------------

TEST(SeveralThreads, GiveEachItsOwnExitCode)
{
    Threads threads;
    for (const int last : {1, 10, 100, 1000}) {
        threads.Start([last](Thread&) {
            std::intptr_t sum = 0;
            for (int i = 1; i <= last; ++i)
                sum += i;
            return Code(sum);
        });
    }
    EXPECT_EQ(threads.Wait(), (std::vector<wxThread::ExitCode>{Code(1), Code(55), Code(5050), Code(500500)}));
}

TEST(SeveralThreads, ShareACriticalSection)
{
    wxCriticalSection section;
    int count = 0;
    Threads threads;
    for (int i = 0; i < 4; ++i) {
        threads.Start([&](Thread&) {
            for (int n = 0; n < 1000; ++n) {
                const wxCriticalSectionLocker lock(section);
                ++count;
            }
        });
    }
    threads.Wait();
    EXPECT_EQ(count, 4000);
}

TEST(SeveralThreads, PassASemaphoreAsManyAtATimeAsItLets)
{
    wxSemaphore semaphore(2, 2);
    std::atomic<int> inside{0};
    std::atomic<int> most{0};
    Threads threads;
    for (int i = 0; i < 6; ++i) {
        threads.Start([&](Thread&) {
            EXPECT_EQ(semaphore.Wait(), wxSEMA_NO_ERROR);
            const int now = ++inside;
            int seen = most;
            while (now > seen && !most.compare_exchange_weak(seen, now)) {
            }
            wxThread::Yield();
            --inside;
            EXPECT_EQ(semaphore.Post(), wxSEMA_NO_ERROR);
            return Code(1);
        });
    }
    EXPECT_EQ(threads.Wait(), std::vector<wxThread::ExitCode>(6, Code(1)));
    EXPECT_LE(most, 2);
    EXPECT_GE(most, 1);
}

TEST(SeveralThreads, AreWokenByAConditionOfTheHosts)
{
    wxMutex mutex;
    wxCondition condition(mutex);
    int waiting = 0;
    bool go = false;
    Threads threads;
    for (int i = 0; i < 5; ++i) {
        threads.Start([&](Thread&) {
            const wxMutexLocker lock(mutex);
            ++waiting;
            while (!go)
                condition.Wait();
            return Code(3);
        });
    }
    EXPECT_TRUE(Becomes([&] {
        const wxMutexLocker lock(mutex);
        return waiting == 5;
    }));
    {
        const wxMutexLocker lock(mutex);
        go = true;
        condition.Broadcast();
    }
    EXPECT_EQ(threads.Wait(), std::vector<wxThread::ExitCode>(5, Code(3)));
}

TEST(SeveralThreads, HaveEachTheirOwnLocalValues)
{
    static wxTLS_TYPE(int) value;
    wxTLS_VALUE(value) = 99;
    Threads threads;
    for (int i = 1; i <= 3; ++i) {
        threads.Start([i](Thread&) {
            const int before = wxTLS_VALUE(value);
            wxTLS_VALUE(value) = i;
            wxThread::Yield();
            return Code(100 * before + wxTLS_VALUE(value));
        });
    }
    EXPECT_EQ(threads.Wait(), (std::vector<wxThread::ExitCode>{Code(1), Code(2), Code(3)}));
    EXPECT_EQ(wxTLS_VALUE(value), 99);
}

// --- The toolkit's thread behind the object --------------------------------------------------------------------------

TEST(EntryOfAThread, AsksTheToolkitsThreadAboutItself)
{
    Threads threads;
    threads.Start([](Thread&) {
        wxThread* const self = wxThread::This();
        EXPECT_NE(self, nullptr);
        EXPECT_TRUE(self->IsAlive());
        EXPECT_TRUE(self->IsRunning());
        EXPECT_FALSE(self->IsPaused());
        EXPECT_FALSE(self->TestDestroy());
        EXPECT_EQ(self->GetId(), wxThread::GetCurrentId());
        EXPECT_NE(self->GetId(), wxThread::GetMainId());
        EXPECT_EQ(self->GetPriority(), unsigned{wxPRIORITY_DEFAULT});
        wxThread::Sleep(1);
        return Code(1);
    });
    EXPECT_EQ(threads.Wait(), std::vector<wxThread::ExitCode>{Code(1)});
    EXPECT_TRUE(wxThread::IsMain());
}

TEST(EntryOfAThread, PausesAndEndsWhenItHeedsTheToolkitsRequests)
{
    std::atomic<wxThread*> self{nullptr};
    std::atomic<int> rounds{0};
    Thread thread(wxTHREAD_JOINABLE, [&](Thread&) {
        self = wxThread::This();
        while (!wxThread::This()->TestDestroy()) {
            ++rounds;
            wxThread::Yield();
        }
        return Code(7);
    });
    EXPECT_EQ(thread.Create(0), wxTHREAD_NO_ERROR);
    EXPECT_EQ(thread.Run(), wxTHREAD_NO_ERROR);
    ASSERT_TRUE(Becomes([&] { return self && rounds > 0; }));
    EXPECT_EQ(self.load()->Pause(), wxTHREAD_NO_ERROR);
    EXPECT_TRUE(self.load()->IsPaused());
    EXPECT_TRUE(IsBlocked(thread.thread));
    const int before = rounds;
    EXPECT_EQ(self.load()->Resume(), wxTHREAD_NO_ERROR);
    EXPECT_TRUE(Becomes([&] { return rounds > before; }));
    EXPECT_EQ(self.load()->Delete(), wxTHREAD_NO_ERROR);
    EXPECT_EQ(thread.Wait(), Code(7));
}

// --- Other owners ----------------------------------------------------------------------------------------------------

TEST(EntryOfAThread, MayOwnAnotherThread)
{
    Threads outer;
    outer.Start([](Thread&) {
        Thread inner(wxTHREAD_JOINABLE, [](Thread&) { return Code(20); });
        EXPECT_EQ(inner.Create(0), wxTHREAD_NO_ERROR);
        EXPECT_EQ(inner.Run(), wxTHREAD_NO_ERROR);
        return Code(reinterpret_cast<std::intptr_t>(inner.Wait()) + 1);
    });
    EXPECT_EQ(outer.Wait(), std::vector<wxThread::ExitCode>{Code(21)});
}

TEST(SeveralOwners, EachRunTheirOwnThreadAtTheSameTime)
{
    std::atomic<int> sum{0};
    {
        std::vector<std::unique_ptr<Helper>> owners;
        for (int i = 1; i <= 4; ++i) {
            owners.push_back(std::make_unique<Helper>([i, &sum] {
                for (int round = 0; round < 5; ++round) {
                    Threads threads;
                    threads.Start([i](Thread&) { return Code(i); });
                    sum += static_cast<int>(reinterpret_cast<std::intptr_t>(threads.Wait().front()));
                }
            }));
        }
    }
    EXPECT_EQ(sum, 50);
}

// --- The GUI thread --------------------------------------------------------------------------------------------------

// The destructor stops a worker and waits for it, even if the test ends early.
struct Stopped
{
    ~Stopped()
    {
        worker.StartKill();
        worker.Wait();
    }
    Worker& worker;
};

TEST(EntryOfAGuiThread, ReachesTheGuiByTheToolkitsOtherWaysToo)
{
    Recorder handler;
    std::atomic<bool> wasMain{false};
    Worker worker(&handler, [&](Worker& self) {
        wxTheApp->CallAfter([&] { wasMain = wxThread::IsMain(); });
        auto* const event = new wxCommandEvent(7, 0);
        event->SetInt(1);
        wxQueueEvent(&handler, event);
        self.PostEvent(7, 2);
    });
    EXPECT_EQ(worker.RunThread(), wxTHREAD_NO_ERROR);
    worker.Wait();
    EXPECT_TRUE(PumpUntil([&] { return wasMain && handler.events.size() == 2; }));
    EXPECT_EQ(handler.events, (Events{Plain(7, 1), Plain(7, 2)}));
}

TEST(EntryOfAGuiThread, MayEnterTheGuiWhileItsOwnerHandlesEvents)
{
    int touched = 0;
    std::atomic<bool> done{false};
    Worker worker(nullptr, [&](Worker&) {
        wxMutexGuiEnter();
        ++touched;
        wxMutexGuiLeave();
        done = true;
    });
    EXPECT_EQ(worker.RunThread(), wxTHREAD_NO_ERROR);
    EXPECT_TRUE(PumpUntil([&] { return done.load(); }, 30000));
    worker.Wait();
    EXPECT_EQ(touched, 1);
}

TEST(EntryOfAGuiThread, AnswersWhatItGetsByAMessageQueue)
{
    wxMessageQueue<int> questions;
    Recorder handler;
    Worker worker(&handler, [&](Worker& self) {
        int question = 0;
        while (questions.Receive(question) == wxMSGQUEUE_NO_ERROR && question != 0)
            self.PostEvent(7, question * question);
    });
    EXPECT_EQ(worker.RunThread(), wxTHREAD_NO_ERROR);
    for (const int question : {1, 2, 3, 0})
        EXPECT_EQ(questions.Post(question), wxMSGQUEUE_NO_ERROR);
    worker.Wait();
    PumpPending();
    EXPECT_EQ(handler.events, (Events{Plain(7, 1), Plain(7, 4), Plain(7, 9)}));
}

// --- Events of a window ----------------------------------------------------------------------------------------------

class PostedToAWindow : public testing::Test
{
protected:
    // Posts an event to the panel from a worker thread, and waits until the event has been handled.
    void Post(int value)
    {
        Worker worker(panel, [&](Worker& self) { self.PostEvent(type, value); });
        worker.RunThread();
        worker.Wait();
        PumpPending();
    }

    const wxEventTypeTag<wxCommandEvent> type{wxNewEventType()};
    OwnedWindow<wxFrame> frame{new wxFrame(nullptr, wxID_ANY, "posted")};
    wxPanel* panel = new wxPanel(frame);
};

TEST_F(PostedToAWindow, GoesOnToItsParentsUnlessItIsHandled)
{
    std::vector<std::string> seen;
    frame->Bind(type, [&](wxCommandEvent& event) { seen.push_back("frame " + std::to_string(event.GetInt())); });
    Post(1);
    panel->Bind(type, [&](wxCommandEvent& event) {
        seen.push_back("panel " + std::to_string(event.GetInt()));
        event.Skip(event.GetInt() == 3);
    });
    Post(2);
    Post(3);
    EXPECT_EQ(seen, (std::vector<std::string>{"frame 1", "panel 2", "panel 3", "frame 3"}));
}

TEST_F(PostedToAWindow, IsFoundByItsIdZeroOrByAnyId)
{
    int zero = 0, any = 0, other = 0;
    panel->Bind(
        type, [&](wxCommandEvent&) { ++other; }, 5);
    panel->Bind(type, [&](wxCommandEvent& event) {
        ++any;
        event.Skip();
    });
    panel->Bind(
        type,
        [&](wxCommandEvent& event) {
            ++zero;
            event.Skip();
        },
        0);
    Post(1);
    EXPECT_EQ(zero, 1);
    EXPECT_EQ(any, 1);
    EXPECT_EQ(other, 0);
}

TEST_F(PostedToAWindow, IsLostWhileItsHandlerIsSwitchedOff)
{
    int seen = 0;
    panel->Bind(type, [&](wxCommandEvent& event) { seen += event.GetInt(); });
    panel->SetEvtHandlerEnabled(false);
    Post(1);
    panel->SetEvtHandlerEnabled(true);
    PumpPending();
    EXPECT_EQ(seen, 0);
    Post(2);
    EXPECT_EQ(seen, 2);
}

TEST_F(PostedToAWindow, ArrivesInTheLoopOfAModalDialog)
{
    wxDialog dialog(frame, wxID_ANY, "working", wxDefaultPosition, wxDefaultSize,
                    wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
    int last = 0;
    dialog.Bind(type, [&](wxCommandEvent& event) {
        last = event.GetInt();
        if (last == 5)
            dialog.EndModal(wxID_OK);
    });
    Signal shown;
    Worker worker(&dialog, [&](Worker& self) {
        shown.Wait();
        for (int i = 1; i <= 5; ++i)
            self.PostEvent(type, i);
    });
    const Stopped stopped{worker};
    EXPECT_EQ(worker.RunThread(), wxTHREAD_NO_ERROR);
    dialog.CallAfter([&] { shown.Set(); });
    EXPECT_EQ(dialog.ShowModal(), wxID_OK);
    EXPECT_EQ(last, 5);
}

// The handler stops its worker, waits for it and destroys it, as the Cancel button of a progress window does.
TEST_F(PostedToAWindow, MayEndAndDestroyItsWorker)
{
    std::vector<int> seen;
    std::unique_ptr<Worker> worker;
    panel->Bind(type, [&](wxCommandEvent& event) {
        seen.push_back(event.GetInt());
        if (worker && event.GetInt() >= 3) {
            worker->StartKill();
            EXPECT_EQ(worker->Wait(), Code(42));
            worker.reset();
        }
    });
    std::atomic<int> posted{0};
    worker = std::make_unique<Worker>(panel, [&](Worker& self) {
        while (self.PostEvent(type, posted + 1)) {
            ++posted;
            wxThread::Sleep(1);
        }
        return Code(42);
    });
    EXPECT_EQ(worker->RunThread(), wxTHREAD_NO_ERROR);
    EXPECT_TRUE(PumpUntil([&] { return !worker; }, 30000));
    // After the end of the worker, only the events that it had queued arrive.
    EXPECT_TRUE(PumpUntil([&] { return static_cast<int>(seen.size()) == posted; }, 30000));
    PumpPending();
    EXPECT_EQ(static_cast<int>(seen.size()), posted);
    EXPECT_EQ(seen.back(), posted);
}

}  // namespace
