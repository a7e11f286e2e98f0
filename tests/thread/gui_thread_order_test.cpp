// The two mutexes of a worker: when each is held, in which order they are taken, and what happens when one cannot be
// taken.

#include <fittings/thread/gui_thread.h>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <tests/support/gui.h>
#include <tests/thread/thread_support.h>

namespace {

// A worker whose mutexes can be held by a test. The worker's own thread is not used, because any thread may post.
class Open : public Working<wxGUIThread>
{
public:
    explicit Open(wxEvtHandler* handler) : Working(handler, [](Working&) {}) {}

    wxMutex& ContinueMutex() { return m_continueMutex; }
    wxMutex& PostMutex() { return m_postMutex; }
};

// A handler that calls a function of the test once, while an event is being queued for it.
class Interrupted : public Recorder
{
public:
    void QueueEvent(wxEvent* event) override
    {
        wxEvtHandler::QueueEvent(event);
        const std::function<void()> once = std::exchange(whileQueueing, nullptr);
        if (once)
            once();
    }

    std::function<void()> whileQueueing;
};

// Returns whether another thread can lock the mutex now.
bool IsFree(wxMutex& mutex)
{
    bool free = false;
    Helper other([&] {
        free = mutex.TryLock() == wxMUTEX_NO_ERROR;
        if (free)
            mutex.Unlock();
    });
    other.Ends();
    return free;
}

// A worker that returns the addresses of its protected members, in the order in which they must be declared.
class Laid : public Working<wxGUIThreadEx>
{
public:
    Laid() : Working(nullptr, 1, [](Working&) {}) {}

