// thread_probe QUESTION: uses thread objects in a process of its own, for example while the system has no room for
// threads or while the process ends. Prints one result per line.

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>

#include <sys/resource.h>
#include <unistd.h>

#include <wx/app.h>
#include <wx/init.h>

#include <tests/thread/thread_support.h>

namespace {

std::atomic<long> g_allocations{0};

}  // namespace

// These operators count the allocations that exist. The toolkit uses them, too.
void* operator new(size_t size)
{
    void* memory = std::malloc(size > 0 ? size : 1);
    if (!memory)
        std::abort();
    ++g_allocations;
    return memory;
}

void operator delete(void* memory) noexcept
{
    if (memory)
        --g_allocations;
    std::free(memory);
}

void operator delete(void* memory, size_t) noexcept
{
    operator delete(memory);
}

namespace {

using Thread = Working<wxThreadEx>;

void Say(const char* name, long number)
{
    std::printf("%s %ld\n", name, number);
    std::fflush(stdout);
}

long Number(wxThread::ExitCode code)
{
    return static_cast<long>(reinterpret_cast<std::intptr_t>(code));
}

// Keeps this process from starting threads. The limit does not apply to root, so a process of root changes its user.
bool LeaveNoRoomForThreads()
{
    const rlimit none{0, 0};
    return setrlimit(RLIMIT_NPROC, &none) == 0 && (getuid() != 0 || setuid(65534) == 0);
}

void NoRoom()
{
    Say("limited", LeaveNoRoomForThreads());
    Thread thread(wxTHREAD_JOINABLE, [](Thread&) { return Code(42); });
    Say("create", thread.Create(0));
    Say("run", thread.Run());
    Say("wait", Number(thread.Wait()));
    Say("started", thread.started.IsSet());

    Working<wxGUIThread> worker(nullptr, [](auto&) { return Code(42); });
    Say("run-thread", worker.RunThread());
    Say("wait", Number(worker.Wait()));

    Thread uncreated(wxTHREAD_JOINABLE, [](Thread&) { return Code(42); });
    Say("run", uncreated.Run());
    Say("wait", Number(uncreated.Wait()));
}

// Ends the process with _exit(), because the toolkit's shutdown would wait for the thread that was never run.
void Created()
{
    {
        Thread thread(wxTHREAD_JOINABLE, [](Thread&) { return Code(42); });
        Say("create", thread.Create(0));
        Say("wait", Number(thread.Wait()));
        Say("started", thread.started.IsSet());
    }
    Say("destroyed", 1);
    _exit(0);
}

// Makes three threads that are never run, and one that is run. At its shutdown, the toolkit logs the number of threads
// that are left. The log goes to stderr, which is redirected to stdout here.
void NeverRun()
{
    dup2(STDOUT_FILENO, STDERR_FILENO);
    for (int i = 0; i < 2; ++i)
        const Thread constructed(wxTHREAD_JOINABLE, [](Thread&) { return Code(42); });
    const Thread detached(wxTHREAD_DETACHED, [](Thread&) { return Code(42); });
    Running run([](auto&) { return Code(42); });
    run.Wait();
    Say("ended", HasEnded(run.thread));
}

void DestroyDetached()
{
    Signal never;
    auto thread = std::make_unique<Thread>(wxTHREAD_DETACHED, [&](Thread&) {
        for (;;)
            never.Wait();
    });
    thread->Create(0);
    thread->Run();
    Say("started", thread->started.Wait());
    thread.reset();
    Say("destroyed", 1);
    _exit(0);
}

void TwoWaiters()
{
    HeldThread held;
    Thread& thread = held.thread;
    auto woken = std::make_unique<Helper>([&] { thread.Wait(); });
    auto other = std::make_unique<Helper>([&] { thread.Wait(); });
    Say("both", woken->IsBlocked() && other->IsBlocked());
    held.go.Set();
    Say("one", Becomes([&] { return woken->IsDone() || other->IsDone(); }));
    if (other->IsDone())
        std::swap(woken, other);
    woken.reset();
    Say("ended", HasEnded(thread.thread));
    Say("other", other->IsBlocked() && !other->IsDone());
    Say("later", Number(thread.Wait()));
    _exit(0);
}

// Returns the number of allocations that the work leaves behind.
long AllocationsLeftBy(const std::function<void()>& work)
{
    work();  // The toolkit and the system allocate some memory only once, at the first use.
    const long before = g_allocations;
    work();
    return g_allocations - before;
}

void Memory()
{
    Say("run", AllocationsLeftBy([] { Running([](auto&) { return Code(42); }).Wait(); }));
    Say("posted", AllocationsLeftBy([] {
            wxEvtHandler handler;
            Working<wxGUIThreadEx> worker(&handler, 9, [](auto& self) {
                for (int i = 0; i < 100; ++i)
                    self.PostEvent(i, 99L);
            });
            worker.RunThread();
            worker.Wait();
        }));
    Say("refused", AllocationsLeftBy([] {
            Working<wxGUIThread> worker(nullptr, [](auto& self) { return Code(self.PostEvent(7, 3)); });
            worker.StartKill();
            worker.RunThread();
            worker.Wait();
        }));
    Say("never run",
        AllocationsLeftBy([] { const Thread thread(wxTHREAD_JOINABLE, [](Thread&) { return Code(42); }); }) > 0);
}

class App : public wxAppConsole
{
public:
    void OnUnhandledException() override
    {
        try {
            throw;
        } catch (const std::runtime_error& error) {
            std::printf("unhandled %s\n", error.what());
        }
    }
};

// Right after Wait(), the process shuts the toolkit down and ends. By then, the thread must no longer use it.
void EndAtOnce()
{
    Say("wait", Number(Running([](auto&) { return Code(42); }).Wait()));
}

void Throw()
{
    Running thread([](auto&) -> wxThread::ExitCode { throw std::runtime_error("of Entry"); });
    Say("wait", Number(thread.Wait()));
    Say("ended", HasEnded(thread.thread));

    Recorder recorder;
    Working<wxGUIThread> worker(&recorder,
                                [](auto&) -> wxThread::ExitCode { throw std::runtime_error("of a worker"); });
    worker.SetEndEvent(wxNewEventType());
    worker.RunThread();
    worker.Wait();
    wxAppConsole::GetInstance()->ProcessPendingEvents();
    Say("end events", static_cast<long>(recorder.events.size()));
    Say("with", Number(recorder.events.empty() ? nullptr : recorder.events.front().data));
}

}  // namespace

int main(int argc, char** argv)
{
    wxApp::SetInstance(new App);
    const wxInitializer toolkit;
    const std::map<std::string, void (*)()> answers{
        {"no-room", NoRoom},         {"created", Created},
        {"never-run", NeverRun},     {"destroy-detached", DestroyDetached},
        {"two-waiters", TwoWaiters}, {"memory", Memory},
        {"end-at-once", EndAtOnce},  {"throw", Throw},
    };
    const auto answer = answers.find(argc > 1 ? argv[1] : "");
    if (answer == answers.end())
        return 2;
    answer->second();
    return 0;
}
