// The cost of a worker's thread and of its events, compared with direct use of the toolkit's thread and events.

#include <atomic>

#include <benchmark/benchmark.h>

#include <wx/event.h>
#include <wx/evtloop.h>
#include <wx/thread.h>

#include <fittings/thread/gui_thread.h>
#include <fittings/thread/thread_ex.h>

namespace {

const wxEventTypeTag<wxCommandEvent> kType(wxNewEventType());

// Returns the exit code of the threads that a benchmark waits for. It is the address of an object, so it differs from
// every code that the toolkit returns by itself.
wxThread::ExitCode Result()
{
    static int result;
    return &result;
}

// Formats a text for each event, which is the least work that an application does. Leaves the event loop after the last
// event.
class Receiver : public wxEvtHandler
{
public:
    explicit Receiver(int count) : m_missing(count) { Bind(kType, &Receiver::OnEvent, this); }

    void ReceiveAll() { m_loop.Run(); }

private:
    void OnEvent(wxCommandEvent& event)
    {
        m_progress = wxString::Format("%d files", event.GetInt());
        if (--m_missing == 0)
            m_loop.Exit();
    }

    wxGUIEventLoop m_loop;
    wxString m_progress;
    int m_missing;
};

class Poster : public wxGUIThread
{
public:
    Poster(Receiver* receiver, int count) : wxGUIThread(receiver), m_count(count) { RunThread(); }

    wxThread::ExitCode Entry() override
    {
        for (int i = 0; i < m_count; ++i)
            PostEvent(kType, i);
        return nullptr;
    }

private:
    const int m_count;
};

class PosterByHand : public wxThread
{
public:
    PosterByHand(Receiver* receiver, int count) : wxThread(wxTHREAD_JOINABLE), m_receiver(receiver), m_count(count)
    {
        Create();
        Run();
    }

protected:
    ExitCode Entry() override
    {
        wxCommandEvent event(kType);
        for (int i = 0; i < m_count; ++i) {
            event.SetInt(i);
            m_receiver->AddPendingEvent(event);
        }
        return nullptr;
    }

private:
    Receiver* const m_receiver;
    const int m_count;
};

// Measures a worker that posts @a count events, and then the handling of these events. The worker posts all events
// before the first is handled. Otherwise it would be random how often the two threads wait for each other's locks.
template <typename Worker>
void Post(benchmark::State& state, int count)
{
    for (auto _ : state) {
        Receiver receiver(count);
        Worker worker(&receiver, count);
        worker.Wait();
        receiver.ReceiveAll();
    }
}

void PostByWorker(benchmark::State& state, int count)
{
    Post<Poster>(state, count);
}

void PostByHand(benchmark::State& state, int count)
{
    Post<PosterByHand>(state, count);
}

class Runner : public wxThreadEx
{
public:
    Runner() : wxThreadEx(wxTHREAD_JOINABLE) {}
    wxThread::ExitCode Entry() override { return Result(); }
};

struct End
{
    wxMutex mutex;
    wxCondition condition{mutex};
    bool finished = false;
    wxThread::ExitCode exitCode = nullptr;
};

// Counts the threads that still run. If the program ends before these threads, the toolkit crashes.
class Alive
{
public:
    Alive() { ++s_count; }
    ~Alive() { --s_count; }
    Alive(const Alive&) = delete;
    Alive& operator=(const Alive&) = delete;

    static void WaitForNone()
    {
        while (s_count > 0)
            wxThread::Yield();
    }

private:
    static inline std::atomic<int> s_count{0};
};

class RunnerByHand : public wxThread
{
public:
    explicit RunnerByHand(End* end) : wxThread(wxTHREAD_DETACHED), m_end(end) {}

protected:
    ExitCode Entry() override
    {
        static thread_local const Alive alive;
        const wxMutexLocker lock(m_end->mutex);
        m_end->exitCode = Result();
        m_end->finished = true;
        m_end->condition.Signal();
        return nullptr;
    }

private:
    End* const m_end;
};

void RunAndWait(benchmark::State& state)
{
    for (auto _ : state) {
        Runner runner;
        runner.Create(0);
        runner.Run();
        if (runner.Wait() != Result())
            state.SkipWithError("a wrong exit code");
    }
}

void RunAndWaitByHand(benchmark::State& state)
{
    for (auto _ : state) {
        End end;
        auto* runner = new RunnerByHand(&end);  // deletes itself
        runner->Create();
        runner->Run();
        const wxMutexLocker lock(end.mutex);
        while (!end.finished)
            end.condition.Wait();
        if (end.exitCode != Result())
            state.SkipWithError("a wrong exit code");
    }
    Alive::WaitForNone();
}

BENCHMARK_CAPTURE(PostByWorker, 10k, 10'000)->Name("thread/post")->UseRealTime();
BENCHMARK_CAPTURE(PostByHand, 10k, 10'000)->Name("thread/post/peer")->UseRealTime();
BENCHMARK_CAPTURE(PostByWorker, 100k, 100'000)->Name("thread/post-100k")->UseRealTime();
BENCHMARK(RunAndWait)->Name("thread/run-wait")->UseRealTime();
BENCHMARK(RunAndWaitByHand)->Name("thread/run-wait/peer")->UseRealTime();

}  // namespace
