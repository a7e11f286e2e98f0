// What the handler receives, and what PostEvent() returns.

#include <fittings/thread/gui_thread.h>

#include <type_traits>

#include <gtest/gtest.h>

#include <wx/evtloop.h>
#include <wx/timer.h>

#include <tests/support/gui.h>
#include <tests/thread/thread_support.h>

namespace {

using Worker = Working<wxGUIThread>;
using WorkerEx = Working<wxGUIThreadEx>;

static_assert(std::is_base_of_v<wxThreadEx, wxGUIThread> && std::is_base_of_v<wxGUIThread, wxGUIThreadEx>);
static_assert(std::is_abstract_v<wxGUIThread> && std::is_abstract_v<wxGUIThreadEx>);

// Whether a call of PostEvent() with a literal 0 as its last argument compiles. It does not compile: 0 converts both to
// a long and to a null pointer, so the call is ambiguous.
template <typename Void, typename Thread, typename... Arguments>
struct TakesZero : std::false_type
{
};
template <typename Thread, typename... Arguments>
struct TakesZero<std::void_t<decltype(std::declval<Thread&>().PostEvent(std::declval<Arguments>()..., 0))>, Thread,
                 Arguments...> : std::true_type
{
};
static_assert(!TakesZero<void, wxGUIThread, int, int>::value);
static_assert(!TakesZero<void, wxGUIThreadEx, int>::value);
static_assert(TakesZero<void, wxGUIThread, int>::value && TakesZero<void, wxGUIThreadEx>::value);

// Runs a worker that is constructed with @a arguments, waits for it, and delivers the posted events.
template <typename Thread, typename... Arguments>
void RunAndDeliver(Arguments... arguments)
{
    Thread thread(arguments...);
    ASSERT_EQ(thread.RunThread(), wxTHREAD_NO_ERROR);
    thread.Wait();
    PumpPending();
}

TEST(PostEvent, DeliversTypeAndInt)
{
    Recorder handler;
    bool answer = false;
    RunAndDeliver<Worker>(&handler, [&](Worker& self) { answer = self.PostEvent(7, 3); });
    EXPECT_TRUE(answer);
    EXPECT_EQ(handler.events, (Events{Plain(7, 3)}));
    EXPECT_TRUE(handler.allOnGuiThread);
}

TEST(PostEvent, DeliversTheExtraLong)
{
    Recorder handler;
    bool answer = false;
    RunAndDeliver<Worker>(&handler, [&](Worker& self) {
        answer = self.PostEvent(7, 3, 99L) && self.PostEvent(7, 3, 0L) && self.PostEvent(7, 3, -1L) &&
                 self.PostEvent(7, 3, 0x123456789ABCDEF0L) && self.PostEvent(7, 3, 5);
    });
    EXPECT_TRUE(answer);
    EXPECT_EQ(handler.events, (Events{Plain(7, 3, 99), Plain(7, 3, 0), Plain(7, 3, -1),
                                      Plain(7, 3, 0x123456789ABCDEF0L), Plain(7, 3, 5)}));
}

TEST(PostEvent, DeliversTheClientDataAsItIs)
{
    Recorder handler;
    int data = 17;
    bool answer = false;
    RunAndDeliver<Worker>(&handler,
                          [&](Worker& self) { answer = self.PostEvent(7, 3, &data) && self.PostEvent(7, 4, nullptr); });
    EXPECT_TRUE(answer);
    EXPECT_EQ(handler.events, (Events{Plain(7, 3, 0, &data), Plain(7, 4, 0, nullptr)}));
    EXPECT_EQ(data, 17);
}

TEST(PostEvent, DeliversIntsOfAllSizesInOrder)
{
    Recorder handler;
    RunAndDeliver<Worker>(&handler, [&](Worker& self) {
        self.PostEvent(7, 0);
        self.PostEvent(8, -1);
        self.PostEvent(9, INT_MAX);
        self.PostEvent(10, INT_MIN);
    });
    EXPECT_EQ(handler.events, (Events{Plain(7, 0), Plain(8, -1), Plain(9, INT_MAX), Plain(10, INT_MIN)}));
}

TEST(PostEvent, DeliversACopyOfTheCallersEvent)
{
    Recorder handler;
    wxObject object;
    int data = 0;
    wxCommandEvent event(7, 12);
    event.SetEventObject(&object);
    event.SetString(L"caf\u00e9");
    event.SetInt(1);
    event.SetExtraLong(5);
    event.SetClientData(&data);
    bool answer = false;
    RunAndDeliver<Worker>(&handler, [&](Worker& self) {
        answer = self.PostEvent(event, 3);
        event.SetString("reused");
        event.SetExtraLong(6);
    });
    EXPECT_TRUE(answer);
    EXPECT_EQ(event.GetInt(), 3);
    EXPECT_EQ(event.GetString(), "reused");
    EXPECT_EQ(handler.events, (Events{{7, 12, &object, L"caf\u00e9", 3, 5, &data, nullptr}}));
}

// A host may override AddPendingEvent() to see the posted events.
TEST(PostEvent, GoesByTheHandlersPendingEvents)
{
    struct Handler : Recorder
    {
        void AddPendingEvent(const wxEvent& event) override
        {
            const auto& command = dynamic_cast<const wxCommandEvent&>(event);
            pending.push_back(&command);
            values.push_back(command.GetInt());
            wxEvtHandler::AddPendingEvent(event);
        }
        std::vector<const wxCommandEvent*> pending;
        std::vector<int> values;
    } handler;
    int data = 0;
    wxCommandEvent event(7);
    RunAndDeliver<Worker>(&handler, [&](Worker& self) {
        self.PostEvent(event, 1);
        self.PostEvent(7, 2);
        self.PostEvent(7, 3, 99L);
        self.PostEvent(7, 4, &data);
    });
    EXPECT_EQ(handler.values, (std::vector<int>{1, 2, 3, 4}));
    ASSERT_FALSE(handler.pending.empty());
    EXPECT_EQ(handler.pending[0], &event);
    EXPECT_EQ(handler.events, (Events{Plain(7, 1), Plain(7, 2), Plain(7, 3, 99), Plain(7, 4, 0, &data)}));
}

TEST(PostEvent, KeepsTheClassOfTheCallersEvent)
{
    const wxEventTypeTag<wxCommandEvent> type(wxNewEventType());
    wxEvtHandler handler;
    bool isNotifyEvent = false;
    handler.Bind(type, [&](wxCommandEvent& event) { isNotifyEvent = dynamic_cast<wxNotifyEvent*>(&event) != nullptr; });
    wxNotifyEvent event(type);
    RunAndDeliver<Worker>(&handler, [&](Worker& self) { self.PostEvent(event, 3); });
    EXPECT_TRUE(isNotifyEvent);
}

TEST(PostEvent, ReachesABoundHandler)
{
    const wxEventTypeTag<wxCommandEvent> type(wxNewEventType());
    wxEvtHandler handler;
    int value = 0;
    handler.Bind(type, [&](wxCommandEvent& event) { value = event.GetInt(); });
    RunAndDeliver<Worker>(&handler, [&](Worker& self) { self.PostEvent(type, 3); });
    EXPECT_EQ(value, 3);
}

TEST(PostEvent, DoesNotCallTheHandlerOnTheWorker)
{
    Recorder handler;
    Worker thread(&handler, [&](Worker& self) { self.PostEvent(7, 3); });
    thread.RunThread();
    thread.Wait();
    EXPECT_TRUE(handler.events.empty());
    PumpPending();
    EXPECT_EQ(handler.events.size(), 1U);
}

TEST(PostEvent, WakesASleepingEventLoop)
{
    const wxEventTypeTag<wxCommandEvent> type(wxNewEventType());
    wxGUIEventLoop loop;
    wxEvtHandler handler;
    int value = 0;
    handler.Bind(type, [&](wxCommandEvent& event) {
        value = event.GetInt();
        loop.Exit();
    });
    Signal go;
    const pid_t gui = gettid();
    Worker thread(&handler, [&](Worker& self) {
        go.Wait();
        // The GUI thread is asleep when its event loop waits in poll().
        const bool asleep = Becomes([&] {
            std::string call;
            std::getline(std::ifstream(TaskFile(gui, "syscall")), call);
            const long number = std::strtol(call.c_str(), nullptr, 10);
            return call[0] != 'r' && (number == SYS_poll || number == SYS_ppoll);
        });
        self.PostEvent(type, asleep ? 3 : 4);
    });
    thread.RunThread();
    wxTimer deadline;
    deadline.Bind(wxEVT_TIMER, [&](wxTimerEvent&) { loop.Exit(); });
    deadline.StartOnce(30000);
    go.Set();
    loop.Run();
    thread.Wait();
    EXPECT_EQ(value, 3);
}

TEST(PostEventWithoutAHandler, DropsEventsAndGoesOn)
{
    wxCommandEvent event(7);
    int data = 0;
    int answers = 0;
    RunAndDeliver<Worker>(nullptr, [&](Worker& self) {
        answers =
            self.PostEvent(7, 3) + self.PostEvent(7, 3, 99L) + self.PostEvent(7, 3, &data) + self.PostEvent(event, 3);
    });
    EXPECT_EQ(answers, 4);
    EXPECT_EQ(event.GetInt(), 3);

    answers = 0;
    RunAndDeliver<WorkerEx>(nullptr, 9, [&](WorkerEx& self) {
        answers = self.PostEvent(3) + self.PostEvent(3, 99L) + self.PostEvent(3, &data);
    });
    EXPECT_EQ(answers, 3);
}

TEST(PostEventWithoutAHandler, IsRefusedAfterStartKillToo)
{
    Worker thread(nullptr, [](Worker&) {});
    EXPECT_TRUE(thread.PostEvent(7, 3));
    thread.StartKill();
    EXPECT_FALSE(thread.PostEvent(7, 3));
}

TEST(PostEventOfOneType, DeliversEachPayload)
{
    Recorder handler;
    int data = 0;
    int answers = 0;
    RunAndDeliver<WorkerEx>(&handler, 9, [&](WorkerEx& self) {
        answers = self.PostEvent(5) + self.PostEvent(6, 99L) + self.PostEvent(7, &data) + self.PostEvent(8, nullptr) +
                  self.PostEvent(9, 3);
    });
    EXPECT_EQ(answers, 5);
    EXPECT_EQ(handler.events,
              (Events{Plain(9, 5), Plain(9, 6, 99), Plain(9, 7, 0, &data), Plain(9, 8), Plain(9, 9, 3)}));
    EXPECT_TRUE(handler.allOnGuiThread);
}

TEST(PostEventOfOneType, LeavesTheOtherTypesReachable)
{
    Recorder handler;
    wxCommandEvent event(11);
    RunAndDeliver<WorkerEx>(&handler, 9, [&](WorkerEx& self) {
        self.wxGUIThread::PostEvent(10, 1);
        self.wxGUIThread::PostEvent(event, 2);
    });
    EXPECT_EQ(handler.events, (Events{Plain(10, 1), Plain(11, 2)}));
}

class AfterStartKill : public testing::Test
{
protected:
    Recorder handler;
    int data = 0;
};

TEST_F(AfterStartKill, EveryOverloadIsRefused)
{
    int answers = 0;
    wxCommandEvent event(7);
    event.SetInt(1);
    Signal posted;
    Signal go;
    Worker thread(&handler, [&](Worker& self) {
        self.PostEvent(7, 1);
        posted.Set();
        go.Wait();
        answers =
            self.PostEvent(7, 2) + self.PostEvent(7, 3, 99L) + self.PostEvent(7, 4, &data) + self.PostEvent(event, 5);
    });
    thread.RunThread();
    ASSERT_TRUE(posted.Wait());
    thread.StartKill();
    go.Set();
    thread.Wait();
    PumpPending();
    EXPECT_EQ(answers, 0);
    EXPECT_EQ(event.GetInt(), 1);
    EXPECT_EQ(handler.events, (Events{Plain(7, 1)}));
}

TEST_F(AfterStartKill, EveryOverloadOfOneTypeIsRefused)
{
    int answers = 0;
    WorkerEx thread(&handler, 9, [&](WorkerEx& self) {
        answers = self.PostEvent(2) + self.PostEvent(3, 99L) + self.PostEvent(4, &data);
    });
    thread.StartKill();
    thread.RunThread();
    thread.Wait();
    PumpPending();
    EXPECT_EQ(answers, 0);
    EXPECT_TRUE(handler.events.empty());
}

TEST_F(AfterStartKill, EventsQueuedBeforeStillArrive)
{
    Worker thread(&handler, [&](Worker& self) {
        self.PostEvent(7, 1);
        self.PostEvent(7, 2);
    });
    thread.RunThread();
    thread.Wait();
    thread.StartKill();
    EXPECT_TRUE(handler.events.empty());
    PumpPending();
    EXPECT_EQ(handler.events, (Events{Plain(7, 1), Plain(7, 2)}));
}

}  // namespace
