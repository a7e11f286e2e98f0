// Many workers and many events. These tests also run under the thread sanitizer.

#include <fittings/thread/gui_thread.h>

#include <atomic>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include <tests/support/gui.h>
#include <tests/thread/thread_support.h>

namespace {

// Counts the events of each worker, and checks their order. The extra long of an event is the worker's number.
class Counter : public wxEvtHandler
{
public:
    explicit Counter(size_t workers) : counts(workers) {}

    bool ProcessEvent(wxEvent& event) override
    {
        const auto& command = dynamic_cast<const wxCommandEvent&>(event);
        int& count = counts.at(static_cast<size_t>(command.GetExtraLong()));
        if (command.GetEventType() != kType || command.GetInt() != count)
            ++outOfOrder;
        ++count;
        ++total;
        ++handled;
        return true;
    }

    static constexpr int kType = 7;
    std::vector<int> counts;
    int outOfOrder = 0;
    int total = 0;
    std::atomic<int> handled{0};  // The same number as total, readable from other threads.
};

class Poster : public wxGUIThreadEx
{
public:
    Poster(wxEvtHandler* handler, long number, int count)
        : wxGUIThreadEx(handler, Counter::kType), m_number(number), m_count(count)
    {
    }

    wxThread::ExitCode Entry() override
    {
        int posted = 0;
        while (posted < m_count && PostEvent(posted, m_number))
            ++posted;
        return Code(posted);
    }

private:
    const long m_number;
    const int m_count;
};

// Posts events until it is stopped, but pauses while more than 100 of them are not handled yet. Otherwise the events
// would keep a slow GUI thread busy and fill the memory.
class EndlessPoster : public wxGUIThreadEx
{
public:
    explicit EndlessPoster(Counter& handler) : wxGUIThreadEx(&handler, Counter::kType), m_counter(handler) {}

    wxThread::ExitCode Entry() override
    {
        int posted = 0;
        while (DoContinue()) {
            if (posted - m_counter.handled > 100)
                wxThread::Yield();
            else if (PostEvent(posted, 0L))
                ++posted;
        }
        return Code(posted);
    }

private:
    const Counter& m_counter;
};

TEST(AThousandCycles, OfStartPostStopAndWaitLoseNothing)
{
    Counter handler(1);
    int posted = 0;
    for (int cycle = 0; cycle < 1000; ++cycle) {
        handler.counts[0] = 0;
        handler.total = 0;
        handler.handled = 0;
        auto worker = std::make_unique<EndlessPoster>(handler);
        ASSERT_EQ(worker->RunThread(), wxTHREAD_NO_ERROR);
        // In every other cycle, do not wait for an event, so that the worker is stopped at a random moment.
        const int awaited = cycle % 2;
        ASSERT_TRUE(PumpUntil([&] { return handler.total >= awaited; }, 30000));
        worker->StartKill();
        posted = static_cast<int>(reinterpret_cast<std::intptr_t>(worker->Wait()));
        worker.reset();
        ASSERT_TRUE(PumpUntil([&] { return handler.total >= posted; }, 30000));
        ASSERT_EQ(handler.total, posted);
    }
    EXPECT_EQ(handler.outOfOrder, 0);
}

TEST(SixtyFourWorkers, PostTenThousandEventsEachInOrder)
{
    Counter handler(64);
    std::vector<std::unique_ptr<Poster>> workers;
    for (long number = 0; number < 64; ++number)
        workers.push_back(std::make_unique<Poster>(&handler, number, 10'000));
    for (const auto& worker : workers)
        ASSERT_EQ(worker->RunThread(), wxTHREAD_NO_ERROR);
    ASSERT_TRUE(PumpUntil([&] { return handler.total >= 640'000; }, 120000));
    for (const auto& worker : workers)
        EXPECT_EQ(worker->Wait(), Code(10'000));
    PumpPending();
    EXPECT_EQ(handler.total, 640'000);
    EXPECT_EQ(handler.counts, std::vector<int>(64, 10'000));
    EXPECT_EQ(handler.outOfOrder, 0);
}

// Other threads may also post with the worker's PostEvent(). The events of each thread must stay in order.
TEST(OneWorker, LetsSeveralThreadsPost)
{
    Counter handler(4);
    Poster worker(&handler, 0, 0);
    {
        const auto post = [&](long number) {
            for (int i = 0; i < 1000; ++i)
                worker.PostEvent(i, number);
        };
        Helper first([&] { post(0); });
        Helper second([&] { post(1); });
        Helper third([&] { post(2); });
        Helper fourth([&] { post(3); });
    }
    PumpPending();
    EXPECT_EQ(handler.counts, (std::vector<int>{1000, 1000, 1000, 1000}));
    EXPECT_EQ(handler.outOfOrder, 0);
}

}  // namespace