    std::vector<const void*> Members() const
    {
        return {&m_handler, &m_continue, &m_continueMutex, &m_postMutex, &m_eventType};
    }
};

// The continue mutex is declared before the post mutex. Members are destroyed in reverse order of declaration, so the
// post mutex, which PostEvent() locks first, is also destroyed first.
TEST(WorkerClass, LaysItsMembersOutInOrder)
{
    const Laid worker;
    const std::vector<const void*> members = worker.Members();
    EXPECT_TRUE(std::is_sorted(members.begin(), members.end()));
}

TEST(Posting, HoldsThePostMutexAloneWhileItQueues)
{
    Interrupted handler;
    Open worker(&handler);
    const auto expectHeld = [&] {
        EXPECT_FALSE(IsFree(worker.PostMutex()));
        EXPECT_TRUE(IsFree(worker.ContinueMutex()));
    };
    handler.whileQueueing = expectHeld;
    worker.PostEvent(7, 1);
    handler.whileQueueing = expectHeld;
    worker.PostEvent(7, 2, 99L);
    handler.whileQueueing = expectHeld;
    worker.PostEvent(7, 3, nullptr);
    EXPECT_FALSE(handler.whileQueueing);
    EXPECT_TRUE(IsFree(worker.PostMutex()));
    EXPECT_TRUE(IsFree(worker.ContinueMutex()));
    PumpPending();
    EXPECT_EQ(handler.events, (Events{Plain(7, 1), Plain(7, 2, 99), Plain(7, 3)}));
}

TEST(Posting, ReleasesThePostMutexWhenRefused)
{
    Open worker(nullptr);
    worker.StartKill();
    EXPECT_FALSE(worker.PostEvent(7, 1));
    EXPECT_FALSE(worker.PostEvent(7, 1, 1L));
    EXPECT_FALSE(worker.PostEvent(7, 1, nullptr));
    EXPECT_TRUE(IsFree(worker.PostMutex()));
    EXPECT_TRUE(IsFree(worker.ContinueMutex()));
}

// A stop while an event is being queued does not change the result for that event. The next post is refused.
TEST(Posting, IsAnsweredByTheFlagAsItWasBefore)
{
    Interrupted handler;
    Open worker(&handler);
    handler.whileQueueing = [&] { worker.StartKill(); };
    EXPECT_TRUE(worker.PostEvent(7, 1));
    EXPECT_FALSE(worker.PostEvent(7, 2));
    PumpPending();
    EXPECT_EQ(handler.events, (Events{Plain(7, 1)}));
}

TEST(PostingTheCallersEvent, TakesNoPostMutex)
{
    Interrupted handler;
    Open worker(&handler);
    handler.whileQueueing = [&] { EXPECT_TRUE(IsFree(worker.PostMutex())); };
    wxCommandEvent event(7);
    EXPECT_TRUE(worker.PostEvent(event, 1));
    EXPECT_FALSE(handler.whileQueueing);

    const wxMutexLocker held(worker.PostMutex());
    Helper other([&] { worker.PostEvent(event, 2); });
    EXPECT_TRUE(other.Ends());
    PumpPending();
    EXPECT_EQ(handler.events, (Events{Plain(7, 1), Plain(7, 2)}));
}

struct Overload
{
    const char* name;
    bool (*post)(wxGUIThread& worker);
};

class OneAtATime : public testing::TestWithParam<Overload>
{
};

// The flag is read under the post mutex: a stop that comes while a post waits for the mutex still counts.
TEST_P(OneAtATime, AndTheFlagIsReadWhenItsTurnHasCome)
{
    Recorder handler;
    Open worker(&handler);
    bool answer = true;
    worker.PostMutex().Lock();
    Helper other([&] { answer = GetParam().post(worker); });
    EXPECT_TRUE(other.IsBlocked());
    EXPECT_FALSE(other.IsDone());
    worker.StartKill();
    worker.PostMutex().Unlock();
    EXPECT_TRUE(other.Ends());
    EXPECT_FALSE(answer);
    PumpPending();
    EXPECT_TRUE(handler.events.empty());
}

const Overload kOverloads[] = {
    {"Plain", [](wxGUIThread& worker) { return worker.PostEvent(7, 1); }},
    {"WithLong", [](wxGUIThread& worker) { return worker.PostEvent(7, 1, 99L); }},
    {"WithData", [](wxGUIThread& worker) { return worker.PostEvent(7, 1, nullptr); }},
};

INSTANTIATE_TEST_SUITE_P(, OneAtATime, testing::ValuesIn(kOverloads), [](const auto& info) { return info.param.name; });

// All functions must take the two mutexes in the same order, otherwise there could be a deadlock.
TEST_P(OneAtATime, AndTheContinueMutexIsTakenInsideThePostMutex)
{
    Open worker(nullptr);
    worker.ContinueMutex().Lock();
    bool answer = false;
    Helper other([&] { answer = GetParam().post(worker); });
    EXPECT_TRUE(other.IsBlocked());
    EXPECT_FALSE(IsFree(worker.PostMutex()));
    worker.ContinueMutex().Unlock();
    EXPECT_TRUE(other.Ends());
    EXPECT_TRUE(answer);
}

TEST(PostMutex, IsNotRecursive)
{
    Open worker(nullptr);
    const wxMutexLocker outer(worker.PostMutex());
    const wxMutexLocker inner(worker.PostMutex());
    EXPECT_TRUE(outer.IsOk());
    EXPECT_FALSE(inner.IsOk());
}

TEST(ContinueMutex, IsRecursive)
{
    Open worker(nullptr);
    const wxMutexLocker outer(worker.ContinueMutex());
    const wxMutexLocker inner(worker.ContinueMutex());
    EXPECT_TRUE(outer.IsOk());
    EXPECT_TRUE(inner.IsOk());
    EXPECT_TRUE(worker.DoContinue());
    EXPECT_TRUE(worker.PostEvent(7, 1));
    worker.StartKill();
    EXPECT_FALSE(worker.DoContinue());
    EXPECT_FALSE(IsFree(worker.ContinueMutex()));
}

TEST(ContinueMutex, KeepsAStopAwayWhileItIsHeld)
{
    Open worker(nullptr);
    worker.ContinueMutex().Lock();
    Helper stopping([&] { worker.StartKill(); });
    EXPECT_TRUE(stopping.IsBlocked());
    EXPECT_TRUE(worker.DoContinue());
    worker.ContinueMutex().Unlock();
    EXPECT_TRUE(stopping.Ends());
    EXPECT_FALSE(worker.DoContinue());
}

TEST(ContinueMutex, IsHeldToReadTheFlag)
{
    Open worker(nullptr);
    worker.ContinueMutex().Lock();
    Helper asking([&] { worker.DoContinue(); });
    EXPECT_TRUE(asking.IsBlocked());
    worker.ContinueMutex().Unlock();
    EXPECT_TRUE(asking.Ends());
}

// While PostEvent() queues an event, the handler posts a second event in the same thread. The second PostEvent() cannot
// lock the post mutex, which is already locked. Even so, it must post its event, and it must not unlock the mutex.
TEST(PostMutexThatCannotBeHad, StopsNeitherThePostNorTheLockOutside)
{
    Interrupted handler;
    Open worker(&handler);
    bool answer = false;
    handler.whileQueueing = [&] {
        answer = worker.PostEvent(8, 2);
        EXPECT_FALSE(IsFree(worker.PostMutex()));
    };
    EXPECT_TRUE(worker.PostEvent(7, 1));
    EXPECT_TRUE(answer);
    EXPECT_TRUE(IsFree(worker.PostMutex()));
    PumpPending();
    EXPECT_EQ(handler.events, (Events{Plain(7, 1), Plain(8, 2)}));
}

}  // namespace
